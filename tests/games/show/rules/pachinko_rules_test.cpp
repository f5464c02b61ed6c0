#include "games/show/pachinko/pachinko_rules.h"

#include <gtest/gtest.h>

#include "core/rng.h"
#include "list_of.h"

using namespace wm;
using namespace wm::pachinko;

namespace {
// Falls until the first touch; returns the ticks taken.
int fallToFirstTouch(Disk& d, Rng& rng) {
    for (int t = 1; t < 500; ++t) {
        step(d, rng);
        if (d.touched) return t;
    }
    return -1;
}
}  // namespace

TEST(PachinkoFall, SpeedsUpToThePinRadiusThenStrikesTheFirstPin) {
    ScriptedRng rng;
    Disk d = dropDisk(10);  // dead over the first pin of the top row
    d.touched = true;       // a tick clear of the pins clears the touch
    std::vector<int> speeds;
    for (int i = 0; i < 6; ++i) {
        step(d, rng);
        speeds.push_back(d.dy);
    }
    EXPECT_EQ(speeds, (std::vector<int>{2, 3, 4, 5, 5, 5}));
    EXPECT_FALSE(d.touched);
    rng.pick(5, kDiskSize / 2);
    ASSERT_GT(fallToFirstTouch(d, rng), 0);
    // The first pin of a row always sends the disk right, an end pin's size: 5 + D / 2.
    EXPECT_EQ(d.dx, 25);
    EXPECT_EQ(d.dy, 3) << "struck near the centre: the speed is halved, rounded";
    EXPECT_EQ(d.y, pins()[0].y - kPinRadius - kDiskSize) << "rests on the pin";
}

TEST(PachinkoFall, MiddlePinsSendTheDiskAwayAndDeadCentreTossesACoin) {
    const int px = pins()[4].x;  // a middle pin of the top row
    // Where the disk drops off the pin, the coin Int(Rnd x 2 + 1) (1 sends it left), which way.
    const std::tuple<int, double, int> cases[] = {
        {-25, 0.0, -1}, {-15, 0.0, 1}, {-20, 0.25, -1}, {-20, 0.4, -1}, {-20, 0.75, 1}};
    for (auto [off, coin, sign] : cases) {
        const int x = px + off;
        // Nothing is drawn before the strike: the size, then the coin (dead centre only).
        ScriptedRng rng(0.0);
        if (off == -20) rng.then(0.0).then(coin);
        Disk d = dropDisk(x);
        ASSERT_GT(fallToFirstTouch(d, rng), 0);
        EXPECT_EQ(std::tuple(d.dx, d.dy), std::tuple(sign * 11, 3)) << x << " coin " << coin;
    }
}

TEST(PachinkoFall, WallsTurnTheDiskBack) {
    ScriptedRng rng;
    Disk d = dropDisk(0, -6);
    d.y = 20;
    step(d, rng);
    EXPECT_EQ(std::pair(d.x, d.dx), std::pair(0, 7));
    d = dropDisk(kBoardWidth - kDiskSize, 6);
    d.y = 20;
    step(d, rng);
    EXPECT_EQ(d.dx, -7);
}

TEST(PachinkoSlots, ValuesRichestAtTheEdgesTheDropZoneAndTheSlotUnderTheCentre) {
    ScriptedRng rng;
    rng.then(0.5);                                                 // base 15
    for (double v : {0.0, 0.99, 0.5, 0.1, 0.2, 0.3}) rng.then(v);  // pairs, then the middle
    auto v = scrambleValues(rng);
    EXPECT_EQ(v, (std::array<int, 10>{6000, 15 * 399, 15 * 250, 15 * 110, 15 * 21, 15 * 31,
                                      15 * 110, 15 * 250, 15 * 399, 6000}));
    // Above the pins, then among them, outside the walls, past the right wall.
    EXPECT_EQ(std::tuple(inDropZone(100, -40), inDropZone(100, 300), inDropZone(-30, -40),
                         inDropZone(kBoardWidth - kDiskSize + 1, -40)),
              std::tuple(true, false, false, false));
    EXPECT_EQ(kScoreStart, std::string("Score: 00000000"));  // before the first disk
    // After: no leading zeros.
    EXPECT_EQ(std::tuple(scoreLine(1234), scoreLine(15)), std::tuple("Score: 1234", "Score: 15"));
    // The disk scores in the slot under its centre.
    Disk d;
    for (const auto& [x, slot] :
         {std::pair{60 - 20, 1}, {60 - 21, 0}, {-30, 0}, {599, 9}, {540 - 20, 9}, {540 - 21, 8}}) {
        d.x = x;
        EXPECT_EQ(slotOf(d), slot) << x;
    }
}

