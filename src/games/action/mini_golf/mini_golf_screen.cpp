#include "games/action/mini_golf/mini_golf_screen.h"

#include <QPainter>
#include <QTimer>
#include <cmath>

#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"

namespace wm {

using namespace mini_golf;

namespace {
constexpr int kW = kFieldW / 15, kH = kFieldH / 15;

int px(double twips) {
    return int(std::lround(twips / 15));
}

QImage BallPicture() {
    const int d = kBallSize / 15;
    QImage img(d + 2, d + 2, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    QRadialGradient g(QPointF(d * 0.35, d * 0.35), d * 0.8);
    g.setColorAt(0, Qt::white);
    g.setColorAt(0.6, QColor(235, 235, 240));
    g.setColorAt(1, QColor(160, 160, 175));
    p.setPen(QPen(QColor(90, 90, 100), 1));
    p.setBrush(g);
    p.drawEllipse(QRectF(1, 1, d, d));
    return img;
}

// A block: a square drawn ring by ring from its edge inwards, in five bands, light on the top
// and left and dark on the bottom and right, so it stands up from the green.
void DrawBlock(QPainter& p, QPoint c, int half) {
    static const QColor light[] = {QColor(250, 215, 150), QColor(235, 190, 120),
                                   QColor(215, 165, 95),  QColor(195, 140, 75),
                                   QColor(175, 120, 60),  QColor(160, 105, 50)};
    static const QColor dark[] = {QColor(90, 50, 20),  QColor(110, 65, 30),  QColor(130, 80, 40),
                                  QColor(150, 95, 50), QColor(170, 115, 60), QColor(160, 105, 50)};
    for (int d = half; d >= 0; --d) {
        const double f = double(d) / half;
        const int band = f > 0.9 ? 0 : f > 0.8 ? 1 : f > 0.6 ? 2 : f > 0.4 ? 3 : f > 0.2 ? 4 : 5;
        p.setPen(light[band]);
        p.drawLine(c.x() - d, c.y() - d, c.x() + d, c.y() - d);
        p.drawLine(c.x() - d, c.y() - d, c.x() - d, c.y() + d);
        p.setPen(dark[band]);
        p.drawLine(c.x() - d, c.y() + d, c.x() + d, c.y() + d);
        p.drawLine(c.x() + d, c.y() - d, c.x() + d, c.y() + d);
    }
}
}  // namespace

MiniGolf::MiniGolf(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames(), [this] { SetupGame(); }),
      Timer1(frame_.timer("Timer1", 10, [this] { ballTick(); })),
      Timer2(frame_.timer("Timer2", 1000, [this] { clockTick(); })) {
    setWindowTitle("Wordmere Mini-Golf Course");
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, QColor(10, 40, 15));
    setPalette(pal);
    field_ = new PlayField(QSize(kW, kH), this);
    connect(field_, &PlayField::mousePressed, this,
            [this](QPoint at, Qt::MouseButton) { pressAt(at * 15); });
    connect(field_, &PlayField::mouseMoved, this,
            [this](QPoint at, Qt::MouseButtons) { moveTo(at * 15); });
    connect(field_, &PlayField::mouseReleased, this,
            [this](QPoint at, Qt::MouseButton) { releaseAt(at * 15); });
    field_->setMouseTracking(false);
    auto label = [this](const char* name, const char* style) {
        auto* l = new QLabel(this);
        l->setObjectName(name);
        l->setAlignment(Qt::AlignCenter);
        l->setStyleSheet(style);
        l->setAttribute(Qt::WA_TransparentForMouseEvents);
        return l;
    };
    DefLabel = label("DefLabel", "color: white; background: transparent;");
    DefLabel->setWordWrap(true);
    ScoreLabel = label("ScoreLabel", "color: #fff6a0; background: transparent;");
    ScoreLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    TimeLabel = label("TimeLabel", "color: #fff6a0; background: transparent;");
    TimeLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (int i = 0; i < kHoles; ++i) {
        auto* h = label("",
                        "QLabel { color: #103010; background: rgba(255,255,255,200);"
                        " border-radius: 6px; padding: 1px 6px; }");
        h->setObjectName(QString("HoleLabel%1").arg(i));
        h->hide();
        HoleLabel.push_back(h);
    }
    OopsLabel = new QPushButton(kOops, this);
    OopsLabel->setObjectName("OopsLabel");
    OopsLabel->setCursor(Qt::PointingHandCursor);
    OopsLabel->setStyleSheet(
        "QPushButton { color: white; background: rgba(170, 30, 30, 230); border: 3px solid "
        "#ffd0d0; border-radius: 10px; padding: 4px 8px; }");
    OopsLabel->hide();
    connect(OopsLabel, &QPushButton::clicked, this, [this] { NextWord(); });
    ballPic_ = BallPicture();
    TimeLabel->setText("Time: 30");
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void MiniGolf::SetupGame() {
    Timer1.stop();
    ball_ = {};
    lineShown_ = false;
    lineRect_ = {};
    SharedState& s = Shared();
    course_.setup(s, TheRng());
    ScoreLabel->setText("Score: 00000");
    // Deliberately left reading 30 until the first second corrects it to the real 89.
    TimeLabel->setText("Time: 30");
    drawCourse();
    showWord();
    Timer2.start();
}

void MiniGolf::drawCourse() {
    QImage bg(kW, kH, QImage::Format_RGB32);
    QPainter p(&bg);
    // Mown stripes round the course and on it.
    for (int x = 0; x < kW; x += 48)
        p.fillRect(x, 0, 48, kH, (x / 48) % 2 ? QColor(40, 110, 45) : QColor(34, 100, 40));
    const Box& b = course_.box();
    const QRect box(px(b.left), px(b.top), px(b.width()), px(b.height()));
    for (int y = box.top(); y < box.bottom(); y += 40)
        p.fillRect(box.left(), y, box.width(), std::min(40, box.bottom() - y),
                   ((y - box.top()) / 40) % 2 ? QColor(80, 175, 70) : QColor(90, 190, 80));
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Qt::white, 3));
    p.setBrush(Qt::NoBrush);
    p.drawRect(box);
    // The tee.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 60));
    p.drawEllipse(QPointF(kW / 2.0, 0.8 * kH), 22, 12);
    p.setRenderHint(QPainter::Antialiasing, false);
    for (int i = 1; i <= kBlocks; ++i)
        if (course_.blockActive(i))
            DrawBlock(p, QPoint(px(course_.blockX(i)), px(course_.blockY(i))), px(course_.B()));
    p.setRenderHint(QPainter::Antialiasing);
    const double r = course_.R() / 15.0;
    for (int h = 1; h <= course_.activeHoles(); ++h) {
        const QPointF c(course_.holeX(h) / 15.0, course_.holeY(h) / 15.0);
        // A stack of circles, growing: a rim, then black down the cup.
        for (double k = r; k > 0; k -= 1.0) {
            const int shade = int(70 * (k / r) * (k / r));
            p.setBrush(QColor(shade, shade, shade));
            p.drawEllipse(c, k, k);
        }
        p.setPen(QPen(QColor(255, 255, 255, 120), 2));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(c, r + 1, r + 1);  // the cup's lip
        p.setPen(Qt::NoPen);
    }
    p.end();
    field_->setBackground(bg);
}

