// Short Circuit: spell the word one column at a time to wire the battery to the bulb.
#pragma once

#include <QLabel>
#include <QVector>

#include "games/show/short_circuit/short_circuit_rules.h"
#include "shell/game_frame.h"

namespace wm {

class ShortCircuit : public QWidget {
    Q_OBJECT
public:
    explicit ShortCircuit(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const shortcircuit::Circuit& circuit() const { return circuit_; }
    // LetterLabel(column, row), both 0-based.
    QLabel* letter(int column, int row) const { return LetterLabel[column * 10 + row]; }
    QLabel* directions() const { return Directions; }
    bool lit() const { return lit_; }
    void SetupGame();

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void layOut();
    QRectF batteryRect() const;
    QRectF bulbRect() const;
    void setTile(QLabel* l, const char* style);
    void CircuitDone();
    void Shorted();
    void score();

    QVector<QLabel*> LetterLabel;  // 0..179
    QLabel* Directions;
    GameFrame frame_;
    GameTimer& Timer1;
    GameTimer& Timer2;
    GameTimer& Timer4;
    shortcircuit::Circuit circuit_;
    std::vector<QPointF> wire_;  // the corners of the white wire so far
    bool lit_ = false;
    bool flashRed_ = false;
};

}  // namespace wm
