// Spell Crush's deal, judging and clock over a scripted generator.
#include <gtest/gtest.h>

#include <algorithm>

#include "core/rng.h"
#include "games/show/spell_crush/spell_crush_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::spellcrush;
using wm::test::ListOf;

TEST(Deal, DrawsInTheDesignedOrderAndMisspellsOneWord) {
    SharedState s = ListOf({"cat", "fish", "dog", "bird", "frog", "lion"});
    SpellCrushState g;
    g.SecondsLeft = 42;
    ScriptedRng rng;
    // The wrong place, then four numbers: 5, 2, 2 again (drawn again), 6, 1.
    rng.pick(2, 4).pick(5, 6).pick(2, 6).pick(2, 6).pick(6, 6).pick(1, 6);
    deal(s, g, rng);
    EXPECT_EQ(std::tuple(rng.randomizeCount, g.WrongWordPos), std::tuple(1, 2));
    EXPECT_EQ((std::array<int, 4>{g.DealWords[1], g.DealWords[2], g.DealWords[3], g.DealWords[4]}),
              (std::array<int, 4>{5, 2, 6, 1}));
    // "fish" went through Spell Crush's rules: the "f" of rule 1.
    EXPECT_EQ(g.shown, (std::array<std::string, 4>{"frog", "phish", "lion", "cat"}));
    EXPECT_EQ(std::tuple(g.DealTime, g.ClickedWord, rng.pending()), std::tuple(42, -1, 0u));
}

TEST(Deal, NeverDealsTheEmptyEntryPastTheLimitAndNeverHangs) {
    SharedState s;
    for (int i = 1; i <= kMaxWords; ++i) s.Words[i] = "w" + std::to_string(i);
    s.WordCount = kMaxWords + 1;  // after the over-limit message
    SpellCrushState g;
    ScriptedRng rng(0.9999);  // always the last number: 1001, then 1001...
    rng.pick(1, 4);
    deal(s, g, rng);
    for (int i = 1; i <= 4; ++i) {
        EXPECT_GE(g.DealWords[i], 1);
        EXPECT_LE(g.DealWords[i], kMaxWords);
    }
    for (const auto& w : g.shown) EXPECT_FALSE(w.empty());

    SharedState tiny = ListOf({"one", "two"});  // fewer than four: repeats, but an end
    SpellCrushState t;
    ScriptedRng stuck(0.0);
    deal(tiny, t, stuck);
    EXPECT_EQ((std::array{t.DealWords[1], t.DealWords[2], t.DealWords[3], t.DealWords[4]}),
              (std::array{1, 2, 2, 2}));
}

TEST(Judge, RightPaysByLengthAndSpeedWrongCostsNothing) {
    SharedState s = ListOf({"cat", "fish", "dog", "bird"});
    SpellCrushState g;
    ScriptedRng rng;
    rng.pick(2, 4).pick(1, 4).pick(2, 4).pick(3, 4).pick(4, 4);
    s.Score = 750;  // the last game's, and its clock
    g.SecondsLeft = 3;
    newGame(s, g, rng);
    EXPECT_EQ(std::tuple(g.SecondsLeft, s.Score), std::tuple(60, 0));
    ASSERT_EQ(g.shown[1], "phish");
    // Within the first second "used" counts as 1: 500 a letter of the crushed word.
    Verdict right = judge(s, g, 1);
    EXPECT_EQ(std::tuple(right.right, right.points, s.Score, g.ClickedWord),
              std::tuple(true, 2500, 2500, 1));

    g.SecondsLeft = g.DealTime - 3;  // three seconds later
    EXPECT_EQ(judge(s, g, 1).points, 833);
    EXPECT_EQ(s.Score, 3333);
    Verdict wrong = judge(s, g, 0);
    EXPECT_EQ(std::tuple(wrong.right, wrong.points, s.Score), std::tuple(false, 0, 3333));
    // The clock of a new game: sixty seconds, then the end.
    g = SpellCrushState{};
    int ticks = 0;
    while (!countSecond(g)) ++ticks;
    EXPECT_EQ(std::tuple(ticks, g.SecondsLeft), std::tuple(59, 0));
    EXPECT_TRUE(countSecond(g));
    EXPECT_EQ(g.SecondsLeft, 0);
}
