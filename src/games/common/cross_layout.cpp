#include "games/common/cross_layout.h"

#include <algorithm>

#include "core/rng.h"
#include "core/strings.h"

namespace wm::cross {

namespace {

// A free cell on the word's line needs free cells on both sides across the line; a cell that
// holds a letter is not held to that, so a word may run through agreeing letters.
bool cellAgrees(const CrossBoard& board, int col, int row, char wanted, bool across) {
    const char here = board.at(col, row);
    if (here != 0) return here == wanted;
    if (across) return board.at(col, row - 1) == 0 && board.at(col, row + 1) == 0;
    return board.at(col - 1, row) == 0 && board.at(col + 1, row) == 0;
}

// A word that would lie wholly on letters already placed (the same word twice in the list, laid
// over its twin) gets no cell of its own and would take its twin's start entry, leaving a slot
// short and the puzzle impossible to finish. Such a placing is refused.
bool takesNewCell(const CrossBoard& board, int col, int row, int length, bool across) {
    for (int i = 0; i < length; ++i)
        if (board.at(across ? col + i : col, across ? row : row + i) == 0) return true;
    return false;
}

}  // namespace

// The fit is one tighter than the board at both ends (x - before > 0 and x + after < cols):
// deliberate, so words keep off the outer columns and rows. The crossing cell is not retested.
bool fitAcross(CrossBoard& board, const std::string& text, int index, int x, int y, int k,
               const LayoutParams& params) {
    const int after = Len(text) - k;
    const int before = k;
    if (!(x + after < params.cols && x - before > 0)) return false;
    for (int j = 1; j <= after; ++j)
        if (!cellAgrees(board, x + j, y, text[k + j - 1], true)) return false;
    if (board.at(x + after + 1, y) != 0) return false;
    for (int j = 1; j <= k - 1; ++j)
        if (!cellAgrees(board, x - j, y, text[k - j - 1], true)) return false;
    if (board.at(x - k, y) != 0) return false;

    const int start = x - k + 1;
    if (!takesNewCell(board, start, y, Len(text), true)) return false;
    for (int i = 0; i < Len(text); ++i) board.CrossLetters[start + i][y] = text[i];
    board.CrossWordAt[start][y][kAcross] = static_cast<short>(index);
    return true;
}

bool fitDown(CrossBoard& board, const std::string& text, int index, int x, int y, int k,
             const LayoutParams& params) {
    const int after = Len(text) - k;
    const int before = k;
    if (!(y + after < params.rows && y - before > 0)) return false;
    for (int j = 1; j <= after; ++j)
        if (!cellAgrees(board, x, y + j, text[k + j - 1], false)) return false;
    if (board.at(x, y + after + 1) != 0) return false;
    for (int j = 1; j <= k - 1; ++j)
        if (!cellAgrees(board, x, y - j, text[k - j - 1], false)) return false;
    if (board.at(x, y - k) != 0) return false;

    const int start = y - k + 1;
    if (!takesNewCell(board, x, start, Len(text), false)) return false;
    for (int i = 0; i < Len(text); ++i) board.CrossLetters[x][start + i] = text[i];
    board.CrossWordAt[x][start][kDown] = static_cast<short>(index);
    return true;
}

namespace {

// Bound on the draws for one available word. With k of n words still available a working
// generator needs about n/k draws; only a broken or scripted one gets near this.
int drawCap(int wordCount) {
    return 50 * wordCount + 1000;
}

class Worker {
public:
    Worker(const std::vector<std::string>& words, int wordCount, const LayoutParams& params,
           Rng& rng)
        : words_(words),
          wordCount_(wordCount),
          p_(params),
          rng_(rng),
          available_(static_cast<std::size_t>(wordCount) + 1, true),
          failed_(static_cast<std::size_t>(wordCount) + 1, 0) {}

    void makeAllAvailable() { std::fill(available_.begin(), available_.end(), true); }

    // One attempt at `target` words on a fresh board.
    bool attempt(int target) {
        board_ = CrossBoard{};
        order_.clear();
        for (int n = 1; n <= target; ++n) {
            const bool placed = (n == 1) ? placeFirst() : placeFurther();
            if (!placed) return false;
        }
        return true;
    }

    const CrossBoard& board() const { return board_; }
    const std::vector<PlacedWord>& order() const { return order_; }

private:
    int drawIndex() {
        const int k = static_cast<int>(Int(rng_.Rnd() * wordCount_ + 1));
        return std::clamp(k, 1, wordCount_);  // a generator outside [0, 1) stays on the list
    }

