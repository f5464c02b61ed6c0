// Spell Crush's swinging safe: a one-ton safe on a rope, swaying under the crane.
#include <QPainter>
#include <QSvgRenderer>
#include <cmath>
#include <numbers>

#include "games/show/spell_crush/spell_crush_screen.h"
#include "platform/movie.h"
#include "platform/services.h"

namespace wm {

namespace {

class SafeSwing : public MovieScene {
public:
    SafeSwing() : safe_(findAsset("images/spellcrush-safe.svg")) {}
    double duration() const override { return 2.4; }
    QSize naturalSize() const override { return {200, 320}; }
    void paint(QPainter& p, const QRectF& rect, double t) override {
        const QRectF stage = rect;
        const double w = stage.width();
        const QPointF pivot(stage.center().x(), stage.top());
        // A gentle pendulum: one swing there and back per pass, so a loop never jumps.
        const double angle = 9.0 * std::sin(2 * std::numbers::pi * t / duration());
        const double rope = stage.height() - w * 0.78;
        p.save();
        p.translate(pivot);
        p.rotate(angle);
        QPen pen(QColor(70, 56, 40), std::max(2.0, w * 0.025));
        pen.setCapStyle(Qt::RoundCap);
        p.setPen(pen);
        p.drawLine(QPointF(0, 0), QPointF(0, rope));
        const double size = w * 0.74;
        if (safe_.isValid())
            safe_.render(&p, "safe", QRectF(-size / 2, rope - size * 0.03, size, size));
        p.restore();
    }

private:
    QSvgRenderer safe_;
};

}  // namespace

void RegisterSpellCrushScenes() {
    RegisterScene("safeswing", [] { return std::make_unique<SafeSwing>(); });
}

}  // namespace wm
