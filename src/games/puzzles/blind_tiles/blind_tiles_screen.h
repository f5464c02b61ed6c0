// Blind Tiles: the crossword with the clues taken away and the answers listed at the side; the
// pupil works out which word fits which run of blank tiles.
#pragma once

#include <QVector>

#include "games/puzzles/blind_tiles/blind_tiles_rules.h"
#include "games/puzzles/cross_form.h"

namespace wm {

// The tiles, drawn as raised wooden tiles.
class BlindTilesBoard : public CrossGrid {
    Q_OBJECT
public:
    explicit BlindTilesBoard(QWidget* parent = nullptr);
    QRect tileRect(int i) const;

protected:
    void paintEvent(QPaintEvent*) override;
};

class BlindTilesForm : public CrossForm {
    Q_OBJECT
public:
    explicit BlindTilesForm(QWidget* parent = nullptr);

    const blind_tiles::BlindTilesState& state() const { return bt_; }
    BlindTilesBoard* board() const { return board_; }
    QVector<QLabel*> clueLabels() const { return ClueLabel; }
    void NewGame() override;
    void clickTile(int i);
    void typeKey(int key) override;
    void giveAnswer() override;

protected:
    cross::PlayBoard& playBoard() override { return bt_.board; }
    void resizeEvent(QResizeEvent*) override;

private:
    void showState();
    void afterWord(blind_tiles::Outcome outcome, bool typed);

    BlindTilesBoard* board_;
    QVector<QLabel*> ClueLabel;  // 0 at the top
    blind_tiles::BlindTilesState bt_;
};

}  // namespace wm
