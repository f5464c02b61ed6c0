// Princess's rules over a scripted generator: the draw without repeats and its bound, how the
// stones are laid, the order of the picks with twin letters, case and accents, the points, the
// bridge's notches and the dragon's eight marks.
#include <gtest/gtest.h>

#include "core/rng.h"
#include "games/guess/princess/princess_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::princess;
using wm::test::ListOf;

namespace {
// The stones' letters in the moat's order.
std::string Moat(const Game& g) {
    std::string out;
    for (int i = 0; i < g.stones(); ++i) out += g.stoneLetter(i);
    return out;
}
// Picks the stones carrying `letters`, one after the other, as a pupil clicks them.
Pick Spell(Game& g, SharedState& s, const std::string& letters) {
    Pick last = Pick::Ignored;
    for (char c : letters) {
        int i = 0;
        while (i < g.stones() && (g.risenTo(i) >= 0 || g.stoneLetter(i) != c)) ++i;
        last = g.pick(s, i);
    }
    return last;
}
// Picks the stones numbered `stones` in turn: what each did, I R W S C or K (woke).
std::string Picks(Game& g, SharedState& s, const std::vector<int>& stones) {
    std::string out;
    for (int i : stones) out += "IRWSCK"[static_cast<int>(g.pick(s, i))];
    return out;
}
}  // namespace

TEST(PrincessRules, PointsTextsAndWhatCanBePlayed) {
    EXPECT_EQ(std::tuple(wordPoints(5, true), wordPoints(5, false), wordPoints(14, false)),
              std::tuple(100, 50, 140));
    EXPECT_EQ(lostText("moat"), "The dragon woke up! The word was moat.");
    for (const auto& [word, ok] : std::vector<std::pair<std::string, bool>>{
             {"a", true},
             {std::string(24, 'x'), true},
             {std::string(25, 'x'), false},
             {std::string(24, 'x') + " -'", true},  // blanks take no stone
             {"- '", false},
             {"", false}})
        EXPECT_EQ(playable(word), ok) << word;
}

TEST(PrincessRules, DrawsWithoutRepeatsAndEndsTheUnluckyRun) {
    SharedState s = ListOf({"toad", std::string(30, 'z'), "newt", "frog"});
    ScriptedRng rng;
    rng.pick(3, 4).pick(3, 4).pick(2, 4).pick(1, 4);
    EXPECT_EQ(drawWord(s, rng, {}), 3);
    EXPECT_EQ(drawWord(s, rng, {3}), 1);  // a repeat and the long word are drawn again
    EXPECT_EQ(rng.draws, 4);
    // Every playable word spelled: repeats are the way on.
    rng.pick(3, 4);
    EXPECT_EQ(drawWord(s, rng, {1, 3, 4}), 3);
    // A generator stuck on a spelled word: the draw is bounded and walks on to the next one.
    ScriptedRng stuck(0.0);
    EXPECT_EQ(drawWord(s, stuck, {1}), 3);
    EXPECT_EQ(stuck.draws, 200);
    EXPECT_EQ(drawWord(ListOf({"- -", std::string(25, 'q')}), stuck, {}), 0);
    EXPECT_EQ(drawWord(ListOf({}), stuck, {}), 0);
    // A count beyond the words loaded never draws past them.
    SharedState shortList = ListOf({"toad"});
    shortList.WordCount = 5;
    ScriptedRng top(0.99);
    EXPECT_EQ(drawWord(shortList, top, {}), 1);
}

