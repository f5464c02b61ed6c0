#include "games/show/tictactoe/tictactoe_rules.h"

#include <gtest/gtest.h>

#include "core/rng.h"
#include "list_of.h"

using namespace wm;
using namespace wm::tictactoe;

namespace {
// "X" the player, "O" the computer, "." free, row by row.
Board boardOf(const char* rows) {
    Board b;
    for (int i = 0; i < 9; ++i)
        b.set(i / 3 + 1, i % 3 + 1, rows[i] == 'X' ? Player : rows[i] == 'O' ? Computer : Empty);
    return b;
}
}  // namespace

TEST(TicTacToeOpponent, ChoosesSquareInThePreferredOrder) {
    using Case = std::tuple<const char*, Square, const char*>;  // the board, the choice, why
    for (const auto& [board, want, why] : std::vector<Case>{
             {".........", {2, 2}, "the centre first"},
             {"X........", {2, 2}, "the centre even before a block"},
             {"OO.XXO.X.", {1, 3}, "completes its own row before blocking"},
             {"XX..O....", {1, 3}, "blocks two player marks"},
             {"X.X.O....", {1, 2}, "blocks with the gap in the middle"},
             {"X...O...X", {2, 3}, "builds on its row, rows walked first, last free square"},
             {"XO..X...O", {3, 2}, "builds on a begun line rather than choosing at random"},
         }) {
        ScriptedRng rng(0.0);
        EXPECT_EQ(computerChoice(boardOf(board), 4, rng), want) << why << " " << board;
        EXPECT_EQ(rng.draws, 0) << "no random draw needed: " << why;
    }
}

TEST(TicTacToeOpponent, RandomSquareOnlyWhenNoLineHelps) {
    // Centre held by the player, the computer's only mark is blocked everywhere.
    Board b = boardOf("OX.XX.OXO");  // row 2 col 3 blocks; take it first
    ScriptedRng rng;
    EXPECT_EQ(computerChoice(b, 3, rng), (Square{2, 3}));

    b = boardOf("XOXXO.OXO");  // every line is mixed: nothing to win, block or build
    ScriptedRng draws;
    draws.pick(1, 3).pick(1, 3).pick(2, 3).pick(3, 3);  // (1,1) taken: drawn again
    EXPECT_EQ(computerChoice(b, 3, draws), (Square{2, 3}));
    EXPECT_EQ(draws.draws, 4);
    // Draws stuck on a taken square: bounded, then the first free square from the top left.
    ScriptedRng stuck(0.0);
    EXPECT_EQ(randomFree(boardOf("X.XOXOXOX"), stuck), (Square{1, 2}));
    EXPECT_EQ(randomFree(boardOf("XOXOXO.O."), stuck), (Square{3, 1}));

    // Level 1, never offered, keeps its rule: random even with the centre free.
    ScriptedRng one;
    one.pick(3, 3).pick(3, 3);
    EXPECT_EQ(computerChoice(Board{}, 1, one), (Square{3, 3}));
}

TEST(TicTacToeOpponent, MissesOnceInDifficulty) {
    for (int level : {2, 6}) {
        ScriptedRng rng;
        rng.pick(1, level).pick(2, level).pick(level, level);
        for (bool hits : {false, true, true}) EXPECT_EQ(computerHits(level, rng), hits) << level;
    }
}

TEST(TicTacToeBoard, VerdictsAndWinningLineEnds) {
    using Case = std::tuple<const char*, int, bool, Square, Square>;  // board, winner, tie, line
    for (const auto& [board, winner, tie, from, to] : std::vector<Case>{
             {"XXX.O.O..", Player, false, {1, 1}, {1, 3}},
             {"X.O.XO..O", Computer, false, {1, 3}, {3, 3}},
             {"O.X.X.X.O", Player, false, {1, 3}, {3, 1}},
             {"XOXXOOOXX", Empty, true, {}, {}},
             {"XO.......", Empty, false, {}, {}},
         }) {
        Verdict v = checkBoard(boardOf(board));
        EXPECT_EQ(std::tuple(v.winner, v.tie, v.from, v.to), std::tuple(winner, tie, from, to))
            << board;
    }
}

TEST(TicTacToeQuestion, AsManyDistinctChoicesAsTheLevel) {
    for (int level = 2; level <= 6; ++level) {
        SharedState s = sixWords(level);
        ScriptedRng rng;
        rng.pick(3, 6).pick(1, level);
        // Wrong choices drawn: the word itself and repeats are drawn again.
        for (int k : {3, 1, 1, 2, 4, 5, 6}) rng.pick(k, 6);
        Question q = askQuestion(s, level, rng);
        EXPECT_EQ(std::tuple(q.word, s.TheWord, q.right), std::tuple(3, "cloud", 0));
        ASSERT_EQ(int(q.options.size()), level);
        EXPECT_EQ(q.options[0], 3);
        std::vector<int> seen(q.options);
        std::sort(seen.begin(), seen.end());
        EXPECT_EQ(std::unique(seen.begin(), seen.end()), seen.end()) << "level " << level;
    }
}

TEST(TicTacToeQuestion, AShortListRepeatsTheWordAfterItsBoundedDraws) {
    SharedState s = listOf({"cat", "dog"}, 3);
    ScriptedRng stuck(0.0);
    EXPECT_EQ(askQuestion(s, 3, stuck).options, (std::vector<int>{1, 1, 1}));
    EXPECT_EQ(stuck.draws, 2 + 2 * 10000);
}

TEST(TicTacToeScore, ClockOnlyAtTheTopLevelsAndAWinAddsToEarlierWins) {
    EXPECT_EQ(std::tuple(questionSeconds(4), questionSeconds(5), questionSeconds(6)),
              std::tuple(0, 10, 5));
    EXPECT_EQ(std::pair(playerMovesFirst(4), playerMovesFirst(5)), std::pair(true, false));
    ScriptedRng rng;
    rng.pick(1, 2).pick(2, 2).pick(6, 6);
    EXPECT_EQ(winScore(0, 2, rng), 1002);
    EXPECT_EQ(winScore(1002, 2, rng), 2006);
    EXPECT_EQ(winScore(0, 6, rng), 3036);
    EXPECT_EQ(missText("drum"),
              "Sorry! The word you should have chosen was \"drum\"...you did not win this "
              "square...");
}
