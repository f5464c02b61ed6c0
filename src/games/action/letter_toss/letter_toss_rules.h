// Letter Toss: baskets stand at the back of a classroom, each with a definition on the wall above
// it; a paper ball with a word lies at the front. The pupil flicks the ball at the basket of its
// definition, against a fan's draught that changes every toss. Sixty seconds a game.
//
// The room is measured in room units: x across (0 in the middle, walls at +-kSideWallX), z away
// from the thrower (the baskets at kBasketZ), h up from the floor. The picture is a perspective
// view of it on a 1600 x 900 stage; a flick is measured on that stage.
#pragma once

#include <string>
#include <vector>

#include "core/rng.h"
#include "core/shared_state.h"

namespace wm::letter_toss {

constexpr int kSeconds = 60;
constexpr int kRightPoints = 100;
constexpr int kSwishBonus = 50;
constexpr int kWrongCost = 50;
constexpr int kMinBaskets = 2;
constexpr int kMaxBaskets = 4;
constexpr int kFlickMs = 100;   // a toss takes the speed of the drag's last tenth of a second
constexpr int kStepMs = 16;     // one step of the flight a frame, whatever the machine
constexpr int kMaxDraught = 4;  // the fan's settings run from -4 (to the left) to 4 (right)
constexpr int kMaxFlightSteps = 400;
constexpr int kDrawTries = 200;

// The room.
constexpr double kSideWallX = 1500, kBasketZ = 1000, kBackWallZ = 1180;
constexpr double kBasketGap = 680;  // between the middles of two baskets
constexpr double kRimH = 220, kRimR = 120, kBallR = 30;
constexpr double kHandH = 150;  // the ball's height in the hand, at the front
constexpr double kGravity = 2400, kDraughtPush = 100;  // room units a second, squared

// The stage and the view.
constexpr double kStageW = 1600, kStageH = 900;
constexpr double kEyeX = 800, kHorizonY = 300, kFloorFrontY = 1000, kFocal = 1000;
constexpr double kHandTopY = 640;    // the ball cannot be carried higher up the stage
constexpr double kMinFlick = 250;    // slower upward flicks are no toss: the ball goes back

constexpr const char* kTooFewWords =
    "There are not enough different words and definitions in this vocabulary list for this many "
    "baskets! Please choose another list or go back and lower the difficulty level.";

struct Vec3 {
    double x = 0, z = 0, h = 0;
};

struct Basket {
    int entry = 0;  // 1-based index into Words and Meanings
    std::string word;
    std::string meaning;
    double x = 0;   // its middle, across the room
};

struct Ball {
    Vec3 at;
    Vec3 speed;       // room units a second
    bool flying = false;
    bool touched = false;  // hit a wall or the rim on the way: no clean swish
    int steps = 0;
};

struct Room {
    std::vector<Basket> baskets;
    int right = -1;   // the basket of the word's own definition
    int draught = 0;  // the fan's setting for this toss
    Ball ball;
    int secondsLeft = kSeconds;
    int words = 0;    // words drawn this game
    std::vector<std::string> used;  // the game's words so far, upper-cased
};

int basketsFor(int difficulty);
double basketX(int basket, int baskets);

// A new game: the generator reseeded, the score back to 0, the clock full, the first word.
// False when the list has too few different words and definitions for the baskets.
bool newGame(SharedState& s, Room& r, Rng& rng);
// The next word with new baskets (its own at a random place), then the fan's draught.
bool nextWord(SharedState& s, Room& r, Rng& rng);
// The ball back at the front for another toss, in a new draught.
void newToss(Room& r, Rng& rng);

// One point of a drag on the stage, at a time on the game clock.
struct Sample {
    int ms = 0;
    double x = 0, y = 0;
};
struct Flick {
    double x = 0, y = 0;  // stage units a second; y < 0 is up the screen
};
// The speed and direction of the drag's last tenth of a second.
Flick flickOf(const std::vector<Sample>& drag);

// Where the ball may be carried to before the toss, on the stage.
Sample handPoint(double x, double y);
// Lets go of the ball at stage point (x, y) with the flick: false, and nothing thrown, when the
// flick does not go up the screen fast enough to be a toss.
bool toss(Room& r, double x, double y, Flick f);

// Swish: the right basket, clean through the middle; Right: the right basket off the rim or a wall.
enum class Landing { Flying, Swish, Right, Wrong, Floor };
struct Step {
    Landing landing = Landing::Flying;
    int basket = -1;     // the basket the ball dropped into
    int points = 0;      // added to the score
    bool bounced = false;  // off a wall, a basket's side or its rim this step, or a rattle in
};
// One step of the flight: draught, gravity, the walls and the baskets; the points of a landing.
Step step(SharedState& s, Room& r);

// One second off the clock; true when it has run out.
bool clockTick(Room& r);

// The room on the stage.
struct Seen {
    double x = 0, y = 0;
    double scale = 1;  // stage units per room unit at that depth
};
Seen project(const Vec3& p);

}  // namespace wm::letter_toss
