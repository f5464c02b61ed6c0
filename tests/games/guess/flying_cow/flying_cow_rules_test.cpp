// Flying Cow's rules over a scripted generator: the draw without repeats and its bound, the
// letters (case, accents, the characters shown from the start), the rungs with the drop, the
// end at the level's limit, the points of a word and the hint's half.
#include <gtest/gtest.h>

#include "core/rng.h"
#include "games/guess/flying_cow/flying_cow_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::cow;
using wm::test::ListOf;

namespace {
std::string Shown(const Game& g) {
    std::string out;
    for (std::size_t i = 0; i < g.word().size(); ++i) out += g.shown(int(i)) ? g.word()[i] : '.';
    return out;
}

// What each key did: Ignored, Repeat, Hit, Drop, Miss, Solved or Lost by its first letter.
std::string Type(Game& g, SharedState& s, const std::string& keys) {
    std::string out;
    for (char c : keys) out += "IRHDMSL"[static_cast<int>(g.press(s, c))];
    return out;
}
}  // namespace

TEST(FlyingCowRules, MissesAndPointsByLevel) {
    for (auto [level, allowed] : {std::pair{1, 10}, {4, 7}, {9, 2}})
        EXPECT_EQ(missesAllowed(level), allowed) << level;
    // The third: 165 halved, the half point dropped.
    EXPECT_EQ(std::tuple(wordPoints(8, 3, 4, false), wordPoints(8, 3, 4, true),
                         wordPoints(5, 1, 3, true), wordPoints(3, 0, 1, false)),
              std::tuple((8 * 10 + 3 * 5) * 4, 190, 82, 30));
    EXPECT_EQ(lostText("x-ray"), "The cow was beamed up! The word was x-ray.");
}

TEST(FlyingCowRules, DrawsWithoutRepeatsWhileTheListLasts) {
    SharedState s = ListOf({"apple", "berry", "cherry"}, 4);
    s.Meanings.pop_back();  // cherry has none: a blank meaning, nothing read past the list
    ScriptedRng rng;
    // Int(Rnd x 3 + 1): 2; then 2 again (drawn) and 3; then 2, 3 (drawn) and 1.
    rng.pick(2, 3).pick(2, 3).pick(3, 3).pick(2, 3).pick(3, 3).pick(1, 3);
    rng.pick(3, 3).pick(1, 3);  // every word played: repeats are allowed again
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(std::tuple(rng.randomizeCount, g.word(), s.TheWord, s.TheMeaning),
              std::tuple(1, "berry", "berry", "meaning of berry"));
    std::vector<std::string> order{g.word()};
    for (int i = 2; i <= 5; ++i) {
        ASSERT_TRUE(g.nextWord(s, rng));
        order.push_back(g.word() + (s.TheMeaning.empty() ? "-" : ""));
        EXPECT_EQ(g.wordNumber(), i);
    }
    EXPECT_EQ(order, (std::vector<std::string>{"berry", "cherry-", "apple", "cherry-", "apple"}));
    EXPECT_TRUE(g.lastWord());
    EXPECT_FALSE(g.nextWord(s, rng));
    EXPECT_EQ(rng.randomizeCount, 1);  // reseeded once a game
}

TEST(FlyingCowRules, DrawSkipsWhatCannotBePlayedAndIsBounded) {
    const std::string tooLong(kMaxLetters + 1, 'a');
    SharedState s = ListOf({"", "- '", tooLong, "owl", "OWL", "cat"}, 4);
    ScriptedRng rng;
    rng.pick(1, 6).pick(2, 6).pick(3, 6).pick(4, 6);
    EXPECT_EQ(drawWord(s, rng, {}), 4);
    EXPECT_EQ(rng.draws, 4);
    // "OWL" is "owl" again: a repeat while "cat" is still to come.
    rng.pick(5, 6).pick(6, 6);
    EXPECT_EQ(drawWord(s, rng, {4}), 6);
    // A generator stuck on a drawn word: the draw gives up after 200 tries and walks on.
    ScriptedRng stuck((4 - 0.5) / 6);
    EXPECT_EQ(drawWord(s, stuck, {4}), 6);
    EXPECT_EQ(stuck.draws, 200);
    // Nothing playable, or nothing at all.
    SharedState none = ListOf({"", "--", tooLong}, 4);
    EXPECT_EQ(drawWord(none, rng, {}), 0);
    Game g;
    EXPECT_FALSE(g.start(none, rng));
    EXPECT_EQ(g.press(none, 'a'), Key::Ignored);
    SharedState empty = ListOf({}, 4);
    EXPECT_EQ(drawWord(empty, rng, {}), 0);
    EXPECT_TRUE(playable(std::string(kMaxLetters, 'b')));
}

