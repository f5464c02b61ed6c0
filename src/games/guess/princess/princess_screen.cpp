#include "games/guess/princess/princess_screen.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>

#include "core/rng.h"
#include "core/shared_state.h"
#include "platform/scene_kit.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

using namespace princess;
using scene::clamp01;
using scene::easeInOut;
using scene::lerp;

namespace {
// The animation's times.
constexpr double kFirstPause = 1.6;  // seconds before the first word's stones can be clicked
constexpr double kBetweenWords = 1.0;
constexpr double kRiseMs = 450;  // a stone rising into its plank
constexpr double kSplashMs = 650;
constexpr double kStirMs = 900;    // the dragon twitching at a splash
constexpr double kNotchMs = 1200;  // the bridge coming down a notch
constexpr double kSpelledSecs = 1.8;
constexpr double kCrossSecs = 4.0;  // over the bridge and in at the gate
constexpr double kWokenSecs = 3.0;

const char* kHudStyle =
    "QLabel { color: #fff8e1; background: rgba(52, 30, 84, 205); border: 2px solid"
    " rgba(255, 222, 140, 200); border-radius: 12px; padding: 4px 14px; }";
const char* kPanelStyle =
    "QLabel { color: #4a2a0c; background: rgba(255, 246, 222, 236); border: 3px solid #c89a4a;"
    " border-radius: 16px; padding: 4px 16px; }";

// The meaning is the clue when the pupil asked for it and the list has one.
bool clueShown() {
    const SharedState& s = Shared();
    return s.GameOptionOn != kFalse && s.WordsOnly == kFalse && !s.TheMeaning.empty();
}
}  // namespace

qint64 frmPrincess::nowMs() const {
    return Ticker::get().now() - born_;
}

