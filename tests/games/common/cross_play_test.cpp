#include "games/common/cross_play.h"

#include <gtest/gtest.h>

#include <string>

#include "core/shared_state.h"

using namespace wm;
using namespace wm::cross;

namespace {

// "CAT" (word 1) down at column 3, rows 2..4; "HAT" (word 2) across row 3, columns 2..4.
// Cells: C 27, A 52, T 77; H 51, A 52, T 53.
PlayBoard catHat() {
    CrossBoard b;
    for (int k = 0; k < 3; ++k) {
        b.CrossLetters[3][2 + k] = "CAT"[k];
        b.CrossLetters[2 + k][3] = "HAT"[k];
    }
    b.CrossWordAt[3][2][kDown] = 1;
    b.CrossWordAt[2][3][kAcross] = 2;
    return makePlayBoard(b, 25, 19);
}

// "OX" (word 1) across from column `col` of row `row`.
PlayBoard oxAcross(int col, int row) {
    CrossBoard b;
    b.CrossLetters[col][row] = 'O';
    b.CrossLetters[col + 1][row] = 'X';
    b.CrossWordAt[col][row][kAcross] = 1;
    return makePlayBoard(b, 25, 19);
}

std::string pinks(const PlayBoard& b) {
    std::string s;
    for (int i = 0; i < b.cells(); ++i)
        if (b.colour[i] == TileColour::Pink) s += std::to_string(i) + " ";
    return s;
}

void type(PlayBoard& b, const std::string& keys, const std::string& word) {
    for (char k : keys) pressKey(b, k, word);
}

}  // namespace

TEST(CrossPlay, ClicksOnACrossingCellAlternateAcrossAndDown) {
    PlayBoard b = catHat();
    ASSERT_TRUE(clickCell(b, 52));
    EXPECT_EQ(std::tuple(b.SelAcross, b.SelWord, b.SelStart, b.Cursor, pinks(b)),
              std::tuple(true, 2, 51, 51, "51 52 53 "));
    // A white cell picked has no letter yet.
    EXPECT_EQ(std::tuple(b.caption[51], b.helpShown), std::tuple(0, true));

    ASSERT_TRUE(clickCell(b, 52));
    EXPECT_EQ(std::tuple(b.SelDown, b.SelWord, b.SelStart, pinks(b)),
              std::tuple(true, 1, 27, "27 52 77 "));
    ASSERT_TRUE(clickCell(b, 52));
    EXPECT_EQ(std::tuple(b.SelAcross, b.SelWord), std::tuple(true, 2));
    ASSERT_TRUE(clickCell(b, 77));  // a cell of one word only
    EXPECT_EQ(std::tuple(b.SelDown, b.SelStart), std::tuple(true, 27));
    // Clicked again, it has no across word to turn to: nothing stays selected.
    EXPECT_FALSE(clickCell(b, 77));
    EXPECT_EQ(pinks(b), "");
}

TEST(CrossPlay, TypingSolvesCorrectsAndStopsAtTheWordsLength) {
    PlayBoard b = catHat();
    clickCell(b, 53);
    EXPECT_EQ(pressKey(b, 'h', "hat"), KeyResult::Typed);
    EXPECT_EQ(b.caption[51], 'H');
    EXPECT_EQ(pressKey(b, 'a', "hat"), KeyResult::Typed);
    EXPECT_EQ(pressKey(b, 'x', "hat"), KeyResult::Wrong);
    // The wrong answer shows by the pink going.
    EXPECT_EQ(std::tuple(pinks(b), b.caption[53]), std::tuple("", 'X'));
    EXPECT_EQ(pressKey(b, 'y', "hat"), KeyResult::Ignored);  // one past the word: nothing
    EXPECT_EQ(b.Cursor, 54);
    // Backspace drops a letter each; the extra key counted in Typed though the cursor stayed,
    // so from there the cursor runs one cell behind the letters.
    EXPECT_EQ(pressKey(b, kBackspace, "hat"), KeyResult::Typed);
    EXPECT_EQ(std::tuple(b.Cursor, b.caption[53]), std::tuple(53, 0));
    pressKey(b, kBackspace, "hat");
    EXPECT_EQ(std::tuple(b.Typed, b.caption[52]), std::tuple("HA", 0));
    EXPECT_EQ(pressKey(b, 't', "hat"), KeyResult::Solved);  // Typed is right...
    EXPECT_EQ(b.caption[52], 'T');                          // ...though shown one cell early

    PlayBoard fresh = catHat();
    clickCell(fresh, 51);
    type(fresh, "ha", "hat");
    EXPECT_EQ(pressKey(fresh, 't', "hat"), KeyResult::Solved);
    endSelectionSolved(fresh);
    EXPECT_EQ(std::tuple(fresh.selected(), fresh.helpShown), std::tuple(false, false));
    EXPECT_EQ(pressKey(fresh, 'x', "hat"), KeyResult::Ignored);  // nothing selected

    // A space adds nothing to Typed but moves the cursor.
    PlayBoard spaced = catHat();
    clickCell(spaced, 51);
    pressKey(spaced, ' ', "hat");
    EXPECT_EQ(std::tuple(spaced.Typed, spaced.Cursor), std::tuple("", 52));
}

