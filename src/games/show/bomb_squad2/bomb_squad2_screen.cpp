#include "games/show/bomb_squad2/bomb_squad2_screen.h"

#include <QMouseEvent>
#include <QPainter>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/show/bomb_squad/bomb_art.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

namespace {
const QColor kGrey(192, 192, 192);
}  // namespace

BombSquad2::BombSquad2(QWidget* parent) : BombBoard(parent, "BombSquad2", "Bomb Squad 2") {
    setMouseTracking(true);
}

void BombSquad2::SetupGame() {
    SharedState& s = Shared();
    s.Score = 0;  // each deal starts from nothing
    clearBoard();
    for (auto* l : WordLabel) l->clear(), l->setStyleSheet(bombart::labelStyle(kGrey));
    for (auto* l : DefLabel) l->clear(), l->setStyleSheet(bombart::labelStyle(kGrey));
    TheRng().Randomize();
    board_ = bombsquad2::deal(s, s.Difficulty, TheRng());
    wiredTo_.assign(board_.words.size(), -1);
    if (!board_.ready) {
        frame_.refuse(bombsquad::kTooFewWords, "Bomb Squad 2");
        return;
    }
    for (int i = 0; i < int(board_.words.size()); ++i) {
        WordLabel[i]->setText(toQ(s.Words[board_.words[i]]));
        WordLabel[i]->show();
    }
    for (int j = 0; j < int(board_.defOwner.size()); ++j) {
        const std::string& meaning = s.Meanings[board_.words[board_.defOwner[j]]];
        DefLabel[j]->setText(toQ(meaning));
        DefLabel[j]->setFont(ScreenFont(meaning.size() > 50 ? 10 : 13, true));
        DefLabel[j]->show();
    }
    startClock();
}

QString BombSquad2::tickSound() const {
    return bombsquad2::tickSound(board_.secondsLeft);
}

QString BombSquad2::lostText() const {
    return bombsquad2::lostText(board_.secondsLeft);
}

QPointF BombSquad2::wordEnd(int i) const {
    return {double(WordLabel[i]->geometry().right()), WordLabel[i]->geometry().center().y() + 0.0};
}

QPointF BombSquad2::defEnd(int j) const {
    return {double(DefLabel[j]->geometry().left()), DefLabel[j]->geometry().center().y() + 0.0};
}

void BombSquad2::paintWires(QPainter& p, double width) {
    const auto& colours = bombart::wireColours();
    const QPointF c = bombRect().center();
    for (int i = 0; i < int(wiredTo_.size()); ++i) {
        if (wiredTo_[i] < 0) continue;
        const QPointF a = wordEnd(i), b = defEnd(wiredTo_[i]);
        bombart::paintWire(p, a, QPointF(c.x(), (a.y() + b.y()) / 2), b, colours[i], width, false);
    }
    if (board_.carrying) {
        const QPointF a = wordEnd(board_.carried);
        const QPointF m(mouse_);
        bombart::paintWire(p, a, (a + m) / 2 + QPointF(0, 30), m, colours[board_.carried], width,
                           false);
    }
}

void BombSquad2::mousePressEvent(QMouseEvent* e) {
    if (exploding() || !Timer1.isActive()) return;
    const QPoint at = e->position().toPoint();
    mouse_ = at;
    for (int i = 0; i < int(board_.words.size()); ++i) {
        if (!WordLabel[i]->geometry().contains(at)) continue;
        if (bombsquad2::clickWord(board_, i) == bombsquad2::WordClick::PickedUp)
            sound().effect("snip.wav");
        update();
        return;
    }
    for (int j = 0; j < int(board_.defOwner.size()); ++j) {
        if (!DefLabel[j]->geometry().contains(at)) continue;
        const int carried = board_.carried;
        switch (bombsquad2::clickDefinition(board_, j)) {
            case bombsquad2::DefClick::Nothing:
                return;
            case bombsquad2::DefClick::Exploded:
                Explode();
                return;
            case bombsquad2::DefClick::Connected:
            case bombsquad2::DefClick::Defused:
                break;
        }
        sound().effect("dkbell.wav");
        wiredTo_[carried] = j;
        const QColor colour = bombart::wireColours()[carried];
        WordLabel[carried]->setStyleSheet(bombart::labelStyle(colour));
        DefLabel[j]->setStyleSheet(bombart::labelStyle(colour));
        update();
        if (!board_.carrying && std::count(wiredTo_.begin(), wiredTo_.end(), -1) == 0) Defused();
        return;
    }
}

void BombSquad2::mouseMoveEvent(QMouseEvent* e) {
    mouse_ = e->position().toPoint();
    if (board_.carrying) update();
}

void BombSquad2::Explode() {
    board_.carrying = false;
    BombBoard::Explode();
}

WM_REGISTER_GAME("Bomb Squad 2", BombSquad2, "images/bomb.svg", "sounds/2.wav", "sounds/dkbell.wav",
                 "sounds/highbeep.wav", "sounds/snip.wav", "sounds/spacebeep.wav");

}  // namespace wm
