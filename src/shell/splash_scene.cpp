// The opening animation: a night sky, a little flying saucer that swoops in and beams down the
// letter tiles of the name, a sparkle, then the subtitle. Drawn on a 640 x 480 stage fitted into
// whatever rectangle the player gives; the sky and hills fill the whole rectangle.
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "platform/movie.h"
#include "platform/scene_kit.h"
#include "shell/screens.h"

namespace wm {

namespace {

using namespace wm::scene;

constexpr double kPi = 3.14159265358979323846;
constexpr double kStageW = 640;
constexpr double kStageH = 480;
const QSizeF kStage(kStageW, kStageH);
constexpr double kVignetteStart = 0.62;

// Timeline, in seconds.
constexpr double kLength = 6.0;
constexpr double kArrive = 1.35;     // the saucer reaches the first slot
constexpr double kSlotTime = 0.36;   // one letter: beam, drop, move on
constexpr double kDrop = 0.25;       // a tile's fall down the beam
constexpr double kMoveStart = 0.24;  // within a slot: when the saucer glides to the next
constexpr double kLeave = kArrive + 8 * kSlotTime - 0.06;
constexpr double kLeaveTime = 0.8;
constexpr double kShine = kLeave + 0.05;
constexpr double kSubtitle = 4.55;

// Stage layout.
constexpr double kTileSize = 60;
constexpr double kTileGap = 8;
constexpr double kTileTop = 236;
constexpr double kHoverY = 118;
constexpr double kEmitterDy = 14;
const char kWord[] = "WORDMERE";
const std::array<QColor, 8> kTileColours = {
    QColor(235, 75, 75),  QColor(245, 150, 45), QColor(232, 196, 40), QColor(80, 190, 90),
    QColor(55, 165, 220), QColor(95, 110, 232), QColor(160, 90, 220), QColor(228, 88, 168)};

double slotX(int i) {
    const double total = 8 * kTileSize + 7 * kTileGap;
    return (kStageW - total) / 2 + i * (kTileSize + kTileGap) + kTileSize / 2;
}

double slotStart(int i) {
    return kArrive + i * kSlotTime;
}

struct Star {
    double x, y;  // fractions of the whole rectangle
    double radius;
    double phase, speed;
    QColor colour;
};

struct SaucerPose {
    QPointF pos;
    double angle = 0;  // degrees of bank
    double scale = 1;
    bool visible = true;
};

class SplashScene : public MovieScene {
public:
    SplashScene() {
        // A fixed seed: the same sky every time.
        unsigned state = 20240611u;
        auto next = [&state] {
            state = state * 1664525u + 1013904223u;
            return (state >> 8) / double(1u << 24);
        };
        for (int i = 0; i < 170; ++i) {
            Star s;
            s.x = next();
            s.y = next() * 0.8;
            s.radius = 0.35 + 1.25 * std::pow(next(), 3);
            s.phase = next() * 2 * kPi;
            s.speed = 1.5 + next() * 3.5;
            const double tint = next();
            s.colour = tint < 0.6   ? QColor(255, 255, 255)
                       : tint < 0.8 ? QColor(200, 220, 255)
                                    : QColor(255, 236, 200);
            stars_.push_back(s);
        }
    }

    double duration() const override { return kLength; }

    void paint(QPainter& p, const QRectF& rect, double t) override {
        p.save();
        p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform |
                         QPainter::TextAntialiasing);
        p.setClipRect(rect);
        drawBackdrop(p, rect);
        drawStars(p, rect, t);

        const QRectF stage = fitStage(rect, kStage);
        p.translate(stage.topLeft());
        p.scale(stage.width() / kStageW, stage.height() / kStageH);

        drawShootingStar(p, t);
        drawGroundGlow(p, t);
        for (int i = 0; i < 8; ++i) drawBeam(p, t, i);
        for (int i = 0; i < 8; ++i) drawTile(p, t, i);
        drawShine(p, t);
        drawSaucerWithTrail(p, t);
        drawSparkles(p, t);
        drawSubtitle(p, t);
        p.restore();
    }

private:
    // Sky glow, nebulae, moon and hills do not move: drawn once per size.
    void drawBackdrop(QPainter& p, const QRectF& rect) {
        const qreal dpr = p.device() ? p.device()->devicePixelRatioF() : 1.0;
        const QSize pixels = (rect.size() * dpr).toSize();
        if (backdrop_.size() != pixels) {
            backdrop_ = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
            backdrop_.setDevicePixelRatio(dpr);
            QPainter b(&backdrop_);
            b.setRenderHint(QPainter::Antialiasing);
            paintBackdrop(b, QRectF(QPointF(0, 0), rect.size()));
        }
        p.drawImage(rect.topLeft(), backdrop_);
    }

