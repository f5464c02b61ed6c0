#include "games/action/asteroid_zap/asteroid_zap_screen.h"

#include <QFont>
#include <QKeyEvent>
#include <QPainter>
#include <QRadialGradient>
#include <QTimer>
#include <random>

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
using asteroid::kTwips;
const char* kSprites = "images/asteroid-sprites.svg";

QImage fromSheet(const SpriteSheet& sheet, const char* name, int i, QSize size, QColor standIn) {
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const QImage f = sheet.frame(name, i);
    if (f.isNull()) {
        p.setBrush(standIn);
        p.setPen(Qt::NoPen);
        p.drawEllipse(QRectF(image.rect()).adjusted(2, 2, -2, -2));
    } else {
        p.drawImage(image.rect(), f);
    }
    return image;
}

// The rocks fill their letter boxes and the ship is sized to them, on any screen.
asteroid::Geometry geometryFor(QSize pixels) {
    asteroid::Geometry g;
    g.width = pixels.width() * kTwips;
    g.height = pixels.height() * kTwips;
    const int rock = std::max(24, g.boxWidth() / kTwips * 19 / 20);
    g.rock = rock * kTwips;
    g.shipW = rock * 4 / 3 * kTwips;
    g.shipH = rock * 16 / 15 * kTwips;
    return g;
}

QFont boldFont(int px) {
    QFont font("DejaVu Sans");
    font.setBold(true);
    font.setPixelSize(px);
    return font;
}
}  // namespace

