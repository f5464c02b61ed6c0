#include "games/show/concentration/concentration_rules.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <string>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::concentration {

namespace {
// Int(Rnd * n + 1), kept inside 1..n whatever the generator hands out.
int roll(Rng& rng, int n) {
    return std::clamp(static_cast<int>(Int(rng.Rnd() * n + 1)), 1, n);
}

std::string key(const std::string& text) {
    return UCase(Trim(text));
}
}  // namespace

Game deal(const SharedState& state, int level, Rng& rng) {
    Game g;
    g.level = level;
    const int count = std::min<int>(state.WordCount, int(state.Words.size()) - 1);
    if (level < 1 || count < level) return g;
    // A word drawn again is turned away with the words already dealt.
    std::set<std::string> words, meanings;
    std::vector<int> drawn;
    for (int draws = 0; int(drawn.size()) < level; ++draws) {
        if (draws == kMaxDraws) return g;
        const int k = roll(rng, count);
        // Two cards with one text would make a pair nobody can tell apart.
        const std::string w = key(state.Words[k]), m = key(state.Meanings[k]);
        if (w.empty() || m.empty() || words.count(w) || meanings.count(m)) continue;
        words.insert(w);
        meanings.insert(m);
        drawn.push_back(k);
    }
    for (int k : drawn) {
        g.cards.push_back({k, false});
        g.cards.push_back({k, true});
    }
    // From the last card down, each swaps with one at or before it.
    for (int i = int(g.cards.size()); i >= 2; --i)
        std::swap(g.cards[i - 1], g.cards[roll(rng, i) - 1]);
    return g;
}

std::vector<int> turnBack(Game& g) {
    if (!g.missShowing()) return {};
    std::vector<int> turned{g.first, g.second};
    g.cards[g.first].up = false;
    g.cards[g.second].up = false;
    g.first = g.second = -1;
    return turned;
}

ClickResult click(Game& g, int index) {
    ClickResult r;
    if (g.won()) return r;
    // A third click does not wait for the wrong pair.
    r.turnedDown = turnBack(g);
    if (index < 0 || index >= int(g.cards.size())) return r;
    Card& c = g.cards[index];
    if (c.up || c.matched) return r;
    c.up = true;
    if (g.first < 0) {
        g.first = index;
        r.flip = Flip::First;
        return r;
    }
    Card& other = g.cards[g.first];
    if (other.entry == c.entry) {
        other.matched = c.matched = true;
        g.first = -1;
        g.pairsFound += 1;
        g.score += matchPoints(g.level);
        r.flip = Flip::Match;
        if (g.won()) {
            g.score += finishBonus(g.seconds, g.level);
            r.flip = Flip::Won;
        }
        return r;
    }
    g.second = index;
    g.score = std::max(0.0, g.score - missPoints(g.level));
    r.flip = Flip::Miss;
    return r;
}

void tick(Game& g) {
    if (g.ready() && !g.won() && g.seconds < 32767) g.seconds += 1;
}

double matchPoints(int level) {
    return 100.0 * level;
}

double missPoints(int level) {
    return 10.0 * level;
}

double finishBonus(int seconds, int level) {
    return std::max(0, 300 - seconds) * double(level);
}

std::string clockText(int seconds) {
    const int s = std::max(0, seconds);
    const std::string ss = std::to_string(s % 60);
    return std::to_string(s / 60) + ":" + (ss.size() < 2 ? "0" + ss : ss);
}

Grid grid(int cards, double width, double height) {
    Grid best;
    double bestSize = -1;
    const int n = std::max(1, cards);
    for (int columns = 1; columns <= n; ++columns) {
        const int rows = (n + columns - 1) / columns;
        // The height of the largest card, half as wide again as it is tall, that fits a cell.
        const double size = std::min(width / columns / 1.5, height / rows);
        // On a tie the fewer columns win: fewer empty places at the end.
        if (size > bestSize + 1e-9) {
            bestSize = size;
            best = {columns, rows};
        }
    }
    return best;
}

}  // namespace wm::concentration