    bool placeFirst() {
        rng_.Randomize();
        const int index = drawIndex();
        available_[index] = false;
        const int col = static_cast<int>(Int(rng_.Rnd() * 10 + 1));
        const std::string& text = words_[index];  // drawn within the list's entries
        const int length = Len(text);
        // A first word longer than the board has no room: the attempt fails like any other.
        if (length > p_.rows) return false;
        const int s = static_cast<int>(Int((p_.rows - length) / 2.0));
        for (int k = 1; k <= length; ++k) board_.CrossLetters[col][s + k] = text[k - 1];
        board_.CrossWordAt[col][s + 1][kDown] = static_cast<short>(index);
        order_.push_back({index, kDown, col, s + 1});
        return true;
    }

    bool placeFurther() {
        if (std::find(available_.begin() + 1, available_.end(), true) == available_.end()) {
            return false;  // more words wanted than the list holds
        }
        const int cap = drawCap(wordCount_);
        // The board does not change while the tries fail, so a word that failed in one scan
        // order fails again: remember it rather than scan again. The draws stay the same.
        std::fill(failed_.begin(), failed_.end(), 0);
        for (int tries = 1; tries <= p_.triesPerWord; ++tries) {
            int index = drawIndex();
            for (int draws = 1; !available_[index]; ++draws) {
                if (draws >= cap) return false;
                index = drawIndex();
            }
            // A word that failed stays available and may be drawn again.
            if (cross(index)) {
                available_[index] = false;
                return true;
            }
        }
        return false;
    }

    // Scans the board for a letter the word shares and places it at the first fit.
    // The generator is reseeded once an attempt, at the first word, not before every crossing:
    // reseeding costs more than the scan itself and would make a hard list stall the screen.
    // The draws are the same and in the same order.
    bool cross(int index) {
        const bool forward = static_cast<int>(Int(rng_.Rnd() * 2 + 1)) == 1;
        const unsigned char orderBit = forward ? 1 : 2;
        if (failed_[index] & orderBit) return false;
        failed_[index] |= orderBit;
        const std::string& text = words_[index];  // drawn within the list's entries
        auto tryCell = [&](int x, int y) {
            const char letter = board_.CrossLetters[x][y];
            if (letter == 0) return false;
            for (int k = 1; k <= Len(text); ++k) {
                if (text[k - 1] != letter) continue;  // exact: case counts
                int direction = kAcross;
                if (!fitAcross(board_, text, index, x, y, k, p_)) {
                    if (!fitDown(board_, text, index, x, y, k, p_)) continue;
                    direction = kDown;
                }
                order_.push_back(direction == kAcross ? PlacedWord{index, kAcross, x - k + 1, y}
                                                      : PlacedWord{index, kDown, x, y - k + 1});
                return true;
            }
            return false;
        };
        if (forward) {
            for (int x = 1; x <= p_.cols; ++x)
                for (int y = 1; y <= p_.rows; ++y)
                    if (tryCell(x, y)) return true;
        } else {
            for (int x = p_.cols; x >= 1; --x)
                for (int y = p_.rows; y >= 1; --y)
                    if (tryCell(x, y)) return true;
        }
        return false;
    }

    const std::vector<std::string>& words_;
    int wordCount_;
    const LayoutParams& p_;
    Rng& rng_;
    std::vector<bool> available_;        // 1-based
    std::vector<unsigned char> failed_;  // scan orders that failed on this board, 1-based
    CrossBoard board_;
    std::vector<PlacedWord> order_;
};

}  // namespace

LayoutResult layOut(const std::vector<std::string>& words, int wordCount, int target,
                    const LayoutParams& params, Rng& rng) {
    LayoutResult result;
    wordCount = std::min(wordCount, static_cast<int>(words.size()) - 1);
    if (wordCount < 1 || target < 1) {
        result.message = kFailedMessage;
        return result;
    }

    // The retries are a plain loop: the crossword's retry by timer and blind tiles' nested retry
    // make the same draws in the same order. It ends, since the target only falls.
    Worker worker(words, wordCount, params, rng);
    while (true) {
        ++result.attempts;
        if (worker.attempt(target)) {
            result.ok = true;
            result.board = worker.board();
            result.order = worker.order();
            result.target = target;
            return result;
        }
        ++result.restarts;
        if (result.restarts > params.restartsAllowed) --target;
        if (target < params.lowestTarget) {
            result.target = target;
            result.message = kFailedMessage;
            return result;
        }
        worker.makeAllAvailable();
    }
}

}  // namespace wm::cross
