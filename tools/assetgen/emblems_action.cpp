// Emblems of the action games.
#include "emblems.h"
#include "paint_kit.h"

#include <QLinearGradient>
#include <QRadialGradient>

#include <array>
#include <cmath>
#include <numbers>

namespace wm::assetgen {

namespace {

const QColor kInk(40, 30, 20);
const QColor kWood(170, 110, 55);

QPointF polar(QPointF c, double r, double degrees) {
    const double a = degrees * std::numbers::pi / 180;
    return c + QPointF(std::cos(a) * r, std::sin(a) * r);
}

// A cartoon eye: white, pupil looking towards `look`, and a glint.
void eye(QPainter& p, QPointF c, double r, QPointF look = QPointF(0, 0)) {
    ball(p, c, r, Qt::white, 2.5);
    p.fillPath(ellipse(c + look * r * 0.35, r * 0.52, r * 0.6), kInk);
    p.fillPath(ellipse(c + look * r * 0.35 + QPointF(-r * 0.18, -r * 0.22), r * 0.16, r * 0.16),
               Qt::white);
}

void cloud(QPainter& p, QPointF c, double s) {
    QPainterPath path = ellipse(c, s, s * 0.55);
    path = path.united(ellipse(c + QPointF(-s * 0.7, s * 0.15), s * 0.6, s * 0.4));
    path = path.united(ellipse(c + QPointF(s * 0.7, s * 0.15), s * 0.65, s * 0.42));
    path = path.united(ellipse(c + QPointF(-s * 0.2, -s * 0.35), s * 0.55, s * 0.45));
    fillShape(p, path, QColor(255, 255, 255, 235), 0);
}

void smile(QPainter& p, QPointF from, QPointF mid, QPointF to, double width) {
    QPainterPath path;
    path.moveTo(from);
    path.quadTo(mid, to);
    p.strokePath(path, QPen(kInk, width, Qt::SolidLine, Qt::RoundCap));
}

// A lumpy rock: a circle whose radius wanders a little, the same each run.
QPainterPath rock(QPointF c, double r, int seed) {
    Dice dice(static_cast<std::uint64_t>(seed));
    QPainterPath path;
    for (int i = 0; i < 12; ++i) {
        const QPointF pt = polar(c, r * dice.range(0.82, 1.08), i * 30);
        if (i == 0) {
            path.moveTo(pt);
        } else {
            path.lineTo(pt);
        }
    }
    path.closeSubpath();
    return path;
}

}  // namespace

void drawFlyingCow(QPainter& p) {
    cloud(p, QPointF(58, 158), 34);
    cloud(p, QPointF(296, 150), 28);
    const QColor white(252, 252, 250);
    // The saucer's beam, behind the cow.
    QPainterPath beam;
    beam.moveTo(134, 44);
    beam.lineTo(182, 44);
    beam.lineTo(246, 176);
    beam.lineTo(70, 176);
    beam.closeSubpath();
    p.fillPath(beam, QColor(225, 255, 150, 130));
    // The saucer: a glass dome with its green pilot, a silver disc, coloured lights.
    fillShape(p, ellipse(QPointF(158, 26), 24, 21), QColor(170, 230, 248), 2.5);
    ball(p, QPointF(158, 28), 9, QColor(140, 220, 90), 2);
    p.fillPath(ellipse(QPointF(155, 27), 2.2, 3), kInk);
    p.fillPath(ellipse(QPointF(162, 27), 2.2, 3), kInk);
    fillShape(p, ellipse(QPointF(158, 40), 66, 15), QColor(205, 210, 226), 3);
    const QColor lights[] = {QColor(255, 228, 92), QColor(255, 111, 174), QColor(111, 227, 255)};
    for (int i = 0; i < 5; ++i)
        p.fillPath(ellipse(QPointF(114 + i * 22, 45 + (i % 4 ? 1.5 : 0)), 4.5, 4.5), lights[i % 3]);
    // The cow, lifted in the beam: legs dangling, tail hanging.
    const QPointF lift(0, 16);
    const double swing[] = {-14, 10, -8, 16};
    const double hips[] = {100.0, 124.0, 172.0, 196.0};
    for (int i = 0; i < 4; ++i) {
        p.save();
        p.translate(QPointF(hips[i], 112) + lift);
        p.rotate(swing[i]);
        fillShape(p, roundRect(QRectF(-8, 0, 16, 38), 7), white, 3);
        fillShape(p, roundRect(QRectF(-8, 30, 16, 12), 4), QColor(90, 70, 60), 2.5);
        p.restore();
    }
    QPainterPath tail;
    tail.moveTo(QPointF(82, 96) + lift);
    tail.quadTo(QPointF(62, 104) + lift, QPointF(64, 132) + lift);
    p.strokePath(tail, QPen(kInk, 4, Qt::SolidLine, Qt::RoundCap));
    p.fillPath(ellipse(QPointF(64, 136) + lift, 6, 9), kInk);
    const QPainterPath body = ellipse(QPointF(148, 98) + lift, 72, 38);
    fillShape(p, body, white, 3);
    p.save();
    p.setClipPath(body);
    p.fillPath(ellipse(QPointF(110, 84) + lift, 20, 15), kInk);
    p.fillPath(ellipse(QPointF(168, 116) + lift, 24, 16), kInk);
    p.fillPath(ellipse(QPointF(200, 80) + lift, 14, 10), kInk);
    p.restore();
    p.fillPath(ellipse(QPointF(150, 136) + lift, 14, 8), QColor(255, 170, 190));
    // Head, looking up at the saucer in surprise.
    p.translate(lift);
    fillShape(p, polygon({{226, 50}, {214, 30}, {232, 44}}), QColor(245, 220, 150), 2.5);
    fillShape(p, polygon({{252, 46}, {264, 26}, {258, 48}}), QColor(245, 220, 150), 2.5);
    fillShape(p, ellipse(QPointF(210, 62), 14, 7), QColor(140, 100, 80), 2.5);
    fillShape(p, ellipse(QPointF(272, 60), 14, 7), QColor(140, 100, 80), 2.5);
    fillShape(p, ellipse(QPointF(240, 76), 32, 30), white, 3);
    fillShape(p, ellipse(QPointF(244, 100), 28, 17), QColor(255, 175, 190), 3);
    p.fillPath(ellipse(QPointF(234, 100), 4, 5), QColor(150, 60, 80));
    p.fillPath(ellipse(QPointF(254, 100), 4, 5), QColor(150, 60, 80));
    eye(p, QPointF(228, 70), 8, QPointF(-0.3, -0.8));
    eye(p, QPointF(252, 68), 8, QPointF(-0.3, -0.8));
    p.translate(-lift);
}

void drawWordZap(QPainter& p) {
    const QPointF c(122, 100);
    const std::array<double, 5> rings = {66, 53, 40, 27, 14};
    for (size_t i = 0; i < rings.size(); ++i) {
        ball(p, c, rings[i], i % 2 == 0 ? QColor(235, 50, 50) : QColor(255, 250, 245),
             i == 0 ? 3 : 0);
    }
    const QPainterPath bolt =
        polygon({{276, 0}, {218, 0}, {172, 66}, {204, 64}, {126, 102}, {232, 46}, {200, 48}});
    QRadialGradient glow(QPointF(200, 50), 110);
    glow.setColorAt(0, QColor(255, 255, 200, 160));
    glow.setColorAt(1, QColor(255, 255, 200, 0));
    p.fillPath(ellipse(QPointF(200, 50), 110, 90), glow);
    fillShape(p, bolt, QColor(255, 220, 40), 3.5);
    gloss(p, bolt, 140, 0.5);
    for (int i = 0; i < 5; ++i) {
        line(p, polar(c, 76, 150 + i * 30), polar(c, 92, 150 + i * 30), Qt::white, 5);
    }
}

void drawBreakThru(QPainter& p) {
    const std::array<QColor, 3> rows = {QColor(240, 70, 80), QColor(255, 170, 40),
                                        QColor(255, 225, 60)};
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 6; ++c) {
            if ((r == 2 && c == 3) || (r == 1 && c == 3) || (r == 2 && c == 2)) continue;
            const QRectF brick(12 + c * 50, 6 + r * 24, 46, 20);
            fillShape(p, roundRect(brick, 5), rows[r], 2.5);
            gloss(p, roundRect(brick, 5), 130, 0.5);
        }
    }
    // Ball with its trail, bouncing off the paddle.
    for (int i = 0; i < 4; ++i) {
        ball(p, QPointF(132 + i * 12, 134 - i * 14), 4 + i * 1.5,
             QColor(255, 255, 255, 50 + i * 40), 0);
    }
    ball(p, QPointF(184, 76), 12, QColor(240, 245, 255), 2.5);
    const QPainterPath paddle = roundRect(QRectF(76, 144, 110, 20), 10);
    fillShape(p, paddle, QColor(80, 220, 255), 3);
    gloss(p, paddle, 160, 0.5);
}

