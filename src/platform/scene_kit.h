// Small drawing helpers shared by the animation scenes: easing curves, fitting a fixed stage
// into any rectangle, backdrops cut to the screen, letter tiles and sparkles.
#pragma once

#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <algorithm>
#include <cmath>

class QPainter;
class QPixmap;
class QSize;
class QSvgRenderer;
class QTransform;

namespace wm::scene {

inline double clamp01(double x) {
    return std::clamp(x, 0.0, 1.0);
}
inline double lerp(double a, double b, double u) {
    return a + (b - a) * u;
}
inline double smooth(double u) {
    u = clamp01(u);
    return u * u * (3 - 2 * u);
}
inline double easeIn(double u) {
    u = clamp01(u);
    return u * u * u;
}
inline double easeOut(double u) {
    u = clamp01(u);
    return 1 - std::pow(1 - u, 3);
}
inline double easeInOut(double u) {
    u = clamp01(u);
    return u < 0.5 ? 4 * u * u * u : 1 - std::pow(-2 * u + 2, 3) / 2;
}
inline QPointF bezier(QPointF a, QPointF b, QPointF c, QPointF d, double u) {
    const double v = 1 - u;
    return v * v * v * a + 3 * v * v * u * b + 3 * v * u * u * c + u * u * u * d;
}
inline QColor withAlpha(QColor c, double alpha) {
    c.setAlphaF(float(clamp01(alpha)));
    return c;
}

// A drawing made into a backdrop of `size`: it keeps its shape and is cut to fill the whole, on
// `fill` where the drawing is missing.
QPixmap coverPicture(QSvgRenderer& drawing, QSize size, const QColor& fill);
// From a stage's own units to a screen of `size` that it covers: kept in shape, centred, its
// edges cut as need be. The scale is the transform's m11().
QTransform coverStage(QSizeF size, QSizeF stage);
// One element of a sprite drawing, made into a picture of `px` pixels (one at the least),
// transparent round it; empty where the drawing lacks the element.
QPixmap spritePicture(QSvgRenderer& drawing, const QString& id, QSize px);
// The largest rectangle of the stage's shape centred in `rect`.
QRectF fitStage(const QRectF& rect, const QSizeF& stage);
// The house's bold face at `px` pixels, 8 at the least: the games' words, numbers and tiles.
QFont boldFont(int px);
QPainterPath letterTilePath(const QRectF& r);
// A glossy rounded tile in `colour` with a white letter.
void paintLetterTile(QPainter& p, const QRectF& r, const QColor& colour, const QString& letter);
// A four-pointed twinkle with a soft glow, `size` from centre to tip.
void paintSparkle(QPainter& p, QPointF at, double size, double angle, double alpha);

}  // namespace wm::scene
