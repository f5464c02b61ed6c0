// Mini Golf's rules: the level table, the course, the swing and its clamp, the walls and blocks,
// capture only of a slow ball, the scores of a right and a wrong hole.
#include <gtest/gtest.h>

#include "act_rules_kit.h"
#include "games/action/mini_golf/mini_golf_rules.h"

using namespace wm;
using namespace wm::mini_golf;
using Begun = test::Begun<Course>;

namespace {
SharedState List(int difficulty) {
    return test::ListOf({"apple", "pear", "plum", "fig", "lime"}, difficulty);
}

// A course with the ball resting at (x, y), moving at (vx, vy) before friction.
Course Rolling(SharedState& s, ScriptedRng& rng, double x, double y, double vx, double vy) {
    Course c;
    c.setup(s, rng);
    c.placeBall(x, y);
    c.setVelocity(vx, vy);
    return c;
}
}  // namespace

TEST(MiniGolfRules, LevelTable) {
    using Row = std::tuple<int, int, const char*, int>;
    for (auto [difficulty, holes, blocks, R] :
         {Row{0, 2, "", 400}, Row{1, 2, "", 400}, Row{2, 3, "", 400}, Row{3, 3, "", 400},
          Row{4, 3, " 1 2 4 5", 300}, Row{5, 3, " 1 2 3 4 5", 300}, Row{6, 4, " 1 2 3 4 5", 200},
          Row{7, 4, " 1 2 3 4 5 11 12", 200}, Row{8, 5, " 1 2 3 4 5 11 12", 100},
          Row{9, 5, " 1 2 3 4 5 6 7 8 11 12", 100},
          Row{10, 5, " 1 2 3 4 5 6 7 8 9 10 11 12", 100}}) {
        const Level l = LevelFor(difficulty);
        std::string shown;
        for (int i = 0; i < int(l.blocks.size()); ++i)
            if (l.blocks[i]) shown += " " + std::to_string(i);
        EXPECT_EQ(std::tuple(l.holes, shown, l.R), std::tuple(holes, blocks, R)) << difficulty;
    }
}

TEST(MiniGolfRules, SetupLaysOutTheCourseAndTheWord) {
    SharedState s = List(8);
    s.Score = 77;
    auto rng = ScriptedRng().pick(2, 5).pick(4, 5);  // the word, the right hole
    rng.pick(2, 5).pick(1, 5).pick(1, 5).pick(3, 5).pick(5, 5).pick(4, 5);  // repeats drawn again
    rng.pick(1, 3);                                                         // block pattern 1
    Course c;
    c.setup(s, rng);
    EXPECT_EQ(std::tuple(s.Score, c.seconds(), s.TheWord, c.rightHole(), c.pattern(), c.B()),
              std::tuple(0.0, 90, "pear", 4, 1, 384));
    EXPECT_EQ((std::vector{c.caption(1), c.caption(2), c.caption(3), c.caption(4), c.caption(5)}),
              (std::vector<std::string>{"apple", "plum", "lime", "pear", "fig"}));
    const Box& b = c.box();  // 0.1 to 0.9 of the field's 15360 x 11520 twips across and down
    EXPECT_EQ(std::tuple(b.left, b.right, b.bottom), std::tuple(1536, 13824, 10368));
    EXPECT_EQ(std::tuple(c.holeY(1), c.holeY(4), c.holeX(2), c.holeX(4)),
              std::tuple(b.top + b.height() / 10, b.top + b.height() / 5,
                         b.right - b.width() / 10 - 100, (c.holeX(1) + 100 + c.holeX(3)) / 2));
    // The first pattern: a block under each top hole, and a row through the middle.
    EXPECT_EQ(std::tuple(c.blockX(3), c.blockX(12) - c.blockX(11), c.blockX(6), c.blockY(6)),
              std::tuple(c.holeX(3), 4 * c.B(), c.holeX(1), c.holeY(1) + 2 * 100 + c.B()));
    EXPECT_EQ(std::tuple(c.ballX(), c.ballY()), std::tuple(kFieldW / 2.0, 0.8 * kFieldH));
}

TEST(MiniGolfRules, AListOfOneWordRepeatedDoesNotHang) {
    SharedState s = List(10);
    for (int i = 1; i <= 5; ++i) s.Words[i] = "same";
    ScriptedRng rng(0.3);
    Course c;
    c.setup(s, rng);
    for (int h = 1; h <= 5; ++h) EXPECT_EQ(c.caption(h), "same");
}

TEST(MiniGolfRules, SwingIsClampedAndFliesAwayFromThePull) {
    auto [s, rng, c] = Begun(List(1), 0.5);
    const int bx = int(c.ballX()), by = int(c.ballY());
    c.swing(bx + 4000, by - 6000);
    EXPECT_EQ(std::tuple(c.vx(), c.vy(), c.strokes()), std::tuple(-800, 1000, 1));  // 1200 clamped
    EXPECT_FALSE(c.canSwing(bx, by));  // not while the ball moves
    c.setup(s, rng);
    c.swing(bx - 5001 * 5, by + 5);
    EXPECT_EQ(std::tuple(c.vx(), c.vy()), std::tuple(1000, -1));
}

TEST(MiniGolfRules, SwingStartsOnlyCloseToTheBall) {
    auto [s, rng, c] = Begun(List(1), 0.5);
    const int edge = int(c.ballX()) + kBallSize / 2 + kGrab;
    EXPECT_TRUE(c.canSwing(edge, int(c.ballY())));
    EXPECT_FALSE(c.canSwing(edge + 1, int(c.ballY())));
    EXPECT_TRUE(c.canSwing(edge, int(c.ballY()) - kBallSize / 2 - kGrab));
}

