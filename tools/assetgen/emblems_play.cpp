// Emblems of the show, board and gadget games.
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
const QColor kGold(255, 200, 40);
const QColor kSteel(150, 160, 175);

QPointF polar(QPointF c, double r, double degrees) {
    const double a = degrees * std::numbers::pi / 180;
    return c + QPointF(std::cos(a) * r, std::sin(a) * r);
}

void letter(QPainter& p, const QString& s, QPointF at, double size, const QColor& colour) {
    p.fillPath(centredText(s, boldFont(size), at), colour);
}

// A round black bomb with a highlight and a fuse cap.
void bombBody(QPainter& p, QPointF c, double r) {
    p.save();
    p.translate(polar(c, r * 0.9, -50));
    p.rotate(40);
    fillShape(p, roundRect(QRectF(-14, -14, 28, 24), 5), QColor(110, 110, 120), 3);
    p.restore();
    ball(p, c, r, QColor(60, 60, 75), 3.5);
    p.fillPath(ellipse(c + QPointF(-r * 0.38, -r * 0.4), r * 0.2, r * 0.13),
               QColor(255, 255, 255, 150));
}

void fuseSpark(QPainter& p, QPointF at) {
    fillShape(p, starPath(at, 20, 8, 8), QColor(255, 170, 30), 0);
    p.fillPath(starPath(at, 11, 5, 8, 0.3), QColor(255, 250, 190));
}

}  // namespace

void drawWheelOfMoney(QPainter& p) {
    const QPointF c(160, 90);
    const double r = 76;
    const std::array<QColor, 6> wedges = {QColor(240, 70, 70),  QColor(255, 200, 40),
                                          QColor(60, 150, 240), QColor(80, 200, 90),
                                          QColor(180, 90, 220), QColor(255, 140, 40)};
    ball(p, c, r + 8, kGold, 3);
    for (int i = 0; i < 12; ++i) {
        QPainterPath wedge;
        wedge.moveTo(c);
        wedge.arcTo(QRectF(c.x() - r, c.y() - r, 2 * r, 2 * r), i * 30, 30);
        wedge.closeSubpath();
        const QColor col = wedges[i % 6];
        QRadialGradient g(c, r);
        g.setColorAt(0, lighter(col, 0.4));
        g.setColorAt(1, col);
        p.fillPath(wedge, g);
        p.strokePath(wedge, QPen(Qt::white, 2.5));
    }
    for (int i = 0; i < 12; ++i)
        ball(p, polar(c, r + 4, i * 30 + 15), 3.5, QColor(255, 250, 220), 0);
    ball(p, c, 22, kGold, 3);
    letter(p, "$", c + QPointF(0, 1), 26, QColor(120, 70, 0));
    const QPainterPath pointer = polygon({{146, 0}, {174, 0}, {160, 26}});
    fillShape(p, pointer, QColor(230, 40, 40), 3);
}

void drawConcentration(QPainter& p) {
    const std::array<double, 2> tilt = {-12, 10};
    const std::array<QPointF, 2> at = {{{112, 88}, {210, 84}}};
    for (int i = 0; i < 2; ++i) {
        p.save();
        p.translate(at[i]);
        p.rotate(tilt[i]);
        const QRectF card(-56, -76, 112, 152);
        const QPainterPath body = roundRect(card, 12);
        fillShape(p, body, Qt::white, 3);
        const QRectF back = card.adjusted(9, 9, -9, -9);
        const QColor col = i == 0 ? QColor(60, 110, 230) : QColor(230, 60, 90);
        p.fillPath(roundRect(back, 7), col);
        // Diamond lattice on the back.
        p.save();
        p.setClipPath(roundRect(back, 7));
        for (int k = -8; k <= 8; ++k) {
            line(p, QPointF(k * 18 - 80, -80), QPointF(k * 18 + 80, 80), lighter(col, 0.3), 3);
            line(p, QPointF(k * 18 + 80, -80), QPointF(k * 18 - 80, 80), lighter(col, 0.3), 3);
        }
        p.restore();
        ball(p, QPointF(0, 0), 24, Qt::white, 2.5);
        letter(p, "?", QPointF(0, 1), 30, col);
        p.restore();
    }
    sparkle(p, QPointF(162, 22), 14, QColor(255, 255, 255, 240));
    sparkle(p, QPointF(276, 150), 10, QColor(255, 255, 255, 220));
}

