// What the action games' rules tests start from: a game begun on a list with a scripted
// generator, the three kept side by side since the game reads the list and draws on every step.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>

#include "core/rng.h"
#include "core/shared_state.h"
#include "word_lists.h"

namespace wm::test {

// Whether a game's start() took the list: true, no refusal text, or Ok.
template <class R>
bool Took(const R& r) {
    if constexpr (std::is_same_v<R, bool>)
        return r;
    else if constexpr (std::is_enum_v<R>)
        return r == R::Ok;
    else
        return r == R();
}

// A game begun on `list`, past its pause when it has one and `go` is left set. Bound as
// `auto [s, rng, g] = Begun<Game>(ListOf(...), ScriptedRng(0.5).pick(1, 4));`.
template <class Game>
struct Begun {
    SharedState s;
    ScriptedRng rng;
    Game g;
    Begun(SharedState list, ScriptedRng scripted, bool go = true)
        : s(std::move(list)), rng(std::move(scripted)) {
        EXPECT_TRUE(Took(g.start(s, rng)));
        if constexpr (requires { g.go(); })
            if (go) g.go();
    }
    Begun(SharedState list, double fallback, bool go = true)
        : Begun(std::move(list), ScriptedRng(fallback), go) {}
};

}  // namespace wm::test
