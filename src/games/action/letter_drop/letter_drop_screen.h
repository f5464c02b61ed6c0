// Letter Drop: steer each falling letter of the word onto its tile with the arrow keys.
#pragma once

#include <QImage>
#include <QLabel>
#include <QVector>
#include <QWidget>

#include "games/action/letter_drop/letter_drop_rules.h"
#include "platform/play_field.h"
#include "shell/game_frame.h"

namespace wm {

class KeyState;

class LetterFall : public QWidget {
    Q_OBJECT
public:
    explicit LetterFall(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    PlayField* field() const { return field_; }
    const letter_drop::Game& game() const { return game_; }
    QLabel* tile(int i) const { return Letter[i]; }
    QLabel* definition() const { return Label1; }
    QLabel* scoreLabel() const { return ScoreLabel; }
    bool dissolving() const { return dissolve_ > 0; }
    bool starFlying() const { return star_.flying(); }
    void SetupGame();
    // One tick of the fall, as Timer1 runs it (the benchmark calls it directly).
    void fallTick();

protected:
    void keyReleaseEvent(QKeyEvent* e) override;
    void closeEvent(QCloseEvent* e) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void starTick();
    void redrawSprites();
    void showTiles();
    void showScore();
    void dissolveStep();
    void win();

    GameFrame frame_;
    PlayField* field_;
    KeyState* keys_;
    QLabel* Label1;
    QLabel* ScoreLabel;
    QVector<QLabel*> Letter;
    GameTimer& Timer1;
    GameTimer& Timer2;
    GameTimer& Timer4;
    letter_drop::Game game_;
    letter_drop::Star star_;
    QImage letterPic_;
    char letterPicFor_ = 0;
    FieldSprite letterSprite_;
    FieldSprite starSprite_;
    QImage starPic_;
    QPoint starAt_;
    int dissolve_ = 0;  // ticks of the wrong landing's dissolve still to run
    bool blink_ = false;
    bool won_ = false;
};

}  // namespace wm
