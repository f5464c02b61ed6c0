// Cannon Shot's rules: the numbers of the design, the draws in their order, words that fit,
// the barrel and the bar, the ball's arc, letters popped in order and out of it, and the ends.
#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "act_rules_kit.h"
#include "cannon_aim.h"

using namespace wm;
using namespace wm::cannon_shot;
using wm::test::ListOf;
using Begun = test::Begun<Game>;

namespace {

// The first shown balloon in reach carrying `letter` (decoys only when asked).
int Find(const Game& g, char letter, bool decoy = false) {
    for (int i = 0; i < int(g.balloons().size()); ++i) {
        const Balloon& b = g.balloons()[i];
        if (b.shown() && b.letter == letter && b.decoy == decoy && b.x < 1100) return i;
    }
    return -1;
}

// Pops balloon `i` with the keys: the events of the tick that popped it.
std::vector<Event> Shoot(Game& g, int i, Rng& rng) {
    test::Plan plan;
    EXPECT_TRUE(test::PlanShot(g, i, &plan)) << "no shot reaches balloon " << i;
    return test::PlayShot(g, plan, rng);
}

}  // namespace

TEST(CannonShotNumbers, SpeedWindBarBallsAndLetters) {
    EXPECT_DOUBLE_EQ(balloonSpeed(2), 0.68);
    EXPECT_DOUBLE_EQ(balloonSpeed(20), 2.3);
    for (auto [level, wind] : {std::pair{2, 0.0}, {7, 0.0}, {8, 0.01}, {20, 0.058}})
        EXPECT_DOUBLE_EQ(maxWind(level), wind) << level;
    // The bar rises over 50 ticks, falls back over 50, and rises again.
    const std::pair<int, double> bar[] = {{0, 0},     {1, 0.02}, {25, 0.5}, {50, 1},
                                          {51, 0.98}, {100, 0},  {125, 0.5}};
    for (auto [ticks, power] : bar) EXPECT_DOUBLE_EQ(powerAfter(ticks), power) << ticks;
    // 2 x length + 3
    EXPECT_EQ(std::tuple(ballsFor("cat"), ballsFor("ice cream")), std::tuple(9, 21));
}

TEST(CannonShotStart, DrawsWordWindDecoysOrderAndHeightsInThatOrder) {
    // The long word is drawn and left out; then the wind, four decoys, the shuffle, heights.
    auto [s, rng, g] =
        Begun(ListOf({"pneumonoultramicroscopic", "ox", "ice-cream"}, 9),
              ScriptedRng(0.5).pick(1, 3).pick(2, 3).then(1).then(0).then(0).then(0.999).then(0.05),
              false);
    EXPECT_EQ(std::tuple(rng.randomizeCount, s.TheWord, s.TheMeaning),
              std::tuple(1, "ox", "meaning of ox"));
    EXPECT_DOUBLE_EQ(g.wind(), 0.014);
    // Decoys are letters the word lacks: A, A, Z (the last), B.
    std::string letters;
    for (const Balloon& b : g.balloons()) letters += b.letter;
    std::sort(letters.begin(), letters.end());
    // Spaced along their round from x 560, inside the sky.
    EXPECT_EQ(std::tuple(letters, g.ballsLeft(), g.phase(), g.balloons()[5].x, g.balloons()[0].alt),
              std::tuple("AABOXZ", 7, Phase::Ready, 560 + 5 * 120.0, 170 + 0.5 * 370));
    // Below level 8 there is no wind and nothing drawn for it; blanks and hyphens stand.
    SharedState calm = ListOf({"ice-cream"}, 7);
    ScriptedRng r2(0.3);
    ASSERT_TRUE(g.start(calm, r2));
    EXPECT_EQ(std::tuple(g.wind(), r2.draws, g.blanks(), g.nextPos()),
              std::tuple(0.0, 1 + 3 + 10 + 11, std::string("\0\0\0-\0\0\0\0\0", 9), 0))
        << "word, decoys, shuffle, heights";
}

