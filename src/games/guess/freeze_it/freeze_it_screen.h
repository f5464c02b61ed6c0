// Freeze-It: the word's ice blocks thaw one by one; Space freezes them and the pupil types the
// word. Ten words, then the table.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>
#include <functional>

#include "games/guess/freeze_it/freeze_it_rules.h"
#include "games/guess/freeze_it/freeze_it_scene.h"
#include "shell/game_frame.h"

namespace wm {

class FreezeIt : public QWidget {
    Q_OBJECT
public:
    explicit FreezeIt(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const freeze_it::Game& game() const { return game_; }
    FreezeScene* scene() const { return scene_; }
    QLineEdit* answerBox() const { return Text1; }
    QLabel* clue() const { return Label1; }
    QLabel* wordLabel() const { return Label2; }
    QLabel* scoreLabel() const { return Label3; }
    QLabel* hintLabel() const { return Label4; }

    // Space: the thaw stands still and the answer box opens.
    void freezeNow();
    // Enter in the answer box.
    void checkAnswer();
    // The answer box put away (Escape in it): the thaw goes on.
    void cancelAnswer();
    // One thaw, as Timer1 runs it, and one frame of the picture (the benchmark calls these).
    void thawTick();
    void frameTick();

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void resizeEvent(QResizeEvent*) override;
    bool eventFilter(QObject* watched, QEvent* e) override;

private:
    void NewGame();
    void showWord();
    void startThaw();
    void wordMelted();
    void nextWord();
    void endGame();
    void showScore();
    void showPanels();
    void showBox(bool on);
    void insertChar(const QString& c);
    void fitClue();

    GameFrame frame_;
    freeze_it::Game game_;
    FreezeScene* scene_;
    QLabel* Label1;  // the meaning
    QLabel* Label2;  // "Word 3 of 10"
    QLabel* Label3;  // "Score: 240"
    QLabel* Label4;  // what to do now
    QLineEdit* Text1;
    QPushButton* Command1;  // "Check"
    QPushButton* Command2;  // "Freeze!"
    GameTimer& Timer1;      // the thaw
    GameTimer& Timer2;      // the picture's frames
    GameTimer& Timer3;      // a pause between moments
    GameTimer& Timer4;      // clears a passing banner
};

}  // namespace wm
