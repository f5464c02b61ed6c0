// Hang Glider: the glider rides along the left third of a side-scrolling sky while letters
// drift in from the right. Flying through the word's next letter adds it and a thermal lifts the
// glider; any other letter costs points and drops it. The glider sinks all the time: five words
// win, touching the ground loses.
//
// One world of 1600 x 900 units (y grows downwards), one step a tick, so a test can set the
// glider somewhere, step it and know where it is.
#pragma once

#include <string>
#include <vector>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::hang_glider {

constexpr int kMinLevel = 1, kMaxLevel = 10;
constexpr int kWordsToWin = 5;
constexpr int kMaxLength = 20;  // longer words do not fit the plate at the top; they are left out

// The world.
constexpr double kWorldW = 1600, kWorldH = 900;
constexpr double kGliderX = 533;  // the left third
constexpr double kSkyTop = 230;   // the highest the glider flies: under the word and the clue
constexpr double kGroundY = 820;  // the glider's keel touching this has landed
constexpr double kKeel = 30;      // centre to keel
constexpr double kStartY = 330;
constexpr double kSteer = 4.5;    // units a tick while Up or Down is held
constexpr double kSink = 0.3;     // units a tick, all the time
constexpr double kThermal = 150;  // a right letter lifts the glider and its ceiling this far
constexpr int kLiftTicks = 30;    // ...over this many ticks
constexpr double kDrop = 70;      // a wrong letter drops it this far at once
// Where letters fly: never so low that the glider meeting one is at the grass.
constexpr double kLetterLow = 250, kLetterHigh = 700;
constexpr double kSpacing = 230;   // between letters as they come in
constexpr double kReachX = 62, kReachY = 58;  // glider centre to a letter's centre for a touch
constexpr int kEveryFew = 3;  // at most this many decoys in a row before the next letter again

// Letters drift right to left this many units a tick: faster with the level.
double letterSpeed(int level);

struct Letter {
    char letter = 'A';  // as shown: a capital
    double x = 0, y = 0;
};

enum class Phase { Ready, Flying, Spelled, Won, Lost };

struct Event {
    enum Kind { Right, Wrong, Spelled, Won, Lost };
    Kind kind;
    char letter = 0;
    double x = 0, y = 0;  // where it happened
};

// What the keys say this tick: -1 Up, +1 Down, 0 neither or both.
struct Input {
    int steer = 0;
};

// One game of five words. Draws come in a fixed order so a scripted generator pins them:
// start() reseeds, each word draws its entry; each letter that comes in draws whether it is the
// next letter (Int(Rnd x 3 + 1) = 1, or forced after three decoys in a row), a decoy's letter,
// and its height.
class Game {
public:
    // A new game at the level in `s.Difficulty` (held to 1..10). False when the list has no
    // word that fits.
    bool start(SharedState& s, Rng& rng);
    // The next word after one spelled; false when there is none.
    bool nextWord(SharedState& s, Rng& rng);
    // From Ready to Flying: the letters come, the glider sinks.
    void go();
    std::vector<Event> tick(const Input& in, Rng& rng);

    Phase phase() const { return phase_; }
    bool over() const { return phase_ == Phase::Won || phase_ == Phase::Lost; }
    int level() const { return level_; }
    const std::string& word() const { return word_; }
    int wordNumber() const { return words_; }
    // Characters of the word already flown through (and the marks that stand from the start):
    // the word's first `done()` characters. The next letter is word()[done()].
    int done() const { return done_; }
    const std::vector<Letter>& letters() const { return letters_; }
    double y() const { return y_; }
    double ceiling() const { return ceiling_; }
    bool lifting() const { return lift_ > 0; }
    int score() const { return score_; }
    // How far the scenery has scrolled: letters' speed x ticks in flight.
    double scroll() const { return scroll_; }

    // For tests and the benchmark: the glider at `y`, and a letter put in the sky.
    void placeGlider(double y) { y_ = y; }
    void addLetter(char letter, double x, double y) { letters_.push_back({letter, x, y}); }

private:
    bool drawWord(SharedState& s, Rng& rng);
    void skipMarks();
    void spawn(Rng& rng);
    void touch(std::size_t i, std::vector<Event>& ev);

    Phase phase_ = Phase::Ready;
    int level_ = kMinLevel;
    std::string word_;
    int done_ = 0;
    int words_ = 0;
    std::vector<int> drawn_;
    std::vector<Letter> letters_;
    double y_ = kStartY;
    double ceiling_ = kSkyTop;
    int lift_ = 0;
    double untilNext_ = 0;  // distance to go before the next letter comes in
    int decoysInARow_ = 0;
    int score_ = 0;
    double scroll_ = 0;
};

// The loss box.
std::string lostText(const std::string& word);

}  // namespace wm::hang_glider
