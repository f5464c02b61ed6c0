// The spray can and the bug: which clips a wrong guess plays, and the sounds of the game.
#pragma once

#include <string>
#include <vector>

namespace wm {
class Rng;
}

namespace wm::bugspray {

// One group of clips started together: the spray clip and, where there is one, a bug clip.
struct Clip {
    std::string spray;
    std::string bug;  // "" when the bug keeps still
};

struct Step {
    std::vector<Clip> groups;  // each group waits for the clips of the one before
    bool lost = false;
};

Step wrongGuessStep(int difficulty, int misses);

// The sound of a wrong guess: the first, a random one of bugbad2..4, or the last.
std::string badSound(int misses, bool lost, Rng& rng);
// A right letter that does not finish the word: buggood1..4.
std::string goodSound(Rng& rng);

std::string lostText(const std::string& word);

}  // namespace wm::bugspray
