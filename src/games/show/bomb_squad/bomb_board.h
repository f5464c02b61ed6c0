// The board both Bomb Squad games stand on: the word labels down the left, the definition labels
// down the right, the bomb with its clock in the middle, the one-second countdown (Timer1) and
// the explosion with its shake (Timer2). A game adds its wires and what a click does.
#pragma once

#include <QLabel>
#include <QVector>

#include "shell/game_frame.h"

namespace wm {

class Movie;

class BombBoard : public QWidget {
    Q_OBJECT
public:
    GameFrame& frame() { return frame_; }
    QVector<QLabel*> wordLabels() const { return WordLabel; }
    QVector<QLabel*> defLabels() const { return DefLabel; }
    QLabel* timeLabel() const { return TimeLabel; }
    Movie* bombMovie() const { return BombMovie; }
    bool exploding() const { return exploding_; }
    virtual void SetupGame() = 0;

protected:
    BombBoard(QWidget* parent, const QString& name, const QString& title);

    // The game's side of the board.
    virtual bool tickClock() = 0;  // one second off; true when the time ran out
    virtual int secondsLeft() const = 0;
    virtual QString tickSound() const = 0;
    virtual QString lostText() const = 0;
    virtual bool dealt() const = 0;  // a deal stands on the board
    virtual int rows() const = 0;
    virtual void paintWires(QPainter& p, double width) = 0;

    // Clears the board for a new deal: no explosion, a red clock, every label hidden.
    void clearBoard();
    // Shows the dealt labels at their rows and starts the clock.
    void startClock();
    void layOut();
    QRectF bombRect() const;
    // The clock turns green and the score is won.
    void Defused();
    virtual void Explode();

    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

    QVector<QLabel*> WordLabel;
    QVector<QLabel*> DefLabel;
    QLabel* TimeLabel;
    Movie* BombMovie;
    GameFrame frame_;
    GameTimer& Timer1;
    GameTimer& Timer2;

private:
    void shake();

    bool exploding_ = false;
    bool clockGreen_ = false;
    int ShakeTicks = 0;
};

}  // namespace wm
