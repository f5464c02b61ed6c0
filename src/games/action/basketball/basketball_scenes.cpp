// The basket's animations: the basket at rest, four shots that go in and four that go silly.
// Drawn on a 480 x 360 stage fitted into the player's rectangle, over the gym wall behind it.
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <cmath>
#include <memory>

#include "platform/movie.h"
#include "platform/scene_kit.h"

namespace wm {

namespace {

using namespace wm::scene;

const QSizeF kStage(480, 360);
const QPointF kRim(240, 196);  // the middle of the rim
constexpr double kRimW = 64;
constexpr double kBall = 19;  // radius
constexpr double kLength = 2.2;

enum class Kind { Still, Swish, Bank, Dunk, Round, Airball, Clank, Bonk, Stuck };

void Board(QPainter& p, double shake) {
    p.save();
    p.translate(std::sin(shake * 40) * 6 * shake, 0);
    p.setPen(QPen(QColor(90, 90, 100), 6));
    p.drawLine(QPointF(240, 150), QPointF(240, 360));  // the pole behind
    p.setPen(QPen(QColor(40, 40, 60), 3));
    p.setBrush(QColor(250, 250, 255));
    p.drawRoundedRect(QRectF(150, 60, 180, 120), 8, 8);
    p.setPen(QPen(QColor(230, 80, 30), 4));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(212, 118, 56, 44));
    p.restore();
}

// The net hangs from the rim; `bulge` swings it as a ball goes through.
void Net(QPainter& p, double bulge) {
    p.setPen(QPen(QColor(255, 255, 255, 230), 2));
    const double top = kRim.y(), bottom = kRim.y() + 58 + 10 * bulge;
    for (int i = 0; i <= 6; ++i) {
        const double u = i / 6.0;
        const double x0 = kRim.x() - kRimW / 2 + u * kRimW;
        const double x1 = kRim.x() - 20 + u * 40 + (u - 0.5) * 16 * bulge;
        p.drawLine(QPointF(x0, top), QPointF(x1, bottom));
        p.drawLine(QPointF(x0, top), QPointF(kRim.x() - 20 + (1 - u) * 40, bottom));
    }
}

void Rim(QPainter& p, bool front) {
    p.setPen(QPen(QColor(240, 100, 20), 5));
    p.setBrush(Qt::NoBrush);
    const QRectF r(kRim.x() - kRimW / 2, kRim.y() - 8, kRimW, 16);
    p.drawArc(r, front ? 180 * 16 : 0, 180 * 16);  // back half first, front half over the ball
}

void Ball(QPainter& p, QPointF at, double spin, double scale = 1) {
    p.save();
    p.translate(at);
    p.rotate(spin * 360);
    p.scale(scale, scale);
    QRadialGradient g(QPointF(-6, -6), kBall * 1.5);
    g.setColorAt(0, QColor(255, 170, 80));
    g.setColorAt(1, QColor(200, 80, 10));
    p.setPen(QPen(QColor(80, 30, 0), 2));
    p.setBrush(g);
    p.drawEllipse(QPointF(0, 0), kBall, kBall);
    p.setBrush(Qt::NoBrush);
    p.drawLine(QPointF(-kBall, 0), QPointF(kBall, 0));
    p.drawLine(QPointF(0, -kBall), QPointF(0, kBall));
    p.drawArc(QRectF(-kBall * 1.6, -kBall, kBall * 1.2, kBall * 2), -60 * 16, 120 * 16);
    p.drawArc(QRectF(kBall * 0.4, -kBall, kBall * 1.2, kBall * 2), 120 * 16, 120 * 16);
    p.restore();
}

// A big comic word that pops up and wobbles.
void Shout(QPainter& p, const QString& text, QColor colour, double u, QPointF at = {240, 40}) {
    if (u <= 0) return;
    const double pop = u < 0.2 ? easeOut(u / 0.2) * 1.25 : 1.25 - 0.25 * smooth((u - 0.2) / 0.2);
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(46);
    QPainterPath path;
    path.addText(0, 0, f, text);
    const QRectF b = path.boundingRect();
    p.save();
    p.translate(at);
    p.rotate(std::sin(u * 12) * 4);
    p.scale(pop, pop);
    p.translate(-b.center());
    p.setPen(QPen(Qt::black, 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPath(path);
    p.fillPath(path, colour);
    p.restore();
}

class BasketScene : public MovieScene {
public:
    explicit BasketScene(Kind kind) : kind_(kind) {}
    double duration() const override { return kind_ == Kind::Still ? 1.0 : kLength; }
    QSize naturalSize() const override { return kStage.toSize(); }

    void paint(QPainter& p, const QRectF& rect, double t) override {
        p.setRenderHint(QPainter::Antialiasing);
        const QRectF stage = fitStage(rect, kStage);
        p.save();
        p.translate(stage.topLeft());
        p.scale(stage.width() / kStage.width(), stage.height() / kStage.height());
        draw(p, t);
        p.restore();
    }

private:
    // Where the ball is, how far it has spun, whether it is behind the front of the rim, and
    // how much the net and board move.
    struct Pose {
        QPointF at{-60, 420};
        double spin = 0, scale = 1, bulge = 0, shake = 0;
        bool inside = false;  // between the rim's two halves
        bool shown = true;
    };

    static QPointF From() { return {40, 400}; }

    Pose pose(double t) const {
        Pose o;
        o.spin = t * 1.5;
        const QPointF over(kRim.x(), kRim.y() - 30);
        switch (kind_) {
            case Kind::Still:
                o.shown = false;
                break;
            case Kind::Swish:
                if (t < 1.0)
                    o.at = bezier(From(), {80, 40}, {200, -40}, over, smooth(t));
                else {
                    o.at = QPointF(kRim.x(), lerp(over.y(), 330, easeIn((t - 1.0) / 0.5)));
                    o.inside = true;
                    o.bulge = std::sin(clamp01((t - 1.0) / 0.6) * 3.14159) * 1.2;
                }
                break;
            case Kind::Bank:
                if (t < 0.8)
                    o.at = bezier(From(), {120, 60}, {260, 0}, {300, 110}, smooth(t / 0.8));
                else if (t < 1.1)
                    o.at = bezier({300, 110}, {280, 120}, {250, 140}, over, (t - 0.8) / 0.3);
                else {
                    o.at = QPointF(kRim.x(), lerp(over.y(), 330, easeIn((t - 1.1) / 0.5)));
                    o.inside = true;
                    o.bulge = std::sin(clamp01((t - 1.1) / 0.6) * 3.14159);
                }
                o.shake = t > 0.8 && t < 1.1 ? 0.4 : 0;
                break;
            case Kind::Dunk:
                if (t < 0.8)
                    o.at = bezier(From(), {60, 100}, {200, -80}, {240, 20}, smooth(t / 0.8));
                else if (t < 1.0)
                    o.at = QPointF(240, 20);  // hangs at the top: wait for it...
                else {
                    o.at = QPointF(240, lerp(20, 340, easeIn(clamp01((t - 1.0) / 0.3))));
                    o.inside = o.at.y() > kRim.y() - 10;
                    o.shake = std::max(0.0, 1 - (t - 1.15) * 2) * (t > 1.15 ? 1 : 0);
                    o.bulge = std::sin(clamp01((t - 1.1) / 0.5) * 3.14159) * 1.6;
                }
                break;
            case Kind::Round: {
                if (t < 0.8) {
                    o.at = bezier(From(), {80, 60}, {180, 0}, {kRim.x() - kRimW / 2, kRim.y() - 12},
                                  smooth(t / 0.8));
                } else if (t < 1.5) {
                    const double a = 3.14159 + (t - 0.8) / 0.7 * 2 * 2 * 3.14159;
                    o.at = QPointF(kRim.x() + std::cos(a) * kRimW / 2,
                                   kRim.y() - 12 + std::sin(a) * 8);
                    o.inside = std::sin(a) < 0;
                } else {
                    o.at = QPointF(kRim.x(), lerp(kRim.y() - 12, 330, easeIn((t - 1.5) / 0.4)));
                    o.inside = true;
                    o.bulge = std::sin(clamp01((t - 1.5) / 0.5) * 3.14159);
                }
                break;
            }
            case Kind::Airball:
                // Sails high over the board, the wrong way, and away.
                o.at = bezier(From(), {120, 0}, {380, -10}, {560, 150}, smooth(t / 1.4));
                o.scale = 1 - 0.4 * clamp01(t / 1.4);
                break;
            case Kind::Clank:
                if (t < 0.8) {
                    o.at = bezier(From(), {80, 60}, {180, 0}, {kRim.x() + kRimW / 2, kRim.y() - 16},
                                  smooth(t / 0.8));
                } else {
                    const double u = clamp01((t - 0.8) / 1.0);
                    o.at = QPointF(lerp(kRim.x() + kRimW / 2, 520, u),
                                   kRim.y() - 16 - 160 * u + 420 * u * u);
                    o.spin = 1.2 + u * 6;
                }
                o.shake = t > 0.8 && t < 1.0 ? 0.2 : 0;
                break;
            case Kind::Bonk:
                if (t < 0.8)
                    o.at = bezier(From(), {80, 40}, {200, 20}, {240, 100}, smooth(t / 0.8));
                else {
                    // Back off the board and straight at the player, bigger and bigger.
                    const double u = clamp01((t - 0.8) / 0.8);
                    o.at = QPointF(240, 100 + 140 * u);
                    o.scale = 1 + 5 * easeIn(u);
                }
                o.shake = t > 0.8 && t < 1.3 ? 0.8 : 0;
                break;
            case Kind::Stuck:
                if (t < 0.8) {
                    o.at = bezier(From(), {80, 60}, {180, 0}, {kRim.x() + 8, kRim.y() - 20},
                                  smooth(t / 0.8));
                } else if (t < 1.7) {
                    // Wobbles on the rim, undecided...
                    const double w = std::sin((t - 0.8) * 14) * (1.7 - t) * 16;
                    o.at = QPointF(kRim.x() + 8 + w, kRim.y() - 20);
                    o.spin = 1.2 + w / 60;
                } else {
                    const double u = clamp01((t - 1.7) / 0.5);
                    o.at = QPointF(kRim.x() + 8 + 160 * u, kRim.y() - 20 + 200 * u * u);
                }
                break;
        }
        return o;
    }

    void draw(QPainter& p, double t) {
        const Pose o = pose(t);
        Board(p, o.shake);
        Rim(p, false);
        if (o.shown && o.inside) Ball(p, o.at, o.spin, o.scale);
        Net(p, o.bulge);
        Rim(p, true);
        if (o.shown && !o.inside) Ball(p, o.at, o.spin, o.scale);
        switch (kind_) {
            case Kind::Still:
                break;
            case Kind::Swish:
                Shout(p, "SWISH!", QColor(120, 255, 120), (t - 1.1) / 1.0);
                break;
            case Kind::Bank:
                Shout(p, "BANK SHOT!", QColor(120, 220, 255), (t - 1.2) / 1.0);
                break;
            case Kind::Dunk:
                Shout(p, "SLAM DUNK!", QColor(255, 220, 60), (t - 1.15) / 1.0);
                for (int i = 0; i < 8 && t > 1.15; ++i) {
                    const double a = i * 3.14159 / 4 + t * 3;
                    paintSparkle(p, QPointF(240 + std::cos(a) * 110, 200 + std::sin(a) * 70), 14,
                                 t * 5 + i, 1 - clamp01((t - 1.9) / 0.3));
                }
                break;
            case Kind::Round:
                Shout(p, "ROUND AND IN!", QColor(255, 150, 230), (t - 1.6) / 0.6);
                for (int i = 0; i < 24 && t > 1.6; ++i) {
                    const double u = t - 1.6;
                    const QPointF c(40 + (i * 37) % 400, -10 + u * (140 + (i * 53) % 90));
                    p.setPen(Qt::NoPen);
                    p.setBrush(QColor::fromHsv((i * 47) % 360, 200, 255));
                    p.drawRect(QRectF(c.x() + std::sin(u * 8 + i) * 8, c.y(), 8, 5));
                }
                break;
            case Kind::Airball:
                Shout(p, "AIRBALL!", QColor(255, 120, 120), (t - 1.0) / 1.2, {240, 300});
                break;
            case Kind::Clank:
                Shout(p, "CLANK!", QColor(255, 170, 60), (t - 0.8) / 1.4, {120, 90});
                break;
            case Kind::Bonk:
                Shout(p, "BONK!", QColor(255, 230, 90), (t - 0.85) / 1.3, {240, 50});
                for (int i = 0; i < 5 && t > 0.8 && t < 1.6; ++i) {
                    const double a = i * 2 * 3.14159 / 5 + t * 8;
                    paintSparkle(p, QPointF(240 + std::cos(a) * 40, 90 + std::sin(a) * 14), 10, a,
                                 1);
                }
                break;
            case Kind::Stuck:
                Shout(p, "SO CLOSE!", QColor(200, 200, 255), (t - 1.0) / 1.2, {240, 300});
                break;
        }
    }

    Kind kind_;
};

const bool registered = [] {
    RegisterScene("bball-still", [] { return std::make_unique<BasketScene>(Kind::Still); });
    const Kind good[] = {Kind::Swish, Kind::Bank, Kind::Dunk, Kind::Round};
    const Kind bad[] = {Kind::Airball, Kind::Clank, Kind::Bonk, Kind::Stuck};
    for (int i = 0; i < 4; ++i) {
        const Kind g = good[i], b = bad[i];
        RegisterScene(QString("bball-good%1").arg(i + 1),
                      [g] { return std::make_unique<BasketScene>(g); });
        RegisterScene(QString("bball-bad%1").arg(i + 1),
                      [b] { return std::make_unique<BasketScene>(b); });
    }
    return true;
}();

}  // namespace

}  // namespace wm
