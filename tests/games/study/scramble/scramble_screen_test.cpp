// Scramble on its screen: the whole road from the title to a win and back, three wins seen in
// the score file, the too-long refusal, and the game menu.
#include <QtTest>

#include "core/clock.h"
#include "core/line_file.h"
#include "core/score_table.h"
#include "game_road.h"
#include "games/study/scramble/scramble_screen.h"

using namespace wm;
using namespace wm::test;

class ScrambleScreenTest : public QObject {
    Q_OBJECT
private slots:
    void wholeRoadThroughScramble();
    void threeWinsDisplaceInTheFile();
    void scrambleGivesUpOnTooLongWords();
    void gameMenuEntries();
};

void ScrambleScreenTest::wholeRoadThroughScramble() {
    ShellFixture fx;
    FixedClock clock(0.5);
    SetClock(&clock);
    fx.writeLines("folders.dat", {"^Science", "Earth and Space", "Weather and Climate", "^Words",
                                  "Tricky Spelling Words"});
    auto* title = qobject_cast<Title*>(OpenScreen("Title"));
    QVERIFY(title);
    Shot(title, "title");
    PictureButton* scrambleButton = nullptr;
    for (auto* b : title->buttons())
        if (b->text() == "Scramble") scrambleButton = b;
    QVERIFY(scrambleButton && scrambleButton->isVisible());
    QTest::mouseClick(scrambleButton, Qt::LeftButton);

    auto* options = Showing<GameOptions>();
    QVERIFY(options);
    QCOMPARE(options->Frame2->title(), "Scatter Letters?");
    QVERIFY(options->Option2->isChecked());
    QCOMPARE(options->SpeedBar->maximum(), 3);
    options->Option1->setChecked(true);  // scatter
    options->SpeedBar->setValue(2);
    Shot(options, "options-scramble");
    QTest::mouseClick(options->Command1, Qt::LeftButton);

    auto* chooser = Showing<ChooseList>();
    QVERIFY(chooser);
    Pump();
    QVERIFY(chooser->lists()->isVisible());
    QCOMPARE(chooser->categories()->itemText(0), "ALL LISTS");
    QCOMPARE(chooser->categories()->count(), 3);
    chooser->categories()->setCurrentText("Science");
    QCOMPARE(chooser->lists()->count(), 2);
    QVERIFY(chooser->caption().startsWith("Choose a list:  "));
    QVERIFY(SelectList(chooser, "Earth and Space (") >= 0);
    Shot(chooser, "chooser");
    QTest::mouseClick(chooser->findChild<QPushButton*>("Command1"), Qt::LeftButton);

    auto* game = Showing<Scramble>();
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    Pump();
    const SharedState& s = Shared();
    QCOMPARE(QString::fromStdString(s.CurrentListName), "Earth and Space");
    QVERIFY(s.WordCount >= 20);
    QVERIFY(game->round().scatter);
    const QString word = QString::fromStdString(s.TheWord);
    QVERIFY(!word.isEmpty());
    // The tiles hold the word's letters, shuffled.
    QString tiles;
    for (auto* l : game->letters())
        if (l->isVisible()) tiles += l->text();
    auto sorted = [](QString t) {
        std::sort(t.begin(), t.end());
        return t;
    };
    QCOMPARE(sorted(tiles.toLower()), sorted(word.toLower()));
    Shot(game, "scramble-scatter");

    WinDriver driver({"ABC"});
    SetModalHook(std::ref(driver));
    fx.rng.setFallback(0.3);
    QTest::keyClicks(game->guessBox(), word.toUpper());
    QTest::keyClick(game->guessBox(), Qt::Key_Return);
    QCOMPARE(fx.sound.played.contains("applause.wav"), true);
    QCOMPARE(driver.congratulations.size(), 1);
    QVERIFY(driver.congratulations[0].startsWith(
        "Congratulations! You have placed number 1 in the high score records with a score of "));
    QVERIFY(fx.dialogs.last().startsWith("You got a high score of "));
    QVERIFY(fx.dialogs.last().endsWith("! Would you like to try again?"));
    QCOMPARE(fx.dialogs.shown.back().title, "Great job!");
    Pump();
    QVERIFY(Showing<Title>() != nullptr);

    const ScoreTable table = ReadScoreTable(fx.path("scores/Scramble.dat").toStdString());
    QCOMPARE(QString::fromStdString(table.initials(1)), "ABC");
    QCOMPARE(table.score(1), s.Score);
    QVERIFY(s.Score > 0);
    QCOMPARE(QString::fromStdString(s.LastInitials), "ABC");
    SetClock(nullptr);
}

