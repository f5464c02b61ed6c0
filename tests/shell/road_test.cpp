// Whole roads through the screens: the pupil's way from the title into Scramble and back, the
// chooser's counting and refusals, and the high-score hand-off seen in the file.
#include <QtTest>

#include "core/clock.h"
#include "core/line_file.h"
#include "core/score_table.h"
#include "games/study/scramble/scramble_screen.h"
#include "shell/catalogue.h"
#include "shell/choose_list.h"
#include "shell/enter_initials_form.h"
#include "shell/fl_form.h"
#include "shell/game_options.h"
#include "shell/high_score_form.h"
#include "shell/title.h"
#include "shell_fixture.h"

using namespace wm;
using namespace wm::test;

namespace {

// Types the initials and presses OK on the initials box; looks at the table and presses OK.
struct WinDriver {
    explicit WinDriver(QStringList typed) : initials(std::move(typed)) {}
    QStringList initials;
    QStringList congratulations;
    QStringList tables;
    int shots = 0;
    void operator()(QDialog& d) {
        if (auto* e = qobject_cast<EnterInitialsForm*>(&d)) {
            congratulations << e->message();
            const QString ini = initials.isEmpty() ? "ZZZ" : initials.takeFirst();
            for (int i = 0; i < 3; ++i) e->letters()[i]->setText(ini.mid(i, 1));
            if (shots++ == 0) Shot(e, "initials");
            e->confirm();
        } else if (auto* h = qobject_cast<HighScoreForm*>(&d)) {
            tables << h->tableText();
            if (tables.size() == 1) Shot(h, "high-scores");
            h->findChild<QPushButton*>("Command1")->click();
        }
    }
};

int selectList(ChooseList* chooser, const QString& startsWith) {
    for (int i = 0; i < chooser->lists()->count(); ++i) {
        if (chooser->lists()->item(i)->text().startsWith(startsWith)) {
            chooser->lists()->setCurrentRow(i);
            return i;
        }
    }
    return -1;
}

}  // namespace

class RoadTest : public QObject {
    Q_OBJECT
private slots:
    void summaryCountsHalfWordsAndLabels();
    void wholeRoadThroughScramble();
    void threeWinsDisplaceInTheFile();
    void wordsOnlyAndShortListsAreRefusedOrWarned_data();
    void wordsOnlyAndShortListsAreRefusedOrWarned();
    void chooserRemembersAndCutsNames();
    void optionsRowsAndClamping();
    void scrambleGivesUpOnTooLongWords();
    void gameMenuEntries();
    void everyOptionsScreenFitsItsText();
};

void RoadTest::summaryCountsHalfWordsAndLabels() {
    const std::vector<std::string> lines = {
        "Animals", "cat",  "a pet",      "dog",      "",       "<New List>", "[S]Colours",
        "red",     "rojo", "<New List>", "Spelling", "rhythm", "-----"};
    ListSummary all = SummariseLists(lines, true, {});
    // A blank definition leaves its word as half a word.
    QCOMPARE(all.lines, (QStringList{"Animals (1.5 words)", "Colours (1 words)",
                                     "Spelling (1 words- no definitions)"}));
    QCOMPARE(all.caption(), "Choose a list:  3.5 words available in  3 word lists.");
    QCOMPARE(all.foreign.size(), size_t(1));
    QCOMPARE(QString::fromStdString(all.foreign[0].plain), "Colours");

    ListSummary some = SummariseLists(lines, false, {"Spelling", "Spelling"});
    QCOMPARE(some.lines, QStringList{"Spelling (1 words- no definitions)"});
    QCOMPARE(some.total, 3.5);  // the caption still counts every list's words
    QVERIFY(SummariseLists(lines, false, {}).lines.isEmpty());

    // After the first list was deleted the file starts with a separator.
    ListSummary healed = SummariseLists({"<New List>", "Birds", "owl", "hooter"}, true, {});
    QCOMPARE(healed.lines, (QStringList{"<New List> (-.5 words)", "Birds (1 words)"}));
}

