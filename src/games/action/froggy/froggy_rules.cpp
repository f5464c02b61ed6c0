#include "games/action/froggy/froggy_rules.h"

#include <algorithm>

#include "core/strings.h"

namespace wm::froggy {

int logRow(int i) {
    return 10 + (i - 1) % 3;
}
int logMove(int i) {
    static const int moves[] = {-1, 2, -3};
    return moves[(i - 1) % 3];
}
int rightCarRow(int i) {
    return i <= 3 ? 3 : 6;
}
int leftCarRow(int i) {
    return i <= 3 ? 4 : 7;
}
bool isRiver(int row) {
    return row >= 10 && row <= 12;
}

Level levelFor(int difficulty, int width, int column) {
    struct Row {
        const char* cars;
        int step, interval, logWidth;  // log width -1: half the screen, -2: one column
    };
    static const Row table[] = {
        {"14", 1, 40, -1},     {"124", 1, 40, -1},     {"1245", 1, 30, 300},
        {"12345", 1, 30, 200}, {"123456", 1, 30, 200}, {"123456", 1, 20, 150},
        {"1245", 2, 15, 150},  {"123456", 2, 15, 100}, {"123456", 3, 1, -2},
    };
    const Row& row = table[std::clamp(difficulty, 1, 9) - 1];
    Level level;
    for (const char* c = row.cars; *c; ++c) level.active[*c - '0'] = true;
    level.carStep = row.step;
    level.logInterval = row.interval;
    level.logWidth = row.logWidth == -1 ? width / 2 : row.logWidth == -2 ? column : row.logWidth;
    return level;
}

namespace {
void placeStones(Board& b, int difficulty) {
    auto row5 = [&](int c) { b.stone[c][5] = true; };
    auto row8 = [&](int c) { b.stone[c][8] = true; };
    auto allBut = [](auto set, std::initializer_list<int> keep) {
        for (int c = 1; c <= kColumns; ++c)
            if (std::find(keep.begin(), keep.end(), c) == keep.end()) set(c);
    };
    switch (difficulty) {
        case 4:
            for (int c : {1, 3, 5, 16, 18, 20}) row5(c);
            break;
        case 5:
            for (int c : {1, 4, 7, 10, 11, 14, 17, 20}) row5(c);
            for (int c = 2; c <= 20; c += 2) row8(c);
            break;
        case 6:
            allBut(row5, {1, 5, 9, 13});
            allBut(row8, {18, 14, 10, 6});
            break;
        case 7:
            for (int c = 1; c <= 15; ++c) row5(c);
            for (int c = 20; c >= 6; --c) row8(c);
            break;
        case 8:
            allBut(row5, {1, 8, 15});
            allBut(row8, {18, 11, 4});
            break;
        case 9:
            allBut(row5, {1});
            allBut(row8, {20});
            break;
        default:
            break;
    }
}
}  // namespace

void lay(Board& b, int width, int height, int difficulty) {
    b = Board{};
    b.width = width;
    b.height = height;
    b.rowH = int(CLng(height / 14.0));
    b.colW = int(CLng(width / 20.0));
    b.carH = b.rowH;
    b.carW = 2 * b.carH;
    b.bonus = 10000;
    const double w = width;
    for (int i : {1, 4}) {
        b.logX[i] = i == 1 ? 0 : int(w * 0.5);
        b.logX[i + 1] = b.logX[i];
        b.logX[i + 2] = b.logX[i];
        b.rightX[i] = 0;
        b.leftX[i] = width;
    }
    for (int i : {2, 5}) {
        b.rightX[i] = int(w * 0.3);
        b.leftX[i] = int(w * 0.6);
    }
    for (int i : {3, 6}) {
        b.rightX[i] = int(w * 0.6);
        b.leftX[i] = int(w * 0.3);
    }
    b.frogRow = 1;
    b.frogCol = 10;
    b.frogX = b.X(10);
    b.frogY = b.Y(1);
    b.facing = Up;
    b.level = levelFor(difficulty, width, b.colW);
    placeStones(b, difficulty);
}

SetupResult setup(SharedState& s, Board& b, int width, int height, Rng& rng) {
    rng.Randomize();
    lay(b, width, height, s.Difficulty);
    const int k = int(Int(rng.Rnd() * s.WordCount + 1));
    if (k < 1 || k >= int(s.Words.size())) return {false, "This list has no words to play with."};
    s.TheWord = s.Words[k];
    s.TheMeaning = k < int(s.Meanings.size()) ? s.Meanings[k] : std::string();
    b.correctSlot = int(Int(rng.Rnd() * 4 + 1));
    b.slotWords[b.correctSlot] = s.TheWord;
    int draws = 0;
    for (int slot = 1; slot <= 4; ++slot) {
        if (slot == b.correctSlot) continue;
        // The design draws until the word differs from all placed so far; a list with fewer
        // than four different words would never finish, so the draws are bounded.
        for (;;) {
            if (++draws > kMaxSlotDraws)
                return {false,
                        "This list needs at least four different words to play Froggy! Choose "
                        "another list or another game."};
            const int j = int(Int(rng.Rnd() * s.WordCount + 1));
            if (j < 1 || j >= int(s.Words.size())) continue;
            const std::string& w = s.Words[j];
            if (w == s.TheWord) continue;
            if (std::find(b.slotWords.begin() + 1, b.slotWords.end(), w) != b.slotWords.end())
                continue;
            b.slotWords[slot] = w;
            break;
        }
    }
    return {};
}

Outcome carTick(Board& b) {
    Outcome out = Outcome::None;
    const int C = b.colW, step = b.level.carStep;
    auto hits = [&](int x) { return b.frogX > x - C + 5 && b.frogX < x + b.carW - 5; };
    for (int i = 1; i <= 6; ++i) {
        if (!b.level.active[i]) continue;
        b.rightX[i] += step;
        if (b.rightX[i] > b.width) b.rightX[i] = -b.carW;
        if (b.frogRow == rightCarRow(i) && hits(b.rightX[i])) out = Outcome::Squashed;
        b.leftX[i] -= step;
        if (b.leftX[i] < -b.carW) b.leftX[i] = b.width;
        if (b.frogRow == leftCarRow(i) && hits(b.leftX[i])) out = Outcome::Squashed;
    }
    return out;
}

Outcome logTick(Board& b, bool& rode) {
    rode = false;
    const int C = b.colW, logW = b.level.logWidth;
    for (int i = 1; i <= 6; ++i) {
        const int d = logMove(i);
        b.logX[i] += d;
        if (b.logX[i] > b.width) b.logX[i] = -logW;
        if (b.logX[i] < -logW) b.logX[i] = b.width;
        if (b.frogRow != logRow(i)) continue;
        const int other = i <= 3 ? i + 3 : i - 3;
        auto on = [&](int x) { return b.frogX > x - 0.8 * C && b.frogX < x + logW - 0.2 * C; };
        if (!on(b.logX[i]) && !on(b.logX[other])) return Outcome::Drowned;
        if (rode) continue;  // the frog rides once a tick, though two logs share its row
        rode = true;
        b.frogX = std::clamp(b.frogX + d, 0, b.width - C);
        for (int c = 1; c <= kColumns; ++c) {
            if (b.X(c) <= b.frogX && b.frogX < b.X(c) + C / 2.0) {
                b.frogCol = c;
                break;
            }
        }
    }
    return Outcome::None;
}

void bonusTick(Board& b) {
    b.bonus = std::max(1, b.bonus - 1);
}

HopResult keyDown(Board& b, Key key) {
    HopResult r;
    if (b.keyLock) return r;
    if (key == Key::Other) {
        r.hop = Hop::NotArrow;
        return r;
    }
    // One press is one hop: the keyboard's repeats wait for the key to come up.
    b.keyLock = true;
    const int row = b.frogRow, col = b.frogCol;
    switch (key) {
        case Key::Up:
            ++b.frogRow;
            b.facing = Up;
            break;
        case Key::Down:
            b.frogRow = std::max(1, b.frogRow - 1);
            b.facing = Down;
            break;
        case Key::Right:
            b.frogCol = std::min(kColumns, b.frogCol + 1);
            b.facing = Right;
            break;
        default:
            b.frogCol = std::max(1, b.frogCol - 1);
            b.facing = Left;
            break;
    }
    if (b.frogRow <= kRows && b.stone[b.frogCol][b.frogRow]) {
        b.frogRow = row;
        b.frogCol = col;
        r.hop = Hop::Blocked;
    } else {
        r.hop = Hop::Moved;
    }
    const bool vertical = key == Key::Up || key == Key::Down;
    if (!vertical || !isRiver(b.frogRow)) b.frogX = b.X(b.frogCol);
    b.frogY = b.Y(b.frogRow);
    if (b.frogRow == 13) {
        const int s = b.correctSlot;
        r.outcome = b.frogCol >= 5 * s - 4 && b.frogCol <= 5 * (s + 1) - 5 ? Outcome::Won
                                                                           : Outcome::WrongWord;
    }
    return r;
}

double winScore(const Board& b, int difficulty, Rng& rng) {
    return double(
        Int(b.bonus * 10.0 + difficulty * 1000.0 + Int(rng.Rnd() * difficulty + 1) * 10.0));
}

std::string question(const std::string& meaning) {
    return "Which word means \"" + meaning + "\"?";
}

std::string wrongWordText(const std::string& word) {
    return "Oops! Wrong word! The correct word was \"" + word + "\" Would you like to try again?";
}

}  // namespace wm::froggy
