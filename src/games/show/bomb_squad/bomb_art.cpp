#include "games/show/bomb_squad/bomb_art.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <cmath>

#include "games/show/svg_picture.h"
#include "platform/movie.h"
#include "platform/scene_kit.h"

namespace wm::bombart {

const std::array<QColor, 8>& wireColours() {
    static const std::array<QColor, 8> c{
        QColor(230, 40, 40),  QColor(40, 110, 240), QColor(40, 190, 70),  QColor(250, 200, 20),
        QColor(250, 130, 20), QColor(170, 70, 220), QColor(20, 200, 210), QColor(240, 90, 170)};
    return c;
}

void paintBomb(QPainter& p, const QRectF& r, int seconds, QColor clockColour) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    const double d = std::min(r.width(), r.height());
    const QPointF c(r.center().x(), r.center().y() + d * 0.08);
    const double rad = d * 0.40;
    if (show::PaintSvg(p, "images/bomb.svg",
                       QRectF(r.center().x() - d / 2, r.center().y() - d / 2, d, d))) {
        scene::paintSparkle(p, QPointF(r.center().x() + d * 0.29, r.center().y() - d * 0.43),
                            d * 0.12, 0.3, 1.0);
    } else {
        // Fuse, with a spark at its tip.
        QPainterPath fuse;
        fuse.moveTo(c.x() + rad * 0.45, c.y() - rad * 0.95);
        fuse.cubicTo(c.x() + rad * 0.7, c.y() - rad * 1.35, c.x() + rad * 1.0, c.y() - rad * 1.0,
                     c.x() + rad * 1.05, c.y() - rad * 1.3);
        p.setPen(QPen(QColor(150, 110, 60), d * 0.03, Qt::SolidLine, Qt::RoundCap));
        p.drawPath(fuse);
        scene::paintSparkle(p, QPointF(c.x() + rad * 1.05, c.y() - rad * 1.3), d * 0.12, 0.3, 1.0);
        // Cap.
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(90, 90, 100));
        p.drawRoundedRect(QRectF(c.x() + rad * 0.2, c.y() - rad * 1.08, rad * 0.5, rad * 0.35), 4,
                          4);
        // Body with a shine.
        QRadialGradient g(c - QPointF(rad * 0.35, rad * 0.35), rad * 1.4);
        g.setColorAt(0, QColor(110, 110, 130));
        g.setColorAt(0.5, QColor(45, 45, 60));
        g.setColorAt(1, QColor(15, 15, 20));
        p.setBrush(g);
        p.setPen(QPen(QColor(0, 0, 0), d * 0.01));
        p.drawEllipse(c, rad, rad);
        p.setBrush(QColor(255, 255, 255, 110));
        p.setPen(Qt::NoPen);
        p.drawEllipse(QRectF(c.x() - rad * 0.6, c.y() - rad * 0.7, rad * 0.35, rad * 0.22));
    }
    // Clock face.
    const QRectF face(c.x() - rad * 0.55, c.y() - rad * 0.2, rad * 1.1, rad * 0.6);
    p.setBrush(QColor(20, 30, 20));
    p.setPen(QPen(QColor(200, 200, 210), d * 0.015));
    p.drawRoundedRect(face, 8, 8);
    QFont f("DejaVu Sans Mono");
    f.setBold(true);
    f.setPixelSize(std::max(8, int(face.height() * 0.75)));
    p.setFont(f);
    p.setPen(clockColour);
    p.drawText(face, Qt::AlignCenter, QString::number(std::max(0, seconds)));
    p.restore();
}

QPainterPath wirePath(QPointF a, QPointF via, QPointF b) {
    QPainterPath path(a);
    path.quadTo(via, b);
    return path;
}

