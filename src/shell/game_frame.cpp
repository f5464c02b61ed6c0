#include "shell/game_frame.h"

#include <QMenu>

#include "core/score_table.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/music.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/enter_initials_form.h"
#include "shell/fl_form.h"
#include "shell/high_score_form.h"
#include "shell/screens.h"

namespace wm {

namespace {
std::function<void(QDialog&)>& modalHook() {
    static std::function<void(QDialog&)> hook;
    return hook;
}
}  // namespace

int RunModal(QDialog& dialog) {
    if (modalHook()) {
        dialog.show();
        modalHook()(dialog);
        return dialog.result();
    }
    return dialog.exec();
}

void SetModalHook(std::function<void(QDialog&)> hook) {
    modalHook() = std::move(hook);
}

QMenuBar* MakeGameMenu(QWidget* game, const GameMenuNames& names, std::function<void()> restart,
                       std::function<void(const QString&)> foreign) {
    auto* bar = new QMenuBar(game);
    bar->setObjectName("GameMenu");
    bar->setNativeMenuBar(false);
    auto add = [&](const QString& text, const QString& name, std::function<void()> action) {
        QAction* a = bar->addAction(text);
        a->setObjectName(name);
        QObject::connect(a, &QAction::triggered, game, [action] {
            if (action) action();
        });
        return a;
    };
    add("Restart", names.restart, std::move(restart));
    if (!names.foreign.isEmpty() && foreign) {
        const QString key = names.foreignKey;
        add(names.foreignText, names.foreign, [game, key, foreign] {
            SharedState& s = Shared();
            if (!key.isEmpty() && LCase(s.CurrentGame) != LCase(fromQ(key)))
                s.CurrentGame = fromQ(key);
            FLForm palette(game);
            if (RunModal(palette) == QDialog::Accepted && !s.ForeignChar.empty())
                foreign(toQ(s.ForeignChar));
        });
    }
    add("High Scores", names.scores, [game] { ShowHighScores(game); });
    add("How To Play", names.howTo, [] { ShowHowToPlay(); });
    add("Quit", names.quit, [game] { QuitToTitle(game); });
    return bar;
}

void ShowHowToPlay() {
    dialogs().message(toQ(Shared().HowToText), "How To Play");
}

void ShowHighScores(QWidget* parent) {
    HighScoreForm form(parent);
    RunModal(form);
}

void QuitToTitle(QWidget* game) {
    StopBackgroundMusic();
    OpenScreen("Title", game);
}

std::string FilterInitials(const std::string& typed) {
    const std::string l = LCase(typed);
    if (l == "fuc" || l == "fuk" || l == "ass") return "WIN";
    return typed;
}

int PlaceHighScore(QWidget* game, const std::string& scoreText, bool smallestFirst) {
    SharedState& s = Shared();
    const std::string path = ScoreFilePath(s.AppPath, s.CurrentGame);
    ScoreTable table = ReadScoreTable(path);
    const double score = Val(scoreText);
    const int rank = smallestFirst ? FindRankSmallestFirst(table, score) : FindRank(table, score);
    if (rank == 0) return 0;
    s.PlacedRank = static_cast<short>(rank);
    {
        EnterInitialsForm form(game);
        RunModal(form);
    }
    InsertScore(table, rank, FilterInitials(s.LastInitials), scoreText);
    try {
        WriteScoreTable(path, table);
    } catch (const std::exception& e) {
        dialogs().message(toQ(e.what()), "High Scores");
    }
    ShowHighScores(game);
    return rank;
}

AfterWin HighScoreHandoff(QWidget* game, bool smallestFirst) {
    SharedState& s = Shared();
    s.Score = static_cast<double>(Int(s.Score));
    const std::string text = NumText(s.Score);
    const int rank = PlaceHighScore(game, text, smallestFirst);
    if (rank > 0) {
        if (!dialogs().yesNo(
                "You got a high score of " + toQ(text) + "! Would you like to try again?",
                "Great job!"))
            return AfterWin::Title;
        if (s.Difficulty < s.MaxDifficulty &&
            dialogs().yesNo("Would you like to raise the difficulty level a bit?", "Great job!"))
            s.Difficulty += 1;
        return AfterWin::NewGame;
    }
    if (!dialogs().yesNo(
            "Congratulations! You scored " + toQ(text) + "! Would you like to try again?",
            "Great job!"))
        return AfterWin::Title;
    return AfterWin::NewGame;
}

}  // namespace wm
