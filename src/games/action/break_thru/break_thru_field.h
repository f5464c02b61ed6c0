// BreakThru's field: the word across the top with its next letter lit, the court under the
// stars, the paddle, the ball and its glow, the wall of letter bricks, and the bursts. It draws
// the game as the rules hold it, world units scaled to the widget, and repaints only what moved.
#pragma once

#include <QPixmap>
#include <QRect>
#include <QString>
#include <QWidget>
#include <deque>
#include <map>
#include <vector>

#include "games/action/break_thru/break_thru_rules.h"
#include "platform/ticker.h"

namespace wm {

class BreakField : public QWidget {
    Q_OBJECT
public:
    BreakField(const break_thru::Game& game, QWidget* parent = nullptr);

    // A new wall: what was flying is cleared.
    void reset();
    // The big word in the middle of the court ("Get ready!"); `hint` is the small line under it.
    void setCall(const QString& text, const QString& hint = {});
    QString call() const { return call_; }
    QString hint() const { return hint_; }
    // A brick broken or hit wrong: its burst and the points floating up.
    void struck(const break_thru::Event& e, int points);
    void bounced(const break_thru::Event& e);
    void missed(const break_thru::Event& e);
    // The word spelled: the rest of the wall tumbles down. `won`: and fireworks go up.
    void tumble(bool won);
    // One frame: marks what moved since the last one.
    void step();

    QRectF toWidget(const QRectF& world) const;
    double scale() const { return scale_; }

protected:
    void resizeEvent(QResizeEvent*) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Effect {
        enum Kind { Shards, Flash, Spark, Miss, Firework } kind;
        double x, y;  // world
        qint64 at;
        QPixmap label;  // the points
        QColor colour;
        int life;  // ms
    };
    qint64 now() const;
    // Times are counted from the scene's making, so that it moves alike whenever it is made.
    const qint64 born_ = Ticker::get().now();
    void buildScene();
    const QPixmap& brickPicture(int colour, char letter);
    QRectF brickRect(const break_thru::Brick& b) const;
    QRectF wordRect() const;
    QRectF effectRect(const Effect& e) const;
    QRectF callRect() const;
    void paintWord(QPainter& p);
    void paintBricks(QPainter& p, qint64 t, const QRegion& region);
    void paintEffect(QPainter& p, const Effect& e, qint64 t);
    void paintCall(QPainter& p, qint64 t);

    const break_thru::Game& game_;
    double scale_ = 1;
    QPointF origin_;
    QPixmap scene_;
    QPixmap paddle_, ball_, glow_;
    std::vector<QPixmap> brickArt_;
    std::map<int, QPixmap> brickCache_;  // colour x 256 + letter
    std::map<int, QRect> drawn_;         // what the last frame marked, by thing
    std::deque<QPointF> trail_;          // the ball's last places, world
    std::vector<Effect> effects_;
    QString call_, hint_;
    qint64 callAt_ = 0;
    QPixmap callPicture_;
    QString callPictureOf_;
    qint64 tumbleAt_ = -1;
    bool won_ = false;
    int fireworks_ = 0;
    double paddleDrawn_ = -1;  // where the paddle was last drawn
    QRect paddleRect_;
    std::string wordState_;
};

}  // namespace wm