void drawTowerAssault(QPainter& p) {
    fillShape(p, ellipse(QPointF(160, 166), 130, 16), QColor(90, 180, 70), 2.5);
    const QColor stone(185, 185, 195);
    const QRectF body(114, 44, 92, 120);
    QPainterPath tower = roundRect(body, 4);
    for (int i = 0; i < 4; ++i) {
        tower = tower.united(roundRect(QRectF(106 + i * 28, 26, 20, 24), 3));
    }
    tower = tower.united(roundRect(QRectF(106, 40, 108, 14), 3));
    fillShape(p, tower, stone, 3);
    p.save();
    p.setClipPath(tower);
    for (int r = 0; r < 6; ++r) {
        const double y = 62 + r * 18;
        line(p, QPointF(110, y), QPointF(210, y), QColor(140, 140, 155), 2);
        for (int c = 0; c < 4; ++c) {
            const double x = 120 + c * 28 + (r % 2) * 14;
            line(p, QPointF(x, y), QPointF(x, y + 18), QColor(140, 140, 155), 2);
        }
    }
    p.restore();
    const QPainterPath window = roundRect(QRectF(148, 70, 24, 34), 12);
    fillShape(p, window, QColor(60, 40, 80), 2.5);
    const QPainterPath door = roundRect(QRectF(142, 124, 36, 60), 18).intersected(tower);
    fillShape(p, door, QColor(140, 80, 40), 2.5);
    line(p, QPointF(160, 26), QPointF(160, 0), QColor(90, 70, 60), 4);
    fillShape(p, polygon({{162, 0}, {200, 8}, {162, 18}}), QColor(60, 120, 240), 2.5);
    // A boulder flying in.
    for (int i = 0; i < 3; ++i) {
        line(p, QPointF(10 + i * 8, 70 + i * 12), QPointF(40 + i * 8, 64 + i * 12),
             QColor(255, 255, 255, 160), 4);
    }
    fillShape(p, rock(QPointF(66, 66), 18, 4), QColor(130, 110, 100), 2.5);
    cloud(p, QPointF(262, 40), 26);
}

