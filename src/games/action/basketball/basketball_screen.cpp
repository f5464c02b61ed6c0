#include "games/action/basketball/basketball_screen.h"

#include <QMouseEvent>
#include <QPainter>
#include <QSvgRenderer>
#include <QTimer>

#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/movie.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"

namespace wm {

using namespace basketball;

namespace {
const QColor kFlashA(255, 128, 128);  // 8421631
const QColor kFlashB(128, 255, 128);  // 8454016

GameMenuNames menuNames() {
    GameMenuNames n;
    n.restart = "Restart";
    n.scores = "HighS";
    n.quit = "Quit";
    return n;
}

QPixmap BallPicture(int d) {
    QPixmap pm(d, d);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    const double r = d / 2.0 - 2;
    p.translate(d / 2.0, d / 2.0);
    QRadialGradient g(QPointF(-r * 0.35, -r * 0.35), r * 1.6);
    g.setColorAt(0, QColor(255, 175, 90));
    g.setColorAt(1, QColor(195, 75, 10));
    p.setPen(QPen(QColor(80, 30, 0), std::max(1.5, d / 40.0)));
    p.setBrush(g);
    p.drawEllipse(QPointF(0, 0), r, r);
    p.setBrush(Qt::NoBrush);
    p.drawLine(QPointF(-r, 0), QPointF(r, 0));
    p.drawLine(QPointF(0, -r), QPointF(0, r));
    p.drawArc(QRectF(-r * 1.6, -r, r * 1.2, r * 2), -60 * 16, 120 * 16);
    p.drawArc(QRectF(r * 0.4, -r, r * 1.2, r * 2), 120 * 16, 120 * 16);
    return pm;
}
}  // namespace

BasketBallForm::BasketBallForm(QWidget* parent)
    : QWidget(parent),
      frame_(this, menuNames(), [this] { SetupGame(); }),
      Timer1(frame_.timer("Timer1", 1000, [this] { wordTick(); })),
      Timer2(frame_.timer("Timer2", 1, [this] { revealTick(); })),
      Timer3(frame_.timer("Timer3", 100, [this] { flashTick(); })) {
    setWindowTitle("Basketball");
    MovieBox = new Movie(this);
    MovieBox->setObjectName("MovieBox");
    MovieBox->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto label = [this](const char* name, const char* style) {
        auto* l = new QLabel(this);
        l->setObjectName(name);
        l->setAlignment(Qt::AlignCenter);
        l->setStyleSheet(style);
        l->setAttribute(Qt::WA_TransparentForMouseEvents);
        return l;
    };
    ShootLabel = label("ShootLabel", "color: #ffffff; background: transparent;");
    Label2 = label("Label2",
                   "color: #fffbe0; background: rgba(30, 20, 60, 170);"
                   " border-radius: 10px; padding: 4px 12px;");
    Label2->setWordWrap(true);
    Label1 = label("Label1",
                   "color: #2a1a00; background: rgba(255, 240, 200, 220);"
                   " border-radius: 10px; padding: 6px 10px;");
    Label1->setWordWrap(true);
    Label1->setText("Drag the ball onto the net when the right word shows!");
    ShotsLeftLabel = label("ShotsLeftLabel", "color: #2a1a00; background: transparent;");
    ScoreLabel = label("ScoreLabel", "color: #2a1a00; background: transparent;");
    ShotsLeftLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    ScoreLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    Image2 = label("Image2", "background: transparent;");
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void BasketBallForm::play(const QString& name, bool loop, std::function<void()> then) {
    playing_ = name;
    MovieBox->load(name);
    MovieBox->play(loop, std::move(then));
}

void BasketBallForm::SetupGame() {
    SharedState& s = Shared();
    shooting_ = false;
    dragging_ = false;
    if (!game_.setup(s, TheRng())) {
        frame_.refuse(kTooLong, "Basketball");
        return;
    }
    play("bball-still", true);
    ShotsLeftLabel->setText(QString("Shots Left: %1").arg(game_.shotsLeft()));
    ScoreLabel->setText("Score: 0");
    ShootLabel->setText(kBegin);
    ShootLabel->setStyleSheet("color: #ffffff; background: transparent;");
    Label2->setText(toQ("\"" + s.TheMeaning + "\""));
    Image2->move(ballHome() - QPoint(Image2->width() / 2, Image2->height() / 2));
    dialogs().message(kReady, "Basketball");
    Timer1.setInterval(WordPace(s.Difficulty));
    Timer1.start();
}

void BasketBallForm::wordTick() {
    game_.showNextWord(Shared(), TheRng());
    Timer2.start();
    Timer1.stop();
}

void BasketBallForm::revealTick() {
    bool done = false;
    ShootLabel->setText(toQ(game_.revealTick(TheRng(), done)));
    if (done) {
        Timer2.stop();
        Timer1.start();
    }
}

void BasketBallForm::flashTick() {
    flash_ = !flash_;
    ShootLabel->setStyleSheet(
        QString("color: %1; background: transparent;").arg((flash_ ? kFlashA : kFlashB).name()));
}

void BasketBallForm::showScore() {
    ScoreLabel->setText(QString("Score: %1").arg(frame_.scoreText(Shared().Score)));
}

void BasketBallForm::shoot() {
    SharedState& s = Shared();
    // A shot while the letters still scramble compares the half-shown caption: a miss.
    const Shot shot = game_.shoot(s, fromQ(ShootLabel->text()), TheRng());
    Timer1.stop();
    Timer2.stop();
    Timer3.start();
    shooting_ = true;
    Image2->hide();  // the animation throws the ball
    if (shot.good) {
        ShootLabel->setText(toQ(s.TheWord));
        showScore();
        sound().effect("cheer.wav");
        play(QString("bball-good%1").arg(shot.animation), false,
             frame_.later([this] { NextShot(); }));
    } else {
        ShootLabel->setText(toQ(game_.onShow()));
        sound().effect("ooh.wav");
        play(QString("bball-bad%1").arg(shot.animation), false,
             frame_.later([this] { NextShot(); }));
    }
}

void BasketBallForm::wildShot() {
    dialogs().message(kWild, "Basketball");
    Timer2.stop();
    ShootLabel->setText(toQ(Shared().TheWord));
    NextShot();
}

void BasketBallForm::NextShot() {
    Timer3.stop();
    shooting_ = false;
    ShootLabel->setStyleSheet("color: #ffffff; background: transparent;");
    play("bball-still", true);
    ShootLabel->setText(kBegin);
    Image2->move(ballHome() - QPoint(Image2->width() / 2, Image2->height() / 2));
    Image2->show();
    const bool over = game_.nextShot();
    ShotsLeftLabel->setText(QString("Shots Left: %1").arg(game_.shotsLeft()));
    if (over || !game_.chooseWord(Shared(), TheRng())) {
        EndGame();
        return;
    }
    Label2->setText(toQ("\"" + Shared().TheMeaning + "\""));
    Timer1.start();  // the words start again for the new shot
}

void BasketBallForm::EndGame() {
    frame_.stopTimers();
    SharedState& s = Shared();
    if (s.Score == 0) {
        play("bball-still", true);
        frame_.refuse(kPractice, "Basketball");
        return;
    }
    frame_.wonGame();
}

QPoint BasketBallForm::ballHome() const {
    return QPoint(int(width() * 0.2) + Image2->width() / 2,
                  int(height() * 0.7) + Image2->height() / 2);
}

QPoint BasketBallForm::netPoint() const {
    return MovieBox->geometry().center();
}

void BasketBallForm::mousePressEvent(QMouseEvent* e) {
    if (shooting_ || !Image2->isVisible() || !Image2->geometry().contains(e->pos())) return;
    dragging_ = true;
    grab_ = e->pos() - Image2->pos();
    Image2->raise();
}

void BasketBallForm::mouseMoveEvent(QMouseEvent* e) {
    if (dragging_) Image2->move(e->pos() - grab_);
}

void BasketBallForm::mouseReleaseEvent(QMouseEvent* e) {
    if (!dragging_) return;
    dragging_ = false;
    Image2->move(e->pos() - grab_);
    // Only the basket takes a shot; a drop anywhere else is a wild one.
    if (MovieBox->geometry().contains(e->pos()))
        shoot();
    else
        wildShot();
}

void BasketBallForm::paintBack() {
    // The gym wall with the crowd over the wooden court, stretched to the screen.
    back_ = QPixmap(size());
    back_.fill(QColor(90, 70, 130));
    QSvgRenderer svg(findAsset("images/bball-gym.svg"));
    if (!svg.isValid()) return;
    QPainter p(&back_);
    p.setRenderHint(QPainter::Antialiasing);
    svg.render(&p, QRectF(QPointF(0, 0), QSizeF(size())));
}

void BasketBallForm::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (back_.size() != size()) paintBack();
    p.drawPixmap(0, 0, back_);
}

void BasketBallForm::resizeEvent(QResizeEvent*) {
    const int W = width(), H = height(), menu = frame_.menuHeight();
    const double k = H / 768.0;
    const int boxH = int(H * 0.42), boxW = boxH * 4 / 3;
    MovieBox->setGeometry((W - boxW) / 2, int(H * 0.1), boxW, boxH);
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(std::max(12, int(34 * k)));
    ShootLabel->setFont(f);
    ShootLabel->setGeometry(0, menu, W, int(H * 0.1) - menu);
    f.setPixelSize(std::max(10, int(20 * k)));
    Label2->setFont(f);
    Label2->setGeometry(int(W * 0.12), MovieBox->geometry().bottom() + 8, int(W * 0.76),
                        int(H * 0.1));
    const int d = int(H * 0.11);
    const bool atHome = !dragging_ && !shooting_;
    Image2->setPixmap(BallPicture(d));
    Image2->resize(d, d);
    if (atHome) Image2->move(int(W * 0.2), int(H * 0.7));
    f.setPixelSize(std::max(9, int(16 * k)));
    Label1->setFont(f);
    Label1->setGeometry(int(W * 0.2) + d + 16, int(H * 0.7) + d / 4, int(W * 0.22), int(H * 0.09));
    f.setPixelSize(std::max(10, int(24 * k)));
    ShotsLeftLabel->setFont(f);
    ScoreLabel->setFont(f);
    ShotsLeftLabel->setGeometry(int(W * 0.66), int(H * 0.72), int(W * 0.3), int(H * 0.05));
    ScoreLabel->setGeometry(int(W * 0.66), int(H * 0.78), int(W * 0.3), int(H * 0.05));
    Image2->raise();
}

WM_REGISTER_GAME("Basketball", BasketBallForm, "images/bball-gym.svg", "sounds/cheer.wav",
                 "sounds/ooh.wav");

}  // namespace wm
