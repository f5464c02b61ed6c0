// Flying Cow on its screen, on the test clock: the road from the title through five words to
// the table and back; a loss at the top level with the word shown and a new game; the palette,
// a words-only list, silence without sound, and a list it cannot play.
#include <QtTest>

#include "game_start.h"
#include "games/guess/flying_cow/flying_cow_screen.h"

using namespace wm;
using namespace wm::test;

class FlyingCowScreenTest : public QObject {
    Q_OBJECT
private slots:
    void fiveWordsFromTheTitleToTheTable();
    void beamedUpAtTheTopLevel();
    void paletteWordsOnlyAndSilence();
    void aListWithNothingToPlay();
};

namespace {
QString boxes(CowForm* game) {
    QString out;
    for (int i = 0; i < int(game->game().word().size()); ++i) {
        QLabel* l = game->boxes()[i];
        out += !l->isVisible() ? "_" : l->text().isEmpty() ? "." : l->text();
    }
    return out;
}
QString label(QWidget* game, const char* name) {
    return LabelText(game, name);
}
void Type(QWidget* game, const QString& keys) {
    for (QChar c : keys) QTest::keyClick(game, c.toLatin1());
}
// Past the pause before a word.
void Ready(CowForm* game) {
    Pump(1900);
    QCOMPARE(game->phase(), CowForm::Phase::Play);
}
}  // namespace

void FlyingCowScreenTest::fiveWordsFromTheTitleToTheTable() {
    ShellFixture fx;
    WriteOneList(fx, "Farm", {{"moo", "what a cow says"}, {"barn", "a house for animals"},
                              {"hay-loft", "where the dry grass is kept"}, {"cow", "it gives milk"},
                              {"milk", "a white drink"}});
    for (int k = 1; k <= 5; ++k) fx.rng.pick(k, 5);
    WinDriver driver;
    SetModalHook(std::ref(driver));
    auto* game = qobject_cast<CowForm*>(PlayFromTitle("Flying Cow", "Farm", 4));
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    QVERIFY(fx.music.opened.endsWith("sounds/cowtune.mid"));
    // The saucer arrives first; keys wait for it.
    QCOMPARE(label(game, "ReadyLabel"), "Get ready!");
    Type(game, "x");
    QCOMPARE(game->game().tried(), "");
    Ready(game);
    QCOMPARE(boxes(game), "...");
    QCOMPARE(label(game, "WordLabel"), "Word 1 of 5");
    QCOMPARE(label(game, "MissLabel"), "Misses left: 7");

    // A miss lifts the cow a rung; a letter that fills two blanks brings it down again.
    Type(game, "x");
    QCOMPARE(fx.sound.played.last(), "cowbeam.wav");
    QCOMPARE(label(game, "MissLabel"), "Misses left: 6");
    QVERIFY(!game->key('x')->isEnabled());
    Pump(500);
    QVERIFY(game->pose().cowLift > 0);
    Type(game, "X");  // tried already: no penalty
    QCOMPARE(label(game, "MissLabel"), "Misses left: 6");
    Type(game, "o");
    QCOMPARE(fx.sound.played.last(), "cowdrop.wav");
    QCOMPARE(label(game, "MissLabel"), "Misses left: 7");
    Pump(500);
    QCOMPARE(game->pose().cowLift, 0.0);
    Type(game, "m");
    QCOMPARE(fx.sound.played.last(), "cowmoo.wav");
    QCOMPARE(game->phase(), CowForm::Phase::Won);
    QCOMPARE(label(game, "ScoreLabel"), "Score: 260");  // (3 x 10 + 7 x 5) x 4
    Type(game, "b");  // the word is done: no key counts until the next one
    for (int step : {1500, 1000, 800}) Pump(step);
    QCOMPARE(label(game, "ReadyLabel"), "Word 2 of 5");
    Pump(900);

    // The hint, once, for half the points; the on-screen keys.
    game->hintButton()->click();
    QCOMPARE(label(game, "MeaningLabel"), "Meaning: a house for animals");
    QVERIFY(!game->hintButton()->isEnabled());
    for (char c : {'b', 'a', 'r', 'n'}) game->key(c)->click();
    // Clicking a key or Hint leaves the keyboard with the game.
    QCOMPARE(game->key('b')->focusPolicy(), Qt::NoFocus);
    QCOMPARE(game->hintButton()->focusPolicy(), Qt::NoFocus);
    QCOMPARE(fx.sound.played.last(), "cowmoo.wav");
    QCOMPARE(label(game, "ScoreLabel"), "Score: 410");  // + (40 + 35) x 4 / 2
    // + (80 + 35) x 4, then + (30 + 30) x 4: the hyphen is shown from the start.
    for (auto [keys, score] : {std::pair{"HAYLOFT", "Score: 870"}, {"zcow", "Score: 1110"}}) {
        for (int step : {3300, 900}) Pump(step);
        Type(game, keys);
        QCOMPARE(label(game, "ScoreLabel"), score);
    }
    for (int step : {3300, 900}) Pump(step);
    QCOMPARE(label(game, "WordLabel"), "Word 5 of 5");
    fx.dialogs.answerYes(false);
    Type(game, "milk");
    QCOMPARE(driver.congratulations.size(), 0);  // the last word's happy ending plays first
    Pump(3300);
    QVERIFY(fx.dialogs.saw("You got a high score of 1410! Would you like to try again?"));
    QCOMPARE(fx.dialogs.shown.back().title, "Great job!");
    QCOMPARE(TableRow(fx, "Flying Cow"), "ZZZ 1410");
    Pump();
    QVERIFY(Showing<Title>());
    QVERIFY(fx.music.closes > 0);
}

