// BreakThru: a paddle at the left edge bounces a ball into a wall of letter bricks on the right.
// The pupil breaks the word's letters in order; every word spelled brings a new wall and a
// faster ball. All the words win; three balls lost, the game is lost.
//
// One world of 1600 x 900 units (y grows downwards), one step a tick, so a ball served from a
// given place goes the same way on any machine.
#pragma once

#include <string>
#include <vector>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::break_thru {

constexpr int kMinLevel = 2, kMaxLevel = 20;  // the words to spell
constexpr int kBalls = 3;
constexpr int kMaxLength = 16;  // longer words do not fit the top row; they are left out

// The world.
constexpr double kWorldW = 1600, kWorldH = 900;
constexpr double kCourtTop = 210, kCourtBottom = 890;  // the ball bounces off both
constexpr double kBackWall = 1584;                     // behind the bricks
constexpr double kPaddleX = 40, kPaddleW = 24, kPaddleLen = 150;
constexpr double kPaddleStep = 13;  // units a tick while Up or Down is held
constexpr double kBallR = 13;
constexpr double kBallSpeed = 8;    // units a tick for the first word
constexpr double kSpeedUp = 1.05;   // each word's ball is 5% faster
constexpr double kMaxBounce = 60;   // degrees, off the paddle's very end
constexpr double kServeAngle = 25;  // degrees, towards the court's middle
// The wall: slots in rows and columns, with channels between them wide enough for the ball,
// so every brick can be reached however the others stand.
constexpr int kRows = 8;
constexpr double kBrickW = 74, kBrickH = 52;
constexpr double kColStep = 108, kRowStep = 84;
constexpr double kWallRight = 1582;  // the wall stands against the back wall
constexpr int kFlashTicks = 30;      // a wrong brick glows red so long

// The ball's speed for the word numbered `word` (1-based).
double ballSpeed(int word);
// True for the characters that stand as bricks; blanks, hyphens, apostrophes and other marks
// stand in the word at the top from the start.
bool isBrick(char c);
// The loss box.
std::string lostText(const std::string& word);

struct Brick {
    char letter = 'A';     // as shown: a capital
    bool decoy = false;    // not a letter of the word
    int col = 0, row = 0;  // its slot; column 0 is the one by the back wall
    bool broken = false;
    int flash = 0;  // ticks left of the red glow of a wrong hit
    double x() const { return kWallRight - kBrickW - col * kColStep; }
    double y() const;
};

struct Ball {
    double x = 0, y = 0, vx = 0, vy = 0;
};

enum class Phase { Ready, Serve, Play, Spelled, Won, Lost };

struct Event {
    enum Kind { Served, Paddle, Wall, Broke, Wrong, Missed, Spelled, Won, Lost };
    Kind kind;
    int brick = -1;       // Broke, Wrong
    double x = 0, y = 0;  // where it happened
    int points = 0;       // Broke, Wrong: what the score gained or lost
};

// What the keys say this tick.
struct Input {
    int move = 0;        // -1 up, +1 down
    bool serve = false;  // Space
};

// One game. Draws come in a fixed order so that a scripted generator pins them: start()
// reseeds; each word draws its entry (again while it is used or does not fit), then the decoys'
// letters, then each brick's free slot, the word's letters first.
class Game {
public:
    // A new game of `s.Difficulty` words (held to 2..20). False when no word on the list fits.
    bool start(SharedState& s, Rng& rng);
    // The next word after one spelled; false when the game has had all its words.
    bool nextWord(SharedState& s, Rng& rng);
    // From Ready to Serve: the paddle moves and Space serves.
    void go();
    // One tick: the paddle, the ball and what it meets, the glows fading.
    std::vector<Event> tick(const Input& in);

    Phase phase() const { return phase_; }
    bool over() const { return phase_ == Phase::Won || phase_ == Phase::Lost; }
    int level() const { return level_; }
    const std::string& word() const { return word_; }
    int wordNumber() const { return words_; }
    // Which characters of the word are broken out (or stand from the start).
    const std::vector<bool>& done() const { return done_; }
    int nextPos() const { return next_; }  // the letter to break next, -1 when spelled
    int columns() const { return cols_; }
    const std::vector<Brick>& bricks() const { return bricks_; }
    const Ball& ball() const { return ball_; }
    double paddleY() const { return paddle_; }  // the paddle's centre
    double speed() const { return ballSpeed(words_); }
    int ballsLeft() const { return balls_; }
    int score() const { return score_; }

    // For tests: the paddle and the ball set where they are wanted.
    void place(double paddleY, const Ball& ball);

private:
    bool drawWord(SharedState& s, Rng& rng);
    void buildWall(Rng& rng);
    void serve();
    void restOnPaddle();
    // The first letter still to break, from `from` on; false when none is left.
    bool findNext(int from);
    void move(double dx, double dy, std::vector<Event>& ev);
    void hit(int i, std::vector<Event>& ev);

    Phase phase_ = Phase::Ready;
    int level_ = kMinLevel;
    std::string word_;
    std::vector<bool> done_;
    int next_ = -1;
    int words_ = 0;
    int cols_ = 1;
    std::vector<Brick> bricks_;
    Ball ball_;
    double paddle_ = (kCourtTop + kCourtBottom) / 2;
    int balls_ = kBalls;
    int score_ = 0;
    std::vector<int> drawn_;  // the entries played this game
};

}  // namespace wm::break_thru
