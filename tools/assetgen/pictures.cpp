// Full-screen backgrounds: the title with its lettering, the light backdrop of the option and
// chooser screens, and the Scramble table.
#include "asset_gen.h"
#include "paint_kit.h"

#include <QConicalGradient>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QRadialGradient>

#include <array>
#include <cmath>
#include <numbers>

namespace wm::assetgen {

namespace {

QImage screenImage() {
    QImage img(kScreenWidth, kScreenHeight, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::black);
    return img;
}

void prepare(QPainter& p) {
    p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                     QPainter::SmoothPixmapTransform);
}

// Out-of-focus circles, scattered the same way each run: soft glows, or discs with a rim.
void bokeh(QPainter& p, Dice& dice, const QRectF& area, int count, double minR, double maxR,
           const std::vector<QColor>& colours, int minAlpha, int maxAlpha, bool discs = false) {
    for (int i = 0; i < count; ++i) {
        const QPointF c(dice.range(area.left(), area.right()),
                        dice.range(area.top(), area.bottom()));
        const double r = dice.range(minR, maxR);
        const QColor col =
            colours[static_cast<size_t>(dice.below(static_cast<int>(colours.size())))];
        const int a = static_cast<int>(dice.range(minAlpha, maxAlpha));
        p.setPen(Qt::NoPen);
        if (discs) {
            QRadialGradient g(c, r);
            g.setColorAt(0, withAlpha(col, a * 2 / 3));
            g.setColorAt(0.9, withAlpha(col, a));
            g.setColorAt(1, withAlpha(col, a * 4 / 3));
            p.setBrush(g);
        } else {
            QRadialGradient g(c, r);
            g.setColorAt(0, withAlpha(col, a));
            g.setColorAt(0.7, withAlpha(col, a * 2 / 3));
            g.setColorAt(1, withAlpha(col, 0));
            p.setBrush(g);
        }
        p.drawEllipse(c, r, r);
    }
}

// Big faint letters, one to each cell of a grid with some jitter, so they never pile up.
void ghostLetters(QPainter& p, Dice& dice, const QRectF& area, int cols, int rows,
                  const std::vector<QColor>& colours) {
    const QString alphabet = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    const double cw = area.width() / cols, ch = area.height() / rows;
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < cols; ++c) {
            p.save();
            p.translate(area.left() + (c + dice.range(0.3, 0.7)) * cw,
                        area.top() + (r + dice.range(0.3, 0.7)) * ch);
            p.rotate(dice.range(-20, 20));
            const QString letter = alphabet.mid(dice.below(26), 1);
            const QColor col =
                colours[static_cast<size_t>(dice.below(static_cast<int>(colours.size())))];
            p.fillPath(centredText(letter, boldFont(dice.range(70, 130)), QPointF(0, 0)), col);
            p.restore();
        }
    }
}

