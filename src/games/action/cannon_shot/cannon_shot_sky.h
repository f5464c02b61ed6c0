// Cannon Shot's field: the hillside under the sky, the cannon, the balloons, the ball and its
// trail, the blanks along the bottom, and the pops. It draws the game as the rules hold it,
// world units scaled to the widget, and repaints only what moved.
#pragma once

#include <QPixmap>
#include <QRect>
#include <QString>
#include <QWidget>
#include <deque>
#include <map>
#include <vector>

#include "games/action/cannon_shot/cannon_shot_rules.h"
#include "platform/ticker.h"

namespace wm {

class CannonSky : public QWidget {
    Q_OBJECT
public:
    static constexpr int kPopMs = 700;

    CannonSky(const cannon_shot::Game& game, QWidget* parent = nullptr);

    // A new game or word: what was flying is cleared.
    void reset();
    void setCall(const QString& text);
    QString call() const { return call_; }
    void fired();
    // A balloon popped: its burst, and the points floating up.
    void popped(const cannon_shot::Event& e, int points);
    void landed(const cannon_shot::Event& e);
    // The game's end: fireworks for a win; for a loss the barrel droops and the word is shown.
    void finish(bool won);
    // One frame: marks what moved since the last one.
    void step();

    // Where a world rectangle is on the widget.
    QRectF toWidget(const QRectF& world) const;
    double scale() const { return scale_; }

protected:
    void resizeEvent(QResizeEvent*) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Effect {
        enum Kind { Burst, Dust, Smoke, Firework } kind;
        double x, y;  // world
        qint64 at;
        QPixmap label;  // the points, for a burst
        QColor colour;
        int life;  // ms
    };
    qint64 now() const;
    // Times are counted from the scene's making, so that it moves alike whenever it is made.
    const qint64 born_ = Ticker::get().now();
    void buildScene();
    const QPixmap& balloonPicture(int index, char letter);
    QRectF balloonRect(const cannon_shot::Balloon& b) const;
    QRectF cannonRect() const;
    QRectF flagRect() const;
    QRectF tilesRect() const;
    QRectF effectRect(const Effect& e) const;
    QRectF callRect() const;
    void paintCannon(QPainter& p, qint64 t);
    void paintTiles(QPainter& p);
    void paintEffect(QPainter& p, const Effect& e, qint64 t);
    void paintWind(QPainter& p, qint64 t);

    const cannon_shot::Game& game_;
    double scale_ = 1;
    QPointF origin_;
    QPixmap scene_;
    QPixmap carriage_, barrel_, ball_;
    std::vector<QPixmap> balloonArt_;
    std::map<int, QPixmap> balloonCache_;  // colour x 256 + letter
    std::map<int, QRect> drawn_;           // what the last frame marked, by thing
    std::deque<QPointF> trail_;            // the ball's last places, world
    std::vector<Effect> effects_;
    QString call_;
    qint64 callAt_ = 0;
    QPixmap callPicture_;
    QString callPictureOf_;
    qint64 firedAt_ = -100000;
    qint64 finishAt_ = -1;
    bool won_ = false;
    int fireworks_ = 0;  // made since the win
    QString cannonState_;  // what the cannon's last drawing showed
    qint64 flagState_ = -1;
    std::string tilesState_;
};

}  // namespace wm
