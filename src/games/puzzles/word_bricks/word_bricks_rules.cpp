#include "games/puzzles/word_bricks/word_bricks_rules.h"

#include <algorithm>
#include <set>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::word_bricks {

namespace {
// Int(Rnd * n + 1), kept inside 1..n whatever the generator hands out.
int roll(Rng& rng, int n) {
    return std::clamp(static_cast<int>(Int(rng.Rnd() * n + 1)), 1, n);
}
}  // namespace

std::vector<std::string> split(const std::string& word, Rng& rng) {
    std::vector<std::string> bricks;
    int at = 1;
    const int n = Len(word);
    while (at <= n) {
        const int left = n - at + 1;
        int size = left;
        if (left == 4) {
            size = 2;  // a three would leave one letter alone
        } else if (left > 4) {
            size = roll(rng, 2) + 1;
        }
        bricks.push_back(Mid(word, at, size));
        at += size;
    }
    return bricks;
}

std::string clue(const SharedState& state, int entry) {
    const std::string meaning = Trim(state.Meanings[entry]);
    if (state.WordsOnly != kTrue && !meaning.empty()) return meaning;
    const int n = Len(Trim(state.Words[entry]));
    return std::to_string(n) + (n == 1 ? " letter" : " letters");
}

Game deal(const SharedState& state, int level, Rng& rng) {
    Game g;
    g.level = level;
    const int count = std::min<int>(state.WordCount, int(state.Words.size()) - 1);
    if (level < 1 || count < 1) return g;
    std::vector<bool> used(count + 1, false);
    std::vector<Line> lines;
    int tried = 0;
    for (int draws = 0; int(lines.size()) < level; ++draws) {
        if (draws == kMaxDraws || tried == count) return g;
        const int k = roll(rng, count);
        if (used[k]) continue;
        used[k] = true;
        ++tried;
        const std::string word = Trim(state.Words[k]);
        if (word.empty() || Len(word) > kMaxLength) continue;
        lines.push_back({k, word, clue(state, k), {}, false});
    }
    g.lines = std::move(lines);
    for (const Line& line : g.lines)
        for (const std::string& piece : split(line.word, rng)) g.bricks.push_back({piece, -1});
    // From the last brick down, each swaps with one at or before it.
    for (int i = int(g.bricks.size()); i >= 2; --i)
        std::swap(g.bricks[i - 1], g.bricks[roll(rng, i) - 1]);
    return g;
}

int filled(const Game& g, int line) {
    int n = 0;
    for (int b : g.lines[line].bricks) n += Len(g.bricks[b].text);
    return n;
}

DropResult drop(Game& g, int brick, int line, int at) {
    DropResult r;
    if (g.won() || brick < 0 || brick >= int(g.bricks.size())) return r;
    Brick& b = g.bricks[brick];
    if (b.line >= 0 && g.lines[b.line].built) return r;
    if (line >= int(g.lines.size())) line = -1;
    if (line >= 0) {
        // A built line is full: the room it has left turns every brick away.
        const Line& to = g.lines[line];
        const int room = Len(to.word) - filled(g, line) + (b.line == line ? Len(b.text) : 0);
        if (Len(b.text) > room) return r;
    }
    // Off where it was, on where it goes.
    if (b.line >= 0) {
        auto& from = g.lines[b.line].bricks;
        const auto it = std::find(from.begin(), from.end(), brick);
        const int was = int(it - from.begin());
        from.erase(it);
        if (b.line == line && at > was) --at;
    }
    b.line = line;
    if (line < 0) {
        r.what = Drop::Moved;
        return r;
    }
    Line& to = g.lines[line];
    if (at < 0 || at > int(to.bricks.size())) at = int(to.bricks.size());
    to.bricks.insert(to.bricks.begin() + at, brick);
    r.what = Drop::Placed;
    if (filled(g, line) < Len(to.word)) return r;

    std::string spelled;
    for (int i : to.bricks) spelled += g.bricks[i].text;
    // Bricks of another word that spell this one count: the line only asks for its word.
    if (UCase(spelled) == UCase(to.word)) {
        to.built = true;
        g.built += 1;
        g.score += builtPoints(to.word);
        r.what = Drop::Built;
        if (g.won()) {
            g.score += finishBonus(g.seconds, g.level);
            r.what = Drop::Won;
        }
        return r;
    }
    r.shaken = to.bricks;
    for (int i : to.bricks) g.bricks[i].line = -1;
    to.bricks.clear();
    // Deliberately not held at zero: every wrong line costs its ten points.
    g.score -= shakePoints();
    r.what = Drop::Shaken;
    return r;
}

void tick(Game& g) {
    if (g.ready() && !g.won() && g.seconds < 32767) g.seconds += 1;
}

double builtPoints(const std::string& word) {
    return Len(word) * 10.0;
}

double shakePoints() {
    return 10;
}

double finishBonus(int seconds, int level) {
    return std::max(0, 40 * level - seconds) * 2.0;
}

std::string clockText(int seconds) {
    const int s = std::max(0, seconds);
    const std::string ss = std::to_string(s % 60);
    return std::to_string(s / 60) + ":" + (ss.size() < 2 ? "0" + ss : ss);
}

}  // namespace wm::word_bricks
