#include "games/puzzles/code_breaker/code_breaker_screen.h"

#include <QKeyEvent>
#include <QMenuBar>
#include <QMouseEvent>
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

using namespace code_breaker;

namespace {
constexpr int kReadyMs = 1500;  // the code lies on the desk before the clock starts
constexpr int kEndMs = 2600;    // the ending's wave, before the boxes
constexpr int kPassingMs = 1600;
constexpr int kWarnSeconds = 10;  // the clock turns red and ticks

const char* kHelp = "Click a code letter, then type the letter it stands for.";
const char* kHud = "QLabel { color: #ffe9b0; background: transparent; padding: 2px 16px; }";
const char* kHudWarn = "QLabel { color: #ff6b5e; background: transparent; padding: 2px 16px; }";

}  // namespace

CodeBreaker::CodeBreaker(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames(), [this] { NewGame(); }),
      Timer1(frame_.timer("Timer1", 1000, [this] { clockTick(); })),
      Timer2(frame_.timer("Timer2", Ticker::kFrameMs, [this] { frameTick(); })),
      Timer3(frame_.pauseTimer("Timer3", kReadyMs)),
      Timer4(frame_.timer(
          "Timer4", kPassingMs,
          [this] {
              scene_->banner({});
              Label4->show();
          },
          true)) {
    setWindowTitle("Code Breaker");
    setFocusPolicy(Qt::StrongFocus);
    frame_.setMusic(MusicKind::Shared, "codebreaker.mid");
    frame_.setForeign([this](const QString& c) {
        const std::string b = fromQ(c);
        if (!b.empty()) typeLetter(b[0]);
    });
    // The code turns green (or red) behind the end boxes.
    frame_.runOnThroughEnd("Timer2");

    scene_ = new CodeScene(game_, this);
    frame_.menuBar()->raise();

    Label1 = new QLabel(this);
    Label1->setObjectName("Label1");
    Label1->setWordWrap(true);
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setStyleSheet("QLabel { color: white; background: transparent; padding: 6px 18px; }");
    Label2 = new QLabel(this);
    Label2->setObjectName("Label2");
    Label3 = new QLabel(this);
    Label3->setObjectName("Label3");
    Label3->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QLabel* l : {Label2, Label3}) l->setStyleSheet(kHud);
    Label4 = new QLabel(kHelp, this);
    Label4->setObjectName("Label4");
    Label4->setAlignment(Qt::AlignCenter);
    Label4->setStyleSheet("QLabel { color: #fff3d6; background: transparent; }");
    for (QLabel* l : {Label1, Label2, Label3, Label4})
        l->setAttribute(Qt::WA_TransparentForMouseEvents);

    Command1 = MakeButton("Hint", this);
    Command1->setObjectName("Command1");
    Command1->setToolTip("Shows one letter of the code. It costs 30 seconds.");
    connect(Command1, &QPushButton::clicked, this, &CodeBreaker::useHint);
    Command2 = MakeButton("Clear", this);
    Command2->setObjectName("Command2");
    connect(Command2, &QPushButton::clicked, this, &CodeBreaker::clearLetter);
    for (QPushButton* b : {Command1, Command2}) b->setFocusPolicy(Qt::NoFocus);

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void CodeBreaker::NewGame() {
    SharedState& s = Shared();
    const bool ok = game_.start(s, TheRng());
    scene_->newCode();
    Label2->setText(QString("Level %1").arg(game_.level()));
    showClock();
    if (!ok) {
        frame_.refuse(kNoWords, windowTitle());
        return;
    }
    // The first word's meaning as a clue, where the list has one.
    const bool clue = s.WordsOnly == kFalse && !Trim(s.TheMeaning).empty();
    Label1->setText(clue ? toQ("Clue for the first word: " + s.TheMeaning) : QString());
    Label1->setVisible(clue);
    scene_->markClue(clue);
    fitClue();
    std::vector<QRect> panels{Label2->geometry(), Label3->geometry()};
    if (clue) panels.push_back(Label1->geometry());
    scene_->setPanels(panels);
    Label4->hide();
    Command1->setEnabled(false);
    Command2->setEnabled(false);
    moved();
    scene_->banner("Get ready!");
    setFocus();
    frame_.pauseThen(kReadyMs, [this] { begin(); });
}