TEST(FlyingCowRules, LettersCaseAccentsAndWhatShowsFromTheStart) {
    SharedState s = ListOf({"caf\xE9 au-lait's"}, 4);
    ScriptedRng rng;
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(Shown(g), ".... ..-....'.");
    EXPECT_EQ(Type(g, s, std::string(" -'1.\0", 6)), "IIIIII");
    // The accent counts: e is not é (0xE9, octal 351), É (0xC9, octal 311) is é.
    EXPECT_EQ(Type(g, s, "e\311\351EC"), "MHRRH");
    EXPECT_EQ(std::tuple(Shown(g), g.tried(), g.misses(), g.rung()),
              std::tuple("c..\351 ..-....'.", "e\351c", 1, 1));
    EXPECT_EQ(std::tuple(g.triedState('e'), g.triedState('C'), g.triedState('z')),
              std::tuple(-1, 1, 0));
    // A digit in the word is a letter to find.
    SharedState d = ListOf({"r2d2"}, 4);
    ASSERT_TRUE(g.start(d, rng));
    EXPECT_EQ(Type(g, d, "23"), "HI");
    // The accented capitals of Windows-1252 from 0xC0 on are letters; the multiply sign is not.
    SharedState owl = ListOf({"owl"}, 4);
    ASSERT_TRUE(g.start(owl, rng));
    EXPECT_EQ(Type(g, owl, "\xD7\xC0"), "IM");
    // What stands before the first letter shows from the start too.
    SharedState twas = ListOf({"'twas"}, 4);
    ASSERT_TRUE(g.start(twas, rng));
    EXPECT_EQ(Shown(g), "'....");
}

TEST(FlyingCowRules, RungsUpOnMissesDownOnADoubleFill) {
    SharedState s = ListOf({"bananas"}, 4);
    ScriptedRng rng;
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(g.allowed(), 7);
    // n: two blanks, but the cow is on the grass; b: one blank, no drop; A: three blanks, one
    // rung down, not three.
    std::string trace;  // each key's outcome and the rung after it
    for (char c : std::string("nxzbA")) {
        trace += Type(g, s, std::string(1, c));
        trace += std::to_string(g.rung());
    }
    EXPECT_EQ(trace, "H0M1M2H2D1");
    EXPECT_EQ(std::tuple(g.misses(), g.spare()), std::tuple(2, 6));
}

TEST(FlyingCowRules, TheCowGoesUpOneMissPastTheLevelsAllowance) {
    for (int level : {1, 4, 9}) {
        SharedState s = ListOf({"owl"}, level);
        ScriptedRng rng;
        Game g;
        ASSERT_TRUE(g.start(s, rng));
        const std::string wrong = "bcdefghijkmnpq";
        EXPECT_EQ(Type(g, s, wrong.substr(0, 11 - level)), std::string(11 - level, 'M')) << level;
        EXPECT_EQ(std::tuple(g.spare(), g.over()), std::tuple(0, false));
        EXPECT_EQ(Type(g, s, wrong.substr(11 - level, 1) + "o"), "LI") << level;
        EXPECT_EQ(std::tuple(g.over(), s.Score), std::tuple(true, 0.0));
    }
}

TEST(FlyingCowRules, ASolvedWordScoresAndTheHintHalvesIt) {
    SharedState s = ListOf({"ice-cream", "noon"}, 4);
    ScriptedRng rng;
    rng.pick(1, 2).pick(2, 2).pick(1, 2);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(Type(g, s, "xicream"), "MHDHHHS");
    // Nine characters; the miss was taken back by the two c's: (9 x 10 + 7 x 5) x 4.
    EXPECT_EQ(std::tuple(g.lastPoints(), s.Score, g.hintOffered(s)), std::tuple(500, 500.0, false));
    // The last letter fills two blanks: the cow comes down before the rungs are counted.
    ASSERT_TRUE(g.nextWord(s, rng));
    EXPECT_EQ(std::tuple(g.word(), g.hintOffered(s)), std::tuple(std::string("noon"), true));
    EXPECT_TRUE(g.takeHint(s));
    EXPECT_FALSE(g.takeHint(s));
    EXPECT_TRUE(g.hinted());
    EXPECT_EQ(Type(g, s, "xno"), "MDS");
    EXPECT_EQ(std::tuple(g.spare(), g.lastPoints(), s.Score),
              std::tuple(7, (40 + 35) * 4 / 2, 500.0 + 150));
    // A new game starts from nothing, at the level now set.
    s.Difficulty = 12;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(std::tuple(s.Score, g.level(), g.wordNumber(), g.hinted()),
              std::tuple(0.0, 9, 1, false));
}

TEST(FlyingCowRules, NoHintOnAWordsOnlyList) {
    SharedState s = ListOf({"owl"}, 4, true);
    ScriptedRng rng;
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(std::tuple(g.hintOffered(s), g.takeHint(s)), std::tuple(false, false));
    EXPECT_EQ(Type(g, s, "owl"), "HHS");
    EXPECT_EQ(s.Score, (30 + 35) * 4);
}
