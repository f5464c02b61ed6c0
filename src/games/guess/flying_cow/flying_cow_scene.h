// Flying Cow's picture: the field at dusk, the saucer, its beam and the cow. The field is drawn
// on a stage of 1600 x 1000 units that covers the screen; the sprites are rendered once for
// the screen's size and then only moved, tilted and scaled.
#pragma once

#include <QPixmap>
#include <QRect>
#include <QRegion>
#include <QSize>
#include <QString>
#include <QTransform>
#include <map>
#include <memory>

class QPainter;
class QSvgRenderer;

namespace wm::cow {

constexpr double kStageW = 1600, kStageH = 1000;
constexpr double kGroundY = 600;  // where the cow's hooves stand
constexpr double kHoverX = 800;   // the saucer's hatch, hovering
constexpr double kHoverY = 232;
constexpr double kTopLift = 300;  // the lift that puts the cow in the hatch

// Everything the picture shows at one moment, in stage units.
struct Pose {
    double time = 0;  // seconds, for the swings, the lights and the sparkles
    double saucerX = kHoverX, saucerY = kHoverY;
    double saucerTilt = 0;  // degrees
    double saucerScale = 1;
    double beam = 0;       // 0..1: how strongly the beam shines
    double beamFlash = 0;  // 0..1: the flash of a lift
    int rungs = 0;         // rung marks in the beam
    bool cowShown = true;
    double cowX = kHoverX;
    double cowLift = 0;  // above the ground
    double cowScale = 1;
    double cowTilt = 0;    // degrees
    double headAngle = 0;  // degrees, positive is down (grazing)
    double legSwing = 0;   // 0..1: how wildly the legs dangle
    double bubble = 0;     // 0..1: the "MOO!" bubble
    QString points;        // "+120", floating up over the cow
    double pointsRise = 0, pointsAlpha = 0;
};

class CowPicture {
public:
    CowPicture();
    ~CowPicture();
    // Renders the field and the sprites for a screen of `size`.
    void resize(QSize size);
    QSize size() const { return size_; }
    // Stage units to screen pixels.
    const QTransform& toScreen() const { return toScreen_; }
    double scale() const { return scale_; }
    void paintField(QPainter& p, const QRect& area) const;
    void paintActors(QPainter& p, const Pose& pose) const;
    // The part of the screen the actors of `pose` may touch.
    QRegion actorsRegion(const Pose& pose) const;

private:
    QPixmap sprite(const QString& id, double scale) const;
    QRectF spriteBounds(const QString& id) const;
    const QPixmap& beam(int rungs) const;
    void paintBeam(QPainter& p, const Pose& pose) const;
    void paintCow(QPainter& p, const Pose& pose) const;
    void paintSaucer(QPainter& p, const Pose& pose) const;
    const QPixmap& bubble() const;
    const QPixmap& points(const QString& text) const;
    void paintLabels(QPainter& p, const Pose& pose) const;
    void drawSprite(QPainter& p, const QString& id, const QPointF& pivotInSprite) const;

    std::unique_ptr<QSvgRenderer> field_;
    std::unique_ptr<QSvgRenderer> sprites_;
    QSize size_;
    double scale_ = 1;
    QTransform toScreen_;
    QPixmap fieldPixmap_;
    struct Cached {
        QPixmap pixmap;
        QRectF bounds;  // in the sprite drawing's units
    };
    mutable std::map<QString, Cached> cache_;
    mutable QPixmap beam_;
    mutable int beamRungs_ = -1;
    mutable QPixmap bubble_, points_;
    mutable QRectF bubbleArea_, pointsArea_;  // in stage units, around their anchors
    mutable QString pointsText_;
};

}  // namespace wm::cow
