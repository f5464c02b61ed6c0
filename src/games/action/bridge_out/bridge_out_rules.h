// Bridge Out: a truck drives towards a bridge whose planks spell the word; about half of the
// letters are gaps. Letter planks float down the river, the missing letters and decoys, and
// the pupil drags them into the gaps before the truck gets there.
#pragma once

#include <string>
#include <vector>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::bridge_out {

constexpr int kMinLevel = 2, kMaxLevel = 10;
constexpr int kWordsToWin = 8;
constexpr int kTrucks = 3;
constexpr int kMaxPlanks = 16;   // the longest word the bridge carries, blanks included
constexpr int kWordDraws = 100;  // redraws of a used or unfit word before the next fit one

// The river, in its own units from the upstream bank (0) to the downstream bank.
constexpr double kRiverLength = 1000;
constexpr double kPlankLength = 60;       // a plank's length along the river
constexpr int kSpawnMs = 1200;            // a new plank enters the river this often
constexpr int kPrefillMs = 8 * kSpawnMs;  // the river already has planks when a word starts
constexpr double kRightShare = 0.5;       // of the new planks, about this share a missing letter

// How long the moments between words last.
constexpr int kReadyMs = 2000;  // the word's bridge shown, the truck waiting
constexpr int kCrossMs = 2600;  // the truck rolls across
constexpr int kStopMs = 3200;   // the truck at the edge, horn, the word shown

// The truck's speed in metres a second: 2 + level / 2 (3 at level 2, 7 at level 10).
double truckSpeed(int level);
// The road to the bridge in metres: 30 + 14 a gap, so that a long word has time to be built.
double roadLength(int gaps);
// A river lane's flow in units a second: the near lane (1) a little faster than the far (0).
double laneSpeed(int lane);
// About half of the letters are gaps, at least one.
int gapCount(int letters);
// The word fits the bridge: 1 to 16 planks, at least one of them a letter.
bool fitsBridge(const std::string& word);

enum class Phase { Ready, Driving, Crossing, Stopped, Won, Lost };
enum class Event { Go, Spawned, Stopped, NextWord, Won, Lost };
enum class Drop { Ignored, Right, Wrong, Missed };

struct Plank {
    int id = 0;
    std::string letter;  // one character, upper case
    int lane = 0;        // 0 the far lane, 1 the near one
    double x = 0;        // its middle, in river units
    bool held = false;   // in the pupil's hand: it does not float
};

// One game of eight words. The draws come in a fixed order, so a scripted generator pins them:
// start() reseeds and draws the word; each word then draws its gaps (one draw each, among the
// letters still whole, left to right) and fills the river (two draws a plank: share, letter).
class Game {
public:
    // A new game at the level in `s.Difficulty` (held to 2..10). False when no word of the list
    // fits the bridge.
    bool start(SharedState& s, Rng& rng);
    // Moves the game on by `ms`: the river flows, the truck drives, the moments between words
    // run out. What happened, in order.
    std::vector<Event> advance(SharedState& s, int ms, Rng& rng);
    // The pupil picks a plank out of the river; false when it cannot be taken now.
    bool take(int plankId);
    // The plank let go over gap `gap` (0-based position in the word; -1 over no gap). A missed
    // or wrong plank goes back into the river at `riverX`.
    Drop place(int plankId, int gap, double riverX);

    Phase phase() const { return phase_; }
    bool over() const { return phase_ == Phase::Won || phase_ == Phase::Lost; }
    bool canDrag() const { return phase_ == Phase::Ready || phase_ == Phase::Driving; }
    int level() const { return level_; }
    double score() const { return score_; }
    int trucksLeft() const { return trucks_; }
    int crossed() const { return crossed_; }
    const std::string& word() const { return word_; }
    bool isGap(int i) const { return i >= 0 && i < int(open_.size()) && open_[i]; }
    int gapsLeft() const;
    int gapsInWord() const { return gaps_; }
    double truck() const { return truck_; }  // metres driven
    double road() const { return road_; }    // metres from the start to the bridge
    int lastBonus() const { return lastBonus_; }
    const std::vector<Plank>& river() const { return river_; }
    const Plank* plank(int id) const;
    // The words the stopped trucks were waiting for, in order.
    const std::vector<std::string>& missed() const { return missed_; }

private:
    bool drawWord(SharedState& s, Rng& rng);
    void setUpWord(Rng& rng);
    void flow(int ms, Rng& rng, std::vector<Event>* events);
    void spawn(Rng& rng);
    std::vector<std::string> missingLetters() const;
    void nextWordOrEnd(SharedState& s, Rng& rng, std::vector<Event>& events);

    Phase phase_ = Phase::Ready;
    int level_ = kMinLevel;
    double score_ = 0;
    int trucks_ = kTrucks;
    int crossed_ = 0;
    std::string word_;
    std::vector<bool> open_;
    int gaps_ = 0;
    double truck_ = 0, road_ = 0;
    int phaseMs_ = 0;
    int spawnMs_ = 0;
    int spawned_ = 0;
    int nextId_ = 1;
    int lastBonus_ = 0;
    std::vector<Plank> river_;
    std::vector<std::string> missed_;
    std::vector<bool> used_;  // entries drawn this game, 1-based
    int usedCount_ = 0;
    int entry_ = 0;
};

// The loss box: the words the trucks were stopped at.
std::string lostText(const std::vector<std::string>& words);
// All eight across, but nothing to put on the table.
std::string noPointsText(double score);

}  // namespace wm::bridge_out
