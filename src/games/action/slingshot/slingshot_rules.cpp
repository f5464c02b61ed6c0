#include "games/action/slingshot/slingshot_rules.h"

#include <algorithm>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::slingshot {

const char* const kTooFewWords =
    "This list has fewer than four different words, and Slingshot needs four targets. Please "
    "choose another list.";
const char* const kNoDefinitions =
    "The words of this list have no definitions to aim at. Please choose another list.";

namespace {
constexpr double kPi = 3.14159265358979323846;
constexpr double kSlotStep = 290;  // between two ropes
// Neighbours swing a little behind each other, a ripple along the beam; never far enough
// apart to meet.
constexpr double kPhaseStep = 0.7;

std::string key(const std::string& word) {
    return UCase(Trim(word));
}

int loaded(const SharedState& s) {
    // A list over the limit keeps WordCount at 1001: the draw is among the entries loaded.
    return std::clamp<int>(s.WordCount, 0, std::min<int>(kMaxWords, int(s.Words.size()) - 1));
}

// k = Int(Rnd x n + 1) until `fit` says yes, at most kWordDraws times; then the next fit entry
// after the last draw. 0 when no entry is fit.
template <class Fit>
int drawFit(Rng& rng, int n, Fit fit) {
    auto draw = [&] { return std::clamp(static_cast<int>(Int(rng.Rnd() * n + 1)), 1, n); };
    int k = draw();
    for (int tries = 1; !fit(k) && tries < kWordDraws; ++tries) k = draw();
    for (int step = 0; step < n; ++step, k = k % n + 1)
        if (fit(k)) return k;
    return 0;
}
}  // namespace

Point pouchRest() {
    return {kFieldW / 2, 520};
}

Point pullPouch(Point pointer) {
    const Point rest = pouchRest();
    double dx = pointer.x - rest.x;
    double dy = std::max(0.0, pointer.y - rest.y);
    const double len = std::hypot(dx, dy);
    if (len > kMaxPull) {
        dx *= kMaxPull / len;
        dy *= kMaxPull / len;
    }
    return {rest.x + dx, rest.y + dy};
}

double swingDegrees(int level) {
    return 6 + 3 * level;  // 9 at level 1, 33 at level 9
}

int swingPeriodMs(int level) {
    return 3800 - 250 * level;  // 3550 at level 1, 1550 at level 9
}

Point pivot(int slot) {
    return {kFieldW / 2 + (slot - 1.5) * kSlotStep, kBeamY};
}

double ropeLength(int slot) {
    // The outer targets hang lower: seen from the slingshot, none hides behind another.
    return slot == 0 || slot == kTargets - 1 ? 240 : 170;
}

Point targetAt(int slot, int level, long long ms, long long sinceDeal) {
    const double swing = swingDegrees(level) * kPi / 180 *
                         std::sin(2 * kPi * double(ms) / swingPeriodMs(level) + slot * kPhaseStep);
    double rope = ropeLength(slot);
    if (sinceDeal >= 0 && sinceDeal < kDropInMs) {
        // Let down from the beam: the rope pays out, quickly at first.
        const double u = 1 - double(sinceDeal) / kDropInMs;
        rope = kTargetRadius * 0.6 + (rope - kTargetRadius * 0.6) * (1 - u * u);
    }
    const Point p = pivot(slot);
    return {p.x + rope * std::sin(swing), p.y + rope * std::cos(swing)};
}

std::string Game::start(SharedState& s, Rng& rng) {
    *this = Game{};
    level_ = std::clamp(s.Difficulty, kMinLevel, kMaxLevel);
    rng.Randomize();
    const int n = loaded(s);
    std::vector<std::string> keys;
    bool defined = false;
    for (int k = 1; k <= n; ++k) {
        const std::string w = key(s.Words[k]);
        if (w.empty()) continue;
        if (std::find(keys.begin(), keys.end(), w) == keys.end()) keys.push_back(w);
        defined = defined || !Trim(s.Meanings[k]).empty();
    }
    if (static_cast<int>(keys.size()) < kTargets) return kTooFewWords;
    if (!defined) return kNoDefinitions;
    used_.assign(n + 1, false);
    s.Score = 0;
    return deal(s, rng) ? "" : kTooFewWords;
}