void MiniGolf::NextWord() {
    if (course_.moving()) return;
    course_.nextWord(Shared(), TheRng());
    showWord();
}

void MiniGolf::showWord() {
    SharedState& s = Shared();
    DefLabel->setText(toQ(kPrompt + s.TheMeaning));
    for (int i = 0; i < kHoles; ++i) {
        HoleLabel[i]->setText(toQ(course_.caption(i + 1)));
        HoleLabel[i]->setVisible(i < course_.activeHoles());
    }
    OopsLabel->hide();
    eraseLine();
    drawBall();
    resizeEvent(nullptr);
}

void MiniGolf::showScore() {
    ScoreLabel->setText(QString("Score: %1").arg(frame_.scoreText(Shared().Score)));
}

void MiniGolf::drawBall() {
    ball_.erase(*field_);
    const int d = ballPic_.width();
    ball_.draw(*field_, QPoint(px(course_.ballX()) - d / 2, px(course_.ballY()) - d / 2), ballPic_);
    field_->flush();
}

void MiniGolf::eraseLine() {
    if (lineRect_.isNull()) return;
    ball_.erase(*field_);
    field_->restoreBackground(lineRect_);
    lineRect_ = {};
    lineShown_ = false;
}

void MiniGolf::drawLine(QPoint from, QPoint to, const QColor& colour, int width) {
    eraseLine();
    ball_.erase(*field_);
    QPainter p(&field_->surface());
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(from, to);
    p.end();
    lineRect_ = QRect(from, to).normalized().adjusted(-width - 2, -width - 2, width + 2, width + 2);
    field_->markDirty(lineRect_);
}

