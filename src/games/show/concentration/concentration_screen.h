// Concentration: word cards and definition cards lie face down on the felt; turn two at a time
// and find every word with its own definition.
#pragma once

#include <QLabel>
#include <vector>

#include "games/show/concentration/concentration_cards.h"
#include "games/show/concentration/concentration_rules.h"
#include "shell/game_frame.h"

namespace wm {

class Concentration : public QWidget {
    Q_OBJECT
public:
    explicit Concentration(QWidget* parent = nullptr);

    // How long a card takes to turn over, and how long the last pair shows before the end.
    static constexpr int kFlipMs = 260;
    static constexpr int kLastPairMs = 900;

    GameFrame& frame() { return frame_; }
    const concentration::Game& game() const { return game_; }
    QRect cardRect(int i) const;
    // The card's width on the table now, as a share of its full width (the flip narrows it).
    double cardWidthShare(int i) const;
    // What the card shows now: its back, its text or, once found, the green face.
    concentration::Face shownFace(int i) const;
    const concentration::CardText& cardText(int i) const { return texts_[i]; }
    bool animating() const;

    QLabel* ScoreLabel;
    QLabel* PairsLabel;
    QLabel* ClockLabel;
    QLabel* DefPanel;  // a long definition, whole, while its card is up

    void SetupGame();
    void clickAt(QPoint at);
    // Paints one animation frame's cards (the benchmark's tick).
    void paintCards(QPainter& p);

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent*) override;

private:
    void layOut();
    void fitTexts();
    void startFlip(int i);
    void animate();
    void showStatus();
    void turnedBack(const std::vector<int>& cards);
    void paintCard(QPainter& p, int i, qint64 now);
    QRect cardsArea() const;

    GameFrame frame_;
    GameTimer& Timer1;  // the clock, once a second
    GameTimer& Timer2;  // a wrong pair turns back
    GameTimer& Timer3;  // animation frames
    GameTimer& Timer4;  // the last pair shows, then the end
    concentration::Game game_;
    concentration::CardArt art_;
    concentration::Grid grid_;
    std::vector<concentration::CardText> texts_;
    std::vector<qint64> flipStart_;  // when each card began to turn (-1: at rest)
    std::vector<bool> wasUp_;        // what it showed before it began to turn
    std::vector<qint64> foundAt_;    // when each found card turns green
    int lastFound_ = -1;             // the definition of the pair just found
    QSize card_;
};

}  // namespace wm