void CodeBreaker::begin() {
    game_.begin();
    scene_->banner({});
    Label4->setText(kHelp);
    Label4->show();
    Command2->setEnabled(true);
    Command1->setEnabled(game_.canHint());
    Timer1.start();
    frame_.startMusic();
}

void CodeBreaker::moved() {
    scene_->step(Ticker::get().now());
    if (!Timer2.isActive()) Timer2.start();
}

void CodeBreaker::frameTick() {
    scene_->step(Ticker::get().now());
    if (!scene_->busy()) Timer2.stop();
}

void CodeBreaker::clockTick() {
    const bool out = game_.tick();
    showClock();
    Command1->setEnabled(game_.canHint());
    if (out) {
        timeUp();
        return;
    }
    if (game_.secondsLeft() <= kWarnSeconds) sound().effect("cb-tick.wav");
}

void CodeBreaker::showClock() {
    Label3->setText(toQ("Time: " + clockText(game_.secondsLeft())));
    Label3->setStyleSheet(game_.phase() == Phase::Playing && game_.secondsLeft() <= kWarnSeconds
                              ? kHudWarn
                              : kHud);
}

void CodeBreaker::passing(const QString& text, CodeScene::Mood mood) {
    Label4->hide();
    scene_->banner(text, mood);
    Timer4.start();
}

void CodeBreaker::typeLetter(char letter) {
    if (frame_.leaving()) return;
    const int to = game_.selectedSymbol();
    const Typed r = game_.type(letter);
    if (r == Typed::Ignored || r == Typed::Same) return;
    moved();
    switch (r) {
        case Typed::Locked:
            sound().effect("cb-wrong.wav");
            passing("That letter came from a hint.", CodeScene::Mood::Plain);
            return;
        case Typed::Taken:
            sound().effect("cb-wrong.wav");
            passing(toQ(std::string(1, fold(letter))) + " came from a hint: it stays where it is.",
                    CodeScene::Mood::Plain);
            return;
        default:
            break;
    }
    if (game_.movedFrom() >= 0) {
        scene_->letterMoved(game_.movedFrom(), to, fold(letter));
        sound().effect("cb-move.wav");
    } else {
        scene_->letterIn(to);
        sound().effect("cb-type.wav");
    }
    if (r == Typed::Won) {
        codeCracked();
    } else if (r == Typed::Filled) {
        scene_->shake();
        sound().effect("cb-wrong.wav");
        passing("Not quite! Some letters are wrong.", CodeScene::Mood::Bad);
    }
}

void CodeBreaker::clearLetter() {
    if (frame_.leaving() || !game_.clear()) return;
    moved();
    scene_->changed();
    sound().effect("cb-select.wav");
}

void CodeBreaker::useHint() {
    if (frame_.leaving()) return;
    const int sym = game_.hint(TheRng());
    if (sym < 0) return;
    moved();
    if (game_.movedFrom() >= 0) scene_->changed();
    scene_->hinted(sym);
    sound().effect("cb-hint.wav");
    showClock();
    Command1->setEnabled(game_.canHint());
    if (game_.phase() == Phase::Won) {
        codeCracked();
        return;
    }
    passing(QString("Hint: %1 seconds off the clock").arg(kHintCost), CodeScene::Mood::Plain);
}

void CodeBreaker::codeCracked() {
    Timer1.stop();
    Timer4.stop();
    Command1->setEnabled(false);
    Command2->setEnabled(false);
    Label4->hide();
    Shared().Score = game_.points();
    scene_->won();
    scene_->banner(QString("Code cracked! %1 points").arg(game_.points()), CodeScene::Mood::Good);
    sound().effect("cb-win.wav");
    frame_.pauseThen(kEndMs, [this] { frame_.wonGame(); });
}

void CodeBreaker::timeUp() {
    Timer1.stop();
    Timer4.stop();
    Command1->setEnabled(false);
    Command2->setEnabled(false);
    Label4->hide();
    moved();
    scene_->lost();
    scene_->banner("Time's up!", CodeScene::Mood::Bad);
    sound().effect("cb-lose.wav");
    const QString text = toQ(timeUpText(game_.words()));
    frame_.pauseThen(kEndMs, [this, text] { frame_.askTryAgain(text, "Time's up!"); });
}

