// Letter Toss: flick the paper ball with the word into the basket of its definition, against the
// fan's draught, as many times as sixty seconds allow.
#pragma once

#include <QLabel>
#include <QWidget>

#include "games/action/letter_toss/letter_toss_rules.h"
#include "games/action/letter_toss/letter_toss_scene.h"
#include "shell/game_frame.h"

namespace wm {

class LetterTossGame : public QWidget {
    Q_OBJECT
public:
    enum class Phase { Ready, Aiming, Flying, Landed, Over };

    explicit LetterTossGame(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    TossScene* scene() const { return scene_; }
    const letter_toss::Room& room() const { return room_; }
    Phase phase() const { return phase_; }
    void NewGame();
    // The ball let go at `from` (stage units) with the flick, as the scene hands it over.
    void letGo(QPointF from, letter_toss::Flick flick);
    // One frame: the ball's flight and the scene's animations (the benchmark calls it directly).
    void animTick();

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void play();
    void clockTick();
    void landed(const letter_toss::Step& step);
    void afterLanding();
    void timeUp();
    void finish();
    void showHud();

    TossScene* scene_;
    QLabel* ScoreLabel;
    QLabel* TimeLabel;
    QLabel* Label1;     // how to toss
    QLabel* Label2;     // "Toss this word:"
    QLabel* WordLabel;  // the word on the paper ball
    GameFrame frame_;
    GameTimer& Timer1;  // the clock, a second at a time
    GameTimer& Timer2;  // the pause before the first toss
    GameTimer& Timer3;  // the pause after a landing
    GameTimer& Timer4;  // "Time's up!" before the end boxes
    GameTimer& Anim;
    letter_toss::Room room_;
    letter_toss::Landing last_ = letter_toss::Landing::Flying;
    Phase phase_ = Phase::Over;
    bool timeUp_ = false;
};

}  // namespace wm
