// Slot Machine: three reels, each a strip of up to six list words, the answer to the definition
// among decoys. A pull costs coins and sets the reels rolling; each reel is stopped on the word in
// its window. A reel that stops on the answer pays; all three on the answer in one pull hit the
// jackpot and bring the next definition, and until then every pull rolls all three again. Ten
// definitions win; the score is the coins left.
#pragma once

#include <string>
#include <vector>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::slot_machine {

constexpr int kReels = 3;
constexpr int kStripMax = 6;  // words on a reel's strip
constexpr int kStartCoins = 100;
constexpr int kPullCost = 5;
constexpr int kReelPays = 5;
constexpr int kDefinitions = 10;
constexpr int kMinLevel = 1;
constexpr int kMaxLevel = 20;
// A bound on every draw: a list of mostly blank or repeated entries would otherwise be drawn from
// for ever.
constexpr int kMaxDraws = 1000;

constexpr const char* kCannotPlay =
    "Slot Machine needs a list with at least two different words and a definition to play "
    "with. Please choose another list or another game.";
constexpr const char* kOutOfCoins = "You're out of coins!";

// How fast the reels roll: level + 4 words a second.
double wordsPerSecond(int level);
// All three reels on the answer: 20 x level coins.
int jackpotFor(int level);
// The loss box: the card's words, the word the definition was about, and the offer of another go.
std::string outOfCoinsText(const std::string& word);

struct Reel {
    std::vector<int> strip;  // list entries, top to bottom
    double pos = 0;          // words rolled past the window; the window shows the nearest
    bool spinning = false;
    bool right = false;  // stopped on the answer in this pull
    // The strip's place in the window now.
    int shown() const;
};

// Jackpot: the pull is paid and the next definition is due.
enum class Phase { Ready, Spinning, Jackpot, Won, Lost };

// What a press of STOP did.
enum class Stop {
    Ignored,  // the reel was not rolling
    Wrong,    // stopped on a decoy; other reels still roll
    Right,    // stopped on the answer and pays; other reels still roll
    PullOver,  // the last rolling reel stopped; the pupil may pull again
    Jackpot,   // all three show the answer: the jackpot, and the next definition is due
    Won,       // the tenth jackpot
    Broke,     // the pull is over and the coins cannot pay another
};

class Game {
public:
    // A new game: reseed, 100 coins, the first definition. False when no entry of the list has
    // both a word and a definition.
    bool start(SharedState& s, Rng& rng);
    // The next definition's answer and the three strips.
    void nextDefinition(SharedState& s, Rng& rng);
    // Pays for a pull and sets all three reels rolling. False when it cannot be pulled.
    bool pull();
    bool canPull() const { return phase_ == Phase::Ready && coins_ >= kPullCost; }
    // The rolling reels move on by `ms` of the clock.
    void spin(double ms);
    Stop stop(int reel);
    // The last stop's outcome, for the screen.
    bool rightLast() const { return rightLast_; }

    Phase phase() const { return phase_; }
    int level() const { return level_; }
    int coins() const { return coins_; }
    int answer() const { return answer_; }  // list entry
    int definition() const { return definition_; }  // 1-based, the one in hand
    int jackpots() const { return jackpots_; }
    const Reel& reel(int i) const { return reels_[i]; }
    int rolling() const;
    int rightNow() const;  // reels stopped on the answer in this pull

private:
    bool usableAnswer(const SharedState& s, int k) const;
    std::vector<int> stripFor(const SharedState& s, Rng& rng) const;

    Reel reels_[kReels];
    std::vector<int> used_;  // answers of this game
    Phase phase_ = Phase::Ready;
    int level_ = kMinLevel;
    int coins_ = 0;
    int answer_ = 0;
    int definition_ = 0;
    int jackpots_ = 0;
    bool rightLast_ = false;
};

}  // namespace wm::slot_machine
