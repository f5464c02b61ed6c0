// BreakThru: move the paddle with Up and Down, serve with Space, and bounce the ball into the
// wall to break the word's letters in order. All the words win; three balls lost, the game ends.
#pragma once

#include <QLabel>
#include <QWidget>

#include "games/action/break_thru/break_thru_field.h"
#include "games/action/break_thru/break_thru_rules.h"
#include "platform/key_state.h"
#include "shell/game_frame.h"

namespace wm {

class BreakThruForm : public QWidget {
    Q_OBJECT
public:
    static constexpr int kReadyMs = 1800;  // "Get ready!" before each wall
    static constexpr int kWordMs = 2000;   // the wall tumbles before the next word
    static constexpr int kEndMs = 2600;    // the fireworks, or the last ball gone

    explicit BreakThruForm(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const break_thru::Game& game() const { return game_; }
    break_thru::Game& rules() { return game_; }  // the benchmark serves through it
    BreakField* field() const { return field_; }
    void SetupGame();
    // One frame (Timer1): the keys, the rules' tick, the field. The benchmark calls it directly.
    void frameTick();

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void getReady();
    void showWord();
    void showProgress();

    GameFrame frame_;
    BreakField* field_;
    KeyState keys_;
    QLabel* Label1;  // the meaning, the clue
    QLabel* WordLabel;
    QLabel* ScoreLabel;
    QLabel* BallsLabel;
    GameTimer& Timer1;
    break_thru::Game game_;
};

}  // namespace wm
