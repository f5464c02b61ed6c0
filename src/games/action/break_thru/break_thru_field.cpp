#include "games/action/break_thru/break_thru_field.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <cmath>

#include "platform/scene_kit.h"
#include "platform/services.h"
#include "platform/ticker.h"

namespace wm {

using namespace break_thru;

namespace {
constexpr double kPi = 3.14159265358979;
constexpr int kColours = 6;
constexpr int kTrail = 8;
constexpr int kFireworkEveryMs = 300;
constexpr double kTile = 62, kTileStep = 68, kTileTop = 20;

const QColor kBrickColours[kColours] = {QColor(235, 70, 80),  QColor(250, 160, 40),
                                        QColor(250, 215, 60), QColor(80, 190, 100),
                                        QColor(60, 150, 235), QColor(170, 100, 220)};

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

int colourOf(const Brick& b) {
    return (b.row + 2 * b.col) % kColours;
}
}  // namespace

BreakField::BreakField(const Game& game, QWidget* parent) : QWidget(parent), game_(game) {
    setObjectName("Field");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

qint64 BreakField::now() const {
    return Ticker::get().now() - born_;
}

void BreakField::reset() {
    trail_.clear();
    effects_.clear();
    tumbleAt_ = -1;
    won_ = false;
    wordState_.clear();
    update();
}

void BreakField::setCall(const QString& text, const QString& hint) {
    const QRect was = toWidget(callRect()).toAlignedRect();
    call_ = text;
    hint_ = hint;
    callAt_ = now();
    update(was);
}

void BreakField::struck(const Event& e, int points) {
    const bool right = e.kind == Event::Broke;
    const Brick& b = game_.bricks()[e.brick];
    const double s = scale_;
    // The points are drawn once, then only moved and faded.
    QPixmap label(QSize(int(150 * s) + 1, int(60 * s) + 1));
    label.fill(Qt::transparent);
    if (points != 0) {
        QPainter p(&label);
        p.setRenderHint(QPainter::Antialiasing);
        paintOutlined(p, right ? QString("+%1").arg(points) : QString("-%1").arg(points),
                      boldFont(38 * s), QPointF(label.rect().center()),
                      right ? QColor(255, 235, 90) : QColor(255, 110, 100),
                      right ? QColor(90, 50, 0) : QColor(90, 0, 0), 6 * s);
    }
    const double cx = b.x() + kBrickW / 2, cy = b.y() + kBrickH / 2;
    effects_.push_back({right ? Effect::Shards : Effect::Flash, cx, cy, now(), label,
                        kBrickColours[colourOf(b)], right ? 900 : 700});
    update(toWidget(brickRect(b)).toAlignedRect().adjusted(-2, -2, 2, 2));
}

void BreakField::bounced(const Event& e) {
    effects_.push_back({Effect::Spark, e.x, e.y, now(), {}, QColor(150, 230, 255), 300});
}

void BreakField::missed(const Event& e) {
    effects_.push_back({Effect::Miss, 30, e.y, now(), {}, QColor(255, 90, 70), 900});
    trail_.clear();
}

void BreakField::tumble(bool won) {
    tumbleAt_ = now();
    won_ = won;
    fireworks_ = 0;
    trail_.clear();
}

// --- where things are --------------------------------------------------------------------

QRectF BreakField::toWidget(const QRectF& world) const {
    return QRectF(origin_ + world.topLeft() * scale_, world.size() * scale_);
}

QRectF BreakField::brickRect(const Brick& b) const {
    QRectF r(b.x(), b.y(), kBrickW, kBrickH);
    if (tumbleAt_ < 0) return r;
    // Tumbling: each brick falls with its own little delay and drifts a little sideways.
    const double t = std::max(0.0, (now() - tumbleAt_) / 16.0 - (b.row * 3 + b.col * 5) % 11);
    const double drift = ((b.row * 7 + b.col * 3) % 5 - 2) * 0.8 * t;
    r.translate(drift, 0.45 * t * t);
    return r.adjusted(-16, -16, 16, 16);  // room for the turn
}

QRectF BreakField::wordRect() const {
    const double w = game_.word().size() * kTileStep;
    return QRectF(800 - w / 2 - 10, kTileTop - 8, w + 20, kTile + 16);
}

QRectF BreakField::effectRect(const Effect& e) const {
    switch (e.kind) {
        case Effect::Shards:  // the pieces fly and fall; the points rise above
            return QRectF(e.x - 110, e.y - 140, 220, 330);
        case Effect::Flash:
            return QRectF(e.x - 80, e.y - 140, 160, 200);
        case Effect::Spark:
            return QRectF(e.x - 40, e.y - 40, 80, 80);
        case Effect::Miss:
            return QRectF(e.x - 120, e.y - 120, 240, 240);
        case Effect::Firework:
            break;
    }
    return QRectF(e.x - 170, e.y - 170, 340, 340);
}

QRectF BreakField::callRect() const {
    return QRectF(180, 400, 1240, 260);
}

// --- the scenery, once a size -----------------------------------------------------------

void BreakField::resizeEvent(QResizeEvent*) {
    scale_ = std::min(width() / kWorldW, height() / kWorldH);
    origin_ = QPointF((width() - kWorldW * scale_) / 2, (height() - kWorldH * scale_) / 2);
    buildScene();
}

void BreakField::buildScene() {
    if (width() <= 0 || height() <= 0) return;
    scene_ = QPixmap(size());
    scene_.fill(QColor(20, 16, 60));
    {
        QPainter p(&scene_);
        p.setRenderHint(QPainter::Antialiasing);
        QSvgRenderer back(appFile("images/breakthru-space.svg"));
        // The drawing reaches 100 units past the world on every side, for screens of
        // another shape.
        if (back.isValid()) back.render(&p, toWidget(QRectF(-100, -100, 1800, 1100)));
    }
    QSvgRenderer art(appFile("images/breakthru-sprites.svg"));
    auto sprite = [&](const QString& id, QSizeF world) {
        return scene::spritePicture(art, id, (world * scale_).toSize());
    };
    paddle_ = sprite("paddle_0", QSizeF(44, 170));
    ball_ = sprite("ball_0", QSizeF(2 * kBallR + 4, 2 * kBallR + 4));
    glow_ = sprite("glow_0", QSizeF(90, 90));
    brickArt_.clear();
    for (int c = 0; c <= kColours; ++c)
        brickArt_.push_back(sprite(QString("brick_%1").arg(c), QSizeF(kBrickW, kBrickH)));
    brickCache_.clear();
    callPictureOf_.clear();
    paddleDrawn_ = -1;
    wordState_.clear();
    drawn_.clear();
    update();
}

const QPixmap& BreakField::brickPicture(int colour, char letter) {
    const int key = colour * 256 + static_cast<unsigned char>(letter);
    auto it = brickCache_.find(key);
    if (it != brickCache_.end()) return it->second;
    // The last colour is the red glow of a wrong hit.
    QPixmap pm = int(brickArt_.size()) > colour ? brickArt_[colour] : QPixmap();
    if (!pm.isNull()) {
        QPainter p(&pm);
        p.setRenderHint(QPainter::Antialiasing);
        const QString l = QString::fromLatin1(&letter, 1);
        paintOutlined(p, l, boldFont(36 * scale_), QPointF(kBrickW / 2, kBrickH / 2 - 1) * scale_,
                      Qt::white, QColor(40, 20, 50, 210), std::max(2.0, 5 * scale_));
    }
    return brickCache_[key] = pm;
}

// --- what moves -------------------------------------------------------------------------

void BreakField::step() {
    const qint64 t = now();
    // What each thing covers now, by a key of its own, so that a thing's old and new places
    // are repainted as one rectangle.
    std::map<int, QRect> cur;
    auto mark = [&](int key, const QRectF& world) {
        cur[key] = toWidget(world).toAlignedRect().adjusted(-2, -2, 2, 2);
    };
    const Phase phase = game_.phase();
    const bool inPlay = phase == Phase::Ready || phase == Phase::Serve || phase == Phase::Play;
    const Ball& ball = game_.ball();
    if (inPlay) {
        mark(0, QRectF(ball.x - 45, ball.y - 45, 90, 90));
        if (phase == Phase::Play) {
            trail_.push_back(QPointF(ball.x, ball.y));
            if (trail_.size() > kTrail) trail_.pop_front();
        } else {
            trail_.clear();
        }
    }
    for (int k = 0; k < int(trail_.size()); ++k)
        mark(1000 + k, QRectF(trail_[k].x() - 16, trail_[k].y() - 16, 32, 32));
    // The paddle is repainted only when it moves, over its old and new places.
    if (game_.paddleY() != paddleDrawn_) {
        paddleDrawn_ = game_.paddleY();
        const QRect now = toWidget(QRectF(kPaddleX - 12, paddleDrawn_ - 90, 48, 180))
                              .toAlignedRect()
                              .adjusted(-2, -2, 2, 2);
        update(paddleRect_.united(now));
        paddleRect_ = now;
    }
    const auto& bricks = game_.bricks();
    for (int i = 0; i < int(bricks.size()); ++i) {
        const Brick& b = bricks[i];
        if (b.broken) continue;
        if (b.flash > 0 || (tumbleAt_ >= 0 && t - tumbleAt_ < 2500)) mark(100 + i, brickRect(b));
    }
    effects_.erase(std::remove_if(effects_.begin(), effects_.end(),
                                  [&](const Effect& e) { return t - e.at > e.life; }),
                   effects_.end());
    // A won game goes on with fireworks over the court.
    if (tumbleAt_ >= 0 && won_) {
        const int due = int((t - tumbleAt_) / kFireworkEveryMs) + 1;
        for (int& made = fireworks_; made < due; ++made) {
            const double x = 300 + std::fmod(made * 397.0, 1000);
            const double y = 330 + std::fmod(made * 151.0, 380);
            effects_.push_back(
                {Effect::Firework, x, y, t, {}, kBrickColours[made % kColours], 1100});
        }
    }
    for (int k = 0; k < int(effects_.size()); ++k) mark(2000 + k, effectRect(effects_[k]));
    if (!call_.isEmpty() && t - callAt_ < 400) mark(3000, callRect());
    // The word at the top is marked only when it changes; its next letter pulses.
    std::string state;
    for (bool d : game_.done()) state += d ? '1' : '0';
    state += char('0' + (t / 350) % 2);
    state += char('a' + int(phase));
    if (state != wordState_) {
        wordState_ = state;
        mark(3001, wordRect());
    }
    for (auto& [key, was] : drawn_) {
        const auto now = cur.find(key);
        update(now == cur.end() ? was : was.united(now->second));
    }
    for (auto& [key, r] : cur)
        if (!drawn_.count(key)) update(r);
    drawn_ = std::move(cur);
}

void BreakField::paintEvent(QPaintEvent* event) {
    QPainter p(this);
    if (scene_.isNull()) {
        p.fillRect(rect(), QColor(20, 16, 60));
        return;
    }
    for (const QRect& r : event->region()) p.drawPixmap(r, scene_, r);
    p.setRenderHint(QPainter::Antialiasing);
    const QRegion& region = event->region();
    const qint64 t = now();
    auto visible = [&](const QRectF& world) {
        return region.intersects(toWidget(world).toAlignedRect());
    };

    if (visible(wordRect())) paintWord(p);
    paintBricks(p, t, region);
    const Phase phase = game_.phase();
    p.drawPixmap(toWidget(QRectF(kPaddleX - 10, game_.paddleY() - 85, 0, 0)).topLeft(), paddle_);
    if (phase == Phase::Ready || phase == Phase::Serve || phase == Phase::Play) {
        // The ball's comet tail, its glow, then the ball.
        for (int k = 0; k < int(trail_.size()); ++k) {
            const QPointF at = toWidget(QRectF(trail_[k], QSizeF(0, 0))).topLeft();
            const double u = double(k + 1) / (trail_.size() + 1);
            p.setPen(Qt::NoPen);
            p.setBrush(scene::withAlpha(QColor(160, 220, 255), 0.5 * u));
            p.drawEllipse(at, (4 + 7 * u) * scale_, (4 + 7 * u) * scale_);
        }
        const Ball& b = game_.ball();
        p.drawPixmap(toWidget(QRectF(b.x - 45, b.y - 45, 0, 0)).topLeft(), glow_);
        p.drawPixmap(toWidget(QRectF(b.x - kBallR - 2, b.y - kBallR - 2, 0, 0)).topLeft(), ball_);
    }
    for (const Effect& e : effects_)
        if (visible(effectRect(e))) paintEffect(p, e, t);
    if ((!call_.isEmpty() || !hint_.isEmpty()) && visible(callRect())) paintCall(p, t);
}

void BreakField::paintWord(QPainter& p) {
    const std::string& word = game_.word();
    const double left = 800 - word.size() * kTileStep / 2 + (kTileStep - kTile) / 2;
    const bool glow = (now() / 350) % 2 == 0;
    for (std::size_t i = 0; i < word.size(); ++i) {
        const QRectF r = toWidget(QRectF(left + i * kTileStep, kTileTop, kTile, kTile));
        const char c = word[i];
        const QString letter = QString::fromLatin1(&c, 1);
        if (!isBrick(c)) {
            // A blank, hyphen or apostrophe of the word stands as it is.
            p.setFont(boldFont(r.height() * 0.7));
            p.setPen(QColor(255, 255, 255));
            p.drawText(r, Qt::AlignCenter, letter);
            continue;
        }
        const bool next = int(i) == game_.nextPos();
        if (next) {
            // The letter to break next is lit and pulses.
            p.setPen(Qt::NoPen);
            p.setBrush(scene::withAlpha(QColor(255, 230, 90), glow ? 0.55 : 0.3));
            p.drawRoundedRect(r.adjusted(-7 * scale_, -7 * scale_, 7 * scale_, 7 * scale_),
                              14 * scale_, 14 * scale_);
        }
        const QColor colour = game_.done()[i] ? QColor(70, 185, 90)
                              : next          ? QColor(245, 170, 30)
                                              : QColor(90, 100, 150);
        scene::paintLetterTile(p, r, colour, letter);
    }
}

void BreakField::paintBricks(QPainter& p, qint64 t, const QRegion& region) {
    const auto& bricks = game_.bricks();
    for (const Brick& b : bricks) {
        if (b.broken) continue;
        const QRectF r = brickRect(b);
        if (!region.intersects(toWidget(r).toAlignedRect())) continue;
        const QPixmap& pm = brickPicture(colourOf(b), b.letter);
        if (tumbleAt_ >= 0) {
            const QRectF body = toWidget(r.adjusted(16, 16, -16, -16));
            const double turn =
                std::max(0.0, (t - tumbleAt_) / 16.0) * ((b.row + b.col) % 2 ? 1.5 : -1.5);
            p.save();
            p.translate(body.center());
            p.rotate(turn);
            p.drawPixmap(QPointF(-body.width() / 2, -body.height() / 2), pm);
            p.restore();
            continue;
        }
        const QRectF at = toWidget(r);
        p.drawPixmap(at.topLeft(), pm);
        if (b.flash > 0) {
            // A wrong hit: the brick glows red and fades back.
            p.setOpacity(double(b.flash) / kFlashTicks);
            p.drawPixmap(at.topLeft(), brickPicture(kColours, b.letter));
            p.setOpacity(1);
        }
    }
}

void BreakField::paintCall(QPainter& p, qint64 t) {
    const QRectF box = toWidget(callRect());
    // The call and the hint under it are drawn once, then only shown.
    const QString key = call_ + '\n' + hint_;
    if (callPictureOf_ != key) {
        callPicture_ = QPixmap(box.size().toSize());
        callPicture_.fill(Qt::transparent);
        QPainter cp(&callPicture_);
        cp.setRenderHint(QPainter::Antialiasing);
        const QRectF big(0, 0, box.width(), box.height() * 0.66);
        QFont f = boldFont(big.height() * 0.62);
        while (f.pixelSize() > 8 && QFontMetricsF(f).horizontalAdvance(call_) > big.width() * 0.94)
            f.setPixelSize(f.pixelSize() - 2);
        if (!call_.isEmpty())
            paintOutlined(cp, call_, f, big.center(), QColor(255, 226, 80), QColor(70, 20, 110),
                          std::max(3.0, 10 * scale_));
        const QRectF line(0, box.height() * 0.68, box.width(), box.height() * 0.3);
        if (!hint_.isEmpty())
            paintOutlined(cp, hint_, boldFont(line.height() * 0.55), line.center(),
                          QColor(255, 255, 255), QColor(30, 30, 90), std::max(2.0, 6 * scale_));
        callPictureOf_ = key;
    }
    const double pop = scene::easeOut(double(t - callAt_) / 300.0);
    p.setOpacity(pop);
    p.drawPixmap(box.topLeft() + QPointF(0, -(1 - pop) * 30 * scale_), callPicture_);
    p.setOpacity(1);
}

void BreakField::paintEffect(QPainter& p, const Effect& e, qint64 t) {
    const double u = scene::clamp01(double(t - e.at) / e.life);
    const QPointF c = toWidget(QRectF(e.x, e.y, 0, 0)).topLeft();
    const double s = scale_;
    p.setPen(Qt::NoPen);
    switch (e.kind) {
        case Effect::Shards:
        case Effect::Flash: {
            if (e.kind == Effect::Shards) {
                // Pieces of the brick fly out and fall; a white ring spreads.
                for (int k = 0; k < 10; ++k) {
                    const double a = k * kPi / 5 + 0.4;
                    const double d = 90 * scene::easeOut(u) * s;
                    const QPointF at =
                        c + QPointF(std::cos(a) * d, std::sin(a) * d + u * u * 90 * s);
                    p.save();
                    p.translate(at);
                    p.rotate(k * 40 + u * 360);
                    p.setBrush(scene::withAlpha(e.colour, 1 - u));
                    p.drawRect(QRectF(-9 * s, -6 * s, 18 * s, 12 * s));
                    p.restore();
                }
                scene::paintSparkle(p, c, 40 * s * (1 - u), u * 90, 1 - u);
            }
            const bool right = e.kind == Effect::Shards;
            p.setPen(
                QPen(scene::withAlpha(right ? QColor(255, 255, 255) : QColor(255, 80, 70), 1 - u),
                     4 * s));
            p.setBrush(Qt::NoBrush);
            const double ring = right ? 70 : 36;
            p.drawEllipse(c, (30 + ring * u) * s, (22 + ring * 0.7 * u) * s);
            p.setOpacity(1 - u * u);
            const QPointF at = c - QPointF(0, 40 * s + u * 60 * s);
            p.drawPixmap(at - QPointF(e.label.width() / 2.0, e.label.height() / 2.0), e.label);
            p.setOpacity(1);
            break;
        }
        case Effect::Spark:
            p.setPen(QPen(scene::withAlpha(e.colour, 1 - u), 3 * s));
            p.setBrush(Qt::NoBrush);
            p.drawEllipse(c, (8 + 26 * u) * s, (8 + 26 * u) * s);
            break;
        case Effect::Miss:
            for (int k = 0; k < 8; ++k) {
                const double a = -kPi / 2 + k * kPi / 7;
                const double d = 100 * scene::easeOut(u) * s;
                p.setBrush(scene::withAlpha(e.colour, 0.9 * (1 - u)));
                p.drawEllipse(c + QPointF(std::cos(a) * d, std::sin(a) * d), (12 - 8 * u) * s,
                              (12 - 8 * u) * s);
            }
            break;
        case Effect::Firework:
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

}  // namespace wm