void drawSlotMachine(QPainter& p) {
    // Lever first, so the cabinet covers its pivot.
    line(p, QPointF(250, 96), QPointF(284, 96), QColor(90, 90, 100), 10);
    line(p, QPointF(282, 96), QPointF(290, 36), QColor(170, 175, 185), 8);
    ball(p, QPointF(290, 30), 14, QColor(230, 40, 40), 2.5);
    const QRectF cab(44, 26, 212, 140);
    fillShape(p, roundRect(cab, 20), QColor(255, 190, 40), 3.5);
    const QPainterPath sign = roundRect(QRectF(70, 2, 160, 38), 19);
    fillShape(p, sign, QColor(200, 30, 60), 3);
    outlinedText(p, centredText("777", boldFont(26), QPointF(150, 21)), QColor(255, 230, 90),
                 QColor(120, 0, 30), 2);
    const QRectF window(58, 50, 184, 84);
    fillShape(p, roundRect(window, 12), QColor(70, 40, 20), 3);
    for (int i = 0; i < 3; ++i) {
        const QRectF reel(64 + i * 60, 56, 52, 72);
        QLinearGradient g(reel.topLeft(), reel.bottomLeft());
        g.setColorAt(0, QColor(200, 200, 210));
        g.setColorAt(0.5, Qt::white);
        g.setColorAt(1, QColor(200, 200, 210));
        p.fillPath(roundRect(reel, 6), g);
        if (i == 1) {
            // A cherry pair between two sevens.
            QPainterPath stem;
            stem.moveTo(reel.center() + QPointF(-10, 8));
            stem.quadTo(reel.center() + QPointF(-4, -16), reel.center() + QPointF(6, -22));
            stem.moveTo(reel.center() + QPointF(12, 10));
            stem.quadTo(reel.center() + QPointF(10, -10), reel.center() + QPointF(6, -22));
            p.strokePath(stem, QPen(QColor(40, 130, 40), 3));
            ball(p, reel.center() + QPointF(-10, 14), 11, QColor(220, 20, 40), 2);
            ball(p, reel.center() + QPointF(12, 16), 11, QColor(220, 20, 40), 2);
        } else {
            outlinedText(p, centredText("7", boldFont(46), reel.center()), QColor(230, 30, 50),
                         QColor(120, 0, 20), 2);
        }
    }
    p.fillPath(roundRect(QRectF(96, 142, 108, 14), 7), QColor(120, 70, 10));
}

