// The pond of Toad Race, drawn at the screen's own resolution: the scenery once into a cached
// picture, then only what moves (toads in the air, splash rings, the calls, the winner's
// sparkles) is repainted, a small rectangle at a time.
#pragma once

#include <QPixmap>
#include <QRect>
#include <QWidget>
#include <array>
#include <vector>

#include "games/action/toad_race/toad_race_rules.h"
#include "platform/ticker.h"

namespace wm {

class Pond : public QWidget {
    Q_OBJECT
public:
    static constexpr int kHopMs = 420;    // a toad in the air
    static constexpr int kRingMs = 700;   // a splash ring spreading
    static constexpr int kShakeMs = 450;  // a wrong word: the pupil's toad shakes its head

    explicit Pond(QWidget* parent = nullptr);

    // Every toad on its start stone, nothing moving, no call.
    void reset();
    // The toad leaves the pad it shows and lands on `pad`.
    void hop(int toad, int pad);
    void shake(int toad);
    // A big call over the pond ("Ready...", "Go!"); empty hides it.
    void setCall(const QString& text);
    // The winner's moment: the toad bounces on the finish pad in a shower of sparkles.
    void cheer(int toad, const QString& call);
    // One frame: moves the animations on and repaints what changed.
    void step();

    int shownPad(int toad) const { return toads_[toad].to; }
    bool inAir(int toad) const;
    QString call() const { return call_; }
    int cheering() const { return cheer_; }
    // Where the screen puts its word board, typing box and labels (this widget's coordinates).
    QRect signRect() const;
    QRect bankRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Toad {
        int from = 0, to = 0;
        qint64 hopAt = -1'000'000;
        qint64 shakeAt = -1'000'000;
        QRect drawn;  // where it was painted last
    };
    struct Ring {
        QPointF at;
        qint64 t0;
        double size;
    };

    qint64 now() const;
    // Times are counted from the scene's making, so that it moves alike whenever it is made.
    const qint64 born_ = Ticker::get().now();
    void buildScene();
    QPointF padCentre(int lane, double pad) const;
    double laneScale(int lane) const;
    QSize toadSize(int lane) const;
    QRectF toadRect(int toad, qint64 t, int* frame) const;
    QRect callRect() const;
    QRect cheerRect() const;
    const QPixmap& callPicture();

    QPixmap scene_;
    std::array<std::array<QPixmap, 3>, toad_race::kToads> sprites_;
    std::array<Toad, toad_race::kToads> toads_;
    std::vector<Ring> rings_;
    std::array<QRect, toad_race::kToads> ringsDrawn_;
    QString call_;
    qint64 callAt_ = 0;
    QRect callDrawn_;
    int cheer_ = -1;
    qint64 cheerAt_ = 0;
    QRect cheerDrawn_;
    QPixmap callPicture_;  // the call drawn once, outlined, at its size
    QString callPictureOf_;
    QPixmap sparkle_;
    double laneTop_ = 0, laneH_ = 0, padLeft_ = 0, padStep_ = 0, startX_ = 0;
};

}  // namespace wm
