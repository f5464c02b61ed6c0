#include "games/puzzles/safe_cracker/safe_cracker_screen.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <cctype>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/scene_kit.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

using namespace safe;
using scene::clamp01;
using scene::easeInOut;
using scene::easeOut;
using scene::lerp;

namespace {
// The animation's times, in milliseconds.
constexpr int kFirstPause = 1600;  // before the first safe
constexpr int kNextPause = 1000;   // between safes
constexpr int kTurnStep = 90;      // between two tumblers of a row lighting up
constexpr int kTurnMs = 260;       // one tumbler turning
constexpr int kDialMs = 300;
constexpr int kShakeMs = 400;
constexpr int kHandleMs = 700;     // the handle turns, then the door swings
constexpr int kSwingMs = 1300;
constexpr int kEndMs = 3000;       // an opened safe or an alarm, from the row's last tumbler
constexpr double kPi = 3.14159265358979;

const char* kHudStyle =
    "QLabel { color: #ffe9b0; background: rgba(20, 26, 40, 215); border: 2px solid"
    " rgba(214, 170, 90, 200); border-radius: 12px; padding: 4px 12px; }";
const char* kMeaningStyle =
    "QLabel { color: #3a2a10; background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #fff6d8,"
    " stop:1 #f3dfa6); border: 3px solid #a8752c; border-radius: 10px; padding: 2px 14px; }";

QString messageStyle(const char* mood) {
    const QString ink = QString(mood) == "good"  ? "#b9ffb0"
                        : QString(mood) == "bad" ? "#ffb4a8"
                                                 : "#ffe9b0";
    return QString("QLabel { color: %1; background: rgba(20, 26, 40, 200); border-radius: 10px;"
                   " padding: 2px 12px; }")
        .arg(ink);
}

QString keyStyle(Mark m) {
    const char* top = "#fffaf0";
    const char* bottom = "#e8d6b0";
    const char* ink = "#2d2418";
    switch (m) {
        case Mark::Green: top = "#5fd27c", bottom = "#2c8c47", ink = "white"; break;
        case Mark::Amber: top = "#ffc552", bottom = "#d88a12", ink = "white"; break;
        case Mark::Grey: top = "#8a93a3", bottom = "#5a6272", ink = "#e8ebf0"; break;
        default: break;
    }
    return QString("QPushButton { color: %3; border: 2px solid #5a4324; border-radius: 10px;"
                   " background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %1, stop:1 %2); }"
                   " QPushButton:hover { border-color: #ffcc66; }"
                   " QPushButton:disabled { color: %3; }")
        .arg(top, bottom, ink);
}

qint64 nowMs() {
    return Ticker::get().now();
}

int markValue(Mark m) {
    return m == Mark::Green ? 3 : m == Mark::Amber ? 2 : m == Mark::Grey ? 1 : 0;
}
}  // namespace

