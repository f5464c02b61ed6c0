// Cannon Shot: a cannon on a hill fires at letter balloons drifting across the sky. The pupil
// pops the hidden word's letters in order; five words win, running out of cannonballs loses.
//
// Everything happens in one world of 1600 x 900 units (y grows downwards), one physics step a
// tick, so a shot with a given angle and pull lands in the same place on any machine.
#pragma once

#include <string>
#include <vector>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::cannon_shot {

constexpr int kMinLevel = 2, kMaxLevel = 20;
constexpr int kWordsToWin = 5;
constexpr int kMaxLength = 14;   // longer words do not fit the blanks; they are left out
constexpr int kWordDraws = 100;  // redraws of an unusable word before the next free one

// The world.
constexpr double kWorldW = 1600, kWorldH = 900;
constexpr double kPivotX = 168, kPivotY = 700;  // the cannon's trunnion, on the hill top
constexpr double kBarrel = 92;                  // pivot to muzzle
constexpr double kGroundY = 820;                // a ball below this has landed
constexpr double kSkyTop = 170, kSkyBottom = 540;  // balloon altitudes
constexpr double kBalloonR = 40;                   // a balloon's reach for a hit
constexpr double kBallR = 11;
constexpr double kSpacing = 120;     // between balloons on their round
constexpr double kFirstX = 560;      // where the first balloon starts
constexpr double kGravity = 0.25;    // units per tick, per tick
constexpr double kMinSpeed = 7, kMaxSpeed = 20;
constexpr double kMinAngle = 10, kMaxAngle = 80, kStartAngle = 45;
constexpr double kTurnStep = 1;  // degrees a tick while Left or Right is held
constexpr int kChargeTicks = 50;  // empty to full; the bar then falls back and rises again
constexpr int kWindLevel = 8;

// Balloons drift right to left this many units a tick: faster with the level.
double balloonSpeed(int level);
// The strongest push the wind may have at `level`, units a tick per tick (0 below level 8).
double maxWind(int level);
// The power bar after `ticks` of holding Space: up to full and back, over and over.
double powerAfter(int ticks);
// Cannonballs for a word: 2 x length + 3.
int ballsFor(const std::string& word);
// Distance from `c` to the segment a..b, and how far along it the nearest point lies (0..1):
// a ball's path in one tick against a balloon.
double segmentDistance(double ax, double ay, double bx, double by, double cx, double cy,
                       double* along);

struct Balloon {
    char letter = 'A';   // as shown: a capital
    bool decoy = false;  // not a letter of the word
    double x = 0;        // centre
    double alt = 0;      // altitude before the bob
    double y = 0;        // centre now
    bool out = false;    // popped wrong: floats in again when it comes round
    bool gone = false;   // popped right: gone for good
    bool shown() const { return !out && !gone; }
};

struct Ball {
    bool flying = false;
    double x = 0, y = 0, vx = 0, vy = 0;
};

enum class Phase { Ready, Aiming, Spelled, Won, Lost };

struct Event {
    enum Kind { Fired, Right, Wrong, Landed, Spelled, Won, Lost, Back };
    Kind kind;
    int balloon = -1;  // Right, Wrong, Back: which balloon
    double x = 0, y = 0;  // where it happened
};

// What the keys say this tick.
struct Input {
    int turn = 0;        // +1 raises the barrel (Left), -1 lowers it (Right)
    bool space = false;  // held (or tapped since the last tick)
};

// One game of five words. Draws come in a fixed order so a scripted generator pins them:
// start() reseeds; each word draws its entry (again while the entry is used or too long), then
// the wind from level 8, the decoys' letters, the balloons' order, and each balloon's altitude.
// A balloon coming round again draws its new altitude.
class Game {
public:
    // A new game at the level in `s.Difficulty` (held to 2..20). False when the list has no
    // word that fits.
    bool start(SharedState& s, Rng& rng);
    // The next word after one spelled. False when there is none (cannot happen after start()).
    bool nextWord(SharedState& s, Rng& rng);
    // From Ready to Aiming: the pupil may shoot.
    void go();
    // One tick: the balloons drift, the barrel turns, the bar charges or the ball flies.
    // After the end only the balloons drift.
    std::vector<Event> tick(const Input& in, Rng& rng);

    Phase phase() const { return phase_; }
    bool over() const { return phase_ == Phase::Won || phase_ == Phase::Lost; }
    int level() const { return level_; }
    const std::string& word() const { return word_; }
    int wordNumber() const { return words_; }
    // The blanks: the word with '\0' where a letter is still to be shot.
    const std::string& blanks() const { return blanks_; }
    int nextPos() const { return next_; }  // position of the letter to shoot, -1 when spelled
    const std::vector<Balloon>& balloons() const { return balloons_; }
    const Ball& ball() const { return ball_; }
    double angle() const { return angle_; }
    bool charging() const { return charge_ > 0; }
    double power() const { return charge_ > 0 ? powerAfter(charge_) : 0; }
    double wind() const { return wind_; }
    int ballsLeft() const { return balls_; }
    int score() const { return score_; }
    long long ticks() const { return ticks_; }
    // Where the muzzle is at the present angle.
    double muzzleX() const;
    double muzzleY() const;

    // For tests: aims and fires at once with the bar at `power` (0..1).
    void fire(double angle, double power);

private:
    bool drawWord(SharedState& s, Rng& rng);
    void setUpWord(Rng& rng);
    void moveBalloons(Rng& rng, std::vector<Event>& ev);
    void flyBall(std::vector<Event>& ev);
    void pop(int i, std::vector<Event>& ev);

    Phase phase_ = Phase::Ready;
    int level_ = kMinLevel;
    std::string word_;
    std::string blanks_;
    int next_ = -1;
    int words_ = 0;
    std::vector<Balloon> balloons_;
    double loop_ = kWorldW;
    Ball ball_;
    double angle_ = kStartAngle;
    int charge_ = 0;
    double wind_ = 0;
    int balls_ = 0;
    int score_ = 0;
    long long ticks_ = 0;
    std::vector<bool> used_;  // entries drawn this game, 1-based
    std::vector<bool> fits_;  // entries short enough to play
    int lastEntry_ = 0;
};

// The loss box.
std::string lostText(const std::string& word);

}  // namespace wm::cannon_shot
