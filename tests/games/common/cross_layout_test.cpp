#include "games/common/cross_layout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/rng.h"

using namespace wm;
using namespace wm::cross;

namespace {

std::vector<std::string> list(std::vector<std::string> words) {
    words.insert(words.begin(), "");  // 1-based
    return words;
}

// The letters of row `row` from column 1 to `cols`, "." for a free cell.
std::string rowText(const CrossBoard& b, int row, int cols = 25) {
    std::string s;
    for (int c = 1; c <= cols; ++c) s += b.at(c, row) ? b.at(c, row) : '.';
    return s;
}
std::string colText(const CrossBoard& b, int col, int rows = 19) {
    std::string s;
    for (int r = 1; r <= rows; ++r) s += b.at(col, r) ? b.at(col, r) : '.';
    return s;
}

// A board holding one word down, as the first word stands.
CrossBoard boardWithDown(const std::string& word, int col, int row) {
    CrossBoard b;
    for (std::size_t i = 0; i < word.size(); ++i) b.CrossLetters[col][row + i] = word[i];
    b.CrossWordAt[col][row][kDown] = 1;
    return b;
}

}  // namespace

TEST(CrossLayout, FirstWordGoesDownCentredInOneOfTheFirstTenColumns) {
    // The board, the word, the column drawn, the row it starts on.
    const std::tuple<LayoutParams, std::string, int, int> cases[] = {
        {kCrosswordParams, "CAT", 7, 9},                 // Int((19 - 3) / 2) = 8
        {kCrosswordParams, "ABCD", 10, 8},               // Int(7.5) = 7
        {kCrosswordParams, std::string(19, 'Q'), 1, 1},  // a 19-letter word fills rows 1..19
        {kBlindTilesParams, "CAT", 4, 6},                // Int((14 - 3) / 2) = 5
        {kBlindTilesParams, std::string(14, 'Q'), 2, 1},
    };
    for (const auto& [params, word, col, firstRow] : cases) {
        SCOPED_TRACE(word);
        auto rng = ScriptedRng().pick(1, 1).pick(col, 10);
        const LayoutResult r = layOut(list({word}), 1, 1, params, rng);
        ASSERT_TRUE(r.ok);
        // Reseeded before the first draw.
        EXPECT_EQ(
            std::tuple(r.target, rng.randomizeCount, r.board.CrossWordAt[col][firstRow][kDown]),
            std::tuple(1, 1, 1));
        std::string expected(params.rows, '.');
        expected.replace(firstRow - 1, word.size(), word);
        EXPECT_EQ(colText(r.board, col, params.rows), expected);
        ASSERT_EQ(r.order.size(), 1u);
        EXPECT_EQ(std::tuple(r.order[0].direction, r.order[0].col, r.order[0].row),
                  std::tuple(kDown, col, firstRow));
    }
}

TEST(CrossLayout, FirstWordLongerThanTheBoardFailsTheAttempt) {
    ScriptedRng rng(0.99);  // always the last word: the 20-letter one
    const LayoutResult r = layOut(list({"CAT", std::string(20, 'Q')}), 2, 2, kCrosswordParams, rng);
    EXPECT_EQ(std::tuple(r.ok, r.message, r.attempts),
              std::tuple(false, "Crossword creation failed. Please try another word list.", 1));
}