TEST(CannonShotStart, LevelHeldAndListsThatCannotPlayRefused) {
    ScriptedRng rng(0.5);
    for (auto [given, held] : {std::pair{1, 2}, {2, 2}, {20, 20}, {25, 20}}) {
        SharedState s = ListOf({"cat"}, given);
        Game g;
        ASSERT_TRUE(g.start(s, rng));
        EXPECT_EQ(g.level(), held);
        EXPECT_EQ(g.balloons().size(), 3u + held / 2) << given;  // level / 2 decoys
    }
    // Fourteen letters fit; fifteen, none, or only marks do not.
    SharedState fits = ListOf({"photosynthesis"}, 4);
    EXPECT_TRUE(Game().start(fits, rng));
    for (auto words :
         {std::vector<std::string>{"photosynthesiss"}, {"- '"}, std::vector<std::string>{}}) {
        SharedState s = ListOf(words, 4);
        EXPECT_FALSE(Game().start(s, rng));
    }
    // A count beyond the words held is refused, not read past.
    SharedState broken = ListOf({"cat"}, 4);
    broken.WordCount = 4000;
    EXPECT_FALSE(Game().start(broken, rng));
}

TEST(CannonShotWords, NoRepeatsInAGameAndTheDrawIsBounded) {
    auto [s, rng, g] = Begun(ListOf({"a", "b", "c"}, 2), 0.0);  // always entry 1
    std::vector<std::string> played{s.TheWord};
    for (int w = 2; w <= 5; ++w) {
        const int before = rng.draws;
        ASSERT_TRUE(g.nextWord(s, rng));
        played.push_back(s.TheWord);
        if (w == 2) {
            EXPECT_EQ(rng.draws - before, kWordDraws + 1 + 1 + 2);  // decoy, order, heights
        }
    }
    // The used entry drawn a hundred times gives the next free one; all used, the others
    // come round again, never the word just played.
    EXPECT_EQ(std::tuple(played, g.wordNumber()),
              std::tuple(std::vector<std::string>{"a", "b", "c", "a", "b"}, 5));
    EXPECT_FALSE(g.nextWord(s, rng));

    // Two words that fit: once both have come, the one just played waits a turn.
    for (int last : {1, 2}) {  // whichever entry it was
        auto [two, r2, t] = Begun(ListOf({"a", "b"}, 2), ScriptedRng().pick(3 - last, 2));
        r2.pick(last, 2);
        ASSERT_TRUE(t.nextWord(two, r2));
        r2.pick(last, 2);
        ASSERT_TRUE(t.nextWord(two, r2));
        EXPECT_EQ(two.TheWord, last == 1 ? "b" : "a");
    }
}