void drawSafeCracker(QPainter& p) {
    const QRectF body(56, 8, 208, 150);
    fillShape(p, roundRect(body, 16), QColor(120, 132, 150), 3.5);
    const QRectF door = body.adjusted(14, 12, -14, -16);
    fillShape(p, roundRect(door, 10), QColor(150, 162, 180), 3);
    gloss(p, roundRect(door, 10), 90, 0.4);
    for (double y : {36.0, 126.0}) {
        fillShape(p, roundRect(QRectF(60, y, 16, 22), 4), QColor(90, 95, 105), 2);
    }
    p.fillRect(QRectF(86, 158, 30, 8), QColor(60, 60, 70));
    p.fillRect(QRectF(204, 158, 30, 8), QColor(60, 60, 70));
    // The dial.
    const QPointF c(148, 84);
    ball(p, c, 46, QColor(60, 65, 80), 3);
    p.setBrush(QColor(235, 238, 242));
    p.setPen(QPen(QColor(40, 45, 55), 2.5));
    p.drawEllipse(c, 37, 37);
    for (int i = 0; i < 40; ++i) {
        const double len = i % 5 == 0 ? 8 : 4;
        line(p, polar(c, 36, i * 9), polar(c, 36 - len, i * 9), QColor(40, 45, 55), 1.5);
    }
    ball(p, c, 17, QColor(90, 95, 110), 2);
    line(p, c, polar(c, 15, -90), QColor(230, 60, 50), 4);
    p.fillPath(polygon({polar(c, 50, -90) + QPointF(-7, -6), polar(c, 50, -90) + QPointF(7, -6),
                        polar(c, 41, -90)}),
               QColor(230, 60, 50));
    // The handle.
    const QPointF h(226, 84);
    for (int i = 0; i < 3; ++i) line(p, h, polar(h, 24, i * 120 + 20), QColor(210, 215, 225), 7);
    for (int i = 0; i < 3; ++i) ball(p, polar(h, 24, i * 120 + 20), 6, QColor(210, 215, 225), 2);
    ball(p, h, 9, kGold, 2);
}

void drawTicTacToe(QPainter& p) {
    const double s = 50;
    const QPointF o(160 - 1.5 * s, 85 - 1.5 * s);
    for (int i = 1; i < 3; ++i) {
        line(p, o + QPointF(i * s, 4), o + QPointF(i * s, 3 * s - 4), QColor(120, 40, 0, 160), 11);
        line(p, o + QPointF(4, i * s), o + QPointF(3 * s - 4, i * s), QColor(120, 40, 0, 160), 11);
        line(p, o + QPointF(i * s, 4), o + QPointF(i * s, 3 * s - 4), Qt::white, 7);
        line(p, o + QPointF(4, i * s), o + QPointF(3 * s - 4, i * s), Qt::white, 7);
    }
    auto cell = [&](int c, int r) { return o + QPointF((c + 0.5) * s, (r + 0.5) * s); };
    auto cross = [&](QPointF at) {
        const double d = 15;
        line(p, at + QPointF(-d, -d), at + QPointF(d, d), QColor(120, 0, 30), 13);
        line(p, at + QPointF(d, -d), at + QPointF(-d, d), QColor(120, 0, 30), 13);
        line(p, at + QPointF(-d, -d), at + QPointF(d, d), QColor(255, 70, 90), 8);
        line(p, at + QPointF(d, -d), at + QPointF(-d, d), QColor(255, 70, 90), 8);
    };
    auto nought = [&](QPointF at) {
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(QColor(20, 40, 120), 13));
        p.drawEllipse(at, 15, 15);
        p.setPen(QPen(QColor(90, 190, 255), 8));
        p.drawEllipse(at, 15, 15);
    };
    cross(cell(0, 0));
    cross(cell(1, 1));
    cross(cell(2, 2));
    nought(cell(2, 0));
    nought(cell(0, 2));
    nought(cell(1, 0));
    line(p, cell(0, 0) + QPointF(-20, -20), cell(2, 2) + QPointF(20, 20), QColor(255, 230, 60, 230),
         8);
}

void drawPachinko(QPainter& p) {
    const QRectF board(58, 4, 204, 162);
    QLinearGradient g(board.topLeft(), board.bottomLeft());
    g.setColorAt(0, QColor(70, 30, 110));
    g.setColorAt(1, QColor(30, 10, 60));
    p.fillPath(roundRect(board, 20), g);
    p.strokePath(roundRect(board, 20), QPen(kGold, 5));
    for (int r = 0; r < 5; ++r) {
        for (int c = 0; c < 7; ++c) {
            const double x = 84 + c * 26 + (r % 2) * 13;
            if (x > 244) continue;
            ball(p, QPointF(x, 28 + r * 22), 4, QColor(240, 220, 140), 0);
        }
    }
    // Bins, one lit.
    for (int i = 0; i < 5; ++i) {
        const QRectF bin(70 + i * 37, 136, 32, 24);
        p.fillPath(roundRect(bin, 5), i == 2 ? QColor(255, 210, 60) : QColor(90, 60, 140));
        if (i == 2) letter(p, "100", bin.center(), 11, QColor(120, 40, 0));
    }
    // The falling disk and its trail.
    for (int i = 0; i < 5; ++i) {
        ball(p, QPointF(128 + i * 7, 26 + i * 16), 4 + i, QColor(200, 210, 255, 40 + i * 30), 0);
    }
    ball(p, QPointF(170, 108), 14, QColor(215, 220, 235), 2.5);
}

