// Code Breaker: up to five list words written in one secret code. Every plain letter stands for
// another letter, never itself; every accented letter is a picture of its own. The pupil gives
// each code symbol the letter it stands for, against the clock of the level.
#pragma once

#include <string>
#include <vector>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::code_breaker {

constexpr int kWordsInCode = 5;
// The whole code on one screen, every tile still a comfortable target at 1280x800.
constexpr int kMaxTiles = 60;
constexpr int kAccentPictures = 16;  // the pictures accented letters are written as
constexpr int kHintCost = 30;        // seconds
constexpr int kMinLevel = 1;
constexpr int kMaxLevel = 50;

constexpr const char* kNoWords =
    "The words on this vocabulary list cannot be written in code: a word needs at least one "
    "letter and no more than 60 characters. Please choose another list or another game.";

// The clock of the level: 330 - 6 x level seconds.
int secondsFor(int level);
// All symbols right: seconds left x level + 10 x letters.
int pointsFor(int secondsLeft, int level, int letters);
// One letter in capitals.
char fold(char c);
// "Time's up! The code was ..." with the words, and the offer of another go.
std::string timeUpText(const std::vector<std::string>& words);
// Seconds as the clock shows them: "4:05".
std::string clockText(int seconds);

struct Symbol {
    char plain = 0;    // the letter it stands for, in capitals
    char code = 0;     // the code letter shown ('A'..'Z'); 0 for an accented letter
    int picture = -1;  // an accented letter's picture, 0..kAccentPictures-1
    char guess = 0;    // the pupil's letter, in capitals; 0 while none
    bool hinted = false;
    bool right() const { return guess == plain; }
};

struct Tile {
    char shown = 0;   // the word's character as the list has it
    int symbol = -1;  // -1: a blank, hyphen, digit... that stands as it is
    int word = 0;
};

enum class Phase { Ready, Playing, Won, Lost };

// What a typed letter did.
enum class Typed {
    Ignored,  // not a letter, or nothing to type into
    Placed,   // the selected symbol took the letter
    Moved,    // the letter left another symbol for this one (movedFrom())
    Same,     // the symbol had that letter already
    Locked,   // the symbol was given by a hint and keeps it
    Taken,    // the letter belongs to a symbol given by a hint
    Filled,   // every symbol has a letter, but not every one is right
    Won,      // every symbol is right
};

// Where each tile stands: words flow along lines of `columns`, one column between words;
// a word longer than a line goes on over the next.
struct Place {
    int line = 0;
    int column = 0;
};
struct Layout {
    std::vector<Place> places;
    int lines = 0;
    int columns = 0;  // the widest line used
};
Layout layOut(const std::vector<std::string>& words, int columns);
// The line length that gives the largest tiles in `width` x `height`, a tile being `tall` times
// as high as it is wide (gaps included).
int bestColumns(const std::vector<std::string>& words, double width, double height, double tall);

class Game {
public:
    // A new game: reseed, the words, the code, the clock of the level. False when the list has
    // no word that can be written in code.
    bool start(SharedState& s, Rng& rng);
    // The clock starts.
    void begin();
    // One second of the clock; true when it runs out (the game is lost).
    bool tick();

    // The tile the keys type into (its symbol's copies fill in together).
    bool select(int tile);
    // The next (or previous) letter tile in reading order, round the end.
    bool step(int by);
    // The nearest letter tile on the line above (-1) or below (+1).
    bool stepLine(int by, const Layout& layout);
    Typed type(char letter);
    // The selected symbol's letter taken away.
    bool clear();
    // A symbol not yet right shows its letter, for 30 seconds of the clock: the symbol drawn, or
    // -1 when no hint can be had.
    int hint(Rng& rng);
    bool canHint() const;

    Phase phase() const { return phase_; }
    const std::vector<std::string>& words() const { return words_; }
    const std::vector<Tile>& tiles() const { return tiles_; }
    const std::vector<Symbol>& symbols() const { return symbols_; }
    int selected() const { return selected_; }
    int selectedSymbol() const;
    // The symbol that holds `letter` now, -1 when none.
    int holder(char letter) const;
    int movedFrom() const { return movedFrom_; }
    int letters() const;
    int secondsLeft() const { return secondsLeft_; }
    int level() const { return level_; }
    int points() const { return points_; }
    // The code letter of each plain letter A..Z (the whole key, used or not).
    const std::string& key() const { return key_; }

private:
    bool usable(const SharedState& s, int k, int tiles, int accents) const;
    int drawWord(const SharedState& s, Rng& rng, int tiles, int accents);
    void drawKey(Rng& rng);
    int symbolOf(char plain);
    void placed();
    void advance();

    std::vector<std::string> words_;
    std::vector<int> taken_;  // list entries in the code
    std::vector<Tile> tiles_;
    std::vector<Symbol> symbols_;
    std::string key_;
    Phase phase_ = Phase::Ready;
    int selected_ = -1;
    int movedFrom_ = -1;
    int secondsLeft_ = 0;
    int level_ = 1;
    int points_ = 0;
};

}  // namespace wm::code_breaker
