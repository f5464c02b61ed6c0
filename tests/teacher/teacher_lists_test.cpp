// The list screens one by one: every refusal of a new list, deletion, merge and build, each
// seen in the file's bytes.
#include "teacher_fixture.h"

using namespace wm;
using namespace wm::test;

const QStringList kTwoLists = {"Animals",    "cat", "a pet", "<New List>",
                               "[S]Colours", "red", "rojo"};
const QString kTaken =
    "The list name you typed already exists. Please choose another name for your new list.";

class TeacherListsTest : public QObject {
    Q_OBJECT
private slots:
    void createListRefusalsAndKinds() {
        // The name, whether foreign, the language picked, and the one message: no language, a
        // blank name, taken in another case and with blanks, taken without the prefix.
        const std::tuple<QString, bool, int, QString> rows[] = {
            {"Verbs", true, 0,
             "Please choose a supported language for your vocabulary list from the drop-down "
             "selection box..."},
            {"   ", false, 0, "Type a name for your list before you continue..."},
            {" animals ", false, 0, kTaken},
            {"colours", true, 1, kTaken}};
        for (const auto& [name, foreign, language, message] : rows) {
            TeacherFixture f(kTwoLists);
            CreateList c;
            c.name()->setText(name);
            c.foreign()->setChecked(foreign);
            c.languages()->setCurrentIndex(language);
            c.confirm();
            QCOMPARE(std::tuple(f.dialogs.texts(), c.result()),
                     std::tuple(QStringList{message}, int(QDialog::Rejected)));
        }
        TeacherFixture f(kTwoLists);
        CreateList c;
        QCOMPARE(c.languages()->itemText(0), "Choose a Supported Language...");
        // Ticking words-only warns; No unticks it.
        c.wordsOnly()->setChecked(true);
        QVERIFY(f.dialogs.last().startsWith("Warning: If you create a words-only list") &&
                !c.wordsOnly()->isChecked());
        c.foreign()->setChecked(true);
        QVERIFY(!c.languages()->isHidden());
        f.dialogs.answerYes();
        c.wordsOnly()->setChecked(true);
        QVERIFY(!c.foreign()->isChecked() && c.languages()->isHidden());
        // A leading "[" is refused only by a rename, not here.
        c.name()->setText("[x] odd");
        c.confirm();
        QCOMPARE(std::tuple(c.result(), toQ(Shared().NewListName), Shared().WordsOnly,
                            toQ(Shared().ListLanguage)),
                 std::tuple(int(QDialog::Accepted), "[x] odd", kTrue, ""));

        CreateList foreign;
        foreign.name()->setText("Verbs");
        foreign.foreign()->setChecked(true);
        foreign.languages()->setCurrentIndex(1);
        foreign.confirm();
        QVERIFY(f.dialogs.last().startsWith("Tip: When creating your Foreign Language list") &&
                !Shared().ListLanguage.empty() && Shared().WordsOnly == kFalse);
    }

    void newListMessages() {
        TeacherFixture f(kTwoLists);
        MakeNewList* m = OpenMaker("Birds");
        m->word()->setText("owl");
        m->addWord();
        QCOMPARE(f.box(), "Hey!: To add a word, you must title type a word and definition in the "
                          "spaces below.");
        m->deleteWord();
        QCOMPARE(f.dialogs.last(), "You must title choose a word to delete from the list below.");
        m->editWord();
        QCOMPARE(f.dialogs.last(), "You need to choose a word to edit from the list below.");
        m->saveAndQuit();  // "owl" has no definition yet: not added
        QCOMPARE(f.dialogs.last(),
                 "Unable to save a blank word list. Please add one or more words to continue...)");
        m->meaning()->setText("wise bird");
        m->addWord();
        m->word()->setText("hen");
        m->meaning()->setText("lays eggs");
        m->addWord();
        // Edit takes the pair back into the boxes; delete asks first.
        m->words()->setCurrentRow(0);
        m->editWord();
        QCOMPARE(std::tuple(m->word()->text(), m->meaning()->text(), m->words()->count()),
                 std::tuple("owl", "wise bird", 1));
        m->words()->setCurrentRow(0);
        m->deleteWord();  // No
        QVERIFY(f.box().startsWith("Confirm Delete: ") && m->words()->count() == 1);
        f.dialogs.answerYes();
        m->deleteWord();
        QCOMPARE(std::tuple(m->words()->count(), m->totalText()),
                 std::tuple(0, "Total words in this list: 0"));
        // Save and Quit adds the pending pair first.
        f.dialogs.answerYes();
        m->saveAndQuit();
        QCOMPARE(f.lists(),
                 f.crlf(kTwoLists + QStringList{"<New List>", "Birds", "owl", "wise bird"}));
        QVERIFY(Showing<Manager>());
    }