frmPrincess::frmPrincess(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames(), [this] { NewGame(); }),
      Timer1(frame_.timer("Timer1", Ticker::kFrameMs, [this] { animate(); })) {
    setWindowTitle("Princess");
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    frame_.setMusic(MusicKind::Shared, "princess.mid");
    // The letters stand on the stones for all to see: hearing the word helps to spell it.
    frame_.setSayIt([] { return ShownWord(); });

    auto label = [this](const char* name, const char* style, int points) {
        auto* l = new QLabel(this);
        l->setObjectName(name);
        l->setFont(ScreenFont(points, true));
        l->setStyleSheet(style);
        l->setAlignment(Qt::AlignCenter);
        l->setAttribute(Qt::WA_TransparentForMouseEvents);
        return l;
    };
    WordLabel = label("WordLabel", kHudStyle, 16);
    ScoreLabel = label("ScoreLabel", kHudStyle, 16);
    MeterLabel = label("MeterLabel", kHudStyle, 14);
    MeaningLabel = label("MeaningLabel", kPanelStyle, 18);
    MeaningLabel->setWordWrap(true);
    ReadyLabel = label("ReadyLabel", kHudStyle, 30);
    ReadyLabel->hide();

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void frmPrincess::NewGame() {
    phase_ = Phase::Idle;
    if (!game_.start(Shared(), TheRng())) {
        frame_.refuse(kNoWord, windowTitle());
        return;
    }
    bridgeFrom_ = bridgeTo_ = 0;
    frame_.startMusic();
    startWord(true);
    Timer1.start();
    setFocus();
}

// A word begins: its stones in the moat, empty places on the bank, and a short pause in which
// clicks wait.
void frmPrincess::startWord(bool first) {
    firstWord_ = first;
    risenAt_.assign(game_.stones(), -1);
    splashStone_ = -1;
    ReadyLabel->setText(
        first ? "Get ready!" : QString("Word %1 of %2").arg(game_.wordNumber()).arg(game_.words()));
    ReadyLabel->show();
    setPhase(Phase::Arrive);
    showMeaning(false);
    showHud();
    frame_.refreshSayIt();
    updateView(nowMs());
    drawn_ = QRegion(rect());
    update();
}

void frmPrincess::setPhase(Phase phase) {
    phase_ = phase;
    phaseAt_ = nowMs();
}

QRect frmPrincess::stoneRect(int i) const {
    return picture_.toScreen().mapRect(PrincessPicture::stoneRect(i, game_.stones())).toRect();
}

void frmPrincess::pickStone(int i) {
    if (frame_.leaving() || phase_ != Phase::Play) return;
    SharedState& s = Shared();
    const qint64 now = nowMs();
    const Pick result = game_.pick(s, i);
    switch (result) {
        case Pick::Ignored:
            return;
        case Pick::Right:
            sound().effect("pr-step.wav");
            risenAt_[i] = now;
            break;
        case Pick::Wrong:
            sound().effect("pr-splash.wav");
            splashStone_ = i;
            splashAt_ = now;
            break;
        case Pick::Spelled:
        case Pick::Crossed:
            risenAt_[i] = now;
            sound().effect("pr-bridge.wav");
            bridgeFrom_ = double(game_.lowered() - 1) / game_.words();
            bridgeTo_ = double(game_.lowered()) / game_.words();
            bridgeAt_ = now + qint64(kRiseMs);  // once the last plank is down
            setPhase(Phase::Spelled);
            break;
        case Pick::Woke:
            sound().effect("pr-roar.wav");
            splashStone_ = i;
            splashAt_ = now;
            setPhase(Phase::Woken);
            showMeaning(true);
            break;
    }
    showHud();
}

double frmPrincess::bridgeAt(qint64 now) const {
    return lerp(bridgeFrom_, bridgeTo_, easeInOut((now - bridgeAt_) / kNotchMs));
}

void frmPrincess::animate() {
    const qint64 now = nowMs();
    const double t = (now - phaseAt_) / 1000.0;
    switch (phase_) {
        case Phase::Arrive:
            if (t >= (firstWord_ ? kFirstPause : kBetweenWords)) {
                ReadyLabel->hide();
                setPhase(Phase::Play);
            }
            break;
        case Phase::Spelled:
            if (t >= kSpelledSecs) {
                if (game_.lowered() >= game_.words()) {
                    sound().effect("pr-win.wav");
                    setPhase(Phase::Crossing);
                    break;
                }
                if (!game_.nextWord(Shared(), TheRng())) {
                    frame_.refuse(kNoWord, windowTitle());
                    return;
                }
                startWord(false);
                return;
            }
            break;
        case Phase::Crossing:
            if (t >= kCrossSecs) {
                setPhase(Phase::Idle);
                frame_.wonGame();
                return;
            }
            break;
        case Phase::Woken:
            if (t >= kWokenSecs) {
                setPhase(Phase::Idle);
                frame_.askTryAgain(
                    toQ(lostText(Shared().TheWord)) + " Would you like to try again?",
                    "Try Again?");
                return;
            }
            break;
        default:
            break;
    }
    updateView(now);
    const QRegion busy = picture_.busyRegion(view_);
    update(drawn_ + busy);
    drawn_ = busy;
}

void frmPrincess::updateView(qint64 now) {
    View& v = view_;
    const double t = (now - phaseAt_) / 1000.0;
    v.time = now / 1000.0;
    v.word = game_.word();
    const int n = game_.stones();
    v.stones.resize(n);
    v.target.resize(n);
    v.rise.resize(n);
    for (int i = 0; i < n; ++i) {
        v.stones[i] = game_.stoneLetter(i);
        v.target[i] = game_.risenTo(i);
        v.rise[i] = risenAt_[i] < 0 ? 0 : clamp01((now - risenAt_[i]) / kRiseMs);
    }
    v.laid.resize(v.word.size());
    for (int p = 0; p < int(v.word.size()); ++p) v.laid[p] = game_.laid(p);
    v.reveal = phase_ == Phase::Woken;
    v.splashStone = splashStone_;
    v.splash = clamp01((now - splashAt_) / kSplashMs);
    v.marks = game_.splashes();
    v.stir = phase_ == Phase::Woken ? 0 : 1 - clamp01((now - splashAt_) / kStirMs);
    v.wake = phase_ == Phase::Woken ? clamp01(t / kWokenSecs) : 0;
    v.bridge = bridgeAt(now);
    v.walk = phase_ == Phase::Crossing ? clamp01(t / (kCrossSecs * 0.8)) : 0;
    v.cheer = phase_ == Phase::Crossing ? clamp01(t / kCrossSecs) : 0;
    if (phase_ == Phase::Spelled) {
        v.points = QString("+%1").arg(game_.lastPoints());
        v.pointsU = clamp01(t / kSpelledSecs);
    } else {
        v.pointsU = 1;
    }
}

void frmPrincess::showHud() {
    WordLabel->setText(QString("Word %1 of %2").arg(game_.wordNumber()).arg(game_.words()));
    ScoreLabel->setText(QString("Score: %1").arg(frame_.scoreText(Shared().Score)));
    MeterLabel->setText(QString("Splashes: %1 of %2").arg(game_.splashes()).arg(kSleepMarks));
    for (QLabel* l : {WordLabel, ScoreLabel, MeterLabel}) l->adjustSize();
    resizeEvent(nullptr);
}

void frmPrincess::showMeaning(bool decided) {
    const SharedState& s = Shared();
    if (clueShown() || (decided && s.WordsOnly == kFalse && !s.TheMeaning.empty()))
        MeaningLabel->setText(toQ("Meaning: " + s.TheMeaning));
    else
        MeaningLabel->setText("Click the stones in the right order to spell the word!");
    fitMeaning();
}

// The meaning takes the largest type that shows it whole.
void frmPrincess::fitMeaning() {
    const QRect r = MeaningLabel->contentsRect().adjusted(16, 4, -16, -4);
    for (int pt = 20; pt >= 7; --pt) {
        QFont f = ScreenFont(pt, true);
        const QRect need = QFontMetrics(f).boundingRect(r.adjusted(0, 0, 0, 10000),
                                                        Qt::TextWordWrap, MeaningLabel->text());
        MeaningLabel->setFont(f);
        if (need.height() <= r.height() && need.width() <= r.width()) break;
    }
}

void frmPrincess::paintEvent(QPaintEvent* event) {
    QPainter p(this);
    for (const QRect& r : event->region()) picture_.paintField(p, r);
    p.setClipRegion(event->region());
    picture_.paintActors(p, view_);
}

void frmPrincess::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    for (int i = 0; i < game_.stones(); ++i)
        if (game_.risenTo(i) < 0 && stoneRect(i).contains(event->position().toPoint())) {
            pickStone(i);
            return;
        }
}

