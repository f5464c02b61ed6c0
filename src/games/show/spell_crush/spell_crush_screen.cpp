#include "games/show/spell_crush/spell_crush_screen.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/movie.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

namespace {
// The design's stage, 1024 x 768 pixels at 15 twips a pixel.
constexpr double kStageW = 15360, kStageH = 11520;
constexpr double kSafeW = 2400, kSafeH = 4200;  // the swinging safe's frame, rope included
constexpr double kWordsY = 7400;                // the top of the row of words
constexpr double kStepTwips = 10;               // the safe's move per tick
constexpr double kRiseTwips = 50;               // how far the points float up
constexpr int kCrushTicks = 14;

const char* kWordStyle =
    "QLabel { color: #1b1b1b; background: #ffff00; border: 4px solid #b98900;"
    " border-radius: 14px; padding: 4px 10px; }";
const char* kWrongStyle =
    "QLabel { color: white; background: #ff0000; border: 4px solid #8a0000;"
    " border-radius: 14px; padding: 4px 10px; }";
// The floating points: a big number on a white cloud, so that it reads over anything.
const QString kPointsStyle =
    "QLabel { color: %1; background: rgba(255, 255, 255, 220); border-radius: 16px;"
    " padding: 4px 16px; font: bold 34px 'DejaVu Sans'; }";
const char* kBadgeStyle =
    "color: white; background: rgba(40, 30, 20, 170); border-radius: 12px; padding: 4px 14px;";

}  // namespace

