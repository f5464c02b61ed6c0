// Spell Crush's rules: four words dealt in a row, one of them misspelled; a click judges one;
// sixty seconds on the clock. Pure C++ over wm_core; the screen runs the safe's swing and fall
// and acts on what these report.
#pragma once

#include <array>
#include <string>

namespace wm {

class Rng;
struct SharedState;

namespace spellcrush {

inline constexpr int kWords = 4;
inline constexpr int kGameSeconds = 60;
// Redraws of one word number before the deal takes the first number not yet dealt; a list of
// four or more words never needs that many.
inline constexpr int kMaxRedraws = 1000;

inline constexpr char kDirections[] = "Directions: Click on the word that is misspelled.";
inline constexpr char kNoScore[] =
    "Hmmm... maybe a bit more practice is needed before you're ready for this game. Go and learn "
    "your vocab words, then come back and try again later...";
inline constexpr char kPlaced[] =
    "You won that game with a record score of {score}! Would you like to try again?";
inline constexpr char kNotPlaced[] =
    "Congratulations! Your score was {score}! Would you like to try again?";

// The screen-level variables of a game.
struct SpellCrushState {
    int SecondsLeft = kGameSeconds;
    int WrongWordPos = 0;                     // 1..4
    int ClickedWord = -1;                     // 0..3
    int DealTime = 0;                         // SecondsLeft when the four words were dealt
    std::array<int, kWords + 1> DealWords{};  // word numbers, 1-based like the design's table
    std::array<std::string, kWords> shown;    // the words as the labels show them
};

// New game: SecondsLeft 60, Score 0, a deal.
void newGame(SharedState& state, SpellCrushState& game, Rng& rng);

// Reseeds; WrongWordPos = Int(Rnd * 4 + 1); four word numbers Int(Rnd * WordCount + 1), each
// drawn again while it equals an earlier one; the word at WrongWordPos misspelled.
void deal(const SharedState& state, SpellCrushState& game, Rng& rng);

struct Verdict {
    bool right = false;
    long long points = 0;
};

// A click on word `index` (0..3). Right: points = Int(length * 500 / used), used being the
// seconds since the deal and at least 1, added to Score. Wrong costs nothing.
Verdict judge(SharedState& state, SpellCrushState& game, int index);

// Timer1: one second less. True when the time is up.
bool countSecond(SpellCrushState& game);

}  // namespace spellcrush
}  // namespace wm
