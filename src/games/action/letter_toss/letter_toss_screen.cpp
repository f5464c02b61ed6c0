#include "games/action/letter_toss/letter_toss_screen.h"

#include <QFontMetricsF>
#include <QTimer>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

namespace lt = letter_toss;

namespace {
constexpr int kReadyMs = 2000;
constexpr int kLandedMs = 800;
constexpr int kWrongMs = 1500;  // long enough to see which sign lit up
constexpr int kTimeUpMs = 1800;
constexpr int kTickFrom = 5;  // the clock ticks aloud for the last seconds

const char* kChip =
    "color: #fff4c8; background: rgba(52, 38, 24, 215); border: 3px solid #e0a93a;"
    " border-radius: 14px; padding: 4px 18px;";
const char* kCard =
    "color: #23324f; background: rgba(255, 252, 238, 235); border: 3px solid #8a6a3a;"
    " border-radius: 16px; padding: 4px 14px;";

QString noPointsText(double score) {
    return QString("Time's up! Your score is %1, so it cannot go on the high score table. Would "
                   "you like to try again?")
        .arg(toQ(NumText(score)));
}
}  // namespace

LetterTossGame::LetterTossGame(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames(), [this] { NewGame(); }),
      Timer1(frame_.timer("Timer1", 1000, [this] { clockTick(); })),
      Timer2(frame_.timer("Timer2", kReadyMs, [this] { play(); }, true)),
      Timer3(frame_.timer("Timer3", kLandedMs, [this] { afterLanding(); }, true)),
      Timer4(frame_.timer("Timer4", kTimeUpMs, [this] { finish(); }, true)),
      Anim(frame_.timer("Anim", lt::kStepMs, [this] { animTick(); })) {
    setWindowTitle("Letter Toss");
    frame_.setMusic(MusicKind::Shared, "lettertoss.mid");
    frame_.runOnThroughEnd("Anim");  // the fan keeps turning behind the end boxes

    scene_ = new TossScene(this);
    scene_->setRoom(&room_);
    connect(scene_, &TossScene::letGo, this, &LetterTossGame::letGo);

    auto label = [this](const char* name, const char* style) {
        auto* l = new QLabel(this);
        l->setObjectName(name);
        l->setStyleSheet(style);
        l->setAlignment(Qt::AlignCenter);
        l->setAttribute(Qt::WA_TransparentForMouseEvents);
        return l;
    };
    ScoreLabel = label("ScoreLabel", kChip);
    TimeLabel = label("TimeLabel", kChip);
    Label2 = label("Label2", "color: #6a4a1a; background: transparent;");
    Label2->setText("Toss this word:");
    WordLabel = label("WordLabel", kCard);
    Label1 = label("Label1", kCard);
    Label1->setWordWrap(true);
    Label1->setText("Drag the paper ball and let go to toss it into the basket of its meaning. "
                    "Watch the fan's arrow!");
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void LetterTossGame::NewGame() {
    SharedState& s = Shared();
    timeUp_ = false;
    if (!lt::newGame(s, room_, TheRng())) {
        phase_ = Phase::Over;
        frame_.refuse(lt::kTooFewWords, windowTitle());
        return;
    }
    frame_.startMusic();
    phase_ = Phase::Ready;
    scene_->setAiming(false);
    scene_->newWord();
    scene_->setBanner("Get ready...", "60 seconds on the clock");
    showHud();
    Anim.start();
    Timer2.start();
}

void LetterTossGame::play() {
    phase_ = Phase::Aiming;
    scene_->setBanner({});
    scene_->setAiming(true);
    Timer1.start();
}

void LetterTossGame::letGo(QPointF from, lt::Flick flick) {
    if (frame_.leaving() || phase_ != Phase::Aiming) return;
    if (!lt::toss(room_, from.x(), from.y(), flick)) {
        scene_->setAiming(true);  // not a toss: the ball goes back to the front
        return;
    }
    phase_ = Phase::Flying;
    sound().effect("toss-throw.wav");
}

void LetterTossGame::animTick() {
    if (phase_ == Phase::Flying) {
        const lt::Step st = lt::step(Shared(), room_);
        if (st.landing != lt::Landing::Flying) {
            scene_->advance(lt::kStepMs);
            landed(st);
            return;
        }
        if (st.bounced) sound().effect("toss-rim.wav", SoundMode::Overlap);
    }
    scene_->advance(lt::kStepMs);
}

void LetterTossGame::landed(const lt::Step& st) {
    phase_ = Phase::Landed;
    last_ = st.landing;
    scene_->landed(st);
    switch (st.landing) {
        case lt::Landing::Swish:
            sound().effect("toss-swish.wav");
            break;
        case lt::Landing::Right:
            sound().effect("toss-in.wav");
            break;
        case lt::Landing::Wrong:
            sound().effect("toss-wrong.wav");
            scene_->showRight(true);
            break;
        default:
            sound().effect("toss-floor.wav");
            break;
    }
    showHud();
    if (timeUp_) {
        timeUp();  // the last ball counted; now the whistle
        return;
    }
    Timer3.start(st.landing == lt::Landing::Wrong ? kWrongMs : kLandedMs);
}

void LetterTossGame::afterLanding() {
    if (phase_ != Phase::Landed) return;
    if (last_ == lt::Landing::Floor) {
        lt::newToss(room_, TheRng());
    } else {
        if (!lt::nextWord(Shared(), room_, TheRng())) {
            phase_ = Phase::Over;
            frame_.refuse(lt::kTooFewWords, windowTitle());
            return;
        }
        scene_->newWord();
    }
    phase_ = Phase::Aiming;
    scene_->setAiming(true);
    showHud();
}

void LetterTossGame::clockTick() {
    const bool up = lt::clockTick(room_);
    showHud();
    if (up) {
        timeUp_ = true;
        Timer1.stop();
        // A ball in the air when the clock runs out still counts.
        if (phase_ != Phase::Flying) timeUp();
        else scene_->setAiming(false);
    } else if (room_.secondsLeft <= kTickFrom) {
        sound().effect("toss-tick.wav", SoundMode::Overlap);
    }
}

void LetterTossGame::timeUp() {
    phase_ = Phase::Over;
    Timer2.stop();
    Timer3.stop();
    scene_->setAiming(false);
    scene_->setBanner("Time's up!", "Score: " + frame_.scoreText(Shared().Score));
    if (Shared().Score > 0) scene_->celebrate();
    sound().effect("toss-end.wav");
    Timer4.start();
}

void LetterTossGame::finish() {
    if (Shared().Score <= 0) {
        // Only a score above nothing goes on the table.
        frame_.askTryAgain(noPointsText(Shared().Score), "Time's up!");
        return;
    }
    frame_.wonGame();
}

void LetterTossGame::showHud() {
    const SharedState& s = Shared();
    ScoreLabel->setText("Score: " + frame_.scoreText(s.Score));
    TimeLabel->setText(QString("Time left: %1").arg(room_.secondsLeft));
    WordLabel->setText(toQ(s.TheWord));
    resizeEvent(nullptr);
}

void LetterTossGame::resizeEvent(QResizeEvent*) {
    const int menuH = frame_.menuHeight();
    scene_->setGeometry(0, menuH, width(), std::max(1, height() - menuH));
    const QRectF seen = scene_->visibleStage();
    auto at = [&](double x, double y) { return (scene_->toWidget({x, y}) + scene_->pos()).toPoint(); };
    const double k = scene_->toWidget({1, 0}).x() - scene_->toWidget({0, 0}).x();
    QFont chip("DejaVu Sans");
    chip.setBold(true);
    chip.setPixelSize(std::max(12, int(30 * k)));
    for (QLabel* l : {ScoreLabel, TimeLabel}) {
        l->setFont(chip);
        l->adjustSize();
    }
    const double top = std::max(seen.top(), 0.0) + 22;
    ScoreLabel->move(at(seen.left() + 30, top));
    TimeLabel->move(at(seen.right() - 30, top) - QPoint(TimeLabel->width(), 0));

    // The word's card at the front left, its type as large as fits.
    const QPoint cardTop = at(seen.left() + 30, 778);
    const QPoint cardEnd = at(560, std::min(seen.bottom(), lt::kStageH) - 16);
    QFont caption = chip;
    caption.setPixelSize(std::max(11, int(22 * k)));
    Label2->setFont(caption);
    Label2->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    Label2->setGeometry(cardTop.x() + 6, cardTop.y() - int(34 * k), cardEnd.x() - cardTop.x(),
                        int(32 * k));
    WordLabel->setGeometry(QRect(cardTop, cardEnd));
    QFont word = chip;
    const double room = WordLabel->width() - 40;
    for (int px = int(52 * k); px >= 10; --px) {
        word.setPixelSize(px);
        if (QFontMetricsF(word).horizontalAdvance(WordLabel->text()) <= room &&
            QFontMetricsF(word).height() <= WordLabel->height() - 8)
            break;
    }
    WordLabel->setFont(word);

    QFont help = chip;
    help.setPixelSize(std::max(10, int(20 * k)));
    Label1->setFont(help);
    Label1->setGeometry(QRect(at(1040, 778), at(seen.right() - 30, std::min(seen.bottom(), lt::kStageH) - 16)));
}

WM_REGISTER_GAME("Letter Toss", LetterTossGame, "images/toss-room.svg", "images/toss-sprites.svg",
                 "sounds/toss-throw.wav", "sounds/toss-rim.wav", "sounds/toss-swish.wav",
                 "sounds/toss-in.wav", "sounds/toss-wrong.wav", "sounds/toss-floor.wav",
                 "sounds/toss-tick.wav", "sounds/toss-end.wav", "sounds/lettertoss.mid");

}  // namespace wm
