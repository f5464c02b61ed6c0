// Flying Cow: a cow grazes at dusk under a hovering saucer. Every wrong letter beams it up a
// rung; a right letter that fills two or more blanks lets it drop back one. Five words a game.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QVector>
#include <QWidget>

#include "games/guess/flying_cow/flying_cow_rules.h"
#include "games/guess/flying_cow/flying_cow_scene.h"
#include "shell/game_frame.h"

namespace wm {

class CowForm : public QWidget {
    Q_OBJECT
public:
    explicit CowForm(QWidget* parent = nullptr);

    enum class Phase { Idle, Arrive, Play, Won, Lost };

    GameFrame& frame() { return frame_; }
    const cow::Game& game() const { return game_; }
    Phase phase() const { return phase_; }
    const cow::Pose& pose() const { return pose_; }
    QVector<QLabel*> boxes() const { return LetterLabel; }
    QPushButton* key(char letter) const;  // the on-screen key of 'a'..'z'
    QPushButton* hintButton() const { return Command1; }
    // A key, typed, clicked or picked on the palette (one Windows-1252 character).
    void guessKey(char key);
    void hint();
    // One frame of the animation, as Timer1 runs it (the benchmark calls it directly).
    void animate();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void NewGame();
    void startWord(bool first);
    void setPhase(Phase phase);
    void moveRung(int to);
    double shownRung(qint64 now) const;
    cow::Pose poseAt(qint64 now) const;
    void showWord(bool reveal = false);
    void showKeys();
    void showHud();
    void placeBoxes();
    void fitMeaning();

    GameFrame frame_;
    GameTimer& Timer1;
    cow::Game game_;
    cow::CowPicture picture_;
    cow::Pose pose_;
    Phase phase_ = Phase::Idle;
    qint64 phaseAt_ = 0;
    bool firstWord_ = true;
    // The rung animation: from where to where, since when; the flash of the last lift.
    double rungFrom_ = 0;
    int rungTo_ = 0;
    qint64 rungAt_ = 0;
    qint64 flashAt_ = -100000;
    double rungAtEnd_ = 0;  // where the cow was when the word was decided
    QRegion drawn_;  // where the actors were painted last

    QLabel* WordLabel;   // "Word 1 of 5"
    QLabel* ScoreLabel;  // "Score: 0"
    QLabel* MissLabel;   // "Misses left: 7"
    QLabel* Label2;      // the letters tried
    QLabel* ReadyLabel;
    QWidget* Frame1;     // the word's boxes
    QVector<QLabel*> LetterLabel;
    QLabel* MeaningLabel;
    QPushButton* Command1;  // Hint
    QVector<QPushButton*> Keys;
};

}  // namespace wm
