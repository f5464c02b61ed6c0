#include "games/puzzles/safe_cracker/safe_cracker_rules.h"

#include <algorithm>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "games/common/word_draw.h"

namespace wm::safe {

namespace {

std::string upper1(char c) {
    return UCase(std::string(1, c));
}
}  // namespace

bool typable(char c) {
    return IsLetterOrDigit(c);
}

bool fixedChar(char c) {
    return !typable(c);
}

bool playable(const std::string& word) {
    if (Len(word) > kMaxLetters) return false;
    return std::any_of(word.begin(), word.end(), typable);
}

int safePoints(int triesUsed, int length) {
    return (7 - triesUsed) * 50 + length * 10;
}

std::vector<Mark> markGuess(const std::string& word, const std::string& guess) {
    const std::size_t n = std::min(word.size(), guess.size());
    std::vector<Mark> marks(word.size(), Mark::Unknown);
    // The word's letters not matched in place, as many of each as the word has left.
    std::string left;
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (fixedChar(word[i])) continue;
        if (i < n && upper1(word[i]) == upper1(guess[i]))
            marks[i] = Mark::Green;
        else
            left += upper1(word[i]);
    }
    for (std::size_t i = 0; i < n; ++i) {
        if (fixedChar(word[i]) || marks[i] == Mark::Green) continue;
        const auto at = left.find(upper1(guess[i]));
        if (at == std::string::npos) {
            marks[i] = Mark::Grey;
        } else {
            marks[i] = Mark::Amber;
            left.erase(at, 1);
        }
    }
    return marks;
}

int drawWord(const SharedState& s, Rng& rng, const std::vector<int>& drawn) {
    return DrawFreshWord(s, rng, drawn, kMaxWords, playable);
}

bool Game::start(SharedState& s, Rng& rng) {
    rng.Randomize();
    s.Score = 0;
    number_ = 0;
    safesOpened_ = 0;
    drawn_.clear();
    words_.clear();
    return drawNext(s, rng);
}

bool Game::nextSafe(SharedState& s, Rng& rng) {
    if (lastSafe()) return false;
    return drawNext(s, rng);
}

bool Game::drawNext(SharedState& s, Rng& rng) {
    decided_ = true;
    const int k = drawWord(s, rng, drawn_);
    if (k == 0) return false;
    drawn_.push_back(k);
    word_ = s.Words[k];
    words_.push_back(word_);
    s.TheWord = word_;
    s.TheMeaning = k < static_cast<int>(s.Meanings.size()) ? s.Meanings[k] : std::string();
    open_ = int(std::count_if(word_.begin(), word_.end(), typable));
    typed_.clear();
    rows_.clear();
    opened_ = false;
    decided_ = false;
    ++number_;
    return true;
}

Entry Game::type(char c) {
    if (decided_ || typedCount() >= open_ || !typable(c)) return Entry::Ignored;
    typed_ += c;
    return Entry::Typed;
}

Entry Game::erase() {
    if (decided_ || typed_.empty()) return Entry::Ignored;
    typed_.pop_back();
    return Entry::Erased;
}

std::string Game::current() const {
    std::string row = word_;
    std::size_t t = 0;
    for (char& c : row) {
        if (fixedChar(c)) continue;
        c = t < typed_.size() ? typed_[t] : ' ';
        ++t;
    }
    return row;
}

Entry Game::enter(SharedState& s) {
    if (decided_) return Entry::Ignored;
    if (typedCount() < open_) return Entry::Short;
    const std::string guess = current();
    for (const Row& r : rows_)
        if (UCase(r.guess) == UCase(guess)) return Entry::Repeat;
    Row row{guess, markGuess(word_, guess)};
    rows_.push_back(row);
    typed_.clear();
    if (UCase(guess) == UCase(word_)) {
        lastPoints_ = safePoints(triesUsed(), Len(word_));
        s.Score += lastPoints_;
        ++safesOpened_;
        opened_ = true;
        decided_ = true;
        return Entry::Opened;
    }
    if (triesUsed() >= kTries) {
        decided_ = true;
        return Entry::Alarm;
    }
    return Entry::Wrong;
}

Mark Game::keyMark(char c) const {
    const std::string up = upper1(c);
    Mark best = Mark::Unknown;
    for (const Row& r : rows_)
        for (std::size_t i = 0; i < r.guess.size(); ++i)
            if (r.marks[i] != Mark::Unknown && upper1(r.guess[i]) == up)
                best = std::max(best, r.marks[i]);
    return best;
}

std::string alarmText(const std::string& word) {
    return "The alarm went off! The combination was " + word + ".";
}

std::string lostText(const std::vector<std::string>& words) {
    std::string list;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i > 0) list += i + 1 == words.size() ? " and " : ", ";
        list += words[i];
    }
    return "The alarm went off at every safe! The combinations were " + list + ".";
}

}  // namespace wm::safe
