// Froggy's rules: the level and stone tables, the key lock, hops against stones and edges, the
// answer row, cars and logs on lanes written as text, the bonus and the score.
#include <gtest/gtest.h>

#include "games/action/froggy/froggy_rules.h"
#include "word_lists.h"

using namespace wm;
using namespace wm::froggy;

namespace {

Board Lay(int difficulty) {
    Board b;
    lay(b, 1280, 800, difficulty);  // rows of 57 pixels, columns of 64
    return b;
}

}  // namespace

TEST(FroggyLevels, TableByDifficulty) {
    const std::tuple<int, std::string, int, int, int> table[] = {
        {1, "14", 1, 40, 640},    {2, "124", 1, 40, 640},    {3, "1245", 1, 30, 300},
        {4, "12345", 1, 30, 200}, {5, "123456", 1, 30, 200}, {6, "123456", 1, 20, 150},
        {7, "1245", 2, 15, 150},  {8, "123456", 2, 15, 100}, {9, "123456", 3, 1, 64}};
    for (const auto& [level, cars, step, interval, logWidth] : table) {
        const Level l = levelFor(level, 1280, 64);
        std::string active;
        for (int i = 1; i <= 6; ++i)
            if (l.active[i]) active += char('0' + i);
        EXPECT_EQ(std::tuple(active, l.carStep, l.logInterval, l.logWidth),
                  std::tuple(cars, step, interval, logWidth))
            << level;
    }
}

TEST(FroggyLevels, StonesLeaveTheDesignedGaps) {
    // The columns left open in rows 5 and 8, as letters a=1 .. t=20.
    const std::tuple<int, std::string, std::string> table[] = {
        {3, "abcdefghijklmnopqrst", "abcdefghijklmnopqrst"},
        {4, "bdfghijklmnoqs", "abcdefghijklmnopqrst"},
        {5, "bcefhilmoprs", "acegikmoqs"},
        {6, "aeim", "fjnr"},
        {7, "pqrst", "abcde"},
        {8, "aho", "dkr"},
        {9, "a", "t"}};
    for (const auto& [level, open5, open8] : table) {
        const Board b = Lay(level);
        std::string free5, free8;
        for (int c = 1; c <= 20; ++c) {
            if (!b.stone[c][5]) free5 += char('a' + c - 1);
            if (!b.stone[c][8]) free8 += char('a' + c - 1);
        }
        EXPECT_EQ(std::tuple(free5, free8), std::tuple(open5, open8)) << level;
    }
}

TEST(FroggyHops, KeyLockMakesOnePressOneHop) {
    Board b = Lay(1);
    EXPECT_EQ(keyDown(b, Key::Other).hop, Hop::NotArrow);
    EXPECT_FALSE(b.keyLock) << "a wrong key does not lock";
    EXPECT_EQ(keyDown(b, Key::Up).hop, Hop::Moved);
    EXPECT_EQ(keyDown(b, Key::Up).hop, Hop::Locked);  // the key held: its repeats do nothing
    EXPECT_EQ(b.frogRow, 2);
    keyUp(b);
    EXPECT_EQ(keyDown(b, Key::Up).hop, Hop::Moved);
    EXPECT_EQ(std::tuple(b.frogRow, b.frogY), std::tuple(3, 800 - 3 * 57));
}

TEST(FroggyHops, EdgesAndStones) {
    Board b = Lay(4);
    auto hop = [&](Key k) {
        keyUp(b);
        return keyDown(b, k).hop;
    };
    hop(Key::Down);
    EXPECT_EQ(b.frogRow, 1);
    for (int n = 0; n < 12; ++n) hop(Key::Left);
    EXPECT_EQ(std::tuple(b.frogCol, b.frogX), std::tuple(1, 0));
    for (int n = 0; n < 3; ++n) hop(Key::Up);
    EXPECT_EQ(b.frogRow, 4);
    EXPECT_EQ(hop(Key::Up), Hop::Blocked);  // a stone in row 5, column 1
    EXPECT_EQ(b.frogRow, 4);
    EXPECT_EQ(hop(Key::Right), Hop::Moved);
    EXPECT_EQ(hop(Key::Up), Hop::Moved);
    EXPECT_EQ(b.frogRow, 5);
    EXPECT_EQ(hop(Key::Right), Hop::Blocked);
    EXPECT_EQ(b.frogCol, 2) << "column 3 of row 5 is stone";
}

TEST(FroggyHops, AnswerRowDecidesBySlot) {
    const std::tuple<int, int, Outcome> cases[] = {
        {1, 1, Outcome::Won},        {1, 5, Outcome::Won},  {1, 6, Outcome::WrongWord},
        {2, 5, Outcome::WrongWord},  {2, 6, Outcome::Won},  {2, 10, Outcome::Won},
        {2, 11, Outcome::WrongWord}, {4, 20, Outcome::Won}, {4, 15, Outcome::WrongWord}};
    for (auto [slot, column, outcome] : cases) {
        Board b = Lay(1);
        b.correctSlot = slot;
        b.frogRow = 12;
        b.frogCol = column;
        EXPECT_EQ(keyDown(b, Key::Up).outcome, outcome) << slot << "/" << column;
        EXPECT_EQ(b.frogX, b.X(column)) << "row 13 is not river: the frog is put on its column";
    }
}

TEST(FroggyHops, RiverKeepsXUpButSnapsSideways) {
    Board b = Lay(1);
    b.frogRow = 9;
    b.frogX = 600;  // between columns, as after a ride
    keyDown(b, Key::Up);
    EXPECT_EQ(b.frogX, 600);
    keyUp(b);
    keyDown(b, Key::Left);
    EXPECT_EQ(b.frogX, b.X(b.frogCol));
}

