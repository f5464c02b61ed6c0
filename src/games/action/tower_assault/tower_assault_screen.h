// Tower Assault: the knight at the foot of the castle wall catches the scroll that matches the
// definition and dodges the rest. Ten rungs win; three shields lost drive him back.
#pragma once

#include <QLabel>
#include <QWidget>

#include "games/action/tower_assault/tower_assault_rules.h"
#include "games/action/tower_assault/tower_assault_scene.h"
#include "platform/key_state.h"
#include "shell/game_frame.h"

namespace wm {

class TowerGame : public QWidget {
    Q_OBJECT
public:
    static constexpr int kEndMs = TowerScene::kEndMs;  // the climb and the flag, or the retreat

    explicit TowerGame(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const tower::Game& game() const { return game_; }
    TowerScene* scene() const { return scene_; }
    void SetupGame();
    // One frame (Timer1): the knight, the scrolls, the guards and the scene's animation. The
    // benchmark calls it directly.
    void tick();

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void showWord();
    void showHud();
    void endOfGame();

    GameFrame frame_;
    KeyState keys_;
    TowerScene* scene_;
    QLabel* Label1;  // the definition
    QLabel* ScoreLabel;
    QLabel* RungsLabel;
    QLabel* ShieldsLabel;
    GameTimer& Timer1;
    GameTimer& Timer2;
    tower::Game game_;
};

}  // namespace wm
