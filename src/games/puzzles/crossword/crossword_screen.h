// Crossword: the layout shown as blank cells; a click shows the clue of the word through a cell
// and the pupil types the word in.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "games/puzzles/crossword/crossword_rules.h"
#include "shell/game_frame.h"
#include "shell/style.h"

namespace wm {

// The board, drawn as a printed crossword: white squares with numbered word starts on a sheet of
// paper. Only visible cells can be clicked.
class CrosswordBoard : public QWidget {
    Q_OBJECT
public:
    explicit CrosswordBoard(QWidget* parent = nullptr);
    void setBoard(const cross::PlayBoard* board);
    // The cell's rectangle in this widget, for drawing and for tests that click a cell.
    QRect cellRect(int i) const;
    int cellAt(QPoint p) const;  // -1 off the cells

signals:
    void cellClicked(int i);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;

private:
    double cellSize() const;
    QPoint origin() const;
    const cross::PlayBoard* board_ = nullptr;
};

class CrosswordForm : public Backdrop {
    Q_OBJECT
public:
    explicit CrosswordForm(QWidget* parent = nullptr);

    const crossword::CrosswordState& state() const { return cw_; }
    GameFrame& frame() { return frame_; }
    CrosswordBoard* board() const { return board_; }
    void NewGame();
    void clickCell(int i);
    void typeKey(int key);  // the character code, 8 for Backspace
    void giveAnswer();      // Command1, clicked with the mouse

protected:
    void keyPressEvent(QKeyEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut();  // CrossPrint's work, started by the wait panel's timer
    void showState();
    void wordSolved(crossword::Outcome outcome);
    void endOfGame();

    CrosswordBoard* board_;
    QLabel* Label1;
    QLabel* Label2;
    QLabel* Label3;
    QGroupBox* Frame2;
    QLabel* ClueLabel;
    QPushButton* Command1;
    QWidget* Frame1;
    QLabel* Label4;
    GameFrame frame_;
    GameTimer& Timer1;
    GameTimer& Timer2;
    GameTimer& FlashTimer;
    crossword::CrosswordState cw_;
    bool opened_ = false;  // the first round, from the options screen, keeps its Score
    bool firstRound_ = true;
};

}  // namespace wm
