// Jailbreak: type the words of the padlocks' definitions to open the cell door before the guard
// walking down the corridor reaches it. Three cells make a game.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "games/action/jailbreak/jailbreak_rules.h"
#include "games/action/jailbreak/jailbreak_scene.h"
#include "shell/game_frame.h"
#include "shell/style.h"

namespace wm {

class JailBreakForm : public Backdrop {
    Q_OBJECT
public:
    enum class Phase { Ready, Playing, Opening, Escaping, Caught, Over };

    explicit JailBreakForm(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    JailScene* scene() const { return scene_; }
    const jailbreak::Jail& jail() const { return jail_; }
    Phase phase() const { return phase_; }
    QLineEdit* typingBox() const { return Text1; }
    void NewGame();
    // The word in the typing box, as Enter sends it.
    void enterWord();
    void hint();
    void pickLock(int lock);
    // One frame of the animations, as the Anim timer runs it (the benchmark calls it directly).
    void animTick();

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void startCell();
    void guardTick();
    void caughtNow();
    void escapeFinished();
    void showHud();
    void showPanel();

    JailScene* scene_;
    QLabel* CellLabel;
    QLabel* ScoreLabel;
    QLabel* GuardLabel;
    Panel* clue_;
    QLabel* Label1;  // which lock
    QLabel* Label2;  // its definition, whole
    QLabel* Label3;  // the hint
    Panel* typing_;
    QLabel* Label4;  // "Type the word..."
    QLineEdit* Text1;
    QPushButton* Command1;  // Hint
    GameFrame frame_;
    GameTimer& Timer1;  // the guard's steps
    GameTimer& Timer2;  // the pause before a cell
    GameTimer& Timer3;  // the pause between the catch and its box
    GameTimer& Timer4;  // the last lock springs, then the door swings
    GameTimer& Anim;
    jailbreak::Jail jail_;
    Phase phase_ = Phase::Over;
};

}  // namespace wm