void drawPrincess(QPainter& p) {
    const QColor wall(255, 205, 225);
    const QColor roof(150, 80, 210);
    // Castle behind.
    fillShape(p, roundRect(QRectF(104, 50, 112, 96), 4), wall, 3);
    for (double x : {76.0, 208.0}) {
        fillShape(p, roundRect(QRectF(x, 40, 36, 106), 4), wall, 3);
        fillShape(p, polygon({{x - 6, 42}, {x + 42, 42}, {x + 18, -2}}), roof, 3);
        line(p, QPointF(x + 18, 0), QPointF(x + 18, -4), kInk, 2);
    }
    fillShape(p, polygon({{118, 52}, {202, 52}, {160, 12}}), roof, 3);
    p.fillPath(polygon({{160, 12}, {160, -2}, {178, 4}, {160, 9}}), QColor(255, 90, 120));
    fillShape(p, roundRect(QRectF(88, 64, 12, 20), 6), QColor(80, 60, 140), 0);
    fillShape(p, roundRect(QRectF(220, 64, 12, 20), 6), QColor(80, 60, 140), 0);
    // Crown in front.
    QPainterPath crown;
    crown.moveTo(96, 160);
    crown.lineTo(90, 92);
    crown.lineTo(124, 120);
    crown.lineTo(160, 80);
    crown.lineTo(196, 120);
    crown.lineTo(230, 92);
    crown.lineTo(224, 160);
    crown.closeSubpath();
    fillShape(p, crown, kGold, 3.5);
    gloss(p, crown, 120, 0.5);
    fillShape(p, roundRect(QRectF(94, 142, 132, 20), 6), QColor(235, 170, 20), 3);
    ball(p, QPointF(160, 126), 11, QColor(230, 40, 90), 2);
    ball(p, QPointF(124, 134), 7, QColor(60, 150, 240), 2);
    ball(p, QPointF(196, 134), 7, QColor(60, 200, 120), 2);
    for (QPointF at : {QPointF(90, 92), QPointF(160, 80), QPointF(230, 92)}) {
        ball(p, at, 7, QColor(255, 250, 230), 2);
    }
}

void drawMiniGolf(QPainter& p) {
    const QPainterPath green = ellipse(QPointF(160, 132), 150, 36);
    fillShape(p, green, QColor(120, 220, 100), 3);
    const QPointF hole(214, 134);
    p.fillPath(ellipse(hole, 17, 7), QColor(20, 50, 20));
    line(p, hole, QPointF(214, 14), QColor(245, 245, 245), 5);
    const QPainterPath flag = polygon({{216, 14}, {286, 32}, {216, 52}});
    fillShape(p, flag, QColor(240, 50, 60), 3);
    p.save();
    p.setPen(QPen(QColor(255, 255, 255, 200), 4, Qt::DotLine, Qt::RoundCap));
    QPainterPath path;
    path.moveTo(86, 140);
    path.quadTo(150, 112, 196, 134);
    p.drawPath(path);
    p.restore();
    ball(p, QPointF(72, 128), 16, Qt::white, 2.5);
    for (QPointF d : {QPointF(-5, -4), QPointF(3, -6), QPointF(6, 2), QPointF(-2, 4)}) {
        p.fillPath(ellipse(QPointF(72, 128) + d, 1.8, 1.8), QColor(190, 190, 200));
    }
}

