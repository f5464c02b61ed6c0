// Tic-Tac-Toe against the computer: a square is won by choosing the word for a definition.
#pragma once

#include <QFrame>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVector>
#include <array>

#include "games/show/tictactoe/tictactoe_rules.h"
#include "platform/play_field.h"
#include "shell/game_frame.h"

namespace wm {

class TicTacToe : public QWidget {
    Q_OBJECT
public:
    explicit TicTacToe(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const tictactoe::Board& board() const { return board_; }
    const tictactoe::Question& question() const { return question_; }
    QPushButton* xButton() const { return Label3; }
    QPushButton* oButton() const { return Label4; }
    QFrame* questionFrame() const { return Frame1; }
    QFrame* sideFrame() const { return Frame2; }
    QVector<QRadioButton*> options() const { return Option1; }
    QPushButton* answerButton() const { return Command1; }
    QLabel* info() const { return Label2; }
    QLabel* timeLabel() const { return Label5; }
    bool playerTurn() const { return PlayerTurn; }
    // The centre of square (row, column), 1-based, in the screen's pixels.
    QPoint squareCentre(int row, int col) const;
    PlayField* field() const { return field_; }
    // Square (row, column), 1-based, on the field.
    QRect logicalSquare(int row, int col) const;
    void SetupGame();

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void chooseSide(bool x);
    void AskQuestion();
    void answer();
    void PlayerHit();
    void PlayerMiss();
    void ComputerMove();
    void computerTries();
    // Ends a move: false when the game is over.
    bool CheckBoard(std::function<void()> goOn);
    void pause(int ticks, std::function<void()> then);
    void burst(int row, int col, int sparks);
    void drawBoard();
    void drawMark(int row, int col, int owner);
    // Lifts the sparks and the saucers off the board, newest first.
    void liftSprites();
    // The winning line, the saucers and the sparks, drawn over the board with what was under them saved,
    // and lifted off again on the next frame.
    void redrawOverlay();
    double scale() const;
    QPointF offset() const;

    PlayField* field_;                 // the board at its design size, marks copied onto it
    std::array<QImage, 2> sprites_;    // X, O
    std::vector<QImage> sparkFrames_;  // a spark at each age
    SavedBlock lineUnder_;
    QFrame* Frame1;
    QFrame* Frame2;
    QLabel* Label1;
    QLabel* Label2;
    QPushButton* Label3;
    QPushButton* Label4;
    QLabel* Label5;
    QVector<QRadioButton*> Option1;
    QPushButton* Command1;
    GameFrame frame_;
    GameTimer& Timer1;
    GameTimer& Timer2;
    GameTimer& Timer3;
    GameTimer& StarTimer;
    GameTimer& UfoTimer;  // the saucers drifting over the board
    tictactoe::Board board_;
    tictactoe::Question question_;
    tictactoe::Verdict verdict_;
    tictactoe::Square move_;
    bool PlayerTurn = false;
    bool playerIsX_ = true;
    int ChosenOption = -1;
    int QuestionSeconds = 0;
    int PauseTicks = 0;
    int pauseMark_ = 0;
    std::function<void()> afterPause_;
    QColor lineColour_ = Qt::red;
    struct Spark {
        double x = 0, y = 0, dx = 0, dy = 0;
        int age = 0;
        bool alive = false;
        FieldSprite sprite;
    };
    std::array<Spark, 160> sparks_;
    int nextBurst_ = 0;
    struct Saucer {
        double x = 0, y = 0, speed = 0, phase = 0;  // the middle of its path, its pace
        FieldSprite sprite;
    };
    std::array<Saucer, 2> saucers_;
    QImage saucerPicture_;
};

}  // namespace wm
