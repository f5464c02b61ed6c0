// Blind tiles' rules: the crossword with the answers listed and the clues taken away. A round on
// the shared layout engine with the tiles' limits, the word panel, fixed scoring. Pure C++; the
// screen shows the tiles and the list, plays "gong" on a solved word and the music.
#pragma once

#include <string>
#include <vector>

#include "games/common/cross_play.h"

namespace wm {

class Rng;
struct SharedState;

namespace blind_tiles {

inline constexpr int kCols = 15;
inline constexpr int kRows = 14;
inline constexpr int kPanelLines = 7;

struct BlindTilesState {
    cross::PlayBoard board;
    std::vector<int> PlaceWord{0};     // 1-based in the order of placing: PlaceWord[0] unused
    std::vector<std::string> entries;  // ClueLabel(0..): the words in placing order
    std::vector<bool> entrySolved;     // light yellow once solved, pink before
    int Restarts = 0;
    std::string scoreText;
    bool GameWon = false;
};

struct RoundResult {
    bool ok = false;
    std::string message;
};

// A new round (at opening too): Score 0, the layout, the word panel.
RoundResult newRound(SharedState& state, BlindTilesState& bt, Rng& rng);

// Selects the word through tile i; no clue is shown.
void clickCell(BlindTilesState& bt, int i);

enum class Outcome { None, Typed, Wrong, Solved, GameEnds };

// The typed word is compared with the word of the selected place, not with the list: another
// list word typed into the slot is wrong.
Outcome pressKey(SharedState& state, BlindTilesState& bt, int key);

// No guard against a key on the button here, unlike the crossword.
Outcome giveAnswer(SharedState& state, BlindTilesState& bt);

}  // namespace blind_tiles
}  // namespace wm
