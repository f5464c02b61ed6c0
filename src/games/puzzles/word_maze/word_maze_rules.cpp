#include "games/puzzles/word_maze/word_maze_rules.h"

#include <algorithm>
#include <limits>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::word_maze {

namespace {

// Bound on "draw until": a working generator never gets near it.
constexpr int kDrawCap = 10000;

int cellOf(const WordMazeState& m, int col, int row) {
    return (row - 1) * m.MazeWidth + (col - 1);
}

void showClue(const SharedState& state, WordMazeState& m) {
    m.label1 = state.GameOptionOn != kFalse ? state.TheMeaning : state.TheWord;
}

void takeWord(SharedState& state, WordMazeState& m) {
    const int index = m.MazeWords[std::clamp(m.WordNo, 1, m.MazeWordCount)];
    state.TheWord = state.Words[index];
    state.TheMeaning = state.Meanings[index];
}

// All cells but the end white; the four neighbours of `cell` pink, the end cell excepted.
// A neighbour already taken turns pink but stays hidden.
void offerNeighbours(WordMazeState& m, int cell) {
    for (int c = 0; c < static_cast<int>(m.colour.size()); ++c)
        if (c != m.EndCell) m.colour[c] = CellColour::White;
    const int col = cell % m.MazeWidth + 1;
    const int row = cell / m.MazeWidth + 1;
    auto offer = [&](int c, int r) {
        if (c < 1 || r < 1 || c > m.MazeWidth || r > m.MazeHeight) return;
        const int n = cellOf(m, c, r);
        if (n != m.EndCell) m.colour[n] = CellColour::Pink;
    };
    offer(col, row - 1);
    offer(col + 1, row);
    offer(col, row + 1);
    offer(col - 1, row);
}

// Starts the next word; true when the maze is done.
bool nextWord(SharedState& state, WordMazeState& m) {
    ++m.WordNo;
    if (m.WordNo > state.Difficulty) return true;
    takeWord(state, m);
    showClue(state, m);
    m.LetterNo = 1;
    m.label3 = "Words Left :" + NumText(state.Difficulty - m.WordNo + 1);
    m.label5.clear();
    return false;
}

}  // namespace

bool buildMaze(const SharedState& state, WordMazeState& m, Rng& rng) {
    m.MazeLetters = {};
    rng.Randomize();
    m.WalkCol = m.WalkRow = 1;
    m.MazeWidth = m.MazeHeight = 1;
    std::vector<bool> available(state.WordCount + 1, true);
    m.MazeWords.assign(m.MazeWordCount + 1, 0);

    for (int n = 1; n <= m.MazeWordCount; ++n) {
        if (std::find(available.begin() + 1, available.end(), true) == available.end()) {
            return false;  // more words wanted than the list holds
        }
        int index = 0;
        for (int draws = 0; index == 0 || !available[index]; ++draws) {
            if (draws >= kDrawCap) return false;
            index = std::clamp(static_cast<int>(Int(rng.Rnd() * state.WordCount + 1)), 1,
                               static_cast<int>(state.WordCount));
        }
        available[index] = false;
        m.MazeWords[n] = index;
        std::string text = UCase(state.Words[index]);
        if (n == 1 && !text.empty()) {
            m.MazeLetters[1][1] = text[0];
            text.erase(0, 1);
        }

        for (char letter : text) {
            bool stepped = false;
            for (int tries = 1; tries <= kTriesPerLetter && !stepped; ++tries) {
                // Only the odd directions: the diagonals stay switched off.
                int direction = 0;
                for (int draws = 0; direction % 2 == 0; ++draws) {
                    if (draws >= kDrawCap) return false;
                    direction = static_cast<int>(Int(rng.Rnd() * 8 + 1));
                }
                // The first word walks only right and down, so it leaves the start corner open.
                if (n == 1) direction = Int(rng.Rnd() * 2 + 1) == 1 ? 3 : 5;
                int col = m.WalkCol, row = m.WalkRow;
                if (direction == 1) --row;
                if (direction == 3) ++col;
                if (direction == 5) ++row;
                if (direction == 7) --col;
                if (col < 1 || row < 1 || col > kMaxCols || row > kMaxRows) continue;
                if (m.MazeLetters[col][row] != 0) continue;
                m.MazeLetters[col][row] = letter;
                m.WalkCol = col;
                m.WalkRow = row;
                stepped = true;
            }
            if (!stepped) return false;
            m.MazeWidth = std::max(m.MazeWidth, m.WalkCol);
            m.MazeHeight = std::max(m.MazeHeight, m.WalkRow);
        }
    }
    m.EndCol = m.WalkCol;
    m.EndRow = m.WalkRow;
    return true;
}

