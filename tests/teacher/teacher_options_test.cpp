// Categories and their lock (also against a second process), game visibility and the sound
// default, each seen in the files and at the next start of the title.
#include <sys/wait.h>
#include <unistd.h>
#include <QSlider>

#include "core/display_file.h"
#include "platform/speech.h"
#include "shell/catalogue.h"
#include "teacher_fixture.h"

using namespace wm;
using namespace wm::test;

namespace {

const QStringList kLists = {"Animals", "cat",        "a pet", "<New List>", "[S]Colours", "red",
                            "rojo",    "<New List>", "Birds", "owl",        "wise"};

// Another program takes the lock, as a second teacher's copy would, and goes away.
void LockFromAnotherProcess(const std::string& folderFile) {
    const pid_t child = fork();
    if (child == 0) {
        try {
            LockCategories(folderFile);
        } catch (...) {
            _exit(1);
        }
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    QCOMPARE(WEXITSTATUS(status), 0);
}

}  // namespace

class TeacherOptionsTest : public QObject {
    Q_OBJECT
private slots:
    void categoriesSaveHoldsTheLockWhileOpen() {
        TeacherFixture f(kLists);
        f.writeLines("folders.dat", {"^Zoo", "Animals", "", "^Home"});
        Categories c;
        QCOMPARE(std::tuple(f.exists("folders.lok"), f.exists("folders.dat"), c.lists()->count(),
                            c.categories()->count()),
                 std::tuple(true, false, 3, 2));
        // A tick with no category chosen is refused and undone.
        c.setTicked("Birds", true);
        QCOMPARE(f.dialogs.last(), "You must first highlight a category to add these lists to.");
        QCOMPARE(c.lists()->item(RowOf(c.lists(), "Birds"))->checkState(), Qt::Unchecked);
        c.pickCategory(0);
        QCOMPARE(c.countText(), "Word Lists (1 Selected)");
        c.setTicked("Birds", true);
        QCOMPARE(c.countText(), "Word Lists (2 Selected)");
        c.setTicked("Animals", false);
        QCOMPARE(c.countText(), "Word Lists (1 Selected)");
        f.dialogs.answerInput("Art");
        c.findChild<QPushButton*>("Command2")->click();  // Add New Category
        QCOMPARE(c.countText(), "Word Lists (None Selected)");
        QVERIFY(f.dialogs.last().startsWith("Your new category has been created."));
        c.setTicked("Colours", true);
        c.deleteCategory();  // No
        QCOMPARE(f.dialogs.shown.back().text, "Are you sure you want to delete the category ART?");
        c.pickCategory(1);
        f.dialogs.answerYes();
        c.deleteCategory();
        QCOMPARE(c.categories()->count(), 2);
        c.save();  // No: still open and locked
        QVERIFY(f.exists("folders.lok"));
        f.dialogs.answerYes();
        c.save();
        QVERIFY(c.result() == QDialog::Accepted && !f.exists("folders.lok"));
        // Blank lines are dropped; a category is only its "^" line and the names under it.
        QCOMPARE(f.read("folders.dat"), f.crlf({"^Zoo", "Birds", "^Art", "Colours"}));
        // Cancel and the close box leave the file as it was, and unlocked.
        const QByteArray before = f.read("folders.dat");
        for (bool closeBox : {false, true}) {
            {
                Categories c;
                c.pickCategory(0);
                c.setTicked("Animals", true);
                c.show();
                closeBox ? void(c.close()) : c.reject();
            }
            QVERIFY(f.read("folders.dat") == before && !f.exists("folders.lok"));
        }
    }

    void lockHeldByAnotherProcess() {
        TeacherFixture f(kLists);
        f.writeLines("folders.dat", {"^Zoo", "Animals"});
        LockFromAnotherProcess(Shared().FolderFilePath);
        QVERIFY(f.exists("folders.lok"));
        Manager m;
        m.command("List Categories");  // No: the lock stands
        QVERIFY(f.dialogs.last().startsWith(
            "The categories list is currently being edited by another user."));
        QVERIFY(f.exists("folders.lok") && !f.opened.contains("Categories"));
        f.dialogs.answerYes();
        m.command("List Categories");  // Yes, then No to the second question
        QCOMPARE(f.dialogs.last(),
                 "Are you sure that you want to force this file unlocked?. Note that forcing an "
                 "unlock while another user is modifying the categories will cause system "
                 "instability.");
        QVERIFY(f.exists("folders.lok"));
        f.dialogs.answerYes().answerYes();
        f.then<Categories>([&](Categories& c) {
            QCOMPARE(c.categories()->item(0)->text(), "Zoo");
            QVERIFY(f.exists("folders.lok"));  // locked again, now by this box
            c.reject();
        });
        m.command("List Categories");
        QVERIFY(f.exists("folders.dat") && !f.exists("folders.lok"));
    }

