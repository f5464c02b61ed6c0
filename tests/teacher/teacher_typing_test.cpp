// What the teacher types, key by key: Enter moves on through a box and then presses its OK,
// never Cancel; text the list file cannot hold is refused where it is typed, and letters typed
// with a separate accent are stored as the one accented letter. Also the category file the
// editor may not take.
#include "look.h"
#include "shell/fl_form.h"
#include "teacher/list_exchange.h"
#include "teacher_fixture.h"

using namespace wm;
using namespace wm::test;

namespace {

const QStringList kLists = {"Animals",    "cat",   "a pet", "dog",       "a loyal pet",
                            "<New List>", "Trees", "oak",   "a big tree"};
const QString kAcute = QString(QChar(0x0301));  // a combining accent, as sent apart
const char* kCannotStore =
    "has characters this program cannot store (it keeps Western European letters only)";

// The widget that has the keyboard in `window`.
QWidget* Focused(QWidget* window) {
    QApplication::processEvents();
    QWidget* w = QApplication::focusWidget();
    if (!w || w->window() != window) w = window->focusWidget();
    return w ? w : window;
}

QString Refusal(const QString& typed, const QString& characters) {
    return QString("The text \"%1\" %2: %3. Please type it without them.")
        .arg(typed, kCannotStore, characters);
}

}  // namespace

class TeacherTypingTest : public QObject {
    Q_OBJECT
    static void Type(QWidget* w, const QString& text) { QTest::keyClicks(Focused(w), text); }
    static void Enter(QWidget* w) { QTest::keyClick(Focused(w), Qt::Key_Return); }

private slots:
    // The boxes' own words (typos included), and the one button Enter presses in each: never
    // the way out.
    void captionsAndTheButtonEnterPresses() {
        TeacherFixture f(kLists);
        Shared().CurrentListName = "Animals";
        const std::vector<std::tuple<std::function<QDialog*()>, QString, QStringList>> boxes = {
            {[] { return new WordBox(WordBox::Add); }, "OK", {}},
            {[] { return new WordBox(WordBox::Edit); }, "OK", {}},
            {[] { return new ChangePassword; }, "Change Password", {}},
            {[] { return new PasswordForm; }, "OK", {}},
            {[] { return new CreateList; }, "OK", {}},
            {[] { return new EditChooseList; }, "Edit List",
             {"Label1=Choose the list you want to view or edit:"}},
            {[] { return new DeleteList; }, "Delete",
             {"Label1=To Delete A List:",
              "Label2=Choose the List Name in the Box Below and Click the \"Delete\" Button.",
              "Sure=Are you sure you want to permenantly delete this list?", "Command1=Delete",
              "Command2=Finished"}},
            {[] { return new MergeForm; }, "OK",
             {"Label1=Select two or more lists to merge.", "Command1=OK", "Command2=Cancel"}},
            {[] { return new BuildListForm; }, "Save",
             {"Label4=New Word List:", "Command3=Add to List >>>", "Command4=Delete Word",
              "Command2=Save", "Command1=Cancel"}},
            {[] { return new Categories; }, "Save",
             {"Label2=Categories", "Label3=Word Lists (None Selected)", "Command2=Add New Category",
              "Command3=Delete Category", "Command1=Save", "Command4=Cancel"}},
            {[] { return new SoundOptions; }, "Save", {}},
            {[] { return new SpeechOptions; }, "Save",
             {"RateLabel=Speaking rate:",
              "SpeechOn=Games may say the words aloud (\"Say It\" and the flash cards' speaker)"}},
            {[] { return new ExportForm; }, "Export",
             {"Command1=Cancel", "Browse=Browse...", "Kvtml=KVTML (vocabulary trainers)"}},
            {[] { return new EnableDisable; }, "Apply", {}},
        };
        for (const auto& [make, okText, captions] : boxes) {
            std::unique_ptr<QDialog> box(make());
            QStringList defaults;
            for (QPushButton* b : box->findChildren<QPushButton*>())
                if (b->isDefault()) defaults << b->text();
            QCOMPARE(defaults, QStringList{okText});
            for (const QString& c : captions) {
                QWidget* w = box->findChild<QWidget*>(c.section('=', 0, 0));
                QVERIFY2(w, qPrintable(c));
                QCOMPARE(c.section('=', 0, 0) + "=" + w->property("text").toString(), c);
            }
            box->show();
            WM_CHECK_LOOK("Teacher_" + box->objectName(), box);
        }
        // The teacher's full screens as they open.
        for (const QString screen : {"Manager", "EditList", "MakeNewList"}) {
            QWidget* shown = screen == "MakeNewList" ? OpenMaker("Birds") : OpenScreen(screen);
            Pump();
            WM_CHECK_LOOK("Teacher_" + screen, shown);
        }
    }

