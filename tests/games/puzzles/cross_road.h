// Road helpers shared by the crossword and blind tiles screen tests.
#pragma once

#include <QtTest>
#include <vector>

#include "game_start.h"
#include "games/common/cross_play.h"

namespace wm::test {

// Writes `pairs` as the only list and takes it to `game`: the chooser first, then the options
// screen with its slider and sound set. The game's screen after `settle` ms, or null.
template <class Form>
Form* ThroughOptions(ShellFixture& fx, const QString& game, const Pairs& pairs, int difficulty,
                     bool soundOn, int settle, bool wordsOnly = false) {
    WriteOneList(fx, "Test Words", pairs, wordsOnly);
    auto* chooser = ChooserFor(game, difficulty, false, soundOn);
    if (!chooser || SelectList(chooser, "Test Words") < 0) return nullptr;
    chooser->continueOn();
    Pump();
    if (auto* options = Showing<GameOptions>()) {
        options->SpeedBar->setValue(difficulty);
        (soundOn ? options->SoundONOp : options->SoundOFFOp)->setChecked(true);
        options->continueOn();
        Pump();
    }
    Pump(settle);
    return Showing<Form>();
}

struct WordPlace {
    int index, direction, cell;
};

// Every word of the layout with its direction and its first cell, in reading order.
inline std::vector<WordPlace> PlacedWords(const cross::PlayBoard& b) {
    std::vector<WordPlace> out;
    for (int i = 0; i < b.cells(); ++i)
        for (int d : {cross::kAcross, cross::kDown})
            if (int w = b.layout.wordAt(i % b.cols + 1, i / b.cols + 1, d))
                out.push_back({w, d, i});
    return out;
}

// Clicks the first cell of `w`, at `cell`, until its word is selected (a second click switches
// to the crossing word); false when it cannot be.
template <class Form>
bool SelectWord(Form* game, const WordPlace& w, QRect cell) {
    for (int clicks = 0; clicks < 3; ++clicks) {
        QTest::mouseClick(game->board(), Qt::LeftButton, {}, cell.center());
        const auto& b = game->state().board;
        if ((w.direction == cross::kAcross ? b.SelAcross : b.SelDown) && b.SelWord == w.index)
            return true;
    }
    return false;
}

}  // namespace wm::test
