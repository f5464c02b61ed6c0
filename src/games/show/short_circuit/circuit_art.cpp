#include "games/show/short_circuit/circuit_art.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include "games/show/svg_picture.h"

namespace wm::circuitart {

void paintBattery(QPainter& p, const QRectF& r) {
    if (show::PaintSvg(p, "images/battery.svg", r)) return;
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF body(r.left(), r.top() + r.height() * 0.1, r.width() * 0.9, r.height() * 0.8);
    QLinearGradient g(body.topLeft(), body.bottomLeft());
    g.setColorAt(0, QColor(90, 90, 100));
    g.setColorAt(0.5, QColor(40, 40, 48));
    g.setColorAt(1, QColor(20, 20, 26));
    p.setPen(QPen(QColor(10, 10, 10), 2));
    p.setBrush(g);
    p.drawRoundedRect(body, 8, 8);
    QRectF band(body.left() + body.width() * 0.55, body.top(), body.width() * 0.45, body.height());
    QLinearGradient gb(band.topLeft(), band.bottomLeft());
    gb.setColorAt(0, QColor(255, 200, 60));
    gb.setColorAt(0.5, QColor(235, 150, 20));
    gb.setColorAt(1, QColor(180, 100, 10));
    p.setBrush(gb);
    p.drawRoundedRect(band, 8, 8);
    // The knob of the plus end faces the circuit.
    p.setBrush(QColor(200, 200, 210));
    p.drawRoundedRect(
        QRectF(body.right(), r.center().y() - r.height() * 0.15, r.width() * 0.1, r.height() * 0.3),
        3, 3);
    p.setPen(QPen(Qt::white, std::max(2.0, r.height() * 0.06)));
    const QPointF c(band.center());
    const double s = band.height() * 0.18;
    p.drawLine(c - QPointF(s, 0), c + QPointF(s, 0));
    p.drawLine(c - QPointF(0, s), c + QPointF(0, s));
    p.restore();
}

void paintBulb(QPainter& p, const QRectF& r, bool lit) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF c(r.center().x(), r.top() + r.height() * 0.38);
    const double rad = r.width() * 0.38;
    if (lit) {
        QRadialGradient glow(c, rad * 2.6);
        glow.setColorAt(0, QColor(255, 255, 160, 230));
        glow.setColorAt(0.4, QColor(255, 230, 80, 120));
        glow.setColorAt(1, QColor(255, 220, 60, 0));
        p.setPen(Qt::NoPen);
        p.setBrush(glow);
        p.drawEllipse(c, rad * 2.6, rad * 2.6);
    }
    if (show::PaintSvg(p, "images/lightbulb.svg", r)) {
        if (lit) {
            // The glass lights up yellow and the filament glows orange.
            p.setPen(Qt::NoPen);
            p.setBrush(QColor(255, 240, 120, 150));
            p.drawEllipse(QPointF(r.center().x(), r.top() + r.height() * 0.33), r.width() * 0.38,
                          r.height() * 0.28);
            p.setPen(QPen(QColor(255, 140, 0), std::max(2.0, r.width() * 0.04)));
            p.drawLine(QPointF(r.left() + r.width() * 0.42, r.top() + r.height() * 0.4),
                       QPointF(r.left() + r.width() * 0.58, r.top() + r.height() * 0.4));
        }
        p.restore();
        return;
    }
    QPainterPath glass;
    glass.addEllipse(c, rad, rad);
    glass.addRect(QRectF(c.x() - rad * 0.45, c.y() + rad * 0.5, rad * 0.9, rad * 0.75));
    p.setPen(QPen(QColor(120, 120, 140), 2));
    p.setBrush(lit ? QColor(255, 250, 190) : QColor(200, 220, 235, 200));
    p.drawPath(glass.simplified());
    p.setPen(QPen(lit ? QColor(255, 140, 0) : QColor(110, 110, 110), std::max(2.0, rad * 0.08)));
    p.drawLine(QPointF(c.x() - rad * 0.3, c.y() + rad * 1.1), QPointF(c.x() - rad * 0.2, c.y()));
    p.drawLine(QPointF(c.x() + rad * 0.3, c.y() + rad * 1.1), QPointF(c.x() + rad * 0.2, c.y()));
    p.drawLine(QPointF(c.x() - rad * 0.2, c.y()), QPointF(c.x() + rad * 0.2, c.y()));
    // The screw base in rings.
    p.setPen(QPen(QColor(90, 90, 90), 1));
    for (int i = 0; i < 3; ++i) {
        p.setBrush(i % 2 ? QColor(170, 170, 180) : QColor(200, 200, 210));
        p.drawRoundedRect(
            QRectF(c.x() - rad * 0.5, c.y() + rad * (1.25 + 0.22 * i), rad, rad * 0.22), 3, 3);
    }
    p.restore();
}