    void addWordByKeys_data() {
        QTest::addColumn<bool>("wordsOnly");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("with definitions")
            << false << QStringList{"cat", "a pet", "dog", "a loyal pet", "owl", "a wise bird"};
        QTest::newRow("words only") << true
                                    << QStringList{"cat", "-----", "dog", "-----", "owl", "-----"};
    }

    // Enter in the word moves on to the definition; Enter there is OK, which beeps and stays
    // while a box is empty. A words-only list has no definition box: Enter in the word is OK.
    void addWordByKeys() {
        QFETCH(bool, wordsOnly);
        QFETCH(QStringList, lines);
        QStringList file = {"Trees", "oak", "a big tree", "<New List>", "Animals"};
        for (int i = 0; i < 4; ++i) file << lines[i];
        TeacherFixture f(file);
        EditList* edit = OpenEditor("Animals");
        f.then<WordBox>([&](WordBox& box) {
            QCOMPARE(box.objectName(), "AddWord");
            Enter(&box);  // empty word: moves on (or, words-only, beeps and stays)
            QVERIFY(box.isVisible() && Focused(&box) == (wordsOnly ? box.word() : box.meaning()));
            if (!wordsOnly) {
                Enter(&box);  // both empty: beeps and stays
                QVERIFY(box.isVisible());
                box.word()->setFocus();
            }
            Type(&box, "owl");
            Enter(&box);
            if (!wordsOnly) {
                QVERIFY(box.isVisible() && Focused(&box) == box.meaning());
                QCOMPARE(box.word()->text(), "owl");
                Type(&box, "a wise bird");
                Enter(&box);
            }
            QCOMPARE(box.result(), int(QDialog::Accepted));
        });
        edit->findChild<QAction*>("AddWord")->trigger();  // the toolbar's button
        QCOMPARE(edit->findChild<QLabel*>("TotalLabel")->text(), "Total Words In This List: 3");
        f.dialogs.answerYes();
        edit->saveAndQuit();
        QCOMPARE(f.lists(), f.crlf(file.mid(0, 3) + QStringList{"<New List>", "Animals"} + lines));
    }

    // The new-list screens: the name box takes Enter as OK; the word and definition boxes of the
    // list being made move on and add.
    void newListByKeys() {
        TeacherFixture f(kLists);
        CreateList create;
        create.show();
        create.name()->setFocus();
        Type(&create, "Birds");
        Enter(&create);
        QCOMPARE(std::tuple(create.result(), toQ(Shared().NewListName)),
                 std::tuple(int(QDialog::Accepted), "Birds"));

        MakeNewList* m = OpenMaker("Birds");
        QCOMPARE(Focused(m), m->word());
        Enter(m);
        QCOMPARE(f.dialogs.last(), "You need to type a word!");
        Type(m, "owl");
        Enter(m);
        QCOMPARE(Focused(m), m->meaning());
        Enter(m);
        QCOMPARE(f.dialogs.texts(),
                 (QStringList{"You need to type a word!", "You need to type a definition!"}));
        Type(m, "a wise bird");
        Enter(m);
        QCOMPARE(
            std::tuple(m->words()->count(), Focused(m), m->word()->text() + m->meaning()->text()),
            std::tuple(1, m->word(), ""));
        // With the definition already there, Enter in the word adds the pair.
        m->meaning()->setText("lays eggs");
        m->word()->setFocus();
        Type(m, "hen");
        Enter(m);
        QCOMPARE(std::tuple(m->words()->count(), m->totalText()),
                 std::tuple(2, "Total words in this list: 2"));
    }

