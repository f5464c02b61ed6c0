// Scramble on its screen: from the title through the options and the chooser to a win and the
// table; a wrong guess to its try-again box and back; three wins displacing in the score file.
#include <QtTest>

#include "core/clock.h"
#include "core/score_table.h"
#include "games/study/scramble/scramble_screen.h"
#include "road_kit.h"

using namespace wm;
using namespace wm::test;

class ScrambleScreenTest : public QObject {
    Q_OBJECT
private slots:
    void fromTheTitleToTheTable();
    void wrongGuessAsksAgainAndHintCosts();
    void threeWinsDisplaceInTheFile();
};

void ScrambleScreenTest::fromTheTitleToTheTable() {
    Road fx(1, {"ABC"});
    FixedClock clock(0.5);
    SetClock(&clock);
    const auto reset = qScopeGuard([] { SetClock(nullptr); });
    QVERIFY(ClickTitleButton("Scramble"));
    auto* options = Showing<GameOptions>();
    QVERIFY(options);
    QCOMPARE(options->Frame2->title(), "Scatter Letters?");
    QVERIFY(options->Option2->isChecked());
    QCOMPARE(options->SpeedBar->maximum(), 3);
    options->Option1->setChecked(true);  // scatter
    options->SpeedBar->setValue(2);
    QTest::mouseClick(options->Command1, Qt::LeftButton);
    Pump();
    auto* game = qobject_cast<Scramble*>(ContinueWithList(Showing<ChooseList>(), "Human Body ("));
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    Pump();
    const SharedState& s = Shared();
    QVERIFY(game->round().scatter);
    const QString word = QString::fromStdString(s.TheWord);
    QString tiles;  // the word's letters, shuffled
    for (auto* l : game->letters())
        if (l->isVisible()) tiles += l->text();
    auto sorted = [](QString t) {
        std::sort(t.begin(), t.end());
        return t.toLower();
    };
    QCOMPARE(sorted(tiles), sorted(word));
    QTest::keyClicks(game->guessBox(), word.toUpper());
    QTest::keyClick(game->guessBox(), Qt::Key_Return);
    QVERIFY(fx.sound.played.contains("applause.wav"));
    QCOMPARE(fx.win.congratulations.size(), 1);
    QVERIFY(fx.dialogs.last().startsWith("You got a high score of "));
    QCOMPARE(fx.dialogs.shown.back().title, "Great job!");
    Pump();
    QVERIFY(Showing<Title>());
    const ScoreTable table = ReadScoreTable(fx.path("scores/Scramble.dat").toStdString());
    QCOMPARE(QString::fromStdString(table.initials(1)), "ABC");
    QVERIFY(s.Score > 0);
    QCOMPARE(table.score(1), s.Score);
}

void ScrambleScreenTest::wrongGuessAsksAgainAndHintCosts() {
    Road fx(2);
    fx.writeLines("thelists.new", {"Foxes", "fox", "a wild dog with a bushy tail"});
    auto* game =
        qobject_cast<Scramble*>(ContinueWithList(ChooserFor("Scramble", 1, true), "Foxes"));
    QVERIFY(game);
    Pump();
    Button(game, "Command3")->click();
    QCOMPARE(fx.dialogs.last(), "This word means \"a wild dog with a bushy tail\"");
    QCOMPARE(fx.dialogs.shown.back().title, "Hint");
    QCOMPARE(Shared().Score, -1000.0);
    Button(game, "Command1")->click();  // nothing typed: no guess
    QCOMPARE(fx.dialogs.shown.size(), std::size_t(1));
    fx.dialogs.answerYes(true).answerYes(false);
    QTest::keyClicks(game->guessBox(), "dog");
    QTest::keyClick(game->guessBox(), Qt::Key_Return);
    QCOMPARE(fx.sound.played.last(), "fall.wav");
    QCOMPARE(fx.dialogs.last(), "Oops! The scrambled word was \"fox\". Would you like to try again?");
    Pump();
    QCOMPARE(Showing<Scramble>(), game);  // yes: another word
    QCOMPARE(Shared().Score, 0.0);
    Button(game, "Command2")->click();  // Give Up
    QCOMPARE(fx.dialogs.last(), "Oops! The scrambled word was \"fox\". Would you like to try again?");
    Pump();
    QVERIFY(Showing<Title>());
    QVERIFY(fx.win.tables.isEmpty());
}

