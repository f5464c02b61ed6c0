// The playing field: a sprite scene that must leave the background exactly as it was, masked
// draws, clipped block copies, and the one scale to the screen with its dirty rectangles.
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <vector>

#include "platform/play_field.h"

using namespace wm;

namespace {

// A background with no two neighbouring pixels alike, so a misplaced restore shows.
QImage busyBackground(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y,
                           qRgb((x * 7 + y * 3) & 255, (x * 5 ^ y * 11) & 255, (x + y) & 255));
    return image;
}

// A round sprite: opaque disc in `colour`, transparent corners, a half-see-through rim.
QImage ball(int size, QColor colour) {
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const double r = size / 2.0;
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
            const double d = std::hypot(x + 0.5 - r, y + 0.5 - r);
            if (d < r)
                image.setPixelColor(
                    x, y, d < r - 2 ? colour : QColor(255, 255, 255, d < r - 1 ? 140 : 100));
        }
    return image;
}

struct Mover {
    FieldSprite sprite;
    QPoint at, step;
    QImage picture;
};

}  // namespace

class PlayFieldTest : public QObject {
    Q_OBJECT
private slots:
    void sixtySpritesLeaveTheBackgroundUntouched() {
        PlayField field({640, 480});
        const QImage back = busyBackground({640, 480});
        field.setBackground(back);
        std::vector<Mover> movers(60);
        for (int i = 0; i < 60; ++i) {
            Mover& m = movers[size_t(i)];
            // Some start half off the field, so the clipped edges are exercised too.
            m.at = QPoint((i * 53) % 680 - 20, (i * 37) % 520 - 20);
            m.step = QPoint(i % 7 - 3, i % 5 - 2);
            m.picture = i % 3 ? ball(24 + i % 3 * 8, QColor::fromHsv(i * 6, 255, 255))
                              : ball(32, Qt::red).convertToFormat(QImage::Format_RGB32);
            m.sprite.draw(field, m.at, m.picture);
        }
        QVERIFY(field.surface() != back);
        for (int tick = 0; tick < 40; ++tick) {
            // Erase newest first, so overlapping sprites unwind in the order they were laid.
            for (auto it = movers.rbegin(); it != movers.rend(); ++it) it->sprite.erase(field);
            for (Mover& m : movers) {
                m.at += m.step;
                if (m.at.x() < -20 || m.at.x() > 640) m.step.rx() = -m.step.x();
                if (m.at.y() < -20 || m.at.y() > 480) m.step.ry() = -m.step.y();
                m.sprite.draw(field, m.at, m.picture);
            }
            field.flush();
        }
        for (auto it = movers.rbegin(); it != movers.rend(); ++it) it->sprite.erase(field);
        QVERIFY(field.surface() == back);
    }

