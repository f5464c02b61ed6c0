#include "games/show/wheel_of_money/wheel_screen.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>
#include <QVBoxLayout>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/movie.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/fl_form.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

namespace {

constexpr double kWheelW = 8775, kWheelH = 5655;  // the wheel's frame, twips
constexpr double kPlateW = 2535, kPlateH = 375;
constexpr double kMarker = 255;
// The marquee stands round the plates with room for its rim of bulbs.
constexpr double kPadX = 700, kPadY = 420;

const char* const kPractice =
    "Hmmm... maybe a bit more practice is needed before you're ready for this game. Go and learn "
    "your vocab words, then come back and try again later...";

const QString kPlateBlue =
    "QLabel { color: #ffe14d; background: #1a2fd0; border: 2px solid #ffe14d; border-radius: 8px; "
    "}";
const QString kPlateRed =
    "QLabel { color: #ffffff; background: #ff0000; border: 2px solid #ffffff; border-radius: 8px; "
    "}";
const QString kChoiceStyle =
    "QLabel { color: #101840; background: #ffffff; border: 3px solid #3a52d8; border-radius: 12px;"
    " padding: 6px 14px; } QLabel:hover { background: #fff4b8; }";
const QString kTileStyle =
    "QLabel { color: white; background: %1; border: 2px solid #f0d070;"
    " border-radius: 6px; font-family: 'DejaVu Sans Mono'; font-weight: bold; }";

// Style sheets are costly to apply: only a change is applied.
void SetStyle(QWidget* w, const QString& style) {
    if (w->styleSheet() != style) w->setStyleSheet(style);
}

void SetText(QLabel* l, const QString& text) {
    if (l->text() != text) l->setText(text);
}

GameMenuNames menuNames() {
    GameMenuNames n;
    n.foreignKey = "gameshow";  // the score file follows it, once the palette is used: kept
    return n;
}

}  // namespace

WheelBoard::WheelBoard(QWidget* parent) : QWidget(parent) {
    setObjectName("WheelFrame");
}

void WheelBoard::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double rim = std::max(6.0, height() * 0.03);
    const QRectF r = QRectF(rect()).adjusted(rim, rim, -rim, -rim);
    // A gold rim round a deep blue oval, the stage's centrepiece.
    QRadialGradient face(r.center(), r.width() / 2);
    face.setColorAt(0, QColor(40, 60, 200));
    face.setColorAt(1, QColor(10, 16, 90));
    p.setPen(QPen(QColor(255, 200, 40), rim));
    p.setBrush(face);
    p.drawRoundedRect(r, r.height() * 0.45, r.height() * 0.45);
    // The bulbs round the rim chase while the wheel runs, and glow still when it stops.
    QPainterPath bulbs;
    bulbs.addRoundedRect(
        r.adjusted(r.height() * 0.03, r.height() * 0.03, -r.height() * 0.03, -r.height() * 0.03),
        r.height() * 0.42, r.height() * 0.42);
    const int n = 48;
    for (int i = 0; i < n; ++i) {
        const QPointF at = bulbs.pointAtPercent((i + 0.5) / n);
        const bool lit = running ? ((i + int(phase)) % 4 == 0) : (i % 2 == 0);
        p.setPen(Qt::NoPen);
        if (lit) {
            QRadialGradient glow(at, r.height() * 0.03);
            glow.setColorAt(0, QColor(255, 255, 220));
            glow.setColorAt(1, QColor(255, 210, 60, 0));
            p.setBrush(glow);
            p.drawEllipse(at, r.height() * 0.03, r.height() * 0.03);
        }
        p.setBrush(lit ? QColor(255, 245, 180) : QColor(150, 110, 30));
        p.drawEllipse(at, r.height() * 0.012, r.height() * 0.012);
    }
    // The name in the middle, between the two mystery plates.
    QFont f("DejaVu Sans", 10, QFont::Black);
    f.setPixelSize(int(r.height() * 0.06));
    p.setFont(f);
    p.setPen(QColor(255, 225, 80));
    const QRectF middle(r.center().x() - r.width() * 0.15, r.center().y() - r.height() * 0.1,
                        r.width() * 0.3, r.height() * 0.2);
    p.drawText(middle, Qt::AlignCenter, "The Wheel\nof Money!");
}

