#include "games/show/bomb_squad2/bomb_squad2_screen.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/show/bomb_squad/bomb_art.h"
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
    const bool light = 0.299 * c.red() + 0.587 * c.green() + 0.114 * c.blue() > 160;
    return QString(
               "QLabel { color: %1; background: %2; border: 3px solid %3; border-radius: 10px;"
               " padding: 2px 8px; }")
        .arg(light ? "#111" : "white", c.name(), c.darker(160).name());
}
const QColor kGrey(192, 192, 192);
}  // namespace

BombSquad2::BombSquad2(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames{}, [this] { SetupGame(); }),
      Timer1(frame_.timer("Timer1", 1000,
                          [this] {
                              const bool out = bombsquad2::tick(board_);
                              TimeLabel->setText(QString::number(board_.secondsLeft));
                              sound().effect(bombsquad2::tickSound(board_.secondsLeft));
                              update();
                              if (out) Explode();
                          })),
      Timer2(frame_.timer("Timer2", 200, [this] { shake(); })) {
    setObjectName("BombSquad2");
    setWindowTitle("Bomb Squad 2");
    setMouseTracking(true);
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
    TimeLabel = new QLabel(this);
    TimeLabel->setObjectName("TimeLabel");
    TimeLabel->setFont(ScreenFont(26, true));
    TimeLabel->setAlignment(Qt::AlignCenter);
    BombMovie = new Movie(this);
    BombMovie->setObjectName("BombMovie");
    BombMovie->hide();
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void BombSquad2::SetupGame() {
    SharedState& s = Shared();
    s.Score = 0;  // each deal starts from nothing
    exploding_ = false;
    clockGreen_ = false;
    BombMovie->stop();
    BombMovie->hide();
    TimeLabel->show();
    TimeLabel->setStyleSheet("QLabel { color: #ff4040; background: transparent; }");
    for (auto* l : WordLabel) l->hide(), l->clear(), l->setStyleSheet(labelStyle(kGrey));
    for (auto* l : DefLabel) l->hide(), l->clear(), l->setStyleSheet(labelStyle(kGrey));
    TheRng().Randomize();
    board_ = bombsquad2::deal(s, s.Difficulty, TheRng());
    wiredTo_.assign(board_.words.size(), -1);
    if (!board_.ready) {
        frame_.refuse(bombsquad::kTooFewWords, "Bomb Squad 2");
        return;
    }
    TimeLabel->setText(QString::number(board_.secondsLeft));
    for (int i = 0; i < int(board_.words.size()); ++i) {
        WordLabel[i]->setText(toQ(s.Words[board_.words[i]]));
        WordLabel[i]->show();
    }
    for (int j = 0; j < int(board_.defOwner.size()); ++j) {
        const std::string& meaning = s.Meanings[board_.words[board_.defOwner[j]]];
        DefLabel[j]->setText(toQ(meaning));
        DefLabel[j]->setFont(ScreenFont(meaning.size() > 50 ? 10 : 13, true));
        DefLabel[j]->show();
    }
    layOut();
    update();
    Timer1.start();
}

QRectF BombSquad2::bombRect() const {
    const double d = height() * 0.42;
    return {(width() - d) / 2, (height() - d) / 2 + frame_.menuHeight() / 2.0, d, d};
}

void BombSquad2::layOut() {
    const int n = std::max<int>(1, board_.words.size());
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

QPointF BombSquad2::wordEnd(int i) const {
    return {double(WordLabel[i]->geometry().right()), WordLabel[i]->geometry().center().y() + 0.0};
}

QPointF BombSquad2::defEnd(int j) const {
    return {double(DefLabel[j]->geometry().left()), DefLabel[j]->geometry().center().y() + 0.0};
}

void BombSquad2::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), exploding_ ? Qt::white : Qt::black);
    if (exploding_ || !board_.ready) return;
    bombart::paintBomb(p, bombRect(), board_.secondsLeft,
                       clockGreen_ ? QColor(0, 255, 0) : QColor(255, 60, 60));
    const auto& colours = bombart::wireColours();
    const double w = std::max(4.0, height() / 110.0);
    const QPointF c = bombRect().center();
    for (int i = 0; i < int(wiredTo_.size()); ++i) {
        if (wiredTo_[i] < 0) continue;
        const QPointF a = wordEnd(i), b = defEnd(wiredTo_[i]);
        bombart::paintWire(p, a, QPointF(c.x(), (a.y() + b.y()) / 2), b, colours[i], w, false);
    }
    if (board_.carrying) {
        const QPointF a = wordEnd(board_.carried);
        const QPointF m(mouse_);
        bombart::paintWire(p, a, (a + m) / 2 + QPointF(0, 30), m, colours[board_.carried], w,
                           false);
    }
}

