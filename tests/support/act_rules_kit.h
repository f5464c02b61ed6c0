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

// Whether a game took the list it was begun on: true, no refusal text, Ok or Ready.
template <class R>
bool Took(const R& r) {
    if constexpr (std::is_same_v<R, bool>)
        return r;
    else if constexpr (requires { R::Ready; })
        return r == R::Ready;
    else if constexpr (std::is_enum_v<R>)
        return r == R::Ok;
    else
        return r == R();
}

// A game begun (or set up) on `list`, past its pause when it has one and `go` is left set.
// Bound as `auto [s, rng, g] = Begun<Game>(ListOf(...), ScriptedRng(0.5).pick(1, 4));`.
template <class Game>
struct Begun {
    SharedState s;
    ScriptedRng rng;
    Game g;
    Begun(SharedState list, ScriptedRng scripted, bool go = true)
        : s(std::move(list)), rng(std::move(scripted)) {
        if constexpr (requires { g.start(s, rng); })
            EXPECT_TRUE(Took(g.start(s, rng)));
        else if constexpr (requires { Took(g.setup(s, rng)); })
            EXPECT_TRUE(Took(g.setup(s, rng)));
        else
            g.setup(s, rng);
        if constexpr (requires { g.go(); })
            if (go) g.go();
    }
    Begun(SharedState list, double fallback, bool go = true)
        : Begun(std::move(list), ScriptedRng(fallback), go) {}
};

}  // namespace wm::test
