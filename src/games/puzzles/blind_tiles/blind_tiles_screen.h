// Blind Tiles: the crossword with the clues taken away and the answers listed at the side; the
// pupil works out which word fits which run of blank tiles.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVector>
#include <QWidget>

#include "games/puzzles/blind_tiles/blind_tiles_rules.h"
#include "shell/game_frame.h"
#include "shell/style.h"

namespace wm {

// The tiles, drawn as raised wooden tiles; only visible tiles can be clicked.
class BlindTilesBoard : public QWidget {
    Q_OBJECT
public:
    explicit BlindTilesBoard(QWidget* parent = nullptr);
    void setBoard(const cross::PlayBoard* board);
    QRect tileRect(int i) const;
    int tileAt(QPoint p) const;  // -1 off the tiles

signals:
    void tileClicked(int i);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;

private:
    double pitch() const;
    QPoint origin() const;
    const cross::PlayBoard* board_ = nullptr;
};

class BlindTilesForm : public Backdrop {
    Q_OBJECT
public:
    explicit BlindTilesForm(QWidget* parent = nullptr);

    const blind_tiles::BlindTilesState& state() const { return bt_; }
    GameFrame& frame() { return frame_; }
    BlindTilesBoard* board() const { return board_; }
    QVector<QLabel*> clueLabels() const { return ClueLabel; }
    void NewGame();
    void clickTile(int i);
    void typeKey(int key);  // the character code, 8 for Backspace
    void giveAnswer();

protected:
    void keyPressEvent(QKeyEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void showState();
    void afterWord(blind_tiles::Outcome outcome, bool typed);
    void endOfGame();

    BlindTilesBoard* board_;
    QLabel* Label1;
    QLabel* Label2;
    QLabel* Label3;
    QGroupBox* Frame2;
    QVector<QLabel*> ClueLabel;  // 0 at the top
    QPushButton* Command1;
    GameFrame frame_;
    GameTimer& Timer1;
    GameTimer& FlashTimer;
    blind_tiles::BlindTilesState bt_;
};

}  // namespace wm
