#include "games/action/jailbreak/jailbreak_screen.h"

#include <QHBoxLayout>
#include <QTimer>
#include <QVBoxLayout>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"

namespace wm {

namespace jb = jailbreak;

namespace {
constexpr int kFrameMs = 40;
constexpr int kReadyMs = 2000;
constexpr int kCaughtMs = 1600;
constexpr int kLastLockMs = 700;

const char* kChip =
    "color: #ffe9a8; background: rgba(20, 22, 36, 210); border: 2px solid #b88a2a;"
    " border-radius: 12px; padding: 4px 16px;";

QString wonWithoutPoints(double score) {
    return QString("You escaped from all three cells, but your score is %1, so it cannot go on the "
                   "high score table. Would you like to try again?")
        .arg(toQ(NumText(score)));
}
}  // namespace

JailBreakForm::JailBreakForm(QWidget* parent)
    : Backdrop("images/jail-back.svg", parent),
      frame_(this, GameMenuNames(), [this] { NewGame(); }),
      Timer1(frame_.timer("Timer1", jb::kStepMs, [this] { guardTick(); })),
      Timer2(frame_.timer(
          "Timer2", kReadyMs,
          [this] {
              phase_ = Phase::Playing;
              scene_->setBanner({});
              Timer1.start();
          },
          true)),
      Timer3(frame_.timer(
          "Timer3", kCaughtMs,
          [this] {
              phase_ = Phase::Over;
              frame_.askTryAgain(toQ(jb::caughtText(jail_)), "Caught!");
          },
          true)),
      Timer4(frame_.timer(
          "Timer4", kLastLockMs,
          [this] {
              phase_ = Phase::Escaping;
              scene_->startEscape();
              sound().effect("jaildoor.wav");
          },
          true)),
      Anim(frame_.timer("Anim", kFrameMs, [this] { animTick(); })) {
    setWindowTitle("Jailbreak");
    frame_.setMusic(MusicKind::Shared, "jailbreak.mid");
    frame_.setForeign([this](const QString& c) {
        Text1->insert(c);
        Text1->setFocus();
    });

    scene_ = new JailScene(this);
    scene_->setJail(&jail_);
    connect(scene_, &JailScene::lockClicked, this, &JailBreakForm::pickLock);

    CellLabel = new QLabel(this);
    CellLabel->setObjectName("CellLabel");
    ScoreLabel = new QLabel(this);
    ScoreLabel->setObjectName("ScoreLabel");
    GuardLabel = new QLabel(this);
    GuardLabel->setObjectName("GuardLabel");
    for (QLabel* l : {CellLabel, ScoreLabel, GuardLabel}) {
        l->setFont(ScreenFont(15, true));
        l->setStyleSheet(kChip);
        l->setAlignment(Qt::AlignCenter);
    }

    clue_ = new Panel(this);
    auto* col = new QVBoxLayout(clue_);
    col->setContentsMargins(22, 10, 22, 10);
    col->setSpacing(2);
    Label1 = new QLabel(clue_);
    Label1->setObjectName("Label1");
    Label1->setFont(ScreenFont(12, true));
    Label1->setStyleSheet("color: #8a5a10;");
    Label2 = new QLabel(clue_);
    Label2->setObjectName("Label2");
    Label2->setWordWrap(true);
    Label2->setFont(ScreenFont(16, true));
    Label2->setStyleSheet("color: #1a2850;");
    Label2->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    Label3 = new QLabel(clue_);
    Label3->setObjectName("Label3");
    Label3->setWordWrap(true);
    Label3->setFont(ScreenFont(13, true));
    Label3->setStyleSheet("color: #2d7a2d;");
    col->addWidget(Label1);
    col->addWidget(Label2, 1);
    col->addWidget(Label3);

    typing_ = new Panel(this);
    auto* right = new QVBoxLayout(typing_);
    right->setContentsMargins(20, 10, 20, 12);
    right->setSpacing(6);
    Label4 = new QLabel("Type the word, then press Enter:", typing_);
    Label4->setObjectName("Label4");
    Label4->setWordWrap(true);
    Label4->setFont(ScreenFont(12, true));
    Label4->setStyleSheet("color: #1a2850;");
    Text1 = new QLineEdit(typing_);
    Text1->setObjectName("Text1");
    Text1->setMaxLength(60);
    Text1->setFont(ScreenFont(20, true));
    Text1->setStyleSheet(
        "QLineEdit { color: #12325e; background: #fffdf2; border: 3px solid #d9a520;"
        " border-radius: 10px; padding: 2px 10px; }");
    connect(Text1, &QLineEdit::returnPressed, this, &JailBreakForm::enterWord);
    Command1 = MakeButton("Hint", typing_);
    Command1->setObjectName("Command1");
    Command1->setFocusPolicy(Qt::NoFocus);
    connect(Command1, &QPushButton::clicked, this, &JailBreakForm::hint);
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(Text1, 1);
    row->addWidget(Command1);
    right->addWidget(Label4);
    right->addLayout(row);

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void JailBreakForm::NewGame() {
    SharedState& s = Shared();
    if (!jb::newGame(s, jail_, TheRng())) {
        frame_.refuse(jb::kTooFewWords, windowTitle());
        return;
    }
    frame_.startMusic();
    startCell();
}

void JailBreakForm::startCell() {
    scene_->resetCell();
    scene_->setBanner(QString("Cell %1 of %2").arg(jail_.cell).arg(jb::kCells), "Get ready...");
    phase_ = Phase::Ready;
    Text1->clear();
    showHud();
    showPanel();
    Anim.start();
    Timer2.start();
    Text1->setFocus();
}

void JailBreakForm::guardTick() {
    if (phase_ != Phase::Playing) return;
    if (jb::guardStep(jail_)) {
        caughtNow();
        return;
    }
    sound().effect("footstep.wav", SoundMode::NoInterrupt);
    showHud();
}

void JailBreakForm::enterWord() {
    if (frame_.leaving() || phase_ != Phase::Playing) return;
    SharedState& s = Shared();
    const jb::Typed t = jb::typeWord(s, jail_, fromQ(Text1->text()));
    switch (t.result) {
        case jb::Result::Ignored:
            return;
        case jb::Result::Opened:
        case jb::Result::CellCleared: {
            sound().effect("unlock.wav");
            scene_->springLock(t.lock);
            const QPointF c = JailScene::lockCentre(t.lock, int(jail_.locks.size()));
            scene_->popPoints(c + QPointF(0, -30), QString("+%1").arg(t.points), true);
            if (t.result == jb::Result::CellCleared) {
                phase_ = Phase::Opening;
                Timer1.stop();
                scene_->setBanner("Escaped!", QString("+%1 for the guard's %2 steps to go")
                                                  .arg(t.cellBonus)
                                                  .arg(jb::stepsToGo(jail_)));
                Timer4.start();
            }
            break;
        }
        case jb::Result::Wrong:
        case jb::Result::Caught:
            sound().effect("alarm.wav");
            scene_->flashAlarm();
            scene_->popPoints(QPointF(886, 160), QString("-%1").arg(jb::kWrongCost), false);
            if (t.result == jb::Result::Caught) caughtNow();
            break;
    }
    Text1->clear();
    showHud();
    showPanel();
}

void JailBreakForm::caughtNow() {
    phase_ = Phase::Caught;
    Timer1.stop();
    scene_->setCaught(true);
    scene_->setBanner("Caught!");
    sound().effect("whistle.wav");
    showHud();
    Timer3.start();
}

void JailBreakForm::hint() {
    if (frame_.leaving() || phase_ != Phase::Playing) return;
    const bool first = jail_.selected >= 0 && !jail_.locks[jail_.selected].hinted;
    if (jb::hint(Shared(), jail_, jail_.selected)) {
        if (first) sound().effect("ding.wav");
        showHud();
        showPanel();
    }
    Text1->setFocus();
}

void JailBreakForm::pickLock(int lock) {
    if (frame_.leaving()) return;
    jb::select(jail_, lock);
    if (jail_.selected >= 0) {
        Shared().TheWord = jail_.locks[jail_.selected].word;
        Shared().TheMeaning = jail_.locks[jail_.selected].meaning;
    }
    showPanel();
    scene_->update();
    Text1->setFocus();
}

void JailBreakForm::animTick() {
    scene_->advance(kFrameMs);
    if (phase_ == Phase::Escaping && scene_->escapeDone()) escapeFinished();
}

void JailBreakForm::escapeFinished() {
    SharedState& s = Shared();
    if (jail_.cell < jb::kCells) {
        if (!jb::nextCell(s, jail_, TheRng())) {
            phase_ = Phase::Over;
            frame_.refuse(jb::kTooFewWords, windowTitle());
            return;
        }
        startCell();
        return;
    }
    Anim.stop();
    scene_->setBanner("You broke out!");
    sound().effect("cheer.wav");
    if (s.Score <= 0) {
        // Only a score above nothing goes on the table.
        frame_.askTryAgain(wonWithoutPoints(s.Score), "Escaped!");
        return;
    }
    frame_.wonGame();
}

void JailBreakForm::showHud() {
    const SharedState& s = Shared();
    CellLabel->setText(QString("Cell %1 of %2").arg(std::max(1, jail_.cell)).arg(jb::kCells));
    ScoreLabel->setText("Score: " + frame_.scoreText(s.Score));
    const int togo = jb::stepsToGo(jail_);
    GuardLabel->setText(togo == 0   ? QString("Guard: at the door!")
                        : togo == 1 ? QString("Guard: 1 step away")
                                    : QString("Guard: %1 steps away").arg(togo));
    for (QLabel* l : {CellLabel, ScoreLabel, GuardLabel}) l->adjustSize();
    resizeEvent(nullptr);
}

void JailBreakForm::showPanel() {
    const int sel = jail_.selected;
    if (sel < 0 || sel >= int(jail_.locks.size())) {
        Label1->setText(jail_.locks.empty() ? QString() : QString("All the locks are open!"));
        Label2->clear();
        Label3->clear();
        return;
    }
    const jb::Lock& l = jail_.locks[sel];
    Label1->setText(QString("Lock %1 of %2 says:").arg(sel + 1).arg(jail_.locks.size()));
    Label2->setText(toQ(l.meaning));
    if (l.hinted)
        Label3->setText(toQ(jb::hintText(UCase(Left(Trim(l.word), 1)))));
    else
        Label3->setText(QString("Stuck? Hint shows the first letter (-%1).").arg(jb::kHintCost));
}

void JailBreakForm::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height();
    const int menuH = frame_.menuHeight();
    const int gap = std::max(6, h / 90);
    const int top = menuH + gap;
    CellLabel->move(w / 40, top);
    ScoreLabel->move((w - ScoreLabel->width()) / 2, top);
    GuardLabel->move(w - w / 40 - GuardLabel->width(), top);
    const int hudBottom = top + std::max({CellLabel->height(), ScoreLabel->height(), 20});
    const int panelH = std::max(120, h / 5);
    const int panelTop = h - panelH - gap;
    scene_->setGeometry(0, hudBottom + gap, w, std::max(40, panelTop - hudBottom - 2 * gap));
    const int clueW = (w - 3 * (w / 40)) * 62 / 100;
    clue_->setGeometry(w / 40, panelTop, clueW, panelH);
    typing_->setGeometry(clue_->geometry().right() + w / 40, panelTop,
                         w - clue_->geometry().right() - 2 * (w / 40), panelH);
}

WM_REGISTER_GAME("Jailbreak", JailBreakForm, "images/jail-back.svg", "images/jail-scene.svg",
                 "images/jail-sprites.svg", "sounds/unlock.wav", "sounds/alarm.wav",
                 "sounds/footstep.wav", "sounds/jaildoor.wav", "sounds/whistle.wav",
                 "sounds/ding.wav", "sounds/cheer.wav", "sounds/jailbreak.mid");

}  // namespace wm
