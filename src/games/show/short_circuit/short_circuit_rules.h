// Short Circuit's rules: the word, the columns of letters, the clicks and the score. Pure C++;
// the screen draws the circuit and asks the questions.
#pragma once

#include <string>
#include <vector>

namespace wm {

class Rng;
struct SharedState;

namespace shortcircuit {

inline constexpr int kColumns = 18;
inline constexpr int kRows = 10;
inline constexpr int kMaxLetters = 10;

inline constexpr char kTooLong[] =
    "The words on this vocabulary list are too long for this game. Please choose another list "
    "or another game.";
inline constexpr char kWithMeaning[] =
    "To connect the circuit, click on the correct letter in each column to spell out the word "
    "that means:";
inline constexpr char kWithoutMeaning[] =
    "To connect the circuit, click on the correct letter in each column to spell out one of your "
    "vocabulary words...";

struct Circuit {
    bool ready = false;
    std::string word;                        // TheWord in capitals
    int rows = 0;                            // Difficulty rows in each column
    std::vector<int> rightRow;               // per column, 0-based
    std::vector<std::vector<char>> letters;  // letters[column][row]
    int column = 0;                          // ColumnNow, 0-based
    int halfSeconds = 0;
    bool robber = true;  // the surprise picture: robber or raccoon
};

// Draws a word of at most kMaxLetters (giving up after 2 * WordCount draws), then each column.
Circuit newCircuit(SharedState& state, int difficulty, Rng& rng);

std::string directions(const SharedState& state);

enum class Click { Ignored, Right, Done, Wrong };
// A click on (column, row), both 0-based.
Click click(Circuit& c, int column, int row);

// The score of a lit bulb, set into Score.
double winScore(const Circuit& c, int difficulty, bool meaningShown, Rng& rng);

std::string shortedText(const std::string& word);

}  // namespace shortcircuit
}  // namespace wm
