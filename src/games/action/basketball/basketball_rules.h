// Basketball: ten shots at the net; words unscramble letter by letter over it, and the shot
// scores only when the word on show is the one the definition asks for.
#pragma once

#include <string>
#include <vector>

#include "core/rng.h"
#include "core/shared_state.h"

namespace wm::basketball {

constexpr int kShots = 10;
constexpr int kMaxLen = 30;  // words of 31 characters or more are never drawn

constexpr const char* kBegin = "Drag ball over net to begin...";
constexpr const char* kReady = "The crowd is ready! Click OK to start your game!";
constexpr const char* kWild =
    "Wow! That was really wild! You're supposed to shoot at the basket...";
constexpr const char* kPractice =
    "Hmmm... maybe a bit more practice is needed before you're ready for this game. Go and learn "
    "your vocab words, then come back and try again later...";
constexpr const char* kTooLong =
    "The words on this vocabulary list are all too long for this game. Please choose another "
    "list or another game.";

// The pace of the words: faster at higher levels.
inline int WordPace(int difficulty) {
    return 1500 - difficulty * 100;
}

struct Shot {
    bool good = false;
    int animation = 1;  // 1..4, of the good or the bad ones
    long long points = 0;
};

class Game {
public:
    // Setup: score, the first shot and its word. False when no list word is short enough.
    bool setup(SharedState& s, Rng& rng);
    // A new word for the shot in hand; false as setup.
    bool chooseWord(SharedState& s, Rng& rng);
    // Timer1: a new word goes on show, all of its letters hidden.
    void showNextWord(const SharedState& s, Rng& rng);
    // Timer2: the caption as it stands, then maybe one more letter revealed. `done` once every
    // letter shows.
    std::string revealTick(Rng& rng, bool& done);
    // The ball dropped on the net with `caption` on show.
    Shot shoot(SharedState& s, const std::string& caption, Rng& rng);
    // After the animation or a wild shot; true when the ten shots are used up.
    bool nextShot() { return ++shot_ > kShots; }

    int shot() const { return shot_; }
    int shotsLeft() const { return kShots + 1 - shot_; }
    int wordsShown() const { return wordsShown_; }
    const std::string& onShow() const { return onShow_; }
    int revealed() const { return revealedCount_; }

private:
    int drawShortWord(const SharedState& s, Rng& rng) const;  // 0 when none found
    int shot_ = 1;
    std::string onShow_;
    std::vector<bool> revealed_;
    int revealedCount_ = 0;
    int wordsShown_ = 0;
};

}  // namespace wm::basketball
