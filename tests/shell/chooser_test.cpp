// The chooser and the options screen as a pupil meets them: the counting and the caption, one
// road for each kind of refusal and warning, the count boundaries with their messages, foreign
// lists played either way, what the chooser remembers, and the options rows with clamping.
#include <QLabel>
#include <QtTest>

#include "chooser_texts.h"
#include "core/line_file.h"
#include "game_road.h"
#include "platform/text.h"
#include "shell/lang_choose.h"

using namespace wm;
using namespace wm::test;

namespace {

// Opens the chooser for `game` over the factory lists plus `extra` lines.
ChooseList* OpenChooser(ShellFixture& fx, const std::string& game,
                        const std::vector<std::string>& extra = {}) {
    OpenScreen("Title", CurrentScreen());
    if (!extra.empty()) AppendLinesAtomic(fx.path("thelists.dat").toStdString(), extra);
    Shared().CurrentGame = game;
    auto* chooser = qobject_cast<ChooseList*>(OpenScreen("ChooseList", CurrentScreen()));
    Pump();
    return chooser;
}

// A list of n words named `name`, as lines to append.
std::vector<std::string> ListOf(const std::string& name, int n) {
    std::vector<std::string> lines = {"<New List>", name};
    for (int i = 1; i <= n; ++i) {
        lines.push_back("word" + std::to_string(i));
        lines.push_back("meaning " + std::to_string(i));
    }
    return lines;
}

}  // namespace

class ChooserTest : public QObject {
    Q_OBJECT
private slots:
    void summaryAndWordsOnlyLists() {
        const std::vector<std::string> lines = {
            "Animals", "cat",  "a pet",      "dog",      "",       "<New List>", "[S]Colours",
            "red",     "rojo", "<New List>", "Spelling", "rhythm", "-----"};
        ListSummary all = SummariseLists(lines, true, {});
        // A blank definition leaves its word as half a word.
        QCOMPARE(all.lines, (QStringList{"Animals (1.5 words)", "Colours (1 words)",
                                         "Spelling (1 words- no definitions)"}));
        QCOMPARE(all.caption(), "Choose a list:  3.5 words available in  3 word lists.");
        QCOMPARE(all.foreign.size() == 1 ? toQ(all.foreign[0].plain) : "", "Colours");

        ListSummary some = SummariseLists(lines, false, {"Spelling", "Spelling"});
        QCOMPARE(some.lines, QStringList{"Spelling (1 words- no definitions)"});
        QCOMPARE(some.total, 3.5);  // the caption still counts every list's words
        QVERIFY(SummariseLists(lines, false, {}).lines.isEmpty() &&
                SummariseLists({}, true, {}).lines.isEmpty());  // an empty list file

        // After the first list was deleted the file starts with a separator.
        ListSummary healed = SummariseLists({"<New List>", "Birds", "owl", "hooter"}, true, {});
        QCOMPARE(healed.lines, (QStringList{"<New List> (-.5 words)", "Birds (1 words)"}));
        // One game for each way of meeting a words-only list with the option on, then the games
        // that warn only while it is on, with it off: they open quietly. The option, the message,
        // the option after, and the screen that opens.
        const std::tuple<const char*, bool, QString, bool, QString> rows[] = {
            {"Pachinko", true, kM1, true, "ChooseList"},
            {"Word Zap", true, kM1, true, "ChooseList"},  // the option on
            {"Word Search", true, kSearch, false, "WordSearchForm"},
            // Kept by the chooser, then inverted by the game as it loads.
            {"Scramble", true, kW2, false, "Scramble"},
            {"Hang Glider", true, "", true, "HangGlider"},
            {"Short Circuit", false, "", false, "ShortCircuit"},
            {"Princess", false, "", false, "frmPrincess"},
            {"Asteroid Zap", false, "", false, "AsteroidBlast"},
            {"Safe Cracker", false, "", false, "SafeCracker"},
            {"Word Search", false, "", false, "WordSearchForm"},
            {"Letter Drop", false, "", false, "LetterFall"}};
        ShellFixture fx;
        for (const auto& [game, on, message, optionAfter, opens] : rows) {
            ChooseList* chooser = OpenChooser(fx, game);
            fx.dialogs.shown.clear();
            Shared().GameOptionOn = on ? kTrue : kFalse;
            QVERIFY(chooser->lists()->isVisible());
            QVERIFY(SelectList(chooser, "Tricky Spelling Words (") >= 0);
            chooser->continueOn();
            QCOMPARE(std::tuple(fx.dialogs.texts().value(0), Shared().GameOptionOn == kTrue,
                                Shared().WordsOnly == kTrue, CurrentScreen()->objectName()),
                     std::tuple(message, optionAfter, true, opens));
        }
    }