void BombSquad2::mousePressEvent(QMouseEvent* e) {
    if (exploding_ || !Timer1.isActive()) return;
    const QPoint at = e->position().toPoint();
    mouse_ = at;
    for (int i = 0; i < int(board_.words.size()); ++i) {
        if (!WordLabel[i]->geometry().contains(at)) continue;
        if (bombsquad2::clickWord(board_, i) == bombsquad2::WordClick::PickedUp)
            sound().effect("snip.wav");
        update();
        return;
    }
    for (int j = 0; j < int(board_.defOwner.size()); ++j) {
        if (!DefLabel[j]->geometry().contains(at)) continue;
        const int carried = board_.carried;
        switch (bombsquad2::clickDefinition(board_, j)) {
            case bombsquad2::DefClick::Nothing:
                return;
            case bombsquad2::DefClick::Exploded:
                Explode();
                return;
            case bombsquad2::DefClick::Connected:
            case bombsquad2::DefClick::Defused:
                break;
        }
        sound().effect("dkbell.wav");
        wiredTo_[carried] = j;
        const QColor colour = bombart::wireColours()[carried];
        WordLabel[carried]->setStyleSheet(labelStyle(colour));
        DefLabel[j]->setStyleSheet(labelStyle(colour));
        update();
        if (!board_.carrying && std::count(wiredTo_.begin(), wiredTo_.end(), -1) == 0) {
            Timer1.stop();
            clockGreen_ = true;
            TimeLabel->setStyleSheet("QLabel { color: #00ff00; background: transparent; }");
            repaint();
            SharedState& s = Shared();
            s.Score = bombsquad::winScore(s.Score, board_.secondsLeft, s.Difficulty, TheRng());
            frame_.wonGame();
        }
        return;
    }
}

void BombSquad2::mouseMoveEvent(QMouseEvent* e) {
    mouse_ = e->position().toPoint();
    if (board_.carrying) update();
}

void BombSquad2::Explode() {
    Timer1.stop();
    exploding_ = true;
    board_.carrying = false;
    TimeLabel->hide();
    for (auto* l : WordLabel) l->hide();
    for (auto* l : DefLabel) l->hide();
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

void BombSquad2::shake() {
    BombMovie->move(bombsquad::shakeSpot(width(), BombMovie->width(), TheRng()),
                    bombsquad::shakeSpot(height(), BombMovie->height(), TheRng()));
    if (++ShakeTicks < 10) return;
    Timer2.stop();
    BombMovie->stop();
    frame_.askTryAgain(bombsquad2::lostText(board_.secondsLeft), "Bomb Squad 2");
}

void BombSquad2::resizeEvent(QResizeEvent*) {
    layOut();
}

WM_REGISTER_GAME("Bomb Squad 2", BombSquad2, "images/bomb.svg", "sounds/2.wav", "sounds/dkbell.wav",
                 "sounds/highbeep.wav", "sounds/snip.wav", "sounds/spacebeep.wav");

}  // namespace wm
