#include "shell/title.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QFileInfo>
#include <QIcon>
#include <QTimer>
#include <QUrl>

#include "core/category_file.h"
#include "core/game_names.h"
#include "core/line_file.h"
#include "core/list_file.h"
#include "core/score_table.h"
#include "core/settings_file.h"
#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/about_form.h"
#include "shell/catalogue.h"
#include "shell/game_frame.h"
#include "shell/high_score_form.h"
#include "shell/screens.h"

namespace wm {

namespace {
constexpr int kButtonSlots = 50;
// A game button at scale 1 is this share of the screen height; the grid then fits below the
// title art with room for the More and Back row, on wide and on 16:10 screens alike.
constexpr double kButtonHeightShare = 0.17;
}  // namespace

QString TitleRoute(const QString& game) {
    const GameCard* card = FindCard(fromQ(game));
    return card ? toQ(card->firstScreen) : QString("GameOptions");
}

Title::Title(QWidget* parent) : Backdrop("images/wm-title.jpg", parent) {
    setObjectName("Title");
    setWindowTitle("Wordmere");
    for (int i = 0; i < kButtonSlots; ++i) {
        auto* b = new PictureButton(this);
        b->setObjectName(QString("ButtonImage%1").arg(i));
        b->hide();
        connect(b, &QAbstractButton::clicked, this, [this, i] { pick(i); });
        ButtonImage.push_back(b);
    }
    MoreButton = new PictureButton(this);
    MoreButton->setObjectName("MoreButton");
    MoreButton->setText("More >>");
    MoreButton->setPicture(LoadPicture("buttons/morebutton.jpg"));
    connect(MoreButton, &QAbstractButton::clicked, this, &Title::showMore);
    BackButton = new PictureButton(this);
    BackButton->setObjectName("BackButton");
    BackButton->setText("<< Back");
    BackButton->setPicture(LoadPicture("buttons/backbutton.jpg"));
    connect(BackButton, &QAbstractButton::clicked, this, &Title::showBack);

    noLists_ = new QLabel("No Lists Available!", this);
    noLists_->setObjectName("NoLists");
    noLists_->setFont(ScreenFont(28, true));
    noLists_->setAlignment(Qt::AlignCenter);
    noLists_->setStyleSheet(
        "color: #b00020; background: rgba(255,255,255,215); border-radius: 16px; padding: 12px;");
    noLists_->hide();

    Toolbar1 = new QToolBar(this);
    Toolbar1->setObjectName("Toolbar1");
    Toolbar1->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    Toolbar1->setFont(ScreenFont(11, true));
    auto icon = [](const char* name) {
        return QIcon(LoadPicture(QString("images/tb-%1.png").arg(name)));
    };
    Toolbar1->setIconSize(QSize(ScreenFont(14).pointSize() * 2, ScreenFont(14).pointSize() * 2));
    auto* teacher = Toolbar1->addAction(icon("teacher"), "Teacher Management");
    // The gate is registered by the teacher's screens; without them the entry stays grey.
    teacher->setEnabled(HasScreen("PasswordForm"));
    connect(teacher, &QAction::triggered, this, [this] {
        // The manager replaces the title only behind a right password.
        leavingForGame_ = true;
        OpenScreen("PasswordForm", this);
        leavingForGame_ = false;
    });
    Toolbar1->addAction(icon("scores"), "High Scores", this, &Title::openHighScores);
    Toolbar1->addAction(icon("info"), "Program Info", this, &Title::openAbout);
    Toolbar1->addAction(icon("help"), "Help", this, &Title::openHelp);
    Toolbar1->addAction(icon("quit"), "Quit", qApp, &QApplication::quit);

    ok_ = startUp();
    if (!ok_) return;
    soundTimer_.setSingleShot(true);
    soundTimer_.setInterval(10);
    connect(&soundTimer_, &GameTimer::timeout, this, [] {
        if (Shared().SoundDefault == kTrue) sound().play("ufofly.wav");
    });
    soundTimer_.start();
}

bool Title::startUp() {
    SharedState& s = Shared();
    first_ = 1;
    try {
        FirstRunRenames(s.AppPath);
        s.GameCount = kGameCount;
        for (int i = 0; i < kGameCount; ++i) s.GameNames[i + 1] = std::string(kGameNames[i]);
        ApplySettings(ReadSettings(s.AppPath), s.AppPath, s);
        EnsureCategoryFile(s.AppPath, s.FolderFilePath);
        GetData();
    } catch (const FileError& e) {
        dialogs().message(toQ(e.what()), "Wordmere cannot start");
        // Leave once the event loop runs; a test sees startedOk() false instead.
        QTimer::singleShot(0, qApp, [] { QApplication::exit(1); });
        return false;
    }

    display_ = ReadDisplaySettings(JoinPath(s.AppPath, kDisplayFileName));
    HoldList.clear();
    for (int i = 1; i <= s.GameCount; ++i) {
        const std::string& name = s.GameNames[i];
        if (!display_.isHidden(name) && IsOffered(name)) HoldList << toQ(name);
    }
    s.VisibleGameCount = static_cast<int>(HoldList.size());
    for (int i = 0; i < HoldList.size() && i + 1 < static_cast<int>(s.VisibleGames.size()); ++i)
        s.VisibleGames[i + 1] = fromQ(HoldList[i]);

    for (const QString& game : HoldList) {
        try {
            EnsureScoreFile(s.AppPath, fromQ(game));
        } catch (const FileError& e) {
            dialogs().message(toQ(e.what()), "High Scores");
            break;
        }
    }
    for (int i = 0; i < HoldList.size() && i < kButtonSlots; ++i) {
        ButtonImage[i]->setText(HoldList[i]);
        ButtonImage[i]->setToolTip(HoldList[i]);
        ButtonImage[i]->setPicture(LoadPicture("buttons/" + HoldList[i] + ".jpg"));
    }
    layoutGrid();
    showPage();
    return true;
}

void Title::GetData() {
    SharedState& s = Shared();
    std::string first;
    try {
        LineReader in = LineReader::open(s.ListFilePath);
        first = std::string(in.next());
    } catch (const FileError& e) {
        // A list file on a drive that is gone: say which file, then carry on without lists.
        dialogs().message(toQ(e.what()) + "\nAsk your teacher to check the vocabulary list file.",
                          "Vocabulary lists");
        noLists_->show();
        return;
    }
    if (first == kNoLists || first.empty()) {
        dialogs().message("There are no vocabulary lists available to play with!");
        noLists_->show();
    }
}

void Title::layoutGrid() {
    const double H = height() * kButtonHeightShare * display_.scale;
    const double W = H * 4.0 / 3.0;
    const int cols = display_.columns;
    const double left = (width() - (cols * W + (cols - 1) * W * (display_.hspace - 1))) / 2;
    const double top = height() * 0.35;
    const int page = pageSize();
    double lastTop = top;
    for (int i = 0; i < ButtonImage.size(); ++i) {
        int slot = page > 0 ? i % page : 0;
        int row = slot / cols, col = slot % cols;
        double y = top + row * H * display_.vspace;
        ButtonImage[i]->setGeometry(int(left + col * W * display_.hspace), int(y), int(W), int(H));
        if (row < display_.rows) lastTop = std::max(lastTop, y);
    }
    // More and Back sit a row below the last row: at scale 1 half a game button each way.
    const double bh = H / 2, bw = W / 2;
    const double btop = lastTop + H * display_.vspace;
    BackButton->setGeometry(int(width() * 0.3), int(btop), int(bw), int(bh));
    MoreButton->setGeometry(int(width() * 0.7 - bw), int(btop), int(bw), int(bh));
    Toolbar1->setGeometry(0, 0, width(), Toolbar1->sizeHint().height());
    QSize ns = noLists_->sizeHint();
    noLists_->setGeometry((width() - ns.width()) / 2, int(height() * 0.22), ns.width(),
                          ns.height());
}

void Title::showPage() {
    const int count = static_cast<int>(HoldList.size());
    const int last = std::min(first_ + pageSize() - 1, count);
    for (int i = 0; i < ButtonImage.size(); ++i) {
        const int index = i + 1;  // 1-based position in the visible games
        ButtonImage[i]->setVisible(index >= first_ && index <= last);
    }
    MoreButton->setVisible(last < count);
    BackButton->setVisible(first_ != 1);
}

void Title::showMore() {
    first_ += pageSize();
    showPage();
}

void Title::showBack() {
    first_ = std::max(1, first_ - pageSize());
    showPage();
}

void Title::pick(int slot) {
    if (slot < 0 || slot >= ButtonImage.size() || !ButtonImage[slot]->isVisible()) return;
    const QString game = ButtonImage[slot]->text();
    Shared().CurrentGame = fromQ(game);
    const QString next = TitleRoute(game);
    if (!HasScreen(next)) {
        dialogs().message(game + " is not available yet. Please choose another game.", "Wordmere");
        return;
    }
    leavingForGame_ = true;
    OpenScreen(next, this);
}

void Title::resizeEvent(QResizeEvent*) {
    layoutGrid();
}

void Title::closeEvent(QCloseEvent* e) {
    e->accept();
    // The close box ends the program; leaving for another screen does not.
    if (!leavingForGame_) QTimer::singleShot(0, qApp, &QApplication::quit);
}

void Title::openHighScores() {
    Shared().CurrentGame = "Title";
    HighScoreForm form(this);
    RunModal(form);
}

void Title::openAbout() {
    AboutForm form(this);
    RunModal(form);
}

void Title::openHelp() {
    const QString page = appFile("wm-help/wmindex.htm");
    if (!QFileInfo::exists(page) || !QDesktopServices::openUrl(QUrl::fromLocalFile(page))) {
        dialogs().message("Unable to find the default web browser to launch the help system...",
                          "Help");
    }
}

}  // namespace wm
