// Pachinko on its screen: five questions, the board, locking the values, a disk released
// outside the zone and picked up again, drops to the table; and five wrong answers.

#include "games/show/pachinko/pachinko_screen.h"
#include "game_open.h"
#include "look.h"

namespace {
const Pairs kPlanets{{"mercury", "the planet nearest the sun"},
                     {"venus", "the hottest planet"},
                     {"earth", "the planet we live on"},
                     {"mars", "the red planet"},
                     {"jupiter", "the largest planet"}};

void answerAll(Plachinko* game, const std::vector<bool>& right, QStringList* asked = nullptr) {
    for (bool r : right) {
        QVERIFY(game->questionFrame()->isVisible());
        if (asked) asked->append(QString::fromStdString(Shared().TheWord));
        const int pick = r ? game->question().right : (game->question().right + 1) % 5;
        game->answers()[pick]->click();
        Pump(700);
    }
}
}  // namespace

class PachinkoScreenTest : public QObject {
    Q_OBJECT
private slots:
    void earnDropAndScore() {
        Road fx(0, {"SUN"});
        WM_OPEN(game, fx, StartFromTitle<Plachinko>(fx, "Pachinko", kPlanets, 1, 300));
        QVERIFY(fx.dialogs.texts().first().startsWith("Welcome to PACHINKO!"));
        QVERIFY(!game->lockLabel()->isVisible());  // the lock hint waits for the board
        QStringList asked;
        answerAll(game, {true, false, true, true, false}, &asked);
        asked.removeDuplicates();
        QCOMPARE(asked.size(), 5);  // five words: each asked once
        QCOMPARE(fx.sound.played.count("ding.wav"), 3);
        QCOMPARE(fx.sound.played.count("buzz.wav"), 2);
        QVERIFY(fx.dialogs.saw("Let's play pachinko! You have earned 3 disks!"));
        QVERIFY(
            fx.dialogs.saw("First, let's see what point values you can win. Click OK to set the "
                           "point values at the bottom of the board..."));
        QVERIFY(!game->questionFrame()->isVisible() && game->lockLabel()->isVisible());
        Pump(100);
        const auto spinning = game->slotValues();
        QVERIFY(spinning[0] > spinning[4]);
        // Before the values are locked no disk moves.
        QTest::mousePress(game, Qt::LeftButton, {}, game->diskRest(0));
        QVERIFY(!fx.sound.played.contains("webshot.wav"));
        QTest::mouseRelease(game, Qt::LeftButton, {}, game->diskRest(0));
        QTest::keyClick(game, Qt::Key_Space);
        QVERIFY(game->valuesLocked());
        QCOMPARE(fx.sound.played.count("cymbals.wav"), 1);
        const auto locked = game->slotValues();
        QTest::keyClick(game, Qt::Key_Space);  // twice: the values stand
        Pump(100);
        QCOMPARE(game->slotValues(), locked);
        QCOMPARE(game->scoreText(), "Score: 00000000");

        // Released outside the zone the disk goes home and can be picked up again.
        QTest::mousePress(game, Qt::LeftButton, {}, game->diskRest(0));
        QTest::mouseMove(game, game->diskRest(0) + QPoint(40, 200));
        Pump(20);  // held by its middle, it stays under the pointer
        const QRect held =
            game->field()->toWidget(game->diskRect(0)).translated(game->field()->pos());
        QVERIFY((held.center() - game->diskRest(0) - QPoint(40, 200)).manhattanLength() <= 4);
        QTest::mouseRelease(game, Qt::LeftButton, {}, game->diskRest(0) + QPoint(40, 200));
        QCOMPARE(fx.sound.played.count("gbell.wav"), 1);
        QVERIFY(!game->falling());

        fx.dialogs.answerYes(false);
        double expected = 0;
        for (int d = 0; d < 3; ++d) {
            QTest::mousePress(game, Qt::LeftButton, {}, game->diskRest(d));
            QTest::mouseMove(game, game->dropPoint());
            QTest::mouseRelease(game, Qt::LeftButton, {}, game->dropPoint());
            QVERIFY(game->falling());
            for (int t = 0; t < 400 && game->falling(); ++t) Pump(50);
            QVERIFY(!game->falling());
            const QString scored = fx.dialogs.texts().filter("You scored ").last();
            expected += scored.section(' ', 2, 2).toDouble();
            if (d == 0) {  // the disk leaves its slot once scored; the others rest
                WM_CHECK_LOOK("Pachinko_dropped", game);
                const QImage now = game->field()->surface();
                const QRect band(0, now.height() * 7 / 8, now.width(), now.height() / 8);
                QCOMPARE(now.copy(band), game->boardPicture().copy(band));
            }
            if (d < 2) {
                QCOMPARE(Shared().Score, expected);
                QCOMPARE(game->scoreText(), "Score: " + QString::number(expected));
            }
        }
        // The pins bleep without cutting a sound already playing.
        QVERIFY(fx.sound.played.contains("bleep2.wav"));
        for (int i = 0; i < fx.sound.played.size(); ++i)
            if (fx.sound.played[i] == "bleep2.wav")
                QVERIFY(fx.sound.modes[i] == SoundMode::NoInterrupt);
        QCOMPARE(fx.sound.played.count("dingling.wav"), 3);
        WM_CHECK_WON(fx, "Pachinko", QString("SUN %1").arg(expected));
    }

    void fiveWrongAnswersEndBeforeTheBoard() {
        ShellFixture fx;
        WM_OPEN(game, fx, StartFromTitle<Plachinko>(fx, "Pachinko", kPlanets, 1, 300));
        fx.dialogs.answerYes(false);
        answerAll(game, {false, false, false, false, false});
        QCOMPARE(
            fx.dialogs.last(),
            "Oops! You haven't earned any disks to drop into the Pachinko board! Would you like "
            "to give it another try?");
        QVERIFY(fx.dialogs.texts().filter("First, let's see").isEmpty() && BackAtTitle());
    }
};

QTEST_MAIN(PachinkoScreenTest)
#include "pachinko_screen_test.moc"
