// The crossword family's layout engine: lays words from the list out on a fixed board, each new
// word crossing one already placed. The crossword and blind tiles use the same placement rules
// with their own limits (LayoutParams); the result is the board as a value, for the screens to
// show. Draws happen in the designed order, so a scripted Rng reproduces a layout exactly.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace wm {

class Rng;

namespace cross {

// The shared tables are 0..25 by 0..19; column 0 and row 0 stay empty as a margin.
inline constexpr int kTableCols = 26;
inline constexpr int kTableRows = 20;
inline constexpr int kAcross = 1;
inline constexpr int kDown = 2;

inline constexpr char kFailedMessage[] = "Crossword creation failed. Please try another word list.";

struct LayoutParams {
    int cols = 25;            // columns scanned, and the across fit: x + after < cols
    int rows = 19;            // rows scanned, the down fit and the first word's centring
    int triesPerWord = 100;   // draws of a further word before the attempt fails
    int restartsAllowed = 0;  // failed attempts before each further failure lowers the target
    int lowestTarget = 2;     // the layout fails once the target falls below this
};

// The crossword: every failed attempt lowers the target; it fails below 2.
inline constexpr LayoutParams kCrosswordParams{25, 19, 100, 0, 2};
// Blind tiles: the target is lowered only after 100 failed attempts, and a target of 2 already
// fails, so a two-word puzzle is never tried. Both are deliberate.
inline constexpr LayoutParams kBlindTilesParams{15, 14, 1000, 100, 3};

struct CrossBoard {
    // CrossLetters(column, row): the letter as in the list (case kept), 0 for a free cell.
    std::array<std::array<char, kTableRows>, kTableCols> CrossLetters{};
    // CrossWordAt(column, row, direction): the word's index at its first cell, 1 across, 2 down.
    std::array<std::array<std::array<short, 3>, kTableRows>, kTableCols> CrossWordAt{};

    // Out-of-table cells read as free, so neighbour tests at the board's edge need no range check.
    char at(int col, int row) const {
        if (col < 0 || row < 0 || col >= kTableCols || row >= kTableRows) return 0;
        return CrossLetters[col][row];
    }
    short wordAt(int col, int row, int direction) const {
        if (col < 0 || row < 0 || col >= kTableCols || row >= kTableRows) return 0;
        return CrossWordAt[col][row][direction];
    }
    bool operator==(const CrossBoard&) const = default;
};

struct PlacedWord {
    int index = 0;      // in Words
    int direction = 0;  // kAcross or kDown
    int col = 0;        // first cell, 1-based
    int row = 0;
};

struct LayoutResult {
    bool ok = false;
    std::string message;  // kFailedMessage when !ok
    CrossBoard board;
    std::vector<PlacedWord> order;  // the words in the order they were placed (PlaceWord)
    int target = 0;                 // words placed (TargetWords after success)
    int attempts = 0;               // attempts made, the successful one included
    int restarts = 0;               // failed attempts
};

// Tries to place the word (index in Words) with its letter k on the letter at (x, y), across or
// down; on success writes its letters and its CrossWordAt entry.
bool fitAcross(CrossBoard& board, const std::string& text, int index, int x, int y, int k,
               const LayoutParams& params);
bool fitDown(CrossBoard& board, const std::string& text, int index, int x, int y, int k,
             const LayoutParams& params);

// Lays out `target` words (or fewer, as attempts fail) from words[1..wordCount]. `words` is
// 1-based: words[0] is not used.
LayoutResult layOut(const std::vector<std::string>& words, int wordCount, int target,
                    const LayoutParams& params, Rng& rng);

}  // namespace cross
}  // namespace wm
