#include "games/action/cannon_shot/cannon_shot_sky.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <cmath>

#include "core/strings.h"
#include "platform/scene_kit.h"
#include "platform/services.h"
#include "platform/ticker.h"

namespace wm {

using namespace cannon_shot;

namespace {
constexpr double kPi = 3.14159265358979;
constexpr int kColours = 6;
constexpr int kTrail = 12;
constexpr int kFireworkEveryMs = 320;
constexpr int kRecoilMs = 260;
constexpr double kTile = 58, kTileStep = 64, kTilesY = 836;
// The wind flag's pole down the hill's slope, right of the power bar.
constexpr double kPoleX = 404, kPoleTop = 660, kPoleFoot = 818;

QFont boldFont(double px) {
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(std::max(8, int(px)));
    return f;
}

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

const QColor kBalloonColours[kColours] = {QColor(230, 60, 70),  QColor(250, 170, 40),
                                          QColor(70, 170, 90),  QColor(60, 130, 230),
                                          QColor(160, 90, 210), QColor(240, 110, 170)};
}  // namespace

CannonSky::CannonSky(const Game& game, QWidget* parent) : QWidget(parent), game_(game) {
    setObjectName("Sky");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

qint64 CannonSky::now() const {
    return Ticker::get().now() - born_;
}

void CannonSky::reset() {
    trail_.clear();
    effects_.clear();
    finishAt_ = -1;
    firedAt_ = -100000;
    cannonState_.clear();
    tilesState_.clear();
    update();
}

void CannonSky::setCall(const QString& text) {
    call_ = text;
    callAt_ = now();
    update(toWidget(callRect()).toAlignedRect());
}

void CannonSky::fired() {
    firedAt_ = now();
    trail_.clear();
    effects_.push_back({Effect::Smoke, game_.muzzleX(), game_.muzzleY(), now(), {}, {}, 600});
}

void CannonSky::popped(const Event& e, int points) {
    const bool right = e.kind == Event::Right;
    const QString text = right ? QString("+%1").arg(points) : QString("-%1").arg(points);
    const QColor c = e.balloon >= 0 ? kBalloonColours[e.balloon % kColours] : Qt::white;
    // The points are drawn once, then only moved and faded.
    const double s = scale_;
    QPixmap label(QSize(int(160 * s) + 1, int(64 * s) + 1));
    label.fill(Qt::transparent);
    {
        QPainter p(&label);
        p.setRenderHint(QPainter::Antialiasing);
        paintOutlined(p, text, boldFont(40 * s), QPointF(label.rect().center()),
                      right ? QColor(255, 230, 80) : QColor(255, 110, 100),
                      right ? QColor(90, 50, 0) : QColor(90, 0, 0), 6 * s);
    }
    effects_.push_back({Effect::Burst, e.x, e.y, now(), label, c, kPopMs});
    trail_.clear();
}

void CannonSky::landed(const Event& e) {
    effects_.push_back({Effect::Dust, e.x, e.y, now(), {}, {}, 600});
    trail_.clear();
}

void CannonSky::finish(bool won) {
    finishAt_ = now();
    won_ = won;
    fireworks_ = 0;
    trail_.clear();
    cannonState_.clear();
    tilesState_.clear();
}

// --- where things are --------------------------------------------------------------------

QRectF CannonSky::toWidget(const QRectF& world) const {
    return QRectF(origin_ + world.topLeft() * scale_, world.size() * scale_);
}

QRectF CannonSky::balloonRect(const Balloon& b) const {
    return QRectF(b.x - 42, b.y - 52, 84, 154);
}

QRectF CannonSky::cannonRect() const {
    return QRectF(kPivotX - 150, kPivotY - 280, 430, 400);
}

QRectF CannonSky::flagRect() const {
    return QRectF(kPoleX - 90, kPoleTop - 40, 180, kPoleFoot - kPoleTop + 50);
}

QRectF CannonSky::tilesRect() const {
    const double w = game_.word().size() * kTileStep;
    return QRectF(980 - w / 2 - 8, kTilesY - 10, w + 16, kTile + 20);
}

QRectF CannonSky::effectRect(const Effect& e) const {
    const double r = e.kind == Effect::Firework ? 170 : e.kind == Effect::Burst ? 100 : 70;
    return QRectF(e.x - r, e.y - r - (e.kind == Effect::Burst ? 60 : 0), 2 * r,
                  2 * r + (e.kind == Effect::Burst ? 60 : 0));
}

QRectF CannonSky::callRect() const {
    return QRectF(260, 300, 1080, 170);
}

// --- the scenery, once a size -----------------------------------------------------------

void CannonSky::resizeEvent(QResizeEvent*) {
    scale_ = std::min(width() / kWorldW, height() / kWorldH);
    origin_ = QPointF((width() - kWorldW * scale_) / 2, (height() - kWorldH * scale_) / 2);
    buildScene();
}

void CannonSky::buildScene() {
    if (width() <= 0 || height() <= 0) return;
    scene_ = QPixmap(size());
    scene_.fill(QColor(120, 190, 240));
    {
        QPainter p(&scene_);
        p.setRenderHint(QPainter::Antialiasing);
        QSvgRenderer back(appFile("images/cannonshot-sky.svg"));
        // The drawing reaches 100 units past the world on every side, for screens of
        // another shape.
        if (back.isValid()) back.render(&p, toWidget(QRectF(-100, -100, 1800, 1100)));
    }
    QSvgRenderer art(appFile("images/cannonshot-sprites.svg"));
    auto sprite = [&](const QString& id, QSizeF world) {
        return scene::spritePicture(art, id, (world * scale_).toSize());
    };
    carriage_ = sprite("carriage_0", QSizeF(190, 120));
    barrel_ = sprite("barrel_0", QSizeF(150, 60));
    ball_ = sprite("ball_0", QSizeF(2 * kBallR + 4, 2 * kBallR + 4));
    balloonArt_.clear();
    for (int c = 0; c < kColours; ++c)
        balloonArt_.push_back(sprite(QString("balloon_%1").arg(c), QSizeF(84, 154)));
    balloonCache_.clear();
    callPictureOf_.clear();
    cannonState_.clear();
    tilesState_.clear();
    drawn_.clear();
    update();
}

const QPixmap& CannonSky::balloonPicture(int index, char letter) {
    const int key = (index % kColours) * 256 + static_cast<unsigned char>(letter);
    auto it = balloonCache_.find(key);
    if (it != balloonCache_.end()) return it->second;
    QPixmap pm = balloonArt_.empty() ? QPixmap() : balloonArt_[index % kColours];
    if (!pm.isNull()) {
        QPainter p(&pm);
        p.setRenderHint(QPainter::Antialiasing);
        const QString l = QString::fromLatin1(&letter, 1);
        paintOutlined(p, l, boldFont(50 * scale_), QPointF(42, 50) * scale_, Qt::white,
                      QColor(40, 30, 60, 200), std::max(2.0, 5 * scale_));
    }
    return balloonCache_[key] = pm;
}

// --- what moves -------------------------------------------------------------------------

void CannonSky::step() {
    const qint64 t = now();
    // What each thing covers now, by a key of its own, so that a thing's old and new places
    // are repainted as one rectangle.
    std::map<int, QRect> cur;
    auto mark = [&](int key, const QRectF& world) {
        cur[key] = toWidget(world).toAlignedRect().adjusted(-2, -2, 2, 2);
    };
    const auto& balloons = game_.balloons();
    for (int i = 0; i < int(balloons.size()); ++i) {
        const Balloon& b = balloons[i];
        if (b.shown() && b.x > -60 && b.x < kWorldW + 60) mark(i, balloonRect(b));
    }
    const Ball& ball = game_.ball();
    if (ball.flying) {
        trail_.push_back(QPointF(ball.x, ball.y));
        if (trail_.size() > kTrail) trail_.pop_front();
    }
    for (int k = 0; k < int(trail_.size()); ++k)
        mark(1000 + k, QRectF(trail_[k].x() - 15, trail_[k].y() - 15, 30, 30));
    // Effects that are over go.
    effects_.erase(std::remove_if(effects_.begin(), effects_.end(),
                                  [&](const Effect& e) { return t - e.at > e.life; }),
                   effects_.end());
    // A won game goes on with fireworks over the hill.
    if (finishAt_ >= 0 && won_) {
        const int due = int((t - finishAt_) / kFireworkEveryMs) + 1;
        for (int& made = fireworks_; made < due; ++made) {
            const double x = 380 + std::fmod(made * 397.0, 1040);
            const double y = 180 + std::fmod(made * 151.0, 260);
            effects_.push_back({Effect::Firework, x, y, t, {},
                                kBalloonColours[made % kColours], 1100});
        }
    }
    for (int k = 0; k < int(effects_.size()); ++k) mark(2000 + k, effectRect(effects_[k]));
    if (!call_.isEmpty() && t - callAt_ < 400) mark(3000, callRect());

    // The cannon and its bar, the wind flag and the blanks are marked only when they change.
    const QString cannon = QString("%1 %2 %3 %4 %5")
                               .arg(game_.angle())
                               .arg(game_.power())
                               .arg(t - firedAt_ < kRecoilMs + 40 ? t / 16 : 0)
                               .arg(finishAt_ >= 0 ? t / 32 : 0)
                               .arg(int(game_.phase()));
    if (cannon != cannonState_) {
        cannonState_ = cannon;
        mark(3001, cannonRect());
    }
    if (game_.wind() != 0 && t / 48 != flagState_) {
        flagState_ = t / 48;
        mark(3002, flagRect());
    }
    const std::string tiles =
        game_.blanks() + char('0' + (t / 400) % 2) + char(finishAt_ >= 0 ? 'e' : 'p');
    if (tiles != tilesState_) {
        tilesState_ = tiles;
        mark(3003, tilesRect());
    }
    for (auto& [key, was] : drawn_) {
        const auto now = cur.find(key);
        update(now == cur.end() ? was : was.united(now->second));
    }
    for (auto& [key, r] : cur)
        if (!drawn_.count(key)) update(r);
    drawn_ = std::move(cur);
}

void CannonSky::paintEvent(QPaintEvent* event) {
    QPainter p(this);
    if (scene_.isNull()) {
        p.fillRect(rect(), QColor(120, 190, 240));
        return;
    }
    for (const QRect& r : event->region()) p.drawPixmap(r, scene_, r);
    p.setRenderHint(QPainter::Antialiasing);
    const QRegion& region = event->region();
    const qint64 t = now();
    auto visible = [&](const QRectF& world) {
        return region.intersects(toWidget(world).toAlignedRect());
    };

    if (game_.wind() != 0 && visible(flagRect())) paintWind(p, t);
    if (visible(cannonRect())) paintCannon(p, t);
    const auto& balloons = game_.balloons();
    for (int i = 0; i < int(balloons.size()); ++i) {
        const Balloon& b = balloons[i];
        if (!b.shown() || !visible(balloonRect(b))) continue;
        p.drawPixmap(toWidget(balloonRect(b)).topLeft().toPoint(), balloonPicture(i, b.letter));
    }
    // The ball's trail of smoke, then the ball.
    for (int k = 0; k < int(trail_.size()); ++k) {
        const QPointF at = toWidget(QRectF(trail_[k], QSizeF(0, 0))).topLeft();
        const double u = double(k + 1) / (trail_.size() + 1);
        p.setPen(Qt::NoPen);
        p.setBrush(scene::withAlpha(QColor(255, 255, 255), 0.45 * u));
        p.drawEllipse(at, (3 + 5 * u) * scale_, (3 + 5 * u) * scale_);
    }
    const Ball& ball = game_.ball();
    if (ball.flying)
        p.drawPixmap(toWidget(QRectF(ball.x - kBallR - 2, ball.y - kBallR - 2, 0, 0)).topLeft(),
                     ball_);
    if (visible(tilesRect())) paintTiles(p);
    for (const Effect& e : effects_)
        if (visible(effectRect(e))) paintEffect(p, e, t);

    if (!call_.isEmpty() && visible(callRect())) {
        const QRectF box = toWidget(callRect());
        if (callPictureOf_ != call_) {
            QFont f = boldFont(box.height() * 0.5);
            while (f.pixelSize() > 8 &&
                   QFontMetricsF(f).horizontalAdvance(call_) > box.width() * 0.94)
                f.setPixelSize(f.pixelSize() - 2);
            callPicture_ = QPixmap(box.size().toSize());
            callPicture_.fill(Qt::transparent);
            QPainter cp(&callPicture_);
            cp.setRenderHint(QPainter::Antialiasing);
            paintOutlined(cp, call_, f, QPointF(callPicture_.rect().center()),
                          QColor(255, 226, 80), QColor(120, 40, 20), std::max(3.0, 9 * scale_));
            callPictureOf_ = call_;
        }
        const double pop = scene::easeOut(double(t - callAt_) / 300.0);
        p.setOpacity(pop);
        p.drawPixmap(box.topLeft() + QPointF(0, -(1 - pop) * 30 * scale_), callPicture_);
        p.setOpacity(1);
    }
}

void CannonSky::paintWind(QPainter& p, qint64 t) {
    const QPointF top = toWidget(QRectF(kPoleX, kPoleTop, 0, 0)).topLeft();
    const QPointF foot = toWidget(QRectF(kPoleX, kPoleFoot, 0, 0)).topLeft();
    p.setPen(QPen(QColor(90, 60, 30), std::max(2.0, 6 * scale_), Qt::SolidLine, Qt::RoundCap));
    p.drawLine(top, foot);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(240, 200, 60));
    p.drawEllipse(top, 6 * scale_, 6 * scale_);
    // The flag streams the way the wind blows, longer the harder it pushes.
    const double push = game_.wind() / maxWind(kMaxLevel);
    const double len = (30 + 50 * std::fabs(push)) * scale_ * (push < 0 ? -1 : 1);
    const double h = 36 * scale_;
    const double wave = t / 90.0;
    QPainterPath flag;
    flag.moveTo(top);
    const int n = 10;
    for (int k = 1; k <= n; ++k) {
        const double u = double(k) / n;
        flag.lineTo(top + QPointF(len * u, std::sin(wave + u * 5) * 5 * scale_ * u));
    }
    for (int k = n; k >= 0; --k) {
        const double u = double(k) / n;
        flag.lineTo(top + QPointF(len * u, h * (1 - 0.35 * u) + std::sin(wave + u * 5) * 5 *
                                                                   scale_ * u));
    }
    flag.closeSubpath();
    p.setBrush(QColor(220, 50, 50));
    p.setPen(QPen(QColor(120, 20, 20), std::max(1.0, 2 * scale_)));
    p.drawPath(flag);
    QFont f = boldFont(20 * scale_);
    p.setFont(f);
    p.setPen(QColor(30, 50, 80));
    p.drawText(QRectF(top.x() - 60 * scale_, top.y() - 36 * scale_, 120 * scale_, 28 * scale_),
               Qt::AlignCenter, "Wind");
}

void CannonSky::paintCannon(QPainter& p, qint64 t) {
    // The barrel turns about the trunnion; it kicks back along itself when fired. A lost game
    // droops it.
    double angle = game_.angle();
    if (finishAt_ >= 0 && !won_)
        angle = scene::lerp(angle, -8, scene::easeInOut((t - finishAt_) / 900.0));
    const double kick = scene::clamp01(1 - double(t - firedAt_) / kRecoilMs) * 16;
    const QPointF pivot = toWidget(QRectF(kPivotX, kPivotY, 0, 0)).topLeft();

    // The aiming line: where the barrel points.
    if (game_.phase() == Phase::Aiming && finishAt_ < 0) {
        const double a = angle * kPi / 180;
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(255, 255, 255, 170));
        for (int k = 0; k < 7; ++k) {
            const double d = (kBarrel + 40 + k * 26) * scale_;
            p.drawEllipse(pivot + QPointF(std::cos(a) * d, -std::sin(a) * d),
                          (5 - k * 0.5) * scale_, (5 - k * 0.5) * scale_);
        }
    }
    p.save();
    p.translate(pivot);
    p.rotate(-angle);
    p.drawPixmap(QPointF((-40 - kick) * scale_, -30 * scale_), barrel_);
    p.restore();
    p.drawPixmap(pivot + QPointF(-95 * scale_, -40 * scale_), carriage_);

