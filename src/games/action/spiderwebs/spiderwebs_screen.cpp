#include "games/action/spiderwebs/spiderwebs_screen.h"

#include <QFontMetrics>
#include <QTimer>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/scene_kit.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "platform/text_fit.h"
#include "shell/game_registry.h"

namespace wm {

using namespace spiderwebs;

namespace {
const char* kTitle = "Spiderwebs";
const char* kPlateStyle =
    "color: #f4f0ff; background: rgba(30, 24, 70, 205); border: 2px solid rgba(210, 200, 255, 130);"
    " border-radius: 12px; padding: 3px 14px;";

}  // namespace

SpiderGame::SpiderGame(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames(), [this] { SetupGame(); }),
      Timer1(frame_.timer("Timer1", Ticker::kFrameMs, [this] { tick(); })),
      Timer2(frame_.timer(
          "Timer2", kEndMs, [this] { endOfGame(); }, true)) {
    setWindowTitle(kTitle);
    frame_.setMusic(MusicKind::Shared, "spiderwebs.mid");
    // The fireflies keep dancing behind the end boxes.
    frame_.runOnThroughEnd("Timer1");

    scene_ = new WebScene(this);
    scene_->setGame(&game_);
    scene_->onPick = [this](int fly) { picked(fly); };

    Label1 = new QLabel(this);
    Label1->setObjectName("Label1");
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setWordWrap(true);
    Label1->setStyleSheet("color: #3b2208; background: transparent;");
    ScoreLabel = new QLabel(this);
    ScoreLabel->setObjectName("ScoreLabel");
    TimeLabel = new QLabel(this);
    TimeLabel->setObjectName("TimeLabel");
    RoundLabel = new QLabel(this);
    RoundLabel->setObjectName("RoundLabel");
    FliesLabel = new QLabel(this);
    FliesLabel->setObjectName("FliesLabel");
    for (QLabel* l : {ScoreLabel, TimeLabel, RoundLabel, FliesLabel}) {
        l->setAlignment(Qt::AlignCenter);
        l->setStyleSheet(kPlateStyle);
    }

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void SpiderGame::SetupGame() {
    SharedState& s = Shared();
    switch (game_.start(s, TheRng())) {
        case Start::NoDefinitions:
            frame_.refuse(toQ(noDefinitionsText()), kTitle);
            return;
        case Start::TooFewWords:
            frame_.refuse(toQ(tooFewWordsText(game_.level(), game_.differentWords())), kTitle);
            return;
        case Start::Ok:
            break;
    }
    frame_.startMusic();
    showRound();
    lastTick_ = Ticker::get().now();
    Timer1.start();
}

void SpiderGame::tick() {
    const qint64 t = Ticker::get().now();
    const int ms = int(t - lastTick_);
    lastTick_ = t;
    for (Event e : game_.advance(Shared(), ms, TheRng())) {
        switch (e) {
            case Event::Go:
                scene_->setCall("Click the fly with the matching word!");
                sound().effect("spidergo.wav");
                break;
            case Event::Caught:
                // No points: the word is shown on its fly and on the plate.
                scene_->caught();
                scene_->setCall(
                    QString("Too late! The word was \"%1\".").arg(toQ(Shared().TheWord)));
                sound().effect("spidercatch.wav");
                break;
            case Event::NextRound:
                showRound();
                break;
            case Event::Over: {
                const bool won = game_.score() > 0;
                scene_->finale(won);
                scene_->setCall(
                    won ? QString("All ten done! You freed %1 of 10 flies.").arg(game_.freed())
                        : QString("The spider had a feast tonight!"));
                sound().effect(won ? "spiderwin.wav" : "spiderlose.wav");
                Timer2.start(kEndMs);
                break;
            }
        }
    }
    showHud();
    scene_->step();
}

void SpiderGame::picked(int fly) {
    switch (game_.click(fly)) {
        case Click::Right:
            scene_->freed(fly, game_.lastPoints());
            scene_->setCall(QString("Free! +%1 points").arg(game_.lastPoints()));
            sound().effect("spiderfree.wav", SoundMode::Overlap);
            break;
        case Click::Wrong:
            scene_->eaten(fly);
            scene_->setCall("Gulp! Wrong fly, and the spider hurries!");
            sound().effect("spidereat.wav", SoundMode::Overlap);
            break;
        case Click::Ignored:
            break;
    }
    showHud();
}

void SpiderGame::endOfGame() {
    SharedState& s = Shared();
    s.Score = game_.score();
    if (game_.onTheTable()) {
        frame_.wonGame();
    } else {
        frame_.askTryAgain(toQ(noPointsText(s.Score)), kTitle);
    }
}

void SpiderGame::showRound() {
    scene_->newRound();
    scene_->setCall(QString("Definition %1 of %2").arg(game_.round()).arg(kRounds));
    Label1->setText(toQ(Shared().TheMeaning));
    showHud();
    resizeEvent(nullptr);
}

void SpiderGame::showHud() {
    const QString score = "Score: " + toQ(NumText(game_.score()));
    const QString time = QString("Spider: %1 s").arg(game_.msLeft() / 1000.0, 0, 'f', 1);
    const QString round = QString("Definition %1 of %2").arg(game_.round()).arg(kRounds);
    const QString flies = QString("Flies: %1").arg(game_.level());
    bool changed = false;
    for (auto [label, text] : {std::pair{ScoreLabel, score},
                               {TimeLabel, time},
                               {RoundLabel, round},
                               {FliesLabel, flies}}) {
        if (label->text() == text) continue;
        label->setText(text);
        changed = true;
    }
    if (changed) resizeEvent(nullptr);
}

void SpiderGame::resizeEvent(QResizeEvent*) {
    const int top = frame_.menuHeight();
    scene_->setGeometry(0, top, width(), height() - top);
    // The definition on the sign, shrunk until it fits.
    const QRect box = scene_->clueTextRect().translated(scene_->pos());
    QFont f = scene::boldFont(box.height() * 36 / 100);
    Label1->setFont(scene::shrinkToFit(f, box, Label1->text()));
    Label1->setGeometry(box);
    // The plates beside the sign, one font for all four, as large as the widest text lets it be.
    const QList<QLabel*> plates{ScoreLabel, TimeLabel, RoundLabel, FliesLabel};
    QFont pf = scene::boldFont(scene_->plateRect(0, 0).width() / 8);
    for (QLabel* l : plates) {
        l->setFont(pf);
        while (pf.pixelSize() > 8 && l->sizeHint().width() > scene_->plateRect(0, 0).width()) {
            pf.setPixelSize(pf.pixelSize() - 1);
            l->setFont(pf);
        }
    }
    for (int i = 0; i < plates.size(); ++i) {
        plates[i]->setFont(pf);
        plates[i]->setGeometry(
            scene_->plateRect(i, plates[i]->sizeHint().height()).translated(scene_->pos()));
    }
}

WM_REGISTER_GAME("Spiderwebs", SpiderGame, "images/spider-garden.svg", "images/spider-sprites.svg",
                 "sounds/spidergo.wav", "sounds/spiderfree.wav", "sounds/spidereat.wav",
                 "sounds/spidercatch.wav", "sounds/spiderwin.wav", "sounds/spiderlose.wav",
                 "sounds/spiderwebs.mid");

}  // namespace wm
