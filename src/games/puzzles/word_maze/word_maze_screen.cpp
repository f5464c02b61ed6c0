#include "games/puzzles/word_maze/word_maze_screen.h"

#include <QTimer>
#include <QVBoxLayout>

#include "core/rng.h"
#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"

namespace wm {

namespace wmz = word_maze;

namespace {
const char* kChip =
    "color: white; background: rgba(20, 70, 40, 190); border-radius: 10px; padding: 4px 14px;";
const char* kPenaltyRed =
    "color: #e01030; background: rgba(255, 255, 255, 225);"
    " border: 4px solid #e01030; border-radius: 16px; padding: 8px 24px;";
const char* kPenaltyGold =
    "color: #b00020; background: rgba(255, 236, 140, 235);"
    " border: 4px solid #b00020; border-radius: 16px; padding: 8px 24px;";
constexpr int kMaxCellWidth = 66;
}  // namespace

WordMazeForm::WordMazeForm(QWidget* parent)
    : Backdrop("images/wm-back.jpg", parent),
      frame_(this, GameMenuNames{}, [this] { NewGame(); }),
      Timer1(frame_.timer("Timer1", 1000,
                          [this] {
                              wmz::countSecond(maze_);
                              Label4->setText("Time: " + QString::number(maze_.Seconds));
                          })),
      Timer3(frame_.timer(
          "Timer3", 1000,
          [this] {
              Label6->hide();
              blink_.stop();
          },
          true)),
      // The penalty flashes while it shows.
      blink_(frame_.timer("Label6Blink", 125, [this] {
          const bool red = Label6->property("red").toBool();
          Label6->setProperty("red", !red);
          Label6->setStyleSheet(red ? kPenaltyGold : kPenaltyRed);
      })) {
    setWindowTitle("Word Maze");
    frame_.setMusic(MusicKind::None);  // this game has no background music

    CLetter = new WordMazeBoard(this);
    CLetter->setMaze(&maze_);
    connect(CLetter, &WordMazeBoard::clicked, this, &WordMazeForm::click);

    clueCard_ = new Panel(this);
    auto* col = new QVBoxLayout(clueCard_);
    col->setContentsMargins(20, 12, 20, 12);
    col->setSpacing(4);
    Label2 = new QLabel("The word you are trying to spell is:", clueCard_);
    Label2->setObjectName("Label2");
    Label2->setFont(ScreenFont(12, true));
    Label2->setStyleSheet("color: #3b6b2a;");
    Label1 = new QLabel(clueCard_);
    Label1->setObjectName("Label1");
    Label1->setWordWrap(true);
    Label1->setFont(ScreenFont(17, true));
    Label1->setStyleSheet("color: #102060;");
    Label5 = new QLabel(clueCard_);
    Label5->setObjectName("Label5");
    Label5->setFont(ScreenFont(20, true));
    Label5->setStyleSheet("color: #c0307a; letter-spacing: 4px;");
    col->addWidget(Label2);
    col->addWidget(Label1);
    col->addWidget(Label5);

    Label3 = new QLabel(this);
    Label3->setObjectName("Label3");
    Label4 = new QLabel("Time: 0", this);
    Label4->setObjectName("Label4");
    for (QLabel* l : {Label3, Label4}) {
        l->setFont(ScreenFont(15, true));
        l->setStyleSheet(kChip);
    }
    Label6 = new QLabel(this);
    Label6->setObjectName("Label6");
    Label6->setFont(ScreenFont(30, true));
    Label6->setStyleSheet(kPenaltyRed);
    Label6->setAlignment(Qt::AlignCenter);
    Label6->hide();
    Command1 = MakeButton("Undo Move", this);
    Command1->setObjectName("Command1");
    connect(Command1, &QPushButton::clicked, this, &WordMazeForm::undo);

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void WordMazeForm::NewGame() {
    Label6->hide();
    CLetter->hide();
    const wmz::RoundStart start = wmz::startRound(Shared(), maze_, TheRng());
    if (!start.ok) {
        frame_.refuse(toQ(start.message), windowTitle());
        return;
    }
    if (start.playBell) sound().effect("dkbell.wav");
    Label4->setText("Time: 0");
    Timer1.start();
    showLabels();
    layoutBoard();
    CLetter->show();
}

void WordMazeForm::showLabels() {
    Label1->setText(toQ(maze_.label1));
    Label3->setText(toQ(maze_.label3));
    Label3->adjustSize();
    Label5->setText(toQ(maze_.label5));
    Command1->setEnabled(maze_.undoEnabled);
    CLetter->update();
}

void WordMazeForm::click(int cell) {
    if (frame_.leaving()) return;
    const wmz::Click c = wmz::clickCell(Shared(), maze_, cell, TheRng());
    switch (c.result) {
        case wmz::ClickResult::Ignored:
            return;
        case wmz::ClickResult::OffPath:
            dialogs().message(toQ(c.message), windowTitle());
            return;
        case wmz::ClickResult::Wrong:
            Label6->setText(toQ(c.label6));
            Label6->adjustSize();
            Label6->move((width() - Label6->width()) / 2, (height() - Label6->height()) / 2);
            Label6->setStyleSheet(kPenaltyRed);
            Label6->setProperty("red", true);
            Label6->show();
            Label6->raise();
            Timer3.start();
            blink_.start();
            sound().effect("bonk.wav");
            return;
        case wmz::ClickResult::NotReady:
            sound().effect("boing.wav");
            dialogs().message(toQ(c.message), windowTitle());
            return;
        case wmz::ClickResult::Moved:
            sound().effect("boing.wav");
            break;
        case wmz::ClickResult::NextWord:
            sound().effect("dkbell.wav");
            break;
        case wmz::ClickResult::MazeDone:
            showLabels();
            mazeDone();
            return;
    }
    showLabels();
}

void WordMazeForm::undo() {
    wmz::undoMove(Shared(), maze_);
    showLabels();
}

void WordMazeForm::mazeDone() {
    Timer1.stop();
    SharedState& s = Shared();
    if (!wmz::finishMaze(s, maze_, TheRng())) {
        sound().effect("ooh.wav");
        dialogs().message("Oops! You had a negative score! Maybe you will do better next time...",
                          "You lose!");
        frame_.quit();
        return;
    }
    sound().effect("cheer.wav");
    frame_.wonGame();
}

void WordMazeForm::layoutBoard() {
    const int w = width(), h = height();
    const int top = clueCard_->geometry().bottom() + h / 40;
    const int bottom = Command1->y() - h / 40;
    const int cols = std::max(1, maze_.MazeWidth), rows = std::max(1, maze_.MazeHeight);
    // The cells keep the design's shape, taller than wide, and abut; the board is centred.
    int cw = std::min((w * 94 / 100) / (cols + 1), kMaxCellWidth);
    while (cw > 10 &&
           rows * WordMazeBoard::cellHeight(cw) + 2 * WordMazeBoard::margin(cw) > bottom - top)
        --cw;
    CLetter->setCellWidth(cw);
    CLetter->move((w - CLetter->width()) / 2, top + (bottom - top - CLetter->height()) / 2);
}

void WordMazeForm::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height();
    const int menuH = frame_.menuHeight();
    const int top = menuH + h / 50;
    const int chipsW = w / 5;
    clueCard_->setGeometry(w / 40, top, w - w / 40 * 3 - chipsW, h / 6);
    Label3->adjustSize();
    Label4->setFixedWidth(chipsW);
    Label3->setFixedWidth(chipsW);
    Label3->move(w - chipsW - w / 40, top);
    Label4->move(w - chipsW - w / 40, top + Label3->height() + h / 80);
    const int bw = w / 6, bh = Command1->minimumHeight();
    Command1->setGeometry((w - bw) / 2, h - bh - h / 30, bw, bh);
    layoutBoard();
}

WM_REGISTER_GAME("Word Maze", WordMazeForm, "images/wm-back.jpg", "sounds/dkbell.wav",
                 "sounds/bonk.wav", "sounds/boing.wav", "sounds/ooh.wav", "sounds/cheer.wav");

}  // namespace wm
