#include "games/action/hang_glider/hang_glider_sky.h"

#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <cmath>

#include "core/strings.h"
#include "platform/scene_kit.h"
#include "platform/services.h"
#include "platform/text.h"
#include "platform/ticker.h"

namespace wm {

using namespace hang_glider;

namespace {
constexpr double kPi = 3.14159265358979;
constexpr double kTileW = 1600;  // every range of scenery repeats after this many units
constexpr double kFarTop = 360, kHillsTop = 540, kGroundTop = 770;
constexpr double kFarPace = 0.15, kHillsPace = 0.45, kPuffPace = 0.3;
constexpr int kPuffs = 4;
constexpr double kPuffLoop = 2800;
constexpr double kGliderW = 250, kGliderH = 125;
constexpr double kCloudW = 130, kCloudH = 100;
constexpr int kFireworkEveryMs = 300;

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

const QColor kFireworkColours[] = {QColor(255, 90, 90),  QColor(255, 210, 60),
                                   QColor(90, 220, 120), QColor(90, 170, 255),
                                   QColor(220, 120, 255)};
}  // namespace

GliderSky::GliderSky(const Game& game, QWidget* parent) : QWidget(parent), game_(game) {
    setObjectName("Sky");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

qint64 GliderSky::now() const {
    return Ticker::get().now() - born_;
}

void GliderSky::reset() {
    effects_.clear();
    finishAt_ = -1;
    fireworks_ = 0;
    lastY_ = -1;
    pitch_ = 0;
    wordState_.clear();
    update();
}

void GliderSky::setCall(const QString& text) {
    call_ = text;
    callAt_ = now();
    update(toWidget(callRect()).toAlignedRect());
}

void GliderSky::touched(const Event& e, int points) {
    const bool right = e.kind == Event::Right;
    const double s = scale_;
    QPixmap label(QSize(int(170 * s) + 1, int(70 * s) + 1));
    label.fill(Qt::transparent);
    {
        QPainter p(&label);
        p.setRenderHint(QPainter::Antialiasing);
        paintOutlined(p, right ? QString("+%1").arg(points) : QString("-%1").arg(points),
                      boldFont(44 * s), QPointF(label.rect().center()),
                      right ? QColor(255, 230, 80) : QColor(255, 120, 110),
                      right ? QColor(90, 50, 0) : QColor(90, 0, 0), std::max(2.0, 6 * s));
    }
    effects_.push_back({right ? Effect::Sparkle : Effect::Puff, e.x, e.y, now(), label,
                        right ? QColor(255, 240, 140) : QColor(150, 150, 160), kPopMs});
}

void GliderSky::finish(bool won) {
    finishAt_ = now();
    won_ = won;
    fireworks_ = 0;
    if (!won)
        effects_.push_back({Effect::Dust, kGliderX, kGroundY, now(), {}, QColor(170, 130, 80),
                            1400});
}

// --- where things are --------------------------------------------------------------------

QRectF GliderSky::toWidget(const QRectF& world) const {
    return QRectF(origin_ + world.topLeft() * scale_, world.size() * scale_);
}

QRectF GliderSky::gliderRect() const {
    // Room for the nose's tilt and the warm air rising under the wings.
    return QRectF(kGliderX - 150, game_.y() - 95, 300, 230);
}

QRectF GliderSky::letterRect(const Letter& l) const {
    return QRectF(l.x - kCloudW / 2, l.y - kCloudH / 2, kCloudW, kCloudH);
}

QRectF GliderSky::effectRect(const Effect& e) const {
    switch (e.kind) {
        case Effect::Dust:
            return QRectF(e.x - 260, e.y - 130, 520, 170);
        case Effect::Firework:
            return QRectF(e.x - 150, e.y - 150, 300, 300);
        default:
            return QRectF(e.x - 130, e.y - 200, 260, 300);
    }
}

QRectF GliderSky::puffRect(int i) const {
    const double base = 150 + i * (kPuffLoop / kPuffs);
    double x = std::fmod(base - game_.scroll() * kPuffPace, kPuffLoop);
    if (x < -340) x += kPuffLoop;
    const double y = 230 + (i % 2) * 70 + (i % 3) * 18;
    return QRectF(x, y, 300, 120);
}

QRectF GliderSky::wordRect() const {
    return QRectF(300, 12, 1000, 88);
}

QRectF GliderSky::callRect() const {
    return QRectF(260, 330, 1080, 160);
}

int GliderSky::bandTop() const {
    return layers_.empty() ? height() : layers_.front().top;
}

// --- the scenery, once a size -----------------------------------------------------------

void GliderSky::resizeEvent(QResizeEvent*) {
    scale_ = std::min(width() / kWorldW, height() / kWorldH);
    origin_ = QPointF((width() - kWorldW * scale_) / 2, (height() - kWorldH * scale_) / 2);
    buildScene();
}

void GliderSky::buildScene() {
    if (width() <= 0 || height() <= 0) return;
    sky_ = QPixmap(size());
    sky_.fill(QColor(120, 190, 240));
    {
        QPainter p(&sky_);
        p.setRenderHint(QPainter::Antialiasing);
        QSvgRenderer back(appFile("images/hangglider-sky.svg"));
        // The drawing reaches well past the world on every side, for screens of another shape.
        if (back.isValid()) back.render(&p, toWidget(QRectF(-400, -300, 2400, 1500)));
    }
    // Each range is one tile as wide as the world, drawn again and again as it scrolls. The far
    // one carries the sky behind it, so that it is copied rather than blended.
    QSvgRenderer land(appFile("images/hangglider-land.svg"));
    const int tileW = std::max(1, int(std::lround(kTileW * scale_)));
    layers_.clear();
    const struct {
        const char* id;
        double top, pace;
        bool opaque;
    } ranges[] = {{"far", kFarTop, kFarPace, true},
                  {"hills", kHillsTop, kHillsPace, false},
                  {"ground", kGroundTop, 1.0, false}};
    for (const auto& r : ranges) {
        Layer layer;
        layer.factor = r.pace;
        layer.width = tileW;
        layer.top = int(std::lround(origin_.y() + r.top * scale_));
        const int h = std::max(1, height() - layer.top);
        QImage tile(tileW, h, QImage::Format_ARGB32_Premultiplied);
        tile.fill(r.opaque ? QColor(120, 190, 240) : QColor(Qt::transparent));
        {
            QPainter p(&tile);
            if (r.opaque) p.drawPixmap(QRect(0, 0, tileW, h), sky_, QRect(0, layer.top, 1, h));
            p.setRenderHint(QPainter::Antialiasing);
            if (land.isValid() && land.elementExists(r.id)) {
                // The world's part of the range; below it (a taller screen) its foot stretched.
                const double worldH = (kWorldH - r.top) * scale_;
                land.render(&p, r.id, QRectF(0, 0, tileW, std::max<double>(worldH, h)));
            }
        }
        // The first row from which the range hides everything behind it.
        int solid = h;
        while (solid > 0) {
            const auto* row = reinterpret_cast<const QRgb*>(tile.constScanLine(solid - 1));
            if (std::any_of(row, row + tileW, [](QRgb px) { return qAlpha(px) < 255; })) break;
            --solid;
        }
        layer.solid = layer.top + solid;
        if (solid > 0) layer.upper = QPixmap::fromImage(tile.copy(0, 0, tileW, solid));
        if (solid < h)
            layer.lower = QPixmap::fromImage(
                tile.copy(0, solid, tileW, h - solid).convertToFormat(QImage::Format_RGB32));
        layers_.push_back(std::move(layer));
    }

    QSvgRenderer art(appFile("images/hangglider-sprites.svg"));
    auto sprite = [&](const QString& id, QSizeF world) {
        return scene::spritePicture(art, id, (world * scale_).toSize());
    };
    glider_ = sprite("glider_0", QSizeF(kGliderW, kGliderH));
    cloud_ = sprite("cloud_0", QSizeF(kCloudW, kCloudH));
    puffs_.clear();
    for (int i = 0; i < 3; ++i) puffs_.push_back(sprite(QString("puff_%1").arg(i), {300, 120}));
    // A sparkle drawn once: the bursts only move and fade it.
    const int tw = std::max(4, int(40 * scale_));
    twinkle_ = QPixmap(tw, tw);
    twinkle_.fill(Qt::transparent);
    {
        QPainter p(&twinkle_);
        p.setRenderHint(QPainter::Antialiasing);
        scene::paintSparkle(p, QPointF(tw / 2.0, tw / 2.0), tw / 3.0, 0, 1);
    }
    letterCache_.clear();
    gliderTurns_.clear();
    wordPictureOf_.clear();
    callPictureOf_.clear();
    drawn_.clear();
    update();
}

const QPixmap& GliderSky::letterPicture(char letter) {
    const auto key = static_cast<unsigned char>(letter);
    auto it = letterCache_.find(key);
    if (it != letterCache_.end()) return it->second;
    QPixmap pm = cloud_;
    if (!pm.isNull()) {
        QPainter p(&pm);
        p.setRenderHint(QPainter::Antialiasing);
        paintOutlined(p, toQ(std::string(1, letter)), boldFont(58 * scale_),
                      QPointF(kCloudW / 2, kCloudH / 2 + 6) * scale_, QColor(30, 60, 140),
                      QColor(255, 255, 255), std::max(2.0, 6 * scale_));
    }
    return letterCache_[key] = pm;
}

// Where the word's `i`th tile stands on the plate.
QRectF GliderSky::tileRect(int i) const {
    const int n = std::max<int>(1, int(game_.word().size()));
    const QRectF plate = wordRect();
    const double step = std::min(62.0, 960.0 / n);
    const double tile = step * 0.9;
    const double x0 = plate.center().x() - step * n / 2;
    return QRectF(x0 + i * step + (step - tile) / 2, plate.center().y() - tile / 2, tile, tile);
}

bool GliderSky::nextLit() const {
    return game_.phase() == Phase::Ready || game_.phase() == Phase::Flying;
}

// The word on its plate: letters flown through in green, the rest waiting. The next letter is
// drawn lit over it, as it glows.
const QPixmap& GliderSky::wordPicture() {
    const QString state =
        QString("%1|%2|%3").arg(toQ(game_.word())).arg(game_.done()).arg(nextLit());
    if (state == wordPictureOf_) return wordPicture_;
    wordPictureOf_ = state;
    const QRectF box = toWidget(wordRect());
    wordPicture_ = QPixmap(box.size().toSize().expandedTo(QSize(1, 1)));
    wordPicture_.fill(Qt::transparent);
    QPainter p(&wordPicture_);
    p.setRenderHint(QPainter::Antialiasing);
    const std::string& word = game_.word();
    for (int i = 0; i < int(word.size()); ++i) {
        const QRectF r = toWidget(tileRect(i)).translated(-box.topLeft());
        const char c = word[i];
        if (!IsLetterOrDigit(c)) {
            if (c != ' ')
                paintOutlined(p, toQ(std::string(1, c)), boldFont(r.height() * 0.7), r.center(),
                              Qt::white, QColor(20, 40, 90), std::max(1.5, 4 * scale_));
            continue;
        }
        if (i == game_.done() && nextLit()) continue;
        scene::paintLetterTile(p, r, i < game_.done() ? QColor(60, 170, 80) : QColor(90, 115, 165),
                               toQ(std::string(1, c)).toUpper());
    }
    return wordPicture_;
}

void GliderSky::paintLit(QPainter& p, qint64 t) {
    const int i = game_.done();
    if (!nextLit() || i >= int(game_.word().size())) return;
    const double pulse = 0.5 + 0.5 * std::sin(((t / 90) % 12) * 2 * kPi / 12);
    const QRectF r = toWidget(tileRect(i));
    const double tile = r.height();
    p.setPen(Qt::NoPen);
    p.setBrush(scene::withAlpha(QColor(255, 230, 90), 0.35 + 0.35 * pulse));
    p.drawEllipse(r.center(), tile * (0.68 + 0.08 * pulse), tile * (0.68 + 0.08 * pulse));
    scene::paintLetterTile(p, r.translated(0, -tile * 0.06 * pulse), QColor(245, 140, 30),
                           toQ(std::string(1, game_.word()[i])).toUpper());
}

// --- what moves -------------------------------------------------------------------------

void GliderSky::step() {
    const qint64 t = now();
    std::map<int, QRect> cur;
    auto mark = [&](int key, const QRectF& world) {
        cur[key] = toWidget(world).toAlignedRect().adjusted(-2, -2, 2, 2);
    };
    // The glider noses up as it climbs and down as it dives, smoothly.
    const double y = game_.y();
    const double dy = lastY_ < 0 ? 0 : y - lastY_;
    lastY_ = y;
    const double target =
        game_.phase() == Phase::Lost ? 7.0 : std::clamp(dy * 2.6, -14.0, 14.0);
    pitch_ += (target - pitch_) * 0.18;
    mark(1, gliderRect());

    if (game_.scroll() != lastScroll_) {
        lastScroll_ = game_.scroll();
        cur[2] = QRect(0, bandTop(), width(), height() - bandTop());
        for (int i = 0; i < kPuffs; ++i) mark(10 + i, puffRect(i));
    } else if (drawn_.count(2)) {
        cur[2] = drawn_[2];  // the glider's shadow still moves over a landed field
    }
    const auto& letters = game_.letters();
    for (int i = 0; i < int(letters.size()); ++i) mark(100 + i, letterRect(letters[i]));

    std::erase_if(effects_, [&](const Effect& e) { return t - e.at > e.life; });
    // A won game goes on with fireworks over the mountains.
    if (finishAt_ >= 0 && won_) {
        const int due = int((t - finishAt_) / kFireworkEveryMs) + 1;
        for (int& made = fireworks_; made < due; ++made) {
            const double fx = 700 + std::fmod(made * 397.0, 800);
            const double fy = 220 + std::fmod(made * 151.0, 240);
            effects_.push_back(
                {Effect::Firework, fx, fy, t, {}, kFireworkColours[made % 5], 1100});
        }
    }
    for (int k = 0; k < int(effects_.size()); ++k) mark(2000 + k, effectRect(effects_[k]));

    const QString word =
        QString("%1|%2|%3").arg(toQ(game_.word())).arg(game_.done()).arg(int(game_.phase()));
    if (word != wordState_) {
        wordState_ = word;
        mark(3, wordRect());
    }
    if (nextLit() && (t / 90) != glowState_) {
        glowState_ = t / 90;
        const QRectF lit = tileRect(game_.done());
        mark(5, lit.adjusted(-lit.width() * 0.3, -lit.height() * 0.3, lit.width() * 0.3,
                             lit.height() * 0.3));
    }
    if (!call_.isEmpty() && t - callAt_ < 450) mark(4, callRect());

    for (auto& [key, was] : drawn_) {
        const auto n = cur.find(key);
        update(n == cur.end() ? was : was.united(n->second));
    }
    for (auto& [key, r] : cur)
        if (!drawn_.count(key)) update(r);
    drawn_ = std::move(cur);
    lastFrame_ = t;
}

// --- drawing ----------------------------------------------------------------------------

void GliderSky::paintLayer(QPainter& p, const Layer& layer, const QRect& clip, int limit) const {
    const int tileW = layer.width;
    if (tileW <= 0 || clip.bottom() < layer.top || clip.top() >= limit) return;
    const int shift = int(std::lround(std::fmod(game_.scroll() * layer.factor * scale_, tileW)));
    const struct {
        const QPixmap& part;
        int top;
    } parts[] = {{layer.upper, layer.top}, {layer.lower, layer.solid}};
    for (const auto& part : parts) {
        if (part.part.isNull()) continue;
        const QRect rows = QRect(0, part.top, width(), part.part.height())
                               .intersected(clip)
                               .intersected(QRect(0, 0, width(), limit));
        if (rows.isEmpty()) continue;
        for (int x = -shift; x < width(); x += tileW) {
            const QRect at(x, part.top, tileW, part.part.height());
            const QRect r = at.intersected(rows);
            if (!r.isEmpty()) p.drawPixmap(r, part.part, r.translated(-at.topLeft()));
        }
    }
}

void GliderSky::paintEvent(QPaintEvent* event) {
    QPainter p(this);
    if (sky_.isNull()) {
        p.fillRect(rect(), QColor(120, 190, 240));
        return;
    }
    const QRegion& region = event->region();
    const int band = bandTop();
    // The far range covers everything below its top, sky and all.
    for (const QRect& r : region) {
        const QRect above = r.intersected(QRect(0, 0, width(), band));
        if (!above.isEmpty()) p.drawPixmap(above, sky_, above);
    }
    // The scenery in as few copies as can be: while it scrolls its whole band is new anyway.
    // Each range only down to where a nearer one turns solid.
    const QRect scenery = region.intersected(QRect(0, band, width(), height() - band)).boundingRect();
    if (!scenery.isEmpty())
        for (std::size_t i = 0; i < layers_.size(); ++i)
            paintLayer(p, layers_[i], scenery,
                       i + 1 < layers_.size() ? layers_[i + 1].solid : height());
    p.setRenderHint(QPainter::Antialiasing);
    const qint64 t = now();
    auto visible = [&](const QRectF& world) {
        return region.intersects(toWidget(world).toAlignedRect());
    };

    for (int i = 0; i < kPuffs; ++i)
        if (!puffs_.empty() && visible(puffRect(i)))
            p.drawPixmap(toWidget(puffRect(i)).topLeft().toPoint(), puffs_[i % puffs_.size()]);

    // The glider's shadow on the field: smaller and fainter the higher it flies.
    if (region.intersects(QRect(0, band, width(), height() - band))) {
        const double h = std::clamp((kGroundY - game_.y()) / (kGroundY - kSkyTop), 0.0, 1.0);
        const QRectF sh = toWidget(QRectF(kGliderX - 90 + 40 * h, kGroundY + 18, 180 - 80 * h, 22));
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(20, 50, 20, int(110 - 70 * h)));
        p.drawEllipse(sh);
    }

    for (const Letter& l : game_.letters())
        if (visible(letterRect(l)))
            p.drawPixmap(toWidget(letterRect(l)).topLeft().toPoint(), letterPicture(l.letter));

    if (visible(gliderRect())) {
        if (game_.lifting()) paintThermal(p, t);
        paintGlider(p, t);
    }
    for (const Effect& e : effects_)
        if (visible(effectRect(e))) paintEffect(p, e, t);

    if (visible(wordRect()) && !game_.word().empty()) {
        p.drawPixmap(toWidget(wordRect()).topLeft().toPoint(), wordPicture());
        paintLit(p, t);
    }

    if (!call_.isEmpty() && visible(callRect())) {
        const QRectF box = toWidget(callRect());
        if (callPictureOf_ != call_) {
            QFont f = boldFont(box.height() * 0.5);
            while (f.pixelSize() > 8 &&
                   QFontMetricsF(f).horizontalAdvance(call_) > box.width() * 0.94)
                f.setPixelSize(f.pixelSize() - 2);
            callPicture_ = QPixmap(box.size().toSize().expandedTo(QSize(1, 1)));
            callPicture_.fill(Qt::transparent);
            QPainter cp(&callPicture_);
            cp.setRenderHint(QPainter::Antialiasing);
            paintOutlined(cp, call_, f, QPointF(callPicture_.rect().center()),
                          QColor(255, 236, 110), QColor(30, 60, 130), std::max(3.0, 9 * scale_));
            callPictureOf_ = call_;
        }
        // The call pops in.
        const double u = scene::easeOut((t - callAt_) / 450.0);
        const double k = 0.6 + 0.4 * u;
        p.save();
        p.setOpacity(scene::clamp01(u * 1.5));
        p.translate(box.center());
        p.scale(k, k);
        p.drawPixmap(QPointF(-box.width() / 2, -box.height() / 2), callPicture_);
        p.restore();
    }
}

void GliderSky::paintGlider(QPainter& p, qint64 t) {
    const QPointF at = toWidget(QRectF(kGliderX, game_.y(), 0, 0)).topLeft();
    // A gentle bob in the air; a landed glider lies still.
    const double bob = game_.phase() == Phase::Lost ? 0 : 3 * std::sin(t / 260.0) * scale_;
    const QPixmap& turned = gliderPicture(int(std::lround(pitch_ * 2)) * 5);
    p.drawPixmap((at + QPointF(-turned.width() / 2.0, -turned.height() / 2.0 + bob)).toPoint(),
                 turned);
}

// The glider turned to a tilt, made once for each half degree it takes.
const QPixmap& GliderSky::gliderPicture(int tenths) {
    auto it = gliderTurns_.find(tenths);
    if (it != gliderTurns_.end()) return it->second;
    const double side = std::hypot(glider_.width(), glider_.height()) + 4;
    const int edge = int(side);
    QPixmap pm(edge, edge);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.translate(side / 2, side / 2);
    p.rotate(tenths / 10.0);
    p.drawPixmap(QPointF(-glider_.width() / 2.0, -glider_.height() / 2.0), glider_);
    return gliderTurns_[tenths] = pm;
}

void GliderSky::paintTwinkle(QPainter& p, QPointF at) const {
    p.drawPixmap((at - QPointF(twinkle_.width() / 2.0, twinkle_.height() / 2.0)).toPoint(),
                 twinkle_);
}

// Warm air rising under the wings: wavy ribbons drifting up.
void GliderSky::paintThermal(QPainter& p, qint64 t) {
    const double s = scale_;
    p.save();
    p.setBrush(Qt::NoBrush);
    for (int k = 0; k < 4; ++k) {
        const double u = std::fmod(t / 700.0 + k * 0.25, 1.0);
        const double x = kGliderX - 75 + k * 50;
        const double y0 = game_.y() + 120 - u * 150;
        QPainterPath path;
        for (int j = 0; j <= 8; ++j) {
            const double yy = y0 - j * 6;
            const double xx = x + 7 * std::sin(j * 0.9 + t / 120.0 + k);
            const QPointF pt = toWidget(QRectF(xx, yy, 0, 0)).topLeft();
            if (j == 0)
                path.moveTo(pt);
            else
                path.lineTo(pt);
        }
        p.setPen(QPen(scene::withAlpha(QColor(255, 200, 120), 0.7 * std::sin(u * kPi)),
                      std::max(1.5, 4 * s), Qt::SolidLine, Qt::RoundCap));
        p.drawPath(path);
    }
    p.restore();
}

void GliderSky::paintEffect(QPainter& p, const Effect& e, qint64 t) {
    const double u = scene::clamp01(double(t - e.at) / e.life);
    const QPointF c = toWidget(QRectF(e.x, e.y, 0, 0)).topLeft();
    const double s = scale_;
    p.save();
    p.setPen(Qt::NoPen);
    switch (e.kind) {
        case Effect::Sparkle:
            p.setOpacity(1 - u);
            for (int k = 0; k < 10; ++k) {
                const double a = k * 2 * kPi / 10 + u;
                const double r = (20 + 90 * scene::easeOut(u)) * s;
                paintTwinkle(p, c + QPointF(std::cos(a) * r, std::sin(a) * r));
            }
            p.setOpacity(1);
            break;
        case Effect::Puff:
            for (int k = 0; k < 6; ++k) {
                const double a = k * 2 * kPi / 6;
                const double r = (15 + 50 * scene::easeOut(u)) * s;
                p.setBrush(scene::withAlpha(e.colour, 0.75 * (1 - u)));
                p.drawEllipse(c + QPointF(std::cos(a) * r, std::sin(a) * r * 0.7),
                              (26 + 14 * u) * s, (20 + 10 * u) * s);
            }
            break;
        case Effect::Dust:
            for (int k = 0; k < 9; ++k) {
                const double dir = k < 5 ? -1 : 1;
                const double x = dir * (30 + 200 * scene::easeOut(u) * (0.4 + 0.15 * (k % 5)));
                const double y = -20 - 70 * std::sin(u * kPi) * (0.5 + 0.1 * (k % 4));
                p.setBrush(scene::withAlpha(e.colour, 0.65 * (1 - u)));
                p.drawEllipse(c + QPointF(x, y) * s, (24 + 30 * u) * s, (18 + 20 * u) * s);
            }
            break;
        case Effect::Firework:
            for (int k = 0; k < 14; ++k) {
                const double a = k * 2 * kPi / 14;
                const double r = 120 * scene::easeOut(u) * s;
                p.setBrush(scene::withAlpha(e.colour, 1 - u));
                p.drawEllipse(c + QPointF(std::cos(a) * r, std::sin(a) * r + 30 * u * u * s),
                              5 * s, 5 * s);
            }
            p.setOpacity(1 - u);
            paintTwinkle(p, c);
            p.setOpacity(1);
            break;
    }
    if (!e.label.isNull()) {
        p.setOpacity(1 - u * u);
        p.drawPixmap(c - QPointF(e.label.width() / 2.0, e.label.height() / 2.0 + 130 * u * s),
                     e.label);
    }
    p.restore();
}

}  // namespace wm
