// Word Maze: one long walk of list words hidden among random letters; the pupil retraces it from
// the pink start at the top left to the green end, one letter at a time.
#pragma once

#include <QLabel>
#include <QPushButton>

#include "games/puzzles/word_maze/word_maze_board.h"
#include "games/puzzles/word_maze/word_maze_rules.h"
#include "shell/game_frame.h"
#include "shell/style.h"

namespace wm {

class WordMazeForm : public Backdrop {
    Q_OBJECT
public:
    explicit WordMazeForm(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const word_maze::WordMazeState& maze() const { return maze_; }
    WordMazeBoard* board() const { return CLetter; }
    void NewGame();
    void click(int cell);
    void undo();  // Command1, "Undo Move"

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void showLabels();
    void layoutBoard();
    void mazeDone();

    WordMazeBoard* CLetter;
    Panel* clueCard_;
    QLabel* Label1;
    QLabel* Label2;
    QLabel* Label3;
    QLabel* Label4;
    QLabel* Label5;
    QLabel* Label6;
    QPushButton* Command1;
    GameFrame frame_;
    GameTimer& Timer1;
    GameTimer& Timer3;
    GameTimer& blink_;
    word_maze::WordMazeState maze_;
};

}  // namespace wm
