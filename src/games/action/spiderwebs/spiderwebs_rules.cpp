#include "games/action/spiderwebs/spiderwebs_rules.h"

#include <algorithm>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "games/common/word_draw.h"

namespace wm::spiderwebs {

int crawlMs(int round) {
    return 12000 - 500 * (round - 1);
}

int freedPoints(int msLeft) {
    return static_cast<int>(Int(msLeft / 100.0)) * 2;
}

Start Game::start(SharedState& s, Rng& rng) {
    *this = Game{};
    // A level outside the slider would hang no fly or more than the web has threads for.
    level_ = std::clamp(s.Difficulty, kMinLevel, kMaxLevel);
    rng.Randomize();
    // A list over the limit keeps WordCount at 1001: the draws are among the entries loaded.
    loaded_ =
        std::min({static_cast<int>(s.WordCount), kMaxWords, static_cast<int>(s.Words.size()) - 1});
    std::vector<std::string> seen;
    bool defined = false;
    for (int k = 1; k <= loaded_; ++k) {
        if (s.Words[k].empty()) continue;
        const std::string w = UCase(s.Words[k]);
        if (std::find(seen.begin(), seen.end(), w) == seen.end()) seen.push_back(w);
        if (std::size_t(k) < s.Meanings.size() && !s.Meanings[k].empty()) defined = true;
    }
    different_ = static_cast<int>(seen.size());
    if (!defined) return Start::NoDefinitions;
    // Every fly of the web carries a word of its own.
    if (different_ < level_) return Start::TooFewWords;
    setUpRound(s, rng);
    return Start::Ok;
}

void Game::setUpRound(SharedState& s, Rng& rng) {
    ++round_;
    phase_ = Phase::Ready;
    phaseMs_ = 0;
    wrongs_ = 0;
    crawled_ = 0;
    lastPoints_ = 0;
    // The definition's word: one that has a meaning somewhere in the list.
    auto meaningOf = [&](const std::string& word) -> int {
        for (int k = 1; k <= loaded_; ++k)
            if (s.Words[k] == word && std::size_t(k) < s.Meanings.size() && !s.Meanings[k].empty())
                return k;
        return 0;
    };
    int k = DrawFreshWord(s, rng, drawn_, kMaxWords,
                          [&](const std::string& w) { return !w.empty() && meaningOf(w) > 0; });
    k = meaningOf(s.Words[k]);
    drawn_.push_back(k);
    s.TheWord = s.Words[k];
    s.TheMeaning = s.Meanings[k];

    flies_.assign(level_, Fly{});
    answer_ = std::clamp(static_cast<int>(Int(rng.Rnd() * level_ + 1)), 1, level_) - 1;
    flies_[answer_].word = s.TheWord;
    for (int i = 0; i < level_; ++i)
        if (i != answer_) flies_[i].word = drawDecoy(s, rng);
}

bool Game::inWeb(const std::string& word) const {
    const std::string w = UCase(word);
    return std::any_of(flies_.begin(), flies_.end(),
                       [&](const Fly& f) { return !f.word.empty() && UCase(f.word) == w; });
}

std::string Game::drawDecoy(const SharedState& s, Rng& rng) const {
    auto fits = [&](int k) { return !s.Words[k].empty() && !inWeb(s.Words[k]); };
    int k = 1;
    for (int tries = 0; tries < kDecoyDraws; ++tries) {
        k = std::clamp(static_cast<int>(Int(rng.Rnd() * loaded_ + 1)), 1, loaded_);
        if (fits(k)) return s.Words[k];
    }
    // Bounded: after that many unlucky draws, the next word not yet in the web.
    for (int i = 1; i <= loaded_; ++i) {
        const int j = (k - 1 + i) % loaded_ + 1;
        if (fits(j)) return s.Words[j];
    }
    return {};
}

std::vector<Event> Game::advance(SharedState& s, int ms, Rng& rng) {
    std::vector<Event> events;
    switch (phase_) {
        case Phase::Ready:
            phaseMs_ += ms;
            if (phaseMs_ >= kReadyMs) {
                phase_ = Phase::Crawling;
                events.push_back(Event::Go);
            }
            break;
        case Phase::Crawling:
            crawled_ += ms * hurry();
            if (crawled_ >= crawlMs(round_)) {
                // The spider is at its fly: no points for this definition.
                crawled_ = crawlMs(round_);
                phase_ = Phase::Caught;
                phaseMs_ = 0;
                events.push_back(Event::Caught);
            }
            break;
        case Phase::Freed:
        case Phase::Caught:
            phaseMs_ += ms;
            if (phaseMs_ < (phase_ == Phase::Freed ? kFreedMs : kCaughtMs)) break;
            if (round_ >= kRounds) {
                phase_ = Phase::Over;
                events.push_back(Event::Over);
            } else {
                setUpRound(s, rng);
                events.push_back(Event::NextRound);
            }
            break;
        case Phase::Over:
            break;
    }
    return events;
}

Click Game::click(int fly) {
    if (phase_ != Phase::Ready && phase_ != Phase::Crawling) return Click::Ignored;
    if (fly < 0 || fly >= static_cast<int>(flies_.size()) || flies_[fly].eaten)
        return Click::Ignored;
    if (fly != answer_) {
        flies_[fly].eaten = true;
        score_ -= kWrongCost;
        ++wrongs_;
        return Click::Wrong;
    }
    lastPoints_ = freedPoints(msLeft());
    score_ += lastPoints_;
    ++freed_;
    phase_ = Phase::Freed;
    phaseMs_ = 0;
    return Click::Right;
}

double Game::progress() const {
    return crawled_ / crawlMs(round_);
}

int Game::msLeft() const {
    return static_cast<int>(std::ceil((crawlMs(round_) - crawled_) / hurry()));
}

std::string noDefinitionsText() {
    return "Spiderwebs shows a definition for every fly, and the words on this list have none. "
           "Please choose another list.";
}

std::string tooFewWordsText(int level, int different) {
    return "At level " + std::to_string(level) + " the web holds " + std::to_string(level) +
           " flies, each with a different word, but this list has only " +
           std::to_string(different) +
           " different words. Please choose another list or a lower level.";
}

std::string noPointsText(double score) {
    return "All ten definitions are done, but your score is " + NumText(score) +
           ", so it cannot go on the high score table. Would you like to try again?";
}

}  // namespace wm::spiderwebs
