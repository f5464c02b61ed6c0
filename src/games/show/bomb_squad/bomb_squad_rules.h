// Bomb Squad's rules: the deal of wires, the clock, the cut and the score. Pure C++ over wm_core;
// the screen draws, sounds and asks. Random draws come in the designed order, so a scripted Rng
// reproduces a deal exactly.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace wm {

class Rng;
struct SharedState;

namespace bombsquad {

inline constexpr int kMaxWires = 8;

// A bound on draws the design leaves open-ended (a word not yet used, from a list too short for
// eight wires): a working generator never needs it, a short list then ends with a message.
inline constexpr int kMaxDraws = 20000;

inline constexpr char kTooFewWords[] =
    "There are not enough different words on this list for this many wires. Please choose a "
    "lower difficulty level or another list.";
inline constexpr char kLostInTime[] =
    "You did not get the bomb diffused in time! You lose. Would you like to give it another try?";
inline constexpr char kLostWrongWire[] =
    "You cut the wrong wire and set the bomb off! You lose. Would you like to give it another "
    "try?";

struct Level {
    int wires = 0;
    int seconds = 0;
};
// Difficulty 1..10 (clamped).
Level level(int difficulty);

struct Wire {
    int word = 0;        // 1-based entry whose word is on the left
    int definition = 0;  // 1-based entry whose definition is on the right
    bool bad = false;    // the definition is not the word's own: cut it
    bool cut = false;
    bool smallFont = false;  // definition over 50 characters
};

struct Deal {
    bool ready = false;  // false: the list cannot supply the wires
    std::vector<Wire> wires;
    int secondsLeft = 0;
};

// One wire is bad for certain, then each wire draws its word, a coin, and when bad another word
// for the definition. Draws without a free word end in a deal that is not ready.
Deal deal(const SharedState& state, int difficulty, Rng& rng);

enum class CutResult { Nothing, Snipped, Defused, Exploded };
// A press on wire `index` (0-based; -1 for none).
CutResult cut(Deal& deal, int index);
bool allBadCut(const Deal& deal);

// One second off the clock; true when it reached 0.
bool tick(Deal& deal);

// Score of a defused bomb: Int(Score + (500 + SecondsLeft + Int(Rnd * Difficulty + 1)) *
// Difficulty).
double winScore(double score, int secondsLeft, int difficulty, Rng& rng);

// The loser's question: the clock or the wire.
const char* lostText(int secondsLeft);

// Screen placement of the bomb movie while it shakes: Int(Rnd * (span - size) + 1).
int shakeSpot(int span, int size, Rng& rng);

}  // namespace bombsquad
}  // namespace wm
