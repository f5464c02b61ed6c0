// Roads through the shell's screens: the chooser's counting, refusals and warnings, what it
// remembers, and the options rows.
#include <QtTest>

#include "core/clock.h"
#include "core/line_file.h"
#include "core/score_table.h"
#include "game_road.h"
#include "shell/catalogue.h"
#include "shell/choose_list.h"
#include "shell/enter_initials_form.h"
#include "shell/fl_form.h"
#include "shell/game_options.h"
#include "shell/high_score_form.h"
#include "shell/title.h"

using namespace wm;
using namespace wm::test;

class RoadTest : public QObject {
    Q_OBJECT
private slots:
    void summaryCountsHalfWordsAndLabels();
    void wordsOnlyAndShortListsAreRefusedOrWarned_data();
    void wordsOnlyAndShortListsAreRefusedOrWarned();
    void chooserRemembersAndCutsNames();
    void optionsRowsAndClamping();
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

void RoadTest::wordsOnlyAndShortListsAreRefusedOrWarned_data() {
    QTest::addColumn<QString>("game");
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("difficulty");
    QTest::addColumn<bool>("optionOn");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("optionAfter");
    QTest::addColumn<QString>("opens");
    const QString spelling = "Tricky Spelling Words";
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
        << false << "WordSearchForm";
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
        << "Hang Glider" << spelling << 4 << true << "" << true << "HangGlider";
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
    Pump();
    QVERIFY(chooser->lists()->isVisible());
    QVERIFY(SelectList(chooser, list + " (") >= 0);
    chooser->continueOn();
    if (message.isEmpty()) {
        QCOMPARE(fx.dialogs.texts(), QStringList{});
    } else {
        QVERIFY(!fx.dialogs.shown.empty());
        QCOMPARE(fx.dialogs.shown.front().text, message);
    }
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
    Pump();
    QVERIFY(chooser->lists()->isVisible());
    QCOMPARE(chooser->lists()->currentRow(), 0);  // the first line when nothing was chosen
    QVERIFY(SelectList(chooser, "Unit (2) (") >= 0);
    chooser->continueOn();  // the game is not built yet, but the list is loaded
    QCOMPARE(QString::fromStdString(Shared().CurrentListName), "Unit (2)");
    QCOMPARE(Shared().WordCount, 1);
    QCOMPARE(QString::fromStdString(Shared().LastListChoice), "Unit (2) (1 words)");

    // The next visit picks the first line that begins with the last choice.
    Shared().LastListChoice = "UNIT";
    auto* again = qobject_cast<ChooseList*>(OpenScreen("ChooseList", chooser));
    Pump();
    QVERIFY(again->lists()->isVisible());
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
    QTest::keyClick(opts, Qt::Key_Escape);
    QVERIFY(Showing<Title>() != nullptr);
}

QTEST_MAIN(RoadTest)
#include "road_test.moc"
