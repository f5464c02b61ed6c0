#include "games/action/cannon_shot/cannon_shot_rules.h"

#include <algorithm>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::cannon_shot {

namespace {
constexpr double kPi = 3.14159265358979323846;
constexpr double kBob = 9;  // how far a balloon bobs up and down

double rad(double degrees) {
    return degrees * kPi / 180;
}
}  // namespace

double segmentDistance(double ax, double ay, double bx, double by, double cx, double cy,
                       double* along) {
    const double dx = bx - ax, dy = by - ay;
    const double len2 = dx * dx + dy * dy;
    double u = len2 > 0 ? ((cx - ax) * dx + (cy - ay) * dy) / len2 : 0;
    u = std::clamp(u, 0.0, 1.0);
    *along = u;
    return std::hypot(ax + u * dx - cx, ay + u * dy - cy);
}

double balloonSpeed(int level) {
    return 0.5 + 0.09 * level;
}

double maxWind(int level) {
    return level < kWindLevel ? 0 : 0.01 + 0.004 * (level - kWindLevel);
}

double powerAfter(int ticks) {
    const int t = ticks % (2 * kChargeTicks);
    return (t <= kChargeTicks ? t : 2 * kChargeTicks - t) / double(kChargeTicks);
}

int ballsFor(const std::string& word) {
    return 2 * Len(word) + 3;
}


bool Game::start(SharedState& s, Rng& rng) {
    *this = Game{};
    // Beyond the slider a balloon would stand still or cross the sky in a blink.
    level_ = std::clamp<int>(s.Difficulty, kMinLevel, kMaxLevel);
    rng.Randomize();
    const int loaded = std::min<int>(s.WordCount, kMaxWords);
    if (loaded <= 0 || int(s.Words.size()) <= loaded) return false;
    used_.assign(loaded + 1, false);
    fits_.assign(loaded + 1, false);
    bool any = false;
    for (int k = 1; k <= loaded; ++k) {
        const std::string& w = s.Words[k];
        fits_[k] = Len(w) <= kMaxLength && std::any_of(w.begin(), w.end(), IsLetterOrDigit);
        any = any || fits_[k];
    }
    if (!any) return false;
    return nextWord(s, rng);
}

bool Game::drawWord(SharedState& s, Rng& rng) {
    const int n = static_cast<int>(used_.size()) - 1;
    auto usable = [&](int k) { return fits_[k] && !used_[k]; };
    bool free = false;
    for (int k = 1; k <= n && !free; ++k) free = usable(k);
    // Every word that fits has had its turn: repeats from here, but not the word just played
    // while there is another.
    if (!free) {
        std::fill(used_.begin(), used_.end(), false);
        const int fitting = int(std::count(fits_.begin(), fits_.end(), true));
        if (fitting > 1 && lastEntry_ > 0) used_[lastEntry_] = true;
    }
    auto draw = [&] { return std::clamp(static_cast<int>(Int(rng.Rnd() * n + 1)), 1, n); };
    int k = draw();
    for (int tries = 1; !usable(k) && tries < kWordDraws; ++tries) k = draw();
    // Bounded: after that many draws, the next usable entry after the last one drawn.
    for (int step = 1; !usable(k) && step < n; ++step) k = k % n + 1;
    if (!usable(k)) return false;
    used_[k] = true;
    lastEntry_ = k;
    s.TheWord = s.Words[k];
    s.TheMeaning = s.Meanings[k];
    word_ = s.TheWord;
    return true;
}

bool Game::nextWord(SharedState& s, Rng& rng) {
    if (words_ >= kWordsToWin || !drawWord(s, rng)) return false;
    ++words_;
    setUpWord(rng);
    phase_ = Phase::Ready;
    return true;
}

void Game::setUpWord(Rng& rng) {
    balls_ = ballsFor(word_);
    ball_ = Ball{};
    charge_ = 0;
    wind_ = level_ >= kWindLevel ? (2 * rng.Rnd() - 1) * maxWind(level_) : 0;

    // The blanks: what is not shot stands from the start.
    blanks_.assign(word_.size(), '\0');
    std::vector<Balloon> set;
    std::string inWord;
    for (std::size_t i = 0; i < word_.size(); ++i) {
        if (!IsLetterOrDigit(word_[i])) {
            blanks_[i] = word_[i];
            continue;
        }
        Balloon b;
        b.letter = UCase(std::string(1, word_[i]))[0];
        set.push_back(b);
        inWord += b.letter;
    }
    next_ = -1;
    for (std::size_t i = 0; i < word_.size() && next_ < 0; ++i)
        if (blanks_[i] == '\0') next_ = int(i);

    // level / 2 decoys, letters the word does not have.
    std::string pool;
    for (char c = 'A'; c <= 'Z'; ++c)
        if (inWord.find(c) == std::string::npos) pool += c;
    if (pool.empty()) pool = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    for (int d = 0; d < level_ / 2; ++d) {
        Balloon b;
        b.decoy = true;
        const int at = std::clamp(int(Int(rng.Rnd() * pool.size())), 0, int(pool.size()) - 1);
        b.letter = pool[at];
        set.push_back(b);
    }
    // Shuffled into their places on the round.
    for (int i = int(set.size()) - 1; i > 0; --i) {
        const int j = std::clamp(int(Int(rng.Rnd() * (i + 1))), 0, i);
        std::swap(set[i], set[j]);
    }
    loop_ = std::max(kWorldW + 2 * kBalloonR, set.size() * kSpacing);
    for (std::size_t i = 0; i < set.size(); ++i) {
        set[i].x = kFirstX + i * kSpacing;
        set[i].alt = kSkyTop + rng.Rnd() * (kSkyBottom - kSkyTop);
        set[i].y = set[i].alt;
    }
    balloons_ = std::move(set);
}

