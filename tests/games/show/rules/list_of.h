// A loaded list for the rules tests: word i means "meaning of word i".
#pragma once

#include <string>
#include <vector>

#include "core/shared_state.h"

inline wm::SharedState listOf(const std::vector<std::string>& words, int difficulty = 2) {
    wm::SharedState s;
    for (std::size_t i = 0; i < words.size(); ++i) {
        s.Words[i + 1] = words[i];
        s.Meanings[i + 1] = "meaning of " + words[i];
    }
    s.WordCount = static_cast<short>(words.size());
    s.Difficulty = difficulty;
    return s;
}

inline wm::SharedState sixWords(int difficulty = 2) {
    return listOf({"apple", "brick", "cloud", "drum", "eagle", "frost"}, difficulty);
}
