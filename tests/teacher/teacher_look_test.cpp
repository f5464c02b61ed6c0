// Every teacher screen and box at the two display sizes we design for: nothing cut off, and a
// picture of each for looking at (WM_SHOTS names the folder).
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QAction>
#include <QToolBar>
#include <QtTest>
#include <functional>

#include "teacher/build_list_form.h"
#include "teacher/categories.h"
#include "teacher/create_list.h"
#include "teacher/delete_list.h"
#include "teacher/edit_choose_list.h"
#include "teacher/gate.h"
#include "teacher/list_exchange.h"
#include "teacher/merge_form.h"
#include "teacher/program_options.h"
#include "teacher/word_boxes.h"
#include "teacher_fixture.h"

using namespace wm;
using namespace wm::test;

namespace {

// Every visible button shows its whole caption, and the layout fits the window.
void CheckFits(QWidget* w, const QString& what) {
    w->show();
    QApplication::processEvents();
    if (w->layout()) {
        const QSize need = w->layout()->minimumSize();
        QVERIFY2(need.width() <= w->width() && need.height() <= w->height(),
                 qPrintable(QString("%1 needs %2x%3, has %4x%5")
                                .arg(what)
                                .arg(need.width())
                                .arg(need.height())
                                .arg(w->width())
                                .arg(w->height())));
    }
    for (QPushButton* b : w->findChildren<QPushButton*>()) {
        if (!b->isVisible()) continue;
        QVERIFY2(b->fontMetrics().horizontalAdvance(b->text()) <= b->width(),
                 qPrintable(what + ": " + b->text()));
    }
    // Every toolbar key has its picture.
    for (QToolBar* bar : w->findChildren<QToolBar*>()) {
        for (QAction* a : bar->actions())
            QVERIFY2(!a->icon().isNull(), qPrintable(what + ": " + a->text()));
    }
}

}  // namespace

class TeacherLookTest : public QObject {
    Q_OBJECT
private slots:
    void everyScreenAtBothSizes_data();
    void everyScreenAtBothSizes();
};

void TeacherLookTest::everyScreenAtBothSizes_data() {
    QTest::addColumn<QSize>("size");
    QTest::newRow("1280x800") << QSize(1280, 800);
    QTest::newRow("1920x1080") << QSize(1920, 1080);
}

void TeacherLookTest::everyScreenAtBothSizes() {
    QFETCH(QSize, size);
    TeacherFixture f({"Animals", "cat", "a pet", "dog", "a loyal pet", "<New List>", "Birds", "owl",
                      "a wise bird of the night", "<New List>", "[S]Colours", "red", "rojo"});
    f.writeLines("folders.dat", {"^Zoo", "Animals", "Birds"});
    ScreenMetrics::overrideScreenSize(size);
    OpenScreen("Title");  // fills the game names
    const QString tag = QString("-%1").arg(size.width());
    for (const char* name : {"Manager", "MakeNewList", "EditList"}) {
        // The new-list screen takes its name as the current list, so set both each time.
        Shared().CurrentListName = "Birds";
        Shared().NewListName = "Insects";
        QWidget* w = OpenScreen(name, CurrentScreen());
        QVERIFY(w);
        QCOMPARE(w->size(), size);
        CheckFits(w, name);
        Shot(w, name + tag);
    }
    const std::vector<std::pair<QString, std::function<QDialog*()>>> boxes = {
        {"PasswordForm", [] { return new PasswordForm; }},
        {"ChangePassword", [] { return new ChangePassword; }},
        {"CreateList", [] { return new CreateList; }},
        {"EditChooseList", [] { return new EditChooseList; }},
        {"EditWord", [] { return new WordBox(WordBox::Edit); }},
        {"DeleteList", [] { return new DeleteList; }},
        {"MergeForm", [] { return new MergeForm; }},
        {"BuildListForm", [] { return new BuildListForm; }},
        {"Categories", [] { return new Categories; }},
        {"SoundOptions", [] { return new SoundOptions; }},
        {"EnableDisable", [] { return new EnableDisable; }},
        {"ExportForm", [] { return new ExportForm; }},
        {"ImportPreview",
         [] {
             ImportedList l;
             l.format = "CSV";
             for (int i = 1; i <= 14; ++i) l.pairs.append({QString("word %1").arg(i), "meaning"});
             return new ImportPreview(l, "words.csv");
         }},
    };
    for (const auto& [name, make] : boxes) {
        std::unique_ptr<QDialog> box(make());
        CheckFits(box.get(), name);
        Shot(box.get(), name + tag);
        box->reject();
    }
    QVERIFY(!f.exists("folders.lok"));
}

QTEST_MAIN(TeacherLookTest)
#include "teacher_look_test.moc"
