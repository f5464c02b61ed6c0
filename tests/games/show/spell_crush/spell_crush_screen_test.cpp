// Spell Crush on its screen: from the title to a won game and the table; a wrong word, clicks
// while the safe travels, silence with the sound off, and the game that scores nothing.
#include <QtTest>

#include "core/score_table.h"
#include "game_road.h"
#include "games/show/spell_crush/spell_crush_screen.h"

using namespace wm;
using namespace wm::test;

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
    void fromTheTitleToAWin();
    void nothingScoredEndsWithAdvice();
};

void SpellCrushScreenTest::fromTheTitleToAWin() {
    ShellFixture fx;
    auto* game = qobject_cast<SpellCrushGame*>(PlayFromTitle("Spell Crush", "Human Body (", 5));
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    Pump();
    QCOMPARE(game->findChild<QLabel*>("Label1")->text(),
             "Directions: Click on the word that is misspelled.");
    QCOMPARE(game->findChild<QLabel*>("Label2")->text(), "Time: 60");
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
    QVERIFY(!game->busy());
    QVERIFY(Shared().Score > 0);
    QVERIFY(fx.sound.played.contains("squeaky.wav"));
    QVERIFY(fx.sound.played.contains("glassbk.wav"));
    QVERIFY(fx.sound.played.contains("fall.wav"));
    QCOMPARE(game->findChild<QLabel*>("Label3")->text(),
             "Score: " + QString::number(Shared().Score));

    WinDriver driver({"SAM"});
    SetModalHook(std::ref(driver));
    fx.dialogs.answerYes(false);
    Pump(61000);  // the clock runs out
    QCOMPARE(driver.congratulations.size(), 1);
    QVERIFY(fx.sound.played.contains("cymbals.wav"));
    QVERIFY(fx.dialogs.last().startsWith("You won that game with a record score of "));
    QCOMPARE(fx.dialogs.shown.back().title, "Great job!");
    QVERIFY(Showing<Title>() != nullptr);
    const ScoreTable t = ReadScoreTable(fx.path("scores/Spell Crush.dat").toStdString());
    QCOMPARE(QString::fromStdString(t.initials(1)), "SAM");
    QCOMPARE(t.score(1), Shared().Score);
}

void SpellCrushScreenTest::nothingScoredEndsWithAdvice() {
    ShellFixture fx;
    auto* game = qobject_cast<SpellCrushGame*>(
        ContinueWithList(ChooserFor("Spell Crush", 5, true, false), "Human Body ("));
    QVERIFY(game);
    Pump();
    const int wrong = (WrongIndex(game) + 1) % 4;
    game->clickWord(wrong);
    const int clicked = game->game().ClickedWord;
    game->clickWord((wrong + 1) % 4);  // the safe is on its way: ignored
    QCOMPARE(game->game().ClickedWord, clicked);
    for (int i = 0; i < 3000 && game->busy() && !game->points()->isVisible(); ++i) Pump(16);
    QCOMPARE(game->points()->text(), "WRONG!");
    QCOMPARE(Shared().Score, 0.0);
    QVERIFY(fx.sound.played.isEmpty());  // sound is off
    Pump(60000);
    QCOMPARE(fx.dialogs.last(),
             "Hmmm... maybe a bit more practice is needed before you're ready for this game. Go "
             "and learn your vocab words, then come back and try again later...");
    QVERIFY(Showing<Title>() != nullptr);
}

QTEST_MAIN(SpellCrushScreenTest)
#include "spell_crush_screen_test.moc"
