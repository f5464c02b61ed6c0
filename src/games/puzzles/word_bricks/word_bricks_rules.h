// Word Bricks' rules: the words drawn and broken into bricks, the bricks tipped on the ground,
// the building lines that take them, the check of a full line, the score and the clock. Pure C++
// over wm_core; the screen drags, draws and sounds. Draws come in a fixed order (the words, then
// each word's split points, then the heap), so a scripted Rng reproduces a game exactly.
#pragma once

#include <string>
#include <vector>

namespace wm {

class Rng;
struct SharedState;

namespace word_bricks {

// The longest word a building line holds: seven bricks of two.
inline constexpr int kMaxLength = 14;
// A bound on the word draws, for lists whose words are mostly unusable.
inline constexpr int kMaxDraws = 20000;

inline constexpr char kTooFewWords[] =
    "There are not enough words of 14 letters or fewer on this list to play at this level. "
    "Please choose another list or go back and lower the difficulty level.";

struct Brick {
    std::string text;
    int line = -1;  // the building line it sits on; -1: on the ground
};

struct Line {
    int entry = 0;  // 1-based list entry
    std::string word;
    std::string clue;         // the meaning, or the word's length for a words-only list
    std::vector<int> bricks;  // left to right
    bool built = false;
};

struct Game {
    int level = 0;
    std::vector<Line> lines;
    std::vector<Brick> bricks;  // in the order they were tipped out
    int built = 0;
    int seconds = 0;
    double score = 0;
    bool ready() const { return !lines.empty(); }
    bool won() const { return ready() && built == int(lines.size()); }
};

// The word cut into bricks of two or three letters, left to right: each cut is drawn, two or
// three, while more than four letters are left; four left make two and two, three or fewer one
// brick.
std::vector<std::string> split(const std::string& word, Rng& rng);

// `level` different entries drawn, each a line; every word split in turn; then the heap shuffled.
// Blank words and words longer than kMaxLength are drawn again. When the draws run out the game
// has no lines.
Game deal(const SharedState& state, int level, Rng& rng);

// The clue of an entry: its meaning, or "7 letters" where the list has none.
std::string clue(const SharedState& state, int entry);

// Letters on a line so far.
int filled(const Game& game, int line);

enum class Drop { Refused, Moved, Placed, Built, Shaken, Won };
struct DropResult {
    Drop what = Drop::Refused;
    std::vector<int> shaken;  // the bricks a wrong line shook off
};

// Brick `brick` dropped on line `line` before its brick number `at` (at the end when out of
// range), or on the ground (`line` -1). A built line takes nothing and gives nothing back; a
// brick too long for the room a line has left is refused. A line filled up is checked.
DropResult drop(Game& game, int brick, int line, int at = -1);

// One second on the clock, until every word is built.
void tick(Game& game);

// Points for a word built, the loss for a wrong full line, and the bonus for the whole game.
double builtPoints(const std::string& word);
double shakePoints();
double finishBonus(int seconds, int level);

// The clock as the screen shows it: "m:ss".
std::string clockText(int seconds);

}  // namespace word_bricks
}  // namespace wm