void drawBasketball(QPainter& p) {
    // Backboard, rim and net.
    const QRectF board(176, 0, 124, 82);
    fillShape(p, roundRect(board, 8), Qt::white, 3);
    p.strokePath(roundRect(QRectF(214, 30, 48, 36), 3), QPen(QColor(230, 60, 40), 4));
    p.save();
    p.setPen(QPen(Qt::white, 2.5));
    for (int i = 0; i < 6; ++i) {
        p.drawLine(QPointF(206 + i * 13, 86), QPointF(218 + i * 8, 136));
        p.drawLine(QPointF(270 - i * 13, 86), QPointF(258 - i * 8, 136));
    }
    p.drawLine(QPointF(212, 110), QPointF(264, 110));
    p.restore();
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(200, 60, 20), 6));
    p.drawEllipse(QPointF(238, 86), 36, 8);
    // The ball in flight.
    const QPointF c(106, 98);
    for (int i = 0; i < 3; ++i) {
        line(p, QPointF(20 + i * 4, 142 - i * 18), QPointF(46 + i * 4, 132 - i * 18),
             QColor(255, 255, 255, 150), 4);
    }
    ball(p, c, 54, QColor(245, 130, 30), 3.5);
    p.save();
    p.setClipPath(ellipse(c, 54, 54));
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(90, 40, 10), 3.5));
    p.drawLine(c + QPointF(-60, 0), c + QPointF(60, 0));
    p.drawLine(c + QPointF(0, -60), c + QPointF(0, 60));
    p.drawEllipse(c + QPointF(-66, 0), 40, 60);
    p.drawEllipse(c + QPointF(66, 0), 40, 60);
    p.restore();
}

void drawShortCircuit(QPainter& p) {
    // Wires first, then the parts on top.
    QPainterPath red, black;
    red.moveTo(96, 120);
    red.cubicTo(96, 160, 170, 160, 196, 130);
    black.moveTo(112, 120);
    black.cubicTo(130, 100, 260, 60, 286, 128);
    p.strokePath(red, QPen(QColor(120, 20, 20), 9, Qt::SolidLine, Qt::RoundCap));
    p.strokePath(red, QPen(QColor(240, 60, 60), 5, Qt::SolidLine, Qt::RoundCap));
    p.strokePath(black, QPen(QColor(10, 10, 20), 9, Qt::SolidLine, Qt::RoundCap));
    p.strokePath(black, QPen(QColor(80, 80, 100), 5, Qt::SolidLine, Qt::RoundCap));
    // Bulb, glowing.
    const QPointF b(104, 58);
    QRadialGradient halo(b, 80);
    halo.setColorAt(0, QColor(255, 250, 180, 200));
    halo.setColorAt(1, QColor(255, 250, 180, 0));
    p.fillPath(ellipse(b, 80, 80), halo);
    QPainterPath glass = ellipse(b, 40, 40);
    glass = glass.united(polygon({{84, 86}, {124, 86}, {118, 104}, {90, 104}}));
    fillShape(p, glass, QColor(255, 236, 110), 3);
    gloss(p, glass, 150, 0.45);
    QPainterPath filament;
    filament.moveTo(94, 100);
    filament.lineTo(96, 64);
    filament.lineTo(102, 72);
    filament.lineTo(108, 64);
    filament.lineTo(114, 100);
    p.strokePath(filament, QPen(QColor(200, 100, 20), 2.5));
    fillShape(p, roundRect(QRectF(88, 102, 32, 24), 4), kSteel, 2.5);
    line(p, QPointF(90, 110), QPointF(118, 110), QColor(100, 110, 125), 2);
    line(p, QPointF(90, 118), QPointF(118, 118), QColor(100, 110, 125), 2);
    // Battery.
    const QRectF cell(190, 112, 92, 40);
    fillShape(p, roundRect(cell, 8), QColor(40, 40, 50), 3);
    fillShape(p, roundRect(QRectF(190, 112, 36, 40), 8), QColor(240, 170, 30), 0);
    fillShape(p, roundRect(QRectF(282, 123, 10, 18), 3), kSteel, 2);
    letter(p, "+", QPointF(256, 132), 24, Qt::white);
    // A spark on the gap.
    fillShape(p, starPath(QPointF(186, 64), 26, 10, 7), QColor(255, 230, 60), 2);
    p.fillPath(starPath(QPointF(186, 64), 12, 5, 7), Qt::white);
}