    void textTheFileCannotHold_data() {
        QTest::addColumn<QString>("where");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("characters");
        const QString greek = QString::fromUtf8("Ωmega");
        const QString mixed = QString::fromUtf8("Жук и жаба 😀");
        const QString q = "q" + kAcute;  // no letter q with an acute: it stays two characters
        for (const char* where : {"new definition", "edit box", "edit rename", "create",
                                  "category", "merge", "build"}) {
            QTest::newRow(qPrintable(QString(where) + ", greek")) << where << greek << "Ω";
        }
        QTest::newRow("new word, each character once")
            << "new word" << mixed << QString::fromUtf8("Ж у к и ж а б 😀");
        QTest::newRow("link, greek") << "link" << greek << "Ω";
        QTest::newRow("edit box, a lone accent")
            << "edit box" << q << QString(QChar(0x25CC)) + kAcute;
    }

    // Each place that takes typed text refuses what the file cannot hold, says which characters,
    // and keeps the file as it was.
    void textTheFileCannotHold() {
        QFETCH(QString, where);
        QFETCH(QString, typed);
        QFETCH(QString, characters);
        TeacherFixture f(kLists);
        const QByteArray lists = f.lists();
        const QByteArray folders = f.read("folders.dat");
        const QString message = Refusal(typed, characters);
        if (where == "new word" || where == "new definition") {
            MakeNewList* m = OpenMaker("Birds");
            m->word()->setText(where == "new word" ? typed : "owl");
            m->meaning()->setText(where == "new word" ? "a bird" : typed);
            m->addWord();
            QLineEdit* refused = where == "new word" ? m->word() : m->meaning();
            QCOMPARE(std::tuple(m->words()->count(), Focused(m), refused->selectedText()),
                     std::tuple(0, refused, typed));  // selected, to be typed over
        } else if (where == "edit box") {
            EditList* edit = OpenEditor("Animals");
            edit->select(0);
            f.then<WordBox>([&](WordBox& box) {
                box.word()->setText(typed);
                box.meaning()->setText("a bird");
                box.confirm();
                QVERIFY(f.dialogs.saw(message) && box.isVisible() && Focused(&box) == box.word());
                box.reject();
            });
            edit->editWord();
            QCOMPARE(std::tuple(edit->words()->count(), edit->words()->item(0)->text()),
                     std::tuple(2, "cat"));
        } else if (where == "edit rename") {
            EditList* e = OpenEditor("Animals");
            f.dialogs.answerInput(typed);
            e->renameList();
            QCOMPARE(e->caption(), "Animals");
        } else if (where == "create") {
            CreateList c;
            c.name()->setText(typed);
            c.confirm();
            QCOMPARE(c.result(), int(QDialog::Rejected));
        } else if (where == "category") {
            {
                Categories c;
                f.dialogs.answerInput(typed);
                c.addCategory();
                QCOMPARE(c.categories()->count(), 0);
                f.dialogs.answerYes();
                c.save();
            }
            QCOMPARE(f.read("folders.dat"), folders);
        } else if (where == "merge") {
            MergeForm merge;
            merge.lists()->selectAll();
            f.dialogs.answerYes().answerInput(typed);
            merge.confirm();
            QCOMPARE(merge.result(), int(QDialog::Rejected));
        } else if (where == "link") {
            // A list file in a folder whose name the settings file cannot hold is not linked.
            const QString folder = f.path(typed);
            QDir().mkpath(folder);
            const QByteArray settings = f.read("wmdata.dat");
            Manager m;
            f.dialogs.answerYes();
            f.dialogs.fileAnswers.push_back(folder + "/thelists.dat");
            m.command("Link to Alternate Vocabulary List File");
            QCOMPARE(f.dialogs.last(),
                     "The file " + folder +
                         "/thelists.dat cannot be linked: its "
                         "name or folder has characters this program cannot store (it "
                         "keeps Western European letters only). Move the file to a "
                         "folder with a plainer name, then try again.");
            QCOMPARE(f.read("wmdata.dat"), settings);
        } else if (where == "build") {
            // The name is asked for again, as for a taken one.
            Manager m;
            f.dialogs.answerInput(typed).answerInput(std::nullopt);
            m.command("Create List from Existing Lists");
            QCOMPARE(f.dialogs.texts().mid(1, 2),
                     (QStringList{message, "Type in the name for your new vocabulary list."}));
            QVERIFY(!f.opened.contains("BuildListForm"));
        }
        if (where != "link") QVERIFY2(f.dialogs.saw(message), qPrintable(f.dialogs.last()));
        QCOMPARE(f.lists(), lists);
    }

