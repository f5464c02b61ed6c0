#include "games/show/pachinko/pachinko_rules.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::pachinko {

namespace {
int roll(Rng& rng, int n) {
    return std::clamp(int(std::floor(rng.Rnd() * n + 1)), 1, std::max(1, n));
}
constexpr int kMaxDraws = 20000;
constexpr int kPinGap = kBoardWidth / kPinsInRow;  // 60
constexpr int kRowGap = 56;
constexpr int kFirstRowY = 90;
constexpr int kFloor = kBoardHeight - kSlotHeight;
}  // namespace

const std::vector<Pin>& pins() {
    static const std::vector<Pin> all = [] {
        std::vector<Pin> v;
        int row = 0;
        for (int y = kFirstRowY; y <= kFloor - 50; y += kRowGap, ++row) {
            const bool shifted = row % 2 == 1;
            const int n = shifted ? kPinsInRow - 1 : kPinsInRow;
            const int x0 = shifted ? kPinGap : kPinGap / 2;
            for (int i = 0; i < n; ++i) v.push_back({x0 + i * kPinGap, y, row, i == 0, i == n - 1});
        }
        return v;
    }();
    return all;
}

Question nextQuestion(SharedState& s, std::vector<bool>& used, Rng& rng) {
    Question q;
    const int count = std::max<int>(1, s.WordCount);
    if (int(used.size()) < count + 1) used.resize(count + 1, false);
    q.askMeaning = roll(rng, 2) == 1;
    int k = 0;
    for (int i = 0; i < kMaxDraws && k == 0; ++i) {
        const int c = roll(rng, count);
        if (!used[c]) k = c;
    }
    if (k == 0) k = roll(rng, count);  // every word asked already: a repeat, not a hang
    used[k] = true;
    q.word = k;
    s.TheWord = s.Words[k];
    s.TheMeaning = s.Meanings[k];
    q.right = roll(rng, 5) - 1;
    std::vector<int> shown{k};
    for (int i = 0; i < 5; ++i) {
        if (i == q.right) {
            q.answers[i] = k;
            continue;
        }
        int o = 0;
        for (int d = 0; d < kMaxDraws && o == 0; ++d) {
            const int c = roll(rng, count);
            if (std::find(shown.begin(), shown.end(), c) == shown.end()) o = c;
        }
        if (o == 0) o = k;
        shown.push_back(o);
        q.answers[i] = o;
    }
    return q;
}

std::string tryingText(int question) {
    return "Trying for disk " + std::to_string(question) + " out of 5.";
}
std::string earnedText(int disks) {
    return "Let's play pachinko! You have earned " + std::to_string(disks) + " disks!";
}
std::string scoredText(int value) {
    return "You scored " + std::to_string(value) + " points!";
}
std::string scoreLine(double score) {
    return "Score: " + NumText(score);
}

std::array<int, kSlotCount> scrambleValues(Rng& rng) {
    rng.Randomize();
    std::array<int, kSlotCount> v{};
    const int b = int(std::floor(rng.Rnd() * 10 + 10));
    auto pair = [&](int slot, int base) {
        const int value = b * int(std::floor(rng.Rnd() * 100 + base));
        v[slot - 1] = value;
        v[kSlotCount - slot] = value;
    };
    pair(1, 400);
    pair(2, 300);
    pair(3, 200);
    pair(4, 100);
    // The two middle slots draw apart: the only pair that differs.
    v[4] = b * int(std::floor(rng.Rnd() * 100 + 1));
    v[5] = b * int(std::floor(rng.Rnd() * 100 + 1));
    return v;
}

bool inDropZone(int x, int y) {
    return x >= 0 && x + kDiskSize <= kBoardWidth && y + kDiskSize / 2 <= kFirstRowY - 20 &&
           y + kDiskSize >= -kDiskSize * 2;
}

Disk dropDisk(int x, int dx) {
    Disk d;
    d.x = std::clamp(x, 0, kBoardWidth - kDiskSize);
    d.y = -kDiskSize;
    d.dx = dx;
    d.dy = 1;
    return d;
}

int slotOf(const Disk& d) {
    return std::clamp((d.x + kDiskSize / 2) / kSlotWidth, 0, kSlotCount - 1);
}

bool step(Disk& d, Rng& rng) {
    constexpr int D = kDiskSize;
    d.x += d.dx;
    d.y += d.dy;
    d.touched = false;
    ++d.ticks;
    const bool free = d.ticks > kMaxFallTicks;
    const int cx = d.x + D / 2, cy = d.y + D / 2;
    for (const Pin& p : free ? std::vector<Pin>{} : pins()) {
        // Struck from above: the pin under the disk's width, reached by its lower edge.
        if (p.x >= d.x && p.x <= d.x + D && d.y + D >= p.y - kPinRadius && p.y > cy) {
            d.touched = true;
            const int off = p.x - cx;
            if (std::abs(off) < D / 3)
                d.dy = std::max(1, int(std::lround(d.dy / 2.0)));
            else
                d.dy = std::max(1, d.dy - 2);
            const bool first = d.dx == 0;
            if (first) {
                const bool end = p.first || p.last;
                const int size = end ? roll(rng, D / 2) + D / 2 : roll(rng, D / 4) + D / 4;
                int dir;
                if (p.first)
                    dir = 1;
                else if (p.last)
                    dir = -1;
                else if (off == 0)
                    dir = roll(rng, 2) == 1 ? -1 : 1;
                else
                    dir = off > 0 ? -1 : 1;  // rolls off the side away from the pin
                d.dx = dir * size;
            }
            // The first strike seats the disk on the pin; once it moves sideways it slides
            // over the pins it meets and drops between them.
            if (first) d.y = p.y - kPinRadius - D;
            continue;
        }
        // Touched on the side at the height of its body: turned back, a little faster.
        const int ddx = p.x - cx, ddy = p.y - cy;
        const int reach = D / 2 + kPinRadius;
        if (std::abs(ddy) <= D / 3 && ddx * ddx + ddy * ddy <= reach * reach &&
            ((d.dx > 0 && ddx > 0) || (d.dx < 0 && ddx < 0))) {
            d.touched = true;
            const int k = p.last ? 2 : 1;
            d.dx = d.dx > 0 ? -(d.dx + k) : -(d.dx - k);
            d.dx = std::clamp(d.dx, -D / 2, D / 2);  // repeated turns never outrun the pins
        }
    }
    // The side walls turn it back the same way.
    if (d.x < 0 && d.dx < 0) {
        d.x = 0;
        d.dx = std::min(D / 2, -(d.dx - 1));
        d.touched = true;
    } else if (d.x + D > kBoardWidth && d.dx > 0) {
        d.x = kBoardWidth - D;
        d.dx = std::max(-D / 2, -(d.dx + 1));
        d.touched = true;
    }
    if (!d.touched && d.dy < kPinRadius) ++d.dy;
    return d.y > kBoardHeight - D;
}

}  // namespace wm::pachinko
