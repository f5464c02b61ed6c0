#include "games/guess/princess/princess_rules.h"

#include <algorithm>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "games/common/word_draw.h"

namespace wm::princess {

namespace {
constexpr int kReshuffles = 6;      // shuffles that still read as the word before one is turned

bool sameLetter(char a, char b) {
    return UCase(std::string(1, a)) == UCase(std::string(1, b));
}
}  // namespace

bool onStone(char c) {
    return c != ' ' && c != '-' && c != '\'';
}

bool playable(const std::string& word) {
    const auto n = std::count_if(word.begin(), word.end(), onStone);
    return n >= 1 && n <= kMaxStones;
}

int wordPoints(int length, bool clean) {
    return length * 10 + (clean ? 50 : 0);
}

int drawWord(const SharedState& s, Rng& rng, const std::vector<int>& drawn) {
    return DrawFreshWord(s, rng, drawn, kMaxWords, playable);
}

std::vector<int> layStones(const std::string& word, Rng& rng) {
    std::vector<int> order;
    for (int p = 0; p < static_cast<int>(word.size()); ++p)
        if (onStone(word[p])) order.push_back(p);
    const int n = static_cast<int>(order.size());
    if (n < 2) return order;
    // Read in the moat's order, the stones spell the word: no puzzle left.
    const std::vector<int> inWord = order;
    auto readsAsWord = [&] {
        for (int i = 0; i < n; ++i)
            if (!sameLetter(word[order[i]], word[inWord[i]])) return false;
        return true;
    };
    bool allSame = true;
    for (int i = 1; i < n; ++i)
        if (!sameLetter(word[order[i]], word[order[0]])) allSame = false;
    for (int round = 0; round < kReshuffles; ++round) {
        for (int i = n - 1; i >= 1; --i) {
            const int j = static_cast<int>(Int(rng.Rnd() * (i + 1)));
            std::swap(order[i], order[std::clamp(j, 0, i)]);
        }
        if (allSame || !readsAsWord()) return order;
    }
    std::rotate(order.begin(), order.begin() + 1, order.end());
    return order;
}

bool Game::start(SharedState& s, Rng& rng) {
    rng.Randomize();
    s.Score = 0;
    level_ = std::clamp<int>(s.Difficulty, 1, 15);
    number_ = 0;
    splashes_ = 0;
    lowered_ = 0;
    drawn_.clear();
    return drawNext(s, rng);
}

bool Game::nextWord(SharedState& s, Rng& rng) {
    if (number_ >= level_) return false;
    return drawNext(s, rng);
}

bool Game::drawNext(SharedState& s, Rng& rng) {
    over_ = true;
    const int k = drawWord(s, rng, drawn_);
    if (k == 0) return false;
    drawn_.push_back(k);
    word_ = s.Words[k];
    s.TheWord = word_;
    s.TheMeaning = k < static_cast<int>(s.Meanings.size()) ? s.Meanings[k] : std::string();
    stones_ = layStones(word_, rng);
    risen_.assign(stones_.size(), -1);
    laid_.assign(word_.size(), false);
    for (std::size_t p = 0; p < word_.size(); ++p) laid_[p] = !onStone(word_[p]);
    next_ = 0;
    skipShown();
    wordSplashes_ = 0;
    lastPoints_ = 0;
    over_ = false;
    ++number_;
    return true;
}

void Game::skipShown() {
    while (next_ < static_cast<int>(word_.size()) && laid_[next_]) ++next_;
}

Pick Game::pick(SharedState& s, int i) {
    if (over_ || i < 0 || i >= stones() || risen_[i] >= 0) return Pick::Ignored;
    if (!sameLetter(stoneLetter(i), word_[next_])) {
        ++splashes_;
        ++wordSplashes_;
        if (splashes_ >= kSleepMarks) {
            over_ = true;
            return Pick::Woke;
        }
        return Pick::Wrong;
    }
    // Twin letters are one letter to the pupil: either stone lays the next plank.
    risen_[i] = next_;
    laid_[next_] = true;
    skipShown();
    if (next_ < static_cast<int>(word_.size())) return Pick::Right;
    lastPoints_ = wordPoints(Len(word_), wordSplashes_ == 0);
    s.Score += lastPoints_;
    ++lowered_;
    over_ = true;
    return lowered_ >= level_ ? Pick::Crossed : Pick::Spelled;
}

int Game::stoneFor(char key) const {
    if (over_) return -1;
    int any = -1;
    for (int i = 0; i < stones(); ++i) {
        if (risen_[i] >= 0 || !sameLetter(stoneLetter(i), key)) continue;
        if (sameLetter(key, word_[next_])) return i;
        if (any < 0) any = i;
    }
    return any;
}

std::string lostText(const std::string& word) {
    return "The dragon woke up! The word was " + word + ".";
}

}  // namespace wm::princess
