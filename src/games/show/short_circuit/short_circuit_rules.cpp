#include "games/show/short_circuit/short_circuit_rules.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"

namespace wm::shortcircuit {

namespace {
int roll(Rng& rng, int n) {
    return int(std::floor(rng.Rnd() * n + 1));
}
std::string upper(std::string s) {
    for (char& ch : s) ch = char(std::toupper(static_cast<unsigned char>(ch)));
    return s;
}
}  // namespace

Circuit newCircuit(SharedState& s, int difficulty, Rng& rng) {
    Circuit c;
    c.rows = std::clamp(difficulty, 2, kRows);
    rng.Randomize();
    const int count = s.WordCount;
    for (int draws = 0; count > 0 && draws <= 2 * count; ++draws) {
        const int k = std::clamp(roll(rng, count), 1, count);
        if (s.Words[k].size() <= std::size_t(kMaxLetters) && !s.Words[k].empty()) {
            s.TheWord = s.Words[k];
            s.TheMeaning = s.Meanings[k];
            c.ready = true;
            break;
        }
    }
    if (!c.ready) return c;
    c.word = upper(s.TheWord);
    for (char right : c.word) {
        // Never the bottom row: Int(Rnd * (rows - 1)), so at two rows always the top.
        const int rr = std::clamp(int(std::floor(rng.Rnd() * (c.rows - 1))), 0, c.rows - 2);
        c.rightRow.push_back(rr);
        std::vector<char> col(c.rows);
        for (int r = 0; r < c.rows; ++r) {
            if (r == rr) {
                col[r] = right;
                continue;
            }
            char other = right;
            // A wrong letter differs from the right one; bounded against a stuck generator.
            for (int n = 0; n < 1000 && other == right; ++n) other = char(roll(rng, 26) + 64);
            if (other == right) other = right == 'A' ? 'B' : 'A';
            col[r] = other;
        }
        c.letters.push_back(col);
    }
    c.robber = roll(rng, 2) == 1;
    return c;
}

std::string directions(const SharedState& s) {
    if (s.GameOptionOn) return std::string(kWithMeaning) + "\n\"" + s.TheMeaning + "\"";
    return kWithoutMeaning;
}

Click click(Circuit& c, int column, int row) {
    if (!c.ready || column != c.column || column >= int(c.word.size()) || row < 0 || row >= c.rows)
        return Click::Ignored;
    if (std::toupper(static_cast<unsigned char>(c.letters[column][row])) != c.word[column])
        return Click::Wrong;
    ++c.column;
    return c.column >= int(c.word.size()) ? Click::Done : Click::Right;
}

double winScore(const Circuit& c, int difficulty, bool meaningShown, Rng& rng) {
    const int length = std::max<int>(1, c.word.size());
    const double ratio = double(c.halfSeconds) / length;
    const int per = ratio < 1 ? 1000 : ratio < 2 ? 500 : ratio < 4 ? 200 : 100;
    double score = double(length) * per;
    score = std::floor(score + (500 + roll(rng, difficulty)) * double(difficulty));
    // Spelling without the meaning on show is worth five times as much.
    if (!meaningShown) score *= 5;
    return score;
}

std::string shortedText(const std::string& word) {
    return "Oops! You short-circuited the connection! The word you were trying to spell was \"" +
           word + "\". Would you like to try again?";
}

}  // namespace wm::shortcircuit
