#include "games/show/bomb_squad/bomb_squad_rules.h"

#include <algorithm>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"

namespace wm::bombsquad {

namespace {
int roll(Rng& rng, int n) {
    return int(std::floor(rng.Rnd() * n + 1));
}

// A word not used in this deal, or 0 when the bound ran out.
int freshWord(std::vector<bool>& used, int count, Rng& rng) {
    for (int i = 0; i < kMaxDraws; ++i) {
        const int k = std::clamp(roll(rng, count), 1, count);
        if (!used[k]) {
            used[k] = true;
            return k;
        }
    }
    return 0;
}
}  // namespace

Level level(int difficulty) {
    static constexpr std::array<Level, 10> table{
        {{2, 30}, {3, 30}, {4, 25}, {5, 25}, {6, 20}, {7, 20}, {8, 20}, {8, 15}, {8, 10}, {8, 8}}};
    return table[std::clamp(difficulty, 1, 10) - 1];
}

Deal deal(const SharedState& state, int difficulty, Rng& rng) {
    Deal d;
    const Level lv = level(difficulty);
    d.secondsLeft = lv.seconds;
    const int count = state.WordCount;
    if (count < 1) return d;
    std::vector<bool> used(count + 1, false);
    const int certain = roll(rng, lv.wires);
    for (int i = 1; i <= lv.wires; ++i) {
        Wire w;
        w.word = freshWord(used, count, rng);
        if (w.word == 0) return d;
        const bool coin = roll(rng, 2) == 1;  // drawn for the certain wire too
        w.bad = i == certain || coin;
        w.definition = w.bad ? freshWord(used, count, rng) : w.word;
        if (w.definition == 0) return d;
        w.smallFont = state.Meanings[w.definition].size() > 50;
        d.wires.push_back(w);
    }
    d.ready = true;
    return d;
}

bool allBadCut(const Deal& d) {
    return std::all_of(d.wires.begin(), d.wires.end(),
                       [](const Wire& w) { return !w.bad || w.cut; });
}

CutResult cut(Deal& d, int index) {
    if (index < 0 || index >= int(d.wires.size()) || d.wires[index].cut) return CutResult::Nothing;
    Wire& w = d.wires[index];
    w.cut = true;
    if (!w.bad) return CutResult::Exploded;
    // The last bad wire wins at once; good wires left standing are right to stand.
    return allBadCut(d) ? CutResult::Defused : CutResult::Snipped;
}

bool tick(Deal& d) {
    d.secondsLeft -= 1;
    return d.secondsLeft <= 0;
}

double winScore(double score, int secondsLeft, int difficulty, Rng& rng) {
    return std::floor(score + (500 + secondsLeft + roll(rng, difficulty)) * double(difficulty));
}

const char* lostText(int secondsLeft) {
    return secondsLeft <= 0 ? kLostInTime : kLostWrongWire;
}

int shakeSpot(int span, int size, Rng& rng) {
    return std::max(0, roll(rng, std::max(0, span - size)));
}

}  // namespace wm::bombsquad
