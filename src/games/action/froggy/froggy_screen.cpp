#include "games/action/froggy/froggy_screen.h"

#include <QFont>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QTimer>

#include "core/rng.h"
#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/sprite_sheet.h"
#include "platform/text.h"
#include "shell/game_registry.h"

namespace wm {

namespace {
const char* kSprites = "images/froggy-sprites.svg";
const QColor kRoad(70, 72, 78);
const QColor kWater(40, 110, 200);
const QColor kGrass(86, 170, 70);

GameMenuNames menuNames() {
    GameMenuNames menu;
    menu.restart = "mnuRestart";
    menu.scores = "mnuHighScores";
    menu.quit = "mnuQuit";
    return menu;
}

// A sprite copied as a block keeps the ground colour of its lane behind it.
QImage onGround(const QImage& sprite, QSize size, const QColor& ground, const QColor& standIn) {
    QImage image(size.expandedTo(QSize(1, 1)), QImage::Format_RGB32);
    image.fill(ground);
    QPainter p(&image);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    if (sprite.isNull()) {
        p.setBrush(standIn);
        p.setPen(Qt::NoPen);
        p.drawRoundedRect(QRectF(image.rect()).adjusted(3, 5, -3, -5), 8, 8);
    } else {
        p.drawImage(QRect(QPoint(0, 0), image.size()), sprite);
    }
    return image;
}
}  // namespace

FroggyForm::FroggyForm(QWidget* parent)
    : QWidget(parent),
      frame_(this, menuNames(), [this] { SetupGame(); }),
      field_(new PlayField(ScreenMetrics::screenSize(), this)),
      CarTimer(frame_.timer("CarTimer", 10, [this] { carTick(); })),
      LogTimer(frame_.timer("LogTimer", 40, [this] { logTick(); })),
      Timer1(frame_.timer("Timer1", 50, [this] { froggy::bonusTick(board_); })) {
    setWindowTitle("Froggy!");
    frame_.hostPlay(field_);
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void FroggyForm::resizeEvent(QResizeEvent*) {
    field_->setGeometry(frame_.playArea());
}

void FroggyForm::loadPictures() {
    const SpriteSheet sheet = SpriteSheet::fromSvg(findAsset(kSprites));
    const froggy::Board& b = board_;
    const QSize car(b.carW, b.carH);
    carLeft_ = onGround(sheet.frame("car", 0), car, kRoad, QColor(60, 140, 255));
    carRight_ = onGround(sheet.frame("car", 1), car, kRoad, QColor(230, 60, 50));
    log_ = onGround(sheet.frame("log", 0), QSize(b.level.logWidth, b.rowH), kWater,
                    QColor(140, 90, 40));
    stone_ = onGround(sheet.frame("stone", 0), QSize(b.colW, b.rowH), QColor(140, 140, 135),
                      QColor(190, 190, 185));
    for (int d = 0; d < 4; ++d) {
        const QImage f = sheet.frame("frog", d);
        QImage image(QSize(b.colW, b.rowH), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter p(&image);
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        const int side = std::min(b.colW, b.rowH);
        const QRect box((b.colW - side) / 2, (b.rowH - side) / 2, side, side);
        if (f.isNull()) {
            p.setBrush(QColor(60, 180, 50));
            p.setPen(Qt::NoPen);
            p.drawEllipse(box.adjusted(4, 4, -4, -4));
        } else {
            p.drawImage(box, f);
        }
        frog_[d] = image;
    }
}

// The back picture: banks, roads with their lane marks, medians, the river, the answer row.
QImage FroggyForm::backPicture() const {
    const froggy::Board& b = board_;
    const SharedState& s = Shared();
    QImage back(field_->logicalSize(), QImage::Format_RGB32);
    back.fill(QColor(20, 40, 30));
    QPainter p(&back);
    auto row = [&](int r) { return QRect(0, b.Y(r), b.width, b.rowH); };
    for (int r : {1, 2, 9}) {
        QLinearGradient g(0, b.Y(r), 0, b.Y(r) + b.rowH);
        g.setColorAt(0, kGrass.lighter(110));
        g.setColorAt(1, kGrass.darker(110));
        p.fillRect(row(r), g);
    }
    for (int r : {3, 4, 6, 7}) p.fillRect(row(r), kRoad);
    p.setPen(QPen(QColor(240, 220, 90), 3, Qt::DashLine));
    for (int r : {3, 6}) p.drawLine(0, b.Y(r), b.width, b.Y(r));
    for (int r : {5, 8}) {
        p.fillRect(row(r), QColor(175, 170, 160));
        p.setPen(QPen(QColor(130, 125, 118), 2));
        for (int c = 1; c <= froggy::kColumns; ++c)
            p.drawLine(b.X(c), b.Y(r), b.X(c), b.Y(r) + b.rowH);
    }
    for (int r = 10; r <= 12; ++r) p.fillRect(row(r), kWater);
    p.setPen(QPen(QColor(120, 180, 240), 2));
    for (int r = 10; r <= 12; ++r)
        for (int x = (r * 37) % 90; x < b.width; x += 90)
            p.drawArc(QRect(x, b.Y(r) + b.rowH / 3, 24, 10), 0, 180 * 16);
    p.fillRect(row(13), QColor(120, 200, 100));
    p.fillRect(QRect(0, 0, b.width, b.Y(13)), QColor(25, 45, 90));
    // A blue line under the question.
    p.setPen(QPen(QColor(0, 0, 255), 2));
    p.drawLine(0, b.Y(13) - 1, b.width, b.Y(13) - 1);
    // The slots' underlines.
    const QColor slotColours[] = {QColor(128, 255, 128), QColor(255, 192, 128),
                                  QColor(255, 192, 255), QColor(192, 255, 255)};
    const int ends[] = {b.X(1), b.X(6), b.X(11), b.X(16), b.width};
    for (int i = 0; i < 4; ++i) {
        p.setPen(QPen(slotColours[i], 5));
        p.drawLine(ends[i], b.Y(12) - 3, ends[i + 1], b.Y(12) - 3);
    }
    QFont font("DejaVu Serif");
    font.setBold(true);
    font.setPixelSize(std::max(12, b.rowH * 2 / 5));
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(QRect(10, 0, b.width - 20, b.Y(13)), Qt::AlignCenter | Qt::TextWordWrap,
               toQ(froggy::question(s.TheMeaning)));
    font.setPixelSize(std::max(12, b.rowH * 2 / 5));
    p.setFont(font);
    p.setPen(Qt::black);
    for (int slot = 1; slot <= 4; ++slot) {
        const QRect box(b.X(5 * slot - 4), b.Y(13), 5 * b.colW, b.rowH);
        p.drawText(box, Qt::AlignCenter, toQ(b.slotWords[slot]));
    }
    for (int c = 1; c <= froggy::kColumns; ++c)
        for (int r = 1; r <= froggy::kRows; ++r)
            if (b.stone[c][r]) p.drawImage(QPoint(b.X(c), b.Y(r)), stone_);
    return back;
}

void FroggyForm::SetupGame() {
    frame_.stopTimers();
    const QSize size = field_->logicalSize();
    const auto result = froggy::setup(Shared(), board_, size.width(), size.height(), TheRng());
    if (!result.ready) {
        frame_.refuse(toQ(result.message), "Froggy!");
        return;
    }
    loadPictures();
    for (auto& c : rightCars_) c = FieldSprite();
    for (auto& c : leftCars_) c = FieldSprite();
    for (auto& l : logs_) l = FieldSprite();
    frogSprite_ = FieldSprite();
    field_->setBackground(backPicture());
    drawLogs();
    drawCars();
    drawFrog();
    field_->flush();
    LogTimer.setInterval(board_.level.logInterval);
    LogTimer.start();
    CarTimer.start();
    Timer1.start();
}

void FroggyForm::drawCars() {
    const froggy::Board& b = board_;
    for (int i = 1; i <= 6; ++i) {
        if (!b.level.active[i]) continue;
        rightCars_[i].draw(*field_, {b.rightX[i], b.Y(froggy::rightCarRow(i))}, carRight_);
        leftCars_[i].draw(*field_, {b.leftX[i], b.Y(froggy::leftCarRow(i))}, carLeft_);
    }
}

void FroggyForm::drawLogs() {
    const froggy::Board& b = board_;
    for (int i = 1; i <= 6; ++i) logs_[i].draw(*field_, {b.logX[i], b.Y(froggy::logRow(i))}, log_);
}

void FroggyForm::eraseLogs() {
    for (int i = 6; i >= 1; --i) logs_[i].erase(*field_);
}

void FroggyForm::drawFrog() {
    frogSprite_.draw(*field_, {board_.frogX, board_.frogY}, frog_[board_.facing]);
}

void FroggyForm::carTick() {
    frogSprite_.erase(*field_);
    for (int i = 6; i >= 1; --i) {
        leftCars_[i].erase(*field_);
        rightCars_[i].erase(*field_);
    }
    const froggy::Outcome out = froggy::carTick(board_);
    drawCars();
    drawFrog();
    field_->flush();
    if (out == froggy::Outcome::Squashed) squashed();
}

void FroggyForm::logTick() {
    frogSprite_.erase(*field_);
    eraseLogs();
    bool rode = false;
    const froggy::Outcome out = froggy::logTick(board_, rode);
    drawLogs();
    drawFrog();
    field_->flush();
    if (out == froggy::Outcome::Drowned) drowned();
}

void FroggyForm::keyPressEvent(QKeyEvent* event) {
    froggy::Key key = froggy::Key::Other;
    switch (event->key()) {
        case Qt::Key_Up:
            key = froggy::Key::Up;
            break;
        case Qt::Key_Down:
            key = froggy::Key::Down;
            break;
        case Qt::Key_Left:
            key = froggy::Key::Left;
            break;
        case Qt::Key_Right:
            key = froggy::Key::Right;
            break;
        // Shift, Control and Alt alone are not keys a pupil presses to play.
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_Meta:
            return;
        default:
            break;
    }
    event->accept();
    if (!CarTimer.isActive()) return;  // nothing moves between rounds
    if (board_.keyLock) return;
    if (key == froggy::Key::Other) {
        dialogs().message("Use the arrow keys to contol your frog...", "Froggy!");
        return;
    }
    frogSprite_.erase(*field_);
    const froggy::HopResult hop = froggy::keyDown(board_, key);
    if (hop.hop == froggy::Hop::Blocked)
        sound().effect("crumble.wav");
    else
        sound().effect("bleep.wav", SoundMode::NoInterrupt);
    drawFrog();
    field_->flush();
    if (hop.outcome == froggy::Outcome::Won)
        won();
    else if (hop.outcome == froggy::Outcome::WrongWord)
        wrongWord();
}

void FroggyForm::keyReleaseEvent(QKeyEvent* event) {
    // The keyboard's repeats come as release and press pairs here; only the real release
    // clears the lock.
    if (!event->isAutoRepeat()) froggy::keyUp(board_);
}

void FroggyForm::rings(const QColor& colour, int step) {
    QImage& surface = field_->surface();
    QPainter p(&surface);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(colour, 1));
    const QPoint centre(board_.frogX + board_.colW / 2, board_.frogY + board_.rowH / 2);
    for (int r = 1; r <= board_.colW / 2; r += step) p.drawEllipse(centre, r, r);
    p.end();
    field_->markDirty(
        QRect(centre, QSize()).adjusted(-board_.colW, -board_.colW, board_.colW, board_.colW));
    field_->flush();
}

void FroggyForm::squashed() {
    rings(QColor(255, 0, 0), 1);
    LogTimer.stop();
    CarTimer.stop();
    sound().effect("squish.wav");
    frame_.askTryAgain("Oops! Froggy met a car tire! Would you like to try again?");
}

void FroggyForm::drowned() {
    rings(QColor(0, 255, 255), 3);
    frame_.stopTimers();
    sound().effect("splash.wav");
    frame_.askTryAgain("Oops! Froggy fell in the water! Would you like to try again?");
}

void FroggyForm::wrongWord() {
    frame_.stopTimers();
    sound().effect("gbell.wav");
    frame_.askTryAgain(toQ(froggy::wrongWordText(Shared().TheWord)));
}

void FroggyForm::won() {
    frame_.stopTimers();
    // The bonus is read only here; the score is set, not added.
    Shared().Score = froggy::winScore(board_, Shared().Difficulty, TheRng());
    frame_.wonGame();
}

WM_REGISTER_GAME("Froggy", FroggyForm, "images/froggy-sprites.svg", "sounds/crumble.wav",
                 "sounds/bleep.wav", "sounds/squish.wav", "sounds/splash.wav", "sounds/gbell.wav");

}  // namespace wm
