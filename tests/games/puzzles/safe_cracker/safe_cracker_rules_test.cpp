// Safe Cracker's rules over a scripted generator: the tumblers' colours with the repeated-letter
// rule, case and accents; what stands fixed; the draw without repeats and its bound; typing a
// row, the tries and the alarm; the points of an opened safe.
#include <gtest/gtest.h>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/puzzles/safe_cracker/safe_cracker_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::safe;
using wm::test::ListOf;

namespace {
// The tumblers as letters: G green, A amber, x grey, . fixed.
std::string Lights(const std::vector<Mark>& marks) {
    std::string out;
    for (Mark m : marks)
        out += m == Mark::Green ? 'G' : m == Mark::Amber ? 'A' : m == Mark::Grey ? 'x' : '.';
    return out;
}

Entry Try(Game& g, SharedState& s, const std::string& letters) {
    for (char c : letters) g.type(c);
    return g.enter(s);
}
}  // namespace

TEST(SafeCrackerRules, TumblersLightAsOftenAsTheWordHasTheLetter) {
    // The word, the guess, the lights.
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"crane", "crane", "GGGGG"},    {"crane", "nacre", "AAAAG"},
        {"crane", "doubt", "xxxxx"},    {"apple", "paper", "AAGAx"},
        {"apple", "ppppp", "xGGxx"},  // two p's: the greens take them, the rest are grey
        {"abbey", "bxbbx", "AxGxx"},  // two b's: one green, then one amber from the left
        {"llama", "alloy", "AGAxx"},    {"CaT", "cAt", "GGG"},  // case does not matter
        {"caf\xE9", "cafe", "GGGx"},                            // accents do
        {"caf\xE9", "CAF\xC9", "GGGG"}, {"ice-cream", "ice-maker", "GGG.AAxAA"},
        {"x-ray", "y-arx", "A.AAA"},    {"up to", "tu op", "AA.AA"},
        {"r2d2", "2r2d", "AAAA"},       {"mom's", "mmm's", "GxG.G"},
    };
    for (auto [word, guess, lights] : rows)
        EXPECT_EQ(Lights(markGuess(word, guess)), lights) << word << "/" << guess;
}

TEST(SafeCrackerRules, WhatIsTypedAndWhatStandsFixed) {
    // The alphabets' edges and every accented letter of Windows-1252, the scattered ones too.
    for (char c : {'a', 'z', 'A', 'Z', '7', '\xC0', '\xE9', '\x8A', '\x8C', '\x8E', '\x9A', '\x9C',
                   '\x9E', '\x9F'})
        EXPECT_TRUE(typable(c)) << int(c);
    for (char c : {' ', '-', '\'', '.', '\xD7'}) EXPECT_TRUE(fixedChar(c)) << int(c);
    // Twelve letters are playable, thirteen not.
    EXPECT_EQ(std::tuple(playable("abcdefghijkl"), playable("abcdefghijklm"), playable("- -")),
              std::tuple(true, false, false));
    EXPECT_EQ(std::tuple(safePoints(1, 5), safePoints(6, 12), alarmText("x-ray")),
              std::tuple(350, 170, "The alarm went off! The combination was x-ray."));
    EXPECT_EQ(lostText({"a", "b", "c"}),
              "The alarm went off at every safe! The combinations were a, b and c.");
    EXPECT_EQ(lostText({"owl"}), "The alarm went off at every safe! The combinations were owl.");
}

TEST(SafeCrackerRules, DrawsWithoutRepeatsSkipsWhatCannotBePlayedAndIsBounded) {
    SharedState s = ListOf({"apple", "abcdefghijklm", "APPLE", "berry", "- -"});
    ScriptedRng rng;
    // Int(Rnd x 5 + 1): 1, and 1 again in a new game; then 3 ("APPLE" is "apple" again), 2 (too
    // long), 4.
    rng.pick(1, 5).pick(1, 5).pick(3, 5).pick(2, 5).pick(4, 5);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    ASSERT_TRUE(g.start(s, rng));  // a new game forgets the words of the last
    EXPECT_EQ(rng.randomizeCount, 2);
    EXPECT_EQ(std::tuple(g.word(), s.TheWord, s.TheMeaning),
              std::tuple("apple", "apple", "meaning of apple"));
    EXPECT_EQ(Try(g, s, "paple"), Entry::Wrong);
    ASSERT_TRUE(g.nextSafe(s, rng));
    EXPECT_EQ(std::tuple(g.word(), g.safeNumber(), g.triesUsed()), std::tuple("berry", 2, 0));
    EXPECT_EQ(g.keyMark('p'), Mark::Unknown);  // each safe starts with a fresh keyboard
    EXPECT_EQ(rng.draws, 5);
    // Every word had its safe: repeats come back.
    rng.pick(3, 5);
    ASSERT_TRUE(g.nextSafe(s, rng));
    EXPECT_EQ(g.word(), "APPLE");
    // A generator stuck on a drawn word: 200 draws, then the walk on from the last one.
    ScriptedRng stuck((1 - 0.5) / 5);
    EXPECT_EQ(drawWord(s, stuck, {1}), 4);
    EXPECT_EQ(stuck.draws, 200);
    SharedState none = ListOf({"", "--", "abcdefghijklmn"});
    EXPECT_EQ(drawWord(none, rng, {}), 0);
    EXPECT_FALSE(g.start(none, rng));
    EXPECT_EQ(g.type('a'), Entry::Ignored);
    SharedState empty = ListOf({});
    EXPECT_EQ(drawWord(empty, rng, {}), 0);
}

