// Mini Golf: putt the ball into the hole whose word fits the meaning, against the clock. The
// rules work in twips on a course of fixed size, so the ball's pace is the same on every display.
#pragma once

#include <array>
#include <string>

#include "core/rng.h"
#include "core/shared_state.h"

namespace wm::mini_golf {

constexpr int kFieldW = 15360;  // 1024 pixels
constexpr int kFieldH = 11520;  // 768 pixels
constexpr int kHoles = 5;
constexpr int kBlocks = 12;
constexpr int kDefTop = kFieldH / 10;
constexpr int kDefHeight = 900;
constexpr int kBallSize = 240;
constexpr int kGrab = 50;  // a swing starts this close to the ball
constexpr double kFriction = 0.02;
constexpr int kMaxSpeed = 1000;
constexpr int kSeconds = 90;

constexpr const char* kPrompt = "Hit the word that means: ";
constexpr const char* kOops =
    "Oops! You should have put the ball in this hole! (Click here to continue)";
constexpr const char* kTimeUp = "Time is up!";
constexpr const char* kNotSoGreat = "Not so great...";
constexpr const char* kNegative =
    "Oops! You scored {score}! Try to be more careful next time! Would you like to try again?";

struct Box {
    int left, top, right, bottom;
    int width() const { return right - left; }
    int height() const { return bottom - top; }
};

struct Level {
    int holes;
    std::array<bool, kBlocks + 1> blocks;  // 1-based
    int R;
};
Level LevelFor(int difficulty);

// What one tick of the ball did, for the screen's sounds and pictures.
struct Step {
    bool stopped = false;  // the ball came to rest
    bool wall = false;
    bool block = false;
    int hole = 0;  // 1..5: the ball fell in
    bool right = false;
};

class Course {
public:
    // Setup: score, clock, level, the first word, the holes and blocks.
    void setup(SharedState& s, Rng& rng);
    // The next word keeps score, clock and course.
    void nextWord(SharedState& s, Rng& rng);

    // A swing from the pointer at (x, y); refused (false) unless the ball rests near the pointer.
    bool canSwing(int x, int y) const;
    void swing(int x, int y);
    Step tick(SharedState& s, Rng& rng);
    // The clock's second; true when the time is up.
    bool second() { return --seconds_ <= 0; }

    const Box& box() const { return box_; }
    int R() const { return level_.R; }
    int B() const { return B_; }
    int activeHoles() const { return level_.holes; }
    bool blockActive(int i) const { return level_.blocks[i]; }
    int holeX(int i) const { return holeX_[i]; }
    int holeY(int i) const { return holeY_[i]; }
    int blockX(int i) const { return blockX_[i]; }
    int blockY(int i) const { return blockY_[i]; }
    int pattern() const { return pattern_; }
    const std::string& caption(int i) const { return caption_[i]; }  // 1-based
    int rightHole() const { return right_; }
    int strokes() const { return strokes_; }
    int seconds() const { return seconds_; }
    double vx() const { return vx_; }
    double vy() const { return vy_; }
    bool moving() const { return moving_; }
    bool waiting() const { return waiting_; }  // the wrong hole's label waits for a click
    double ballX() const { return bx_; }       // the ball's centre
    double ballY() const { return by_; }
    void placeBall(double x, double y) { bx_ = x, by_ = y; }
    void setVelocity(double vx, double vy) { vx_ = vx, vy_ = vy, moving_ = true; }

private:
    void layOutHoles();
    void layOutBlocks(Rng& rng);
    void ballHome();

    Box box_{};
    Level level_{};
    int B_ = 0;
    int pattern_ = 1;
    std::array<int, kHoles + 1> holeX_{}, holeY_{};
    std::array<int, kBlocks + 1> blockX_{}, blockY_{};
    std::array<std::string, kHoles + 1> caption_;
    int right_ = 1;
    int strokes_ = 0;
    int seconds_ = kSeconds;
    double vx_ = 0, vy_ = 0;
    double bx_ = 0, by_ = 0;
    bool moving_ = false;
    bool waiting_ = false;
};

}  // namespace wm::mini_golf