TEST(CrossLayout, SecondWordCrossesTheFirstAtTheFirstSharedLetter) {
    ScriptedRng rng;
    // First word 1 "CAT" in column 5; then word 2 "HAT", scanned from column 1.
    rng.pick(1, 2).pick(5, 10).pick(2, 2).pick(1, 2);
    const LayoutResult r = layOut(list({"CAT", "HAT"}), 2, 2, kCrosswordParams, rng);
    ASSERT_TRUE(r.ok);
    EXPECT_EQ(rowText(r.board, 10), "...HAT...................");
    // Reseeded once an attempt, at the first word.
    EXPECT_EQ(std::tuple(r.board.CrossWordAt[4][10][kAcross], rng.randomizeCount),
              std::tuple(2, 1));
    ASSERT_EQ(r.order.size(), 2u);
    EXPECT_EQ(std::tuple(r.order[1].index, r.order[1].col), std::tuple(2, 4));

    // The scan reads the top row too: a first word of 19 letters starts there.
    auto top = ScriptedRng().pick(1, 2).pick(5, 10).pick(2, 2).pick(1, 2);
    const LayoutResult t1 =
        layOut(list({"ABCDEFGHIJKLMNOPQRS", "AZ"}), 2, 2, kCrosswordParams, top);
    ASSERT_TRUE(t1.ok);
    EXPECT_EQ(rowText(t1.board, 1), "....AZ...................");

    // Scanning from the far corner finds the last shared letter first: the T.
    auto back = ScriptedRng().pick(1, 2).pick(5, 10).pick(2, 2).pick(2, 2);
    const LayoutResult b = layOut(list({"CAT", "TOT"}), 2, 2, kCrosswordParams, back);
    ASSERT_TRUE(b.ok);
    EXPECT_EQ(rowText(b.board, 11), "....TOT..................");  // T on the crossing, k = 1

    // A third word goes down through the second, from the row of its own first letter.
    auto third = ScriptedRng().pick(1, 3).pick(5, 10).pick(2, 3).pick(1, 2).pick(3, 3).pick(1, 2);
    const LayoutResult t = layOut(list({"CAT", "HATBOX", "OBO"}), 3, 3, kCrosswordParams, third);
    ASSERT_TRUE(t.ok);
    EXPECT_EQ(rowText(t.board, 10), "...HATBOX................");
    EXPECT_EQ(colText(t.board, 7), "........OBO........");
    ASSERT_EQ(t.order.size(), 3u);
    EXPECT_EQ(std::tuple(t.order[2].direction, t.order[2].col, t.order[2].row),
              std::tuple(kDown, 7, 9));
}

TEST(CrossLayout, FitLimitsAreOneTighterThanTheBoard) {
    // Row of "A": crossword Int(18/2)+1 = 10, blind tiles Int(13/2)+1 = 7.
    // The case, the board, the column of a one-letter first word "A" in the middle row, the word,
    // its direction (0: not placed) and its first cell.
    const std::string b14(14, 'B');
    const std::tuple<const char*, LayoutParams, int, std::string, int, int, int> cases[] = {
        {"ends on column 24", kCrosswordParams, 10, "A" + b14, kAcross, 10, 10},
        {"would end on 25", kCrosswordParams, 10, "A" + b14 + "B", 0, 0, 0},
        {"starts on column 2", kCrosswordParams, 10, "BBBBBBBBA", kAcross, 2, 10},
        {"would start on 1", kCrosswordParams, 10, "BBBBBBBBBA", 0, 0, 0},
        // Column 1: no across word can cross it, down words still can.
        {"down to row 18", kCrosswordParams, 1, "ABBBBBBBB", kDown, 1, 10},
        {"down to row 19", kCrosswordParams, 1, "ABBBBBBBBB", 0, 0, 0},
        {"down from row 2", kCrosswordParams, 1, "BBBBBBBBA", kDown, 1, 2},
        {"down from row 1", kCrosswordParams, 1, "BBBBBBBBBA", 0, 0, 0},
        {"tiles end on 14", kBlindTilesParams, 10, "ABBBB", kAcross, 10, 7},
        {"tiles would end on 15: down", kBlindTilesParams, 10, "ABBBBB", kDown, 10, 7},
        {"tiles down to 13", kBlindTilesParams, 1, "ABBBBBB", kDown, 1, 7},
        {"tiles down to 14", kBlindTilesParams, 1, "ABBBBBBB", 0, 0, 0},
    };
    for (const auto& [name, params, col, word, wanted, startCol, startRow] : cases) {
        SCOPED_TRACE(name);
        const int row = params.rows == 19 ? 10 : 7;
        CrossBoard board = boardWithDown("A", col, row);
        const int k = static_cast<int>(word.find('A')) + 1;
        const bool across = fitAcross(board, word, 2, col, row, k, params);
        const bool down = !across && fitDown(board, word, 2, col, row, k, params);
        const int direction = across ? kAcross : down ? kDown : 0;
        EXPECT_EQ(direction, wanted);
        if (direction != 0)
            EXPECT_EQ(board.CrossWordAt[startCol][startRow][direction], 2);
        else
            EXPECT_EQ(board, boardWithDown("A", col, row));  // untouched
    }
    // Hence a word of 24 letters or more never crosses across, of 18 or more never down.
}

