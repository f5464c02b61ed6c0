#include "games/guess/freeze_it/freeze_it_rules.h"

#include <algorithm>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::freeze_it {

namespace {
// Draws that hit a used or empty word try again this many times; then the next usable word
// after the last draw is taken, so a draw always ends.
constexpr int kDrawTries = 50;
}  // namespace

int thawInterval(int level) {
    return 1800 - 300 * level;
}

int pointsFor(int hidden, int level) {
    return hidden * 20 * level + 10;
}

bool showsFromStart(char c) {
    return c == ' ' || c == '-' || c == '\'';
}

bool sameWord(const std::string& answer, const std::string& word) {
    return UCase(Trim(answer)) == UCase(Trim(word));
}

bool Game::usable(const SharedState& s, int k) const {
    if (k < 1 || k >= int(s.Words.size())) return false;
    const std::string w = Trim(s.Words[k]);
    return std::any_of(w.begin(), w.end(), [](char c) { return !showsFromStart(c); });
}

int Game::drawWord(const SharedState& s, Rng& rng) {
    const int loaded = std::min<int>(s.WordCount, kMaxWords);
    if (loaded <= 0) return 0;
    used_.resize(loaded + 1, false);
    auto open = [&](int k) { return usable(s, k) && !used_[k]; };
    int left = 0;
    for (int k = 1; k <= loaded; ++k) left += open(k) ? 1 : 0;
    if (left == 0) {
        // Every word has come: the list starts over, but not with the word just played.
        std::fill(used_.begin(), used_.end(), false);
        for (int k = 1; k <= loaded; ++k) left += open(k) ? 1 : 0;
        if (left == 0) return 0;
        if (left > 1 && last_ > 0) used_[last_] = true;
    }
    auto draw = [&] {
        return std::clamp(static_cast<int>(Int(rng.Rnd() * loaded + 1)), 1, loaded);
    };
    int k = draw();
    for (int t = 1; t < kDrawTries && !open(k); ++t) k = draw();
    if (open(k)) return k;
    for (int step = 1; step <= loaded; ++step) {
        const int j = (k - 1 + step) % loaded + 1;
        if (open(j)) return j;
    }
    return 0;
}

bool Game::start(SharedState& s, Rng& rng) {
    rng.Randomize();
    s.Score = 0;
    used_.clear();
    missed_.clear();
    wordNumber_ = 0;
    return nextWord(s, rng);
}

bool Game::nextWord(SharedState& s, Rng& rng) {
    const int k = drawWord(s, rng);
    if (k == 0) return false;
    used_[k] = true;
    last_ = k;
    ++wordNumber_;
    s.TheWord = s.Words[k];
    s.TheMeaning = k < int(s.Meanings.size()) ? s.Meanings[k] : std::string();
    word_ = Trim(s.TheWord);
    blocks_.clear();
    for (char c : word_) blocks_.push_back({c, showsFromStart(c)});
    phase_ = Phase::Thawing;
    return true;
}

int Game::hidden() const {
    return static_cast<int>(
        std::count_if(blocks_.begin(), blocks_.end(), [](const Block& b) { return !b.shown; }));
}

int Game::thaw(Rng& rng) {
    if (phase_ != Phase::Thawing) return -1;
    const int n = hidden();
    if (n == 0) return -1;
    const int j = std::clamp(static_cast<int>(Int(rng.Rnd() * n + 1)), 1, n);
    // The j-th block still hidden, counted from the left: there are n of them.
    int i = 0;
    for (int seen = 0;; ++i)
        if (!blocks_[i].shown && ++seen == j) break;
    blocks_[i].shown = true;
    if (n == 1) {
        phase_ = Phase::Melted;
        missed_.push_back(word_);
    }
    return i;
}

bool Game::freeze() {
    if (phase_ != Phase::Thawing) return false;
    phase_ = Phase::Frozen;
    return true;
}

void Game::unfreeze() {
    if (phase_ == Phase::Frozen) phase_ = Phase::Thawing;
}

Answer Game::check(SharedState& s, const std::string& answer) {
    if (phase_ != Phase::Frozen || Trim(answer).empty()) return Answer::Empty;
    if (sameWord(answer, word_)) {
        lastPoints_ = pointsFor(hidden(), s.Difficulty);
        s.Score += lastPoints_;
        for (Block& b : blocks_) b.shown = true;
        phase_ = Phase::Right;
        return Answer::Right;
    }
    // A pupil's score does not go below nothing: a wrong answer takes what is there, up to 25.
    s.Score = std::max(0.0, s.Score - kWrongCost);
    phase_ = Phase::Thawing;
    return Answer::Wrong;
}

}  // namespace wm::freeze_it
