// BreakThru's rules: the draws in their order, words that fit, the wall's slots, the paddle and
// the angles it gives, bricks broken in order and out of it, balls lost, and the ends.
#include <gtest/gtest.h>

#include <cctype>
#include <cmath>
#include <set>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/action/break_thru/break_thru_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::break_thru;
using wm::test::ListOf;

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

Game Serving(SharedState& s, Rng& rng) {
    Game g;
    EXPECT_TRUE(g.start(s, rng));
    g.go();
    return g;
}

// Breaks the word's letters in order; the events of the last break.
std::vector<Event> Spell(Game& g) {
    std::vector<Event> ev;
    while (g.nextPos() >= 0) {
        const char c = g.word()[g.nextPos()];
        ev = Strike(g, Find(g, char(std::toupper(static_cast<unsigned char>(c)))));
    }
    return ev;
}

}  // namespace

TEST(BreakThruNumbers, SpeedTextAndBricks) {
    EXPECT_DOUBLE_EQ(ballSpeed(1), 8);
    EXPECT_DOUBLE_EQ(ballSpeed(2), 8.4);
    EXPECT_DOUBLE_EQ(ballSpeed(3), 8.82);
    EXPECT_EQ(lostText("owl"), "Out of balls! The word was owl.");
    for (char c : std::string("aZ7\xE9\xC9\xDF\xFF")) EXPECT_TRUE(isBrick(c)) << c;
    for (char c : std::string(" -'.\xD7\xF7")) EXPECT_FALSE(isBrick(c)) << c;
}

TEST(BreakThruStart, DrawsWordDecoysAndSlotsInThatOrder) {
    SharedState s = ListOf({"seventeen-letters", "ox", "ice cream"}, 9);
    ScriptedRng rng(0.5);
    // The long word is drawn and left out; then four decoys from the 24 letters ox lacks, then
    // each brick's slot among the free ones: O the last of eight, X the first.
    rng.pick(1, 3).pick(2, 3).then(0.0).then(0.999).pick(2, 24).then(0.0).pick(8, 8).then(0.0);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    EXPECT_EQ(rng.randomizeCount, 1);
    EXPECT_EQ(s.TheWord, "ox");
    EXPECT_EQ(s.TheMeaning, "meaning of ox");
    std::string letters;
    for (const Brick& b : g.bricks()) letters += b.letter;
    EXPECT_EQ(letters, "OXAZBA");
    EXPECT_EQ(g.columns(), 1);
    EXPECT_EQ(g.bricks()[0].row, 7);
    EXPECT_EQ(g.bricks()[1].row, 0);
    EXPECT_EQ(g.bricks()[2].row, 4);  // the fifth of the six left: 1..6
    EXPECT_EQ(rng.draws, 2 + 4 + 6);
    EXPECT_EQ(g.phase(), Phase::Ready);
    EXPECT_EQ(g.ballsLeft(), 3);
    EXPECT_EQ(g.level(), 9);
    // Slots stand apart: no two bricks share one, and the ball fits between neighbours.
    SharedState big = ListOf({"abcdefghijklmnop"}, 2);
    ASSERT_TRUE(g.start(big, rng));
    EXPECT_EQ(g.bricks().size(), 48u);
    EXPECT_EQ(g.columns(), 6);
    std::set<std::pair<int, int>> slots;
    for (const Brick& b : g.bricks()) slots.insert({b.col, b.row});
    EXPECT_EQ(slots.size(), 48u);
    EXPECT_GT(kColStep - kBrickW, 2 * kBallR);
    EXPECT_GT(kRowStep - kBrickH, 2 * kBallR);
    // Blanks and hyphens are not bricks; they stand in the word from the start.
    SharedState marks = ListOf({"ice-cream"}, 2);
    ASSERT_TRUE(g.start(marks, rng));
    EXPECT_EQ(g.bricks().size(), 24u);
    EXPECT_EQ(g.columns(), 3);
    EXPECT_EQ(g.done(), (std::vector<bool>{0, 0, 0, 1, 0, 0, 0, 0, 0}));
}

