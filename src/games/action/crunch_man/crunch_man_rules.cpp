#include "games/action/crunch_man/crunch_man_rules.h"

#include <algorithm>

#include "core/strings.h"

namespace wm::crunch {

namespace {
constexpr int kMaxCellDraws = 100000;
const char* kTooLong =
    "The words on this list are too long to play this game! Choose another list or another "
    "game.";
const char* kTooSmall =
    "The field is too small for this word! Choose another list or another game.";

// A free cell off the middle row; false when the draws ran out (a field too small to hold
// the word), which the design never meets on a real screen.
bool drawCell(Round& r, Rng& rng, bool avoidMines, int& column, int& row) {
    for (int n = 0; n < kMaxCellDraws; ++n) {
        column = int(Int(rng.Rnd() * r.columns));
        row = int(Int(rng.Rnd() * r.rows));
        if (row == int(Int(r.rows / 2.0))) continue;
        if (r.letterCell[column][row]) continue;
        if (avoidMines && r.mineCell[column][row]) continue;
        return true;
    }
    return false;
}
}  // namespace

int stepFor(int difficulty) {
    if (difficulty < 5) return 4;
    if (difficulty < 9) return 8;
    return 12;
}

int chooseWord(SharedState& s, Rng& rng) {
    rng.Randomize();
    // The design draws until a word is short enough; a list of only long words would never end,
    // so the draws are bounded and the list refused.
    for (int n = 0; n < kMaxWordDraws; ++n) {
        const int k = int(Int(rng.Rnd() * s.WordCount + 1));
        if (k < 1 || k >= int(s.Words.size())) continue;
        if (Len(s.Words[k]) >= 20) continue;
        s.TheWord = UCase(s.Words[k]);
        s.TheMeaning = k < int(s.Meanings.size()) ? s.Meanings[k] : std::string();
        return k;
    }
    return 0;
}

void layGrid(Round& r, const Field& field, int difficulty) {
    r = Round{};
    r.field = field;
    r.firstTick = true;
    r.step = stepFor(difficulty);
    const int W = field.playerW, H = field.playerH, Y1 = field.line1;
    r.x = (field.width - W) / 2.0;
    r.y = int(CLng((field.height - H) / 2.0));
    r.columns = std::clamp(int(Int(field.width / double(W + 15))), 1, kGrid);
    r.rows = std::clamp(int(Int((field.height - 2 * Y1) / double(H + 15))), 1, kGrid);
    r.cellW = std::max(1, int(Int(field.width / double(r.columns))));
    r.cellH = std::max(1, int(Int((field.height - 2 * Y1) / double(r.rows))));
}

void placeLetter(Round& r, int k, char c, int column, int row) {
    const Field& f = r.field;
    Letter& l = r.labels[k];
    l.visible = c != ' ';
    l.text = c;
    l.left = column * r.cellW + int(Int((r.cellW - f.labelW) / 2.0));
    l.top = f.line1 + int(Int((r.cellH - f.labelH) / 2.0)) + r.cellH * row;
    r.letterCell[column][row] = true;
}

void placeMine(Round& r, int column, int row) {
    const Field& f = r.field;
    const int m = ++r.mineCount;
    r.mineX[m] = column * r.cellW + int(Int((r.cellW - f.mineW) / 2.0));
    r.mineY[m] = f.line1 + int(Int((r.cellH - f.mineH) / 2.0)) + r.cellH * row;
    r.mineCell[column][row] = true;
}

SetupResult setupRound(SharedState& s, Round& r, const Field& field, Rng& rng) {
    layGrid(r, field, s.Difficulty);
    s.Score = 0;
    if (chooseWord(s, rng) == 0) return {false, kTooLong};
    const std::string& word = s.TheWord;
    r.length = Len(word);
    int column = 0, row = 0;
    for (int i = 1; i <= r.length && i <= kLabels; ++i) {
        const char c = word[i - 1];
        if (c != ' ' && !drawCell(r, rng, false, column, row)) return {false, kTooSmall};
        // A blank keeps the cell of the letter before it, with an invisible label.
        placeLetter(r, i - 1, c, column, row);
    }
    if (s.Difficulty > 1) {
        for (int m = 1; m <= s.Difficulty && m <= kMines; ++m) {
            if (!drawCell(r, rng, true, column, row)) return {false, kTooSmall};
            placeMine(r, column, row);
        }
    }
    return {};
}

int spriteFor(int heading, int frame) {
    if (frame <= 1 || frame > 6) return 0;
    static const int opening[] = {0, 1, 2, 3, 2, 1};  // frames 2..6
    const int first = heading == 2 ? 1 : heading == 4 ? 4 : heading == 1 ? 7 : 10;
    return first + opening[frame - 1] - 1;
}

int mineSpriteFor(int frame) {
    static const int holders[] = {15, 16, 17, 18, 17, 16};
    return holders[std::clamp(frame, 1, 6) - 1];
}

TickResult tick(Round& r, SharedState& s, Rng& rng) {
    const Field& f = r.field;
    TickResult t;
    r.heading = r.wanted;
    t.oldX = int(r.x);
    t.oldY = r.y;
    if (r.firstTick)
        r.firstTick = false;
    else
        t.restoreOld = true;
    t.sprite = spriteFor(r.heading, r.frame);
    switch (r.heading) {
        case 1:
            r.y -= r.step;
            break;
        case 2:
            r.x += r.step;
            break;
        case 3:
            r.y += r.step;
            break;
        default:
            r.x -= r.step;
            break;
    }
    r.x = std::clamp(r.x, 0.0, double(f.width - f.playerW));
    r.y = std::clamp(r.y, f.line1 + 10, f.line2() - f.playerH - 5);
    t.newX = int(r.x);
    t.newY = r.y;
    t.chomp = r.frame == 6;
    if (r.mineCount > 0) t.mineSprite = mineSpriteFor(r.frame);
    r.frame = r.frame % 6 + 1;

    // Only what lies under the mouth's centre counts.
    const int row = int(Int((r.y + f.playerH / 2.0 - f.line1) / r.cellH));
    const int column = int(Int((r.x + f.playerW / 2.0) / r.cellW));
    if (row < 0 || row >= kGrid || column < 0 || column >= kGrid) return t;
    if (r.letterCell[column][row]) {
        const int offX = int(Int((r.cellW - f.labelW) / 2.0));
        const int offY = int(Int((r.cellH - f.labelH) / 2.0));
        for (int k = 0; k < kLabels; ++k) {
            const Letter& l = r.labels[k];
            if ((l.left - offX) / double(r.cellW) != column) continue;
            if (CLng((l.top - f.line1 - offY) / double(r.cellH)) != row) continue;
            t.label = k;
            break;
        }
        if (t.label >= 0) {
            Letter& l = r.labels[t.label];
            t.labelLeft = l.left;
            t.labelTop = l.top;
            const std::string& word = s.TheWord;
            // Only the caption is compared: either copy of a repeated letter will do.
            if (r.next <= r.length && l.text == word[r.next - 1]) {
                // Times the number of mines: with none, every letter is worth nothing.
                t.points = int(Int(rng.Rnd() * (s.Difficulty * 100) + 1)) * r.mineCount;
                s.Score += t.points;
                r.spelled += l.text;
                l.visible = false;
                l.left = l.top = 0;
                ++r.next;
                if (r.next <= r.length && word[r.next - 1] == ' ') {
                    r.spelled += ' ';
                    ++r.next;
                }
                t.wipeUnder = true;
                t.event = r.next > r.length ? Event::Won : Event::Ate;
            } else {
                l.visible = false;
                l.red = true;
                t.event = Event::WrongLetter;
            }
        }
        r.letterCell[column][row] = false;
    } else if (r.mineCell[column][row]) {
        const int offX = int(Int((r.cellW - f.mineW) / 2.0));
        const int offY = int(Int((r.cellH - f.mineH) / 2.0));
        for (int m = 1; m <= r.mineCount; ++m) {
            if ((r.mineX[m] - offX) / double(r.cellW) != column) continue;
            if (CLng((r.mineY[m] - f.line1 - offY) / double(r.cellH)) != row) continue;
            t.mine = m;
            t.event = Event::Mine;
            break;
        }
    }
    return t;
}

namespace {
int spinPicture(int frame) {
    static const int holders[] = {2, 11, 5, 8};  // the mouth turning clockwise
    return holders[std::clamp(frame, 1, 4) - 1];
}
bool shrink(Dying& d) {
    d.width -= 4;
    d.height = d.width;
    d.left += 2;
    d.top += 2;
    return d.width < 5;
}
}  // namespace

bool letterDeathTick(Dying& d, Round& r, int& picture) {
    if (d.target >= 0 && d.target < kLabels)
        r.labels[d.target].visible = !r.labels[d.target].visible;
    picture = spinPicture(d.frame);
    d.frame = d.frame % 4 + 1;
    return shrink(d);
}

bool mineDeathTick(Dying& d, int& explosion, int& picture) {
    // Past the eighth frame the black picture stays in the holder and is copied again.
    explosion = std::min(d.frame, 8);
    ++d.frame;
    picture = -1;
    if (d.frame <= 8) return false;
    picture = spinPicture(d.spin);
    d.spin = d.spin % 4 + 1;
    return shrink(d);
}

std::string lostText(const std::string& word) {
    return "Oops! You lost this game! The word you were looking for was \"" + word +
           "\". Would you like to give it another try?";
}

std::string scoreCaption(double score) {
    return "Score: " + NumText(score);
}

}  // namespace wm::crunch
