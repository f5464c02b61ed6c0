// Bomb Squad: cut every wire whose word and definition do not match before the clock runs out.
#pragma once

#include <QPainterPath>

#include "games/show/bomb_squad/bomb_board.h"
#include "games/show/bomb_squad/bomb_squad_rules.h"

namespace wm {

class BombSquad : public BombBoard {
    Q_OBJECT
public:
    explicit BombSquad(QWidget* parent = nullptr);

    const bombsquad::Deal& deal() const { return deal_; }
    // The point in the middle of wire i, where a press cuts it.
    QPoint wireMiddle(int i) const;
    // The wire drawn under a press at `at`, or -1: the nearest within a child's reach.
    int wireAt(QPointF at) const;
    void SetupGame() override;

protected:
    bool tickClock() override { return bombsquad::tick(deal_); }
    int secondsLeft() const override { return deal_.secondsLeft; }
    QString tickSound() const override { return "spacebeep.wav"; }
    QString lostText() const override;
    bool dealt() const override { return deal_.ready; }
    int rows() const override { return int(deal_.wires.size()); }
    void paintWires(QPainter& p, double width) override;
    void mousePressEvent(QMouseEvent* e) override;

private:
    QPointF wireStart(int i) const;
    QPointF wireVia(int i) const;
    QPointF wireEnd(int i) const;
    QPainterPath wirePath(int i) const;
    void TryCut(QPoint at);

    bombsquad::Deal deal_;
};

}  // namespace wm