bool Game::next(SharedState& s, Rng& rng) {
    if (phase_ != Phase::Solved && phase_ != Phase::Revealed) return false;
    if (definition_ >= kDefinitions) {
        phase_ = Phase::Over;
        return false;
    }
    return deal(s, rng);
}

bool Game::deal(SharedState& s, Rng& rng) {
    const int n = static_cast<int>(used_.size()) - 1;
    auto defined = [&](int k) {
        return !key(s.Words[k]).empty() && !Trim(s.Meanings[k]).empty();
    };
    auto fresh = [&](int k) { return !used_[k] && defined(k); };
    auto anyFresh = [&](int except) {
        for (int k = 1; k <= n; ++k)
            if (k != except && fresh(k)) return true;
        return false;
    };
    // Every definition has had its turn: again from the start, but not the one just played.
    if (!anyFresh(0)) {
        std::fill(used_.begin(), used_.end(), false);
        if (entry_ > 0 && anyFresh(entry_)) used_[entry_] = true;
    }
    const int k = drawFit(rng, n, fresh);
    if (k == 0) return false;
    used_[k] = true;
    entry_ = k;
    s.TheWord = s.Words[k];
    s.TheMeaning = s.Meanings[k];

    std::vector<std::string> taken{key(s.Words[k])};
    std::array<std::string, kTargets - 1> others;
    for (auto& other : others) {
        const int d = drawFit(rng, n, [&](int j) {
            const std::string w = key(s.Words[j]);
            return !w.empty() && std::find(taken.begin(), taken.end(), w) == taken.end();
        });
        if (d == 0) return false;
        taken.push_back(key(s.Words[d]));
        other = s.Words[d];
    }
    right_ = std::clamp(static_cast<int>(Int(rng.Rnd() * kTargets + 1)), 1, kTargets) - 1;
    for (int slot = 0, o = 0; slot < kTargets; ++slot)
        words_[slot] = slot == right_ ? s.TheWord : others[o++];

    ++definition_;
    stones_ = kStones;
    hit_ = -1;
    solved_ = false;
    dealtAt_ = clock_;
    phase_ = Phase::Aiming;
    return true;
}

bool Game::fire(Point pouch) {
    if (phase_ != Phase::Aiming || stones_ <= 0) return false;
    const Point rest = pouchRest();
    const Point at = pullPouch(pouch);
    const double dx = rest.x - at.x, dy = rest.y - at.y;
    if (std::hypot(dx, dy) < kMinPull) return false;
    stone_ = rest;
    speed_ = {dx * kSpeedPerPull, dy * kSpeedPerPull};
    phase_ = Phase::Flying;
    return true;
}

Point Game::target(int slot) const {
    return targetAt(slot, level_, clock_, clock_ - dealtAt_);
}

Shot Game::step() {
    clock_ += kTickMs;
    if (phase_ != Phase::Flying) return Shot::None;
    speed_.y += kDrop;
    stone_.x += speed_.x;
    stone_.y += speed_.y;
    for (int slot = 0; slot < kTargets; ++slot) {
        const Point t = target(slot);
        if (std::hypot(stone_.x - t.x, stone_.y - t.y) > kTargetRadius + kStoneRadius) continue;
        hit_ = slot;
        if (slot == right_) {
            score_ += 100 * level_;
            solved_ = true;
            phase_ = Phase::Solved;
            return Shot::Right;
        }
        score_ -= 50;
        spend();
        return Shot::Wrong;
    }
    const double edge = 2 * kStoneRadius;
    if (stone_.x < -edge || stone_.x > kFieldW + edge || stone_.y < -edge ||
        stone_.y > kFieldH + edge) {
        hit_ = -1;
        spend();
        return Shot::Miss;
    }
    return Shot::Flying;
}

void Game::spend() {
    markTrouble();
    --stones_;
    phase_ = stones_ > 0 ? Phase::Aiming : Phase::Revealed;
}

void Game::markTrouble() {
    const std::string& w = words_[right_];
    if (trouble_.empty() || trouble_.back() != w) trouble_.push_back(w);
}

std::string lostText(const std::vector<std::string>& words) {
    std::string list;
    for (const auto& w : words) list += (list.empty() ? "" : ", ") + w;
    return "No points this time! The words to practise: " + list +
           ". Would you like to try again?";
}

}  // namespace wm::slingshot
