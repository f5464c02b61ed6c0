// The quiz: a question on the board, Difficulty answer cards, feedback with pictures, and the
// results at the end of the run. It keeps no high score.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QVector>

class QSvgRenderer;

#include "games/study/quiz/quiz_rules.h"
#include "shell/game_frame.h"

namespace wm {

class Quiz : public QWidget {
    Q_OBJECT
public:
    explicit Quiz(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    const quiz::QuizRun& run() const { return run_; }
    QVector<QLabel*> answers() const { return AnswerLabel; }
    void StartRun();
    void pick(int index);  // a click on AnswerLabel(index)
    void nextQuestion();   // a click on "Click Here to go to the Next Question"
    // The back colour of an answer card as a colour number, blue in the high byte (12582912, 255).
    int answerColour(int index) const { return colours_.value(index); }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showQuestion();
    void setColour(int index, int colour);
    void showFeedback(bool right);
    void hideFeedback();
    void layoutAnswers();
    void finish();

    QLabel* Direct;
    QLabel* Questionlabel;
    QVector<QLabel*> AnswerLabel;  // 0..7
    QLabel* Feedback;
    QLabel* Happy;
    QLabel* Happy2;
    QLabel* Sad;
    QLabel* Sad2;
    QLabel* Image1;
    QLabel* Image2;
    QFrame* Frame2;
    QPushButton* Label1;
    QString nextStyle_;
    QLabel* CorrectLabel;
    QLabel* WrongLabel;
    QLabel* RemainingLabel;
    QLabel* scoreBar_;
    QVector<QLabel*> captions_;
    QSvgRenderer* back_;
    QSvgRenderer* board_;
    GameFrame frame_;
    GameTimer& Timer1;
    quiz::QuizRun run_;
    QVector<int> colours_;
    QVector<int> points_;   // each card's letter size, fitted to its text
    bool waiting_ = false;  // feedback shown: answer clicks are ignored
    bool flashRed_ = true;
    int gap_ = -1;  // the gap between answer cards, worked out once from Difficulty
};

}  // namespace wm
