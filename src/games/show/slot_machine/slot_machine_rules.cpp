#include "games/show/slot_machine/slot_machine_rules.h"

#include <algorithm>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::slot_machine {

namespace {
// Two entries are the same word (or the same definition) whatever their case and outer blanks.
std::string key(const std::string& text) {
    return LCase(Trim(text));
}
}  // namespace

double wordsPerSecond(int level) {
    return level + 4;
}

int jackpotFor(int level) {
    return 20 * level;
}

std::string outOfCoinsText(const std::string& word) {
    return std::string(kOutOfCoins) + " The word was \"" + word +
           "\". Would you like to try again?";
}

int Reel::shown() const {
    const int n = int(strip.size());
    if (n == 0) return 0;
    const long long r = std::llround(pos) % n;
    return int(r < 0 ? r + n : r);
}

bool Game::usableAnswer(const SharedState& s, int k) const {
    return !key(s.Words[k]).empty() && !key(s.Meanings[k]).empty();
}

bool Game::start(SharedState& s, Rng& rng) {
    rng.Randomize();
    level_ = std::clamp(s.Difficulty, kMinLevel, kMaxLevel);
    coins_ = kStartCoins;
    s.Score = 0;
    used_.clear();
    jackpots_ = 0;
    definition_ = 0;
    answer_ = 0;
    for (Reel& r : reels_) r = Reel{};
    // The game needs one entry to ask about and one other word to stand beside it.
    bool anyAnswer = false;
    std::vector<std::string> words;
    for (int k = 1; k <= s.WordCount; ++k) {
        anyAnswer = anyAnswer || usableAnswer(s, k);
        const std::string w = key(s.Words[k]);
        if (!w.empty() && std::find(words.begin(), words.end(), w) == words.end())
            words.push_back(w);
    }
    if (!anyAnswer || words.size() < 2) {
        phase_ = Phase::Lost;
        return false;
    }
    nextDefinition(s, rng);
    return true;
}

void Game::nextDefinition(SharedState& s, Rng& rng) {
    const int n = s.WordCount;
    auto fresh = [&](int k) {
        return usableAnswer(s, k) && std::find(used_.begin(), used_.end(), k) == used_.end();
    };
    bool left = false;
    for (int k = 1; k <= n && !left; ++k) left = fresh(k);
    // Every answer asked already: the list starts over.
    if (!left) used_.clear();
    int k = 0;
    for (int tries = 0; tries < kMaxDraws && !k; ++tries) {
        const int d = int(Int(rng.Rnd() * n + 1));
        if (fresh(d)) k = d;
    }
    for (int d = 1; d <= n && !k; ++d)
        if (fresh(d)) k = d;
    answer_ = k;
    used_.push_back(k);
    s.TheWord = s.Words[k];
    s.TheMeaning = s.Meanings[k];
    ++definition_;
    for (Reel& r : reels_) {
        r = Reel{};
        r.strip = stripFor(s, rng);
    }
    phase_ = Phase::Ready;
}

std::vector<int> Game::stripFor(const SharedState& s, Rng& rng) const {
    const std::string word = key(s.Words[answer_]);
    const std::string meaning = key(s.Meanings[answer_]);
    // A decoy is another word, and never one whose definition would make it right as well.
    auto decoy = [&](int d) {
        const std::string w = key(s.Words[d]);
        return !w.empty() && w != word && key(s.Meanings[d]) != meaning;
    };
    std::vector<std::string> kinds;
    for (int d = 1; d <= s.WordCount; ++d)
        if (decoy(d) && std::find(kinds.begin(), kinds.end(), key(s.Words[d])) == kinds.end())
            kinds.push_back(key(s.Words[d]));
    const int want = std::min<int>(kStripMax - 1, int(kinds.size()));
    std::vector<int> strip;
    std::vector<std::string> on;
    for (int tries = 0; tries < kMaxDraws && int(strip.size()) < want; ++tries) {
        const int d = int(Int(rng.Rnd() * s.WordCount + 1));
        if (!decoy(d) || std::find(on.begin(), on.end(), key(s.Words[d])) != on.end()) continue;
        strip.push_back(d);
        on.push_back(key(s.Words[d]));
    }
    const int at = int(Int(rng.Rnd() * (strip.size() + 1)));
    strip.insert(strip.begin() + at, answer_);
    return strip;
}

bool Game::pull() {
    if (!canPull()) return false;
    coins_ -= kPullCost;
    // Nothing is held from one pull to the next: a jackpot is three right stops in one pull.
    for (Reel& r : reels_) {
        r.spinning = true;
        r.right = false;
    }
    phase_ = Phase::Spinning;
    return true;
}

void Game::spin(double ms) {
    if (phase_ != Phase::Spinning || ms <= 0) return;
    const double words = wordsPerSecond(level_) * ms / 1000;
    for (Reel& r : reels_)
        if (r.spinning) r.pos += words;
}

int Game::rolling() const {
    return int(std::count_if(std::begin(reels_), std::end(reels_),
                             [](const Reel& r) { return r.spinning; }));
}

int Game::rightNow() const {
    return int(std::count_if(std::begin(reels_), std::end(reels_),
                             [](const Reel& r) { return r.right; }));
}

Stop Game::stop(int i) {
    if (phase_ != Phase::Spinning || i < 0 || i >= kReels || !reels_[i].spinning) return Stop::Ignored;
    Reel& r = reels_[i];
    // The reel settles on the word nearest the window.
    r.pos = std::round(r.pos);
    r.spinning = false;
    rightLast_ = r.strip[r.shown()] == answer_;
    r.right = rightLast_;
    if (rightLast_) coins_ += kReelPays;
    if (rolling() > 0) return rightLast_ ? Stop::Right : Stop::Wrong;
    if (rightNow() == kReels) {
        coins_ += jackpotFor(level_);
        ++jackpots_;
        if (jackpots_ >= kDefinitions) {
            phase_ = Phase::Won;
            return Stop::Won;
        }
        phase_ = Phase::Jackpot;
        return Stop::Jackpot;
    }
    if (coins_ < kPullCost) {
        phase_ = Phase::Lost;
        return Stop::Broke;
    }
    phase_ = Phase::Ready;
    return Stop::PullOver;
}

}  // namespace wm::slot_machine
