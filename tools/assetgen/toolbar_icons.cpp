// The toolbars' icons, the title's and the list editors': small, bold and friendly, on a
// transparent ground.
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

// A sheet of paper with lines of writing, the ground of the list editors' icons.
void page(QPainter& p) {
    QPainterPath sheet = polygon({{14, 8}, {58, 8}, {74, 24}, {74, 88}, {14, 88}});
    fillShape(p, sheet, QColor(0xfb, 0xfb, 0xf4), 3);
    fillShape(p, polygon({{58, 8}, {58, 24}, {74, 24}}), QColor(0xd8, 0xdc, 0xe4), 2.5);
    for (int y = 34; y <= 74; y += 10)
        line(p, QPointF(24, y), QPointF(62, y), QColor(0x9d, 0xb4, 0xd8), 3);
}

void badge(QPainter& p, const QColor& colour, const QString& sign) {
    ball(p, QPointF(68, 68), 22, colour, 3);
    outlinedText(p, centredText(sign, boldFont(40), QPointF(68, 69)), Qt::white,
                 darker(colour, 0.45), 2);
}

void addWord(QPainter& p) {
    page(p);
    badge(p, QColor(0x3c, 0xb3, 0x71), QStringLiteral("+"));
}

void deleteWord(QPainter& p) {
    page(p);
    badge(p, QColor(0xe0, 0x3a, 0x3a), QString(QChar(0x2212)));  // a minus sign
}

void editWord(QPainter& p) {
    page(p);
    // A pencil laid across the page, point down to the left.
    p.save();
    p.translate(52, 52);
    p.rotate(-45);
    const QColor yellow(0xf4, 0xc0, 0x2a);
    fillShape(p, roundRect(QRectF(-10, -32, 20, 50), 3), yellow, 3);
    gloss(p, roundRect(QRectF(-10, -32, 20, 50), 3), 110, 0.5);
    fillShape(p, roundRect(QRectF(-10, -42, 20, 12), 4), QColor(0xf2, 0x8a, 0xa8), 3);
    fillShape(p, polygon({{-10, 18}, {10, 18}, {0, 38}}), QColor(0xf1, 0xd3, 0xa5), 3);
    fillShape(p, polygon({{-4, 30}, {4, 30}, {0, 38}}), QColor(0x33, 0x33, 0x33), 1.5);
    p.restore();
}

void renameList(QPainter& p) {
    // A name tag on a string, lettered "Aa".
    QPainterPath tag = polygon({{30, 20}, {84, 20}, {84, 76}, {30, 76}, {10, 48}});
    fillShape(p, tag, QColor(0xff, 0xd8, 0x6b), 3.5);
    gloss(p, tag, 100, 0.45);
    ball(p, QPointF(26, 48), 5, Qt::white, 2.5);
    outlinedText(p, centredText(QStringLiteral("Aa"), boldFont(34), QPointF(58, 49)),
                 QColor(0x3d, 0x7f, 0xd6), QColor(0x1d, 0x3f, 0x7a), 1.5);
}

void save(QPainter& p) {
    // A disk with its label and shutter.
    const QColor blue(0x3d, 0x7f, 0xd6);
    QPainterPath disk = polygon({{12, 12}, {74, 12}, {86, 24}, {86, 86}, {12, 86}});
    fillShape(p, disk, blue, 3.5);
    gloss(p, disk, 90, 0.4);
    fillShape(p, roundRect(QRectF(28, 12, 38, 26), 2), QColor(0xd8, 0xdc, 0xe4), 3);
    fillShape(p, roundRect(QRectF(52, 16, 9, 18), 1.5), darker(blue, 0.3), 1.5);
    fillShape(p, roundRect(QRectF(22, 50, 54, 36), 3), QColor(0xfb, 0xfb, 0xf4), 3);
    for (int y = 60; y <= 76; y += 8)
        line(p, QPointF(30, y), QPointF(68, y), QColor(0x9d, 0xb4, 0xd8), 3);
}

void foreign(QPainter& p) {
    // A globe with an accented letter before it.
    const QColor sea(0x3d, 0x9f, 0xe0);
    ball(p, QPointF(42, 42), 32, sea, 3.5);
    p.save();
    p.setClipPath(ellipse(QPointF(42, 42), 31, 31));
    QPainterPath land;
    land.moveTo(22, 22);
    land.cubicTo(34, 14, 46, 20, 42, 32);
    land.cubicTo(38, 44, 24, 40, 20, 52);
    land.cubicTo(14, 44, 14, 30, 22, 22);
    land.moveTo(52, 46);
    land.cubicTo(64, 40, 76, 50, 70, 62);
    land.cubicTo(64, 72, 52, 70, 50, 60);
    land.closeSubpath();
    fillShape(p, land, QColor(0x4c, 0xb0, 0x4c), 2);
    p.restore();
    fillShape(p, roundRect(QRectF(50, 50, 40, 40), 8), QColor(0xfb, 0xfb, 0xf4), 3);
    outlinedText(p, centredText(QString(QChar(0x00F1)), boldFont(34), QPointF(70, 70)),
                 QColor(0xe0, 0x3a, 0x3a), QColor(0x7a, 0x1f, 0x1f), 1.5);
}

}  // namespace

const std::vector<QString>& toolbarIconNames() {
    static const std::vector<QString> names = {
        QStringLiteral("teacher"), QStringLiteral("scores"), QStringLiteral("info"),
        QStringLiteral("help"),    QStringLiteral("quit"),   QStringLiteral("add"),
        QStringLiteral("delete"),  QStringLiteral("edit"),   QStringLiteral("rename"),
        QStringLiteral("save"),    QStringLiteral("foreign")};
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
    else if (name == QLatin1String("add"))
        addWord(p);
    else if (name == QLatin1String("delete"))
        deleteWord(p);
    else if (name == QLatin1String("edit"))
        editWord(p);
    else if (name == QLatin1String("rename"))
        renameList(p);
    else if (name == QLatin1String("save"))
        save(p);
    else if (name == QLatin1String("foreign"))
        foreign(p);
    return image;
}

}  // namespace wm::assetgen
