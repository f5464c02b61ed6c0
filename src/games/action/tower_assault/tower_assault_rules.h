// Tower Assault: a knight at the foot of a castle wall catches the scroll whose word matches
// the definition shown at the top, while the guards on the battlements throw decoys too. Each
// right catch builds a rung of his ladder; ten rungs and he climbs to raise his flag. Catching a
// wrong scroll costs a shield; with all three gone the guards drive him back.
#pragma once

#include <string>
#include <vector>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::tower {

constexpr int kRungsToWin = 10;
constexpr int kShields = 3;
constexpr int kRungPoints = 50;   // a rung scores this many times the rungs built
constexpr int kWrongPoints = 25;  // a wrong scroll caught costs this
constexpr int kGuards = 5;        // guards along the battlements, each over his own spot

// The courtyard in its own units: x from the left of the wall (0) to its right (1000), y from
// the battlements (0) down to the ground (1000). One tick is one frame of the ticker.
constexpr int kTickMs = 16;
constexpr double kFieldWidth = 1000;
constexpr double kDropY = 120;   // a scroll leaves the guard's hand here
constexpr double kCatchY = 800;  // the knight's raised hands
constexpr double kGroundY = 1000;
constexpr double kKnightMin = 60, kKnightMax = 940;
constexpr double kKnightStep = 9;  // a tick, while Left or Right is held
constexpr double kReach = 90;      // a scroll over the knight's middle (half its width) is caught

// How long the moments between the scrolls last.
constexpr int kReadyMs = 2000;        // the first definition read before the guards throw
constexpr int kBuildMs = 1500;        // a rung hammered on, the next definition shown
constexpr int kFirstDropMs = 400;     // the first scroll of a definition
constexpr double kRightShare = 0.35;  // a drop is the right word about this often...
constexpr int kMostDecoysInARow = 2;  // ...and never after more decoys than this in a row

// Where guard `g` (1..5) stands.
double guardX(int g);
// Scrolls fall faster with each rung built: units a tick.
double fallSpeed(int rungs);
// A guard throws less often as the ladder grows: ms between scrolls.
int dropInterval(int rungs);

enum class Phase { Ready, Play, Built, Won, Lost };
enum class Event { Go, Thrown, Caught, Wrong, Landed, RightLanded, NextWord, Won, Lost };
enum class Start { Ok, NoDefinitions, TooFewWords };

struct Scroll {
    int id = 0;
    std::string word;
    bool right = false;
    int guard = 1;
    double x = 0, y = kDropY;
};

// One game. The draws come in a fixed order, so a scripted generator pins them: start()
// reseeds and draws the first word; each scroll thrown then draws its guard, whether it is the
// right word, and (for a decoy) its word; a rung built draws the next word.
class Game {
public:
    // A new game on the list in `s`; the word and its meaning go to TheWord and TheMeaning.
    Start start(SharedState& s, Rng& rng);
    // One frame: the knight steps by `dir` (-1 left, 0 still, +1 right), the scrolls fall and
    // the guards throw. What happened, in order.
    std::vector<Event> tick(SharedState& s, Rng& rng, int dir);

    Phase phase() const { return phase_; }
    bool over() const { return phase_ == Phase::Won || phase_ == Phase::Lost; }
    double score() const { return score_; }
    int rungs() const { return rungs_; }
    int shields() const { return shields_; }
    double knightX() const { return knight_; }
    const std::string& word() const { return word_; }
    const std::vector<Scroll>& scrolls() const { return scrolls_; }
    // The scroll the last Caught, Wrong, Landed or RightLanded was about.
    const Scroll& last() const { return last_; }
    int lastPoints() const { return lastPoints_; }

private:
    bool drawWord(SharedState& s, Rng& rng);
    void toss(Rng& rng);
    std::string decoy(Rng& rng) const;
    void play(SharedState& s, Rng& rng, std::vector<Event>& events);

    Phase phase_ = Phase::Ready;
    double score_ = 0;
    int rungs_ = 0;
    int shields_ = kShields;
    double knight_ = kFieldWidth / 2;
    std::string word_;
    std::vector<int> drawn_;          // entries drawn this game
    std::vector<std::string> words_;  // the list's words, 1-based, for the decoys
    std::vector<Scroll> scrolls_;
    Scroll last_;
    int lastPoints_ = 0;
    int phaseMs_ = 0;
    int nextDropMs_ = 0;
    int lastGuard_ = 0;
    int decoysInARow_ = 0;
    int nextId_ = 1;
};

// The loss box: the word the guards' last definition was about.
std::string lostText(const std::string& word);
extern const char* const kNoDefinitions;
extern const char* const kTooFewWords;

}  // namespace wm::tower
