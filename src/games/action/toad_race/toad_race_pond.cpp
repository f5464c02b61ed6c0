#include "games/action/toad_race/toad_race_pond.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <cmath>

#include "platform/scene_kit.h"
#include "platform/services.h"
#include "platform/text_fit.h"
#include "platform/ticker.h"

namespace wm {

using namespace toad_race;

namespace {
constexpr double kPi = 3.14159265358979;
constexpr int kCheerBeatMs = 380;

// The pupil's toad swims the lane nearest the typing box.
int laneOf(int toad) {
    return kToads - 1 - toad;
}

// A word drawn as an outlined path, centred on `centre`.
void paintOutlined(QPainter& p, const QString& text, const QFont& font, QPointF centre,
                   const QColor& fill, const QColor& edge, double edgeWidth) {
    QPainterPath path;
    path.addText(0, 0, font, text);
    path.translate(centre - path.boundingRect().center());
    p.setPen(QPen(edge, edgeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
    p.setPen(Qt::NoPen);
    p.setBrush(fill);
    p.drawPath(path);
}
}  // namespace

Pond::Pond(QWidget* parent) : QWidget(parent) {
    setObjectName("Pond");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

qint64 Pond::now() const {
    return Ticker::get().now() - born_;
}

void Pond::reset() {
    for (auto& t : toads_) {
        t.from = t.to = 0;
        t.hopAt = t.shakeAt = -1'000'000;
    }
    call_.clear();
    cheer_ = -1;
    update();
}

void Pond::hop(int toad, int pad) {
    Toad& t = toads_[toad];
    t.from = t.to;
    t.to = std::clamp(pad, 0, kPads);
    t.hopAt = now();
}

void Pond::shake(int toad) {
    toads_[toad].shakeAt = now();
}

bool Pond::inAir(int toad) const {
    return now() - toads_[toad].hopAt < kHopMs;
}

void Pond::setCall(const QString& text) {
    call_ = text;
    callAt_ = now();
    update(callRect());
}

void Pond::cheer(int toad, const QString& call) {
    cheer_ = toad;
    cheerAt_ = now();
    setCall(call);
}

// --- where things are -------------------------------------------------------------------

QRect Pond::signRect() const {
    return QRect(int(width() * 0.15), int(height() * 0.015), int(width() * 0.70),
                 int(height() * 0.215));
}

QRect Pond::bankRect() const {
    const int top = int(height() * 0.80);
    return QRect(0, top, width(), height() - top);
}

double Pond::laneScale(int lane) const {
    return 0.86 + 0.05 * lane;  // the far lanes a little smaller: depth
}

QPointF Pond::padCentre(int lane, double pad) const {
    auto x = [&](int i) { return i <= 0 ? startX_ : padLeft_ + (i - 1) * padStep_; };
    const int whole = int(std::floor(pad));
    const double part = pad - whole;
    const double px = part > 0 ? scene::lerp(x(whole), x(whole + 1), part) : x(whole);
    return QPointF(px, laneTop_ + (lane + 0.66) * laneH_);
}

QSize Pond::toadSize(int lane) const {
    const int side = int(std::min(padStep_ * 0.86, laneH_ * 1.0) * laneScale(lane));
    return QSize(side, side);
}

QRectF Pond::toadRect(int toad, qint64 t, int* frame) const {
    const Toad& d = toads_[toad];
    const int lane = laneOf(toad);
    const QSize size = toadSize(lane);
    double pad = d.to, lift = 0, dx = 0;
    *frame = 0;
    const double u = double(t - d.hopAt) / kHopMs;
    if (u >= 0 && u < 1) {
        pad = scene::lerp(d.from, d.to, scene::easeInOut(u));
        lift = std::sin(kPi * u) * laneH_ * 0.55;
        if (u > 0.08 && u < 0.92) *frame = 1;
    }
    const double s = double(t - d.shakeAt) / kShakeMs;
    if (s >= 0 && s < 1) dx = std::sin(s * 6 * kPi) * size.width() * 0.09 * (1 - s);
    if (toad == cheer_ && (u < 0 || u >= 1)) {
        lift = std::fabs(std::sin(double(t - cheerAt_) * kPi / kCheerBeatMs)) * laneH_ * 0.55;
        *frame = 2;
    }
    const QPointF foot = padCentre(lane, pad) + QPointF(dx, size.height() * 0.14 - lift);
    return QRectF(foot.x() - size.width() / 2.0, foot.y() - size.height(), size.width(),
                  size.height());
}

QRect Pond::callRect() const {
    return QRect(int(width() * 0.18), int(laneTop_ + laneH_ * 1.2), int(width() * 0.64),
                 int(laneH_ * 1.6));
}

QRect Pond::cheerRect() const {
    if (cheer_ < 0) return {};
    const QPointF c = padCentre(laneOf(cheer_), kPads);
    const double r = laneH_ * 1.5;
    return QRectF(c.x() - r, c.y() - r * 1.3, 2 * r, 2 * r).toAlignedRect();
}

// --- the scenery, once a size ----------------------------------------------------------

void Pond::resizeEvent(QResizeEvent*) {
    laneTop_ = height() * 0.275;
    laneH_ = height() * 0.125;
    startX_ = width() * 0.128;
    padLeft_ = width() * 0.205;
    padStep_ = (width() * 0.93 - padLeft_) / (kPads - 1);
    buildScene();
}

void Pond::buildScene() {
    if (width() <= 0 || height() <= 0) return;
    scene_ = QPixmap(size());
    scene_.fill(QColor(70, 150, 90));
    QPainter p(&scene_);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    QSvgRenderer back(appFile("images/toadrace-pond.svg"));
    if (back.isValid()) back.render(&p, QRectF(rect()));
    QSvgRenderer art(appFile("images/toadrace-sprites.svg"));
    auto draw = [&](const char* id, const QRectF& r) {
        if (art.isValid() && art.elementExists(id)) art.render(&p, id, r);
    };
    draw("sign_0", signRect());

    // The finish: a floating chequered rope between the last two pads, a flag at each end.
    const double fx = padLeft_ + (kPads - 1.5) * padStep_;
    const double top = laneTop_ + laneH_ * 0.15, bottom = laneTop_ + laneH_ * 4.05;
    const double cell = std::max(4.0, padStep_ * 0.09);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 50));
    p.drawRoundedRect(QRectF(fx - cell + 3, top + 4, 2 * cell, bottom - top), cell / 2, cell / 2);
    for (int row = 0; row * cell < bottom - top; ++row) {
        for (int col = 0; col < 2; ++col) {
            const double h = std::min(cell, bottom - top - row * cell);
            p.setBrush((row + col) % 2 ? QColor(30, 30, 40) : QColor(250, 250, 245));
            p.drawRect(QRectF(fx - cell + col * cell, top + row * cell, cell, h));
        }
    }
    const QSizeF flag(laneH_ * 0.9, laneH_ * 1.1);
    draw("flag_0", QRectF(QPointF(fx - flag.width() * 0.12, top - flag.height() * 0.92), flag));

    for (int lane = 0; lane < kToads; ++lane) {
        const int toad = kToads - 1 - lane;
        const double s = laneScale(lane);
        // The start stone and the pads, far lanes first so nearer pads overlap them.
        const QPointF stone = padCentre(lane, 0);
        const QSizeF stoneSize(padStep_ * 1.15 * s, laneH_ * 0.62 * s);
        draw("stone_0",
             QRectF(stone - QPointF(stoneSize.width() / 2, stoneSize.height() * 0.45), stoneSize));
        for (int i = 1; i <= kPads; ++i) {
            const QPointF c = padCentre(lane, i);
            const double grow = i == kPads ? 1.12 : 1.0;
            const QSizeF padSize(padStep_ * 0.98 * s * grow, laneH_ * 0.56 * s * grow);
            const bool flower = i == kPads || (lane * 5 + i * 3) % 7 == 0;
            p.save();
            p.translate(c);
            p.rotate(((lane * 7 + i * 13) % 11 - 5) * 1.6);
            draw(flower ? "pad_1" : "pad_0", QRectF(-padSize.width() / 2, -padSize.height() / 2,
                                                    padSize.width(), padSize.height()));
            p.restore();
        }
        // The name plate on the bank at the lane's start.
        const QRectF plate(width() * 0.008, stone.y() - laneH_ * 0.62, width() * 0.078,
                           laneH_ * 0.5);
        draw(toad == 0 ? "plate_1" : "plate_0", plate);
        const QString name = toadName(toad);
        const QFont f =
            scene::shrinkToWidth(scene::boldFont(int(plate.height() * 0.42)), plate.width() * 0.84, name);
        p.setFont(f);
        p.setPen(toad == 0 ? QColor(90, 40, 0) : QColor(255, 246, 220));
        p.drawText(plate.adjusted(0, -plate.height() * 0.08, 0, 0), Qt::AlignCenter, name);
    }
    p.end();

    for (int toad = 0; toad < kToads; ++toad) {
        const QSize size = toadSize(laneOf(toad));
        for (int f = 0; f < 3; ++f) {
            QPixmap pm(size);
            pm.fill(Qt::transparent);
            if (art.isValid()) {
                QPainter tp(&pm);
                tp.setRenderHint(QPainter::Antialiasing);
                const QString id = QString("toad%1_%2").arg(toad).arg(f);
                if (art.elementExists(id)) art.render(&tp, id, QRectF(QPointF(0, 0), size));
            }
            sprites_[toad][f] = pm;
        }
    }
    const int side = std::max(8, int(laneH_ * 0.6));
    sparkle_ = QPixmap(side, side);
    sparkle_.fill(Qt::transparent);
    {
        QPainter sp(&sparkle_);
        sp.setRenderHint(QPainter::Antialiasing);
        scene::paintSparkle(sp, QPointF(side / 2.0, side / 2.0), side * 0.34, 12, 1.0);
    }
    callPictureOf_.clear();
    for (auto& t : toads_) t.drawn = QRect();
    update();
}

const QPixmap& Pond::callPicture() {
    if (callPictureOf_ == call_ && !callPicture_.isNull()) return callPicture_;
    const QRect box = callRect();
    QFont f = scene::boldFont(int(laneH_ * 1.05));
    while (f.pixelSize() > 8 && QFontMetricsF(f).horizontalAdvance(call_) > box.width() * 0.92)
        f.setPixelSize(f.pixelSize() - 2);
    callPicture_ = QPixmap(box.size() - QSize(0, int(laneH_ * 0.3)));
    callPicture_.fill(Qt::transparent);
    QPainter p(&callPicture_);
    p.setRenderHint(QPainter::Antialiasing);
    paintOutlined(p, call_, f, QPointF(callPicture_.rect().center()), QColor(255, 236, 90),
                  QColor(40, 70, 20), std::max(3.0, laneH_ * 0.1));
    callPictureOf_ = call_;
    return callPicture_;
}

// --- what moves -------------------------------------------------------------------------

void Pond::step() {
    const qint64 t = now();
    for (int toad = 0; toad < kToads; ++toad) {
        Toad& d = toads_[toad];
        int frame = 0;
        const QRect r = toadRect(toad, t, &frame).toAlignedRect().adjusted(-2, -2, 2, 2);
        if (r != d.drawn) {
            update(d.drawn);
            update(r);
            d.drawn = r;
        }
    }
    // Splash rings where toads landed.
    for (int toad = 0; toad < kToads; ++toad) {
        const qint64 age = t - toads_[toad].hopAt - kHopMs;
        QRect ring;
        if (age >= 0 && age < kRingMs) {
            const QPointF c = padCentre(laneOf(toad), toads_[toad].to);
            const double r = padStep_ * 0.75;
            ring = QRectF(c.x() - r, c.y() - r * 0.7, 2 * r, r * 1.4)
                       .toAlignedRect()
                       .adjusted(-4, -4, 4, 4);
        }
        if (ring != ringsDrawn_[toad] || !ring.isNull()) {
            update(ringsDrawn_[toad]);
            update(ring);
            ringsDrawn_[toad] = ring;
        }
    }
    // The call pops in, then stands still.
    if (!call_.isEmpty() && t - callAt_ < 400) update(callRect());
    const QRect cheer = cheerRect();
    if (!cheer.isNull() || !cheerDrawn_.isNull()) {
        update(cheerDrawn_);
        update(cheer);
        cheerDrawn_ = cheer;
    }
}

void Pond::paintEvent(QPaintEvent* event) {
    QPainter p(this);
    if (scene_.isNull()) {
        p.fillRect(rect(), QColor(70, 150, 90));
        return;
    }
    for (const QRect& r : event->region()) p.drawPixmap(r, scene_, r);
    p.setRenderHint(QPainter::Antialiasing);
    const qint64 t = now();

    for (int toad = 0; toad < kToads; ++toad) {
        const qint64 age = t - toads_[toad].hopAt - kHopMs;
        if (age < 0 || age >= kRingMs) continue;
        const QPointF c = padCentre(laneOf(toad), toads_[toad].to);
        const double u = double(age) / kRingMs;
        for (int k = 0; k < 2; ++k) {
            const double v = scene::clamp01(u * 1.25 - k * 0.25);
            if (v <= 0) continue;
            const double r = padStep_ * (0.3 + 0.45 * scene::easeOut(v));
            p.setPen(QPen(scene::withAlpha(QColor(235, 250, 255), (1 - v) * 0.9),
                          std::max(1.5, laneH_ * 0.03)));
            p.setBrush(Qt::NoBrush);
            p.drawEllipse(c, r, r * 0.42);
        }
        // Droplets thrown up at the landing.
        p.setPen(Qt::NoPen);
        p.setBrush(scene::withAlpha(QColor(220, 245, 255), 1 - u));
        for (int k = 0; k < 6; ++k) {
            const double a = kPi * (0.15 + 0.7 * k / 5.0);
            const double d = padStep_ * 0.45 * scene::easeOut(u);
            const QPointF drop =
                c + QPointF(-std::cos(a) * d, -std::sin(a) * d * 0.9 + u * u * laneH_ * 0.5);
            p.drawEllipse(drop, laneH_ * 0.035, laneH_ * 0.035);
        }
    }

    if (cheer_ >= 0) {
        const QRect box = cheerRect();
        const QPointF c = QPointF(box.center()) + QPointF(0, -laneH_ * 0.2);
        const double spin = double(t - cheerAt_) / 9.0;
        const double size = laneH_ * 0.3;
        for (int k = 0; k < 9; ++k) {
            const double a = (k * 40 + spin) * kPi / 180;
            const double r = laneH_ * (0.75 + 0.25 * std::sin(double(t - cheerAt_) / 160.0 + k));
            const double twinkle = 0.5 + 0.5 * std::sin(double(t - cheerAt_) / 90.0 + k * 1.7);
            const QPointF at = c + QPointF(std::cos(a) * r, std::sin(a) * r * 0.8);
            const double s = size * (0.6 + 0.4 * twinkle);
            p.setOpacity(0.5 + 0.5 * twinkle);
            p.drawPixmap(QRectF(at.x() - s, at.y() - s, 2 * s, 2 * s), sparkle_,
                         QRectF(sparkle_.rect()));
        }
        p.setOpacity(1);
    }

    for (int lane = 0; lane < kToads; ++lane) {
        const int toad = kToads - 1 - lane;
        int frame = 0;
        const QRectF r = toadRect(toad, t, &frame);
        if (!event->region().intersects(r.toAlignedRect())) continue;
        // A soft shadow on the water below a toad in the air.
        const QPointF ground = padCentre(lane, toads_[toad].to);
        if (frame == 1) {
            p.setPen(Qt::NoPen);
            p.setBrush(QColor(0, 30, 20, 60));
            p.drawEllipse(QPointF(r.center().x(), ground.y()), r.width() * 0.3, r.width() * 0.1);
        }
        p.drawPixmap(r.topLeft(), sprites_[toad][frame]);
    }

    if (!call_.isEmpty()) {
        // The call fades in as it drops into place.
        const double pop = scene::easeOut(double(t - callAt_) / 300.0);
        const QPixmap& pic = callPicture();
        const QRect box = callRect();
        p.setOpacity(pop);
        p.drawPixmap(QPointF(box.center().x() - pic.width() / 2.0,
                             box.center().y() - pic.height() / 2.0 - (1 - pop) * laneH_ * 0.15),
                     pic);
        p.setOpacity(1);
    }
}

}  // namespace wm
