// The picture buttons of the title screen: a glossy coloured panel, the game's emblem and its
// name, plus the More and Back paging buttons in the same style.
#include "asset_gen.h"
#include "core/game_names.h"
#include "emblems.h"
#include "paint_kit.h"

#include <QConicalGradient>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QRadialGradient>

#include <algorithm>
#include <array>

namespace wm::assetgen {

namespace {

// One colour per game, in catalogue order, chosen to suit the emblem and to keep neighbours on
// the grid apart.
constexpr std::array<QRgb, kGameCount> kGameColours = {
    0x3C9CE8, 0x8E44C9, 0xE8553A, 0x16A394, 0x2FA85A, 0xC73D8F, 0x4A56D0, 0xF08A24, 0xB9483B,
    0x2F7FD8, 0x72B03A, 0x7048C0, 0x2F5DB8, 0x14A0C0, 0x4CA83C, 0x3AB4DA, 0x5C6F8A, 0xB83A3A,
    0xE0A020, 0x1E9E6E, 0x3A2F8A, 0x1F7F8F, 0xD0304A, 0x2F95B0, 0x273A8C, 0xF06A5A, 0xE04A9A,
    0x6A3F9A, 0x4F5F70, 0xC8683A, 0x3E96C8, 0xE86AB8, 0x3FAE4A, 0xD8A038, 0x2A6FE0, 0xF0643A,
    0xD83A30, 0xE8782A, 0x44A0E8, 0xA8703A, 0x1F9F8F, 0xA03CC0};

Emblem kEmblems[kGameCount] = {
    drawFlyingCow,     drawQuiz,        drawWordZap,     drawScramble,     drawWheelOfMoney,
    drawConcentration, drawBreakThru,   drawLetterDrop,  drawTowerAssault, drawFlashCards,
    drawCrossword,     drawBlindTiles,  drawBasketball,  drawSpeedType,    drawBugSpray,
    drawFreezeIt,      drawJailbreak,   drawCannonShot,  drawWordSearch,   drawWordMaze,
    drawAsteroidZap,   drawCodeBreaker, drawSlotMachine, drawBridgeOut,    drawCrunchMan,
    drawLetterToss,    drawSpellCrush,  drawSpiderwebs,  drawSafeCracker,  drawWordBricks,
    drawToadRace,      drawPrincess,    drawMiniGolf,    drawHangMan,      drawShortCircuit,
    drawTicTacToe,     drawBombSquad,   drawBombSquad2,  drawHangGlider,   drawSlingshot,
    drawFroggy,        drawPachinko};

// The panel every button shares: soft shadow, gradient body, sunburst, gloss and a bevel rim.
void drawPanel(QPainter& p, const QRectF& panel, double radius, const QColor& base,
               QPointF burstCentre) {
    const QPainterPath body = roundRect(panel, radius);
    drawWithShadow(
        p, [&](QPainter& lp) { lp.fillPath(body, Qt::black); }, QPointF(0, panel.height() * 0.02),
        static_cast<int>(panel.height() * 0.03) + 2, QColor(0, 0, 20, 150));

    QLinearGradient g(panel.topLeft(), panel.bottomLeft());
    g.setColorAt(0, lighter(base, 0.28));
    g.setColorAt(0.5, base);
    g.setColorAt(1, darker(base, 0.3));
    p.fillPath(body, g);

    p.save();
    p.setClipPath(body);
    // Faint rays from behind the emblem give every panel a little stage light.
    QConicalGradient rays(burstCentre, 90);
    for (int i = 0; i <= 24; ++i) {
        rays.setColorAt(i / 24.0, QColor(255, 255, 255, i % 2 == 0 ? 26 : 0));
    }
    p.fillRect(panel, rays);
    QRadialGradient glow(burstCentre, panel.width() * 0.45);
    glow.setColorAt(0, QColor(255, 255, 255, 95));
    glow.setColorAt(1, QColor(255, 255, 255, 0));
    p.fillRect(panel, glow);
    p.restore();

    gloss(p, body, 70, 0.42);
    const double rim = std::max(2.0, panel.height() * 0.011);
    p.strokePath(
        roundRect(panel.adjusted(rim * 1.5, rim * 1.5, -rim * 1.5, -rim * 1.5), radius - rim * 1.5),
        QPen(withAlpha(lighter(base, 0.55), 170), rim));
    p.strokePath(body, QPen(darker(base, 0.5), rim));
}

QImage blankButton(int w, int h) {
    QImage img(w, h, QImage::Format_ARGB32_Premultiplied);
    img.fill(buttonSurround());
    return img;
}

// Arrows for the paging buttons: two chevrons pointing `dir` (+1 right, -1 left).
QPainterPath chevrons(QPointF centre, double size, int dir) {
    QPainterPath path;
    for (int i = 0; i < 2; ++i) {
        const double x = centre.x() + dir * (i - 0.5) * size * 0.55;
        const QPointF tip(x + dir * size * 0.3, centre.y());
        path.addPath(polygon({tip, QPointF(x - dir * size * 0.12, centre.y() - size * 0.5),
                              QPointF(x - dir * size * 0.34, centre.y() - size * 0.5),
                              QPointF(tip.x() - dir * size * 0.46, centre.y()),
                              QPointF(x - dir * size * 0.34, centre.y() + size * 0.5),
                              QPointF(x - dir * size * 0.12, centre.y() + size * 0.5)}));
    }
    return path;
}

QImage navButton(const QString& word, int dir) {
    QImage img = blankButton(kButtonWidth / 2, kButtonHeight / 2);
    QPainter p(&img);
    p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const QColor base(255, 170, 30);
    const QRectF panel(3, 2, img.width() - 6, img.height() - 7);
    drawPanel(p, panel, 20, base, panel.center());

    const QFont font = boldFont(30);
    const double wordWidth = QFontMetricsF(font).horizontalAdvance(word);
    const double arrowWidth = 34;
    const double gap = 12;
    const double left = (img.width() - wordWidth - arrowWidth - gap) / 2;
    const double cy = panel.center().y() - 2;
    const double wordX = dir > 0 ? left + wordWidth / 2 : left + arrowWidth + gap + wordWidth / 2;
    const double arrowX = dir > 0 ? left + wordWidth + gap + arrowWidth / 2 : left + arrowWidth / 2;
    const QColor ink = darker(base, 0.62);
    drawWithShadow(
        p,
        [&](QPainter& lp) {
            outlinedText(lp, centredText(word, font, QPointF(wordX, cy)), Qt::white, ink, 3);
            const QPainterPath arrow = chevrons(QPointF(arrowX, cy), 30, dir);
            lp.strokePath(arrow, QPen(ink, 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            lp.fillPath(arrow, Qt::white);
        },
        QPointF(0, 3), 5, QColor(60, 20, 0, 150));
    return img;
}

}  // namespace

Emblem emblemFor(int index) {
    return index >= 0 && index < kGameCount ? kEmblems[index] : nullptr;
}

QImage renderGameButton(int index) {
    QImage img = blankButton(kButtonWidth, kButtonHeight);
    if (index < 0 || index >= kGameCount) return img;
    const QColor base = QColor::fromRgb(kGameColours[index]);
    const QString name =
        QString::fromUtf8(kGameNames[index].data(), static_cast<int>(kGameNames[index].size()));
    QPainter p(&img);
    p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                     QPainter::SmoothPixmapTransform);
    const QRectF panel(5, 4, kButtonWidth - 10, kButtonHeight - 12);
    drawPanel(p, panel, 30, base, QPointF(180, 96));

    drawWithShadow(
        p,
        [&](QPainter& lp) {
            lp.setClipPath(roundRect(panel.adjusted(4, 4, -4, -4), 26));
            lp.translate(20, 16);
            kEmblems[index](lp);
        },
        QPointF(3, 6), 8, QColor(0, 0, 30, 120));

    // The name sits on a darker pill so it reads on every colour and at half size.
    const QRectF pill(18, 192, kButtonWidth - 36, 54);
    p.fillPath(roundRect(pill, 27), withAlpha(darker(base, 0.45), 185));
    p.strokePath(roundRect(pill.adjusted(1, 1, -1, -1), 26),
                 QPen(withAlpha(lighter(base, 0.4), 110), 2));

    const QFont font = fittedFont(name, 38, pill.width() - 34, 22);
    const QPainterPath text = centredText(name, font, pill.center() + QPointF(0, -1));
    drawWithShadow(
        p, [&](QPainter& lp) { outlinedText(lp, text, Qt::white, darker(base, 0.7), 3.2); },
        QPointF(0, 3), 4, QColor(0, 0, 0, 140));
    return img;
}

QImage renderMoreButton() {
    return navButton(QStringLiteral("More"), +1);
}
QImage renderBackButton() {
    return navButton(QStringLiteral("Back"), -1);
}

}  // namespace wm::assetgen
