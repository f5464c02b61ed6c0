// Bomb Squad 2: wire each word to its definition before the clock runs out.
#pragma once

#include <QLabel>
#include <QVector>

#include "games/show/bomb_squad2/bomb_squad2_rules.h"
#include "shell/game_frame.h"

namespace wm {

class Movie;

class BombSquad2 : public QWidget {
    Q_OBJECT
public:
    explicit BombSquad2(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const bombsquad2::Board& board() const { return board_; }
    QVector<QLabel*> wordLabels() const { return WordLabel; }
    QVector<QLabel*> defLabels() const { return DefLabel; }
    QLabel* timeLabel() const { return TimeLabel; }
    Movie* bombMovie() const { return BombMovie; }
    bool exploding() const { return exploding_; }
    void SetupGame();

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void layOut();
    QRectF bombRect() const;
    QPointF wordEnd(int i) const;
    QPointF defEnd(int j) const;
    void Explode();
    void shake();

    QVector<QLabel*> WordLabel;
    QVector<QLabel*> DefLabel;
    QLabel* TimeLabel;
    Movie* BombMovie;
    GameFrame frame_;
    GameTimer& Timer1;
    GameTimer& Timer2;
    bombsquad2::Board board_;
    std::vector<int> wiredTo_;  // per word label, the DefLabel its wire is fixed to, -1 loose
    QPoint mouse_;
    bool exploding_ = false;
    bool clockGreen_ = false;
    int ShakeTicks = 0;
};

}  // namespace wm
