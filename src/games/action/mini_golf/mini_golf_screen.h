// Mini Golf: drag back from the ball and let go to putt it into the hole of the right word.
#pragma once

#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QVector>
#include <QWidget>

#include "games/action/mini_golf/mini_golf_rules.h"
#include "platform/play_field.h"
#include "shell/game_frame.h"

namespace wm {

class MiniGolf : public QWidget {
    Q_OBJECT
public:
    explicit MiniGolf(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    PlayField* field() const { return field_; }
    mini_golf::Course& course() { return course_; }
    QLabel* defLabel() const { return DefLabel; }
    QLabel* scoreLabel() const { return ScoreLabel; }
    QLabel* timeLabel() const { return TimeLabel; }
    QLabel* holeLabel(int i) const { return HoleLabel[i]; }
    QPushButton* oopsLabel() const { return OopsLabel; }
    bool ballShown() const { return ball_.isDrawn(); }
    bool lineShown() const { return lineShown_; }
    void SetupGame();
    // One tick of the ball, as Timer1 runs it (the benchmark calls it directly).
    void ballTick();
    // Mouse on the course, in twips.
    void pressAt(QPoint twips);
    void moveTo(QPoint twips);
    void releaseAt(QPoint twips);

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void drawCourse();
    void NextWord();
    void showWord();
    void showScore();
    void drawBall();
    void drawLine(QPoint from, QPoint to, const QColor& colour, int width);
    void eraseLine();
    void clockTick();
    void EndGame();

    GameFrame frame_;
    PlayField* field_;
    QLabel* DefLabel;
    QLabel* ScoreLabel;
    QLabel* TimeLabel;
    QVector<QLabel*> HoleLabel;
    QPushButton* OopsLabel;
    GameTimer& Timer1;
    GameTimer& Timer2;
    mini_golf::Course course_;
    QImage ballPic_;
    FieldSprite ball_;
    QRect lineRect_;  // the field pixels under the pointer or hint line
    bool lineShown_ = false;
    QPoint lineEnd_;
};

}  // namespace wm
