#include "games/show/bomb_squad/bomb_board.h"

#include <QAction>
#include <QPainter>
#include <QTimer>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/show/bomb_squad/bomb_art.h"
#include "games/show/bomb_squad/bomb_squad_rules.h"
#include "platform/dialogs.h"
#include "platform/movie.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "shell/style.h"

namespace wm {

namespace {
const QString kRedClock = "QLabel { color: #ff4040; background: transparent; }";
const QString kGreenClock = "QLabel { color: #00ff00; background: transparent; }";
}  // namespace

BombBoard::BombBoard(QWidget* parent, const QString& name, const QString& title)
    : QWidget(parent),
      frame_(this, GameMenuNames{}, [this] { SetupGame(); }),
      Timer1(frame_.timer("Timer1", 1000,
                          [this] {
                              const bool out = tickClock();
                              TimeLabel->setText(QString::number(secondsLeft()));
                              sound().effect(tickSound());
                              update();
                              if (out) Explode();
                          })),
      Timer2(frame_.timer("Timer2", 200, [this] { shake(); })) {
    setObjectName(name);
    setWindowTitle(title);
    bombart::registerScenes();
    for (int i = 0; i < bombsquad::kMaxWires; ++i) {
        auto* w = new QLabel(this);
        w->setObjectName(QString("WordLabel%1").arg(i));
        w->setAlignment(Qt::AlignCenter);
        w->setFont(ScreenFont(16, true));
        w->setAttribute(Qt::WA_TransparentForMouseEvents);
        w->hide();
        WordLabel.push_back(w);
        auto* d = new QLabel(this);
        d->setObjectName(QString("DefLabel%1").arg(i));
        d->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        d->setWordWrap(true);
        d->setAttribute(Qt::WA_TransparentForMouseEvents);
        d->hide();
        DefLabel.push_back(d);
    }
    TimeLabel = new QLabel("30", this);
    TimeLabel->setObjectName("TimeLabel");
    TimeLabel->setFont(ScreenFont(26, true));
    TimeLabel->setAlignment(Qt::AlignCenter);
    TimeLabel->setStyleSheet(kRedClock);
    BombMovie = new Movie(this);
    BombMovie->setObjectName("BombMovie");
    BombMovie->hide();
    // Restart asks first, then deals again.
    QAction* restart = frame_.entry(GameFrame::Entry::Restart);
    restart->disconnect();
    connect(restart, &QAction::triggered, this, [this] {
        if (frame_.leaving()) return;
        frame_.stopTimers();
        dialogs().message("Click OK to reset the game");
        frame_.newGame();
    });
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void BombBoard::clearBoard() {
    exploding_ = false;
    clockGreen_ = false;
    BombMovie->stop();
    BombMovie->hide();
    TimeLabel->show();
    TimeLabel->setStyleSheet(kRedClock);
    for (auto* l : WordLabel) l->hide();
    for (auto* l : DefLabel) l->hide();
}

void BombBoard::startClock() {
    TimeLabel->setText(QString::number(secondsLeft()));
    layOut();
    update();
    Timer1.start();
}

QRectF BombBoard::bombRect() const {
    const double d = height() * 0.42;
    return {(width() - d) / 2, (height() - d) / 2 + frame_.menuHeight() / 2.0, d, d};
}

void BombBoard::layOut() {
    const int n = std::max(1, rows());
    const int top = frame_.menuHeight() + height() / 40;
    const double rowH = double(height() - top - height() / 40) / n;
    const int labelH = int(std::min(rowH * 0.8, height() * 0.11));
    for (int i = 0; i < bombsquad::kMaxWires; ++i) {
        const int mid = int(top + rowH * (i + 0.5));
        WordLabel[i]->setGeometry(width() / 60, mid - labelH / 2, int(width() * 0.2), labelH);
        const int dw = int(width() * 0.3);
        DefLabel[i]->setGeometry(width() - dw - width() / 60, mid - labelH / 2, dw, labelH);
    }
    const QRectF b = bombRect();
    TimeLabel->setGeometry(int(b.left()), int(b.top() - height() * 0.08), int(b.width()),
                           int(height() * 0.07));
    BombMovie->resize(int(width() * 0.45), int(height() * 0.5));
}

void BombBoard::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), exploding_ ? Qt::white : Qt::black);
    if (!dealt()) return;
    // The blast takes the bomb and its clock; the labels and wires stay where they were.
    if (!exploding_)
        bombart::paintBomb(p, bombRect(), secondsLeft(),
                           clockGreen_ ? QColor(0, 255, 0) : QColor(255, 60, 60));
    paintWires(p, std::max(4.0, height() / 110.0));
}

void BombBoard::Defused() {
    Timer1.stop();
    clockGreen_ = true;
    TimeLabel->setStyleSheet(kGreenClock);
    repaint();
    SharedState& s = Shared();
    s.Score = bombsquad::winScore(s.Score, secondsLeft(), s.Difficulty, TheRng());
    frame_.wonGame();
}

void BombBoard::Explode() {
    Timer1.stop();
    exploding_ = true;
    TimeLabel->hide();
    BombMovie->move((width() - BombMovie->width()) / 2,
                    std::max(0, int(bombRect().top() - height() * 0.09)));
    BombMovie->load("bomb");
    BombMovie->show();
    BombMovie->raise();
    BombMovie->play(false);
    ShakeTicks = 0;
    Timer2.start();
    sound().effect("2.wav");
    update();
}

void BombBoard::shake() {
    BombMovie->move(bombsquad::shakeSpot(width(), BombMovie->width(), TheRng()),
                    bombsquad::shakeSpot(height(), BombMovie->height(), TheRng()));
    if (++ShakeTicks < 10) return;
    Timer2.stop();
    BombMovie->stop();
    frame_.askTryAgain(lostText(), windowTitle());
}

void BombBoard::resizeEvent(QResizeEvent*) {
    layOut();
}

}  // namespace wm
