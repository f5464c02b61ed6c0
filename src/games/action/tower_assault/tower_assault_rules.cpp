#include "games/action/tower_assault/tower_assault_rules.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "games/common/word_draw.h"

namespace wm::tower {

namespace {
constexpr int kDecoyDraws = 200;  // unlucky decoy draws before the draw walks on

int drawOneTo(Rng& rng, int n) {
    return std::clamp(static_cast<int>(Int(rng.Rnd() * n + 1)), 1, n);
}
}  // namespace

const char* const kNoDefinitions =
    "No word on this list has a definition for the guards to read out. Please choose another "
    "list.";
const char* const kTooFewWords =
    "The guards need at least two different words to throw. Please choose another list.";

double guardX(int g) {
    return 100 + 200 * (g - 1);
}

double fallSpeed(int rungs) {
    return 2.5 + 0.35 * rungs;
}

int dropInterval(int rungs) {
    return 1500 - 50 * rungs;
}

Start Game::start(SharedState& s, Rng& rng) {
    *this = Game{};
    rng.Randomize();
    const int loaded = std::min({int(s.WordCount), kMaxWords, int(s.Words.size()) - 1});
    words_.assign(1, std::string());
    std::set<std::string> different;
    bool defined = false;
    for (int k = 1; k <= loaded; ++k) {
        words_.push_back(s.Words[k]);
        if (Trim(s.Words[k]).empty()) continue;
        different.insert(UCase(s.Words[k]));
        if (size_t(k) < s.Meanings.size() && !Trim(s.Meanings[k]).empty()) defined = true;
    }
    if (!defined) return Start::NoDefinitions;
    if (different.size() < 2) return Start::TooFewWords;
    drawWord(s, rng);
    return Start::Ok;
}

bool Game::drawWord(SharedState& s, Rng& rng) {
    // A word is played by its text; its definition is the first one the list gives it.
    std::map<std::string, std::string> meaningOf;
    for (int k = 1; k < int(words_.size()); ++k)
        if (size_t(k) < s.Meanings.size() && !Trim(s.Meanings[k]).empty())
            meaningOf.emplace(s.Words[k], s.Meanings[k]);
    const int k = DrawFreshWord(s, rng, drawn_, kMaxWords, [&](const std::string& w) {
        return !Trim(w).empty() && meaningOf.count(w) > 0;
    });
    if (k <= 0) return false;
    drawn_.push_back(k);
    word_ = s.Words[k];
    s.TheWord = word_;
    s.TheMeaning = meaningOf[word_];
    return true;
}

std::vector<Event> Game::tick(SharedState& s, Rng& rng, int dir) {
    std::vector<Event> events;
    if (over()) return events;
    if (dir != 0)
        knight_ =
            std::clamp(knight_ + (dir < 0 ? -kKnightStep : kKnightStep), kKnightMin, kKnightMax);
    switch (phase_) {
        case Phase::Ready:
        case Phase::Built:
            phaseMs_ += kTickMs;
            if (phaseMs_ >= (phase_ == Phase::Ready ? kReadyMs : kBuildMs)) {
                const bool next = phase_ == Phase::Built;
                if (next) drawWord(s, rng);
                phase_ = Phase::Play;
                nextDropMs_ = kFirstDropMs;
                events.push_back(next ? Event::NextWord : Event::Go);
            }
            break;
        case Phase::Play:
            play(s, rng, events);
            break;
        case Phase::Won:
        case Phase::Lost:
            break;
    }
    return events;
}

void Game::play(SharedState&, Rng& rng, std::vector<Event>& events) {
    const double speed = fallSpeed(rungs_);
    for (size_t i = 0; i < scrolls_.size();) {
        Scroll& sc = scrolls_[i];
        const double before = sc.y;
        sc.y += speed;
        // Caught as it passes the knight's hands: falling past them, it is out of his reach.
        if (before < kCatchY && sc.y >= kCatchY && std::fabs(sc.x - knight_) <= kReach) {
            last_ = sc;
            if (sc.right) {
                rungs_ += 1;
                lastPoints_ = kRungPoints * rungs_;
                score_ += lastPoints_;
                scrolls_.clear();  // the guards duck while the rung goes on
                events.push_back(Event::Caught);
                phaseMs_ = 0;
                phase_ = rungs_ >= kRungsToWin ? Phase::Won : Phase::Built;
                if (phase_ == Phase::Won) events.push_back(Event::Won);
                return;
            }
            shields_ -= 1;
            lastPoints_ = -kWrongPoints;
            score_ -= kWrongPoints;
            scrolls_.erase(scrolls_.begin() + long(i));
            events.push_back(Event::Wrong);
            if (shields_ <= 0) {
                phase_ = Phase::Lost;
                events.push_back(Event::Lost);
                return;
            }
            continue;
        }
        if (sc.y >= kGroundY) {
            // A right scroll on the ground is not lost: a guard throws it again later.
            last_ = sc;
            events.push_back(sc.right ? Event::RightLanded : Event::Landed);
            scrolls_.erase(scrolls_.begin() + long(i));
            continue;
        }
        ++i;
    }
    nextDropMs_ -= kTickMs;
    if (nextDropMs_ <= 0) {
        toss(rng);
        nextDropMs_ += dropInterval(rungs_);
        events.push_back(Event::Thrown);
    }
}

void Game::toss(Rng& rng) {
    Scroll sc;
    sc.id = nextId_++;
    // A guard never throws twice running: his neighbour along takes the turn.
    sc.guard = drawOneTo(rng, kGuards);
    if (sc.guard == lastGuard_) sc.guard = sc.guard % kGuards + 1;
    lastGuard_ = sc.guard;
    sc.x = guardX(sc.guard);
    const double share = rng.Rnd();
    const bool rightAfloat =
        std::any_of(scrolls_.begin(), scrolls_.end(), [](const Scroll& o) { return o.right; });
    sc.right = !rightAfloat && (share < kRightShare || decoysInARow_ >= kMostDecoysInARow);
    sc.word = sc.right ? word_ : decoy(rng);
    decoysInARow_ = sc.right ? 0 : decoysInARow_ + 1;
    scrolls_.push_back(sc);
}

std::string Game::decoy(Rng& rng) const {
    const int n = int(words_.size()) - 1;
    const std::string right = UCase(word_);
    auto other = [&](int k) { return !Trim(words_[k]).empty() && UCase(words_[k]) != right; };
    auto fresh = [&](int k) {
        const std::string w = UCase(words_[k]);
        return other(k) && std::none_of(scrolls_.begin(), scrolls_.end(),
                                        [&](const Scroll& sc) { return UCase(sc.word) == w; });
    };
    // Another word of the list, and not one already in the air while the list has enough.
    int k = 1;
    for (int tries = 0; tries < kDecoyDraws; ++tries) {
        k = drawOneTo(rng, n);
        if (fresh(k)) return words_[k];
    }
    for (int i = 1; i <= n; ++i)
        if (fresh((k - 1 + i) % n + 1)) return words_[(k - 1 + i) % n + 1];
    for (int i = 1; i <= n; ++i)
        if (other((k - 1 + i) % n + 1)) return words_[(k - 1 + i) % n + 1];
    return std::string();
}

std::string lostText(const std::string& word) {
    return "The guards drove you back! The word was \"" + word + "\". Would you like to try again?";
}

}  // namespace wm::tower
