// A loaded list for the rules tests: word i means "meaning of word i".
#pragma once

#include <string>
#include <vector>

#include "word_lists.h"

inline wm::SharedState listOf(const std::vector<std::string>& words, int difficulty = 2) {
    return wm::test::ListOf(words, difficulty);
}

inline wm::SharedState sixWords(int difficulty = 2) {
    return listOf({"apple", "brick", "cloud", "drum", "eagle", "frost"}, difficulty);
}
