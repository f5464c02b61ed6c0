// Slot Machine: a definition under three reels of words. Pull the handle, then stop each reel on
// the word that matches; every right reel pays and stays, all three win the jackpot.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <functional>

#include "games/show/slot_machine/slot_machine_rules.h"
#include "games/show/slot_machine/slot_machine_scene.h"
#include "shell/game_frame.h"

namespace wm {

class SlotMachine : public QWidget {
    Q_OBJECT
public:
    explicit SlotMachine(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const slot_machine::Game& game() const { return game_; }
    SlotScene* scene() const { return scene_; }
    QPushButton* stopButton(int reel) const { return stops_[reel]; }

    // The handle (a click on it, or Space) and the STOP of a reel (its button, or 1, 2, 3).
    void pull();
    void stopReel(int reel);
    // One frame: the reels roll on by the time passed, and the picture moves.
    void frameTick();

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void NewGame();
    void begin();
    void nextDefinition();
    void showCoins();
    void showButtons();
    void fitDefinition();
    void moving();
    void pauseThen(int ms, std::function<void()> then);

    GameFrame frame_;
    slot_machine::Game game_;
    SlotScene* scene_;
    QLabel* Label1;  // the definition
    QLabel* Label2;  // "Coins: 100"
    QLabel* Label3;  // "Definition 1 of 10"
    QLabel* Label4;  // what to do now
    QPushButton* stops_[slot_machine::kReels];  // Command1..Command3: STOP
    GameTimer& Timer1;  // frames: the reels roll, the picture moves
    GameTimer& Timer2;  // a pause before the next moment
    std::function<void()> then_;
    qint64 lastFrame_ = 0;
    bool ready_ = false;    // the definition is up and the handle may be pulled
    int paidThisPull_ = 0;  // reels right since the handle was pulled
};

}  // namespace wm
