// Flying Cow on its screen, on the test clock: the road from the title through five words to
// the table and back; a loss at the top level with the word shown and a new game; the palette,
// a words-only list, silence without sound, and a list it cannot play.
#include "games/guess/flying_cow/flying_cow_screen.h"
#include "../guess_road.h"
#include "look.h"

namespace {
const Pairs kFarm{{"moo", "what a cow says"},
                  {"barn", "a house for animals"},
                  {"hay-loft", "where the dry grass is kept"},
                  {"cow", "it gives milk"},
                  {"milk", "a white drink"}};

QString boxes(CowForm* game) {
    return BoxesText(game->boxes(), game->game().word().size());
}
// Past the pause before a word.
void Ready(CowForm* game) {
    Pump(1900);
    QCOMPARE(game->phase(), CowForm::Phase::Play);
}
}  // namespace

class FlyingCowScreenTest : public QObject {
    Q_OBJECT
private slots:
    void fiveWordsFromTheTitleToTheTable() {
        Road fx(0);
        for (int k = 1; k <= 5; ++k) fx.rng.pick(k, 5);
        WM_OPEN(game, fx, PlayOn<CowForm>(fx, "Flying Cow", kFarm, 4));
        QVERIFY(fx.music.opened.endsWith("sounds/cowtune.mid"));
        // The saucer arrives first; keys wait for it.
        QCOMPARE(LabelText(game, "ReadyLabel"), "Get ready!");
        Keys(game, "x");
        QCOMPARE(game->game().tried(), "");
        Ready(game);
        QCOMPARE(boxes(game), "...");
        QCOMPARE(game->findChild<QLabel*>("LetterLabel0"), game->boxes()[0]);
        QCOMPARE(Labels(game, "WordLabel MissLabel"), "Word 1 of 5 | Misses left: 7");

        // A miss lifts the cow a rung; a letter that fills two blanks brings it down again.
        Keys(game, "x");
        QCOMPARE(fx.sound.played.last(), "cowbeam.wav");
        QCOMPARE(LabelText(game, "MissLabel"), "Misses left: 6");
        QVERIFY(!game->key('x')->isEnabled());
        Pump(500);
        QVERIFY(game->pose().cowLift > 0);
        QCOMPARE(LabelText(game, "MeaningLabel"),
                 "Stuck? Click Hint to see the meaning (for half the points).");
        Keys(game, "X");  // tried already: no penalty
        QCOMPARE(LabelText(game, "MissLabel"), "Misses left: 6");
        Keys(game, "o");
        QCOMPARE(fx.sound.played.last(), "cowdrop.wav");
        QCOMPARE(LabelText(game, "MissLabel"), "Misses left: 7");
        Pump(500);
        QCOMPARE(game->pose().cowLift, 0.0);
        // The cow back down, two letters in their boxes, the tried ones gone from the keys.
        WM_CHECK_LOOK("Flying_Cow_play", game);
        Keys(game, "m");
        QCOMPARE(fx.sound.played.last(), "cowmoo.wav");
        QCOMPARE(game->phase(), CowForm::Phase::Won);
        // (3 x 10 + 7 x 5) x 4 points.
        QCOMPARE(Labels(game, "MeaningLabel ScoreLabel"), "Meaning: what a cow says | Score: 260");
        Keys(game, "b");  // the word is done: no key counts until the next one
        Pump(600);
        WM_CHECK_LOOK("Flying_Cow_won", game);  // the points over the cow, which moos
        for (int step : {900, 1000, 800}) Pump(step);
        QCOMPARE(LabelText(game, "ReadyLabel"), "Word 2 of 5");
        Pump(900);

        // The hint, once, for half the points; the on-screen keys.
        game->hintButton()->click();
        QCOMPARE(LabelText(game, "MeaningLabel"), "Meaning: a house for animals");
        QVERIFY(!game->hintButton()->isEnabled());
        for (char c : {'b', 'a', 'r', 'n'}) game->key(c)->click();
        // Clicking a key or Hint leaves the keyboard with the game.
        QCOMPARE(game->key('b')->focusPolicy(), Qt::NoFocus);
        QCOMPARE(game->hintButton()->focusPolicy(), Qt::NoFocus);
        QCOMPARE(fx.sound.played.last(), "cowmoo.wav");
        QCOMPARE(LabelText(game, "ScoreLabel"), "Score: 410");  // + (40 + 35) x 4 / 2
        // + (80 + 35) x 4, then + (30 + 30) x 4: the hyphen is shown from the start.
        for (auto [keys, score] : {std::pair{"HAYLOFT", "Score: 870"}, {"zcow", "Score: 1110"}}) {
            for (int step : {3300, 900}) Pump(step);
            Keys(game, keys);
            QCOMPARE(LabelText(game, "ScoreLabel"), score);
        }
        for (int step : {3300, 900}) Pump(step);
        QCOMPARE(LabelText(game, "WordLabel"), "Word 5 of 5");
        fx.dialogs.answerYes(false);
        Keys(game, "milk");
        QCOMPARE(fx.win.congratulations.size(), 0);  // the last word's happy ending plays first
        Pump(3300);
        WM_CHECK_WON(fx, "Flying Cow", "ZZZ 1410");
        QVERIFY(fx.music.closes > 0);
    }

