#include "games/show/slot_machine/slot_machine_screen.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMouseEvent>
#include <QTimer>

#include "core/rng.h"
#include "core/shared_state.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

using namespace slot_machine;

namespace {
constexpr int kReadyMs = 1500;    // the machine lights up before the first definition
constexpr int kJackpotMs = 2600;  // the jackpot's lights and coins, before the next definition
constexpr int kEndMs = 2800;      // the last moment, before the boxes

const char* kPullText = "Pull the handle (or press Space) to spin the reels!";
const char* kStopText = "Press STOP (or 1, 2, 3) when the right word is in the window!";

const char* kStopStyle =
    "QPushButton { color: white; border: 3px solid #6d0616; border-radius: 16px;"
    " background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #ff6a5c, stop:0.5 #e0182c,"
    " stop:1 #a50a1c); }"
    "QPushButton:pressed { background: #b00c20; }"
    "QPushButton:disabled { color: #cdb9c4; border-color: #3d2a36; background: #5c4654; }";
const char* kRightStyle =
    "QPushButton:disabled { color: #4a2c00; border: 3px solid #8a5a00; border-radius: 16px;"
    " background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #fff1a0, stop:1 #f2b320); }";

// The largest letters up to `points` that keep `longest` on one line of the label.
void fitLine(QLabel* l, int points, const QString& longest) {
    QFont f = ScreenFont(points, true);
    for (; f.pointSize() > 7; f.setPointSize(f.pointSize() - 1))
        if (QFontMetrics(f).horizontalAdvance(longest) <= l->width() - 6) break;
    l->setFont(f);
}

}  // namespace

