#include "games/puzzles/blind_tiles/blind_tiles_rules.h"

#include "core/shared_state.h"
#include "core/strings.h"
#include "games/common/cross_layout.h"

namespace wm::blind_tiles {

namespace {

const std::string& selectedWord(const SharedState& state, const BlindTilesState& bt) {
    static const std::string none;
    const int w = bt.board.SelWord;
    return (w > 0 && w < static_cast<int>(state.Words.size())) ? state.Words[w] : none;
}

// Every list entry that reads as the word turns yellow: two entries of one word both do.
Outcome wordDone(SharedState& state, BlindTilesState& bt, const std::string& word) {
    for (std::size_t i = 0; i < bt.entries.size(); ++i)
        if (UCase(bt.entries[i]) == UCase(word)) bt.entrySolved[i] = true;
    bt.scoreText = cross::scoreText(state.Score);
    --state.PuzzleWordCount;
    if (state.PuzzleWordCount >= 1) return Outcome::Solved;
    bt.GameWon = true;
    bt.board.flashing = false;  // the flash stops at once at the end of the game
    return Outcome::GameEnds;
}

}  // namespace

RoundResult newRound(SharedState& state, BlindTilesState& bt, Rng& rng) {
    bt = BlindTilesState{};
    state.Score = 0;
    bt.scoreText = cross::scoreText(0);
    // No clamp to WordCount: the list chooser guarantees the words.
    state.PuzzleWordCount = static_cast<short>(state.Difficulty);
    const cross::LayoutResult layout = cross::layOut(
        state.Words, state.WordCount, state.PuzzleWordCount, cross::kBlindTilesParams, rng);
    bt.Restarts = layout.restarts;
    if (!layout.ok) return {false, layout.message};
    state.PuzzleWordCount = static_cast<short>(layout.target);
    bt.board = cross::makePlayBoard(layout.board, kCols, kRows);
    for (const cross::PlacedWord& w : layout.order) {
        bt.PlaceWord.push_back(w.index);
        if (static_cast<int>(bt.entries.size()) < kPanelLines)
            bt.entries.push_back(state.Words[w.index]);
    }
    bt.entrySolved.assign(bt.entries.size(), false);
    return {true, {}};
}

void clickCell(BlindTilesState& bt, int i) {
    cross::clickCell(bt.board, i);
}

Outcome pressKey(SharedState& state, BlindTilesState& bt, int key) {
    const std::string word = selectedWord(state, bt);
    switch (cross::pressKey(bt.board, key, word)) {
        case cross::KeyResult::Ignored:
            return Outcome::None;
        case cross::KeyResult::Typed:
            return Outcome::Typed;
        case cross::KeyResult::Wrong:
            return Outcome::Wrong;
        case cross::KeyResult::Solved:
            break;
    }
    state.Score += 100.0 * Len(word);
    cross::endSelectionSolved(bt.board);
    return wordDone(state, bt, word);
}

Outcome giveAnswer(SharedState& state, BlindTilesState& bt) {
    const std::string word = selectedWord(state, bt);
    if (!cross::giveAnswer(bt.board, word)) return Outcome::None;
    state.Score -= 1000;
    return wordDone(state, bt, word);
}

}  // namespace wm::blind_tiles
