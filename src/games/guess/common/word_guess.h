// The round of the letter-guessing games: one hidden word, a box per letter, the letters tried,
// the stake, the hint and the whole-word guess. The pictures that follow a miss are each game's.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::guess {

struct Box {
    std::string letter;   // what the box shows; "" while it is still to be guessed
    bool visible = true;  // a blank in the word has no box to fill
};

struct GuessRound {
    std::string word;         // TheWord, as it stands in the list
    int PickedIndex = 0;      // index of the word in Words
    std::vector<Box> boxes;   // one per letter of the word
    std::string UsedLetters;  // each letter tried followed by one blank
    short Misses = 0;
};

// How many wrong guesses the picture takes at a difficulty: 14, 10 or 6.
int missesAllowed(int difficulty);

// Starts a round: reseed, pick the word (any word, the last one too), set the stake.
void startRound(SharedState& s, GuessRound& round, Rng& rng);

enum class KeyResult {
    Ignored,  // no key, a blank, an apostrophe
    Repeat,   // tried before, in either case: no penalty
    Hit,      // filled at least one box, word not complete
    Won,      // the last box was filled
    Miss,     // a wrong guess
};
// One character typed (or picked on the palette), a single Windows-1252 byte.
KeyResult pressKey(GuessRound& round, char key);

// True when no visible box is empty.
bool complete(const GuessRound& round);

// Adds one wrong guess (after the reseed the screen makes) and returns the new count.
int addMiss(GuessRound& round, Rng& rng);

// The hint's text, and the random part of the stake it costs (at most all that is left; at 0
// it still takes 1, so the score can go below 0).
std::string hintText(const SharedState& s, const GuessRound& round);
void payForHint(SharedState& s, Rng& rng);

enum class SolveResult { Nothing, Won, Miss };
// The whole-word guess: case and surrounding blanks do not matter, blanks inside do.
SolveResult solve(const GuessRound& round, const std::optional<std::string>& answer);

}  // namespace wm::guess
