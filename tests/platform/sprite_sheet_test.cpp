// Sprite sheets from a PNG grid and from SVG element ids; bad files give empty sheets.
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "platform/sprite_sheet.h"

using namespace wm;

namespace {

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

// Two frames of a ball (the second inside a moved group), a lone picture, and a gap after 2.
const char* kDrawing =
    "<svg xmlns='http://www.w3.org/2000/svg' width='200' height='100' viewBox='0 0 200 100'>\n"
    "  <rect id='ball_0' x='10' y='10' width='20' height='10' fill='#ff0000'/>\n"
    "  <g transform='translate(100,50)'>\n"
    "    <rect id='ball_1' x='0' y='0' width='20' height='10' fill='#0000ff'/>\n"
    "  </g>\n"
    "  <rect id='star_0' x='50' y='50' width='8' height='8' fill='#00ff00'/>\n"
    "  <rect id='star_2' x='70' y='50' width='8' height='8' fill='#00ff00'/>\n"
    "  <rect id='title' x='0' y='0' width='5' height='5' fill='#000000'/>\n"
    "</svg>\n";

}  // namespace

class SpriteSheetTest : public QObject {
    Q_OBJECT
private slots:
    void gridCutsLeftToRightThenDown() {
        QTemporaryDir dir;
        QImage strip(40, 16, QImage::Format_ARGB32);
        for (int i = 0; i < 8; ++i) {
            const QRect cell((i % 4) * 10, (i / 4) * 8, 10, 8);
            for (int y = cell.top(); y <= cell.bottom(); ++y) {
                for (int x = cell.left(); x <= cell.right(); ++x)
                    strip.setPixel(x, y, qRgb(i * 30, 0, 0));
            }
        }
        const QString path = dir.filePath("walk.png");
        QVERIFY(strip.save(path));

        const SpriteSheet sheet = SpriteSheet::fromGrid(path, "walk", {10, 8});
        QCOMPARE(sheet.frameCount("walk"), 8);
        QCOMPARE(sheet.frame("walk", 5).size(), QSize(10, 8));
        QCOMPARE(qRed(sheet.frame("walk", 5).pixel(3, 3)), 150);
        QCOMPARE(qRed(sheet.frame("walk_6").pixel(0, 0)), 180);
        QVERIFY(sheet.frame("walk", 8).isNull());
        QVERIFY(sheet.frame("walk", -1).isNull());
        QVERIFY(sheet.frame("run", 0).isNull());
        QVERIFY(sheet.error().isEmpty());
        QCOMPARE(SpriteSheet::fromGrid(path, "walk", {10, 8}, 3).frameCount("walk"), 3);
        // Cells that do not fill the picture exactly: the ragged edge is left out.
        QCOMPARE(SpriteSheet::fromGrid(path, "walk", {15, 8}).frameCount("walk"), 4);

        // Bad input: a clear message naming the file, never a crash.
        for (const QSize size : {QSize(0, 8), QSize(50, 8)}) {
            const SpriteSheet bad = SpriteSheet::fromGrid(path, "walk", size);
            QVERIFY(bad.isEmpty());
            QVERIFY(bad.error().contains(path));
        }
        const QString missing = dir.filePath("nothing.png");
        const SpriteSheet none = SpriteSheet::fromGrid(missing, "walk", {10, 8});
        QVERIFY(none.isEmpty());
        QVERIFY(none.error().contains(missing));
        QVERIFY(none.frame("walk_0").isNull());
    }

    void svgFramesByElementId() {
        QTemporaryDir dir;
        const QString path = dir.filePath("sprites.svg");
        writeFile(path, kDrawing);
        const SpriteSheet sheet = SpriteSheet::fromSvg(path, 2.0);
        QVERIFY(sheet.error().isEmpty());
        QCOMPARE(sheet.names(), (QStringList{"ball", "star"}));
        QCOMPARE(sheet.frameCount("ball"), 2);
        QCOMPARE(sheet.frameCount("star"), 1);  // star_2 without star_1 is not a frame
        const QImage first = sheet.frame("ball", 0);
        QCOMPARE(first.size(), QSize(40, 20));
        QCOMPARE(first.pixel(20, 10), qRgb(255, 0, 0));
        // The group's move does not matter: the frame is the element alone.
        const QImage second = sheet.frame("ball_1");
        QCOMPARE(second.size(), QSize(40, 20));
        QCOMPARE(second.pixel(20, 10), qRgb(0, 0, 255));

        const SpriteSheet only = SpriteSheet::fromSvg(path, 1.0, {"star"});
        QCOMPARE(only.names(), QStringList{"star"});
        QCOMPARE(only.frame("star", 0).size(), QSize(8, 8));
    }

};

QTEST_MAIN(SpriteSheetTest)
#include "sprite_sheet_test.moc"
