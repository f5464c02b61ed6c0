#include "teacher/manager.h"

#include <QApplication>
#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolBar>
#include <QVBoxLayout>

#include "core/category_file.h"
#include "core/line_file.h"
#include "core/list_file.h"
#include "core/settings_file.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/about_form.h"
#include "shell/game_frame.h"
#include "shell/screens.h"
#include "teacher/build_list_form.h"
#include "teacher/categories.h"
#include "teacher/create_list.h"
#include "teacher/delete_list.h"
#include "teacher/edit_choose_list.h"
#include "teacher/gate.h"
#include "teacher/list_exchange.h"
#include "teacher/merge_form.h"
#include "teacher/program_options.h"
#include "teacher/teacher_kit.h"
#include "teacher/worksheets/print_worksheets.h"

namespace wm {

namespace {
const char* kTabNames[3] = {"List Management", "List Options", "Program Options"};
const char* kFrameNames[3] = {"ListManFrame", "ListOptionsFrame", "ProgOptionsFrame"};
const char* kTakenName =
    "The list name you typed already exists. Please choose another name for your new list.";
}  // namespace

Manager::Manager(QWidget* parent) : Backdrop("images/wm-back.jpg", parent) {
    setWindowTitle("Teacher Management");
    Toolbar1 = new QToolBar(this);
    Toolbar1->setObjectName("Toolbar1");
    Toolbar1->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    Toolbar1->setFont(ScreenFont(11, true));
    const int iconSide = ScreenFont(14).pointSize() * 2;
    Toolbar1->setIconSize(QSize(iconSide, iconSide));
    auto icon = [](const char* name) {
        return QIcon(LoadPicture(QString("images/tb-%1.png").arg(name)));
    };
    Toolbar1->addAction(icon("quit"), "Return to Main Screen", this, &Manager::quit);
    Toolbar1->addAction(icon("info"), "Program Info", this, [this] {
        AboutForm form(this);
        RunModal(form);
    });

    QVBoxLayout* layout = CentredPanel(
        this, {.side = 2, .width = 8, .height = 12, .marginX = 40, .marginY = 28, .spacing = 14},
        "Teacher Management", Toolbar1);
    QWidget* panel = layout->parentWidget();

    auto* tabs = new QHBoxLayout;
    tabs->setSpacing(8);
    frames_ = new QStackedWidget(panel);
    for (int i = 0; i < 3; ++i) {
        TLabel[i] = new QPushButton(kTabNames[i], panel);
        TLabel[i]->setObjectName(QString("TLabel%1").arg(i));
        TLabel[i]->setCheckable(true);
        TLabel[i]->setFont(ScreenFont(14, true));
        TLabel[i]->setCursor(Qt::PointingHandCursor);
        TLabel[i]->setStyleSheet(
            "QPushButton { border: none; border-bottom: 3px solid transparent; padding: 8px 18px;"
            " color: #5a6b80; background: transparent; }"
            "QPushButton:checked { color: #1f3f6a; border-bottom: 3px solid #2f6fc4; }"
            "QPushButton:hover { color: #2f6fc4; }");
        connect(TLabel[i], &QPushButton::clicked, this, [this, i] { showFrame(i); });
        tabs->addWidget(TLabel[i]);
        Frames[i] = new QWidget(frames_);
        Frames[i]->setObjectName(kFrameNames[i]);
        auto* column = new QVBoxLayout(Frames[i]);
        column->setContentsMargins(8, 12, 8, 4);
        grids_[i] = new QGridLayout;
        grids_[i]->setHorizontalSpacing(24);
        grids_[i]->setVerticalSpacing(18);
        column->addLayout(grids_[i]);
        column->addStretch(1);
        frames_->addWidget(Frames[i]);
    }
    tabs->addStretch();
    layout->addLayout(tabs);
    layout->addWidget(frames_, 1);

    addCommand(0, "Create New Vocabulary List", "Start a list from nothing",
               [this] { createList(); });
    addCommand(0, "View / Edit Vocabulary List", "Change, add or remove words",
               [this] { editList(); });
    addCommand(0, "Delete Vocabulary List", "Remove a list for good", [this] { deleteList(); });
    addCommand(0, "Merge Word Lists", "Join whole lists into a new one", [this] { mergeLists(); });
    addCommand(0, "Create List from Existing Lists", "Pick words from other lists",
               [this] { buildList(); });
    addCommand(0, "List Categories", "File lists under categories", [this] { categories(); });
    addCommand(0, "Import List...", "From a CSV, tab separated or KVTML file",
               [this] { ImportList(this); });
    addCommand(0, "Export List...", "Save a list for other programs", [this] { ExportList(this); });
    addCommand(0, "Print Worksheets...", "Word searches, crosswords and more, with answers",
               [this] { printWorksheets(); });
    addCommand(1, "Backup Lists", "Keep a copy of every list", [this] { backupLists(); });
    addCommand(1, "Restore Backup Lists", "Bring back the copy", [this] { restoreLists(); });
    addCommand(1, "Link to Alternate Vocabulary List File", "Share lists with another computer",
               [this] { linkListFile(); });
    addCommand(2, "Change Password", "Keep the teacher's screens safe",
               [this] { changePassword(); });
    addCommand(2, "Sound Options", "Sound on or off at start", [this] { soundOptions(); });
    addCommand(2, "Speech Options", "Words said aloud, and how fast", [this] { speechOptions(); });
    addCommand(2, "Show/Hide Games", "Choose the games on the title screen",
               [this] { showHideGames(); });
    addCommand(2, "Clear High Scores", "Empty every high score table",
               [this] { clearHighScores(); });

    auto* foot = new QHBoxLayout;
    foot->addStretch();
    QuitButton = NamedButton("QuitButton", "Quit Management", panel);
    connect(QuitButton, &QPushButton::clicked, this, &Manager::quit);
    foot->addWidget(QuitButton);
    layout->addLayout(foot);
    showFrame(0);
}

QPushButton* Manager::addCommand(int frame, const QString& caption, const QString& note,
                                 std::function<void()> action) {
    QGridLayout* grid = grids_[frame];
    const int n = Frames[frame]->findChildren<QPushButton*>().size();
    auto* cell = new QVBoxLayout;
    cell->setSpacing(2);
    QPushButton* b = MakeButton(caption, Frames[frame]);
    b->setMinimumWidth(ScreenFont(10).pointSize() * 26);
    connect(b, &QPushButton::clicked, this, std::move(action));
    auto* sub = new QLabel(note, Frames[frame]);
    sub->setFont(ScreenFont(10));
    sub->setStyleSheet("color: #6b7a8c;");
    sub->setAlignment(Qt::AlignCenter);
    cell->addWidget(b);
    cell->addWidget(sub);
    grid->addLayout(cell, n / 2, n % 2);
    return b;
}

void Manager::showFrame(int index) {
    frames_->setCurrentIndex(index);
    for (int i = 0; i < 3; ++i) TLabel[i]->setChecked(i == index);
}

int Manager::frame() const {
    return frames_->currentIndex();
}

QStringList Manager::captions(int frame) const {
    QStringList out;
    for (QPushButton* b : Frames[frame]->findChildren<QPushButton*>()) out << b->text();
    return out;
}

bool Manager::command(const QString& caption) {
    for (int i = 0; i < 3; ++i) {
        for (QPushButton* b : Frames[i]->findChildren<QPushButton*>()) {
            if (b->text() == caption) {
                showFrame(i);
                b->click();
                return true;
            }
        }
    }
    return false;
}

void Manager::createList() {
    CreateList form(this);
    if (RunModal(form) == QDialog::Accepted) OpenScreen("MakeNewList", this);
}

void Manager::deleteList() {
    DeleteList form(this);
    RunModal(form);
}

void Manager::editList() {
    EditChooseList form(this);
    if (RunModal(form) == QDialog::Accepted) OpenScreen("EditList", this);
}

void Manager::mergeLists() {
    MergeForm form(this);
    RunModal(form);
}

void Manager::buildList() {
    SharedState& s = Shared();
    for (;;) {
        std::optional<QString> name =
            dialogs().input("Type in the name for your new vocabulary list.");
        if (!name || Trim(fromQ(*name)).empty()) return;
        const std::optional<std::string> storable = StorableText(*name);
        if (!storable) continue;
        bool taken = false;
        if (!Guarded([&] { taken = NameExists(ListPath(), *storable); })) return;
        if (taken) {
            dialogs().message(kTakenName);
            continue;
        }
        s.NewListName = *storable;
        break;
    }
    BuildListForm form(this);
    RunModal(form);
}

void Manager::categories() {
    const std::string folder = FolderPath();
    // A file the editor cannot take is said so at once, not taken for another teacher's lock.
    if (const std::string refusal = CategoryEditRefusal(folder); !refusal.empty()) {
        dialogs().message(toQ(refusal), "Categories");
        return;
    }
    if (IsLocked(folder)) {
        if (!dialogs().yesNo(
                "The categories list is currently being edited by another user. Please try again "
                "in a few minutes. If you want to force this file to be unlocked, click <YES>. "
                "Note that forcing an unlock while another user is modifying the categories will "
                "cause system instability.",
                "Categories"))
            return;
        // The question mark before the full stop is how the warning has always read.
        if (!dialogs().yesNo("Are you sure that you want to force this file unlocked?. Note that "
                             "forcing an unlock while another user is modifying the categories "
                             "will cause system instability.",
                             "Categories"))
            return;
        if (!Guarded([&] {
                if (FileExists(LockName(folder))) UnlockCategories(folder);
            }))
            return;
    }
    Categories form(this);
    if (!form.loaded()) return;
    RunModal(form);
}

void Manager::printWorksheets() {
    PrintWorksheets form(this);
    RunModal(form);
}

void Manager::changePassword() {
    ChangePassword form(this);
    RunModal(form);
}

void Manager::soundOptions() {
    SoundOptions form(this);
    RunModal(form);
}

void Manager::speechOptions() {
    SpeechOptions form(this);
    RunModal(form);
}

void Manager::showHideGames() {
    EnableDisable form(this);
    RunModal(form);
}

void Manager::clearHighScores() {
    if (!dialogs().yesNo("Clear High Score Tables?", "Are you sure?")) return;
    QDir scores(toQ(JoinPath(Shared().AppPath, "scores")));
    for (const QString& f : scores.entryList({"*.dat"}, QDir::Files)) scores.remove(f);
    dialogs().message("High Scores Cleared");
}

void Manager::backupLists() {
    if (!dialogs().yesNo("Make a backup copy of your Vocabulary Lists?", "Backup")) {
        Beep();
        return;
    }
    // The copy always lives in the application folder, also for a linked list file.
    if (!Guarded([] { WriteLinesAtomic(AppFilePath(kListBackupName), ReadAllLines(ListPath())); }))
        return;
    dialogs().message("Backup successful.", "Backup Complete");
}

void Manager::restoreLists() {
    if (!dialogs().yesNo("Restore backup copy of your Vocabulary Lists?", "Restore")) return;
    const std::string backup = AppFilePath(kListBackupName);
    if (!FileExists(backup)) {
        dialogs().message("No Backup file can be found", "Error");
        return;
    }
    if (!Guarded([&] { WriteAllLines(ListPath(), ReadLines(backup)); })) return;
    dialogs().message("Restore successful.", "Restore Complete");
}

void Manager::linkListFile() {
    const QString title = "Link to Alternate Vocabulary List File";
    if (!dialogs().yesNo(
            "You can link this program to a Vocabulary List File kept in another folder, for "
            "example on a network drive, so that several computers share the same lists. Choose "
            "the file called thelists.dat in that folder. Do you want to continue?",
            title))
        return;
    const QString chosen =
        dialogs().openFile(title, "Vocabulary List Files (thelists.dat)", toQ(Shared().AppPath));
    if (chosen.isEmpty()) return;
    const QString native = QDir::toNativeSeparators(chosen);
    // The settings file holds the path in its own code page; a path it cannot hold would
    // point nowhere at the next start.
    if (!FitsCodePage(native)) {
        dialogs().message("The file " + native +
                              " cannot be linked: its name or folder has characters this program "
                              "cannot store (it keeps Western European letters only). Move the "
                              "file to a folder with a plainer name, then try again.",
                          title);
        return;
    }
    if (!dialogs().yesNo("Are you sure you want to link to this Vocabulary List File?",
                         "Use this file?"))
        return;
    const std::string path = fromQ(native);
    if (!Guarded([&] { RewriteSettingsLine(Shared().AppPath, kListPathLine, path); })) return;
    Shared().ListFilePath = path;
    dialogs().message("Link successful.");
}

void Manager::quit() {
    OpenScreen("Title", this);
}

}  // namespace wm
