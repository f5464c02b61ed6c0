#include "games/show/pachinko/pachinko_screen.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/show/svg_picture.h"
#include "platform/dialogs.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

using namespace pachinko;

namespace {
constexpr int kW = 1024, kH = 768;
constexpr int kBoardLeft = 190, kBoardTop = 118;
const QColor kSlotColours[kSlotCount] = {
    QColor(0, 128, 0),   QColor(0, 0, 192),   QColor(150, 0, 150), QColor(200, 90, 0),
    QColor(160, 30, 30), QColor(160, 30, 30), QColor(200, 90, 0),  QColor(150, 0, 150),
    QColor(0, 0, 192),   QColor(0, 128, 0)};
const char* kAnswerStyle =
    "QPushButton { text-align: left; color: %1; background: rgba(255,255,255,200);"
    " border: 2px solid #9ab; border-radius: 8px; padding: 6px 10px; }";
const char* kLamp = "QLabel { background: %1; border: 3px solid #333; border-radius: 14px; }";
}  // namespace

Plachinko::Plachinko(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames{}, [this] { SetupGame(); }),
      Timer1(frame_.timer(
          "Timer1", 1,
          [this] {
              dialogs().message(kWelcome);
              NextQuestion();
          },
          true)),
      Timer2(frame_.timer("Timer2", 10, [this] { tick(); })),
      ScrambleTimer(frame_.timer("ScrambleTimer", 10,
                                 [this] {
                                     SlotValue = scrambleValues(TheRng());
                                     labelsDirty_ = true;
                                     redraw();
                                 })),
      AnswerPause(frame_.timer(
          "AnswerPause", 700, [this] { NextQuestion(); }, true)) {
    setWindowTitle("Pachinko");
    setFocusPolicy(Qt::StrongFocus);
    // The board lies under the question panel and the lamps. Mouse presses go to the game,
    // which maps them through the field.
    field_ = new PlayField(QSize(kW, kH), this);
    field_->setObjectName("Field");
    field_->setAttribute(Qt::WA_TransparentForMouseEvents);
    field_->lower();  // under the menu and the panels
    field_->hide();
    Frame1 = new QFrame(this);
    Frame1->setObjectName("Frame1");
    Frame1->setStyleSheet(
        "QFrame#Frame1 { background: rgba(255, 250, 235, 245); border: 4px solid #7a3e9d;"
        " border-radius: 18px; } QLabel { color: #222; background: transparent; }");
    auto* q = new QVBoxLayout(Frame1);
    q->setContentsMargins(22, 16, 22, 16);
    auto* caption = new QLabel(Frame1);
    caption->setObjectName("Caption");
    caption->setFont(ScreenFont(16, true));
    q->addWidget(caption);
    Direct = new QLabel(Frame1);
    Direct->setObjectName("Direct");
    Direct->setWordWrap(true);
    Direct->setFont(ScreenFont(13));
    q->addWidget(Direct);
    Questionlabel = new QLabel(Frame1);
    Questionlabel->setObjectName("Questionlabel");
    Questionlabel->setWordWrap(true);
    Questionlabel->setAlignment(Qt::AlignCenter);
    Questionlabel->setFont(ScreenFont(20, true));
    q->addWidget(Questionlabel);
    for (int i = 0; i < 5; ++i) {
        auto* a = new QPushButton(Frame1);
        a->setObjectName(QString("AnswerLabel%1").arg(i + 1));
        connect(a, &QPushButton::clicked, this, [this, i] { answer(i); });
        q->addWidget(a);
        AnswerLabel.push_back(a);
    }
    for (int i = 0; i < 5; ++i) {
        auto* lamp = new QLabel(this);
        lamp->setObjectName(QString("Shape1_%1").arg(i));
        lamp->setFixedSize(28, 28);
        Shape1.push_back(lamp);
    }
    Label1 = new QLabel(kLockHint, this);
    Label1->setObjectName("Label1_1");
    Label1->setFont(ScreenFont(16, true));
    Label1->setStyleSheet(
        "QLabel { color: white; background: rgba(120, 30, 140, 220); border-radius: 10px;"
        " padding: 6px 14px; }");
    disk_ = QImage(kDiskSize + 2, kDiskSize + 2, QImage::Format_ARGB32_Premultiplied);
    disk_.fill(Qt::transparent);
    {
        QPainter p(&disk_);
        p.setRenderHint(QPainter::Antialiasing);
        show::PaintSvg(p, "images/pachinko-disk.svg", QRectF(1, 1, kDiskSize, kDiskSize));
    }
    diskPicture_ = PictureOf(disk_);
    diskMask_ = MaskOf(disk_);
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void Plachinko::SetupGame() {
    DisksEarned = 0;
    QuestionNumber = 0;
    Falling = false;
    fallingDisk_ = -1;
    DiskHeld = -1;
    UsedWords.assign(kMaxWords + 2, false);
    inPlay_.fill(false);
    SlotValue.fill(0);
    boardShown_ = false;
    locked_ = false;
    scored_ = false;
    sprites_ = {};
    field_->hide();
    Label1->hide();
    Shared().Score = 0;
    for (auto* lamp : Shape1) {
        lamp->setStyleSheet(QString(kLamp).arg("#ddd"));
        lamp->show();
    }
    Frame1->show();
    resizeEvent(nullptr);
    update();
    Timer1.start();
}

void Plachinko::NextQuestion() {
    if (QuestionNumber >= 5) {
        afterQuestions();
        return;
    }
    ++QuestionNumber;
    SharedState& s = Shared();
    question_ = nextQuestion(s, UsedWords, TheRng());
    Frame1->findChild<QLabel*>("Caption")->setText(toQ(tryingText(QuestionNumber)));
    Direct->setText(question_.askMeaning ? kAskMeaning : kAskWord);
    Questionlabel->setText(toQ(question_.askMeaning ? s.TheWord : s.TheMeaning));
    for (int i = 0; i < 5; ++i) {
        const int k = question_.answers[i];
        AnswerLabel[i]->setText(toQ(question_.askMeaning ? s.Meanings[k] : s.Words[k]));
        AnswerLabel[i]->setFont(ScreenFont(question_.askMeaning ? 12 : 16, !question_.askMeaning));
        AnswerLabel[i]->setStyleSheet(QString(kAnswerStyle).arg("#123"));
        AnswerLabel[i]->setEnabled(true);
    }
    Frame1->show();
    resizeEvent(nullptr);
}

void Plachinko::answer(int i) {
    if (AnswerPause.isActive() || !Frame1->isVisible()) return;
    const bool right = i == question_.right;
    AnswerLabel[question_.right]->setStyleSheet(QString(kAnswerStyle).arg("#ff0000"));
    if (right) {
        ++DisksEarned;
        Shape1[QuestionNumber - 1]->setStyleSheet(QString(kLamp).arg("#00ff00"));
        sound().effect("ding.wav");
    } else {
        AnswerLabel[i]->setStyleSheet(QString(kAnswerStyle).arg("#000000"));
        Shape1[QuestionNumber - 1]->setStyleSheet(QString(kLamp).arg("#ff0000"));
        sound().effect("buzz.wav");
    }
    AnswerPause.start();  // a moment to see the colours before the next question
}

void Plachinko::afterQuestions() {
    if (DisksEarned == 0) {
        frame_.askTryAgain(kNoDisks, "Pachinko");
        return;
    }
    dialogs().message(toQ(earnedText(DisksEarned)));
    Frame1->hide();
    for (auto* lamp : Shape1) lamp->hide();
    BuildBoard();
}

void Plachinko::BuildBoard() {
    for (int i = 0; i < kMaxDisks; ++i) {
        inPlay_[i] = i < DisksEarned;
        rest_[i] =
            QPointF(kW * 0.05, kH * 0.1 + i * (kH * 0.7) / (kMaxDisks - 1) - kDiskSize / 2.0);
        at_[i] = rest_[i];
    }
    drawBoard();
    field_->setBackground(fieldBackground());
    sprites_ = {};
    labelsDirty_ = true;
    boardShown_ = true;
    field_->show();
    resizeEvent(nullptr);
    redraw();
    dialogs().message(kSetValues);
    Label1->show();
    resizeEvent(nullptr);
    ScrambleTimer.start();
    Timer2.start();
    setFocus();
}

void Plachinko::drawBoard() {
    board_ = QImage(kBoardWidth + 40, kBoardHeight + 60, QImage::Format_ARGB32_Premultiplied);
    board_.fill(Qt::transparent);
    QPainter p(&board_);
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(20, 40);
    // A wooden cabinet with a glassy blue play field.
    p.setPen(QPen(QColor(110, 60, 20), 14));
    QLinearGradient field(0, 0, 0, kBoardHeight);
    field.setColorAt(0, QColor(30, 50, 120));
    field.setColorAt(1, QColor(10, 20, 60));
    p.setBrush(field);
    p.drawRoundedRect(QRectF(-7, -7, kBoardWidth + 14, kBoardHeight + 14), 14, 14);
    for (const Pin& pin : pins()) {
        QRadialGradient g(QPointF(pin.x - 2, pin.y - 2), kPinRadius * 2);
        g.setColorAt(0, Qt::white);
        g.setColorAt(1, QColor(160, 170, 190));
        p.setPen(Qt::NoPen);
        p.setBrush(g);
        p.drawEllipse(QPointF(pin.x, pin.y), kPinRadius, kPinRadius);
    }
    p.setPen(QPen(QColor(230, 230, 240), 3));
    for (int s = 1; s < kSlotCount; ++s)
        p.drawLine(QPointF(s * kSlotWidth, kBoardHeight - kSlotHeight),
                   QPointF(s * kSlotWidth, kBoardHeight));
}

double Plachinko::scale() const {
    return std::min(width() / double(kW), (height() - frame_.menuHeight()) / double(kH));
}

QPointF Plachinko::offset() const {
    return {(width() - kW * scale()) / 2, double(frame_.menuHeight())};
}

QPointF Plachinko::toBoard(QPointF screen) const {
    return field_->toLogical((screen - field_->pos()).toPoint());
}

QPoint Plachinko::toScreen(QPointF board) const {
    const QPoint p = board.toPoint();
    return field_->pos() + field_->toWidget(QRect(p, QSize(1, 1))).center();
}

QPoint Plachinko::diskRest(int i) const {
    return toScreen(rest_[i] + QPointF(kDiskSize / 2.0, kDiskSize / 2.0));
}

QPoint Plachinko::dropPoint() const {
    return toScreen(QPointF(kBoardLeft + kBoardWidth / 2.0, kBoardTop - 10));
}

QImage Plachinko::fieldBackground() const {
    QImage image(kW, kH, QImage::Format_RGB32);
    QPainter p(&image);
    QLinearGradient bg(0, 0, 0, kH);
    bg.setColorAt(0, QColor(70, 20, 90));
    bg.setColorAt(1, QColor(20, 10, 40));
    p.fillRect(image.rect(), bg);
    p.setRenderHint(QPainter::Antialiasing);
    p.drawImage(QPointF(kBoardLeft - 20, kBoardTop - 40), board_);
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(22);
    p.setFont(f);
    p.setPen(QColor(255, 230, 120));
    p.drawText(QRectF(kBoardLeft, kBoardTop - 72, kBoardWidth, 30), Qt::AlignCenter,
               "Drop Disk Here");
    p.setPen(Qt::NoPen);
    for (int s = 0; s < kSlotCount; ++s) {
        p.setBrush(kSlotColours[s]);
        p.drawRoundedRect(
            QRectF(kBoardLeft + s * kSlotWidth + 3, kBoardTop + kBoardHeight - kSlotHeight + 6,
                   kSlotWidth - 6, kSlotHeight - 12),
            6, 6);
    }
    return image;
}

// The slot values sit inside their coloured boxes, the score in the lower right corner.
std::vector<QRect> Plachinko::labelRects() const {
    std::vector<QRect> rects;
    for (int s = 0; s < kSlotCount; ++s)
        rects.emplace_back(kBoardLeft + s * kSlotWidth + 9,
                           kBoardTop + kBoardHeight - kSlotHeight + 12, kSlotWidth - 18,
                           kSlotHeight - 24);
    rects.emplace_back(kBoardLeft + kBoardWidth + 12, kH - 60, kW - kBoardLeft - kBoardWidth - 16,
                       40);
    return rects;
}

void Plachinko::paintLabels(QPainter& p) const {
    const std::vector<QRect> rects = labelRects();
    p.setRenderHint(QPainter::Antialiasing);
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(13);
    p.setFont(f);
    p.setPen(Qt::white);
    for (int s = 0; s < kSlotCount; ++s)
        p.drawText(rects[size_t(s)], Qt::AlignCenter, QString::number(SlotValue[s]));
    f.setPixelSize(20);
    p.setFont(f);
    p.drawText(rects.back(), Qt::AlignRight | Qt::AlignVCenter, scoreText());
}

QString Plachinko::scoreText() const {
    return scored_ ? toQ(scoreLine(Shared().Score)) : QString(kScoreStart);
}

QImage Plachinko::boardPicture() const {
    QImage image = field_->background().copy();
    QPainter p(&image);
    paintLabels(p);
    return image;
}

QRect Plachinko::diskRect(int i) const {
    return inPlay_[i] && sprites_[i].isDrawn() ? sprites_[i].rect() : QRect();
}

void Plachinko::redraw() {
    if (!boardShown_) return;
    PlayField& f = *field_;
    for (int i = kMaxDisks - 1; i >= 0; --i) sprites_[i].erase(f);
    if (labelsDirty_) {
        labelsDirty_ = false;
        for (const QRect& r : labelRects()) {
            f.restoreBackground(r);
            f.markDirty(r);
        }
        QPainter p(&f.surface());
        paintLabels(p);
    }
    for (int i = 0; i < kMaxDisks; ++i)
        if (inPlay_[i])
            sprites_[i].draw(f, (at_[i] - QPointF(1, 1)).toPoint(), diskPicture_, diskMask_);
    f.flush();
}

void Plachinko::paintEvent(QPaintEvent*) {
    // Round the board: the same evening sky it is drawn on, from the menu down.
    QPainter p(this);
    QLinearGradient bg(0, frame_.menuHeight(), 0, height());
    bg.setColorAt(0, QColor(70, 20, 90));
    bg.setColorAt(1, QColor(20, 10, 40));
    p.fillRect(rect(), bg);
}

void Plachinko::mousePressEvent(QMouseEvent* e) {
    if (!boardShown_ || !locked_ || Falling) return;  // no disk is picked up while one falls
    const QPointF at = toBoard(e->position());
    for (int i = 0; i < kMaxDisks; ++i) {
        if (!inPlay_[i]) continue;
        const QRectF r(at_[i], QSizeF(kDiskSize, kDiskSize));
        if (!r.contains(at)) continue;
        DiskHeld = i;
        grab_ = at - at_[i];
        sound().effect("webshot.wav");
        return;
    }
}

void Plachinko::mouseMoveEvent(QMouseEvent* e) {
    if (DiskHeld < 0) return;
    at_[DiskHeld] = toBoard(e->position()) - grab_;  // Timer2 redraws
}

void Plachinko::mouseReleaseEvent(QMouseEvent* e) {
    if (DiskHeld < 0) return;
    const int i = DiskHeld;
    DiskHeld = -1;
    at_[i] = toBoard(e->position()) - grab_;
    const int bx = int(at_[i].x()) - kBoardLeft, by = int(at_[i].y()) - kBoardTop;
    if (!inDropZone(bx, by)) {
        sound().effect("gbell.wav");
        at_[i] = rest_[i];
        redraw();
        return;
    }
    fall_ = dropDisk(bx);
    fallingDisk_ = i;
    Falling = true;
}

void Plachinko::tick() {
    if (Falling && fallingDisk_ >= 0) {
        const bool done = step(fall_, TheRng());
        // A pin's bleep never cuts into a sound already playing.
        if (fall_.touched) sound().effect("bleep2.wav", SoundMode::NoInterrupt);
        at_[fallingDisk_] = QPointF(kBoardLeft + fall_.x, kBoardTop + fall_.y);
        if (done) {
            ScoreDisk();
            return;
        }
    }
    redraw();
}

void Plachinko::ScoreDisk() {
    Falling = false;
    const int v = SlotValue[slotOf(fall_)];
    SharedState& s = Shared();
    s.Score += v;
    scored_ = true;
    sound().effect("dingling.wav");
    labelsDirty_ = true;
    redraw();
    field_->repaint();
    inPlay_[fallingDisk_] = false;
    fallingDisk_ = -1;
    dialogs().message(toQ(scoredText(v)));
    --DisksEarned;
    redraw();
    if (DisksEarned == 0) EndGame();
}

void Plachinko::EndGame() {
    frame_.stopTimers();
    Shared().Score = std::floor(Shared().Score);
    frame_.wonGame();
}

void Plachinko::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Space && Label1->isVisible()) {
        ScrambleTimer.stop();
        Label1->hide();
        locked_ = true;
        sound().effect("cymbals.wav");
        dialogs().message(kReady);
        return;
    }
    QWidget::keyPressEvent(e);
}

