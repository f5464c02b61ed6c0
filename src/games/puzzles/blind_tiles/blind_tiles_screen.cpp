#include "games/puzzles/blind_tiles/blind_tiles_screen.h"

#include <QLinearGradient>
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

constexpr int kCols = blind_tiles::kCols;
constexpr int kRows = blind_tiles::kRows;
constexpr double kTileShare = 0.94;  // of the pitch; the rest is the gap between tiles

CrossFormLook look() {
    CrossFormLook l;
    l.name = "BlindTilesForm";
    l.title = "Blind Tiles!";
    l.backdrop = "images/blind-tiles-back.svg";
    l.music = "vivaldi.mid";
    l.foreignKey = "blind tiles";
    l.score = "Score: 0";
    l.helpText =
        "Type the word that fits, using Backspace to fix a mistake. \"Give Answer\" fills it in, "
        "but you lose 1000 points!";
    l.helpColours = "color: white; background: rgba(60, 35, 15, 200);";
    l.hintText =
        "Click a tile, then type the word from the list that fits there. Click it again to switch "
        "between across and down.";
    l.hintColours = "color: #3b2410; background: rgba(255, 248, 232, 220);";
    return l;
}

QString entryStyle(bool solved) {
    return QString(
               "color: #2a1a0c; background: %1; border: 2px solid #8a5a2b; border-radius: 8px;"
               " padding: 2px 10px;")
        .arg(solved ? "rgb(255, 255, 192)" : "rgb(255, 192, 192)");
}

}  // namespace

// ---- the tiles ----

BlindTilesBoard::BlindTilesBoard(QWidget* parent) : CrossGrid(parent, kCols, kRows, 0.0) {
    setObjectName("Tiles");
}

QRect BlindTilesBoard::tileRect(int i) const {
    const QPointF a = corner(i);
    const int side = int(pitch() * kTileShare);
    return {int(std::lround(a.x())), int(std::lround(a.y())), side, side};
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
        // Ivory when blank, the selection's and the solved colours otherwise.
        const QColor c = CellColour(board_->colour[i], QColor(255, 255, 255));
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

// ---- the screen ----

BlindTilesForm::BlindTilesForm(QWidget* parent) : CrossForm(parent, look()) {
    board_ = new BlindTilesBoard(this);
    board_->lower();
    connect(board_, &CrossGrid::cellClicked, this, &BlindTilesForm::clickTile);

    auto* panel = new QGroupBox("Words to use:", this);
    panel->setStyleSheet(
        "QGroupBox { color: #3b2410; background: rgba(255, 248, 232, 235);"
        " border: 3px solid #8a5a2b; border-radius: 14px; margin-top: 22px; padding: 10px; }"
        " QGroupBox::title { subcontrol-origin: margin; left: 14px; padding: 0 6px; }");
    auto* list = new QVBoxLayout(panel);
    list->setContentsMargins(14, 20, 14, 14);
    list->setSpacing(8);
    for (int i = 0; i < blind_tiles::kPanelLines; ++i) {
        auto* l = new QLabel(panel);
        l->setObjectName(QString("ClueLabel%1").arg(i));
        l->setFont(ScreenFont(15, true));
        l->setStyleSheet(entryStyle(false));
        l->hide();
        list->addWidget(l);
        ClueLabel.push_back(l);
    }
    list->addStretch(1);
    finishSetUp(board_, panel);
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
    showHelp(bt_.board.helpShown);
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
    if (outcome == blind_tiles::Outcome::GameEnds) endOfGame(bt_.GameWon);
}
void BlindTilesForm::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height();
    const int side = std::max(w * 26 / 100, 280);
    const QRect room = boardRoom(side);
    const double pitch = std::min(room.width() / double(kCols), room.height() / double(kRows));
    const int bw = int(pitch * kCols) + 8, bh = int(pitch * kRows) + 8;
    board_->setGeometry(room.left() + (room.width() - bw) / 2,
                        room.top() + (room.height() - bh) / 2, bw, bh);
    const int listH = std::min(h * 45 / 100, 60 + 7 * (ClueLabel[0]->sizeHint().height() + 8));
    layOutColumn(w - side - room.left(), side, listH);
}

WM_REGISTER_GAME("Blind Tiles", BlindTilesForm, "images/blind-tiles-back.svg", "sounds/gong.wav",
                 "sounds/cheer.wav", "sounds/ooh.wav", "sounds/vivaldi.mid");

}  // namespace wm