    void newListRenameAndQuit() {
        TeacherFixture f(kTwoLists);
        MakeNewList* m = OpenMaker("Birds");
        const QByteArray before = f.lists();
        // The refusals themselves are the rules' own; here, that the screen asks them.
        for (const auto& [typed, message] :
             {std::pair{"Birds", "You did not change the list name."},
              std::pair{"COLOURS",
                        "The list name you typed already exists. This list was not renamed."}}) {
            f.dialogs.answerInput(typed);
            m->renameList();
            QCOMPARE(f.box(), QString(": ") + message);
        }
        const std::size_t boxes = f.dialogs.shown.size();
        f.dialogs.answerInput(std::nullopt);  // Cancel: nothing changes and nothing is said
        m->renameList();
        QCOMPARE(std::tuple(m->caption(), f.dialogs.shown.size()),
                 std::tuple("Birds", boxes + 1));  // the question alone
        f.dialogs.answerInput("  Garden Birds ");
        m->renameList();
        QCOMPARE(std::tuple(m->caption(), f.dialogs.last()),
                 std::tuple("Garden Birds", "List name changed successfully."));
        // Quit with No leaves the file alone; Quit with Yes and no words refuses.
        f.dialogs.answerYes();
        m->quitScreen();
        QCOMPARE(f.dialogs.last(),
                 "Unable to save a blank word list. Please add one or more words to continue...)");
        QCOMPARE(Showing<MakeNewList>(), m);
        m->word()->setText("robin");
        m->meaning()->setText("red breast");
        m->quitScreen();
        QVERIFY(f.box().startsWith("Save?: ") && f.lists() == before && Showing<Manager>());
        // Quit with Yes and a pair typed: the pair is added and the list saved.
        m = OpenMaker("Owls");
        m->word()->setText("barn owl");
        m->meaning()->setText("white-faced");
        f.dialogs.answerYes();
        m->quitScreen();
        QCOMPARE(f.lists(), before + f.crlf({"<New List>", "Owls", "barn owl", "white-faced"}));
    }

    void firstListWordsOnlyAndForeign() {
        TeacherFixture f({"No Lists"});
        MakeNewList* m = OpenMaker("Spelling", true);
        QVERIFY(m->meaning()->isHidden());
        for (const char* w : {"rhythm", "their"}) {
            m->word()->setText(w);
            m->wordEntered();
        }
        f.dialogs.answerYes();
        m->saveAndQuit();
        // A first list: no separator, "No Lists" gone, the marker as every definition.
        QCOMPARE(f.lists(), f.crlf({"Spelling", "rhythm", "-----", "their", "-----"}));

        m = OpenMaker("Verbs", false, "S");
        m->word()->setText("to run");
        m->meaning()->setText("correr");
        f.dialogs.answerYes();
        m->saveAndQuit();
        QCOMPARE(f.lists(), f.crlf({"Spelling", "rhythm", "-----", "their", "-----", "<New List>",
                                    "[S]Verbs", "to run", "correr"}));
    }

