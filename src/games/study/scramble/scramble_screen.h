// Scramble: the letters of a word in random order; the pupil types the word.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVector>

#include "games/study/scramble/scramble_rules.h"
#include "shell/style.h"

namespace wm {

class Scramble : public Backdrop {
    Q_OBJECT
public:
    explicit Scramble(QWidget* parent = nullptr);
    ~Scramble() override;

    QVector<QLabel*> letters() const { return LetterLabel; }
    QLineEdit* guessBox() const { return Guess; }
    const scramble::ScrambleState& round() const { return round_; }
    void NewGame();
    void submit();  // Submit Guess, or Enter
    void giveUp();
    void hint();

protected:
    void keyPressEvent(QKeyEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void placeLetters();
    void setLetterBlack(int i, bool black);
    void stopTimers();
    void quit();
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
    QTimer Timer1;
    QTimer Timer2;
    QTimer Timer3;
    scramble::ScrambleState round_;
    bool leaving_ = false;
};

void RegisterScrambleScreen();

}  // namespace wm