// The title word, one bubbly letter at a time, each with its own colour and bounce.
void titleWord(QPainter& p, const QString& word, QPointF centre, double size) {
    const QFont font = boldFont(size);
    QFontMetricsF fm(font);
    const double tracking = size * 0.04;
    double total = 0;
    for (QChar ch : word) total += fm.horizontalAdvance(ch) + tracking;
    total -= tracking;
    const std::array<QColor, 8> colours = {
        QColor(255, 90, 80),  QColor(255, 196, 40),  QColor(110, 215, 80),  QColor(50, 200, 235),
        QColor(90, 140, 255), QColor(190, 110, 250), QColor(255, 110, 190), QColor(255, 150, 50)};
    const std::array<double, 8> bounce = {0, -14, 8, -10, 6, -12, 10, -4};
    const std::array<double, 8> tilt = {-6, 4, -3, 5, -4, 3, -5, 4};
    double x = centre.x() - total / 2;
    for (int i = 0; i < word.size(); ++i) {
        const QString ch = word.mid(i, 1);
        const double adv = fm.horizontalAdvance(ch);
        p.save();
        p.translate(x + adv / 2, centre.y() + bounce[i % 8]);
        p.rotate(tilt[i % 8]);
        const QPainterPath glyph = centredText(ch, font, QPointF(0, 0));
        const QColor col = colours[i % 8];
        p.strokePath(glyph, QPen(QColor(30, 25, 80), size * 0.16, Qt::SolidLine, Qt::RoundCap,
                                 Qt::RoundJoin));
        p.strokePath(glyph,
                     QPen(Qt::white, size * 0.085, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QRectF b = glyph.boundingRect();
        QLinearGradient g(b.topLeft(), b.bottomLeft());
        g.setColorAt(0, lighter(col, 0.35));
        g.setColorAt(0.5, col);
        g.setColorAt(1, darker(col, 0.25));
        p.fillPath(glyph, g);
        p.save();
        p.setClipPath(glyph);
        QLinearGradient shine(b.topLeft(), QPointF(b.left(), b.center().y()));
        shine.setColorAt(0, QColor(255, 255, 255, 150));
        shine.setColorAt(1, QColor(255, 255, 255, 0));
        p.fillRect(QRectF(b.left(), b.top(), b.width(), b.height() * 0.45), shine);
        p.restore();
        p.restore();
        x += adv + tracking;
    }
}

// A ribbon banner with folded ends, carrying `text`.
void ribbon(QPainter& p, const QString& text, QPointF centre, double height) {
    const QFont font = boldFont(height * 0.6);
    const double width = QFontMetricsF(font).horizontalAdvance(text) + height * 1.6;
    const QColor base(232, 64, 90);
    const double l = centre.x() - width / 2, r = centre.x() + width / 2;
    const double t = centre.y() - height / 2, b = centre.y() + height / 2;
    const double tail = height * 0.9, drop = height * 0.28;
    for (int side : {-1, 1}) {
        const double edge = side < 0 ? l : r;
        const double x0 = edge - side * height * 0.4;
        const QPainterPath end = polygon({{x0, t + drop},
                                          {edge + side * tail, t + drop},
                                          {edge + side * tail * 0.7, (t + b) / 2 + drop},
                                          {edge + side * tail, b + drop},
                                          {x0, b + drop}});
        fillShape(p, end, darker(base, 0.2), 4);
        p.fillPath(polygon({{edge, b}, {edge, b + drop}, {edge - side * height * 0.4, b + drop}}),
                   darker(base, 0.5));
    }
    const QPainterPath body = roundRect(QRectF(l, t, width, height), 10);
    fillShape(p, body, base, 4);
    gloss(p, body, 90, 0.5);
    p.strokePath(roundRect(QRectF(l + 8, t + 8, width - 16, height - 16), 6),
                 QPen(QColor(255, 255, 255, 120), 2.5, Qt::DashLine));
    outlinedText(p, centredText(text, font, centre + QPointF(0, 1)), Qt::white, darker(base, 0.55),
                 height * 0.06);
}

}  // namespace

QImage renderTitle() {
    QImage img = screenImage();
    QPainter p(&img);
    prepare(p);
    const double w = kScreenWidth, h = kScreenHeight;
    Dice dice(1);

    // The calm lower backdrop the button grid sits on. It stays flat where buttons may sit,
    // since their corners are filled with the same colour; the life is at the sides.
    p.fillRect(img.rect(), buttonSurround());
    QRadialGradient edgeShade(QPointF(w / 2, h * 0.62), w * 0.62);
    edgeShade.setColorAt(0, QColor(0, 0, 0, 0));
    edgeShade.setColorAt(0.72, QColor(0, 0, 0, 0));
    edgeShade.setColorAt(1, QColor(5, 10, 40, 120));
    p.fillRect(img.rect(), edgeShade);
    const std::vector<QColor> sideColours = {QColor(120, 170, 255), QColor(170, 130, 255),
                                             QColor(90, 210, 230)};
    bokeh(p, dice, QRectF(-60, h * 0.4, 240, h * 0.6), 8, 40, 120, sideColours, 14, 30);
    bokeh(p, dice, QRectF(w - 180, h * 0.4, 240, h * 0.6), 8, 40, 120, sideColours, 14, 30);
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 6));
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 44; ++x) {
            p.drawEllipse(QPointF(24 + x * 44 + (y % 2) * 22, h * 0.36 + y * 30), 2.2, 2.2);
        }
    }
    p.restore();

    // The title band with a gentle wave along its lower edge.
    const double edge = h * 0.325;
    QPainterPath band;
    band.moveTo(0, 0);
    band.lineTo(w, 0);
    band.lineTo(w, edge);
    for (int i = 0; i <= 96; ++i) {
        const double x = w - i * w / 96;
        band.lineTo(x, edge + std::sin(i / 96.0 * std::numbers::pi * 4) * 12);
    }
    band.closeSubpath();
    drawWithShadow(
        p, [&](QPainter& lp) { lp.fillPath(band, Qt::black); }, QPointF(0, 8), 22,
        QColor(5, 10, 40, 160));
    QLinearGradient sky(QPointF(0, 0), QPointF(0, edge));
    sky.setColorAt(0, QColor(92, 60, 196));
    sky.setColorAt(0.6, QColor(70, 96, 222));
    sky.setColorAt(1, QColor(60, 130, 230));
    p.fillPath(band, sky);
    p.save();
    p.setClipPath(band);
    const QPointF heart(w / 2, edge * 0.45);
    QConicalGradient rays(heart, 90);
    for (int i = 0; i <= 32; ++i) rays.setColorAt(i / 32.0, QColor(255, 255, 255, i % 2 ? 0 : 18));
    p.fillRect(img.rect(), rays);
    QRadialGradient glow(heart, w * 0.38);
    glow.setColorAt(0, QColor(255, 255, 255, 90));
    glow.setColorAt(1, QColor(255, 255, 255, 0));
    p.fillRect(img.rect(), glow);
    bokeh(p, dice, QRectF(0, 0, w, edge), 20, 20, 70,
          {QColor(255, 255, 255), QColor(255, 220, 120)}, 20, 45);
    p.restore();
    p.strokePath(band, QPen(QColor(160, 200, 255, 180), 5));

    // Floating letter tiles at the sides, clear of the screen edges.
    const std::array<QString, 6> tiles = {"A", "B", "C", "X", "Y", "Z"};
    const std::array<QPointF, 6> tileAt = {
        {{220, 110}, {330, 215}, {170, 260}, {1700, 110}, {1590, 220}, {1750, 262}}};
    const std::array<double, 6> tileTilt = {-14, 10, -6, 12, -10, 8};
    const std::array<QColor, 3> tileColours = {QColor(255, 214, 60), QColor(120, 220, 255),
                                               QColor(255, 150, 200)};
    drawWithShadow(
        p,
        [&](QPainter& lp) {
            for (int i = 0; i < 6; ++i) {
                letterTile(lp, tileAt[i], i % 3 == 1 ? 84 : 100, tiles[i], tileColours[i % 3],
                           tileTilt[i]);
            }
        },
        QPointF(6, 10), 14, QColor(10, 10, 60, 130));
    for (QPointF at : {QPointF(420, 70), QPointF(1480, 60), QPointF(470, 300), QPointF(1440, 300),
                       QPointF(1560, 165), QPointF(360, 165)}) {
        sparkle(p, at, 16, QColor(255, 255, 230, 230));
    }

    drawWithShadow(
        p,
        [&](QPainter& lp) {
            titleWord(lp, QStringLiteral("Wordmere"), QPointF(w / 2, 158), 178);
            ribbon(lp, QStringLiteral("Vocabulary Games"), QPointF(w / 2, 286), 72);
        },
        QPointF(0, 12), 18, QColor(10, 10, 50, 150));
    p.end();
    return img;
}

