// The quiz's own options, before the common options screen: what to be asked and how many
// questions. Escape here ends the whole program, after asking.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <functional>

#include "shell/style.h"

namespace wm {

class QuizOptions : public Backdrop {
    Q_OBJECT
public:
    explicit QuizOptions(QWidget* parent = nullptr);
    QRadioButton* WordQuiz;
    QRadioButton* DefinitionQuiz;
    QRadioButton* RandomQuiz;
    QSlider* QuestionBar;
    QLabel* QuestionLabel;
    QPushButton* Command1;
    QPushButton* Command2;
    void continueOn();
    void goBack();

protected:
    void keyPressEvent(QKeyEvent*) override;
};

// "Do you want to quit?"; Yes ends the program (the study screens' Escape).
void AskEndProgram();

}  // namespace wm
