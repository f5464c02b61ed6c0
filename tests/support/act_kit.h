// What the action games' screen tests start from: the screen kit and the end kit, the end of a
// game watched for the play going on behind its boxes, and an arrow key held as a finger moves.
#pragma once

#include "game_end.h"
#include "screen_kit.h"

namespace wm::test {

// Answers the end box Yes; `behind` tells whether the game's Timer1 ran while it was open.
template <class Game>
void WatchBehindTheBox(ShellFixture& fx, Game* game, bool& behind) {
    fx.dialogs.answerYes(true);
    fx.dialogs.whileOpen = [game, &behind](const auto&) { behind = Runs(game->frame(), "Timer1"); };
}

// Answers the boxes of a won game as the road does; `behind` tells whether the timer `name` of
// `game` (null until it is open) ran while one was open.
template <class Game>
void WatchBehindTheWin(Road& fx, Game* const& game, bool& behind, const char* name = "Timer1") {
    SetModalHook([&fx, &game, &behind, name](QDialog& d) {
        behind = game && Runs(game->frame(), name);
        fx.win(d);
    });
}

// Empty when the game's call reads `text` and its sound `effect` was played; else what differs.
inline QString Called(const ShellFixture& fx, const QString& call, const QString& text,
                      const QString& effect) {
    if (call != text) return "the call is \"" + call + "\", not \"" + text + "\"";
    return fx.sound.played.contains(effect) ? QString() : effect + " was not played";
}

// Lets go of the key held (0: none) and holds `key` instead, unless it is held already.
inline void Hold(QWidget* w, int& held, int key) {
    if (key == held) return;
    if (held) SendKey(w, held, QEvent::KeyRelease);
    if (key) SendKey(w, key);
    held = key;
}

}  // namespace wm::test
