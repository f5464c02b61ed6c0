// BreakThru's rules: the draws in their order, words that fit, the wall's slots, the paddle and
// the angles it gives, bricks broken in order and out of it, balls lost, and the ends.
#include <gtest/gtest.h>

#include <cctype>
#include <cmath>
#include <set>
#include <tuple>

#include "act_rules_kit.h"
#include "games/action/break_thru/break_thru_rules.h"

using namespace wm;
using namespace wm::break_thru;
using wm::test::ListOf;
using Begun = test::Begun<Game>;

namespace {

// The ball sent flat into the left face of brick `i` from just in front of it.
std::vector<Event> Strike(Game& g, int i) {
    const Brick& b = g.bricks()[i];
    g.place(g.paddleY(), {b.x() - kBallR - 2, b.y() + 26, g.speed(), 0});
    return g.tick({});
}

int Find(const Game& g, char letter, bool decoy = false) {
    for (int i = 0; i < int(g.bricks().size()); ++i)
        if (!g.bricks()[i].broken && g.bricks()[i].letter == letter && g.bricks()[i].decoy == decoy)
            return i;
    return -1;
}

// Breaks the word's letters in order; the events of the last break.
std::vector<Event> Spell(Game& g) {
    std::vector<Event> ev;
    for (int k = 0; k < 20 && g.nextPos() >= 0; ++k) {
        const char c = g.word()[g.nextPos()];
        ev = Strike(g, Find(g, char(std::toupper(static_cast<unsigned char>(c)))));
    }
    return ev;
}

}  // namespace

TEST(BreakThruNumbers, SpeedTextAndBricks) {
    for (auto [word, speed] : {std::pair{1, 8.0}, {2, 8.4}, {3, 8.82}})
        EXPECT_DOUBLE_EQ(ballSpeed(word), speed);
    EXPECT_EQ(lostText("owl"), "Out of balls! The word was owl.");
    for (char c : std::string("aZ079\xE9\xC9\xDF\xFF")) EXPECT_TRUE(isBrick(c)) << c;
    for (char c : std::string(" -'.\xD7\xF7")) EXPECT_FALSE(isBrick(c)) << c;
    // The wall's eight rows stand in the court's middle: 20 units clear of each fence.
    Brick top, bottom;
    bottom.row = 7;
    EXPECT_EQ(std::pair(top.y(), bottom.y() + kBrickH), std::pair(230.0, 870.0));
}

TEST(BreakThruStart, DrawsWordDecoysAndSlotsInThatOrder) {
    SharedState s = ListOf({"seventeen-letters", "ox", "ice cream"}, 9);
    ScriptedRng rng(0.5);
    // The long word is drawn and left out; then four decoys from the 24 letters ox lacks, then
    // each brick's slot among the free ones: O the last of eight, X the first.
    rng.pick(1, 3).pick(2, 3).then(0.0).then(0.999).pick(2, 24).then(0.0).pick(8, 8).then(0.0);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(std::tuple(rng.randomizeCount, s.TheWord, s.TheMeaning),
              std::tuple(1, "ox", "meaning of ox"));
    std::string letters;
    for (const Brick& b : g.bricks()) letters += b.letter;
    EXPECT_EQ(letters, "OXAZBA");
    // O the last of eight slots, X the first, the first decoy the fifth of the six left.
    EXPECT_EQ(std::tuple(g.columns(), g.bricks()[0].row, g.bricks()[1].row, g.bricks()[2].row,
                         rng.draws, g.phase(), g.ballsLeft(), g.level()),
              std::tuple(1, 7, 0, 4, 2 + 4 + 6, Phase::Ready, 3, 9));
    // Sixteen letters: 48 bricks in six columns of eight, no two in one slot.
    SharedState big = ListOf({"abcdefghijklmnop"}, 2);
    ASSERT_TRUE(g.start(big, rng));
    std::set<std::pair<int, int>> slots;
    for (const Brick& b : g.bricks()) slots.insert({b.col, b.row});
    EXPECT_EQ(std::tuple(g.bricks().size(), slots.size(), g.columns()), std::tuple(48u, 48u, 6));
    // Blanks and hyphens are not bricks; they stand in the word from the start.
    SharedState marks = ListOf({"ice-cream"}, 2);
    ASSERT_TRUE(g.start(marks, rng));
    EXPECT_EQ(std::tuple(g.bricks().size(), g.columns(), g.nextPos()), std::tuple(24u, 3, 0));
    EXPECT_EQ(g.done(), (std::vector<bool>{0, 0, 0, 1, 0, 0, 0, 0, 0}));
}

