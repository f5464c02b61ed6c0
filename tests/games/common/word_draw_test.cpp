// The fresh-word draw: the list's loaded entries only, repeats by text in any case, and the walk
// on from the last draw once 200 draws have all been unlucky.
#include <gtest/gtest.h>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/common/word_draw.h"

using namespace wm;

namespace {
SharedState Words(std::vector<std::string> words, int count) {
    SharedState s;
    s.Words = std::move(words);
    s.WordCount = static_cast<short>(count);
    return s;
}
const auto kAny = [](const std::string&) { return true; };
}  // namespace

TEST(DrawFreshWord, DrawsLoadedPlayableFreshEntriesAndAlwaysEnds) {
    // A count past the entries held, or past `most`, draws only what is there.
    ScriptedRng top(0.99);
    EXPECT_EQ(DrawFreshWord(Words({"", "ant"}, 5), top, {}, 1000, kAny), 1);
    EXPECT_EQ(DrawFreshWord(Words({"", "ant", "bee", "cat"}, 3), top, {}, 2, kAny), 2);
    // A past draw that is no entry of this list (a stale index) is no repeat.
    EXPECT_EQ(DrawFreshWord(Words({"", "ant"}, 1), top, {2, -1}, 1000, kAny), 1);
    // The same text in other capitals is a repeat: the draw goes on to the next.
    auto rng = ScriptedRng().then(0.4).then(0.9);
    EXPECT_EQ(DrawFreshWord(Words({"", "ant", "ANT", "bee"}, 3), rng, {1}, 1000, kAny), 3);
    EXPECT_EQ(rng.draws, 2);
    // Once every word has come, a repeat is drawn.
    ScriptedRng again(0.0);
    EXPECT_EQ(DrawFreshWord(Words({"", "ant", "bee"}, 2), again, {1, 2}, 1000, kAny), 1);
    // 200 draws of an unplayable word: the walk goes on from it to the next that fits.
    const auto noBee = [](const std::string& w) { return w != "bee"; };
    ScriptedRng stuck(0.5);  // always entry 2 of 3
    EXPECT_EQ(DrawFreshWord(Words({"", "ant", "bee", "cat"}, 3), stuck, {}, 1000, noBee), 3);
    EXPECT_EQ(stuck.draws, 200);
    ScriptedRng stuckLast(0.99);  // always the last entry: the walk wraps round to the first
    EXPECT_EQ(DrawFreshWord(Words({"", "ant", "bee", "cat", "dog"}, 4), stuckLast, {1}, 1000,
                            [](const std::string& w) { return w != "dog"; }),
              2);
    // Nothing to play, or no words at all: 0, without a draw.
    ScriptedRng none;
    EXPECT_EQ(DrawFreshWord(Words({"", "bee"}, 1), none, {}, 1000, noBee), 0);
    EXPECT_EQ(DrawFreshWord(Words({""}, 0), none, {}, 1000, kAny), 0);
    EXPECT_EQ(none.draws, 0);
}
