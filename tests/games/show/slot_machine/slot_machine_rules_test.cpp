// Slot Machine's rules over a scripted generator: the pace and the pay, the draw of the answer
// (no repeats) and of each reel's decoys, stopping on the nearest word, holds and the jackpot.
// The endings are played whole on the screen.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>

#include "core/rng.h"
#include "games/show/slot_machine/slot_machine_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::slot_machine;
using wm::test::ListOf;
using wm::test::PairsList;

namespace {

// A generator that walks round [0, 1) in uneven steps, so every entry comes up soon.
class Walk : public Rng {
public:
    explicit Walk(double first = 0.377) : v_(first - 0.377 + 1) {}
    double Rnd() override { return v_ = std::fmod(v_ + 0.377, 1.0); }
    void Randomize() override {}

private:
    double v_;
};

const std::vector<std::string> kEight = {"ant", "bee", "cat", "dog", "eel", "fox", "gnu", "hen"};

// Rolls the reels on until reel `i` has `want` of its strip in the window, and stops it there.
Stop stopAt(Game& g, int i, int want) {
    const Reel& r = g.reel(i);
    const int n = int(r.strip.size());
    double target = std::ceil(r.pos);
    while (int(std::llround(target)) % n != want) target += 1;
    g.spin((target - r.pos) * 1000 / wordsPerSecond(g.level()));
    return g.stop(i);
}

int answerAt(const Game& g, int i) {
    const auto& s = g.reel(i).strip;
    return int(std::find(s.begin(), s.end(), g.answer()) - s.begin());
}

int decoyAt(const Game& g, int i) {
    return answerAt(g, i) == 0 ? 1 : 0;
}

}  // namespace

TEST(SlotMachine, PaceJackpotAndTexts) {
    const int table[][3] = {{1, 5, 20}, {9, 13, 180}, {20, 24, 400}};
    for (auto [level, wps, pot] : table)
        EXPECT_EQ(std::tuple(wordsPerSecond(level), jackpotFor(level)), std::tuple(wps, pot));
}

TEST(SlotMachine, DrawsTheAnswerThenEachReelsDecoys) {
    SharedState s = ListOf(kEight, 9);
    s.Score = 77;
    ScriptedRng rng(0.0);
    // The answer "cat"; reel 1: dog, cat again (the answer, skipped), eel, fox, gnu, hen, and the
    // answer goes in third. Reels 2 and 3 draw only "ant": after a thousand draws they make do
    // with it, and the answer goes first.
    rng.pick(3, 8).pick(4, 8).pick(3, 8).pick(5, 8).pick(6, 8).pick(7, 8).pick(8, 8).pick(3, 6);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(std::make_tuple(rng.randomizeCount, s.Score, g.coins(), g.level(), g.definition()),
              std::make_tuple(1, 0.0, 100, 9, 1));
    EXPECT_EQ(s.TheWord + "/" + s.TheMeaning, "cat/meaning of cat");
    EXPECT_EQ(g.reel(0).strip, (std::vector<int>{4, 5, 3, 6, 7, 8}));
    for (int i : {1, 2}) EXPECT_EQ(g.reel(i).strip, (std::vector<int>{3, 1}));
    EXPECT_EQ(rng.draws, 1 + 7 + 2 * (1000 + 1));
    for (int level : {0, 25}) {
        s.Difficulty = level;
        g.start(s, rng);
        EXPECT_EQ(g.level(), level ? 20 : 1);
    }
}

TEST(SlotMachine, DecoysAreOtherWordsWithOtherDefinitions) {
    // "Cat " is the answer's word again, "moggy" has its definition, "  " is no word: none of
    // them stands beside "cat", and the strip is as long as the list allows.
    const std::vector<std::pair<std::string, std::string>> pairs{
        {"cat", "a pet"}, {"Cat ", "a cat"},    {"moggy", " A PET"}, {"  ", "blank"},
        {"dog", "barks"}, {"DOG", "barks too"}, {"elk", "antlers"}};
    SharedState s = PairsList(pairs);
    Walk rng(0.0);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    ASSERT_EQ(g.answer(), 1);
    for (int i = 0; i < 3; ++i) {
        std::vector<int> strip = g.reel(i).strip;
        ASSERT_EQ(strip.size(), 3u) << i;  // the answer, a dog and the elk
        std::sort(strip.begin(), strip.end());
        EXPECT_EQ(std::tuple(strip[0], strip[1] == 5 || strip[1] == 6, strip[2]),
                  std::tuple(1, true, 7))
            << strip[1];
    }
}

TEST(SlotMachine, ListsThatCannotBePlayedAreRefused) {
    Game g;
    ScriptedRng rng;
    for (SharedState s : {PairsList({{"cat", " "}, {"dog", ""}}),
                          PairsList({{"cat", "a pet"}, {" CAT", "a cat"}}), ListOf({})})
        EXPECT_FALSE(g.start(s, rng));
    EXPECT_FALSE(g.canPull());
    SharedState two = PairsList({{"cat", "a pet"}, {"dog", ""}});
    ASSERT_TRUE(g.start(two, rng));
    EXPECT_EQ(two.TheWord, "cat");  // only an entry with a definition is asked about
}

