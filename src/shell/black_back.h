// The splash: the opening animation on black with its sound; any key or click skips it.
#pragma once

#include <QWidget>
#include "platform/ticker.h"

namespace wm {

class Movie;

class BlackBack : public QWidget {
    Q_OBJECT
public:
    explicit BlackBack(QWidget* parent = nullptr);
    Movie* movie() const { return movie_; }

protected:
    void keyPressEvent(QKeyEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void paintEvent(QPaintEvent*) override;

private:
    void skip();
    Movie* movie_;
    GameTimer startTimer_;
    GameTimer waitTimer_;
    bool leaving_ = false;
};

}  // namespace wm
