// The teacher's roads: the gate, the manager's file commands, and a list made, edited and saved
// from the title onwards, checked in the file's bytes.
#include <QAction>
#include <QToolBar>

#include "shell/about_form.h"
#include "shell/title.h"
#include "teacher_fixture.h"

using namespace wm;
using namespace wm::test;

namespace {

// Triggers the entry `caption` of the screen's toolbar; whether it has one.
bool Press(QWidget* screen, const QString& caption) {
    for (QAction* a : screen->findChild<QToolBar*>("Toolbar1")->actions())
        if (a->text() == caption) return a->trigger(), true;
    return false;
}

// Through the gate from the title's toolbar, typing `password`.
void enterGate(TeacherFixture& f, Title* title, const QString& password) {
    f.then<PasswordForm>([password](PasswordForm& p) {
        p.box()->setText(password);
        p.confirm();
    });
    QVERIFY2(Press(title, "Teacher Management"), "no toolbar entry Teacher Management");
}

void typePair(MakeNewList* m, const QString& w, const QString& d) {
    m->word()->setText(w);
    m->meaning()->setText(d);
    m->meaningEntered();
}

}  // namespace

class TeacherRoadTest : public QObject {
    Q_OBJECT
private slots:
    void wholeRoadFromTheTitle() {
        TeacherFixture f;
        auto* title = qobject_cast<Title*>(OpenScreen("Title"));
        enterGate(f, title, "MapleTon");
        // The factory password is still set: the alert comes first.
        QCOMPARE(f.dialogs.shown.front().title, "Password Alert");
        auto* manager = Showing<Manager>();
        QVERIFY(manager && manager->windowTitle() == "Teacher Management" && !title->isVisible());
        f.then<AboutForm>([](AboutForm& about) { about.accept(); });  // over the manager
        QVERIFY(Press(manager, "Program Info"));

        f.then<CreateList>([](CreateList& c) {
            c.name()->setText("Fruit");
            c.confirm();
        });
        QVERIFY(manager->command("Create New Vocabulary List"));
        auto* make = Showing<MakeNewList>();
        QCOMPARE(make->caption(), "Fruit");
        typePair(make, "apple", "a red fruit");
        typePair(make, "Banana", "a long yellow fruit");
        typePair(make, "APPLE", "something else");
        QCOMPARE(std::tuple(f.dialogs.last(), make->word()->selectedText()),
                 std::tuple("This word already exists on the list!", "APPLE"));
        typePair(make, "cherry", "A RED FRUIT");
        QCOMPARE(f.dialogs.last(),
                 "Another word with the same definition appears on this list. This could cause "
                 "confusion with some activities. Please re-word the definition so it is not the "
                 "same as the definition for \"apple\".");
        make->meaning()->setText("a small stone fruit");
        make->meaningEntered();
        QCOMPARE(std::tuple(make->totalText(), make->numberText()),
                 std::tuple("Total words in this list: 3", "Word Number: 4"));
        f.dialogs.answerYes();
        make->saveAndQuit();
        QCOMPARE(f.dialogs.shown.back().title, "Confirm Save");
        const QStringList animals = {"Animals", "cat", "a pet", "dog", "a loyal pet", "<New List>"};
        QCOMPARE(f.lists(), f.crlf(animals + QStringList{"Fruit", "apple", "a red fruit", "Banana",
                                                         "a long yellow fruit", "cherry",
                                                         "a small stone fruit"}));

        manager = Showing<Manager>();
        f.then<EditChooseList>([](EditChooseList& e) {
            QCOMPARE(e.lists()->count(), 2);
            e.lists()->setCurrentRow(RowOf(e.lists(), "Fruit"));
            e.choose();
        });
        manager->command("View / Edit Vocabulary List");
        auto* edit = Showing<EditList>();
        QCOMPARE(std::tuple(edit->totalText(), edit->definition()),
                 std::tuple("Total Words In This List: 3", "a red fruit"));
        f.then<WordBox>([](WordBox& a) {
            QCOMPARE(a.objectName(), "AddWord");
            a.word()->setText("date");
            a.meaning()->setText("a sweet brown fruit");
            a.confirm();
        });
        edit->addWord();
        f.dialogs.answerInput("Fruits");
        edit->renameList();
        QCOMPARE(std::tuple(f.dialogs.last(), edit->caption()),
                 std::tuple("List name changed successfully.", "Fruits"));
        edit->select(RowOf(edit->words(), "Banana"));
        f.dialogs.answerYes();
        edit->deleteWord();
        QCOMPARE(std::tuple(f.dialogs.shown.back().text, edit->totalText()),
                 std::tuple("Are you sure you want to delete the word Banana",
                            "Total Words In This List: 3"));
        // The rename is only written by the save.
        QVERIFY(f.lists().contains("Fruit\r\n"));
        f.dialogs.answerYes();
        edit->saveAndQuit();
        QCOMPARE(f.lists(), f.crlf(animals + QStringList{"Fruits", "apple", "a red fruit", "cherry",
                                                         "a small stone fruit", "date",
                                                         "a sweet brown fruit"}));
        Showing<Manager>()->quit();
        QVERIFY(Showing<Title>());
    }

