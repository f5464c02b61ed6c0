// The shared word scrambling: draws in the designed order, places told apart, the "*" that is
// never drawn, and the bound on a stuck generator.
#include <gtest/gtest.h>

#include "core/rng.h"
#include "games/common/word_scramble.h"

using namespace wm;

TEST(ScrambleWord, TakesEachPlaceOnceInDrawOrder) {
    auto rng = ScriptedRng().pick(3, 4).pick(3, 4).pick(1, 4).pick(1, 4).pick(4, 4).pick(2, 4);
    EXPECT_EQ(ScrambleWord("abcd", rng), "cadb");
    EXPECT_EQ(std::tuple(rng.draws, rng.pending()), std::tuple(6, 0u));

    // Repeated letters are told apart by place, not by value; the result may be the word itself.
    auto same = ScriptedRng().pick(1, 3).pick(2, 3).pick(3, 3);
    EXPECT_EQ(ScrambleWord("aab", same), "aab");

    // A "*" is never taken: it keeps its place, and the draws stop once the rest are taken.
    auto star = ScriptedRng().pick(2, 3).pick(3, 3).pick(2, 3).pick(1, 3);
    EXPECT_EQ(ScrambleWord("a*b", star), "b*a");
    EXPECT_EQ(star.draws, 4);

    ScriptedRng none;
    EXPECT_EQ(ScrambleWord("***", none), "***");
    EXPECT_EQ(none.draws, 0);
    EXPECT_EQ(ScrambleWord("", none), "");
}

TEST(ScrambleWord, StuckGeneratorIsBoundedAndKeepsEveryLetter) {
    ScriptedRng stuck(0.0);  // always letter 1
    EXPECT_EQ(ScrambleWord("word", stuck), "word");
    EXPECT_EQ(stuck.draws, 4 * kScrambleDrawsPerLetter);

    ScriptedRng onStar(0.0);  // always the "*"
    EXPECT_EQ(ScrambleWord("*ab", onStar), "*ab");
    EXPECT_EQ(onStar.draws, 3 * kScrambleDrawsPerLetter);

    ScriptedRng pastTheEnd(1.0);  // a generator outside [0, 1) draws no place at all
    EXPECT_EQ(ScrambleWord("cat", pastTheEnd), "cat");
}
