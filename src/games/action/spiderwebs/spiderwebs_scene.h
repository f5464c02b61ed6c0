// The night garden of Spiderwebs, drawn at the screen's own resolution: the garden and the web
// once into a cached picture, the word tags once a round, then only what moves (the trapped
// flies buzzing, the spider and its thread, the freed fly, silk wraps, points and calls) is
// repainted, a region at a time. A press on a fly or its tag is the pupil's pick.
#pragma once

#include <QPixmap>
#include <QRect>
#include <QRegion>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "games/action/spiderwebs/spiderwebs_rules.h"
#include "platform/ticker.h"

class QSvgRenderer;

namespace wm {

class WebScene : public QWidget {
    Q_OBJECT
public:
    static constexpr int kWrapMs = 900;     // a wrong fly wrapped in silk, fading away
    static constexpr int kEscapeMs = 1500;  // a freed fly buzzing off
    static constexpr int kPopMs = 1100;     // points rising from a fly

    explicit WebScene(QWidget* parent = nullptr);
    ~WebScene() override;

    void setGame(const spiderwebs::Game* game) { game_ = game; }
    // The pupil picked fly `fly` (its slot).
    std::function<void(int)> onPick;

    // A new definition: fresh flies and tags, the spider back at the hub.
    void newRound();
    void eaten(int fly);
    void freed(int fly, int points);
    // The spider reached its fly: the fly wrapped, its word lit up.
    void caught();
    // The game's end: fireflies dance for a score (won), or the garden falls quiet.
    void finale(bool won);
    // A call on the plate under the web; empty hides it.
    void setCall(const QString& text);
    QString call() const { return call_; }
    // One frame: moves the animations on and repaints what changed.
    void step();

    // Where things are, in this widget's coordinates (the pointer and tests use them).
    QPointF hub() const;
    QPointF flyAt(int fly) const;
    QRectF tagRect(int fly) const;
    QRectF pickRect(int fly) const;
    // Where the spider is on its way, and which way it faces (degrees, 0 to the right).
    QPointF spiderAt(double* heading = nullptr) const;
    QRect clueRect() const;
    QRect clueTextRect() const;
    // Plate 0 and 1 (the upper first) at the left, 2 and 3 at the right, `plateHeight` high.
    QRect plateRect(int plate, int plateHeight) const;
    QRect callRect() const;
    int flyUnder(QPointF at) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    struct Effect {
        int fly;
        qint64 t0;
        enum Kind { Wrap, Escape, Pop } kind;
        QString text;
    };

    qint64 now() const;
    // Times are counted from the scene's making, so that it moves alike whenever it is made.
    const qint64 born_ = Ticker::get().now();
    int flies() const;
    double flyRadius(int fly) const;
    double flyAngle(int fly) const;
    QSizeF flySize() const;
    QSizeF spiderSize() const;
    void buildScene();
    void buildTags();
    void buildPath();
    QPixmap tagPicture(const QString& word, int look, const QSizeF& size) const;
    QRectF flyDrawRect(int fly, qint64 t) const;
    QRectF spiderRect() const;
    QRectF effectRect(const Effect& e, qint64 t) const;
    void paintEffect(QPainter& p, const Effect& e, qint64 t);
    void paintSpider(QPainter& p, qint64 t);

    const spiderwebs::Game* game_ = nullptr;
    std::unique_ptr<QSvgRenderer> art_;
    QPixmap scene_;
    QPixmap fly_[2], wrap_, spider_[2];
    std::vector<QPixmap> tags_;
    std::vector<Effect> effects_;
    std::vector<QRectF> fliesDrawn_;
    std::vector<QPointF> path_;  // the spider's way along the threads, hub to fly
    std::vector<double> along_;  // how far along the way each point is
    QString call_;
    QPixmap callPicture_;
    qint64 roundAt_ = 0;
    qint64 caughtAt_ = -1;
    int freedFly_ = -1;
    int builtFor_ = -1;  // the flies the web's spokes were drawn for
    int finale_ = 0;     // 1 won, -1 quiet
    qint64 finaleAt_ = 0;
    QRectF spiderDrawn_, effectsDrawn_, finaleDrawn_;
    QFont tagFont_;
};

}  // namespace wm
