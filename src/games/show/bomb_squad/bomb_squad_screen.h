// Bomb Squad: cut every wire whose word and definition do not match before the clock runs out.
#pragma once

#include <QLabel>
#include <QVector>

#include "games/show/bomb_squad/bomb_squad_rules.h"
#include "shell/game_frame.h"

namespace wm {

class Movie;

class BombSquad : public QWidget {
    Q_OBJECT
public:
    explicit BombSquad(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const bombsquad::Deal& deal() const { return deal_; }
    QVector<QLabel*> wordLabels() const { return WordLabel; }
    QVector<QLabel*> defLabels() const { return DefLabel; }
    QLabel* timeLabel() const { return TimeLabel; }
    Movie* bombMovie() const { return BombMovie; }
    bool exploding() const { return exploding_; }
    // The point in the middle of wire i, where a press cuts it.
    QPoint wireMiddle(int i) const;
    void SetupGame();

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void layOut();
    QRectF bombRect() const;
    QPointF wireVia(int i) const;
    void TryCut(QPoint at);
    void Defused();
    void Explode();
    void shake();

    QVector<QLabel*> WordLabel;
    QVector<QLabel*> DefLabel;
    QLabel* TimeLabel;
    Movie* BombMovie;
    GameFrame frame_;
    GameTimer& Timer1;
    GameTimer& Timer2;
    bombsquad::Deal deal_;
    bool exploding_ = false;
    bool clockGreen_ = false;
    int ShakeTicks = 0;
};

}  // namespace wm
