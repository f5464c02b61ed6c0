#include "games/guess/princess/princess_scene.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>

#include "platform/scene_kit.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/style.h"

namespace wm::princess {

namespace {
using namespace scene;

constexpr double kPi = 3.14159265358979;
constexpr double kPlayLeft = 50, kPlayWidth = 1100;  // the stones' and planks' stretch
constexpr double kGateX = 1270, kHingeY = 482, kGateTop = 342, kGateHalf = 74;
constexpr double kBridgeFoot = 752;  // the near bank, where the bridge lands
const QPointF kPrincessHome(1270, 918);
const QPointF kDragonFeet(1474, 268);

// A cheap fixed hash in [0, 1), so droplets and hearts keep their places from frame to frame.
double hash01(int i) {
    const double x = std::sin(i * 12.9898 + 78.233) * 43758.5453;
    return x - std::floor(x);
}

void blit(QPainter& p, const QRectF& at, const QPixmap& pm) {
    p.drawPixmap(at, pm, QRectF(pm.rect()));
}

QPainterPath heart(QPointF c, double s) {
    QPainterPath h;
    h.moveTo(c.x(), c.y() + s * 0.9);
    h.cubicTo(c.x() - s * 1.3, c.y() + s * 0.1, c.x() - s * 0.7, c.y() - s * 1.0, c.x(),
              c.y() - s * 0.35);
    h.cubicTo(c.x() + s * 0.7, c.y() - s * 1.0, c.x() + s * 1.3, c.y() + s * 0.1, c.x(),
              c.y() + s * 0.9);
    return h;
}
}  // namespace

PrincessPicture::PrincessPicture()
    : field_(std::make_unique<QSvgRenderer>(appFile("images/princess-castle.svg"))),
      sprites_(std::make_unique<QSvgRenderer>(appFile("images/princess-sprites.svg"))) {}

PrincessPicture::~PrincessPicture() = default;

void PrincessPicture::resize(QSize size) {
    if (size == size_ || size.isEmpty()) return;
    size_ = size;
    toScreen_ = scene::coverStage(QSizeF(size), QSizeF(kStageW, kStageH));
    scale_ = toScreen_.m11();
    fieldPixmap_ = scene::coverPicture(*field_, size, QColor(120, 190, 235));
    cache_.clear();
    tiles_.clear();
    fireball_ = QPixmap();
    bridge_ = QPixmap();
}

QRectF PrincessPicture::stoneRect(int i, int n) {
    const int rows = n > 12 ? 2 : 1;
    const int per = std::max(1, (n + rows - 1) / rows);
    const int row = i / per, col = i % per;
    const int inRow = std::min(per, n - row * per);
    const double step = std::min(96.0, kPlayWidth / per);
    const double w = step - 10, h = std::min(70.0, w * 0.82);
    const double y = rows == 1 ? 628 : (row == 0 ? 580 : 686);
    // Every other stone a little off the line, as stones in a stream lie.
    const double jitter = (col % 2 ? 7 : -7) * (rows == 1 ? 1.6 : 1.0);
    const double x = kPlayLeft + kPlayWidth / 2 - inRow * step / 2 + step * (col + 0.5);
    return {x - w / 2, y + jitter - h / 2, w, h};
}

QRectF PrincessPicture::plankRect(int p, int n) {
    const int rows = n > 14 ? 2 : 1;
    const int per = std::max(1, (n + rows - 1) / rows);
    const int row = p / per, col = p % per;
    const int inRow = std::min(per, n - row * per);
    const double step = std::min(80.0, kPlayWidth / per);
    const double w = step - 6, h = std::min(74.0, w * 1.1);
    const double y = rows == 1 ? 838 : (row == 0 ? 800 : 884);
    const double x = kPlayLeft + kPlayWidth / 2 - inRow * step / 2 + step * (col + 0.5);
    return {x - w / 2, y - h / 2, w, h};
}

QRectF PrincessPicture::skyPanel() {
    return {60, 175, 960, 120};
}

QPointF PrincessPicture::readyPoint() {
    return {600, 470};
}

// The sprite rendered once at its full size on this screen; smaller poses shrink the picture.
const QPixmap& PrincessPicture::sprite(const QString& id) const {
    auto it = cache_.find(id);
    if (it != cache_.end()) return it->second;
    QPixmap& pm = cache_[id];
    if (!sprites_->isValid() || !sprites_->elementExists(id)) return pm;
    const QRectF b = sprites_->boundsOnElement(id);
    const QSize px = (b.size() * scale_).toSize().expandedTo(QSize(1, 1));
    QImage img(px, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    sprites_->render(&p, id, QRectF(QPointF(0, 0), QSizeF(px)));
    p.end();
    pm = QPixmap::fromImage(img);
    return pm;
}

// Draws a sprite at `scale` of its drawn size, `anchor` at the middle of its foot (anchorY 1)
// or of its height (anchorY 0.5).
void PrincessPicture::drawSprite(QPainter& p, const QString& id, const QPointF& anchor,
                                 double scale, double anchorY) const {
    if (!sprites_->isValid() || !sprites_->elementExists(id)) return;
    const QSizeF s = sprites_->boundsOnElement(id).size() * scale;
    const QPixmap& pm = sprite(id);
    p.drawPixmap(QRectF(anchor.x() - s.width() / 2, anchor.y() - s.height() * anchorY, s.width(),
                        s.height()),
                 pm, QRectF(pm.rect()));
}

// A stone or a plank with its letter, drawn once for its size and kept.
const QPixmap& PrincessPicture::tile(bool plank, char letter, bool lost, QSizeF size) const {
    const QSize px = (size * scale_).toSize().expandedTo(QSize(1, 1));
    const TileKey key{plank, lost, static_cast<unsigned char>(letter), px.width(), px.height()};
    auto it = tiles_.find(key);
    if (it != tiles_.end()) return it->second;
    QImage img(px, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    const QString id = plank ? "plank" : "stone";
    if (sprites_->isValid() && sprites_->elementExists(id))
        sprites_->render(&p, id, QRectF(QPointF(0, 0), QSizeF(px)));
    QFont f = ScreenFont(20, true);
    f.setPixelSize(std::max(6, int(std::min(px.height(), px.width()) * (plank ? 0.58 : 0.56))));
    p.setFont(f);
    const QString text = toQ(std::string(1, letter));
    const QRectF r(0, plank ? px.height() * 0.02 : -px.height() * 0.06, px.width(), px.height());
    p.setPen(plank ? QColor(255, 244, 214, 140) : QColor(255, 255, 255, 120));
    p.drawText(r.translated(0, 2), Qt::AlignCenter, text);
    p.setPen(lost ? QColor(200, 40, 40) : plank ? QColor(74, 40, 14) : QColor(38, 44, 62));
    p.drawText(r, Qt::AlignCenter, text);
    p.end();
    return tiles_[key] = QPixmap::fromImage(img);
}

// One puff of flame, drawn once: the fire is many of them, grown and faded as they fly.
const QPixmap& PrincessPicture::fireball() const {
    if (!fireball_.isNull()) return fireball_;
    const int d = std::max(8, int(152 * scale_));
    QImage img(d, d, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    QRadialGradient g(QPointF(d / 2.0, d / 2.0), d / 2.0);
    g.setColorAt(0, QColor(255, 246, 170));
    g.setColorAt(0.5, withAlpha(QColor(255, 130, 20), 0.9));
    g.setColorAt(1, withAlpha(QColor(220, 40, 20), 0));
    p.setPen(Qt::NoPen);
    p.setBrush(g);
    p.drawEllipse(QRectF(0, 0, d, d));
    p.end();
    fireball_ = QPixmap::fromImage(img);
    return fireball_;
}

void PrincessPicture::paintField(QPainter& p, const QRect& area) const {
    p.drawPixmap(area, fieldPixmap_, area);
}

void PrincessPicture::paintActors(QPainter& p, const View& v) const {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.setTransform(toScreen_, true);
    paintBridge(p, v);
    paintStones(p, v);
    paintPlanks(p, v);
    paintDragon(p, v);
    paintMeter(p, v);
    paintPrincess(p, v);
    paintPoints(p, v);
    p.restore();
}

// The drawbridge turns on its hinge at the foot of the gate: up, it closes the gate; down, it
// lies across the moat to the near bank. The turn is drawn as the flat bridge mapped onto the
// four corners it has at that angle.
void PrincessPicture::paintBridge(QPainter& p, const View& v) const {
    const double a = clamp01(v.bridge) * kPi / 2;
    const double endY =
        kHingeY - (kHingeY - kGateTop) * std::cos(a) + (kBridgeFoot - kHingeY) * std::sin(a);
    const double endHalf = kGateHalf + 18 * std::sin(a);
    const QRectF box(kGateX - kGateHalf - 40, kGateTop - 30, 2 * (kGateHalf + 40),
                     std::max(endY, kHingeY) + 8 - (kGateTop - 30));
    // Turned pictures are dear to draw: the bridge at this angle is drawn once and kept.
    if (bridge_.isNull() || bridgeAngle_ != a) {
        bridgeAngle_ = a;
        QImage img((box.size() * scale_).toSize().expandedTo(QSize(1, 1)),
                   QImage::Format_ARGB32_Premultiplied);
        img.fill(Qt::transparent);
        QPainter q(&img);
        q.setRenderHint(QPainter::Antialiasing);
        q.setRenderHint(QPainter::SmoothPixmapTransform);
        q.scale(scale_, scale_);
        q.translate(-box.topLeft());
        const QPolygonF quad({QPointF(kGateX - endHalf, endY), QPointF(kGateX + endHalf, endY),
                              QPointF(kGateX + kGateHalf, kHingeY),
                              QPointF(kGateX - kGateHalf, kHingeY)});
        // The chains, from the top of the gate to the bridge's far corners.
        q.setPen(QPen(QColor(60, 60, 70), 4, Qt::DotLine, Qt::RoundCap));
        q.drawLine(QPointF(kGateX - kGateHalf - 16, kGateTop - 18), quad[0]);
        q.drawLine(QPointF(kGateX + kGateHalf + 16, kGateTop - 18), quad[1]);
        const QPixmap& pm = sprite("bridge");
        const QRectF src(pm.rect());
        QTransform t;
        if (!pm.isNull() && QTransform::quadToQuad(QPolygonF({src.topLeft(), src.topRight(),
                                                              src.bottomRight(), src.bottomLeft()}),
                                                   quad, t)) {
            q.setTransform(t, true);
            q.drawPixmap(src, pm, src);
            // Standing up, its underside is in shadow.
            q.fillRect(src, QColor(20, 10, 0, int(110 * std::cos(a))));
        }
        q.end();
        bridge_ = QPixmap::fromImage(img);
    }
    blit(p, box, bridge_);
}

void PrincessPicture::paintStones(QPainter& p, const View& v) const {
    const int n = int(v.stones.size());
    const int chars = int(v.word.size());
    p.setPen(Qt::NoPen);
    for (int i = 0; i < n; ++i) {
        QRectF r = stoneRect(i, n);
        const double u = i < int(v.rise.size()) ? v.rise[i] : 0;
        const int to = i < int(v.target.size()) ? v.target[i] : -1;
        if (to >= 0 && u >= 1) continue;  // a plank now
        // Ripples round the stone.
        if (to < 0) {
            p.setBrush(QColor(255, 255, 255, 46));
            p.drawEllipse(QPointF(r.center().x(), r.bottom() - 4), r.width() * 0.62, 9);
        }
        if (i == v.splashStone && v.splash < 1) r.translate(0, 12 * std::sin(kPi * v.splash));
        if (to >= 0) {
            // Rising out of the water in an arc onto its plank, turning into wood on the way.
            const QRectF goal = plankRect(to, chars);
            const QPointF c = bezier(r.center(), r.center() + QPointF(0, -90),
                                     goal.center() + QPointF(0, -120), goal.center(), easeInOut(u));
            const QSizeF s(lerp(r.width(), goal.width(), u), lerp(r.height(), goal.height(), u));
            const QRectF at(c - QPointF(s.width() / 2, s.height() / 2), s);
            p.setOpacity(1 - u);
            blit(p, at, tile(false, v.stones[i], false, r.size()));
            p.setOpacity(u);
            blit(p, at, tile(true, v.word[to], false, goal.size()));
            p.setOpacity(1);
            continue;
        }
        blit(p, r, tile(false, v.stones[i], false, r.size()));
    }
    // The splash: a ring spreading and drops flying up and back.
    if (v.splashStone >= 0 && v.splashStone < n && v.splash < 1) {
        const QRectF r = stoneRect(v.splashStone, n);
        const double u = v.splash;
        const QPointF c(r.center().x(), r.bottom() - 6);
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(withAlpha(QColor(230, 248, 255), 1 - u), 4));
        p.drawEllipse(c, r.width() * (0.5 + u), 12 + 18 * u);
        p.setPen(Qt::NoPen);
        for (int k = 0; k < 12; ++k) {
            const double dir = (hash01(k) - 0.5) * 2.4;
            const double speed = 0.6 + 0.5 * hash01(k + 20);
            const QPointF at =
                c + QPointF(std::sin(dir) * 120 * u * speed, -220 * speed * u + 260 * u * u);
            p.setBrush(withAlpha(QColor(200, 236, 255), 1 - u));
            p.drawEllipse(at, 6 - 3 * u, 8 - 3 * u);
        }
    }
}

void PrincessPicture::paintPlanks(QPainter& p, const View& v) const {
    const int n = int(v.word.size());
    std::vector<bool> moving(n, false);
    for (std::size_t i = 0; i < v.target.size(); ++i)
        if (v.target[i] >= 0 && v.target[i] < n && i < v.rise.size() && v.rise[i] < 1)
            moving[v.target[i]] = true;
    for (int k = 0; k < n; ++k) {
        const char c = v.word[k];
        if (c == ' ') continue;
        const QRectF r = plankRect(k, n);
        const bool laid = k < int(v.laid.size()) && v.laid[k];
        if (laid && !moving[k]) {
            blit(p, r, tile(true, c, false, r.size()));
        } else if (v.reveal && !laid) {
            blit(p, r, tile(true, c, true, r.size()));
        } else {
            // An empty place on the bank, waiting for its plank.
            p.setPen(QPen(QColor(255, 250, 220, 170), 3, Qt::DashLine));
            p.setBrush(QColor(40, 70, 20, 70));
            p.drawRoundedRect(r.adjusted(3, 3, -3, -3), 8, 8);
        }
    }
}

void PrincessPicture::paintDragon(QPainter& p, const View& v) const {
    if (v.wake > 0) {
        // Up on its hind legs, wings spread, breathing fire over the moat.
        const double u = clamp01(v.wake * 3);
        const QPointF feet = kDragonFeet + QPointF(0, -14 * std::sin(kPi * clamp01(v.wake * 2)));
        const double s = lerp(0.55, 0.78, easeOut(u));
        drawSprite(p, "dragon-awake", feet, s);
        const double fire = clamp01((v.wake - 0.15) / 0.2) * clamp01((1 - v.wake) / 0.12);
        const QPointF mouth = feet + QPointF(-112, -168) * s;  // its mouth in the drawing
        if (fire <= 0) return;
        const QPixmap& ball = fireball();
        // Soft puffs need no smooth scaling: the plain kind is several times quicker.
        p.setRenderHint(QPainter::SmoothPixmapTransform, false);
        for (int k = 0; k < 12; ++k) {
            double f = v.time * 1.8 + hash01(k);
            f -= std::floor(f);
            const QPointF at =
                mouth + QPointF(-280 * f, 240 * f * f + (hash01(k + 9) - 0.5) * 80 * f);
            const double rad = 16 + 54 * f;
            p.setOpacity(fire * (1 - 0.6 * f));
            p.drawPixmap(QRectF(at.x() - rad, at.y() - rad, 2 * rad, 2 * rad), ball,
                         QRectF(ball.rect()));
        }
        p.setOpacity(1);
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        return;
    }
    // Asleep: breathing slowly; a splash makes it twitch and lift its head.
    const double hop = 16 * std::sin(kPi * clamp01(1 - v.stir)) * (v.stir > 0 ? 1 : 0);
    const double breath = 1 + 0.018 * std::sin(v.time * 1.6);
    p.save();
    p.translate(kDragonFeet - QPointF(0, hop));
    p.scale(1, breath);
    drawSprite(p, v.stir > 0.2 ? "dragon-stir" : "dragon-sleep", QPointF(0, 0));
    p.restore();
    // Its snores: three z's drifting up and away from its nose.
    QFont f = ScreenFont(20, true);
    f.setPixelSize(26);
    p.setFont(f);
    for (int k = 0; k < 3; ++k) {
        double u = v.time * 0.35 + k / 3.0;
        u -= std::floor(u);
        const QPointF at = kDragonFeet + QPointF(-110 - 40 * u, -50 - 70 * u);
        p.setPen(withAlpha(QColor(250, 250, 255), std::sin(kPi * u) * (1 - v.stir)));
        p.drawText(at, k == 1 ? "Z" : "z");
    }
}

// The sleep meter: eight marks, lit one by one as the dragon stirs.
void PrincessPicture::paintMeter(QPainter& p, const View& v) const {
    const QRectF& m = v.meter;
    if (m.isEmpty()) return;
    p.setPen(QPen(QColor(255, 222, 140, 200), 2));
    p.setBrush(QColor(52, 30, 84, 205));
    p.drawRoundedRect(m, m.height() / 2.6, m.height() / 2.6);
    const double step = (m.width() - m.height() * 0.4) / 8;
    const double r = std::min(step * 0.4, m.height() * 0.3);
    for (int k = 0; k < 8; ++k) {
        const QPointF c(m.left() + m.height() * 0.2 + step * (k + 0.5), m.center().y());
        const bool lit = k < v.marks;
        const double pulse = (lit && k == v.marks - 1) ? 1 + 0.35 * v.stir : 1;
        QRadialGradient g(c - QPointF(r / 3, r / 3), r * 1.4 * pulse);
        g.setColorAt(0, lit ? QColor(255, 200, 90) : QColor(170, 200, 255));
        g.setColorAt(1, lit ? QColor(214, 54, 30) : QColor(70, 90, 160));
        p.setPen(QPen(QColor(20, 10, 40), 2));
        p.setBrush(g);
        p.drawEllipse(c, r * pulse, r * pulse);
    }
}

void PrincessPicture::paintPrincess(QPainter& p, const View& v) const {
    const double w = clamp01(v.walk);
    QPointF at = kPrincessHome;
    double s = 1, alpha = 1;
    if (w > 0) {
        if (w < 0.25) {
            const double u = w / 0.25;
            at = QPointF(kGateX, lerp(kPrincessHome.y(), kBridgeFoot + 6, u));
            s = lerp(1, 0.86, u);
        } else if (w < 0.85) {
            const double u = (w - 0.25) / 0.6;
            at = QPointF(kGateX, lerp(kBridgeFoot + 6, kHingeY + 8, u));
            s = lerp(0.86, 0.55, u);
        } else {
            at = QPointF(kGateX, kHingeY + 8);
            s = 0.55;
            alpha = 1 - (w - 0.85) / 0.15;
        }
        at.ry() -= 8 * std::abs(std::sin(v.time * 9));
    }
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(20, 50, 10, int(70 * alpha)));
    p.drawEllipse(at + QPointF(0, -3), 46 * s, 10 * s);
    p.setOpacity(alpha);
    drawSprite(p, v.wake > 0.3 ? "princess-fright" : "princess", at, s);
    p.setOpacity(1);
    if (v.cheer > 0) {
        for (int k = 0; k < 10; ++k) {
            double u = v.cheer * 1.6 + hash01(k);
            u -= std::floor(u);
            const QPointF c(kGateX + (hash01(k + 30) - 0.5) * 320, 560 - 300 * u);
            p.setBrush(
                withAlpha(k % 2 ? QColor(255, 105, 160) : QColor(255, 70, 110), std::sin(kPi * u)));
            p.drawPath(heart(c, 12 + 8 * hash01(k + 60)));
            paintSparkle(p, c + QPointF(30, -20), 12, u * 3, std::sin(kPi * u));
        }
    }
}

void PrincessPicture::paintPoints(QPainter& p, const View& v) const {
    if (v.points.isEmpty() || v.pointsU >= 1) return;
    QFont f = ScreenFont(30, true);
    f.setPixelSize(64);
    p.setFont(f);
    const QPointF at(600, 760 - 120 * v.pointsU);
    const double a = clamp01(v.pointsU / 0.15) * clamp01((1 - v.pointsU) / 0.3);
    p.setPen(withAlpha(QColor(60, 30, 0), a * 0.6));
    p.drawText(QRectF(at.x() - 300 + 3, at.y() - 40 + 3, 600, 80), Qt::AlignCenter, v.points);
    p.setPen(withAlpha(QColor(255, 222, 80), a));
    p.drawText(QRectF(at.x() - 300, at.y() - 40, 600, 80), Qt::AlignCenter, v.points);
}

QRegion PrincessPicture::busyRegion(const View& v) const {
    // The dragon breathes and snores, and the meter pulses, all the time.
    QRegion r =
        toScreen_.mapRect(QRectF(1300, 130, 300, 160)).toAlignedRect().adjusted(-2, -2, 2, 2);
    if (v.stir > 0) r += toScreen_.mapRect(v.meter).toAlignedRect().adjusted(-2, -2, 2, 2);
    // Only the stones that move: a splash with its drops, a stone on its way to its plank.
    const int n = int(v.stones.size());
    auto add = [&](const QRectF& s) {
        r += toScreen_.mapRect(s).toAlignedRect().adjusted(-2, -2, 2, 2);
    };
    if (v.splashStone >= 0 && v.splashStone < n && v.splash < 1)
        add(stoneRect(v.splashStone, n).adjusted(-140, -240, 140, 40));
    for (int i = 0; i < n && i < int(v.rise.size()) && i < int(v.target.size()); ++i)
        if (v.target[i] >= 0 && v.rise[i] < 1)
            add((stoneRect(i, n) | plankRect(v.target[i], int(v.word.size())))
                    .adjusted(-10, -140, 10, 10));
    if (!v.points.isEmpty() && v.pointsU < 1) add(QRectF(280, 560, 640, 260));
    // The word shown on the planks as the dragon wakes.
    if (v.reveal && v.wake < 0.05) add(QRectF(30, 740, 1140, 230));
    if (v.walk > 0 || v.cheer > 0 || (v.bridge > 0 && v.bridge < 1))
        r += toScreen_.mapRect(QRectF(1050, 300, 450, 680)).toAlignedRect();
    // The dragon up and its fire; the princess takes fright once.
    if (v.wake > 0 || v.stir > 0)
        r += toScreen_.mapRect(QRectF(1030, 60, 570, 420)).toAlignedRect();
    if (v.wake > 0.25 && v.wake < 0.35)
        r += toScreen_.mapRect(QRectF(1150, 640, 240, 320)).toAlignedRect();
    return r;
}

}  // namespace wm::princess