SpellCrushGame::SpellCrushGame(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames(), [this] { NewGame(); }),
      safePicture_(findAsset("images/spellcrush-safe.svg")),
      robot_(findAsset("images/spellcrush-robot.svg")) {
    setWindowTitle("Spell Crush");
    setFocusPolicy(Qt::StrongFocus);

    Label1 = new QLabel(toQ(spellcrush::kDirections), this);
    Label1->setObjectName("Label1");
    Label2 = new QLabel(this);
    Label2->setObjectName("Label2");
    Label3 = new QLabel(this);
    Label3->setObjectName("Label3");
    for (QLabel* l : {Label1, Label2, Label3}) {
        l->setFont(ScreenFont(l == Label1 ? 15 : 17, true));
        l->setStyleSheet(kBadgeStyle);
        l->setAlignment(Qt::AlignCenter);
    }
    for (int i = 0; i < spellcrush::kWords; ++i) {
        auto* l = new QLabel(this);
        l->setObjectName(QString("WordLabel%1").arg(i));
        l->setAlignment(Qt::AlignCenter);
        l->setStyleSheet(kWordStyle);
        l->setCursor(Qt::PointingHandCursor);
        l->installEventFilter(this);
        WordLabel[i] = l;
    }
    PLabel = new QLabel(this);
    PLabel->setObjectName("PLabel");
    PLabel->setAlignment(Qt::AlignCenter);
    PLabel->hide();

    Safe = new Movie(this);
    Safe->setObjectName("Safe");
    Safe->setAttribute(Qt::WA_TransparentForMouseEvents);
    Safe->load("safeswing");

    Timer1 = &frame_.timer("Timer1", 1000, [this] { countSecond(); });
    Timer2 = &frame_.timer("Timer2", 10, [this] { moveSafe(); });
    Timer3 = &frame_.timer("Timer3", 10, [this] { dropSafe(); });
    Timer4 = &frame_.timer("Timer4", 10, [this] { crushWord(); });
    Timer5 = &frame_.timer("Timer5", 10, [this] { risePoints(); });

    resize(ScreenMetrics::screenSize());
    safeX_ = (kStageW - kSafeW) / 2;
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

double SpellCrushGame::twip() const {
    return std::min(width() / kStageW, height() / kStageH);
}

int SpellCrushGame::safeLeftFor(int index) const {
    const double centre = (index + 0.5) * kStageW / spellcrush::kWords;
    return int(centre - kSafeW / 2);
}

void SpellCrushGame::NewGame() {
    stage_ = Stage::Waiting;
    robotPose_ = 0;
    spellcrush::newGame(Shared(), game_, TheRng());
    Label2->setText("Time: " + QString::number(game_.SecondsLeft));
    showDeal();
    Timer1->start();
}

void SpellCrushGame::showDeal() {
    stage_ = Stage::Waiting;
    for (int i = 0; i < spellcrush::kWords; ++i) {
        WordLabel[i]->setText(toQ(game_.shown[i]));
        WordLabel[i]->setStyleSheet(kWordStyle);
        WordLabel[i]->show();
    }
    PLabel->hide();
    Label3->setText("Score: " + toQ(NumText(Shared().Score)));
    Safe->show();
    Safe->play(true);
    layOut();
    update();
}

void SpellCrushGame::clickWord(int index) {
    if (busy() || frame_.leaving() || index < 0 || index >= spellcrush::kWords) return;
    game_.ClickedWord = index;
    sound().effect("squeaky.wav");
    stage_ = Stage::Moving;
    Timer2->start();
}

void SpellCrushGame::moveSafe() {
    const double target = safeLeftFor(game_.ClickedWord);
    if (std::abs(target - safeX_) > kStepTwips) {
        safeX_ += target > safeX_ ? kStepTwips : -kStepTwips;
        layOut();
        return;
    }
    safeX_ = target;
    Timer2->stop();
    // Over the word: the swinging stops and the safe falls.
    Safe->stop();
    Safe->hide();
    stage_ = Stage::Falling;
    const double u = twip();
    dropY_ = beamY_ + (kSafeH - kSafeW * 0.78) * u;
    dropSpeed_ = 0;
    Timer3->start();
    update();
}

void SpellCrushGame::dropSafe() {
    const double u = twip();
    const double size = kSafeW * 0.74 * u;
    dropSpeed_ += size * 0.02;
    dropY_ += dropSpeed_;
    QLabel* target = WordLabel[game_.ClickedWord];
    if (dropY_ + size < target->y()) {
        update();
        return;
    }
    dropY_ = target->y() - size;
    Timer3->stop();
    sound().effect("fall.wav");
    const auto verdict = spellcrush::judge(Shared(), game_, game_.ClickedWord);
    lastRight_ = verdict.right;
    if (verdict.right) {
        sound().effect("glassbk.wav");
        robotPose_ = 1;
        PLabel->setText("+" + QString::number(verdict.points));
        PLabel->setStyleSheet(kPointsStyle.arg("#1f9d3a"));
        Label3->setText("Score: " + toQ(NumText(Shared().Score)));
        crushStep_ = 0;
        stage_ = Stage::Crushing;
        Timer4->start();
    } else {
        target->setStyleSheet(kWrongStyle);
        sound().effect("2.wav");
        robotPose_ = 2;
        PLabel->setText("WRONG!");
        PLabel->setStyleSheet(kPointsStyle.arg("#e01010"));
        risen_ = 0;
        stage_ = Stage::Rising;
        PLabel->show();
        Timer5->start();
    }
    layOut();
    update();
}

void SpellCrushGame::crushWord() {
    QLabel* target = WordLabel[game_.ClickedWord];
    if (++crushStep_ < kCrushTicks) {
        // The word is squashed flat under the safe.
        const int h = std::max(4, target->height() * (kCrushTicks - crushStep_) / kCrushTicks);
        const int bottom = target->geometry().bottom();
        target->setGeometry(target->x(), bottom - h, target->width(), h);
        dropY_ = target->y() - kSafeW * 0.74 * twip();
        update();
        return;
    }
    Timer4->stop();
    target->hide();
    risen_ = 0;
    stage_ = Stage::Rising;
    PLabel->show();
    Timer5->start();
    layOut();
}

void SpellCrushGame::risePoints() {
    risen_ += 1;
    if (risen_ < kRiseTwips) {
        layOut();
        return;
    }
    Timer5->stop();
    robotPose_ = 0;
    spellcrush::deal(Shared(), game_, TheRng());
    showDeal();
}

void SpellCrushGame::countSecond() {
    const bool over = spellcrush::countSecond(game_);
    Label2->setText("Time: " + QString::number(game_.SecondsLeft));
    if (over) endGame();
}

void SpellCrushGame::endGame() {
    frame_.stopTimers();
    Safe->stop();
    stage_ = Stage::Waiting;
    if (Shared().Score == 0) {
        dialogs().message(toQ(spellcrush::kNoScore), "Spell Crush");
        frame_.quit();
        return;
    }
    robotPose_ = 3;
    update();
    sound().effect("cymbals.wav");
    EndTexts end;
    end.placed = toQ(spellcrush::kPlaced);
    end.notPlaced = toQ(spellcrush::kNotPlaced);
    end.raiseWhenPlaced = false;
    frame_.wonGame(end);
}

void SpellCrushGame::layOut() {
    const double u = twip();
    const int w = width(), h = height();
    const int top = frame_.menuHeight() + h / 80;
    Label1->adjustSize();
    Label1->move((w - Label1->width()) / 2, top);
    Label2->setFixedWidth(Label2->fontMetrics().horizontalAdvance("Time: 000") + 40);
    Label2->adjustSize();
    Label2->move(w - Label2->width() - w / 40, top);
    Label3->setFixedWidth(Label3->fontMetrics().horizontalAdvance("Score: 0000000") + 40);
    Label3->adjustSize();
    Label3->move(w / 40, top);
    beamY_ = Label1->geometry().bottom() + h / 25;

    // The row of words: each centred in its quarter, all as wide as the widest word, never
    // wider than a fifth and a half of the screen, so that the row fits; a long word takes a
    // smaller type rather than losing its ends.
    const QFont full = ScreenFont(26, true);
    const int cap = int(w / 5.5);
    const auto widestAt = [this](const QFont& font) {
        const QFontMetrics m(font);
        int widest = 0;
        for (QLabel* l : WordLabel) widest = std::max(widest, m.horizontalAdvance(l->text()) + 40);
        return widest;
    };
    QFont f = full;
    while (widestAt(f) > cap && f.pointSize() > 8) f.setPointSize(f.pointSize() - 1);
    for (QLabel* l : WordLabel) l->setFont(f);
    const int labelW = std::min(widestAt(f), cap);
    const int labelH = QFontMetrics(full).height() + 28;
    const int rowY = int(kWordsY * u + (h - kStageH * u) / 2);
    for (int i = 0; i < spellcrush::kWords; ++i) {
        QLabel* l = WordLabel[i];
        const int cx = (2 * i + 1) * w / (2 * spellcrush::kWords);
        if (stage_ != Stage::Crushing || i != game_.ClickedWord)
            l->setGeometry(cx - labelW / 2, rowY, labelW, labelH);
    }
    // The safe's frame, in twips across the stage, scaled to the screen's width.
    const double sx = double(w) / kStageW;
    Safe->setGeometry(int(safeX_ * sx), beamY_, int(kSafeW * u), int(kSafeH * u));
    if (game_.ClickedWord >= 0) {
        QLabel* target = WordLabel[game_.ClickedWord];
        // Above the safe that sits on the word, floating up.
        PLabel->adjustSize();
        const int safeTop = int(rowY - kSafeW * 0.74 * u);
        PLabel->move(target->x() + (target->width() - PLabel->width()) / 2,
                     int(safeTop - PLabel->height() - h / 60 - risen_ * u * 12));
    }
}

void SpellCrushGame::resizeEvent(QResizeEvent*) {
    layOut();
}

bool SpellCrushGame::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        for (int i = 0; i < spellcrush::kWords; ++i)
            if (watched == WordLabel[i]) clickWord(i);
    }
    return QWidget::eventFilter(watched, event);
}

