// Code Breaker: up to five words in one secret code on the agent's desk. Click a code symbol
// (or move with the arrow keys) and type the letter it stands for, before the clock runs out.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <functional>

#include "games/puzzles/code_breaker/code_breaker_rules.h"
#include "games/puzzles/code_breaker/code_breaker_scene.h"
#include "shell/game_frame.h"

namespace wm {

class CodeBreaker : public QWidget {
    Q_OBJECT
public:
    explicit CodeBreaker(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const code_breaker::Game& game() const { return game_; }
    CodeScene* scene() const { return scene_; }
    QLabel* clue() const { return Label1; }
    QLabel* levelLabel() const { return Label2; }
    QLabel* clockLabel() const { return Label3; }
    QLabel* helpLabel() const { return Label4; }
    QPushButton* hintButton() const { return Command1; }
    QPushButton* clearButton() const { return Command2; }

    // A letter for the selected symbol, from the keyboard, the key strip or the palette.
    void typeLetter(char letter);
    void clearLetter();
    void useHint();
    // A second of the clock, as Timer1 runs it, and one frame of the picture.
    void clockTick();
    void frameTick();

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void NewGame();
    void begin();
    void codeCracked();
    void timeUp();
    void moved();
    void showClock();
    void passing(const QString& text, CodeScene::Mood mood);
    void fitClue();

    GameFrame frame_;
    code_breaker::Game game_;
    CodeScene* scene_;
    QLabel* Label1;         // the clue: the first word's meaning
    QLabel* Label2;         // "Level 10"
    QLabel* Label3;         // "Time: 4:30"
    QLabel* Label4;         // what to do now
    QPushButton* Command1;  // "Hint"
    QPushButton* Command2;  // "Clear"
    GameTimer& Timer1;      // the clock, once a second
    GameTimer& Timer2;      // the picture's frames
    GameTimer& Timer3;      // a pause before the next moment
    GameTimer& Timer4;      // clears a passing message
};

}  // namespace wm
