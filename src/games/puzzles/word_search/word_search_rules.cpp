#include "games/puzzles/word_search/word_search_rules.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::word_search {

namespace {

// Draws Int(Rnd * n + 1) until it gives a value not yet drawn. Bounded: after many misses the
// first value not yet drawn is taken, which only a broken generator ever needs.
int drawUnused(std::vector<bool>& used, int n, Rng& rng) {
    for (int draws = 0; draws < 50 * n + 100; ++draws) {
        const int k = static_cast<int>(Int(rng.Rnd() * n + 1));
        if (k >= 1 && k <= n && !used[k]) {
            used[k] = true;
            return k;
        }
    }
    for (int k = 1; k <= n; ++k) {
        if (!used[k]) {
            used[k] = true;
            return k;
        }
    }
    return 1;
}

bool fits(const WordSearchState& ws, const std::string& word, int x, int y, int dx, int dy) {
    for (int i = 0; i < Len(word); ++i) {
        const char here = ws.LetterGrid[x + i * dx][y + i * dy];
        if (here != 0 && here != word[i]) return false;  // case counts before the fill
    }
    return true;
}

// Searches one direction in random order, outer axis first, and writes the word at the first fit.
bool placeInDirection(WordSearchState& ws, const std::string& word, int direction, Rng& rng) {
    const int s = ws.GridSize - Len(word);
    // The start runs to S, not S + 1: a word never reaches the last cell of its own axis, so it
    // needs a grid one longer than itself. Deliberate.
    if (s < 1) return false;
    const int outerCount = direction == 3 ? s : ws.GridSize;
    const int dx = direction == 2 ? 0 : 1;
    const int dy = direction == 1 ? 0 : 1;
    std::vector<bool> outerUsed(outerCount + 1, false);
    for (int o = 0; o < outerCount; ++o) {
        const int outer = drawUnused(outerUsed, outerCount, rng);
        std::vector<bool> innerUsed(s + 1, false);
        for (int i = 0; i < s; ++i) {
            const int inner = drawUnused(innerUsed, s, rng);
            // Across: row outer, start column inner. Down: column outer, start row inner.
            // Diagonal: start row outer, start column inner.
            int x = inner, y = outer;
            if (direction == 2) std::swap(x, y);
            if (!fits(ws, word, x, y, dx, dy)) continue;
            for (int k = 0; k < Len(word); ++k) ws.LetterGrid[x + k * dx][y + k * dy] = word[k];
            ws.hidden.push_back({x, y, direction});
            return true;
        }
    }
    return false;
}

bool attempt(const SharedState& state, WordSearchState& ws, Rng& rng) {
    ws.LetterGrid = {};
    rng.Randomize();
    const int count = state.PuzzleWordCount;
    std::vector<bool> used(state.WordCount + 1, false);
    ws.PickedWords.clear();
    ws.hidden.clear();
    for (int n = 0; n < count; ++n)
        ws.PickedWords.push_back(drawUnused(used, state.WordCount, rng));

    const int directions = ws.NoDiagonals ? 2 : 3;
    for (int index : ws.PickedWords) {
        const std::string& word = state.Words[index];  // as in the list: case and spaces kept
        std::vector<bool> tried(directions + 1, false);
        rng.Randomize();
        bool placed = false;
        for (int d = 0; d < directions && !placed; ++d) {
            placed = placeInDirection(ws, word, drawUnused(tried, directions, rng), rng);
        }
        if (!placed) return false;
    }

    for (int y = 1; y <= ws.GridSize; ++y) {
        rng.Randomize();
        for (int x = 1; x <= ws.GridSize; ++x) {
            char& c = ws.LetterGrid[x][y];
            if (c == 0) {
                c = Chr(static_cast<int>(Int(rng.Rnd() * 26 + 1)) + 64)[0];
            } else {
                c = UCase(std::string(1, c))[0];
            }
        }
    }
    return true;
}

}  // namespace

std::string caption(const WordSearchState& ws, int cell) {
    if (cell < 0 || cell >= kCells) return {};
    const char c = ws.LetterGrid[cell % kLayoutWidth + 1][cell / kLayoutWidth + 1];
    return c ? std::string(1, c) : std::string();
}

