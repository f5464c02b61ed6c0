#include "games/puzzles/crossword/crossword_screen.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"

namespace wm {

namespace {

constexpr int kCols = crossword::kCols;
constexpr int kRows = crossword::kRows;

const char* kPanelStyle =
    "QGroupBox { color: #2b2118; background: rgba(255, 252, 240, 235); border: 2px solid #5b4a36;"
    " border-radius: 12px; margin-top: 22px; padding: 10px; }"
    " QGroupBox::title { subcontrol-origin: margin; left: 14px; padding: 0 6px; }";

CrossFormLook look() {
    CrossFormLook l;
    l.name = "CrosswordForm";
    l.title = "Crossword";
    l.backdrop = "images/crossword-back.svg";
    l.music = "entertainer.mid";
    l.foreignKey = "crossword";
    l.score = "Score: 0000";
    l.helpText =
        "Type the word, using Backspace to fix a mistake. Stuck? \"Give Answer\" fills it in, "
        "but you lose 1000 points!";
    l.helpColours = "color: white; background: rgba(30, 40, 70, 190);";
    l.hintText =
        "Click a box in the puzzle to see the clue for its word, then type the word. Click the "
        "same box again to switch between across and down.";
    l.hintColours = "color: #2b2118; background: rgba(255, 252, 240, 220);";
    return l;
}

}  // namespace

// ---- the board ----

// A margin of half a cell all round, for the paper's edge.
CrosswordBoard::CrosswordBoard(QWidget* parent) : CrossGrid(parent, kCols, kRows, 1.0) {
    setObjectName("Board");
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

QRect CrosswordBoard::cellRect(int i) const {
    const double s = pitch();
    const QPointF a = corner(i);
    const int x0 = int(std::lround(a.x())), y0 = int(std::lround(a.y()));
    const int x1 = int(std::lround(a.x() + s)), y1 = int(std::lround(a.y() + s));
    return {x0, y0, x1 - x0 + 1, y1 - y0 + 1};  // one pixel more, so the borders overlap
}

void CrosswordBoard::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    // The sheet of newsprint, with a soft shadow under it.
    const QRectF sheet = QRectF(rect()).adjusted(4, 4, -8, -8);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 60));
    p.drawRoundedRect(sheet.translated(5, 6), 6, 6);
    p.setBrush(QColor(250, 247, 236));
    p.setPen(QPen(QColor(200, 190, 165), 1));
    p.drawRoundedRect(sheet, 6, 6);
    if (!board_ || board_->visible.empty()) return;

    const double s = pitch();
    QFont letter("DejaVu Serif");
    letter.setBold(true);
    letter.setPixelSize(std::max(8, int(s * 0.54)));
    p.setRenderHint(QPainter::Antialiasing, false);
    const int pen = std::max(1, int(s / 16));
    // No clue numbers in the corners: a word is picked by clicking it and its clue shows beside
    // the board, so numbers would point at nothing and only crowd the small cells.
    for (int i = 0; i < board_->cells(); ++i) {
        if (!board_->visible[i]) continue;
        const QRect r = cellRect(i);
        p.fillRect(r, CellColour(board_->colour[i], Qt::white));
        p.setPen(QPen(QColor(20, 20, 20), pen));
        p.setBrush(Qt::NoBrush);
        p.drawRect(r.adjusted(0, 0, -1, -1));
        if (board_->caption[i]) {
            p.setFont(letter);
            p.setPen(QColor(15, 25, 60));
            p.drawText(r, Qt::AlignCenter, toQ(std::string(1, board_->caption[i])));
        }
    }
}

// ---- the screen ----

CrosswordForm::CrosswordForm(QWidget* parent)
    : CrossForm(parent, look()),
      Timer2(frame_.timer(
          "Timer2", 1, [this] { layOut(); }, true)) {
    board_ = new CrosswordBoard(this);
    board_->lower();
    connect(board_, &CrossGrid::cellClicked, this, &CrosswordForm::clickCell);

    auto* panel = new QGroupBox("Clue:", this);
    panel->setStyleSheet(kPanelStyle);
    ClueLabel = new QLabel(panel);
    ClueLabel->setObjectName("ClueLabel");
    ClueLabel->setWordWrap(true);
    ClueLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    ClueLabel->setFont(ScreenFont(15));
    ClueLabel->setStyleSheet("color: #1d1d1d; background: transparent; border: none;");
    auto* clueLayout = new QVBoxLayout(panel);
    clueLayout->setContentsMargins(12, 18, 12, 12);
    clueLayout->addWidget(ClueLabel);
    ClueLabel->setText(toQ(crossword::kClickPrompt));
    // Give Answer reads its own presses, for the key guard.
    Command1->installEventFilter(this);

    Frame1 = new QWidget(this);
    Frame1->setObjectName("Frame1");
    Frame1->setAttribute(Qt::WA_StyledBackground);
    Frame1->setStyleSheet(
        "#Frame1 { background: #fffaf0; border: 3px solid #5b4a36; border-radius: 16px; }");
    Label4 = new QLabel(toQ(crossword::kWaitText), Frame1);
    Label4->setObjectName("Label4");
    Label4->setFont(ScreenFont(18, true));
    Label4->setWordWrap(true);
    Label4->setAlignment(Qt::AlignCenter);
    Label4->setStyleSheet("color: #2b2118;");
    auto* waitLayout = new QVBoxLayout(Frame1);
    waitLayout->setContentsMargins(24, 16, 24, 16);
    waitLayout->addWidget(Label4);
    finishSetUp(board_, panel);
}