TEST(PachinkoQuestions, WordsAreNotAskedAgainAndTheAnswersDiffer) {
    SharedState s = listOf({"ant", "bee", "cat", "dog", "elk"});
    std::vector<bool> used;
    ScriptedRng rng;
    // The word shown, cat, its answer second; the others drawn in turn, cat itself turned away.
    rng.pick(1, 2).pick(3, 5).pick(2, 5).pick(3, 5).pick(1, 5).pick(5, 5).pick(2, 5).pick(4, 5);
    const Question q = nextQuestion(s, used, rng);
    EXPECT_EQ(std::tuple(q.word, q.right, rng.draws), std::tuple(3, 1, 8));
    EXPECT_EQ(q.answers, (std::array<int, 5>{1, 3, 5, 2, 4}));
    rng.pick(1, 2).pick(3, 5).pick(4, 5);  // cat again is turned away for dog
    EXPECT_EQ(nextQuestion(s, used, rng).word, 4);
    // Every word asked, every answer taken: repeats after bounded draws, not a hang.
    SharedState one = listOf({"ant"});
    std::vector<bool> asked{false, true};
    ScriptedRng stuck(0.0);
    EXPECT_EQ(nextQuestion(one, asked, stuck).answers, (std::array<int, 5>{1, 1, 1, 1, 1}));
    EXPECT_EQ(stuck.draws, 1 + 20000 + 1 + 1 + 4 * 20000);
    EXPECT_EQ(tryingText(3), "Trying for disk 3 out of 5.");
    EXPECT_EQ(earnedText(2), "Let's play pachinko! You have earned 2 disks!");
}

TEST(PachinkoFall, EdgesOfTheDiskAndItsSidesMeetThePins) {
    // A disk is 600 / (10 + 2) - 2 x 5 = 40 pixels across.
    const Pin& p = pins()[4];
    // A pin under either edge of the disk is struck from above; it rolls away from the pin.
    for (const auto& [x, sign] : {std::pair{p.x, 1}, std::pair{p.x - 40, -1}}) {
        ScriptedRng rng(0.99);  // the largest middle size: Int(0.99 x 10 + 1) + 10
        Disk d = dropDisk(x);
        ASSERT_GT(fallToFirstTouch(d, rng), 0);
        EXPECT_EQ(d.y, p.y - 5 - 40) << x;
        EXPECT_EQ(d.dx, sign * 20) << x;
    }
    // The lower edge just reaching the pin's top is a touch already.
    ScriptedRng any(0.0);
    Disk top = dropDisk(p.x - 20);
    top.dy = 1;
    top.y = p.y - 5 - 40 - 1;
    step(top, any);
    EXPECT_TRUE(top.touched);
    // A pin touched on the side turns the disk back a little faster, by 2 at a row's last pin.
    const Pin* last = nullptr;
    for (const Pin& q : pins())
        if (q.row == p.row && q.last) last = &q;
    ASSERT_NE(last, nullptr);
    for (auto [pin, dx, want] : {std::tuple{&p, 3, -4}, {&p, -3, 4}, {last, 3, -5}}) {
        ScriptedRng rng;
        Disk d;
        d.dx = dx;
        d.dy = 1;
        // After this tick's move the disk's centre is level with the pin, 22 pixels off it.
        const int cx = dx > 0 ? pin->x - 22 : pin->x + 22;
        d.x = cx - 20 - dx;
        d.y = pin->y - 20 - 1;
        step(d, rng);
        EXPECT_EQ(std::tuple(d.touched, d.dx), std::tuple(true, want)) << pin->x << " " << dx;
    }
}
