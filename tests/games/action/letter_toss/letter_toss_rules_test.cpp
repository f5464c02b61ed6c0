// Letter Toss's rules over a scripted generator: the draw of a word, its baskets and the fan,
// the flick read from a drag, where a toss lands and what it scores, and the clock.
#include <gtest/gtest.h>

#include "games/action/letter_toss/letter_toss_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::letter_toss;
using wm::test::ListOf;

namespace {

std::vector<int> Entries(const Room& r) {
    std::vector<int> e;
    for (const Basket& b : r.baskets) e.push_back(b.entry);
    return e;
}

Step Fly(SharedState& s, Room& r) {
    Step st;
    for (int i = 0; i < 1000 && r.ball.flying; ++i) st = step(s, r);
    return st;
}

}  // namespace

TEST(LetterTossDraw, WordThenItsPlaceThenDecoysThenTheFan) {
    SharedState s = ListOf({"cat", "dog", "hen", "owl", "pig", "cow"}, 4);
    s.Meanings[2] = "MEANING OF HEN ";  // reads the same as hen's: never in one room
    s.Meanings[3] = " meaning of hen";
    s.Score = 90;
    ScriptedRng rng;
    // The word (3), its basket (2 of 4), decoys drawn for baskets 1, 3 and 4, the fan's 9 settings.
    rng.pick(3, 6).pick(2, 4).pick(2, 6).pick(3, 6).pick(1, 6).pick(1, 6).pick(6, 6).pick(4, 6);
    rng.pick(9, 9);
    Room r;
    r.secondsLeft = 3;
    ASSERT_TRUE(newGame(s, r, rng));
    EXPECT_EQ(std::tuple(rng.randomizeCount, rng.draws, Entries(r), r.right),
              std::tuple(1, 9, std::vector<int>{1, 3, 6, 4}, 1));
    EXPECT_EQ(std::tuple(s.TheWord, s.TheMeaning, r.draught, s.Score, r.secondsLeft, r.ball.flying),
              std::tuple("hen", " meaning of hen", 4, 0.0, 60, false));
    std::vector<double> xs;
    for (const Basket& b : r.baskets) xs.push_back(b.x);
    EXPECT_EQ(xs, (std::vector<double>{-1020, -340, 340, 1020}));
    rng.pick(1, 9);
    newToss(r, rng);
    EXPECT_EQ(r.draught, -4);
}

TEST(LetterTossDraw, BasketsFollowTheLevelAndWordsDoNotComeBackTillAllHaveBeenTossed) {
    for (auto [level, baskets] :
         std::vector<std::pair<int, int>>{{1, 2}, {2, 2}, {3, 3}, {4, 4}, {9, 4}})
        EXPECT_EQ(basketsFor(level), baskets) << level;
    SharedState s = ListOf({"cat", "dog", "hen"}, 2);
    ScriptedRng rng(0.0);  // always entry 1 when asked
    Room r;
    ASSERT_TRUE(newGame(s, r, rng) && nextWord(s, r, rng));
    ASSERT_TRUE(nextWord(s, r, rng));
    EXPECT_EQ(s.TheWord, "hen");  // cat and dog have had their turn
    ASSERT_TRUE(nextWord(s, r, rng));
    EXPECT_EQ(std::tuple(s.TheWord, r.words), std::tuple(std::string("cat"), 4)) << "round again";
}

TEST(LetterTossDraw, TooFewDifferentWordsOrDefinitionsForTheBaskets) {
    SharedState s = ListOf({"cat", "Cat ", "dog", "owl"}, 3);
    s.Meanings[4] = "meaning of DOG";
    ScriptedRng rng;
    Room r;
    EXPECT_FALSE(newGame(s, r, rng));
    // Two different entries for three baskets: known before any draw.
    EXPECT_EQ(std::tuple(r.baskets.size(), rng.draws), std::tuple(0u, 0));
    s.Difficulty = 2;
    EXPECT_TRUE(newGame(s, r, rng));
    s.Difficulty = 3;  // the next word cannot have its baskets: none are left standing
    EXPECT_FALSE(nextWord(s, r, rng));
    EXPECT_EQ(std::tuple(r.baskets.size(), r.right), std::tuple(0u, -1));
    EXPECT_FALSE(newGame(s = ListOf({"cat", "dog"}, 2, true), r, rng));  // no definitions
}