BuildResult generatePuzzle(const SharedState& state, WordSearchState& ws, Rng& rng) {
    for (ws.attempts = 1;; ++ws.attempts) {
        if (attempt(state, ws, rng)) return {true, {}, {}};
        if (ws.GridSize > 20) return {false, kUnableTitle, kUnableMessage};
        // Grows by 2, not 1, and stops growing at 20: from an even size a list that cannot fit
        // is retried at 20, only an odd size passes 20 and reaches the message. Deliberate.
        if (ws.GridSize < 20) ws.GridSize += 2;
        // A grid of 21 does not fit the 20-wide board, so it is not tried.
        if (ws.GridSize > 20) return {false, kUnableTitle, kUnableMessage};
        if (ws.attempts >= kMaxAttempts) return {false, kUnableTitle, kTooLongMessage};
    }
}

std::string directionsText(bool clueIsDefinition, bool noDiagonals) {
    std::string t = "Directions: Look in the puzzle for the ";
    t += clueIsDefinition ? "word matching the meaning shown " : "word shown ";
    t += "below. Words can be hidden down";
    t += noDiagonals ? " or across." : ", across, or diagnally.";
    t += "When you find the word, highlight it by clicking on each letter starting with the first.";
    return t;
}

BuildResult startRound(SharedState& state, WordSearchState& ws, Rng& rng) {
    const bool definition = state.GameOptionOn != kFalse;
    ws = WordSearchState{};
    ws.clueIsDefinition = definition;
    ws.GridSize = state.Difficulty;
    state.PuzzleWordCount = static_cast<short>(std::min<int>(state.Difficulty, state.WordCount));
    ws.NoDiagonals = state.Difficulty < 12;

    BuildResult built = generatePuzzle(state, ws, rng);
    if (!built.ok) return built;
    for (int index : ws.PickedWords) {
        ws.WordList.push_back(state.Words[index]);
        ws.AnswerList.push_back(definition ? state.Meanings[index] : state.Words[index]);
    }
    ws.directions = directionsText(definition, ws.NoDiagonals);
    ws.WordsLeft = state.PuzzleWordCount;
    state.WordIndex = 1;
    showWord(state, ws);
    return built;
}

void showWord(SharedState& state, WordSearchState& ws) {
    const int i = state.WordIndex - 1;
    if (i < 0 || i >= static_cast<int>(ws.WordList.size())) return;
    ws.cardText = ws.clueIsDefinition ? ws.AnswerList[i] : ws.WordList[i];
    state.TheWord = UCase(ws.WordList[i]);
    state.TheMeaning = ws.AnswerList[i];
    ws.NextLetter = 1;
}

// Neighbour tests on the bare cell numbers, kept as they stand: a left step onto a multiple of 19
// is refused, and a right step from a row's end onto the next row's start is allowed.
bool isNeighbour(int c, int p) {
    if (c == 0 && c == p - 1) return true;
    if (c % 19 != 0 && c == p - 1) return true;
    if (c == p - 20 || c == p + 20) return true;
    if (c != c / 20 && c == p + 1) return true;
    return c == p - 21 || c == p - 19 || c == p + 21 || c == p + 19;
}

TryResult tryCell(SharedState& state, WordSearchState& ws, int cell, Rng& rng) {
    ws.TryCell = cell;
    if (caption(ws, cell) != Mid(state.TheWord, ws.NextLetter, 1)) {
        if (ws.Started) return TryResult::Refused;
        ws.Dragging = false;
        return TryResult::EndDrag;
    }
    if (ws.Started && !isNeighbour(cell, ws.LastCell)) return TryResult::Refused;

    ws.colour[cell] = CellColour::Pink;
    ws.Started = true;
    ++ws.NextLetter;
    ws.clearEnabled = true;
    ws.LastCell = cell;
    if (ws.NextLetter <= Len(state.TheWord)) return TryResult::Accepted;

    // The word is found.
    ws.Dragging = false;
    ws.FlashTicks = 0;
    ws.flashing = true;
    ws.Started = false;
    ws.clearEnabled = false;
    const int line = state.WordIndex - 1;
    if (line >= 0 && line < static_cast<int>(ws.WordList.size())) {
        ws.WordList.erase(ws.WordList.begin() + line);
        ws.AnswerList.erase(ws.AnswerList.begin() + line);
    }
    if (state.WordIndex > static_cast<int>(ws.WordList.size())) --state.WordIndex;
    --ws.WordsLeft;
    if (ws.WordsLeft <= 0) {
        // No points for the last word: deliberate, the game ends when the flash does.
        ws.PuzzleDone = true;
        return TryResult::LastFound;
    }
    const double roll = static_cast<double>(Int(rng.Rnd() * 30 + 1));
    state.Score += (roll * state.PuzzleWordCount * Len(state.TheWord) - ws.Seconds) * 10;
    showWord(state, ws);
    return TryResult::Found;
}