RoundStart startRound(SharedState& state, WordMazeState& m, Rng& rng) {
    m = WordMazeState{};
    m.MazeWordCount = state.Difficulty;
    RoundStart start;
    bool built = false;
    for (m.builds = 1; m.builds <= kMaxBuilds && !built; ++m.builds)
        built = buildMaze(state, m, rng);
    --m.builds;
    if (!built) {
        start.message = kUnableMessage;
        return start;
    }

    const int cells = m.MazeWidth * m.MazeHeight;
    m.caption.assign(cells, {});
    m.colour.assign(cells, CellColour::White);
    m.visible.assign(cells, true);
    for (int col = 1; col <= m.MazeWidth; ++col) {
        for (int row = 1; row <= m.MazeHeight; ++row) {
            const char c = m.MazeLetters[col][row];
            m.caption[cellOf(m, col, row)] =
                c ? std::string(1, c) : Chr(static_cast<int>(Int(rng.Rnd() * 26 + 1)) + 64);
        }
    }
    m.EndCell = cellOf(m, m.EndCol, m.EndRow);
    m.colour[m.EndCell] = CellColour::Green;
    m.colour[0] = CellColour::Pink;
    nextWord(state, m);
    m.LetterNo = 1;
    m.undo.clear();
    m.undoEnabled = false;
    start.ok = true;
    start.playBell = true;
    return start;
}

Click clickCell(SharedState& state, WordMazeState& m, int cell, Rng& rng) {
    Click click;
    if (cell < 0 || cell >= static_cast<int>(m.caption.size()) || !m.visible[cell]) return click;
    if (m.WordNo < 1 || m.WordNo > state.Difficulty) return click;  // the maze is done
    if (cell != m.EndCell && m.colour[cell] != CellColour::Pink) {
        click.result = ClickResult::OffPath;
        click.message = kFollowPathMessage;
        return click;
    }
    if (m.caption[cell] != UCase(Mid(state.TheWord, m.LetterNo, 1))) {
        click.result = ClickResult::Wrong;
        click.penalty = static_cast<int>(Int(rng.Rnd() * 1000 + 1));
        state.Score -= click.penalty;
        click.label6 = "-" + NumText(click.penalty) + " Points...";
        return click;
    }
    if (cell == m.EndCell && (m.WordNo < state.Difficulty || m.LetterNo < Len(state.TheWord))) {
        click.result = ClickResult::NotReady;
        click.message = kNotReadyMessage;
        return click;
    }

    // Only letters are tested, not the stored path, and the end cell needs no pink: the last
    // letter may be clicked from anywhere once all else is spelled. Both deliberate.
    m.label5 = Left(state.TheWord, m.LetterNo);
    offerNeighbours(m, cell);
    m.undoEnabled = true;
    if (static_cast<int>(m.undo.size()) < kMaxUndo) m.undo.push_back({m.WordNo, m.LetterNo, cell});
    m.visible[cell] = false;
    ++m.LetterNo;
    if (m.LetterNo > Len(Trim(state.TheWord))) {
        click.result = nextWord(state, m) ? ClickResult::MazeDone : ClickResult::NextWord;
    } else {
        click.result = ClickResult::Moved;
    }
    return click;
}

void undoMove(SharedState& state, WordMazeState& m) {
    if (m.undo.empty()) return;
    const UndoEntry e = m.undo.back();
    m.undo.pop_back();
    m.undoEnabled = !m.undo.empty();
    m.visible[e.cell] = true;
    m.WordNo = e.wordNo;
    m.LetterNo = e.letterNo;
    takeWord(state, m);
    if (m.undo.empty()) {
        for (int c = 0; c < static_cast<int>(m.colour.size()); ++c)
            if (c != m.EndCell) m.colour[c] = CellColour::White;
        m.colour[0] = CellColour::Pink;
    } else {
        offerNeighbours(m, m.undo.back().cell);
    }
    showClue(state, m);  // "Words Left" is not refreshed by an undo, as designed
    m.label5 = Left(state.TheWord, m.LetterNo - 1);
}

void countSecond(WordMazeState& m) {
    if (m.Seconds < std::numeric_limits<int>::max()) ++m.Seconds;
}

bool finishMaze(SharedState& state, const WordMazeState& m, Rng& rng) {
    const int difficulty = std::max(1, state.Difficulty);
    state.Score += static_cast<double>(Int(rng.Rnd() * 5000 + 1)) * difficulty;
    const long long p = Int(static_cast<double>(m.Seconds) / difficulty);
    if (p < 3) {
        state.Score *= 2.5;
    } else if (p < 7) {
        state.Score *= 1.8;
    } else if (p < 10) {
        state.Score *= 1.3;
    } else if (p >= 20) {
        state.Score *= 0.7;
    }
    if (state.GameOptionOn == kFalse) state.Score *= 0.5;
    if (state.Score < 0) return false;
    state.Score = static_cast<double>(Int(state.Score));
    return true;
}

}  // namespace wm::word_maze