TEST(BreakThruStart, LevelHeldAndListsThatCannotPlayRefused) {
    ScriptedRng rng(0.5);
    for (auto [given, held] : {std::pair{1, 2}, {2, 2}, {20, 20}, {25, 20}}) {
        SharedState s = ListOf({"cat"}, given);
        Game g;
        ASSERT_TRUE(g.start(s, rng));
        EXPECT_EQ(g.level(), held) << given;
    }
    SharedState fits = ListOf({"abcdefghijklmnop"}, 4);
    EXPECT_TRUE(Game().start(fits, rng));
    for (auto words : {std::vector<std::string>{"abcdefghijklmnopq"}, {"- '"},
                       std::vector<std::string>{}}) {
        SharedState s = ListOf(words, 4);
        EXPECT_FALSE(Game().start(s, rng));
    }
}

TEST(BreakThruPaddle, MovesOnTheKeysCarriesTheBallAndSetsTheAngle) {
    SharedState s = ListOf({"ox"}, 2);
    ScriptedRng rng(0.5);
    Game g;
    ASSERT_TRUE(g.start(s, rng));
    // Nothing moves before the pause is over.
    g.tick({1, true});
    EXPECT_EQ(g.paddleY(), 550);
    EXPECT_EQ(g.phase(), Phase::Ready);
    g.go();
    // 13 units a tick, held inside the court (210..890) by its half length of 75.
    for (auto [move, ticks, y] : {std::tuple{1, 10, 680.0}, {1, 100, 815.0}, {-1, 100, 285.0}}) {
        for (int t = 0; t < ticks; ++t) g.tick({move, false});
        EXPECT_EQ(g.paddleY(), y);
        EXPECT_EQ(g.ball().y, y);
    }
    // Served from the upper half: down and to the right at 25 degrees, at 8 units a tick.
    ASSERT_EQ(g.tick({0, true}).at(0).kind, Event::Served);
    EXPECT_EQ(g.phase(), Phase::Play);
    EXPECT_NEAR(std::atan2(g.ball().vy, g.ball().vx) * 180 / M_PI, 25, 1e-9);
    EXPECT_NEAR(std::hypot(g.ball().vx, g.ball().vy), 8, 1e-9);
    // Off the paddle: the angle grows with the distance from its middle, up to 60 degrees at
    // its ends (the ball's reach of 13 beyond them counts); always back to the right.
    for (auto [offset, angle] : {std::pair{0.0, 0.0}, {44.0, 30.0}, {-44.0, -30.0},
                                 {88.0, 60.0}, {-87.0, -60.0 * 87 / 88}}) {
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
    EXPECT_EQ(g.ballsLeft(), 2);
    EXPECT_EQ(g.phase(), Phase::Serve);
    EXPECT_EQ(g.ball().x, kPaddleX + kPaddleW + kBallR);
    // Served from the lower half: up at 25 degrees.
    for (int t = 0; t < 100; ++t) g.tick({1, false});
    g.tick({0, true});
    EXPECT_NEAR(std::atan2(g.ball().vy, g.ball().vx) * 180 / M_PI, -25, 1e-9);
}

TEST(BreakThruCourt, FencesAndTheBackWallTurnTheBall) {
    SharedState s = ListOf({"ox"}, 2);
    ScriptedRng rng(0.5);
    Game g = Serving(s, rng);
    g.tick({0, true});
    for (auto [x, y, vx, vy, wantVx, wantVy] :
         {std::tuple{400.0, 225.0, 4.0, -6.0, 4.0, 6.0}, {400.0, 875.0, 4.0, 6.0, 4.0, -6.0},
          {1569.0, 240.0, 6.0, 4.0, -6.0, 4.0}}) {
        g.place(550, {x, y, vx, vy});
        const auto ev = g.tick({});
        ASSERT_FALSE(ev.empty());
        EXPECT_EQ(ev[0].kind, Event::Wall);
        EXPECT_EQ(g.ball().vx, wantVx);
        EXPECT_EQ(g.ball().vy, wantVy);
    }
    // A brick met from below turns the ball down again; from the front, back to the paddle.
    const Brick& b = g.bricks().back();  // a decoy
    g.place(550, {b.x() + 37, b.y() + kBrickH + kBallR + 2, 0.0001, -8});
    EXPECT_EQ(g.tick({}).at(0).kind, Event::Wrong);
    EXPECT_GT(g.ball().vy, 0);
}

TEST(BreakThruBricks, InOrderScoresByTheWordAndWrongCostsOnce) {
    SharedState s = ListOf({"all", "owl", "bee"}, 3);
    ScriptedRng rng(0.0);
    Game g = Serving(s, rng);
    ASSERT_EQ(s.TheWord, "all");
    g.tick({0, true});
    // An L before the A: it glows red and stays, -5 never below nothing.
    const int l = Find(g, 'L');
    EXPECT_EQ(Strike(g, l).at(0).kind, Event::Wrong);
    EXPECT_FALSE(g.bricks()[l].broken);
    EXPECT_EQ(g.bricks()[l].flash, kFlashTicks);
    EXPECT_LT(g.ball().vx, 0);
    EXPECT_EQ(g.score(), 0);
    EXPECT_EQ(Strike(g, Find(g, 'A')).at(0).kind, Event::Broke);
    EXPECT_EQ(g.score(), 10);
    EXPECT_EQ(g.nextPos(), 1);
    // A decoy: -5; again while it glows, nothing more; again once it has faded, -5.
    const int d = Find(g, 'B', true) >= 0 ? Find(g, 'B', true) : Find(g, 'C', true);
    Strike(g, d);
    EXPECT_EQ(g.score(), 5);
    Strike(g, d);
    EXPECT_EQ(g.score(), 5);
    g.place(550, {600, 550, 0, 8});  // up and down the open court meanwhile
    for (int t = 0; t < kFlashTicks; ++t) g.tick({});
    EXPECT_EQ(g.bricks()[d].flash, 0);
    Strike(g, d);
    EXPECT_EQ(g.score(), 0);
    // Either L serves for either place.
    Strike(g, l);
    const auto ev = Strike(g, Find(g, 'L'));
    ASSERT_EQ(ev.size(), 2u);
    EXPECT_EQ(ev[1].kind, Event::Spelled);
    EXPECT_EQ(g.phase(), Phase::Spelled);
    EXPECT_EQ(g.score(), 20);
    EXPECT_EQ(g.tick({1, true}).size(), 0u);  // the ball waits for the next wall
    // The second word: a new wall, a ball 5% faster, +10 x 2 a letter.
    ASSERT_TRUE(g.nextWord(s, rng));
    EXPECT_EQ(g.wordNumber(), 2);
    EXPECT_EQ(g.phase(), Phase::Ready);
    EXPECT_EQ(g.bricks().size(), 9u);
    g.go();
    g.tick({0, true});
    EXPECT_NEAR(std::hypot(g.ball().vx, g.ball().vy), 8.4, 1e-9);
    Strike(g, Find(g, std::toupper(s.TheWord[0])));
    EXPECT_EQ(g.score(), 40);
}

TEST(BreakThruEnd, AllWordsWinThreeBallsLose) {
    SharedState s = ListOf({"ox", "by", "we"}, 2);
    ScriptedRng rng(0.0);
    Game g = Serving(s, rng);
    g.tick({0, true});
    Spell(g);
    ASSERT_TRUE(g.nextWord(s, rng));
    g.go();
    g.tick({0, true});
    const auto ev = Spell(g);
    ASSERT_EQ(ev.size(), 3u);
    EXPECT_EQ(ev[2].kind, Event::Won);
    EXPECT_EQ(g.phase(), Phase::Won);
    EXPECT_EQ(g.score(), 20 + 40);
    EXPECT_FALSE(g.nextWord(s, rng));
    // Three balls past the paddle: lost with the third, not before.
    g = Serving(s, rng);
    for (int b = 3; b >= 1; --b) {
        EXPECT_EQ(g.ballsLeft(), b);
        g.tick({0, true});
        g.place(g.paddleY(), {kPaddleX + 40, kCourtTop + 20, -8, 0});
        std::vector<Event> ev;
        for (int t = 0; t < 20 && ev.empty(); ++t) ev = g.tick({});
        EXPECT_EQ(ev.at(0).kind, Event::Missed);
        EXPECT_EQ(ev.size(), b == 1 ? 2u : 1u);
    }
    EXPECT_EQ(g.phase(), Phase::Lost);
    EXPECT_TRUE(g.over());
}
