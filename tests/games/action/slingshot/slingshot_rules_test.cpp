// Slingshot's rules: the draws of a definition in their order, the band's reach, the stone's
// flight, the targets' swing, scoring, three stones a definition, ten definitions, and the
// lists the game cannot use.
#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "act_rules_kit.h"
#include "games/action/slingshot/slingshot_rules.h"

using namespace wm;
using namespace wm::slingshot;
using wm::test::ListOf;
using Begun = test::Begun<Game>;

namespace {

const std::vector<std::string> kEight = {"cat", "dog", "owl", "bee", "ant", "elk", "fox", "yak"};

double dist(Point a, Point b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

// The pouch pulled back so that the stone, let go now, flies at `aim` (for a near target the
// drop hardly shows).
Point pullTowards(Point aim, double pull = 200) {
    const Point rest = pouchRest();
    const double len = dist(aim, rest);
    return {rest.x - (aim.x - rest.x) / len * pull, rest.y - (aim.y - rest.y) / len * pull};
}

// Steps until the stone lands; the last outcome.
Shot flyOut(Game& g) {
    Shot shot = Shot::Flying;
    for (int t = 0; t < 1000 && shot == Shot::Flying; ++t) shot = g.step();
    return shot;
}

// Aimed where the target will be when a full-pull stone gets there.
Point aimAt(const Game& g, int slot) {
    Point p = g.target(slot);
    for (int i = 0; i < 3; ++i) {
        const long long ahead = std::llround(dist(p, pouchRest()) / 22) * kTickMs;
        p = targetAt(slot, g.level(), g.clock() + ahead, g.sinceDeal() + ahead);
    }
    return pullTowards(p);
}

Shot shootAt(Game& g, int slot) {
    EXPECT_TRUE(g.fire(aimAt(g, slot)));
    return flyOut(g);
}

// A stone sideways, under every target: it drops into the grass, off to the left or the right.
Shot miss(Game& g, int side = -1) {
    EXPECT_TRUE(g.fire({pouchRest().x - side * 120, pouchRest().y}));
    return flyOut(g);
}

}  // namespace

TEST(SlingshotDraws, WordThenThreeOtherWordsThenTheRightSlot) {
    SharedState s = ListOf(kEight, 5);
    // The word (owl); a draw of the same word in other letters is drawn again (OWL below);
    // then fox, cat, yak; the right word in slot 3 of 4.
    s.Words[2] = "OWL ";
    auto rng = ScriptedRng().pick(3, 8).pick(2, 8).pick(7, 8).pick(1, 8).pick(8, 8).pick(3, 4);
    Game g;
    ASSERT_EQ(g.start(s, rng), "");
    EXPECT_EQ(std::tuple(rng.randomizeCount, rng.pending(), s.TheWord, s.TheMeaning, g.rightSlot()),
              std::tuple(1, 0u, "owl", "meaning of owl", 2));
    EXPECT_EQ((std::vector<std::string>{g.word(0), g.word(1), g.word(2), g.word(3)}),
              (std::vector<std::string>{"fox", "cat", "owl", "yak"}));
    EXPECT_EQ(std::tuple(g.definition(), g.stonesLeft(), s.Score), std::tuple(1, 3, 0));
}

TEST(SlingshotDraws, NoDefinitionTwiceUntilTheListRunsOut) {
    // Six words, ten definitions: the first six all differ, then they come again, never the
    // one just played twice running. Every draw comes out on the second word, so the bounded
    // redraw and the step to the next free entry do the work, round to the first.
    auto [s, rng, g] = Begun(ListOf({"cat", "dog", "owl", "bee", "ant", "elk"}, 1), 0.25);
    std::vector<std::string> played{s.TheWord};
    while (true) {
        for (int t = 0; t < 3; ++t) miss(g);
        ASSERT_EQ(g.phase(), Phase::Revealed);
        if (!g.next(s, rng)) break;
        played.push_back(s.TheWord);
        // The other three words differ from it and from each other.
        for (int a = 0; a < kTargets; ++a)
            for (int b = a + 1; b < kTargets; ++b) EXPECT_NE(g.word(a), g.word(b));
    }
    ASSERT_EQ(played.size(), 10u);
    EXPECT_EQ(std::vector<std::string>(played.begin(), played.begin() + 6),
              (std::vector<std::string>{"dog", "owl", "bee", "ant", "elk", "cat"}));
    EXPECT_NE(played[6], "cat");
    EXPECT_EQ(g.phase(), Phase::Over);
    EXPECT_FALSE(g.next(s, rng));
}

TEST(SlingshotDraws, ListsItCannotUse) {
    ScriptedRng rng;
    Game g;
    // Four entries but three different words (case and blanks do not make a word new).
    SharedState dup = ListOf({"cat", "dog", "Cat ", "owl"}, 1);
    EXPECT_EQ(g.start(dup, rng),
              "This list has fewer than four different words, and Slingshot needs four targets. "
              "Please choose another list.");
    SharedState blank = ListOf({"cat", "dog", "  ", "owl"}, 1);
    EXPECT_EQ(g.start(blank, rng), kTooFewWords);
    EXPECT_EQ(rng.draws, 0) << "refused before any draw";
    SharedState bare = ListOf({"cat", "dog", "owl", "bee"}, 1, true);
    EXPECT_EQ(g.start(bare, rng),
              "The words of this list have no definitions to aim at. Please choose another list.");
    // One definition is enough: it is played every time, the others only hang as targets.
    bare.Meanings[4] = "it buzzes";
    ASSERT_EQ(g.start(bare, rng), "");
    for (int d = 0; d < 3; ++d) {
        EXPECT_EQ(bare.TheWord, "bee");
        for (int t = 0; t < 3; ++t) miss(g);
        ASSERT_TRUE(g.next(bare, rng));
    }
    // A word without a definition is drawn again, a hundred times at most.
    SharedState some = ListOf(kEight, 1);
    some.Meanings[1] = "";
    for (int d = 0; d < 99; ++d) rng.pick(1, 8);
    rng.pick(5, 8);
    ASSERT_EQ(g.start(some, rng), "");
    EXPECT_EQ(some.TheWord, "ant");
    // A list cut short at the limit draws among the entries loaded.
    SharedState big = ListOf(kEight, 1);
    big.WordCount = 1001;
    rng.then(0.999999);
    ASSERT_EQ(g.start(big, rng), "");
    EXPECT_EQ(big.TheWord, "yak");
}

TEST(SlingshotBand, StretchesBackTwoHundredAtMostAndNeverUp) {
    const Point rest = pouchRest();
    // The pointer from the rest point, and where the pouch goes.
    const std::array<double, 4> table[] = {
        {0, 120, 0, 120}, {0, 200, 0, 200},     {0, 260, 0, 200}, {-300, 400, -120, 160},
        {90, -50, 90, 0}, {-250, -10, -200, 0}, {0, 0, 0, 0}};
    for (auto [dx, dy, px, py] : table) {
        const Point p = pullPouch({rest.x + dx, rest.y + dy});
        EXPECT_NEAR(p.x - rest.x, px, 1e-9) << dx << "," << dy;
        EXPECT_NEAR(p.y - rest.y, py, 1e-9) << dx << "," << dy;
    }
}

TEST(SlingshotFlight, StraightWithALittleDropSpeedByThePull) {
    auto [s, rng, g] = Begun(ListOf(kEight, 1), 0.0);
    const Point rest = pouchRest();
    // Too short a pull is a click: the stone stays.
    EXPECT_FALSE(g.fire({rest.x, rest.y + 15}));
    EXPECT_EQ(g.phase(), Phase::Aiming);
    // Pulled past the band's reach straight down: it flies as from 200 straight up.
    ASSERT_TRUE(g.fire({rest.x, rest.y + 500}));
    EXPECT_FALSE(g.fire({rest.x, rest.y + 100}));  // one stone in the air at a time
    EXPECT_NEAR(g.stoneSpeed().y, -22, 1e-9);
    EXPECT_EQ(g.step(), Shot::Flying);
    EXPECT_NEAR(g.stone().x, rest.x, 1e-9);
    EXPECT_NEAR(g.stone().y, rest.y - 21.8, 1e-9);
    EXPECT_EQ(g.step(), Shot::Flying);
    EXPECT_NEAR(g.stone().y, rest.y - 21.8 - 21.6, 1e-9);
    // A stone out of the side of the field is gone at once, not when it would reach the grass:
    // at 22 a tick from the middle it is past either side, 22 beyond, on the 31st tick.
    for (int side : {-1, 1}) {
        ASSERT_EQ(g.start(s, rng), "");
        ASSERT_TRUE(g.fire({rest.x + side * 200, rest.y}));
        int ticks = 1;
        while (g.step() == Shot::Flying) ++ticks;
        EXPECT_EQ(ticks, 31) << side;
    }
    // Seen from the slingshot no target hides another (the outer ones hang lower): a stone at
    // each hits that one.
    EXPECT_GT(ropeLength(0), ropeLength(1));
    EXPECT_GT(ropeLength(3), ropeLength(2));
    for (int slot = 0; slot < kTargets; ++slot) {
        ASSERT_EQ(g.start(s, rng), "");
        EXPECT_NE(shootAt(g, slot), Shot::Miss);
        EXPECT_EQ(g.lastHit(), slot);
    }
}

TEST(SlingshotScore, RightIsAHundredALevelWrongCostsFifty) {
    for (auto [difficulty, level] : {std::pair{5, 5}, {1, 1}, {9, 9}, {0, 1}, {12, 9}}) {
        auto [s, rng, g] = Begun(ListOf(kEight, difficulty), 0.3);
        ASSERT_EQ(g.level(), level);
        const int wrong = (g.rightSlot() + 1) % kTargets;
        EXPECT_EQ(shootAt(g, wrong), Shot::Wrong) << difficulty;
        EXPECT_EQ(std::tuple(g.lastHit(), g.score(), g.stonesLeft()), std::tuple(wrong, -50, 2));
        EXPECT_EQ(shootAt(g, wrong), Shot::Wrong);
        EXPECT_EQ(g.score(), -100);
        EXPECT_EQ(shootAt(g, g.rightSlot()), Shot::Right);
        EXPECT_EQ(std::tuple(g.score(), g.phase()), std::tuple(-100 + 100 * level, Phase::Solved));
        EXPECT_TRUE(g.gone(g.rightSlot()));
        EXPECT_EQ(g.stonesLeft(), 1);  // the right stone is not spent
        EXPECT_FALSE(g.fire(pullTowards(g.target(0))));
        // The next definition: a miss costs a stone and no points; the third stone shows the
        // answer, and no more fly.
        const std::string first = s.TheWord;
        ASSERT_TRUE(g.next(s, rng));
        EXPECT_LT(dist(g.target(1), pivot(1)), kTargetRadius);  // let down afresh from the beam
        EXPECT_EQ(miss(g, +1), Shot::Miss);
        EXPECT_EQ(g.score(), -100 + 100 * level);
        EXPECT_EQ(shootAt(g, (g.rightSlot() + 1) % kTargets), Shot::Wrong);
        EXPECT_EQ(g.phase(), Phase::Aiming);
        EXPECT_EQ(miss(g), Shot::Miss);
        EXPECT_EQ(std::tuple(g.phase(), g.stonesLeft()), std::tuple(Phase::Revealed, 0));
        EXPECT_FALSE(g.fire(pullTowards(g.target(0))));
        EXPECT_EQ(g.troubleWords(), (std::vector<std::string>{first, s.TheWord}));
    }
    EXPECT_EQ(lostText({"cat", "owl"}),
              "No points this time! The words to practise: cat, owl. Would you like to try again?");
}

TEST(SlingshotSwing, WiderAndFasterWithTheLevelNeighboursNeverMeet) {
    for (int level = kMinLevel; level < kMaxLevel; ++level) {
        EXPECT_LT(swingDegrees(level), swingDegrees(level + 1));
        EXPECT_GT(swingPeriodMs(level), swingPeriodMs(level + 1));
    }
    for (int level : {kMinLevel, kMaxLevel}) {
        double widest = 0;
        const int period = swingPeriodMs(level);
        for (int ms = 0; ms < period; ms += 8) {
            for (int a = 0; a < kTargets; ++a) {
                const Point p = targetAt(a, level, ms, 10'000);
                // The rope keeps its length; the target stays in the field, under the beam.
                EXPECT_NEAR(dist(p, pivot(a)), ropeLength(a), 1e-6);
                EXPECT_GT(p.x - kTargetRadius, 0);
                EXPECT_LT(p.x + kTargetRadius, kFieldW);
                EXPECT_GT(p.y - kTargetRadius, kBeamY);
                EXPECT_LT(p.y + kTargetRadius + kStoneRadius * 2, pouchRest().y);
                widest = std::max(widest, std::fabs(p.x - pivot(a).x) / ropeLength(a));
                for (int b = a + 1; b < kTargets; ++b)
                    EXPECT_GT(dist(p, targetAt(b, level, ms, 10'000)), 2 * kTargetRadius)
                        << level << " " << ms << " " << a << b;
            }
        }
        EXPECT_NEAR(std::asin(widest) * 180 / 3.14159265358979, swingDegrees(level), 0.2);
    }
    // The swing: (6 + 3 x level) degrees x sin(2 pi t / (3800 - 250 x level) + 0.7 x slot).
    const double deg = 3.14159265358979 / 180;
    // (Slot, level, ms, degrees; the second a quarter swing out: the widest.)
    const std::tuple<int, int, int, double> rows[] = {
        {0, 1, 0, 0},
        {0, 1, 3550 / 4, 9},
        {0, 9, 1550 / 2, 0},
        {2, 1, 0, 9 * std::sin(1.4)},
        {3, 4, 2800 * 3 / 4, 18 * std::sin(1.5 * 3.14159265358979 + 2.1)}};
    for (auto [slot, level, ms, degrees] : rows) {
        const Point p = targetAt(slot, level, ms, 10'000), at = pivot(slot);
        EXPECT_NEAR(p.x, at.x + ropeLength(slot) * std::sin(degrees * deg), 0.01) << slot;
        EXPECT_NEAR(p.y, at.y + ropeLength(slot) * std::cos(degrees * deg), 0.01) << slot;
    }
    EXPECT_EQ(pivot(0).x, 1280 / 2 - 1.5 * 290);
    // A new definition's targets are let down from the beam and hang at full length after.
    const Point down = targetAt(1, 1, 0, 0), half = targetAt(1, 1, 0, kDropInMs / 2);
    EXPECT_LT(dist(down, pivot(1)), kTargetRadius);
    EXPECT_LT(dist(half, pivot(1)), ropeLength(1));
    EXPECT_NEAR(dist(targetAt(1, 1, 0, kDropInMs), pivot(1)), ropeLength(1), 1e-6);
}