    void deleteFirstAndOnlyList() {
        TeacherFixture f(kTwoLists);
        DeleteList d;
        QCOMPARE(d.lists()->count(), 2);
        // The question's Yes and No show only while a deletion is being asked, Delete and
        // Finished only while it is not.
        const auto answers = [&] {
            QList<bool> hidden;
            for (const char* name : {"Yes", "No", "Command1", "Command2"})
                hidden << d.findChild<QWidget*>(name)->isHidden();
            return hidden;
        };
        const QList<bool> notAsking{true, true, false, false};
        QCOMPARE(answers(), notAsking);
        d.deleteClicked();
        QCOMPARE(f.dialogs.last(), "You need to choose a list!");
        d.lists()->setCurrentRow(RowOf(d.lists(), "Animals"));
        d.deleteClicked();
        QCOMPARE(std::tuple(d.asking(), answers()),
                 std::tuple(true, QList<bool>{false, false, true, true}));
        d.findChild<QPushButton*>("No")->click();
        QCOMPARE(std::tuple(d.asking(), answers(), f.lists()),
                 std::tuple(false, notAsking, f.crlf(kTwoLists)));
        d.deleteClicked();
        d.findChild<QPushButton*>("Yes")->click();
        QCOMPARE(f.dialogs.last(), "The list was successfully deleted.");
        // The separator behind the first list stays at the head, as it always has, and the readers
        // take it for a list's name until the next save heals the file.
        QCOMPARE(std::tuple(f.lists(), d.lists()->count(), d.lists()->item(0)->text()),
                 std::tuple(f.crlf({"<New List>", "[S]Colours", "red", "rojo"}), 1, "<New List>"));

        f.writeLines("thelists.dat", {"Animals", "cat", "a pet"});
        DeleteList only;
        only.lists()->setCurrentRow(0);
        only.deleteClicked();
        only.answer(true);
        QCOMPARE(std::tuple(f.lists(), only.lists()->count()), std::tuple(f.crlf({"No Lists"}), 0));
    }

    void deleteCleansCategoriesUnlessLocked() {
        TeacherFixture f({"Animals", "cat", "a pet", "<New List>", "Birds", "owl", "o",
                          "<New List>", "Fish", "cod", "c"});
        DeleteList d;
        f.writeLines("folders.dat", {"^Zoo", "Animals", "Birds", "^Farm", "Animals", "Birds"});
        d.lists()->setCurrentRow(RowOf(d.lists(), "Birds"));
        d.deleteClicked();
        d.answer(true);
        QCOMPARE(f.read("folders.dat"), f.crlf({"^Zoo", "Animals", "^Farm", "Animals"}));
        LockCategories(Shared().FolderFilePath);
        d.lists()->setCurrentRow(RowOf(d.lists(), "Animals"));
        d.deleteClicked();
        d.answer(true);
        QCOMPARE(std::tuple(f.read("folders.lok"), f.lists()),
                 std::tuple(f.crlf({"^Zoo", "Animals", "^Farm", "Animals"}),
                            f.crlf({"<New List>", "Fish", "cod", "c"})));
    }