void paintWire(QPainter& p, QPointF a, QPointF via, QPointF b, const QColor& colour, double width,
               bool cut) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    QPen outline(colour.darker(170), width + 3, Qt::SolidLine, Qt::RoundCap);
    QPen body(colour, width, Qt::SolidLine, Qt::RoundCap);
    auto stroke = [&](const QPainterPath& path) {
        p.setPen(outline);
        p.drawPath(path);
        p.setPen(body);
        p.drawPath(path);
    };
    if (!cut) {
        stroke(wirePath(a, via, b));
    } else {
        // Two halves with a gap at the middle, the ends drooping like snipped wire.
        const double gap = width * 3;
        QPainterPath left(a), right(b);
        const QPointF m1(via.x() - gap, via.y() + width * 2),
            m2(via.x() + gap, via.y() + width * 2);
        left.quadTo(QPointF((a.x() + via.x()) / 2, (a.y() + via.y()) / 2 + width), m1);
        right.quadTo(QPointF((b.x() + via.x()) / 2, (b.y() + via.y()) / 2 + width), m2);
        stroke(left);
        stroke(right);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(205, 130, 60));  // bare copper at the ends
        p.drawEllipse(m1, width * 0.7, width * 0.7);
        p.drawEllipse(m2, width * 0.7, width * 0.7);
    }
    p.restore();
}

namespace {
// A cartoon pop: a yellow star burst, soot puffs and "BOOM!"; nothing hurt, only a surprise.
class BombScene : public MovieScene {
public:
    double duration() const override { return 2.0; }
    QSize naturalSize() const override { return {480, 360}; }
    void paint(QPainter& p, const QRectF& rect, double t) override {
        p.save();
        p.setRenderHint(QPainter::Antialiasing);
        const QPointF c = rect.center();
        const double u = scene::easeOut(scene::clamp01(t / 0.6));
        const double s = std::min(rect.width(), rect.height()) * 0.5 * (0.3 + 0.7 * u);
        auto star = [&](double radius, const QColor& col, double turn) {
            QPainterPath path;
            for (int i = 0; i < 24; ++i) {
                const double a = turn + i * M_PI / 12;
                const double rr = i % 2 ? radius * 0.55 : radius;
                const QPointF pt(c.x() + rr * std::cos(a), c.y() + rr * std::sin(a));
                i ? path.lineTo(pt) : path.moveTo(pt);
            }
            path.closeSubpath();
            p.setBrush(col);
            p.setPen(QPen(col.darker(130), 3));
            p.drawPath(path);
        };
        star(s, QColor(255, 140, 20), t * 0.5);
        star(s * 0.75, QColor(255, 220, 40), -t * 0.7);
        p.setPen(Qt::NoPen);
        for (int i = 0; i < 8; ++i) {
            const double a = i * M_PI / 4 + 0.3;
            const double rr = s * (0.9 + 0.5 * scene::clamp01(t - 0.3));
            p.setBrush(scene::withAlpha(QColor(90, 90, 100), 0.7 * (1 - scene::clamp01(t / 2))));
            p.drawEllipse(QPointF(c.x() + rr * std::cos(a), c.y() + rr * std::sin(a)), s * 0.18,
                          s * 0.18);
        }
        QFont f("DejaVu Sans");
        f.setBold(true);
        f.setPixelSize(std::max(10, int(s * 0.38)));
        p.setFont(f);
        p.setPen(QPen(QColor(200, 20, 20)));
        p.drawText(QRectF(c.x() - s, c.y() - s * 0.3, 2 * s, s * 0.6), Qt::AlignCenter, "BOOM!");
        p.restore();
    }
};
}  // namespace

QString labelStyle(const QColor& c) {
    const bool light = 0.299 * c.red() + 0.587 * c.green() + 0.114 * c.blue() > 160;
    return QString(
               "QLabel { color: %1; background: %2; border: 3px solid %3; border-radius: 10px;"
               " padding: 2px 8px; }")
        .arg(light ? "#111" : "white", c.name(), c.darker(160).name());
}

void registerScenes() {
    static const bool once = [] {
        RegisterScene("bomb", [] { return std::make_unique<BombScene>(); });
        return true;
    }();
    (void)once;
}

}  // namespace wm::bombart
