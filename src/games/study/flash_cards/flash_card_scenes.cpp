// The card cover: a purple card back with a question mark. At rest it hides the side; played, it
// lifts like a lid, spins away and fades with a few twinkles.
#include <QPainter>
#include <QSvgRenderer>
#include <memory>

#include "platform/movie.h"
#include "platform/scene_kit.h"
#include "platform/services.h"

namespace wm {

namespace {

class CardCoverScene : public MovieScene {
public:
    CardCoverScene() : cover_(findAsset("images/card-cover.svg")) {}
    double duration() const override { return 0.8; }
    QSize naturalSize() const override { return {1000, 400}; }

    void paint(QPainter& p, const QRectF& rect, double t) override {
        using namespace scene;
        p.setRenderHint(QPainter::Antialiasing);
        const double u = clamp01(t / duration());
        if (u >= 1) return;  // gone: nothing left over the card
        // Lifts from the bottom edge upwards, tilting back, while it fades.
        const double lift = easeIn(u);
        p.save();
        p.setOpacity(1 - smooth(u * 1.1));
        const QPointF pivot(rect.center().x(), rect.top());
        p.translate(pivot);
        p.rotate(-8 * lift);
        p.scale(1 - 0.15 * lift, std::max(0.02, 1 - lift));
        p.translate(-pivot);
        const QRectF r = rect.translated(0, -rect.height() * 0.6 * lift);
        if (cover_.isValid())
            cover_.render(&p, r);
        else
            p.fillRect(r, QColor("#5b34b8"));
        p.restore();
        if (u > 0) {
            for (int i = 0; i < 5; ++i) {
                const QPointF at(rect.left() + rect.width() * (0.1 + 0.2 * i),
                                 rect.center().y() - rect.height() * 0.4 * u * (1 + (i % 2)));
                paintSparkle(p, at, rect.height() * 0.08, u * 3 + i, 1 - u);
            }
        }
    }

private:
    QSvgRenderer cover_;
};

const bool registered = [] {
    RegisterScene("card", [] { return std::make_unique<CardCoverScene>(); });
    return true;
}();

}  // namespace

}  // namespace wm
