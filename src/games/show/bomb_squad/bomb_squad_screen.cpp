#include "games/show/bomb_squad/bomb_squad_screen.h"

#include <QAction>
#include <QMouseEvent>
#include <QPainter>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/show/bomb_squad/bomb_art.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

BombSquad::BombSquad(QWidget* parent) : BombBoard(parent, "BombSquad", "Bomb Squad") {
    setAutoFillBackground(false);
    // Restart asks first, then deals again.
    QAction* restart = frame_.entry(GameFrame::Entry::Restart);
    restart->disconnect();
    connect(restart, &QAction::triggered, this, [this] {
        if (frame_.leaving()) return;
        frame_.stopTimers();
        dialogs().message("Click OK to reset the game");
        frame_.newGame();
    });
}

void BombSquad::SetupGame() {
    SharedState& s = Shared();
    clearBoard();
    TheRng().Randomize();
    deal_ = bombsquad::deal(s, s.Difficulty, TheRng());
    if (!deal_.ready) {
        frame_.refuse(bombsquad::kTooFewWords, "Bomb Squad");
        return;
    }
    const auto& colours = bombart::wireColours();
    for (int i = 0; i < int(deal_.wires.size()); ++i) {
        const auto& w = deal_.wires[i];
        WordLabel[i]->setText(toQ(s.Words[w.word]));
        WordLabel[i]->setStyleSheet(bombart::labelStyle(colours[i]));
        DefLabel[i]->setText(toQ(s.Meanings[w.definition]));
        DefLabel[i]->setFont(ScreenFont(w.smallFont ? 10 : 13, true));
        DefLabel[i]->setStyleSheet(bombart::labelStyle(colours[i]));
        WordLabel[i]->show();
        DefLabel[i]->show();
    }
    startClock();
}

QString BombSquad::lostText() const {
    return bombsquad::lostText(deal_.secondsLeft);
}

QPointF BombSquad::wireVia(int i) const {
    // Every wire runs over the bomb, fanned out a little by its row.
    const QRectF b = bombRect();
    const double mid = WordLabel[i]->geometry().center().y();
    return {b.center().x(), b.center().y() + (mid - b.center().y()) * 0.55};
}

QPoint BombSquad::wireMiddle(int i) const {
    const QPointF a(WordLabel[i]->geometry().right(), WordLabel[i]->geometry().center().y());
    const QPointF b(DefLabel[i]->geometry().left(), DefLabel[i]->geometry().center().y());
    const QPointF v = wireVia(i);
    return QPointF(0.25 * a.x() + 0.5 * v.x() + 0.25 * b.x(),
                   0.25 * a.y() + 0.5 * v.y() + 0.25 * b.y())
        .toPoint();
}

void BombSquad::paintWires(QPainter& p, double width) {
    const auto& colours = bombart::wireColours();
    for (int i = 0; i < int(deal_.wires.size()); ++i) {
        const QPointF a(WordLabel[i]->geometry().right(), WordLabel[i]->geometry().center().y());
        const QPointF e(DefLabel[i]->geometry().left(), DefLabel[i]->geometry().center().y());
        bombart::paintWire(p, a, wireVia(i), e, colours[i], width, deal_.wires[i].cut);
    }
}

void BombSquad::mousePressEvent(QMouseEvent* e) {
    TryCut(e->position().toPoint());
}

void BombSquad::TryCut(QPoint at) {
    if (exploding() || !Timer1.isActive() || deal_.wires.empty()) return;
    if (at.x() <= WordLabel[0]->geometry().right() || at.x() >= DefLabel[0]->geometry().left())
        return;
    const int n = deal_.wires.size();
    int hit = -1;
    for (int i = 0; i < n; ++i) {
        // The row band of each wire: half-way to its neighbours.
        const int mid = WordLabel[i]->geometry().center().y();
        const int up = i > 0 ? (mid + WordLabel[i - 1]->geometry().center().y()) / 2 : 0;
        const int down =
            i + 1 < n ? (mid + WordLabel[i + 1]->geometry().center().y()) / 2 : height();
        if (at.y() >= up && at.y() < down) hit = i;
    }
    if (hit < 0 || deal_.wires[hit].cut) return;
    sound().effect("snip.wav");
    const auto result = bombsquad::cut(deal_, hit);
    update();
    if (result == bombsquad::CutResult::Exploded)
        Explode();
    else if (result == bombsquad::CutResult::Defused)
        Defused();
}

WM_REGISTER_GAME("Bomb Squad", BombSquad, "images/bomb.svg", "sounds/2.wav", "sounds/snip.wav",
                 "sounds/spacebeep.wav");

}  // namespace wm
