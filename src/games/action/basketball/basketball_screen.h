// Basketball: drag the ball onto the net when the word over it is the one the definition asks
// for. Ten shots.
#pragma once

#include <QLabel>
#include <QPixmap>
#include <QWidget>

#include "games/action/basketball/basketball_rules.h"
#include "shell/game_frame.h"

namespace wm {

class Movie;

class BasketBallForm : public QWidget {
    Q_OBJECT
public:
    explicit BasketBallForm(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const basketball::Game& game() const { return game_; }
    Movie* movieBox() const { return MovieBox; }
    QLabel* shootLabel() const { return ShootLabel; }
    QLabel* definition() const { return Label2; }
    QLabel* shotsLeftLabel() const { return ShotsLeftLabel; }
    QLabel* scoreLabel() const { return ScoreLabel; }
    QLabel* ball() const { return Image2; }
    const QString& playing() const { return playing_; }  // the animation loaded last
    bool shooting() const { return shooting_; }
    QPoint ballHome() const;
    QPoint netPoint() const;  // the middle of the basket, where a drop is a shot
    void SetupGame();

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void play(const QString& name, bool loop, std::function<void()> then = {});
    void wordTick();
    void revealTick();
    void flashTick();
    void shoot();
    void wildShot();
    void NextShot();
    void showScore();
    void EndGame();
    void paintBack();

    GameFrame frame_;
    Movie* MovieBox;
    QLabel* ShootLabel;
    QLabel* Label2;
    QLabel* Label1;
    QLabel* ShotsLeftLabel;
    QLabel* ScoreLabel;
    QLabel* Image2;
    GameTimer& Timer1;
    GameTimer& Timer2;
    GameTimer& Timer3;
    basketball::Game game_;
    QPixmap back_;  // the wall and the court, at the present size
    QString playing_;
    bool shooting_ = false;  // a shot's animation is running
    bool dragging_ = false;
    bool flash_ = false;
    QPoint grab_;
};

}  // namespace wm