SafeCracker::SafeCracker(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames{}, [this] { NewGame(); }),
      Timer1(frame_.timer("Timer1", Ticker::kFrameMs, [this] { animate(); })) {
    setWindowTitle("Safe Cracker");
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    frame_.setMusic(MusicKind::Shared, "safecracker.mid");
    frame_.setForeign([this](const QString& c) {
        const std::string bytes = fromQ(c);
        if (!bytes.empty()) typeKey(bytes[0]);
    });

    auto label = [this](const char* name, const char* style, int points) {
        auto* l = new QLabel(this);
        l->setObjectName(name);
        l->setFont(ScreenFont(points, true));
        l->setStyleSheet(style);
        l->setAlignment(Qt::AlignCenter);
        return l;
    };
    SafeLabel = label("SafeLabel", kHudStyle, 16);
    ScoreLabel = label("ScoreLabel", kHudStyle, 16);
    TriesLabel = label("TriesLabel", kHudStyle, 16);
    ReadyLabel = label("ReadyLabel", kHudStyle, 30);
    ReadyLabel->hide();
    MeaningLabel = label("MeaningLabel", kMeaningStyle, 16);
    MeaningLabel->setWordWrap(true);
    MessageLabel = label("MessageLabel", "", 15);
    MessageLabel->setProperty("mood", "plain");
    MessageLabel->setStyleSheet(messageStyle("plain"));

    for (char c = 'a'; c <= 'z'; ++c) {
        auto* b = new QPushButton(QString(QChar(c).toUpper()), this);
        b->setObjectName(QString("Key%1").arg(QChar(c).toUpper()));
        b->setFocusPolicy(Qt::NoFocus);
        b->setCursor(Qt::PointingHandCursor);
        connect(b, &QPushButton::clicked, this, [this, c] { typeKey(c); });
        Keys.push_back(b);
    }
    Command1 = MakeButton("Enter", this, true);
    Command1->setObjectName("Command1");
    Command1->setToolTip("Try this combination");
    connect(Command1, &QPushButton::clicked, this, &SafeCracker::enterGuess);
    Command2 = MakeButton("\u2190 Back", this);
    Command2->setObjectName("Command2");
    Command2->setToolTip("Takes back the last letter");
    connect(Command2, &QPushButton::clicked, this, &SafeCracker::eraseKey);
    for (QPushButton* b : {Command1, Command2}) {
        b->setFocusPolicy(Qt::NoFocus);
        b->setCursor(Qt::PointingHandCursor);
    }

    // The combination is the game: heard once the safe is decided; the clue whenever shown.
    frame_.setSayIt([this] {
        return SecretWord(game_.decided() && phase_ != Phase::Ready, MeaningLabel->isVisible());
    });

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

QPushButton* SafeCracker::key(char letter) const {
    const int i = std::tolower(static_cast<unsigned char>(letter)) - 'a';
    return i >= 0 && i < Keys.size() ? Keys[i] : nullptr;
}

void SafeCracker::NewGame() {
    phase_ = Phase::Idle;
    if (!game_.start(Shared(), TheRng())) {
        frame_.refuse(kNoWord, windowTitle());
        return;
    }
    frame_.startMusic();
    startSafe(true);
    Timer1.start();
    setFocus();
}

// A safe rolls in: its rows empty, the keyboard fresh, and a short pause in which keys wait.
void SafeCracker::startSafe(bool first) {
    firstSafe_ = first;
    revealAt_ = shakeAt_ = -100000;
    const SharedState& s = Shared();
    const bool clue = s.GameOptionOn == kTrue && s.WordsOnly == kFalse && !s.TheMeaning.empty();
    MeaningLabel->setText(clue ? toQ("Clue: " + s.TheMeaning) : QString());
    MeaningLabel->setVisible(clue);
    ReadyLabel->setText(first ? "Get ready!"
                              : QString("Safe %1 of %2").arg(game_.safeNumber()).arg(kSafesPerGame));
    placeReady();
    ReadyLabel->show();
    say(QString("Type a word of %1 letters and press Enter.").arg(game_.openCount()));
    setPhase(Phase::Ready);
    refresh();
    fitMeaning();
    frame_.refreshSayIt();
}

void SafeCracker::setPhase(Phase phase) {
    phase_ = phase;
    phaseAt_ = nowMs();
    dirty_ = true;
}

void SafeCracker::say(const QString& text, const char* mood) {
    MessageLabel->setText(text);
    if (MessageLabel->property("mood").toString() != mood) {
        MessageLabel->setProperty("mood", mood);
        MessageLabel->setStyleSheet(messageStyle(mood));
    }
}

// The dial turns to the letter, right and left in turn as a safe's dial is worked.
void SafeCracker::turnDial(char c) {
    const qint64 now = nowMs();
    const double u = easeOut(clamp01(double(now - dialAt_) / kDialMs));
    dialFrom_ = lerp(dialFrom_, dialTo_, u);
    const int k = std::tolower(static_cast<unsigned char>(c)) % 26;
    double to = -k * 360.0 / 26;
    while (dialTurn_ > 0 ? to < dialFrom_ + 60 : to > dialFrom_ - 60) to += dialTurn_ * 360;
    dialTo_ = to;
    dialTurn_ = -dialTurn_;
    dialAt_ = now;
}

void SafeCracker::typeKey(char c) {
    if (frame_.leaving() || phase_ != Phase::Play) return;
    if (game_.type(c) != Entry::Typed) return;
    sound().effect("sc-click.wav", SoundMode::Overlap);
    turnDial(c);
    refresh();
}

void SafeCracker::eraseKey() {
    if (frame_.leaving() || phase_ != Phase::Play) return;
    if (game_.erase() != Entry::Erased) return;
    sound().effect("sc-click.wav", SoundMode::Overlap);
    refresh();
}

void SafeCracker::enterGuess() {
    if (frame_.leaving() || phase_ != Phase::Play) return;
    SharedState& s = Shared();
    switch (game_.enter(s)) {
        case Entry::Short:
            sound().effect("sc-buzz.wav", SoundMode::NoInterrupt);
            shakeAt_ = nowMs();
            say("Fill every tumbler first!", "bad");
            break;
        case Entry::Repeat:
            sound().effect("sc-buzz.wav", SoundMode::NoInterrupt);
            shakeAt_ = nowMs();
            say("You tried that combination already.", "bad");
            break;
        case Entry::Wrong:
            sound().effect("sc-tumbler.wav");
            revealAt_ = nowMs();
            say(game_.triesLeft() == 1 ? QString("Not yet! 1 try left.")
                                       : QString("Not yet! %1 tries left.").arg(game_.triesLeft()));
            break;
        case Entry::Opened:
            sound().effect("sc-open.wav");
            revealAt_ = nowMs();
            say(QString("The safe is open! +%1").arg(game_.lastPoints()), "good");
            setPhase(Phase::Opening);
            break;
        case Entry::Alarm:
            sound().effect("sc-alarm.wav");
            revealAt_ = nowMs();
            say(toQ(alarmText(game_.word())), "bad");
            setPhase(Phase::Alarm);
            break;
        default:
            return;
    }
    refresh();
    frame_.refreshSayIt();
}

qint64 SafeCracker::revealEnd() const {
    const int n = int(game_.word().size());
    return revealAt_ + (n - 1) * kTurnStep + kTurnMs;
}

void SafeCracker::endSafe() {
    SharedState& s = Shared();
    if (!game_.lastSafe()) {
        if (!game_.nextSafe(s, TheRng())) {
            frame_.refuse(kNoWord, windowTitle());
            return;
        }
        startSafe(false);
        return;
    }
    setPhase(Phase::Idle);
    if (s.Score > 0) {
        frame_.wonGame();
        return;
    }
    // Not one safe of five opened: the game is lost, and its words are shown.
    sound().effect("sc-lose.wav");
    frame_.askTryAgain(toQ(lostText(game_.words())) + " Would you like to try again?",
                       "Try Again?");
}

void SafeCracker::animate() {
    const qint64 now = nowMs();
    const qint64 t = now - phaseAt_;
    switch (phase_) {
        case Phase::Ready:
            if (t >= (firstSafe_ ? kFirstPause : kNextPause)) {
                ReadyLabel->hide();
                setPhase(Phase::Play);
                showKeys();
            }
            break;
        case Phase::Opening:
        case Phase::Alarm:
            if (now >= revealEnd() + kEndMs) {
                endSafe();
                return;
            }
            break;
        default:
            break;
    }
    if (!dirty_ && !moving(now)) return;
    dirty_ = false;
    const double door = view_.door;
    view_ = viewAt(now);
    update(picture_.frameRegion(door) + picture_.frameRegion(view_.door));
}

bool SafeCracker::moving(qint64 now) const {
    return phase_ == Phase::Opening || phase_ == Phase::Alarm || now - dialAt_ < kDialMs + 32 ||
           now - shakeAt_ < kShakeMs + 32 || now < revealEnd() + 32;
}

SafeView SafeCracker::viewAt(qint64 now) const {
    SafeView v;
    v.time = now / 1000.0;
    const std::string& w = game_.word();
    v.columns = int(w.size());
    const int rows = int(game_.rows().size());
    const std::string typing = game_.current();
    const bool typingShown = !game_.decided();
    v.activeRow = typingShown ? rows : -1;
    for (int r = 0; r < kTries; ++r) {
        std::vector<Tumbler> row(w.size());
        for (std::size_t i = 0; i < w.size(); ++i) {
            Tumbler& cell = row[i];
            if (fixedChar(w[i])) {
                cell.mark = -1;
                cell.letter = toQ(std::string(1, w[i])).trimmed();
            } else if (r < rows) {
                cell.letter = toQ(UCase(std::string(1, game_.rows()[r].guess[i])));
                cell.mark = markValue(game_.rows()[r].marks[i]);
                if (r == rows - 1)
                    cell.flip = clamp01(double(now - revealAt_ - int(i) * kTurnStep) / kTurnMs);
            } else if (r == rows && typingShown && typing[i] != ' ') {
                cell.letter = toQ(UCase(std::string(1, typing[i])));
            }
        }
        v.rows.push_back(std::move(row));
    }
    const double sh = (now - shakeAt_) / double(kShakeMs);
    if (sh >= 0 && sh < 1) v.shake = 16 * std::sin(sh * 6 * kPi) * (1 - sh);
    v.dial = lerp(dialFrom_, dialTo_, easeOut(clamp01(double(now - dialAt_) / kDialMs)));
    const double after = double(now - revealEnd());
    if (phase_ == Phase::Opening && after > 0) {
        v.handle = -150 * easeInOut(after / kHandleMs);
        v.door = easeInOut((after - kHandleMs) / kSwingMs);
        v.points = QString("+%1").arg(game_.lastPoints());
        v.pointsRise = 140 * clamp01((after - kHandleMs) / 1800);
        v.pointsAlpha = clamp01((after - kHandleMs) / 250) * clamp01((kEndMs - after) / 400);
    }
    if (phase_ == Phase::Alarm && after > 0) {
        v.reveal = toQ(UCase(w));
        v.alarm = 0.5 + 0.5 * std::sin(after / 1000.0 * 2 * kPi * 2.5);
        v.shake = 6 * std::sin(after / 1000.0 * 50) * clamp01(1 - after / 900);
    }
    return v;
}

void SafeCracker::refresh() {
    showKeys();
    showHud();
    dirty_ = true;
    view_ = viewAt(nowMs());
    update(picture_.frameRegion(view_.door));
}

void SafeCracker::showKeys() {
    const bool open = phase_ == Phase::Play;
    for (int i = 0; i < Keys.size(); ++i) {
        const Mark m = game_.keyMark(char('a' + i));
        QPushButton* b = Keys[i];
        b->setEnabled(open);
        if (b->property("look").toInt() != markValue(m) + 1) {
            b->setProperty("look", markValue(m) + 1);
            b->setStyleSheet(keyStyle(m));
            b->setFont(keyFont_);  // a new style sheet takes the font back to the sheet's
        }
    }
    Command1->setEnabled(open);
    Command2->setEnabled(open);
}

void SafeCracker::showHud() {
    SafeLabel->setText(QString("Safe %1 of %2").arg(game_.safeNumber()).arg(kSafesPerGame));
    ScoreLabel->setText(QString("Score: %1").arg(frame_.scoreText(Shared().Score)));
    TriesLabel->setText(QString("Tries left: %1").arg(game_.triesLeft()));
}

void SafeCracker::paintEvent(QPaintEvent* event) {
    QPainter p(this);
    for (const QRect& r : event->region()) picture_.paintRoom(p, r);
    p.setClipRegion(event->region());
    picture_.paintSafe(p, view_);
    picture_.paintBeacon(p, view_.alarm);
}

void SafeCracker::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            enterGuess();
            return;
        case Qt::Key_Backspace:
            eraseKey();
            return;
        default:
            break;
    }
    const std::string bytes = fromQ(event->text());
    if (!bytes.empty()) typeKey(bytes[0]);
}

