// HangMan on its screen: the wait before the first key, misses played as chained clips with
// keys held meanwhile, the hint's cost, a win into the table with the raise offer, a loss at
// the sixth miss of the hardest level, Solve, the palette, and the music gated by sound.

#include "games/guess/hangman/hangman_screen.h"
#include "games/guess/hangman/hangman_rules.h"
#include "guess_road.h"
#include "look.h"

static QString boxes(GuessScreen* game) {
    return BoxesText(game->boxes(), game->round().boxes.size());
}

class HangManScreenTest : public QObject {
    Q_OBJECT
private slots:
    void winThenLoseAtTheHardestLevel() {
        Road fx(0, {"ASS"});
        WM_OPEN(game, fx, PlayOn<HangMan>(fx, "HangMan", {{"ice-cream", "a cold treat"}}, 2));
        Shared().SoundOn = kTrue;
        // "Please Wait..." holds the keys until the first tick of a round.
        QVERIFY(TriggerMenu(game, "RS"));
        QVERIFY(game->waiting());
        const QLabel* wait = game->findChild<QLabel*>("Label3");  // big, amid the screen
        QVERIFY(wait && wait->text() == "Please Wait..." && wait->font() == ScreenFont(28, true) &&
                wait->geometry().center() / 4 == QPoint(160, 100));
        Keys(game, "i");
        QCOMPARE(LabelText(game, "Label2"), "");
        Pump(20);
        QVERIFY(!game->waiting() && fx.music.opened.endsWith("sounds/hangman.mid"));
        QCOMPARE(boxes(game), "...-.....");
        // The stake: Int(0.5 * 1000 + 1) x difficulty 2 x 9 letters.
        QCOMPARE(Shared().Score, 501.0 * 2 * 9);

        // A miss at level 2 plays hang1 then hang2; keys typed meanwhile are lost.
        Keys(game, "x");
        QVERIFY(game->movie()->isVisible() && game->movie()->isPlaying());
        Keys(game, "i");
        QCOMPARE(LabelText(game, "Label2"), "x ");
        QCOMPARE(FinishClips(game), 2);
        Keys(game, "X-");  // a repeat costs nothing; the hyphen stands already, so it is a miss
        QCOMPARE(game->round().Misses, 2);
        FinishClips(game);

        game->hintButton()->click();
        WM_VERIFY(Box(fx, "Definition: \"a cold treat\"", "Hangman!"));
        QCOMPARE(Shared().Score, 9018.0 - 4510);

        fx.dialogs.answerYes(true).answerYes(true);  // try again, and raise the level
        Keys(game, "IceRAm");
        QCOMPARE(boxes(game), "ice-cream");
        QVERIFY(game->movie()->isPlaying());  // the win clip, waited for
        QCOMPARE(fx.win.congratulations.size(), 0);
        game->movie()->advance(0.3);
        WM_CHECK_LOOK("HangMan_win", game);  // arms up, jumping on the crate, the rope swinging
        FinishClips(game);
        WM_VERIFY(WonBox(fx, 4508));
        QVERIFY(fx.dialogs.saw("Would you like to raise the difficulty level a bit?"));
        QCOMPARE(TableRow(fx, "HangMan"), "WIN 4508");

        // Level 3: the sixth miss ends the round.
        QCOMPARE(Shared().Difficulty, 3);
        Pump(20);
        fx.dialogs.answerYes(false);
        for (char c : QByteArray("zqwkjv")) {
            Keys(game, QString(QChar(c)));
            if (c == 'v') {
                QVERIFY(fx.dialogs.last().startsWith("Would you like to raise"));
                game->movie()->advance(0.9);
                WM_CHECK_LOOK("HangMan_last_miss", game);  // the last piece in place, boxes below
                QVERIFY(MakeScene("hangend") != nullptr);  // and the hanging's end to follow
            }
            FinishClips(game);
        }
        WM_VERIFY(Box(fx,
                      "Oops! Your guy was hanged! The word you were looking for was \"ice-cream\". "
                      "Would you like to give it another try?",
                      "Try Again?"));
        QVERIFY(BackAtTitle() && fx.music.closes > 0);
    }

    void solveAndThePalette() {
        Road fx(0);
        SetModalHook(PaletteThen(0xC9, fx.win));  // the capital: case does not matter
        WM_OPEN(game, fx, OpenGame<HangMan>(fx, "HangMan", {{"caf\xE9 noir", "black coffee"}}, 1));
        Pump(20);
        QCOMPARE(boxes(game), "...._....");
        Keys(game, " '");                      // neither is a guess, though the word has a blank
        QTest::keyClick(game, Qt::Key_Shift);  // nor is a key with no text
        QVERIFY(TriggerMenu(game, "FLang"));
        QCOMPARE(QString::fromStdString(Shared().CurrentGame).toLower(), "hangman");
        QCOMPARE(boxes(game), "...\u00e9_....");
        QCOMPARE(LabelText(game, "Label2"), "\u00c9 ");
        // A wrong whole word is a miss; cancelling is nothing; a blank inside must match.
        fx.dialogs.answerInput(QString("cafe noir")).answerInput(std::nullopt);
        QCOMPARE(game->findChild<QPushButton*>("Command2"), game->solveButton());
        game->solveButton()->click();
        QCOMPARE(game->round().Misses, 1);
        FinishClips(game);
        game->solveButton()->click();
        QCOMPARE(game->round().Misses, 1);
        fx.dialogs.answerInput(QString("  CAF\u00c9 NOIR ")).answerYes(false);
        game->solveButton()->click();
        QCOMPARE(boxes(game), "caf\u00e9_noir");
        FinishClips(game);
        QVERIFY(fx.dialogs.last().startsWith("You got a high score of ") && BackAtTitle());
    }

    void silentWithoutSound() {
        ShellFixture fx;
        WM_OPEN(game, fx, OpenGame<HangMan>(fx, "HangMan", {{"owl", "hoots"}}, 1, false, false));
        Pump(20);
        QVERIFY(fx.music.opened.isEmpty());
        QCOMPARE(QString::fromStdString(FindCard("HangMan")->assets[0]), "images/hangman.svg");
        // Escape leaves for the title.
        QTest::keyClick(game, Qt::Key_Escape);
        QVERIFY(BackAtTitle());
    }
};

QTEST_MAIN(HangManScreenTest)
#include "hangman_screen_test.moc"