TEST(BreakThruStart, LevelHeldAndListsThatCannotPlayRefused) {
    ScriptedRng rng(0.5);
    for (auto [given, held] : {std::pair{1, 2}, {2, 2}, {20, 20}, {25, 20}}) {
        SharedState s = ListOf({"cat"}, given);
        Game g;
        EXPECT_TRUE(g.start(s, rng) && g.level() == held) << given;
    }
    for (auto words :
         {std::vector<std::string>{"abcdefghijklmnopq"}, {"- '"}, std::vector<std::string>{}}) {
        SharedState s = ListOf(words, 4);
        EXPECT_FALSE(Game().start(s, rng));
    }
}

TEST(BreakThruPaddle, MovesOnTheKeysCarriesTheBallAndSetsTheAngle) {
    auto [s, rng, g] = Begun(ListOf({"ox"}, 2), 0.5, false);
    // Nothing moves before the pause is over.
    g.tick({1, true});
    EXPECT_EQ(std::pair(g.paddleY(), g.phase()), std::pair(550.0, Phase::Ready));
    g.go();
    // 13 units a tick, held inside the court (210..890) by its half length of 75.
    for (auto [move, ticks, y] : {std::tuple{1, 10, 680.0}, {1, 100, 815.0}, {-1, 100, 285.0}}) {
        for (int t = 0; t < ticks; ++t) g.tick({move, false});
        EXPECT_EQ(std::pair(g.paddleY(), g.ball().y), std::pair(y, y));
    }
    // Served from the upper half: down and to the right at 25 degrees, at 8 units a tick; from
    // the court's middle (550) or below it, up.
    ASSERT_EQ(g.tick({0, true}).at(0).kind, Event::Served);
    EXPECT_NEAR(std::atan2(g.ball().vy, g.ball().vx) * 180 / M_PI, 25, 1e-9);
    EXPECT_NEAR(std::hypot(g.ball().vx, g.ball().vy), 8, 1e-9);
    for (auto [at, angle] : {std::pair{549.0, 25.0}, {551.0, -25.0}}) {
        auto [hs, hrng, h] = Begun(ListOf({"ox"}, 2), 0.5);
        h.place(at, {kPaddleX + kPaddleW + kBallR, at, 0, 0});
        h.tick({0, true});
        EXPECT_NEAR(std::atan2(h.ball().vy, h.ball().vx) * 180 / M_PI, angle, 1e-9) << at;
    }
    // Off the paddle: the angle grows with the distance from its middle, up to 60 degrees at
    // its ends (the ball's reach of 13 beyond them counts); always back to the right.
    const std::pair<double, double> edges[] = {
        {0, 0}, {44, 30}, {-44, -30}, {88, 60}, {-87, -60.0 * 87 / 88}};
    for (auto [offset, angle] : edges) {
        g.place(500, {kPaddleX + kPaddleW + kBallR + 3, 500 + offset, -8, 0});
        const auto ev = g.tick({});
        ASSERT_EQ(ev.at(0).kind, Event::Paddle) << offset;
        EXPECT_NEAR(std::atan2(g.ball().vy, g.ball().vx) * 180 / M_PI, angle, 1e-9) << offset;
    }
    // Just beyond the end it goes by; off the court's edge it is lost and the next rests on
    // the paddle.
    g.place(500, {kPaddleX + kPaddleW + kBallR + 3, 589, -8, 0});
    std::vector<Event> ev;
    for (int t = 0; t < 20 && ev.empty(); ++t) ev = g.tick({});
    ASSERT_EQ(ev.at(0).kind, Event::Missed);
    EXPECT_EQ(std::tuple(g.ballsLeft(), g.phase(), g.ball().x, g.ball().vx, g.ball().vy),
              std::tuple(2, Phase::Serve, 77.0, 0.0, 0.0));
}

