// Jailbreak on its screen: from the title through the chooser and the options to a won game and
// the table; a click, a hint, the palette and a silent mistake; the guard at the door and a
// try again; an escape with no points left; a list without enough different words.
#include "look.h"

#include "act_kit.h"
#include "games/action/jailbreak/jailbreak_screen.h"
#include "platform/text.h"

namespace {

const Pairs kEight = {{"apple", "a red or green fruit"}, {"river", "water that flows to the sea"},
                      {"cloud", "it floats in the sky"}, {"tiger", "a big striped cat"},
                      {"piano", "keys that sing"},       {"owl", "a bird that hoots at night"},
                      {"bridge", "it crosses water"},    {"candle", "a light made of wax"}};

void Type(JailBreakForm* game, const QString& word) {
    Enter(game->typingBox(), word);
}

}  // namespace

class JailbreakScreenTest : public QObject {
    Q_OBJECT
private slots:
    void roadFromTitleThroughThreeCellsToTheTable();
    void locksHintsAndThePalette();
    void theGuardCatchesYouAndYouTryAgain();
    void anEscapeWithNoPointsLeftThenTooFewDifferentWords();
};

void JailbreakScreenTest::roadFromTitleThroughThreeCellsToTheTable() {
    Road fx(0, {"JBK"});
    for (int k = 1; k <= 6; ++k) fx.rng.pick(k, 8);
    auto* game = FromTitle<JailBreakForm>(fx, "Jailbreak", kEight, 2);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    const SharedState& s = Shared();
    QCOMPARE(game->scene()->banner() + " | " + LabelText(game, "CellLabel"),
             "Cell 1 of 3 | Cell 1 of 3");
    // Nothing counts before the pause is over.
    Type(game, "apple");
    Button(game, "Command1")->click();
    QCOMPARE(LabelText(game, "Label3"), "Stuck? Hint shows the first letter (-10).");
    Pump(1960);
    QCOMPARE(s.Score, 0.0);
    game->typingBox()->clear();
    // The banner goes as the pause ends, the whole scene painted again at once.
    const QRegion painted = RepaintsDuring(game->scene(), [] { Pump(40); }).region;
    QVERIFY((QRegion(game->scene()->rect()) - painted).isEmpty());
    Pump(1500 * 3);  // a step every 1.5 s
    QCOMPARE(LabelText(game, "GuardLabel"), "Guard: 37 steps away");

    Type(game, "zebra");  // -20, two steps on
    QCOMPARE(s.Score, -20.0);
    QCOMPARE(game->jail().guardSteps, 5);
    QCOMPARE(fx.sound.played.last(), "alarm.wav");
    WM_CHECK_LOOK("Jailbreak_alarm", game);  // the cell flashes red
    Type(game, "APPLE");  // 5 letters x 20
    QCOMPARE(LabelText(game, "ScoreLabel"), "Score: 80");
    QCOMPARE(fx.sound.played.last(), "unlock.wav");
    QCOMPARE(LabelText(game, "Label2"), "water that flows to the sea");
    Button(game, "Command1")->click();
    QCOMPARE(s.Score, 70.0);
    QCOMPARE(LabelText(game, "Label3"), "It begins with \"R\"");
    Type(game, "river");  // 100, then the guard's 35 steps to go x 10
    QCOMPARE(s.Score, 70.0 + 100 + 350);
    QCOMPARE(game->scene()->banner(), "Escaped!");
    WM_CHECK_LOOK("Jailbreak_escaped", game);  // the points for the steps, the lock tilted open
    QCOMPARE(LabelText(game, "Label1"), "All the locks are open!");
    QCOMPARE(LabelText(game, "Label2"), "");  // no definition left standing
    Pump(1500);                               // the guard stands still while you escape
    QCOMPARE(game->jail().guardSteps, 5);
    Pump(2200);
    QCOMPARE(LabelText(game, "CellLabel"), "Cell 2 of 3");

    Pump(2000);
    Type(game, "tiger");
    Type(game, "cloud");  // 100 + 100 + 40 x 10
    Pump(3700 + 2000);
    Type(game, "piano");
    Type(game, "owl");  // 100 + 60 + 400
    QCOMPARE(s.Score, 520.0 + 600 + 560);
    Pump(4000);
    QVERIFY(fx.sound.played.contains("cheer.wav"));
    WM_CHECK_WON(fx, "Jailbreak", "JBK 1680");
}

