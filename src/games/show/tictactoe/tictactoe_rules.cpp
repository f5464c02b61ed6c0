#include "games/show/tictactoe/tictactoe_rules.h"

#include <algorithm>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"

namespace wm::tictactoe {

namespace {
int roll(Rng& rng, int n) {
    return std::clamp(int(std::floor(rng.Rnd() * n + 1)), 1, std::max(1, n));
}
// Bound on redraws; a working generator never reaches it.
constexpr int kMaxDraws = 10000;
}  // namespace

bool Board::full() const {
    for (const auto& row : owner)
        for (int o : row)
            if (o == Empty) return false;
    return true;
}

const std::array<std::array<Square, 3>, 8>& lines() {
    static const std::array<std::array<Square, 3>, 8> all{{
        {{{1, 1}, {1, 2}, {1, 3}}},
        {{{2, 1}, {2, 2}, {2, 3}}},
        {{{3, 1}, {3, 2}, {3, 3}}},
        {{{1, 1}, {2, 1}, {3, 1}}},
        {{{1, 2}, {2, 2}, {3, 2}}},
        {{{1, 3}, {2, 3}, {3, 3}}},
        {{{1, 1}, {2, 2}, {3, 3}}},
        {{{1, 3}, {2, 2}, {3, 1}}},
    }};
    return all;
}

Square findLine(const Board& b, int side, int threshold) {
    const int other = side == Player ? Computer : Player;
    for (const auto& line : lines()) {
        int count = 0;
        bool spoiled = false;
        Square last;
        for (const Square& sq : line) {
            const int o = b.at(sq.row, sq.col);
            if (o == side)
                ++count;
            else if (o == other)
                spoiled = true;
            else
                last = sq;
        }
        if (!spoiled && count > threshold && last.row != 0) return last;
    }
    return {};
}

Square findBlock(const Board& b) {
    return findLine(b, Player, 1);
}

Square randomFree(const Board& b, Rng& rng) {
    for (int i = 0; i < kMaxDraws; ++i) {
        const int r = roll(rng, 3), c = roll(rng, 3);
        if (!b.taken(r, c)) return {r, c};
    }
    for (int r = 1; r <= 3; ++r)
        for (int c = 1; c <= 3; ++c)
            if (!b.taken(r, c)) return {r, c};
    return {};
}

Square computerChoice(const Board& b, int difficulty, Rng& rng) {
    // Level 1 is never offered here; its rule (random only) is kept all the same.
    if (difficulty == 1) return randomFree(b, rng);
    if (!b.taken(2, 2)) return {2, 2};
    if (Square s = findLine(b, Computer, 1); s.row) return s;
    if (Square s = findBlock(b); s.row) return s;
    if (Square s = findLine(b, Computer, 0); s.row) return s;
    return randomFree(b, rng);
}

bool computerHits(int difficulty, Rng& rng) {
    return roll(rng, difficulty) != 1;
}

bool playerMovesFirst(int difficulty) {
    return difficulty < 5;
}

int questionSeconds(int difficulty) {
    return difficulty == 5 ? 10 : difficulty >= 6 ? 5 : 0;
}

Question askQuestion(SharedState& s, int difficulty, Rng& rng) {
    Question q;
    rng.Randomize();
    const int count = std::max<int>(1, s.WordCount);
    q.word = roll(rng, count);
    s.TheWord = s.Words[q.word];
    s.TheMeaning = s.Meanings[q.word];
    const int n = std::clamp(difficulty, 1, 6);
    q.right = roll(rng, n) - 1;
    q.options.assign(n, 0);
    q.options[q.right] = q.word;
    std::vector<int> taken{q.word};
    for (int i = 0; i < n; ++i) {
        if (i == q.right) continue;
        int k = 0;
        for (int d = 0; d < kMaxDraws && k == 0; ++d) {
            const int c = roll(rng, count);
            if (std::find(taken.begin(), taken.end(), c) == taken.end()) k = c;
        }
        if (k == 0) k = q.word;  // a list shorter than the level: a repeat rather than a hang
        taken.push_back(k);
        q.options[i] = k;
    }
    return q;
}

Verdict checkBoard(const Board& b) {
    Verdict v;
    for (const auto& line : lines()) {
        const int o = b.at(line[0].row, line[0].col);
        if (o != Empty && o == b.at(line[1].row, line[1].col) &&
            o == b.at(line[2].row, line[2].col)) {
            v.winner = o;
            v.from = line[0];
            v.to = line[2];
            return v;
        }
    }
    v.tie = b.full();
    return v;
}

double winScore(double score, int difficulty, Rng& rng) {
    return std::floor(score + (500 + roll(rng, difficulty)) * double(difficulty));
}

std::string missText(const std::string& word) {
    return "Sorry! The word you should have chosen was \"" + word +
           "\"...you did not win this square...";
}

std::string questionText(const std::string& meaning) {
    return "To win this square, choose the correct word that means\n\"" + meaning + "\"";
}

}  // namespace wm::tictactoe
