#include "games/action/bridge_out/bridge_out_screen.h"

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

using namespace bridge_out;

namespace {
const char* kNoWords =
    "No word on this list fits on the bridge: a word needs at least one letter and at most 16 "
    "letters and blanks. Please choose another list.";
const char* kTitle = "Bridge Out";
const char* kPlateStyle =
    "color: #fff6dc; background: rgba(74, 46, 20, 205); border: 2px solid rgba(255, 226, 160, 140);"
    " border-radius: 12px; padding: 3px 14px;";

}  // namespace

BridgeOutGame::BridgeOutGame(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames(), [this] { SetupGame(); }),
      Timer1(frame_.timer("Timer1", Ticker::kFrameMs, [this] { tick(); })),
      Timer2(frame_.timer(
          "Timer2", kEndMs, [this] { endOfGame(); }, true)) {
    setWindowTitle(kTitle);
    frame_.setMusic(MusicKind::Shared, "bridgeout.mid");
    // The river keeps flowing and the sparkles keep bursting behind the end boxes.
    frame_.runOnThroughEnd("Timer1");

    scene_ = new BridgeScene(this);
    scene_->setGame(&game_);
    scene_->onTake = [this](int id) { return game_.take(id); };
    scene_->onDrop = [this](int id, int gap, double x) { dropped(id, gap, x); };

    Label1 = new QLabel(this);
    Label1->setObjectName("Label1");
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setWordWrap(true);
    Label1->setStyleSheet("color: #4a2608; background: transparent;");
    Label1->setAttribute(Qt::WA_TransparentForMouseEvents);
    ScoreLabel = new QLabel(this);
    ScoreLabel->setObjectName("ScoreLabel");
    RoadLabel = new QLabel(this);
    RoadLabel->setObjectName("RoadLabel");
    BridgeLabel = new QLabel(this);
    BridgeLabel->setObjectName("BridgeLabel");
    TrucksLabel = new QLabel(this);
    TrucksLabel->setObjectName("TrucksLabel");
    for (QLabel* l : {ScoreLabel, RoadLabel, BridgeLabel, TrucksLabel}) {
        l->setAlignment(Qt::AlignCenter);
        l->setStyleSheet(kPlateStyle);
        l->setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void BridgeOutGame::SetupGame() {
    SharedState& s = Shared();
    if (!game_.start(s, TheRng())) {
        frame_.refuse(kNoWords, kTitle);
        return;
    }
    frame_.startMusic();
    showWord();
    lastTick_ = Ticker::get().now();
    Timer1.start();
}

void BridgeOutGame::tick() {
    const qint64 t = Ticker::get().now();
    const int ms = int(t - lastTick_);
    lastTick_ = t;
    for (Event e : game_.advance(Shared(), ms, TheRng())) {
        switch (e) {
            case Event::Go:
                scene_->setCall("Go!");
                sound().effect("bridgego.wav");
                break;
            case Event::Stopped:
                // The truck at the gap: it stops with a horn, and the word shows in the gaps.
                scene_->stopped();
                scene_->setCall("Bridge out!", 0);
                sound().effect("bridgehorn.wav");
                break;
            case Event::NextWord:
                showWord();
                break;
            case Event::Won:
                scene_->cheer(true);
                scene_->setCall("All across! You did it!", 0);
                sound().effect("bridgewin.wav");
                Timer2.start(kEndMs);
                break;
            case Event::Lost:
                scene_->cheer(false);
                scene_->setCall("Out of trucks!", 0);
                sound().effect("bridgelose.wav");
                Timer2.start(kEndMs);
                break;
            case Event::Spawned:
                break;
        }
    }
    showHud();
    scene_->step();
}

void BridgeOutGame::dropped(int id, int gap, double riverX) {
    switch (game_.place(id, gap, riverX)) {
        case Drop::Right:
            scene_->locked(gap);
            sound().effect("bridgelock.wav", SoundMode::Overlap);
            if (game_.phase() == Phase::Crossing) {
                scene_->crossing();
                scene_->setCall(QString("Fixed! Road bonus +%1").arg(game_.lastBonus()), 0);
                sound().effect("bridgecross.wav", SoundMode::Overlap);
            }
            break;
        case Drop::Wrong:
            scene_->splash(riverX, game_.plank(id) ? game_.plank(id)->lane : 1);
            sound().effect("bridgesplash.wav", SoundMode::Overlap);
            break;
        case Drop::Missed:
            // Let go beside the bridge: it only drops back into the river.
            scene_->splash(riverX, game_.plank(id) ? game_.plank(id)->lane : 1);
            break;
        case Drop::Ignored:
            break;
    }
    showHud();
}

void BridgeOutGame::endOfGame() {
    SharedState& s = Shared();
    s.Score = game_.score();
    if (game_.phase() == Phase::Lost) {
        frame_.askTryAgain(toQ(lostText(game_.missed())), kTitle);
    } else if (s.Score > 0) {
        frame_.wonGame();
    } else {
        // Only a score above nothing goes on the table.
        frame_.askTryAgain(toQ(noPointsText(s.Score)), kTitle);
    }
}

void BridgeOutGame::showWord() {
    const SharedState& s = Shared();
    scene_->newWord();
    scene_->setCall(QString("Bridge %1 of %2").arg(game_.crossed() + 1).arg(kWordsToWin), kReadyMs);
    // The meaning is the clue; a list without meanings gets the task instead.
    const bool clue = s.WordsOnly == kFalse && !s.TheMeaning.empty();
    Label1->setText(clue ? toQ(s.TheMeaning)
                         : QString("Drag the letters from the river into the gaps!"));
    showHud();
    resizeEvent(nullptr);
}

void BridgeOutGame::showHud() {
    const QString score = "Score: " + toQ(NumText(game_.score()));
    const QString road = QString("Road: %1 m").arg(Int(game_.road() - game_.truck()));
    const QString bridges = QString("Bridges: %1 of %2").arg(game_.crossed()).arg(kWordsToWin);
    const QString trucks = QString("Trucks: %1").arg(game_.trucksLeft());
    bool changed = false;
    for (auto [label, text] : {std::pair{ScoreLabel, score},
                               {RoadLabel, road},
                               {BridgeLabel, bridges},
                               {TrucksLabel, trucks}}) {
        if (label->text() == text) continue;
        label->setText(text);
        changed = true;
    }
    if (changed) resizeEvent(nullptr);
}

void BridgeOutGame::resizeEvent(QResizeEvent*) {
    const int top = frame_.menuHeight();
    scene_->setGeometry(0, top, width(), height() - top);
    const int H = scene_->height(), W = width();
    // The clue on the sign, shrunk until it fits.
    const QRect sign = scene_->clueRect().translated(0, top);
    const QRect box = sign.adjusted(sign.width() / 12, sign.height() * 18 / 100, -sign.width() / 12,
                                    -sign.height() * 14 / 100);
    QFont f = scene::boldFont(box.height() * 42 / 100);
    Label1->setFont(scene::shrinkToFit(f, box, Label1->text()));
    Label1->setGeometry(box);
    // The plates: score and road on the left, bridges and trucks on the right.
    const int plateW = W * 19 / 100;
    QFont pf = scene::boldFont(H * 30 / 1000);
    for (QLabel* l : {ScoreLabel, RoadLabel, BridgeLabel, TrucksLabel})
        pf = scene::shrinkToWidth(pf, plateW - 36, l->text());
    const int plateH = QFontMetrics(pf).height() + 12;
    const int y1 = top + H * 2 / 100, y2 = y1 + plateH + H / 100;
    const int left = W * 15 / 1000, right = W - left - plateW;
    for (auto [l, x, y] : {std::tuple{ScoreLabel, left, y1},
                           {RoadLabel, left, y2},
                           {BridgeLabel, right, y1},
                           {TrucksLabel, right, y2}}) {
        l->setFont(pf);
        l->setGeometry(x, y, plateW, plateH);
    }
}

WM_REGISTER_GAME("Bridge Out", BridgeOutGame, "images/bridgeout-valley.svg",
                 "images/bridgeout-sprites.svg", "sounds/bridgego.wav", "sounds/bridgelock.wav",
                 "sounds/bridgesplash.wav", "sounds/bridgehorn.wav", "sounds/bridgecross.wav",
                 "sounds/bridgewin.wav", "sounds/bridgelose.wav", "sounds/bridgeout.mid");

}  // namespace wm
