#include "games/action/toad_race/toad_race_screen.h"

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
#include "shell/style.h"

namespace wm {

using namespace toad_race;

namespace {
const char* kNoWords = "This list has no words to race with. Please choose another list.";
const char* kBoxStyle =
    "QLineEdit { background: #fffdf2; color: #1d3a10; border: 4px solid %1;"
    " border-radius: 16px; padding: 2px 16px; selection-background-color: #f6c945;"
    " selection-color: #1d3a10; }";
const char* kPlateStyle =
    "color: #fff8e0; background: rgba(52, 84, 28, 200); border: 2px solid rgba(255, 240, 190, 120);"
    " border-radius: 14px; padding: 4px 18px;";

}  // namespace

ToadRace::ToadRace(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames{}, [this] { SetupGame(); }),
      Timer1(frame_.timer("Timer1", Ticker::kFrameMs, [this] { raceTick(); })),
      Timer2(frame_.timer(
          "Timer2", kReadyMs, [this] { go(); }, true)),
      Timer3(frame_.timer(
          "Timer3", Pond::kHopMs, [this] { afterHome(); }, true)) {
    setWindowTitle("Toad Race");
    frame_.setMusic(MusicKind::Shared, "toadrace.mid");
    frame_.setForeign([this](const QString& c) {
        Text1->insert(c);
        Text1->setFocus();
    });
    // The word stands on the sign: it may be heard.
    frame_.setSayIt(ShownWord);

    pond_ = new Pond(this);
    Label1 = new QLabel(this);
    Label1->setObjectName("Label1");
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setStyleSheet("color: #4a2306; background: transparent;");
    Label2 = new QLabel(this);
    Label2->setObjectName("Label2");
    Label2->setAlignment(Qt::AlignCenter);
    Label2->setWordWrap(true);
    Label2->setStyleSheet("color: #5e3a14; background: transparent;");
    Label3 = new QLabel("Type the word, then press Enter", this);
    Label3->setObjectName("Label3");
    Label3->setAlignment(Qt::AlignCenter);
    Label3->setStyleSheet("color: #fffbe6; background: transparent;");
    LevelLabel = new QLabel(this);
    LevelLabel->setObjectName("LevelLabel");
    PadsLabel = new QLabel(this);
    PadsLabel->setObjectName("PadsLabel");
    for (QLabel* l : {LevelLabel, PadsLabel}) {
        l->setAlignment(Qt::AlignCenter);
        l->setStyleSheet(kPlateStyle);
    }
    Text1 = new QLineEdit(this);
    Text1->setObjectName("Text1");
    Text1->setAlignment(Qt::AlignCenter);
    Text1->setPlaceholderText("type here");
    markWrong(false);
    connect(Text1, &QLineEdit::returnPressed, this, [this] { enterWord(); });
    connect(Text1, &QLineEdit::textEdited, this, [this] { markWrong(false); });
    setFocusProxy(Text1);

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void ToadRace::SetupGame() {
    SharedState& s = Shared();
    endStage_ = 0;
    goAt_ = -1;
    pond_->reset();
    Text1->clear();
    Text1->setReadOnly(true);
    markWrong(false);
    if (!race_.start(s, TheRng())) {
        frame_.refuse(kNoWords, "Toad Race");
        return;
    }
    frame_.startMusic();
    showWord();
    showProgress();
    pond_->setCall("Ready...");
    sound().effect("toadready.wav");
    lastTick_ = Ticker::get().now();
    Timer1.start();
    Timer2.start();
    Text1->setFocus();
}

void ToadRace::go() {
    race_.go();
    goAt_ = Ticker::get().now();
    lastTick_ = goAt_;
    pond_->setCall("Go!");
    sound().effect("toadgo.wav");
    Text1->setReadOnly(false);
    Text1->setFocus();
}

void ToadRace::raceTick() {
    const qint64 t = Ticker::get().now();
    const int ms = int(t - lastTick_);
    lastTick_ = t;
    for (const Hop& h : race_.advance(ms, TheRng())) {
        pond_->hop(h.toad, h.pad);
        sound().effect("toadplop.wav", SoundMode::Overlap);
    }
    if (goAt_ >= 0 && t - goAt_ >= kGoShownMs && pond_->call() == "Go!") pond_->setCall({});
    if (race_.over() && endStage_ == 0) homeRun();
    pond_->step();
}

void ToadRace::enterWord() {
    switch (race_.submit(Shared(), fromQ(Text1->text()), TheRng())) {
        case Typed::Ignored:
            return;
        case Typed::Wrong:
            // The toad sits; the word stands. What was typed stays, marked, to be put right.
            pond_->shake(0);
            sound().effect("toadcroak.wav");
            markWrong(true);
            Text1->selectAll();
            return;
        case Typed::Hop:
        case Typed::Home:
            pond_->hop(0, race_.pad(0));
            sound().effect("toadhop.wav", SoundMode::Overlap);
            Text1->clear();
            showProgress();
            if (race_.over()) {
                homeRun();
            } else {
                showWord();
            }
            return;
    }
}

void ToadRace::homeRun() {
    endStage_ = 1;
    Text1->setReadOnly(true);
    pond_->setCall({});
    // The last hop lands first.
    Timer3.start(Pond::kHopMs);
}

void ToadRace::afterHome() {
    const int winner = race_.winner();
    if (endStage_ == 1) {
        endStage_ = 2;
        if (winner == 0) {
            pond_->cheer(0, "You win!");
            sound().effect("toadwin.wav");
        } else {
            pond_->cheer(winner, QString("%1 wins!").arg(toadName(winner)));
            sound().effect("toadlose.wav");
        }
        Timer3.start(kCheerMs);
        return;
    }
    // runs on behind the end boxes: Timer1 (the winner bouncing in its sparkles), once the
    // frame can keep a named timer going there; until then the pond stands still behind them.
    SharedState& s = Shared();
    if (winner == 0) {
        s.Score = race_.score();
        frame_.wonGame();
    } else {
        frame_.askTryAgain(toQ(lostText(toadName(winner), s.TheWord)), "Toad Race");
    }
}

void ToadRace::showWord() {
    const SharedState& s = Shared();
    Label1->setText(toQ(s.TheWord));
    Label2->setText(toQ(s.TheMeaning));
    Label2->setVisible(s.WordsOnly == kFalse && !s.TheMeaning.empty());
    resizeEvent(nullptr);
}

void ToadRace::showProgress() {
    LevelLabel->setText(QString("Level %1").arg(race_.level()));
    PadsLabel->setText(QString("Pads to go: %1").arg(kPads - race_.pad(0)));
    resizeEvent(nullptr);
}

void ToadRace::markWrong(bool wrong) {
    const QString colour = wrong ? "#d8402c" : "#5da03a";
    if (Text1->property("edge").toString() == colour) return;
    Text1->setProperty("edge", colour);
    Text1->setStyleSheet(QString(kBoxStyle).arg(colour));
}

void ToadRace::resizeEvent(QResizeEvent*) {
    pond_->setGeometry(frame_.playArea());
    const int top = pond_->y();
    const QRect sign = pond_->signRect().translated(0, top);
    const int h = std::max(1, sign.height());
    // The word on the board's upper part, the meaning under it; both shrink to fit.
    const QRect wordBox(sign.left() + sign.width() / 14, sign.top() + h * 12 / 100,
                        sign.width() * 12 / 14, h * 44 / 100);
    QFont f = scene::boldFont(wordBox.height() * 78 / 100);
    const QString word = Label1->text().isEmpty() ? QString("W") : Label1->text();
    Label1->setFont(scene::shrinkToWidth(f, wordBox.width() - 8, word));
    Label1->setGeometry(wordBox);
    const QRect meaningBox(wordBox.left(), wordBox.bottom() + 1, wordBox.width(), h * 30 / 100);
    QFont m("DejaVu Sans");
    m.setPixelSize(std::max(8, meaningBox.height() * 40 / 100));
    Label2->setFont(scene::shrinkToFit(m, meaningBox.adjusted(6, 0, -6, 0), Label2->text()));
    Label2->setGeometry(meaningBox);

    const QRect bank = pond_->bankRect().translated(0, top);
    const int bh = bank.height();
    Label3->setFont(scene::boldFont(std::max(10, bh * 15 / 100)));
    Label3->setGeometry(bank.left(), bank.top() + bh * 4 / 100, bank.width(), bh * 22 / 100);
    const int boxW = width() * 44 / 100, boxH = bh * 40 / 100;
    Text1->setFont(scene::boldFont(boxH * 50 / 100));
    Text1->setGeometry((width() - boxW) / 2, bank.top() + bh * 30 / 100, boxW, boxH);
    for (QLabel* l : {LevelLabel, PadsLabel}) {
        l->setFont(scene::boldFont(std::max(10, bh * 14 / 100)));
        l->adjustSize();
    }
    const int y = Text1->y() + (boxH - LevelLabel->height()) / 2;
    LevelLabel->move(width() * 4 / 100, y);
    PadsLabel->move(width() * 96 / 100 - PadsLabel->width(), y);
}

WM_REGISTER_GAME("Toad Race", ToadRace, "images/toadrace-pond.svg", "images/toadrace-sprites.svg",
                 "sounds/toadready.wav", "sounds/toadgo.wav", "sounds/toadhop.wav",
                 "sounds/toadplop.wav", "sounds/toadcroak.wav", "sounds/toadwin.wav",
                 "sounds/toadlose.wav", "sounds/toadrace.mid");

}  // namespace wm
