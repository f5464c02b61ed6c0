// Crossword: the layout shown as blank cells; a click shows the clue of the word through a cell
// and the pupil types the word in.
#pragma once

#include "games/puzzles/cross_form.h"
#include "games/puzzles/crossword/crossword_rules.h"

namespace wm {

// The board, drawn as a printed crossword: white squares with numbered word starts on a sheet of
// paper.
class CrosswordBoard : public CrossGrid {
    Q_OBJECT
public:
    explicit CrosswordBoard(QWidget* parent = nullptr);
    // The cell's rectangle in this widget, for drawing and for tests that click a cell.
    QRect cellRect(int i) const;

protected:
    void paintEvent(QPaintEvent*) override;
};

class CrosswordForm : public CrossForm {
    Q_OBJECT
public:
    explicit CrosswordForm(QWidget* parent = nullptr);

    const crossword::CrosswordState& state() const { return cw_; }
    CrosswordBoard* board() const { return board_; }
    void NewGame() override;
    void clickCell(int i);
    void typeKey(int key) override;
    void giveAnswer() override;  // Command1, clicked with the mouse

protected:
    cross::PlayBoard& playBoard() override { return cw_.board; }
    void resizeEvent(QResizeEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut();  // CrossPrint's work, started by the wait panel's timer
    void showState();
    void wordSolved(crossword::Outcome outcome);

    CrosswordBoard* board_;
    QLabel* ClueLabel;
    QWidget* Frame1;
    QLabel* Label4;
    GameTimer& Timer2;
    crossword::CrosswordState cw_;
    bool opened_ = false;  // the first round, from the options screen, keeps its Score
    bool firstRound_ = true;
};

}  // namespace wm
