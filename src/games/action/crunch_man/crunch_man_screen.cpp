#include "games/action/crunch_man/crunch_man_screen.h"

#include <QFont>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>

#include "core/rng.h"
#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/sprite_sheet.h"
#include "platform/text.h"
#include "shell/game_registry.h"

namespace wm {

namespace {
const char* kSprites = "images/crunchman-sprites.svg";
const char* kInstructions =
    "OK. Look at the definition at the top of the screen. Using the arrow keys on the keyboard, "
    "you will try to eat the letters in order so they spell out the word that best matches that "
    "definition. Press the ENTER key when you are ready to begin!";
const QColor kYellow(255, 255, 0);
const QColor kRed(255, 0, 0);
const QColor kBorder(70, 120, 255);

GameMenuNames menuNames() {
    GameMenuNames menu;
    menu.scores = "HighS";
    menu.quit = "Quit";
    return menu;
}

// A plain stand-in when the drawing is missing: a yellow disc, a red-eyed mine, a flash.
QImage standIn(QSize size, QColor colour) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(colour);
    p.setPen(Qt::NoPen);
    p.drawEllipse(QRectF(2, 2, size.width() - 4, size.height() - 4));
    return image;
}

// A board letter in the 30-pixel bold type, centred on its ink inside its label. A letter wider
// than the label (W, M) is narrowed to fit rather than cut off at the sides: the label is all
// that is erased when the letter is eaten.
void paintLetter(QPainter& p, const QRect& box, char c, const QColor& colour) {
    QFont font("DejaVu Sans");
    font.setBold(true);
    font.setPixelSize(30);
    QPainterPath path;
    path.addText(0, 0, font, QString(QChar::fromLatin1(c)));
    const QRectF ink = path.boundingRect();
    if (ink.isEmpty()) return;
    const QRectF room = QRectF(box).adjusted(1.5, 1.5, -1.5, -1.5);
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setClipRect(box);
    p.translate(room.center());
    p.scale(std::min(1.0, room.width() / ink.width()), std::min(1.0, room.height() / ink.height()));
    p.translate(-ink.center());
    p.fillPath(path, colour);
    p.restore();
}

// The sprites are copied as blocks: their black backs are part of them.
QImage opaque(const QImage& sprite, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter p(&image);
    p.drawImage(QRect(QPoint(0, 0), size), sprite);
    return image;
}
}  // namespace

