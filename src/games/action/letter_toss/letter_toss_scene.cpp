#include "games/action/letter_toss/letter_toss_scene.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>

#include "platform/scene_kit.h"
#include "platform/services.h"
#include "platform/text.h"
#include "platform/ticker.h"

namespace wm {

namespace lt = letter_toss;

namespace {
constexpr int kSinkMs = 260;
constexpr int kSparkleMs = 700;
constexpr int kConfettiMs = 3200;
constexpr int kPopMs = 1300;
const QPointF kHome(lt::kEyeX, lt::kFloorFrontY - lt::kHandH);
const QRectF kFan(740, 14, 120, 120);
const QRectF kArrow(880, 14, 230, 80);
const QRectF kBanner(450, 190, 700, 190);

QFont Font(double px, bool bold) {
    QFont f("DejaVu Sans");
    f.setBold(bold);
    f.setPixelSize(std::max(1, int(px)));
    return f;
}

// The largest type from `maxPx` down to `minPx` that shows the text whole, wrapped; at the
// smallest, the text is cut after its last whole word that fits, with an ellipsis.
QString Fit(const QString& text, const QRectF& area, double maxPx, double minPx, QFont& font) {
    auto fits = [&](const QString& t) {
        const QRectF r = QFontMetricsF(font).boundingRect(
            QRectF(0, 0, area.width(), 1e6), Qt::TextWordWrap | Qt::AlignHCenter, t);
        return r.width() <= area.width() + 0.5 && r.height() <= area.height() + 0.5;
    };
    for (double px = maxPx; px >= minPx; px -= 1) {
        font = Font(px, true);
        if (fits(text)) return text;
    }
    QStringList words = text.split(' ', Qt::SkipEmptyParts);
    while (words.size() > 1) {
        words.removeLast();
        const QString cut = words.join(' ') + QChar(0x2026);
        if (fits(cut)) return cut;
    }
    return QFontMetricsF(font).elidedText(text, Qt::ElideRight, area.width());
}
}  // namespace

TossScene::TossScene(QWidget* parent)
    : QWidget(parent),
      backSvg_(std::make_unique<QSvgRenderer>(findAsset("images/toss-room.svg"))),
      spriteSvg_(std::make_unique<QSvgRenderer>(findAsset("images/toss-sprites.svg"))) {
    setObjectName("TossScene");
    setAttribute(Qt::WA_OpaquePaintEvent);
}

TossScene::~TossScene() = default;

QRectF TossScene::visibleStage() const {
    return QRectF(toStage(QPointF(0, 0)), toStage(QPointF(width(), height())));
}

QRectF TossScene::signRect(int basket) const {
    const int n = room_ ? int(room_->baskets.size()) : 0;
    const double x = lt::project({lt::basketX(basket, n), lt::kBasketZ, 0}).x;
    return QRectF(x - 160, 168, 320, 240);
}

QRectF TossScene::binRect(int basket) const {
    const int n = room_ ? int(room_->baskets.size()) : 0;
    const lt::Seen rim = lt::project({lt::basketX(basket, n), lt::kBasketZ, lt::kRimH});
    const lt::Seen base = lt::project({lt::basketX(basket, n), lt::kBasketZ, 0});
    const double r = lt::kRimR * rim.scale;
    return QRectF(rim.x - r - 6, rim.y - r * 0.38, 2 * r + 12, base.y - rim.y + r * 0.38 + 8);
}

void TossScene::newWord() {
    confettiMs_ = -1;
    rightLit_ = false;
    sinkMs_ = sparkleMs_ = -1;
    buildLayer();
    update();
}

void TossScene::setAiming(bool on) {
    aiming_ = on;
    if (!on) holding_ = false;
    if (on) {
        dirty(ballRect());
        ballAt_ = kHome;
        ballR_ = kBallShownR;
        sinkMs_ = -1;
        dirty(ballRect());
    }
}

void TossScene::landed(const lt::Step& step) {
    if (step.basket >= 0) {
        sinkMs_ = 0;
        sinkBasket_ = step.basket;
        const bool right = step.landing == lt::Landing::Swish || step.landing == lt::Landing::Right;
        sparkleMs_ = right ? 0 : -1;
    }
    const QRectF bin = step.basket >= 0 ? binRect(step.basket) : QRectF(ballAt_, QSizeF(0, 0));
    QString text;
    QColor colour(255, 90, 70);
    switch (step.landing) {
        case lt::Landing::Swish:
            text = QString("Swish! +%1").arg(step.points);
            colour = QColor(90, 230, 90);
            break;
        case lt::Landing::Right:
            text = QString("In! +%1").arg(step.points);
            colour = QColor(90, 230, 90);
            break;
        case lt::Landing::Wrong:
            text = QString("Wrong basket! %1").arg(step.points);
            break;
        case lt::Landing::Floor:
            text = "Missed! Toss again";
            colour = QColor(255, 230, 120);
            break;
        case lt::Landing::Flying:
            return;
    }
    pops_.push_back({QPointF(bin.center().x(), bin.top() - 20), text, colour, 0});
    dirty(QRectF(bin.center().x() - 220, bin.top() - 140, 440, 170));
}

void TossScene::showRight(bool on) {
    rightLit_ = on;
    buildLayer();
    update();
}

void TossScene::setBanner(const QString& big, const QString& small) {
    banner_ = big;
    bannerSmall_ = small;
    dirty(kBanner.adjusted(-10, -10, 10, 10));
}

QRectF TossScene::ballRect() const {
    const double r = ballR_ + 6;
    QRectF box(ballAt_.x() - r, ballAt_.y() - r, 2 * r, 2 * r);
    if (room_ && room_->ball.flying) {
        const lt::Seen floor = lt::project({room_->ball.at.x, room_->ball.at.z, 0});
        box = box.united(QRectF(floor.x - r * 1.3, floor.y - r * 0.5, r * 2.6, r));
    }
    return box;
}

void TossScene::dirty(const QRectF& stage) {
    update(QRectF(toWidget(stage.topLeft()), stage.size() * k_).toAlignedRect().adjusted(-2, -2, 2, 2));
}

void TossScene::advance(int ms) {
    clockMs_ += ms;
    const int draught = room_ ? room_->draught : 0;
    fanAngle_ += ms * (0.25 + 0.12 * std::abs(draught)) * (draught < 0 ? -1 : 1);
    dirty(kFan.united(kArrow).adjusted(-4, -4, 4, 4));
    if (room_ && (room_->ball.flying || sinkMs_ >= 0)) {
        dirty(ballRect());
        if (room_->ball.flying) {
            const lt::Seen seen = lt::project(room_->ball.at);
            ballAt_ = QPointF(seen.x, seen.y);
            ballR_ = kBallShownR * seen.scale;
            spin_ += ms * 0.5;
        } else if (sinkMs_ < kSinkMs) {
            sinkMs_ = std::min(kSinkMs, sinkMs_ + ms);
            ballAt_.ry() += ms * 0.12;
        }
        dirty(ballRect());
    }
    if (sparkleMs_ >= 0 && sinkBasket_ >= 0) {
        sparkleMs_ += ms;
        dirty(binRect(sinkBasket_).adjusted(-70, -70, 70, 30));
        if (sparkleMs_ >= kSparkleMs) sparkleMs_ = -1;
    }
    if (confettiMs_ >= 0 && confettiMs_ < kConfettiMs) {
        confettiMs_ += ms;
        update();
    }
    for (Pop& pop : pops_) {
        pop.ageMs += ms;
        dirty(QRectF(pop.at.x() - 220, pop.at.y() - 110, 440, 140));
    }
    pops_.erase(std::remove_if(pops_.begin(), pops_.end(),
                               [](const Pop& p) { return p.ageMs >= kPopMs; }),
                pops_.end());
}

QPixmap TossScene::sprite(const QString& id, double stageW) {
    const QString key = id + "@" + QString::number(stageW);
    auto it = sprites_.find(key);
    if (it != sprites_.end()) return it.value();
    QPixmap pm;
    if (spriteSvg_->isValid() && spriteSvg_->elementExists(id)) {
        const QRectF b = spriteSvg_->boundsOnElement(id);
        const double w = std::max(1.0, stageW * k_);
        const QSize size(int(std::ceil(w)), std::max(1, int(std::ceil(w * b.height() / b.width()))));
        pm = QPixmap(size);
        pm.fill(Qt::transparent);
        QPainter p(&pm);
        p.setRenderHint(QPainter::Antialiasing);
        spriteSvg_->render(&p, id, QRectF(QPointF(0, 0), QSizeF(size)));
    }
    sprites_.insert(key, pm);
    return pm;
}

QPixmap TossScene::signPicture(int basket, const QRectF& r) {
    const lt::Basket& b = room_->baskets[basket];
    const bool lit = rightLit_ && basket == room_->right;
    QPixmap pm(sprite(lit ? "sign_right" : "sign", r.width()));
    if (pm.isNull()) {
        pm = QPixmap(QSizeF(r.size() * k_).toSize());
        pm.fill(QColor(255, 250, 230));
    }
    QPainter p(&pm);
    p.setRenderHint(QPainter::TextAntialiasing);
    const QRectF area(22 * k_, 44 * k_, (r.width() - 44) * k_, (r.height() - 66) * k_);
    QFont font;
    const QString shown =
        Fit(toQ(b.meaning), area, std::max(10.0, 30 * k_), std::max(9.0, 13 * k_), font);
    p.setFont(font);
    p.setPen(QColor(40, 34, 60));
    p.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, shown);
    signTexts_.insert(basket, shown);
    return pm;
}

