#include "paint_kit.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace wm::assetgen {

QColor mix(const QColor& a, const QColor& b, double t) {
    auto lerp = [t](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * t)); };
    return QColor(lerp(a.red(), b.red()), lerp(a.green(), b.green()), lerp(a.blue(), b.blue()),
                  lerp(a.alpha(), b.alpha()));
}

QColor withAlpha(QColor c, int alpha) {
    c.setAlpha(alpha);
    return c;
}

QFont boldFont(double pixelSize) {
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setBold(true);
    f.setPixelSize(std::max(1, static_cast<int>(std::lround(pixelSize))));
    f.setHintingPreference(QFont::PreferNoHinting);
    return f;
}

QPainterPath centredText(const QString& text, const QFont& font, QPointF centre) {
    QFontMetricsF fm(font);
    QPainterPath path;
    const double width = fm.horizontalAdvance(text);
    path.addText(QPointF(centre.x() - width / 2, centre.y() + fm.capHeight() / 2), font, text);
    return path;
}

QFont fittedFont(const QString& text, double pixelSize, double maxWidth, double minPixelSize) {
    double size = pixelSize;
    while (size > minPixelSize) {
        QFont f = boldFont(size);
        if (QFontMetricsF(f).horizontalAdvance(text) <= maxWidth) return f;
        size -= 1;
    }
    return boldFont(minPixelSize);
}