void JailbreakScreenTest::locksHintsAndThePalette() {
    Road fx(0);
    Pairs list = kEight;
    list[3] = {"caf\xE9", "a small restaurant"};
    for (int k : {1, 2, 3, 4}) fx.rng.pick(k, 8);
    auto* game = FromTitle<JailBreakForm>(fx, "Jailbreak", list, 4);
    QVERIFY(game);
    Pump(2000);
    JailScene* scene = game->scene();
    QCOMPARE(LabelText(game, "Label4"), "Type the word, then press Enter:");
    // A click on a tag shows its definition below, and makes its word the one said aloud.
    QTest::mouseClick(scene, Qt::LeftButton, {}, scene->tagRect(0).center().toPoint());
    QCOMPARE(LabelText(game, "Label1"), "Lock 1 of 4 says:");
    QCOMPARE(Meaning(), LabelText(game, "Label2"));
    Button(game, "Command1")->click();  // the first lock's hint rings as any other's
    QCOMPARE(LabelText(game, "Label3"), "It begins with \"A\"");
    // The scene shows the pick at once, without waiting for the next frame.
    QVERIFY(PaintsDuring(scene, [&] {
        QTest::mouseClick(scene, Qt::LeftButton, {}, scene->tagRect(2).center().toPoint());
        QApplication::processEvents();
    }) > 0);
    QCOMPARE(Labels(game, "Label1 Label2"), "Lock 3 of 4 says: | it floats in the sky");
    Button(game, "Command1")->click();
    Button(game, "Command1")->click();  // a second look is free
    QCOMPARE(Shared().Score, -20.0);
    QCOMPARE(fx.sound.played.count("ding.wav"), 2);
    QCOMPARE(LabelText(game, "Label3"), "It begins with \"C\"");
    WM_CHECK_LOOK("Jailbreak_hint", game);
    Type(game, "Cloud");
    QCOMPARE(Shared().Score, 80.0);
    QVERIFY(scene->springing(2));
    // Accents count, case does not; the palette types into the box.
    SetModalHook(PaletteThen(0xC9, fx.win));
    QTest::keyClicks(game->typingBox(), "caf");
    scene->setFocus();  // wherever the keyboard was, the palette hands it back to the box
    QVERIFY(TriggerMenu(game, "FLang"));
    QCOMPARE(game->typingBox()->text(), "caf\u00C9");
    QCOMPARE(game->focusWidget(), game->typingBox());
    QTest::keyClick(game->typingBox(), Qt::Key_Return);
    QCOMPARE(Shared().Score, 80.0 + 80);
    // With the sound off a mistake is silent, but still costs.
    Shared().SoundOn = kFalse;
    const auto sounds = fx.sound.played.size();
    Type(game, "rive");
    QCOMPARE(Shared().Score, 140.0);
    QCOMPARE(fx.sound.played.size(), sounds);
    QTest::keyClick(game->typingBox(), Qt::Key_Escape);
    QVERIFY(BackAtTitle());
}

void JailbreakScreenTest::theGuardCatchesYouAndYouTryAgain() {
    ShellFixture fx;
    for (int k : {8, 7, 6}) fx.rng.pick(k, 8);
    auto* game = FromTitle<JailBreakForm>(fx, "Jailbreak", kEight, 3);
    QVERIFY(game);
    Pump(2000);
    Type(game, "bridge");
    Pump(1500 * 39);
    QCOMPARE(LabelText(game, "GuardLabel"), "Guard: 1 step away");
    Type(game, "bridges");  // the alarm brings him to the door
    QCOMPARE(game->phase(), JailBreakForm::Phase::Caught);
    QCOMPARE(LabelText(game, "GuardLabel"), "Guard: at the door!");
    Type(game, "candle");  // too late
    QVERIFY(!game->jail().locks[0].open);
    fx.dialogs.answerYes(true);
    Pump(1600);
    QCOMPARE(LastBox(fx),
             "Caught! | The guard caught you! The locks still shut were \"candle\", "
             "\"owl\". Would you like to try again?");
    // Try again: a new game from the first cell, score and guard back at the start.
    QCOMPARE(game->jail().cell, 1);
    QCOMPARE(Shared().Score, 0.0);
    Pump(2000 + 1500 * 40 + 1600);  // caught again, and this time No
    QVERIFY(fx.dialogs.last().startsWith("The guard caught you!") && BackAtTitle());
    QCOMPARE(ReadScoreTable(fx.path("scores/Jailbreak.dat").toStdString()).score(1), 0.0);
}

void JailbreakScreenTest::anEscapeWithNoPointsLeftThenTooFewDifferentWords() {
    ShellFixture fx;
    // Six locks asked of a list of one word: the slider stops at one.
    auto* game =
        FromTitle<JailBreakForm>(fx, "Jailbreak", {{"owl", "a bird that hoots at night"}}, 6);
    QVERIFY(game);
    QString bannerAtTheBox;
    fx.dialogs.otherwiseYes = [&](const QString&) {
        bannerAtTheBox = game->scene()->banner();
        return false;
    };
    for (int cell = 1; cell <= 3; ++cell) {
        Pump(2000);
        for (int i = 0; i < 17; ++i) Type(game, "hoot");  // -340, and 34 steps
        Type(game, "Owl");                                // 60, then 6 steps to go x 10
        QCOMPARE(Shared().Score, -220.0 * cell);
        Pump(700 + 3000);
    }
    QCOMPARE(bannerAtTheBox, "You broke out!");
    QCOMPARE(LastBox(fx),
             "Escaped! | You escaped from all three cells, but your score is -660, "
             "so it cannot go on the high score table. Would you like to try again?");
    QVERIFY(BackAtTitle());
    // Three spellings of one word are one word: too few for two locks.
    WM_VERIFY(Refused(fx, "Jailbreak",
                      {{"cat", "a pet that purrs"}, {"Cat", "a pet"}, {"CAT", "meows"}}, 2,
                      "There are not enough different words with definitions in this vocabulary "
                      "list for this many locks! Please choose another list or go back and lower "
                      "the difficulty level.",
                      "Jailbreak"));
}

QTEST_MAIN(JailbreakScreenTest)
#include "jailbreak_screen_test.moc"
