// Spell Crush on its screen: from the title to a won game and the table; a wrong word, clicks
// while the safe travels, silence with the sound off, and the game that scores nothing.

#include "games/show/spell_crush/spell_crush_screen.h"
#include "game_end.h"
#include "game_open.h"
#include "look.h"

namespace {

// Lets the safe travel, fall and finish with the word (at most half a minute of clock).
void LetTheSafeFinish(SpellCrushGame* game) {
    for (int i = 0; i < 3000 && game->busy(); ++i) Pump(16);
}

int WrongIndex(SpellCrushGame* game) {
    return game->game().WrongWordPos - 1;
}

}  // namespace

class SpellCrushScreenTest : public QObject {
    Q_OBJECT
private slots:
    void fromTheTitleToAWin() {
        Road fx(0, {"SAM"});
        WM_OPEN(game, fx,
                qobject_cast<SpellCrushGame*>(PlayFromTitle("Spell Crush", "Human Body (", 5)));
        Pump();
        QCOMPARE(LabelText(game, "Label1") + " | " + LabelText(game, "Label2"),
                 "Directions: Click on the word that is misspelled. | Time: 60");
        WM_CHECK_LOOK("Spell_Crush_swing", game);  // the safe sways under the crane
        // One word of the four differs from its list entry.
        int misspelled = 0;
        for (int i = 0; i < 4; ++i) {
            const int n = game->game().DealWords[i + 1];
            if (game->word(i)->text().toStdString() != Shared().Words[n]) ++misspelled;
            QVERIFY(game->word(i)->isVisible());
        }
        QCOMPARE(misspelled, 1);

        game->clickWord(WrongIndex(game));
        QVERIFY(game->busy());
        LetTheSafeFinish(game);
        QVERIFY(!game->busy() && Shared().Score > 0);
        for (const char* s : {"squeaky.wav", "glassbk.wav", "fall.wav"})
            QVERIFY2(fx.sound.played.contains(s), s);
        const QString score = QString::number(Shared().Score);
        QCOMPARE(LabelText(game, "Label3"), "Score: " + score);

        fx.dialogs.answerYes(false);
        Pump(61000);  // the clock runs out
        QVERIFY(fx.sound.played.contains("cymbals.wav"));
        WM_VERIFY(Box(
            fx,
            "You won that game with a record score of " + score + "! Would you like to try again?",
            "Great job!"));
        QVERIFY(Showing<Title>() != nullptr);
        QCOMPARE(TableRow(fx, "Spell Crush"), "SAM " + score);
    }

    void nothingScoredEndsWithAdvice() {
        ShellFixture fx;
        WM_OPEN(game, fx,
                qobject_cast<SpellCrushGame*>(
                    ContinueWithList(ChooserFor("Spell Crush", 5, true, false), "Human Body (")));
        Pump();
        const int wrong = (WrongIndex(game) + 1) % 4;
        game->clickWord(wrong);
        const int clicked = game->game().ClickedWord;
        game->clickWord((wrong + 1) % 4);  // the safe is on its way: ignored
        QCOMPARE(game->game().ClickedWord, clicked);
        for (int i = 0; i < 3000 && game->busy() && !game->points()->isVisible(); ++i) Pump(16);
        QCOMPARE(game->points()->text(), "WRONG!");
        LetTheSafeFinish(game);  // the sign rises and four new words are dealt
        QVERIFY(!game->busy() && !game->points()->isVisible());
        QCOMPARE(Shared().Score, 0.0);
        QVERIFY(fx.sound.played.isEmpty());  // sound is off
        Pump(60000);
        QCOMPARE(
            fx.dialogs.last(),
            "Hmmm... maybe a bit more practice is needed before you're ready for this game. Go "
            "and learn your vocab words, then come back and try again later...");
        QVERIFY(Showing<Title>() != nullptr);
    }
};

QTEST_MAIN(SpellCrushScreenTest)
#include "spell_crush_screen_test.moc"
