// Bridge Out: drag the letter planks out of the river into the bridge's gaps before the truck
// gets there. Eight bridges fixed win; three trucks stopped at the gap lose.
#pragma once

#include <QLabel>
#include <QWidget>

#include "games/action/bridge_out/bridge_out_rules.h"
#include "games/action/bridge_out/bridge_out_scene.h"
#include "shell/game_frame.h"

namespace wm {

class BridgeOutGame : public QWidget {
    Q_OBJECT
public:
    static constexpr int kEndMs = 2200;  // the last moment before the end boxes

    explicit BridgeOutGame(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const bridge_out::Game& game() const { return game_; }
    BridgeScene* scene() const { return scene_; }
    void SetupGame();
    // One frame (Timer1): the river, the truck and the scene's animation. The benchmark calls
    // it directly.
    void tick();

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void dropped(int id, int gap, double riverX);
    void showWord();
    void showHud();
    void endOfGame();

    GameFrame frame_;
    BridgeScene* scene_;
    QLabel* Label1;  // the meaning, as a clue
    QLabel* ScoreLabel;
    QLabel* BridgeLabel;
    QLabel* TrucksLabel;
    QLabel* RoadLabel;
    GameTimer& Timer1;
    GameTimer& Timer2;
    bridge_out::Game game_;
    qint64 lastTick_ = 0;
};

}  // namespace wm