    void gateRefusesAndIgnoresCase() {
        TeacherFixture f;
        RewriteSettingsLine(f.dir.path().toStdString(), kPasswordLine, "Secret");
        auto* title = qobject_cast<Title*>(OpenScreen("Title"));
        enterGate(f, title, "mapleton");
        QCOMPARE(std::tuple(f.dialogs.texts(), Showing<Title>(), title->isVisible()),
                 std::tuple(QStringList{"Incorrect Password."}, title, true));
        enterGate(f, title, "sECRET");
        QVERIFY(Showing<Manager>());
        QCOMPARE(f.dialogs.texts().size(), 1);  // no alert for a password of the teacher's own

        // A settings file that cannot be read opens nothing, not even for an empty password.
        QFile::remove(f.path("wmdata.dat"));
        PasswordForm gate;
        gate.confirm();
        QCOMPARE(f.box(2), "File Error: The file " + f.path("wmdata.dat") +
                               " could not be read or written. Check that it is there and not "
                               "read-only, then try again.");
        QCOMPARE(std::tuple(f.dialogs.last(), gate.result()),
                 std::tuple("Incorrect Password.", int(QDialog::Rejected)));
    }

    void changePasswordChecks() {
        const QString wrong =
            "One or more fields contains incorrect information. Please try again.";
        // What is typed, the refusal ("" for a change), the password in the settings file after,
        // and the one written over the factory password first, if any. The refusal of a new one
        // the file cannot hold does not show it; an old one is not the stored one, even where
        // that holds the "?" an older save made of such a character.
        const std::tuple<QStringList, QString, QString, QString> rows[] = {
            {{"mapleton", "owl", "owl"}, "", "owl", ""},
            {{"MAPLETON", "owl", "owl"}, wrong, "mapleton", ""},
            {{"mapleton", "owl", "Owl"}, wrong, "mapleton", ""},
            {{"mapleton", "", ""}, wrong, "mapleton", ""},
            {{"maple", "owl", "owl"}, wrong, "mapleton", ""},
            {{"mapleton", "пароль", "пароль"},
             "The new password has characters this program cannot store (it keeps Western "
             "European letters only). Please choose a password without them.",
             "mapleton",
             ""},
            {{"mapleΩ", "owl", "owl"}, wrong, "maple?", "maple?"},
            {{"mapleton", "pau\u0308se", "paüse"}, "", "paüse", ""}};  // an accent typed apart
        for (const auto& [typed, refusal, after, stored] : rows) {
            TeacherFixture f;
            if (!stored.isEmpty())
                RewriteSettingsLine(Shared().AppPath, kPasswordLine, fromQ(stored));
            ChangePassword box;
            for (int i = 0; i < 3; ++i) box.field(i)->setText(typed[i]);
            box.confirm();
            QCOMPARE(
                std::tuple(f.dialogs.last(), box.success()->isHidden(), box.field(0)->isHidden(),
                           box.findChild<QWidget*>("Command1")->isHidden()),
                std::tuple(refusal, !refusal.isEmpty(), refusal.isEmpty(), refusal.isEmpty()));
            QCOMPARE(f.read("wmdata.dat"), f.crlf({"Wordmere settings", "Version 1.01", "Sound On",
                                                   after, "listpath", "folderpath"}));
        }
        // A settings file whose password line was left blank: an empty old password is no key.
        TeacherFixture f;
        RewriteSettingsLine(Shared().AppPath, kPasswordLine, "");
        ChangePassword box;
        for (int i : {1, 2}) box.field(i)->setText("owl");
        box.confirm();
        QCOMPARE(f.dialogs.last(), wrong);
    }

