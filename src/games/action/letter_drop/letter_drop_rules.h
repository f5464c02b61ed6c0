// Letter Drop: the letters of a word fall one at a time, in random order, and are steered onto
// their tiles. The rules work in twips on a field of fixed size, so the pace is the same on every
// display; the screen scales the field.
#pragma once

#include <array>
#include <string>
#include <utility>

#include "core/rng.h"
#include "core/shared_state.h"

namespace wm::letter_drop {

constexpr int kTiles = 14;
constexpr int kFieldW = 15360;  // 1024 pixels
constexpr int kFieldH = 11520;  // 768 pixels
constexpr int kTileW = 960;
constexpr int kTileH = 960;
constexpr int kTilePitch = 1020;
constexpr int kTileTop = kFieldH * 8 / 10;
constexpr int kTopY = 1875;    // just under the definition and score lines
constexpr int kHintAfter = 3;  // misses over this turn the hint on

constexpr const char* kTooLong =
    "The words on this vocabulary list are too long for this game. Please choose another list or "
    "another game.";
constexpr const char* kNoLetters =
    "The words on this vocabulary list are either too long for this game or have no letters to "
    "drop. Please choose another list or another game.";
constexpr const char* kReady = "Click <OK> when you are ready to begin";

enum class Landing { None, Right, Wrong, Won };
// The outcome of a setup: a word to play, or why the list cannot be used.
enum class Setup { Ready, TooLong, NoLetters };

struct Keys {
    bool left = false, right = false, down = false;
};

class Game {
public:
    // Setup and the word choice: a word that fits the tiles and has a letter to drop.
    Setup setup(SharedState& s, Rng& rng);
    // One fall step; a landing is tested and acted on.
    Landing tick(SharedState& s, const Keys& keys, Rng& rng);
    // A release of the Down arrow: a small reward for dropping fast, shown at the next update.
    static void downReleased(SharedState& s) { s.Score += 1; }

    int tileLeft(int i) const;  // 0-based tile
    bool tileVisible(int i) const { return i < len_ && word_[i] != ' '; }
    bool tileShows(int i) const { return shows_[i]; }
    char tileChar(int i) const { return word_[i]; }
    const std::string& word() const { return word_; }
    int lettersLeft() const { return lettersLeft_; }
    char falling() const { return falling_; }
    int x() const { return x_; }
    int y() const { return y_; }
    int misses() const { return misses_; }
    int hintTile() const { return hintOn() ? hint_ : -1; }
    bool hintOn() const { return misses_ > kHintAfter && hint_ >= 0; }
    // Where the last landing was tested (the dissolve box of a wrong one).
    int landedX() const { return landedX_; }
    int landedY() const { return landedY_; }
    // The tile under a falling point, or -1.
    int tileUnder(int x) const;
    void place(int x, int y) { x_ = x, y_ = y; }

private:
    void nextLetter(Rng& rng);
    void toTop();
    std::string word_;
    int len_ = 0;
    std::array<char, kTiles> table_{};  // still to place; 0 once placed
    std::array<bool, kTiles> shows_{};
    int lettersLeft_ = 0;
    char falling_ = 0;
    int x_ = 0, y_ = 0;
    int misses_ = 0;
    int hint_ = -1;
    int landedX_ = 0, landedY_ = 0;
};

// The background shooting star: no effect on play.
class Star {
public:
    static constexpr int kTrail = 7;
    // One tick: maybe starts a star (one chance in fifty), else moves the one in flight.
    void tick(Rng& rng);
    bool flying() const { return flying_; }
    // Head first; fewer than kTrail points just after the start.
    const std::array<std::pair<int, int>, kTrail>& trail() const { return trail_; }
    int points() const { return points_; }

private:
    bool flying_ = false;
    int dx_ = 0, dy_ = 0;
    std::array<std::pair<int, int>, kTrail> trail_{};
    int points_ = 0;
};

}  // namespace wm::letter_drop