void Game::go() {
    if (phase_ == Phase::Ready) phase_ = Phase::Aiming;
}

double Game::muzzleX() const {
    return kPivotX + kBarrel * std::cos(rad(angle_));
}

double Game::muzzleY() const {
    return kPivotY - kBarrel * std::sin(rad(angle_));
}

void Game::fire(double angle, double power) {
    angle_ = std::clamp(angle, kMinAngle, kMaxAngle);
    const double speed = kMinSpeed + (kMaxSpeed - kMinSpeed) * std::clamp(power, 0.0, 1.0);
    ball_.flying = true;
    ball_.x = muzzleX();
    ball_.y = muzzleY();
    ball_.vx = speed * std::cos(rad(angle_));
    ball_.vy = -speed * std::sin(rad(angle_));
    charge_ = 0;
    --balls_;
}

std::vector<Event> Game::tick(const Input& in, Rng& rng) {
    std::vector<Event> ev;
    ++ticks_;
    // The balloons drift on in every phase, behind the end boxes too; nothing else moves then.
    moveBalloons(rng, ev);
    if (phase_ != Phase::Aiming) return ev;

    angle_ = std::clamp(angle_ + in.turn * kTurnStep, kMinAngle, kMaxAngle);
    if (ball_.flying) {
        flyBall(ev);
    } else if (in.space && balls_ > 0) {
        ++charge_;
    } else if (charge_ > 0) {
        // Let go: the bar's height is the shot's power.
        fire(angle_, powerAfter(charge_));
        ev.push_back({Event::Fired, -1, ball_.x, ball_.y});
    }
    if (phase_ == Phase::Aiming && !ball_.flying && balls_ <= 0) {
        phase_ = Phase::Lost;
        ev.push_back({Event::Lost});
    }
    return ev;
}

void Game::moveBalloons(Rng& rng, std::vector<Event>& ev) {
    const double v = balloonSpeed(level_);
    for (std::size_t i = 0; i < balloons_.size(); ++i) {
        Balloon& b = balloons_[i];
        if (b.gone) continue;
        b.x -= v;
        if (b.x < -kBalloonR) {
            // Off the left edge: round again, in from the right at a new height. A balloon
            // popped wrong floats in again here.
            b.x += loop_;
            b.alt = kSkyTop + rng.Rnd() * (kSkyBottom - kSkyTop);
            if (b.out) {
                b.out = false;
                ev.push_back({Event::Back, int(i), b.x, b.alt});
            }
        }
        b.y = b.alt + kBob * std::sin(ticks_ * 0.045 + i * 1.3);
    }
}

void Game::flyBall(std::vector<Event>& ev) {
    Ball& b = ball_;
    const double x0 = b.x, y0 = b.y;
    b.vx += wind_;
    b.vy += kGravity;
    b.x += b.vx;
    b.y += b.vy;
    // The first balloon along the ball's path this tick takes the ball.
    int hit = -1;
    double first = 2;
    for (std::size_t i = 0; i < balloons_.size(); ++i) {
        const Balloon& bl = balloons_[i];
        if (!bl.shown()) continue;
        double along = 0;
        if (segmentDistance(x0, y0, b.x, b.y, bl.x, bl.y, &along) <= kBalloonR + kBallR &&
            along < first) {
            first = along;
            hit = int(i);
        }
    }
    if (hit >= 0) {
        b.flying = false;
        pop(hit, ev);
        return;
    }
    if (b.y > kGroundY || b.x > kWorldW + 60 || b.x < -60) {
        b.flying = false;
        ev.push_back({Event::Landed, -1, b.x, std::min(b.y, kGroundY)});
    }
}

void Game::pop(int i, std::vector<Event>& ev) {
    Balloon& bl = balloons_[i];
    const bool right = next_ >= 0 && UCase(std::string(1, word_[next_]))[0] == bl.letter;
    if (!right) {
        bl.out = true;
        // Points never go below nothing.
        score_ = std::max(0, score_ - 5 * level_);
        ev.push_back({Event::Wrong, i, bl.x, bl.y});
        return;
    }
    bl.gone = true;
    score_ += 10 * level_;
    blanks_[next_] = word_[next_];
    ev.push_back({Event::Right, i, bl.x, bl.y});
    const int from = next_;
    next_ = -1;
    for (std::size_t k = from + 1; k < word_.size() && next_ < 0; ++k)
        if (blanks_[k] == '\0') next_ = int(k);
    if (next_ >= 0) return;
    phase_ = words_ >= kWordsToWin ? Phase::Won : Phase::Spelled;
    ev.push_back({Event::Spelled});
    if (phase_ == Phase::Won) ev.push_back({Event::Won});
}

std::string lostText(const std::string& word) {
    return "Out of cannonballs! The word was " + word + ".";
}

}  // namespace wm::cannon_shot
