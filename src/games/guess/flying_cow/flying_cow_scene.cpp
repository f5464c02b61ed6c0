#include "games/guess/flying_cow/flying_cow_scene.h"

#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <cmath>

#include "platform/scene_kit.h"
#include "platform/services.h"

namespace wm::cow {

namespace {
using namespace scene;

constexpr double kCowScale = 0.72;  // the cow drawing to stage units
const QPointF kCowFeet(150, 186);   // where the cow stands, in the cow drawing
const QPointF kLegPivot(311, 4), kFarLegPivot(371, 4), kNeckPivot(436, 40);
const QPointF kNeck(222, 56);       // where the head joins the body
const QPointF kHatch(160, 398);     // the saucer's hatch in its drawing
const QPointF kFarHips[] = {{66, 110}, {180, 110}};
const QPointF kNearHips[] = {{92, 112}, {206, 112}};
constexpr double kPi = 3.14159265358979;

// A cheap fixed hash in [0, 1), so the sparkles stay where they were drawn a frame before.
double hash01(int i) {
    const double x = std::sin(i * 12.9898 + 78.233) * 43758.5453;
    return x - std::floor(x);
}
}  // namespace

CowPicture::CowPicture()
    : field_(std::make_unique<QSvgRenderer>(appFile("images/cowfield.svg"))),
      sprites_(std::make_unique<QSvgRenderer>(appFile("images/cow-sprites.svg"))) {}

CowPicture::~CowPicture() = default;

void CowPicture::resize(QSize size) {
    if (size == size_ || size.isEmpty()) return;
    size_ = size;
    // The stage covers the screen: kept in shape, centred, its edges cut as need be.
    scale_ = std::max(size.width() / kStageW, size.height() / kStageH);
    toScreen_ = QTransform::fromTranslate((size.width() - kStageW * scale_) / 2,
                                          (size.height() - kStageH * scale_) / 2)
                    .scale(scale_, scale_);
    fieldPixmap_ = QPixmap(size);
    fieldPixmap_.fill(QColor(30, 24, 70));
    if (field_->isValid()) {
        QPainter p(&fieldPixmap_);
        p.setRenderHint(QPainter::Antialiasing);
        p.setTransform(toScreen_);
        field_->render(&p, QRectF(0, 0, kStageW, kStageH));
    }
    cache_.clear();
    beam_ = QPixmap();
}

QRectF CowPicture::spriteBounds(const QString& id) const {
    if (!sprites_->isValid() || !sprites_->elementExists(id)) return {};
    // A little room for the strokes, which the bounds leave out.
    return sprites_->boundsOnElement(id).adjusted(-3, -3, 3, 3);
}

// The sprite rendered once at the size it is mostly shown at.
QPixmap CowPicture::sprite(const QString& id, double scale) const {
    auto it = cache_.find(id);
    if (it != cache_.end()) return it->second.pixmap;
    Cached c;
    c.bounds = spriteBounds(id);
    if (!c.bounds.isEmpty()) {
        const QSize px = (c.bounds.size() * scale).toSize().expandedTo(QSize(1, 1));
        QImage img(px, QImage::Format_ARGB32_Premultiplied);
        img.fill(Qt::transparent);
        QPainter p(&img);
        p.setRenderHint(QPainter::Antialiasing);
        sprites_->render(&p, id, QRectF(QPointF(0, 0), QSizeF(px)));
        p.end();
        c.pixmap = QPixmap::fromImage(img);
    }
    cache_[id] = c;
    return c.pixmap;
}

// Draws a sprite in the painter's present units (the sprite drawing's), its `pivot` at 0,0.
void CowPicture::drawSprite(QPainter& p, const QString& id, const QPointF& pivot) const {
    // Rendered at the size the sprite has when its owner stands at full size.
    const bool cowPart = id.startsWith("cow");
    const QPixmap pm = sprite(id, scale_ * (cowPart ? kCowScale : 1.0));
    if (pm.isNull()) return;
    const QRectF b = cache_.at(id).bounds;
    p.drawPixmap(QRectF(b.topLeft() - pivot, b.size()), pm, QRectF(pm.rect()));
}

void CowPicture::paintField(QPainter& p, const QRect& area) const {
    p.drawPixmap(area, fieldPixmap_, area);
}

void CowPicture::paintActors(QPainter& p, const Pose& pose) const {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.setTransform(toScreen_, true);
    paintBeam(p, pose);
    paintCow(p, pose);
    paintSaucer(p, pose);
    paintLabels(p, pose);
    p.restore();
}

namespace {
constexpr double kBeamTopW = 46, kBeamFootW = 135;
constexpr double kBeamTop = kHoverY + 6, kBeamFoot = kGroundY + 10;
const QColor kLight(215, 255, 160);
// The beam as it stands under a hovering saucer, in stage units, pool of light included.
const QRectF kBeamArea(kHoverX - kBeamFootW * 1.35 - 4, kBeamTop, kBeamFootW * 2.7 + 8,
                       kBeamFoot + 26 - kBeamTop);
}  // namespace

// The cone of light with its rungs, drawn once for the screen's size and each count of rungs:
// a frame only stretches it to the saucer's bob and blends it in.
const QPixmap& CowPicture::beam(int rungs) const {
    if (!beam_.isNull() && beamRungs_ == rungs) return beam_;
    beamRungs_ = rungs;
    const QSize px = (kBeamArea.size() * scale_).toSize().expandedTo(QSize(1, 1));
    QImage img(px, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(scale_, scale_);
    p.translate(-kBeamArea.topLeft());
    const double x = kHoverX, topW = kBeamTopW, footW = kBeamFootW;
    const double topY = kBeamTop, footY = kBeamFoot;
    QPolygonF glow, core;
    glow << QPointF(x - topW * 1.5, topY) << QPointF(x + topW * 1.5, topY)
         << QPointF(x + footW * 1.35, footY) << QPointF(x - footW * 1.35, footY);
    core << QPointF(x - topW, topY) << QPointF(x + topW, topY) << QPointF(x + footW, footY)
         << QPointF(x - footW, footY);
    QLinearGradient outer(0, topY, 0, footY);
    outer.setColorAt(0, withAlpha(kLight, 0.22));
    outer.setColorAt(1, withAlpha(kLight, 0.06));
    QLinearGradient inner(0, topY, 0, footY);
    inner.setColorAt(0, withAlpha(kLight, 0.75));
    inner.setColorAt(1, withAlpha(kLight, 0.32));
    p.setPen(Qt::NoPen);
    p.setBrush(outer);
    p.drawPolygon(glow);
    p.setBrush(inner);
    p.drawPolygon(core);
    // A pool of light on the grass.
    QRadialGradient pool(QPointF(x, footY - 4), footW * 1.3);
    pool.setColorAt(0, withAlpha(kLight, 0.5));
    pool.setColorAt(1, withAlpha(kLight, 0));
    p.setBrush(pool);
    p.drawEllipse(QPointF(x, footY - 4), footW * 1.3, 22);
    // The rungs: a bar of light at each height the cow can be lifted to.
    for (int r = 1; r <= rungs; ++r) {
        const double y = kGroundY - r * kTopLift / rungs;
        const double w = lerp(topW, footW, (y - topY) / (footY - topY)) * 0.92;
        p.setPen(QPen(withAlpha(QColor(250, 255, 220), 0.6), 4, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(x - w, y), QPointF(x + w, y));
    }
    p.end();
    beam_ = QPixmap::fromImage(img);
    return beam_;
}

void CowPicture::paintBeam(QPainter& p, const Pose& pose) const {
    const double a = clamp01(pose.beam);
    if (a <= 0.01) return;
    const double flash = clamp01(pose.beamFlash);
    // Under the saucer as it sways and bobs: moved half its sway, its top at the hatch.
    const double top = pose.saucerY + 6 * pose.saucerScale;
    QRectF at = kBeamArea.translated((pose.saucerX - kHoverX) / 2, 0);
    at.setTop(top);
    p.save();
    p.setRenderHint(QPainter::SmoothPixmapTransform, false);
    p.setOpacity(a * (0.72 + 0.28 * flash));
    const QPixmap& pm = beam(pose.rungs);
    p.drawPixmap(at, pm, QRectF(pm.rect()));
    p.restore();
    // Sparkles drifting up towards the hatch.
    const double footY = kBeamFoot;
    auto widthAt = [&](double y) { return lerp(kBeamTopW, kBeamFootW, (y - top) / (footY - top)); };
    auto xAt = [&](double y) { return lerp(pose.saucerX, pose.cowX, (y - top) / (footY - top)); };
    p.setPen(Qt::NoPen);
    for (int i = 0; i < 16; ++i) {
        double u = pose.time * 0.45 + hash01(i);
        u -= std::floor(u);
        const double y = lerp(footY - 10, top + 10, u);
        const double x = xAt(y) + (hash01(i + 40) - 0.5) * 1.6 * widthAt(y);
        const double s = 2.5 + 3 * hash01(i + 80);
        p.setBrush(withAlpha(QColor(255, 255, 235), a * std::sin(u * kPi)));
        p.drawEllipse(QPointF(x, y), s, s);
    }
}

void CowPicture::paintCow(QPainter& p, const Pose& pose) const {
    if (!pose.cowShown) return;
    const double s = kCowScale * pose.cowScale;
    // Its shadow shrinks and fades as it rises.
    const double high = clamp01(pose.cowLift / kTopLift);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(10, 30, 10, int(90 * (1 - high))));
    p.drawEllipse(QPointF(pose.cowX, kGroundY + 4), 110 * (1 - 0.6 * high), 14 * (1 - 0.6 * high));

    p.save();
    p.translate(pose.cowX, kGroundY - pose.cowLift);
    p.rotate(pose.cowTilt);
    p.scale(s, s);
    p.translate(-kCowFeet);
    const double swing = clamp01(pose.legSwing) * 26;
    auto leg = [&](const QPointF& hip, const QString& id, const QPointF& pivot, double phase) {
        p.save();
        p.translate(hip);
        p.rotate(swing * std::sin(pose.time * 7.5 + phase));
        drawSprite(p, id, pivot);
        p.restore();
    };
    leg(kFarHips[0], "cow-leg-far", kFarLegPivot, 1.1);
    leg(kFarHips[1], "cow-leg-far", kFarLegPivot, 2.6);
    leg(kNearHips[0], "cow-leg", kLegPivot, 0.0);
    leg(kNearHips[1], "cow-leg", kLegPivot, 3.9);
    drawSprite(p, "cow-body", QPointF(0, 0));
    p.translate(kNeck);
    p.rotate(pose.headAngle);
    drawSprite(p, "cow-head", kNeckPivot);
    p.restore();
}

void CowPicture::paintSaucer(QPainter& p, const Pose& pose) const {
    p.save();
    p.translate(pose.saucerX, pose.saucerY);
    p.rotate(pose.saucerTilt);
    p.scale(pose.saucerScale, pose.saucerScale);
    drawSprite(p, "saucer", kHatch);
    const int frame = int(std::floor(pose.time * 4)) % 2;
    drawSprite(p, frame == 0 ? "saucer-lights_0" : "saucer-lights_1", kHatch);
    p.restore();
}

void CowPicture::paintLabels(QPainter& p, const Pose& pose) const {
    const double s = kCowScale * pose.cowScale;
    const QPointF head(pose.cowX + 150 * s, kGroundY - pose.cowLift - 190 * s);
    if (pose.bubble > 0.01 && pose.cowShown) {
        p.save();
        p.setOpacity(clamp01(pose.bubble));
        const double grow = 0.6 + 0.4 * easeOut(pose.bubble * 1.5);
        const QRectF box(head.x() + 10, head.y() - 84 * grow, 170 * grow, 74 * grow);
        QPainterPath bubble;
        bubble.addRoundedRect(box, 30 * grow, 30 * grow);
        QPainterPath tail;
        tail.moveTo(box.left() + 26 * grow, box.bottom() - 6);
        tail.lineTo(head.x() - 6, head.y() + 14);
        tail.lineTo(box.left() + 58 * grow, box.bottom() - 6);
        tail.closeSubpath();
        bubble = bubble.united(tail);
        p.setPen(QPen(QColor(60, 40, 90), 4));
        p.setBrush(QColor(255, 255, 250));
        p.drawPath(bubble);
        QFont f("DejaVu Sans");
        f.setBold(true);
        f.setPixelSize(int(40 * grow));
        p.setFont(f);
        p.setPen(QColor(214, 60, 110));
        p.drawText(box, Qt::AlignCenter, "MOO!");
        p.restore();
    }
    if (pose.pointsAlpha > 0.01 && !pose.points.isEmpty()) {
        QFont f("DejaVu Sans");
        f.setBold(true);
        f.setPixelSize(56);
        QPainterPath text;
        const double w = QFontMetricsF(f).horizontalAdvance(pose.points);
        text.addText(pose.cowX - w / 2, kGroundY - 200 - pose.pointsRise, f, pose.points);
        p.save();
        p.setOpacity(clamp01(pose.pointsAlpha));
        p.setPen(QPen(QColor(90, 40, 0), 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPath(text);
        p.fillPath(text, QColor(255, 226, 80));
        p.restore();
    }
}

QRect CowPicture::actorsRect(const Pose& pose) const {
    const double ss = pose.saucerScale;
    QRectF saucer(pose.saucerX - 175 * ss - 40, pose.saucerY - 150 * ss - 40, 350 * ss + 80,
                  200 * ss + 80);
    // The beam, the cow, its bubble and the points over it.
    const double left = std::min(pose.saucerX - 100, pose.cowX - 240);
    const double right = std::max(pose.saucerX + 100, pose.cowX + 330);
    const double top = std::min(pose.saucerY, kGroundY - pose.cowLift - 360);
    // Clear of the panels under the grass line, which would otherwise repaint with it.
    QRectF column(left, top, right - left, kGroundY + 30 - top);
    const QRectF stage = saucer.united(column);
    return toScreen_.mapRect(stage).toAlignedRect().adjusted(-3, -3, 3, 3);
}

}  // namespace wm::cow
