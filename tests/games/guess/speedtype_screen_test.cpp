// Speed Type on its screen: the calls on the test clock, typing, the smallest-first table with
// a tie and its displacement, a loss, the palette, and the effects gated by sound.

#include "games/guess/speedtype/speedtype_screen.h"
#include "core/clock.h"
#include "game_open.h"
#include "look.h"

namespace {
constexpr double kSecond = 1.0 / 86400;

// Waits out Ready... and Set... on the test clock.
void toGo(SpeedType* game) {
    const QLabel* call = game->findChild<QLabel*>("Label1");
    QVERIFY(call && call->text() == "Ready..." && call->size() == call->sizeHint());  // fitted anew
    QVERIFY(!game->findChild<QLabel*>("Label3")->isVisible());  // no typing box before the go
    Pump(1000);
    QCOMPARE(LabelText(game, "Label1"), "Set...");
    Pump(1000);
    QCOMPARE(LabelText(game, "Label1"), "Type this word:");
    QVERIFY(game->findChild<QLabel*>("Label2")->isVisible());
}

void typeWord(SpeedType* game, FixedClock& clock, int seconds, const QString& typed) {
    toGo(game);
    clock.now += seconds * kSecond;
    QTest::keyClicks(game, typed);
    QTest::keyClick(game, Qt::Key_Return);
    Pump();
}
}  // namespace

class SpeedTypeScreenTest : public QObject {
    Q_OBJECT
private slots:
    void winsRankSmallestFirst() {
        Road fx(0, {"ABC", "DEF", "GHI"});
        FixedClock clock(0.5);
        SetClock(&clock);
        WM_OPEN(game, fx, PlayOn<SpeedType>(fx, "Speed Type", {{"cat", "a pet that purrs"}}, 1));
        Shared().SoundOn = kTrue;
        Pump();
        // Keys before the go are lost.
        QTest::keyClicks(game, "ca");
        QCOMPARE(game->round().Typed, "");
        toGo(game);
        QVERIFY(fx.sound.played.contains("ricochet.wav"));
        QTest::keyClicks(game, "cax");
        QTest::keyClick(game, Qt::Key_Backspace);
        QTest::sendKeyEvent(QTest::Click, game, Qt::Key_Delete, "\x7f", {});  // no character
        QTest::keyClicks(game, "t");
        QCOMPARE(LabelText(game, "Label3"), "CAT");
        clock.now += 2 * kSecond;
        QString figures, look;
        fx.dialogs.otherwiseYes = [&](const QString&) {
            figures = LabelText(game, "MLabel") + ":" + LabelText(game, "SLabel") + "." +
                      LabelText(game, "SDLabel");
            look = LookFault("Speed_Type_time", game->grab().toImage());  // the time under it
            fx.dialogs.otherwiseYes = {};
            return true;
        };
        QTest::keyClick(game, Qt::Key_Return);
        Pump();
        // Two seconds of a 100000-a-day clock: T = 2.3148..., shown as 2 and 148: the first decimal
        // is skipped, as designed.
        QCOMPARE(figures, "00:2.148");
        QVERIFY2(look.isEmpty(), qPrintable(look));
        QVERIFY(fx.sound.played.contains("cheer.wav"));
        WM_VERIFY(Box(fx,
                      "Congratulations! Your time was 0.7716 seconds per letter! Would you like to "
                      "try again?",
                      "Great job!"));

        // The same time again ranks below the first (a tie goes after); then a faster one takes
        // rank 1 and, as the table's displacement does, the tied entry at rank 2 is lost.
        fx.dialogs.answerYes(true);
        typeWord(game, clock, 2, "CAT");
        fx.dialogs.answerYes(false);
        typeWord(game, clock, 1, "cat");
        QVERIFY(
            fx.dialogs.saw("Congratulations! Your time was 0.3858 seconds per letter! Would you "
                           "like to try again?"));
        // No offer to raise a level at any point.
        QVERIFY(!fx.dialogs.texts().join("|").contains("raise"));
        QCOMPARE(TableRow(fx, "Speed Type", 1), "GHI 0.3858");
        // The moved entry passes through a whole number on the table's walk, as designed.
        QCOMPARE(TableRow(fx, "Speed Type", 2), "ABC 1");
        QCOMPARE(TableRow(fx, "Speed Type", 3), "--- 0");
        QVERIFY(Showing<Title>());
        SetClock(nullptr);
    }

    void lossesAndThePalette() {
        Road fx(0);
        FixedClock clock(0.5);
        SetClock(&clock);
        SetModalHook(PaletteThen(0xE9, fx.win));
        WM_OPEN(game, fx, OpenGame<SpeedType>(fx, "Speed Type", {{"caf\xE9", "coffee"}}, 1));
        Pump();
        toGo(game);
        // A wrong word with Enter loses.
        fx.dialogs.answerYes(true);
        QTest::keyClicks(game, "cafe");
        QTest::keyClick(game, Qt::Key_Return);
        QVERIFY(fx.sound.played.contains("ooh.wav"));
        WM_VERIFY(
            Box(fx, "Oops! The correct word was caf\u00e9. Would you like to give it another try?",
                "You lose!"));
        // Yes: a new word. The palette's character goes through the key routine, in capitals.
        toGo(game);
        QTest::keyClicks(game, "caf");
        QVERIFY(TriggerMenu(game, "FL"));
        QCOMPARE(QString::fromStdString(Shared().CurrentGame).toLower(), "speed type");
        QCOMPARE(LabelText(game, "Label3"), "CAF\u00c9");
        // Two characters too many end the round, silently with the sound off; No goes back to the
        // title.
        Shared().SoundOn = kFalse;
        fx.sound.played.clear();
        fx.dialogs.answerYes(false);
        QTest::keyClicks(game, "xy");
        QCOMPARE(fx.dialogs.shown.back().title, "You lose!");
        QVERIFY(fx.sound.played.isEmpty() && BackAtTitle());
        SetClock(nullptr);
    }
};

QTEST_MAIN(SpeedTypeScreenTest)
#include "speedtype_screen_test.moc"
