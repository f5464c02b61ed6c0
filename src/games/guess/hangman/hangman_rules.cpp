#include "games/guess/hangman/hangman_rules.h"

#include "games/guess/common/word_guess.h"

namespace wm::hangman {

namespace {
using Clips = std::vector<std::vector<int>>;  // clip numbers by miss, 1-based
// The harder levels draw several parts of the picture at one miss.
const Clips kLevel2 = {{1, 2}, {3, 4, 5}, {6}, {7}, {8}, {9}, {10}, {11}, {12, 13}, {14}};
const Clips kLevel3 = {{1, 2}, {3, 4, 5}, {6}, {7, 8, 9, 10}, {11, 12, 13}, {14}};
}  // namespace

Step wrongGuessStep(int difficulty, int misses) {
    Step step;
    const int allowed = guess::missesAllowed(difficulty);
    if (misses < 1 || misses > allowed) return step;
    if (allowed == 14) {
        step.clips.push_back("hang" + std::to_string(misses));
    } else {
        const Clips& table = allowed == 10 ? kLevel2 : kLevel3;
        for (int n : table[misses - 1]) step.clips.push_back("hang" + std::to_string(n));
    }
    if (misses == allowed) {
        step.clips.push_back("hangend");
        step.lost = true;
    }
    return step;
}

std::string lostText(const std::string& word) {
    return "Oops! Your guy was hanged! The word you were looking for was \"" + word +
           "\". Would you like to give it another try?";
}

}  // namespace wm::hangman