HostPanel::HostPanel(QWidget* parent) : QWidget(parent), host_(findAsset("images/wheel-show.svg")) {
    setObjectName("DirectFrame");
}

void HostPanel::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF r = QRectF(rect()).adjusted(3, 3, -3, -3);
    QLinearGradient g(r.topLeft(), r.bottomLeft());
    g.setColorAt(0, QColor(255, 255, 255, 245));
    g.setColorAt(1, QColor(232, 238, 255, 245));
    p.setPen(QPen(QColor(255, 200, 40), 5));
    p.setBrush(g);
    p.drawRoundedRect(r, 22, 22);
    // The caption tab, "Welcome", as the frame has always said.
    QFont f("DejaVu Sans", 10, QFont::Bold);
    f.setPixelSize(std::max(12, int(height() * 0.09)));
    p.setFont(f);
    const QRectF tab(r.left() + r.height() * 0.9, r.top() - 2,
                     p.fontMetrics().horizontalAdvance("Welcome") + 30,
                     p.fontMetrics().height() + 6);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(200, 30, 60));
    p.drawRoundedRect(tab, 10, 10);
    p.setPen(Qt::white);
    p.drawText(tab, Qt::AlignCenter, "Welcome");
    if (host_.isValid()) {
        const double h = r.height() * 0.95;
        host_.render(&p, "host", QRectF(r.left() + 8, r.bottom() - h, h * 300 / 300, h));
    }
}