void ScrambleScreenTest::threeWinsDisplaceInTheFile() {
    ShellFixture fx;
    FixedClock clock(0.5);  // the score loses 10 x 0.5 for the time of day
    SetClock(&clock);
    const auto reset = qScopeGuard([] { SetClock(nullptr); });
    fx.writeLines("thelists.new", {"Foxes", "fox", "a wild dog with a bushy tail"});
    OpenScreen("Title");
    ScoreTable pre = ScoreTable::Fresh();
    InsertScore(pre, 1, "PRE", "1000");
    pre.Initials[2] = "ONE";
    pre.Scores[2] = "100    ";
    pre.Initials[3] = "TWO";
    pre.Scores[3] = "90     ";
    pre.Initials[4] = "THR";
    pre.Scores[4] = "80     ";
    WriteScoreTable(fx.path("scores/Scramble.dat").toStdString(), pre);

    Shared().CurrentGame = "Scramble";
    Shared().Difficulty = 1;
    Shared().MaxDifficulty = 3;
    Shared().GameOptionOn = kTrue;  // "Don't scatter": the game inverts it
    Shared().SoundOn = kTrue;
    auto* chooser = qobject_cast<ChooseList*>(OpenScreen("ChooseList", CurrentScreen()));
    Pump();
    QVERIFY(chooser->lists()->count() == 1);
    chooser->lists()->setCurrentRow(0);

    // Each round draws: the word, three letters in order, then the base of the score.
    auto script = [&](int base) {
        fx.rng.pick(1, 1).pick(1, 3).pick(2, 3).pick(3, 3).then((base - 100 + 0.5) / 500.0);
    };
    script(200);  // 200 x 3 - 5 = 595
    WinDriver driver({"AAA", "BBB", "ass"});
    SetModalHook(std::ref(driver));
    fx.dialogs.answerYes(true).answerYes(false).answerYes(true).answerYes(false);
    QTest::mouseClick(chooser->findChild<QPushButton*>("Command1"), Qt::LeftButton);
    auto* game = Showing<Scramble>();
    QVERIFY(game);
    Pump();
    for (int base : {300, 250, 0}) {
        QCOMPARE(QString::fromStdString(Shared().TheWord), "fox");
        if (base) script(base);  // queued for the next round, drawn after this win
        QTest::keyClicks(game->guessBox(), "FOX");
        QTest::keyClick(game->guessBox(), Qt::Key_Return);
        Pump();
    }
    Pump();
    QVERIFY(Showing<Title>() != nullptr);
    QCOMPARE(Shared().Difficulty, 1);  // the raise was declined twice

    const ScoreTable t = ReadScoreTable(fx.path("scores/Scramble.dat").toStdString());
    const QStringList got = {QString::fromStdString(t.initials(1) + " " + t.scoreText(1)),
                             QString::fromStdString(t.initials(2) + " " + t.scoreText(2)),
                             QString::fromStdString(t.initials(3) + " " + t.scoreText(3)),
                             QString::fromStdString(t.initials(4) + " " + t.scoreText(4)),
                             QString::fromStdString(t.initials(5) + " " + t.scoreText(5))};
    // 595 takes rank 2 and loses TWO; 895 takes rank 2 and loses ONE; 745 takes rank 3 and
    // loses THR, while rank 5 is still untouched.
    // Rude initials are stored as "WIN", while LastInitials keeps what was typed.
    QCOMPARE(got, (QStringList{"PRE 1000", "BBB 895", "WIN 745", "AAA 595", "--- 0"}));
    QCOMPARE(QString::fromStdString(Shared().LastInitials), "ass");
}

QTEST_MAIN(ScrambleScreenTest)
#include "scramble_screen_test.moc"