void outlinedText(QPainter& p, const QPainterPath& text, const QBrush& fill, const QColor& outline,
                  double outlineWidth) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.strokePath(text, QPen(outline, outlineWidth * 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.fillPath(text, fill);
    p.restore();
}

QImage transparentLayer(QSize size) {
    QImage img(size, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    return img;
}

namespace {

// One box-blur pass along rows (step 1) or columns (step = width) of a plane.
void boxPass(std::vector<int>& plane, int count, int length, int stride, int step, int radius) {
    std::vector<int> line(length);
    const int window = 2 * radius + 1;
    for (int i = 0; i < count; ++i) {
        int* base = plane.data() + static_cast<std::ptrdiff_t>(i) * stride;
        for (int k = 0; k < length; ++k) line[k] = base[k * step];
        long sum = 0;
        for (int k = -radius; k <= radius; ++k) sum += line[std::clamp(k, 0, length - 1)];
        for (int k = 0; k < length; ++k) {
            base[k * step] = static_cast<int>(sum / window);
            sum += line[std::min(k + radius + 1, length - 1)];
            sum -= line[std::max(k - radius, 0)];
        }
    }
}

}  // namespace

QImage softShadow(const QImage& layer, int radius, const QColor& colour) {
    const QImage src = layer.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const int w = src.width(), h = src.height();
    std::vector<int> alpha(static_cast<size_t>(w) * h);
    for (int y = 0; y < h; ++y) {
        auto* row = reinterpret_cast<const QRgb*>(src.constScanLine(y));
        // Eight bits of fraction, so thin shapes keep a shadow through the three passes.
        for (int x = 0; x < w; ++x) alpha[static_cast<size_t>(y) * w + x] = qAlpha(row[x]) << 8;
    }
    const int r = std::max(1, radius / 2);
    for (int pass = 0; pass < 3; ++pass) {
        boxPass(alpha, h, w, w, 1, r);
        boxPass(alpha, w, h, 1, w, r);
    }
    QImage out(w, h, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < h; ++y) {
        auto* row = reinterpret_cast<QRgb*>(out.scanLine(y));
        for (int x = 0; x < w; ++x) {
            const int a =
                ((alpha[static_cast<size_t>(y) * w + x] + 128) >> 8) * colour.alpha() / 255;
            row[x] =
                qRgba(colour.red() * a / 255, colour.green() * a / 255, colour.blue() * a / 255, a);
        }
    }
    return out;
}

void drawWithShadow(QPainter& p, const std::function<void(QPainter&)>& draw, QPointF offset,
                    int blur, const QColor& shadow) {
    QImage layer = transparentLayer(QSize(p.device()->width(), p.device()->height()));
    {
        QPainter lp(&layer);
        lp.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform |
                          QPainter::TextAntialiasing);
        lp.setTransform(p.transform());
        draw(lp);
    }
    p.save();
    p.resetTransform();
    p.drawImage(offset, softShadow(layer, blur, shadow));
    p.drawImage(QPointF(0, 0), layer);
    p.restore();
}

void fillShape(QPainter& p, const QPainterPath& path, const QColor& base, double outline) {
    const QRectF b = path.boundingRect();
    QLinearGradient g(b.topLeft(), b.bottomLeft());
    g.setColorAt(0, lighter(base, 0.35));
    g.setColorAt(0.55, base);
    g.setColorAt(1, darker(base, 0.22));
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.fillPath(path, g);
    if (outline > 0) {
        p.strokePath(path,
                     QPen(darker(base, 0.55), outline, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    p.restore();
}

void gloss(QPainter& p, const QPainterPath& path, int alpha, double depth) {
    const QRectF b = path.boundingRect();
    QLinearGradient g(b.topLeft(), QPointF(b.left(), b.top() + b.height() * depth));
    g.setColorAt(0, QColor(255, 255, 255, alpha));
    g.setColorAt(1, QColor(255, 255, 255, 0));
    QPainterPath sheen;
    sheen.addRoundedRect(b.adjusted(b.width() * 0.08, b.height() * 0.05, -b.width() * 0.08,
                                    -b.height() * (1 - depth)),
                         b.height() * 0.2, b.height() * 0.2);
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setClipPath(path, Qt::IntersectClip);
    p.fillPath(sheen, g);
    p.restore();
}

void ball(QPainter& p, QPointF centre, double radius, const QColor& base, double outline) {
    QRadialGradient g(centre, radius, centre + QPointF(-radius * 0.4, -radius * 0.45));
    g.setColorAt(0, lighter(base, 0.65));
    g.setColorAt(0.45, base);
    g.setColorAt(1, darker(base, 0.35));
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(g);
    p.setPen(outline > 0 ? QPen(darker(base, 0.55), outline) : Qt::NoPen);
    p.drawEllipse(centre, radius, radius);
    p.restore();
}

void letterTile(QPainter& p, QPointF centre, double size, const QString& letter, const QColor& base,
                double angle, const QColor& ink) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(centre);
    p.rotate(angle);
    const QRectF r(-size / 2, -size / 2, size, size);
    const QPainterPath body = roundRect(r, size * 0.18);
    // A darker base edge reads as thickness.
    fillShape(p, body.translated(0, size * 0.06), darker(base, 0.3), size * 0.03);
    fillShape(p, body, base, size * 0.03);
    QLinearGradient face(r.topLeft(), r.bottomLeft());
    face.setColorAt(0, withAlpha(lighter(base, 0.5), 200));
    face.setColorAt(1, withAlpha(base, 0));
    p.fillPath(
        roundRect(r.adjusted(size * 0.1, size * 0.08, -size * 0.1, -size * 0.45), size * 0.12),
        face);
    if (!letter.isEmpty()) {
        p.fillPath(centredText(letter, boldFont(size * 0.62), QPointF(0, size * 0.02)), ink);
    }
    p.restore();
}

QPainterPath starPath(QPointF centre, double outer, double inner, int points, double turn) {
    QPainterPath path;
    for (int i = 0; i < points * 2; ++i) {
        const double a = turn - std::numbers::pi / 2 + i * std::numbers::pi / points;
        const double r = (i % 2 == 0) ? outer : inner;
        const QPointF pt = centre + QPointF(std::cos(a) * r, std::sin(a) * r);
        if (i == 0) {
            path.moveTo(pt);
        } else {
            path.lineTo(pt);
        }
    }
    path.closeSubpath();
    return path;
}

void sparkle(QPainter& p, QPointF centre, double size, const QColor& colour) {
    QPainterPath path;
    const double w = size * 0.22;
    path.moveTo(centre + QPointF(0, -size));
    path.quadTo(centre + QPointF(w, -w), centre + QPointF(size, 0));
    path.quadTo(centre + QPointF(w, w), centre + QPointF(0, size));
    path.quadTo(centre + QPointF(-w, w), centre + QPointF(-size, 0));
    path.quadTo(centre + QPointF(-w, -w), centre + QPointF(0, -size));
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    QRadialGradient glow(centre, size * 1.4);
    glow.setColorAt(0, withAlpha(colour, colour.alpha() / 2));
    glow.setColorAt(1, withAlpha(colour, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(glow);
    p.drawEllipse(centre, size * 1.4, size * 1.4);
    p.fillPath(path, colour);
    p.restore();
}

QPainterPath roundRect(const QRectF& r, double radius) {
    QPainterPath path;
    path.addRoundedRect(r, radius, radius);
    return path;
}

QPainterPath ellipse(QPointF centre, double rx, double ry) {
    QPainterPath path;
    path.addEllipse(centre, rx, ry);
    return path;
}

QPainterPath polygon(std::initializer_list<QPointF> points) {
    QPainterPath path;
    bool first = true;
    for (const QPointF& pt : points) {
        if (first) {
            path.moveTo(pt);
            first = false;
        } else {
            path.lineTo(pt);
        }
    }
    path.closeSubpath();
    return path;
}

void line(QPainter& p, QPointF a, QPointF b, const QColor& colour, double width) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawLine(a, b);
    p.restore();
}

}  // namespace wm::assetgen
