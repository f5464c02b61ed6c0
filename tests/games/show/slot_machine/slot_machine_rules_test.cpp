// Slot Machine's rules over a scripted generator: the pace and the pay, the draw of the answer
// (no repeats) and of each reel's decoys, stopping on the nearest word, holds, the jackpot, and
// the two endings.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"
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

Stop jackpot(Game& g) {
    EXPECT_TRUE(g.pull());
    Stop last = Stop::Ignored;
    for (int i = 0; i < 3; ++i) last = stopAt(g, i, answerAt(g, i));
    return last;
}

}  // namespace

TEST(SlotMachine, PaceJackpotAndTexts) {
    const int table[][3] = {{1, 5, 20}, {9, 13, 180}, {20, 24, 400}};
    for (auto [level, wps, pot] : table) {
        EXPECT_EQ(wordsPerSecond(level), wps);
        EXPECT_EQ(jackpotFor(level), pot);
    }
    EXPECT_EQ(outOfCoinsText("cat"),
              "You're out of coins! The word was \"cat\". Would you like to try again?");
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
    EXPECT_EQ(rng.randomizeCount, 1);
    EXPECT_EQ(s.Score, 0);
    EXPECT_EQ(g.coins(), 100);
    EXPECT_EQ(g.level(), 9);
    EXPECT_EQ(g.definition(), 1);
    EXPECT_EQ(s.TheWord, "cat");
    EXPECT_EQ(s.TheMeaning, "meaning of cat");
    EXPECT_EQ(g.reel(0).strip, (std::vector<int>{4, 5, 3, 6, 7, 8}));
    EXPECT_EQ(g.reel(1).strip, (std::vector<int>{3, 1}));
    EXPECT_EQ(g.reel(2).strip, (std::vector<int>{3, 1}));
    EXPECT_EQ(rng.draws, 1 + 7 + 2 * (1000 + 1));
    EXPECT_EQ(g.phase(), Phase::Ready);
    for (int level : {0, 25}) {
        s.Difficulty = level;
        g.start(s, rng);
        EXPECT_EQ(g.level(), level ? 20 : 1);
    }
}

TEST(SlotMachine, DecoysAreOtherWordsWithOtherDefinitions) {
    // "Cat " is the answer's word again, "moggy" has its definition, "  " is no word: none of
    // them stands beside "cat", and the strip is as long as the list allows.
    SharedState s = PairsList({{"cat", "a pet"}, {"Cat ", "a cat"}, {"moggy", " A PET"},
                               {"  ", "blank"}, {"dog", "barks"}, {"DOG", "barks too"}});
    Walk rng(0.0);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    ASSERT_EQ(g.answer(), 1);
    for (int i = 0; i < 3; ++i) {
        const auto& strip = g.reel(i).strip;
        ASSERT_EQ(strip.size(), 2u) << i;
        const int other = strip[0] == 1 ? strip[1] : strip[0];
        EXPECT_TRUE(other == 5 || other == 6) << other;
    }
    // Six words at most on a strip, the answer once.
    SharedState s8 = ListOf(kEight);
    ASSERT_TRUE(g.start(s8, rng));
    for (int i = 0; i < 3; ++i) {
        auto strip = g.reel(i).strip;
        EXPECT_EQ(strip.size(), 6u);
        EXPECT_EQ(std::count(strip.begin(), strip.end(), g.answer()), 1);
        std::sort(strip.begin(), strip.end());
        EXPECT_EQ(std::unique(strip.begin(), strip.end()), strip.end());
    }
}

TEST(SlotMachine, ListsThatCannotBePlayedAreRefused) {
    Game g;
    ScriptedRng rng;
    SharedState none = PairsList({{"cat", " "}, {"dog", ""}});
    SharedState one = PairsList({{"cat", "a pet"}, {" CAT", "a cat"}});
    SharedState empty = ListOf({});
    for (SharedState* s : {&none, &one, &empty}) EXPECT_FALSE(g.start(*s, rng));
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
    EXPECT_EQ(g.definition(), 4);
}