void TossScene::buildLayer() {
    if (size().isEmpty()) return;
    layer_ = QPixmap(size());
    layer_.fill(QColor(214, 196, 160));
    QPainter p(&layer_);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    if (backSvg_->isValid())
        backSvg_->render(&p, QRectF(origin_, QSizeF(lt::kStageW, lt::kStageH) * k_));
    p.drawPixmap(toWidget(kFan.topLeft() + QPointF(10, 14)), sprite("fan_body", kFan.width() - 20));
    signTexts_.clear();
    if (!room_) return;
    for (int i = 0; i < int(room_->baskets.size()); ++i) {
        const QRectF sign = signRect(i);
        p.drawPixmap(toWidget(sign.topLeft()), signPicture(i, sign));
        const QRectF bin = binRect(i);
        p.drawPixmap(toWidget(bin.topLeft()), sprite("bin_back", bin.width()));
        p.drawPixmap(toWidget(bin.topLeft()), sprite("bin_front", bin.width()));
    }
}

void TossScene::resizeEvent(QResizeEvent*) {
    const QTransform cover = scene::coverStage(QSizeF(size()), QSizeF(lt::kStageW, lt::kStageH));
    k_ = cover.m11();
    origin_ = QPointF(cover.dx(), cover.dy());
    sprites_.clear();
    buildLayer();
}

