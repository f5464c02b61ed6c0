// Slingshot: a definition at the top, four targets swinging on ropes, each with a word. Pull
// the band back and let go; the stone that hits the target with the matching word scores.
// Three stones a definition, ten definitions a game.
//
// Everything happens on a field of its own units (kFieldW x kFieldH), whatever the screen,
// and moves one step a tick, so a shot with a given pull lands in the same place on any
// machine.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace wm {
struct SharedState;
class Rng;
}  // namespace wm

namespace wm::slingshot {

constexpr int kTargets = 4;
constexpr int kStones = 3;        // stones a definition
constexpr int kDefinitions = 10;  // definitions a game
constexpr int kMinLevel = 1, kMaxLevel = 9;
constexpr int kTickMs = 16;       // one physics step
constexpr int kWordDraws = 100;   // redraws of an unfit word before the next fit one is taken

constexpr double kFieldW = 1280, kFieldH = 760;
constexpr double kMaxPull = 200;  // the band stretches this far and no farther
constexpr double kMinPull = 16;   // less is a click: the stone stays in the pouch
constexpr double kSpeedPerPull = 0.11;  // field units a tick for each unit of pull
constexpr double kDrop = 0.2;           // the stone's fall, added to its speed each tick
constexpr double kTargetRadius = 70, kStoneRadius = 11;
constexpr double kBeamY = 112;   // the beam the ropes hang from
constexpr int kDropInMs = 600;   // new targets are let down on their ropes

struct Point {
    double x = 0, y = 0;
};

// The pouch at rest, between the fork's tips: the stone leaves from here.
Point pouchRest();
// Where the pouch goes when the pupil drags it to `pointer`: never above the rest point, and
// never farther from it than the band stretches.
Point pullPouch(Point pointer);
// The swing by level: the widest angle either side, in degrees, and the time of one swing
// there and back.
double swingDegrees(int level);
int swingPeriodMs(int level);
// Target `slot` (0..3): where its rope hangs from and how long the rope is.
Point pivot(int slot);
double ropeLength(int slot);
// The target's centre at `ms` on the game clock, `sinceDeal` ms after its definition came.
Point targetAt(int slot, int level, long long ms, long long sinceDeal);

enum class Phase { Aiming, Flying, Solved, Revealed, Over };
enum class Shot { None, Flying, Right, Wrong, Miss };

// One game. The draws come in a fixed order, so a scripted generator pins them: start()
// reseeds; each definition draws its word, then the three other words, then the right slot.
class Game {
public:
    // A new game at the level in `s.Difficulty` (held to 1..9), with its first definition.
    // Returns "" or what makes the list unfit for the game.
    std::string start(SharedState& s, Rng& rng);
    // The next definition, once the last is solved or shown; false after the tenth.
    bool next(SharedState& s, Rng& rng);
    // Lets go of the band with the pouch at `pouch`. False when there is no stone to fire,
    // or the pull is too short to count.
    bool fire(Point pouch);
    // One tick: the targets swing, a stone in flight moves on and may hit or leave the field.
    Shot step();

    Phase phase() const { return phase_; }
    int level() const { return level_; }
    int definition() const { return definition_; }  // 1..10
    int stonesLeft() const { return stones_; }
    int rightSlot() const { return right_; }
    int lastHit() const { return hit_; }  // the slot the last stone hit, -1 for none
    const std::string& word(int slot) const { return words_[slot]; }
    // The right target, once hit, is off its rope until the next definition.
    bool gone(int slot) const { return solved_ && slot == right_; }
    long long clock() const { return clock_; }
    long long sinceDeal() const { return clock_ - dealtAt_; }
    Point target(int slot) const;
    Point stone() const { return stone_; }
    Point stoneSpeed() const { return speed_; }
    double score() const { return score_; }
    // The words of the definitions that cost a stone or were shown, in the order played.
    const std::vector<std::string>& troubleWords() const { return trouble_; }

private:
    bool deal(SharedState& s, Rng& rng);
    void spend();
    void markTrouble();

    Phase phase_ = Phase::Over;
    int level_ = kMinLevel;
    int definition_ = 0;
    int stones_ = 0;
    int right_ = 0;
    int hit_ = -1;
    bool solved_ = false;
    int entry_ = 0;  // the list entry of the definition in hand
    std::array<std::string, kTargets> words_;
    long long clock_ = 0;
    long long dealtAt_ = 0;
    Point stone_, speed_;
    double score_ = 0;
    std::vector<bool> used_;  // entries played this game, 1-based
    std::vector<std::string> trouble_;
};

// The box of a game that ends without points.
std::string lostText(const std::vector<std::string>& words);
// Why a list cannot be played.
extern const char* const kTooFewWords;
extern const char* const kNoDefinitions;

}  // namespace wm::slingshot
