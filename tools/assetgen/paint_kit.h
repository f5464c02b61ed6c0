// Shared drawing vocabulary of the generated art: one palette logic, one cartoon fill, one
// shadow, one letter tile, so the pictures look like a family.
#pragma once

#include "dice.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <functional>

namespace wm::assetgen {

// The title backdrop behind the button grid; button corners are filled with it so they blend in.
inline QColor buttonSurround() {
    return QColor(26, 50, 104);
}

QColor mix(const QColor& a, const QColor& b, double t);
inline QColor lighter(const QColor& c, double t) {
    return mix(c, Qt::white, t);
}
inline QColor darker(const QColor& c, double t) {
    return mix(c, Qt::black, t);
}
QColor withAlpha(QColor c, int alpha);

QFont boldFont(double pixelSize);
// Text as a path whose advance is centred on `centre.x()` and whose capitals are centred on
// `centre.y()`, so descenders hang below the same line for every name.
QPainterPath centredText(const QString& text, const QFont& font, QPointF centre);
// Fits `text` into `maxWidth`, shrinking from `pixelSize` but not below `minPixelSize`.
QFont fittedFont(const QString& text, double pixelSize, double maxWidth, double minPixelSize);
// Text with a round outline drawn behind the fill.
void outlinedText(QPainter& p, const QPainterPath& text, const QBrush& fill, const QColor& outline,
                  double outlineWidth);

QImage transparentLayer(QSize size);
// Blurs the alpha of `layer` into a soft shadow of `colour` (a three-pass box blur).
QImage softShadow(const QImage& layer, int radius, const QColor& colour);
// Draws `draw` on a layer the size of the painter's device and composes it over `p` with a
// soft drop shadow. The layer painter starts with the same transform as `p`.
void drawWithShadow(QPainter& p, const std::function<void(QPainter&)>& draw, QPointF offset,
                    int blur, const QColor& shadow);

// Cartoon fill: light-to-dark vertical gradient with a darker round outline.
void fillShape(QPainter& p, const QPainterPath& path, const QColor& base, double outline = 3.0);
// A white sheen over the top of `path`.
void gloss(QPainter& p, const QPainterPath& path, int alpha = 110, double depth = 0.5);
// A shaded sphere lit from the upper left.
void ball(QPainter& p, QPointF centre, double radius, const QColor& base, double outline = 3.0);
// A rounded letter tile, rotated by `angle` degrees about its centre.
void letterTile(QPainter& p, QPointF centre, double size, const QString& letter, const QColor& base,
                double angle = 0, const QColor& ink = QColor(40, 30, 20));
// A star with `points` points.
QPainterPath starPath(QPointF centre, double outer, double inner, int points, double turn = 0);
// A four-pointed sparkle.
void sparkle(QPainter& p, QPointF centre, double size, const QColor& colour);
QPainterPath roundRect(const QRectF& r, double radius);
QPainterPath ellipse(QPointF centre, double rx, double ry);
QPainterPath polygon(std::initializer_list<QPointF> points);
// A thick round-capped stroke.
void line(QPainter& p, QPointF a, QPointF b, const QColor& colour, double width);

}  // namespace wm::assetgen
