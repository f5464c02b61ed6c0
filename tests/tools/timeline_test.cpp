// The timeline scene: values at and between keyframes, frames switching at their keys, sprites
// drawn from SVG element ids (an unknown id draws nothing), mistakes reported with file and line,
// and MakeScene finding timeline files by name.
#include "manifest.h"
#include "platform/movie.h"
#include "platform/timeline_scene.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

using namespace wm;

namespace {

// Two 40x40 frames, red then blue, and a green square.
const char kDrawing[] =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.2\" baseProfile=\"tiny\" width=\"200\" "
    "height=\"100\">\n"
    "  <rect id=\"lamp_0\" x=\"0\" y=\"0\" width=\"40\" height=\"40\" fill=\"#ff0000\"/>\n"
    "  <rect id=\"lamp_1\" x=\"50\" y=\"0\" width=\"40\" height=\"40\" fill=\"#0000ff\"/>\n"
    "  <rect id=\"box\" x=\"100\" y=\"0\" width=\"40\" height=\"40\" fill=\"#00ff00\"/>\n"
    "</svg>";

const char kTimeline[] =
    "# a lamp that slides, fades and changes colour\n"
    "timeline duration=4 size=200x100 background=#000000\n"
    "sprite lamp svg=parts.svg frames=2\n"
    "sprite ghost svg=parts.svg id=nothing_here\n"
    "key lamp t=0 x=50 y=50 opacity=0 frame=0\n"
    "key lamp t=1 x=150 opacity=1 ease=linear\n"
    "key lamp t=2 frame=1\n"
    "key lamp t=3 x=50 ease=in\n"
    "key ghost t=0 x=100 y=50\n"
    "";

}  // namespace

class TimelineTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir dir_;

    QString write(const QString& name, const QByteArray& bytes) {
        QFile f(dir_.filePath(name));
        f.open(QIODevice::WriteOnly);
        f.write(bytes);
        return f.fileName();
    }

    std::unique_ptr<TimelineScene> load(const QByteArray& text) {
        QString error;
        auto scene = TimelineScene::load(write("t.timeline", text), &error);
        if (!scene) qWarning("%s", qPrintable(error));
        return scene;
    }

    static QImage draw(MovieScene& scene, double t, QSize size = {200, 100}) {
        QImage img(size, QImage::Format_ARGB32);
        img.fill(Qt::white);
        QPainter p(&img);
        p.setRenderHint(QPainter::Antialiasing);
        scene.paint(p, QRectF(img.rect()), t);
        return img;
    }

private slots:
    void initTestCase() {
        QVERIFY(dir_.isValid());
        write("parts.svg", kDrawing);
    }

    void valuesFramesAndEveryShippedFilm() {
        auto scene = load(kTimeline);
        QVERIFY(scene && scene->duration() == 4.0 && scene->naturalSize() == QSize(200, 100));
        // The time, x, the opacity and the frame.
        for (const auto& [t, x, opacity, frame] :
             std::vector<std::tuple<double, double, double, int>>{
                 {0, 50, 0, 0},
                 {0.5, 100, 0.5, 0},
                 {1, 150, 1, 0},
                 {1.99, 150 - 100 * std::pow(0.495, 3), 1, 0},  // eased in
                 {2, 137.5, 1, 1},                              // the frame switches on its key
                 {2.5, 150 - 100 * std::pow(0.75, 3), 1, 1},
                 {3, 50, 1, 1},
                 {3.9, 50, 1, 1}}) {
            const SpriteState s = scene->stateAt("lamp", t);
            QVERIFY2(qAbs(s.x - x) < 1e-9, qPrintable(QString("x at %1: %2").arg(t).arg(s.x)));
            QVERIFY2(qAbs(s.opacity - opacity) < 1e-9, qPrintable(QString::number(t)));
            // y is set once and held throughout.
            QCOMPARE(std::tuple(s.y, s.frame, s.scale), std::tuple(50.0, frame, 1.0));
        }
        // Drawn: the frame of the moment, and nothing for an unknown id.
        // Hidden at the start: only the background. The ghost's id is not in the drawing.
        const std::tuple<double, int, QColor> pixels[] = {
            {0, 50, Qt::black},   {0, 100, Qt::black}, {1.5, 150, Qt::red},
            {1.5, 60, Qt::black}, {3.5, 50, Qt::blue}, {3.5, 150, Qt::black}};
        for (const auto& [t, x, colour] : pixels)
            QCOMPARE(draw(*scene, t).pixelColor(x, 50), colour);
        // Every film we ship loads, finds every drawing it names and paints at any moment.
        std::vector<wm::assetgen::ManifestEntry> entries;
        QString error;
        QVERIFY2(wm::assetgen::readManifest(wm::assetgen::sourceAssetsDir() + "/manifest.txt",
                                            &entries, &error),
                 qPrintable(error));
        int films = 0;
        for (const auto& e : entries) {
            if (e.kind != "movie") continue;
            ++films;
            auto scene =
                TimelineScene::load(wm::assetgen::sourceAssetsDir() + "/" + e.source, &error);
            QVERIFY2(scene, qPrintable(error));
            QVERIFY2(scene->missingDrawings().isEmpty(),
                     qPrintable(scene->missingDrawings().join(", ")));
            const QString shots = qEnvironmentVariable("WM_SHOTS");
            for (double u : {0.0, 0.3, 0.6, 0.9}) {
                const QImage img = draw(*scene, u * scene->duration(), scene->naturalSize());
                if (!shots.isEmpty())
                    img.save(shots + "/" + QFileInfo(e.name).baseName() +
                             QString("-%1.png").arg(u));
            }
        }
        QVERIFY(films >= 1);
        // MakeScene finds timeline files by name.
        RegisterBuiltInScenes();
        write("lamp.timeline", kTimeline);
        SetTimelineFolder(dir_.path());
        auto found = MakeScene("\\movies\\LAMP.SWF");
        QVERIFY(found && found->duration() == 4.0 && !MakeScene("nothing"));
        // A broken file is no film, not a crash.
        write("broken.timeline", "timeline\n");
        QVERIFY(!MakeScene("broken"));
        Movie movie;
        QVERIFY(movie.load("lamp"));
        SetTimelineFolder({});
    }
};

QTEST_MAIN(TimelineTest)
#include "timeline_test.moc"
