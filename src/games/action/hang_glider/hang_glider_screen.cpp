#include "games/action/hang_glider/hang_glider_screen.h"

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

using namespace hang_glider;

namespace {
const char* kNoWords =
    "This list has no words that fit Hang Glider: a word may have at most 20 letters. Please "
    "choose another list.";
const char* kPlateStyle =
    "color: #fffbea; background: rgba(30, 70, 130, 190); border: 2px solid rgba(255, 255, 255, "
    "150); border-radius: 12px; padding: 2px 14px;";
const char* kClueStyle =
    "color: #1f3350; background: rgba(255, 252, 236, 230); border: 3px solid #e9a640;"
    " border-radius: 18px; padding: 2px 18px;";

}  // namespace

HangGlider::HangGlider(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames{}, [this] { SetupGame(); }),
      keys_(this),
      Timer1(frame_.timer("Timer1", Ticker::kFrameMs, [this] { frameTick(); })),
      Timer2(frame_.timer(
          "Timer2", kReadyMs, [this] { afterPause(); }, true)) {
    setWindowTitle("Hang Glider");
    setFocusPolicy(Qt::StrongFocus);
    frame_.setMusic(MusicKind::Shared, "hangglider.mid");
    // The sky keeps moving behind the end boxes: the fireworks, the dust settling.
    frame_.runOnThroughEnd("Timer1");

    sky_ = new GliderSky(game_, this);
    frame_.hostPlay(sky_);
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
    for (QLabel* l : {LevelLabel, WordLabel, ScoreLabel}) {
        l->setAlignment(Qt::AlignCenter);
        l->setStyleSheet(kPlateStyle);
    }
    // The word stands at the top for all to see.
    frame_.setSayIt([] { return ShownWord(); });
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void HangGlider::SetupGame() {
    SharedState& s = Shared();
    keys_.clear();
    if (!game_.start(s, TheRng())) {
        frame_.refuse(kNoWords, "Hang Glider");
        return;
    }
    sky_->reset();
    frame_.startMusic();
    showWord();
    showProgress();
    sky_->setCall("Get ready!");
    sound().effect("gliderready.wav");
    Timer1.start();
    pause_ = Pause::Ready;
    Timer2.start(kReadyMs);
    setFocus();
}

void HangGlider::afterPause() {
    switch (std::exchange(pause_, Pause::None)) {
        case Pause::Ready:
            game_.go();
            sky_->setCall({});
            break;
        case Pause::Word:
            if (!game_.nextWord(Shared(), TheRng())) {
                frame_.refuse(kNoWords, "Hang Glider");
                return;
            }
            showWord();
            showProgress();
            sky_->setCall(QString("Word %1 of %2").arg(game_.wordNumber()).arg(kWordsToWin));
            sound().effect("gliderready.wav");
            pause_ = Pause::Ready;
            Timer2.start(kReadyMs);
            break;
        case Pause::End:
            if (game_.phase() == Phase::Won) {
                Shared().Score = game_.score();
                frame_.wonGame();
            } else {
                frame_.askTryAgain(
                    toQ(lostText(Shared().TheWord)) + " Would you like to try again?",
                    "Try Again?");
            }
            break;
        case Pause::None:
            break;
    }
}

void HangGlider::frameTick() {
    Input in;
    in.steer = int(keys_.isDown(Qt::Key_Down)) - int(keys_.isDown(Qt::Key_Up));
    const int level = game_.level();
    for (const Event& e : game_.tick(in, TheRng())) {
        switch (e.kind) {
            case Event::Right:
                sky_->touched(e, 10 * level);
                sound().effect("gliderlift.wav", SoundMode::Overlap);
                break;
            case Event::Wrong:
                sky_->touched(e, 5 * level);
                sound().effect("gliderwrong.wav", SoundMode::Overlap);
                break;
            case Event::Spelled:
                if (game_.phase() == Phase::Spelled) {
                    sky_->setCall("Well done!");
                    sound().effect("gliderword.wav");
                    pause_ = Pause::Word;
                    Timer2.start(kWordMs);
                }
                break;
            case Event::Won:
                sky_->finish(true);
                sky_->setCall("You win!");
                sound().effect("gliderwin.wav");
                pause_ = Pause::End;
                Timer2.start(kEndMs);
                break;
            case Event::Lost:
                sky_->finish(false);
                sky_->setCall("You landed too early!");
                sound().effect("gliderland.wav");
                pause_ = Pause::End;
                Timer2.start(kEndMs);
                break;
        }
        showProgress();
    }
    sky_->step();
}

void HangGlider::showWord() {
    const SharedState& s = Shared();
    Label1->setText(toQ(s.TheMeaning));
    // A words-only list has no clue: the word alone is flown.
    Label1->setVisible(s.WordsOnly == kFalse && !s.TheMeaning.empty());
    resizeEvent(nullptr);
}

void HangGlider::showProgress() {
    LevelLabel->setText(QString("Level %1").arg(game_.level()));
    WordLabel->setText(QString("Word %1 of %2").arg(game_.wordNumber()).arg(kWordsToWin));
    ScoreLabel->setText(QString("Score: %1").arg(game_.score()));
    resizeEvent(nullptr);
}

void HangGlider::resizeEvent(QResizeEvent*) {
    const QRect play = frame_.playArea();
    sky_->setGeometry(play);
    auto place = [&](const QRectF& world) {
        return sky_->toWidget(world).translated(play.topLeft());
    };
    const double s = sky_->scale();
    // The clue under the word; its text shrinks to fit.
    const QRect clue = place(QRectF(250, 106, 1100, 82)).toRect();
    QFont f("DejaVu Sans");
    f.setPixelSize(std::max(8, int(30 * s)));
    const QString meaning = Label1->text();
    f = scene::shrinkToFit(f, clue.adjusted(24, 6, -24, -6), meaning);
    Label1->setFont(f);
    // A short clue gets a snug box rather than the whole width.
    const int snug = QFontMetrics(f).horizontalAdvance(meaning) + 80;
    const int w = std::clamp(snug, std::min(int(420 * s), clue.width()), clue.width());
    Label1->setGeometry(clue.center().x() - w / 2, clue.y(), w, clue.height());
    const QFont plate = scene::boldFont(int(22 * s));
    for (QLabel* l : {LevelLabel, WordLabel, ScoreLabel}) {
        l->setFont(plate);
        l->adjustSize();
    }
    const QPoint left = place(QRectF(18, 14, 0, 0)).topLeft().toPoint();
    const QPoint right = place(QRectF(1582, 14, 0, 0)).topLeft().toPoint();
    const int gap = int(50 * s);
    LevelLabel->move(left);
    WordLabel->move(left + QPoint(0, gap));
    ScoreLabel->move(right.x() - ScoreLabel->width(), right.y());
}

WM_REGISTER_GAME("Hang Glider", HangGlider, "images/hangglider-sky.svg",
                 "images/hangglider-land.svg", "images/hangglider-sprites.svg",
                 "sounds/gliderready.wav", "sounds/gliderlift.wav", "sounds/gliderwrong.wav",
                 "sounds/gliderword.wav", "sounds/gliderwin.wav", "sounds/gliderland.wav",
                 "sounds/hangglider.mid");

}  // namespace wm
