#include "games/show/bomb_squad/bomb_squad_screen.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/show/bomb_squad/bomb_art.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

BombSquad::BombSquad(QWidget* parent) : BombBoard(parent, "BombSquad", "Bomb Squad") {
    setAutoFillBackground(false);
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

QPointF BombSquad::wireStart(int i) const {
    return {double(WordLabel[i]->geometry().right()), WordLabel[i]->geometry().center().y() + 0.0};
}

QPointF BombSquad::wireEnd(int i) const {
    return {double(DefLabel[i]->geometry().left()), DefLabel[i]->geometry().center().y() + 0.0};
}

QPainterPath BombSquad::wirePath(int i) const {
    return bombart::wirePath(wireStart(i), wireVia(i), wireEnd(i));
}

QPoint BombSquad::wireMiddle(int i) const {
    return wirePath(i).pointAtPercent(0.5).toPoint();
}

namespace {
double distanceToSegment(QPointF p, QPointF a, QPointF b) {
    const QPointF ab = b - a;
    const double len2 = QPointF::dotProduct(ab, ab);
    const double t = len2 > 0 ? std::clamp(QPointF::dotProduct(p - a, ab) / len2, 0.0, 1.0) : 0;
    const QPointF d = p - (a + t * ab);
    return std::sqrt(QPointF::dotProduct(d, d));
}
}  // namespace

int BombSquad::wireAt(QPointF at) const {
    // The wires bow towards the bomb, so a press is matched to the drawn line, not to the row of
    // the labels. A child's click may land a little off the line; the nearest wire wins.
    const double reach = std::max(16.0, height() / 40.0);
    int best = -1;
    double bestDistance = reach;
    for (int i = 0; i < int(deal_.wires.size()); ++i) {
        for (const QPolygonF& line : wirePath(i).toSubpathPolygons()) {
            for (int k = 1; k < line.size(); ++k) {
                const double d = distanceToSegment(at, line[k - 1], line[k]);
                if (d <= bestDistance) {
                    bestDistance = d;
                    best = i;
                }
            }
        }
    }
    return best;
}

void BombSquad::paintWires(QPainter& p, double width) {
    const auto& colours = bombart::wireColours();
    for (int i = 0; i < int(deal_.wires.size()); ++i)
        bombart::paintWire(p, wireStart(i), wireVia(i), wireEnd(i), colours[i], width,
                           deal_.wires[i].cut);
}

void BombSquad::mousePressEvent(QMouseEvent* e) {
    TryCut(e->position().toPoint());
}

void BombSquad::TryCut(QPoint at) {
    if (exploding() || !Timer1.isActive() || deal_.wires.empty()) return;
    if (at.x() <= WordLabel[0]->geometry().right() || at.x() >= DefLabel[0]->geometry().left())
        return;
    const int hit = wireAt(at);
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