void drawBugSpray(QPainter& p) {
    // The mist drifts from the nozzle to the bug.
    Dice dice(15);
    for (int i = 0; i < 14; ++i) {
        const double t = i / 13.0;
        const QPointF at(96 + t * 110 + dice.range(-6, 6), 58 + t * 18 + dice.range(-14, 14));
        p.fillPath(ellipse(at, 6 + t * 12, 6 + t * 12), QColor(255, 255, 255, 150 - t * 70));
    }
    // Can.
    const QRectF can(28, 56, 56, 104);
    fillShape(p, roundRect(can, 10), QColor(240, 240, 245), 3);
    fillShape(p, roundRect(QRectF(28, 84, 56, 44), 2), QColor(250, 200, 40), 0);
    p.fillPath(starPath(QPointF(56, 106), 14, 6, 5), QColor(230, 60, 50));
    fillShape(p, roundRect(QRectF(36, 36, 40, 24), 6), QColor(230, 60, 50), 3);
    fillShape(p, roundRect(QRectF(70, 40, 22, 12), 4), QColor(200, 200, 210), 2.5);
    gloss(p, roundRect(can, 10), 120, 0.9);
    // Bug: a startled ladybird.
    const QPointF c(248, 104);
    for (int i = 0; i < 3; ++i) {
        line(p, c + QPointF(-30, -10 + i * 18), c + QPointF(-52, -4 + i * 22), kInk, 4);
        line(p, c + QPointF(30, -10 + i * 18), c + QPointF(52, -4 + i * 22), kInk, 4);
    }
    line(p, c + QPointF(-10, -58), c + QPointF(-24, -84), kInk, 3.5);
    line(p, c + QPointF(10, -58), c + QPointF(24, -84), kInk, 3.5);
    ball(p, c + QPointF(-24, -84), 5, kInk, 0);
    ball(p, c + QPointF(24, -84), 5, kInk, 0);
    const QPainterPath shell = ellipse(c, 42, 46);
    fillShape(p, shell, QColor(230, 40, 40), 3);
    p.fillPath(ellipse(c + QPointF(-18, 8), 9, 9), kInk);
    p.fillPath(ellipse(c + QPointF(18, 14), 10, 10), kInk);
    p.fillPath(ellipse(c + QPointF(0, 32), 8, 7), kInk);
    line(p, c + QPointF(0, -30), c + QPointF(0, 44), kInk, 3);
    gloss(p, shell, 110, 0.5);
    fillShape(p, ellipse(c + QPointF(0, -44), 28, 20), QColor(50, 45, 55), 3);
    eye(p, c + QPointF(-11, -48), 10, QPointF(-0.6, 0));
    eye(p, c + QPointF(11, -48), 10, QPointF(-0.6, 0));
}