    static void paintBackdrop(QPainter& b, const QRectF& r) {
        const double w = r.width(), h = r.height();
        b.fillRect(r, Qt::black);
        QRadialGradient sky(QPointF(w * 0.5, h * 0.3), std::max(w, h) * 0.75);
        sky.setColorAt(0, QColor(15, 21, 56));
        sky.setColorAt(0.55, QColor(6, 8, 25));
        sky.setColorAt(1, Qt::black);
        b.fillRect(r, sky);
        auto nebula = [&](double cx, double cy, double radius, QColor c) {
            QRadialGradient g(QPointF(cx * w, cy * h), radius * w);
            g.setColorAt(0, c);
            g.setColorAt(1, withAlpha(c, 0));
            b.fillRect(r, g);
        };
        nebula(0.26, 0.28, 0.28, QColor(70, 30, 110, 46));
        nebula(0.74, 0.42, 0.22, QColor(20, 80, 110, 36));
        nebula(0.52, 0.12, 0.18, QColor(40, 40, 120, 30));

        // Two rows of hills along the bottom edge.
        auto hills = [&](double base, double bump, double shift, QColor fill, QColor rim) {
            QPainterPath path(QPointF(0, h));
            path.lineTo(0, h * base);
            const int humps = 4;
            for (int i = 0; i < humps; ++i) {
                const double x0 = w * i / humps, x1 = w * (i + 1) / humps;
                const double lift = bump * (0.6 + 0.4 * std::sin(i * 2.1 + shift));
                path.cubicTo(QPointF(lerp(x0, x1, 0.3), h * (base - lift)),
                             QPointF(lerp(x0, x1, 0.7), h * (base - lift)), QPointF(x1, h * base));
            }
            path.lineTo(w, h);
            path.closeSubpath();
            QLinearGradient g(0, h * (base - bump), 0, h);
            g.setColorAt(0, fill);
            g.setColorAt(1, Qt::black);
            b.setBrush(g);
            b.setPen(QPen(rim, std::max(1.0, h / 400)));
            b.drawPath(path);
        };
        hills(0.87, 0.06, 0.0, QColor(16, 20, 46), QColor(50, 60, 120, 90));
        hills(0.93, 0.05, 1.7, QColor(8, 10, 24), QColor(70, 90, 160, 70));

        // Fade to black at the edges, so the scene melts into the black screen round it.
        b.save();
        b.translate(w / 2, h / 2);
        b.scale(w / 2, h / 2);
        QRadialGradient vignette(QPointF(0, 0), 1);
        vignette.setColorAt(kVignetteStart, QColor(0, 0, 0, 0));
        vignette.setColorAt(1, QColor(0, 0, 0, 255));
        b.fillRect(QRectF(-1, -1, 2, 2), vignette);
        b.restore();

        // The moon sits on the stage, so it follows the fitted stage.
        const QRectF stage = fitStage(r, kStage);
        const double k = stage.width() / kStageW;
        const QPointF moon = stage.topLeft() + QPointF(536, 84) * k;
        const double mr = 24 * k;
        QRadialGradient halo(moon, mr * 3.4);
        halo.setColorAt(0, QColor(255, 248, 220, 50));
        halo.setColorAt(1, QColor(255, 248, 220, 0));
        b.setPen(Qt::NoPen);
        b.setBrush(halo);
        b.drawEllipse(moon, mr * 3.4, mr * 3.4);
        QPainterPath disc, bite;
        disc.addEllipse(moon, mr, mr);
        bite.addEllipse(moon + QPointF(-mr * 0.45, -mr * 0.2), mr * 0.95, mr * 0.95);
        QRadialGradient face(moon + QPointF(mr * 0.4, 0), mr * 1.2);
        face.setColorAt(0, QColor(255, 252, 230));
        face.setColorAt(1, QColor(236, 218, 160));
        b.setBrush(face);
        b.drawPath(disc.subtracted(bite));
    }

    // How much of a point at fractions (x, y) of the rectangle shows through the vignette.
    static double vignetteAt(double x, double y) {
        const double r = std::hypot(2 * x - 1, 2 * y - 1);
        return 1 - smooth((r - kVignetteStart) / (1 - kVignetteStart));
    }

