// The screen of the letter-guessing games: the word's boxes, the letters tried, Hint and Solve,
// the keys and the palette. Each game adds its pictures: what a miss, a hit and a win play.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVector>

#include "games/guess/common/word_guess.h"
#include "shell/game_frame.h"
#include "shell/style.h"

namespace wm {

class GuessScreen : public Backdrop {
    Q_OBJECT
public:
    GuessScreen(const QString& picture, GameMenuNames menu, QWidget* parent);

    GameFrame& frame() { return frame_; }
    const guess::GuessRound& round() const { return round_; }
    QVector<QLabel*> boxes() const { return LetterLabel; }
    QPushButton* hintButton() const { return Command1; }
    QPushButton* solveButton() const { return Command2; }
    // A key, typed or picked on the palette (one Windows-1252 character; 0 for none).
    void guessKey(char key);
    void hint();
    void solveWord();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent*) override;

    void NewGame();
    // The game's pictures and waits.
    virtual bool keysHeld() const = 0;
    virtual void roundStarted() = 0;
    virtual void playMiss(int misses) = 0;
    virtual void playHit() {}
    virtual void playWin() = 0;
    // The area the pictures stand in; the panels go around it.
    virtual QRect pictureRect() const = 0;
    virtual void placePictures() = 0;
    void wrongGuess();
    void won();

    GameFrame frame_;
    guess::GuessRound round_;

private:
    void showBoxes();
    void placeBoxes();

    QGroupBox* Frame1;  // "WORD:"
    QGroupBox* Frame2;  // "Letters Used:"
    QLabel* Label2;
    QPushButton* Command1;  // Hint
    QPushButton* Command2;  // Solve
    QVector<QLabel*> LetterLabel;
    bool roundOver_ = false;
    bool hintTaken_ = false;  // the meaning has been shown this round
};

}  // namespace wm