void ScrambleScreenTest::threeWinsDisplaceInTheFile() {
    ShellFixture fx;
    FixedClock clock(0.5);  // the score loses 10 x 0.5 for the time of day
    SetClock(&clock);
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
    Shot(game, "scramble-row");
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
    SetClock(nullptr);
}

void ScrambleScreenTest::scrambleGivesUpOnTooLongWords() {
    ShellFixture fx;
    fx.writeLines("thelists.new", {"Long", "pneumonoultramicroscopic", "a lung disease word",
                                   "antidisestablishmentarian", "against a state church"});
    OpenScreen("Title");
    Shared().CurrentGame = "Scramble";
    Shared().GameOptionOn = kTrue;
    Shared().Difficulty = 1;
    auto* chooser = qobject_cast<ChooseList*>(OpenScreen("ChooseList", CurrentScreen()));
    Pump();
    QVERIFY(chooser->lists()->count() == 1);
    chooser->lists()->setCurrentRow(0);
    chooser->continueOn();
    Pump();
    QVERIFY(Showing<Title>() != nullptr);
    QCOMPARE(fx.dialogs.last(), "The words on this list are too long to use for this activity.");
}

void ScrambleScreenTest::gameMenuEntries() {
    ShellFixture fx;
    OpenScreen("Title");
    SharedState& s = Shared();
    s.CurrentGame = "Scramble";
    s.HowToText = "Unscramble it.";
    s.GameOptionOn = kTrue;
    s.Difficulty = 3;
    auto* chooser = qobject_cast<ChooseList*>(OpenScreen("ChooseList", CurrentScreen()));
    Pump();
    QVERIFY(chooser->lists()->isVisible());
    QVERIFY(SelectList(chooser, "Human Body (") >= 0);
    chooser->continueOn();
    auto* game = Showing<Scramble>();
    QVERIFY(game);
    Pump();
    auto menu = [&](const char* name) {
        auto* a = game->findChild<QAction*>(name);
        QVERIFY2(a, name);
        a->trigger();
    };
    menu("mnuHowTo");
    QCOMPARE(fx.dialogs.last(), "Unscramble it.");

    // The palette puts the picked character at the caret; an empty cell gives nothing.
    game->guessBox()->setText("ma");
    game->guessBox()->setCursorPosition(1);
    int boxes = 0;
    SetModalHook([&](QDialog& d) {
        auto* fl = qobject_cast<FLForm*>(&d);
        QVERIFY(fl);
        ++boxes;
        if (boxes == 1) {
            QCOMPARE(fl->cells()[0]->text(), QString(QChar(0xBF)));  // the inverted question mark
            QVERIFY(fl->cells()[65]->text().isEmpty());
            fl->insert(0);  // nothing picked: stays open
            QVERIFY(fl->isVisible());
            fl->pickCell(0xF1 - 191);  // the n with a tilde
            Shot(fl, "palette");
            fl->insert(0);
        } else {
            fl->pickCell(70);
            fl->insert(0);
        }
    });
    menu("FLang");
    QCOMPARE(game->guessBox()->text(), QString("m") + QChar(0xF1) + "a");
    QCOMPARE(game->guessBox()->cursorPosition(), 3);
    menu("FLang");
    QCOMPARE(game->guessBox()->text().size(), 3);
    QCOMPARE(QString::fromStdString(s.CurrentGame), "Scramble");  // the key differs by case only

    // The table opens without leaving the game.
    QString seen;
    SetModalHook([&](QDialog& d) {
        if (auto* h = qobject_cast<HighScoreForm*>(&d)) {
            seen = h->game();
            h->findChild<QPushButton*>("Command1")->click();
        }
    });
    menu("HS");
    QCOMPARE(seen, "Scramble");
    QCOMPARE(CurrentScreen(), game);
    // At the hardest level two letters blink out at each tick.
    Pump(1100);
    int black = 0;
    for (auto* l : game->letters())
        if (l->isVisible() && l->styleSheet().contains("background: black")) ++black;
    QVERIFY(black >= 1);
    QTest::keyClick(game, Qt::Key_Escape);
    QVERIFY(Showing<Title>() != nullptr);
    QVERIFY(fx.music.closes >= 1);  // background music is closed on the way out
    QCOMPARE(Shared().BgmOpen, kFalse);
}

QTEST_MAIN(ScrambleScreenTest)
#include "scramble_screen_test.moc"
