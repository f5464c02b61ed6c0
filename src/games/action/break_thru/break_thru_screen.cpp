#include "games/action/break_thru/break_thru_screen.h"

#include <QFontMetrics>
#include <QTimer>

#include "core/rng.h"
#include "core/shared_state.h"
#include "platform/scene_kit.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "platform/text_fit.h"
#include "shell/game_registry.h"

namespace wm {

using namespace break_thru;

namespace {
const char* kTitle = "BreakThru";
const char* kNoWords =
    "This list has no words that fit BreakThru: a word may have at most 16 letters. Please "
    "choose another list.";
const char* kServe = "Press Space to serve!";
const char* kPlateStyle =
    "color: #fff4d8; background: rgba(36, 24, 90, 200); border: 2px solid rgba(190, 170, 255, "
    "150); border-radius: 12px; padding: 2px 14px;";
const char* kClueStyle =
    "color: #2a1850; background: rgba(245, 240, 255, 235); border: 3px solid #8a6ad8;"
    " border-radius: 18px; padding: 2px 16px;";

}  // namespace

BreakThruForm::BreakThruForm(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames(), [this] { SetupGame(); }),
      keys_(this),
      Timer1(frame_.timer("Timer1", Ticker::kFrameMs, [this] { frameTick(); })) {
    setWindowTitle(kTitle);
    setFocusPolicy(Qt::StrongFocus);
    frame_.setMusic(MusicKind::Shared, "breakthru.mid");
    frame_.pauseTimer("Timer2", kReadyMs);
    // The wall keeps tumbling and the fireworks keep bursting behind the end boxes.
    frame_.runOnThroughEnd("Timer1");
    // The word stands at the top all the time: it may be heard.
    frame_.setSayIt([] { return ShownWord(); });

    field_ = new BreakField(game_, this);
    Label1 = new QLabel(this);
    Label1->setObjectName("Label1");
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setWordWrap(true);
    Label1->setStyleSheet(kClueStyle);
    WordLabel = new QLabel(this);
    WordLabel->setObjectName("WordLabel");
    ScoreLabel = new QLabel(this);
    ScoreLabel->setObjectName("ScoreLabel");
    BallsLabel = new QLabel(this);
    BallsLabel->setObjectName("BallsLabel");
    for (QLabel* l : {WordLabel, ScoreLabel, BallsLabel}) {
        l->setAlignment(Qt::AlignCenter);
        l->setStyleSheet(kPlateStyle);
    }
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void BreakThruForm::SetupGame() {
    keys_.clear();
    if (!game_.start(Shared(), TheRng())) {
        frame_.refuse(kNoWords, kTitle);
        return;
    }
    frame_.startMusic();
    Timer1.start();
    getReady();
    setFocus();
}

// A new wall: "Get ready!", then the ball waits on the paddle for Space.
void BreakThruForm::getReady() {
    field_->reset();
    showWord();
    showProgress();
    field_->setCall("Get ready!",
                    QString("Word %1 of %2").arg(game_.wordNumber()).arg(game_.level()));
    sound().effect("breakthruready.wav");
    frame_.pauseThen(kReadyMs, [this] {
        game_.go();
        field_->setCall({}, kServe);
    });
}

void BreakThruForm::frameTick() {
    Input in;
    in.move = int(keys_.isDown(Qt::Key_Down)) - int(keys_.isDown(Qt::Key_Up));
    // A tap shorter than a frame still serves.
    const bool tapped = keys_.takePressed(Qt::Key_Space);
    in.serve = keys_.isDown(Qt::Key_Space) || tapped;
    for (const Event& e : game_.tick(in)) {
        switch (e.kind) {
            case Event::Served:
                field_->setCall({});
                sound().effect("breakthruserve.wav", SoundMode::Overlap);
                break;
            case Event::Paddle:
                field_->bounced(e);
                sound().effect("breakthrupaddle.wav", SoundMode::Overlap);
                break;
            case Event::Wall:
                field_->bounced(e);
                sound().effect("breakthruwall.wav", SoundMode::Overlap);
                break;
            case Event::Broke:
                field_->struck(e, e.points);
                sound().effect("breakthrubreak.wav", SoundMode::Overlap);
                break;
            case Event::Wrong:
                field_->struck(e, -e.points);
                sound().effect("breakthruwrong.wav", SoundMode::Overlap);
                break;
            case Event::Missed:
                field_->missed(e);
                sound().effect("breakthrumiss.wav", SoundMode::Overlap);
                if (game_.phase() == Phase::Serve)
                    field_->setCall(game_.ballsLeft() == 1 ? "Last ball!" : "Missed!", kServe);
                break;
            case Event::Spelled:
                if (game_.phase() != Phase::Spelled) break;
                field_->tumble(false);
                field_->setCall("Well done!");
                sound().effect("breakthruword.wav");
                frame_.pauseThen(kWordMs, [this] {
                    if (!game_.nextWord(Shared(), TheRng())) {
                        frame_.refuse(kNoWords, kTitle);
                        return;
                    }
                    getReady();
                });
                break;
            case Event::Won:
                field_->tumble(true);
                field_->setCall("You broke through!");
                sound().effect("breakthruwin.wav");
                frame_.pauseThen(kEndMs, [this] {
                    Shared().Score = game_.score();
                    frame_.wonGame();
                });
                break;
            case Event::Lost:
                field_->setCall("Out of balls!");
                sound().effect("breakthrulose.wav");
                frame_.pauseThen(kEndMs, [this] {
                    frame_.askTryAgain(
                        toQ(lostText(Shared().TheWord)) + " Would you like to try again?",
                        "Try Again?");
                });
                break;
        }
        showProgress();
    }
    field_->step();
}

void BreakThruForm::showWord() {
    const SharedState& s = Shared();
    Label1->setText(toQ(s.TheMeaning));
    // A words-only list has no clue.
    Label1->setVisible(s.WordsOnly == kFalse && !s.TheMeaning.empty());
    resizeEvent(nullptr);
}

void BreakThruForm::showProgress() {
    const QString word = QString("Word %1 of %2").arg(game_.wordNumber()).arg(game_.level());
    const QString score = QString("Score: %1").arg(game_.score());
    const QString balls = QString("Balls: %1").arg(game_.ballsLeft());
    // Laid out again only when a plate's text changes, not at every bounce.
    if (WordLabel->text() == word && ScoreLabel->text() == score && BallsLabel->text() == balls)
        return;
    WordLabel->setText(word);
    ScoreLabel->setText(score);
    BallsLabel->setText(balls);
    resizeEvent(nullptr);
}

void BreakThruForm::resizeEvent(QResizeEvent*) {
    const int top = frame_.menuHeight();
    field_->setGeometry(0, top, width(), height() - top);
    auto place = [&](const QRectF& world) { return field_->toWidget(world).translated(0, top); };
    const double s = field_->scale();
    // The clue under the word, between the plates; its text shrinks to fit.
    const QRect clue = place(QRectF(340, 94, 920, 106)).toRect();
    QFont f("DejaVu Sans");
    f.setPixelSize(std::max(8, int(32 * s)));
    Label1->setFont(scene::shrinkToFit(f, clue.adjusted(22, 6, -22, -6), Label1->text()));
    Label1->setGeometry(clue);
    const QFont plate = scene::boldFont(int(24 * s));
    for (QLabel* l : {WordLabel, ScoreLabel, BallsLabel}) {
        l->setFont(plate);
        l->adjustSize();
    }
    const QPointF left = place(QRectF(20, 96, 0, 0)).topLeft();
    const QPointF right = place(QRectF(1580, 96, 0, 0)).topLeft();
    const int gap = int(54 * s);
    WordLabel->move(left.toPoint());
    ScoreLabel->move(left.toPoint() + QPoint(0, gap));
    BallsLabel->move(int(right.x()) - BallsLabel->width(), int(right.y()));
}

WM_REGISTER_GAME("BreakThru", BreakThruForm, "images/breakthru-space.svg",
                 "images/breakthru-sprites.svg", "sounds/breakthruready.wav",
                 "sounds/breakthruserve.wav", "sounds/breakthrupaddle.wav",
                 "sounds/breakthruwall.wav", "sounds/breakthrubreak.wav",
                 "sounds/breakthruwrong.wav", "sounds/breakthrumiss.wav",
                 "sounds/breakthruword.wav", "sounds/breakthruwin.wav", "sounds/breakthrulose.wav",
                 "sounds/breakthru.mid");

}  // namespace wm
