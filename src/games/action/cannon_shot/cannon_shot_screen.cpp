#include "games/action/cannon_shot/cannon_shot_screen.h"

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

using namespace cannon_shot;

namespace {
const char* kNoWords =
    "This list has no words that fit Cannon Shot: a word may have at most 14 letters. Please "
    "choose another list.";
const char* kPlateStyle =
    "color: #fff8e0; background: rgba(40, 60, 110, 190); border: 2px solid rgba(255, 240, 200, "
    "140); border-radius: 12px; padding: 2px 14px;";
const char* kClueStyle =
    "color: #3b2208; background: #fff8e1; border: 3px solid #b5742e;"
    " border-radius: 18px; padding: 4px 18px;";

}  // namespace

CannonShotForm::CannonShotForm(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames{}, [this] { SetupGame(); }),
      keys_(this),
      Timer1(frame_.timer("Timer1", Ticker::kFrameMs, [this] { frameTick(); })),
      Timer2(frame_.timer(
          "Timer2", kReadyMs, [this] { afterPause(); }, true)) {
    setWindowTitle("Cannon Shot");
    setFocusPolicy(Qt::StrongFocus);
    frame_.setMusic(MusicKind::Shared, "cannonshot.mid");
    // The sky keeps moving behind the end boxes: the fireworks, the drooping barrel.
    frame_.runOnThroughEnd("Timer1");

    sky_ = new CannonSky(game_, this);
    Label1 = new QLabel(this);
    Label1->setObjectName("Label1");
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setWordWrap(true);
    Label1->setStyleSheet(kClueStyle);
    LevelLabel = new QLabel(this);
    LevelLabel->setObjectName("LevelLabel");
    WordLabel = new QLabel(this);
    WordLabel->setObjectName("WordLabel");
    ScoreLabel = new QLabel(this);
    ScoreLabel->setObjectName("ScoreLabel");
    BallsLabel = new QLabel(this);
    BallsLabel->setObjectName("BallsLabel");
    for (QLabel* l : {LevelLabel, WordLabel, ScoreLabel, BallsLabel}) {
        l->setAlignment(Qt::AlignCenter);
        l->setStyleSheet(kPlateStyle);
        l->setFocusPolicy(Qt::NoFocus);
    }
    // The word is the riddle: it may be heard once it is spelled, the meaning any time.
    frame_.setSayIt([this] {
        return SecretWord(game_.phase() != Phase::Aiming && game_.phase() != Phase::Ready,
                          Label1->isVisible());
    });
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void CannonShotForm::SetupGame() {
    SharedState& s = Shared();
    keys_.clear();
    pause_ = Pause::None;
    if (!game_.start(s, TheRng())) {
        frame_.refuse(kNoWords, "Cannon Shot");
        return;
    }
    sky_->reset();
    frame_.startMusic();
    showWord();
    showProgress();
    sky_->setCall("Get ready!");
    sound().effect("cannonready.wav");
    Timer1.start();
    pause_ = Pause::Ready;
    Timer2.start(kReadyMs);
    setFocus();
}

void CannonShotForm::afterPause() {
    switch (std::exchange(pause_, Pause::None)) {
        case Pause::Ready:
            go();
            break;
        case Pause::Word:
            if (!game_.nextWord(Shared(), TheRng())) {
                frame_.refuse(kNoWords, "Cannon Shot");
                return;
            }
            sky_->reset();
            showWord();
            showProgress();
            sky_->setCall(QString("Word %1 of %2").arg(game_.wordNumber()).arg(kWordsToWin));
            sound().effect("cannonready.wav");
            pause_ = Pause::Ready;
            Timer2.start(kReadyMs);
            break;
        case Pause::End:
            if (game_.phase() == Phase::Won) {
                Shared().Score = game_.score();
                frame_.wonGame();
            } else {
                frame_.askTryAgain(toQ(lostText(Shared().TheWord)) +
                                       " Would you like to try again?",
                                   "Try Again?");
            }
            break;
        case Pause::None:
            break;
    }
}

void CannonShotForm::go() {
    game_.go();
    sky_->setCall({});
    keys_.clear();
    frame_.refreshSayIt();
}

void CannonShotForm::frameTick() {
    Input in;
    const bool up = keys_.isDown(Qt::Key_Left) || keys_.isDown(Qt::Key_Up);
    const bool down = keys_.isDown(Qt::Key_Right) || keys_.isDown(Qt::Key_Down);
    in.turn = int(up) - int(down);
    // A tap shorter than a frame still charges one step and fires on the next.
    const bool tapped = keys_.takePressed(Qt::Key_Space);
    in.space = keys_.isDown(Qt::Key_Space) || tapped;
    const int level = game_.level();
    for (const Event& e : game_.tick(in, TheRng())) {
        switch (e.kind) {
            case Event::Fired:
                sky_->fired();
                sound().effect("cannonboom.wav", SoundMode::Overlap);
                break;
            case Event::Right:
                sky_->popped(e, 10 * level);
                sound().effect("cannonpop.wav", SoundMode::Overlap);
                break;
            case Event::Wrong:
                sky_->popped(e, 5 * level);
                sound().effect("cannonwrong.wav", SoundMode::Overlap);
                break;
            case Event::Landed:
                sky_->landed(e);
                sound().effect("cannonthud.wav", SoundMode::Overlap);
                break;
            case Event::Spelled:
                if (game_.phase() == Phase::Spelled) {
                    sky_->setCall("Well done!");
                    sound().effect("cannonword.wav");
                    pause_ = Pause::Word;
                    Timer2.start(kWordMs);
                }
                frame_.refreshSayIt();
                break;
            case Event::Won:
                sky_->finish(true);
                sky_->setCall("You win!");
                sound().effect("cannonwin.wav");
                pause_ = Pause::End;
                Timer2.start(kEndMs);
                break;
            case Event::Lost:
                sky_->finish(false);
                sky_->setCall("Out of cannonballs!");
                sound().effect("cannonlose.wav");
                pause_ = Pause::End;
                Timer2.start(kEndMs);
                frame_.refreshSayIt();
                break;
            case Event::Back:
                break;
        }
        if (e.kind != Event::Back) showProgress();
    }
    sky_->step();
}

void CannonShotForm::showWord() {
    const SharedState& s = Shared();
    Label1->setText(toQ(s.TheMeaning));
    // A words-only list has no clue, as the chooser warned.
    Label1->setVisible(s.WordsOnly == kFalse && !s.TheMeaning.empty());
    resizeEvent(nullptr);
}

void CannonShotForm::showProgress() {
    LevelLabel->setText(QString("Level %1").arg(game_.level()));
    WordLabel->setText(QString("Word %1 of %2").arg(game_.wordNumber()).arg(kWordsToWin));
    ScoreLabel->setText(QString("Score: %1").arg(game_.score()));
    BallsLabel->setText(QString("Cannonballs: %1").arg(game_.ballsLeft()));
    for (QLabel* l : {LevelLabel, WordLabel, ScoreLabel, BallsLabel}) l->adjustSize();
    resizeEvent(nullptr);
}

void CannonShotForm::resizeEvent(QResizeEvent*) {
    const int top = frame_.menuHeight();
    sky_->setGeometry(0, top, width(), height() - top);
    auto place = [&](const QRectF& world) { return sky_->toWidget(world).translated(0, top); };
    const double s = sky_->scale();
    // The clue across the top, between the plates; its text shrinks to fit.
    const QRect clue = place(QRectF(330, 14, 940, 128)).toRect();
    QFont f("DejaVu Sans");
    f.setPixelSize(std::max(8, int(38 * s)));
    Label1->setFont(scene::shrinkToFit(f, clue.adjusted(24, 8, -24, -8), Label1->text()));
    Label1->setGeometry(clue);
    const QFont plate = scene::boldFont(int(24 * s));
    for (QLabel* l : {LevelLabel, WordLabel, ScoreLabel, BallsLabel}) {
        l->setFont(plate);
        l->adjustSize();
    }
    const QPointF left = place(QRectF(18, 18, 0, 0)).topLeft();
    const QPointF right = place(QRectF(1582, 18, 0, 0)).topLeft();
    const int gap = int(58 * s);
    LevelLabel->move(left.toPoint());
    WordLabel->move(left.toPoint() + QPoint(0, gap));
    ScoreLabel->move(int(right.x()) - ScoreLabel->width(), int(right.y()));
    BallsLabel->move(int(right.x()) - BallsLabel->width(), int(right.y()) + gap);
}

WM_REGISTER_GAME("Cannon Shot", CannonShotForm, "images/cannonshot-sky.svg",
                 "images/cannonshot-sprites.svg", "sounds/cannonready.wav",
                 "sounds/cannonboom.wav", "sounds/cannonpop.wav", "sounds/cannonwrong.wav",
                 "sounds/cannonthud.wav", "sounds/cannonword.wav", "sounds/cannonwin.wav",
                 "sounds/cannonlose.wav", "sounds/cannonshot.mid");

}  // namespace wm
