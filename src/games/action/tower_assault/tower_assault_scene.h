// The castle of Tower Assault, drawn at the screen's own resolution: the wall and the sky once
// into a cached picture, then what moves (the scrolls, the knight, the guards' throws, the
// ladder, the calls and the sparkles) a region at a time. It reads the game's state; the screen
// tells it what happened.
#pragma once

#include <QHash>
#include <QPixmap>
#include <QRect>
#include <QWidget>
#include <vector>

#include "games/action/tower_assault/tower_assault_rules.h"
#include "platform/ticker.h"

namespace wm {

class TowerScene : public QWidget {
    Q_OBJECT
public:
    static constexpr int kCallMs = 1400;  // a call ("Go!") stays this long unless held
    static constexpr int kFxMs = 800;     // a sparkle, a puff, a score floating up
    static constexpr int kEndMs = 3600;   // the climb and the flag, or the retreat

    explicit TowerScene(QWidget* parent = nullptr);

    void setGame(const tower::Game* game) { game_ = game; }
    // A new game: the ladder gone, the knight home, nothing flying.
    void reset();
    // The knight's way this frame: -1, 0 or +1 (he faces his last way and walks while moving).
    void setMotion(int dir);
    void thrown(int guard);
    void caught(bool right, int points);
    void landed(double x, bool right);
    // The end: he climbs his ladder and raises his flag, or flees while the guards cheer.
    void climb();
    void retreat();
    // A big call over the courtyard; `holdMs` 0 keeps it up until the next one.
    void setCall(const QString& text, int holdMs = kCallMs);
    QString call() const { return call_; }
    // One frame: moves the animations on and repaints what changed.
    void step();

    // Where things are, in this widget's coordinates.
    QPointF toScreen(double x, double y) const;
    QRectF scrollRect(const tower::Scroll& s) const;
    QRectF knightRect() const;
    QRect clueRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Effect {
        QPointF at;
        qint64 t0;
        int kind;      // 0 sparkle, 1 red puff, 2 dust
        QPixmap text;  // the points floating up, drawn once
    };

    qint64 now() const;
    // Times are counted from the scene's making, so that it moves alike whenever it is made.
    const qint64 born_ = Ticker::get().now();
    void buildScene();
    const QPixmap& scrollPicture(const QString& word);
    QRectF guardRect(int g) const;
    QRectF ladderRect() const;
    QRect callRect() const;
    double knightScreenX(qint64 t) const;
    void paintLadder(QPainter& p);
    void paintKnight(QPainter& p, qint64 t);
    void paintFlag(QPainter& p, qint64 t);
    void paintCall(QPainter& p);
    int knightFrame(qint64 t) const;

    const tower::Game* game_ = nullptr;
    QPixmap scene_;
    QPixmap knight_[5];  // walking 0-1, standing 2, arms up 3, climbing 4
    QPixmap guard_[2];   // standing, throwing
    QPixmap scroll_, rung_, rail_, flag_[2], parapet_;
    QHash<QString, QPixmap> scrolls_;
    std::vector<Effect> effects_;
    qint64 thrownAt_[tower::kGuards + 1] = {};
    QString call_;
    QPixmap callText_;  // the call drawn once at its full size
    qint64 callAt_ = 0;
    int callHold_ = 0;
    int dir_ = 0;
    bool facingLeft_ = false;
    qint64 caughtAt_ = -1000000;
    int end_ = 0;  // 1 climbing, -1 retreating
    qint64 endAt_ = 0;
    double endFromX_ = 0;
    std::vector<QRect> drawn_;
    QRect knightDrawn_;
    int knightFrameDrawn_ = -1;
};

}  // namespace wm
