// The crossword's rules: a round on the shared layout engine and board, the clue of the selected
// word, random scoring, Give Answer with its key guard. Pure C++; the screen shows the board,
// plays the sounds (dkbell on a solved word, gbell on Give Answer) and the music.
#pragma once

#include <string>

#include "games/common/cross_play.h"

namespace wm {

class Rng;
struct SharedState;

namespace crossword {

inline constexpr char kClickPrompt[] = "Click a word in the puzzle to see the clue.";
inline constexpr char kWaitText[] = "Please Wait While The Puzzle Is Created...";
inline constexpr int kCols = 25;
inline constexpr int kRows = 19;

struct CrosswordState {
    cross::PlayBoard board;
    std::string clue;       // ClueLabel
    std::string scoreText;  // Label2; "Score: 0000" until the first change
    bool GameWon = false;
    bool KeyOnButton = false;
    bool MusicOpen = false;
};

struct RoundResult {
    bool ok = false;
    std::string message;  // the layout failed: show it and leave for the title
};

// A new round. The first round, opened from the options screen, keeps the Score it finds.
// Difficulty is lowered to WordCount when above it, and stays lowered.
RoundResult newRound(SharedState& state, CrosswordState& cw, bool firstRound, Rng& rng);

// Selects the word through cell i and shows its definition.
void clickCell(const SharedState& state, CrosswordState& cw, int i);

enum class Outcome { None, Typed, Wrong, Solved, GameEnds };

Outcome pressKey(SharedState& state, CrosswordState& cw, int key, Rng& rng);

// Give Answer reacts to the mouse only: a key on the focused button sets KeyOnButton, a
// mouse-down clears it, and a click with it set is ignored.
void buttonKeyDown(CrosswordState& cw);
void buttonMouseDown(CrosswordState& cw);
Outcome giveAnswer(SharedState& state, CrosswordState& cw, Rng& rng);

}  // namespace crossword
}  // namespace wm
