// Basketball on its screen: from the title, ten good shots to the table; and a wild shot, a shot
// at a scrambled word and eight more wild ones to the no-score ending, with the sound off.
#include "games/action/basketball/basketball_screen.h"
#include "act_kit.h"
#include "look.h"

namespace {
const char* kBegin = "Drag ball over net to begin...";
const char* kWild = "Wow! That was really wild! You're supposed to shoot at the basket...";
}  // namespace

class BasketballScreenTest : public QObject {
    Q_OBJECT
private slots:
    void tenGoodShotsToTheTable();
    void wildAndScrambledShotsEndWithoutAScore();
};

namespace {
const Pairs kSport = {{"dribble", "bounce the ball"},
                      {"hoop", "the ring"}, {"court", "where you play"},
                      {"pass", "throw to a friend"}, {"guard", "a player"},
                      {"foul", "against the rules"}, {"score", "points"}, {"net", "under the ring"},
                      {"jump", "leave the ground"}, {"team", "players together"}};

void Drop(BasketBallForm* g, QPoint at) {
    const QPoint from = g->ball()->geometry().center();
    QTest::mousePress(g, Qt::LeftButton, {}, from);
    QTest::mouseMove(g, (from + at) / 2);
    QTest::mouseMove(g, at);
    QTest::mouseRelease(g, Qt::LeftButton, {}, at);
}

void WaitForTheAnimation(BasketBallForm* g) {
    for (int t = 0; t < 400 && g->shooting(); ++t) Pump(50);
}
}  // namespace

void BasketballScreenTest::tenGoodShotsToTheTable() {
    Road fx(21, {"DNK"});
    auto* g = FromTitle<BasketBallForm>(fx, "Basketball", kSport, 10);
    QVERIFY2(g, qPrintable(fx.dialogs.texts().join(" | ")));
    SharedState& s = Shared();
    QVERIFY(fx.dialogs.saw("The crowd is ready! Click OK to start your game!"));
    QCOMPARE(g->shootLabel()->text() + " | " + g->shotsLeftLabel()->text() + " | " +
                 g->definition()->text(),
             QString(kBegin) + " | Shots Left: 10 | \"" + Meaning() + "\"");
    QCOMPARE(IntervalOf(g->frame(), "Timer1"), 500);  // the pace at level 10
    WM_CHECK_LOOK("Basketball_still", g);  // the court in its 4:3 box, the net hanging still

    QPointer<BasketBallForm> alive(g);
    QStringList animations;
    double score = 0;
    for (int shot = 1; shot <= 10; ++shot) {
        for (int t = 0; t < 2000 && g->shootLabel()->text() != Word(); ++t) Pump(16);
        QCOMPARE(g->shootLabel()->text(), Word());
        const int shown = g->game().wordsShown();
        Drop(g, g->netPoint());
        animations << g->playing();
        if (g->playing() == "bball-good2" && animations.count("bball-good2") == 1) {
            Pump(1300);  // the bank shot drops through the net
            WM_CHECK_LOOK("Basketball_bank", g);
        }
        const double points = s.Score - score;
        score = s.Score;
        if (shown >= 3)
            QCOMPARE(points, 10.0 * s.TheWord.size());
        else
            QVERIFY(points >= 0 && points < (shown == 1 ? 10000 : 5000));
        QCOMPARE(g->scoreLabel()->text(), QString("Score: %1").arg(s.Score));
        if (shot < 10) {
            WaitForTheAnimation(g);
            QCOMPARE(g->shotsLeftLabel()->text() + " | " + g->shootLabel()->text() + " | " +
                         g->playing(),
                     QString("Shots Left: %1 | %2 | bball-still").arg(10 - shot).arg(kBegin));
        } else {
            for (int t = 0; t < 400 && alive; ++t) Pump(50);
        }
    }
    for (const QString& a : animations) QVERIFY2(a.startsWith("bball-good"), qPrintable(a));
    QVERIFY(animations.contains("bball-good2"));  // so the bank shot's look was checked
    QCOMPARE(fx.sound.played.count("cheer.wav"), 10);
    QVERIFY(!alive);
    WM_CHECK_WON(fx, "Basketball", QString("DNK %1").arg(score));
}

void BasketballScreenTest::wildAndScrambledShotsEndWithoutAScore() {
    Road fx(8);
    auto* g = OpenGame<BasketBallForm>(fx, "Basketball", kSport, 2, true, false);
    QVERIFY(g);
    QCOMPARE(IntervalOf(g->frame(), "Timer1"), 1300);
    const QPoint court(g->width() / 2, int(g->height() * 0.9));

    // A click on the court without the ball is nothing; dropped just beside the basket's 4:3
    // box (0.42 of the height high), the ball is wild, and play goes straight on to the next shot.
    Pump(200);
    QTest::mouseClick(g, Qt::LeftButton, {}, court);
    QVERIFY(!fx.dialogs.saw(kWild));
    Drop(g, g->netPoint() + QPoint(int(g->height() * 0.42) * 4 / 3 / 2 + 6, 0));
    WM_VERIFY(Box(fx, kWild, "Basketball"));
    QCOMPARE(g->shotsLeftLabel()->text(), QString("Shots Left: 9"));
    QVERIFY(!g->shooting());

    // Dropped on the net while the letters still scramble: a miss, and the label flashes.
    for (int t = 0; t < 200 && !Runs(g->frame(), "Timer2"); ++t) Pump(16);
    Pump(16);
    QVERIFY(Runs(g->frame(), "Timer2"));
    const QString scrambled = g->shootLabel()->text();
    Drop(g, g->netPoint());
    QVERIFY(g->playing().startsWith("bball-bad"));
    QCOMPARE(g->shootLabel()->text().size(), scrambled.size());  // the word that was on show
    QStringList styles;
    for (int t = 0; t < 3; ++t) {
        Pump(100);
        styles << g->shootLabel()->styleSheet();
    }
    styles.removeDuplicates();
    QCOMPARE(styles.size(), 2);
    QVERIFY(styles.join("").contains("#ff8080") && styles.join("").contains("#80ff80"));
    // No second ball while the animation plays.
    Drop(g, court);
    QCOMPARE(fx.dialogs.texts().count(kWild), 1);
    WaitForTheAnimation(g);
    QCOMPARE(g->shotsLeftLabel()->text(), QString("Shots Left: 8"));

    QPointer<BasketBallForm> alive(g);
    for (int shot = 3; shot <= 10 && alive; ++shot) Drop(g, court);
    Pump();
    QCOMPARE(fx.dialogs.texts().count(kWild), 9);
    QCOMPARE(fx.dialogs.last(),
             "Hmmm... maybe a bit more practice is needed before you're ready for this game. Go "
             "and learn your vocab words, then come back and try again later...");
    QCOMPARE(Shared().Score, 0.0);
    QVERIFY2(!fx.sound.played.contains("ooh.wav"), qPrintable(fx.sound.played.join(" ")));
    QVERIFY(Showing<Title>());
}

QTEST_MAIN(BasketballScreenTest)
#include "basketball_screen_test.moc"