void SpellCrushGame::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const int w = width(), h = height();
    const double u = twip();
    // A warm evening sky over a building site.
    QLinearGradient sky(0, 0, 0, h);
    sky.setColorAt(0, QColor(255, 196, 120));
    sky.setColorAt(0.55, QColor(255, 232, 186));
    sky.setColorAt(1, QColor(250, 244, 226));
    p.fillRect(rect(), sky);
    const int floorY = int(h * 0.78);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 70));
    for (int i = 0; i < 5; ++i) {
        const double x = w * (0.1 + 0.2 * i), y = h * (0.22 + 0.05 * (i % 2));
        p.drawEllipse(QPointF(x, y), w * 0.07, h * 0.03);
        p.drawEllipse(QPointF(x + w * 0.05, y + h * 0.01), w * 0.05, h * 0.025);
    }
    // A town on the horizon, in the haze.
    p.setBrush(QColor(226, 170, 120, 150));
    const int skyline = floorY;
    for (int i = 0; i < 14; ++i) {
        const double bw = w / 14.0;
        const double bh = h * (0.08 + 0.05 * ((i * 7) % 5) / 4.0);
        p.drawRect(QRectF(i * bw + bw * 0.1, skyline - bh, bw * 0.8, bh));
    }
    QLinearGradient ground(0, floorY, 0, h);
    ground.setColorAt(0, QColor(142, 116, 88));
    ground.setColorAt(1, QColor(96, 76, 58));
    p.fillRect(QRect(0, floorY, w, h - floorY), ground);
    p.fillRect(QRect(0, floorY, w, h / 120 + 2), QColor(70, 54, 40));

    // The crane's beam the safe hangs from: a yellow lattice across the top.
    const int beamY = beamY_;
    const int beamH = std::max(10, int(h * 0.03));
    p.setBrush(QColor(246, 190, 0));
    p.setPen(QPen(QColor(120, 90, 0), 3));
    p.drawRect(QRect(-4, beamY - beamH, w + 8, beamH));
    p.setPen(QPen(QColor(120, 90, 0), 2));
    for (int x = 0; x < w; x += beamH) {
        p.drawLine(x, beamY - beamH, x + beamH, beamY);
        p.drawLine(x + beamH, beamY - beamH, x, beamY);
    }
    // The trolley riding the beam above the safe.
    const double sx = double(w) / kStageW;
    const int trolleyX = int((safeX_ + kSafeW / 2) * sx);
    p.setBrush(QColor(80, 80, 90));
    p.setPen(Qt::NoPen);
    p.drawRoundedRect(QRect(trolleyX - beamH, beamY - beamH / 2, 2 * beamH, beamH), 5, 5);

    // The falling safe, once the swing has stopped over a word.
    if (stage_ == Stage::Falling || stage_ == Stage::Crushing ||
        (stage_ == Stage::Rising && !Safe->isVisible())) {
        const double size = kSafeW * 0.74 * u;
        const double x = (safeX_ + kSafeW / 2) * sx - size / 2;
        p.setPen(QPen(QColor(70, 56, 40), std::max(2.0, size * 0.03)));
        p.drawLine(QPointF(x + size / 2, beamY), QPointF(x + size / 2, dropY_));
        if (safePicture_.isValid()) safePicture_.render(&p, "safe", QRectF(x, dropY_, size, size));
    }

    // The robot looks on from the ground in front.
    if (robot_.isValid()) {
        const QString pose = QString("robot_%1").arg(robotPose_);
        const double rh = h * 0.2;
        robot_.render(&p, pose, QRectF(w * 0.03, h * 0.985 - rh, rh * 220 / 260, rh));
    }
}

WM_REGISTER_GAME("Spell Crush", SpellCrushGame, "images/spellcrush-safe.svg",
                 "images/spellcrush-robot.svg", "sounds/fall.wav", "sounds/2.wav",
                 "sounds/cymbals.wav", "sounds/glassbk.wav", "sounds/squeaky.wav");

namespace {
// The swinging safe joins the animations when the game is linked in.
const bool kScenes = (RegisterSpellCrushScenes(), true);
}  // namespace

}  // namespace wm