GameShowForm::GameShowForm(QWidget* parent)
    : QWidget(parent),
      frame_(this, menuNames(), [this] { SetupGame(); }),
      back_(findAsset("images/moneyback.svg")) {
    setWindowTitle("Wheel of Money");
    setFocusPolicy(Qt::StrongFocus);
    frame_.setForeign([this](const QString& c) { FLForm::InsertAt(Text1, c); });

    HeadLabel = makeLabel(this, "HeadLabel", 34);
    HeadLabel->setStyleSheet("color: #ffd23f;");
    SpinsLabel = makeLabel(this, "SpinsLabel", 20);
    PrizeLabel = makeLabel(this, "PrizeLabel", 20);
    for (QLabel* l : {SpinsLabel, PrizeLabel})
        l->setStyleSheet(
            "color: #ffffff; background: rgba(20, 10, 60, 190); border: 2px solid #ffd23f;"
            " border-radius: 12px; padding: 6px 16px;");

    DirectFrame = new HostPanel(this);
    Label1 = makeLabel(DirectFrame, "Label1", 17, false);
    Label1->setWordWrap(true);
    Label1->setStyleSheet("color: #1b2050;");
    Label1->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    Command1 = MakeButton("", this, true);
    Command1->setObjectName("Command1");
    Command1->setFont(ScreenFont(18, true));
    connect(Command1, &QPushButton::clicked, this, &GameShowForm::clickCommand);

    WheelFrame = new WheelBoard(this);
    for (int i = 0; i < wheel::kSlots; ++i) {
        auto* l = makeLabel(WheelFrame, QString("WheelLabel%1").arg(i), 13);
        l->setStyleSheet(kPlateBlue);
        WheelLabel[i] = l;
        auto* m = new QLabel(WheelFrame);
        m->setObjectName(QString("Shape1_%1").arg(i));
        m->setStyleSheet(
            "background: qradialgradient(cx:0.4, cy:0.4, radius:0.6, stop:0 #ffb0b0,"
            " stop:1 #ff0000); border: 2px solid white; border-radius: 6px;");
        m->hide();
        Shape1[i] = m;
    }
    Label2 = makeLabel(this, "Label2", 18);
    Label2->setText("Press any key to stop the wheel...");
    Label2->setStyleSheet("color: #ffffff;");

    auto frameBox = [this](const QString& name) {
        auto* f = new QWidget(this);
        f->setObjectName(name);
        f->setAttribute(Qt::WA_StyledBackground);
        f->setStyleSheet("#" + name +
                         " { background: rgba(16, 22, 90, 235); border: 4px solid #ffd23f;"
                         " border-radius: 20px; }");
        f->hide();
        return f;
    };
    auto badge = [](QLabel* l) { l->setStyleSheet("color: #ffd23f;"); };
    TypeFrame = frameBox("TypeFrame");
    Label3 = makeLabel(TypeFrame, "Label3", 24);
    Label3->setWordWrap(true);
    Label3->setStyleSheet("color: white;");
    Text1 = new QLineEdit(TypeFrame);
    Text1->setObjectName("Text1");
    Text1->setFont(ScreenFont(22, true));
    Text1->setAlignment(Qt::AlignCenter);
    connect(Text1, &QLineEdit::returnPressed, this, [this] {
        Timer4->stop();
        afterVerdict(wheel::CheckTyped(Shared(), w_, fromQ(Text1->text())));
    });
    Label4 = makeLabel(TypeFrame, "Label4", 18);
    Label5 = makeLabel(TypeFrame, "Label5", 18);
    MultFrame = frameBox("MultFrame");
    Label8 = makeLabel(MultFrame, "Label8", 20);
    Label8->setWordWrap(true);
    Label8->setStyleSheet("color: white;");
    for (int i = 0; i < wheel::kChoices; ++i) {
        auto* l = makeLabel(MultFrame, QString("Label9_%1").arg(i), 17, false);
        l->setWordWrap(true);
        l->setStyleSheet(kChoiceStyle);
        l->setCursor(Qt::PointingHandCursor);
        l->installEventFilter(this);
        Label9[i] = l;
    }
    Label7 = makeLabel(MultFrame, "Label7", 18);
    Label6 = makeLabel(MultFrame, "Label6", 18);
    ClickFrame = frameBox("ClickFrame");
    Label12 = makeLabel(ClickFrame, "Label12", 20);
    Label12->setWordWrap(true);
    Label12->setStyleSheet("color: white;");
    for (int i = 0; i < wheel::kTiles; ++i) {
        auto* l = makeLabel(ClickFrame, QString("LLabel%1").arg(i), 22);
        l->setCursor(Qt::PointingHandCursor);
        l->installEventFilter(this);
        LLabel[i] = l;
    }
    Label11 = makeLabel(ClickFrame, "Label11", 18);
    Label10 = makeLabel(ClickFrame, "Label10", 18);
    for (QLabel* l : {Label4, Label5, Label7, Label6, Label11, Label10}) badge(l);

    MovieScreen = new Movie(this);
    MovieScreen->setObjectName("MovieScreen");
    MovieScreen->hide();

    Timer1 = &frame_.timer("Timer1", 1, [this] { stepWheel(); });
    Timer2 = &frame_.timer("Timer2", 50, [this] { flash(); });
    Timer4 = &frame_.timer("Timer4", 1000, [this] { countDown(); });
    // Restart leaves an unseen countdown running on, as the show always has.
    frame_.keepOnRestart("Timer4");

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

QLabel* GameShowForm::makeLabel(QWidget* parent, const QString& name, int points, bool bold) {
    auto* l = new QLabel(parent);
    l->setObjectName(name);
    l->setFont(ScreenFont(points, bold));
    l->setAlignment(Qt::AlignCenter);
    return l;
}

void GameShowForm::SetupGame() {
    wheel::SetupGame(Shared(), w_, TheRng());
    showState();
    playShow("wheelintro");
}

void GameShowForm::playShow(const QString& name) {
    MovieScreen->load(name);
    MovieScreen->show();
    MovieScreen->raise();
    MovieScreen->play(false, frame_.later([this] {
        MovieScreen->hide();
        wheel::AnimationEnded(w_);
        showState();
    }));
}

void GameShowForm::clickCommand() {
    if (!w_.commandShown || !w_.commandEnabled) return;
    const wheel::Action a = wheel::ClickCommand(w_);
    switch (a) {
        case wheel::Action::ToWheel:
            Timer1->start();
            setFocus();
            break;
        case wheel::Action::EndGame:
            showState();
            endGame();
            return;
        case wheel::Action::Type:
            Text1->clear();
            Timer4->start();
            break;
        case wheel::Action::Choice:
        case wheel::Action::Letters:
            Timer4->start();
            break;
    }
    showState();
    if (a == wheel::Action::Type) Text1->setFocus();
}

void GameShowForm::stepWheel() {
    const int from = w_.WheelPos;
    wheel::StepWheel(w_);
    WheelFrame->phase += 1;
    sound().effect("beep.wav");
    // Only the two plates and markers that changed, at the wheel's pace.
    Shape1[from]->hide();
    Shape1[w_.WheelPos]->show();
    WheelFrame->update();
}

void GameShowForm::keyPressEvent(QKeyEvent* e) {
    // Any key stops a running wheel; at other times keys do nothing here.
    if (wheel::StopWheel(w_)) {
        Timer1->stop();
        Timer2->start();
        showState();
        return;
    }
    QWidget::keyPressEvent(e);
}

void GameShowForm::flash() {
    if (wheel::Flash(w_)) {
        Timer2->stop();
        startSlot();
        return;
    }
    showState();
}

void GameShowForm::startSlot() {
    const wheel::SlotStart st = wheel::StartSlot(Shared(), w_, TheRng());
    if (st.show != wheel::Show::None) {
        if (st.cheer) sound().effect("cheer.wav");
        if (st.ooh) sound().effect("ooh.wav");
        playShow(st.show == wheel::Show::Thief ? "thief" : "fortune");
    }
    showState();
}

void GameShowForm::clickChoice(int i) {
    if (w_.frame != wheel::Frame::Choice) return;
    Timer4->stop();
    afterVerdict(wheel::ClickChoice(Shared(), w_, i));
}

void GameShowForm::clickTile(int i) {
    if (w_.frame != wheel::Frame::Letters) return;
    const wheel::Verdict v = wheel::ClickTile(Shared(), w_, i);
    if (v.decided) Timer4->stop();
    afterVerdict(v);
}

void GameShowForm::afterVerdict(const wheel::Verdict& v) {
    if (v.ooh) sound().effect("ooh.wav");
    if (v.decided) sound().effect(v.right ? "cheer.wav" : "ooh.wav");
    if (!v.decided && w_.frame != wheel::Frame::None && !Timer4->isActive()) Timer4->start();
    showState();
}

void GameShowForm::countDown() {
    if (wheel::CountDown(w_)) {
        Timer4->stop();
        sound().effect("ooh.wav");
    }
    showState();
}

void GameShowForm::endGame() {
    SharedState& s = Shared();
    if (wheel::EndGame(w_, s) == wheel::Ending::Practice) {
        sound().effect("ooh.wav");
        dialogs().message(kPractice, "Wheel of Money");
        frame_.quit();
        return;
    }
    sound().effect("cheer.wav");
    EndTexts end;
    end.placed = "You won a cash and prize total of ${score}! Would you like to try again?";
    end.notPlaced =
        "Congratulations! Your cash and prize total for this game was ${score}! Would you like to "
        "try again?";
    end.raise = "Would you like to raise the difficulty level for this next game?";
    frame_.wonGame(end);
}

void GameShowForm::showState() {
    HeadLabel->setText(toQ(w_.HeadLabel));
    SpinsLabel->setText(toQ(wheel::SpinsText(w_.SpinsLeft)));
    PrizeLabel->setText(toQ(wheel::TotalText(Shared().Score)));
    Label1->setText(toQ(w_.Label1));
    DirectFrame->setVisible(w_.directShown);
    Command1->setText(toQ(w_.Command1));
    Command1->setVisible(w_.commandShown);
    Command1->setEnabled(w_.commandEnabled);
    WheelFrame->setVisible(w_.wheelShown);
    WheelFrame->running = w_.Spinning;
    Label2->setVisible(w_.wheelShown);
    for (int i = 0; i < wheel::kSlots; ++i) {
        SetText(WheelLabel[i], toQ(w_.captions[i]));
        const bool here = i == w_.WheelPos;
        SetStyle(WheelLabel[i], here && w_.flashRed ? kPlateRed : kPlateBlue);
        Shape1[i]->setVisible(here && (w_.Spinning || w_.FlashCount > 0));
    }
    TypeFrame->setVisible(w_.frame == wheel::Frame::Type);
    MultFrame->setVisible(w_.frame == wheel::Frame::Choice);
    ClickFrame->setVisible(w_.frame == wheel::Frame::Letters);
    if (QAction* fl = frame_.entry(GameFrame::Entry::Foreign))
        fl->setEnabled(w_.frame == wheel::Frame::Type);
    const QString time = toQ(wheel::TimeText(w_.SecondsLeft));
    const QString prize = toQ(wheel::PrizeText(w_.PrizeAmount));
    Label3->setText(toQ(w_.question));
    Label8->setText(toQ(w_.question));
    Label12->setText(toQ(w_.question));
    for (QLabel* l : {Label4, Label7, Label11}) l->setText(time);
    for (QLabel* l : {Label5, Label6, Label10}) l->setText(prize);
    for (int i = 0; i < wheel::kChoices; ++i) {
        Label9[i]->setText(toQ(w_.choices[i]));
        Label9[i]->setVisible(w_.choiceShown[i]);
    }
    for (int i = 0; i < wheel::kTiles; ++i) {
        SetText(LLabel[i], toQ(w_.tiles[i]));
        LLabel[i]->setVisible(i < w_.tileCount);
        // Dark red while in play, dark blue once marked.
        SetStyle(LLabel[i], kTileStyle.arg(w_.TileMarked[i] ? "#000080" : "#c00000"));
    }
    layOut();
    update();
}

void GameShowForm::layOut() {
    const int W = width(), H = height();
    const int menuH = frame_.menuHeight();
    HeadLabel->adjustSize();
    HeadLabel->move((W - HeadLabel->width()) / 2, menuH + H / 60);
    SpinsLabel->adjustSize();
    SpinsLabel->move(int(0.05 * W), int(0.85 * H));
    PrizeLabel->adjustSize();
    PrizeLabel->move(W - PrizeLabel->width() - int(0.05 * W), int(0.85 * H));

    const QRect direct(int(0.1 * W), int(0.2 * H), int(0.8 * W), int(0.22 * H));
    DirectFrame->setGeometry(direct);
    const int hostW = int(direct.height() * 0.95);
    Label1->setGeometry(hostW + 30, direct.height() / 8, direct.width() - hostW - 60,
                        direct.height() * 3 / 4);
    Command1->adjustSize();
    const int bw = std::max(Command1->sizeHint().width() + 60, W / 3);
    Command1->setGeometry((W - bw) / 2, int(0.6 * H), bw,
                          std::max(Command1->minimumHeight(), H / 13));

    // The wheel keeps its designed shape, as large as the stage allows.
    const double k = std::min(0.88 * W / (kWheelW + 2 * kPadX), 0.6 * H / (kWheelH + 2 * kPadY));
    const QSize wheelSize(int((kWheelW + 2 * kPadX) * k), int((kWheelH + 2 * kPadY) * k));
    WheelFrame->setGeometry((W - wheelSize.width()) / 2, (H - wheelSize.height()) / 2 - H / 40,
                            wheelSize.width(), wheelSize.height());
    // One type size for every plate, small enough that the longest caption fits inside its
    // border at this scale.
    QFont plateFont = WheelLabel[0]->font();
    const int room = int(kPlateW * k) - 14;
    for (int points = ScreenFont(13, true).pointSize(); points > 6; --points) {
        plateFont.setPointSize(points);
        int widest = 0;
        for (const auto& slot : wheel::kWheel)
            widest = std::max(widest, QFontMetrics(plateFont).horizontalAdvance(slot.caption));
        if (widest <= room) break;
    }
    for (int i = 0; i < wheel::kSlots; ++i) {
        const auto& slot = wheel::kWheel[i];
        WheelLabel[i]->setFont(plateFont);
        // The plates stand where the design puts them, shifted in from the frame's border.
        const double ox = kPadX, oy = kPadY;
        WheelLabel[i]->setGeometry(int((slot.left + ox) * k), int((slot.top + oy) * k),
                                   int(kPlateW * k), int(kPlateH * k * 1.25));
        Shape1[i]->setGeometry(int((slot.markerLeft + ox) * k), int((slot.markerTop + oy) * k),
                               int(kMarker * k), int(kMarker * k));
    }
    Label2->adjustSize();
    Label2->move((W - Label2->width()) / 2, WheelFrame->geometry().bottom() + H / 60);

    const QRect below(direct.left(), direct.bottom() + H / 60, direct.width(), int(0.38 * H));
    for (QWidget* f : {TypeFrame, MultFrame, ClickFrame}) f->setGeometry(below);
    const int pad = below.width() / 30;
    const int inner = below.width() - 2 * pad;
    const int badgeY = below.height() - H / 18;
    for (auto [time, prize] : {std::pair{Label4, Label5}, {Label7, Label6}, {Label11, Label10}}) {
        time->adjustSize();
        prize->adjustSize();
        time->move(pad, badgeY);
        prize->move(below.width() - pad - prize->width(), badgeY);
    }
    Label3->setGeometry(pad, pad / 2, inner, below.height() * 2 / 5);
    Text1->setGeometry(pad + inner / 6, below.height() * 2 / 5 + pad / 2, inner * 2 / 3,
                       Text1->sizeHint().height() + 10);
    Label8->setGeometry(pad, pad / 3, inner, below.height() / 5);
    const int choiceTop = below.height() / 5 + pad / 2;
    const int choiceH = (badgeY - choiceTop - pad / 2) / 2;
    for (int i = 0; i < wheel::kChoices; ++i) {
        const int col = i % 2, row = i / 2;
        Label9[i]->setGeometry(pad + col * (inner / 2 + pad / 4), choiceTop + row * choiceH,
                               inner / 2 - pad / 4, choiceH - pad / 3);
    }
    // True or False: the two answers side by side in the middle row.
    if (w_.kind == wheel::Kind::TrueFalse) {
        Label9[1]->setGeometry(pad, choiceTop + choiceH / 2, inner / 2 - pad / 4,
                               choiceH - pad / 3);
        Label9[2]->setGeometry(pad + inner / 2 + pad / 4, choiceTop + choiceH / 2,
                               inner / 2 - pad / 4, choiceH - pad / 3);
    }
    Label12->setGeometry(pad, pad / 3, inner, below.height() / 4);
    const int n = std::max(1, w_.tileCount);
    const int tileW = std::min(inner / n, int(below.height() * 0.28));
    const int rowX = (below.width() - tileW * n) / 2;
    for (int i = 0; i < wheel::kTiles; ++i)
        LLabel[i]->setGeometry(rowX + i * tileW + 2, below.height() * 2 / 5, tileW - 4,
                               int(tileW * 1.2));

    // The show's films play under the heading, never over it.
    const int movieTop = std::max(int(0.1 * H), HeadLabel->geometry().bottom() + H / 80);
    MovieScreen->setGeometry(int(0.1 * W), movieTop, int(0.8 * W), int(0.8 * H) - movieTop);
}

void GameShowForm::resizeEvent(QResizeEvent*) {
    backCache_ = QPixmap();
    layOut();
}

void GameShowForm::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (backCache_.size() != size()) {
        backCache_ = QPixmap(size());
        backCache_.fill(QColor(18, 6, 46));
        QPainter bp(&backCache_);
        if (back_.isValid()) back_.render(&bp, QRectF(backCache_.rect()));
    }
    p.drawPixmap(0, 0, backCache_);
}

bool GameShowForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        for (int i = 0; i < wheel::kChoices; ++i)
            if (watched == Label9[i]) clickChoice(i);
        for (int i = 0; i < wheel::kTiles; ++i)
            if (watched == LLabel[i]) clickTile(i);
    }
    return QWidget::eventFilter(watched, event);
}

WM_REGISTER_GAME("Wheel of Money", GameShowForm, "images/moneyback.svg", "images/wheel-show.svg",
                 "sounds/beep.wav", "sounds/cheer.wav", "sounds/ooh.wav");

namespace {
const bool kScenes = (RegisterWheelScenes(), true);
}  // namespace

}  // namespace wm