void TossScene::paintBall(QPainter& p) {
    if (sinkMs_ >= kSinkMs) return;
    if (room_ && room_->ball.flying) {
        // Its shadow on the floor, fainter the higher it flies.
        const lt::Seen floor = lt::project({room_->ball.at.x, room_->ball.at.z, 0});
        const double fade = scene::clamp01(1 - room_->ball.at.h / 900);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(40, 25, 10, int(30 + 60 * fade)));
        const double w = ballR_ * 1.6 * k_;
        p.drawEllipse(toWidget(QPointF(floor.x, floor.y)), w, w * 0.32);
    }
    const QPixmap& ball = sprite("ball", 2 * kBallShownR);
    const double size = 2 * ballR_ * k_ * (sinkMs_ >= 0 ? 1 - 0.4 * sinkMs_ / double(kSinkMs) : 1);
    p.save();
    p.translate(toWidget(ballAt_));
    p.rotate(spin_);
    p.drawPixmap(QRectF(-size / 2, -size / 2, size, size), ball, QRectF(ball.rect()));
    p.restore();
}

void TossScene::paintFan(QPainter& p) {
    // The blades turn faster in a stronger draught, and the arrow shows where it blows.
    const QPixmap& blades = sprite("fan_blades", 84);
    const QPointF hub = toWidget(kFan.topLeft() + QPointF(60, 72));  // the cage's middle
    p.save();
    p.translate(hub);
    p.rotate(fanAngle_);
    p.drawPixmap(QPointF(-blades.width() / 2.0, -blades.height() / 2.0), blades);
    p.restore();
    const int d = room_ ? room_->draught : 0;
    const QRectF box(toWidget(kArrow.topLeft()), kArrow.size() * k_);
    p.setPen(QPen(QColor(90, 60, 30), 3 * k_));
    p.setBrush(QColor(255, 248, 225, 235));
    p.drawRoundedRect(box, 14 * k_, 14 * k_);
    const QPointF c = box.center() + QPointF(0, 12 * k_);
    p.setFont(Font(17 * k_, true));
    p.setPen(QColor(90, 60, 30));
    if (d == 0) {
        p.drawText(box, Qt::AlignCenter, "No draught");
        return;
    }
    p.drawText(QRectF(box.left(), box.top() + 4 * k_, box.width(), 24 * k_), Qt::AlignCenter,
               QString("Draught: %1").arg(std::abs(d)));
    const double len = (24 + 22 * std::abs(d)) * k_, dir = d < 0 ? -1 : 1;
    const QPointF tail = c - QPointF(dir * len / 2, 0), head = c + QPointF(dir * len / 2, 0);
    const double wave = std::sin(clockMs_ / 140.0) * 2 * k_;
    p.setPen(QPen(QColor(40, 120, 220), 8 * k_, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(tail + QPointF(0, wave), head - QPointF(dir * 12 * k_, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(40, 120, 220));
    const QPointF tri[3] = {head + QPointF(dir * 6 * k_, 0),
                            head - QPointF(dir * 18 * k_, 14 * k_),
                            head - QPointF(dir * 18 * k_, -14 * k_)};
    p.drawPolygon(tri, 3);
}

void TossScene::celebrate() {
    confettiMs_ = 0;
    update();
}

void TossScene::paintConfetti(QPainter& p) {
    if (confettiMs_ < 0 || confettiMs_ >= kConfettiMs) return;
    static const QColor colours[] = {QColor(240, 80, 80), QColor(250, 190, 60), QColor(90, 200, 90),
                                     QColor(70, 150, 230), QColor(170, 110, 220)};
    const double t = confettiMs_ / 1000.0;
    p.setPen(Qt::NoPen);
    p.setOpacity(1 - scene::easeIn(double(confettiMs_) / kConfettiMs));
    for (int i = 0; i < 90; ++i) {
        // Each piece its own column, start and fall, flutters as it goes.
        const double x = std::fmod(i * 173.0, lt::kStageW) + std::sin(t * 3 + i) * 30;
        const double y = -30 - (i % 7) * 40 + t * (260 + (i * 37) % 180);
        p.save();
        p.translate(toWidget(QPointF(x, y)));
        p.rotate(t * 200 + i * 40);
        p.setBrush(colours[i % 5]);
        p.drawRect(QRectF(-7 * k_, -4 * k_, 14 * k_, 8 * k_));
        p.restore();
    }
    p.setOpacity(1);
}

void TossScene::paintPops(QPainter& p) {
    for (const Pop& pop : pops_) {
        const double u = double(pop.ageMs) / kPopMs;
        const QPointF at = toWidget(pop.at - QPointF(0, 70 * scene::easeOut(u)));
        p.setFont(Font(40 * k_, true));
        const QRectF box(at.x() - 220 * k_, at.y() - 30 * k_, 440 * k_, 60 * k_);
        p.setOpacity(1 - scene::easeIn(u));
        p.setPen(QColor(30, 20, 20));
        p.drawText(box.translated(2 * k_, 2 * k_), Qt::AlignCenter, pop.text);
        p.setPen(pop.colour);
        p.drawText(box, Qt::AlignCenter, pop.text);
        p.setOpacity(1);
    }
}

void TossScene::paintBanner(QPainter& p) {
    if (banner_.isEmpty()) return;
    const QRectF plate(toWidget(kBanner.topLeft()), kBanner.size() * k_);
    p.setPen(QPen(QColor(255, 210, 60), 5 * k_));
    p.setBrush(QColor(30, 50, 40, 225));
    p.drawRoundedRect(plate, 26 * k_, 26 * k_);
    p.setFont(Font(64 * k_, true));
    p.setPen(QColor(255, 225, 90));
    const double split = bannerSmall_.isEmpty() ? 1.0 : 0.62;
    p.drawText(QRectF(plate.topLeft(), QSizeF(plate.width(), plate.height() * split)),
               Qt::AlignCenter, banner_);
    if (bannerSmall_.isEmpty()) return;
    p.setFont(Font(28 * k_, true));
    p.setPen(Qt::white);
    p.drawText(QRectF(plate.left(), plate.top() + plate.height() * split, plate.width(),
                      plate.height() * (1 - split) - 14 * k_),
               Qt::AlignCenter, bannerSmall_);
}

void TossScene::paintEvent(QPaintEvent* e) {
    QPainter p(this);
    p.setClipRegion(e->region());
    if (layer_.size() != size()) buildLayer();
    p.drawPixmap(0, 0, layer_);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const bool behind = sinkMs_ >= 0 ||
                        (room_ && room_->ball.flying && room_->ball.at.z > lt::kBasketZ - lt::kRimR);
    if (room_ && !room_->baskets.empty()) paintBall(p);
    if (behind && room_) {
        // The basket's front goes over a ball that is in it or behind it.
        for (int i = 0; i < int(room_->baskets.size()); ++i) {
            QRectF bin = binRect(i);
            if (!bin.intersects(ballRect())) continue;
            p.drawPixmap(toWidget(bin.topLeft()), sprite("bin_front", bin.width()));
        }
    }
    if (sparkleMs_ >= 0 && sinkBasket_ >= 0) {
        // Twinkles round the rim of the right basket.
        const QRectF bin = binRect(sinkBasket_);
        const double u = double(sparkleMs_) / kSparkleMs;
        for (int i = 0; i < 8; ++i) {
            const double ang = i * M_PI / 4 + u * 2.5;
            const QPointF at(bin.center().x() + std::cos(ang) * (50 + 40 * u),
                             bin.top() + 20 + std::sin(ang) * (22 + 26 * u));
            scene::paintSparkle(p, toWidget(at), 16 * k_ * (1 - 0.5 * u), ang, 1 - u);
        }
    }
    paintFan(p);
    paintPops(p);
    paintConfetti(p);
    paintBanner(p);
}

void TossScene::hold(QPointF stage) {
    drag_.push_back({int(Ticker::get().now()), stage.x(), stage.y()});
    // Only the end of a drag counts; the rest is let go.
    while (drag_.size() > 2 && drag_.back().ms - drag_[1].ms > 4 * lt::kFlickMs)
        drag_.erase(drag_.begin());
    dirty(ballRect());
    const lt::Sample at = lt::handPoint(stage.x(), stage.y());
    ballAt_ = QPointF(at.x, at.y);
    dirty(ballRect());
}

void TossScene::mousePressEvent(QMouseEvent* e) {
    const QPointF at = toStage(e->position());
    if (!aiming_ || holding_ || e->button() != Qt::LeftButton) return;
    if (QLineF(at, ballAt_).length() > kBallShownR * 1.8) return;
    holding_ = true;
    drag_.clear();
    hold(at);
}

void TossScene::mouseMoveEvent(QMouseEvent* e) {
    if (holding_) hold(toStage(e->position()));
}

void TossScene::mouseReleaseEvent(QMouseEvent* e) {
    if (!holding_ || e->button() != Qt::LeftButton) return;
    hold(toStage(e->position()));
    holding_ = false;
    aiming_ = false;
    emit letGo(ballAt_, lt::flickOf(drag_));
}

}  // namespace wm