AsteroidBlast::AsteroidBlast(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames{}, [this] { SetupGame(); }),
      field_(new PlayField(ScreenMetrics::screenSize(), this)),
      keys_(this),
      MainTimer(frame_.timer("MainTimer", 20, [this] { mainTick(); })),
      Timer2(frame_.timer("Timer2", 10,
                          [this] {
                              round_.leftHeld = keys_.isDown(Qt::Key_Left);
                              round_.rightHeld = keys_.isDown(Qt::Key_Right);
                              if (!round_.leftHeld && !round_.rightHeld) return;
                              asteroid::moveShip(round_);
                              drawShip();
                              field_->flush();
                          })),
      Timer3(frame_.timer("Timer3", 100, [this] { blastTick(); })),
      Timer1(frame_.timer(
          "Timer1", 100, [this] { frame_.refuse(asteroid::kTooLong, "Oops!"); }, true)) {
    setWindowTitle("Asteroid Blast!");
    frame_.hostPlay(field_);
    loadPictures();
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void AsteroidBlast::resizeEvent(QResizeEvent*) {
    field_->setGeometry(frame_.playArea());
}

void AsteroidBlast::loadPictures() {
    const SpriteSheet sheet = SpriteSheet::fromSvg(findAsset(kSprites));
    const asteroid::Geometry g = geometryFor(field_->logicalSize());
    const QSize rock(g.rock / kTwips, g.rock / kTwips);
    for (int i = 0; i < 4; ++i) rock_[i] = fromSheet(sheet, "rock", i, rock, QColor(140, 120, 100));
    for (int i = 0; i < 8; ++i)
        blast_[i] = fromSheet(sheet, "blast", i, rock, QColor(255, 150 + 10 * i, 0));
    for (int i = 0; i < 2; ++i) shot_[i] = fromSheet(sheet, "shot", i, {10, 24}, Qt::cyan);
    ship_ = fromSheet(sheet, "ship", 0, QSize(g.shipW / kTwips, g.shipH / kTwips), Qt::white);
}

// Deep space with a scatter of stars, the same every round.
QImage AsteroidBlast::backPicture() const {
    const QSize size = field_->logicalSize();
    QImage back(size, QImage::Format_RGB32);
    QPainter p(&back);
    QRadialGradient sky(size.width() * 0.7, size.height() * 0.2, size.width());
    sky.setColorAt(0, QColor(40, 30, 80));
    sky.setColorAt(0.5, QColor(12, 14, 40));
    sky.setColorAt(1, QColor(2, 2, 10));
    p.fillRect(back.rect(), sky);
    std::mt19937 stars(42);
    p.setPen(Qt::NoPen);
    for (int n = 0; n < size.width() * size.height() / 3000; ++n) {
        const int x = int(stars() % size.width()), y = int(stars() % size.height());
        const int bright = 120 + int(stars() % 136);
        p.setBrush(QColor(bright, bright, std::min(255, bright + 30)));
        const double r = (stars() % 10) < 8 ? 0.8 : 1.6;
        p.drawEllipse(QPointF(x, y), r, r);
    }
    return back;
}

void AsteroidBlast::SetupGame() {
    SharedState& s = Shared();
    frame_.stopTimers();
    keys_.clear();
    label1Shown_ = false;
    if (back_.isNull()) back_ = backPicture();
    field_->setBackground(back_);
    for (auto& r : rockSprites_) r = FieldSprite();
    for (auto& r : shotSprites_) r = FieldSprite();
    blastSprites_.clear();
    shipSprite_ = FieldSprite();
    s.Score = 0;
    const asteroid::Geometry g = geometryFor(field_->logicalSize());
    if (asteroid::chooseWord(s, TheRng()) == 0) {
        defText_.clear();
        Timer1.start();
        return;
    }
    asteroid::setup(round_, g, s.TheWord, TheRng());
    showDef(s.GameOptionOn ? toQ(s.TheMeaning) : QString());
    drawRocks();
    drawShip();
    field_->flush();
    MainTimer.start();
    Timer2.start();
}

QPoint AsteroidBlast::rockAt(int i) const {
    const auto& g = round_.g;
    const auto& rock = round_.rocks[i];
    return {(rock.left + (g.boxWidth() - g.rock) / 2) / kTwips, (rock.bottom - g.rock) / kTwips};
}

void AsteroidBlast::showDef(const QString& text) {
    defText_ = text;
    const QSize size = field_->logicalSize();
    const QRect box(size.width() / 20, size.height() / 30, size.width() * 9 / 10,
                    size.height() / 6);
    field_->restoreBackground(box);
    if (!text.isEmpty())
        field_->drawText(box, Qt::AlignCenter | Qt::TextWordWrap, text,
                         boldFont(std::max(14, size.height() / 30)), QColor(255, 240, 160));
}

void AsteroidBlast::drawRocks() {
    const QFont font = boldFont(round_.g.rock / kTwips / 2);
    for (int i = 0; i < asteroid::kLetters; ++i) {
        const auto& rock = round_.rocks[i];
        if (!rock.alive) continue;
        const QPoint at = rockAt(i);
        if (rock.exploding) {
            rockSprites_[i].draw(*field_, at, blast_[rock.frame - 13]);
            continue;
        }
        rockSprites_[i].draw(*field_, at, rock_[round_.rockPicture - 4]);
        if (rock.shown)
            field_->drawText(QRect(at, rock_[0].size()), Qt::AlignCenter,
                             QString(QChar::fromLatin1(rock.letter)), font, Qt::white);
    }
}

void AsteroidBlast::drawShip() {
    shipSprite_.erase(*field_);
    shipSprite_.draw(*field_, {round_.shipX / kTwips, round_.g.shipTop() / kTwips}, ship_);
}

void AsteroidBlast::mainTick() {
    for (int i = asteroid::kShots - 1; i >= 0; --i) shotSprites_[i].erase(*field_);
    for (int i = asteroid::kLetters - 1; i >= 0; --i) rockSprites_[i].erase(*field_);
    const auto e = asteroid::tick(round_, Shared().Difficulty, TheRng());
    if (e.ending == asteroid::Ending::WrongLetter || e.ending == asteroid::Ending::ShipDestroyed) {
        endRound();
        return;
    }
    if (e.shotFired) sound().effect("shot1.wav", SoundMode::Overlap);
    for (int b : e.booms) {
        (void)b;
        sound().effect("boom1.wav", SoundMode::Overlap);
    }
    if (e.ending == asteroid::Ending::Won) {
        field_->flush();
        won();
        return;
    }
    drawRocks();
    for (int i = 0; i < asteroid::kShots; ++i) {
        const auto& s = round_.shots[i];
        if (s.flying) shotSprites_[i].draw(*field_, {s.x - 5, s.y}, shot_[s.toggle]);
    }
    field_->flush();
}

void AsteroidBlast::endRound() {
    MainTimer.stop();
    Timer2.stop();
    // The field is wiped, and the true word laid out where the wall stood.
    field_->setBackground(back_);
    for (auto& r : rockSprites_) r = FieldSprite();
    for (auto& r : shotSprites_) r = FieldSprite();
    shipSprite_ = FieldSprite();
    const bool destroyed = round_.ending == asteroid::Ending::ShipDestroyed;
    if (!destroyed) drawShip();
    showDef(destroyed ? asteroid::kDestroyed : asteroid::kWrongLetter);
    const auto& g = round_.g;
    const int n = int(round_.word.size());
    const int boxW = g.boxWidth() / kTwips, boxH = g.rock / kTwips;
    const int left = field_->logicalSize().width() / 2 - n * boxW / 2;
    const QFont font = boldFont(boxH / 2);
    for (int i = 0; i < n; ++i) {
        const QRect box(left + i * boxW + 2, g.rowTop() / kTwips, boxW - 4, boxH);
        field_->fill(box, QColor(30, 60, 120));
        field_->drawText(box, Qt::AlignCenter, QString(QChar::fromLatin1(round_.word[i])), font,
                         QColor(255, 255, 0));
    }
    const QSize size = field_->logicalSize();
    field_->drawText(QRect(0, int(size.height() * 0.7), size.width(), size.height() / 15),
                     Qt::AlignCenter, "Press any key to continue...",
                     boldFont(std::max(14, size.height() / 32)), Qt::white);
    label1Shown_ = true;
    blastSprites_.assign(round_.blasts.size(), FieldSprite());
    field_->flush();
    Timer3.start();
}

void AsteroidBlast::blastTick() {
    for (int i = int(blastSprites_.size()) - 1; i >= 0; --i) blastSprites_[i].erase(*field_);
    std::vector<int> before;
    for (const auto& b : round_.blasts) before.push_back(b.frame);
    asteroid::blastTick(round_, TheRng());
    bool replay = false;
    for (std::size_t i = 0; i < round_.blasts.size(); ++i) {
        const auto& b = round_.blasts[i];
        if (b.frame < before[i]) replay = true;
        const QPoint centre(b.x / kTwips, b.y / kTwips);
        blastSprites_[i].draw(*field_,
                              centre - QPoint(blast_[0].width() / 2, blast_[0].height() / 2),
                              blast_[b.frame - 13]);
    }
    // A boom that has finished starts again while the explosions go on.
    if (replay) sound().effect("boom1.wav", SoundMode::NoInterrupt);
    field_->flush();
}

void AsteroidBlast::keyPressEvent(QKeyEvent* event) {
    if (round_.over && round_.ending != asteroid::Ending::Won && label1Shown_) {
        if (event->isAutoRepeat()) return;
        label1Shown_ = false;
        frame_.askTryAgain("Would you like to try again?");
        return;
    }
    if (event->key() == Qt::Key_Space && !round_.over) round_.fireWanted = true;
    event->accept();
}

void AsteroidBlast::won() {
    frame_.stopTimers();
    SharedState& s = Shared();
    s.Score = asteroid::winScore(round_, s.Difficulty, s.GameOptionOn != 0);
    for (auto& r : rockSprites_) r.erase(*field_);
    showDef(toQ(asteroid::wonText(s.Score)));
    field_->flush();
    frame_.wonGame();
}

WM_REGISTER_GAME("Asteroid Zap", AsteroidBlast, "images/asteroid-sprites.svg", "sounds/shot1.wav",
                 "sounds/boom1.wav");

}  // namespace wm