TEST(SlotMachine, AnswersDoNotRepeatUntilTheListIsUsedUp) {
    SharedState s = PairsList({{"ant", "a"}, {"bee", "b"}, {"cat", "c"}, {"dog", ""}});
    ScriptedRng rng(0.0);
    rng.pick(2, 4);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    std::vector<std::string> asked{s.TheWord};
    for (int i = 0; i < 3; ++i) {
        // Always drawing entry 1 finds it used, so the bounded draw takes the first fresh one.
        g.nextDefinition(s, rng);
        asked.push_back(s.TheWord);
    }
    EXPECT_EQ(asked, (std::vector<std::string>{"bee", "ant", "cat", "ant"}));
    // A generator stuck on the last entry: after the bounded draw the walk starts from the top.
    ScriptedRng last(0.99);
    SharedState t = PairsList({{"ant", "a"}, {"bee", "b"}, {"cat", "c"}});
    ASSERT_TRUE(g.start(t, last));
    g.nextDefinition(t, last);
    EXPECT_EQ(t.TheWord, "ant");
    EXPECT_EQ(Reel{}.shown(), 0);  // a reel with no strip yet shows its first place
}

TEST(SlotMachine, PullsStopsAndTheJackpotInOnePull) {
    SharedState s = ListOf(kEight, 9);
    Walk rng;
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    ASSERT_TRUE(g.pull());
    EXPECT_FALSE(g.pull());  // not while the reels roll
    EXPECT_EQ(std::make_pair(g.coins(), g.rolling()), std::make_pair(95, 3));
    // 13 words a second at level 9: a second rolls 13 words; a stop takes the nearest word.
    g.spin(1);
    EXPECT_DOUBLE_EQ(g.reel(0).pos, 0.013);
    g.spin(-1000);  // time never runs backwards
    g.spin(999);
    EXPECT_NEAR(g.reel(0).pos, 13, 1e-9);
    g.spin(1000 * 0.4 / 13);
    EXPECT_EQ(g.reel(0).shown(), 13 % 6);
    g.spin(1000 * 0.2 / 13);
    EXPECT_EQ(g.reel(0).shown(), 14 % 6);
    // Reel 1 on the answer pays 5; reel 2 on a decoy pays nothing.
    EXPECT_EQ(stopAt(g, 0, answerAt(g, 0)), Stop::Right);
    EXPECT_EQ(g.coins(), 100);
    EXPECT_EQ(g.stop(0), Stop::Ignored);
    EXPECT_EQ(stopAt(g, 1, decoyAt(g, 1)), Stop::Wrong);
    EXPECT_EQ(stopAt(g, 2, answerAt(g, 2)), Stop::PullOver);
    EXPECT_TRUE(g.rightLast());
    EXPECT_EQ(std::make_pair(g.coins(), g.rightNow()), std::make_pair(105, 2));
    // Nothing is held: the next pull rolls all three, and the first two right stops of it make no
    // jackpot with the right reel of the pull before.
    ASSERT_TRUE(g.pull());
    EXPECT_EQ(std::make_pair(g.rolling(), g.rightNow()), std::make_pair(3, 0));
    EXPECT_EQ(stopAt(g, 1, answerAt(g, 1)), Stop::Right);
    EXPECT_EQ(stopAt(g, 2, answerAt(g, 2)), Stop::Right);
    EXPECT_EQ(stopAt(g, 0, decoyAt(g, 0)), Stop::PullOver);
    EXPECT_EQ(std::make_pair(g.coins(), g.jackpots()), std::make_pair(110, 0));
    // All three in one pull: 5 each and 20 x 9.
    ASSERT_TRUE(g.pull());
    for (int reel = 0; reel < 2; ++reel) EXPECT_EQ(stopAt(g, reel, answerAt(g, reel)), Stop::Right);
    EXPECT_EQ(stopAt(g, 2, answerAt(g, 2)), Stop::Jackpot);
    EXPECT_EQ(g.coins(), 105 + 15 + 180);
    EXPECT_FALSE(g.canPull());  // until the next definition comes
    g.nextDefinition(s, rng);
    EXPECT_EQ(std::make_tuple(g.rightNow(), g.canPull(), g.jackpots()),
              std::make_tuple(0, true, 1));
    ASSERT_TRUE(g.start(s, rng));  // a new game counts its jackpots afresh
    EXPECT_EQ(g.jackpots(), 0);
}

TEST(SlotMachine, TheTenthJackpotWinsTheGame) {
    SharedState s = ListOf(kEight, 1);
    Walk rng;
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    for (int d = 1; d <= 10; ++d) {
        if (d > 1) g.nextDefinition(s, rng);
        ASSERT_TRUE(g.pull()) << d;
        for (int reel = 0; reel < 2; ++reel) stopAt(g, reel, answerAt(g, reel));
        EXPECT_EQ(stopAt(g, 2, answerAt(g, 2)), d < 10 ? Stop::Jackpot : Stop::Won) << d;
    }
    EXPECT_EQ(std::tuple(g.phase(), g.jackpots()), std::tuple(Phase::Won, 10));
    EXPECT_FALSE(g.pull());
}
