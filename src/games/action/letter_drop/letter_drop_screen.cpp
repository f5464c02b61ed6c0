#include "games/action/letter_drop/letter_drop_screen.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>
#include <QSvgRenderer>
#include <QTimer>
#include <cmath>

#include <QCloseEvent>
#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/key_state.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/screens.h"

namespace wm {

using namespace letter_drop;

namespace {
constexpr int kW = kFieldW / 15, kH = kFieldH / 15;  // the field in pixels
constexpr int kGlyphH = 44;
const QColor kTileBack(192, 192, 255);   // 16761024
const QColor kTileBlink(255, 128, 128);  // 8421631

GameMenuNames menuNames() {
    GameMenuNames n;
    n.restart = "Back";
    n.quit = "Back2";
    return n;
}

int px(int twips) {
    return twips / 15;
}

// The night sky over a grassy strip: drawn once, the field's background. A missing picture
// leaves a plain dark sky.
QImage NightSky() {
    QImage sky(kW, kH, QImage::Format_RGB32);
    sky.fill(QColor(14, 16, 50));
    QSvgRenderer svg(findAsset("images/letterdrop-sky.svg"));
    if (svg.isValid()) {
        QPainter p(&sky);
        p.setRenderHint(QPainter::Antialiasing);
        svg.render(&p, QRectF(0, 0, kW, kH));
    }
    return sky;
}

QImage Glyph(char c) {
    QImage img(kTileW / 15, kGlyphH, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(38);
    p.setFont(f);
    const QString text = toQ(std::string(1, c));
    QPainterPath path;
    const QFontMetrics fm(f);
    path.addText((img.width() - fm.horizontalAdvance(text)) / 2.0, fm.ascent() + 1, f, text);
    p.setPen(QPen(QColor(120, 60, 0), 3));
    p.drawPath(path);
    p.fillPath(path, QColor(255, 255, 0));  // 65535, yellow
    return img;
}
}  // namespace

LetterFall::LetterFall(QWidget* parent)
    : QWidget(parent),
      frame_(this, menuNames(), [this] { SetupGame(); }),
      Timer1(frame_.timer("Timer1", 50, [this] { fallTick(); })),
      Timer2(frame_.timer(
          "Timer2", 1,
          [this] {
              dialogs().message(kReady, "Letter Drop!");
              Timer1.start();
              Timer4.start();
              setFocus();
          },
          true)),
      Timer4(frame_.timer("Timer4", 1, [this] { starTick(); })) {
    setWindowTitle("Letter Drop!");
    // Hearing the word and building it from its falling letters is the exercise. The game keeps
    // the word in capitals, which a voice might spell out letter by letter.
    frame_.setSayIt([] {
        Spoken word = ShownWord();
        word.text = word.text.toLower();
        return word;
    });
    field_ = new PlayField(QSize(kW, kH), this);
    frame_.hostPlay(field_);
    field_->setBackground(NightSky());
    keys_ = new KeyState(this);
    Label1 = new QLabel(this);
    Label1->setObjectName("Label1");
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setWordWrap(true);
    Label1->setStyleSheet("color: #fff8d0; background: transparent;");
    ScoreLabel = new QLabel(this);
    ScoreLabel->setObjectName("ScoreLabel");
    ScoreLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    ScoreLabel->setStyleSheet("color: #ffe070; background: transparent;");
    for (int i = 0; i < kTiles; ++i) {
        auto* t = new QLabel(this);
        t->setObjectName(QString("Letter%1").arg(i));
        t->setAlignment(Qt::AlignCenter);
        t->hide();
        Letter.push_back(t);
    }
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void LetterFall::SetupGame() {
    SharedState& s = Shared();
    field_->setBackground(field_->background());  // clears the surface
    letterSprite_ = {};
    starSprite_ = {};
    star_ = {};
    keys_->clear();
    dissolve_ = 0;
    won_ = false;
    const Setup setup = game_.setup(s, TheRng());
    if (setup != Setup::Ready) {
        for (auto* t : Letter) t->hide();
        frame_.refuse(setup == Setup::TooLong ? kTooLong : kNoLetters, "Letter Drop!");
        return;
    }
    Label1->setText(toQ("Definition:  " + s.TheMeaning));
    Label1->setVisible(s.GameOptionOn != kFalse);
    showScore();
    showTiles();
    resizeEvent(nullptr);
    setFocus();
    Timer2.start();
}

void LetterFall::showTiles() {
    for (int i = 0; i < kTiles; ++i) {
        QLabel* t = Letter[i];
        t->setVisible(game_.tileVisible(i));
        const QString text =
            game_.tileShows(i) ? toQ(std::string(1, game_.tileChar(i))) : QString();
        if (t->text() != text) t->setText(text);
        // Style sheets are dear: set only when the colour changes.
        const bool blink = i == game_.hintTile() && blink_;
        const QString colour = (blink ? kTileBlink : kTileBack).name();
        if (t->property("back").toString() == colour) continue;
        t->setProperty("back", colour);
        t->setStyleSheet(QString("QLabel { background: %1; color: #202060; border: 2px solid "
                                 "#4050a0; border-radius: 6px; }")
                             .arg(colour));
    }
}

void LetterFall::showScore() {
    ScoreLabel->setText(QString("Score: %1").arg(frame_.scoreText(Shared().Score)));
}

void LetterFall::fallTick() {
    if (dissolve_ > 0) {
        dissolveStep();
        return;
    }
    SharedState& s = Shared();
    Keys k;
    k.left = keys_->isDown(Qt::Key_Left);
    k.right = keys_->isDown(Qt::Key_Right);
    k.down = keys_->isDown(Qt::Key_Down);
    const char before = game_.falling();
    const Landing landed = game_.tick(s, k, TheRng());
    switch (landed) {
        case Landing::None:
            break;
        case Landing::Right:
        case Landing::Won:
            if (landed == Landing::Right) sound().effect("zap.wav");
            showScore();
            break;
        case Landing::Wrong: {
            sound().effect("crumble.wav");
            showScore();
            // The letter stays where it fell and crumbles away over a few ticks.
            letterSprite_.erase(*field_);
            const QPoint at(px(game_.landedX()), px(game_.landedY()));
            field_->drawTransparent(at, Glyph(before));
            field_->markDirty(QRect(at, QSize(kTileW / 15, kGlyphH)));
            dissolve_ = 4;
            break;
        }
    }
    if (game_.hintOn())
        blink_ = !blink_;
    else
        blink_ = false;
    showTiles();
    if (landed == Landing::Won) {
        win();
        return;
    }
    redrawSprites();
}

void LetterFall::dissolveStep() {
    // 10000 dark points over the letter's box in all, spread over the dissolve's ticks.
    const QRect box(px(game_.landedX()), px(game_.landedY()), kTileW / 15, kGlyphH);
    QRandomGenerator* r = QRandomGenerator::global();
    QImage& surf = field_->surface();
    for (int i = 0; i < 2500; ++i) {
        const int x = box.left() + r->bounded(box.width()),
                  y = box.top() + r->bounded(box.height());
        if (surf.rect().contains(x, y)) surf.setPixel(x, y, qRgb(0, 0, 0));
    }
    field_->markDirty(box);
    if (--dissolve_ == 0) field_->restoreBackground(box);
    redrawSprites();
}

void LetterFall::starTick() {
    star_.tick(TheRng());
    redrawSprites();
}

void LetterFall::redrawSprites() {
    starSprite_.erase(*field_);
    letterSprite_.erase(*field_);
    if (!won_ && dissolve_ == 0 && game_.lettersLeft() > 0) {
        if (letterPicFor_ != game_.falling() || letterPic_.isNull()) {
            letterPic_ = Glyph(game_.falling());
            letterPicFor_ = game_.falling();
        }
        letterSprite_.draw(*field_, QPoint(px(game_.x()), px(game_.y())), letterPic_);
    }
    if (star_.flying()) {
        const auto& tr = star_.trail();
        QRect box;
        for (int i = 0; i < star_.points(); ++i)
            box |= QRect(px(tr[i].first) - 3, px(tr[i].second) - 3, 7, 7);
        QImage pic(box.size(), QImage::Format_ARGB32_Premultiplied);
        pic.fill(Qt::transparent);
        QPainter p(&pic);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(Qt::NoPen);
        for (int i = star_.points() - 1; i >= 0; --i) {
            const int a = 255 - i * 32;  // the trail fades towards its end
            p.setBrush(QColor(255, 255, 255, a));
            const double r = i == 0 ? 3.0 : 2.2 - i * 0.2;
            p.drawEllipse(QPointF(px(tr[i].first) - box.left(), px(tr[i].second) - box.top()), r,
                          r);
        }
        p.end();
        starSprite_.draw(*field_, box.topLeft(), pic);
    }
    field_->flush();
}

void LetterFall::win() {
    won_ = true;
    frame_.stopTimers();
    redrawSprites();
    SharedState& s = Shared();
    s.Score = std::floor(s.Score);
    showScore();
    frame_.wonGame();
}

void LetterFall::keyReleaseEvent(QKeyEvent* e) {
    // Each release of Down is a point for dropping fast; shown at the next score update.
    if (e->key() == Qt::Key_Down && !e->isAutoRepeat() && Timer1.isActive())
        Game::downReleased(Shared());
    QWidget::keyReleaseEvent(e);
}

void LetterFall::resizeEvent(QResizeEvent*) {
    field_->setGeometry(frame_.playArea());
    const QRect area = field_->targetRect().translated(field_->pos());
    const double k = area.width() / double(kW);
    auto place = [&](QWidget* w, QRect logical) {
        const QRect r = field_->toWidget(logical).translated(field_->pos());
        w->setGeometry(r);
    };
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(std::max(10, int(22 * k)));
    Label1->setFont(f);
    place(Label1, QRect(kW / 10, 8, kW * 8 / 10, 84));
    f.setPixelSize(std::max(10, int(20 * k)));
    ScoreLabel->setFont(f);
    place(ScoreLabel, QRect(kW / 10, 92, kW * 8 / 10, 28));
    f.setPixelSize(std::max(10, int(40 * k)));
    for (int i = 0; i < kTiles; ++i) {
        Letter[i]->setFont(f);
        place(Letter[i], QRect(px(game_.tileLeft(i)), px(kTileTop), kTileW / 15, kTileH / 15));
    }
}

// Closing this screen by its close box ends the whole program, as the game always has; leaving
// by Quit, Escape or the end of a game goes back to the title as usual.
void LetterFall::closeEvent(QCloseEvent* e) {
    if (!frame_.leaving()) EndProgram();
    QWidget::closeEvent(e);
}

WM_REGISTER_GAME("Letter Drop", LetterFall, "images/letterdrop-sky.svg", "sounds/zap.wav",
                 "sounds/crumble.wav");

}  // namespace wm
