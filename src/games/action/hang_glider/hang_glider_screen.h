// Hang Glider: steer with Up and Down through the sky and fly through the word's letters in
// order while the glider sinks. Five words win; touching the ground loses.
#pragma once

#include <QLabel>
#include <QWidget>

#include "games/action/hang_glider/hang_glider_rules.h"
#include "games/action/hang_glider/hang_glider_sky.h"
#include "platform/key_state.h"
#include "shell/game_frame.h"

namespace wm {

class HangGlider : public QWidget {
    Q_OBJECT
public:
    static constexpr int kReadyMs = 1800;  // "Get ready!" before the letters come
    static constexpr int kWordMs = 1600;   // "Well done!" before the next word
    static constexpr int kEndMs = 2600;    // the win's fireworks or the landing's dust

    explicit HangGlider(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const hang_glider::Game& game() const { return game_; }
    hang_glider::Game& rules() { return game_; }  // tests and the benchmark set scenes up
    GliderSky* sky() const { return sky_; }
    void SetupGame();
    // One frame (Timer1): the keys, the rules' tick, the sky. The benchmark calls it directly.
    void frameTick();

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void afterPause();
    void showWord();
    void showProgress();

    GameFrame frame_;
    GliderSky* sky_;
    KeyState keys_;
    QLabel* Label1;  // the meaning, the clue
    QLabel* LevelLabel;
    QLabel* WordLabel;
    QLabel* ScoreLabel;
    GameTimer& Timer1;
    GameTimer& Timer2;
    hang_glider::Game game_;
    enum class Pause { None, Ready, Word, End } pause_ = Pause::None;
};

}  // namespace wm