TEST(CannonShotAim, BarrelAndBarFollowTheKeysAndTheArcIsTrue) {
    auto [s, rng, g] = Begun(ListOf({"q"}, 2), 0.0, false);  // balloons high, out of the way
    // Nothing turns or charges before the pause is over.
    g.tick({1, true}, rng);
    EXPECT_EQ(std::tuple(g.angle(), g.charging()), std::tuple(45, false));
    g.go();
    for (auto [turn, ticks, angle] : {std::tuple{1, 10, 55}, {1, 100, 80}, {-1, 100, 10}}) {
        for (int t = 0; t < ticks; ++t) g.tick({turn, false}, rng);
        EXPECT_EQ(g.angle(), angle);
    }
    // Space held 25 ticks: half power; let go, the ball leaves at 7 + 13 x 0.5.
    for (int t = 0; t < 25; ++t) g.tick({0, true}, rng);
    EXPECT_DOUBLE_EQ(g.power(), 0.5);
    ASSERT_EQ(g.tick({}, rng).at(0).kind, Event::Fired);
    // From the muzzle, 92 units out along the barrel from the trunnion at (168, 700).
    EXPECT_NEAR(g.ball().x, 168 + 92 * std::cos(10 * M_PI / 180), 1e-9);
    EXPECT_NEAR(g.ball().y, 700 - 92 * std::sin(10 * M_PI / 180), 1e-9);
    EXPECT_NEAR(std::hypot(g.ball().vx, g.ball().vy), 13.5, 1e-9);
    EXPECT_NEAR(std::atan2(-g.ball().vy, g.ball().vx) * 180 / M_PI, 10, 1e-9);
    // One ball at a time: Space does nothing while it flies.
    g.tick({0, true}, rng);
    g.tick({}, rng);
    EXPECT_EQ(g.ballsLeft(), 4);
    while (g.ball().flying) g.tick({}, rng);

    // At 45 degrees: apex v^2 / 2g above the muzzle, down where the parabola meets the ground.
    g.fire(45, 0.5);
    const double x0 = g.ball().x, y0 = g.ball().y, v = 13.5 / std::sqrt(2.0);
    double top = y0;
    std::vector<Event> ev;
    while (g.ball().flying) {
        top = std::min(top, g.ball().y);
        ev = g.tick({}, rng);
    }
    EXPECT_NEAR(y0 - top, v * v / (2 * 0.25), 8);
    const double t = (v + std::sqrt(v * v + 2 * 0.25 * (820 - y0))) / 0.25;
    ASSERT_EQ(ev.at(0).kind, Event::Landed);
    EXPECT_NEAR(ev[0].x, x0 + v * t, 25);
    // The wind pushes by wind x t^2 / 2.
    auto [windy, r2, w] = Begun(ListOf({"q"}, 20), 1.0);
    EXPECT_DOUBLE_EQ(w.wind(), 0.058);
    w.fire(80, 0.2);
    const double wx0 = w.ball().x;
    for (int k = 0; k < 40; ++k) w.tick({}, r2);
    EXPECT_NEAR(w.ball().x - wx0, 40 * 9.6 * std::cos(80 * M_PI / 180) + 0.058 * 40 * 40 / 2, 2);
}

TEST(CannonShotPops, InOrderFillsTheBlanksWrongCostsAndComesRoundAgain) {
    auto [s, rng, g] = Begun(ListOf({"all", "ox", "ax", "by", "we"}, 4), 0.0);
    ASSERT_EQ(s.TheWord, "all");
    // An L before the A: wrong, -5 x level (never below nothing), out until it comes round.
    const int l = Find(g, 'L');
    EXPECT_EQ(Shoot(g, l, rng).at(0).kind, Event::Wrong);
    EXPECT_EQ(g.score(), 0);
    EXPECT_FALSE(g.balloons()[l].shown());
    // The A: +10 x level, its blank filled; then an L; a decoy in between costs 5 x 4.
    EXPECT_EQ(Shoot(g, Find(g, 'A'), rng).at(0).kind, Event::Right);
    EXPECT_EQ(std::tuple(g.score(), g.blanks(), g.nextPos()),
              std::tuple(40, std::string("a\0\0", 3), 1));
    Shoot(g, Find(g, 'L'), rng);
    Shoot(g, Find(g, 'B', true), rng);
    EXPECT_EQ(std::tuple(g.score(), g.ballsLeft()), std::tuple(60, 5));
    // The wrong L drifts off the left and floats in again from the right.
    bool back = false;
    for (int t = 0; t < 3000 && !back; ++t)
        for (const Event& e : g.tick({}, rng))
            back = back || (e.kind == Event::Back && e.balloon == l);
    EXPECT_TRUE(back);
    EXPECT_GT(g.balloons()[l].x, 1600);
    for (int t = 0; t < 800 && Find(g, 'L') < 0; ++t) g.tick({}, rng);
    const auto ev = Shoot(g, Find(g, 'L'), rng);
    ASSERT_EQ(ev.size(), 2u);
    EXPECT_EQ(std::tuple(ev[1].kind, g.phase(), g.blanks(), g.score()),
              std::tuple(Event::Spelled, Phase::Spelled, "all", 100));
    EXPECT_EQ(lostText("all"), "Out of cannonballs! The word was all.");
}