    void maskedDrawIsTheTwoPasses() {
        const QImage back = busyBackground({64, 48});
        const QImage sprite = ball(32, QColor(10, 200, 30));
        PlayField alpha({64, 48}), passes({64, 48});
        alpha.setBackground(back);
        passes.setBackground(back);
        alpha.drawTransparent({20, 10}, sprite);
        passes.drawMasked({20, 10}, PictureOf(sprite), MaskOf(sprite));
        QVERIFY(alpha.surface() == passes.surface());
        QImage opaque(8, 8, QImage::Format_RGB32);  // solid from its first row on
        opaque.fill(Qt::yellow);
        alpha.drawTransparent({0, 0}, opaque);
        QCOMPARE(alpha.surface().copy(0, 0, 8, 8), opaque);
        // Where the sprite is mostly see-through the field shows through, untouched.
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x)
                QCOMPARE(alpha.surface().pixel(20 + x, 10 + y),
                         qAlpha(sprite.pixel(x, y)) < 128 ? back.pixel(20 + x, 10 + y)
                                                          : sprite.pixel(x, y) | 0xFF000000u);
    }

    void blockCopiesClipAndOverlap() {
        const QImage back = busyBackground({40, 30});
        PlayField field({40, 30});
        field.setBackground(back);
        QImage block(10, 10, QImage::Format_RGB32);
        block.fill(Qt::blue);
        // Table: where the block goes, and the part of the field it must cover.
        const std::vector<std::pair<QPoint, QRect>> cases = {
            {{5, 5}, {5, 5, 10, 10}},
            {{-4, -3}, {0, 0, 6, 7}},
            {{35, 25}, {35, 25, 5, 5}},
            {{-20, 0}, {}},
            {{40, 0}, {}},
        };
        for (const auto& [at, covered] : cases) {
            field.setBackground(back);
            field.copy(at, block);
            QImage want = back;
            QPainter(&want).fillRect(covered, Qt::blue);
            QCOMPARE(field.surface(), want);
        }
        // A scroll one pixel left: overlapping rectangles still come out as the old pixels.
        field.setBackground(back);
        field.copyWithin({0, 0}, {1, 0, 39, 30});
        QVERIFY(field.surface().copy(0, 0, 39, 30) == back.copy(1, 0, 39, 30) &&
                field.surface().pixel(39, 5) == back.pixel(39, 5));
        // Part of a source picture; restoring the background over a rectangle.
        field.copy({0, 0}, back, {10, 10, 5, 5});
        QCOMPARE(field.surface().pixel(2, 3), back.pixel(12, 13));
        field.restoreBackground({0, 0, 40, 30});
        QVERIFY(field.surface() == back);
        // Save and restore round trip, partly off the field.
        const SavedBlock saved = field.save({30, 20, 20, 20});
        QCOMPARE(saved.pixels.size(), QSize(10, 10));
        field.fill({0, 0, 40, 30}, Qt::green);
        field.restore(saved);
        QVERIFY(field.surface().copy(30, 20, 10, 10) == back.copy(30, 20, 10, 10) &&
                field.save({50, 50, 5, 5}).isNull());
    }

    void screenMappingKeepsAspectForDrawsAndTheMouse() {
        // Bars left and right on a wide screen, above and below on a tall one.
        const std::pair<QSize, QRect> rows[] = {{{1920, 1080}, {240, 0, 1440, 1080}},
                                                {{640, 600}, {0, 60, 640, 480}},
                                                {{640, 480}, {0, 0, 640, 480}},
                                                {{1280, 800}, {107, 0, 1066, 800}}};
        for (const auto& [widget, target] : rows) {
            PlayField field({640, 480});
            field.resize(widget);
            QCOMPARE(std::tuple(field.targetRect(), field.toLogical(target.topLeft()),
                                field.toLogical(target.bottomRight())),
                     std::tuple(target, QPoint(0, 0), QPoint(639, 479)));
            QVERIFY(field.toLogical(target.topLeft() - QPoint(1, 1)).x() < 0);
            // A logical rectangle's widget area covers every screen pixel that maps back into it,
            // and no more than the pixels it touches.
            for (const QRect logical :
                 {QRect(0, 0, 1, 1), QRect(100, 200, 32, 32), QRect(639, 479, 1, 1)}) {
                const QRect w = field.toWidget(logical);
                QVERIFY(logical.contains(field.toLogical(w.center())) &&
                        !logical.contains(field.toLogical(w.topLeft() - QPoint(1, 1))) &&
                        !logical.contains(field.toLogical(w.bottomRight() + QPoint(1, 1))));
                QVERIFY(w.width() <= int(std::ceil(logical.width() * target.width() / 640.0)) + 1);
            }
        }
        // The mouse comes back in field pixels.
        PlayField field({640, 480});
        field.resize(1920, 1080);
        QSignalSpy pressed(&field, &PlayField::mousePressed);
        QSignalSpy moved(&field, &PlayField::mouseMoved);
        QTest::mousePress(&field, Qt::LeftButton, {}, QPoint(240 + 1440 / 2, 1080 / 4));
        QCOMPARE(pressed.count(), 1);
        QCOMPARE(std::tuple(pressed[0][0].toPoint(), pressed[0][1].value<Qt::MouseButton>()),
                 std::tuple(QPoint(320, 120), Qt::LeftButton));
        QTest::mouseMove(&field, QPoint(1679, 1079));
        QTRY_COMPARE(moved.count(), 1);
        QCOMPARE(moved.at(0).at(0).toPoint(), QPoint(639, 479));
    }
};

QTEST_MAIN(PlayFieldTest)
#include "play_field_test.moc"
