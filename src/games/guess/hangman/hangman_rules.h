// The gallows pictures: which clips a wrong guess plays, by difficulty and count of misses.
#pragma once

#include <string>
#include <vector>

namespace wm::hangman {

struct Step {
    std::vector<std::string> clips;  // played one after the other, each waiting for the last
    bool lost = false;               // the round is lost once the last clip has ended
};

Step wrongGuessStep(int difficulty, int misses);

// "Oops! Your guy was hanged! ..." with the word.
std::string lostText(const std::string& word);

}  // namespace wm::hangman