    // The power bar beside the cannon.
    const QRectF bar = toWidget(QRectF(kPivotX + 122, kPivotY - 150, 26, 190));
    p.setPen(QPen(QColor(60, 40, 20), std::max(2.0, 4 * scale_)));
    p.setBrush(QColor(255, 255, 255, 150));
    p.drawRoundedRect(bar, 8 * scale_, 8 * scale_);
    const double power = game_.power();
    if (power > 0) {
        const QRectF fill(bar.left() + 4 * scale_, bar.bottom() - 4 * scale_ - (bar.height() - 8 * scale_) * power,
                          bar.width() - 8 * scale_, (bar.height() - 8 * scale_) * power);
        QLinearGradient g(bar.bottomLeft(), bar.topLeft());
        g.setColorAt(0, QColor(80, 200, 80));
        g.setColorAt(0.6, QColor(250, 210, 50));
        g.setColorAt(1, QColor(230, 60, 40));
        p.setPen(Qt::NoPen);
        p.setBrush(g);
        p.drawRoundedRect(fill, 5 * scale_, 5 * scale_);
    }
    p.setFont(boldFont(22 * scale_));
    p.setPen(QColor(255, 255, 255));
    p.drawText(QRectF(bar.left() - 30 * scale_, bar.bottom() + 2 * scale_, bar.width() + 60 * scale_,
                      28 * scale_),
               Qt::AlignCenter, QString("%1\u00b0").arg(int(std::lround(game_.angle()))));
}

