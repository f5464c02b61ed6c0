// The gallows pictures: each step adds one piece with a bounce, the end hoists the little guy
// up by his rope belt (legs kicking, "Oops!"), and the win sets him free to jump for joy.
#include <QPainter>
#include <cmath>

#include "games/guess/common/svg_sprites.h"
#include "platform/movie.h"
#include "platform/scene_kit.h"

namespace wm {

namespace {

using namespace scene;

constexpr int kPieces = 14;
const char* kArt = "images/hangman.svg";

QString piece(int n) {
    return QString("part%1").arg(n);
}

// Turns the painter about `pivot` by `degrees`.
void turnAbout(QPainter& p, QPointF pivot, double degrees) {
    p.translate(pivot);
    p.rotate(degrees);
    p.translate(-pivot);
}

class HangStep : public MovieScene {
public:
    explicit HangStep(int step) : step_(step), art_(kArt) {}
    double duration() const override { return 1.0; }
    QSize naturalSize() const override { return {800, 640}; }
    void paint(QPainter& p, const QRectF& rect, double t) override {
        p.save();
        art_.enter(p, rect);
        // The rope belt goes over the shirt once both are there.
        for (int n = 1; n < step_; ++n)
            if (n != 6) art_.draw(p, piece(n));
        if (step_ > 6) art_.draw(p, piece(6));
        const double u = clamp01(t / 0.8);
        const QRectF b = art_.bounds(piece(step_));
        p.save();
        p.setOpacity(clamp01(u * 2.5));
        if (step_ <= 6 || step_ == 13) {
            // Wood and rope drop in from above and settle with a small bounce.
            const double drop = (1 - easeOut(u)) * -140 + std::sin(u * M_PI) * 8;
            p.translate(0, drop);
        } else {
            // The little guy's parts pop in.
            const double s = 0.3 + 0.7 * easeOut(u) + std::sin(u * M_PI) * 0.12;
            p.translate(b.center());
            p.scale(s, s);
            p.translate(-b.center());
        }
        art_.draw(p, piece(step_));
        p.restore();
        if (u < 1) paintSparkle(p, b.center(), 30 * (1 - u), u * 3, 1 - u);
        p.restore();
    }

private:
    int step_;
    SvgSprites art_;
};

// The whole guy, drawn in place; `legSwing` and `armSwing` in degrees.
void drawGuy(const SvgSprites& art, QPainter& p, double legSwing, double armSwing, bool worried) {
    p.save();
    turnAbout(p, {474, 272}, armSwing);
    art.draw(p, piece(9));
    p.restore();
    p.save();
    turnAbout(p, {530, 272}, -armSwing);
    art.draw(p, piece(10));
    p.restore();
    p.save();
    turnAbout(p, {486, 372}, legSwing);
    art.draw(p, piece(11));
    p.restore();
    p.save();
    turnAbout(p, {518, 372}, -legSwing);
    art.draw(p, piece(12));
    p.restore();
    art.draw(p, piece(8));
    art.draw(p, piece(7));
    if (worried) art.draw(p, piece(14));
}

void speechBubble(QPainter& p, const QRectF& box, const QString& text, double alpha) {
    p.save();
    p.setOpacity(alpha);
    p.setPen(QPen(QColor("#2f6db5"), 4));
    p.setBrush(Qt::white);
    p.drawRoundedRect(box, 24, 24);
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(int(box.height() * 0.5));
    p.setFont(f);
    p.setPen(QColor("#e53935"));
    p.drawText(box, Qt::AlignCenter, text);
    p.restore();
}

class HangEnd : public MovieScene {
public:
    HangEnd() : art_(kArt) {}
    double duration() const override { return 2.2; }
    QSize naturalSize() const override { return {800, 640}; }
    void paint(QPainter& p, const QRectF& rect, double t) override {
        p.save();
        art_.enter(p, rect);
        for (int n = 1; n <= 4; ++n) art_.draw(p, piece(n));
        // The crate tips over and slides away.
        const double tip = easeIn(clamp01((t - 0.2) / 0.6));
        p.save();
        turnAbout(p, {564, 558}, 85 * tip);
        p.translate(60 * tip, 0);
        art_.draw(p, piece(13));
        p.restore();
        // The rope pulls him up by the belt; he kicks and waves.
        const double lift = 110 * easeOut(clamp01((t - 0.1) / 0.7));
        const QRectF rope = art_.bounds(piece(5));
        art_.drawInto(p, piece(5), QRectF(rope.x(), rope.y(), rope.width(), rope.height() - lift));
        p.save();
        p.translate(0, -lift);
        const double kick = std::sin(t * 12) * 18 * clamp01(t / 0.5);
        drawGuy(art_, p, kick, 40 + std::sin(t * 9) * 25, true);
        art_.draw(p, piece(6));
        p.restore();
        speechBubble(p, QRectF(590, 120, 180, 90), "Oops!", clamp01((t - 0.9) / 0.3));
        p.restore();
    }

private:
    SvgSprites art_;
};

class HangWin : public MovieScene {
public:
    HangWin() : art_(kArt) {}
    double duration() const override { return 2.0; }
    QSize naturalSize() const override { return {800, 640}; }
    void paint(QPainter& p, const QRectF& rect, double t) override {
        p.save();
        art_.enter(p, rect);
        for (int n = 1; n <= 4; ++n) art_.draw(p, piece(n));
        art_.draw(p, piece(13));
        // The rope has let go and swings gently; he jumps for joy on the crate.
        p.save();
        turnAbout(p, {502, 110}, std::sin(t * 5) * 10);
        const QRectF rope = art_.bounds(piece(5));
        art_.drawInto(p, piece(5), QRectF(rope.x(), rope.y(), rope.width(), 120));
        p.restore();
        const double jump = std::fabs(std::sin(t * M_PI * 2.5)) * 70;
        p.save();
        p.translate(0, -jump);
        drawGuy(art_, p, std::sin(t * 10) * 10, 130, false);
        p.restore();
        for (int i = 0; i < 8; ++i) {
            const double a = i * M_PI / 4 + t * 2;
            const QPointF at(502 + std::cos(a) * (150 + 30 * std::sin(t * 4 + i)),
                             300 - jump + std::sin(a) * 150);
            paintSparkle(p, at, 18, t * 4 + i, 0.9);
        }
        speechBubble(p, QRectF(590, 120, 170, 90), "Yay!", clamp01(t / 0.3));
        p.restore();
    }

private:
    SvgSprites art_;
};

const bool registered = [] {
    for (int n = 1; n <= kPieces; ++n)
        RegisterScene(QString("hang%1").arg(n), [n] { return std::make_unique<HangStep>(n); });
    RegisterScene("hangend", [] { return std::make_unique<HangEnd>(); });
    RegisterScene("hangwin", [] { return std::make_unique<HangWin>(); });
    return true;
}();

}  // namespace

}  // namespace wm