TEST(LetterTossFlick, TheDragsLastTenthOfASecond) {
    struct Case {
        std::vector<Sample> drag;
        Flick want;
    } cases[] = {
        // Slow, then fast: only the end counts, its start found between two samples.
        {{{0, 800, 860}, {180, 800, 850}, {280, 800, 800}, {300, 810, 740}}, {100, -1000}},
        {{{0, 800, 850}, {50, 830, 800}}, {600, -1000}},  // shorter than a tenth: all of it
        {{{0, 800, 850}, {100, 800, 700}, {300, 800, 700}}, {0, 0}},  // held still, let go
        {{{0, 800, 850}}, {0, 0}},
        {{{10, 800, 850}, {10, 900, 850}}, {0, 0}},
    };
    for (const Case& c : cases) {
        const Flick f = flickOf(c.drag);
        EXPECT_NEAR(f.x, c.want.x, 1e-9) << c.drag.size();
        EXPECT_NEAR(f.y, c.want.y, 1e-9) << c.drag.size();
    }
}

TEST(LetterTossFlight, WhereATossLandsAndWhatItScores) {
    struct Case {
        int baskets, right, draught;
        double x, y, fx, fy;
        Landing landing;
        int basket, points;
    } cases[] = {
        {3, 1, 0, 800, 850, 0, -1500, Landing::Swish, 1, 150},
        {3, 1, 0, 800, 850, 200, -1500, Landing::Swish, 1, 150},
        {3, 1, 0, 800, 850, 242, -1500, Landing::Right, 1, 100},  // a rattle on the rim
        {3, 1, 0, 800, 850, 0, -3000, Landing::Right, 1, 100},    // off the back wall
        {3, 1, 0, 800, 850, 300, -1500, Landing::Floor, -1, 0},   // off the rim
        {3, 1, 0, 800, 850, 0, -1000, Landing::Floor, -1, 0},     // short
        {3, 0, 0, 800, 850, 0, -1500, Landing::Wrong, 1, -50},
        {3, 1, 0, 1000, 700, 0, -1500, Landing::Floor, -1, 0},  // from the side, straight up
        {2, 1, 0, 800, 850, 0, -1500, Landing::Floor, -1, 0},   // between the baskets
        {2, 1, 0, 800, 850, 823, -1500, Landing::Swish, 1, 150},
        {2, 1, 4, 800, 850, 823, -1500, Landing::Floor, -1, 0},  // blown past it
        {2, 1, -4, 800, 850, 823, -1500, Landing::Floor, -1, 0},
        {2, 1, 4, 800, 850, 500, -1500, Landing::Swish, 1, 150},  // the draught allowed for
        {3, 2, 0, 800, 850, 5000, -300, Landing::Floor, -1, 0},   // off the walls
    };
    for (const Case& c : cases) {
        SharedState s = ListOf({"cat", "dog", "hen", "owl"}, c.baskets);
        auto rng = ScriptedRng(0.5).pick(1, 4).pick(c.right + 1, c.baskets);
        Room r;
        ASSERT_TRUE(newGame(s, r, rng));
        s.Score = 10;
        r.draught = c.draught;
        ASSERT_TRUE(toss(r, c.x, c.y, {c.fx, c.fy}));
        EXPECT_FALSE(toss(r, c.x, c.y, {c.fx, c.fy}));  // one ball at a time
        const Step st = Fly(s, r);
        const std::string at = std::to_string(c.fx) + "," + std::to_string(c.draught);
        EXPECT_EQ(std::tuple(st.landing, st.basket, st.points, s.Score, r.ball.flying),
                  std::tuple(c.landing, c.basket, c.points, 10.0 + c.points, false))
            << at;
        EXPECT_LT(r.ball.steps, 130) << at;
    }
}

