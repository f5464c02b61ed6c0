// Word Zap: a shooting gallery against the clock. Word targets stand on four shelves; the
// player clicks the one that matches the definition shown.
#pragma once

#include <array>
#include <string>

#include "core/rng.h"
#include "core/shared_state.h"

namespace wm::zap {

constexpr int kTargets = 8;
constexpr int kStars = 160;  // 16 groups of 10
constexpr int kGroups = 16;
constexpr int kMaxDraws = 10000;

struct Target {
    std::string word;
    bool visible = false;
    bool black = false;  // shot wrongly: black back, white text
};

struct Star {
    int x = 0, y = 0, dx = 0, dy = 0, age = 0;
    bool alive = false;
};

struct Gallery {
    std::array<Target, kTargets> targets{};
    std::array<int, kTargets + 1> wordOf{};  // list index of the round's word i, 1-based
    std::array<int, kTargets + 1> slotOf{};  // slot 1..8 of the round's word i
    int count = 0;                           // words this round (the level)
    int definition = 1;
    int reaction = 0;  // Timer2 ticks since the definition was shown
    int timeLeft = 60;
    bool ending = false;
    double score = 0;
    int group = 1;
    int stripFrame = 1;
    std::array<Star, kStars> stars{};
};

struct DealResult {
    bool ready = true;
    std::string message;
};
// Deals a round of `difficulty` words into random slots.
DealResult deal(const SharedState& s, Gallery& g, int difficulty, Rng& rng);
// The definition on show (the Meanings entry of the round's word).
std::string definitionText(const SharedState& s, const Gallery& g);

enum class Click { Hit, Dealt, Wrong, Ignored };
// A click on target k (0..7). A hit bursts stars at (cx, cy).
Click clickTarget(const SharedState& s, Gallery& g, int k, int difficulty, int cx, int cy,
                  Rng& rng);
// A click on the gallery behind the targets.
void clickBehind(Gallery& g);
void burst(Gallery& g, int cx, int cy, Rng& rng);
// StarTimer: true when the game is to end now.
bool starTick(Gallery& g);
// TimeTimer: true when the time has just run out.
bool timeTick(Gallery& g);

std::string scoreCaption(double score);
std::string timeCaption(int seconds);
std::string badScoreText(double score);
inline const char* kStartText =
    "When the timer starts, look here for the definition of the word you should shoot.";
inline const char* kTimeUp = "Time Is Up!";

}  // namespace wm::zap
