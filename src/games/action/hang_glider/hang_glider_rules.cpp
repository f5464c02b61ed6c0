#include "games/action/hang_glider/hang_glider_rules.h"

#include <algorithm>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "games/common/word_draw.h"

namespace wm::hang_glider {

namespace {
constexpr double kEnterX = kWorldW + 60;  // a letter comes in just beyond the right edge
constexpr double kLeaveX = -80;           // ...and is gone past the left one

bool playable(const std::string& word) {
    return Len(word) <= kMaxLength && std::any_of(word.begin(), word.end(), IsLetterOrDigit);
}

char capital(char c) {
    return UCase(std::string(1, c))[0];
}
}  // namespace

double letterSpeed(int level) {
    return 2 + 0.35 * level;
}


bool Game::start(SharedState& s, Rng& rng) {
    *this = Game{};
    // Beyond the slider the letters would stand still or flash past.
    level_ = std::clamp<int>(s.Difficulty, kMinLevel, kMaxLevel);
    rng.Randomize();
    return nextWord(s, rng);
}

bool Game::drawWord(SharedState& s, Rng& rng) {
    const int k = DrawFreshWord(s, rng, drawn_, kMaxWords, playable);
    if (k <= 0) return false;
    drawn_.push_back(k);
    s.TheWord = s.Words[k];
    s.TheMeaning = s.Meanings[k];
    word_ = s.TheWord;
    return true;
}

bool Game::nextWord(SharedState& s, Rng& rng) {
    if (words_ >= kWordsToWin || !drawWord(s, rng)) return false;
    ++words_;
    done_ = 0;
    skipMarks();
    letters_.clear();
    decoysInARow_ = 0;
    lift_ = 0;
    phase_ = Phase::Ready;
    return true;
}

void Game::skipMarks() {
    while (done_ < int(word_.size()) && !IsLetterOrDigit(word_[done_])) ++done_;
}

void Game::go() {
    if (phase_ != Phase::Ready) return;
    phase_ = Phase::Flying;
    untilNext_ = 0;  // the first letter comes at once
}

void Game::spawn(Rng& rng) {
    const char next = capital(word_[done_]);
    const bool isNext = Int(rng.Rnd() * 3 + 1) == 1 || decoysInARow_ >= kEveryFew;
    Letter l;
    l.x = kEnterX;
    if (isNext) {
        l.letter = next;
        decoysInARow_ = 0;
    } else {
        // A decoy is any capital but the one wanted now, the word's own letters included:
        // the order is the game.
        std::string pool;
        for (char c = 'A'; c <= 'Z'; ++c)
            if (c != next) pool += c;
        const int n = int(pool.size());
        l.letter = pool[std::clamp(int(Int(rng.Rnd() * n + 1)), 1, n) - 1];
        ++decoysInARow_;
    }
    l.y = kLetterLow + rng.Rnd() * (kLetterHigh - kLetterLow);
    letters_.push_back(l);
}

std::vector<Event> Game::tick(const Input& in, Rng& rng) {
    std::vector<Event> ev;
    // A landed glider stops the world; otherwise the sky scrolls on in every phase and the
    // letters in the air drift by, behind the boxes too.
    if (phase_ == Phase::Lost) return ev;
    const double v = letterSpeed(level_);
    scroll_ += v;
    for (Letter& l : letters_) l.x -= v;
    std::erase_if(letters_, [](const Letter& l) { return l.x < kLeaveX; });
    if (phase_ != Phase::Flying) return ev;

    untilNext_ -= v;
    if (untilNext_ <= 0) {
        spawn(rng);
        untilNext_ += kSpacing;
    }

    // The air sinks the glider and the height it can climb back to; a thermal lifts it.
    ceiling_ = std::min(ceiling_ + kSink, kGroundY);
    y_ += std::clamp(in.steer, -1, 1) * kSteer + kSink;
    if (lift_ > 0) {
        y_ -= kThermal / kLiftTicks;
        --lift_;
    }
    y_ = std::max(y_, ceiling_);

    for (std::size_t i = 0; i < letters_.size() && phase_ == Phase::Flying;) {
        const Letter& l = letters_[i];
        if (std::abs(l.x - kGliderX) < kReachX && std::abs(l.y - y_) < kReachY)
            touch(i, ev);
        else
            ++i;
    }

    if (phase_ == Phase::Flying && y_ + kKeel >= kGroundY) {
        y_ = kGroundY - kKeel;
        phase_ = Phase::Lost;
        ev.push_back({.kind = Event::Lost, .x = kGliderX, .y = kGroundY});
    }
    return ev;
}

void Game::touch(std::size_t i, std::vector<Event>& ev) {
    const Letter l = letters_[i];
    letters_.erase(letters_.begin() + i);
    if (l.letter != capital(word_[done_])) {
        // Points never go below nothing.
        score_ = std::max(0, score_ - 5 * level_);
        y_ += kDrop;
        ceiling_ = std::min(ceiling_ + kDrop, kGroundY);
        ev.push_back({Event::Wrong, l.letter, l.x, l.y});
        return;
    }
    score_ += 10 * level_;
    ceiling_ = std::max(kSkyTop, ceiling_ - kThermal);
    lift_ = kLiftTicks;
    ++done_;
    skipMarks();
    ev.push_back({Event::Right, l.letter, l.x, l.y});
    if (done_ < int(word_.size())) return;
    phase_ = words_ >= kWordsToWin ? Phase::Won : Phase::Spelled;
    ev.push_back({Event::Spelled});
    if (phase_ == Phase::Won) ev.push_back({Event::Won});
}

std::string lostText(const std::string& word) {
    return "You landed too early! The word was " + word + ".";
}

}  // namespace wm::hang_glider