TEST(FroggyCars, SquashAtTheEdgesOfTheCar) {
    // Right cars run on row 3; the frog stands at x 576 (column 10). A car starting at x hits
    // when 576 > x - 64 + 5 and 576 < x + 114 - 5, after its step of 1.
    for (auto [start, squashed] : std::vector<std::pair<int, bool>>{
             {465, false}, {466, false}, {467, true}, {633, true}, {634, false}, {300, false}}) {
        Board b = Lay(1);
        b.frogRow = 3;
        b.frogX = 576;
        b.rightX[1] = start;
        b.rightX[2] = 600;  // level 1 runs cars 1 and 4 only: car 2 stands still, harmless
        b.rightX[4] = -500;
        b.leftX[1] = b.leftX[4] = 5000;
        EXPECT_EQ(carTick(b), squashed ? Outcome::Squashed : Outcome::None) << start;
        EXPECT_EQ(b.rightX[2], 600);
    }
    Board b = Lay(1);
    b.rightX[1] = 1280;
    carTick(b);
    EXPECT_EQ(b.rightX[1], -114) << "a car past the right edge comes back from the left";
    b.leftX[1] = -113;
    carTick(b);
    EXPECT_EQ(b.leftX[1], -114);
    carTick(b);
    EXPECT_EQ(b.leftX[1], 1280);
}

TEST(FroggyLogs, RideDrownAndTheEdge) {
    Board b = Lay(1);  // logs of 640 pixels
    b.logX[2] = 0;
    b.logX[5] = 632;
    b.frogRow = 11;  // logs move by +2 here
    b.frogX = 610;
    b.frogCol = 7;
    bool rode = false;
    EXPECT_EQ(logTick(b, rode), Outcome::None);
    EXPECT_TRUE(rode);
    EXPECT_EQ(b.frogX, 612) << "two logs share the row; the frog rides once";
    EXPECT_EQ(b.frogCol, 7) << "no column starts within half a column of 612: it stays";
    b.frogX = 574;
    logTick(b, rode);
    EXPECT_EQ(std::tuple(b.frogX, b.frogCol), std::tuple(576, 10));
    // Carried to the right edge, the frog stays there until its log has gone.
    b.frogX = 1210;
    b.logX[5] = 1000;
    b.logX[2] = -600;
    Outcome out = Outcome::None;
    for (int ticks = 0; out == Outcome::None && ticks < 200; ++ticks) {
        out = logTick(b, rode);
        EXPECT_TRUE(out != Outcome::None || b.frogX <= 1280 - 64) << b.frogX;
    }
    EXPECT_EQ(std::tuple(out, b.frogX), std::tuple(Outcome::Drowned, 1216));
    // No log under the frog at all.
    Board water = Lay(1);
    water.frogRow = 12;
    water.frogX = 1000;
    water.logX[3] = 0;
    water.logX[6] = -700;
    EXPECT_EQ(logTick(water, rode), Outcome::Drowned);
    // A log leaves once all of it has passed an edge, and comes back at the other side.
    Board edges = Lay(1);
    edges.logX[3] = -637;  // by -3 a tick: to -640, still showing its last pixels
    edges.logX[6] = -638;
    edges.logX[2] = 1278;  // by +2
    edges.logX[5] = 1279;
    logTick(edges, rode);
    EXPECT_EQ(std::tuple(edges.logX[3], edges.logX[6], edges.logX[2], edges.logX[5]),
              std::tuple(-640, 1280, 1280, -640));
}

TEST(FroggyScore, BonusRunsDownAndIsReadAtTheWin) {
    Board b = Lay(3);
    EXPECT_EQ(b.bonus, 10000);
    for (int n = 0; n < 1000; ++n) bonusTick(b);
    EXPECT_EQ(b.bonus, 9000);
    ScriptedRng rng(0.5);
    EXPECT_DOUBLE_EQ(winScore(b, 3, rng), 90000 + 3000 + 20);
    b.bonus = 2;
    for (int n = 0; n < 3; ++n) bonusTick(b);
    EXPECT_EQ(b.bonus, 1);
}

TEST(FroggySetup, FourDifferentWordsOrARefusal) {
    SharedState s = test::PairsList(
        {{"ant", "m1"}, {"bee", "m2"}, {"cat", "m3"}, {"dog", "m4"}, {"ant", "m5"}}, 2);
    auto rng = ScriptedRng().pick(3, 5).pick(2, 4);  // the word "cat" in slot 2
    rng.pick(3, 5).pick(1, 5).pick(5, 5);            // cat again, ant, ant again (placed)
    rng.pick(2, 5).pick(4, 5);
    Board b;
    ASSERT_TRUE(setup(s, b, 1280, 800, rng).ready);
    EXPECT_EQ(std::tuple(s.TheWord, b.correctSlot, b.frogCol, b.logX[4], b.leftX[2]),
              std::tuple("cat", 2, 10, 640, 768));
    EXPECT_EQ(std::tuple(b.slotWords[1], b.slotWords[2], b.slotWords[3], b.slotWords[4]),
              std::tuple("ant", "cat", "bee", "dog"));

    s.Words = {"", "ant", "bee", "ant", "bee"};
    s.WordCount = 4;
    ScriptedRng loop(0.3);
    const SetupResult refused = setup(s, b, 1280, 800, loop);
    EXPECT_FALSE(refused.ready);
    EXPECT_EQ(refused.message,
              "This list needs at least four different words to play Froggy! Choose another "
              "list or another game.");
}

TEST(FroggyTexts, QuestionAndWrongWord) {
    EXPECT_EQ(question("a pet"), "Which word means \"a pet\"?");
    EXPECT_EQ(wrongWordText("cat"),
              "Oops! Wrong word! The correct word was \"cat\" Would you like to try again?");
}
