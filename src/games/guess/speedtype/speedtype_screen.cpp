#include "games/guess/speedtype/speedtype_screen.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSvgRenderer>
#include <QTimer>

#include "core/clock.h"
#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"

namespace wm {

namespace {
constexpr int kCallMs = 1000;  // Ready..., Set..., Type!!! a second apart

GameMenuNames menuNames() {
    GameMenuNames menu;
    menu.foreign = "FL";
    menu.quit = "Quit";
    menu.foreignKey = "speed type";
    return menu;
}

const char* kBubble =
    "color: white; background: rgba(15, 30, 70, 190); border-radius: 18px; padding: 6px 24px;";

QPixmap svgPixmap(const QString& relative, QSize size) {
    QSvgRenderer svg(appFile(relative));
    QPixmap pm(size);
    pm.fill(Qt::transparent);
    if (!svg.isValid()) return pm;
    QPainter p(&pm);
    svg.render(&p);
    return pm;
}
}  // namespace

SpeedType::SpeedType(QWidget* parent)
    : Backdrop("images/speedback.svg", parent),
      frame_(this, menuNames(), [this] { NewWord(); }),
      Timer1(frame_.timer("Timer1", kCallMs, [this] { tick(); })) {
    setWindowTitle("Speed Type");
    setFocusPolicy(Qt::StrongFocus);
    frame_.setForeign([this](const QString& c) { typeKey(speedtype::KeyKind::Char, c); });
    // The word is heard once it stands on the screen after "Set...".
    frame_.setSayIt([this] { return SecretWord(!round_.WaitingForGo, false); });
    frame_.scoreText = [this](double) { return timeText_; };

    Label1 = new QLabel("Ready...", this);
    Label1->setObjectName("Label1");
    Label1->setFont(ScreenFont(40, true));
    Label2 = new QLabel(this);
    Label2->setObjectName("Label2");
    Label2->setFont(ScreenFont(34, true));
    Label3 = new QLabel(this);
    Label3->setObjectName("Label3");
    Label3->setFont(ScreenFont(34, true));
    for (QLabel* l : {Label1, Label2, Label3}) {
        l->setAlignment(Qt::AlignCenter);
        l->setStyleSheet(kBubble);
    }
    Label3->setStyleSheet(
        "color: #12325e; background: rgba(255, 255, 255, 230); border: 4px solid #ffcc00;"
        " border-radius: 18px; padding: 6px 24px;");

    Frame1 = new QWidget(this);
    Frame1->setObjectName("Frame1");
    Frame1->setStyleSheet(
        "QWidget#Frame1 { background: rgba(15, 30, 70, 200); border-radius: 16px; }"
        " QLabel { color: #ffe45c; }");
    auto* row = new QHBoxLayout(Frame1);
    row->setContentsMargins(24, 10, 24, 10);
    auto* caption = new QLabel("Time:", Frame1);
    caption->setFont(ScreenFont(24, true));
    row->addWidget(caption);
    MLabel = new QLabel("00", Frame1);
    SLabel = new QLabel("00", Frame1);
    SDLabel = new QLabel("000", Frame1);
    MLabel->setObjectName("MLabel");
    SLabel->setObjectName("SLabel");
    SDLabel->setObjectName("SDLabel");
    auto addFigure = [&](QLabel* l, const QString& after) {
        l->setFont(ScreenFont(30, true));
        row->addWidget(l);
        if (after.isEmpty()) return;
        auto* sep = new QLabel(after, Frame1);
        sep->setFont(ScreenFont(30, true));
        row->addWidget(sep);
    };
    addFigure(MLabel, ":");
    addFigure(SLabel, ".");
    addFigure(SDLabel, {});

    SL1 = new QLabel(this);
    SL1->setObjectName("SL1");
    SL2 = new QLabel(this);
    SL2->setObjectName("SL2");

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void SpeedType::NewWord() {
    speedtype::newWord(Shared(), round_, TheRng());
    Label1->setText(toQ(round_.call));
    MLabel->setText("00");
    SLabel->setText("00");
    SDLabel->setText("000");
    Frame1->hide();
    Label2->hide();
    Label3->hide();
    Label3->clear();
    Label1->show();
    Label2->setText(toQ(Shared().TheWord));
    showLights(false);
    resizeEvent(nullptr);
    Timer1.start();
    // The design's plain beep; a pupil who turned sound off hears none.
    sound().effect("beep.wav");
    setFocus();
}

void SpeedType::tick() {
    switch (speedtype::tick(round_, TheClock().Now())) {
        case speedtype::Tick::Stop:
            Timer1.stop();
            return;
        case speedtype::Tick::Set:
            Label1->setText(toQ(round_.call));
            sound().effect("beep.wav");
            return;
        case speedtype::Tick::Go:
            sound().effect("ricochet.wav");
            Label1->setText(toQ(round_.call));
            Label2->show();
            Label3->show();
            showLights(true);
            resizeEvent(nullptr);
            return;
    }
}

void SpeedType::typeKey(speedtype::KeyKind kind, const QString& text) {
    if (frame_.leaving()) return;
    char c = 0;
    if (kind == speedtype::KeyKind::Char) {
        const std::string bytes = fromQ(text);
        if (bytes.empty()) return;
        c = bytes[0];
    }
    const std::string& word = Shared().TheWord;
    switch (speedtype::pressKey(round_, word, kind, c)) {
        case speedtype::Key::Ignored:
            return;
        case speedtype::Key::Typed:
            Label3->setText(toQ(round_.Typed));
            resizeEvent(nullptr);
            return;
        case speedtype::Key::Right:
            finish();
            return;
        case speedtype::Key::Wrong:
            Label3->setText(toQ(round_.Typed));
            result();
            return;
    }
}

void SpeedType::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Backspace:
            typeKey(speedtype::KeyKind::Backspace);
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            typeKey(speedtype::KeyKind::Enter);
            return;
        default:
            break;
    }
    const QString text = event->text();
    // Keys that type nothing (Shift, arrows, Tab) are no characters.
    if (text.isEmpty() || text.at(0).unicode() < 0x20 || text.at(0).unicode() == 0x7f) {
        Backdrop::keyPressEvent(event);
        return;
    }
    typeKey(speedtype::KeyKind::Char, text.left(1));
}

