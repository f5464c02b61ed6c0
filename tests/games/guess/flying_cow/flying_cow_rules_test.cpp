// Flying Cow's rules over a scripted generator: the draw without repeats and its bound, the
// letters (case, accents, the characters shown from the start), the rungs with the drop, the
// end at the level's limit, the points of a word and the hint's half.
#include <gtest/gtest.h>

#include "core/rng.h"
#include "core/shared_state.h"
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

Key Type(Game& g, SharedState& s, const std::string& keys) {
    Key last = Key::Ignored;
    for (char c : keys) last = g.press(s, c);
    return last;
}
}  // namespace

TEST(FlyingCowRules, MissesAndPointsByLevel) {
    struct Row {
        int level, allowed;
    } rows[] = {{1, 10}, {4, 7}, {9, 2}};
    for (auto r : rows) EXPECT_EQ(missesAllowed(r.level), r.allowed) << r.level;
    EXPECT_EQ(wordPoints(8, 3, 4, false), (8 * 10 + 3 * 5) * 4);
    EXPECT_EQ(wordPoints(8, 3, 4, true), 190);
    EXPECT_EQ(wordPoints(5, 1, 3, true), 82);  // 165 halved, the half point dropped
    EXPECT_EQ(wordPoints(3, 0, 1, false), 30);
    EXPECT_EQ(lostText("x-ray"), "The cow was beamed up! The word was x-ray.");
}

TEST(FlyingCowRules, DrawsWithoutRepeatsWhileTheListLasts) {
    SharedState s = ListOf({"apple", "berry", "cherry"}, 4);
    ScriptedRng rng;
    // Int(Rnd x 3 + 1): 2; then 2 again (drawn) and 3; then 2, 3 (drawn) and 1.
    rng.pick(2, 3).pick(2, 3).pick(3, 3).pick(2, 3).pick(3, 3).pick(1, 3);
    rng.pick(3, 3).pick(1, 3);  // every word played: repeats are allowed again
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(rng.randomizeCount, 1);
    EXPECT_EQ(g.word(), "berry");
    EXPECT_EQ(s.TheWord, "berry");
    EXPECT_EQ(s.TheMeaning, "meaning of berry");
    std::vector<std::string> order{g.word()};
    for (int i = 2; i <= 5; ++i) {
        ASSERT_TRUE(g.nextWord(s, rng));
        order.push_back(g.word());
        EXPECT_EQ(g.wordNumber(), i);
    }
    EXPECT_EQ(order, (std::vector<std::string>{"berry", "cherry", "apple", "cherry", "apple"}));
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
    for (char c : {' ', '-', '\'', '1', '.', '\0'}) EXPECT_EQ(g.press(s, c), Key::Ignored) << c;
    EXPECT_EQ(g.misses(), 0);
    EXPECT_EQ(g.press(s, 'e'), Key::Miss);    // the accent counts: e is not é
    EXPECT_EQ(g.press(s, '\xC9'), Key::Hit);  // É is é
    EXPECT_EQ(g.press(s, '\xE9'), Key::Repeat);
    EXPECT_EQ(g.press(s, 'E'), Key::Repeat);
    EXPECT_EQ(g.press(s, 'C'), Key::Hit);
    EXPECT_EQ(Shown(g), "c..\xE9 ..-....'.");
    EXPECT_EQ(g.tried(),
              "e\xE9"
              "c");
    EXPECT_EQ(g.triedState('e'), -1);
    EXPECT_EQ(g.triedState('C'), 1);
    EXPECT_EQ(g.triedState('z'), 0);
    EXPECT_EQ(g.misses(), 1);
    EXPECT_EQ(g.rung(), 1);
    // A digit in the word is a letter to find.
    SharedState d = ListOf({"r2d2"}, 4);
    ASSERT_TRUE(g.start(d, rng));
    EXPECT_EQ(g.press(d, '2'), Key::Hit);
    EXPECT_EQ(g.press(d, '3'), Key::Ignored);
    // The accented capitals of Windows-1252 from 0xC0 on are letters; the multiply sign is not.
    SharedState owl = ListOf({"owl"}, 4);
    ASSERT_TRUE(g.start(owl, rng));
    EXPECT_EQ(g.press(owl, '\xD7'), Key::Ignored);
    EXPECT_EQ(g.press(owl, '\xC0'), Key::Miss);
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
    EXPECT_EQ(g.press(s, 'n'), Key::Hit);  // two blanks, but the cow is on the grass
    EXPECT_EQ(g.rung(), 0);
    EXPECT_EQ(Type(g, s, "xz"), Key::Miss);
    EXPECT_EQ(g.rung(), 2);
    EXPECT_EQ(g.press(s, 'b'), Key::Hit);  // one blank: no drop
    EXPECT_EQ(g.rung(), 2);
    EXPECT_EQ(g.press(s, 'A'), Key::Drop);  // three blanks: one rung down, not three
    EXPECT_EQ(g.rung(), 1);
    EXPECT_EQ(g.misses(), 2);
    EXPECT_EQ(g.spare(), 6);
}