TEST(SafeCrackerRules, TypingARowAndTheTriesOfASafe) {
    SharedState s = ListOf({"ice-cream"});
    ScriptedRng rng;
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(std::tuple(g.openCount(), g.current()), std::tuple(8, "   -     "));
    EXPECT_EQ(g.type('-'), Entry::Ignored);  // the hyphen stands in its place
    EXPECT_EQ(g.erase(), Entry::Ignored);
    for (char c : std::string("ICEC")) EXPECT_EQ(g.type(c), Entry::Typed);
    EXPECT_EQ(g.enter(s), Entry::Short);
    EXPECT_EQ(g.erase(), Entry::Erased);
    EXPECT_EQ(g.current(), "ICE-     ");
    for (char c : std::string("makerx")) g.type(c);
    EXPECT_EQ(g.type('z'), Entry::Ignored);  // the row is full
    EXPECT_EQ(g.current(), "ICE-maker");
    EXPECT_EQ(g.enter(s), Entry::Wrong);
    // The same guess again, in any case, costs no try.
    EXPECT_EQ(Try(g, s, "icemaker"), Entry::Repeat);
    EXPECT_EQ(g.triesUsed(), 1);
    for (char c = 0; c < 8; ++c) g.erase();
    // The keyboard: the best each letter is known to be.
    EXPECT_EQ(Try(g, s, "cearmerk"), Entry::Wrong);
    // E was amber once, green once.
    EXPECT_EQ(std::tuple(g.keyMark('i'), g.keyMark('A'), g.keyMark('e'), g.keyMark('k'),
                         g.keyMark('q'), g.triesLeft()),
              std::tuple(Mark::Green, Mark::Amber, Mark::Green, Mark::Grey, Mark::Unknown, 4));
    EXPECT_EQ(Try(g, s, "IceCream"), Entry::Opened);
    // Opened on the third try: (7 - 3) x 50 + 9 x 10.
    EXPECT_EQ(std::tuple(g.lastPoints(), s.Score), std::tuple(290, 290));
    EXPECT_EQ(g.type('a'), Entry::Ignored);
}

TEST(SafeCrackerRules, TheSixthWrongTrySetsOffTheAlarmAndFiveSafesMakeAGame) {
    SharedState s = ListOf({"owl"});
    ScriptedRng rng;
    Game g;
    const char* tries[] = {"abc", "def", "ghi", "jkm", "npq"};
    // Opened on the sixth try: the least a safe scores.
    ASSERT_TRUE(g.start(s, rng));
    for (const char* t : tries) Try(g, s, t);
    EXPECT_EQ(Try(g, s, "OWL"), Entry::Opened);
    EXPECT_EQ(s.Score, 50 + 30);
    // A new game starts from nothing.
    ASSERT_TRUE(g.start(s, rng));
    for (const char* t : tries) ASSERT_EQ(Try(g, s, t), Entry::Wrong) << t;
    EXPECT_FALSE(g.decided());
    EXPECT_EQ(Try(g, s, "rst"), Entry::Alarm);
    EXPECT_EQ(std::tuple(g.decided(), g.opened(), g.triesUsed(), s.Score, g.safesOpened()),
              std::tuple(true, false, 6, 0, 0));
    EXPECT_EQ(Try(g, s, "owl"), Entry::Ignored);
    int safes = 1;
    while (safes < 10 && g.nextSafe(s, rng)) ++safes;
    EXPECT_EQ(safes, 5);
}
