#include "games/action/letter_toss/letter_toss_rules.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "core/strings.h"

namespace wm::letter_toss {

namespace {

// How a flick on the stage becomes the ball's speed in the room.
constexpr double kFlickForBaskets = 1500;  // stage units a second: just reaches the baskets
constexpr double kFastestFlick = 6000;
constexpr double kLiftBase = 1150, kLift = 100;
constexpr double kWallKeep = 0.4, kBackKeep = 0.35;  // what a bounce leaves of the speed
constexpr double kFrontZ = -200;  // a ball that comes back past the thrower is on the floor

// Words and definitions are told apart as the pupil reads them: case and outer blanks aside.
std::string key(const std::string& text) {
    return UCase(Trim(text));
}

int loaded(const SharedState& s) {
    const int size = static_cast<int>(std::min(s.Words.size(), s.Meanings.size()));
    return std::max(0, std::min({static_cast<int>(s.WordCount), kMaxWords, size - 1}));
}

bool usable(const SharedState& s, int k) {
    return !Trim(s.Words[k]).empty() && !Trim(s.Meanings[k]).empty();
}

// Entries that could all stand in one room: no word and no definition twice.
int differentEntries(const SharedState& s, int count) {
    std::set<std::string> words, meanings;
    int n = 0;
    for (int k = 1; k <= count; ++k) {
        if (!usable(s, k) || words.count(key(s.Words[k])) || meanings.count(key(s.Meanings[k])))
            continue;
        words.insert(key(s.Words[k]));
        meanings.insert(key(s.Meanings[k]));
        ++n;
    }
    return n;
}

// Int(Rnd x count + 1) until an entry fits, a bounded number of times; then a walk on through
// the list from the last draw. 0 when nothing fits.
template <class Fits>
int draw(Rng& rng, int count, Fits fits) {
    int k = 1;
    for (int tries = 0; tries < kDrawTries; ++tries) {
        k = static_cast<int>(Int(rng.Rnd() * count + 1));
        if (fits(k)) return k;
    }
    for (int m = 0; m < count; ++m, k = k % count + 1)
        if (fits(k)) return k;
    return 0;
}

void bounceOff(Ball& b, double nx, double nz, double keep) {
    // Reflects the speed across the surface whose outward normal is (nx, nz).
    const double vn = b.speed.x * nx + b.speed.z * nz;
    if (vn >= 0) return;
    b.speed.x -= (1 + keep) * vn * nx;
    b.speed.z -= (1 + keep) * vn * nz;
}

}  // namespace

int basketsFor(int difficulty) {
    return std::clamp(difficulty, kMinBaskets, kMaxBaskets);
}

double basketX(int basket, int baskets) {
    return (basket - (baskets - 1) / 2.0) * kBasketGap;
}

bool newGame(SharedState& s, Room& r, Rng& rng) {
    rng.Randomize();
    s.Score = 0;
    r = Room{};
    return nextWord(s, r, rng);
}

bool nextWord(SharedState& s, Room& r, Rng& rng) {
    const int count = loaded(s);
    const int n = basketsFor(s.Difficulty);
    r.baskets.clear();
    r.right = -1;
    if (differentEntries(s, count) < n) return false;
    auto unused = [&](int k) {
        return std::find(r.used.begin(), r.used.end(), key(s.Words[k])) == r.used.end();
    };
    bool fresh = false;
    for (int k = 1; k <= count && !fresh; ++k) fresh = usable(s, k) && unused(k);
    // Every word has had its turn: the list starts over.
    if (!fresh) r.used.clear();
    const int word = draw(rng, count, [&](int k) { return usable(s, k) && unused(k); });
    r.right = static_cast<int>(Int(rng.Rnd() * n + 1)) - 1;
    r.baskets.assign(n, Basket{});
    std::vector<int> placed{word};
    auto place = [&](int i, int k) {
        r.baskets[i] = {k, s.Words[k], s.Meanings[k], basketX(i, n)};
    };
    place(r.right, word);
    for (int i = 0; i < n; ++i) {
        if (i == r.right) continue;
        const int k = draw(rng, count, [&](int e) {
            if (!usable(s, e)) return false;
            for (int p : placed)
                if (key(s.Words[p]) == key(s.Words[e]) || key(s.Meanings[p]) == key(s.Meanings[e]))
                    return false;
            return true;
        });
        if (k == 0) {
            r.baskets.clear();
            r.right = -1;
            return false;
        }
        placed.push_back(k);
        place(i, k);
    }
    r.used.push_back(key(s.Words[word]));
    r.words += 1;
    s.TheWord = s.Words[word];
    s.TheMeaning = s.Meanings[word];
    newToss(r, rng);
    return true;
}

void newToss(Room& r, Rng& rng) {
    r.draught = static_cast<int>(Int(rng.Rnd() * (2 * kMaxDraught + 1) + 1)) - kMaxDraught - 1;
    r.ball.at = {0, 0, kHandH};  // back in the hand; a toss starts the ball afresh
}

Flick flickOf(const std::vector<Sample>& drag) {
    if (drag.size() < 2) return {};
    const Sample& last = drag.back();
    const int cut = last.ms - kFlickMs;
    Sample from = drag.front();
    for (std::size_t i = 0; i + 1 < drag.size(); ++i) {
        if (drag[i].ms > cut) break;
        const Sample& next = drag[i + 1];
        if (next.ms > cut && next.ms > drag[i].ms) {
            // Where the pointer was a tenth of a second before the end, between two samples.
            const double u = double(cut - drag[i].ms) / (next.ms - drag[i].ms);
            from = {cut, drag[i].x + (next.x - drag[i].x) * u, drag[i].y + (next.y - drag[i].y) * u};
        }
    }
    const int ms = last.ms - from.ms;
    if (ms <= 0) return {};
    return {(last.x - from.x) * 1000 / ms, (last.y - from.y) * 1000 / ms};
}

Sample handPoint(double x, double y) {
    const double lowest = kFloorFrontY - kHandH + 30;
    return {0, std::clamp(x, 100.0, kStageW - 100), std::clamp(y, kHandTopY, lowest)};
}

bool toss(Room& r, double x, double y, Flick f) {
    if (r.ball.flying || r.baskets.empty() || -f.y < kMinFlick) return false;
    const Sample p = handPoint(x, y);
    const double up = -f.y, speed = std::hypot(f.x, f.y);
    r.ball = Ball{};
    r.ball.at = {p.x - kEyeX, 0, kFloorFrontY - p.y};
    // The ball comes down to the rims' height at the flick's pace times the baskets' distance,
    // wherever it was let go: a hard flick goes a little further, not four times as far.
    const double pace = std::sqrt(std::min(speed, kFastestFlick) / kFlickForBaskets);
    const double vh = kLiftBase + kLift * pace, fall = 2 * kGravity * (kRimH - r.ball.at.h);
    const double t = (vh + std::sqrt(std::max(0.0, vh * vh - fall))) / kGravity;
    // Across, it heads for where the flick's line on the screen meets the rims' line.
    const Seen rims = project({0, kBasketZ, kRimH});
    const double aimX = std::clamp((p.x + f.x / up * (p.y - rims.y) - kEyeX) / rims.scale,
                                   -2 * kSideWallX, 2 * kSideWallX);
    r.ball.speed = {(aimX - r.ball.at.x) / t, kBasketZ * pace / t, vh};
    r.ball.flying = true;
    return true;
}

Step step(SharedState& s, Room& r) {
    Step st;
    Ball& b = r.ball;
    if (!b.flying) return st;
    const double dt = kStepMs / 1000.0;
    const Vec3 was = b.at;
    b.speed.x += r.draught * kDraughtPush * dt;
    b.speed.h -= kGravity * dt;
    b.at.x += b.speed.x * dt;
    b.at.z += b.speed.z * dt;
    b.at.h += b.speed.h * dt;
    b.steps += 1;

    const double side = kSideWallX - kBallR;
    if (std::abs(b.at.x) > side) {
        b.at.x = std::clamp(b.at.x, -side, side);
        b.speed.x = -b.speed.x * kWallKeep;
        b.touched = st.bounced = true;
    }
    if (b.at.z > kBackWallZ - kBallR) {
        b.at.z = kBackWallZ - kBallR;
        b.speed.z = -b.speed.z * kBackKeep;
        b.speed.x *= kBackKeep;
        b.touched = st.bounced = true;
    }

    for (int i = 0; i < int(r.baskets.size()); ++i) {
        const double dx = b.at.x - r.baskets[i].x, dz = b.at.z - kBasketZ;
        const double d = std::hypot(dx, dz);
        const double nx = d > 0 ? dx / d : 0, nz = d > 0 ? dz / d : 1;
        const bool dropping = was.h >= kRimH && b.at.h < kRimH && b.speed.h < 0;
        if (dropping && d <= kRimR) {
            // In: clean through the middle, or with a rattle on the rim.
            const bool rattle = d > kRimR - kBallR;
            const bool clean = !b.touched && !rattle;
            st.bounced = rattle;
            st.basket = i;
            b.flying = false;
            if (i == r.right) {
                st.landing = clean ? Landing::Swish : Landing::Right;
                st.points = kRightPoints + (clean ? kSwishBonus : 0);
            } else {
                st.landing = Landing::Wrong;
                st.points = -kWrongCost;
            }
            s.Score += st.points;
            return st;
        }
        if (dropping && d < kRimR + kBallR) {
            // Off the rim, outwards and a little up.
            bounceOff(b, nx, nz, 0.6);
            b.speed.h = std::abs(b.speed.h) * 0.3;
            b.at.h = kRimH;
            b.touched = st.bounced = true;
        } else if (b.at.h < kRimH && d < kRimR + kBallR &&
                   std::hypot(was.x - r.baskets[i].x, was.z - kBasketZ) >= kRimR + kBallR) {
            // Against the basket's side.
            bounceOff(b, nx, nz, 0.5);
            b.at.x = r.baskets[i].x + nx * (kRimR + kBallR);
            b.at.z = kBasketZ + nz * (kRimR + kBallR);
            b.touched = st.bounced = true;
        }
    }

    if (b.at.h <= kBallR || b.at.z < kFrontZ || b.steps >= kMaxFlightSteps) {
        b.at.h = std::max(b.at.h, kBallR);
        b.flying = false;
        st.landing = Landing::Floor;
    }
    return st;
}

bool clockTick(Room& r) {
    if (r.secondsLeft > 0) r.secondsLeft -= 1;
    return r.secondsLeft == 0;
}

Seen project(const Vec3& p) {
    const double k = kFocal / (kFocal + p.z);
    return {kEyeX + p.x * k, kHorizonY + (kFloorFrontY - kHorizonY - p.h) * k, k};
}

}  // namespace wm::letter_toss