TEST(FlyingCowRules, TheCowGoesUpOneMissPastTheLevelsAllowance) {
    for (int level : {1, 4, 9}) {
        SharedState s = ListOf({"owl"}, level);
        ScriptedRng rng;
        Game g;
        ASSERT_TRUE(g.start(s, rng));
        const std::string wrong = "bcdefghijkmnpq";
        for (int i = 0; i < 11 - level; ++i) ASSERT_EQ(g.press(s, wrong[i]), Key::Miss) << level;
        EXPECT_EQ(g.spare(), 0);
        EXPECT_FALSE(g.over());
        EXPECT_EQ(g.press(s, wrong[11 - level]), Key::Lost) << level;
        EXPECT_TRUE(g.over());
        EXPECT_EQ(g.press(s, 'o'), Key::Ignored);
        EXPECT_EQ(s.Score, 0);
    }
}

TEST(FlyingCowRules, ASolvedWordScoresAndTheHintHalvesIt) {
    SharedState s = ListOf({"ice-cream", "noon"}, 4);
    ScriptedRng rng;
    rng.pick(1, 2).pick(2, 2).pick(1, 2);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(Type(g, s, "xicr"), Key::Hit);
    EXPECT_EQ(Type(g, s, "eam"), Key::Solved);
    // Nine characters; the miss was taken back by the two c's: (9 x 10 + 7 x 5) x 4.
    EXPECT_EQ(g.lastPoints(), 500);
    EXPECT_EQ(s.Score, 500);
    EXPECT_FALSE(g.hintOffered(s));
    // The last letter fills two blanks: the cow comes down before the rungs are counted.
    ASSERT_TRUE(g.nextWord(s, rng));
    EXPECT_EQ(g.word(), "noon");
    EXPECT_TRUE(g.hintOffered(s));
    EXPECT_TRUE(g.takeHint(s));
    EXPECT_FALSE(g.takeHint(s));
    EXPECT_TRUE(g.hinted());
    EXPECT_EQ(Type(g, s, "xno"), Key::Solved);
    EXPECT_EQ(g.spare(), 7);
    EXPECT_EQ(g.lastPoints(), (40 + 35) * 4 / 2);
    EXPECT_EQ(s.Score, 500 + 150);
    // A new game starts from nothing, at the level now set.
    s.Difficulty = 12;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(s.Score, 0);
    EXPECT_EQ(g.level(), 9);
    EXPECT_EQ(g.wordNumber(), 1);
    EXPECT_FALSE(g.hinted());
}

TEST(FlyingCowRules, NoHintOnAWordsOnlyList) {
    SharedState s = ListOf({"owl"}, 4, true);
    ScriptedRng rng;
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_FALSE(g.hintOffered(s));
    EXPECT_FALSE(g.takeHint(s));
    EXPECT_EQ(Type(g, s, "owl"), Key::Solved);
    EXPECT_EQ(s.Score, (30 + 35) * 4);
}