TryResult mouseDown(SharedState& state, WordSearchState& ws, int cell, Rng& rng) {
    ws.Dragging = true;
    ws.pressedCell = cell;
    ws.DiagonalSteps = 0;
    return tryCell(state, ws, cell, rng);
}

void mouseUp(WordSearchState& ws) {
    ws.Dragging = false;
    ws.DiagonalSteps = 0;
}

TryResult mouseMove(SharedState& state, WordSearchState& ws, double x, double y, double w, double h,
                    Rng& rng) {
    if (!ws.Dragging) return TryResult::Refused;
    const int d = ws.pressedCell;
    // The height test of the diagonal step is the fixed h, not grown with the steps: deliberate.
    if (x > w + ws.DiagonalSteps * w && y > h && ws.TryCell < kCells) {
        ++ws.DiagonalSteps;
        return tryCell(state, ws, ws.TryCell + 21, rng);
    }
    if (x > w + (ws.TryCell - d) * w + 0.99 * w && ws.TryCell < kCells) {
        return tryCell(state, ws, ws.TryCell + 1, rng);
    }
    if (y > h + (ws.TryCell / 20.0 - d / 20.0) * h + 0.99 * h && ws.TryCell < 380) {
        return tryCell(state, ws, ws.TryCell + 20, rng);
    }
    return TryResult::Refused;
}

void clearMarking(WordSearchState& ws) {
    for (CellColour& c : ws.colour)
        if (c == CellColour::Pink) c = CellColour::White;
    ws.Started = false;
    ws.NextLetter = 1;
    ws.clearEnabled = false;
}

void scrollTo(SharedState& state, WordSearchState& ws, int value) {
    state.WordIndex = static_cast<short>(value);
    // During the flash only WordIndex changes; the old word stays asked for.
    if (ws.flashing) return;
    clearMarking(ws);
    showWord(state, ws);
}

std::string takeHint(SharedState& state) {
    state.Score -= 5000;
    return state.TheWord;
}

void countSecond(WordSearchState& ws) {
    if (ws.Seconds < std::numeric_limits<short>::max()) ++ws.Seconds;
}

bool flashTick(WordSearchState& ws) {
    if (!ws.flashing) return false;
    ++ws.FlashTicks;
    for (int cell = 0; cell < kCells; ++cell) {
        if (cell % kLayoutWidth >= ws.GridSize || cell / kLayoutWidth >= ws.GridSize) continue;
        CellColour& c = ws.colour[cell];
        if (c == CellColour::Pink) {
            c = CellColour::Green;
        } else if (c == CellColour::Green) {
            c = CellColour::Pink;
        }
    }
    ws.scoreFlash = !ws.scoreFlash;
    if (ws.FlashTicks <= 10) return false;
    ws.flashing = false;
    for (CellColour& c : ws.colour)
        if (c != CellColour::White) c = CellColour::Blue;
    ws.scoreFlash = false;
    return ws.PuzzleDone;
}

std::string loseText(double score) {
    return "Oops! Unfortunately, you got a score of " + NumText(score) +
           " on that game! You may want to practice a bit...";
}

int fireworkCount(Rng& rng) {
    return static_cast<int>(Int(rng.Rnd() * 5 + 1)) + 3;
}

}  // namespace wm::word_search
