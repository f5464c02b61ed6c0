#include "games/puzzles/crossword/crossword_screen.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"

namespace wm {

namespace {

constexpr int kCols = crossword::kCols;
constexpr int kRows = crossword::kRows;

QColor cellColour(cross::TileColour c) {
    switch (c) {
        case cross::TileColour::Pink:
            return QColor(255, 192, 192);
        case cross::TileColour::Yellow:
            return QColor(255, 255, 192);
        case cross::TileColour::Green:
            return QColor(192, 255, 192);
        case cross::TileColour::White:
            break;
    }
    return Qt::white;
}

GameMenuNames menuNames() {
    GameMenuNames menu;
    menu.foreignKey = "crossword";
    return menu;
}

const char* kPanelStyle =
    "QGroupBox { color: #2b2118; background: rgba(255, 252, 240, 235); border: 2px solid #5b4a36;"
    " border-radius: 12px; margin-top: 22px; padding: 10px; }"
    " QGroupBox::title { subcontrol-origin: margin; left: 14px; padding: 0 6px; }";

}  // namespace

// ---- the board ----

CrosswordBoard::CrosswordBoard(QWidget* parent) : QWidget(parent) {
    setObjectName("Board");
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

void CrosswordBoard::setBoard(const cross::PlayBoard* board) {
    board_ = board;
    update();
}

double CrosswordBoard::cellSize() const {
    // A margin of half a cell all round, for the paper's edge.
    return std::min(width() / (kCols + 1.0), height() / (kRows + 1.0));
}

QPoint CrosswordBoard::origin() const {
    const double s = cellSize();
    return {int((width() - s * kCols) / 2), int((height() - s * kRows) / 2)};
}

QRect CrosswordBoard::cellRect(int i) const {
    const double s = cellSize();
    const QPoint o = origin();
    const int c = i % kCols, r = i / kCols;
    const int x0 = o.x() + int(std::lround(c * s)), y0 = o.y() + int(std::lround(r * s));
    const int x1 = o.x() + int(std::lround((c + 1) * s)),
              y1 = o.y() + int(std::lround((r + 1) * s));
    return {x0, y0, x1 - x0 + 1, y1 - y0 + 1};  // one pixel more, so the borders overlap
}

int CrosswordBoard::cellAt(QPoint p) const {
    const double s = cellSize();
    const QPoint o = origin();
    if (s <= 0 || p.x() < o.x() || p.y() < o.y()) return -1;
    const int c = int((p.x() - o.x()) / s), r = int((p.y() - o.y()) / s);
    if (c >= kCols || r >= kRows) return -1;
    return r * kCols + c;
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

    const double s = cellSize();
    QFont letter("DejaVu Serif");
    letter.setBold(true);
    letter.setPixelSize(std::max(8, int(s * 0.54)));
    QFont number("DejaVu Sans");
    number.setPixelSize(std::max(6, int(s * 0.28)));
    p.setRenderHint(QPainter::Antialiasing, false);
    const int pen = std::max(1, int(s / 16));
    int clueNumber = 0;
    for (int i = 0; i < board_->cells(); ++i) {
        if (!board_->visible[i]) continue;
        const QRect r = cellRect(i);
        p.fillRect(r, cellColour(board_->colour[i]));
        p.setPen(QPen(QColor(20, 20, 20), pen));
        p.setBrush(Qt::NoBrush);
        p.drawRect(r.adjusted(0, 0, -1, -1));
        // Word starts are numbered in reading order, as on a printed puzzle.
        const int col = i % kCols + 1, row = i / kCols + 1;
        if (board_->layout.wordAt(col, row, cross::kAcross) ||
            board_->layout.wordAt(col, row, cross::kDown)) {
            p.setFont(number);
            p.setPen(QColor(40, 40, 40));
            p.drawText(r.adjusted(pen + 2, pen, 0, 0), Qt::AlignLeft | Qt::AlignTop,
                       QString::number(++clueNumber));
        }
        if (board_->caption[i]) {
            p.setFont(letter);
            p.setPen(QColor(15, 25, 60));
            // Below the corner number, as a pencilled letter sits.
            p.drawText(r.adjusted(int(s * 0.08), int(s * 0.2), 0, 0), Qt::AlignCenter,
                       toQ(std::string(1, board_->caption[i])));
        }
    }
}

void CrosswordBoard::mousePressEvent(QMouseEvent* e) {
    const int i = cellAt(e->position().toPoint());
    // Hidden cells are no part of any word and take no clicks.
    if (board_ && i >= 0 && i < board_->cells() && board_->visible[i]) emit cellClicked(i);
}

// ---- the screen ----

CrosswordForm::CrosswordForm(QWidget* parent)
    : Backdrop("images/crossword-back.svg", parent),
      frame_(this, menuNames(), [this] { NewGame(); }),
      Timer1(frame_.timer(
          "Timer1", 1, [this] { frame_.startMusic(); }, true)),
      Timer2(frame_.timer(
          "Timer2", 1, [this] { layOut(); }, true)),
      FlashTimer(frame_.timer("FlashTimer", 10, [this] {
          cross::flashTick(cw_.board);
          if (!cw_.board.flashing) FlashTimer.stop();
          board_->update();
      })) {
    setObjectName("CrosswordForm");
    setWindowTitle("Crossword");
    setFocusPolicy(Qt::StrongFocus);
    frame_.setMusic(MusicKind::Own, "entertainer.mid");
    frame_.setForeign([this](const QString& c) {
        const std::string ch = fromQ(c);
        if (!ch.empty()) typeKey(static_cast<unsigned char>(ch[0]));
    });

    board_ = new CrosswordBoard(this);
    connect(board_, &CrosswordBoard::cellClicked, this, &CrosswordForm::clickCell);

    Label2 = new QLabel("Score: 0000", this);
    Label2->setObjectName("Label2");
    Label2->setFont(ScreenFont(20, true));
    Label2->setAlignment(Qt::AlignCenter);
    Label2->setStyleSheet(
        "color: #c8102e; background: #ffe94d; border: 3px solid #c8102e; border-radius: 12px;"
        " padding: 4px 14px;");

    Frame2 = new QGroupBox("Clue:", this);
    Frame2->setObjectName("Frame2");
    Frame2->setFont(ScreenFont(14, true));
    Frame2->setStyleSheet(kPanelStyle);
    ClueLabel = new QLabel(Frame2);
    ClueLabel->setObjectName("ClueLabel");
    ClueLabel->setWordWrap(true);
    ClueLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    ClueLabel->setFont(ScreenFont(15));
    ClueLabel->setStyleSheet("color: #1d1d1d; background: transparent; border: none;");
    auto* clueLayout = new QVBoxLayout(Frame2);
    clueLayout->setContentsMargins(12, 18, 12, 12);
    clueLayout->addWidget(ClueLabel);

    Label3 = new QLabel(
        "Type the word, using Backspace to fix a mistake. Stuck? \"Give Answer\" fills it in, "
        "but you lose 1000 points!",
        this);
    Label3->setObjectName("Label3");
    Label3->setWordWrap(true);
    Label3->setFont(ScreenFont(12));
    Label3->setStyleSheet(
        "color: white; background: rgba(30, 40, 70, 190); border-radius: 10px; padding: 8px;");

    // The button takes no focus and gives the answer on a mouse click only, so a space or Enter
    // typed as part of an answer never gives it away.
    Command1 = MakeButton("Give Answer", this);
    Command1->setObjectName("Command1");
    Command1->setFocusPolicy(Qt::NoFocus);
    Command1->installEventFilter(this);
    connect(Command1, &QPushButton::clicked, this, &CrosswordForm::giveAnswer);

    Label1 = new QLabel(
        "Click a box in the puzzle to see the clue for its word, then type the word. Click the "
        "same box again to switch between across and down.",
        this);
    Label1->setObjectName("Label1");
    Label1->setWordWrap(true);
    Label1->setFont(ScreenFont(12, true));
    Label1->setStyleSheet(
        "color: #2b2118; background: rgba(255, 252, 240, 220); border-radius: 10px; padding: 8px;");

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

    ClueLabel->setText(toQ(crossword::kClickPrompt));
    Command1->hide();
    Label3->hide();
    resize(ScreenMetrics::screenSize());
    // The music's timer runs once after opening; the first round's start must not stop it.
    frame_.keepOnRestart("Timer1");
    Timer1.start();  // the music, once, shortly after the screen opens
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
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
    Command1->hide();
    Label3->hide();
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
    Command1->setVisible(cw_.board.helpShown);
    Label3->setVisible(cw_.board.helpShown);
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
    if (outcome == crossword::Outcome::GameEnds) endOfGame();
}

void CrosswordForm::wordSolved(crossword::Outcome outcome) {
    if (outcome == crossword::Outcome::Solved || outcome == crossword::Outcome::GameEnds) {
        sound().effect("dkbell.wav");
        FlashTimer.start();
    }
    showState();
    // The last word ends the game at once, while its flash runs.
    if (outcome == crossword::Outcome::GameEnds) endOfGame();
}

void CrosswordForm::endOfGame() {
    if (!cross::endGame(Shared(), cw_.GameWon)) {
        sound().effect("ooh.wav");
        dialogs().message(cross::kLoseText, cross::kLoseTitle);
        frame_.quit();
        return;
    }
    sound().effect("cheer.wav");
    frame_.wonGame();
}

void CrosswordForm::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Backspace) {
        typeKey(cross::kBackspace);
        return;
    }
    const std::string text = fromQ(e->text());
    if (text.empty() || e->key() == Qt::Key_Escape) {
        Backdrop::keyPressEvent(e);
        return;
    }
    typeKey(static_cast<unsigned char>(text[0]));
}

