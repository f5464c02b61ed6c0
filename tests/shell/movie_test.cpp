// The animation player on the opening film: names, one pass and loops, continuations, and the
// opening film's look.
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include "platform/movie.h"
#include "platform/ticker.h"
#include "shell/screens.h"

using namespace wm;

namespace {

class FlashScene : public MovieScene {
public:
    double duration() const override { return 0.1; }
    void paint(QPainter& p, const QRectF& r, double) override { p.fillRect(r, Qt::red); }
};

// Share of pixels that are clearly not black.
double litShare(const QImage& image) {
    qsizetype lit = 0;
    for (int y = 0; y < image.height(); y += 2) {
        for (int x = 0; x < image.width(); x += 2) {
            const QRgb c = image.pixel(x, y);
            if (qRed(c) + qGreen(c) + qBlue(c) > 150) ++lit;
        }
    }
    return double(lit) / (double(image.width() / 2) * (image.height() / 2));
}

// Share of strongly coloured pixels in a horizontal band (the letter tiles are bright).
double colourfulShare(const QImage& image, double top, double bottom) {
    qsizetype hits = 0, total = 0;
    for (int y = int(top * image.height()); y < int(bottom * image.height()); y += 2) {
        for (int x = 0; x < image.width(); x += 2, ++total) {
            const QColor c = image.pixelColor(x, y);
            if (c.hsvSaturation() > 120 && c.value() > 150) ++hits;
        }
    }
    return total ? double(hits) / total : 0;
}

}  // namespace

class PlatformMovieTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        Ticker::get().setManual(true);
        RegisterBuiltInScenes();
        RegisterSplashScene();
    }

    void namesAreFoundLoosely() {
        Movie movie;
        QVERIFY(!movie.load(QStringLiteral("nosuchfilm")));
        QVERIFY(!MakeScene(QStringLiteral("")));
        QVERIFY(movie.load(QStringLiteral("WMSPLASH.swf")));
        QVERIFY(movie.load(QStringLiteral("\\movies\\wmsplash.swf")));
        QVERIFY(movie.load(QStringLiteral("wmsplash")));
        RegisterBuiltInScenes();  // twice is harmless
        auto scene = MakeScene(QStringLiteral("WmSplash"));
        QVERIFY(scene);
        QVERIFY(scene->duration() > 4 && scene->duration() < 8);

        // A scene registered by the program replaces a built-in of the same name.
        RegisterScene(QStringLiteral("flash.swf"), [] { return std::make_unique<FlashScene>(); });
        QVERIFY(MakeScene(QStringLiteral("FLASH")));
    }

    void onePassEndsOnce() {
        Movie movie;
        QVERIFY(movie.load(QStringLiteral("wmsplash")));
        QSignalSpy finished(&movie, &Movie::finished);
        int calls = 0;
        movie.play(false, [&] { ++calls; });
        QVERIFY(movie.isPlaying());
        movie.advance(3.0);
        QVERIFY(movie.isPlaying());
        QCOMPARE(calls, 0);
        movie.advance(4.0);
        QVERIFY(!movie.isPlaying());
        QCOMPARE(calls, 1);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(movie.position(), MakeScene("wmsplash")->duration());  // rests on the last frame
        movie.advance(10.0);
        movie.stop();
        QCOMPARE(calls, 1);
        QCOMPARE(finished.count(), 1);
    }

    void stopEndsWithContinuation() {
        Movie movie;
        QVERIFY(movie.load(QStringLiteral("wmsplash")));
        QSignalSpy finished(&movie, &Movie::finished);
        int calls = 0;
        movie.play(false, [&] { ++calls; });
        movie.advance(1.0);
        movie.stop();
        QVERIFY(!movie.isPlaying());
        QCOMPARE(calls, 1);
        QCOMPARE(finished.count(), 1);
        QVERIFY(movie.position() >= 1.0 && movie.position() < 2.0);
        movie.stop();
        QCOMPARE(calls, 1);
    }

    void loopKeepsPlayingUntilStopped() {
        Movie movie;
        QVERIFY(movie.load(QStringLiteral("wmsplash")));
        int calls = 0;
        movie.play(true, [&] { ++calls; });
        for (int i = 0; i < 10; ++i) movie.advance(2.5);
        QVERIFY(movie.isPlaying());
        QCOMPARE(calls, 0);
        QVERIFY(movie.position() < MakeScene("wmsplash")->duration());
        movie.stop();
        QCOMPARE(calls, 1);
    }

    void clockDrivesThePass() {
        // The game clock moves the film: its continuation runs when exactly its length has gone.
        RegisterScene(QStringLiteral("flash"), [] { return std::make_unique<FlashScene>(); });
        Movie movie;
        QVERIFY(movie.load(QStringLiteral("flash")));
        QSignalSpy finished(&movie, &Movie::finished);
        bool done = false;
        movie.play(false, [&] { done = true; });
        Ticker::get().advance(50);
        QCOMPARE(movie.position(), 0.05);
        Ticker::get().advance(49);
        QVERIFY(!done);
        QVERIFY(movie.isPlaying());
        Ticker::get().advance(1);
        QVERIFY(done);
        QCOMPARE(finished.count(), 1);
        Ticker::get().advance(1000);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(movie.position(), 0.1);

        // Jumping by hand and then letting the clock run mix: 30 ms by hand, 70 by the clock.
        done = false;
        movie.play(false, [&] { done = true; });
        movie.advance(0.03);
        Ticker::get().advance(69);
        QVERIFY(!done);
        Ticker::get().advance(1);
        QVERIFY(done);

        // A loop never ends by itself, and wraps inside its length.
        int loops = 0;
        movie.play(true, [&] { ++loops; });
        Ticker::get().advance(1234);
        QVERIFY(movie.isPlaying());
        QCOMPARE(loops, 0);
        QVERIFY(movie.position() < 0.1);
        movie.stop();
        QCOMPARE(loops, 1);

        // With nothing loaded a waiting screen still goes on, on the next tick of the clock.
        Movie empty;
        QVERIFY(!empty.load(QStringLiteral("missing")));
        bool emptyDone = false;
        empty.play(true, [&] { emptyDone = true; });
        Ticker::get().advance(0);
        QVERIFY(emptyDone);
        QVERIFY(!empty.isPlaying());
    }

    void continuationMayDeleteThePlayer() {
        auto* movie = new Movie;
        QVERIFY(movie->load(QStringLiteral("wmsplash")));
        bool done = false;
        movie->play(false, [&] {
            done = true;
            delete movie;
        });
        movie->advance(100);
        QVERIFY(done);
    }

    void splashLooksLikeSomething() {
        Movie movie;
        movie.resize(1024, 640);  // wider than the stage: sky fills the sides
        QVERIFY(movie.load(QStringLiteral("wmsplash")));
        movie.play();
        double previous = -1;
        for (double t : {0.3, 1.0, 2.2, 3.0, 4.5, 5.9}) {
            movie.advance(t - movie.position());
            const QImage frame = movie.grab().toImage();
            frame.save(QStringLiteral("/tmp/splash-%1.png").arg(t, 0, 'f', 1));
            const double lit = litShare(frame);
            qInfo() << "t" << t << "lit share" << lit;
            QVERIFY(lit != previous);  // it moves
            previous = lit;
            if (t == 3.0) {
                frame.save(QStringLiteral("/tmp/splash-mid.png"));
                QVERIFY(lit > 0.01);
            }
        }
        // At the end the whole word stands in bright tiles across the middle.
        const QImage last = movie.grab().toImage();
        QVERIFY(colourfulShare(last, 0.45, 0.65) > 0.1);
        // Before any tile comes down there is nothing colourful there.
        movie.stop();
        auto scene = MakeScene("wmsplash");
        QImage first(1024, 640, QImage::Format_ARGB32_Premultiplied);
        QPainter p(&first);
        scene->paint(p, QRectF(first.rect()), 0.0);
        p.end();
        QVERIFY(colourfulShare(first, 0.45, 0.65) < 0.01);
    }
};

QTEST_MAIN(PlatformMovieTest)
#include "movie_test.moc"