void MiniGolf::pressAt(QPoint twips) {
    // Only a ball at rest is hit, and only from close by.
    if (!Timer2.isActive() || !course_.canSwing(twips.x(), twips.y())) return;
    lineShown_ = true;
    moveTo(twips);
}

void MiniGolf::moveTo(QPoint twips) {
    if (!lineShown_) return;
    lineEnd_ = twips;
    drawLine(QPoint(px(twips.x()), px(twips.y())), QPoint(px(course_.ballX()), px(course_.ballY())),
             QColor(255, 255, 255, 220), 3);
    lineShown_ = true;
    drawBall();
}

void MiniGolf::releaseAt(QPoint twips) {
    if (!lineShown_) return;
    eraseLine();
    course_.swing(twips.x(), twips.y());
    drawBall();
    Timer1.start();
    sound().effect("golf.wav");
}

void MiniGolf::ballTick() {
    SharedState& s = Shared();
    const Step step = course_.tick(s, TheRng());
    if (step.stopped) {
        Timer1.stop();
        return;
    }
    if (step.wall) sound().effect("bleep2.wav");
    if (step.block) sound().effect("bleep.wav");
    if (step.hole == 0) {
        drawBall();
        return;
    }
    Timer1.stop();
    if (step.right) {
        // Only the right hole shows the score; the cost of a wrong one shows with the next.
        showScore();
        sound().effect("applause.wav");
        NextWord();
        return;
    }
    // The wrong hole: the ball is gone and a line points from the label to the right hole.
    ball_.erase(*field_);
    OopsLabel->show();
    resizeEvent(nullptr);
    const int h = course_.rightHole();
    drawLine(QPoint(kW / 2, int(0.7 * kH)), QPoint(px(course_.holeX(h)), px(course_.holeY(h))),
             QColor(255, 60, 60), 4);
    field_->flush();
    sound().effect("ooh.wav");
}

void MiniGolf::clockTick() {
    const bool over = course_.second();
    TimeLabel->setText(QString("Time: %1").arg(course_.seconds()));
    if (over) EndGame();
}

void MiniGolf::EndGame() {
    frame_.stopTimers();
    ball_.erase(*field_);
    field_->flush();
    dialogs().message(kTimeUp, "Wordmere Mini-Golf Course");
    SharedState& s = Shared();
    if (s.Score < 0) {
        // A negative score never enters the table.
        frame_.askTryAgain(QString(kNegative).replace("{score}", frame_.scoreText(s.Score)),
                           kNotSoGreat);
        return;
    }
    frame_.wonGame();
}

void MiniGolf::resizeEvent(QResizeEvent*) {
    field_->setGeometry(frame_.playArea());
    const double k = field_->targetRect().width() / double(kW);
    auto place = [&](QWidget* w, QRect logical) {
        w->setGeometry(field_->toWidget(logical).translated(field_->pos()));
    };
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(std::max(10, int(20 * k)));
    ScoreLabel->setFont(f);
    TimeLabel->setFont(f);
    place(ScoreLabel, QRect(int(0.2 * kW), int(0.02 * kH), 200, 30));
    place(TimeLabel, QRect(int(0.8 * kW) - 200, int(0.02 * kH), 200, 30));
    f.setPixelSize(std::max(10, int(22 * k)));
    DefLabel->setFont(f);
    place(DefLabel, QRect(kW / 20, px(kDefTop), kW * 9 / 10, px(kDefHeight)));
    f.setPixelSize(std::max(9, int(17 * k)));
    for (int i = 0; i < kHoles; ++i) {
        HoleLabel[i]->setFont(f);
        const int h = i + 1;
        const int w =
            std::min(190, int(QFontMetrics(f).horizontalAdvance(HoleLabel[i]->text()) / k) + 20);
        place(HoleLabel[i],
              QRect(px(course_.holeX(h)) - w / 2, px(course_.holeY(h) - course_.R()) - 30, w, 26));
    }
    f.setPixelSize(std::max(9, int(16 * k)));
    OopsLabel->setFont(f);
    place(OopsLabel, QRect(kW / 2 - 390, int(0.7 * kH), 780, 44));
}

WM_REGISTER_GAME("Mini Golf", MiniGolf, "sounds/golf.wav", "sounds/bleep.wav", "sounds/bleep2.wav",
                 "sounds/applause.wav", "sounds/ooh.wav");

}  // namespace wm