TEST(CrossPlay, FlashThenSolvedCellsSteerTheNextClick) {
    PlayBoard b = catHat();
    clickCell(b, 51);
    type(b, "hat", "hat");
    endSelectionSolved(b);
    for (int t = 1; t <= 10; ++t) {
        flashTick(b);
        EXPECT_EQ(b.colour[51], t % 2 ? TileColour::Yellow : TileColour::Pink);
    }
    flashTick(b);
    EXPECT_FALSE(b.flashing);
    for (int i : {51, 52, 53}) EXPECT_EQ(b.colour[i], TileColour::Green);

    // The across word is solved: the crossing cell selects the down word.
    ASSERT_TRUE(clickCell(b, 52));
    EXPECT_TRUE(b.SelDown);
    type(b, "ca", "cat");
    EXPECT_EQ(b.caption[52], 'A');  // solved letters are never overwritten, but typed
    ASSERT_TRUE(giveAnswer(b, "cat"));
    EXPECT_EQ(std::tuple(b.caption[27], b.caption[77], b.colour[77]),
              std::tuple('C', 'T', TileColour::Green));
    EXPECT_EQ(b.colour[102], TileColour::White);  // the answer ends at its last letter
    EXPECT_FALSE(giveAnswer(b, "cat"));           // no selection

    // Solved both ways: a click does nothing at all.
    EXPECT_FALSE(clickCell(b, 52));
    EXPECT_FALSE(b.helpShown);
    // The next solved word flashes its full ten ticks again.
    endSelectionSolved(b);
    for (int t = 1; t <= 10; ++t) flashTick(b);
    EXPECT_TRUE(b.flashing);
}

TEST(CrossPlay, EdgeTestsAreKeptAsDesigned) {
    // A word down the last column, rows 18..19: cells 449 and 474.
    CrossBoard edge;
    edge.CrossLetters[25][18] = 'O';
    edge.CrossLetters[25][19] = 'X';
    edge.CrossWordAt[25][18][kDown] = 1;
    // A word down the first column, rows 1..2: cells 0 and 25.
    edge.CrossLetters[1][1] = 'A';
    edge.CrossLetters[1][2] = 'B';
    edge.CrossWordAt[1][1][kDown] = 2;
    PlayBoard b = makePlayBoard(edge, 25, 19);
    EXPECT_TRUE(b.visible[449] && b.visible[474] && b.visible[0] && !b.visible[473]);

    // The cell below 449 is the last one, which the tighter down test never looks at.
    EXPECT_FALSE(clickCell(b, 449));
    EXPECT_TRUE(clickCell(b, 474));
    EXPECT_EQ(std::tuple(b.SelStart, b.SelWord), std::tuple(449, 1));
    // An answer longer than the room left stops at the board's last row.
    PlayBoard longer = b;
    EXPECT_TRUE(giveAnswer(longer, "oxen"));
    EXPECT_EQ(longer.caption[474], 'X');
    // Cell 25 has no cell "above" (25 - 25 is not above 0), so its word cannot be found from it.
    EXPECT_TRUE(clickCell(b, 0));
    EXPECT_EQ(b.SelWord, 2);
    clickCell(b, 474);  // another word selected, so cell 25 is not pink
    EXPECT_FALSE(clickCell(b, 25));
    // Cell 1 has cell 0 on its left: a word across the top from the first cell is found from it.
    PlayBoard t = oxAcross(1, 1);
    EXPECT_TRUE(clickCell(t, 1));
    EXPECT_EQ(t.SelStart, 0);
    // A solved word across the last row: clicked again, there is no row below to look at.
    PlayBoard last = oxAcross(2, 19);
    ASSERT_TRUE(clickCell(last, 451));
    ASSERT_TRUE(giveAnswer(last, "ox"));
    EXPECT_FALSE(clickCell(last, 451));
    PlayBoard first = oxAcross(1, 1);
    EXPECT_TRUE(clickCell(first, 0));  // from its first cell, the word runs on to the right
    EXPECT_EQ(pinks(first), "0 1 ");
    EXPECT_FALSE(clickCell(t, -1));
    EXPECT_FALSE(clickCell(t, t.cells()));
}

TEST(CrossPlay, EndOfTheGame) {
    SharedState s;
    s.Score = 1234.75;
    EXPECT_TRUE(endGame(s, true));
    EXPECT_EQ(s.Score, 1234);
    s.Score = -0.5;
    EXPECT_FALSE(endGame(s, true));
    EXPECT_EQ(s.Score, -0.5);
    EXPECT_EQ(scoreText(-250), "Score: -250");
}

TEST(CrossPlay, ASolvedDownWordLeavesTheCrossingCellToTheAcrossWord) {
    PlayBoard b = catHat();
    ASSERT_TRUE(clickCell(b, 27));
    ASSERT_TRUE(giveAnswer(b, "cat"));
    ASSERT_TRUE(clickCell(b, 52));  // green, but its neighbours across are not
    EXPECT_EQ(std::tuple(b.SelAcross, b.SelDown), std::tuple(true, false));
}
