// Safe Cracker: five safes stand in the vault, each locked by a hidden word. The pupil types a
// whole guess and Enter; the tumblers light green, amber or grey, and the keyboard below shows
// what each letter is known to be. Six tries open a safe or set off its alarm.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QVector>
#include <QWidget>

#include "games/puzzles/safe_cracker/safe_cracker_rules.h"
#include "games/puzzles/safe_cracker/safe_cracker_scene.h"
#include "shell/game_frame.h"

namespace wm {

class SafeCracker : public QWidget {
    Q_OBJECT
public:
    explicit SafeCracker(QWidget* parent = nullptr);

    enum class Phase { Idle, Ready, Play, Opening, Alarm };

    GameFrame& frame() { return frame_; }
    const safe::Game& game() const { return game_; }
    Phase phase() const { return phase_; }
    const safe::SafeView& view() const { return view_; }
    QPushButton* key(char letter) const;  // the on-screen key of 'a'..'z'
    QPushButton* enterKey() const { return Command1; }
    QPushButton* backKey() const { return Command2; }
    // A character typed, clicked or picked on the palette (one Windows-1252 byte).
    void typeKey(char c);
    void eraseKey();
    void enterGuess();
    // One frame, as Timer1 runs it (the benchmark calls it directly).
    void animate();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void NewGame();
    void startSafe(bool first);
    void endSafe();
    void setPhase(Phase phase);
    void say(const QString& text, const char* mood = "plain");
    void turnDial(char c);
    void refresh();
    void showKeys();
    void showHud();
    void fitMeaning();
    void placeReady();
    safe::SafeView viewAt(qint64 now) const;
    qint64 revealEnd() const;
    bool moving(qint64 now) const;

    GameFrame frame_;
    GameTimer& Timer1;
    safe::Game game_;
    safe::SafePicture picture_;
    safe::SafeView view_;
    Phase phase_ = Phase::Idle;
    qint64 phaseAt_ = 0;
    bool firstSafe_ = true;
    qint64 revealAt_ = -100000;  // the last row began to light
    qint64 shakeAt_ = -100000;
    qint64 dialAt_ = -100000;
    double dialFrom_ = 0, dialTo_ = 0;
    int dialTurn_ = 1;
    bool dirty_ = true;
    QFont keyFont_;

    QLabel* SafeLabel;     // "Safe 1 of 5"
    QLabel* ScoreLabel;    // "Score: 0"
    QLabel* TriesLabel;    // "Tries left: 6"
    QLabel* MeaningLabel;  // the clue above the safe
    QLabel* MessageLabel;  // what just happened
    QLabel* ReadyLabel;
    QPushButton* Command1;  // Enter
    QPushButton* Command2;  // Back
    QVector<QPushButton*> Keys;
};

}  // namespace wm