    void drawStars(QPainter& p, const QRectF& rect, double t) {
        const double unit = rect.height() / kStageH;
        const double fadeIn = smooth(t / 0.8);
        p.setPen(Qt::NoPen);
        for (const Star& s : stars_) {
            const double twinkle = 0.62 + 0.38 * std::sin(t * s.speed + s.phase);
            const double alpha =
                fadeIn * twinkle * (0.45 + 0.55 * (s.radius / 1.6)) * vignetteAt(s.x, s.y);
            const QPointF at(rect.left() + s.x * rect.width(), rect.top() + s.y * rect.height());
            const double r = s.radius * unit;
            if (s.radius > 1.15) {
                QRadialGradient glow(at, r * 4);
                glow.setColorAt(0, withAlpha(s.colour, alpha * 0.5));
                glow.setColorAt(1, withAlpha(s.colour, 0));
                p.setBrush(glow);
                p.drawEllipse(at, r * 4, r * 4);
                p.setPen(QPen(withAlpha(s.colour, alpha * 0.6), std::max(0.6, r * 0.25)));
                p.drawLine(at - QPointF(r * 3.5, 0), at + QPointF(r * 3.5, 0));
                p.drawLine(at - QPointF(0, r * 3.5), at + QPointF(0, r * 3.5));
                p.setPen(Qt::NoPen);
            }
            p.setBrush(withAlpha(s.colour, alpha));
            p.drawEllipse(at, r, r);
        }
    }

