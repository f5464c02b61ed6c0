// Concentration's rules: the deal of word and definition cards, the two flips of a turn, the
// score and the clock. Pure C++ over wm_core; the screen draws, animates and sounds. Draws come
// in a fixed order (the words, then the shuffle), so a scripted Rng reproduces a deal exactly.
#pragma once

#include <string>
#include <vector>

namespace wm {

class Rng;
struct SharedState;

namespace concentration {

// A bound on the word draws: a list whose entries mostly repeat each other's words or
// definitions would otherwise be drawn from for ever.
inline constexpr int kMaxDraws = 20000;
// How long two cards that are not a pair stay up.
inline constexpr int kTurnBackMs = 1200;

inline constexpr char kTooFewWords[] =
    "There are not enough words with different definitions on this list to play at this level. "
    "Please choose another list or go back and lower the difficulty level.";

struct Card {
    int entry = 0;         // 1-based list entry
    bool meaning = false;  // shows the definition, else the word
    bool up = false;
    bool matched = false;
};

struct Game {
    int level = 0;
    std::vector<Card> cards;
    int first = -1;   // the card turned up first this turn
    int second = -1;  // the second one, while a wrong pair waits to turn back
    int pairsFound = 0;
    int seconds = 0;
    double score = 0;
    bool ready() const { return !cards.empty(); }
    bool won() const { return level > 0 && pairsFound == level; }
    bool missShowing() const { return second >= 0; }
};

// `level` entries drawn without repeats, each a word card and a definition card, shuffled.
// An entry whose word or definition another drawn entry already has (ignoring case and blanks
// at the ends), or whose definition is blank, is drawn again. When the draws run out the game
// has no cards.
Game deal(const SharedState& state, int level, Rng& rng);

enum class Flip { Nothing, First, Match, Miss, Won };
struct ClickResult {
    Flip flip = Flip::Nothing;
    std::vector<int> turnedDown;  // a wrong pair this click turned back at once
};
// A click on card `index` (-1: on the table between the cards).
ClickResult click(Game& game, int index);
// The wrong pair turns face down; the cards it turned (none when no pair was waiting).
std::vector<int> turnBack(Game& game);
// One second on the clock, until the last pair is found.
void tick(Game& game);

// Points for a pair, for a miss, and the bonus for finishing in `seconds`.
double matchPoints(int level);
double missPoints(int level);
double finishBonus(int seconds, int level);

// The clock as the screen shows it: "m:ss".
std::string clockText(int seconds);

// The table's grid for `cards` cards in a width x height area: the columns and rows that give
// the largest card of about playing-card shape (wider than tall, for the text).
struct Grid {
    int columns = 1;
    int rows = 1;
};
Grid grid(int cards, double width, double height);

}  // namespace concentration
}  // namespace wm
