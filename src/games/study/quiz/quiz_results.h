// The closing box of a quiz: how many were right, the stamp, then the percent and a verdict.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "platform/movie.h"
#include "platform/ticker.h"

class QSvgRenderer;

namespace wm {

class QuizResults : public QDialog {
    Q_OBJECT
public:
    QuizResults(int right, int wrong, QWidget* parent = nullptr);
    QLabel* Label1;
    QLabel* Label3;  // the percent, shown once the stamp has come down
    QLabel* Label4;
    QPushButton* OK;
    Movie* stamp() const { return stamp_; }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    Movie* stamp_;
    GameTimer Timer1;
    QSvgRenderer* paper_;
};

}  // namespace wm