    static void drawShootingStar(QPainter& p, double t) {
        const double u = (t - 5.05) / 0.55;
        if (u < 0 || u > 1) return;
        const QPointF head(lerp(120, 300, easeOut(u)), lerp(40, 110, easeOut(u)));
        const QPointF tail = head - QPointF(70, 28) * (1 - u * 0.5);
        QLinearGradient g(tail, head);
        g.setColorAt(0, QColor(255, 255, 255, 0));
        g.setColorAt(1, withAlpha(Qt::white, 0.9 * std::sin(kPi * u)));
        p.setPen(QPen(QBrush(g), 2.0, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(tail, head);
    }

    // Where the saucer is at time t: swoop in, hop from slot to slot, then zoom away.
    static QPointF saucerPosition(double t) {
        const double bob = 3 * std::sin(t * 2 * kPi * 1.1);
        if (t < kArrive) {
            const double u = easeInOut(t / kArrive);
            return bezier({-90, 40}, {430, -10}, {400, 280}, {slotX(0), kHoverY}, u) +
                   QPointF(0, bob * u);
        }
        if (t < kLeave) {
            const double s = (t - kArrive) / kSlotTime;
            const int k = std::min(7, int(s));
            const double f = (s - k) * kSlotTime;
            const double move = k < 7 ? smooth((f - kMoveStart) / (kSlotTime - kMoveStart)) : 0;
            return {lerp(slotX(k), slotX(std::min(7, k + 1)), move), kHoverY + bob};
        }
        const double e = easeIn((t - kLeave) / kLeaveTime);
        return bezier({slotX(7), kHoverY}, {slotX(7) + 40, kHoverY + 30}, {620, 40}, {720, -70},
                      e) +
               QPointF(0, bob * (1 - e));
    }

    static SaucerPose saucerAt(double t) {
        SaucerPose pose;
        pose.pos = saucerPosition(t);
        if (t >= kLeave) {
            const double u = (t - kLeave) / kLeaveTime;
            pose.visible = u < 1;
            pose.scale = 1 - 0.55 * easeIn(u);
        }
        // Bank into the direction of travel.
        const double vx = (saucerPosition(t + 0.02).x() - pose.pos.x()) / 0.02;
        pose.angle = std::clamp(vx * 0.04, -24.0, 24.0);
        return pose;
    }

    void drawSaucerWithTrail(QPainter& p, double t) {
        const SaucerPose now = saucerAt(t);
        const QPointF before = saucerPosition(std::max(0.0, t - 0.05));
        const double speed = QLineF(before, now.pos).length() / 0.05;
        if (speed > 250 && now.visible) {
            // Ghosts behind a fast saucer read as motion.
            for (int k = 3; k >= 1; --k) {
                const SaucerPose ghost = saucerAt(std::max(0.0, t - 0.03 * k));
                p.setOpacity(0.07 * (4 - k) * std::min(1.0, (speed - 250) / 300));
                drawSaucer(p, ghost, t, false);
            }
            p.setOpacity(1);
        }
        if (now.visible) drawSaucer(p, now, t, true);
    }

    static void drawSaucer(QPainter& p, const SaucerPose& pose, double t, bool details) {
        p.save();
        p.translate(pose.pos);
        p.rotate(pose.angle);
        p.scale(pose.scale, pose.scale);
        p.setPen(Qt::NoPen);

        // Glass dome with its little pilot.
        const QRectF dome(-20, -25, 40, 32);
        QRadialGradient glass(QPointF(-6, -16), 26);
        glass.setColorAt(0, QColor(150, 235, 255, 235));
        glass.setColorAt(0.6, QColor(50, 150, 200, 220));
        glass.setColorAt(1, QColor(20, 70, 120, 235));
        p.setBrush(glass);
        p.drawEllipse(dome);
        if (details) {
            p.setBrush(QColor(140, 225, 110));
            p.drawEllipse(QPointF(0, -9), 7.5, 7);
            p.setBrush(QColor(20, 30, 20));
            p.drawEllipse(QPointF(-2.8, -10), 1.6, 2.1);
            p.drawEllipse(QPointF(2.8, -10), 1.6, 2.1);
            p.setPen(QPen(QColor(140, 225, 110), 1.2));
            p.drawLine(QPointF(-3, -15), QPointF(-5, -20));
            p.drawLine(QPointF(3, -15), QPointF(5, -20));
            p.setPen(Qt::NoPen);
        }
        p.setBrush(QColor(255, 255, 255, 90));
        p.drawEllipse(QRectF(-13, -21, 12, 7));

        // Body: a silver disc with a darker rim band.
        QLinearGradient metal(0, -8, 0, 14);
        metal.setColorAt(0, QColor(232, 236, 245));
        metal.setColorAt(0.45, QColor(150, 156, 172));
        metal.setColorAt(1, QColor(64, 66, 82));
        p.setBrush(metal);
        p.setPen(QPen(QColor(40, 42, 56), 1));
        p.drawEllipse(QRectF(-46, -8, 92, 22));
        p.setPen(Qt::NoPen);
        QLinearGradient band(0, 0, 0, 9);
        band.setColorAt(0, QColor(90, 94, 112));
        band.setColorAt(1, QColor(50, 52, 66));
        p.setBrush(band);
        p.drawEllipse(QRectF(-40, -1, 80, 9));

        // Running lights chase round the rim.
        static const std::array<QColor, 4> lights = {QColor(255, 90, 90), QColor(255, 220, 80),
                                                     QColor(120, 255, 140), QColor(110, 220, 255)};
        for (int i = 0; i < 7; ++i) {
            const double x = -33 + i * 11;
            const bool lit = (int(std::floor(t * 9)) + i) % 3 == 0;
            const QColor c = lights[i % lights.size()];
            if (lit && details) {
                QRadialGradient glow(QPointF(x, 3.5), 7);
                glow.setColorAt(0, withAlpha(c, 0.8));
                glow.setColorAt(1, withAlpha(c, 0));
                p.setBrush(glow);
                p.drawEllipse(QPointF(x, 3.5), 7, 7);
            }
            p.setBrush(lit ? c : c.darker(220));
            p.drawEllipse(QPointF(x, 3.5), 2.3, 2.3);
        }
        // The emitter underneath.
        QRadialGradient emitter(QPointF(0, 12), 10);
        emitter.setColorAt(0, QColor(210, 255, 220, 230));
        emitter.setColorAt(1, QColor(120, 255, 170, 0));
        p.setBrush(emitter);
        p.drawEllipse(QRectF(-12, 8, 24, 9));
        p.restore();
    }

    // 0..1: how strongly the beam for letter i shines at time t.
    static double beamStrength(double t, int i) {
        const double f = t - slotStart(i);
        if (f < -0.04 || f > 0.32) return 0;
        return smooth((f + 0.04) / 0.06) * (1 - smooth((f - 0.2) / 0.1));
    }

    static void drawBeam(QPainter& p, double t, int i) {
        const double strength = beamStrength(t, i);
        if (strength <= 0) return;
        const QPointF top = saucerPosition(t) + QPointF(0, kEmitterDy);
        const double bottom = kTileTop + kTileSize + 8;
        const double x = slotX(i);
        auto cone = [&](double topHalf, double bottomHalf, double alphaTop, double alphaBottom) {
            QPolygonF poly;
            poly << QPointF(top.x() - topHalf, top.y()) << QPointF(top.x() + topHalf, top.y())
                 << QPointF(x + bottomHalf, bottom) << QPointF(x - bottomHalf, bottom);
            QLinearGradient g(0, top.y(), 0, bottom);
            g.setColorAt(0, QColor(200, 255, 215, int(alphaTop * strength)));
            g.setColorAt(1, QColor(170, 255, 210, int(alphaBottom * strength)));
            p.setBrush(g);
            p.drawPolygon(poly);
        };
        p.setPen(Qt::NoPen);
        cone(12, 42, 90, 20);
        cone(6, 26, 150, 45);
        // Motes drifting up the beam.
        for (int k = 0; k < 9; ++k) {
            const double u = std::fmod(t * 1.6 + k * 0.137 + i * 0.31, 1.0);
            const double y = lerp(bottom, top.y(), u);
            const double half = lerp(30, 8, u);
            const double dx = std::sin(k * 12.9 + i) * half;
            const double xx = lerp(x, top.x(), u) + dx;
            p.setBrush(QColor(235, 255, 240, int(200 * strength * std::sin(kPi * u))));
            p.drawEllipse(QPointF(xx, y), 1.4, 1.4);
        }
    }

    static void drawTile(QPainter& p, double t, int i) {
        const double f = t - slotStart(i);
        if (f < 0) return;
        const double fall = clamp01(f / kDrop);
        const double landed = f - kDrop;  // seconds since landing, < 0 while falling
        const QPointF from = saucerPosition(slotStart(i)) + QPointF(0, kEmitterDy);
        const double x = slotX(i);
        const double scale = lerp(0.3, 1.0, easeOut(fall));
        const double bottom =
            lerp(from.y() + kTileSize * scale, kTileTop + kTileSize, easeIn(fall));

        // Shadow on the ground grows as the tile comes down.
        p.setPen(Qt::NoPen);
        QRadialGradient shadow(QPointF(x, kTileTop + kTileSize + 8), 34);
        shadow.setColorAt(0, QColor(0, 0, 0, int(150 * fall)));
        shadow.setColorAt(1, QColor(0, 0, 0, 0));
        p.setBrush(shadow);
        p.drawEllipse(QPointF(x, kTileTop + kTileSize + 8), 34 * lerp(0.4, 1, fall), 7);

        // A squash on landing, and a ring spreading from it.
        double sx = scale, sy = scale;
        if (landed >= 0 && landed < 0.18) {
            const double k = std::sin(kPi * landed / 0.18);
            sx *= 1 + 0.08 * k;
            sy *= 1 - 0.12 * k;
        }
        if (landed >= 0 && landed < 0.45) {
            const double u = landed / 0.45;
            p.setBrush(Qt::NoBrush);
            p.setPen(QPen(withAlpha(QColor(190, 240, 255), 0.7 * (1 - u)), 2.0 * (1 - u) + 0.5));
            p.drawEllipse(QPointF(x, kTileTop + kTileSize + 6), 30 + 30 * easeOut(u),
                          5 + 5 * easeOut(u));
            p.setPen(Qt::NoPen);
        }

        p.save();
        p.translate(x, bottom);
        p.scale(sx, sy);
        const QRectF r(-kTileSize / 2, -kTileSize, kTileSize, kTileSize);
        if (landed < 0.1) {
            // Glowing while carried by the beam.
            const double glowAlpha = landed < 0 ? 0.7 : 0.7 * (1 - landed / 0.1);
            QRadialGradient glow(r.center(), kTileSize);
            glow.setColorAt(0, withAlpha(QColor(200, 255, 220), glowAlpha));
            glow.setColorAt(1, withAlpha(QColor(200, 255, 220), 0));
            p.setBrush(glow);
            p.drawEllipse(r.center(), kTileSize, kTileSize);
        }
        p.setOpacity(lerp(0.55, 1.0, fall));
        paintLetterTile(p, r, kTileColours[i], QString(QLatin1Char(kWord[i])));
        p.restore();
    }

    static void drawGroundGlow(QPainter& p, double t) {
        int landed = 0;
        for (int i = 0; i < 8; ++i) landed += t >= slotStart(i) + kDrop ? 1 : 0;
        const double pulse = t > kShine ? 0.25 * std::sin(kPi * clamp01((t - kShine) / 0.7)) : 0;
        const double strength = landed / 8.0 * 0.6 + pulse;
        if (strength <= 0) return;
        const QPointF centre(kStageW / 2, kTileTop + kTileSize + 8);
        QRadialGradient g(centre, 300);
        g.setColorAt(0, withAlpha(QColor(90, 170, 255), 0.45 * strength));
        g.setColorAt(1, withAlpha(QColor(90, 170, 255), 0));
        p.setPen(Qt::NoPen);
        p.setBrush(g);
        p.save();
        p.translate(centre);
        p.scale(1, 0.12);
        p.translate(-centre);
        p.drawEllipse(centre, 300, 300);
        p.restore();
    }

    // A band of light sweeps across the finished word.
    static void drawShine(QPainter& p, double t) {
        const double u = (t - kShine) / 0.7;
        if (u < 0 || u > 1) return;
        const double bandX = lerp(slotX(0) - 90, slotX(7) + 90, easeInOut(u));
        for (int i = 0; i < 8; ++i) {
            const QRectF r(slotX(i) - kTileSize / 2, kTileTop, kTileSize, kTileSize);
            p.save();
            p.setClipPath(letterTilePath(r));
            QLinearGradient g(bandX - 26, 0, bandX + 26, 0);
            g.setColorAt(0, QColor(255, 255, 255, 0));
            g.setColorAt(0.5, QColor(255, 255, 255, 170));
            g.setColorAt(1, QColor(255, 255, 255, 0));
            QPolygonF band;
            band << QPointF(bandX - 10, kTileTop - 4) << QPointF(bandX + 40, kTileTop - 4)
                 << QPointF(bandX + 10, kTileTop + kTileSize + 4)
                 << QPointF(bandX - 40, kTileTop + kTileSize + 4);
            p.setPen(Qt::NoPen);
            p.setBrush(g);
            p.drawPolygon(band);
            p.restore();
        }
    }

    static void drawSparkles(QPainter& p, double t) {
        struct Spot {
            double x, y, delay, size;
        };
        static const std::array<Spot, 8> spots = {
            {{slotX(0) - 26, kTileTop + 4, 0.00, 13},
             {slotX(2) + 24, kTileTop - 6, 0.12, 10},
             {slotX(3) - 20, kTileTop + kTileSize - 2, 0.22, 9},
             {slotX(4) + 22, kTileTop + 2, 0.30, 14},
             {slotX(5) - 6, kTileTop + kTileSize + 2, 0.40, 8},
             {slotX(6) + 20, kTileTop - 8, 0.48, 11},
             {slotX(7) + 28, kTileTop + 18, 0.56, 13},
             {slotX(1) + 4, kTileTop + kTileSize + 4, 0.62, 9}}};
        for (const Spot& s : spots) {
            const double u = (t - kShine - 0.1 - s.delay) / 0.5;
            if (u < 0 || u > 1) continue;
            paintSparkle(p, {s.x, s.y}, s.size * std::sin(kPi * u), 90 * u, 0.95);
        }
    }

    static void drawSubtitle(QPainter& p, double t) {
        const double u = easeOut((t - kSubtitle) / 0.85);
        if (u <= 0) return;
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(30);
        font.setBold(true);
        font.setLetterSpacing(QFont::PercentageSpacing, 106);
        QPainterPath text;
        text.addText(0, 0, font, QStringLiteral("Vocabulary Games"));
        const QRectF box = text.boundingRect();
        const QPointF centre(kStageW / 2, lerp(372, 360, u));
        text.translate(centre - box.center());

        p.setOpacity(u);
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(QColor(110, 180, 255, 40), 9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPath(text);
        p.setPen(QPen(QColor(110, 180, 255, 70), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPath(text);
        QLinearGradient fill(0, centre.y() - box.height() / 2, 0, centre.y() + box.height() / 2);
        fill.setColorAt(0, QColor(255, 250, 225));
        fill.setColorAt(1, QColor(255, 214, 140));
        p.setPen(Qt::NoPen);
        p.setBrush(fill);
        p.drawPath(text);
        p.setOpacity(1);
    }

    std::vector<Star> stars_;
    QImage backdrop_;
};

}  // namespace

void RegisterSplashScene() {
    RegisterScene(QStringLiteral("wmsplash"), [] { return std::make_unique<SplashScene>(); });
}

}  // namespace wm