void SpeedType::finish() {
    round_.EndTime = TheClock().Now();
    const auto fig = speedtype::figures(speedtype::elapsed(round_));
    MLabel->setText(toQ(fig.minutes));
    SLabel->setText(toQ(fig.seconds));
    SDLabel->setText(toQ(fig.decimals));
    Frame1->show();
    Label1->hide();
    round_.WordWasRight = true;
    resizeEvent(nullptr);
    result();
}

void SpeedType::result() {
    frame_.stopTimers();
    SharedState& s = Shared();
    if (!round_.WordWasRight) {
        sound().effect("ooh.wav");
        frame_.askTryAgain(toQ(speedtype::lostText(s.TheWord)), "You lose!");
        return;
    }
    sound().effect("cheer.wav");
    const std::string time = speedtype::timePerLetter(speedtype::elapsed(round_), s.TheWord);
    timeText_ = toQ(time);
    s.Score = Val(time);
    EndTexts texts;
    texts.placed = texts.notPlaced = toQ(speedtype::wonText("{score}"));
    texts.raiseWhenPlaced = false;
    texts.smallestFirst = true;  // a time: the smaller the better
    texts.wholeScore = false;
    frame_.wonGame(texts);
}

void SpeedType::showLights(bool go) {
    const int h = std::max(120, height() * 3 / 10);
    const QPixmap light = svgPixmap(go ? "images/sl2.svg" : "images/sl1.svg", QSize(h * 2 / 5, h));
    SL1->setPixmap(light);
    SL2->setPixmap(light);
    SL1->resize(light.size());
    SL2->resize(light.size());
}

void SpeedType::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height();
    const int menuH = frame_.menuHeight();
    Label1->adjustSize();
    Label1->move((w - Label1->width()) / 2, menuH + h / 12);
    // Between the lights; a long word is drawn smaller rather than clipped.
    const int lightsW = SL1->width() > 0 ? SL1->width() : h * 3 / 25;
    const int maxW = w - 2 * (w / 20 + lightsW + w / 40);
    for (QLabel* l : {Label2, Label3}) {
        QFont f = ScreenFont(34, true);
        const QString text = l->text().isEmpty() ? QString("W") : l->text();
        while (f.pointSize() > 8 && QFontMetrics(f).horizontalAdvance(text) + 56 > maxW)
            f.setPointSize(f.pointSize() * 9 / 10);
        l->setFont(f);
        l->adjustSize();
        l->resize(std::clamp(l->width(), std::min(maxW, w / 3), maxW), l->height());
    }
    Label2->move((w - Label2->width()) / 2, int(h * 0.36));
    Label3->move((w - Label3->width()) / 2, Label2->y() + Label2->height() + h / 25);
    Frame1->adjustSize();
    Frame1->move((w - Frame1->width()) / 2, int(h * 0.8));
    if (SL1->pixmap().isNull() || SL1->height() != std::max(120, h * 3 / 10))
        showLights(!round_.WaitingForGo);
    SL1->move(w / 20, int(h * 0.3));
    SL2->move(w - w / 20 - SL2->width(), int(h * 0.3));
}

WM_REGISTER_GAME("Speed Type", SpeedType, "images/speedback.svg", "images/sl1.svg",
                 "images/sl2.svg", "sounds/beep.wav", "sounds/ricochet.wav", "sounds/cheer.wav",
                 "sounds/ooh.wav");

}  // namespace wm