TEST(MiniGolfRules, FrictionStopsTheBall) {
    SharedState s = List(1);
    ScriptedRng rng(0.5);
    Course c = Rolling(s, rng, kFieldW / 2.0, 0.8 * kFieldH, 1.0, 0.5);
    const Step st = c.tick(s, rng);
    EXPECT_TRUE(st.stopped && !c.moving());
    c = Rolling(s, rng, kFieldW / 2.0, 0.8 * kFieldH, 100, 0);
    c.tick(s, rng);
    EXPECT_DOUBLE_EQ(c.vx(), 98);
    EXPECT_DOUBLE_EQ(c.ballX(), kFieldW / 2.0 + 98);
}

TEST(MiniGolfRules, WallsTurnTheBallBack) {
    auto [s, rng, c] = Begun(List(1), 0.5);
    const Box b = c.box();
    c.placeBall(b.right - 130, 0.8 * kFieldH);
    c.setVelocity(100, 0);
    EXPECT_TRUE(c.tick(s, rng).wall);
    EXPECT_DOUBLE_EQ(c.ballX(), b.right - kBallSize / 2);
    EXPECT_DOUBLE_EQ(c.vx(), -98);
    c.placeBall(kFieldW / 2.0, b.bottom - 125);
    c.setVelocity(0, 50);
    EXPECT_TRUE(c.tick(s, rng).wall);
    EXPECT_DOUBLE_EQ(c.ballY(), b.bottom - kBallSize / 2);
    EXPECT_DOUBLE_EQ(c.vy(), -49);
}

TEST(MiniGolfRules, ABlockTurnsTheAxisTheBallCameFrom) {
    auto [s, rng, c] = Begun(List(5), 0.5);
    ASSERT_TRUE(c.blockActive(2));
    const int bx = c.blockX(2), by = c.blockY(2), B = c.B();
    // From below, straight up into it: Y turns, X goes on.
    c.placeBall(bx, by + B + 50);
    c.setVelocity(30, -100);
    Step st = c.tick(s, rng);
    EXPECT_TRUE(st.block);
    EXPECT_DOUBLE_EQ(c.vy(), 98);
    EXPECT_DOUBLE_EQ(c.vx(), 29.4);
    EXPECT_DOUBLE_EQ(c.ballY(), by + B);
    // From the left into its side: X turns.
    c.placeBall(bx - B - 50, by);
    c.setVelocity(100, 0);
    st = c.tick(s, rng);
    EXPECT_TRUE(st.block);
    EXPECT_DOUBLE_EQ(c.vx(), -98);
    EXPECT_DOUBLE_EQ(c.ballX(), bx - B);
}

TEST(MiniGolfRules, OnlyASlowBallDropsAndAFastOneFliesOver) {
    for (const int level : {1, 8}) {
        // Hole 1 is the right one.
        auto [s, rng, probe] = Begun(List(level), 0.0);
        const int R = probe.R(), hx = probe.holeX(1), hy = probe.holeY(1);
        for (const double after : {R - 1.0, double(R)}) {
            const double v = after / (1 - kFriction);  // the speed after this tick's friction
            Course c = Rolling(s, rng, hx, hy + after, 0, -v);
            const Step st = c.tick(s, rng);
            EXPECT_EQ(st.hole, after < R ? 1 : 0) << level << " " << after;
            // Both axes count: slow upwards but fast across flies over too.
            Course d = Rolling(s, rng, hx - R, hy + 10, (R + 1) / (1 - kFriction), -10);
            EXPECT_EQ(d.tick(s, rng).hole, 0) << level;
        }
        // Within R of the hole on both axes, and no further.
        Course e = Rolling(s, rng, hx + R - 49, hy, 50, 0);  // 49 a tick after friction
        EXPECT_EQ(e.tick(s, rng).hole, 0);
        Course f = Rolling(s, rng, hx + R - 1 + 49, hy, -50, 0);
        EXPECT_EQ(f.tick(s, rng).hole, 1);
    }
}

TEST(MiniGolfRules, ScoresByStrokesAndAWrongHoleCostsAThousand) {
    for (auto [strokes, base] : {std::pair{1, 500}, {2, 200}, {3, 100}, {4, 50}, {9, 50}}) {
        auto [s, rng, c] = Begun(List(3), 0.0);
        for (int i = 0; i < strokes; ++i) c.swing(int(c.ballX()), int(c.ballY()));
        c.placeBall(c.holeX(1), c.holeY(1) + 10);
        c.setVelocity(0, -10);
        rng.pick(2, 3);  // the bonus: Int(Rnd x Difficulty + 1) = 2
        const Step st = c.tick(s, rng);
        EXPECT_EQ(std::tuple(st.right, s.Score), std::tuple(true, base * 3 + 200.0)) << strokes;
    }
    SharedState s = List(2);
    // Apple in hole 1, pear and plum beside.
    auto rng = ScriptedRng(0.0).pick(1, 5).pick(1, 3).pick(2, 5).pick(3, 5);
    Course c;
    c.setup(s, rng);
    ASSERT_EQ(c.caption(2), "pear");
    c.placeBall(c.holeX(2), c.holeY(2));
    c.setVelocity(0, 5);
    const Step st = c.tick(s, rng);
    EXPECT_EQ(std::tuple(st.hole, st.right, s.Score, c.waiting()),
              std::tuple(2, false, -1000, true));
    EXPECT_FALSE(c.canSwing(int(c.ballX()), int(c.ballY())));
    c.nextWord(s, rng);
    EXPECT_EQ(std::tuple(c.waiting(), s.Score, c.strokes()), std::tuple(false, -1000, 0));
}
