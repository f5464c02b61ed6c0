#include "games/action/toad_race/toad_race_rules.h"

#include <algorithm>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::toad_race {

int hopInterval(int level) {
    return 4000 - 250 * level;
}

int hopWait(int level, double r) {
    const int base = hopInterval(level);
    return static_cast<int>(Int(base + (2 * r - 1) * base / 5));
}

bool Race::start(SharedState& s, Rng& rng) {
    *this = Race{};
    // A level outside the slider would make a toad hop every 0 ms or less: held to the slider.
    level_ = std::clamp(s.Difficulty, kMinLevel, kMaxLevel);
    rng.Randomize();
    const int loaded = std::min<int>(s.WordCount, kMaxWords);
    if (loaded <= 0 || static_cast<int>(s.Words.size()) <= loaded) return false;
    used_.assign(loaded + 1, false);
    drawWord(s, rng);
    if (s.TheWord.empty()) return false;
    for (int t = 1; t < kToads; ++t) next_[t] = hopWait(level_, rng.Rnd());
    return true;
}

void Race::drawWord(SharedState& s, Rng& rng) {
    const int n = static_cast<int>(used_.size()) - 1;
    // Every word has had its turn: repeats from here, but not the word just played.
    if (std::count(used_.begin() + 1, used_.end(), true) >= n) {
        std::fill(used_.begin(), used_.end(), false);
        if (n > 1 && word_ > 0) used_[word_] = true;
    }
    int k = static_cast<int>(Int(rng.Rnd() * n + 1));
    for (int tries = 1; used_[std::clamp(k, 1, n)] && tries < kWordDraws; ++tries)
        k = static_cast<int>(Int(rng.Rnd() * n + 1));
    k = std::clamp(k, 1, n);
    // Bounded: after that many used draws, the next free entry after the last draw.
    for (int step = 0; used_[k] && step < n; ++step) k = k % n + 1;
    used_[k] = true;
    word_ = k;
    s.TheWord = s.Words[k];
    s.TheMeaning = s.Meanings.size() > static_cast<size_t>(k) ? s.Meanings[k] : std::string();
}

void Race::go() {
    if (phase_ == Phase::Ready) phase_ = Phase::Racing;
}

Typed Race::submit(SharedState& s, const std::string& typed, Rng& rng) {
    if (phase_ != Phase::Racing) return Typed::Ignored;
    if (UCase(Trim(typed)) != UCase(s.TheWord)) return Typed::Wrong;
    pads_[0] += 1;
    letters_ += Len(s.TheWord);
    if (pads_[0] >= kPads) {
        phase_ = Phase::Won;
        winner_ = 0;
        return Typed::Home;
    }
    drawWord(s, rng);
    return Typed::Hop;
}

std::vector<Hop> Race::advance(int ms, Rng& rng) {
    std::vector<Hop> hops;
    if (phase_ != Phase::Racing || ms <= 0) return hops;
    clock_ += ms;
    for (;;) {
        int who = 0;
        for (int t = 1; t < kToads; ++t)
            if (next_[t] <= clock_ && (who == 0 || next_[t] < next_[who])) who = t;
        if (who == 0) break;
        pads_[who] += 1;
        hops.push_back({who, pads_[who], next_[who]});
        if (pads_[who] >= kPads) {
            phase_ = Phase::Lost;
            winner_ = who;
            break;
        }
        next_[who] += hopWait(level_, rng.Rnd());
    }
    return hops;
}

int Race::bestComputerPad() const {
    return *std::max_element(pads_.begin() + 1, pads_.end());
}

double Race::score() const {
    return ((kPads - bestComputerPad()) * 100 + letters_ * 5) * level_;
}

std::string lostText(const std::string& winnerName, const std::string& word) {
    return "Beaten by a nose! " + winnerName + " got home first. Your word was \"" + word +
           "\". Would you like to try again?";
}

const char* toadName(int toad) {
    static const char* const names[kToads] = {"You", "Goldie", "Puddles", "Ruby"};
    return names[std::clamp(toad, 0, kToads - 1)];
}

}  // namespace wm::toad_race