// The clue takes the largest type that shows it whole.
void SafeCracker::fitMeaning() {
    const QRect r = MeaningLabel->contentsRect().adjusted(14, 2, -14, -2);
    for (int pt = 18; pt >= 7; --pt) {
        QFont f = ScreenFont(pt, true);
        const QRect need = QFontMetrics(f).boundingRect(r.adjusted(0, 0, 0, 10000),
                                                         Qt::TextWordWrap, MeaningLabel->text());
        MeaningLabel->setFont(f);
        if (need.height() <= r.height() && need.width() <= r.width()) break;
    }
}

// The plate over the safe, sized to its text each time the text changes.
void SafeCracker::placeReady() {
    ReadyLabel->adjustSize();
    ReadyLabel->resize(ReadyLabel->width() + 40, ReadyLabel->height() + 16);
    ReadyLabel->move(picture_.safeRect().center() -
                     QPoint(ReadyLabel->width() / 2, ReadyLabel->height() / 2));
    ReadyLabel->raise();
}

void SafeCracker::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height();
    if (w <= 0 || h <= 0) return;
    const int menuH = frame_.menuHeight();
    const int mx = std::max(8, w * 2 / 100);
    const int gap = std::max(6, h / 100);
    const int sideW = std::max(w * 16 / 100, 150);

    // The keyboard along the bottom: two rows of thirteen letters, Back and Enter at their ends.
    const int keysH = h * 16 / 100;
    const int keyGap = std::max(4, w / 240);
    const double unit = (w - 2 * mx - 13 * keyGap) / 14.6;
    const int keyH = (keysH - keyGap) / 2;
    const int keysTop = h - gap - keysH;
    keyFont_ = ScreenFont(16, true);
    keyFont_.setPixelSize(std::max(8, std::min(int(unit), keyH) / 2));
    for (int i = 0; i < Keys.size(); ++i) {
        const int row = i / 13, col = i % 13;
        Keys[i]->setFont(keyFont_);
        Keys[i]->setGeometry(mx + int(col * (unit + keyGap)), keysTop + row * (keyH + keyGap),
                             int(unit), keyH);
    }
    const int endX = mx + int(13 * (unit + keyGap));
    QFont bf = ScreenFont(14, true);
    bf.setPixelSize(std::max(8, std::min(keyH * 2 / 5, (w - mx - endX) / 7)));
    Command2->setFont(bf);
    Command1->setFont(bf);
    Command2->setGeometry(endX, keysTop, w - mx - endX, keyH);
    Command1->setGeometry(endX, keysTop + keyH + keyGap, w - mx - endX, keyH);

    const int msgH = std::max(24, h * 55 / 1000);
    MessageLabel->setGeometry(mx + sideW + gap, keysTop - gap - msgH, w - 2 * (mx + sideW + gap),
                              msgH);

    // The clue above the safe, the counts on either side of it.
    const int top = menuH + gap;
    const int meaningH = std::max(40, h * 9 / 100);
    MeaningLabel->setGeometry(mx + sideW + gap, top, w - 2 * (mx + sideW + gap), meaningH);
    const int hudH = std::max(30, h * 55 / 1000);
    SafeLabel->setGeometry(mx, top, sideW, hudH);
    ScoreLabel->setGeometry(mx, top + hudH + gap, sideW, hudH);
    TriesLabel->setGeometry(w - mx - sideW, top, sideW, hudH);

    const QRect safeArea(mx + sideW + gap, top + meaningH + gap, w - 2 * (mx + sideW + gap),
                         keysTop - 2 * gap - msgH - (top + meaningH + gap));
    picture_.resize(size(), safeArea);
    picture_.placeBeacon(QPoint(w - mx - sideW / 2,
                                top + hudH + gap + picture_.beaconRect().height() / 2 + gap));
    placeReady();
    fitMeaning();
    view_ = viewAt(nowMs());
    update();
}

WM_REGISTER_GAME("Safe Cracker", SafeCracker, "images/safe-vault.svg", "images/safe-parts.svg",
                 "sounds/safecracker.mid", "sounds/sc-click.wav", "sounds/sc-buzz.wav",
                 "sounds/sc-tumbler.wav", "sounds/sc-open.wav", "sounds/sc-alarm.wav",
                 "sounds/sc-lose.wav");

}  // namespace wm