TEST(LetterTossFlight, AWeakFlickIsNoTossAndTheBallStaysInTheRoom) {
    SharedState s = ListOf({"cat", "dog"}, 2);
    ScriptedRng rng(0.5);
    Room r;
    ASSERT_TRUE(newGame(s, r, rng));
    EXPECT_FALSE(toss(r, 800, 850, {0, -249}) || toss(r, 800, 850, {0, 900}) || r.ball.flying);
    EXPECT_EQ(step(s, r).landing, Landing::Flying);
    ASSERT_TRUE(toss(r, 800, 850, {0, -251}));
    // Carried too high or off the side, it leaves from the edge of the front of the room.
    r = Room{};
    r.baskets.resize(1);
    ASSERT_TRUE(toss(r, 5, 100, {0, -900}));
    EXPECT_EQ(std::tuple(r.ball.at.x, r.ball.at.h), std::tuple(-700.0, 360.0));
    r.ball.flying = false;
    ASSERT_TRUE(toss(r, 1590, 990, {0, -900}));
    EXPECT_EQ(std::tuple(r.ball.at.x, r.ball.at.h), std::tuple(700.0, 120.0));
}

TEST(LetterTossClock, SixtySecondsThenTimeIsUp) {
    Room r;
    for (int i = 1; i < 60; ++i) ASSERT_FALSE(clockTick(r)) << i;
    EXPECT_TRUE(clockTick(r) && clockTick(r));
    EXPECT_EQ(r.secondsLeft, 0);
}

TEST(LetterTossView, TheRoomInPerspective) {
    const Seen hand = project({0, 0, 150}), rim = project({340, 1000, 220});
    EXPECT_EQ(std::tuple(hand.x, hand.y, rim.x, rim.y, rim.scale),
              std::tuple(800.0, 850.0, 970.0, 540.0, 0.5));
}

// One step of the flight (16 ms; gravity 2400) against the walls, a rim and a basket's sides,
// with a basket 340 right of the middle: what each bounce leaves of the speed and where it puts
// the ball.
TEST(LetterTossFlight, OneStepAgainstTheBackWallARimAndABasketsSide) {
    struct Case {
        const char* what;
        Vec3 at, speed, wantAt, wantSpeed;
        bool bounced = true;
    } cases[] = {
        // The back wall (1180, the ball's radius 30 off it) keeps 0.35 of the speed.
        {"back wall", {0, 1140, 600}, {100, 1000, 0}, {1.6, 1150, 599.3856}, {35, -350, -38.4}},
        // A rim (120 to 150 from the middle, dropping past 220): out at 0.6, up at 0.3.
        {"rim", {470, 1000, 225}, {-100, 0, -400}, {468.4, 1000, 220}, {60, 0, 438.4 * 0.3}},
        // The side, below the rim: back out to 150 from the middle, at half the speed.
        {"side", {495, 1000, 150}, {-400, 0, 0}, {490, 1000, 149.3856}, {200, 0, -38.4}},
        {"front", {340, 845, 150}, {0, 400, 0}, {340, 850, 149.3856}, {0, -200, -38.4}},
        // Touching the side already and moving away from it: let go, not turned back in.
        {"leaving", {485, 1000, 150}, {100, 0, 0}, {486.6, 1000, 149.3856}, {100, 0, -38.4}, false},
        // A side wall (1500, less the ball's radius) keeps 0.4 of the speed across.
        {"side wall", {-1460, 600, 600}, {-1000, 0, 0}, {-1470, 600, 599.3856}, {400, 0, -38.4}},
    };
    for (const Case& c : cases) {
        SharedState s = ListOf({"cat", "dog"}, 2);
        Room r;
        r.baskets = {Basket{}};
        r.baskets[0].x = 340;
        r.right = 0;
        r.ball.at = c.at;
        r.ball.speed = c.speed;
        r.ball.flying = true;
        const Step st = step(s, r);
        EXPECT_EQ(std::tuple(st.bounced, st.basket), std::tuple(c.bounced, -1)) << c.what;
        for (auto [got, want] : {std::pair{r.ball.at, c.wantAt}, {r.ball.speed, c.wantSpeed}})
            for (auto [g, w] : {std::pair{got.x, want.x}, {got.z, want.z}, {got.h, want.h}})
                EXPECT_NEAR(g, w, 1e-6) << c.what;
    }
}