void frmPrincess::keyPressEvent(QKeyEvent* event) {
    // A letter typed picks a stone that carries it, the right one first.
    const std::string bytes = fromQ(event->text());
    if (bytes.empty() || !onStone(bytes[0])) return QWidget::keyPressEvent(event);
    const int i = game_.stoneFor(bytes[0]);
    if (i >= 0) pickStone(i);
}

void frmPrincess::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height();
    if (w <= 0 || h <= 0) return;
    picture_.resize(size());
    const QTransform& m = picture_.toScreen();
    const int gap = std::max(6, h / 90);
    const QRect sky = m.mapRect(PrincessPicture::skyPanel()).toRect();
    const int hudTop = frame_.menuHeight() + h / 60;
    const int hudH = WordLabel->sizeHint().height();
    const int hudW = std::max(w / 7, ScoreLabel->sizeHint().width());
    WordLabel->setGeometry(sky.left(), hudTop, std::max(hudW, WordLabel->sizeHint().width()), hudH);
    ScoreLabel->setGeometry(WordLabel->geometry().right() + gap, hudTop, hudW, hudH);
    // The splash count and the dragon's sleep meter at the top right, clear of the dragon.
    const int marksW = hudH * 7;
    const int meterW = MeterLabel->sizeHint().width();
    const int right = std::min(w - gap, int(m.map(QPointF(kStageW - 16, 0)).x()));
    MeterLabel->setGeometry(right - marksW - gap - meterW, hudTop, meterW, hudH);
    view_.meter = m.inverted().mapRect(QRectF(right - marksW, hudTop, marksW, hudH));
    MeaningLabel->setGeometry(sky.left(), std::max(sky.top(), hudTop + hudH + gap), sky.width(),
                              sky.bottom() - std::max(sky.top(), hudTop + hudH + gap));
    ReadyLabel->adjustSize();
    const QPointF mid = m.map(PrincessPicture::readyPoint());
    ReadyLabel->move(int(mid.x()) - ReadyLabel->width() / 2,
                     int(mid.y()) - ReadyLabel->height() / 2);
    ReadyLabel->raise();
    fitMeaning();
    drawn_ = QRegion(rect());
    update();
}

WM_REGISTER_GAME("Princess", frmPrincess, "images/princess-castle.svg",
                 "images/princess-sprites.svg", "sounds/princess.mid", "sounds/pr-step.wav",
                 "sounds/pr-splash.wav", "sounds/pr-bridge.wav", "sounds/pr-win.wav",
                 "sounds/pr-roar.wav");

}  // namespace wm
