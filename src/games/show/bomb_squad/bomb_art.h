// The bomb of both Bomb Squad games, drawn for children: a round cartoon bomb with a fuse and a
// clock face, wires in bright colours, and the cartoon explosion ("bomb" scene) of a lost game.
#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <array>

class QPainter;

namespace wm::bombart {

// Eight clearly different wire colours, one per row.
const std::array<QColor, 8>& wireColours();

// The bomb in `r` with `seconds` on its clock face.
void paintBomb(QPainter& p, const QRectF& r, int seconds, QColor clockColour);

// The line of a whole wire from `a` to `b`, bowed through `via`: what is drawn, and what a click
// is matched against.
QPainterPath wirePath(QPointF a, QPointF via, QPointF b);

// A wire from `a` to `b` bowed through `via`; with `cut`, drawn in two halves with the ends
// curled apart around its middle.
void paintWire(QPainter& p, QPointF a, QPointF via, QPointF b, const QColor& colour, double width,
               bool cut);

// The style of a word or definition label in a wire's colour, its text dark or light to suit.
QString labelStyle(const QColor& colour);

// Registers the "bomb" scene once: a puff of smoke, stars and a "BOOM!" in comic letters.
void registerScenes();

}  // namespace wm::bombart
