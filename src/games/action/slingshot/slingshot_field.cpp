#include "games/action/slingshot/slingshot_field.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>

#include "platform/scene_kit.h"
#include "platform/services.h"
#include "platform/text.h"
#include "platform/text_fit.h"
#include "platform/ticker.h"

namespace wm {

using namespace slingshot;

namespace {
constexpr double kPi = 3.14159265358979;
constexpr qint64 kLongAgo = -1'000'000;
// The scenery in field units.
const QRectF kBoard(70, 6, 1140, 92);
const QRectF kBeam(10, 98, 1260, 30);
const QRectF kFork(562, 468, 156, 300);  // the slingshot standing on the grass
constexpr double kTipDx = 44, kTipY = 506;  // the fork's tips, where the band is tied
const QRectF kLeftPlate(66, 648, 330, 96), kRightPlate(884, 648, 330, 96);
constexpr double kBanner = 1.24;
constexpr int kSparkles = 14;  // round the winner's call  // the word's ribbon, as wide as the target times this

QFont boldFont(double px) {
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(std::max(8, int(px)));
    return f;
}

// A word as an outlined picture, drawn once and then only copied.
QPixmap outlined(const QString& text, const QFont& font, const QColor& fill, const QColor& edge,
                 double edgeWidth) {
    QPainterPath path;
    path.addText(0, 0, font, text);
    const QRectF box = path.boundingRect().adjusted(-edgeWidth, -edgeWidth, edgeWidth, edgeWidth);
    QPixmap pm(box.size().toSize() + QSize(2, 2));
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(-box.topLeft() + QPointF(1, 1));
    p.setPen(QPen(edge, edgeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
    p.setPen(Qt::NoPen);
    p.setBrush(fill);
    p.drawPath(path);
    return pm;
}

void drawCentred(QPainter& p, const QPixmap& pm, QPointF centre) {
    p.drawPixmap(centre - QPointF(pm.width() / 2.0, pm.height() / 2.0), pm);
}

double since(qint64 t, qint64 t0, int ms) {
    return double(t - t0) / ms;
}
}  // namespace

SlingField::SlingField(QWidget* parent) : QWidget(parent) {
    setObjectName("SlingField");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
    wobbleAt_.fill(kLongAgo);
    spinAt_.fill(kLongAgo);
    flashAt_.fill(kLongAgo);
}

qint64 SlingField::now() const {
    return Ticker::get().now() - born_;
}

QPointF SlingField::toWidget(Point p) const {
    return origin_ + QPointF(p.x, p.y) * scale_;
}

Point SlingField::toField(QPointF p) const {
    const QPointF f = (p - origin_) / scale_;
    return {f.x(), f.y()};
}

QRectF SlingField::toWidget(const QRectF& field) const {
    return QRectF(origin_ + field.topLeft() * scale_, field.size() * scale_);
}

QRect SlingField::boardRect() const {
    return toWidget(kBoard.adjusted(40, 10, -40, -12)).toRect();
}

QRect SlingField::leftPlateRect() const {
    return toWidget(kLeftPlate).toRect();
}

QRect SlingField::rightPlateRect() const {
    return toWidget(kRightPlate).toRect();
}

void SlingField::deal() {
    for (int slot = 0; slot < kTargets; ++slot) {
        wobbleAt_[slot] = spinAt_[slot] = flashAt_[slot] = kLongAgo;
    }
    buildTargets();
    update();
}

void SlingField::wobble(int slot) {
    wobbleAt_[slot] = now();
}

void SlingField::spinAway(int slot) {
    if (game_) spinFrom_[slot] = QPointF(game_->target(slot).x, game_->target(slot).y);
    spinAt_[slot] = now();
}

void SlingField::flash(int slot) {
    flashAt_[slot] = now();
}

bool SlingField::flashing(int slot) const {
    return since(now(), flashAt_[slot], kFlashMs) < 1;
}

bool SlingField::spinning(int slot) const {
    return since(now(), spinAt_[slot], kSpinMs) < 1;
}

bool SlingField::wobbling(int slot) const {
    return since(now(), wobbleAt_[slot], kWobbleMs) < 1;
}

void SlingField::popup(const QString& text, bool good, Point at) {
    pops_.push_back({outlined(text, boldFont(44 * scale_),
                              good ? QColor(255, 236, 80) : QColor(255, 110, 90),
                              good ? QColor(40, 90, 20) : QColor(90, 20, 10), 6 * scale_),
                     at, now()});
}

void SlingField::setCall(const QString& text, bool party) {
    call_ = text;
    party_ = party && !text.isEmpty();
    callAt_ = now();
    callPicture_ = QPixmap();
    if (!text.isEmpty()) {
        QFont f = boldFont(96 * scale_);
        while (f.pixelSize() > 8 && QFontMetricsF(f).horizontalAdvance(text) > width() * 0.9)
            f.setPixelSize(f.pixelSize() - 2);
        callPicture_ = outlined(text, f, QColor(255, 226, 70), QColor(120, 50, 10), 9 * scale_);
    }
    update();
}

// --- the scenery, once a size ----------------------------------------------------------

QPixmap SlingField::renderArt(const char* id, QSizeF size) const {
    QPixmap pm(size.toSize().expandedTo(QSize(1, 1)));
    pm.fill(Qt::transparent);
    QSvgRenderer art(appFile("images/slingshot-sprites.svg"));
    if (art.isValid() && art.elementExists(id)) {
        QPainter p(&pm);
        p.setRenderHint(QPainter::Antialiasing);
        art.render(&p, id, QRectF(QPointF(0, 0), size));
    }
    return pm;
}

void SlingField::resizeEvent(QResizeEvent*) {
    scale_ = std::max(0.05, std::min(width() / kFieldW, height() / kFieldH));
    origin_ = QPointF((width() - kFieldW * scale_) / 2, (height() - kFieldH * scale_) / 2);
    buildScene();
    buildTargets();
    if (!call_.isEmpty()) {  // the call again at the new size, where it stood
        const qint64 at = callAt_;
        setCall(call_, party_);
        callAt_ = at;
    }
}

void SlingField::buildScene() {
    if (width() <= 0 || height() <= 0) return;
    scene_ = QPixmap(size());
    scene_.fill(QColor(120, 190, 235));
    QPainter p(&scene_);
    p.setRenderHint(QPainter::Antialiasing);
    QSvgRenderer back(appFile("images/slingshot-meadow.svg"));
    if (back.isValid()) back.render(&p, QRectF(rect()));
    QSvgRenderer art(appFile("images/slingshot-sprites.svg"));
    auto draw = [&](const char* id, const QRectF& field) {
        if (art.isValid() && art.elementExists(id)) art.render(&p, id, toWidget(field));
    };
    // The posts stand on the ground wherever the screen's bottom is.
    const double ground = std::max(kFieldH, toField(QPointF(0, height())).y);
    draw("post_0", QRectF(kBeam.left() + 8, kBeam.top() + 6, 34, ground - kBeam.top()));
    draw("post_0", QRectF(kBeam.right() - 42, kBeam.top() + 6, 34, ground - kBeam.top()));
    draw("board_0", kBoard);
    draw("beam_0", kBeam);
    for (int slot = 0; slot < kTargets; ++slot) {
        const Point pv = pivot(slot);
        draw("hook_0", QRectF(pv.x - 12, pv.y - 8, 24, 26));
    }
    draw("fork_0", kFork);
    draw("plate_0", kLeftPlate);
    draw("plate_0", kRightPlate);
    p.end();

    const double s = scale_;
    stone_ = renderArt("stone_0", QSizeF(2 * kStoneRadius, 2 * kStoneRadius) * s);
    pouchPic_ = renderArt("pouch_0", QSizeF(46, 30) * s);
    forkFront_ = renderArt("fork_1", kFork.size() * s);
    const int side = std::max(8, int(40 * s));
    sparkle_ = QPixmap(side, side);
    sparkle_.fill(Qt::transparent);
    QPainter sp(&sparkle_);
    sp.setRenderHint(QPainter::Antialiasing);
    scene::paintSparkle(sp, QPointF(side / 2.0, side / 2.0), side * 0.34, 12, 1.0);
    drawn_ = QRegion();
    update();
}

void SlingField::buildTargets() {
    if (!game_ || width() <= 0) return;
    const double s = scale_;
    const QSizeF size(2 * kTargetRadius * kBanner * s, 2 * kTargetRadius * s);
    QSvgRenderer art(appFile("images/slingshot-sprites.svg"));
    for (int slot = 0; slot < kTargets; ++slot) {
        QPixmap pm(size.toSize());
        pm.fill(Qt::transparent);
        QPainter p(&pm);
        p.setRenderHint(QPainter::Antialiasing);
        const double d = 2 * kTargetRadius * s;
        const QRectF disc((size.width() - d) / 2, 0, d, d);
        if (art.isValid()) art.render(&p, "target_0", disc);
        const QRectF ribbon(0, d * 0.56, size.width(), d * 0.34);
        if (art.isValid()) art.render(&p, "ribbon_0", ribbon);
        // The word fills the ribbon's middle, smaller for a long word.
        const QString word = toQ(game_->word(slot));
        const QRectF text = ribbon.adjusted(ribbon.width() * 0.12, 0, -ribbon.width() * 0.12, 0);
        const QFont f = scene::shrinkToWidth(boldFont(ribbon.height() * 0.56), text.width(), word);
        p.setFont(f);
        p.setPen(QColor(70, 30, 5));
        p.drawText(text.translated(0, -ribbon.height() * 0.06), Qt::AlignCenter, word);
        targets_[slot] = pm;
    }
}

// --- what moves -------------------------------------------------------------------------

Point SlingField::sparkleAt(int k, qint64 t) const {
    const double a = k * 2 * kPi / kSparkles + double(t - callAt_) / 700.0;
    const double r = 250 + 50 * std::sin(double(t - callAt_) / 200.0 + k);
    return {kFieldW / 2 + std::cos(a) * r * 1.6, 300 + std::sin(a) * r * 0.5};
}

bool SlingField::targetPose(int slot, qint64 t, QPointF* centre, double* turn,
                            double* grow) const {
    if (!game_) return false;
    *grow = 1;
    const double spin = since(t, spinAt_[slot], kSpinMs);
    if (game_->gone(slot)) {
        if (spin < 0 || spin >= 1) return false;
        // Knocked off its rope: it spins up and away to the side it was nearer, shrinking.
        const double dir = spinFrom_[slot].x() < kFieldW / 2 ? -1 : 1;
        const double tt = spin * kSpinMs / 16.0;
        *centre = spinFrom_[slot] + QPointF(dir * 9 * tt, -14 * tt + 0.42 * tt * tt);
        *turn = dir * 900 * scene::easeOut(spin);
        *grow = 1 - 0.45 * spin;
        return true;
    }
    const Point at = game_->target(slot);
    *centre = QPointF(at.x, at.y);
    const Point pv = pivot(slot);
    // It hangs from its rope, turned a little with the swing.
    *turn = std::atan2(pv.x - at.x, at.y - pv.y) * 180 / kPi * 0.4;
    const double w = since(t, wobbleAt_[slot], kWobbleMs);
    if (w >= 0 && w < 1) *turn += 16 * std::sin(w * 5 * 2 * kPi) * (1 - w);
    return true;
}

QRegion SlingField::liveRegion(qint64 t) const {
    QRegion live;
    auto add = [&](const QRectF& field, double pad = 4) {
        live += toWidget(field).toAlignedRect().adjusted(-pad, -pad, pad, pad);
    };
    for (int slot = 0; slot < kTargets; ++slot) {
        QPointF c;
        double turn, grow;
        if (!targetPose(slot, t, &c, &turn, &grow)) continue;
        const double r = kTargetRadius * kBanner * 1.25 * grow;
        add(QRectF(c.x() - r, c.y() - r, 2 * r, 2 * r));
        if (!game_->gone(slot)) {
            const Point pv = pivot(slot);
            add(QRectF(QPointF(std::min(pv.x, c.x()) - 6, pv.y),
                       QPointF(std::max(pv.x, c.x()) + 6, c.y())));
        }
    }
    if (game_ && game_->phase() == Phase::Flying) {
        const Point s = game_->stone(), v = game_->stoneSpeed();
        const double r = kStoneRadius + 3;
        add(QRectF(QPointF(std::min(s.x, s.x - 3 * v.x) - r, std::min(s.y, s.y - 3 * v.y) - r),
                   QPointF(std::max(s.x, s.x - 3 * v.x) + r, std::max(s.y, s.y - 3 * v.y) + r)));
    }
    if (pulling_ || since(t, snapAt_, 400) < 1) add(QRectF(380, 380, 520, kFieldH - 380));
    for (const Pop& pop : pops_) add(QRectF(pop.at.x - 130, pop.at.y - 110, 260, 110));
    if (!call_.isEmpty() && t - callAt_ < 400) add(QRectF(0, 150, kFieldW, 330));
    if (party_) {
        const double half = sparkle_.width() * 0.6 / scale_;
        for (int k = 0; k < kSparkles; ++k) {
            const Point at = sparkleAt(k, t);
            add(QRectF(at.x - half, at.y - half, 2 * half, 2 * half));
        }
    }
    return live;
}

void SlingField::step() {
    const qint64 t = now();
    pops_.erase(std::remove_if(pops_.begin(), pops_.end(),
                               [&](const Pop& p) { return t - p.t0 >= kPopMs; }),
                pops_.end());
    const QRegion live = liveRegion(t);
    update(live + drawn_);
    drawn_ = live;
}

void SlingField::paintTarget(QPainter& p, int slot, qint64 t) {
    QPointF c;
    double turn, grow;
    if (!targetPose(slot, t, &c, &turn, &grow)) return;
    const QPointF wc = toWidget(Point{c.x(), c.y()});
    if (!game_->gone(slot)) {
        const Point pv = pivot(slot);
        const QPointF top = toWidget(pv);
        // The rope meets the target's top edge.
        const QPointF dir = (wc - top) / std::max(1.0, std::hypot(wc.x() - top.x(), wc.y() - top.y()));
        const QPointF tie = wc - dir * kTargetRadius * 0.92 * scale_;
        p.setPen(QPen(QColor(92, 62, 30), std::max(2.0, 5 * scale_), Qt::SolidLine, Qt::RoundCap));
        p.drawLine(top, tie);
        p.setPen(QPen(QColor(196, 160, 100), std::max(1.0, 2 * scale_), Qt::DotLine, Qt::RoundCap));
        p.drawLine(top, tie);
    }
    const double f = since(t, flashAt_[slot], kFlashMs);
    if (f >= 0 && f < 1 && !game_->gone(slot)) {
        // The answer shown: a golden glow that pulses.
        const double beat = 0.5 + 0.5 * std::sin(f * 6 * 2 * kPi);
        QRadialGradient g(wc, kTargetRadius * 1.6 * scale_);
        g.setColorAt(0.5, scene::withAlpha(QColor(255, 236, 90), 0.9 * beat));
        g.setColorAt(1, scene::withAlpha(QColor(255, 200, 40), 0));
        p.setPen(Qt::NoPen);
        p.setBrush(g);
        p.drawEllipse(wc, kTargetRadius * 1.6 * scale_, kTargetRadius * 1.6 * scale_);
        p.setPen(QPen(scene::withAlpha(QColor(255, 250, 200), 0.4 + 0.6 * beat), 6 * scale_));
        p.setBrush(Qt::NoBrush);
        const double ring = kTargetRadius * (1.08 + 0.1 * beat) * scale_;
        p.drawEllipse(wc, ring, ring);
    }
    const QPixmap& pic = targets_[slot];
    if (pic.isNull()) return;
    p.save();
    p.translate(wc);
    p.rotate(turn);
    p.scale(grow, grow);
    p.drawPixmap(QPointF(-pic.width() / 2.0, -pic.height() / 2.0), pic);
    p.restore();
}

void SlingField::paintSling(QPainter& p) {
    const Point rest = pouchRest();
    Point at = pulling_ ? pouch_ : rest;
    const double snap = since(now(), snapAt_, 400);
    if (!pulling_ && snap >= 0 && snap < 1) {
        // Let go: the band overshoots and settles.
        const double wobble = std::sin(snap * 3 * kPi) * (1 - snap) * 26;
        at = {rest.x, rest.y - wobble};
    }
    const QPointF left = toWidget(Point{rest.x - kTipDx, kTipY});
    const QPointF right = toWidget(Point{rest.x + kTipDx, kTipY});
    const QPointF pouch = toWidget(at);
    const double stretch = std::hypot(at.x - rest.x, at.y - rest.y) / kMaxPull;
    const QColor band = QColor(150, 40, 30).lighter(100 + int(40 * stretch));
    p.setPen(QPen(band, std::max(2.0, (8 - 3 * stretch) * scale_), Qt::SolidLine, Qt::RoundCap));
    p.drawLine(left, pouch);
    if (pulling_) {
        // Where the stone would go: a few dots, fading.
        Point s = rest, v{(rest.x - at.x) * kSpeedPerPull, (rest.y - at.y) * kSpeedPerPull};
        p.setPen(Qt::NoPen);
        for (int tick = 1; tick <= 16; ++tick) {
            v.y += kDrop;
            s.x += v.x;
            s.y += v.y;
            if (tick % 2) continue;
            p.setBrush(scene::withAlpha(QColor(255, 255, 255), 0.85 - tick * 0.045));
            p.drawEllipse(toWidget(s), 4.5 * scale_, 4.5 * scale_);
        }
    }
    p.drawPixmap(pouch - QPointF(pouchPic_.width() / 2.0, pouchPic_.height() * 0.35), pouchPic_);
    // The stone sits in the pouch, ready.
    const bool loaded = game_ && game_->phase() == Phase::Aiming && game_->stonesLeft() > 0;
    if (loaded)
        p.drawPixmap(pouch - QPointF(stone_.width() / 2.0, stone_.height() * 0.75), stone_);
    p.setPen(QPen(band, std::max(2.0, (8 - 3 * stretch) * scale_), Qt::SolidLine, Qt::RoundCap));
    p.drawLine(right, pouch);
    p.drawPixmap(toWidget(kFork).topLeft(), forkFront_);
}

void SlingField::paintEvent(QPaintEvent* event) {
    QPainter p(this);
    if (scene_.isNull()) {
        p.fillRect(rect(), QColor(120, 190, 235));
        return;
    }
    for (const QRect& r : event->region()) p.drawPixmap(r, scene_, r);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const qint64 t = now();

    // The stones still to throw lie on the grass by the slingshot.
    // (one is in the pouch or in the air)
    const bool out = game_ && (game_->phase() == Phase::Aiming || game_->phase() == Phase::Flying);
    const int left = game_ ? game_->stonesLeft() - (out ? 1 : 0) : 0;
    for (int k = 0; k < left; ++k)
        p.drawPixmap(toWidget(Point{760 + k * 30.0, 716 - (k % 2) * 6.0}), stone_);

    for (int slot = 0; slot < kTargets; ++slot) paintTarget(p, slot, t);
    paintSling(p);

    if (game_ && game_->phase() == Phase::Flying) {
        const Point s = game_->stone(), v = game_->stoneSpeed();
        p.setPen(Qt::NoPen);
        for (int k = 3; k >= 1; --k) {
            p.setBrush(scene::withAlpha(QColor(255, 255, 255), 0.18 * (4 - k)));
            p.drawEllipse(toWidget(Point{s.x - v.x * k, s.y - v.y * k}),
                          (kStoneRadius - k * 2) * scale_, (kStoneRadius - k * 2) * scale_);
        }
        p.drawPixmap(toWidget(s) - QPointF(stone_.width() / 2.0, stone_.height() / 2.0), stone_);
    }

    for (const Pop& pop : pops_) {
        const double u = since(t, pop.t0, kPopMs);
        p.setOpacity(1 - scene::easeIn(u));
        drawCentred(p, pop.picture, toWidget(Point{pop.at.x, pop.at.y - 30 - 60 * scene::easeOut(u)}));
        p.setOpacity(1);
    }

    if (!call_.isEmpty()) {
        const double pop = scene::easeOut(since(t, callAt_, 300));
        if (party_) {
            for (int k = 0; k < kSparkles; ++k) {
                const Point at = sparkleAt(k, t);
                const double tw = 0.5 + 0.5 * std::sin(double(t - callAt_) / 90.0 + k * 1.3);
                const double sz = sparkle_.width() * (0.6 + 0.6 * tw);
                p.setOpacity(0.4 + 0.6 * tw);
                p.drawPixmap(QRectF(toWidget(at) - QPointF(sz / 2, sz / 2), QSizeF(sz, sz)),
                             sparkle_, QRectF(sparkle_.rect()));
            }
        }
        p.setOpacity(pop);
        drawCentred(p, callPicture_, toWidget(Point{kFieldW / 2, 310 - (1 - pop) * 30}));
        p.setOpacity(1);
    }
}

// --- input ------------------------------------------------------------------------------

bool SlingField::onSlingshot(QPointF widgetPos) const {
    const Point at = toField(widgetPos);
    const Point rest = pouchRest();
    return std::hypot(at.x - rest.x, at.y - rest.y) <= kGrabReach ||
           kFork.contains(QPointF(at.x, at.y));
}

void SlingField::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || pulling_) return;
    if (!onSlingshot(event->position())) return;
    if (canPull && !canPull()) return;
    pulling_ = true;
    pouch_ = pullPouch(toField(event->position()));
    setCursor(Qt::ClosedHandCursor);
    if (grabbed) grabbed();
}

void SlingField::mouseMoveEvent(QMouseEvent* event) {
    if (!pulling_) {
        // An open hand over the slingshot says it can be taken hold of.
        const bool ready = onSlingshot(event->position()) && (!canPull || canPull());
        setCursor(ready ? Qt::OpenHandCursor : Qt::ArrowCursor);
        return;
    }
    pouch_ = pullPouch(toField(event->position()));
}

void SlingField::mouseReleaseEvent(QMouseEvent* event) {
    if (!pulling_ || event->button() != Qt::LeftButton) return;
    pouch_ = pullPouch(toField(event->position()));
    pulling_ = false;
    setCursor(Qt::ArrowCursor);
    snapAt_ = now();
    const Point at = pouch_;
    pouch_ = pouchRest();
    if (letGo) letGo(at);
}

}  // namespace wm