TEST(CannonShotEnd, OutOfBallsLosesWhenTheLastLands) {
    // Seven balls for a two-letter word; the last one lands: lost, not before.
    auto [one, rng, l] = Begun(ListOf({"ox"}, 2), 0.0);
    std::vector<Event> ev;
    for (int b = 0; b < 7; ++b) {
        EXPECT_EQ(l.phase(), Phase::Aiming) << b;
        ev = test::PlayShot(l, {-1, 40, 1}, rng);
    }
    ASSERT_EQ(ev.size(), 2u);
    EXPECT_EQ(std::tuple(l.ballsLeft(), ev[0].kind, ev[1].kind, l.phase()),
              std::tuple(0, Event::Landed, Event::Lost, Phase::Lost));
    // After the end the balloons drift on; the barrel and the bar are still.
    const double x = l.balloons()[0].x;
    EXPECT_TRUE(l.tick({1, true}, rng).empty());
    EXPECT_LT(l.balloons()[0].x, x);
    EXPECT_EQ(std::tuple(l.angle(), l.charging()), std::tuple(10, false));
}
TEST(CannonShotAim, APathMeetsABalloonWhereItComesNearest) {
    // (segment a..b, point c) -> distance, and how far along the nearest point lies
    const std::array<double, 8> rows[] = {
        {0, 0, 10, 0, 4, 3, 3, 0.4}, {0, 0, 10, 0, -3, 4, 5, 0}, {0, 0, 10, 0, 16, -8, 10, 1},
        {0, 0, 0, 10, 2, 7, 2, 0.7}, {2, 2, 2, 2, 5, 6, 5, 0},   {0, 0, 8, 6, 5, 5, 1, 0.7},
        {2, 1, 12, 1, 6, 4, 3, 0.4}, {1, 2, 1, 12, 4, 6, 3, 0.4}};
    for (auto [ax, ay, bx, by, cx, cy, distance, along] : rows) {
        double at = -1;
        EXPECT_NEAR(segmentDistance(ax, ay, bx, by, cx, cy, &at), distance, 1e-9)
            << cx << "," << cy;
        EXPECT_NEAR(at, along, 1e-9) << cx << "," << cy;
    }
}

TEST(CannonShotEnd, ABallOffTheSideEndsItsFlightAndTheFifthWordWins) {
    auto [s, rng, g] = Begun(ListOf({"a", "b", "c", "d", "e"}, 1), 0.0);
    // 45 degrees at full power clears the sky to the right, well above the ground.
    const auto off = test::PlayShot(g, {0, 0, kChargeTicks}, rng);
    ASSERT_EQ(off.size(), 1u);
    EXPECT_EQ(off[0].kind, Event::Landed);
    EXPECT_TRUE(off[0].x > kWorldW + 60 && off[0].y < 600) << off[0].x << "," << off[0].y;
    for (int w = 1; w <= 5; ++w) {
        if (w > 1) {
            ASSERT_TRUE(g.nextWord(s, rng));
            g.go();
        }
        const char letter = char(std::toupper(s.TheWord[0]));
        for (int t = 0; t < 3000 && Find(g, letter) < 0; ++t) g.tick({}, rng);
        const auto ev = Shoot(g, Find(g, letter), rng);
        ASSERT_GE(ev.size(), 2u) << w;
        EXPECT_EQ(ev[1].kind, Event::Spelled);
        EXPECT_EQ(ev.size() == 3 && ev[2].kind == Event::Won, w == 5) << w;
    }
    EXPECT_EQ(g.phase(), Phase::Won);
}
