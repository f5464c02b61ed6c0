#include "platform/scene_kit.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPixmap>
#include <QRadialGradient>
#include <QSvgRenderer>

namespace wm::scene {

QPixmap coverPicture(QSvgRenderer& drawing, QSize size, const QColor& fill) {
    QPixmap out(size);
    out.fill(fill);
    if (!drawing.isValid() || size.isEmpty()) return out;
    QPainter p(&out);
    p.setRenderHint(QPainter::Antialiasing);
    const QSizeF vb = drawing.viewBoxF().size();
    p.setTransform(coverStage(QSizeF(size), vb));
    drawing.render(&p, QRectF(QPointF(0, 0), vb));
    return out;
}

QPixmap spritePicture(QSvgRenderer& drawing, const QString& id, QSize px) {
    px = px.expandedTo(QSize(1, 1));
    QPixmap pm(px);
    pm.fill(Qt::transparent);
    if (drawing.isValid() && drawing.elementExists(id)) {
        QPainter p(&pm);
        p.setRenderHint(QPainter::Antialiasing);
        drawing.render(&p, id, QRectF(QPointF(0, 0), QSizeF(px)));
    }
    return pm;
}

QTransform coverStage(QSizeF size, QSizeF stage) {
    if (stage.isEmpty()) return {};
    const double k = std::max(size.width() / stage.width(), size.height() / stage.height());
    return QTransform::fromTranslate((size.width() - stage.width() * k) / 2,
                                     (size.height() - stage.height() * k) / 2)
        .scale(k, k);
}

QFont boldFont(int px) {
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(std::max(8, px));
    return f;
}

QRectF fitStage(const QRectF& rect, const QSizeF& stage) {
    const double scale = std::min(rect.width() / stage.width(), rect.height() / stage.height());
    const QSizeF size = stage * scale;
    return QRectF(rect.center() - QPointF(size.width() / 2, size.height() / 2), size);
}

QPainterPath letterTilePath(const QRectF& r) {
    QPainterPath path;
    const double radius = r.height() / 6;
    path.addRoundedRect(r, radius, radius);
    return path;
}

void paintLetterTile(QPainter& p, const QRectF& r, const QColor& colour, const QString& letter) {
    QLinearGradient face(r.topLeft(), r.bottomLeft());
    face.setColorAt(0, colour.lighter(140));
    face.setColorAt(0.5, colour);
    face.setColorAt(1, colour.darker(130));
    p.setBrush(face);
    p.setPen(QPen(colour.darker(170), r.height() / 30));
    p.drawPath(letterTilePath(r));

    // Gloss over the upper half.
    QLinearGradient gloss(r.topLeft(), QPointF(r.left(), r.center().y()));
    gloss.setColorAt(0, QColor(255, 255, 255, 120));
    gloss.setColorAt(1, QColor(255, 255, 255, 10));
    p.setPen(Qt::NoPen);
    p.setBrush(gloss);
    const double inset = r.height() / 15;
    p.drawRoundedRect(r.adjusted(inset, inset * 0.75, -inset, -r.height() / 2), inset * 1.75,
                      inset * 1.75);

    // The letter as a path, so it scales smoothly with the painter.
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(std::max(1, int(r.height() * 0.66)));
    font.setBold(true);
    QPainterPath glyph;
    glyph.addText(0, 0, font, letter);
    const QPointF shift = r.center() - glyph.boundingRect().center();
    p.setBrush(QColor(0, 0, 0, 90));
    p.drawPath(glyph.translated(shift + QPointF(r.height() / 40, r.height() / 24)));
    p.setBrush(Qt::white);
    p.drawPath(glyph.translated(shift));
}

void paintSparkle(QPainter& p, QPointF at, double size, double angle, double alpha) {
    p.save();
    p.translate(at);
    p.rotate(angle);
    QRadialGradient glow(QPointF(0, 0), size * 1.4);
    glow.setColorAt(0, withAlpha(QColor(255, 250, 210), alpha * 0.6));
    glow.setColorAt(1, withAlpha(QColor(255, 250, 210), 0));
    p.setPen(Qt::NoPen);
    p.setBrush(glow);
    p.drawEllipse(QPointF(0, 0), size * 1.4, size * 1.4);
    QPainterPath star;
    const double w = size * 0.16;
    star.moveTo(0, -size);
    star.quadTo(w, -w, size, 0);
    star.quadTo(w, w, 0, size);
    star.quadTo(-w, w, -size, 0);
    star.quadTo(-w, -w, 0, -size);
    p.setBrush(withAlpha(Qt::white, alpha));
    p.drawPath(star);
    p.restore();
}

}  // namespace wm::scene