void CannonSky::paintTiles(QPainter& p) {
    const std::string& word = game_.word();
    const std::string& blanks = game_.blanks();
    const double left = 980 - word.size() * kTileStep / 2 + (kTileStep - kTile) / 2;
    const bool shown = finishAt_ >= 0 && !won_;
    const bool glow = (now() / 400) % 2 == 0;
    for (std::size_t i = 0; i < word.size(); ++i) {
        const QRectF r = toWidget(QRectF(left + i * kTileStep, kTilesY, kTile, kTile));
        const char c = blanks[i];
        if (c != '\0' && !IsLetterOrDigit(c)) {
            // A blank, hyphen or apostrophe of the word stands as it is.
            if (c != ' ') {
                p.setFont(boldFont(r.height() * 0.7));
                p.setPen(QColor(255, 255, 255));
                p.drawText(r, Qt::AlignCenter, QString::fromLatin1(&c, 1));
            }
            continue;
        }
        if (c != '\0') {
            scene::paintLetterTile(p, r, QColor(230, 150, 40), QString::fromLatin1(&c, 1));
        } else if (shown) {
            const char w = word[i];
            scene::paintLetterTile(p, r, QColor(190, 60, 60), QString::fromLatin1(&w, 1));
        } else {
            const bool next = int(i) == game_.nextPos() && game_.phase() == Phase::Aiming;
            p.setPen(QPen(next && glow ? QColor(255, 230, 90) : QColor(255, 255, 255, 200),
                          std::max(2.0, (next ? 5 : 3) * scale_)));
            p.setBrush(QColor(40, 60, 90, 150));
            p.drawRoundedRect(r, 10 * scale_, 10 * scale_);
        }
    }
}