TEST(CrossLayout, NeighbourCapAndAgreementRules) {
    // "AB" down in column 5 (rows 9, 10) and "BC" across on row 10.
    CrossBoard base = boardWithDown("AB", 5, 9);
    ASSERT_TRUE(fitAcross(base, "BC", 2, 5, 10, 1, kCrosswordParams));
    ASSERT_EQ(rowText(base, 10), "....BC...................");

    // The case, the word, the cell it crosses at and its letter there, across, placed.
    const std::tuple<const char*, std::string, int, int, int, bool, bool> cases[] = {
        // The free cell (6, 9) has the C of "BC" below it.
        {"free cell beside a letter", "AD", 5, 9, 1, true, false},
        {"free cells clear", "DA", 5, 9, 2, true, true},
        // "AB" would be followed by "C"... the cell after the end must be free.
        {"cell after the end taken", "XB", 5, 10, 2, true, false},
        {"cell before the start taken", "CX", 6, 10, 1, true, false},
        {"cell after the end taken, down", "XA", 5, 9, 2, false, false},
        // Running through agreeing letters: "BCD" lays over "BC" and carries on.
        {"runs through agreeing letters", "BCD", 5, 10, 1, true, true},
        {"disagreeing letter", "BXD", 5, 10, 1, true, false},
        // The same, crossing at the word's end: the letters before it are read backwards.
        {"runs back through agreeing letters", "BCD", 7, 10, 3, true, true},
        {"disagreeing letter behind", "XCD", 7, 10, 3, true, false},
        {"case counts", "Bc", 5, 10, 1, true, false},
        // The same word laid wholly over its twin would have no cell of its own.
        {"twin laid over a word", "BC", 5, 10, 1, true, false},
        {"twin laid over, down", "AB", 5, 9, 1, false, false},
        // Down through "AB" and on: the caps and the agreement hold down as well.
        {"down through agreeing letters", "ABE", 5, 9, 1, false, true},
        {"cap above taken", "BE", 5, 10, 1, false, false},
        // Down onto the C of "BC" from above: the free cell (6, 9) has the A of "AB" beside it.
        {"free cell above beside a letter", "XC", 6, 10, 2, false, false},
    };
    for (const auto& [name, word, x, y, k, across, placed] : cases) {
        SCOPED_TRACE(name);
        CrossBoard board = base;
        EXPECT_EQ(across ? fitAcross(board, word, 3, x, y, k, kCrosswordParams)
                         : fitDown(board, word, 3, x, y, k, kCrosswordParams),
                  placed);
        EXPECT_TRUE(placed || board == base) << "a refused word changed the board";
    }

    CrossBoard through = base;
    ASSERT_TRUE(fitAcross(through, "BCD", 3, 5, 10, 1, kCrosswordParams));
    EXPECT_EQ(rowText(through, 10), "....BCD..................");
    EXPECT_EQ(through.CrossWordAt[5][10][kAcross], 3);  // the longer word takes the start cell
}