QImage renderBackdrop() {
    QImage img = screenImage();
    QPainter p(&img);
    prepare(p);
    const double w = kScreenWidth, h = kScreenHeight;
    Dice dice(2);
    QLinearGradient g(QPointF(0, 0), QPointF(w * 0.3, h));
    g.setColorAt(0, QColor(222, 240, 255));
    g.setColorAt(0.55, QColor(236, 246, 252));
    g.setColorAt(1, QColor(252, 246, 228));
    p.fillRect(img.rect(), g);
    QRadialGradient light(QPointF(w * 0.2, -h * 0.1), w * 0.7);
    light.setColorAt(0, QColor(255, 255, 255, 170));
    light.setColorAt(1, QColor(255, 255, 255, 0));
    p.fillRect(img.rect(), light);
    bokeh(p, dice, QRectF(-100, -100, w + 200, h + 200), 16, 140, 340,
          {QColor(130, 190, 255), QColor(255, 200, 140), QColor(170, 235, 170),
           QColor(220, 180, 250)},
          34, 60);
    bokeh(p, dice, QRectF(0, 0, w, h * 0.85), 14, 14, 40, {QColor(255, 255, 255)}, 90, 140, true);
    ghostLetters(p, dice, QRectF(0, 0, w, h * 0.86), 8, 4,
                 {QColor(70, 130, 220, 26), QColor(230, 120, 60, 24), QColor(60, 170, 90, 24),
                  QColor(160, 90, 220, 24)});
    // Soft waves along the bottom give the screen a floor.
    for (int k = 0; k < 3; ++k) {
        QPainterPath wave;
        const double base = h * (0.86 + k * 0.05);
        wave.moveTo(0, h);
        for (int i = 0; i <= 64; ++i) {
            const double x = i * w / 64;
            wave.lineTo(x, base + std::sin(i / 64.0 * std::numbers::pi * (3 + k) + k) * 18);
        }
        wave.lineTo(w, h);
        wave.closeSubpath();
        p.fillPath(wave, QColor(120, 180, 240, 28 + k * 10));
    }
    p.end();
    return img;
}

