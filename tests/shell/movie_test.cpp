// The animation player on the opening film: names, one pass and loops, continuations.
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

}  // namespace

class PlatformMovieTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        Ticker::get().setManual(true);
        RegisterBuiltInScenes();
        RegisterSplashScene();
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

};

QTEST_MAIN(PlatformMovieTest)
#include "movie_test.moc"