void CodeBreaker::keyPressEvent(QKeyEvent* e) {
    const Phase phase = game_.phase();
    if (phase == Phase::Won || phase == Phase::Lost) return QWidget::keyPressEvent(e);
    bool went = false;
    switch (e->key()) {
        case Qt::Key_Left: went = game_.step(-1); break;
        case Qt::Key_Right: went = game_.step(1); break;
        case Qt::Key_Up: went = game_.stepLine(-1, scene_->layout()); break;
        case Qt::Key_Down: went = game_.stepLine(1, scene_->layout()); break;
        case Qt::Key_Backspace:
        case Qt::Key_Delete:
        case Qt::Key_Space: clearLetter(); return;
        default: {
            const std::string t = fromQ(e->text());
            if (t.size() == 1 && IsLetter(t[0])) return typeLetter(t[0]);
            return QWidget::keyPressEvent(e);
        }
    }
    if (went) scene_->changed();
}

void CodeBreaker::mousePressEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton || frame_.leaving()) return;
    const QPoint at = e->position().toPoint();
    setFocus();
    if (const char key = scene_->keyAt(at)) return typeLetter(key);
    if (game_.select(scene_->tileAt(at))) {
        sound().effect("cb-select.wav");
        scene_->changed();
    }
}

void CodeBreaker::fitClue() {
    if (Label1->text().isEmpty() || Label1->width() <= 0) return;
    // A long meaning takes a smaller type to stay inside its panel.
    for (int pt = 20; pt >= 8; --pt) {
        Label1->setFont(ScreenFont(pt, true));
        const int need = Label1->fontMetrics()
                             .boundingRect(QRect(0, 0, Label1->width() - 40, 10000),
                                           Qt::TextWordWrap, Label1->text())
                             .height();
        if (need <= Label1->height() - 14) break;
    }
}

void CodeBreaker::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height(), top = frame_.menuHeight();
    const double H = h - top;
    auto y = [&](double f) { return top + int(H * f); };
    scene_->setGeometry(0, 0, w, h);
    for (QLabel* l : {Label2, Label3}) l->setFont(ScreenFont(20, true));
    Label2->setGeometry(w / 30, y(0.015), w / 4, int(H * 0.06));
    Label3->setGeometry(w - w / 30 - w / 4, y(0.015), w / 4, int(H * 0.06));
    Label1->setGeometry(w / 10, y(0.09), w * 8 / 10, int(H * 0.12));
    fitClue();
    const QRect band(w / 8, y(0.705), w * 3 / 4, int(H * 0.055));
    Label4->setFont(ScreenFont(17, true));
    Label4->setGeometry(band);
    const int bx = w * 3 / 4 + w / 50, bw = w / 5;
    Command1->setGeometry(bx, y(0.79), bw, int(H * 0.085));
    Command2->setGeometry(bx, y(0.895), bw, int(H * 0.085));
    for (QPushButton* b : {Command1, Command2}) b->setFont(ScreenFont(18, true));
    scene_->setAreas(QRect(w / 25, y(0.215), w - 2 * w / 25, int(H * 0.485)), band,
                     QRect(w / 25, y(0.785), bx - w / 50 - w / 25, int(H * 0.2)));
    std::vector<QRect> panels{Label2->geometry(), Label3->geometry()};
    if (Label1->isVisibleTo(this)) panels.push_back(Label1->geometry());
    scene_->setPanels(panels);
}

WM_REGISTER_GAME("Code Breaker", CodeBreaker, "images/codebreaker-back.svg",
                 "images/codebreaker-art.svg", "sounds/cb-select.wav", "sounds/cb-type.wav",
                 "sounds/cb-move.wav", "sounds/cb-hint.wav", "sounds/cb-wrong.wav",
                 "sounds/cb-tick.wav", "sounds/cb-win.wav", "sounds/cb-lose.wav",
                 "sounds/codebreaker.mid");

}  // namespace wm
