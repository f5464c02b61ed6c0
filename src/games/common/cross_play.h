// Playing a laid-out crossword board: selecting the word through a cell, typing into it,
// solving, giving the answer, the flash. The crossword and blind tiles share it; each adds its
// own scoring, sounds and texts. Pure C++; the screens show what the board holds.
#pragma once

#include <string>
#include <vector>

#include "games/common/cross_layout.h"

namespace wm {

struct SharedState;

namespace cross {

enum class TileColour : unsigned char { White, Pink, Yellow, Green };

inline constexpr int kBackspace = 8;

struct PlayBoard {
    int cols = 25;  // the row step
    int rows = 19;
    CrossBoard layout;          // for CrossWordAt
    std::vector<char> caption;  // 0: no caption
    std::vector<TileColour> colour;
    std::vector<bool> visible;  // the sole board test during play

    bool SelAcross = false;
    bool SelDown = false;
    int SelWord = 0;
    int SelStart = 0;
    int Cursor = 0;
    std::string Typed;
    bool helpShown = false;  // Command1 ("Give Answer") and Label3
    bool flashing = false;   // FlashTimer
    int FlashTicks = 0;

    int cells() const { return cols * rows; }
    bool selected() const { return SelAcross || SelDown; }
};

// Cells visible exactly where the layout holds a letter, all white and empty.
PlayBoard makePlayBoard(const CrossBoard& layout, int cols, int rows);

// Selects the word through cell i; a second click on a selected word's cell switches to the
// crossing word. Returns true when a word is selected; its clue is Meanings(SelWord).
bool clickCell(PlayBoard& b, int i);

enum class KeyResult { Ignored, Typed, Wrong, Solved };

// A key (its character code) while a word is selected. `word` is Words(SelWord).
KeyResult pressKey(PlayBoard& b, int key, const std::string& word);

// The word solved: the flash starts, the selection ends.
void endSelectionSolved(PlayBoard& b);

// Writes the word in capitals, turns it green and ends the selection. False with no selection.
bool giveAnswer(PlayBoard& b, const std::string& word);

// One FlashTimer tick; the flash ends after the tick in which FlashTicks passes 10.
void flashTick(PlayBoard& b);

inline constexpr char kLoseTitle[] = "You lose!";
inline constexpr char kLoseText[] =
    "Oops! You had a negative score! Maybe you will do better next time...";

// The end of a crossword-family game: a negative Score clears the win; a win makes Score whole.
// Returns whether the game is won.
bool endGame(SharedState& state, bool gameWon);

// "Score: {score}"
std::string scoreText(double score);

}  // namespace cross
}  // namespace wm
