// Mini Golf on its screen: from the title, a putt into the right hole, the clock to the table;
// and a putt into a wrong hole, the label's hint, the score caption that waits for the right
// hole, and the ending that never reaches the table.
#include <cmath>

#include "act_kit.h"
#include "games/action/mini_golf/mini_golf_screen.h"
#include "look.h"

using namespace wm::mini_golf;

class MiniGolfScreenTest : public QObject {
    Q_OBJECT
private slots:
    void rightHoleThenTheClockToTheTable();
    void wrongHoleEndsBelowZeroWithoutTheTable();
};

namespace {
const Pairs kFruit = {{"apple", "a red fruit"},
                      {"pear", "a green fruit"}, {"plum", "a purple fruit"},
                      {"lemon", "a yellow fruit"}, {"lime", "a sour fruit"}};
const char* kTimeIsUp = "Time is up!";

QPoint OnField(MiniGolf* g, double x, double y) {
    return g->field()->toWidget(QRect(int(x / 15), int(y / 15), 1, 1)).center();
}

// Presses on the ball and lets go behind it, so that it rolls to a stop on `hole`.
void Putt(MiniGolf* g, int hole) {
    Course& c = g->course();
    const double dx = c.holeX(hole) - c.ballX(), dy = c.holeY(hole) - c.ballY();
    const double dist = std::hypot(dx, dy);
    const double v0 = dist / 49;  // a ball slowed by 2% a tick rolls about 49 times its speed
    QTest::mousePress(g->field(), Qt::LeftButton, {}, OnField(g, c.ballX(), c.ballY()));
    QVERIFY(g->lineShown());
    QTest::mouseRelease(g->field(), Qt::LeftButton, {},
                        OnField(g, c.ballX() - dx / dist * v0 * 5, c.ballY() - dy / dist * v0 * 5));
    QVERIFY(!g->lineShown() && c.moving());
}

void RollToRest(MiniGolf* g) {
    for (int t = 0; t < 400 && g->course().moving(); ++t) Pump(16);
}
}  // namespace

void MiniGolfScreenTest::rightHoleThenTheClockToTheTable() {
    Road fx(11, {"GLF"});
    auto* g = FromTitle<MiniGolf>(fx, "Mini Golf", kFruit, 1);
    QVERIFY2(g, qPrintable(fx.dialogs.texts().join(" | ")));
    SharedState& s = Shared();
    QCOMPARE(g->windowTitle(), QString("Wordmere Mini-Golf Course"));
    const int right = g->course().rightHole();
    // The clock shows 30 until the first second.
    QCOMPARE(QStringList({g->defLabel()->text(), g->scoreLabel()->text(), g->timeLabel()->text(),
                          g->holeLabel(right - 1)->text()}),
             QStringList({"Hit the word that means: " + Meaning(), "Score: 00000", "Time: 30",
                          Word()}));
    QVERIFY(g->holeLabel(1)->isVisible() && !g->holeLabel(2)->isVisible());  // two holes at 1
    WM_CHECK_LOOK("Mini_Golf_tee", g);  // the words on white plates, the ball on its tee

    // A drag away from the ball shows the line.
    QTest::mousePress(g->field(), Qt::LeftButton, {},
                      OnField(g, g->course().ballX(), g->course().ballY()));
    QTest::mouseMove(g->field(), OnField(g, g->course().ballX() + 600, g->course().ballY() + 900));
    QVERIFY(g->lineShown());
    QTest::mouseRelease(g->field(), Qt::LeftButton, {},
                        OnField(g, g->course().ballX(), g->course().ballY()));
    RollToRest(g);  // a swing of no length: a stroke all the same
    QCOMPARE(g->course().strokes(), 1);
    fx.sound.played.clear();

    Putt(g, right);
    // No second swing while the ball rolls.
    QTest::mousePress(g->field(), Qt::LeftButton, {},
                      OnField(g, g->course().ballX(), g->course().ballY()));
    QVERIFY(!g->lineShown());
    QTest::mouseRelease(g->field(), Qt::LeftButton, {},
                        OnField(g, g->course().ballX(), g->course().ballY()));
    RollToRest(g);
    QCOMPARE(fx.sound.played.count("golf.wav"), 1);
    QCOMPARE(fx.sound.played.count("applause.wav"), 1);
    // 200 for two strokes at level 1, and a bonus of 100.
    QCOMPARE(g->course().strokes(), 0);  // the next word
    QCOMPARE(g->scoreLabel()->text() + " " + g->timeLabel()->text(),
             QString("Score: 300 Time: %1").arg(g->course().seconds()));

    const double score = s.Score;
    for (int t = 0; t < 100 && Showing<MiniGolf>(); ++t) Pump(1000);
    QVERIFY(fx.dialogs.saw(kTimeIsUp));
    WM_CHECK_WON(fx, "Mini Golf", QString("GLF %1").arg(score));
}

void MiniGolfScreenTest::wrongHoleEndsBelowZeroWithoutTheTable() {
    Road fx(5);
    auto* g = FromTitle<MiniGolf>(fx, "Mini Golf", kFruit, 1);
    QVERIFY(g);
    SharedState& s = Shared();
    const int wrong = g->course().rightHole() == 1 ? 2 : 1;
    Putt(g, wrong);
    RollToRest(g);
    QCOMPARE(s.Score, -1000.0);
    // The caption changes only at the right hole: the cost shows with the next one.
    QCOMPARE(g->scoreLabel()->text() + " " + g->oopsLabel()->text(),
             "Score: 00000 Oops! You should have put the ball in this hole! (Click here to "
             "continue)");
    QVERIFY(!g->ballShown());
    QCOMPARE(fx.sound.played.count("ooh.wav"), 1);
    // Nothing to hit until the label is clicked; the clock goes on.
    QTest::mousePress(g->field(), Qt::LeftButton, {}, OnField(g, kFieldW / 2.0, 0.8 * kFieldH));
    QVERIFY(!g->lineShown());
    Pump(1000);
    QCOMPARE(g->timeLabel()->text(), QString("Time: %1").arg(g->course().seconds()));
    QTest::mouseClick(g->oopsLabel(), Qt::LeftButton);
    QVERIFY(!g->oopsLabel()->isVisible() && g->ballShown());
    // One stroke into the right hole: 500 at level 1 and a bonus of 100, after the 1000 lost.
    Putt(g, g->course().rightHole());
    RollToRest(g);
    QCOMPARE(g->scoreLabel()->text(), QString("Score: -400"));

    for (int t = 0; t < 100 && Showing<MiniGolf>(); ++t) Pump(1000);
    QVERIFY(fx.dialogs.saw(kTimeIsUp));
    QCOMPARE(LastBox(fx),
             "Not so great... | Oops! You scored -400! Try to be more careful next "
             "time! Would you like to try again?");
    QVERIFY(fx.win.tables.isEmpty() && !fx.read("scores/Mini Golf.dat").contains("400"));
    QVERIFY(Showing<Title>());
}

QTEST_MAIN(MiniGolfScreenTest)
#include "mini_golf_screen_test.moc"
