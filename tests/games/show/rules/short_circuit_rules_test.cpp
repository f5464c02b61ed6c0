#include "games/show/short_circuit/short_circuit_rules.h"

#include <gtest/gtest.h>

#include "core/rng.h"
#include "list_of.h"

using namespace wm;
using namespace wm::shortcircuit;

TEST(ShortCircuitDeal, NeverAWordOverTenLetters) {
    SharedState s = listOf({"extraordinary", "cat", "abracadabra"}, 3);
    ScriptedRng rng;
    rng.pick(1, 3).pick(3, 3).pick(2, 3);
    rng.then(0.9).then(0.0).then(0.0);  // C: right row 1 of 0..1; others
    Circuit c = newCircuit(s, 3, rng);
    ASSERT_TRUE(c.ready);
    EXPECT_EQ(std::tuple(s.TheWord, c.word, c.rightRow[0], c.letters[0][1]),
              std::tuple("cat", "CAT", 1, 'C'));
    EXPECT_TRUE(c.robber);  // the last draw, under a half: the robber comes
    ScriptedRng high(0.9);
    high.pick(2, 3);
    EXPECT_FALSE(newCircuit(s, 3, high).robber);

    // Only long words: refused after more than twice the list's length of draws.
    SharedState longs = listOf({"extraordinary", "abracadabra"});
    ScriptedRng any;
    EXPECT_FALSE(newCircuit(longs, 2, any).ready);
    EXPECT_EQ(any.draws, 5);
}

TEST(ShortCircuitDeal, TwoRowsPutTheRightLetterOnTopAndNoOtherRowRepeatsIt) {
    SharedState s = listOf({"aaaa"});
    SystemRng rng;
    Circuit c = newCircuit(s, 2, rng);
    for (std::size_t col = 0; col < c.word.size(); ++col) {
        EXPECT_EQ(std::tuple(c.rightRow[col], c.letters[col][0]), std::tuple(0, 'A'));
        EXPECT_NE(c.letters[col][1], 'A');
    }
    // A generator stuck on "A" still gives the other row a letter that differs.
    ScriptedRng stuck(0.0);
    EXPECT_EQ(newCircuit(s, 2, stuck).letters[0][1], 'B');
    // The right row is Int(Rnd x (rows - 1)): at the middle draw of ten rows, the fifth.
    ScriptedRng half(0.5);
    EXPECT_EQ(newCircuit(s, 10, half).rightRow[0], 4);
    // At ten rows the right letter is anywhere but the bottom row.
    SharedState t = listOf({"zebra"});
    for (int i = 0; i < 100; ++i) {
        Circuit d = newCircuit(t, 10, rng);
        for (std::size_t col = 0; col < d.word.size(); ++col) {
            EXPECT_LT(d.rightRow[col], 9);
            int matches = 0;
            for (char ch : d.letters[col]) matches += ch == d.word[col];
            EXPECT_EQ(matches, 1);
        }
    }
}

TEST(ShortCircuitPlay, ClicksOnlyCountInTheColumnInPlay) {
    Circuit c;
    c.ready = true;
    c.word = "OX";
    c.rows = 3;
    c.letters = {{'O', 'Q', 'B'}, {'Z', 'X', 'A'}};
    EXPECT_EQ(click(c, 1, 1), Click::Ignored) << "a later column";
    EXPECT_EQ(click(c, 0, 3), Click::Ignored) << "below the column's rows";
    EXPECT_EQ(click(c, 0, 0), Click::Right);
    EXPECT_EQ(click(c, 0, 0), Click::Ignored) << "an earlier column";
    Circuit wrong = c;
    EXPECT_EQ(click(wrong, 1, 0), Click::Wrong);
    EXPECT_EQ(click(c, 1, 1), Click::Done);
}

TEST(ShortCircuitScore, SpeedBandsAndTheHiddenMeaningBonus) {
    // Half seconds taken, the meaning shown, the score: a four-letter word at level 2, the roll
    // giving 1: (500 + 1) * 2 = 1002 on top.
    const std::tuple<int, bool, int> cases[] = {
        {3, true, 4000 + 1002},       {4, true, 2000 + 1002}, {7, true, 2000 + 1002},
        {8, true, 800 + 1002},        {15, true, 800 + 1002}, {16, true, 400 + 1002},
        {3, false, 5 * (4000 + 1002)}};
    for (auto [halfSeconds, meaning, want] : cases) {
        Circuit circuit;
        circuit.word = "WIRE";
        circuit.halfSeconds = halfSeconds;
        ScriptedRng rng;
        rng.pick(1, 2);
        EXPECT_EQ(winScore(circuit, 2, meaning, rng), want) << halfSeconds;
    }
    EXPECT_EQ(shortedText("BULB"),
              "Oops! You short-circuited the connection! The word you were trying to spell was "
              "\"BULB\". Would you like to try again?");
    SharedState s = listOf({"bulb"});
    s.TheMeaning = "a lamp";
    s.GameOptionOn = -1;
    EXPECT_EQ(directions(s),
              "To connect the circuit, click on the correct letter in each column to spell out "
              "the word that means:\n\"a lamp\"");
    s.GameOptionOn = 0;
    EXPECT_EQ(directions(s),
              "To connect the circuit, click on the correct letter in each column to spell out "
              "one of your vocabulary words...");
}