void drawCannonShot(QPainter& p) {
    // The shot and its trail.
    for (int i = 0; i < 4; ++i) {
        p.fillPath(ellipse(QPointF(186 + i * 22, 74 - i * 16), 3, 3), QColor(255, 255, 255, 180));
    }
    ball(p, QPointF(282, 22), 15, QColor(70, 70, 85), 2.5);
    // Smoke at the muzzle.
    for (QPointF at : {QPointF(176, 62), QPointF(192, 48), QPointF(168, 44)}) {
        p.fillPath(ellipse(at, 16, 14), QColor(240, 240, 245, 200));
    }
    p.save();
    p.translate(108, 116);
    p.rotate(-34);
    const QPainterPath barrel = polygon({{-50, -24}, {70, -16}, {70, 16}, {-50, 24}});
    fillShape(p, barrel, QColor(70, 75, 95), 3.5);
    gloss(p, barrel, 100, 0.45);
    fillShape(p, roundRect(QRectF(62, -20, 16, 40), 5), QColor(50, 55, 70), 3);
    fillShape(p, roundRect(QRectF(-58, -16, 14, 32), 6), QColor(50, 55, 70), 3);
    fillShape(p, roundRect(QRectF(0, -26, 10, 52), 3), QColor(230, 180, 60), 2.5);
    p.restore();
    fillShape(p, polygon({{52, 126}, {150, 126}, {166, 154}, {40, 154}}), kWood, 3);
    // Wheel.
    const QPointF w(98, 146);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(darker(kWood, 0.55), 12));
    p.drawEllipse(w, 22, 22);
    p.setPen(QPen(QColor(215, 160, 90), 7));
    p.drawEllipse(w, 22, 22);
    for (int i = 0; i < 4; ++i) line(p, polar(w, 20, i * 45), polar(w, 20, i * 45 + 180), kWood, 4);
    ball(p, w, 6, QColor(230, 180, 60), 2);
}

