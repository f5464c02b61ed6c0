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
    toScreen_ = scene::coverStage(QSizeF(size), QSizeF(kStageW, kStageH));
    scale_ = toScreen_.m11();
    fieldPixmap_ = scene::coverPicture(*field_, size, QColor(30, 24, 70));
    cache_.clear();
    beam_ = QPixmap();
    bubble_ = QPixmap();
    points_ = QPixmap();
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

namespace {
// The moo bubble and the points, in stage units; drawn once into pixmaps, since text outlines
// are dear to draw every frame.
const QRectF kBubble(0, 0, 170, 74);
const QPointF kBubbleTip(-16, 88);  // where its tail points, from the box's top left

QImage LabelImage(const QSizeF& stageSize, double scale) {
    QImage img((stageSize * scale).toSize().expandedTo(QSize(1, 1)),
               QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    return img;
}
}  // namespace

const QPixmap& CowPicture::bubble() const {
    if (!bubble_.isNull()) return bubble_;
    const QRectF area = kBubble.adjusted(kBubbleTip.x() - 4, -4, 4, kBubbleTip.y() - kBubble.height() + 4);
    QImage img = LabelImage(area.size(), scale_);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(scale_, scale_);
    p.translate(-area.topLeft());
    QPainterPath shape;
    shape.addRoundedRect(kBubble, 30, 30);
    QPainterPath tail;
    tail.moveTo(kBubble.left() + 26, kBubble.bottom() - 6);
    tail.lineTo(kBubbleTip);
    tail.lineTo(kBubble.left() + 58, kBubble.bottom() - 6);
    tail.closeSubpath();
    shape = shape.united(tail);
    p.setPen(QPen(QColor(60, 40, 90), 4));
    p.setBrush(QColor(255, 255, 250));
    p.drawPath(shape);
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(40);
    p.setFont(f);
    p.setPen(QColor(214, 60, 110));
    p.drawText(kBubble, Qt::AlignCenter, "MOO!");
    p.end();
    bubble_ = QPixmap::fromImage(img);
    bubbleArea_ = area;
    return bubble_;
}

const QPixmap& CowPicture::points(const QString& text) const {
    if (pointsText_ == text && !points_.isNull()) return points_;
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(56);
    const QFontMetricsF fm(f);
    const QRectF area(-fm.horizontalAdvance(text) / 2 - 8, -fm.ascent() - 8,
                      fm.horizontalAdvance(text) + 16, fm.height() + 16);
    QImage img = LabelImage(area.size(), scale_);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(scale_, scale_);
    p.translate(-area.topLeft());
    QPainterPath path;
    path.addText(area.left() + 8, 0, f, text);
    p.setPen(QPen(QColor(90, 40, 0), 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPath(path);
    p.fillPath(path, QColor(255, 226, 80));
    p.end();
    points_ = QPixmap::fromImage(img);
    pointsText_ = text;
    pointsArea_ = area;
    return points_;
}

void CowPicture::paintLabels(QPainter& p, const Pose& pose) const {
    const double s = kCowScale * pose.cowScale;
    const QPointF head(pose.cowX + 150 * s, kGroundY - pose.cowLift - 190 * s);
    if (pose.bubble > 0.01 && pose.cowShown) {
        // It grows out of the cow's mouth, its tail on the head.
        const double grow = 0.6 + 0.4 * easeOut(pose.bubble * 1.5);
        const QPixmap& pm = bubble();
        const QPointF tip = head + QPointF(-6, 14);
        const QPointF origin = tip - kBubbleTip * grow;
        const QRectF at(origin + bubbleArea_.topLeft() * grow, bubbleArea_.size() * grow);
        p.save();
        p.setOpacity(clamp01(pose.bubble));
        p.drawPixmap(at, pm, QRectF(pm.rect()));
        p.restore();
    }
    if (pose.pointsAlpha > 0.01 && !pose.points.isEmpty()) {
        const QPixmap& pm = points(pose.points);
        const QPointF base(pose.cowX, kGroundY - 200 - pose.pointsRise);
        p.save();
        p.setOpacity(clamp01(pose.pointsAlpha));
        p.drawPixmap(QRectF(base + pointsArea_.topLeft(), pointsArea_.size()), pm,
                     QRectF(pm.rect()));
        p.restore();
    }
}

QRegion CowPicture::actorsRegion(const Pose& pose) const {
    auto toScreen = [&](const QRectF& r) {
        return QRegion(toScreen_.mapRect(r).toAlignedRect().adjusted(-3, -3, 3, 3));
    };
    const double ss = pose.saucerScale;
    QRegion region = toScreen(QRectF(pose.saucerX - 175 * ss - 40, pose.saucerY - 150 * ss - 40,
                                     350 * ss + 80, 200 * ss + 80));
    // The cow and its bubble; its shadow on the grass, clear of the panels under the grass line
    // (they would repaint with it).
    const double bottom = kGroundY + 30;
    const double cowTop = kGroundY - pose.cowLift - 300;
    region += toScreen(QRectF(pose.cowX - 135, cowTop, 440, bottom - cowTop));
    if (pose.beam > 0.01) {
        const double left = std::min(pose.saucerX - 100, pose.cowX - 195);
        const double right = std::max(pose.saucerX + 100, pose.cowX + 195);
        region += toScreen(QRectF(left, pose.saucerY, right - left, bottom - pose.saucerY));
    }
    if (pose.pointsAlpha > 0.01) {
        const double y = kGroundY - 200 - pose.pointsRise;
        region += toScreen(QRectF(pose.cowX - 150, y - 75, 300, 100));
    }
    return region;
}

}  // namespace wm::cow
