// Bomb Squad 2's rules: every wire starts loose; the pupil carries a wire from a word to its
// definition. Pure C++; the clock, the score and the loser's texts follow Bomb Squad's.
#pragma once

#include <vector>

#include "games/show/bomb_squad/bomb_squad_rules.h"

namespace wm::bombsquad2 {

inline constexpr char kLostWrongWire[] =
    "You connected the wrong wire and set the bomb off! You lose. Would you like to give it "
    "another try?";

// This game's own clock: more time, since each wire takes two clicks.
bombsquad::Level level(int difficulty);

struct Board {
    bool ready = false;
    std::vector<int> words;     // WordLabel i shows entry words[i]
    std::vector<bool> open;     // WireOpen: the word still needs its wire
    std::vector<int> defOwner;  // DefLabel j belongs to WordLabel defOwner[j] (0-based)
    int secondsLeft = 0;
    bool carrying = false;
    int carried = -1;  // 0-based word label of the carried wire
};

// Each word is drawn until fresh; its definition goes on a random free DefLabel.
Board deal(const SharedState& state, int difficulty, Rng& rng);

enum class WordClick { Dropped, PickedUp };
// A click on word label i: a carried wire is dropped first; an open word is then picked up.
WordClick clickWord(Board& b, int i);

enum class DefClick { Nothing, Connected, Defused, Exploded };
DefClick clickDefinition(Board& b, int j);

bool tick(Board& b);
// The tick's sound: a higher beep under 10 seconds.
const char* tickSound(int secondsLeft);
const char* lostText(int secondsLeft);

}  // namespace wm::bombsquad2