void drawAsteroidZap(QPainter& p) {
    Dice dice(21);
    for (int i = 0; i < 22; ++i) {
        const QPointF at(dice.range(8, 312), dice.range(6, 164));
        p.fillPath(ellipse(at, 1.6, 1.6), QColor(255, 255, 255, 200));
    }
    // Laser from the nose to the big rock.
    line(p, QPointF(96, 112), QPointF(214, 62), QColor(255, 80, 160, 120), 14);
    line(p, QPointF(96, 112), QPointF(214, 62), QColor(255, 210, 240), 5);
    fillShape(p, rock(QPointF(244, 52), 36, 3), QColor(150, 130, 115), 3);
    p.fillPath(ellipse(QPointF(254, 44), 8, 6), QColor(110, 95, 85));
    p.fillPath(ellipse(QPointF(236, 68), 6, 5), QColor(110, 95, 85));
    fillShape(p, rock(QPointF(276, 134), 20, 8), QColor(160, 140, 120), 3);
    fillShape(p, rock(QPointF(186, 146), 12, 9), QColor(160, 140, 120), 2.5);
    fillShape(p, starPath(QPointF(214, 62), 22, 9, 8), QColor(255, 220, 60), 0);
    p.fillPath(starPath(QPointF(214, 62), 11, 5, 8, 0.3), Qt::white);
    // The ship.
    p.save();
    p.translate(72, 122);
    p.rotate(-22);
    p.fillPath(polygon({{-40, -6}, {-62, 0}, {-40, 6}}), QColor(255, 170, 40));
    fillShape(p, polygon({{-20, -14}, {-38, -34}, {-6, -14}}), QColor(230, 60, 60), 2.5);
    fillShape(p, polygon({{-20, 14}, {-38, 34}, {-6, 14}}), QColor(230, 60, 60), 2.5);
    QPainterPath hull;
    hull.moveTo(36, 0);
    hull.cubicTo(20, -18, -30, -18, -40, -10);
    hull.lineTo(-40, 10);
    hull.cubicTo(-30, 18, 20, 18, 36, 0);
    fillShape(p, hull, QColor(235, 240, 250), 3);
    fillShape(p, ellipse(QPointF(8, 0), 10, 7), QColor(90, 200, 255), 2.5);
    p.restore();
}

void drawBridgeOut(QPainter& p) {
    // River.
    QLinearGradient water(QPointF(0, 120), QPointF(0, 170));
    water.setColorAt(0, QColor(90, 190, 240));
    water.setColorAt(1, QColor(40, 120, 200));
    p.fillRect(QRectF(60, 120, 200, 50), water);
    for (int i = 0; i < 3; ++i) {
        smile(p, QPointF(110 + i * 40, 142 + (i % 2) * 10), QPointF(122 + i * 40, 134),
              QPointF(134 + i * 40, 142 + (i % 2) * 10), 3);
    }
    const QColor rockCol(170, 120, 80);
    fillShape(p, polygon({{0, 74}, {104, 74}, {118, 170}, {0, 170}}), rockCol, 3);
    fillShape(p, polygon({{218, 74}, {320, 74}, {320, 170}, {204, 170}}), rockCol, 3);
    fillShape(p, roundRect(QRectF(-4, 66, 112, 14), 7), QColor(90, 190, 80), 2.5);
    fillShape(p, roundRect(QRectF(214, 66, 112, 14), 7), QColor(90, 190, 80), 2.5);
    // What is left of the bridge.
    line(p, QPointF(96, 62), QPointF(150, 66), QColor(120, 70, 30), 3);
    for (int i = 0; i < 4; ++i) {
        fillShape(p, roundRect(QRectF(100 + i * 13, 62, 11, 9), 2), kWood, 2);
    }
    p.save();
    p.translate(222, 66);
    p.rotate(52);
    line(p, QPointF(0, 0), QPointF(50, 0), QColor(120, 70, 30), 3);
    for (int i = 0; i < 3; ++i) {
        fillShape(p, roundRect(QRectF(4 + i * 14, -4, 11, 9), 2), kWood, 2);
    }
    p.restore();
    p.save();
    p.translate(170, 108);
    p.rotate(-30);
    fillShape(p, roundRect(QRectF(-10, -5, 20, 10), 2), kWood, 2);
    p.restore();
    // Warning sign.
    line(p, QPointF(42, 70), QPointF(42, 30), QColor(110, 80, 50), 6);
    const QPainterPath sign = polygon({{42, -4}, {76, 30}, {42, 64}, {8, 30}});
    fillShape(p, sign, QColor(255, 200, 30), 3);
    p.fillPath(centredText("!", boldFont(36), QPointF(42, 31)), kInk);
}