bool CrosswordForm::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Command1) {
        if (event->type() == QEvent::KeyPress) crossword::buttonKeyDown(cw_);
        if (event->type() == QEvent::MouseButtonPress) crossword::buttonMouseDown(cw_);
    }
    return Backdrop::eventFilter(watched, event);
}

void CrosswordForm::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height();
    const int top = frame_.menuHeight() + h / 60;
    const int gap = w / 60;
    // The board takes the left two thirds, as large as the height allows.
    const int side = std::max(w * 27 / 100, 300);
    const int boardW = w - side - 3 * gap;
    const int boardH = h - top - gap;
    const double cell = std::min(boardW / (kCols + 1.0), boardH / (kRows + 1.0));
    const int bw = int(cell * (kCols + 1)), bh = int(cell * (kRows + 1));
    board_->setGeometry(gap, top + (boardH - bh) / 2, bw, bh);

    const int x = gap + bw + gap, colW = w - x - gap;
    int y = top;
    Label2->setGeometry(x, y, colW, Label2->sizeHint().height() + 6);
    y += Label2->height() + gap;
    const int clueH = h * 30 / 100;
    Frame2->setGeometry(x, y, colW, clueH);
    y += clueH + gap;
    Label3->setGeometry(x, y, colW, Label3->heightForWidth(colW) + 4);
    y += Label3->height() + gap;
    Command1->setGeometry(x + colW / 8, y, colW * 3 / 4, Command1->minimumHeight());
    const int l1h = Label1->heightForWidth(colW) + 4;
    Label1->setGeometry(x, h - gap - l1h, colW, l1h);

    const int fw = bw * 3 / 5, fh = std::max(h / 6, Label4->heightForWidth(fw - 48) + 40);
    Frame1->setGeometry(board_->x() + (bw - fw) / 2, board_->y() + (bh - fh) / 2, fw, fh);
}

WM_REGISTER_GAME("Crossword", CrosswordForm, "images/crossword-back.svg", "sounds/dkbell.wav",
                 "sounds/gbell.wav", "sounds/cheer.wav", "sounds/ooh.wav",
                 "sounds/entertainer.mid");

}  // namespace wm
