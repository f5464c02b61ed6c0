// Road helpers shared by the crossword and blind tiles screen tests.
#pragma once

#include <QtTest>
#include <vector>

#include "game_road.h"
#include "games/common/cross_play.h"

namespace wm::test {

// The list first, then the options screen with its slider and sound set, then the game.
inline QWidget* ThroughOptions(ChooseList* chooser, const QString& list, int difficulty,
                               bool soundOn) {
    if (!chooser || SelectList(chooser, list) < 0) return nullptr;
    chooser->continueOn();
    Pump();
    auto* options = Showing<GameOptions>();
    if (!options) return CurrentScreen();
    options->SpeedBar->setValue(difficulty);
    (soundOn ? options->SoundONOp : options->SoundOFFOp)->setChecked(true);
    options->continueOn();
    Pump();
    return CurrentScreen();
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

}  // namespace wm::test