void FlyingCowScreenTest::beamedUpAtTheTopLevel() {
    ShellFixture fx;
    auto* game = OpenGame<CowForm>(fx, "Flying Cow", {{"owl", "it hoots at night"}}, 9, true);
    QVERIFY(game);
    game->resize(1920, 1080);
    Ready(game);
    QCOMPARE(label(game, "MissLabel"), "Misses left: 2");
    Type(game, "oxy");
    QCOMPARE(game->phase(), CowForm::Phase::Play);
    fx.dialogs.answerYes(true);
    Type(game, "z");
    QCOMPARE(fx.sound.played.last(), "cowgone.wav");
    QCOMPARE(boxes(game), "owl");  // the word is shown, with its meaning
    QCOMPARE(label(game, "MeaningLabel"), "Meaning: it hoots at night");
    Type(game, "w");
    QCOMPARE(game->game().tried(), "oxyz");
    Pump(1800);
    QVERIFY(fx.dialogs.shown.empty());
    Pump(1300);
    QVERIFY(fx.dialogs.saw(
        "The cow was beamed up! The word was owl. Would you like to try again?"));
    QCOMPARE(fx.dialogs.shown.back().title, "Try Again?");
    // Yes: a new game from nothing.
    QCOMPARE(game->phase(), CowForm::Phase::Arrive);
    QCOMPARE(Shared().Score, 0.0);
    QCOMPARE(boxes(game), "...");
    QTest::keyClick(game, Qt::Key_Escape);
    Pump();
    QVERIFY(Showing<Title>());
}

void FlyingCowScreenTest::paletteWordsOnlyAndSilence() {
    ShellFixture fx;
    WinDriver driver;
    SetModalHook(PaletteThen(0xC9, driver));  // the capital: case does not matter
    auto* game =
        OpenGame<CowForm>(fx, "Flying Cow", {{"caf\xE9 noir", ""}}, 1, false, false, true);
    QVERIFY(game);
    Ready(game);
    QVERIFY(!game->hintButton()->isEnabled());
    game->hintButton()->click();
    QCOMPARE(label(game, "MeaningLabel"), "");
    QCOMPARE(boxes(game), "...._....");
    Type(game, "e");  // e is not é
    QCOMPARE(label(game, "MissLabel"), "Misses left: 9");
    QVERIFY(TriggerMenu(game, "FLang"));
    QCOMPARE(boxes(game), "...\u00e9_....");
    QCOMPARE(label(game, "Label2"), "Tried: e \u00e9");
    QVERIFY(TriggerMenu(game, "Return"));
    Pump();
    QVERIFY(Showing<Title>());
}

void FlyingCowScreenTest::aListWithNothingToPlay() {
    ShellFixture fx;
    OpenGame<QWidget>(fx, "Flying Cow",
                      {{std::string(60, 'a'), "far too long"}, {"- -", "nothing to guess"}}, 4);
    Pump();
    QVERIFY(fx.dialogs.saw("This list has no word that Flying Cow can use (the words are empty "
                           "or too long). Please choose another list."));
    QVERIFY(Showing<Title>());
}

QTEST_MAIN(FlyingCowScreenTest)
#include "flying_cow_screen_test.moc"
