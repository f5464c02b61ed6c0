#include "games/show/bomb_squad/bomb_squad_screen.h"

#include <QAction>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/show/bomb_squad/bomb_art.h"
#include "platform/dialogs.h"
#include "platform/movie.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

namespace {
QString labelStyle(const QColor& c) {
    return QString(
               "QLabel { color: %1; background: %2; border: 3px solid %3; border-radius: 10px;"
               " padding: 2px 8px; }")
        .arg(0.299 * c.red() + 0.587 * c.green() + 0.114 * c.blue() > 160 ? "#111" : "white",
             c.name(), c.darker(160).name());
}
}  // namespace

BombSquad::BombSquad(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames{}, [this] { SetupGame(); }),
      Timer1(frame_.timer("Timer1", 1000,
                          [this] {
                              const bool out = bombsquad::tick(deal_);
                              TimeLabel->setText(QString::number(deal_.secondsLeft));
                              sound().effect("spacebeep.wav");
                              update();
                              if (out) Explode();
                          })),
      Timer2(frame_.timer("Timer2", 200, [this] { shake(); })) {
    setObjectName("BombSquad");
    setWindowTitle("Bomb Squad");
    setAutoFillBackground(false);
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
    TimeLabel->setStyleSheet("QLabel { color: #ff4040; background: transparent; }");
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

void BombSquad::SetupGame() {
    SharedState& s = Shared();
    exploding_ = false;
    clockGreen_ = false;
    BombMovie->stop();
    BombMovie->hide();
    TimeLabel->show();
    TimeLabel->setStyleSheet("QLabel { color: #ff4040; background: transparent; }");
    for (auto* l : WordLabel) l->hide();
    for (auto* l : DefLabel) l->hide();
    TheRng().Randomize();
    deal_ = bombsquad::deal(s, s.Difficulty, TheRng());
    if (!deal_.ready) {
        frame_.refuse(bombsquad::kTooFewWords, "Bomb Squad");
        return;
    }
    TimeLabel->setText(QString::number(deal_.secondsLeft));
    const auto& colours = bombart::wireColours();
    for (int i = 0; i < int(deal_.wires.size()); ++i) {
        const auto& w = deal_.wires[i];
        WordLabel[i]->setText(toQ(s.Words[w.word]));
        WordLabel[i]->setStyleSheet(labelStyle(colours[i]));
        DefLabel[i]->setText(toQ(s.Meanings[w.definition]));
        DefLabel[i]->setFont(ScreenFont(w.smallFont ? 10 : 13, true));
        DefLabel[i]->setStyleSheet(labelStyle(colours[i]));
        WordLabel[i]->show();
        DefLabel[i]->show();
    }
    layOut();
    update();
    Timer1.start();
}

QRectF BombSquad::bombRect() const {
    const double d = height() * 0.42;
    return {(width() - d) / 2, (height() - d) / 2 + frame_.menuHeight() / 2.0, d, d};
}

void BombSquad::layOut() {
    const int n = std::max<int>(1, deal_.wires.size());
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

QPointF BombSquad::wireVia(int i) const {
    // Every wire runs over the bomb, fanned out a little by its row.
    const QRectF b = bombRect();
    const double mid = WordLabel[i]->geometry().center().y();
    return {b.center().x(), b.center().y() + (mid - b.center().y()) * 0.55};
}

QPoint BombSquad::wireMiddle(int i) const {
    const QPointF a(WordLabel[i]->geometry().right(), WordLabel[i]->geometry().center().y());
    const QPointF b(DefLabel[i]->geometry().left(), DefLabel[i]->geometry().center().y());
    const QPointF v = wireVia(i);
    return QPointF(0.25 * a.x() + 0.5 * v.x() + 0.25 * b.x(),
                   0.25 * a.y() + 0.5 * v.y() + 0.25 * b.y())
        .toPoint();
}

void BombSquad::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), exploding_ ? Qt::white : Qt::black);
    if (exploding_ || !deal_.ready) return;
    const QRectF b = bombRect();
    bombart::paintBomb(p, b, deal_.secondsLeft,
                       clockGreen_ ? QColor(0, 255, 0) : QColor(255, 60, 60));
    const auto& colours = bombart::wireColours();
    for (int i = 0; i < int(deal_.wires.size()); ++i) {
        const QPointF a(WordLabel[i]->geometry().right(), WordLabel[i]->geometry().center().y());
        const QPointF e(DefLabel[i]->geometry().left(), DefLabel[i]->geometry().center().y());
        bombart::paintWire(p, a, wireVia(i), e, colours[i], std::max(4.0, height() / 110.0),
                           deal_.wires[i].cut);
    }
}

void BombSquad::mousePressEvent(QMouseEvent* e) {
    TryCut(e->position().toPoint());
}

void BombSquad::TryCut(QPoint at) {
    if (exploding_ || !Timer1.isActive() || deal_.wires.empty()) return;
    if (at.x() <= WordLabel[0]->geometry().right() || at.x() >= DefLabel[0]->geometry().left())
        return;
    const int n = deal_.wires.size();
    int hit = -1;
    for (int i = 0; i < n; ++i) {
        // The row band of each wire: half-way to its neighbours.
        const int mid = WordLabel[i]->geometry().center().y();
        const int up = i > 0 ? (mid + WordLabel[i - 1]->geometry().center().y()) / 2 : 0;
        const int down =
            i + 1 < n ? (mid + WordLabel[i + 1]->geometry().center().y()) / 2 : height();
        if (at.y() >= up && at.y() < down) hit = i;
    }
    if (hit < 0 || deal_.wires[hit].cut) return;
    sound().effect("snip.wav");
    const auto result = bombsquad::cut(deal_, hit);
    update();
    if (result == bombsquad::CutResult::Exploded)
        Explode();
    else if (result == bombsquad::CutResult::Defused)
        Defused();
}

void BombSquad::Defused() {
    Timer1.stop();
    clockGreen_ = true;
    TimeLabel->setStyleSheet("QLabel { color: #00ff00; background: transparent; }");
    repaint();
    SharedState& s = Shared();
    s.Score = bombsquad::winScore(s.Score, deal_.secondsLeft, s.Difficulty, TheRng());
    frame_.wonGame();
}

void BombSquad::Explode() {
    Timer1.stop();
    exploding_ = true;
    TimeLabel->hide();
    for (auto* l : WordLabel) l->hide();
    for (auto* l : DefLabel) l->hide();
    const QRectF b = bombRect();
    BombMovie->move((width() - BombMovie->width()) / 2,
                    std::max(0, int(b.top() - height() * 0.09)));
    BombMovie->load("bomb");
    BombMovie->show();
    BombMovie->raise();
    BombMovie->play(false);
    ShakeTicks = 0;
    Timer2.start();
    sound().effect("2.wav");
    update();
}

void BombSquad::shake() {
    BombMovie->move(bombsquad::shakeSpot(width(), BombMovie->width(), TheRng()),
                    bombsquad::shakeSpot(height(), BombMovie->height(), TheRng()));
    if (++ShakeTicks < 10) return;
    Timer2.stop();
    BombMovie->stop();
    frame_.askTryAgain(bombsquad::lostText(deal_.secondsLeft), "Bomb Squad");
}

void BombSquad::resizeEvent(QResizeEvent*) {
    layOut();
}

WM_REGISTER_GAME("Bomb Squad", BombSquad, "images/bomb.svg", "sounds/2.wav", "sounds/snip.wav",
                 "sounds/spacebeep.wav");

}  // namespace wm
