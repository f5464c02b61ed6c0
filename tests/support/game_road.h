// Drivers that take a game along the pupil's road: from the title through the options and the
// chooser into the game, and through the boxes of a won game to the table.
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QListWidget>
#include <QPushButton>
#include <random>

#include "shell/catalogue.h"
#include "shell/choose_list.h"
#include "shell/enter_initials_form.h"
#include "shell/fl_form.h"
#include "shell/game_options.h"
#include "shell/high_score_form.h"
#include "shell/title.h"
#include "shell_fixture.h"

namespace wm::test {

// Random, but the same every run: reseeding does not look at the clock.
class SeededRng : public Rng {
public:
    explicit SeededRng(std::uint64_t seed) : engine_(seed) {}
    double Rnd() override { return std::uniform_real_distribution<double>(0, 1)(engine_); }
    void Randomize() override {}

private:
    std::mt19937_64 engine_;
};

// Types the initials and presses OK on the initials box; reads the table and presses OK.
struct WinDriver {
    explicit WinDriver(QStringList typed = {}) : initials(std::move(typed)) {}
    QStringList initials;
    QStringList congratulations;
    QStringList tables;
    int shots = 0;
    void operator()(QDialog& d) {
        if (auto* e = qobject_cast<EnterInitialsForm*>(&d)) {
            congratulations << e->message();
            const QString ini = initials.isEmpty() ? "ZZZ" : initials.takeFirst();
            for (int i = 0; i < 3; ++i) e->letters()[i]->setText(ini.mid(i, 1));
            if (shots++ == 0) Shot(e, "initials");
            e->confirm();
        } else if (auto* h = qobject_cast<HighScoreForm*>(&d)) {
            tables << h->tableText();
            if (tables.size() == 1) Shot(h, "high-scores");
            h->findChild<QPushButton*>("Command1")->click();
        } else if (auto* fl = qobject_cast<FLForm*>(&d)) {
            fl->reject();
        }
    }
};

// Selects the first line of the chooser that begins with `startsWith`; its row or -1.
inline int SelectList(ChooseList* chooser, const QString& startsWith) {
    for (int i = 0; i < chooser->lists()->count(); ++i) {
        if (chooser->lists()->item(i)->text().startsWith(startsWith)) {
            chooser->lists()->setCurrentRow(i);
            return i;
        }
    }
    return -1;
}

// A vocabulary file of one list, as the chooser reads it (a words-only list has no definitions
// and ends on the marker line).
inline void WriteOneList(const ShellFixture& fx, const QString& name,
                         const std::vector<std::pair<std::string, std::string>>& pairs,
                         bool wordsOnly = false) {
    QStringList lines{name};
    for (const auto& [w, m] : pairs) {
        lines << QString::fromLatin1(w.data(), int(w.size()));
        lines << (wordsOnly ? QString("-----") : QString::fromLatin1(m.data(), int(m.size())));
    }
    fx.writeLines("thelists.dat", lines);
}

// Opens the chooser for `game` straight from the title, with the options already set.
inline ChooseList* ChooserFor(const QString& game, int difficulty, bool optionOn,
                              bool soundOn = true) {
    if (!CurrentScreen()) OpenScreen("Title");
    SharedState& s = Shared();
    const GameCard* card = FindCard(game.toStdString());
    s.CurrentGame = game.toStdString();
    s.HowToText = card ? card->howTo : std::string();
    s.Difficulty = static_cast<short>(difficulty);
    s.MaxDifficulty = static_cast<short>(card ? card->options.max : difficulty);
    s.GameOptionOn = optionOn ? kTrue : kFalse;
    s.SoundOn = soundOn ? kTrue : kFalse;
    auto* chooser = qobject_cast<ChooseList*>(OpenScreen("ChooseList", CurrentScreen()));
    Pump();
    return chooser;
}

// Picks the list and presses Continue; for the list-first games the options screen that follows
// is passed with its values as they stand. Returns the screen shown afterwards.
inline QWidget* ContinueWithList(ChooseList* chooser, const QString& listStartsWith) {
    if (!chooser || SelectList(chooser, listStartsWith) < 0) return nullptr;
    // The buttons a pupil presses, not the slots behind them.
    chooser->findChild<QPushButton*>("Command1")->click();
    Pump();
    if (auto* options = Showing<GameOptions>()) {
        options->Command1->click();
        Pump();
    }
    return CurrentScreen();
}

// The whole road from a click on the title's button: the options screen with `difficulty`,
// Continue, the chooser with the list, Continue. Returns the game's screen (or what is shown).
inline QWidget* PlayFromTitle(const QString& game, const QString& listStartsWith, int difficulty) {
    auto* title = qobject_cast<Title*>(OpenScreen("Title", CurrentScreen()));
    if (!title) return nullptr;
    Pump();
    for (int page = 0; page < 4; ++page) {
        for (auto* b : title->buttons()) {
            if (b->isVisible() && b->text() == game) {
                QTest::mouseClick(b, Qt::LeftButton);
                Pump();
                auto* options = Showing<GameOptions>();
                auto* chooser = Showing<ChooseList>();
                if (options) {
                    options->SpeedBar->setValue(difficulty);
                    options->Command1->click();
                    Pump();
                    chooser = Showing<ChooseList>();
                }
                return ContinueWithList(chooser, listStartsWith);
            }
        }
        title->showMore();
    }
    return nullptr;
}

// Triggers a game menu entry by its control name.
inline bool TriggerMenu(QWidget* game, const char* name) {
    auto* a = game ? game->findChild<QAction*>(name) : nullptr;
    if (!a) return false;
    a->trigger();
    return true;
}

// The checks over every game (the matrix, the layout) take only the games named in WM_GAMES
// ("Name|Name") when it is set, so that one game's screen can be checked alone.
inline bool GameTaken(const std::string& name) {
    const QStringList only = qEnvironmentVariable("WM_GAMES").split('|', Qt::SkipEmptyParts);
    return only.isEmpty() || only.contains(QString::fromStdString(name));
}

}  // namespace wm::test
