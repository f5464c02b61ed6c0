#include "games/guess/flying_cow/flying_cow_rules.h"

#include <algorithm>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "games/common/word_draw.h"

namespace wm::cow {

namespace {

std::string upper1(char c) {
    return UCase(std::string(1, c));
}
}  // namespace

int missesAllowed(int level) {
    return 11 - level;
}

int wordPoints(int length, int spare, int level, bool hinted) {
    const int points = (length * 10 + spare * 5) * level;
    return hinted ? points / 2 : points;
}

bool guessed(char c) {
    return c != ' ' && c != '-' && c != '\'';
}

bool playable(const std::string& word) {
    if (Len(word) > kMaxLetters) return false;
    return std::any_of(word.begin(), word.end(), guessed);
}

int drawWord(const SharedState& s, Rng& rng, const std::vector<int>& drawn) {
    return DrawFreshWord(s, rng, drawn, kMaxWords, playable);
}

bool Game::start(SharedState& s, Rng& rng) {
    rng.Randomize();
    s.Score = 0;
    level_ = std::clamp<int>(s.Difficulty, 1, 9);
    number_ = 0;
    drawn_.clear();
    return drawNext(s, rng);
}

bool Game::nextWord(SharedState& s, Rng& rng) {
    if (lastWord()) return false;
    return drawNext(s, rng);
}

bool Game::drawNext(SharedState& s, Rng& rng) {
    over_ = true;
    const int k = drawWord(s, rng, drawn_);
    if (k == 0) return false;
    drawn_.push_back(k);
    index_ = k;
    word_ = s.Words[k];
    s.TheWord = word_;
    s.TheMeaning = k < static_cast<int>(s.Meanings.size()) ? s.Meanings[k] : std::string();
    shown_.assign(word_.size(), false);
    for (std::size_t i = 0; i < word_.size(); ++i) shown_[i] = !guessed(word_[i]);
    tried_.clear();
    rung_ = 0;
    misses_ = 0;
    lastPoints_ = 0;
    hinted_ = false;
    over_ = false;
    ++number_;
    return true;
}

Key Game::press(SharedState& s, char key) {
    // A space, hyphen or apostrophe is never a guess: no letter of the word is one, and none is
    // a letter (below).
    if (over_) return Key::Ignored;
    const std::string up = upper1(key);
    bool inWord = false;
    for (char c : word_)
        if (guessed(c) && upper1(c) == up) inWord = true;
    // A stray key (a digit, a full stop) is no guess unless the word holds it.
    if (!inWord && !IsLetter(key)) return Key::Ignored;
    if (triedState(key) != 0) return Key::Repeat;
    tried_ += LCase(std::string(1, key));
    if (!inWord) {
        ++misses_;
        ++rung_;
        if (rung_ > allowed()) {
            over_ = true;
            return Key::Lost;
        }
        return Key::Miss;
    }
    int filled = 0;
    for (std::size_t i = 0; i < word_.size(); ++i) {
        if (shown_[i] || upper1(word_[i]) != up) continue;
        shown_[i] = true;
        ++filled;
    }
    const bool dropped = filled >= 2 && rung_ > 0;
    if (dropped) --rung_;
    if (std::all_of(shown_.begin(), shown_.end(), [](bool b) { return b; })) {
        lastPoints_ = wordPoints(Len(word_), spare(), level_, hinted_);
        s.Score += lastPoints_;
        over_ = true;
        return Key::Solved;
    }
    return dropped ? Key::Drop : Key::Hit;
}

int Game::triedState(char letter) const {
    const std::string low = LCase(std::string(1, letter));
    if (tried_.find(low) == std::string::npos) return 0;
    for (char c : word_)
        if (guessed(c) && LCase(std::string(1, c)) == low) return 1;
    return -1;
}

bool Game::hintOffered(const SharedState& s) const {
    return s.WordsOnly == kFalse && !hinted_ && !over_;
}

bool Game::takeHint(const SharedState& s) {
    if (!hintOffered(s)) return false;
    hinted_ = true;
    return true;
}

std::string lostText(const std::string& word) {
    return "The cow was beamed up! The word was " + word + ".";
}

}  // namespace wm::cow