    // "e" followed by a combining acute, as some keyboards send it, is the one byte of "é" in the
    // file: in words, definitions and list names alike.
    void accentTypedApartIsStoredComposed() {
        const QString cafe = "cafe" + kAcute;
        const QString creme = "cre" + QString(QChar(0x0300)) + "me";  // crème
        TeacherFixture f(kLists);
        CreateList create;
        create.name()->setText(cafe);
        create.confirm();
        QCOMPARE(std::tuple(create.result(), Shared().NewListName),
                 std::tuple(int(QDialog::Accepted), "caf\xE9"));

        MakeNewList* m = OpenMaker(toQ(Shared().NewListName));
        m->word()->setText(creme);
        m->meaning()->setText(cafe + " au lait");
        m->addWord();
        QCOMPARE(m->words()->item(0)->text(), QString::fromUtf8("crème"));
        f.dialogs.answerYes();
        m->saveAndQuit();
        QCOMPARE(f.lists(), f.crlf(kLists) + QByteArray("<New List>\r\ncaf\xE9\r\ncr\xE8me\r\n"
                                                        "caf\xE9 au lait\r\n"));
    }

    // The palette's character goes into the box its button names; a palette closed without a
    // character puts nothing in, even with one left from before.
    void paletteCharacterAndCategoryFileNotNamedFoldersDat() {
        TeacherFixture f(kLists);
        WordBox box(WordBox::Add);
        box.word()->setText("caf");
        f.then<FLForm>([](FLForm& fl) {
            fl.pickCell(0);
            fl.insert(0);
        });
        box.foreign();
        const QString first = box.word()->text().mid(3);
        QCOMPARE(std::tuple(first.size(), toQ(Shared().CurrentGame)), std::tuple(1, "addword"));
        f.then<FLForm>([](FLForm& fl) {
            fl.pickCell(1);
            fl.insert(1);
        });
        box.foreign();
        const QString second = box.meaning()->text();
        QVERIFY(second.size() == 1 && second != first);
        f.then<FLForm>([](FLForm& fl) { fl.reject(); });
        box.foreign();
        QCOMPARE(std::tuple(box.word()->text(), box.meaning()->text()),
                 std::tuple("caf" + first, second));
        // The settings may name a category file of another name. Readers then read its .lok name
        // (kept so), which the editor would take for the categories and save over the real file: it
        // refuses.
        f.writeLines("cats.dat", {"^Zoo", "Animals"});
        const QByteArray before = f.read("cats.dat");
        Shared().FolderFilePath = f.path("cats.dat").toStdString();
        const QString refusal =
            "The category file " + f.path("cats.dat") +
            " cannot be edited, because it is not named folders.dat: its categories cannot be read "
            "safely while it is locked. Rename it to folders.dat (and change its path in the "
            "settings file to match), then try again. The file has not been changed.";
        Manager m;
        m.command("List Categories");
        QCOMPARE(std::tuple(f.dialogs.texts(), f.dialogs.shown.back().title,
                            f.opened.contains("Categories")),
                 std::tuple(QStringList{refusal}, "Categories", false));
        // Opened all the same, the box holds nothing and its save writes nothing.
        {
            Categories c;
            QVERIFY(!c.loaded() && f.dialogs.last() == refusal);
            f.dialogs.answerYes();
            c.save();
        }
        QCOMPARE(std::tuple(f.read("cats.dat"), f.exists("cats.lok")), std::tuple(before, false));
    }
};

QTEST_MAIN(TeacherTypingTest)
#include "teacher_typing_test.moc"
