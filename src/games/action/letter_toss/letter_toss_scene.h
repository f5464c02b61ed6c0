// Letter Toss's classroom: the back wall with a definition over each basket, the wall fan and its
// arrow, the paper ball in the hand and in flight, and what a landing sets off. A fixed
// 1600 x 900 stage is scaled to cover the widget; only what moves is repainted.
#pragma once

#include <QHash>
#include <QPixmap>
#include <QPointF>
#include <QRectF>
#include <QWidget>
#include <memory>
#include <vector>

#include "games/action/letter_toss/letter_toss_rules.h"

class QSvgRenderer;

namespace wm {

class TossScene : public QWidget {
    Q_OBJECT
public:
    explicit TossScene(QWidget* parent = nullptr);
    ~TossScene() override;

    void setRoom(const letter_toss::Room* room) { room_ = room; }
    // New baskets and signs: the layer under the ball is drawn again.
    void newWord();
    // The ball may be picked up (between the pause and the landing).
    void setAiming(bool on);
    // What a landing sets off: the ball into a basket or onto the floor, its points rising.
    void landed(const letter_toss::Step& step);
    // The sign of the word's own basket lights up (after a toss into another one).
    void showRight(bool on);
    void setBanner(const QString& big, const QString& small = {});
    // Confetti over the room: the game ended with points.
    void celebrate();
    // Moves every animation on by `ms` and repaints what moved.
    void advance(int ms);

    QString banner() const { return banner_; }
    bool holding() const { return holding_; }
    QPointF ballShown() const { return ballAt_; }  // in stage units
    // The definition on a basket's sign as it is drawn (shrunk or shortened to fit).
    QString signText(int basket) const { return signTexts_.value(basket); }
    QRectF signRect(int basket) const;  // stage units
    QPointF toWidget(QPointF stage) const { return origin_ + stage * k_; }
    QPointF toStage(QPointF widget) const { return (widget - origin_) / k_; }
    // The part of the stage the widget shows.
    QRectF visibleStage() const;

    static constexpr double kBallShownR = 34;  // the ball in the hand, stage units

signals:
    // The pupil let go of the ball at `from` (stage units) with this flick.
    void letGo(QPointF from, letter_toss::Flick flick);

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

private:
    struct Pop {
        QPointF at;  // stage
        QString text;
        QColor colour;
        int ageMs = 0;
    };
    QPixmap sprite(const QString& id, double stageW);
    void buildLayer();
    QPixmap signPicture(int basket, const QRectF& r);
    void paintBall(QPainter& p);
    void paintFan(QPainter& p);
    void paintPops(QPainter& p);
    void paintConfetti(QPainter& p);
    void paintBanner(QPainter& p);
    QRectF ballRect() const;  // stage units, shadow included
    QRectF binRect(int basket) const;
    void dirty(const QRectF& stage);
    void hold(QPointF stage);

    const letter_toss::Room* room_ = nullptr;
    std::unique_ptr<QSvgRenderer> backSvg_;
    std::unique_ptr<QSvgRenderer> spriteSvg_;
    QPointF origin_;
    double k_ = 1;
    QPixmap layer_;  // the room with the baskets and their signs, at widget size
    QHash<QString, QPixmap> sprites_;
    QHash<int, QString> signTexts_;

    bool aiming_ = false;
    bool holding_ = false;
    QPointF ballAt_{letter_toss::kEyeX, 850};
    double ballR_ = kBallShownR;
    double spin_ = 0;
    std::vector<letter_toss::Sample> drag_;
    int sinkMs_ = -1;    // the ball dropping into a basket
    int sinkBasket_ = -1;
    int sparkleMs_ = -1;  // round the right basket
    int confettiMs_ = -1;
    bool rightLit_ = false;
    double fanAngle_ = 0;
    std::vector<Pop> pops_;
    QString banner_, bannerSmall_;
    int clockMs_ = 0;
};

}  // namespace wm
