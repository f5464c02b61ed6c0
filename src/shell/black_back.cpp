#include "shell/black_back.h"

#include <QPainter>

#include "platform/movie.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "shell/screens.h"

namespace wm {

BlackBack::BlackBack(QWidget* parent) : QWidget(parent), movie_(new Movie(this)) {
    setObjectName("BlackBack");
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::BlankCursor);
    movie_->load("wmsplash.swf");
    movie_->setAttribute(Qt::WA_TransparentForMouseEvents);
    startTimer_.setSingleShot(true);
    startTimer_.setInterval(1);
    connect(&startTimer_, &GameTimer::timeout, this, [this] {
        sound().play("tolvane.wav");
        movie_->play();
        waitTimer_.start();
    });
    startTimer_.start();
    // Waits for the animation to stop, then moves on to the title.
    waitTimer_.setInterval(10);
    connect(&waitTimer_, &GameTimer::timeout, this, [this] {
        if (leaving_ || movie_->isPlaying()) return;
        leaving_ = true;
        waitTimer_.stop();
        OpenScreen("Title", this);
    });
}

void BlackBack::skip() {
    movie_->stop();
    sound().stopAll();
}

void BlackBack::keyPressEvent(QKeyEvent*) {
    skip();
}
void BlackBack::mousePressEvent(QMouseEvent*) {
    skip();
}

void BlackBack::resizeEvent(QResizeEvent*) {
    // The scene keeps its shape, as large as the screen allows, centred.
    QSize natural(640, 480);
    QSize size = natural.scaled(width() * 9 / 10, height() * 9 / 10, Qt::KeepAspectRatio);
    movie_->setGeometry((width() - size.width()) / 2, (height() - size.height()) / 2, size.width(),
                        size.height());
}

void BlackBack::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), Qt::black);
}

}  // namespace wm