    void mergeWordsOnlyWithNormal() {
        TeacherFixture f({"Spelling", "rhythm", "-----", "<New List>", "Animals", "cat", "a pet",
                          "dog", "", "<New List>", "[S]Colours", "red", "rojo"});
        MergeForm m;
        QCOMPARE(m.lists()->item(1)->text(), "Animals (2 words)");
        // Picked by clicks, one list after another, and clicked again to let go.
        m.show();
        for (int row : {0, 2, 2}) {
            const QRect r = m.lists()->visualItemRect(m.lists()->item(row));
            QTest::mouseClick(m.lists()->viewport(), Qt::LeftButton, {}, r.center());
        }
        QCOMPARE(m.lists()->selectedItems(), QList<QListWidgetItem*>{m.lists()->item(0)});
        m.lists()->item(0)->setSelected(true);
        m.confirm();
        QCOMPARE(f.dialogs.last(), "You must select two or more lists to merge.");
        m.lists()->item(1)->setSelected(true);
        QCOMPARE(m.label(), "Merge lists: Spelling, Animals");
        m.lists()->clearSelection();
        QCOMPARE(m.label(), "Select two or more lists to merge.");
        m.lists()->item(0)->setSelected(true);
        m.lists()->item(1)->setSelected(true);
        f.dialogs.answerInput("animals");
        m.confirm();
        QCOMPARE(f.dialogs.last(), kTaken);
        f.dialogs.answerInput("Mixed");
        m.confirm();
        QCOMPARE(f.dialogs.last(),
                 "The selected lists have been merged into the new list \"Mixed\". "
                 "The original lists are also still intact.");
        // The marker lines become ordinary definitions; the blank line is left out.
        QVERIFY(f.lists().endsWith(
            f.crlf({"<New List>", "Mixed", "rhythm", "-----", "cat", "a pet", "dog"})));
        // A foreign list among the picks warns; No stops.
        MergeForm again;
        const QByteArray before = f.lists();
        again.lists()->item(1)->setSelected(true);
        again.lists()->item(2)->setSelected(true);
        again.confirm();
        QVERIFY(f.dialogs.last().startsWith("If you merge words from a foreign language list") &&
                f.lists() == before);
    }

    void buildFromTwoListsThenDeleteTheFirstWord() {
        TeacherFixture f(kTwoLists +
                         QStringList{"<New List>", "Birds", "owl", "wise", "cat", "bird eater"});
        Manager manager;
        f.dialogs.answerInput("Birds");
        f.dialogs.answerInput("Mix");
        f.then<BuildListForm>([&](BuildListForm& b) {
            QCOMPARE(b.words()->item(0)->text(), "<<Choose a List");
            b.addPicked();
            QCOMPARE(f.dialogs.last(),
                     "You need to highlight some words in the middle column first!");
            b.chooseList(RowOf(b.lists(), "Animals"));
            QCOMPARE(b.wordsCaption(), "Words (1):");
            b.words()->item(0)->setSelected(true);
            b.addPicked();
            b.chooseList(RowOf(b.lists(), "Birds"));
            b.words()->item(0)->setSelected(true);
            b.words()->item(1)->setSelected(true);
            b.addPicked();
            QCOMPARE(f.dialogs.last(), "One or more of the words you are trying to add to this "
                                       "new list has already been added. They will not be added "
                                       "again.");
            QCOMPARE(b.newListCaption(), "New Word List (2):");
            b.deletePicked();
            QCOMPARE(f.dialogs.last(),
                     "Choose a word you would like to delete from the new list "
                     "before clicking this button.");
            b.picked()->setCurrentRow(1);
            b.deletePicked();
            QCOMPARE(b.newListCaption(), "New Word List (1):");
            b.chooseList(RowOf(b.lists(), "Birds"));
            b.words()->item(0)->setSelected(true);
            b.addPicked();
            f.dialogs.answerYes();
            b.save();
        });
        manager.command("Create List from Existing Lists");
        QVERIFY(f.dialogs.saw(kTaken) &&
                f.lists().endsWith(f.crlf({"<New List>", "Mix", "cat", "a pet", "owl", "wise"})));
        // The editor deletes the first word.
        EditList* edit = OpenEditor("Animals");
        edit->select(0);
        f.dialogs.answerYes();
        edit->deleteWord();
        QCOMPARE(std::tuple(edit->words()->count(), edit->totalText()),
                 std::tuple(0, "Total Words In This List: 0"));
        // A click on the definition is Edit Word: nothing is left to choose.
        QTest::mouseRelease(edit->findChild<QWidget*>("DefLabel"), Qt::LeftButton);
        QCOMPARE(f.dialogs.last(), "You need to choose a word to edit from the list below.");
    }
};

QTEST_MAIN(TeacherListsTest)
#include "teacher_lists_test.moc"