    void countBoundariesAndForeignListsPlayedEitherWay() {
        // Each side of a fixed minimum and of the difficulty (7) as the minimum.
        const std::tuple<const char*, int, QString> rows[] = {
            {"Pachinko", 5, QString::fromStdString(N(5))},
            {"Basketball", 10, kE1},
            {"Quiz", 7, kE1},
            {"Concentration", 7, kE2}};
        for (const auto& [game, minimum, message] : rows) {
            for (int words : {minimum, minimum - 1}) {
                ShellFixture fx;
                ChooseList* chooser = OpenChooser(fx, game, ListOf("Sized", words));
                Shared().Difficulty = 7;
                QVERIFY(SelectList(chooser, "Sized (") >= 0);
                chooser->continueOn();
                const bool refused = words < minimum;
                QCOMPARE(std::tuple(int(Shared().WordCount), fx.dialogs.texts().contains(message),
                                    CurrentScreen() == chooser),
                         std::tuple(words, refused, refused));
            }
        }
        // "[F]Odd" has the marker on its word lines: after a swap it stands on the meaning side.
        // The side picked, then the language, the first word and meaning, and words-only.
        const std::tuple<bool, QString, QString, QString, bool> sides[] = {
            {false, "E", "dog", "perro", false},
            {true, "S", "perro", "dog", false},
            {false, "E", "-----", "chat", false},
            {true, "F", "chat", "-----", true}};
        for (const auto& [secondOption, language, word1, meaning1, wordsOnly] : sides) {
            ShellFixture fx;
            const bool odd = word1 == "-----" || meaning1 == "-----";
            ChooseList* chooser = OpenChooser(
                fx, "Hang Glider", {"<New List>", "[F]Odd", "-----", "chat", "-----", "chien"});
            QString asked;
            SetModalHook([&](QDialog& d) {
                auto* box = dynamic_cast<LangChoose*>(&d);
                QVERIFY(box);
                asked = box->Option1->text() + " | " + box->Option2->text();
                (secondOption ? box->Option2 : box->Option1)->setChecked(true);
            });
            // The box shows the plain name; the code goes to the foreign table.
            QVERIFY(SelectList(chooser, odd ? "Odd (2 words)" : "Spanish Animals (") >= 0);
            chooser->continueOn();
            QCOMPARE(asked,
                     QString("%1 - English words, %1 meanings | %1 - %1 words, English meanings")
                         .arg(odd ? "French" : "Spanish"));
            const SharedState& s = Shared();
            QCOMPARE(
                std::tuple(toQ(s.CurrentListName), toQ(s.ListLanguage), toQ(s.Words[1]),
                           toQ(s.Meanings[1]), s.WordsOnly == kTrue),
                std::tuple(odd ? "Odd" : "Spanish Animals", language, word1, meaning1, wordsOnly));
        }
    }