void Plachinko::resizeEvent(QResizeEvent*) {
    // Exactly the field's shape, so that it has no bars of its own.
    const QSize shown =
        QSize(kW, kH).scaled(QSize(width(), height() - frame_.menuHeight()), Qt::KeepAspectRatio);
    field_->setGeometry(QRect(QPoint((width() - shown.width()) / 2, frame_.menuHeight()), shown));
    Frame1->setFixedWidth(int(std::min(width() * 0.62, 760.0 * std::max(1.0, scale()))));
    Frame1->adjustSize();
    Frame1->move((width() - Frame1->width()) / 2,
                 std::max(frame_.menuHeight() + 4, (height() - Frame1->height()) / 2));
    for (int i = 0; i < Shape1.size(); ++i)
        Shape1[i]->move(Frame1->geometry().right() + 16,
                        Frame1->y() + 20 + i * (Shape1[i]->height() + 14));
    Label1->adjustSize();
    Label1->move((width() - Label1->width()) / 2, height() - Label1->height() - 12);
}

WM_REGISTER_GAME("Pachinko", Plachinko, "sounds/ding.wav", "sounds/buzz.wav", "sounds/bleep2.wav",
                 "sounds/cymbals.wav", "sounds/dingling.wav", "sounds/gbell.wav",
                 "sounds/webshot.wav");

}  // namespace wm
