#include "games/show/bomb_squad2/bomb_squad2_rules.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"

namespace wm::bombsquad2 {

namespace {
int roll(Rng& rng, int n) {
    return std::clamp(int(std::floor(rng.Rnd() * n + 1)), 1, std::max(1, n));
}
}  // namespace

bombsquad::Level level(int difficulty) {
    static constexpr std::array<bombsquad::Level, 10> table{
        {{2, 30}, {3, 40}, {4, 40}, {5, 45}, {6, 40}, {7, 40}, {8, 35}, {8, 25}, {8, 20}, {8, 15}}};
    return table[std::clamp(difficulty, 1, 10) - 1];
}

Board deal(const SharedState& state, int difficulty, Rng& rng) {
    Board b;
    const auto lv = level(difficulty);
    b.secondsLeft = lv.seconds;
    const int count = state.WordCount;
    if (count < 1) return b;
    std::vector<bool> used(count + 1, false);
    b.defOwner.assign(lv.wires, -1);
    for (int i = 0; i < lv.wires; ++i) {
        int k = 0;
        for (int n = 0; n < bombsquad::kMaxDraws && k == 0; ++n) {
            const int c = roll(rng, count);
            if (!used[c]) k = c;
        }
        if (k == 0) return b;
        used[k] = true;
        b.words.push_back(k);
        b.open.push_back(true);
        int slot = -1;
        for (int n = 0; n < bombsquad::kMaxDraws && slot < 0; ++n) {
            const int j = roll(rng, lv.wires) - 1;
            if (b.defOwner[j] < 0) slot = j;
        }
        if (slot < 0) return b;
        b.defOwner[slot] = i;
    }
    b.ready = true;
    return b;
}

WordClick clickWord(Board& b, int i) {
    b.carrying = false;
    b.carried = -1;
    if (i < 0 || i >= int(b.open.size()) || !b.open[i]) return WordClick::Dropped;
    b.carrying = true;
    b.carried = i;
    return WordClick::PickedUp;
}

DefClick clickDefinition(Board& b, int j) {
    if (!b.carrying || j < 0 || j >= int(b.defOwner.size())) return DefClick::Nothing;
    if (b.defOwner[j] != b.carried) return DefClick::Exploded;
    b.open[b.carried] = false;
    b.carrying = false;
    b.carried = -1;
    const bool done = std::none_of(b.open.begin(), b.open.end(), [](bool o) { return o; });
    return done ? DefClick::Defused : DefClick::Connected;
}

bool tick(Board& b) {
    b.secondsLeft -= 1;
    return b.secondsLeft <= 0;
}

const char* tickSound(int secondsLeft) {
    return secondsLeft >= 10 ? "spacebeep.wav" : "highbeep.wav";
}

const char* lostText(int secondsLeft) {
    return secondsLeft <= 0 ? bombsquad::kLostInTime : kLostWrongWire;
}

}  // namespace wm::bombsquad2
