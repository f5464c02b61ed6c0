#include "games/action/slingshot/slingshot_screen.h"

#include <QFontMetrics>
#include <QTimer>
#include <utility>

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

using namespace slingshot;

namespace {
const char* kTitle = "Slingshot";

}  // namespace

SlingShot::SlingShot(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames{}, [this] { SetupGame(); }),
      Timer1(frame_.timer("Timer1", kTickMs, [this] { tick(); })),
      Timer2(frame_.timer(
          "Timer2", kReadyMs,
          [this] {
              if (auto then = std::exchange(then_, nullptr)) then();
          },
          true)) {
    setWindowTitle(kTitle);
    frame_.setMusic(MusicKind::Shared, "slingshot.mid");
    // The meadow and its sparkles go on behind the end boxes.
    frame_.runOnThroughEnd("Timer1");
    // The definition may be heard: the words on the targets are the pupil's to read.
    frame_.setSayIt([] { return Spoken(toQ(Shared().TheMeaning), ListSide::Meaning); });

    field_ = new SlingField(this);
    field_->setGame(&game_);
    field_->canPull = [this] { return !waiting_ && game_.phase() == Phase::Aiming; };
    field_->grabbed = [] { sound().effect("slingstretch.wav"); };
    field_->letGo = [this](Point pouch) { letGo(pouch); };

    Label1 = new QLabel(this);
    Label1->setObjectName("Label1");
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setWordWrap(true);
    Label1->setStyleSheet("color: #3b1f06; background: transparent;");
    ScoreLabel = new QLabel(this);
    ScoreLabel->setObjectName("ScoreLabel");
    RoundLabel = new QLabel(this);
    RoundLabel->setObjectName("RoundLabel");
    LevelLabel = new QLabel(this);
    LevelLabel->setObjectName("LevelLabel");
    StonesLabel = new QLabel(this);
    StonesLabel->setObjectName("StonesLabel");
    for (QLabel* l : {ScoreLabel, RoundLabel, LevelLabel, StonesLabel}) {
        l->setAlignment(Qt::AlignCenter);
        l->setStyleSheet("color: #fff6d8; background: transparent;");
        l->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    Label1->setAttribute(Qt::WA_TransparentForMouseEvents);

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void SlingShot::SetupGame() {
    SharedState& s = Shared();
    then_ = nullptr;
    const std::string problem = game_.start(s, TheRng());
    if (!problem.empty()) {
        frame_.refuse(toQ(problem), kTitle);
        return;
    }
    frame_.startMusic();
    field_->deal();
    field_->setCall("Ready...");
    sound().effect("slingready.wav");
    showDefinition();
    showScore();
    waiting_ = true;
    Timer1.start();
    pauseThen(kReadyMs, [this] {
        waiting_ = false;
        field_->setCall({});
    });
}

void SlingShot::pauseThen(int ms, std::function<void()> then) {
    then_ = frame_.later(std::move(then));
    Timer2.start(ms);
}

void SlingShot::tick() {
    const int level = game_.level();
    switch (game_.step()) {
        case Shot::None:
        case Shot::Flying:
            break;
        case Shot::Right: {
            const int slot = game_.rightSlot();
            field_->spinAway(slot);
            field_->popup(QString("+%1").arg(100 * level), true, game_.target(slot));
            sound().effect("slinghit.wav");
            showScore();
            waiting_ = true;
            pauseThen(kSolvedMs, [this] { nextDefinition(); });
            break;
        }
        case Shot::Wrong: {
            const int slot = game_.lastHit();
            field_->wobble(slot);
            field_->popup("-50", false, game_.target(slot));
            sound().effect("slingwrong.wav");
            showScore();
            if (game_.phase() == Phase::Revealed) reveal();
            break;
        }
        case Shot::Miss:
            sound().effect("slingmiss.wav");
            showScore();
            if (game_.phase() == Phase::Revealed) reveal();
            break;
    }
    field_->step();
}

void SlingShot::letGo(Point pouch) {
    if (waiting_ || !game_.fire(pouch)) return;
    sound().effect("slingtwang.wav", SoundMode::Overlap);
}

void SlingShot::reveal() {
    // Out of stones: the right target lights up before the next definition comes.
    waiting_ = true;
    field_->flash(game_.rightSlot());
    sound().effect("slingreveal.wav");
    pauseThen(SlingField::kFlashMs, [this] { nextDefinition(); });
}

void SlingShot::nextDefinition() {
    if (!game_.next(Shared(), TheRng())) {
        endGame();
        return;
    }
    field_->deal();
    sound().effect("slingdeal.wav");
    showDefinition();
    showScore();
    waiting_ = false;
}

void SlingShot::endGame() {
    // Reached only from the pause after a last hit or reveal: the stones are already held.
    SharedState& s = Shared();
    s.Score = game_.score();
    if (s.Score > 0) {
        field_->setCall("Well shot!", true);
        sound().effect("slingwin.wav");
        pauseThen(kEndMs, [this] { frame_.wonGame(); });
        return;
    }
    // No points: no table; the words that gave trouble, and another go offered.
    field_->setCall("Out of luck!");
    sound().effect("slinglose.wav");
    std::vector<std::string> words;
    for (const auto& w : game_.troubleWords()) words.push_back(w);
    const QString text = toQ(lostText(words));
    pauseThen(kEndMs, [this, text] { frame_.askTryAgain(text, kTitle); });
}

void SlingShot::showDefinition() {
    Label1->setText(toQ(Shared().TheMeaning));
    frame_.refreshSayIt();
    resizeEvent(nullptr);
}

void SlingShot::showScore() {
    ScoreLabel->setText("Score: " + frame_.scoreText(game_.score()));
    RoundLabel->setText(QString("Definition %1 of %2").arg(game_.definition()).arg(kDefinitions));
    LevelLabel->setText(QString("Level %1").arg(game_.level()));
    const int left = game_.stonesLeft();
    StonesLabel->setText(left == 1 ? QString("1 stone left") : QString("%1 stones left").arg(left));
}

void SlingShot::resizeEvent(QResizeEvent*) {
    const int top = frame_.menuHeight();
    field_->setGeometry(0, top, width(), height() - top);
    // The definition fills the board, in the largest size that fits.
    const QRect board = field_->boardRect().translated(0, top);
    QFont f = scene::boldFont(board.height() * 44 / 100);
    f.setBold(false);
    Label1->setFont(scene::shrinkToFit(f, board.adjusted(8, 0, -8, 0), Label1->text(), 9));
    Label1->setGeometry(board);
    // Two lines on each plate.
    auto place = [&](QRect plate, QLabel* upper, QLabel* lower) {
        plate.translate(0, top);
        const int h = plate.height();
        const QRect a(plate.left(), plate.top() + h * 12 / 100, plate.width(), h * 40 / 100);
        const QRect b(plate.left(), plate.top() + h * 50 / 100, plate.width(), h * 36 / 100);
        upper->setFont(scene::boldFont(a.height() * 70 / 100));
        lower->setFont(scene::boldFont(b.height() * 62 / 100));
        upper->setGeometry(a);
        lower->setGeometry(b);
    };
    place(field_->leftPlateRect(), ScoreLabel, RoundLabel);
    place(field_->rightPlateRect(), LevelLabel, StonesLabel);
}

WM_REGISTER_GAME("Slingshot", SlingShot, "images/slingshot-meadow.svg",
                 "images/slingshot-sprites.svg", "sounds/slingready.wav",
                 "sounds/slingstretch.wav", "sounds/slingtwang.wav", "sounds/slinghit.wav",
                 "sounds/slingwrong.wav", "sounds/slingmiss.wav", "sounds/slingreveal.wav",
                 "sounds/slingdeal.wav", "sounds/slingwin.wav", "sounds/slinglose.wav",
                 "sounds/slingshot.mid");

}  // namespace wm
