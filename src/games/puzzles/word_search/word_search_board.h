// The letter grid of Word Search: the GridSize by GridSize square of the 20-wide cell layout,
// drawn large inside a wooden frame, with the mouse reported by cell number.
#pragma once

#include <QWidget>

#include "games/puzzles/word_search/word_search_rules.h"

namespace wm {

class WordSearchBoard : public QWidget {
    Q_OBJECT
public:
    explicit WordSearchBoard(QWidget* parent = nullptr);

    // The puzzle painted; the screen keeps it and repaints after every change.
    void setPuzzle(const word_search::WordSearchState* puzzle) { puzzle_ = puzzle; }
    // Sizes the board for `cell` pixels a cell and the puzzle's GridSize.
    void setCellSize(int cell);
    int cellSize() const { return cell_; }
    static int margin(int cell) { return cell / 2 + 4; }

    // Cell `n` of the 20-wide layout, in board coordinates; empty for a cell not shown.
    QRect cellRect(int n) const;
    int cellAt(QPoint at) const;  // -1 off the puzzle

signals:
    void pressed(int cell);
    // x, y from the top-left of the cell pressed; w, h its size.
    void dragged(double x, double y, double w, double h);
    // `clicked`: the button came up over the cell it went down on.
    void released(int cell, bool clicked);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int gridSize() const;

    const word_search::WordSearchState* puzzle_ = nullptr;
    int cell_ = 32;
    int pressedCell_ = -1;
};

// The cell colours of the puzzles.
QColor WordSearchColour(word_search::CellColour c);

}  // namespace wm
