// Scramble: the letters of a word in random order; the pupil types the word.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVector>

#include "games/study/scramble/scramble_rules.h"
#include "shell/game_frame.h"
#include "shell/style.h"

namespace wm {

class Scramble : public Backdrop {
    Q_OBJECT
public:
    explicit Scramble(QWidget* parent = nullptr);

    QVector<QLabel*> letters() const { return LetterLabel; }
    QLineEdit* guessBox() const { return Guess; }
    const scramble::ScrambleState& round() const { return round_; }
    GameFrame& frame() { return frame_; }
    void NewGame();
    void submit();  // Submit Guess, or Enter
    void giveUp();
    void hint();

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void placeLetters();
    void setLetterBlack(int i, bool black);
    scramble::ScreenGeometry geometry() const;
    double unit() const;  // pixels per design twip

    QVector<QLabel*> LetterLabel;  // 0..19
    QLineEdit* Guess;
    QPushButton* Command1;
    QPushButton* Command2;
    QPushButton* Command3;
    QLabel* Label3;
    QLabel* Label4;
    QLabel* Label5;
    QLabel* heading_;
    GameFrame frame_;
    GameTimer& Timer1;
    GameTimer& Timer3;
    scramble::ScrambleState round_;
};

}  // namespace wm
