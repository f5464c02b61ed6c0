// Cannon Shot: aim the cannon with Left and Right, hold Space to charge, let go to fire, and
// pop the hidden word's letter balloons in order. Five words win.
#pragma once

#include <QLabel>
#include <QWidget>

#include "games/action/cannon_shot/cannon_shot_rules.h"
#include "games/action/cannon_shot/cannon_shot_sky.h"
#include "platform/key_state.h"
#include "shell/game_frame.h"

namespace wm {

class CannonShotForm : public QWidget {
    Q_OBJECT
public:
    static constexpr int kReadyMs = 1800;  // "Get ready!" before the first shot of a word
    static constexpr int kWordMs = 1600;   // "Well done!" before the next word
    static constexpr int kEndMs = 2600;    // the win's fireworks or the drooping barrel

    explicit CannonShotForm(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const cannon_shot::Game& game() const { return game_; }
    cannon_shot::Game& rules() { return game_; }  // the benchmark fires through it
    CannonSky* sky() const { return sky_; }
    void SetupGame();
    // One frame (Timer1): the keys, the rules' tick, the sky. The benchmark calls it directly.
    void frameTick();

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void go();
    void afterPause();
    void showWord();
    void showProgress();

    GameFrame frame_;
    CannonSky* sky_;
    KeyState keys_;
    QLabel* Label1;  // the meaning, the clue
    QLabel* LevelLabel;
    QLabel* WordLabel;
    QLabel* ScoreLabel;
    QLabel* BallsLabel;
    GameTimer& Timer1;
    GameTimer& Timer2;
    cannon_shot::Game game_;
    enum class Pause { None, Ready, Word, End } pause_ = Pause::None;
};

}  // namespace wm