TEST(SlotMachine, PullsStopsHoldsAndTheJackpot) {
    SharedState s = ListOf(kEight, 9);
    Walk rng;
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(g.stop(0), Stop::Ignored);
    ASSERT_TRUE(g.pull());
    EXPECT_EQ(g.coins(), 95);
    EXPECT_FALSE(g.pull());  // not while the reels roll
    EXPECT_EQ(g.rolling(), 3);
    // 13 words a second at level 9: a second rolls 13 words; a stop takes the nearest word.
    g.spin(1000);
    EXPECT_DOUBLE_EQ(g.reel(0).pos, 13);
    g.spin(1000 * 0.4 / 13);
    EXPECT_EQ(g.reel(0).shown(), 13 % 6);
    g.spin(1000 * 0.2 / 13);
    EXPECT_EQ(g.reel(0).shown(), 14 % 6);
    // Reel 1 on the answer pays 5 and is held; reel 2 on a decoy pays nothing.
    EXPECT_EQ(stopAt(g, 0, answerAt(g, 0)), Stop::Right);
    EXPECT_EQ(g.reel(0).pos, std::round(g.reel(0).pos));
    EXPECT_EQ(g.coins(), 100);
    EXPECT_EQ(g.stop(0), Stop::Ignored);
    EXPECT_EQ(stopAt(g, 1, decoyAt(g, 1)), Stop::Wrong);
    EXPECT_FALSE(g.rightLast());
    EXPECT_EQ(stopAt(g, 2, answerAt(g, 2)), Stop::PullOver);
    EXPECT_TRUE(g.rightLast());
    EXPECT_EQ(g.coins(), 105);
    EXPECT_EQ(g.held(), 2);
    // The next pull rolls only the reel not held.
    ASSERT_TRUE(g.pull());
    EXPECT_EQ(g.rolling(), 1);
    EXPECT_TRUE(g.reel(1).spinning);
    const double held = g.reel(0).pos;
    g.spin(500);
    EXPECT_EQ(g.reel(0).pos, held);
    EXPECT_EQ(g.stop(0), Stop::Ignored);
    EXPECT_EQ(stopAt(g, 1, answerAt(g, 1)), Stop::Jackpot);
    EXPECT_EQ(g.coins(), 100 + 5 + 180);
    EXPECT_EQ(g.phase(), Phase::Jackpot);
    EXPECT_FALSE(g.canPull());  // until the next definition comes
    g.nextDefinition(s, rng);
    EXPECT_EQ(g.held(), 0);
    EXPECT_TRUE(g.canPull());
    EXPECT_EQ(g.jackpots(), 1);
}

TEST(SlotMachine, TenJackpotsWin) {
    SharedState s = ListOf(kEight, 1);
    Walk rng;
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    for (int d = 1; d < 10; ++d) {
        ASSERT_EQ(jackpot(g), Stop::Jackpot) << d;
        g.nextDefinition(s, rng);
    }
    EXPECT_EQ(g.definition(), 10);
    EXPECT_EQ(jackpot(g), Stop::Won);
    EXPECT_EQ(g.phase(), Phase::Won);
    EXPECT_EQ(g.coins(), 100 + 10 * (-5 + 15 + 20));
    EXPECT_FALSE(g.canPull());
}

TEST(SlotMachine, OutOfCoins) {
    SharedState s = ListOf(kEight, 5);
    Walk rng;
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    auto miss = [&] {
        EXPECT_TRUE(g.pull());
        stopAt(g, 0, decoyAt(g, 0));
        stopAt(g, 1, decoyAt(g, 1));
        return stopAt(g, 2, decoyAt(g, 2));
    };
    for (int i = 0; i < 18; ++i) miss();
    EXPECT_EQ(g.coins(), 10);
    // Five coins left still pay a pull; a right reel earns back what the pull cost.
    EXPECT_EQ(miss(), Stop::PullOver);
    ASSERT_TRUE(g.pull());
    stopAt(g, 0, answerAt(g, 0));
    stopAt(g, 1, decoyAt(g, 1));
    EXPECT_EQ(stopAt(g, 2, decoyAt(g, 2)), Stop::PullOver);
    EXPECT_EQ(g.coins(), 5);
    ASSERT_TRUE(g.pull());
    stopAt(g, 1, decoyAt(g, 1));
    EXPECT_EQ(stopAt(g, 2, decoyAt(g, 2)), Stop::Broke);
    EXPECT_EQ(g.coins(), 0);
    EXPECT_EQ(g.phase(), Phase::Lost);
    EXPECT_FALSE(g.pull());
}
