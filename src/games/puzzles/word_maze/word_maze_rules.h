// Word Maze's rules: the random walk that spells a chain of list words, the board around it, the
// clicks that retrace it, the free undo and the final score. Pure C++ over wm_core; the screen
// owns the widgets, timers, sounds and dialogs and acts on what these functions report. Draws
// happen in the designed order, so a scripted Rng reproduces a maze exactly.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace wm {

class Rng;
struct SharedState;

namespace word_maze {

inline constexpr int kMaxCols = 25;
inline constexpr int kMaxRows = 15;
inline constexpr int kTriesPerLetter = 20;
inline constexpr int kMaxBuilds = 1001;
inline constexpr int kMaxUndo = 400;

inline constexpr char kUnableMessage[] =
    "The program was unable to make this word maze with the options and word list that you "
    "chose. Please try again with different options or a different word list.";
inline constexpr char kFollowPathMessage[] =
    "You must follow the path of words to the end. The highlighted letters mark the paths you "
    "can choose.";
inline constexpr char kNotReadyMessage[] =
    "You must follow the path of words to the end. You're not ready to get there yet...";

enum class CellColour : unsigned char { White, Pink, Green };

struct UndoEntry {
    int wordNo = 0;
    int letterNo = 0;
    int cell = 0;
};

// The screen-level variables of one maze.
struct WordMazeState {
    std::array<std::array<char, 26>, 26> MazeLetters{};  // [column][row], 0 for a free cell
    int MazeWidth = 1;
    int MazeHeight = 1;
    int MazeWordCount = 0;
    std::vector<int> MazeWords;  // 1-based: MazeWords[0] is not used
    int WalkCol = 1;
    int WalkRow = 1;
    int EndCol = 1;
    int EndRow = 1;
    int EndCell = 0;
    int WordNo = 0;
    int LetterNo = 1;
    std::vector<UndoEntry> undo;  // UndoTop is undo.size() + 1
    int Seconds = 0;
    int builds = 0;  // attempts the last build took

    // The board shown: MazeWidth x MazeHeight cells, numbered (row-1)*MazeWidth + (column-1).
    std::vector<std::string> caption;
    std::vector<CellColour> colour;
    std::vector<bool> visible;
    std::string label1;  // the word or its definition
    std::string label3;  // "Words Left :{n}"
    std::string label5;  // the letters spelled so far
    bool undoEnabled = false;
};

// One attempt at the walk; false when a letter found no free step in its tries.
bool buildMaze(const SharedState& state, WordMazeState& maze, Rng& rng);

struct RoundStart {
    bool ok = false;
    std::string message;  // kUnableMessage when !ok
    bool playBell = false;
};

// Starts a round: builds (up to kMaxBuilds attempts), fills the board, starts the first word.
// Score is deliberately carried in and kept on restart.
RoundStart startRound(SharedState& state, WordMazeState& maze, Rng& rng);

enum class ClickResult { Ignored, OffPath, Wrong, NotReady, Moved, NextWord, MazeDone };

struct Click {
    ClickResult result = ClickResult::Ignored;
    std::string message;  // the box to show (OffPath, NotReady)
    int penalty = 0;      // Wrong: points taken
    std::string label6;   // Wrong: "-{points} Points..."
};

// The sounds of each result: Wrong "bonk", Moved and NotReady "boing", NextWord "dkbell".
Click clickCell(SharedState& state, WordMazeState& maze, int cell, Rng& rng);

void undoMove(SharedState& state, WordMazeState& maze);
void countSecond(WordMazeState& maze);

// The final score; true when it is a win (not below 0), Score then made whole.
bool finishMaze(SharedState& state, const WordMazeState& maze, Rng& rng);

}  // namespace word_maze
}  // namespace wm