void CannonSky::paintEffect(QPainter& p, const Effect& e, qint64 t) {
    const double u = scene::clamp01(double(t - e.at) / e.life);
    const QPointF c = toWidget(QRectF(e.x, e.y, 0, 0)).topLeft();
    const double s = scale_;
    p.setPen(Qt::NoPen);
    switch (e.kind) {
        case Effect::Burst: {
            // Shreds of the balloon fly out and fall; the points rise.
            for (int k = 0; k < 12; ++k) {
                const double a = k * kPi / 6 + 0.3;
                const double d = 80 * scene::easeOut(u) * s;
                const QPointF at = c + QPointF(std::cos(a) * d, std::sin(a) * d + u * u * 60 * s);
                p.setBrush(scene::withAlpha(e.colour, 1 - u));
                p.drawEllipse(at, 7 * s * (1 - u * 0.5), 4 * s);
            }
            p.setPen(QPen(scene::withAlpha(QColor(255, 255, 255), 1 - u), 4 * s));
            p.setBrush(Qt::NoBrush);
            p.drawEllipse(c, 30 * s + 60 * s * u, 30 * s + 60 * s * u);
            p.setOpacity(1 - u * u);
            const QPointF at = c - QPointF(0, 40 * s + u * 60 * s);
            p.drawPixmap(at - QPointF(e.label.width() / 2.0, e.label.height() / 2.0), e.label);
            p.setOpacity(1);
            break;
        }
        case Effect::Dust:
        case Effect::Smoke: {
            const QColor col = e.kind == Effect::Dust ? QColor(150, 120, 80) : QColor(235, 235, 235);
            for (int k = 0; k < 5; ++k) {
                const double a = k * kPi / 4 + (e.kind == Effect::Dust ? kPi : 0);
                const double d = 40 * scene::easeOut(u) * s;
                const QPointF at = c + QPointF(std::cos(a) * d, -std::fabs(std::sin(a)) * d);
                p.setBrush(scene::withAlpha(col, 0.8 * (1 - u)));
                p.drawEllipse(at, (10 + 18 * u) * s, (10 + 18 * u) * s);
            }
            break;
        }
        case Effect::Firework: {
            for (int k = 0; k < 16; ++k) {
                const double a = k * kPi / 8;
                const double d = 150 * scene::easeOut(u) * s;
                const QPointF at = c + QPointF(std::cos(a) * d, std::sin(a) * d + u * u * 40 * s);
                scene::paintSparkle(p, at, 14 * s * (1 - u * 0.6), k * 20, 1 - u);
                p.setBrush(scene::withAlpha(e.colour, 1 - u));
                p.drawEllipse(at, 5 * s, 5 * s);
            }
            break;
        }
    }
}

}  // namespace wm
