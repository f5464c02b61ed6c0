#include "games/puzzles/cross_form.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <cmath>

#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"

namespace wm {

// ---- the grid ----

CrossGrid::CrossGrid(QWidget* parent, int cols, int rows, double margin)
    : QWidget(parent), cols_(cols), rows_(rows), margin_(margin) {}

void CrossGrid::setBoard(const cross::PlayBoard* board) {
    board_ = board;
    update();
}

double CrossGrid::pitch() const {
    return std::min(width() / (cols_ + margin_), height() / (rows_ + margin_));
}

QPoint CrossGrid::origin() const {
    const double s = pitch();
    return {int((width() - s * cols_) / 2), int((height() - s * rows_) / 2)};
}

QPointF CrossGrid::corner(int i) const {
    const double s = pitch();
    return QPointF(origin()) + QPointF(i % cols_ * s, i / cols_ * s);
}

int CrossGrid::cellAt(QPoint p) const {
    const double s = pitch();
    const QPoint o = origin();
    if (s <= 0 || p.x() < o.x() || p.y() < o.y()) return -1;
    const int c = int((p.x() - o.x()) / s), r = int((p.y() - o.y()) / s);
    if (c >= cols_ || r >= rows_) return -1;
    return r * cols_ + c;
}

void CrossGrid::mousePressEvent(QMouseEvent* e) {
    const int i = cellAt(e->position().toPoint());
    // Hidden cells are no part of any word and take no clicks.
    if (board_ && i >= 0 && i < board_->cells() && board_->visible[i]) emit cellClicked(i);
}

QColor CellColour(cross::TileColour c, const QColor& blank) {
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
    return blank;
}

// ---- the form ----

namespace {
GameMenuNames menuNames(const QString& foreignKey) {
    GameMenuNames menu;
    menu.foreignKey = foreignKey;
    return menu;
}
}  // namespace

CrossForm::CrossForm(QWidget* parent, const CrossFormLook& look)
    : Backdrop(look.backdrop, parent),
      frame_(this, menuNames(look.foreignKey), [this] { NewGame(); }),
      Timer1(frame_.timer(
          "Timer1", 1, [this] { frame_.startMusic(); }, true)),
      FlashTimer(frame_.timer("FlashTimer", 10, [this] {
          cross::flashTick(playBoard());
          if (!playBoard().flashing) FlashTimer.stop();
          grid_->update();
      })) {
    setObjectName(look.name);
    // The last word found flashes on to green behind the end boxes.
    frame_.runOnThroughEnd("FlashTimer");
    setWindowTitle(look.title);
    setFocusPolicy(Qt::StrongFocus);
    frame_.setMusic(MusicKind::Own, look.music);
    frame_.setForeign([this](const QString& c) {
        const std::string ch = fromQ(c);
        if (!ch.empty()) typeKey(static_cast<unsigned char>(ch[0]));
    });

    Label2 = new QLabel(look.score, this);
    Label2->setObjectName("Label2");
    Label2->setFont(ScreenFont(20, true));
    Label2->setAlignment(Qt::AlignCenter);
    Label2->setStyleSheet(
        "color: #c8102e; background: #ffe94d; border: 3px solid #c8102e; border-radius: 12px;"
        " padding: 4px 14px;");

    Label3 = new QLabel(look.helpText, this);
    Label3->setObjectName("Label3");
    Label3->setWordWrap(true);
    Label3->setFont(ScreenFont(12));
    Label3->setStyleSheet(look.helpColours + " border-radius: 10px; padding: 8px;");

    // The button takes no focus: keys belong to the answer, the button is for the mouse, so a
    // space or Enter typed as part of an answer never gives it away.
    Command1 = MakeButton("Give Answer", this);
    Command1->setObjectName("Command1");
    Command1->setFocusPolicy(Qt::NoFocus);
    connect(Command1, &QPushButton::clicked, this, [this] { giveAnswer(); });

    Label1 = new QLabel(look.hintText, this);
    Label1->setObjectName("Label1");
    Label1->setWordWrap(true);
    Label1->setFont(ScreenFont(12, true));
    Label1->setStyleSheet(look.hintColours + " border-radius: 10px; padding: 8px;");
    showHelp(false);
}

void CrossForm::finishSetUp(CrossGrid* board, QGroupBox* panel) {
    grid_ = board;
    Frame2 = panel;
    Frame2->setObjectName("Frame2");
    Frame2->setFont(ScreenFont(14, true));
    resize(ScreenMetrics::screenSize());
    // The music's timer runs once after opening; the first round's start must not stop it.
    frame_.keepOnRestart("Timer1");
    Timer1.start();
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void CrossForm::showHelp(bool shown) {
    Command1->setVisible(shown);
    Label3->setVisible(shown);
}

QRect CrossForm::boardRoom(int side) const {
    const int w = width(), h = height();
    const int top = frame_.menuHeight() + h / 60;
    const int gap = w / 60;
    return {gap, top, w - side - 3 * gap, h - top - gap};
}

void CrossForm::layOutColumn(int x, int side, int panelHeight) {
    const int h = height(), gap = width() / 60;
    int y = frame_.menuHeight() + h / 60;
    Label2->setGeometry(x, y, side, Label2->sizeHint().height() + 6);
    y += Label2->height() + gap;
    Frame2->setGeometry(x, y, side, panelHeight);
    y += panelHeight + gap;
    Label3->setGeometry(x, y, side, Label3->heightForWidth(side) + 4);
    y += Label3->height() + gap;
    Command1->setGeometry(x + side / 8, y, side * 3 / 4, Command1->minimumHeight());
    const int l1h = Label1->heightForWidth(side) + 4;
    Label1->setGeometry(x, h - gap - l1h, side, l1h);
}

void CrossForm::endOfGame(bool gameWon) {
    if (!cross::endGame(Shared(), gameWon)) {
        sound().effect("ooh.wav");
        dialogs().message(cross::kLoseText, cross::kLoseTitle);
        frame_.quit();
        return;
    }
    sound().effect("cheer.wav");
    frame_.wonGame();
}

void CrossForm::keyPressEvent(QKeyEvent* e) {
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

}  // namespace wm
