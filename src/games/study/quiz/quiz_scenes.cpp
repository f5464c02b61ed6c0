// The quiz's animation: a rubber stamp thumps down on the results paper and lifts away,
// leaving a red ring of ink with a little burst of stars.
#include <QPainter>
#include <QSvgRenderer>
#include <cmath>
#include <memory>

#include "platform/movie.h"
#include "platform/scene_kit.h"
#include "platform/services.h"

namespace wm {

namespace {

class StampScene : public MovieScene {
public:
    StampScene() : stamp_(findAsset("images/stamp.svg")) {}
    double duration() const override { return 1.5; }
    QSize naturalSize() const override { return {400, 240}; }

    void paint(QPainter& p, const QRectF& rect, double t) override {
        using namespace scene;
        p.setRenderHint(QPainter::Antialiasing);
        const QRectF stage = fitStage(rect, QSizeF(400, 240));
        const double k = stage.height() / 240.0;
        const QPointF centre = stage.center() + QPointF(0, 50 * k);
        constexpr double kHit = 0.55, kLift = 0.85;

        // The ink ring, once the stamp has hit.
        if (t >= kHit) {
            const double grow = easeOut((t - kHit) / 0.15);
            p.setPen(QPen(QColor(200, 16, 46, 220), 9 * k));
            p.setBrush(Qt::NoBrush);
            p.drawEllipse(centre, 86 * k * (0.85 + 0.15 * grow), 50 * k * (0.85 + 0.15 * grow));
            for (int i = 0; i < 6; ++i) {
                const double a = i * M_PI / 3 + 0.3;
                const double r = 100 * k + 40 * k * easeOut((t - kHit) / 0.6);
                const double alpha = 1 - clamp01((t - kHit) / 0.9);
                paintSparkle(p, centre + QPointF(std::cos(a) * r, std::sin(a) * r * 0.6), 12 * k, a,
                             alpha);
            }
        }

        // The stamp: falls, squashes a little on the paper, then rises out of the picture.
        double lift;
        if (t < kHit)
            lift = 1 - easeIn(t / kHit);
        else if (t < kLift)
            lift = 0;
        else
            lift = easeIn((t - kLift) / (duration() - kLift));
        const double squash = (t >= kHit && t < kHit + 0.12) ? 0.92 : 1.0;
        const double w = 120 * k, h = 144 * k * squash;
        const QRectF body(centre.x() - w / 2, centre.y() - h + 10 * k - lift * 260 * k, w, h);
        if (stamp_.isValid()) {
            stamp_.render(&p, body);
        } else {
            p.fillRect(body, QColor("#8a4a22"));
        }
    }

private:
    QSvgRenderer stamp_;
};

const bool registered = [] {
    RegisterScene("stamp", [] { return std::make_unique<StampScene>(); });
    return true;
}();

}  // namespace

}  // namespace wm