    void beamedUpAtTheTopLevel() {
        ShellFixture fx;
        WM_OPEN(game, fx,
                OpenGame<CowForm>(fx, "Flying Cow", {{"owl", "it hoots at night"}}, 9, true));
        game->resize(1920, 1080);
        Ready(game);
        QCOMPARE(LabelText(game, "MissLabel"), "Misses left: 2");
        Keys(game, "oxy");
        QCOMPARE(game->phase(), CowForm::Phase::Play);
        fx.dialogs.answerYes(true);
        Keys(game, "z");
        QCOMPARE(fx.sound.played.last(), "cowgone.wav");
        QCOMPARE(boxes(game), "owl");  // the word is shown, with its meaning
        QCOMPARE(LabelText(game, "MeaningLabel"), "Meaning: it hoots at night");
        Keys(game, "w");
        QCOMPARE(game->game().tried(), "oxyz");
        Pump(800);
        WM_CHECK_LOOK("Flying_Cow_beamed", game);  // the cow rising in the beam, shrinking
        Pump(1000);
        QVERIFY(fx.dialogs.shown.empty());
        Pump(1300);
        WM_VERIFY(Box(fx, "The cow was beamed up! The word was owl. Would you like to try again?",
                      "Try Again?"));
        // Yes: a new game from nothing.
        QCOMPARE(game->phase(), CowForm::Phase::Arrive);
        QCOMPARE(Shared().Score, 0.0);
        QCOMPARE(boxes(game), "...");
        QTest::keyClick(game, Qt::Key_Escape);
        QVERIFY(BackAtTitle());
    }

    void paletteWordsOnlySilenceAndAListWithNothingToPlay() {
        Road fx(0);
        SetModalHook(PaletteThen(0xC9, fx.win));  // the capital: case does not matter
        WM_OPEN(game, fx,
                OpenGame<CowForm>(fx, "Flying Cow", {{"caf\xE9 noir", ""}}, 1, false, false, true));
        Ready(game);
        QVERIFY(!game->hintButton()->isEnabled());
        game->hintButton()->click();
        QCOMPARE(LabelText(game, "MeaningLabel"), "");
        QCOMPARE(boxes(game), "...._....");
        Keys(game, "e");  // e is not é
        QCOMPARE(LabelText(game, "MissLabel"), "Misses left: 9");
        QVERIFY(TriggerMenu(game, "FLang"));
        QCOMPARE(boxes(game), "...\u00e9_....");
        QCOMPARE(LabelText(game, "Label2"), "Tried: e \u00e9");
        QVERIFY(TriggerMenu(game, "Return") && BackAtTitle());
        WM_VERIFY(
            Refused(fx, "Flying Cow",
                    {{std::string(60, 'a'), "far too long"}, {"- -", "nothing to guess"}}, 4,
                    "This list has no word that Flying Cow can use (the words are empty or too "
                    "long). Please choose another list."));
    }
};

QTEST_MAIN(FlyingCowScreenTest)
#include "flying_cow_screen_test.moc"