    void visibilityCountsFromTheNextStart() {
        TeacherFixture f;
        OpenScreen("Title");
        const int shown = Shared().VisibleGameCount;
        QCOMPARE(shown, Shared().GameCount);
        f.then<EnableDisable>([&](EnableDisable& e) {
            QVERIFY(e.games()->count() == Shared().GameCount && e.option(0)->isChecked());
            e.option(2)->setChecked(true);
            e.games()->item(0)->setCheckState(Qt::Unchecked);
            e.games()->item(2)->setCheckState(Qt::Unchecked);
            e.apply();  // No
            QCOMPARE(f.dialogs.last(), "Apply these changes?");
            f.dialogs.answerYes();
            e.apply();
        });
        auto* m = qobject_cast<Manager*>(OpenScreen("Manager", CurrentScreen()));
        m->command("Show/Hide Games");
        const DisplaySettings d = ReadDisplaySettings(f.path("wmgdisplay.dat").toStdString());
        const auto& names = Shared().GameNames;
        // The count changes not before the next start.
        QCOMPARE(std::tuple(d.scale, d.hidden, Shared().VisibleGameCount),
                 std::tuple(0.5, std::vector<std::string>{names[1], names[3]}, shown));
        m->quit();
        QCOMPARE(Shared().VisibleGameCount, shown - 2);
        // The box reads back what it wrote.
        EnableDisable again;
        QCOMPARE(std::tuple(again.option(2)->isChecked(), again.games()->item(0)->checkState(),
                            again.games()->item(1)->checkState()),
                 std::tuple(true, Qt::Unchecked, Qt::Checked));
    }

    void soundDefaultCountsFromTheNextStart() {
        TeacherFixture f;
        OpenScreen("Title");
        QCOMPARE(Shared().SoundDefault, kTrue);
        SoundOptions box;
        QVERIFY(box.on()->isChecked());
        box.off()->setChecked(true);
        box.save();
        QCOMPARE(std::tuple(f.read("wmdata.dat"), Shared().SoundDefault),
                 std::tuple(f.crlf({"Wordmere settings", "Version 1.01", "Sound Off", "mapleton",
                                    "listpath", "folderpath"}),
                            kTrue));
        OpenScreen("Title", CurrentScreen());
        QCOMPARE(Shared().SoundDefault, kFalse);
        // Any other text leaves both buttons clear.
        RewriteSettingsLine(f.dir.path().toStdString(), kSoundLine, "loud");
        SoundOptions odd;
        QVERIFY(!odd.on()->isChecked() && !odd.off()->isChecked());
    }

    void speechSettingCountsAtOnceAndIsKeptBehindTheSix() {
        RecordingSpeech voice;  // outlives the screens the fixture closes
        TeacherFixture f;
        services().speech = &voice;
        OpenScreen("Title");
        f.then<SpeechOptions>([&](SpeechOptions& box) {
            QVERIFY(box.speechOn()->isChecked());  // the factory file has no speech lines
            box.rate()->setValue(-6);
            box.tryIt()->click();
            QCOMPARE(voice.said.value(0).rate, -6);
            box.speechOn()->setChecked(false);
            box.save();
        });
        Manager().command("Speech Options");
        QCOMPARE(f.read("wmdata.dat"),
                 f.crlf({"Wordmere settings", "Version 1.01", "Sound On", "mapleton", "listpath",
                         "folderpath", "Speech Off", "-6"}));
        QCOMPARE(Shared().SpeechOn, kFalse);
    }
};

QTEST_MAIN(TeacherOptionsTest)
#include "teacher_options_test.moc"
