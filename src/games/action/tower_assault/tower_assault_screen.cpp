#include "games/action/tower_assault/tower_assault_screen.h"

#include <QFontMetrics>
#include <QTimer>
#include <tuple>

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

using namespace tower;

namespace {
const char* kTitle = "Tower Assault";
const char* kPlateStyle =
    "color: #fff3d6; background: rgba(52, 40, 58, 210); border: 2px solid rgba(236, 196, 96, 170);"
    " border-radius: 12px; padding: 3px 14px;";

}  // namespace

TowerGame::TowerGame(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames(), [this] { SetupGame(); }),
      keys_(this),
      Timer1(frame_.timer("Timer1", Ticker::kFrameMs, [this] { tick(); })),
      Timer2(frame_.timer(
          "Timer2", kEndMs, [this] { endOfGame(); }, true)) {
    setWindowTitle(kTitle);
    setFocusPolicy(Qt::StrongFocus);
    frame_.setMusic(MusicKind::Shared, "towerassault.mid");
    // The flag keeps waving (or the guards cheering) behind the end boxes.
    frame_.runOnThroughEnd("Timer1");

    scene_ = new TowerScene(this);
    scene_->setGame(&game_);

    Label1 = new QLabel(this);
    Label1->setObjectName("Label1");
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setWordWrap(true);
    Label1->setStyleSheet("color: #3b2108; background: transparent;");
    Label1->setAttribute(Qt::WA_TransparentForMouseEvents);
    ScoreLabel = new QLabel(this);
    ScoreLabel->setObjectName("ScoreLabel");
    RungsLabel = new QLabel(this);
    RungsLabel->setObjectName("RungsLabel");
    ShieldsLabel = new QLabel(this);
    ShieldsLabel->setObjectName("ShieldsLabel");
    for (QLabel* l : {ScoreLabel, RungsLabel, ShieldsLabel}) {
        l->setAlignment(Qt::AlignCenter);
        l->setStyleSheet(kPlateStyle);
        l->setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void TowerGame::SetupGame() {
    SharedState& s = Shared();
    keys_.clear();
    switch (game_.start(s, TheRng())) {
        case Start::NoDefinitions:
            frame_.refuse(kNoDefinitions, kTitle);
            return;
        case Start::TooFewWords:
            frame_.refuse(kTooFewWords, kTitle);
            return;
        case Start::Ok:
            break;
    }
    frame_.startMusic();
    scene_->reset();
    showWord();
    scene_->setCall("Get ready...", kReadyMs);
    Timer1.start();
    setFocus();
}

void TowerGame::tick() {
    const int dir = (keys_.isDown(Qt::Key_Left) ? -1 : 0) + (keys_.isDown(Qt::Key_Right) ? 1 : 0);
    for (Event e : game_.tick(Shared(), TheRng(), dir)) {
        switch (e) {
            case Event::Go:
                scene_->setCall("Go!");
                sound().effect("towergo.wav");
                break;
            case Event::Thrown:
                scene_->thrown(game_.scrolls().back().guard);
                sound().effect("towerthrow.wav", SoundMode::Overlap);
                break;
            case Event::Caught:
                scene_->caught(true, game_.lastPoints());
                scene_->setCall(QString("Rung %1 of %2!").arg(game_.rungs()).arg(kRungsToWin));
                sound().effect("towerrung.wav", SoundMode::Overlap);
                break;
            case Event::Wrong:
                scene_->caught(false, game_.lastPoints());
                scene_->setCall(QString("Not \"%1\"!").arg(toQ(game_.last().word)));
                sound().effect("towerclang.wav", SoundMode::Overlap);
                break;
            case Event::Landed:
                scene_->landed(game_.last().x, false);
                break;
            case Event::RightLanded:
                // Not lost: the guards pick it up and throw it again.
                scene_->landed(game_.last().x, true);
                scene_->setCall("Missed! It will come again.");
                sound().effect("towerthud.wav", SoundMode::Overlap);
                break;
            case Event::NextWord:
                showWord();
                break;
            case Event::Won:
                scene_->climb();
                scene_->setCall("The castle is yours!", 0);
                sound().effect("towerwin.wav");
                Timer2.start(kEndMs);
                break;
            case Event::Lost:
                scene_->retreat();
                scene_->setCall("The guards drove you back!", 0);
                sound().effect("towerlose.wav");
                Timer2.start(kEndMs);
                break;
        }
    }
    scene_->setMotion(game_.over() ? 0 : dir);
    showHud();
    scene_->step();
}

void TowerGame::endOfGame() {
    SharedState& s = Shared();
    s.Score = game_.score();
    if (game_.phase() == Phase::Lost)
        frame_.askTryAgain(toQ(lostText(game_.word())), kTitle);
    else
        frame_.wonGame();
}

void TowerGame::showWord() {
    Label1->setText(toQ(Shared().TheMeaning));
    showHud();
    resizeEvent(nullptr);
}

void TowerGame::showHud() {
    const QString score = "Score: " + toQ(NumText(game_.score()));
    const QString rungs = QString("Ladder: %1 of %2").arg(game_.rungs()).arg(kRungsToWin);
    const QString shields = QString("Shields: %1").arg(game_.shields());
    bool changed = false;
    for (auto [label, text] :
         {std::pair{ScoreLabel, score}, {RungsLabel, rungs}, {ShieldsLabel, shields}}) {
        if (label->text() == text) continue;
        label->setText(text);
        changed = true;
    }
    if (changed) resizeEvent(nullptr);
}

void TowerGame::resizeEvent(QResizeEvent*) {
    const int top = frame_.menuHeight();
    scene_->setGeometry(0, top, width(), height() - top);
    const int H = scene_->height(), W = width();
    // The definition on the banner, shrunk until it fits.
    const QRect banner = scene_->clueRect().translated(0, top);
    const QRect box = banner.adjusted(banner.width() / 10, banner.height() * 16 / 100,
                                      -banner.width() / 10, -banner.height() * 24 / 100);
    QFont f = scene::boldFont(box.height() * 40 / 100);
    Label1->setFont(scene::shrinkToFit(f, box, Label1->text()));
    Label1->setGeometry(box);
    // The plates: score and ladder on the left, shields on the right.
    const int plateW = W * 15 / 100;
    QFont pf = scene::boldFont(H * 28 / 1000);
    for (QLabel* l : {ScoreLabel, RungsLabel, ShieldsLabel})
        pf = scene::shrinkToWidth(pf, plateW - 36, l->text());
    const int plateH = QFontMetrics(pf).height() + 12;
    const int y1 = top + H * 15 / 1000, y2 = y1 + plateH + H / 100;
    const int left = W * 12 / 1000, right = W - left - plateW;
    for (auto [l, x, y] :
         {std::tuple{ScoreLabel, left, y1}, {RungsLabel, left, y2}, {ShieldsLabel, right, y1}}) {
        l->setFont(pf);
        l->setGeometry(x, y, plateW, plateH);
    }
}

WM_REGISTER_GAME("Tower Assault", TowerGame, "images/tower-castle.svg", "images/tower-sprites.svg",
                 "sounds/towergo.wav", "sounds/towerthrow.wav", "sounds/towerrung.wav",
                 "sounds/towerclang.wav", "sounds/towerthud.wav", "sounds/towerwin.wav",
                 "sounds/towerlose.wav", "sounds/towerassault.mid");

}  // namespace wm
