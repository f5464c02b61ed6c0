#include "games/guess/flying_cow/flying_cow_screen.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <cmath>

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

using namespace cow;
using scene::clamp01;
using scene::easeIn;
using scene::easeInOut;
using scene::easeOut;
using scene::lerp;

namespace {
// The animation's times, in seconds.
constexpr double kFlyIn = 1.8;       // the saucer arrives before the first word
constexpr double kBetweenWords = 0.8;
constexpr double kRungMs = 450;      // one rung up or down
constexpr double kFlashMs = 650;
constexpr double kWinSecs = 3.2;     // moo, wobble off and back
constexpr double kLostSecs = 3.0;    // up into the hatch and away
constexpr double kPi = 3.14159265358979;

const char* kPanelStyle =
    "background: rgba(28, 20, 66, 228); border: 2px solid rgba(255, 214, 150, 200);"
    " border-radius: 14px;";
const char* kHudStyle =
    "QLabel { color: #fff3c4; background: rgba(28, 20, 66, 200); border: 2px solid"
    " rgba(255, 214, 150, 170); border-radius: 12px; padding: 4px 14px; }";
const char* kBoxStyle =
    "QLabel { color: #2b1d5c; background: #fffdf4; border: 3px solid #e88a3c;"
    " border-bottom: 6px solid #c4612a; border-radius: 8px; }";
const char* kLostBoxStyle =
    "QLabel { color: #c62828; background: #ffe9e4; border: 3px solid #e57373;"
    " border-bottom: 6px solid #c62828; border-radius: 8px; }";

QString keyStyle(int state) {
    const char* top = state > 0 ? "#66bb6a" : state < 0 ? "#ef9a9a" : "#fffaf0";
    const char* bottom = state > 0 ? "#2e7d32" : state < 0 ? "#c05050" : "#f0d9b5";
    const char* ink = state == 0 ? "#3b2a1a" : "white";
    return QString("QPushButton { color: %3; border: 2px solid #7a4a22; border-radius: 10px;"
                   " background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %1, stop:1 %2); }"
                   " QPushButton:hover { border-color: #ffcc66; }"
                   " QPushButton:disabled { color: %3; }")
        .arg(top, bottom, ink);
}

qint64 nowMs() {
    return Ticker::get().now();
}

GameMenuNames menuNames() {
    return GameMenuNames{};  // RS, FLang, HS, mnuHowTo, Return
}
}  // namespace

