// Lists for the rules tests, as the chooser leaves them in the shared block: 1-based, entry 0
// empty, WordCount the number of entries.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/shared_state.h"

namespace wm::test {

// Words with meanings "meaning of {word}" (none for a words-only list).
inline SharedState ListOf(const std::vector<std::string>& words, int difficulty = 1,
                          bool wordsOnly = false) {
    SharedState s;
    s.Words = {""};
    s.Meanings = {""};
    for (const auto& w : words) {
        s.Words.push_back(w);
        s.Meanings.push_back(wordsOnly ? std::string() : "meaning of " + w);
    }
    s.WordCount = static_cast<short>(words.size());
    s.Difficulty = difficulty;
    s.WordsOnly = wordsOnly ? kTrue : kFalse;
    return s;
}

// Words with meanings of their own.
inline SharedState PairsList(const std::vector<std::pair<std::string, std::string>>& pairs,
                             int difficulty = 1) {
    SharedState s = ListOf({}, difficulty);
    for (const auto& [w, m] : pairs) {
        s.Words.push_back(w);
        s.Meanings.push_back(m);
    }
    s.WordCount = static_cast<short>(pairs.size());
    return s;
}

}  // namespace wm::test
