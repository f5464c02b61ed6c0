// What the guessing, game-show and study screens' tests share beyond the screen kit: a game's
// screen taken or the boxes shown instead, and a game opened from the title on spread draws.
#pragma once

#include <cmath>

#include "game_end.h"
#include "screen_kit.h"

// Takes the screen `open` gives (a pointer, or a QPointer when the screen may close under the
// test) into `var`; when no screen of the game opened, the test fails with every box shown so far.
#define WM_OPEN(var, fx, open) \
    auto var = (open);         \
    QVERIFY2(var, qPrintable((fx).dialogs.texts().join(" | ")))

namespace wm::test {

// Writes `pairs` as the only list and plays `game` from the title's button at `level`, after
// queuing `spread` values spread over [0, 1) so that each deal finds its fresh words quickly and
// the same way every run. The game's screen, or null when something else is shown.
template <class Game>
Game* PlayOn(ShellFixture& fx, const QString& game, const Pairs& pairs, int level, int spread = 0) {
    WriteOneList(fx, "Test Words", pairs);
    for (int i = 1; i <= spread; ++i) fx.rng.then(std::fmod(i * 0.6180339887, 1.0));
    return qobject_cast<Game*>(PlayFromTitle(game, "Test Words", level));
}

// As PlayOn, with the events of the game's first moment let through.
template <class Game>
Game* StartFromTitle(ShellFixture& fx, const QString& game, const Pairs& pairs, int level,
                     int spread = 0) {
    Game* opened = PlayOn<Game>(fx, game, pairs, level, spread);
    Pump();
    return opened;
}

}  // namespace wm::test
