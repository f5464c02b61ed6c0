// Princess: the princess waits at the castle gate with the drawbridge up and a dragon asleep on
// the tower. The word's letters lie shuffled on stepping stones in the moat; clicking them in
// the order of the word lays the planks. Each word lowers the bridge a notch; as many words as
// the level bring it down and the princess crosses. Eight splashes wake the dragon.
#pragma once

#include <QLabel>
#include <QRegion>
#include <QWidget>

#include "games/guess/princess/princess_rules.h"
#include "games/guess/princess/princess_scene.h"
#include "platform/ticker.h"
#include "shell/game_frame.h"

namespace wm {

class frmPrincess : public QWidget {
    Q_OBJECT
public:
    explicit frmPrincess(QWidget* parent = nullptr);

    enum class Phase { Idle, Arrive, Play, Spelled, Crossing, Woken };

    GameFrame& frame() { return frame_; }
    const princess::Game& game() const { return game_; }
    Phase phase() const { return phase_; }
    const princess::View& view() const { return view_; }
    // Where stone `i` lies on the screen, for a click.
    QRect stoneRect(int i) const;
    // Stone `i` clicked (or picked by its letter typed).
    void pickStone(int i);
    // One frame of the animation, as Timer1 runs it (the benchmark calls it directly).
    void animate();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent*) override;

private:
    // Times are counted from the screen's making, so that the scene moves alike whenever it is made.
    qint64 nowMs() const;
    const qint64 born_ = Ticker::get().now();
    void NewGame();
    void startWord(bool first);
    void setPhase(Phase phase);
    void showHud();
    void showMeaning(bool decided);
    void fitMeaning();
    double bridgeAt(qint64 now) const;
    void updateView(qint64 now);

    GameFrame frame_;
    GameTimer& Timer1;
    princess::Game game_;
    princess::PrincessPicture picture_;
    princess::View view_;
    Phase phase_ = Phase::Idle;
    qint64 phaseAt_ = 0;
    bool firstWord_ = true;
    std::vector<qint64> risenAt_;  // per stone: when it rose, -1 in the water
    qint64 splashAt_ = -100000;
    int splashStone_ = -1;
    double bridgeFrom_ = 0, bridgeTo_ = 0;  // the notch the bridge is lowering through
    qint64 bridgeAt_ = 0;
    QRegion drawn_;  // what the last frame painted

    QLabel* WordLabel;     // "Word 1 of 5"
    QLabel* ScoreLabel;    // "Score: 0"
    QLabel* MeterLabel;    // "Splashes: 0 of 8"
    QLabel* MeaningLabel;  // the clue, or what to do
    QLabel* ReadyLabel;
};

}  // namespace wm
