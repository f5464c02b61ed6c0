#include "games/puzzles/crossword/crossword_rules.h"

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "games/common/cross_layout.h"

namespace wm::crossword {

RoundResult newRound(SharedState& state, CrosswordState& cw, bool firstRound, Rng& rng) {
    const bool musicOpen = cw.MusicOpen;
    const std::string shownScore = cw.scoreText.empty() ? "Score: 0000" : cw.scoreText;
    cw = CrosswordState{};
    cw.MusicOpen = musicOpen;
    cw.scoreText = shownScore;
    if (!firstRound) {
        state.Score = 0;
        cw.scoreText = cross::scoreText(0);
    }
    cw.clue = kClickPrompt;

    // A lasting side effect, as designed: later rounds keep the lowered Difficulty.
    if (state.WordCount < state.Difficulty) state.Difficulty = state.WordCount;
    const cross::LayoutResult layout =
        cross::layOut(state.Words, state.WordCount, state.Difficulty, cross::kCrosswordParams, rng);
    if (!layout.ok) return {false, layout.message};
    cw.board = cross::makePlayBoard(layout.board, kCols, kRows);
    state.PuzzleWordCount = static_cast<short>(layout.target);
    return {true, {}};
}

void clickCell(const SharedState& state, CrosswordState& cw, int i) {
    if (!cross::clickCell(cw.board, i)) return;
    const int w = cw.board.SelWord;
    cw.clue = (w > 0 && w < static_cast<int>(state.Meanings.size())) ? state.Meanings[w] : "";
}

namespace {

const std::string& selectedWord(const SharedState& state, const CrosswordState& cw) {
    static const std::string none;
    const int w = cw.board.SelWord;
    return (w > 0 && w < static_cast<int>(state.Words.size())) ? state.Words[w] : none;
}

Outcome countDown(SharedState& state, CrosswordState& cw) {
    --state.PuzzleWordCount;
    if (state.PuzzleWordCount >= 1) return Outcome::Solved;
    cw.GameWon = true;  // the game ends at once, while the flash runs
    return Outcome::GameEnds;
}

}  // namespace

Outcome pressKey(SharedState& state, CrosswordState& cw, int key, Rng& rng) {
    const std::string word = selectedWord(state, cw);
    switch (cross::pressKey(cw.board, key, word)) {
        case cross::KeyResult::Ignored:
            return Outcome::None;
        case cross::KeyResult::Typed:
            return Outcome::Typed;
        case cross::KeyResult::Wrong:
            return Outcome::Wrong;
        case cross::KeyResult::Solved:
            break;
    }
    state.Score += static_cast<double>(Int(rng.Rnd() * 1000 + 1) + 250) * Len(word);
    cw.scoreText = cross::scoreText(state.Score);
    cross::endSelectionSolved(cw.board);
    return countDown(state, cw);
}

void buttonKeyDown(CrosswordState& cw) {
    cw.KeyOnButton = true;
}

void buttonMouseDown(CrosswordState& cw) {
    cw.KeyOnButton = false;
}

Outcome giveAnswer(SharedState& state, CrosswordState& cw, Rng& rng) {
    if (cw.KeyOnButton) return Outcome::None;  // a space or Enter typed onto the button
    if (!cross::giveAnswer(cw.board, selectedWord(state, cw))) return Outcome::None;
    // Label3 speaks of 1000 points; the cost is 501 to 1000, as designed.
    state.Score -= static_cast<double>(Int(rng.Rnd() * 500 + 1) + 500);
    cw.scoreText = cross::scoreText(state.Score);
    return countDown(state, cw);
}

}  // namespace wm::crossword
