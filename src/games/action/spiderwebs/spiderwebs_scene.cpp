#include "games/action/spiderwebs/spiderwebs_scene.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>

#include "core/shared_state.h"
#include "platform/scene_kit.h"
#include "platform/services.h"
#include "platform/text.h"
#include "platform/ticker.h"

namespace wm {

using namespace spiderwebs;

namespace {
constexpr double kPi = 3.14159265358979;
// The web: its hub and its half-widths, as shares of the scene. They leave the sign above it
// and the call's plate below it clear.
constexpr double kHubX = 0.5, kHubY = 0.565, kWebRx = 0.37, kWebRy = 0.335;
constexpr int kMinSpokes = 16;
enum TagLook { Plain, Eaten, Shown, Free };

QFont boldFont(double px) {
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(std::max(8, int(px)));
    return f;
}

QPixmap spriteOf(QSvgRenderer& art, const char* id, QSize size) {
    QPixmap pm(size.expandedTo(QSize(1, 1)));
    pm.fill(Qt::transparent);
    if (art.isValid() && art.elementExists(id)) {
        QPainter p(&pm);
        p.setRenderHint(QPainter::Antialiasing);
        art.render(&p, id, QRectF(QPointF(0, 0), QSizeF(size)));
    }
    return pm;
}

// A steady "random" in [0, 1) for where the dew hangs, so the web looks the same every time.
double dew(int a, int b) {
    const unsigned h = unsigned(a * 73856093) ^ unsigned(b * 19349663);
    return double((h * 2654435761u) >> 8 & 0xFFFF) / 65536.0;
}
}  // namespace

WebScene::WebScene(QWidget* parent)
    : QWidget(parent), art_(std::make_unique<QSvgRenderer>(appFile("images/spider-sprites.svg"))) {
    setObjectName("WebScene");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

WebScene::~WebScene() = default;

qint64 WebScene::now() const {
    return Ticker::get().now() - born_;
}

int WebScene::flies() const {
    return game_ ? int(game_->flies().size()) : 0;
}

// --- where things are -------------------------------------------------------------------

QPointF WebScene::hub() const {
    return QPointF(width() * kHubX, height() * kHubY);
}

double WebScene::flyAngle(int fly) const {
    // Round the web from the top, clockwise; no fly hangs straight under the sign.
    const int n = std::max(1, flies());
    return fly * 2 * kPi / n - kPi / 2 + kPi / n;
}

double WebScene::flyRadius(int fly) const {
    // A crowded web hangs its flies in two rings, so that the tags have room.
    if (flies() <= 6) return 0.8;
    return fly % 2 == 0 ? 0.87 : 0.58;
}

QPointF WebScene::flyAt(int fly) const {
    const double a = flyAngle(fly), r = flyRadius(fly);
    return hub() + QPointF(std::cos(a) * r * width() * kWebRx, std::sin(a) * r * height() * kWebRy);
}

QSizeF WebScene::flySize() const {
    const double w = std::min(width() * 0.058, height() * 0.095);
    return QSizeF(w, w * 0.82);
}

QSizeF WebScene::spiderSize() const {
    const double w = std::min(width() * 0.085, height() * 0.14);
    return QSizeF(w, w);
}

QRectF WebScene::tagRect(int fly) const {
    if (fly < 0 || fly >= int(tags_.size())) return {};
    const QSizeF size = tags_[fly].deviceIndependentSize();
    const QPointF at = flyAt(fly);
    return QRectF(at.x() - size.width() / 2, at.y() + flySize().height() * 0.42, size.width(),
                  size.height());
}

QRectF WebScene::pickRect(int fly) const {
    const QSizeF fs = flySize();
    const QRectF body(flyAt(fly) - QPointF(fs.width() * 0.6, fs.height() * 0.6), fs * 1.2);
    return body.united(tagRect(fly));
}

void WebScene::buildPath() {
    path_.clear();
    along_.clear();
    if (!game_ || game_->round() <= 0 || width() <= 0) return;
    // The spider never heads straight for its fly, or the pupil could follow it rather than
    // read: out along another spoke, round the web on a ring thread, then out to the fly. Where
    // it sets off and which way round it goes change from round to round.
    const int fly = game_->answer();
    const double target = flyAngle(fly);
    const int turn = game_->round() % 2 == 0 ? 1 : -1;
    const double away = kPi * (0.55 + 0.1 * ((game_->round() * 3 + fly) % 5));
    const double start = target + turn * away;
    const double ring = 0.316;  // one of the inner turns of the spiral
    auto onRing = [&](double a) {
        return hub() + QPointF(std::cos(a) * ring * width() * kWebRx,
                               std::sin(a) * ring * height() * kWebRy);
    };
    path_.push_back(hub());
    const int steps = std::max(2, int(away / (kPi / 40)));
    for (int k = 0; k <= steps; ++k) path_.push_back(onRing(start - turn * away * k / steps));
    const QPointF to = flyAt(fly);
    const QPointF d = to - path_.back();
    const double len = std::max(1.0, std::hypot(d.x(), d.y()));
    // It stops with its jaws at the fly, not on top of it.
    path_.push_back(to - d / len * flySize().width() * 0.55);
    along_.push_back(0);
    for (std::size_t i = 1; i < path_.size(); ++i) {
        const QPointF step = path_[i] - path_[i - 1];
        along_.push_back(along_.back() + std::hypot(step.x(), step.y()));
    }
}

QPointF WebScene::spiderAt(double* heading) const {
    if (path_.size() < 2) {
        if (heading) *heading = -90;
        return hub();
    }
    const double want = scene::clamp01(game_ ? game_->progress() : 0) * along_.back();
    std::size_t i = 1;
    while (i + 1 < path_.size() && along_[i] < want) ++i;
    const QPointF a = path_[i - 1], b = path_[i];
    const double seg = std::max(1e-9, along_[i] - along_[i - 1]);
    if (heading) *heading = std::atan2(b.y() - a.y(), b.x() - a.x()) * 180 / kPi;
    return a + (b - a) * scene::clamp01((want - along_[i - 1]) / seg);
}

QRect WebScene::clueRect() const {
    return QRect(int(width() * 0.2), int(height() * 0.012), int(width() * 0.6),
                 int(height() * 0.175));
}

QRect WebScene::clueTextRect() const {
    // The board of the sign, inside its frame and below the nails.
    const QRect sign = clueRect();
    return sign.adjusted(sign.width() / 14, sign.height() * 28 / 100, -sign.width() / 14,
                         -sign.height() * 13 / 100);
}

QRect WebScene::plateRect(int plate, int plateHeight) const {
    // Two plates each side of the sign, in the sky's corners.
    const int w = width() * 17 / 100, margin = width() * 15 / 1000;
    const int x = plate < 2 ? margin : width() - margin - w;
    const int y = height() * 2 / 100 + (plate % 2) * (plateHeight + height() / 100);
    return QRect(x, y, w, plateHeight);
}

QRect WebScene::callRect() const {
    return QRect(int(width() * 0.22), int(height() * 0.925), int(width() * 0.56),
                 int(height() * 0.065));
}

int WebScene::flyUnder(QPointF at) const {
    int best = -1;
    double bestD = 1e18;
    for (int i = 0; i < flies(); ++i) {
        if (game_->flies()[i].eaten || !pickRect(i).contains(at)) continue;
        const QPointF d = at - flyAt(i);
        const double dd = d.x() * d.x() + d.y() * d.y();
        if (dd < bestD) {
            bestD = dd;
            best = i;
        }
    }
    return best;
}

// --- moments ------------------------------------------------------------------------------

void WebScene::newRound() {
    roundAt_ = now();
    caughtAt_ = -1;
    freedFly_ = -1;
    finale_ = 0;
    effects_.clear();
    // A new level hangs another number of flies: the web gets spokes for them.
    if (flies() != builtFor_) buildScene();
    buildTags();
    buildPath();
    update();
}

void WebScene::eaten(int fly) {
    effects_.push_back({fly, now(), Effect::Wrap, {}});
    effects_.push_back({fly, now(), Effect::Pop, QString("-%1").arg(kWrongCost)});
    if (fly >= 0 && fly < int(tags_.size())) {
        update(tagRect(fly).toAlignedRect());
        tags_[fly] =
            tagPicture(toQ(game_->flies()[fly].word), Eaten, tags_[fly].deviceIndependentSize());
    }
}

void WebScene::freed(int fly, int points) {
    freedFly_ = fly;
    effects_.push_back({fly, now(), Effect::Escape, {}});
    effects_.push_back({fly, now(), Effect::Pop, QString("+%1").arg(points)});
    if (fly >= 0 && fly < int(tags_.size())) {
        tags_[fly] =
            tagPicture(toQ(game_->flies()[fly].word), Free, tags_[fly].deviceIndependentSize());
        update(tagRect(fly).toAlignedRect());
    }
}

void WebScene::caught() {
    caughtAt_ = now();
    const int fly = game_ ? game_->answer() : -1;
    if (fly >= 0 && fly < int(tags_.size())) {
        tags_[fly] =
            tagPicture(toQ(game_->flies()[fly].word), Shown, tags_[fly].deviceIndependentSize());
        update(pickRect(fly).toAlignedRect().adjusted(-8, -8, 8, 8));
    }
}

void WebScene::finale(bool won) {
    finale_ = won ? 1 : -1;
    finaleAt_ = now();
}

void WebScene::setCall(const QString& text) {
    if (text == call_) return;
    call_ = text;
    callPicture_ = QPixmap();
    const QRect r = callRect();
    if (!text.isEmpty() && r.width() > 0 && r.height() > 0) {
        callPicture_ = QPixmap(r.size());
        callPicture_.fill(Qt::transparent);
        QPainter p(&callPicture_);
        p.setRenderHint(QPainter::Antialiasing);
        QFont f = boldFont(r.height() * 0.5);
        while (f.pixelSize() > 8 && QFontMetrics(f).horizontalAdvance(text) > r.width() * 0.94)
            f.setPixelSize(f.pixelSize() - 1);
        const double w =
            std::min<double>(r.width(), QFontMetrics(f).horizontalAdvance(text) + r.height() * 1.2);
        const QRectF plate((r.width() - w) / 2, 1, w, r.height() - 2);
        p.setPen(QPen(QColor(255, 236, 170, 170), 2));
        p.setBrush(QColor(24, 18, 52, 215));
        p.drawRoundedRect(plate, plate.height() / 2, plate.height() / 2);
        p.setFont(f);
        p.setPen(QColor(255, 244, 200));
        p.drawText(plate, Qt::AlignCenter, text);
    }
    update(r);
}

// --- pictures -----------------------------------------------------------------------------

void WebScene::resizeEvent(QResizeEvent*) {
    buildScene();
    buildTags();
    buildPath();
    const QString call = call_;
    call_.clear();
    setCall(call);
}

void WebScene::buildScene() {
    if (width() <= 0 || height() <= 0) return;
    builtFor_ = flies();
    const double W = width(), H = height();
    QSvgRenderer back(appFile("images/spider-garden.svg"));
    scene_ = scene::coverPicture(back, size(), QColor(16, 20, 48));
    QPainter p(&scene_);
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF c = hub();
    const double rx = W * kWebRx, ry = H * kWebRy;
    auto onWeb = [&](double angle, double r) {
        return c + QPointF(std::cos(angle) * r * rx, std::sin(angle) * r * ry);
    };
    // The frame threads, out to the branches and the stems the web hangs from.
    const double line = std::max(1.0, H * 0.0021);
    p.setPen(QPen(QColor(230, 240, 255, 120), line));
    const std::pair<double, QPointF> anchors[] = {
        {-2.45, {W * 0.06, H * 0.2}}, {-0.72, {W * 0.94, H * 0.19}}, {0.15, {W, H * 0.62}},
        {2.95, {0, H * 0.64}},        {1.25, {W * 0.62, H}},         {1.9, {W * 0.36, H}}};
    for (const auto& [angle, to] : anchors) p.drawLine(onWeb(angle, 1.0), to);
    // The spokes: every fly hangs on one, with more between.
    const int n = std::max(1, flies());
    const int spokes = n * ((kMinSpokes + n - 1) / n);
    const double first = -kPi / 2 + kPi / n;
    p.setPen(QPen(QColor(235, 242, 255, 170), line));
    for (int j = 0; j < spokes; ++j) p.drawLine(c, onWeb(first + j * 2 * kPi / spokes, 1.03));
    // The sticky spiral, sagging a little between the spokes, beaded with dew.
    p.setPen(QPen(QColor(220, 232, 255, 120), std::max(1.0, line * 0.7)));
    int ring = 0;
    for (double r = 0.13; r <= 1.0; r += 0.062, ++ring) {
        QPainterPath path;
        for (int j = 0; j <= spokes; ++j) {
            const double a0 = first + (j - 1) * 2 * kPi / spokes, a1 = first + j * 2 * kPi / spokes;
            const QPointF to = onWeb(a1, r);
            if (j == 0) {
                path.moveTo(to);
                continue;
            }
            path.quadTo(onWeb((a0 + a1) / 2, r * 0.93), to);
        }
        p.setBrush(Qt::NoBrush);
        p.drawPath(path);
    }
    const double drop = std::max(1.5, H * 0.0034);
    p.setPen(Qt::NoPen);
    for (int k = 0; k < ring; ++k) {
        for (int j = 0; j < spokes; ++j) {
            if (dew(k, j) > 0.32) continue;
            const QPointF at = onWeb(first + j * 2 * kPi / spokes, 0.13 + k * 0.062);
            p.setBrush(QColor(200, 225, 255, 90));
            p.drawEllipse(at, drop * 1.6, drop * 1.6);
            p.setBrush(QColor(255, 255, 255, 220));
            p.drawEllipse(at, drop * 0.7, drop * 0.7);
        }
    }
    p.setBrush(QColor(240, 245, 255, 200));
    p.drawEllipse(c, H * 0.012, H * 0.012);
    if (art_->isValid() && art_->elementExists("sign_0")) art_->render(&p, "sign_0", clueRect());
    p.end();

    const QSizeF fs = flySize(), ss = spiderSize();
    fly_[0] = spriteOf(*art_, "fly_0", fs.toSize());
    fly_[1] = spriteOf(*art_, "fly_1", fs.toSize());
    wrap_ = spriteOf(*art_, "wrap_0", (fs * 1.1).toSize());
    spider_[0] = spriteOf(*art_, "spider_0", ss.toSize());
    spider_[1] = spriteOf(*art_, "spider_1", ss.toSize());
    update();
}

QPixmap WebScene::tagPicture(const QString& word, int look, const QSizeF& size) const {
    QPixmap pm(size.toSize().expandedTo(QSize(1, 1)));
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF r = QRectF(QPointF(0, 0), size).adjusted(1, 1, -1, -1);
    static const QColor fills[] = {QColor(255, 250, 232, 235), QColor(120, 120, 140, 150),
                                   QColor(255, 214, 92, 245), QColor(190, 245, 170, 240)};
    static const QColor inks[] = {QColor(40, 30, 70), QColor(60, 60, 75), QColor(140, 20, 20),
                                  QColor(20, 90, 30)};
    p.setPen(QPen(look == Shown ? QColor(190, 30, 30) : QColor(255, 255, 255, 160),
                  look == Shown ? 3 : 1.5));
    p.setBrush(fills[look]);
    p.drawRoundedRect(r, r.height() / 2.6, r.height() / 2.6);
    p.setFont(tagFont_);
    p.setPen(inks[look]);
    p.drawText(r, Qt::AlignCenter, word);
    if (look == Eaten) {
        p.setPen(QPen(QColor(60, 60, 75, 200), 2));
        const double w = QFontMetrics(tagFont_).horizontalAdvance(word) / 2.0 + 2;
        p.drawLine(QPointF(r.center().x() - w, r.center().y()),
                   QPointF(r.center().x() + w, r.center().y()));
    }
    return pm;
}

void WebScene::buildTags() {
    tags_.clear();
    if (!game_ || width() <= 0) return;
    // One size for every tag: the longest word fits the room a fly has beside its neighbours.
    const int n = flies();
    const double room = width() * (n <= 6 ? 0.2 : n <= 9 ? 0.16 : 0.135);
    QFont f = boldFont(std::min(height() * 0.03, width() * 0.017));
    for (const Fly& fly : game_->flies())
        while (f.pixelSize() > 9 && QFontMetrics(f).horizontalAdvance(toQ(fly.word)) > room - 16)
            f.setPixelSize(f.pixelSize() - 1);
    tagFont_ = f;
    const QFontMetrics fm(f);
    for (int i = 0; i < n; ++i) {
        const QString word = toQ(game_->flies()[i].word);
        const QSizeF size(fm.horizontalAdvance(word) + fm.height() * 1.1, fm.height() * 1.45);
        tags_.push_back(tagPicture(word, game_->flies()[i].eaten ? Eaten : Plain, size));
    }
    fliesDrawn_.assign(n, QRectF());
}

// --- frames -------------------------------------------------------------------------------

QRectF WebScene::flyDrawRect(int fly, qint64 t) const {
    const QSizeF fs = flySize();
    // A trapped fly struggles in the threads.
    const double jig = std::sin(t / 41.0 + fly * 2.3) * fs.width() * 0.05;
    const QPointF at = flyAt(fly) + QPointF(jig, std::cos(t / 57.0 + fly) * fs.height() * 0.03);
    return QRectF(at - QPointF(fs.width() / 2, fs.height() / 2), fs);
}

QRectF WebScene::spiderRect() const {
    const QSizeF ss = spiderSize() * 1.3;
    return QRectF(spiderAt() - QPointF(ss.width() / 2, ss.height() / 2), ss);
}

QRectF WebScene::effectRect(const Effect& e, qint64 t) const {
    const QPointF at = flyAt(e.fly);
    const double u = double(t - e.t0);
    const QSizeF fs = flySize();
    switch (e.kind) {
        case Effect::Wrap:
            return QRectF(at - QPointF(fs.width() * 0.7, fs.height() * 0.7), fs * 1.4);
        case Effect::Escape: {
            const double k = scene::easeIn(u / kEscapeMs);
            const QPointF to =
                at + QPointF(std::sin(u / 90.0) * fs.width() * 0.6, -k * height() * 0.7);
            return QRectF(to - QPointF(fs.width() * 1.2, fs.height() * 1.2), fs * 2.4)
                .united(QRectF(at - QPointF(fs.width(), fs.height()), fs * 2));
        }
        case Effect::Pop: {
            const double rise = scene::easeOut(u / kPopMs) * height() * 0.07;
            const double w = fs.width() * 2.4, h = fs.height() * 1.1;
            return QRectF(at.x() - w / 2, at.y() - fs.height() - rise - h / 2, w, h);
        }
    }
    return {};
}

void WebScene::paintEffect(QPainter& p, const Effect& e, qint64 t) {
    const double u = double(t - e.t0);
    const QRectF r = effectRect(e, t);
    switch (e.kind) {
        case Effect::Wrap: {
            // Wrapped in silk, then gone.
            const double grow = scene::easeOut(u / 250.0);
            p.setOpacity(1 - scene::clamp01((u - kWrapMs * 0.5) / (kWrapMs * 0.5)));
            const QSizeF s = QSizeF(wrap_.deviceIndependentSize()) * (0.5 + 0.5 * grow);
            p.drawPixmap(QRectF(r.center() - QPointF(s.width() / 2, s.height() / 2), s), wrap_,
                         QRectF(wrap_.rect()));
            p.setOpacity(1);
            break;
        }
        case Effect::Escape: {
            const QSizeF fs = flySize();
            const double k = scene::easeIn(u / kEscapeMs);
            const QPointF at =
                flyAt(e.fly) + QPointF(std::sin(u / 90.0) * fs.width() * 0.6, -k * height() * 0.7);
            for (int s = 0; s < 4; ++s)
                scene::paintSparkle(p,
                                    at + QPointF(std::sin(s * 1.7 + u / 120.0) * fs.width() * 0.7,
                                                 fs.height() * (0.5 + s * 0.2)),
                                    fs.width() * 0.18, u / 300.0 + s, 1 - u / kEscapeMs);
            p.drawPixmap(QRectF(at - QPointF(fs.width() / 2, fs.height() / 2), fs),
                         fly_[(t / 40) % 2], QRectF(fly_[0].rect()));
            break;
        }
        case Effect::Pop: {
            p.setOpacity(1 - scene::clamp01((u - kPopMs * 0.6) / (kPopMs * 0.4)));
            p.setFont(boldFont(r.height() * 0.7));
            const bool gain = e.text.startsWith('+');
            p.setPen(QColor(20, 12, 40, 200));
            p.drawText(r.translated(2, 2), Qt::AlignCenter, e.text);
            p.setPen(gain ? QColor(150, 255, 140) : QColor(255, 120, 110));
            p.drawText(r, Qt::AlignCenter, e.text);
            p.setOpacity(1);
            break;
        }
    }
}

void WebScene::paintSpider(QPainter& p, qint64 t) {
    if (!game_ || game_->round() <= 0) return;
    double heading = -90;
    const QPointF at = spiderAt(&heading);
    // Its dragline back along the threads it walked.
    p.setPen(QPen(QColor(245, 248, 255, 200), std::max(1.0, height() * 0.0018)));
    QPolygonF walked;
    const double done = scene::clamp01(game_->progress()) * (along_.empty() ? 0 : along_.back());
    for (std::size_t i = 0; i < path_.size() && along_[i] < done; ++i) walked << path_[i];
    walked << at;
    p.drawPolyline(walked);
    const double angle = heading + 90;
    const bool walking = game_->phase() == Phase::Crawling;
    const int frame = walking ? int(t / 110 % 2) : 0;
    // Waiting at the hub it bobs on its thread; at its fly it pounces.
    double scale = 1;
    if (game_->phase() == Phase::Ready) scale = 1 + 0.04 * std::sin(t / 160.0);
    if (caughtAt_ >= 0)
        scale = 1 + 0.12 * std::max(0.0, std::sin((t - caughtAt_) / 70.0)) *
                        (1 - scene::clamp01((t - caughtAt_) / 600.0));
    const QSizeF ss = spiderSize() * scale;
    p.save();
    p.translate(at);
    p.rotate(angle);
    p.drawPixmap(QRectF(-ss.width() / 2, -ss.height() / 2, ss.width(), ss.height()), spider_[frame],
                 QRectF(spider_[0].rect()));
    p.restore();
}

void WebScene::step() {
    const qint64 t = now();
    effects_.erase(std::remove_if(effects_.begin(), effects_.end(),
                                  [&](const Effect& e) {
                                      const int life = e.kind == Effect::Wrap     ? kWrapMs
                                                       : e.kind == Effect::Escape ? kEscapeMs
                                                                                  : kPopMs;
                                      return t - e.t0 > life;
                                  }),
                   effects_.end());
    QRegion dirty;
    auto mark = [&](QRectF& drawn, const QRectF& next) {
        dirty += drawn.toAlignedRect().adjusted(-2, -2, 2, 2);
        dirty += next.toAlignedRect().adjusted(-2, -2, 2, 2);
        drawn = next;
    };
    for (int i = 0; i < flies() && i < int(fliesDrawn_.size()); ++i) {
        const bool there = !game_->flies()[i].eaten && i != freedFly_;
        mark(fliesDrawn_[i], there ? flyDrawRect(i, t) : QRectF());
    }
    mark(spiderDrawn_, spiderRect());
    QRectF fx;
    for (const Effect& e : effects_) fx |= effectRect(e, t);
    mark(effectsDrawn_, fx);
    if (finale_ > 0) {
        const QPointF c = hub();
        const QRectF ring(c.x() - width() * kWebRx, c.y() - height() * kWebRy, width() * kWebRx * 2,
                          height() * kWebRy * 2);
        mark(finaleDrawn_, ring.adjusted(-30, -30, 30, 30));
    }
    if (!dirty.isEmpty()) update(dirty);
}

void WebScene::paintEvent(QPaintEvent* event) {
    QPainter p(this);
    // The scattered flies make a region of many small pieces: only those are copied.
    for (const QRect& r : event->region()) p.drawPixmap(r, scene_, r);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const qint64 t = now();
    for (int i = 0; i < int(tags_.size()); ++i) {
        const QRectF tr = tagRect(i);
        if (event->region().intersects(tr.toAlignedRect())) p.drawPixmap(tr.topLeft(), tags_[i]);
    }
    for (int i = 0; i < flies() && i < int(tags_.size()); ++i) {
        if (game_->flies()[i].eaten || i == freedFly_) continue;
        if (caughtAt_ >= 0 && i == game_->answer()) {
            const QSizeF s = wrap_.deviceIndependentSize();
            p.drawPixmap(QRectF(flyAt(i) - QPointF(s.width() / 2, s.height() / 2), s), wrap_,
                         QRectF(wrap_.rect()));
            continue;
        }
        const QRectF r = flyDrawRect(i, t);
        if (!event->region().intersects(r.toAlignedRect().adjusted(-2, -2, 2, 2))) continue;
        p.drawPixmap(r.topLeft().toPoint(), fly_[(t / 50 + i) % 2]);
    }
    // Over its fly, the spider pounces on it.
    paintSpider(p, t);
    for (const Effect& e : effects_) paintEffect(p, e, t);
    if (finale_ > 0) {
        // Fireflies dance round the web.
        const double u = double(t - finaleAt_);
        const QPointF c = hub();
        for (int k = 0; k < 14; ++k) {
            const double a = k * 2 * kPi / 14 + u / 900.0;
            const double r = 0.75 + 0.2 * std::sin(u / 400.0 + k);
            scene::paintSparkle(p,
                                c + QPointF(std::cos(a) * r * width() * kWebRx,
                                            std::sin(a) * r * height() * kWebRy),
                                height() * 0.02, u / 250.0 + k, 0.9);
        }
    }
    if (!callPicture_.isNull() && event->region().intersects(callRect()))
        p.drawPixmap(callRect().topLeft(), callPicture_);
}

void WebScene::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !game_) return;
    const int fly = flyUnder(event->position());
    if (fly >= 0 && onPick) onPick(fly);
}

}  // namespace wm