void drawCrunchMan(QPainter& p) {
    for (int i = 0; i < 3; ++i) ball(p, QPointF(178 + i * 38, 90), 8, QColor(255, 240, 200), 2);
    ball(p, QPointF(294, 90), 15, QColor(255, 150, 200), 2.5);
    const QPointF c(92, 90);
    const double r = 66;
    QPainterPath face;
    face.moveTo(c);
    face.arcTo(QRectF(c.x() - r, c.y() - r, 2 * r, 2 * r), 34, 292);
    face.closeSubpath();
    QRadialGradient g(c, r, c + QPointF(-r * 0.35, -r * 0.45));
    g.setColorAt(0, QColor(255, 245, 150));
    g.setColorAt(0.5, QColor(255, 215, 40));
    g.setColorAt(1, QColor(235, 160, 20));
    p.fillPath(face, g);
    p.strokePath(face, QPen(QColor(140, 80, 0), 3.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    eye(p, c + QPointF(6, -36), 11, QPointF(0.6, -0.1));
    smile(p, c + QPointF(-10, -56), c + QPointF(6, -64), c + QPointF(20, -54), 4);
    p.fillPath(ellipse(c + QPointF(-22, -4), 9, 6), QColor(255, 140, 100, 150));
}

void drawSpiderwebs(QPainter& p) {
    const QPointF c(118, 84);
    const QPen silk(QColor(255, 255, 255, 220), 2.5, Qt::SolidLine, Qt::RoundCap);
    p.save();
    p.setPen(silk);
    p.setBrush(Qt::NoBrush);
    for (int i = 0; i < 10; ++i) p.drawLine(c, polar(c, 92, i * 36 + 8));
    for (int ring = 1; ring <= 5; ++ring) {
        const double r = ring * 17;
        QPainterPath path;
        for (int i = 0; i <= 10; ++i) {
            const QPointF pt = polar(c, r, i * 36 + 8);
            if (i == 0) {
                path.moveTo(pt);
            } else {
                // Each thread sags a little towards the hub.
                path.quadTo(polar(c, r * 0.86, i * 36 - 10), pt);
            }
        }
        p.drawPath(path);
    }
    p.restore();
    // A friendly spider on its thread.
    const QPointF s(250, 110);
    line(p, QPointF(250, 0), s, QColor(255, 255, 255, 230), 2.5);
    for (int i = 0; i < 4; ++i) {
        const double y = s.y() - 6 + i * 9;
        QPainterPath leg;
        leg.moveTo(s.x() - 14, y);
        leg.quadTo(s.x() - 40, y - 22 + i * 4, s.x() - 50, y + 12 + i * 3);
        leg.moveTo(s.x() + 14, y);
        leg.quadTo(s.x() + 40, y - 22 + i * 4, s.x() + 50, y + 12 + i * 3);
        p.strokePath(leg, QPen(QColor(40, 30, 50), 5, Qt::SolidLine, Qt::RoundCap));
    }
    ball(p, s, 30, QColor(70, 50, 90), 3);
    eye(p, s + QPointF(-11, -6), 9, QPointF(0, 0.4));
    eye(p, s + QPointF(11, -6), 9, QPointF(0, 0.4));
    smile(p, s + QPointF(-9, 12), s + QPointF(0, 19), s + QPointF(9, 12), 3);
    p.fillPath(ellipse(s + QPointF(-20, 8), 5, 3), QColor(255, 130, 170, 170));
    p.fillPath(ellipse(s + QPointF(20, 8), 5, 3), QColor(255, 130, 170, 170));
}

void drawToadRace(QPainter& p) {
    for (int i = 0; i < 3; ++i) {
        line(p, QPointF(8, 94 + i * 20), QPointF(42 - i * 6, 94 + i * 20),
             QColor(255, 255, 255, 170), 5);
    }
    // Chequered flag.
    line(p, QPointF(270, 160), QPointF(270, 6), QColor(90, 70, 60), 5);
    const QRectF flag(272, 6, 42, 32);
    p.fillRect(flag, Qt::white);
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 5; ++c) {
            if ((r + c) % 2 == 0) p.fillRect(QRectF(272 + c * 8.4, 6 + r * 8, 8.4, 8), kInk);
        }
    }
    p.strokePath(roundRect(flag, 1), QPen(kInk, 2));
    const QColor skin(165, 140, 70);
    const QPointF c(150, 112);
    fillShape(p, ellipse(c + QPointF(-66, 36), 26, 12), darker(skin, 0.1), 3);
    fillShape(p, ellipse(c + QPointF(66, 36), 26, 12), darker(skin, 0.1), 3);
    const QPainterPath body = ellipse(c, 86, 48);
    fillShape(p, body, skin, 3.5);
    p.fillPath(ellipse(c + QPointF(0, 24), 56, 22), QColor(230, 225, 160));
    for (QPointF w : {QPointF(-56, -14), QPointF(-40, 4), QPointF(50, -18), QPointF(64, 2),
                      QPointF(-20, -34), QPointF(30, -36)}) {
        p.fillPath(ellipse(c + w, 6, 5), darker(skin, 0.25));
    }
    ball(p, c + QPointF(-36, -44), 22, skin, 3);
    ball(p, c + QPointF(36, -44), 22, skin, 3);
    eye(p, c + QPointF(-36, -48), 13, QPointF(0.3, 0));
    eye(p, c + QPointF(36, -48), 13, QPointF(0.3, 0));
    smile(p, c + QPointF(-44, -6), c + QPointF(0, 22), c + QPointF(44, -6), 4.5);
    // Racing number.
    ball(p, c + QPointF(0, 24), 15, Qt::white, 2.5);
    p.fillPath(centredText("1", boldFont(20), c + QPointF(0, 24)), QColor(220, 40, 40));
}