TEST(CrossLayout, TwoWordsSharingNoLetterFail) {
    // Crossword: the first failed attempt lowers the target to 1 and gives up.
    auto rng = ScriptedRng(0.75).pick(1, 2).pick(3, 10);  // after the first word, always word 2
    const LayoutResult r = layOut(list({"abc", "xyz"}), 2, 2, kCrosswordParams, rng);
    EXPECT_EQ(std::tuple(r.ok, r.message, r.attempts, r.target),
              std::tuple(false, "Crossword creation failed. Please try another word list.", 1, 1));
    // 2 draws for the first word, then 100 tries of a draw and a scan order.
    EXPECT_EQ(rng.draws, 2 + 100 * 2);

    // Blind tiles: a hundred failures are only counted, the 101st lowers the target to 2, and
    // two already fails, though two words might have fitted.
    ScriptedRng tiles(0.75);
    const LayoutResult t = layOut(list({"abc", "xyz", "abx"}), 3, 3, kBlindTilesParams, tiles);
    EXPECT_EQ(std::tuple(t.ok, t.attempts, t.restarts, t.target), std::tuple(false, 101, 101, 2));
}

TEST(CrossLayout, FailedAttemptsLowerTheTargetUntilTheWordsFit) {
    // Only "CAT" and "HAT" cross; "xyz" never does. Target 3: the first attempt places CAT
    // and HAT, fails on xyz, and the second attempt at 2 words succeeds.
    auto rng = ScriptedRng().pick(1, 3).pick(5, 10).pick(2, 3).pick(1, 2);
    for (int i = 0; i < 100; ++i) rng.pick(3, 3).pick(1, 2);
    rng.pick(2, 3).pick(3, 10).pick(2, 3).pick(1, 3).pick(1, 2);  // HAT first, then CAT
    const LayoutResult r = layOut(list({"CAT", "HAT", "xyz"}), 3, 3, kCrosswordParams, rng);
    ASSERT_TRUE(r.ok);
    EXPECT_EQ(std::tuple(r.target, r.attempts, rng.pending()), std::tuple(2, 2, 0u));
    // The first attempt's board is gone: HAT stands down in column 3, CAT across it.
    EXPECT_EQ(colText(r.board, 3), "........HAT........");
    EXPECT_EQ(rowText(r.board, 10), ".CAT.....................");
    EXPECT_EQ(colText(r.board, 5), "...................");
    EXPECT_EQ(std::tuple(r.board.CrossWordAt[3][9][kDown], r.board.CrossWordAt[2][10][kAcross]),
              std::tuple(2, 1));
    ASSERT_EQ(r.order.size(), 2u);
    EXPECT_EQ(std::tuple(r.order[0].index, r.order[1].index), std::tuple(2, 1));
}

TEST(CrossLayout, MoreWordsWantedThanTheListHoldsEndsWithoutHanging) {
    // A generator stuck on a placed word, and a target beyond the list: both end.
    ScriptedRng stuck(0.0);
    EXPECT_FALSE(layOut(list({"CAT", "HAT"}), 2, 2, kCrosswordParams, stuck).ok);
    EXPECT_EQ(stuck.draws, 2 + 1100);  // the first word, then 50 a word and 1000 more

    ScriptedRng none;
    const LayoutResult empty = layOut(list({}), 0, 2, kCrosswordParams, none);
    EXPECT_EQ(std::tuple(empty.ok, empty.message),
              std::tuple(false, "Crossword creation failed. Please try another word list."));
    EXPECT_FALSE(layOut(list({"CAT"}), 1, 0, kCrosswordParams, none).ok);
    // Two words wanted of a list of one: the second is not drawn for at all.
    ScriptedRng one;
    EXPECT_FALSE(layOut(list({"CAT"}), 1, 2, kCrosswordParams, one).ok);
    EXPECT_EQ(one.draws, 2);  // the first word and its column
    // A count past the entries held: those entries are no words, and nothing is read past them.
    ScriptedRng past(0.99);
    EXPECT_FALSE(layOut(list({"CAT", "HAT"}), 4, 2, kCrosswordParams, past).ok);
}
