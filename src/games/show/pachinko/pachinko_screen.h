// Pachinko: earn up to five disks with questions, then drop them through the pins.
#pragma once

#include <QFrame>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QVector>
#include <array>

#include "games/show/pachinko/pachinko_rules.h"
#include "platform/play_field.h"
#include "shell/game_frame.h"

namespace wm {

class Plachinko : public QWidget {
    Q_OBJECT
public:
    explicit Plachinko(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    QFrame* questionFrame() const { return Frame1; }
    QVector<QPushButton*> answers() const { return AnswerLabel; }
    const pachinko::Question& question() const { return question_; }
    int disksEarned() const { return DisksEarned; }
    const std::array<int, pachinko::kSlotCount>& slotValues() const { return SlotValue; }
    bool valuesLocked() const { return locked_; }
    // The score line at the lower right of the board.
    QString scoreText() const;
    bool falling() const { return Falling; }
    QLabel* lockLabel() const { return Label1; }
    // The board as it is shown, at the game's own resolution, and what it shows with no disk
    // on it: the background with the slot values and the score.
    PlayField* field() const { return field_; }
    QImage boardPicture() const;
    // Where disk i is drawn on the field; empty when it is not in play.
    QRect diskRect(int i) const;
    // Where disk i (0-based) rests, and the middle of the drop zone, in screen pixels.
    QPoint diskRest(int i) const;
    QPoint dropPoint() const;
    void SetupGame();

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void NextQuestion();
    void answer(int i);
    void afterQuestions();
    void BuildBoard();
    void drawBoard();
    QImage fieldBackground() const;
    void paintLabels(QPainter& p) const;
    std::vector<QRect> labelRects() const;
    // One frame on the field: the disks lifted off, the labels if they changed, the disks put
    // back where they now are, and the changed rectangles pushed to the screen.
    void redraw();
    void tick();
    void ScoreDisk();
    void EndGame();
    double scale() const;
    QPointF offset() const;
    QPointF toBoard(QPointF screen) const;  // logical design pixels
    QPoint toScreen(QPointF board) const;

    QImage board_;  // the pins and walls at the design size, drawn once
    QImage disk_;   // the disk's picture with its transparent surround
    QImage diskPicture_, diskMask_;
    PlayField* field_;
    std::array<FieldSprite, pachinko::kMaxDisks> sprites_;
    bool labelsDirty_ = true;
    QFrame* Frame1;
    QLabel* Direct;
    QLabel* Questionlabel;
    QVector<QPushButton*> AnswerLabel;
    QVector<QLabel*> Shape1;
    QLabel* Label1;
    GameFrame frame_;
    GameTimer& Timer1;
    GameTimer& Timer2;
    GameTimer& ScrambleTimer;
    GameTimer& AnswerPause;
    pachinko::Question question_;
    std::vector<bool> UsedWords;
    int QuestionNumber = 0;
    int DisksEarned = 0;
    bool boardShown_ = false;
    bool locked_ = false;
    bool scored_ = false;  // a disk has landed: the line shows the score itself
    std::array<int, pachinko::kSlotCount> SlotValue{};
    std::array<QPointF, pachinko::kMaxDisks> rest_{};  // design pixels
    std::array<QPointF, pachinko::kMaxDisks> at_{};
    std::array<bool, pachinko::kMaxDisks> inPlay_{};
    int DiskHeld = -1;
    QPointF grab_;
    bool Falling = false;
    int fallingDisk_ = -1;
    pachinko::Disk fall_;
};

}  // namespace wm
