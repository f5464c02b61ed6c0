// Slingshot: read the definition at the top, pull back the band and let go; hit the swinging
// target with the matching word. Three stones a definition, ten definitions a game.
#pragma once

#include <QLabel>
#include <QWidget>
#include <functional>

#include "games/action/slingshot/slingshot_field.h"
#include "games/action/slingshot/slingshot_rules.h"
#include "shell/game_frame.h"

namespace wm {

class SlingShot : public QWidget {
    Q_OBJECT
public:
    static constexpr int kReadyMs = 1500;   // "Ready..." before the first stone
    static constexpr int kSolvedMs = 1300;  // the right target spinning away
    static constexpr int kEndMs = 2200;     // the last moment before the end boxes

    explicit SlingShot(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const slingshot::Game& game() const { return game_; }
    SlingField* field() const { return field_; }
    void SetupGame();
    // One frame (Timer1): the physics step and the meadow's animation. The benchmark calls it.
    void tick();

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void letGo(slingshot::Point pouch);
    void reveal();
    void nextDefinition();
    void endGame();
    void showDefinition();
    void showScore();
    void pauseThen(int ms, std::function<void()> then);

    GameFrame frame_;
    SlingField* field_;
    QLabel* Label1;  // the definition
    QLabel* ScoreLabel;
    QLabel* RoundLabel;
    QLabel* LevelLabel;
    QLabel* StonesLabel;
    GameTimer& Timer1;
    GameTimer& Timer2;
    slingshot::Game game_;
    std::function<void()> then_;
    bool waiting_ = true;  // a pause: the band cannot be pulled
};

}  // namespace wm
