// The show's animations: the intro, the thief sneaking off with the money and the fortune
// raining down. Drawn on a 640 x 480 stage from the show's own drawings.
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <cmath>
#include <numbers>

#include "platform/movie.h"
#include "platform/scene_kit.h"
#include "platform/services.h"

namespace wm {

namespace {

using namespace wm::scene;
constexpr QSizeF kStage(640, 480);

QSvgRenderer& Drawings() {
    static QSvgRenderer r(findAsset("images/wheel-show.svg"));
    return r;
}

// Big lettering with a dark outline and a gold face.
void Title(QPainter& p, const QString& text, QPointF centre, double size, QColor face,
           double alpha) {
    QFont f("DejaVu Sans", 10, QFont::Black);
    f.setPixelSize(int(std::max(4.0, size)));
    QPainterPath path;
    path.addText(0, 0, f, text);
    const QRectF b = path.boundingRect();
    p.save();
    p.translate(centre - b.center());
    p.setOpacity(clamp01(alpha));
    p.setPen(QPen(QColor(60, 20, 0), size / 9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QLinearGradient g(0, b.top(), 0, b.bottom());
    g.setColorAt(0, face.lighter(150));
    g.setColorAt(1, face);
    p.setBrush(g);
    p.drawPath(path);
    p.restore();
}

void Stage(QPainter& p, const QRectF& r, double t, QColor tint) {
    QLinearGradient back(r.topLeft(), r.bottomLeft());
    back.setColorAt(0, QColor(18, 6, 46));
    back.setColorAt(1, tint);
    p.fillRect(r, back);
    // Two sweeping spotlights.
    for (int i = 0; i < 2; ++i) {
        const double a = std::sin(t * 1.7 + i * 2.1) * 0.35;
        const QPointF top(r.left() + r.width() * (0.25 + 0.5 * i), r.top());
        const QPointF c(top.x() + std::tan(a) * r.height(), r.bottom());
        QPainterPath beam;
        beam.moveTo(top);
        beam.lineTo(c + QPointF(-r.width() * 0.18, 0));
        beam.lineTo(c + QPointF(r.width() * 0.18, 0));
        beam.closeSubpath();
        QLinearGradient g(top, c);
        g.setColorAt(0, QColor(255, 245, 190, 120));
        g.setColorAt(1, QColor(255, 245, 190, 0));
        p.fillPath(beam, g);
    }
    // The marquee lights along the top chase each other.
    const int n = 24;
    for (int i = 0; i < n; ++i) {
        const bool on = (i + int(t * 12)) % 3 == 0;
        p.setPen(Qt::NoPen);
        p.setBrush(on ? QColor(255, 226, 90) : QColor(120, 90, 30));
        p.drawEllipse(QPointF(r.left() + (i + 0.5) * r.width() / n, r.top() + r.height() * 0.04),
                      r.width() * 0.009, r.width() * 0.009);
    }
}

class WheelIntro : public MovieScene {
public:
    double duration() const override { return 4.0; }
    QSize naturalSize() const override { return kStage.toSize(); }
    void paint(QPainter& p, const QRectF& rect, double t) override {
        const QRectF r = fitStage(rect, kStage);
        Stage(p, r, t, QColor(90, 20, 112));
        const double u = r.width() / kStage.width();
        // Coins tumble down behind the title.
        for (int i = 0; i < 14; ++i) {
            const double start = i * 0.17;
            const double y = r.top() + (t - start) * 260 * u - 60 * u;
            if (t < start || y > r.bottom()) continue;
            const double x = r.left() + r.width() * std::fmod(i * 0.379 + 0.05, 1.0);
            p.save();
            p.translate(x, y);
            p.scale(std::cos(t * 6 + i), 1);
            Drawings().render(&p, "coin", QRectF(-22 * u, -22 * u, 44 * u, 44 * u));
            p.restore();
        }
        const double in = easeOut(t / 1.2);
        const double bounce =
            1 + 0.08 * std::sin(std::max(0.0, t - 1.2) * 6) * std::exp(-(t - 1.2));
        Title(p, "Wheel of", r.center() - QPointF(0, 70 * u), 64 * u * in * bounce,
              QColor(255, 180, 0), in);
        Title(p, "Money!", r.center() + QPointF(0, 20 * u),
              96 * u * easeOut((t - 0.4) / 1.2) * bounce, QColor(255, 200, 20), (t - 0.4) / 0.6);
        for (int i = 0; i < 8; ++i) {
            const double a = i * std::numbers::pi / 4 + t;
            const QPointF at = r.center() + QPointF(std::cos(a) * 230 * u, std::sin(a) * 130 * u);
            paintSparkle(p, at, 14 * u * (0.6 + 0.4 * std::sin(t * 5 + i)), t * 2 + i,
                         clamp01(t - 1));
        }
        if (t > 2.2) {
            Title(p, "the vocabulary game show", r.center() + QPointF(0, 120 * u), 30 * u,
                  QColor(120, 220, 255), (t - 2.2) / 0.5);
        }
    }
};

class Thief : public MovieScene {
public:
    double duration() const override { return 3.6; }
    QSize naturalSize() const override { return kStage.toSize(); }
    void paint(QPainter& p, const QRectF& rect, double t) override {
        const QRectF r = fitStage(rect, kStage);
        Stage(p, r, t, QColor(70, 12, 30));
        const double u = r.width() / kStage.width();
        // He tiptoes in from the left with a bob at every step, looks round, and dashes off.
        double x;
        if (t < 1.6)
            x = lerp(-0.2, 0.5, easeOut(t / 1.6));
        else if (t < 2.4)
            x = 0.5;
        else
            x = lerp(0.5, 1.3, easeIn((t - 2.4) / 1.2));
        const double bob = std::abs(std::sin(t * 9)) * 14 * u;
        const double w = 200 * u;
        const QRectF body(r.left() + r.width() * x - w / 2, r.top() + r.height() * 0.38 - bob, w,
                          w);
        p.save();
        if (t > 1.9 && t < 2.3) {  // a quick look back
            p.translate(body.center());
            p.scale(-1, 1);
            p.translate(-body.center());
        }
        Drawings().render(&p, "thief", body);
        p.restore();
        const bool flash = int(t * 6) % 2 == 0;
        Title(p, "THIEF!", QPointF(r.center().x(), r.top() + r.height() * 0.2), 84 * u,
              flash ? QColor(230, 30, 40) : QColor(255, 120, 40), t / 0.3);
        // Dollar signs left behind.
        for (int i = 0; i < 5; ++i) {
            const double born = 0.4 + i * 0.35;
            if (t < born) continue;
            const double age = t - born;
            Title(p, "$",
                  QPointF(r.left() + r.width() * (0.1 + i * 0.15),
                          r.top() + r.height() * (0.8 - age * 0.12)),
                  36 * u, QColor(60, 170, 70), 1 - age / 1.6);
        }
    }
};

class Fortune : public MovieScene {
public:
    double duration() const override { return 3.6; }
    QSize naturalSize() const override { return kStage.toSize(); }
    void paint(QPainter& p, const QRectF& rect, double t) override {
        const QRectF r = fitStage(rect, kStage);
        Stage(p, r, t, QColor(20, 90, 60));
        const double u = r.width() / kStage.width();
        for (int i = 0; i < 26; ++i) {
            const double start = std::fmod(i * 0.137, 1.4);
            const double fall = t - start;
            if (fall < 0) continue;
            const double y = r.top() - 60 * u + fall * (180 + (i % 5) * 30) * u;
            if (y > r.bottom() + 40 * u) continue;
            const double x = r.left() + r.width() * std::fmod(i * 0.293 + 0.03, 1.0) +
                             std::sin(fall * 3 + i) * 20 * u;
            p.save();
            p.translate(x, y);
            p.rotate(std::sin(fall * 4 + i) * 35);
            if (i % 3 == 0)
                Drawings().render(&p, "bill", QRectF(-40 * u, -18 * u, 80 * u, 37 * u));
            else
                Drawings().render(&p, "coin", QRectF(-18 * u, -18 * u, 36 * u, 36 * u));
            p.restore();
        }
        const double pulse = 1 + 0.06 * std::sin(t * 8);
        Title(p, "FORTUNE!", r.center(), 92 * u * easeOut(t / 0.6) * pulse, QColor(255, 196, 0),
              t / 0.3);
        for (int i = 0; i < 10; ++i) {
            const double a = i * std::numbers::pi / 5 - t * 1.5;
            paintSparkle(p, r.center() + QPointF(std::cos(a) * 250 * u, std::sin(a) * 110 * u),
                         16 * u, t * 3 + i, clamp01(t * 2));
        }
    }
};

}  // namespace

void RegisterWheelScenes() {
    RegisterScene("wheelintro", [] { return std::make_unique<WheelIntro>(); });
    RegisterScene("thief", [] { return std::make_unique<Thief>(); });
    RegisterScene("fortune", [] { return std::make_unique<Fortune>(); });
}

}  // namespace wm
