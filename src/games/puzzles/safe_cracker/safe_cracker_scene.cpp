#include "games/puzzles/safe_cracker/safe_cracker_scene.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>
#include <QSvgRenderer>
#include <cmath>

#include "platform/scene_kit.h"
#include "platform/services.h"

namespace wm::safe {

namespace {
using namespace scene;

const QRectF kDoor(70, 58, 1060, 636);        // the door, hinged on its left edge
const QRectF kGrid(112, 92, 772, 568);         // where the rows of tumblers sit
const QPointF kDial(1010, 250), kHandle(1010, 505);
constexpr double kRowPitch = 568.0 / 6;
constexpr double kCellH = 80, kCellGap = 8, kCellMaxW = 84;
constexpr double kPi = 3.14159265358979;

QColor markColour(int mark) {
    switch (mark) {
        case 1: return QColor(110, 118, 132);
        case 2: return QColor(240, 164, 32);
        case 3: return QColor(52, 168, 83);
        default: return QColor(250, 244, 224);
    }
}
}  // namespace

SafePicture::SafePicture()
    : room_(std::make_unique<QSvgRenderer>(appFile("images/safe-vault.svg"))),
      parts_(std::make_unique<QSvgRenderer>(appFile("images/safe-parts.svg"))) {}

SafePicture::~SafePicture() = default;

void SafePicture::resize(QSize screen, const QRect& safeArea) {
    if (screen.isEmpty() || safeArea.isEmpty()) return;
    if (screen != size_) {
        size_ = screen;
        roomPixmap_ = scene::coverPicture(*room_, screen, QColor(34, 44, 58));
        shutBack_ = QPixmap();
    }
    if (safeArea == safeArea_) return;
    safeArea_ = safeArea;
    const QRectF fit = fitStage(QRectF(safeArea), QSizeF(kArtW, kArtH));
    safeRect_ = fit.toAlignedRect();
    scale_ = fit.width() / kArtW;
    art_ = QTransform::fromTranslate(fit.left(), fit.top()).scale(scale_, scale_);
    const int b = int(std::clamp(safeArea.height() * 0.24, 48.0, 200.0));
    beaconRect_ = QRect(0, 0, b, b);
    cache_.clear();
    tumblers_.clear();
    shutBack_ = QPixmap();
    doorLayer_ = QPixmap();
}

// A part of the safe drawing, rendered once at the safe's size.
QPixmap SafePicture::part(const QString& id) const {
    for (const auto& [name, pm] : cache_)
        if (name == id) return pm;
    QPixmap pm;
    if (parts_->isValid() && parts_->elementExists(id)) {
        const QRectF b = parts_->boundsOnElement(id);
        const QSize px = (b.size() * scale_).toSize().expandedTo(QSize(1, 1));
        QImage img(px, QImage::Format_ARGB32_Premultiplied);
        img.fill(Qt::transparent);
        QPainter p(&img);
        p.setRenderHint(QPainter::Antialiasing);
        parts_->render(&p, id, QRectF(QPointF(0, 0), QSizeF(px)));
        p.end();
        pm = QPixmap::fromImage(img);
    }
    cache_.emplace_back(id, pm);
    return pm;
}

// The door swung on its hinge towards us: the free edge comes round and grows as it nears.
QPolygonF SafePicture::swung(double door) const {
    const QRectF r = art_.mapRect(kDoor);
    const double th = 96 * door * kPi / 180;
    const double edgeX = r.left() + r.width() * std::cos(th);
    const double grow = r.height() * 0.08 * std::sin(th);
    return QPolygonF{r.topLeft(), QPointF(edgeX, r.top() - grow), QPointF(edgeX, r.bottom() + grow),
                     r.bottomLeft()};
}

QRegion SafePicture::frameRegion(double door) const {
    QRegion r = QRegion(safeRect_) + QRegion(beaconRect_);
    if (door > 0) r += swung(door).boundingRect().toAlignedRect().adjusted(-2, -2, 2, 2);
    return r;
}

// Where a part's picture goes: its drawing's place, on whole pixels, so it is drawn unscaled.
QPoint SafePicture::placed(const QString& id) const {
    return art_.map(parts_->boundsOnElement(id).topLeft()).toPoint();
}

void SafePicture::paintRoom(QPainter& p, const QRect& area) const {
    p.drawPixmap(area, roomPixmap_, area);
}

QRectF SafePicture::cellRect(int row, int col, int columns) const {
    const int n = std::max(1, columns);
    const double w = std::min(kCellMaxW, (kGrid.width() - (n - 1) * kCellGap) / n);
    const double left = kGrid.left() + (kGrid.width() - (n * w + (n - 1) * kCellGap)) / 2;
    const double top = kGrid.top() + row * kRowPitch + (kRowPitch - kCellH) / 2;
    return art_.mapRect(QRectF(left + col * (w + kCellGap), top, w, kCellH));
}

void SafePicture::paintTumbler(QPainter& p, const QRectF& r, const Tumbler& t, bool active) const {
    // Sixty tumblers stand still for every one that turns: those at rest are drawn once.
    if (t.flip <= 0 || t.flip >= 1) {
        const QSize size = r.size().toSize();
        const QString key = QString("%1|%2|%3|%4|%5x%6")
                                .arg(t.letter).arg(t.mark).arg(t.flip >= 1).arg(active)
                                .arg(size.width()).arg(size.height());
        auto it = tumblers_.find(key);
        if (it == tumblers_.end()) {
            QPixmap pm(size + QSize(4, 4));
            pm.fill(Qt::transparent);
            QPainter q(&pm);
            q.setRenderHints(p.renderHints());
            drawTumbler(q, QRectF(QPointF(2, 2), QSizeF(size)), t, active);
            it = tumblers_.insert(key, pm);
        }
        p.drawPixmap(r.topLeft().toPoint() - QPoint(2, 2), *it);
        return;
    }
    drawTumbler(p, r, t, active);
}

void SafePicture::drawTumbler(QPainter& p, const QRectF& r, const Tumbler& t, bool active) const {
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(std::max(6, int(std::min(r.height() * 0.58, r.width() * 0.78))));
    p.setFont(f);
    if (t.mark < 0) {
        // A blank or a hyphen stands fixed: no tumbler, the sign engraved on the panel.
        p.setPen(QColor(200, 210, 222));
        p.drawText(r, Qt::AlignCenter, t.letter);
        return;
    }
    const double radius = r.width() * 0.16;
    const bool lit = t.flip >= 0.5 && t.mark > 0;
    if (t.letter.isEmpty() && !lit) {
        // An empty tumbler: a dark slot in the panel.
        p.setPen(QPen(active ? QColor(255, 205, 90) : QColor(90, 102, 118), active ? 3 : 2));
        QLinearGradient g(r.topLeft(), r.bottomLeft());
        g.setColorAt(0, QColor(16, 20, 28));
        g.setColorAt(1, QColor(44, 52, 64));
        p.setBrush(g);
        p.drawRoundedRect(r, radius, radius);
        return;
    }
    // Turning: squeezed top to bottom around the middle, lit from half way.
    const double squeeze = std::abs(std::cos(kPi * clamp01(t.flip)));
    const QRectF box(r.left(), r.center().y() - r.height() / 2 * squeeze, r.width(),
                     r.height() * squeeze);
    const QColor face = markColour(lit ? t.mark : 0);
    QLinearGradient g(box.topLeft(), box.bottomLeft());
    g.setColorAt(0, face.lighter(125));
    g.setColorAt(0.5, face);
    g.setColorAt(1, face.darker(130));
    p.setPen(QPen(active ? QColor(255, 205, 90) : face.darker(170), active ? 3 : 2));
    p.setBrush(g);
    p.drawRoundedRect(box, radius, radius * squeeze);
    // The drum's band across the middle.
    p.setPen(QPen(withAlpha(Qt::white, 0.35), 1));
    p.drawLine(QPointF(box.left() + 4, box.top() + box.height() * 0.16),
               QPointF(box.right() - 4, box.top() + box.height() * 0.16));
    if (squeeze > 0.25) {
        p.save();
        p.translate(box.center());
        p.scale(1, squeeze);
        p.setPen(lit ? QColor(Qt::white) : QColor(40, 44, 60));
        p.drawText(QRectF(-r.width() / 2, -r.height() / 2, r.width(), r.height()), Qt::AlignCenter,
                   t.letter);
        p.restore();
    }
}

void SafePicture::paintDoor(QPainter& p, const SafeView& v, bool panel) const {
    if (panel) {
        const QPixmap door = part("door");
        if (!door.isNull()) p.drawPixmap(placed("door"), door);
    }
    for (int row = 0; row < int(v.rows.size()); ++row) {
        const bool active = row == v.activeRow;
        const double dx = active ? v.shake * scale_ : 0;
        for (int col = 0; col < int(v.rows[row].size()) && col < v.columns; ++col)
            paintTumbler(p, cellRect(row, col, v.columns).translated(dx, 0), v.rows[row][col],
                         active);
    }
    auto spin = [&](const char* id, QPointF centre, double angle) {
        const QPixmap pm = part(id);
        if (pm.isNull()) return;
        const QRectF b = parts_->boundsOnElement(id);
        const QPointF c = toScreen(centre);
        p.save();
        p.translate(c);
        p.rotate(angle);
        const QRectF at((b.left() - centre.x()) * scale_, (b.top() - centre.y()) * scale_,
                        b.width() * scale_, b.height() * scale_);
        p.drawPixmap(at, pm, pm.rect());
        p.restore();
    };
    spin("dial", kDial, v.dial);
    spin("handle", kHandle, v.handle);
}

void SafePicture::paintSafe(QPainter& p, const SafeView& v) const {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const QPixmap body = part("body");
    if (v.door <= 0) {
        const QRect back = safeRect_ & QRect(QPoint(0, 0), size_);
        if (shutBack_.isNull()) {
            // The shut safe stands still but for its tumblers, dial and handle: the room behind
            // it, its body and its door's panel are laid once into one opaque picture.
            shutBack_ = roomPixmap_.copy(back);
            QPainter o(&shutBack_);
            o.setRenderHints(p.renderHints());
            o.translate(-back.topLeft());
            if (!body.isNull()) o.drawPixmap(placed("body"), body);
            const QPixmap door = part("door");
            if (!door.isNull()) o.drawPixmap(placed("door"), door);
        }
        p.drawPixmap(back.topLeft(), shutBack_);
        doorLayer_ = QPixmap();
        paintDoor(p, v, false);
    } else {
        if (!body.isNull()) p.drawPixmap(placed("body"), body);
        const QRectF doorRect = art_.mapRect(kDoor);
        const QPixmap inside = part("inside");
        if (!inside.isNull())
            p.drawPixmap(placed("inside"), inside);
        // Glints on the gold.
        for (int i = 0; i < 5; ++i) {
            const double phase = std::fmod(v.time * 0.9 + i * 0.37, 1.0);
            const QPointF at = toScreen(QPointF(260 + i * 170, 470 + 60 * std::sin(i * 2.1)));
            paintSparkle(p, at, 26 * scale_ * std::sin(phase * kPi), phase * 90,
                         std::sin(phase * kPi) * clamp01(v.door * 2));
        }
        if (doorLayer_.isNull()) {
            // The door swings as one picture: its rows as they stood when it opened.
            doorLayer_ = QPixmap(doorRect.toAlignedRect().size());
            doorLayer_.fill(Qt::transparent);
            QPainter d(&doorLayer_);
            d.setRenderHint(QPainter::Antialiasing);
            d.translate(-doorRect.toAlignedRect().topLeft());
            SafeView shut = v;
            shut.door = 0;
            paintDoor(d, shut);
        }
        const QPolygonF from{doorRect.topLeft(), doorRect.topRight(), doorRect.bottomRight(),
                             doorRect.bottomLeft()};
        const QPolygonF to = swung(v.door);
        const double edgeX = to[1].x();
        QTransform t;
        if (std::abs(edgeX - doorRect.left()) > 2 && QTransform::quadToQuad(from, to, t)) {
            p.save();
            p.setTransform(t, true);
            // Moving fast, the door needs no smoothing, and a frame stays cheap.
            p.setRenderHint(QPainter::SmoothPixmapTransform, false);
            p.drawPixmap(doorRect.toAlignedRect().topLeft(), doorLayer_);
            // The door's face darkens as it turns away from the lamp.
            p.fillRect(doorRect, withAlpha(QColor(10, 12, 20), 0.6 * v.door));
            p.restore();
        }
    }
    const QRectF bodyRect = art_.mapRect(QRectF(28, 24, 1144, 702));
    if (v.alarm > 0) {
        // The alarm's red light washes over the steel.
        QRadialGradient g(bodyRect.center(), bodyRect.width() * 0.7);
        g.setColorAt(0, withAlpha(QColor(255, 40, 30), 0.10 * v.alarm));
        g.setColorAt(1, withAlpha(QColor(255, 40, 30), 0.34 * v.alarm));
        p.setPen(Qt::NoPen);
        p.setBrush(g);
        p.drawRoundedRect(bodyRect, 30 * scale_, 30 * scale_);
    }
    if (!v.reveal.isEmpty()) {
        // The combination on a plaque across the tumblers.
        const QRectF plaque = art_.mapRect(QRectF(150, 300, 696, 150));
        p.setPen(QPen(QColor(255, 214, 120), std::max(2.0, 6 * scale_)));
        QLinearGradient g(plaque.topLeft(), plaque.bottomLeft());
        g.setColorAt(0, QColor(214, 52, 44));
        g.setColorAt(1, QColor(140, 18, 20));
        p.setBrush(g);
        p.drawRoundedRect(plaque, 20 * scale_, 20 * scale_);
        QFont f("DejaVu Sans");
        f.setBold(true);
        f.setPixelSize(std::max(8, int(84 * scale_)));
        const int room = int(plaque.width() * 0.92);
        while (f.pixelSize() > 8 && QFontMetrics(f).horizontalAdvance(v.reveal) > room)
            f.setPixelSize(f.pixelSize() - 2);
        p.setFont(f);
        p.setPen(Qt::white);
        p.drawText(plaque, Qt::AlignCenter, v.reveal);
    }
    if (v.pointsAlpha > 0 && !v.points.isEmpty()) {
        if (v.points != pointsText_) {
            // Drawn once: large type is slow to draw afresh every frame.
            pointsText_ = v.points;
            QFont f("DejaVu Sans");
            f.setBold(true);
            f.setPixelSize(std::max(10, int(90 * scale_)));
            const QSize box = QFontMetrics(f).size(0, v.points) + QSize(8, 8);
            QImage img(box, QImage::Format_ARGB32_Premultiplied);
            img.fill(Qt::transparent);
            QPainter q(&img);
            q.setRenderHint(QPainter::TextAntialiasing);
            q.setFont(f);
            q.setPen(QColor(60, 30, 0));
            q.drawText(img.rect().translated(3, 3), Qt::AlignCenter, v.points);
            q.setPen(QColor(255, 220, 90));
            q.drawText(img.rect(), Qt::AlignCenter, v.points);
            q.end();
            pointsPixmap_ = QPixmap::fromImage(img);
        }
        const QPointF at = toScreen(QPointF(600, 380 - v.pointsRise));
        p.setOpacity(v.pointsAlpha);
        p.drawPixmap((at - QPointF(pointsPixmap_.width(), pointsPixmap_.height()) / 2).toPoint(),
                     pointsPixmap_);
        p.setOpacity(1);
    }
    p.restore();
}

void SafePicture::paintBeacon(QPainter& p, double glow) const {
    const QRectF r(beaconRect_);
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    if (glow > 0) {
        QRadialGradient g(r.center(), r.width() * 0.5);
        g.setColorAt(0, withAlpha(QColor(255, 90, 60), 0.85 * glow));
        g.setColorAt(0.45, withAlpha(QColor(255, 40, 30), 0.45 * glow));
        g.setColorAt(1, withAlpha(QColor(255, 40, 30), 0));
        p.setPen(Qt::NoPen);
        p.setBrush(g);
        p.drawEllipse(r);
    }
    const QPixmap lamp = part(glow > 0.5 ? "beacon_1" : "beacon_0");
    const QRectF inner(r.center().x() - r.width() * 0.36, r.center().y() - r.height() * 0.4,
                       r.width() * 0.72, r.height() * 0.8);
    if (!lamp.isNull()) p.drawPixmap(fitStage(inner, lamp.size()), lamp, lamp.rect());
    p.restore();
}

}  // namespace wm::safe
