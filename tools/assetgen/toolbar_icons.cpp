// The title toolbar's icons: small, bold and friendly, on a transparent ground.
#include <QPainter>
#include <QPainterPath>

#include <cmath>

#include "asset_gen.h"
#include "paint_kit.h"

namespace wm::assetgen {

namespace {

constexpr int kIcon = 96;

void apple(QPainter& p) {
    // The teacher's apple.
    QPainterPath body;
    body.moveTo(48, 30);
    body.cubicTo(30, 18, 8, 30, 14, 58);
    body.cubicTo(18, 80, 34, 90, 48, 82);
    body.cubicTo(62, 90, 78, 80, 82, 58);
    body.cubicTo(88, 30, 66, 18, 48, 30);
    fillShape(p, body, QColor(0xe0, 0x3a, 0x3a), 3.5);
    gloss(p, body, 120, 0.45);
    line(p, QPointF(48, 31), QPointF(52, 12), QColor(0x6b, 0x43, 0x1e), 5);
    QPainterPath leaf;
    leaf.moveTo(53, 18);
    leaf.cubicTo(62, 6, 78, 8, 82, 14);
    leaf.cubicTo(74, 24, 60, 26, 53, 18);
    fillShape(p, leaf, QColor(0x4c, 0xb0, 0x4c), 3);
}

void trophy(QPainter& p) {
    const QColor gold(0xf4, 0xc0, 0x2a);
    QPainterPath handles;
    handles.addEllipse(QPointF(22, 32), 13, 13);
    handles.addEllipse(QPointF(74, 32), 13, 13);
    QPainterPath holes;
    holes.addEllipse(QPointF(22, 32), 6, 6);
    holes.addEllipse(QPointF(74, 32), 6, 6);
    fillShape(p, handles.subtracted(holes), gold, 3);
    QPainterPath cup;
    cup.moveTo(24, 14);
    cup.lineTo(72, 14);
    cup.cubicTo(72, 44, 62, 58, 48, 60);
    cup.cubicTo(34, 58, 24, 44, 24, 14);
    cup.closeSubpath();
    fillShape(p, cup, gold, 3.5);
    gloss(p, cup, 130, 0.5);
    fillShape(p, roundRect(QRectF(42, 58, 12, 14), 2), darker(gold, 0.15), 3);
    fillShape(p, roundRect(QRectF(28, 70, 40, 14), 4), QColor(0x8a, 0x55, 0x2b), 3);
    sparkle(p, QPointF(62, 26), 9, Qt::white);
}

void info(QPainter& p) {
    ball(p, QPointF(48, 48), 38, QColor(0x3d, 0x7f, 0xd6), 3.5);
    QFont f = boldFont(54);
    f.setFamily(QStringLiteral("DejaVu Serif"));
    outlinedText(p, centredText(QStringLiteral("i"), f, QPointF(48, 50)), Qt::white,
                 QColor(0x1d, 0x3f, 0x7a), 2.5);
}

void help(QPainter& p) {
    ball(p, QPointF(48, 48), 38, QColor(0x3c, 0xb3, 0x71), 3.5);
    outlinedText(p, centredText(QStringLiteral("?"), boldFont(56), QPointF(48, 50)), Qt::white,
                 QColor(0x1d, 0x5c, 0x38), 2.5);
}

void quit(QPainter& p) {
    // A door standing open, with an arrow on its way out.
    fillShape(p, roundRect(QRectF(16, 10, 46, 76), 5), QColor(0x8a, 0x55, 0x2b), 3.5);
    fillShape(p, roundRect(QRectF(22, 16, 34, 64), 3), QColor(0x1d, 0x26, 0x38), 2);
    QPainterPath door = polygon({{22, 16}, {44, 24}, {44, 86}, {22, 80}});
    fillShape(p, door, QColor(0xc9, 0x86, 0x4b), 3);
    ball(p, QPointF(39, 52), 3.5, QColor(0xf4, 0xc0, 0x2a), 1.5);
    QPainterPath arrow =
        polygon({{50, 42}, {70, 42}, {70, 32}, {90, 50}, {70, 68}, {70, 58}, {50, 58}});
    fillShape(p, arrow, QColor(0xe0, 0x3a, 0x3a), 3.5);
    gloss(p, arrow, 100, 0.5);
}

}  // namespace

const std::vector<QString>& toolbarIconNames() {
    static const std::vector<QString> names = {QStringLiteral("teacher"), QStringLiteral("scores"),
                                               QStringLiteral("info"), QStringLiteral("help"),
                                               QStringLiteral("quit")};
    return names;
}

QImage renderToolbarIcon(const QString& name) {
    QImage image = transparentLayer(QSize(kIcon, kIcon));
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    if (name == QLatin1String("teacher"))
        apple(p);
    else if (name == QLatin1String("scores"))
        trophy(p);
    else if (name == QLatin1String("info"))
        info(p);
    else if (name == QLatin1String("help"))
        help(p);
    else if (name == QLatin1String("quit"))
        quit(p);
    return image;
}

}  // namespace wm::assetgen
