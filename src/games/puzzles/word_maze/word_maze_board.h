// The board of Word Maze: the MazeWidth by MazeHeight letters as stepping stones in a garden,
// the stones already taken left as a sandy trail, the end stone green with a flag.
#pragma once

#include <QWidget>

#include "games/puzzles/word_maze/word_maze_rules.h"

namespace wm {

class WordMazeBoard : public QWidget {
    Q_OBJECT
public:
    explicit WordMazeBoard(QWidget* parent = nullptr);

    void setMaze(const word_maze::WordMazeState* maze) { maze_ = maze; }
    // Sizes the board for cells `w` pixels wide (their height follows the design's shape).
    void setCellWidth(int w);
    static int cellHeight(int w) { return w * 345 / 315; }
    static int margin(int w) { return w / 3 + 6; }

    QRect cellRect(int n) const;  // board coordinates; empty off the maze
    int cellAt(QPoint at) const;  // -1 off the maze

signals:
    void clicked(int cell);

protected:
    void paintEvent(QPaintEvent*) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    const word_maze::WordMazeState* maze_ = nullptr;
    int cellW_ = 40;
};

QColor WordMazeColour(word_maze::CellColour c);

}  // namespace wm
