// Word Search's rules: the puzzle builder with its growth rule, the marking of letters in order
// with its neighbour tests, the pick list, the score and the flash. Pure C++ over wm_core; the
// screen owns the widgets, timers, sounds and dialogs and acts on what these functions report.
// Draws happen in the designed order, so a scripted Rng reproduces a puzzle exactly.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace wm {

class Rng;
struct SharedState;

namespace word_search {

inline constexpr int kLayoutWidth = 20;  // LetterBox: 400 cells, 20 to a row
inline constexpr int kCells = 400;
inline constexpr int kMaxGrid = 21;  // LetterGrid is 21 by 21

inline constexpr char kUnableTitle[] = "Error!";
inline constexpr char kUnableMessage[] = "Unable to create this puzzle. Try using less words.";
// A list whose words are too long for a grid of 20 would otherwise be retried for ever.
inline constexpr int kMaxAttempts = 60;
inline constexpr char kTooLongMessage[] =
    "Unable to create this puzzle: some words on this list are too long for it. Please try "
    "another word list.";

enum class CellColour : unsigned char { White, Pink, Green, Blue };

// The screen-level variables of one puzzle.
struct WordSearchState {
    int GridSize = 0;
    bool NoDiagonals = false;
    bool clueIsDefinition = false;                                          // GameOptionOn
    std::array<std::array<char, kMaxGrid + 1>, kMaxGrid + 1> LetterGrid{};  // [x][y], 1-based
    std::vector<int> PickedWords;
    // Where each picked word was written, in the order of PickedWords: first cell (1-based
    // column, row) and direction (1 across, 2 down, 3 diagonal). For printing the answer key.
    struct Hidden {
        int x = 0, y = 0, direction = 0;
    };
    std::vector<Hidden> hidden;
    std::vector<std::string> WordList;    // words not yet found
    std::vector<std::string> AnswerList;  // their definitions, or the words again
    std::string cardText;                 // CardLabel
    std::string directions;               // Directlabel

    bool Started = false;
    int NextLetter = 1;
    int LastCell = -1;
    int TryCell = 0;
    int pressedCell = 0;  // the cell the drag began on
    bool Dragging = false;
    int DiagonalSteps = 0;
    bool clearEnabled = false;  // ClearButton

    int WordsLeft = 0;
    bool PuzzleDone = false;
    bool flashing = false;  // FlashTimer
    int FlashTicks = 0;
    bool scoreFlash = false;  // ScoreLabel in its flash colour
    short Seconds = 0;
    int attempts = 0;  // attempts the last build took
    std::array<CellColour, kCells> colour{};
};

// The letter shown in a cell of the 20-wide layout; empty for a cell off the puzzle.
std::string caption(const WordSearchState& ws, int cell);

struct BuildResult {
    bool ok = false;
    std::string title;
    std::string message;
};

// Generates the puzzle at ws.GridSize for ws.PickedWords' count, growing the grid after each
// failed attempt. PuzzleWordCount must be set.
BuildResult generatePuzzle(const SharedState& state, WordSearchState& ws, Rng& rng);

// Starts a round: the settings, the puzzle, the lists, the directions, the first word.
// Score is deliberately left as it stands: this game carries it in and a restart keeps it.
BuildResult startRound(SharedState& state, WordSearchState& ws, Rng& rng);

std::string directionsText(bool clueIsDefinition, bool noDiagonals);

// Shows line WordIndex: CardLabel, TheWord (capitals), TheMeaning; NextLetter 1.
void showWord(SharedState& state, WordSearchState& ws);

// Whether cell c may follow cell p in a marking.
bool isNeighbour(int c, int p);

enum class TryResult { Refused, EndDrag, Accepted, Found, LastFound };

// Tries a cell against the letter expected next.
TryResult tryCell(SharedState& state, WordSearchState& ws, int cell, Rng& rng);

// Mouse on the grid. Returns the result of the try made, if any (Refused when none).
TryResult mouseDown(SharedState& state, WordSearchState& ws, int cell, Rng& rng);
void mouseUp(WordSearchState& ws);
// x, y from the top-left of the cell pressed; w, h that cell's size.
TryResult mouseMove(SharedState& state, WordSearchState& ws, double x, double y, double w, double h,
                    Rng& rng);

void clearMarking(WordSearchState& ws);
void scrollTo(SharedState& state, WordSearchState& ws, int value);
// Hint: the text of the box; 5000 off Score.
std::string takeHint(SharedState& state);
void countSecond(WordSearchState& ws);

// One FlashTimer tick; true when the game ends after it.
bool flashTick(WordSearchState& ws);

std::string loseText(double score);
int fireworkCount(Rng& rng);

}  // namespace word_search
}  // namespace wm
