// Bomb Squad 2: carry a wire from each word to its definition before the clock runs out; a wire
// brought to the wrong definition sets the bomb off.
#pragma once

#include "games/show/bomb_squad/bomb_board.h"
#include "games/show/bomb_squad2/bomb_squad2_rules.h"

namespace wm {

class BombSquad2 : public BombBoard {
    Q_OBJECT
public:
    explicit BombSquad2(QWidget* parent = nullptr);

    const bombsquad2::Board& board() const { return board_; }
    void SetupGame() override;

protected:
    bool tickClock() override { return bombsquad2::tick(board_); }
    int secondsLeft() const override { return board_.secondsLeft; }
    QString tickSound() const override;
    QString lostText() const override;
    bool dealt() const override { return board_.ready; }
    int rows() const override { return int(board_.words.size()); }
    void paintWires(QPainter& p, double width) override;
    void Explode() override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;

private:
    QPointF wordEnd(int i) const;
    QPointF defEnd(int j) const;

    bombsquad2::Board board_;
    std::vector<int> wiredTo_;  // per word label, the DefLabel its wire is fixed to, -1 loose
    QPoint mouse_;
};

}  // namespace wm