CrunchManGame::CrunchManGame(QWidget* parent)
    : QWidget(parent),
      frame_(this, menuNames(), [this] { SetupGame(); }),
      field_(new PlayField(ScreenMetrics::screenSize(), this)),
      Timer1(frame_.timer("Timer1", 50, [this] { gameTick(); })),
      Timer2(frame_.timer("Timer2", 100, [this] { letterDeath(); })),
      Timer3(frame_.timer("Timer3", 50, [this] { mineDeath(); })),
      Timer4(frame_.timer(
          "Timer4", 1,
          [this] {
              dialogs().message(kInstructions, "Crunch Man!");
              if (!frame_.leaving()) Timer1.start();
          },
          true)) {
    setWindowTitle("Crunch Man!");
    frame_.hostPlay(field_);
    const QSize size = field_->logicalSize();
    geometry_.width = size.width();
    geometry_.height = size.height();
    loadPictures();
    Shared().TheWord.clear();
    Shared().TheMeaning.clear();
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void CrunchManGame::loadPictures() {
    PicUfo.assign(19, QImage());
    explosion_.assign(9, QImage());
    const SpriteSheet sheet = SpriteSheet::fromSvg(findAsset(kSprites));
    const QSize mouth(geometry_.playerW, geometry_.playerH);
    const QSize mine(geometry_.mineW, geometry_.mineH);
    for (int i = 0; i <= 12; ++i) {
        const QImage f = sheet.frame("mouth", i);
        PicUfo[i] = f.isNull() ? standIn(mouth, QColor(255, 210, 30)) : opaque(f, mouth);
    }
    PicUfo[14] = QImage(mouth, QImage::Format_RGB32);
    PicUfo[14].fill(Qt::black);
    for (int i = 0; i < 4; ++i) {
        const QImage f = sheet.frame("mine", i);
        PicUfo[15 + i] = f.isNull() ? standIn(mine, QColor(120 + 40 * i, 20, 20)) : opaque(f, mine);
    }
    for (int i = 1; i <= 7; ++i) {
        const QImage f = sheet.frame("expl", i - 1);
        explosion_[i] = f.isNull() ? standIn(mine, QColor(255, 140 + 10 * i, 0)) : opaque(f, mine);
    }
    explosion_[8] = QImage(mine, QImage::Format_RGB32);
    explosion_[8].fill(Qt::black);
}

void CrunchManGame::resizeEvent(QResizeEvent*) {
    field_->setGeometry(frame_.playArea());
}

bool CrunchManGame::dying() const {
    return Timer2.isActive() || Timer3.isActive();
}

QRect CrunchManGame::labelRect(int k) const {
    const crunch::Letter& l = round_.labels[k];
    return QRect(l.left, l.top, geometry_.labelW, geometry_.labelH);
}

void CrunchManGame::SetupGame() {
    SharedState& s = Shared();
    frame_.stopTimers();
    image1_ = FieldSprite();
    under_ = SavedBlock();
    // The field with its two borders is the one whole draw of a round.
    QImage back(field_->logicalSize(), QImage::Format_RGB32);
    back.fill(Qt::black);
    {
        QPainter p(&back);
        p.setPen(QPen(kBorder, 3));
        p.drawLine(0, geometry_.line1, back.width(), geometry_.line1);
        p.drawLine(0, geometry_.line2(), back.width(), geometry_.line2());
    }
    field_->setBackground(back);
    auto setup = crunch::setupRound(s, round_, geometry_, TheRng());
    Label3.clear();
    Label2 = toQ(crunch::scoreCaption(0));
    Label1 = s.WordsOnly ? QString() : "Definition: " + toQ(s.TheMeaning);
    if (!setup.ready) {
        frame_.refuse(toQ(setup.message), "Crunch Man!");
        return;
    }
    drawBands();
    for (int k = 0; k < crunch::kLabels; ++k) drawLabel(k);
    for (int m = 1; m <= round_.mineCount; ++m)
        field_->copy({round_.mineX[m], round_.mineY[m]}, PicUfo[15]);
    field_->markDirty(QRect(QPoint(0, 0), field_->logicalSize()));
    field_->flush();
    Timer4.start();
}

void CrunchManGame::drawBands() {
    const QSize size = field_->logicalSize();
    const QRect top(30, 0, size.width() - 60, geometry_.line1 - 2);
    field_->fill(top, Qt::black);
    if (!Label1.isEmpty()) {
        QFont font("DejaVu Sans");
        font.setBold(true);
        int px = 22;
        font.setPixelSize(px);
        // The definition shrinks until it fits its band on at most two lines.
        while (px > 10 && QFontMetrics(font)
                                  .boundingRect(top, Qt::TextWordWrap | Qt::AlignCenter, Label1)
                                  .height() > top.height()) {
            font.setPixelSize(--px);
        }
        field_->drawText(top, Qt::TextWordWrap | Qt::AlignCenter, Label1, font, Qt::white);
    }
    const int bandTop = geometry_.line2() + 3;
    const QRect band(0, bandTop, size.width(), size.height() - bandTop);
    field_->fill(band, Qt::black);
    QFont font("DejaVu Sans");
    font.setBold(true);
    font.setPixelSize(std::clamp(band.height() * 5 / 10, 12, 30));
    field_->drawText(band.adjusted(30, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, Label3, font,
                     kYellow);
    const int w = QFontMetrics(font).horizontalAdvance(Label2);
    field_->drawText(QRect(size.width() - int(1.2 * w), bandTop, w + 4, band.height()),
                     Qt::AlignRight | Qt::AlignVCenter, Label2, font, Qt::white);
    field_->markDirty(top);
    field_->markDirty(band);
}

void CrunchManGame::drawLabel(int k, bool withBack) {
    const crunch::Letter& l = round_.labels[k];
    const QRect r = labelRect(k);
    if (!l.visible) return;
    if (withBack) field_->fill(r, Qt::black);
    QPainter p(&field_->surface());
    paintLetter(p, r, l.text, l.red ? kRed : kYellow);
    field_->markDirty(r);
}

void CrunchManGame::keyPressEvent(QKeyEvent* event) {
    // Keys only set the heading wanted; the next tick turns.
    switch (event->key()) {
        case Qt::Key_Up:
            round_.wanted = 1;
            break;
        case Qt::Key_Right:
            round_.wanted = 2;
            break;
        case Qt::Key_Down:
            round_.wanted = 3;
            break;
        case Qt::Key_Left:
            round_.wanted = 4;
            break;
        default:
            QWidget::keyPressEvent(event);
            return;
    }
    event->accept();
}

void CrunchManGame::gameTick() {
    SharedState& s = Shared();
    const auto t = crunch::tick(round_, s, TheRng());
    if (t.restoreOld) {
        field_->restore(under_);
        // The pointer is kept visible however often something hid it.
        while (Pointer::count() < 0) Pointer::show(true);
    }
    const QRect at(t.newX, t.newY, geometry_.playerW, geometry_.playerH);
    under_ = field_->save(at);
    field_->copy(at.topLeft(), PicUfo[t.sprite]);
    if (t.chomp) sound().effect("bleep2.wav");
    if (t.mineSprite >= 0) {
        for (int m = 1; m <= round_.mineCount; ++m)
            field_->copy({round_.mineX[m], round_.mineY[m]}, PicUfo[t.mineSprite]);
    }
    if (t.event == crunch::Event::Ate || t.event == crunch::Event::Won) {
        sound().effect("dingling.wav");
        Label3 = toQ(round_.spelled);
        Label2 = toQ(crunch::scoreCaption(s.Score));
        drawBands();
        // The eaten letter goes, and the ground kept under the mouth is wiped black so that
        // it cannot come back when the mouth moves on.
        field_->fill(QRect(t.labelLeft, t.labelTop, geometry_.labelW, geometry_.labelH), Qt::black);
        field_->copy(at.topLeft(), PicUfo[t.sprite]);
        under_.pixels.fill(Qt::black);
    }
    // The letters lie over the field, above the mouth.
    overlayLabels(at);
    if (t.event == crunch::Event::Won) {
        field_->flush();
        won();
        return;
    }
    if (t.event == crunch::Event::WrongLetter) {
        Timer1.stop();
        field_->restore(under_);
        overlayLabels(at);
        sound().effect("bonk.wav");
        dying_ = crunch::Dying{t.newX, t.newY, geometry_.playerW, geometry_.playerH, 1, 1, t.label};
        drawLabel(t.label);
        drawDying(2);
        Timer2.start();
    } else if (t.event == crunch::Event::Mine) {
        Timer1.stop();
        field_->restore(under_);
        overlayLabels(at);
        sound().effect("2.wav");
        dying_ = crunch::Dying{t.newX, t.newY, geometry_.playerW, geometry_.playerH, 1, 1, t.mine};
        drawDying(2);
        Timer3.start();
    }
    field_->flush();
}

void CrunchManGame::overlayLabels(const QRect& area) {
    for (int k = 0; k < crunch::kLabels; ++k) {
        if (round_.labels[k].visible && labelRect(k).intersects(area)) drawLabel(k, false);
    }
}

void CrunchManGame::drawDying(int picture) {
    image1_.erase(*field_);
    if (dying_.width < 1 || picture < 0) return;
    const QImage stretched = PicUfo[picture].scaled(dying_.width, std::max(1, dying_.height));
    image1_.draw(*field_, {dying_.left, dying_.top}, stretched);
}

void CrunchManGame::letterDeath() {
    int picture = 2;
    const bool over = crunch::letterDeathTick(dying_, round_, picture);
    // The wrong letter blinks red.
    if (round_.labels[dying_.target].visible)
        drawLabel(dying_.target);
    else
        field_->fill(labelRect(dying_.target), Qt::black);
    drawDying(picture);
    field_->flush();
    if (over) {
        Timer2.stop();
        lost();
    }
}

void CrunchManGame::mineDeath() {
    int explosion = 0, picture = -1;
    const bool over = crunch::mineDeathTick(dying_, explosion, picture);
    const int m = dying_.target;
    field_->copy({round_.mineX[m], round_.mineY[m]}, explosion_[explosion]);
    if (picture >= 0) drawDying(picture);
    field_->flush();
    if (over) {
        Timer3.stop();
        lost();
    }
}

void CrunchManGame::lost() {
    // A lost round offers no high score.
    frame_.askTryAgain(toQ(crunch::lostText(Shared().TheWord)));
}

void CrunchManGame::won() {
    while (Pointer::count() < 0) Pointer::show(true);
    Timer1.stop();
    sound().effect("winner2.wav");
    EndTexts texts;
    texts.placed = "You chomped a score of {score}! Would you like to try again?";
    texts.notPlaced = texts.placed;
    texts.raiseWhenPlaced = false;
    frame_.wonGame(texts);
}

WM_REGISTER_GAME("Crunch Man", CrunchManGame, "images/crunchman-sprites.svg", "sounds/bleep2.wav",
                 "sounds/dingling.wav", "sounds/bonk.wav", "sounds/2.wav", "sounds/winner2.wav");

}  // namespace wm
