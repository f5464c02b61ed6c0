// Shortcuts the game screens' tests share: a game opened on a list of its own, a label's text,
// the palette answering with one character, and a game's table read back.
#pragma once

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include "core/score_table.h"
#include "game_road.h"

namespace wm::test {

using Pairs = std::vector<std::pair<std::string, std::string>>;

// Writes `pairs` as the only list and goes from the chooser of `game` (options as given) into
// the game. The game's screen, or null when something else is shown.
template <class Game>
Game* OpenGame(ShellFixture& fx, const QString& game, const Pairs& pairs, int difficulty,
               bool optionOn = false, bool soundOn = true, bool wordsOnly = false) {
    WriteOneList(fx, "Test Words", pairs, wordsOnly);
    return qobject_cast<Game*>(
        ContinueWithList(ChooserFor(game, difficulty, optionOn, soundOn), "Test Words"));
}

// A key sent straight to the screen: a press or a release, auto-repeated or not.
inline void SendKey(QWidget* w, int key, QEvent::Type type = QEvent::KeyPress,
                    bool autoRepeat = false) {
    QKeyEvent e(type, key, Qt::NoModifier, QString(), autoRepeat);
    QApplication::sendEvent(w, &e);
}

inline QString LabelText(QWidget* w, const char* name) {
    auto* l = w ? w->findChild<QLabel*>(name) : nullptr;
    return l ? l->text() : QString("<no %1>").arg(name);
}

// Types into a line edit and presses Enter.
inline void Enter(QLineEdit* box, const QString& typed) {
    QTest::keyClicks(box, typed);
    QTest::keyClick(box, Qt::Key_Return);
}

// A modal hook that answers the "Foreign Language Characters" palette with the character
// `code` (Windows-1252) and hands every other box to `driver`.
inline std::function<void(QDialog&)> PaletteThen(int code, WinDriver& driver) {
    return [code, &driver](QDialog& d) {
        if (auto* fl = qobject_cast<FLForm*>(&d)) {
            fl->pickCell(code - 191);
            fl->insert(0);
            if (fl->isVisible()) fl->reject();
        } else {
            driver(d);
        }
    };
}

// Rank `rank` of the game's table as "initials score".
inline QString TableRow(const ShellFixture& fx, const char* game, int rank = 1) {
    const ScoreTable t = ReadScoreTable(ScoreFilePath(fx.dir.path().toStdString(), game));
    return QString::fromStdString(t.initials(rank) + " " + t.scoreText(rank));
}

}  // namespace wm::test
