// What a game screen's test starts from: QtTest, the fixture and the road drivers, and short
// checks of how a game ends for the pupil (a box with its title, a list refused, the title back).
#pragma once

#include <QtTest>

#include "game_start.h"
#include "road_kit.h"
#include "shell/game_frame.h"

using namespace wm;
using namespace wm::test;

// Fails the test with `fault` unless it is empty.
#define WM_VERIFY(fault)                                \
    do {                                                \
        const QString fault_ = (fault);                 \
        QVERIFY2(fault_.isEmpty(), qPrintable(fault_)); \
    } while (0)

namespace wm::test {

// Types `keys` one key at a time, as a pupil does.
inline void Keys(QWidget* game, const QString& keys) {
    for (QChar c : keys) QTest::keyClick(game, c.toLatin1());
}

// Whether the game's timer `name` runs, and its interval in ms (-1 when it has none of that
// name): a timer renamed fails the check, not the test program.
inline bool Runs(const GameFrame& frame, const char* name) {
    const GameTimer* t = frame.findTimer(name);
    return t && t->isActive();
}
inline int IntervalOf(const GameFrame& frame, const char* name) {
    const GameTimer* t = frame.findTimer(name);
    return t ? t->interval() : -1;
}

// Lets the last box close; whether the title is shown again.
inline bool BackAtTitle() {
    Pump();
    return Showing<Title>() != nullptr;
}

// Empty when a box said exactly `text` under `title` (any title when none is given); else
// every box that was shown.
inline QString Box(const ShellFixture& fx, const QString& text, const QString& title = {}) {
    for (const auto& b : fx.dialogs.shown)
        if (b.text == text && (title.isEmpty() || b.title == title)) return {};
    QString seen;
    for (const auto& b : fx.dialogs.shown) seen += "\n  [" + b.title + "] " + b.text;
    return "no box [" + title + "] \"" + text + "\"; shown:" + seen;
}

// The winner's box for `score`, under its title.
inline QString WonBox(const ShellFixture& fx, const QVariant& score) {
    return Box(fx, "You got a high score of " + score.toString() + "! Would you like to try again?",
               "Great job!");
}

// Writes `pairs` as the only list, takes it to `game` from the chooser and expects it refused
// with `text` (under `title`, when given), then the title.
inline QString Refused(ShellFixture& fx, const QString& game, const Pairs& pairs, int difficulty,
                       const QString& text, const QString& title = {}) {
    OpenGame<QWidget>(fx, game, pairs, difficulty);
    Pump();
    if (QString f = Box(fx, text, title); !f.isEmpty()) return f;
    return BackAtTitle() ? QString() : QString("the title is not back");
}

}  // namespace wm::test
