// What the two crossing-word games share on screen: a grid of cells that takes clicks on the
// visible ones, and a form with the board on the left and a column at the right (score, a panel
// of the game's own, the Give Answer help and button, and a hint at the foot), typed answers,
// the foreign-letter palette, the flash of a solved word and the end of the game.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "games/common/cross_play.h"
#include "shell/game_frame.h"
#include "shell/style.h"

namespace wm {

// A board of cols x rows cells, `margin` cells of room around them. Only visible cells take
// clicks.
class CrossGrid : public QWidget {
    Q_OBJECT
public:
    CrossGrid(QWidget* parent, int cols, int rows, double margin);
    void setBoard(const cross::PlayBoard* board);
    int cellAt(QPoint p) const;  // -1 off the cells

signals:
    void cellClicked(int i);

protected:
    void mousePressEvent(QMouseEvent*) override;
    double pitch() const;
    QPoint origin() const;
    // The top-left corner of cell i, unrounded.
    QPointF corner(int i) const;
    const cross::PlayBoard* board_ = nullptr;
    const int cols_, rows_;

private:
    const double margin_;
};

// The selection's and the solved colours, or `blank` for a plain cell.
QColor CellColour(cross::TileColour c, const QColor& blank);

struct CrossFormLook {
    QString name, title, backdrop, music, foreignKey;
    QString score;        // the score line before the first round
    QString helpText;     // beside Give Answer
    QString helpColours;  // its style sheet
    QString hintText;     // at the foot of the column
    QString hintColours;
};

class CrossForm : public Backdrop {
    Q_OBJECT
public:
    GameFrame& frame() { return frame_; }
    virtual void NewGame() = 0;
    virtual void typeKey(int key) = 0;  // the character code, 8 for Backspace
    virtual void giveAnswer() = 0;

protected:
    CrossForm(QWidget* parent, const CrossFormLook& look);
    // The board the flash works on.
    virtual cross::PlayBoard& playBoard() = 0;
    // Called once by the game's constructor, when its board and panel exist.
    void finishSetUp(CrossGrid* board, QGroupBox* panel);
    // The help and the button show while the selection asks for them.
    void showHelp(bool shown);
    // The room for the board at the left of a column `side` wide.
    QRect boardRoom(int side) const;
    // The column from `x`, `width` wide; the panel gets `panelHeight`.
    void layOutColumn(int x, int width, int panelHeight);
    // The last word is in: won, or lost with the shared message.
    void endOfGame(bool gameWon);
    void keyPressEvent(QKeyEvent*) override;

    CrossGrid* grid_ = nullptr;
    QGroupBox* Frame2 = nullptr;
    QLabel* Label1;
    QLabel* Label2;
    QLabel* Label3;
    QPushButton* Command1;
    GameFrame frame_;
    GameTimer& Timer1;
    GameTimer& FlashTimer;
};

}  // namespace wm