void drawBombSquad(QPainter& p) {
    const QPointF c(130, 100);
    // Coloured wires spill out to the right.
    const std::array<QColor, 3> wires = {QColor(240, 60, 60), QColor(60, 140, 255),
                                         QColor(255, 210, 40)};
    for (int i = 0; i < 3; ++i) {
        QPainterPath w;
        w.moveTo(c + QPointF(30, 20 + i * 8));
        w.cubicTo(QPointF(230, 130 + i * 14), QPointF(230, 60 + i * 24), QPointF(300, 70 + i * 30));
        p.strokePath(w, QPen(darker(wires[i], 0.5), 9, Qt::SolidLine, Qt::RoundCap));
        p.strokePath(w, QPen(wires[i], 5, Qt::SolidLine, Qt::RoundCap));
    }
    bombBody(p, c, 58);
    QPainterPath fuse;
    fuse.moveTo(polar(c, 66, -50));
    fuse.cubicTo(QPointF(190, 10), QPointF(220, 40), QPointF(236, 20));
    p.strokePath(fuse, QPen(QColor(200, 160, 100), 6, Qt::SolidLine, Qt::RoundCap));
    fuseSpark(p, QPointF(238, 18));
}

void drawBombSquad2(QPainter& p) {
    const QPointF c(142, 94);
    bombBody(p, c, 66);
    // A timer strapped across the front.
    line(p, QPointF(80, 118), QPointF(206, 118), QColor(120, 70, 30), 12);
    const QRectF timer(96, 74, 124, 56);
    fillShape(p, roundRect(timer, 10), QColor(210, 215, 225), 3);
    p.fillPath(roundRect(timer.adjusted(8, 8, -8, -8), 6), QColor(20, 10, 10));
    const QPainterPath digits = centredText("0:09", boldFont(30), timer.center() + QPointF(0, 1));
    p.save();
    p.setPen(QPen(QColor(255, 40, 40, 90), 6));
    p.drawPath(digits);
    p.restore();
    p.fillPath(digits, QColor(255, 80, 60));
    for (int i = 0; i < 3; ++i) {
        const QColor col = i == 0   ? QColor(240, 60, 60)
                           : i == 1 ? QColor(60, 140, 255)
                                    : QColor(80, 200, 90);
        QPainterPath w;
        w.moveTo(timer.right() - 10, timer.bottom() - 4);
        w.cubicTo(QPointF(250, 150 - i * 6), QPointF(260, 60 + i * 20), QPointF(300, 40 + i * 26));
        p.strokePath(w, QPen(darker(col, 0.5), 8, Qt::SolidLine, Qt::RoundCap));
        p.strokePath(w, QPen(col, 4.5, Qt::SolidLine, Qt::RoundCap));
    }
}