TEST(BreakThruCourt, FencesTheBackWallAndBricksTurnTheBall) {
    auto [s, rng, g] = Begun(ListOf({"ox"}, 2), 0.5);
    g.tick({0, true});
    EXPECT_NEAR(std::atan2(g.ball().vy, g.ball().vx) * 180 / M_PI, -25, 1e-9);  // from the middle
    // The fences at 210 and 890 and the back wall at 1584; a brick met from below turns the ball
    // down again, near its corners too; met on its face near the top, back to the paddle; met from
    // above, even slowly, up again.
    const Brick& b = g.bricks().back();  // a decoy
    for (auto [kind, x, y, vx, vy, wantVx, wantVy] :
         {std::tuple{Event::Wall, 400.0, 225.0, 4.0, -6.0, 4.0, 6.0},
          {Event::Wall, 400.0, 875.0, 4.0, 6.0, 4.0, -6.0},
          {Event::Wall, 1569.0, 240.0, 6.0, 4.0, -6.0, 4.0},
          {Event::Wrong, b.x() + 37, b.y() + 67, 2.0, -8.0, 2.0, 8.0},
          {Event::Wrong, b.x() - 5, b.y() + 66, 2.0, -8.0, 2.0, 8.0},
          {Event::Wrong, b.x() + 72, b.y() + 67, -2.0, -8.0, -2.0, 8.0},
          {Event::Wrong, b.x() - 15, b.y() + 8, 8.0, 2.0, -8.0, 2.0},
          {Event::Wrong, b.x() + 37, b.y() - 13.2, 0.0, 0.5, 0.0, -0.5}}) {
        g.place(550, {x, y, vx, vy});
        const Event e = g.tick({}).at(0);
        EXPECT_EQ(e.kind, kind) << x;
        EXPECT_TRUE(kind != Event::Wall || e.brick == -1) << x;
        EXPECT_EQ(std::pair(g.ball().vx, g.ball().vy), std::pair(wantVx, wantVy)) << x;
    }
}

// Marks in a word are no bricks: they count as spelled from the start, the first one too.
TEST(BreakThruBricks, MarksInTheWordAreSpelledAlready) {
    auto [s, rng, g] = Begun(ListOf({"'o-x"}, 1), 0.0);
    EXPECT_EQ(std::tuple(g.done(), g.nextPos()), std::tuple(std::vector<bool>{1, 0, 1, 0}, 1));
}

TEST(BreakThruBricks, InOrderScoresByTheWordAndWrongCostsOnce) {
    auto [s, rng, g] = Begun(ListOf({"all", "owl", "bee"}, 3), 0.0);
    ASSERT_EQ(s.TheWord, "all");
    g.tick({0, true});
    // An L before the A: it glows red and stays, -5 never below nothing.
    const int l = Find(g, 'L');
    EXPECT_EQ(Strike(g, l).at(0).points, 0);
    EXPECT_EQ(std::tuple(g.bricks()[l].broken, g.bricks()[l].flash, g.score()),
              std::tuple(false, 30, 0));
    EXPECT_EQ(Strike(g, Find(g, 'A')).at(0).kind, Event::Broke);
    EXPECT_EQ(std::pair(g.score(), g.nextPos()), std::pair(10, 1));
    // A decoy: -5; again while it glows, nothing more; again once it has faded, -5.
    const int d = Find(g, 'B', true);
    EXPECT_EQ(Strike(g, d).at(0).points, -5);
    EXPECT_EQ(Strike(g, d).at(0).points, 0);
    EXPECT_EQ(g.score(), 5);
    g.place(550, {600, 550, 0, 8});  // up and down the open court meanwhile
    for (int t = 0; t < 30; ++t) g.tick({});
    Strike(g, d);
    EXPECT_EQ(g.score(), 0);
    // Either L serves for either place.
    Strike(g, l);
    const auto ev = Strike(g, Find(g, 'L'));
    ASSERT_EQ(ev.size(), 2u);
    EXPECT_EQ(std::tuple(ev[1].kind, g.phase(), g.score()),
              std::tuple(Event::Spelled, Phase::Spelled, 20));
    EXPECT_EQ(g.tick({1, true}).size(), 0u);  // the ball waits for the next wall
    // The second word: a new wall, a ball 5% faster, +10 x 2 a letter.
    ASSERT_TRUE(g.nextWord(s, rng));
    g.go();
    g.tick({0, true});
    EXPECT_NEAR(std::hypot(g.ball().vx, g.ball().vy), 8.4, 1e-9);
}

TEST(BreakThruEnd, AllWordsWin) {
    auto [s, rng, g] = Begun(ListOf({"ox", "by", "we"}, 2), 0.0);
    g.tick({0, true});
    Spell(g);
    ASSERT_TRUE(g.nextWord(s, rng));
    g.go();
    g.tick({0, true});
    const auto ev = Spell(g);
    ASSERT_FALSE(ev.empty());
    EXPECT_EQ(std::tuple(ev.size(), ev.back().kind, g.phase(), g.score()),
              std::tuple(3u, Event::Won, Phase::Won, 20 + 40));
    EXPECT_FALSE(g.nextWord(s, rng));
}
