// The pictures drawn in memory: the drawing helpers' boundaries and the layout promises the
// screens rely on (title art in the top third, a calm grid area that button corners blend into,
// a light backdrop, a quiet middle on the Scramble table).
#include "asset_gen.h"
#include "core/game_names.h"
#include "paint_kit.h"

#include <QFontMetricsF>
#include <QtTest>

#include <cmath>

using namespace wm::assetgen;

namespace {

struct Spread {
    double mean;
    double deviation;
};

Spread luminance(const QImage& img, const QRect& r) {
    double sum = 0, squares = 0;
    int n = 0;
    for (int y = r.top(); y <= r.bottom(); ++y) {
        for (int x = r.left(); x <= r.right(); ++x) {
            const double l = qGray(img.pixel(x, y));
            sum += l;
            squares += l * l;
            ++n;
        }
    }
    const double mean = sum / n;
    return {mean, std::sqrt(std::max(0.0, squares / n - mean * mean))};
}

bool near(QRgb a, const QColor& b, int tolerance) {
    return std::abs(qRed(a) - b.red()) <= tolerance &&
           std::abs(qGreen(a) - b.green()) <= tolerance &&
           std::abs(qBlue(a) - b.blue()) <= tolerance;
}

}  // namespace

class ArtTest : public QObject {
    Q_OBJECT

private slots:
    void fittedFontShrinksToFitButNotBelowItsFloor() {
        const QString longName = QStringLiteral("Wheel of Money");
        const QFont fits = fittedFont(longName, 38, 290, 22);
        QVERIFY(QFontMetricsF(fits).horizontalAdvance(longName) <= 290);
        QVERIFY(fits.pixelSize() < 38);
        QCOMPARE(fittedFont(QStringLiteral("Quiz"), 38, 290, 22).pixelSize(), 38);
        QCOMPARE(fittedFont(longName, 38, 10, 22).pixelSize(), 22);
    }

    void centredTextIsCentredOnItsPoint() {
        const QPainterPath path =
            centredText(QStringLiteral("HIH"), boldFont(40), QPointF(100, 50));
        const QRectF box = path.boundingRect();
        QVERIFY(std::abs(box.center().x() - 100) < 2);
        QVERIFY(std::abs(box.center().y() - 50) < 2);  // capitals only: no descender
    }

    void softShadowSpreadsAndKeepsItsColour() {
        QImage layer = transparentLayer(QSize(41, 41));
        layer.fill(Qt::transparent);
        for (int y = 18; y <= 22; ++y) {
            for (int x = 18; x <= 22; ++x) layer.setPixel(x, y, qRgba(255, 255, 255, 255));
        }
        const QImage shadow = softShadow(layer, 8, QColor(0, 0, 40, 255));
        QVERIFY(qAlpha(shadow.pixel(20, 20)) < 255);
        QVERIFY(qAlpha(shadow.pixel(27, 20)) > 0);
        QCOMPARE(qAlpha(shadow.pixel(0, 0)), 0);
        QCOMPARE(qRed(shadow.pixel(20, 20)), 0);
    }

    void titleArtFillsTheTopThirdAndLeavesTheGridAreaCalm() {
        const QImage title = renderTitle();
        QCOMPARE(title.size(), QSize(1920, 1080));
        QVERIFY(luminance(title, QRect(0, 0, 1920, 356)).deviation > 30);
        // The largest grid preset spans about 230..1690 across, from 35% of the height down.
        QVERIFY(luminance(title, QRect(230, 380, 1460, 680)).deviation < 4);
    }

    void buttonCornersBlendIntoTheTitleBackdrop() {
        const QImage title = renderTitle();
        const QColor surround = title.pixelColor(960, 700);
        for (int i = 0; i < wm::kGameCount; ++i) {
            const QImage img = renderGameButton(i);
            for (QPoint c : {QPoint(0, 0), QPoint(359, 0), QPoint(0, 269), QPoint(359, 269)}) {
                QVERIFY2(near(img.pixel(c), surround, 6), wm::kGameNames[i].data());
            }
        }
        QVERIFY(near(renderMoreButton().pixel(0, 0), surround, 6));
        QVERIFY(near(renderBackButton().pixel(179, 134), surround, 6));
    }

    void outOfRangeButtonIsBlankNotACrash() {
        QCOMPARE(renderGameButton(-1).size(), QSize(360, 270));
        QCOMPARE(renderGameButton(wm::kGameCount).size(), QSize(360, 270));
    }

    void backdropIsLightAndCalm() {
        const Spread all = luminance(renderBackdrop(), QRect(0, 0, 1920, 1080));
        QVERIFY(all.mean > 200);
        QVERIFY(all.deviation < 20);
    }

    void scrambleTableKeepsItsMiddleQuiet() {
        const QImage img = renderScrambleBack();
        const Spread top = luminance(img, QRect(0, 0, 1920, 160));
        const Spread band = luminance(img, QRect(100, 220, 1720, 500));
        QVERIFY(band.deviation < 20);
        QVERIFY(band.deviation < top.deviation / 2);
    }
};

QTEST_MAIN(ArtTest)
#include "art_test.moc"