    void backupRestoreClearScoresAndLink() {
        TeacherFixture f;
        Manager m;
        // The three tabs by their names; each shows its own frame.
        for (int tab : {2, 1, 0}) {
            auto* button = m.findChild<QPushButton*>(QString("TLabel%1").arg(tab));
            QCOMPARE(button->text(), QStringList({"List Management", "List Options",
                                                  "Program Options"})[tab]);
            button->click();
            QCOMPARE(m.frame(), tab);
        }
        const QByteArray before = f.lists();
        m.command("Backup Lists");  // No: nothing written
        QVERIFY(!f.exists("thelists.bak"));
        f.dialogs.answerYes();
        m.command("Restore Backup Lists");
        QCOMPARE(f.box(), "Error: No Backup file can be found");
        f.dialogs.answerYes();
        m.command("Backup Lists");
        QVERIFY(f.box() == "Backup Complete: Backup successful." &&
                f.read("thelists.bak") == before);
        f.writeLines("thelists.dat", {"No Lists"});
        f.dialogs.answerYes();
        m.command("Restore Backup Lists");
        QVERIFY(f.dialogs.shown.back().text == "Restore successful." && f.lists() == before);

        f.writeLines("scores/Hangman.dat", {"x"});
        f.writeLines("scores/Quiz.dat", {"x"});
        m.command("Clear High Scores");  // No
        QVERIFY(f.exists("scores/Hangman.dat"));
        f.dialogs.answerYes();
        m.command("Clear High Scores");
        QVERIFY(f.box(2).startsWith("Are you sure?: ") &&
                f.dialogs.last() == "High Scores Cleared");
        QVERIFY(!f.exists("scores/Hangman.dat") && !f.exists("scores/Quiz.dat"));

        QDir(f.dir.path()).mkpath("shared");
        f.writeLines("shared/thelists.dat", {"Planets", "Mars", "the red planet"});
        f.dialogs.answerYes().answerYes();
        f.dialogs.fileAnswers.push_back(f.path("shared/thelists.dat"));
        m.command("Link to Alternate Vocabulary List File");
        QVERIFY(f.box(2).startsWith("Use this file?: "));
        QCOMPARE(std::tuple(f.dialogs.last(), toQ(Shared().ListFilePath)),
                 std::tuple("Link successful.", f.path("shared/thelists.dat")));
        QVERIFY(f.read("wmdata.dat")
                    .endsWith("\r\n" + f.path("shared/thelists.dat").toLatin1() +
                              "\r\nfolderpath\r\n"));
        // The editors now read the linked file; the backup still goes to the program's folder.
        EditChooseList choose;
        QCOMPARE(std::tuple(choose.lists()->count(), choose.lists()->item(0)->text()),
                 std::tuple(1, "Planets"));
        f.dialogs.answerYes();
        m.command("Backup Lists");
        QCOMPARE(f.read("thelists.bak"), f.crlf({"Planets", "Mars", "the red planet"}));
        // A cancelled file dialog changes nothing.
        const QByteArray settings = f.read("wmdata.dat");
        f.dialogs.answerYes();
        m.command("Link to Alternate Vocabulary List File");
        QCOMPARE(f.read("wmdata.dat"), settings);
    }
};

QTEST_MAIN(TeacherRoadTest)
#include "teacher_road_test.moc"