TEST(PrincessRules, StonesAreShuffledFromTheBackAndNeverReadAsTheWord) {
    ScriptedRng zeros(0.0);
    // i = 3, 2, 1 each swap with the front: b i r d -> d i r b -> r i d b -> i r d b.
    EXPECT_EQ(layStones("bird", zeros), (std::vector<int>{1, 2, 3, 0}));
    ScriptedRng twos;
    twos.then(0.5).then(0.99).then(0.0);  // j = 2, 2, 0
    EXPECT_EQ(layStones("bird", twos), (std::vector<int>{1, 0, 3, 2}));
    // Blanks and hyphens lie on no stone.
    EXPECT_EQ(layStones("x-ray", zeros), (std::vector<int>{2, 3, 4, 0}));
    // A shuffle that leaves the word as it was is done again, six times at most, then the
    // stones are turned by one. Twin letters swapped still read as the word.
    ScriptedRng tops(0.99);
    EXPECT_EQ(layStones("noon", tops), (std::vector<int>{1, 2, 3, 0}));
    EXPECT_EQ(tops.draws, 18);
    EXPECT_EQ(layStones("'twas", tops), (std::vector<int>{2, 3, 4, 1}));
    ScriptedRng twins(0.0);
    twins.then(0.0).then(0.5).then(0.99);  // n n swapped, o o swapped: still "noon"
    EXPECT_EQ(layStones("noon", twins), (std::vector<int>{2, 1, 0, 3}));
    EXPECT_EQ(twins.draws, 6);
    // One letter, or one letter over and over, cannot be shuffled into anything else.
    ScriptedRng once(0.99);
    EXPECT_EQ(layStones("aAa", once), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(once.draws, 2);
    EXPECT_EQ(layStones("I", once), (std::vector<int>{0}));
}

TEST(PrincessRules, WordsAsManyAsTheLevelAndPointsForCleanWords) {
    SharedState s = ListOf({"Anna", "ice-cream", "dog"}, 2);
    s.Score = 99;
    ScriptedRng rng(0.0);
    rng.pick(1, 3);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(std::tuple(rng.randomizeCount, s.Score, g.words(), s.TheWord, s.TheMeaning, Moat(g)),
              std::tuple(1, 0.0, 2, "Anna", "meaning of Anna", "nnaA"));
    // Case does not matter, and either twin lays the next plank. Ignored: a stone risen
    // already, and no stone before the first or past the last.
    EXPECT_EQ(Picks(g, s, {2, 2, -1, 4, 3, 1}), "RIIIWR");
    EXPECT_EQ(std::tuple(g.risenTo(2), g.risenTo(1), g.stoneFor('A'), g.stoneFor('N')),
              std::tuple(0, 1, 3, 0));  // the right twin first
    EXPECT_EQ(Picks(g, s, {0, 3, 0}), "RSI");
    EXPECT_EQ(std::tuple(g.lastPoints(), g.lowered(), g.stoneFor('a')), std::tuple(40, 1, -1))
        << "a splash: no bonus";
    // The hyphen stands on the bridge from the start and counts in the length.
    rng.pick(2, 3);
    ASSERT_TRUE(g.nextWord(s, rng));
    EXPECT_EQ(std::tuple(g.wordNumber(), g.laid(3), g.laid(0)), std::tuple(2, true, false));
    EXPECT_EQ(Spell(g, s, "icecrea"), Pick::Right);
    EXPECT_EQ(g.nextPosition(), 8);
    EXPECT_EQ(Spell(g, s, "m"), Pick::Crossed);
    EXPECT_EQ(std::tuple(g.lastPoints(), s.Score, g.splashes()), std::tuple(140, 180.0, 1))
        << "9 x 10 + 50";
    EXPECT_FALSE(g.nextWord(s, rng));
    // A new game forgets the words of the last one: the first word may come again at once.
    rng.pick(1, 3);
    const int before = rng.draws;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(std::tuple(s.TheWord, rng.draws - before, g.splashes(), g.lowered()),
              std::tuple("Anna", 1 + 3, 0, 0));  // the word, then its stones
    // A new game on a list it cannot play leaves nothing to pick from the old one.
    SharedState none = ListOf({"- -"});
    EXPECT_FALSE(g.start(none, rng));
    EXPECT_EQ(std::tuple(g.pick(none, 0), g.stoneFor('n')), std::tuple(Pick::Ignored, -1));
}

TEST(PrincessRules, EightSplashesInAGameWakeTheDragon) {
    for (auto [difficulty, words] : {std::pair{0, 1}, {1, 1}, {15, 15}, {40, 15}}) {
        SharedState s = ListOf({"'twas"}, difficulty);
        ScriptedRng rng(0.0);
        Game g;
        ASSERT_TRUE(g.start(s, rng));
        // The apostrophe before the first letter stands on the bridge from the start.
        EXPECT_EQ(std::tuple(g.words(), g.laid(0), g.nextPosition()), std::tuple(words, true, 1))
            << difficulty;
    }
    SharedState s = ListOf({"ab", "cd"}, 3);
    ScriptedRng rng(0.0);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(Moat(g), "ba");
    EXPECT_EQ(Picks(g, s, {0, 0, 0, 0, 0, 1, 0}), "WWWWWRS");
    EXPECT_EQ(std::tuple(g.lastPoints(), g.wordSplashes()), std::tuple(20, 5));
    ASSERT_TRUE(g.nextWord(s, rng));
    EXPECT_EQ(g.wordSplashes(), 0);
    EXPECT_EQ(Picks(g, s, {0, 0}), "WW");
    EXPECT_EQ(g.splashes(), 7);
    EXPECT_EQ(Picks(g, s, {0, 1, -1}), "KII");
    EXPECT_EQ(std::tuple(g.over(), s.Score), std::tuple(true, 20.0));
}

TEST(PrincessRules, AccentsAreLettersOfTheirOwn) {
    SharedState s = ListOf({"\xE9t\xE9"});
    ScriptedRng rng(0.0);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(g.stoneFor('e'), -1);
    EXPECT_EQ(g.pick(s, g.stoneFor('\xC9')), Pick::Right);  // the capital of é
    EXPECT_EQ(g.pick(s, g.stoneFor('T')), Pick::Right);
}
