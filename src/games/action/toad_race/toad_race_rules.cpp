#include "games/action/toad_race/toad_race_rules.h"

#include <algorithm>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::toad_race {

int hopInterval(int level) {
    // Tuned by playing: at 4000 - 250 x level a pupil typing a seven-letter word in five
    // seconds lost every race at level 1. Level 10 keeps its 1500 ms; the easy end is gentler.
    return 8000 - 650 * level;
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
    // A list over the limit keeps WordCount at 1001: the draw is among the entries loaded.
    const int loaded = std::min<int>(s.WordCount, kMaxWords);
    if (loaded <= 0) return false;
    used_.assign(loaded + 1, false);
    drawWord(s, rng);
    for (int t = 1; t < kToads; ++t) next_[t] = hopWait(level_, rng.Rnd());
    return !s.TheWord.empty();
}

void Race::drawWord(SharedState& s, Rng& rng) {
    const int n = static_cast<int>(used_.size()) - 1;
    auto draw = [&] { return std::clamp(static_cast<int>(Int(rng.Rnd() * n + 1)), 1, n); };
    // Every word has had its turn: repeats from here, but not the word just played.
    if (usedCount_ >= n) {
        std::fill(used_.begin(), used_.end(), false);
        usedCount_ = 0;
        if (n > 1) {
            used_[word_] = true;
            usedCount_ = 1;
        }
    }
    int k = draw();
    for (int tries = 1; used_[k] && tries < kWordDraws; ++tries) k = draw();
    // Bounded: after that many used draws, the next free entry after the last draw.
    for (int step = 1; used_[k] && step < n; ++step) k = k % n + 1;
    used_[k] = true;
    ++usedCount_;
    word_ = k;
    s.TheWord = s.Words[k];
    s.TheMeaning = s.Meanings[k];
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
    return names[toad];
}

}  // namespace wm::toad_race