QImage renderScrambleBack() {
    QImage img = screenImage();
    QPainter p(&img);
    prepare(p);
    const double w = kScreenWidth, h = kScreenHeight;
    Dice dice(4);
    QLinearGradient g(QPointF(0, 0), QPointF(0, h));
    g.setColorAt(0, QColor(56, 40, 140));
    g.setColorAt(0.3, QColor(64, 88, 190));
    g.setColorAt(0.6, QColor(60, 96, 196));
    g.setColorAt(1, QColor(40, 44, 130));
    p.fillRect(img.rect(), g);
    QRadialGradient hush(QPointF(w / 2, h * 0.38), w * 0.55);
    hush.setColorAt(0, QColor(255, 255, 255, 40));
    hush.setColorAt(1, QColor(255, 255, 255, 0));
    p.fillRect(img.rect(), hush);
    bokeh(p, dice, QRectF(0, 0, w, h), 24, 40, 180, {QColor(140, 170, 255), QColor(200, 150, 255)},
          10, 22);

    // Scattered tiles frame the top and bottom strips; the middle stays clear for play.
    const QString letters = QStringLiteral("SCRAMBLEWORDPUZZLE");
    const std::array<QColor, 4> colours = {QColor(255, 214, 60), QColor(255, 160, 90),
                                           QColor(140, 220, 255), QColor(190, 240, 140)};
    QImage tiles = transparentLayer(img.size());
    {
        QPainter tp(&tiles);
        prepare(tp);
        for (int i = 0; i < 18; ++i) {
            const bool top = i % 2 == 0;
            const double x = 80 + (i / 2) * 212 + dice.range(-30, 30);
            const double y = top ? dice.range(50, 96) : dice.range(h - 96, h - 56);
            letterTile(tp, QPointF(x, y), dice.range(62, 84), letters.mid(i, 1),
                       colours[static_cast<size_t>(i % 4)], dice.range(-22, 22));
        }
    }
    // A soft pool of light across the middle, where the game lays out its letters.
    p.save();
    p.translate(w / 2, h * 0.38);
    p.scale(1, 0.34);
    QRadialGradient pool(QPointF(0, 0), w * 0.5);
    pool.setColorAt(0, QColor(255, 255, 255, 40));
    pool.setColorAt(1, QColor(255, 255, 255, 0));
    p.fillRect(QRectF(-w / 2, -w / 2, w, w), pool);
    p.restore();
    p.setOpacity(0.85);
    p.drawImage(QPointF(6, 9), softShadow(tiles, 10, QColor(10, 10, 50, 150)));
    p.drawImage(QPointF(0, 0), tiles);
    p.setOpacity(1);
    for (QPointF at : {QPointF(250, 170), QPointF(960, 140), QPointF(1700, 180), QPointF(560, 930),
                       QPointF(1380, 940)}) {
        sparkle(p, at, 12, QColor(255, 255, 230, 150));
    }
    // A darker vignette keeps the eye in the middle.
    QRadialGradient vignette(QPointF(w / 2, h / 2), w * 0.7);
    vignette.setColorAt(0.6, QColor(0, 0, 30, 0));
    vignette.setColorAt(1, QColor(0, 0, 30, 80));
    p.fillRect(img.rect(), vignette);
    p.end();
    return img;
}

}  // namespace wm::assetgen
