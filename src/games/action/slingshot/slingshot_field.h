// The meadow of Slingshot, drawn at the screen's own resolution from the game's field units:
// the scenery once into a cached picture, then only what moves (the swinging targets, the
// band, the stone, the popups and calls) is repainted each frame.
#pragma once

#include <QPixmap>
#include <QRegion>
#include <QWidget>
#include <array>
#include <functional>
#include <vector>

#include "games/action/slingshot/slingshot_rules.h"
#include "platform/ticker.h"

namespace wm {

class SlingField : public QWidget {
    Q_OBJECT
public:
    static constexpr int kSpinMs = 1000;   // the right target spins away
    static constexpr int kWobbleMs = 700;  // a wrong one wobbles
    static constexpr int kFlashMs = 1700;  // the answer flashes after three stones
    static constexpr int kPopMs = 1000;    // a "+500" rising and fading
    static constexpr double kGrabReach = 110;  // how near the pouch a press takes hold

    explicit SlingField(QWidget* parent = nullptr);

    void setGame(const slingshot::Game* game) { game_ = game; }
    // New words on the targets.
    void deal();
    void wobble(int slot);
    void spinAway(int slot);
    void flash(int slot);
    void popup(const QString& text, bool good, slingshot::Point at);
    // A big word over the meadow ("Ready...", "Well shot!"); empty hides it. `party` adds
    // streamers of sparkles.
    void setCall(const QString& text, bool party = false);
    QString call() const { return call_; }
    bool flashing(int slot) const;
    bool spinning(int slot) const;
    bool wobbling(int slot) const;
    // One frame: repaints what moved.
    void step();

    // Input: a press near the pouch takes hold when `canPull` says so; the pouch follows the
    // pointer; letting go hands its place to `letGo`.
    std::function<bool()> canPull;
    std::function<void()> grabbed;
    std::function<void(slingshot::Point)> letGo;
    bool pulling() const { return pulling_; }
    slingshot::Point pouch() const { return pouch_; }

    // Field units to this widget's pixels and back.
    QPointF toWidget(slingshot::Point p) const;
    slingshot::Point toField(QPointF p) const;
    QRectF toWidget(const QRectF& field) const;
    double scale() const { return scale_; }
    // Where the screen puts the definition, and its score plates (this widget's coordinates).
    QRect boardRect() const;
    QRect leftPlateRect() const;
    QRect rightPlateRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    struct Pop {
        QPixmap picture;  // the outlined text, drawn once
        slingshot::Point at;
        qint64 t0;
    };
    qint64 now() const;
    // Times are counted from the scene's making, so that it moves alike whenever it is made.
    const qint64 born_ = Ticker::get().now();
    // A press here takes hold of the band: near the pouch, or anywhere on the slingshot.
    bool onSlingshot(QPointF widgetPos) const;
    void buildScene();
    void buildTargets();
    // Where target `slot` is drawn at `t` (it may be spinning away), its turn in degrees, and
    // its size factor; false when it is not drawn.
    bool targetPose(int slot, qint64 t, QPointF* centre, double* turn, double* grow) const;
    QRegion liveRegion(qint64 t) const;
    // Where sparkle `k` of the winner's call is at `t`.
    slingshot::Point sparkleAt(int k, qint64 t) const;
    void paintTarget(QPainter& p, int slot, qint64 t);
    void paintSling(QPainter& p);
    QPixmap renderArt(const char* id, QSizeF size) const;

    const slingshot::Game* game_ = nullptr;
    double scale_ = 1;
    QPointF origin_;
    QPixmap scene_;
    std::array<QPixmap, slingshot::kTargets> targets_;
    QPixmap stone_, pouchPic_, forkFront_, sparkle_;
    std::array<qint64, slingshot::kTargets> wobbleAt_{}, spinAt_{}, flashAt_{};
    std::array<QPointF, slingshot::kTargets> spinFrom_{};
    std::vector<Pop> pops_;
    QString call_;
    QPixmap callPicture_;  // the call drawn once, outlined, at its size
    bool party_ = false;
    qint64 callAt_ = 0;
    bool pulling_ = false;
    slingshot::Point pouch_ = slingshot::pouchRest();
    qint64 snapAt_ = -1'000'000;  // the band let go: it twangs back
    QRegion drawn_;               // what the last frame painted that moves
};

}  // namespace wm