void drawHangGlider(QPainter& p) {
    // Sun and hills.
    const QPointF sun(56, 44);
    for (int i = 0; i < 12; ++i) {
        line(p, polar(sun, 34, i * 30), polar(sun, 46, i * 30), QColor(255, 230, 90), 5);
    }
    ball(p, sun, 27, QColor(255, 210, 50), 0);
    const QPainterPath ground = roundRect(QRectF(8, 96, 304, 72), 20);
    fillShape(p, ellipse(QPointF(232, 178), 110, 52).intersected(ground), QColor(60, 150, 70), 2.5);
    fillShape(p, ellipse(QPointF(96, 184), 120, 50).intersected(ground), QColor(90, 190, 80), 2.5);
    cloud(p, QPointF(262, 132), 22);
    // The glider: a striped delta wing with a pilot hanging below.
    const QPointF nose(196, 22);
    const QPointF left(108, 78), right(296, 70), tail(200, 62);
    const std::array<QColor, 4> stripes = {QColor(240, 70, 70), QColor(255, 200, 40),
                                           QColor(70, 190, 255), QColor(160, 90, 230)};
    for (int i = 0; i < 4; ++i) {
        const double a = i / 4.0, b = (i + 1) / 4.0;
        auto along = [&](QPointF from, QPointF to, double t) { return from + (to - from) * t; };
        const QPainterPath band = polygon({nose, along(left, tail, a), along(left, tail, b)});
        const QPainterPath band2 = polygon({nose, along(tail, right, a), along(tail, right, b)});
        p.fillPath(band, stripes[i]);
        p.fillPath(band2, stripes[3 - i]);
    }
    const QPainterPath wing = polygon({nose, right, tail, left});
    p.strokePath(wing, QPen(kInk, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    line(p, tail, QPointF(194, 108), kInk, 2.5);
    line(p, QPointF(172, 102), QPointF(218, 100), kInk, 3);
    line(p, QPointF(172, 102), QPointF(196, 64), kInk, 2);
    line(p, QPointF(218, 100), QPointF(196, 64), kInk, 2);
    fillShape(p, roundRect(QRectF(180, 106, 44, 14), 7), QColor(60, 110, 220), 2.5);
    ball(p, QPointF(228, 110), 9, QColor(255, 220, 180), 2.5);
    p.fillPath(ellipse(QPointF(229, 106), 9, 5), QColor(240, 60, 60));
}

void drawSlingshot(QPainter& p) {
    const QColor band(230, 60, 60);
    const QPointF leftTip(104, 40), rightTip(196, 34), pouch(70, 112);
    // Back band, frame, then front band so the pouch sits in front.
    line(p, rightTip, pouch, darker(band, 0.3), 6);
    QPainterPath frame;
    frame.moveTo(150, 168);
    frame.lineTo(150, 104);
    frame.cubicTo(150, 84, 108, 80, 104, 40);
    frame.moveTo(150, 104);
    frame.cubicTo(150, 84, 192, 78, 196, 34);
    p.strokePath(frame, QPen(darker(kWood, 0.55), 22, Qt::SolidLine, Qt::RoundCap));
    p.strokePath(frame, QPen(kWood, 16, Qt::SolidLine, Qt::RoundCap));
    p.strokePath(frame.translated(-3, -2),
                 QPen(lighter(kWood, 0.35), 4, Qt::SolidLine, Qt::RoundCap));
    for (QPointF at : {leftTip, rightTip}) {
        fillShape(p, roundRect(QRectF(at.x() - 12, at.y() + 6, 24, 10), 4), QColor(90, 60, 40), 2);
    }
    line(p, leftTip, pouch, band, 6);
    fillShape(p, ellipse(pouch, 18, 13), QColor(120, 80, 50), 2.5);
    ball(p, pouch + QPointF(2, -6), 13, QColor(150, 150, 165), 2.5);
    // Where it will fly.
    p.save();
    p.setPen(QPen(QColor(255, 255, 255, 200), 4, Qt::DashLine, Qt::RoundCap));
    QPainterPath path;
    path.moveTo(214, 82);
    path.quadTo(256, 30, 294, 50);
    p.drawPath(path);
    p.restore();
    p.fillPath(polygon({{300, 52}, {282, 38}, {284, 60}}), QColor(255, 255, 255, 220));
}

void drawFroggy(QPainter& p) {
    QLinearGradient water(QPointF(0, 100), QPointF(0, 170));
    water.setColorAt(0, QColor(120, 210, 255, 0));
    water.setColorAt(1, QColor(60, 160, 230, 200));
    p.fillPath(ellipse(QPointF(160, 150), 160, 30), water);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(255, 255, 255, 150), 3));
    p.drawEllipse(QPointF(160, 140), 150, 26);
    QPainterPath pad;
    pad.moveTo(160, 134);
    pad.arcTo(QRectF(46, 104, 228, 60), 80, 340);
    pad.closeSubpath();
    fillShape(p, pad, QColor(70, 180, 70), 3);
    // A water lily at the edge.
    for (int i = 0; i < 6; ++i) {
        p.save();
        p.translate(64, 128);
        p.rotate(i * 60);
        fillShape(p, ellipse(QPointF(0, -10), 6, 11), QColor(255, 170, 210), 1.5);
        p.restore();
    }
    ball(p, QPointF(64, 128), 5, QColor(255, 220, 60), 0);
    // The frog.
    const QColor skin(110, 210, 80);
    const QPointF c(170, 96);
    fillShape(p, ellipse(c + QPointF(-46, 34), 20, 10), skin, 3);
    fillShape(p, ellipse(c + QPointF(46, 34), 20, 10), skin, 3);
    const QPainterPath body = ellipse(c, 56, 42);
    fillShape(p, body, skin, 3.5);
    p.fillPath(ellipse(c + QPointF(0, 18), 34, 20), QColor(220, 245, 170));
    ball(p, c + QPointF(-28, -38), 19, skin, 3);
    ball(p, c + QPointF(28, -38), 19, skin, 3);
    eye(p, c + QPointF(-28, -40), 12, QPointF(0, 0.2));
    eye(p, c + QPointF(28, -40), 12, QPointF(0, 0.2));
    smile(p, c + QPointF(-26, -6), c + QPointF(0, 14), c + QPointF(26, -6), 4);
    p.fillPath(ellipse(c + QPointF(-34, 2), 8, 5), QColor(255, 140, 150, 160));
    p.fillPath(ellipse(c + QPointF(34, 2), 8, 5), QColor(255, 140, 150, 160));
    fillShape(p, ellipse(c + QPointF(-22, 40), 12, 7), skin, 2.5);
    fillShape(p, ellipse(c + QPointF(22, 40), 12, 7), skin, 2.5);
}

}  // namespace wm::assetgen
