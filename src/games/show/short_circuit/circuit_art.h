// Short Circuit's pictures, drawn for children: a fat battery, a light bulb that glows, and the
// surprise that the light shows (a sneaky robber or a curious raccoon).
#pragma once

#include <QPointF>
#include <QRectF>

class QPainter;

namespace wm::circuitart {

void paintBattery(QPainter& p, const QRectF& r);
void paintBulb(QPainter& p, const QRectF& r, bool lit);
// Where the wire meets the bulb's screw base.
QPointF bulbSocket(const QRectF& r);
void paintSurprise(QPainter& p, const QRectF& r, bool robber);

}  // namespace wm::circuitart