SlotMachine::SlotMachine(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames(), [this] { NewGame(); }),
      Timer1(frame_.timer("Timer1", Ticker::kFrameMs, [this] { frameTick(); })),
      Timer2(frame_.timer(
          "Timer2", kReadyMs,
          [this] {
              auto then = std::move(then_);
              then_ = nullptr;
              if (then) then();
          },
          true)) {
    setWindowTitle("Slot Machine");
    setFocusPolicy(Qt::StrongFocus);
    frame_.setMusic(MusicKind::Shared, "slotmachine.mid");
    // The jackpot's lights and coins go on behind the end boxes.
    frame_.runOnThroughEnd("Timer1");

    scene_ = new SlotScene(game_, this);
    frame_.menuBar()->raise();

    Label1 = new QLabel(this);
    Label1->setObjectName("Label1");
    Label1->setWordWrap(true);
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setStyleSheet("QLabel { color: #fff8e6; background: transparent; padding: 6px 16px; }");
    Label2 = new QLabel(this);
    Label2->setObjectName("Label2");
    Label3 = new QLabel(this);
    Label3->setObjectName("Label3");
    Label3->setAlignment(Qt::AlignCenter);
    Label4 = new QLabel(this);
    Label4->setObjectName("Label4");
    Label4->setAlignment(Qt::AlignCenter);
    Label4->setWordWrap(true);
    Label2->setStyleSheet("QLabel { color: #ffe27a; background: transparent; }");
    Label3->setStyleSheet("QLabel { color: #ffe9c0; background: transparent; }");
    Label4->setStyleSheet("QLabel { color: #fff3d6; background: transparent; }");
    for (QLabel* l : {Label1, Label2, Label3, Label4}) l->setAttribute(Qt::WA_TransparentForMouseEvents);

    for (int i = 0; i < kReels; ++i) {
        QPushButton* b = MakeButton("STOP", this);
        b->setObjectName(QString("Command%1").arg(i + 1));
        b->setFocusPolicy(Qt::NoFocus);
        b->setToolTip(QString("Stops reel %1 (key %1)").arg(i + 1));
        b->setEnabled(false);
        connect(b, &QPushButton::clicked, this, [this, i] { stopReel(i); });
        stops_[i] = b;
    }

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void SlotMachine::NewGame() {
    SharedState& s = Shared();
    then_ = nullptr;
    ready_ = false;
    const bool ok = game_.start(s, TheRng());
    scene_->newStrips();
    showCoins();
    showButtons();
    Label1->clear();
    if (!ok) {
        frame_.refuse(kCannotPlay, windowTitle());
        return;
    }
    Label4->setText(QString());
    scene_->banner("Get ready!");
    moving();
    setFocus();
    pauseThen(kReadyMs, [this] { begin(); });
}

void SlotMachine::begin() {
    frame_.startMusic();
    nextDefinition();
}

// The definition in hand is shown and the handle waits.
void SlotMachine::nextDefinition() {
    ready_ = true;
    scene_->banner({});
    Label1->setText(toQ(Shared().TheMeaning));
    fitDefinition();
    Label3->setText(QString("Definition %1 of %2").arg(game_.definition()).arg(kDefinitions));
    Label4->setText(kPullText);
    showButtons();
}

void SlotMachine::pull() {
    if (!ready_ || frame_.leaving() || !game_.pull()) return;
    paidThisPull_ = 0;
    sound().effect("slot-pull.wav");
    scene_->pulled();
    scene_->banner({});
    Label4->setText(kStopText);
    showCoins();
    showButtons();
    moving();
}

void SlotMachine::stopReel(int i) {
    if (frame_.leaving()) return;
    const Stop r = game_.stop(i);
    if (r == Stop::Ignored) return;
    const bool right = game_.rightLast();
    scene_->stopped(i, right);
    if (right) {
        ++paidThisPull_;
        scene_->paid(i, kReelPays);
    }
    showCoins();
    showButtons();
    moving();
    switch (r) {
        case Stop::Wrong: sound().effect("slot-stop.wav"); return;
        case Stop::Right: sound().effect("slot-ding.wav"); return;
        case Stop::PullOver:
            sound().effect(right ? "slot-ding.wav" : paidThisPull_ ? "slot-stop.wav" : "slot-miss.wav");
            if (!paidThisPull_) scene_->banner("No luck this time!", SlotScene::Mood::Bad);
            Label4->setText(kPullText);
            return;
        case Stop::Jackpot: {
            ready_ = false;
            sound().effect("slot-jackpot.wav");
            scene_->jackpot();
            scene_->paid(-1, jackpotFor(game_.level()));
            scene_->banner(QString("JACKPOT! +%1 coins").arg(jackpotFor(game_.level())),
                           SlotScene::Mood::Good);
            Label4->setText(QString());
            pauseThen(kJackpotMs, [this] {
                game_.nextDefinition(Shared(), TheRng());
                scene_->newStrips();
                nextDefinition();
            });
            return;
        }
        case Stop::Won:
            ready_ = false;
            sound().effect("slot-win.wav");
            scene_->jackpot();
            scene_->paid(-1, jackpotFor(game_.level()));
            scene_->banner(QString("All ten! You have %1 coins!").arg(game_.coins()),
                           SlotScene::Mood::Good);
            Label4->setText(QString());
            Shared().Score = game_.coins();
            pauseThen(kEndMs, [this] { frame_.wonGame(); });
            return;
        case Stop::Broke: {
            ready_ = false;
            sound().effect("slot-lose.wav");
            scene_->banner(kOutOfCoins, SlotScene::Mood::Bad);
            Label4->setText(QString());
            const QString text = toQ(outOfCoinsText(Shared().TheWord));
            pauseThen(kEndMs, [this, text] { frame_.askTryAgain(text, windowTitle()); });
            return;
        }
        case Stop::Ignored: return;
    }
}

void SlotMachine::showCoins() {
    Label2->setText(QString("Coins: %1").arg(game_.coins()));
}

void SlotMachine::showButtons() {
    for (int i = 0; i < kReels; ++i) {
        const Reel& r = game_.reel(i);
        stops_[i]->setEnabled(r.spinning);
        // A reel stopped on the answer shows it on its button, gold, until the next pull.
        stops_[i]->setText(r.right ? "RIGHT!" : "STOP");
        stops_[i]->setStyleSheet(r.right ? kRightStyle : kStopStyle);
    }
}

void SlotMachine::moving() {
    lastFrame_ = Ticker::get().now();
    scene_->step(lastFrame_);
    if (!Timer1.isActive()) Timer1.start();
}

void SlotMachine::frameTick() {
    const qint64 now = Ticker::get().now();
    // A late frame rolls the reels no further than a tenth of a second.
    game_.spin(double(std::clamp<qint64>(now - lastFrame_, 0, 100)));
    lastFrame_ = now;
    scene_->step(now);
    if (!scene_->busy()) Timer1.stop();
}

void SlotMachine::pauseThen(int ms, std::function<void()> then) {
    then_ = frame_.later(std::move(then));
    Timer2.start(ms);
}

void SlotMachine::keyPressEvent(QKeyEvent* e) {
    if (e->isAutoRepeat()) return;
    switch (e->key()) {
        case Qt::Key_Space: return pull();
        case Qt::Key_1: return stopReel(0);
        case Qt::Key_2: return stopReel(1);
        case Qt::Key_3: return stopReel(2);
        default: return QWidget::keyPressEvent(e);
    }
}

void SlotMachine::mousePressEvent(QMouseEvent* e) {
    setFocus();
    if (e->button() == Qt::LeftButton && scene_->leverRect().contains(e->position().toPoint())) pull();
}

void SlotMachine::fitDefinition() {
    if (Label1->text().isEmpty() || Label1->width() <= 0) return;
    // A long definition takes smaller letters to stay on its panel.
    for (int pt = 22; pt >= 8; --pt) {
        Label1->setFont(ScreenFont(pt, true));
        const int need = Label1->fontMetrics()
                             .boundingRect(QRect(0, 0, Label1->width() - 36, 10000), Qt::TextWordWrap,
                                           Label1->text())
                             .height();
        if (need <= Label1->height() - 14) break;
    }
}

void SlotMachine::resizeEvent(QResizeEvent*) {
    scene_->setGeometry(0, 0, width(), height());
    scene_->layOut(frame_.menuHeight());
    Label1->setGeometry(scene_->definitionRect().adjusted(8, 8, -8, -8));
    fitDefinition();
    const QRect purse = scene_->purseRect();
    Label2->setGeometry(purse.adjusted(purse.height() * 4 / 5, 0, -4, 0));
    Label3->setGeometry(scene_->countRect().adjusted(4, 0, -4, 0));
    Label4->setGeometry(scene_->promptRect());
    fitLine(Label2, 22, "Coins: 8888");
    fitLine(Label3, 16, "Definition 10 of 10");
    fitLine(Label4, 13, kStopText);
    for (int i = 0; i < kReels; ++i) {
        stops_[i]->setGeometry(scene_->stopRect(i));
        stops_[i]->setFont(ScreenFont(18, true));
    }
}

WM_REGISTER_GAME("Slot Machine", SlotMachine, "images/slot-back.svg", "images/slot-art.svg",
                 "sounds/slot-pull.wav", "sounds/slot-stop.wav", "sounds/slot-ding.wav",
                 "sounds/slot-miss.wav", "sounds/slot-jackpot.wav", "sounds/slot-win.wav",
                 "sounds/slot-lose.wav", "sounds/slotmachine.mid");

}  // namespace wm