CowForm::CowForm(QWidget* parent)
    : QWidget(parent),
      frame_(this, menuNames(), [this] { NewGame(); }),
      Timer1(frame_.timer("Timer1", Ticker::kFrameMs, [this] { animate(); })) {
    setWindowTitle("Flying Cow");
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    frame_.setMusic(MusicKind::Shared, "cowtune.mid");
    frame_.setForeign([this](const QString& c) {
        const std::string bytes = fromQ(c);
        if (!bytes.empty()) guessKey(bytes[0]);
    });
    // Finding the word is the game: it is heard once decided, its meaning once a hint showed it.
    frame_.setSayIt([this] {
        return SecretWord(phase_ == Phase::Won || phase_ == Phase::Lost,
                          game_.hinted() && Shared().WordsOnly == kFalse);
    });

    auto hud = [this](const char* name) {
        auto* l = new QLabel(this);
        l->setObjectName(name);
        l->setFont(ScreenFont(16, true));
        l->setStyleSheet(kHudStyle);
        l->setAlignment(Qt::AlignCenter);
        return l;
    };
    WordLabel = hud("WordLabel");
    ScoreLabel = hud("ScoreLabel");
    MissLabel = hud("MissLabel");
    Label2 = hud("Label2");
    Label2->setFont(ScreenFont(12, true));
    Label2->setWordWrap(true);
    ReadyLabel = hud("ReadyLabel");
    ReadyLabel->setFont(ScreenFont(30, true));
    ReadyLabel->hide();

    Frame1 = new QWidget(this);
    Frame1->setObjectName("Frame1");
    Frame1->setAttribute(Qt::WA_StyledBackground);
    Frame1->setStyleSheet(QString("#Frame1 { %1 }").arg(kPanelStyle));

    MeaningLabel = new QLabel(this);
    MeaningLabel->setObjectName("MeaningLabel");
    MeaningLabel->setWordWrap(true);
    MeaningLabel->setAlignment(Qt::AlignCenter);
    MeaningLabel->setStyleSheet(QString("QLabel { color: #fff3c4; %1 padding: 2px 12px; }")
                                    .arg(kPanelStyle));

    Command1 = MakeButton("Hint", this);
    Command1->setObjectName("Command1");
    Command1->setFocusPolicy(Qt::NoFocus);
    Command1->setToolTip("Shows the meaning of the word, for half its points");
    connect(Command1, &QPushButton::clicked, this, &CowForm::hint);

    for (char c = 'a'; c <= 'z'; ++c) {
        auto* b = new QPushButton(QString(QChar(c).toUpper()), this);
        b->setObjectName(QString("Key%1").arg(QChar(c).toUpper()));
        b->setFocusPolicy(Qt::NoFocus);
        b->setCursor(Qt::PointingHandCursor);
        connect(b, &QPushButton::clicked, this, [this, c] { guessKey(c); });
        Keys.push_back(b);
    }

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

QPushButton* CowForm::key(char letter) const {
    const int i = std::tolower(static_cast<unsigned char>(letter)) - 'a';
    return i >= 0 && i < Keys.size() ? Keys[i] : nullptr;
}

void CowForm::NewGame() {
    SharedState& s = Shared();
    phase_ = Phase::Idle;
    if (!game_.start(s, TheRng())) {
        for (QLabel* l : LetterLabel) l->hide();
        frame_.refuse(kNoWord, windowTitle());
        return;
    }
    frame_.startMusic();
    startWord(true);
    Timer1.start();
    setFocus();
}

// A word begins: its boxes, the keys fresh, the cow on the grass, and a short pause (the
// saucer's arrival before the first word) in which keys wait.
void CowForm::startWord(bool first) {
    firstWord_ = first;
    rungFrom_ = 0;
    rungTo_ = 0;
    rungAt_ = nowMs();
    flashAt_ = -100000;
    MeaningLabel->setText(game_.hintOffered(Shared())
                              ? "Stuck? Click Hint to see the meaning (for half the points)."
                              : QString());
    MeaningLabel->setProperty("meaning", false);
    ReadyLabel->setText(first ? "Get ready!"
                              : QString("Word %1 of %2").arg(game_.wordNumber()).arg(kWordsPerGame));
    ReadyLabel->show();
    setPhase(Phase::Arrive);
    showWord();
    showKeys();
    showHud();
}

void CowForm::setPhase(Phase phase) {
    phase_ = phase;
    phaseAt_ = nowMs();
}

double CowForm::shownRung(qint64 now) const {
    const double u = clamp01((now - rungAt_) / kRungMs);
    return lerp(rungFrom_, rungTo_, easeInOut(u));
}

void CowForm::moveRung(int to) {
    const qint64 now = nowMs();
    rungFrom_ = shownRung(now);
    rungTo_ = to;
    rungAt_ = now;
}

void CowForm::guessKey(char key) {
    if (frame_.leaving() || phase_ != Phase::Play) return;
    SharedState& s = Shared();
    const Key result = game_.press(s, key);
    switch (result) {
        case Key::Ignored:
            return;
        case Key::Repeat:
            sound().effect("bleep.wav", SoundMode::NoInterrupt);
            return;
        case Key::Hit:
            sound().effect("cowding.wav");
            break;
        case Key::Drop:
            sound().effect("cowdrop.wav");
            moveRung(game_.rung());
            break;
        case Key::Miss:
            sound().effect("cowbeam.wav");
            flashAt_ = nowMs();
            moveRung(game_.rung());
            break;
        case Key::Solved:
            sound().effect("cowmoo.wav");
            rungAtEnd_ = shownRung(nowMs());
            setPhase(Phase::Won);
            break;
        case Key::Lost:
            sound().effect("cowgone.wav");
            flashAt_ = nowMs();
            rungAtEnd_ = shownRung(nowMs());
            setPhase(Phase::Lost);
            break;
    }
    if ((result == Key::Solved || result == Key::Lost) && s.WordsOnly == kFalse) {
        // Decided either way, the word is shown with its meaning: that is what it is for.
        MeaningLabel->setText(toQ("Meaning: " + s.TheMeaning));
        MeaningLabel->setProperty("meaning", true);
        fitMeaning();
    }
    showWord(result == Key::Lost);
    showKeys();
    showHud();
}

void CowForm::hint() {
    if (frame_.leaving() || phase_ != Phase::Play) return;
    SharedState& s = Shared();
    if (!game_.takeHint(s)) return;
    sound().effect("pageturn.wav");
    MeaningLabel->setText(toQ("Meaning: " + s.TheMeaning));
    MeaningLabel->setProperty("meaning", true);
    fitMeaning();
    showHud();
    setFocus();
}

void CowForm::animate() {
    const qint64 now = nowMs();
    const double t = (now - phaseAt_) / 1000.0;
    switch (phase_) {
        case Phase::Arrive:
            if (t >= (firstWord_ ? kFlyIn : kBetweenWords)) {
                ReadyLabel->hide();
                setPhase(Phase::Play);
            }
            break;
        case Phase::Won:
            if (t >= kWinSecs) {
                if (game_.lastWord()) {
                    frame_.wonGame();
                    return;
                }
                if (!game_.nextWord(Shared(), TheRng())) {
                    frame_.refuse(kNoWord, windowTitle());
                    return;
                }
                startWord(false);
            }
            break;
        case Phase::Lost:
            if (t >= kLostSecs) {
                frame_.askTryAgain(toQ(lostText(Shared().TheWord)) +
                                       " Would you like to try again?",
                                   "Try Again?");
                return;
            }
            break;
        default:
            break;
    }
    pose_ = poseAt(now);
    const QRegion now_ = picture_.actorsRegion(pose_);
    update(drawn_ + now_);
    drawn_ = now_;
}

Pose CowForm::poseAt(qint64 now) const {
    Pose q;
    q.time = now / 1000.0;
    const double t = (now - phaseAt_) / 1000.0;
    q.rungs = game_.allowed() + 1;
    const double rungStep = kTopLift / q.rungs;
    const double flash = 1 - clamp01((now - flashAt_) / kFlashMs);
    double rung = shownRung(now);
    // Hovering: a gentle bob and sway.
    q.saucerX = kHoverX + 10 * std::sin(q.time * 0.9);
    q.saucerY = kHoverY + 7 * std::sin(q.time * 2.1);
    q.saucerTilt = 2.5 * std::sin(q.time * 1.3);
    bool grazing = true;

    switch (phase_) {
        case Phase::Arrive:
            if (firstWord_) {
                const double u = easeOut(t / (kFlyIn * 0.9));
                q.saucerX = lerp(-260, q.saucerX, u);
                q.saucerY = lerp(kHoverY - 120, q.saucerY, u);
                q.saucerTilt = 16 * (1 - u);
            }
            break;
        case Phase::Won: {
            // The cow comes down, moos, and the saucer wobbles off and back.
            rung = lerp(rungAtEnd_, 0, easeInOut(t / 0.6));
            grazing = t > 1.9;
            q.bubble = clamp01((t - 0.25) / 0.25) * clamp01((1.9 - t) / 0.3);
            q.headAngle = -26 * clamp01((t - 0.15) / 0.2) * clamp01((2.1 - t) / 0.3);
            q.points = QString("+%1").arg(game_.lastPoints());
            q.pointsRise = 70 * t;
            q.pointsAlpha = clamp01(t / 0.2) * clamp01((2.6 - t) / 0.5);
            if (t > 0.9 && t <= 1.9) {
                const double u = (t - 0.9) / 1.0;
                q.saucerTilt = 20 * std::sin(u * 6 * kPi) * (1 - 0.3 * u);
                q.saucerX = lerp(q.saucerX, kStageW + 320, easeIn(u));
                q.saucerY -= 60 * easeIn(u);
            } else if (t > 1.9) {
                const double u = clamp01((t - 1.9) / 1.1);
                q.saucerX = lerp(-320, q.saucerX, easeOut(u));
                q.saucerY -= 60 * (1 - easeOut(u));
                q.saucerTilt = 12 * (1 - u) * std::sin(u * 4 * kPi);
            }
            break;
        }
        case Phase::Lost: {
            // Up into the hatch, then away into the night.
            const double up = clamp01(t / 1.1);
            rung = lerp(rungAtEnd_, q.rungs + 0.35, easeIn(up));
            q.cowShown = t < 1.1;
            if (t > 1.1 && t <= 1.5) {
                q.saucerTilt = 14 * std::sin((t - 1.1) / 0.4 * 3 * kPi);
            } else if (t > 1.5) {
                const double u = clamp01((t - 1.5) / 1.2);
                q.saucerX = lerp(q.saucerX, kStageW + 300, easeIn(u));
                q.saucerY = lerp(q.saucerY, -200, easeIn(u));
                q.saucerScale = lerp(1, 0.55, u);
                q.saucerTilt = -18 * easeIn(u);
            }
            q.beam = t < 1.1 ? 1 : clamp01(1 - (t - 1.1) / 0.3);
            q.beamFlash = 0.5 + 0.5 * std::sin(t * 14);
            break;
        }
        default:
            break;
    }
    q.cowLift = std::max(0.0, rung * rungStep);
    const double high = clamp01(q.cowLift / kTopLift);
    q.cowScale = 1 - 0.45 * high - (phase_ == Phase::Lost ? 0.35 * clamp01((t - 0.6) / 0.5) : 0);
    q.legSwing = clamp01(rung * 1.5);
    if (phase_ != Phase::Lost) {
        q.beam = clamp01(std::max(rung, flash * 0.8) * 2);
        q.beamFlash = flash;
    }
    if (rung > 0.05) {
        // Dangling: looking up in alarm, swaying.
        q.headAngle = -14 + 6 * std::sin(q.time * 3);
        q.cowTilt = 7 * std::sin(q.time * 1.7) * q.legSwing;
    } else if (grazing && phase_ != Phase::Won) {
        // Grazing: the head dips to the grass now and then.
        const double g = std::fmod(q.time, 5.0);
        if (g < 1.8) q.headAngle = 40 * std::pow(std::sin(kPi * g / 1.8), 2);
    }
    return q;
}

void CowForm::showWord(bool reveal) {
    const std::string& w = game_.word();
    const int n = int(w.size());
    while (LetterLabel.size() < n) {
        auto* l = new QLabel(Frame1);
        l->setObjectName(QString("LetterLabel%1").arg(LetterLabel.size()));
        l->setAlignment(Qt::AlignCenter);
        LetterLabel.push_back(l);
    }
    for (int i = 0; i < LetterLabel.size(); ++i) {
        QLabel* l = LetterLabel[i];
        if (i >= n || w[i] == ' ') {
            l->hide();
            continue;
        }
        const bool shown = game_.shown(i);
        l->setText(shown || reveal ? toQ(std::string(1, w[i])) : QString());
        const char* style = !shown && reveal ? kLostBoxStyle : kBoxStyle;
        if (l->property("style").toString() != style) {
            l->setProperty("style", style);
            l->setStyleSheet(style);
        }
        l->show();
    }
    placeBoxes();
}

void CowForm::showKeys() {
    const bool open = phase_ == Phase::Play || phase_ == Phase::Arrive;
    for (int i = 0; i < Keys.size(); ++i) {
        const int state = game_.triedState(char('a' + i));
        QPushButton* b = Keys[i];
        b->setEnabled(open && state == 0);
        const QString style = keyStyle(state);
        if (b->property("look").toInt() != state + 2) {
            b->setProperty("look", state + 2);
            b->setStyleSheet(style);
        }
    }
}

void CowForm::showHud() {
    WordLabel->setText(QString("Word %1 of %2").arg(game_.wordNumber()).arg(kWordsPerGame));
    ScoreLabel->setText(QString("Score: %1").arg(frame_.scoreText(Shared().Score)));
    MissLabel->setText(QString("Misses left: %1").arg(std::max(0, game_.spare())));
    QString tried;
    for (char c : game_.tried()) tried += toQ(std::string(1, c)) + " ";
    Label2->setText(tried.isEmpty() ? QString("Type a letter!") : "Tried: " + tried.trimmed());
    Command1->setEnabled(game_.hintOffered(Shared()) && phase_ != Phase::Lost);
    resizeEvent(nullptr);
}

void CowForm::paintEvent(QPaintEvent* event) {
    QPainter p(this);
    for (const QRect& r : event->region()) picture_.paintField(p, r);
    p.setClipRegion(event->region());
    picture_.paintActors(p, pose_);
}

void CowForm::keyPressEvent(QKeyEvent* event) {
    const std::string bytes = fromQ(event->text());
    if (!bytes.empty()) guessKey(bytes[0]);
}

void CowForm::placeBoxes() {
    const std::string& w = game_.word();
    const int n = int(w.size());
    if (n == 0 || Frame1->width() <= 0) return;
    // Up to 18 boxes a row, the rows evened out.
    const int rows = (n + 17) / 18;
    const int perRow = (n + rows - 1) / rows;
    const int pad = std::max(8, Frame1->height() / 10);
    const int gap = std::max(3, width() / 320);
    const int rowGap = 4;
    const int rowH = std::max(10, (Frame1->height() - 2 * pad - (rows - 1) * rowGap) / rows);
    const int boxW = std::clamp((Frame1->width() - 2 * pad - gap * (perRow - 1)) / perRow, 8,
                                rowH * 5 / 6);
    QFont f = ScreenFont(24, true);
    f.setPixelSize(std::max(8, std::min(boxW, rowH) * 3 / 5));
    const int top = (Frame1->height() - rows * rowH - (rows - 1) * rowGap) / 2;
    for (int i = 0; i < n && i < LetterLabel.size(); ++i) {
        const int row = i / perRow, col = i % perRow;
        const int inRow = std::min(perRow, n - row * perRow);
        const int left = (Frame1->width() - (boxW * inRow + gap * (inRow - 1))) / 2;
        LetterLabel[i]->setFont(f);
        LetterLabel[i]->setGeometry(left + col * (boxW + gap), top + row * (rowH + rowGap), boxW,
                                    rowH);
    }
}

// The meaning takes the largest type that shows it whole.
void CowForm::fitMeaning() {
    const QRect r = MeaningLabel->contentsRect().adjusted(12, 2, -12, -2);
    for (int pt = 18; pt >= 7; --pt) {
        QFont f = ScreenFont(pt, MeaningLabel->property("meaning").toBool());
        const QRect need = QFontMetrics(f).boundingRect(r.adjusted(0, 0, 0, 10000),
                                                         Qt::TextWordWrap, MeaningLabel->text());
        MeaningLabel->setFont(f);
        if (need.height() <= r.height() && need.width() <= r.width()) break;
    }
}

void CowForm::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height();
    if (w <= 0 || h <= 0) return;
    picture_.resize(size());
    const int menuH = frame_.menuHeight();
    const int mx = w * 3 / 100;
    const int gap = std::max(6, h / 90);

    // The sky: the word count and score on the left, the misses and letters on the right.
    const int hudTop = menuH + h / 60;
    const int hudW = std::max(w * 21 / 100, 10);
    for (QLabel* l : {WordLabel, ScoreLabel, MissLabel}) l->adjustSize();
    const int hudH = WordLabel->sizeHint().height();
    const int leftW = std::max({hudW, WordLabel->sizeHint().width(), ScoreLabel->sizeHint().width()});
    const int rightW = std::max(hudW, MissLabel->sizeHint().width());
    WordLabel->setGeometry(mx, hudTop, leftW, hudH);
    ScoreLabel->setGeometry(mx, hudTop + hudH + gap, leftW, hudH);
    MissLabel->setGeometry(w - mx - rightW, hudTop, rightW, hudH);
    Label2->setGeometry(w - mx - rightW, hudTop + hudH + gap, rightW,
                        std::max(hudH, Label2->heightForWidth(rightW)));

    // Below the grass line: the word, the meaning and Hint, the keys.
    const int ground = int(picture_.toScreen().map(QPointF(0, kGroundY)).y());
    const int lowerTop = std::min(ground + h * 4 / 100, h * 70 / 100);
    const int avail = h - lowerTop - h / 60;
    const int wordH = avail * 36 / 100;
    const int meaningH = avail * 22 / 100;
    const int keysH = avail - wordH - meaningH - 2 * gap;
    Frame1->setGeometry(mx, lowerTop, w - 2 * mx, wordH);
    const int hintW = std::max(w * 14 / 100, Command1->sizeHint().width());
    const int y2 = lowerTop + wordH + gap;
    MeaningLabel->setGeometry(mx, y2, w - 2 * mx - hintW - gap, meaningH);
    Command1->setGeometry(w - mx - hintW, y2, hintW, meaningH);
    const int y3 = y2 + meaningH + gap;
    const int keyGap = std::max(4, w / 240);
    const int keyW = (w - 2 * mx - 12 * keyGap) / 13;
    const int keyH = (keysH - keyGap) / 2;
    QFont kf = ScreenFont(16, true);
    kf.setPixelSize(std::max(8, std::min(keyW, keyH) / 2));
    for (int i = 0; i < Keys.size(); ++i) {
        const int row = i / 13, col = i % 13;
        Keys[i]->setFont(kf);
        Keys[i]->setGeometry(mx + col * (keyW + keyGap), y3 + row * (keyH + keyGap), keyW, keyH);
    }
    ReadyLabel->adjustSize();
    const QPointF mid = picture_.toScreen().map(QPointF(kHoverX, 420));
    ReadyLabel->move(int(mid.x()) - ReadyLabel->width() / 2, int(mid.y()) - ReadyLabel->height() / 2);
    ReadyLabel->raise();
    placeBoxes();
    fitMeaning();
    drawn_ = QRegion(rect());
    update();
}

WM_REGISTER_GAME("Flying Cow", CowForm, "images/cowfield.svg", "images/cow-sprites.svg",
                 "sounds/cowtune.mid", "sounds/cowbeam.wav", "sounds/cowdrop.wav",
                 "sounds/cowding.wav", "sounds/cowmoo.wav", "sounds/cowgone.wav",
                 "sounds/bleep.wav", "sounds/pageturn.wav");

}  // namespace wm