QPointF bulbSocket(const QRectF& r) {
    return {r.left() + r.width() * 0.3, r.top() + r.height() * 0.8};
}

void paintSurprise(QPainter& p, const QRectF& r, bool robber) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF c = r.center();
    const double rad = std::min(r.width(), r.height()) * 0.42;
    p.setPen(QPen(QColor(40, 30, 20), 2));
    if (robber) {
        // A round cartoon robber caught in the light: striped cap, black eye mask, an "oh!".
        p.setBrush(QColor(250, 210, 170));
        p.drawEllipse(c, rad, rad);
        p.setBrush(QColor(30, 30, 40));
        QPainterPath cap;
        cap.moveTo(c.x() - rad, c.y() - rad * 0.2);
        cap.cubicTo(c.x() - rad, c.y() - rad * 1.4, c.x() + rad, c.y() - rad * 1.4, c.x() + rad,
                    c.y() - rad * 0.2);
        cap.closeSubpath();
        p.drawPath(cap);
        p.drawRoundedRect(QRectF(c.x() - rad * 0.95, c.y() - rad * 0.15, rad * 1.9, rad * 0.4), 8,
                          8);
    } else {
        // A raccoon: grey face, dark bandit mask, round ears.
        p.setBrush(QColor(150, 150, 155));
        p.drawEllipse(QPointF(c.x() - rad * 0.7, c.y() - rad * 0.8), rad * 0.35, rad * 0.35);
        p.drawEllipse(QPointF(c.x() + rad * 0.7, c.y() - rad * 0.8), rad * 0.35, rad * 0.35);
        p.drawEllipse(c, rad, rad * 0.9);
        p.setBrush(QColor(50, 50, 55));
        p.drawEllipse(QRectF(c.x() - rad * 0.85, c.y() - rad * 0.3, rad * 0.8, rad * 0.45));
        p.drawEllipse(QRectF(c.x() + rad * 0.05, c.y() - rad * 0.3, rad * 0.8, rad * 0.45));
    }
    p.setBrush(Qt::white);
    p.setPen(Qt::NoPen);
    p.drawEllipse(QPointF(c.x() - rad * 0.42, c.y() - rad * 0.07), rad * 0.16, rad * 0.16);
    p.drawEllipse(QPointF(c.x() + rad * 0.42, c.y() - rad * 0.07), rad * 0.16, rad * 0.16);
    p.setBrush(Qt::black);
    p.drawEllipse(QPointF(c.x() - rad * 0.42, c.y() - rad * 0.05), rad * 0.07, rad * 0.07);
    p.drawEllipse(QPointF(c.x() + rad * 0.42, c.y() - rad * 0.05), rad * 0.07, rad * 0.07);
    p.setBrush(QColor(robber ? 180 : 30, 40, 40));
    p.drawEllipse(QPointF(c.x(), c.y() + rad * 0.5), rad * 0.14, rad * 0.18);
    p.restore();
}

}  // namespace wm::circuitart
