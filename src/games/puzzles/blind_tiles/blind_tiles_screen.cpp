#include "games/puzzles/blind_tiles/blind_tiles_screen.h"

#include <QKeyEvent>
#include <QLinearGradient>
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

constexpr int kCols = blind_tiles::kCols;
constexpr int kRows = blind_tiles::kRows;
constexpr double kTileShare = 0.94;  // of the pitch; the rest is the gap between tiles

// The face of a tile: ivory when blank, the selection's and the solved colours otherwise.
QColor faceColour(cross::TileColour c) {
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
    return QColor(255, 255, 255);
}

GameMenuNames menuNames() {
    GameMenuNames menu;
    menu.foreignKey = "blind tiles";
    return menu;
}

QString entryStyle(bool solved) {
    return QString(
               "color: #2a1a0c; background: %1; border: 2px solid #8a5a2b; border-radius: 8px;"
               " padding: 2px 10px;")
        .arg(solved ? "rgb(255, 255, 192)" : "rgb(255, 192, 192)");
}

}  // namespace

// ---- the tiles ----

BlindTilesBoard::BlindTilesBoard(QWidget* parent) : QWidget(parent) {
    setObjectName("Tiles");
}

void BlindTilesBoard::setBoard(const cross::PlayBoard* board) {
    board_ = board;
    update();
}

double BlindTilesBoard::pitch() const {
    return std::min(width() / double(kCols), height() / double(kRows));
}

QPoint BlindTilesBoard::origin() const {
    const double s = pitch();
    return {int((width() - s * kCols) / 2), int((height() - s * kRows) / 2)};
}

QRect BlindTilesBoard::tileRect(int i) const {
    const double s = pitch();
    const QPoint o = origin();
    const int c = i % kCols, r = i / kCols;
    const int side = int(s * kTileShare);
    return {o.x() + int(std::lround(c * s)), o.y() + int(std::lround(r * s)), side, side};
}

int BlindTilesBoard::tileAt(QPoint p) const {
    const double s = pitch();
    const QPoint o = origin();
    if (s <= 0 || p.x() < o.x() || p.y() < o.y()) return -1;
    const int c = int((p.x() - o.x()) / s), r = int((p.y() - o.y()) / s);
    if (c >= kCols || r >= kRows) return -1;
    return r * kCols + c;
}

void BlindTilesBoard::paintEvent(QPaintEvent*) {
    if (!board_ || board_->visible.empty()) return;
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double s = pitch();
    QFont letter("DejaVu Sans");
    letter.setBold(true);
    letter.setPixelSize(std::max(8, int(s * 0.55)));
    p.setFont(letter);
    const double radius = s * 0.12;
    for (int i = 0; i < board_->cells(); ++i) {
        if (!board_->visible[i]) continue;
        const QRectF r = tileRect(i);
        const double depth = std::max(2.0, s * 0.07);
        // The tile's body: a dark edge below and to the right, so it stands off the table.
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0, 0, 0, 70));
        p.drawRoundedRect(r.translated(depth * 0.8, depth * 1.2), radius, radius);
        p.setBrush(QColor(138, 90, 43));
        p.drawRoundedRect(r.translated(0, depth * 0.6), radius, radius);
        // The face, lighter at the top like a rounded top.
        const QRectF face = r.adjusted(0, 0, 0, -depth * 0.4);
        const QColor c = faceColour(board_->colour[i]);
        QLinearGradient g(face.topLeft(), face.bottomLeft());
        g.setColorAt(0, c.lighter(104));
        g.setColorAt(1, c.darker(112));
        p.setBrush(g);
        p.setPen(QPen(QColor(120, 80, 40), std::max(1.0, s / 28)));
        p.drawRoundedRect(face, radius, radius);
        p.setPen(QPen(QColor(255, 255, 255, 170), std::max(1.0, s / 30)));
        p.drawLine(face.topLeft() + QPointF(radius, s / 14),
                   face.topRight() + QPointF(-radius, s / 14));
        if (board_->caption[i]) {
            p.setPen(QColor(55, 30, 10));
            p.drawText(face, Qt::AlignCenter, toQ(std::string(1, board_->caption[i])));
        }
    }
}

