#include "games/common/cross_play.h"

#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::cross {

namespace {

// Neighbour tests on the bare cell numbers, as designed. "Above" needs i - cols > 0, so the first
// cell of the second row has no cell above it; kept.
bool hasLeft(const PlayBoard& b, int i) {
    return i > 0 && i % b.cols != 0;
}
bool hasRight(const PlayBoard& b, int i) {
    return (i + 1) % b.cols != 0;  // the board's last cell ends a row too
}
bool hasAbove(const PlayBoard& b, int i) {
    return i - b.cols > 0;
}
bool hasBelow(const PlayBoard& b, int i) {
    return i + b.cols < b.cells();
}

void mark(PlayBoard& b, int i) {
    if (b.colour[i] == TileColour::White) b.caption[i] = 0;
    if (b.colour[i] != TileColour::Green) b.colour[i] = TileColour::Pink;
}

void unpink(PlayBoard& b) {
    for (TileColour& c : b.colour)
        if (c == TileColour::Pink) c = TileColour::White;
}

}  // namespace

PlayBoard makePlayBoard(const CrossBoard& layout, int cols, int rows) {
    PlayBoard b;
    b.cols = cols;
    b.rows = rows;
    b.layout = layout;
    b.caption.assign(b.cells(), 0);
    b.colour.assign(b.cells(), TileColour::White);
    b.visible.assign(b.cells(), false);
    for (int c = 1; c <= cols; ++c)
        for (int r = 1; r <= rows; ++r) b.visible[(r - 1) * cols + c - 1] = layout.at(c, r) != 0;
    return b;
}

bool clickCell(PlayBoard& b, int i) {
    if (i < 0 || i >= b.cells()) return false;
    b.Typed.clear();
    bool tryAcross = true;
    bool tryDown = true;
    if (b.colour[i] == TileColour::Pink) {
        if (b.SelAcross) tryAcross = false;
        if (b.SelDown) tryDown = false;
    }
    auto green = [&](int n) { return b.colour[n] == TileColour::Green; };
    if (green(i)) {
        if ((hasLeft(b, i) && green(i - 1)) || (hasRight(b, i) && green(i + 1))) tryAcross = false;
        if ((hasAbove(b, i) && green(i - b.cols)) || (hasBelow(b, i) && green(i + b.cols))) {
            tryDown = false;
        }
    }
    b.SelAcross = b.SelDown = false;
    unpink(b);
    if (!tryAcross && !tryDown) return false;

    if (tryAcross) {
        b.SelAcross = (hasLeft(b, i) && b.visible[i - 1]) || (hasRight(b, i) && b.visible[i + 1]);
        if (b.SelAcross) {
            mark(b, i);
            int pos = i;
            while (pos % b.cols != 0 && b.visible[pos - 1]) mark(b, --pos);
            b.SelStart = pos;
            b.SelWord = b.layout.wordAt(pos % b.cols + 1, pos / b.cols + 1, kAcross);
            pos = i;
            while ((pos + 1) % b.cols != 0 && b.visible[pos + 1]) mark(b, ++pos);
            tryDown = false;
        }
    }
    if (tryDown) {
        // The test below is one tighter than the neighbour test (i + cols < cells - 1): kept.
        b.SelDown = (hasAbove(b, i) && b.visible[i - b.cols]) ||
                    (i + b.cols < b.cells() - 1 && b.visible[i + b.cols]);
        if (b.SelDown) {
            mark(b, i);
            int pos = i;
            while (pos - b.cols > 0 && b.visible[pos - b.cols]) mark(b, pos -= b.cols);
            b.SelStart = pos;
            b.SelWord = b.layout.wordAt(pos % b.cols + 1, pos / b.cols + 1, kDown);
            pos = i;
            while (pos + b.cols < b.cells() && b.visible[pos + b.cols]) mark(b, pos += b.cols);
        }
    }
    b.helpShown = true;
    b.Cursor = b.SelStart;
    return b.selected();
}

KeyResult pressKey(PlayBoard& b, int key, const std::string& word) {
    if (!b.selected()) return KeyResult::Ignored;
    const int step = b.SelAcross ? 1 : b.cols;
    auto inBoard = [&](int n) { return n >= 0 && n < b.cells(); };
    if (key == kBackspace) {
        if (b.Typed.empty()) return KeyResult::Ignored;
        b.Typed.pop_back();
        b.Cursor -= step;
        if (inBoard(b.Cursor) && b.colour[b.Cursor] != TileColour::Green) b.caption[b.Cursor] = 0;
        return KeyResult::Typed;
    }
    // A space adds nothing to Typed but still moves the cursor on.
    b.Typed += Trim(UCase(Chr(key)));
    const std::string answer = UCase(word);
    if (Len(b.Typed) > Len(answer)) return KeyResult::Ignored;
    KeyResult result = KeyResult::Typed;
    if (Len(b.Typed) == Len(answer) && b.Typed != answer) {
        unpink(b);  // shows the answer is wrong; the letters stay to be corrected
        result = KeyResult::Wrong;
    }
    // Solved letters are never overwritten, though they must be typed all the same.
    if (inBoard(b.Cursor) && b.colour[b.Cursor] != TileColour::Green) {
        b.caption[b.Cursor] = UCase(Chr(key))[0];
    }
    b.Cursor += step;
    return b.Typed == answer ? KeyResult::Solved : result;
}

void endSelectionSolved(PlayBoard& b) {
    b.FlashTicks = 0;
    b.flashing = true;
    b.SelAcross = b.SelDown = false;
    b.helpShown = false;
}

bool giveAnswer(PlayBoard& b, const std::string& word) {
    if (!b.selected()) return false;
    const int step = b.SelAcross ? 1 : b.cols;
    const std::string answer = UCase(word);
    for (int k = 0; k < Len(answer); ++k) {
        const int n = b.SelStart + k * step;
        if (n < 0 || n >= b.cells()) break;
        b.caption[n] = answer[k];
        b.colour[n] = TileColour::Green;
    }
    b.SelAcross = b.SelDown = false;
    b.helpShown = false;
    return true;
}

void flashTick(PlayBoard& b) {
    if (!b.flashing) return;
    ++b.FlashTicks;
    for (TileColour& c : b.colour) {
        if (c == TileColour::Pink) {
            c = TileColour::Yellow;
        } else if (c == TileColour::Yellow) {
            c = TileColour::Pink;
        }
    }
    if (b.FlashTicks <= 10) return;
    b.flashing = false;
    for (TileColour& c : b.colour)
        if (c == TileColour::Pink || c == TileColour::Yellow) c = TileColour::Green;
}

bool endGame(SharedState& state, bool gameWon) {
    if (state.Score < 0) gameWon = false;
    if (gameWon) state.Score = static_cast<double>(Int(state.Score));
    return gameWon;
}

std::string scoreText(double score) {
    return "Score: " + NumText(score);
}

}  // namespace wm::cross