void CrosswordForm::NewGame() {
    // The round opened from the options screen runs on the Score it finds; later rounds start
    // from 0.
    firstRound_ = !opened_;
    opened_ = true;
    if (!firstRound_) {
        Shared().Score = 0;
        Label2->setText(toQ(cross::scoreText(0)));
    }
    cw_.board = cross::PlayBoard{};
    board_->setBoard(&cw_.board);
    ClueLabel->setText(toQ(crossword::kClickPrompt));
    showHelp(false);
    Frame1->show();
    Frame1->raise();
    // The wait panel is drawn before the layout runs.
    Timer2.start();
}

void CrosswordForm::layOut() {
    const crossword::RoundResult result = crossword::newRound(Shared(), cw_, firstRound_, TheRng());
    if (!result.ok) {
        frame_.refuse(toQ(result.message), "Crossword");
        return;
    }
    Frame1->hide();
    showState();
}

void CrosswordForm::showState() {
    board_->setBoard(&cw_.board);
    Label2->setText(toQ(cw_.scoreText));
    ClueLabel->setText(toQ(cw_.clue));
    showHelp(cw_.board.helpShown);
}

void CrosswordForm::clickCell(int i) {
    if (Frame1->isVisible() || i < 0 || i >= cw_.board.cells()) return;
    crossword::clickCell(Shared(), cw_, i);
    showState();
}

void CrosswordForm::typeKey(int key) {
    if (Frame1->isVisible()) return;
    wordSolved(crossword::pressKey(Shared(), cw_, key, TheRng()));
}

void CrosswordForm::giveAnswer() {
    if (!cw_.board.selected() || cw_.KeyOnButton) return;
    sound().effect("gbell.wav");
    const crossword::Outcome outcome = crossword::giveAnswer(Shared(), cw_, TheRng());
    showState();
    if (outcome == crossword::Outcome::GameEnds) endOfGame(cw_.GameWon);
}

void CrosswordForm::wordSolved(crossword::Outcome outcome) {
    if (outcome == crossword::Outcome::Solved || outcome == crossword::Outcome::GameEnds) {
        sound().effect("dkbell.wav");
        FlashTimer.start();
    }
    showState();
    // The last word ends the game at once, while its flash runs.
    if (outcome == crossword::Outcome::GameEnds) endOfGame(cw_.GameWon);
}

bool CrosswordForm::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Command1) {
        if (event->type() == QEvent::KeyPress) crossword::buttonKeyDown(cw_);
        if (event->type() == QEvent::MouseButtonPress) crossword::buttonMouseDown(cw_);
    }
    return CrossForm::eventFilter(watched, event);
}

void CrosswordForm::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height();
    // The board takes the left two thirds, as large as the height allows.
    const QRect room = boardRoom(std::max(w * 27 / 100, 300));
    const double cell = std::min(room.width() / (kCols + 1.0), room.height() / (kRows + 1.0));
    const int bw = int(cell * (kCols + 1)), bh = int(cell * (kRows + 1));
    board_->setGeometry(room.left(), room.top() + (room.height() - bh) / 2, bw, bh);
    // The column starts right after the board and takes the rest of the width.
    const int x = room.left() + bw + room.left();
    layOutColumn(x, w - x - room.left(), h * 30 / 100);

    const int fw = bw * 3 / 5, fh = std::max(h / 6, Label4->heightForWidth(fw - 48) + 40);
    Frame1->setGeometry(board_->x() + (bw - fw) / 2, board_->y() + (bh - fh) / 2, fw, fh);
}

WM_REGISTER_GAME("Crossword", CrosswordForm, "images/crossword-back.svg", "sounds/dkbell.wav",
                 "sounds/gbell.wav", "sounds/cheer.wav", "sounds/ooh.wav",
                 "sounds/entertainer.mid");

}  // namespace wm