void drawJailbreak(QPainter& p) {
    const QRectF wall(30, 6, 260, 160);
    fillShape(p, roundRect(wall, 14), QColor(170, 150, 140), 3);
    p.save();
    p.setClipPath(roundRect(wall, 14));
    for (int r = 0; r < 8; ++r) {
        const double y = 6 + r * 20;
        line(p, QPointF(30, y), QPointF(290, y), QColor(120, 100, 95), 2);
        for (int c = 0; c < 7; ++c) {
            const double x = 30 + c * 44 + (r % 2) * 22;
            line(p, QPointF(x, y), QPointF(x, y + 20), QColor(120, 100, 95), 2);
        }
    }
    p.restore();
    // Night sky through the window.
    const QRectF window(82, 24, 156, 120);
    QLinearGradient sky(window.topLeft(), window.bottomLeft());
    sky.setColorAt(0, QColor(20, 30, 90));
    sky.setColorAt(1, QColor(70, 80, 170));
    p.fillPath(roundRect(window, 8), sky);
    p.fillPath(ellipse(QPointF(196, 56), 18, 18), QColor(255, 245, 190));
    p.fillPath(ellipse(QPointF(206, 50), 16, 16), QColor(40, 50, 120));
    for (QPointF s : {QPointF(110, 46), QPointF(150, 40), QPointF(128, 92), QPointF(214, 112)}) {
        sparkle(p, s, 5, QColor(255, 255, 230));
    }
    p.strokePath(roundRect(window, 8), QPen(QColor(80, 70, 70), 6));
    // Bars, the middle two bent apart so a letter can slip out.
    for (int i = 0; i < 4; ++i) {
        const double x = 106 + i * 36;
        const double bow = i == 1 ? -16 : i == 2 ? 16 : 0;
        QPainterPath bar;
        bar.moveTo(x, 24);
        bar.cubicTo(QPointF(x, 60), QPointF(x + bow, 62), QPointF(x + bow, 84));
        bar.cubicTo(QPointF(x + bow, 106), QPointF(x, 108), QPointF(x, 144));
        p.strokePath(bar, QPen(QColor(40, 40, 50), 11, Qt::SolidLine, Qt::FlatCap));
        p.strokePath(bar, QPen(QColor(180, 185, 200), 6, Qt::SolidLine, Qt::FlatCap));
    }
    letterTile(p, QPointF(160, 88), 40, "A", QColor(255, 220, 60), -12);
}

void drawFreezeIt(QPainter& p) {
    // An ice cube drawn as three faces.
    const QPointF top(118, 30);
    const double s = 70;
    const QPointF l = top + QPointF(-s * 0.86, s * 0.5), r = top + QPointF(s * 0.86, s * 0.5);
    const QPointF m = top + QPointF(0, s);
    const QPointF down(0, s * 0.95);
    const QPainterPath topFace = polygon({top, r, m, l});
    const QPainterPath leftFace = polygon({l, m, m + down, l + down});
    const QPainterPath rightFace = polygon({m, r, r + down, m + down});
    fillShape(p, leftFace, QColor(150, 210, 245), 3);
    fillShape(p, rightFace, QColor(110, 180, 235), 3);
    fillShape(p, topFace, QColor(215, 245, 255), 3);
    line(p, l + QPointF(14, 14), l + QPointF(14, 54), QColor(255, 255, 255, 200), 5);
    line(p, m + QPointF(14, 10), m + QPointF(44, -6), QColor(255, 255, 255, 170), 4);
    // Snowflake.
    const QPointF c(230, 84);
    for (int i = 0; i < 6; ++i) {
        const double a = i * 60;
        line(p, c, polar(c, 64, a), QColor(40, 90, 160), 11);
    }
    for (int i = 0; i < 6; ++i) {
        const double a = i * 60;
        line(p, c, polar(c, 64, a), Qt::white, 6);
        for (double d : {30.0, 48.0}) {
            line(p, polar(c, d, a), polar(polar(c, d, a), 14, a + 45), Qt::white, 4.5);
            line(p, polar(c, d, a), polar(polar(c, d, a), 14, a - 45), Qt::white, 4.5);
        }
    }
    ball(p, c, 10, QColor(220, 245, 255), 2);
    sparkle(p, QPointF(40, 30), 10, QColor(255, 255, 255, 230));
    sparkle(p, QPointF(176, 154), 8, QColor(255, 255, 255, 200));
}

}  // namespace wm::assetgen