    void chooserRemembersAndCutsNames() {
        ShellFixture fx;
        ChooseList* chooser =
            OpenChooser(fx, "Hang Glider", {"<New List>", "Unit (2)", "ant", "a small insect"});
        QVERIFY(chooser->lists()->isVisible());
        QCOMPARE(chooser->lists()->currentRow(), 0);  // the first line when nothing was chosen
        QVERIFY(chooser->findChild<QPushButton*>("Command1")->isEnabled() &&
                SelectList(chooser, "Unit (2) (") >= 0);
        chooser->continueOn();  // the game is not built yet, but the list is loaded
        QCOMPARE(std::tuple(toQ(Shared().CurrentListName), int(Shared().WordCount),
                            toQ(Shared().LastListChoice)),
                 std::tuple("Unit (2)", 1, "Unit (2) (1 words)"));

        // The next visit picks the first line that begins with the last choice.
        Shared().LastListChoice = "UNIT";
        auto* again = qobject_cast<ChooseList*>(OpenScreen("ChooseList", chooser));
        Pump();
        QVERIFY(again->lists()->isVisible() &&
                again->lists()->currentItem()->text() == "Unit (2) (1 words)");
        QTest::keyClick(again, Qt::Key_Escape);
        QVERIFY(Showing<Title>() != nullptr);
    }

    void lastChoiceMatchingNothingAndAnUnknownLanguage() {
        ShellFixture fx;
        Shared().LastListChoice = "A list deleted since";
        ChooseList* chooser = OpenChooser(fx, "Hang Glider");
        QVERIFY(chooser->lists()->count() > 0 && chooser->lists()->currentRow() == -1);
        const QString caption = chooser->findChild<QLabel*>("Caption")->text();
        QVERIFY2(caption.startsWith("Choose a list: ") && caption.endsWith(" word lists."),
                 qPrintable(caption));
        QVERIFY(!chooser->findChild<QPushButton*>("Command1")->isEnabled());
        chooser->continueOn();
        QCOMPARE(fx.dialogs.texts(), QStringList{"You need to choose a list!"});
        QCOMPARE(CurrentScreen(), chooser);
        // A language not in the file offers plain sides.
        LangChoose box("X");
        QCOMPARE(std::tuple(box.Option1->text(), box.Option2->text(),
                            box.findChild<QLabel*>("Label1")->text()),
                 std::tuple("English words, foreign meanings", "Foreign words, English meanings",
                            "How do you want to play this word list?"));
    }

    void optionsRowsAndClamping() {
        ShellFixture fx;
        OpenScreen("Title");
        SharedState& s = Shared();
        s.CurrentGame = "Crossword";
        s.WordCount = 7;
        auto* opts = qobject_cast<GameOptions*>(OpenScreen("GameOptions", CurrentScreen()));
        // The most clamped to the words loaded.
        QCOMPARE(
            std::tuple(opts->SpeedBar->minimum(), opts->SpeedBar->maximum(),
                       opts->SpeedBar->value(), int(s.MaxDifficulty), opts->Frame2->isVisible()),
            std::tuple(2, 7, 7, 7, false));
        opts->Command2->click();  // Back: list-first games go back to the chooser
        QCOMPARE(CurrentScreen()->objectName(), "ChooseList");

        s.CurrentGame = "Word Search";
        opts = qobject_cast<GameOptions*>(OpenScreen("GameOptions", CurrentScreen()));
        QCOMPARE(
            std::tuple(opts->Frame2->title(), opts->Option2->text(), opts->Frame2->isVisible()),
            std::tuple("How do you want the clue?", "Clue is Definition", true));
        opts->SoundOFFOp->setChecked(true);
        opts->Option1->setChecked(true);
        opts->SpeedBar->setValue(9);
        opts->continueOn();
        QCOMPARE(std::tuple(s.SoundOn, s.GameOptionOn, int(s.Difficulty), s.HowToText.empty(),
                            CurrentScreen()->objectName()),
                 std::tuple(kFalse, kFalse, 9, false, "ChooseList"));

        s.CurrentGame = "Speed Type";
        opts = qobject_cast<GameOptions*>(OpenScreen("GameOptions", CurrentScreen()));
        QVERIFY(!opts->Frame3->isVisible());
        QTest::keyClick(opts, Qt::Key_Escape);
        QVERIFY(Showing<Title>() != nullptr);
    }
};

QTEST_MAIN(ChooserTest)
#include "chooser_test.moc"
