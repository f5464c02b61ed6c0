// Toad Race: the pupil's toad against three computer toads across twelve lily pads. A word
// typed right hops the pupil's toad one pad; each computer toad hops on its own clock.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::toad_race {

constexpr int kToads = 4;  // toad 0 is the pupil's, 1..3 the computer's
constexpr int kPads = 12;  // pads to the finish
constexpr int kMinLevel = 1, kMaxLevel = 10;
constexpr int kWordDraws = 100;  // redraws of a used word before the next free one is taken

// The computer toads' pace: one hop every 8000 - 650 x level ms (7350 at level 1, 1500 at 10).
int hopInterval(int level);
// One wait between two hops of a computer toad: the interval with a jitter of up to a fifth
// either way, from one draw `r` in [0, 1).
int hopWait(int level, double r);

enum class Phase { Ready, Racing, Won, Lost };
enum class Typed { Ignored, Wrong, Hop, Home };

struct Hop {
    int toad = 0;
    int pad = 0;       // where it lands
    long long at = 0;  // race clock, ms
};

// One race is one game. The draws come in a fixed order, so a scripted generator pins them:
// start() reseeds, draws the first word, then the first wait of toads 1, 2 and 3; each word
// typed right draws the next word; each computer hop draws that toad's next wait at once.
class Race {
public:
    // A new race at the level in `s.Difficulty` (held to 1..10). False when the list has no
    // word to play.
    bool start(SharedState& s, Rng& rng);
    // "Go!": the computer toads' clocks run from here.
    void go();
    // The pupil pressed Enter on `typed`. Case is ignored, accents count, blanks round the
    // word do not matter.
    Typed submit(SharedState& s, const std::string& typed, Rng& rng);
    // Moves the race clock on by `ms`: the computer hops due meanwhile, in the order they fall
    // due (ties: the lower toad first). The race ends at the first toad home.
    std::vector<Hop> advance(int ms, Rng& rng);

    Phase phase() const { return phase_; }
    bool over() const { return phase_ == Phase::Won || phase_ == Phase::Lost; }
    int level() const { return level_; }
    int pad(int toad) const { return pads_[toad]; }
    int winner() const { return winner_; }  // -1 while racing
    long long clock() const { return clock_; }
    long long nextHop(int toad) const { return next_[toad]; }
    int lettersRight() const { return letters_; }
    int wordIndex() const { return word_; }
    // The best computer toad's pad.
    int bestComputerPad() const;
    // (pads the best computer toad is behind x 100 + letters typed right x 5) x level.
    double score() const;

private:
    void drawWord(SharedState& s, Rng& rng);

    Phase phase_ = Phase::Ready;
    int level_ = kMinLevel;
    std::array<int, kToads> pads_{};
    std::array<long long, kToads> next_{};
    long long clock_ = 0;
    int winner_ = -1;
    int letters_ = 0;
    int word_ = 0;
    std::vector<bool> used_;  // entries drawn this race, 1-based
    int usedCount_ = 0;
};

// The loss box: which toad won, and the word in hand.
std::string lostText(const std::string& winnerName, const std::string& word);
// The toads' names on their lanes (toad 0..3).
const char* toadName(int toad);

}  // namespace wm::toad_race
