// Sprites of a game's SVG drawing, found by element id and painted in the drawing's own
// coordinates. A missing drawing paints nothing.
#pragma once

#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <memory>

#include "platform/scene_kit.h"
#include "platform/services.h"

namespace wm {

class SvgSprites {
public:
    explicit SvgSprites(const QString& relative)
        : svg_(std::make_unique<QSvgRenderer>(appFile(relative))) {}
    bool valid() const { return svg_->isValid(); }
    QSizeF stage() const { return valid() ? QSizeF(svg_->viewBoxF().size()) : QSizeF(800, 600); }
    QRectF bounds(const QString& id) const {
        return valid() ? svg_->boundsOnElement(id) : QRectF();
    }
    // Maps the drawing into `rect` (kept in shape, centred) on the painter.
    void enter(QPainter& p, const QRectF& rect) const {
        const QSizeF st = stage();
        const QRectF fit = scene::fitStage(rect, st);
        p.translate(fit.topLeft());
        p.scale(fit.width() / st.width(), fit.height() / st.height());
    }
    void draw(QPainter& p, const QString& id) const {
        if (valid() && svg_->elementExists(id)) svg_->render(&p, id, svg_->boundsOnElement(id));
    }
    // The element stretched into `target`.
    void drawInto(QPainter& p, const QString& id, const QRectF& target) const {
        if (valid() && svg_->elementExists(id)) svg_->render(&p, id, target);
    }

private:
    std::unique_ptr<QSvgRenderer> svg_;
};

}  // namespace wm