void BlindTilesBoard::mousePressEvent(QMouseEvent* e) {
    const int i = tileAt(e->position().toPoint());
    if (board_ && i >= 0 && i < board_->cells() && board_->visible[i]) emit tileClicked(i);
}

// ---- the screen ----

BlindTilesForm::BlindTilesForm(QWidget* parent)
    : Backdrop("images/blind-tiles-back.svg", parent),
      frame_(this, menuNames(), [this] { NewGame(); }),
      Timer1(frame_.timer(
          "Timer1", 1, [this] { frame_.startMusic(); }, true)),
      FlashTimer(frame_.timer("FlashTimer", 10, [this] {
          cross::flashTick(bt_.board);
          if (!bt_.board.flashing) FlashTimer.stop();
          board_->update();
      })) {
    setObjectName("BlindTilesForm");
    setWindowTitle("Blind Tiles!");
    setFocusPolicy(Qt::StrongFocus);
    frame_.setMusic(MusicKind::Own, "vivaldi.mid");
    frame_.setForeign([this](const QString& c) {
        const std::string ch = fromQ(c);
        if (!ch.empty()) typeKey(static_cast<unsigned char>(ch[0]));
    });

    board_ = new BlindTilesBoard(this);
    connect(board_, &BlindTilesBoard::tileClicked, this, &BlindTilesForm::clickTile);

    Label2 = new QLabel("Score: 0", this);
    Label2->setObjectName("Label2");
    Label2->setFont(ScreenFont(20, true));
    Label2->setAlignment(Qt::AlignCenter);
    Label2->setStyleSheet(
        "color: #c8102e; background: #ffe94d; border: 3px solid #c8102e; border-radius: 12px;"
        " padding: 4px 14px;");

    Frame2 = new QGroupBox("Words to use:", this);
    Frame2->setObjectName("Frame2");
    Frame2->setFont(ScreenFont(14, true));
    Frame2->setStyleSheet(
        "QGroupBox { color: #3b2410; background: rgba(255, 248, 232, 235);"
        " border: 3px solid #8a5a2b; border-radius: 14px; margin-top: 22px; padding: 10px; }"
        " QGroupBox::title { subcontrol-origin: margin; left: 14px; padding: 0 6px; }");
    auto* list = new QVBoxLayout(Frame2);
    list->setContentsMargins(14, 20, 14, 14);
    list->setSpacing(8);
    for (int i = 0; i < blind_tiles::kPanelLines; ++i) {
        auto* l = new QLabel(Frame2);
        l->setObjectName(QString("ClueLabel%1").arg(i));
        l->setFont(ScreenFont(15, true));
        l->setStyleSheet(entryStyle(false));
        l->hide();
        list->addWidget(l);
        ClueLabel.push_back(l);
    }
    list->addStretch(1);

    Label3 = new QLabel(
        "Type the word that fits, using Backspace to fix a mistake. \"Give Answer\" fills it in, "
        "but you lose 1000 points!",
        this);
    Label3->setObjectName("Label3");
    Label3->setWordWrap(true);
    Label3->setFont(ScreenFont(12));
    Label3->setStyleSheet(
        "color: white; background: rgba(60, 35, 15, 200); border-radius: 10px; padding: 8px;");

    Command1 = MakeButton("Give Answer", this);
    Command1->setObjectName("Command1");
    // Keys belong to the answer: the button is for the mouse.
    Command1->setFocusPolicy(Qt::NoFocus);
    connect(Command1, &QPushButton::clicked, this, &BlindTilesForm::giveAnswer);

    Label1 = new QLabel(
        "Click a tile, then type the word from the list that fits there. Click it again to switch "
        "between across and down.",
        this);
    Label1->setObjectName("Label1");
    Label1->setWordWrap(true);
    Label1->setFont(ScreenFont(12, true));
    Label1->setStyleSheet(
        "color: #3b2410; background: rgba(255, 248, 232, 220); border-radius: 10px; padding: 8px;");

    Command1->hide();
    Label3->hide();
    resize(ScreenMetrics::screenSize());
    // The music's timer runs once after opening; the first round's start must not stop it.
    frame_.keepOnRestart("Timer1");
    Timer1.start();
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void BlindTilesForm::NewGame() {
    for (auto* l : ClueLabel) {
        l->setStyleSheet(entryStyle(false));
        l->hide();
    }
    // The layout runs at once: even the hardest list takes well under a frame or two, so the
    // first tile shows without a wait panel.
    const blind_tiles::RoundResult result = blind_tiles::newRound(Shared(), bt_, TheRng());
    if (!result.ok) {
        frame_.refuse(toQ(result.message), "Blind Tiles!");
        return;
    }
    for (int i = 0; i < int(bt_.entries.size()) && i < ClueLabel.size(); ++i) {
        ClueLabel[i]->setText(toQ(bt_.entries[i]));
        ClueLabel[i]->show();
    }
    showState();
}

void BlindTilesForm::showState() {
    board_->setBoard(&bt_.board);
    Label2->setText(toQ(bt_.scoreText));
    for (int i = 0; i < int(bt_.entrySolved.size()) && i < ClueLabel.size(); ++i)
        ClueLabel[i]->setStyleSheet(entryStyle(bt_.entrySolved[i]));
    Command1->setVisible(bt_.board.helpShown);
    Label3->setVisible(bt_.board.helpShown);
}

void BlindTilesForm::clickTile(int i) {
    if (i < 0 || i >= bt_.board.cells()) return;
    blind_tiles::clickCell(bt_, i);
    showState();
}

void BlindTilesForm::typeKey(int key) {
    afterWord(blind_tiles::pressKey(Shared(), bt_, key), true);
}

void BlindTilesForm::giveAnswer() {
    // No sound here, unlike the crossword.
    afterWord(blind_tiles::giveAnswer(Shared(), bt_), false);
}

void BlindTilesForm::afterWord(blind_tiles::Outcome outcome, bool typed) {
    const bool done =
        outcome == blind_tiles::Outcome::Solved || outcome == blind_tiles::Outcome::GameEnds;
    if (done && typed) {
        sound().effect("gong.wav");
        FlashTimer.start();
    }
    // The game's end stops the flash at once.
    if (outcome == blind_tiles::Outcome::GameEnds) FlashTimer.stop();
    showState();
    if (outcome == blind_tiles::Outcome::GameEnds) endOfGame();
}

void BlindTilesForm::endOfGame() {
    if (!cross::endGame(Shared(), bt_.GameWon)) {
        sound().effect("ooh.wav");
        dialogs().message(cross::kLoseText, cross::kLoseTitle);
        frame_.quit();
        return;
    }
    sound().effect("cheer.wav");
    frame_.wonGame();
}

void BlindTilesForm::keyPressEvent(QKeyEvent* e) {
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

void BlindTilesForm::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height();
    const int top = frame_.menuHeight() + h / 60;
    const int gap = w / 60;
    const int side = std::max(w * 26 / 100, 280);
    const int boardW = w - side - 3 * gap, boardH = h - top - gap;
    const double pitch = std::min(boardW / double(kCols), boardH / double(kRows));
    const int bw = int(pitch * kCols) + 8, bh = int(pitch * kRows) + 8;
    board_->setGeometry(gap + (boardW - bw) / 2, top + (boardH - bh) / 2, bw, bh);

    const int x = w - side - gap, colW = side;
    int y = top;
    Label2->setGeometry(x, y, colW, Label2->sizeHint().height() + 6);
    y += Label2->height() + gap;
    const int listH = std::min(h * 45 / 100, 60 + 7 * (ClueLabel[0]->sizeHint().height() + 8));
    Frame2->setGeometry(x, y, colW, listH);
    y += listH + gap;
    Label3->setGeometry(x, y, colW, Label3->heightForWidth(colW) + 4);
    y += Label3->height() + gap;
    Command1->setGeometry(x + colW / 8, y, colW * 3 / 4, Command1->minimumHeight());
    const int l1h = Label1->heightForWidth(colW) + 4;
    Label1->setGeometry(x, h - gap - l1h, colW, l1h);
}

WM_REGISTER_GAME("Blind Tiles", BlindTilesForm, "images/blind-tiles-back.svg", "sounds/gong.wav",
                 "sounds/cheer.wav", "sounds/ooh.wav", "sounds/vivaldi.mid");

}  // namespace wm