void RoadTest::wholeRoadThroughScramble() {
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
    QTRY_VERIFY(chooser->lists()->isVisible());
    QCOMPARE(chooser->categories()->itemText(0), "ALL LISTS");
    QCOMPARE(chooser->categories()->count(), 3);
    chooser->categories()->setCurrentText("Science");
    QCOMPARE(chooser->lists()->count(), 2);
    QVERIFY(chooser->caption().startsWith("Choose a list:  "));
    QVERIFY(selectList(chooser, "Earth and Space (") >= 0);
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
    QTRY_VERIFY(Showing<Title>() != nullptr);

    const ScoreTable table = ReadScoreTable(fx.path("scores/Scramble.dat").toStdString());
    QCOMPARE(QString::fromStdString(table.initials(1)), "ABC");
    QCOMPARE(table.score(1), s.Score);
    QVERIFY(s.Score > 0);
    QCOMPARE(QString::fromStdString(s.LastInitials), "ABC");
    SetClock(nullptr);
}

void RoadTest::threeWinsDisplaceInTheFile() {
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
    QTRY_VERIFY(chooser->lists()->count() == 1);
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
    QTRY_VERIFY(Showing<Title>() != nullptr);
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

void RoadTest::wordsOnlyAndShortListsAreRefusedOrWarned_data() {
    QTest::addColumn<QString>("game");
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("difficulty");
    QTest::addColumn<bool>("optionOn");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("optionAfter");
    QTest::addColumn<QString>("opens");
    const QString spelling = "Tricky Spelling Words";
    const QString notYet = " is not available yet. Please choose another game.";
    QTest::newRow("pachinko words-only")
        << "Pachinko" << spelling << 5 << true
        << "The list you have selected contains words only, with no definitions, and cannot be "
           "used for this game. Please choose another game or another list."
        << true << "";
    QTest::newRow("basketball words-only")
        << "Basketball" << spelling << 6 << true
        << "The list you have selected contains words only, with no definitions, and cannot be "
           "played with this game. Please choose another game or another list."
        << true << "";
    QTest::newRow("word zap with option")
        << "Word Zap" << spelling << 2 << true
        << "The list you have selected contains words only, with no definitions, and cannot be "
           "used for this game. Please choose another game or another list."
        << true << "";
    QTest::newRow("word search warns")
        << "Word Search" << spelling << 5 << true
        << "The list you have selected contains words only, with no definitions. The word clue "
           "will be the word and not the definition..."
        << false << "";
    QTest::newRow("scramble warns and keeps")
        << "Scramble" << spelling << 1 << true
        << "The list you have selected contains words only, with no definitions. The <hint> button "
           "will not be available during the game."
        << false << "Scramble";  // kept by the chooser, then inverted by the game as it loads
    QTest::newRow("froggy too short") << "Froggy"
                                      << "Tiny" << 5 << true
                                      << "You need a list with at least 4 words to play this game. "
                                         "Please choose another game or another list."
                                      << true << "";
    QTest::newRow("basketball too short")
        << "Basketball"
        << "Tiny" << 5 << true
        << "There are not enough words in this vocabulary list to play this game! Please choose "
           "another list or another game."
        << true << "";
    QTest::newRow("concentration below level")
        << "Concentration"
        << "Tiny" << 6 << true
        << "There are not enough words in this vocabulary list to play this game at the level you "
           "have chosen! Please choose another list or go back and lower the difficulty level."
        << true << "";
    QTest::newRow("hang glider plays anything")
        << "Hang Glider" << spelling << 4 << true << "Hang Glider" + notYet << true << "";
}

void RoadTest::wordsOnlyAndShortListsAreRefusedOrWarned() {
    QFETCH(QString, game);
    QFETCH(QString, list);
    QFETCH(int, difficulty);
    QFETCH(bool, optionOn);
    QFETCH(QString, message);
    QFETCH(bool, optionAfter);
    QFETCH(QString, opens);
    ShellFixture fx;
    OpenScreen("Title");
    // A list of three words beside the factory lists.
    AppendLinesAtomic(fx.path("thelists.dat").toStdString(),
                      {"<New List>", "Tiny", "ant", "a small insect", "bee", "it makes honey",
                       "cow", "it gives milk"});
    SharedState& s = Shared();
    s.CurrentGame = game.toStdString();
    s.Difficulty = difficulty;
    s.GameOptionOn = optionOn ? kTrue : kFalse;
    auto* chooser = qobject_cast<ChooseList*>(OpenScreen("ChooseList", CurrentScreen()));
    QTRY_VERIFY(chooser->lists()->isVisible());
    QVERIFY(selectList(chooser, list + " (") >= 0);
    chooser->continueOn();
    QVERIFY(!fx.dialogs.shown.empty());
    QCOMPARE(fx.dialogs.shown.front().text, message);
    QCOMPARE(s.GameOptionOn == kTrue, optionAfter);
    if (opens.isEmpty()) {
        QCOMPARE(CurrentScreen(), chooser);
    } else {
        QCOMPARE(CurrentScreen()->objectName(), opens);
    }
}

void RoadTest::chooserRemembersAndCutsNames() {
    ShellFixture fx;
    OpenScreen("Title");
    AppendLinesAtomic(fx.path("thelists.dat").toStdString(),
                      {"<New List>", "Unit (2)", "ant", "a small insect"});
    Shared().CurrentGame = "Hang Glider";
    auto* chooser = qobject_cast<ChooseList*>(OpenScreen("ChooseList", CurrentScreen()));
    QTRY_VERIFY(chooser->lists()->isVisible());
    QCOMPARE(chooser->lists()->currentRow(), 0);  // the first line when nothing was chosen
    QVERIFY(selectList(chooser, "Unit (2) (") >= 0);
    chooser->continueOn();  // the game is not built yet, but the list is loaded
    QCOMPARE(QString::fromStdString(Shared().CurrentListName), "Unit (2)");
    QCOMPARE(Shared().WordCount, 1);
    QCOMPARE(QString::fromStdString(Shared().LastListChoice), "Unit (2) (1 words)");

    // The next visit picks the first line that begins with the last choice.
    Shared().LastListChoice = "UNIT";
    auto* again = qobject_cast<ChooseList*>(OpenScreen("ChooseList", chooser));
    QTRY_VERIFY(again->lists()->isVisible());
    QCOMPARE(again->lists()->currentItem()->text(), "Unit (2) (1 words)");
    QTest::keyClick(again, Qt::Key_Escape);
    QVERIFY(Showing<Title>() != nullptr);
}

void RoadTest::optionsRowsAndClamping() {
    ShellFixture fx;
    OpenScreen("Title");
    SharedState& s = Shared();
    s.CurrentGame = "Crossword";
    s.WordCount = 7;
    auto* opts = qobject_cast<GameOptions*>(OpenScreen("GameOptions", CurrentScreen()));
    QVERIFY(opts);
    QCOMPARE(opts->SpeedBar->minimum(), 2);
    QCOMPARE(opts->SpeedBar->maximum(), 7);  // clamped to the words loaded
    QCOMPARE(opts->SpeedBar->value(), 7);
    QCOMPARE(int(s.MaxDifficulty), 7);
    QVERIFY(!opts->Frame2->isVisible());
    opts->goBack();  // list-first games go back to the chooser
    QCOMPARE(CurrentScreen()->objectName(), "ChooseList");

    s.CurrentGame = "Word Search";
    opts = qobject_cast<GameOptions*>(OpenScreen("GameOptions", CurrentScreen()));
    QCOMPARE(opts->Frame2->title(), "How do you want the clue?");
    QCOMPARE(opts->Option2->text(), "Clue is Definition");
    QVERIFY(opts->Frame2->isVisible());
    opts->SoundOFFOp->setChecked(true);
    opts->Option1->setChecked(true);
    opts->SpeedBar->setValue(9);
    opts->continueOn();
    QCOMPARE(s.SoundOn, kFalse);
    QCOMPARE(s.GameOptionOn, kFalse);
    QCOMPARE(s.Difficulty, 9);
    QVERIFY(!s.HowToText.empty());
    QCOMPARE(CurrentScreen()->objectName(), "ChooseList");

    s.CurrentGame = "Speed Type";
    opts = qobject_cast<GameOptions*>(OpenScreen("GameOptions", CurrentScreen()));
    QVERIFY(!opts->Frame3->isVisible());
    Shot(opts, "options-speed-type");
    QTest::keyClick(opts, Qt::Key_Escape);
    QVERIFY(Showing<Title>() != nullptr);
}

void RoadTest::scrambleGivesUpOnTooLongWords() {
    ShellFixture fx;
    fx.writeLines("thelists.new", {"Long", "pneumonoultramicroscopic", "a lung disease word",
                                   "antidisestablishmentarian", "against a state church"});
    OpenScreen("Title");
    Shared().CurrentGame = "Scramble";
    Shared().GameOptionOn = kTrue;
    Shared().Difficulty = 1;
    auto* chooser = qobject_cast<ChooseList*>(OpenScreen("ChooseList", CurrentScreen()));
    QTRY_VERIFY(chooser->lists()->count() == 1);
    chooser->lists()->setCurrentRow(0);
    chooser->continueOn();
    QTRY_VERIFY(Showing<Title>() != nullptr);
    QCOMPARE(fx.dialogs.last(), "The words on this list are too long to use for this activity.");
}

void RoadTest::gameMenuEntries() {
    ShellFixture fx;
    OpenScreen("Title");
    SharedState& s = Shared();
    s.CurrentGame = "Scramble";
    s.HowToText = "Unscramble it.";
    s.GameOptionOn = kTrue;
    s.Difficulty = 3;
    auto* chooser = qobject_cast<ChooseList*>(OpenScreen("ChooseList", CurrentScreen()));
    QTRY_VERIFY(chooser->lists()->isVisible());
    QVERIFY(selectList(chooser, "Human Body (") >= 0);
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
    QTest::qWait(1100);
    int black = 0;
    for (auto* l : game->letters())
        if (l->isVisible() && l->styleSheet().contains("background: black")) ++black;
    QVERIFY(black >= 1);
    QTest::keyClick(game, Qt::Key_Escape);
    QVERIFY(Showing<Title>() != nullptr);
    QVERIFY(fx.music.closes >= 1);  // background music is closed on the way out
    QCOMPARE(Shared().BgmOpen, kFalse);
}

void RoadTest::everyOptionsScreenFitsItsText() {
    for (QSize screen : {QSize(1280, 800), QSize(1920, 1080)}) {
        ShellFixture fx;
        ScreenMetrics::overrideScreenSize(screen);
        OpenScreen("Title");
        Shared().WordCount = 30;
        for (const GameCard& card : Catalogue()) {
            Shared().CurrentGame = card.name;
            auto* opts = qobject_cast<GameOptions*>(OpenScreen("GameOptions", CurrentScreen()));
            QVERIFY(opts);
            QApplication::processEvents();
            QLabel* text = opts->Label7;
            QVERIFY2(text->heightForWidth(text->width()) <= text->height(), card.name.c_str());
            QVERIFY(opts->rect().contains(opts->Command1->geometry().translated(
                opts->Command1->parentWidget()->mapTo(opts, QPoint(0, 0)))));
        }
    }
}

QTEST_MAIN(RoadTest)
#include "road_test.moc"
