// The garden, the bug and the spray can. The can creeps closer with each wrong guess and the
// bug gets more and more nervous; at the end a cloud of mist makes it faint, dizzy stars and
// all. Winning gives it wings to fly off home.
#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "games/guess/common/svg_sprites.h"
#include "platform/movie.h"
#include "platform/scene_kit.h"

namespace wm {

namespace {

using namespace scene;

const char* kArt = "images/bugspray.svg";
const QPointF kBugCentre(760, 360);
constexpr int kSprays = 14;

// How far the can has come after spray `n` (0 before the first).
double canReach(int n) {
    return 430.0 * std::clamp(n, 0, kSprays) / kSprays;
}

void drawMist(const SvgSprites& art, QPainter& p, QPointF at, double scale, double alpha) {
    if (alpha <= 0) return;
    p.save();
    p.setOpacity(clamp01(alpha));
    p.translate(at);
    p.scale(scale, scale);
    p.translate(-art.bounds("mist").center());
    art.draw(p, "mist");
    p.restore();
}

void drawDrop(QPainter& p, QPointF at, double size) {
    QPainterPath drop;
    drop.moveTo(at.x(), at.y() - size);
    drop.cubicTo(at.x() + size * 0.8, at.y(), at.x() + size * 0.6, at.y() + size * 0.9, at.x(),
                 at.y() + size * 0.9);
    drop.cubicTo(at.x() - size * 0.6, at.y() + size * 0.9, at.x() - size * 0.8, at.y(), at.x(),
                 at.y() - size);
    p.setPen(QPen(QColor("#1e88e5"), 2));
    p.setBrush(QColor("#90caf9"));
    p.drawPath(drop);
}

void bubble(QPainter& p, const QRectF& box, const QString& text, double alpha) {
    if (alpha <= 0) return;
    p.save();
    p.setOpacity(clamp01(alpha));
    p.setPen(QPen(QColor("#6a1b9a"), 3));
    p.setBrush(Qt::white);
    p.drawRoundedRect(box, 18, 18);
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(int(box.height() * 0.5));
    p.setFont(f);
    p.setPen(QColor("#d81b60"));
    p.drawText(box, Qt::AlignCenter, text);
    p.restore();
}

class Back : public MovieScene {
public:
    Back() : art_(kArt) {}
    double duration() const override { return 2.0; }
    QSize naturalSize() const override { return {1000, 500}; }
    void paint(QPainter& p, const QRectF& rect, double) override {
        p.save();
        art_.enter(p, rect);
        art_.draw(p, "back");
        p.restore();
    }

private:
    SvgSprites art_;
};

class Spray : public MovieScene {
public:
    explicit Spray(int n) : n_(n), art_(kArt) {}
    double duration() const override { return n_ == kSprays ? 1.6 : 1.0; }
    QSize naturalSize() const override { return {1000, 500}; }
    void paint(QPainter& p, const QRectF& rect, double t) override {
        p.save();
        art_.enter(p, rect);
        const double x = lerp(canReach(n_ - 1), canReach(n_), easeInOut(t / 0.5));
        p.save();
        p.translate(x, std::sin(t * 14) * 3 * (t < 0.5));
        art_.draw(p, "can");
        p.restore();
        const QPointF nozzle(150 + x, 290);
        const double u = clamp01((t - 0.45) / (duration() - 0.45));
        if (n_ == kSprays) {
            // The big cloud that reaches the bug.
            for (int i = 0; i < 4; ++i)
                drawMist(art_, p, nozzle + QPointF(u * (120 + i * 70), -10 + i * 12),
                         0.6 + u * (1.2 + i * 0.2), (1 - u * 0.5) * (u > 0));
        } else {
            drawMist(art_, p, nozzle + QPointF(u * 90, -u * 20), 0.3 + u * 0.7, (1 - u) * (u > 0));
        }
        p.restore();
    }

private:
    int n_;
    SvgSprites art_;
};

// The bug at home, nervous in proportion to `level` (1 to 9).
class BugNervous : public MovieScene {
public:
    explicit BugNervous(int level) : level_(level), art_(kArt) {}
    double duration() const override { return 1.0; }
    QSize naturalSize() const override { return {1000, 500}; }
    void paint(QPainter& p, const QRectF& rect, double t) override {
        p.save();
        art_.enter(p, rect);
        const double fear = level_ / 9.0;
        const double shake = std::sin(t * 45) * (1 + level_ * 0.7) * clamp01(1.2 - t);
        p.save();
        p.translate(level_ * 5 + shake, 0);
        // A small jump of fright, higher as the can comes closer.
        p.translate(0, -std::sin(clamp01(t / 0.4) * M_PI) * 10 * fear);
        art_.draw(p, "bug");
        p.restore();
        for (int i = 0; i < std::min(3, level_ / 3); ++i)
            drawDrop(p, QPointF(640 + level_ * 5 + i * 22, 300 + i * 14 + t * 10), 9);
        if (level_ >= 6) bubble(p, QRectF(800, 200, 150, 64), "Eek!", clamp01(t / 0.2));
        p.restore();
    }

private:
    int level_;
    SvgSprites art_;
};

class BugFaint : public MovieScene {
public:
    BugFaint() : art_(kArt) {}
    double duration() const override { return 2.0; }
    QSize naturalSize() const override { return {1000, 500}; }
    void paint(QPainter& p, const QRectF& rect, double t) override {
        p.save();
        art_.enter(p, rect);
        const double over = easeOut(clamp01((t - 0.5) / 0.7));
        p.save();
        p.translate(45, 40 * over);
        p.translate(kBugCentre);
        p.rotate(180 * over);
        p.translate(-kBugCentre);
        art_.draw(p, "bug");
        p.restore();
        drawMist(art_, p, kBugCentre + QPointF(20, -20), 1.4, 1 - clamp01(t / 1.2));
        // Dizzy stars go round its head: fainted, not hurt.
        const double stars = clamp01((t - 1.0) / 0.3);
        for (int i = 0; i < 3; ++i) {
            const double a = t * 5 + i * 2 * M_PI / 3;
            paintSparkle(p, QPointF(805 + std::cos(a) * 60, 300 + std::sin(a) * 16), 16, a, stars);
        }
        p.restore();
    }

private:
    SvgSprites art_;
};

class BugIntro : public MovieScene {
public:
    BugIntro() : art_(kArt) {}
    double duration() const override { return 2.0; }
    QSize naturalSize() const override { return {1000, 500}; }
    void paint(QPainter& p, const QRectF& rect, double t) override {
        p.save();
        art_.enter(p, rect);
        const double walk = 1 - easeOut(clamp01(t / 1.6));
        p.translate(walk * 320, -std::fabs(std::sin(t * 14)) * 8 * walk);
        art_.draw(p, "bug");
        p.restore();
        p.save();
        art_.enter(p, rect);
        bubble(p, QRectF(790, 200, 170, 64), "Hello!", clamp01((t - 1.5) / 0.2));
        p.restore();
    }

private:
    SvgSprites art_;
};

class BugWin : public MovieScene {
public:
    BugWin() : art_(kArt) {}
    double duration() const override { return 2.0; }
    QSize naturalSize() const override { return {1000, 500}; }
    void paint(QPainter& p, const QRectF& rect, double t) override {
        p.save();
        art_.enter(p, rect);
        const double fly = easeIn(clamp01((t - 0.5) / 1.5));
        p.translate(fly * 260, -fly * 420);
        // Wings flap quickly behind it.
        p.save();
        const QPointF root(786, 330);
        p.translate(root);
        p.scale(1, 0.5 + 0.5 * std::fabs(std::sin(t * 30)));
        p.translate(-root);
        p.setOpacity(clamp01(t / 0.3));
        art_.draw(p, "wings");
        p.restore();
        art_.draw(p, "bug");
        for (int i = 0; i < 5; ++i) {
            const double a = i * 1.3 + t * 3;
            paintSparkle(p, QPointF(700 + std::cos(a) * 120, 330 + std::sin(a) * 80), 14, a, 0.9);
        }
        p.restore();
    }

private:
    SvgSprites art_;
};

const bool registered = [] {
    RegisterScene("bugback", [] { return std::make_unique<Back>(); });
    RegisterScene("bugintro", [] { return std::make_unique<BugIntro>(); });
    RegisterScene("bugwin", [] { return std::make_unique<BugWin>(); });
    RegisterScene("bug14", [] { return std::make_unique<BugFaint>(); });
    for (int n = 1; n <= 9; ++n)
        RegisterScene(QString("bug%1").arg(n), [n] { return std::make_unique<BugNervous>(n); });
    for (int n = 1; n <= kSprays; ++n)
        RegisterScene(QString("spray%1").arg(n), [n] { return std::make_unique<Spray>(n); });
    return true;
}();

}  // namespace

}  // namespace wm
