#include "games/action/bridge_out/bridge_out_scene.h"

#include <QFontMetrics>
#include <QMouseEvent>
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

using namespace bridge_out;

namespace {
constexpr double kPi = 3.14159265358979;
// Where the valley's parts are, as shares of the scene: they match the drawing.
constexpr double kSpanLeft = 0.30, kSpanRight = 0.92;  // the bridge between the cliffs
constexpr double kDeckTop = 0.50, kDeckHeight = 0.085;
constexpr double kTruckWidth = 0.13, kTruckStart = 0.13;  // the truck's front at the start

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

// A letter carved into a board: a light edge below, the letter dark above it.
void paintCarved(QPainter& p, const QRectF& r, const QString& letter, const QColor& ink) {
    QFont f = boldFont(std::min(r.width() * 0.72, r.height() * 0.62));
    p.setFont(f);
    p.setPen(QColor(255, 240, 200, 150));
    p.drawText(r.translated(0, std::max(1.0, r.height() * 0.02)), Qt::AlignCenter, letter);
    p.setPen(ink);
    p.drawText(r, Qt::AlignCenter, letter);
}
}  // namespace

BridgeScene::BridgeScene(QWidget* parent) : QWidget(parent) {
    setObjectName("BridgeScene");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(false);
}

qint64 BridgeScene::now() const {
    return Ticker::get().now() - born_;
}

// --- where things are -------------------------------------------------------------------

double BridgeScene::deckTop() const {
    return height() * kDeckTop;
}
double BridgeScene::deckHeight() const {
    return height() * kDeckHeight;
}
double BridgeScene::wordLeft() const {
    return width() * (kSpanLeft + 0.01);
}
double BridgeScene::plankWidth() const {
    const int n = game_ ? std::max(1, Len(game_->word())) : 1;
    return std::min(width() * (kSpanRight - kSpanLeft - 0.02) / n, width() * 0.07);
}
double BridgeScene::laneY(int lane) const {
    return height() * (lane == 0 ? 0.775 : 0.895);
}
QSizeF BridgeScene::riverPlankSize(int lane) const {
    const double s = lane == 0 ? 0.86 : 1.0;
    return QSizeF(width() * kPlankLength / kRiverLength * s, height() * 0.085 * s);
}
QRect BridgeScene::riverBand() const {
    // Where the planks float, bobbing included: the rest of the river stands still.
    const int top = int(laneY(0) - riverPlankSize(0).height() * 0.6);
    const int bottom = int(laneY(1) + riverPlankSize(1).height() * 0.6) + 2;
    return QRect(0, top, width(), bottom - top);
}
QRect BridgeScene::callRect() const {
    return QRect(int(width() * 0.22), int(height() * 0.19), int(width() * 0.56),
                 int(height() * 0.14));
}
QRect BridgeScene::clueRect() const {
    return QRect(int(width() * 0.22), int(height() * 0.012), int(width() * 0.56),
                 int(height() * 0.16));
}

QRectF BridgeScene::gapRect(int i) const {
    const double pw = plankWidth();
    return QRectF(wordLeft() + i * pw, deckTop(), pw, deckHeight());
}

QRectF BridgeScene::plankRect(const Plank& p) const {
    if (p.id == held_) {
        const QSizeF size = riverPlankSize(1);
        return QRectF(holdAt_ - grip_ - QPointF(size.width() / 2, size.height() / 2), size);
    }
    const QSizeF size = riverPlankSize(p.lane);
    // Planks bob on the current, each to its own beat.
    const double bob = std::sin(now() / 420.0 + p.id * 1.7) * height() * 0.006;
    const QPointF c(p.x / kRiverLength * width(), laneY(p.lane) + bob);
    return QRectF(c - QPointF(size.width() / 2, size.height() / 2), size);
}

QRectF BridgeScene::truckRect() const {
    const double w = width() * kTruckWidth, h = w * 0.6;
    const double start = width() * kTruckStart, stop = wordLeft() - width() * 0.004;
    double front = start;
    if (game_ && game_->road() > 0)
        front = scene::lerp(start, stop, game_->truck() / game_->road());
    const qint64 t = now();
    if (crossAt_ >= 0) {
        const double u = scene::smooth(double(t - crossAt_) / kCrossMs * 1.3);
        front = scene::lerp(front, width() + w * 1.1, u);
    } else if (stopAt_ >= 0 && t - stopAt_ < 700) {
        front += std::sin((t - stopAt_) / 700.0 * 8 * kPi) * w * 0.012;  // the sudden stop
    }
    // A little bounce on the road.
    const double bounce = std::fabs(std::sin(t / 160.0)) * h * 0.02;
    return QRectF(front - w, deckTop() - h - bounce + h * 0.02, w, h);
}

int BridgeScene::gapAt(QPointF at) const {
    if (!game_) return -1;
    int best = -1;
    double bestD = 1e18;
    for (int i = 0; i < Len(game_->word()); ++i) {
        if (!game_->isGap(i)) continue;
        const QRectF r = gapRect(i);
        const QRectF near =
            r.adjusted(-r.width() * 0.35, -r.height() * 0.9, r.width() * 0.35, r.height() * 0.9);
        if (!near.contains(at)) continue;
        const double d = std::hypot(at.x() - r.center().x(), at.y() - r.center().y());
        if (d < bestD) {
            bestD = d;
            best = i;
        }
    }
    return best;
}

double BridgeScene::riverXAt(double px) const {
    return width() > 0 ? px / width() * kRiverLength : 0;
}

// --- what happens -----------------------------------------------------------------------

void BridgeScene::newWord() {
    stopAt_ = crossAt_ = -1;
    wordAt_ = now();
    held_ = 0;
    cheer_ = 0;
    effects_.clear();
    if (width() > 0 && height() > 0) buildDeck();
    update();
}

void BridgeScene::splash(double riverX, int lane) {
    effects_.push_back({QPointF(riverX / kRiverLength * width(), laneY(lane)), now(), false});
}

void BridgeScene::locked(int gap) {
    effects_.push_back({gapRect(gap).center(), now(), true});
    update(gapRect(gap).toAlignedRect().adjusted(-4, -4, 4, 4));
}

void BridgeScene::crossing() {
    crossAt_ = now();
    update(QRect(0, 0, width(), int(deckTop() + deckHeight()) + 4));
}

void BridgeScene::stopped() {
    stopAt_ = now();
    held_ = 0;
    update(QRect(0, 0, width(), int(deckTop() + deckHeight()) + 4));
}

void BridgeScene::setCall(const QString& text, int holdMs) {
    call_ = text;
    callAt_ = now();
    callHold_ = holdMs;
    update(callRect());
}

void BridgeScene::cheer(bool won) {
    cheer_ = won ? 1 : -1;
    cheerAt_ = now();
}

void BridgeScene::step() {
    const qint64 t = now();
    if (held_ && game_) {
        const Plank* p = game_->plank(held_);
        if (!p || !p->held) held_ = 0;  // the game took it back (the truck stopped)
    }
    const QRect truck = truckRect().toAlignedRect().adjusted(-3, -3, 3, 3);
    if (truck != truckDrawn_) {
        update(truckDrawn_);
        update(truck);
        truckDrawn_ = truck;
    }
    update(riverBand());
    QRect held;
    if (held_ && game_)
        if (const Plank* p = game_->plank(held_))
            held = plankRect(*p).toAlignedRect().adjusted(-3, -3, 3, 3);
    if (held != heldDrawn_) {
        update(heldDrawn_);
        update(held);
        heldDrawn_ = held;
    }
    std::erase_if(effects_, [&](const Effect& e) {
        return t - e.t0 >= (e.sparkle ? kSparkleMs : kSplashMs);
    });
    QRect fx;
    for (const Effect& e : effects_) {
        const double r = e.sparkle ? plankWidth() * 1.2 : width() * 0.06;
        fx |= QRectF(e.at.x() - r, e.at.y() - r, 2 * r, 2 * r).toAlignedRect();
    }
    if (cheer_ > 0) fx |= QRect(0, 0, width(), int(deckTop()));
    if (fx != effectsDrawn_ || !fx.isNull()) {
        update(effectsDrawn_);
        update(fx);
        effectsDrawn_ = fx;
    }
    if (!call_.isEmpty()) {
        if (callHold_ > 0 && t - callAt_ >= callHold_) {
            call_.clear();
            update(callRect());
        } else if (t - callAt_ < 400) {
            update(callRect());
        }
    }
    if (stopAt_ >= 0 && t - stopAt_ < 1700)  // the horn's bubble reaches out over the cab
        update(truck.adjusted(0, -truck.height() * 6 / 10, truck.width() * 3 / 10, 0));
}

// --- the scenery, once a size -----------------------------------------------------------

void BridgeScene::resizeEvent(QResizeEvent*) {
    buildScene();
}

void BridgeScene::buildScene() {
    letters_.clear();
    if (width() <= 0 || height() <= 0) return;
    scene_ = QPixmap(size());
    scene_.fill(QColor(120, 190, 235));
    QPainter p(&scene_);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    QSvgRenderer back(appFile("images/bridgeout-valley.svg"));
    if (back.isValid()) back.render(&p, QRectF(rect()));
    QSvgRenderer art(appFile("images/bridgeout-sprites.svg"));
    auto draw = [&](const char* id, const QRectF& r) {
        if (art.isValid() && art.elementExists(id)) art.render(&p, id, r);
    };
    const double W = width(), H = height();
    draw("sign_0", clueRect());
    // The bridge's frame: the truss under the deck and the far rope rail, posts at each end.
    const double deckBottom = deckTop() + deckHeight();
    draw("truss_0",
         QRectF(W * kSpanLeft, deckBottom - H * 0.01, W * (kSpanRight - kSpanLeft), H * 0.13));
    const double postW = W * 0.016, postH = H * 0.12;
    for (double x : {W * kSpanLeft, W * kSpanRight})
        draw("post_0", QRectF(x - postW / 2, deckTop() - postH, postW, postH + deckHeight() * 0.5));
    QPen rope(QColor(120, 84, 44), std::max(2.0, H * 0.005), Qt::SolidLine, Qt::RoundCap);
    p.setPen(rope);
    p.setBrush(Qt::NoBrush);
    for (double drop : {0.0, 0.045}) {
        QPainterPath path(QPointF(W * kSpanLeft, deckTop() - postH * 0.85 + drop * H));
        path.quadTo(QPointF(W * (kSpanLeft + kSpanRight) / 2, deckTop() - postH * 0.2 + drop * H),
                    QPointF(W * kSpanRight, deckTop() - postH * 0.85 + drop * H));
        p.drawPath(path);
    }
    p.end();

    const double tw = W * kTruckWidth;
    truck_[0] = spriteOf(art, "truck_0", QSize(int(tw), int(tw * 0.6)));
    truck_[1] = spriteOf(art, "truck_1", QSize(int(tw), int(tw * 0.6)));
    for (int lane = 0; lane < 2; ++lane)
        board_[lane] = spriteOf(art, "board_0", riverPlankSize(lane).toSize());
    buildDeck();
    truckDrawn_ = heldDrawn_ = effectsDrawn_ = QRect();
    update();
}

void BridgeScene::buildDeck() {
    // The bridge's boards are as wide as the word allows: drawn again for each word.
    QSvgRenderer art(appFile("images/bridgeout-sprites.svg"));
    const QSize deck(std::max(1, int(std::ceil(plankWidth()))), std::max(1, int(deckHeight())));
    deck_ = spriteOf(art, "deck_0", deck);
    hole_ = spriteOf(art, "hole_0", deck);
    deckLetters_.clear();
}

const QPixmap& BridgeScene::deckPlank(const QString& letter, bool missing) {
    const QString key = letter + (missing ? "!" : "");
    auto it = deckLetters_.find(key);
    if (it != deckLetters_.end()) return *it;
    QPixmap pm = missing ? hole_ : deck_;
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF r = pm.rect();
    if (missing) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(255, 246, 220, 235));
        p.drawRoundedRect(r.adjusted(3, 3, -3, -3), 6, 6);
    }
    if (!letter.isEmpty())
        paintCarved(p, r, letter, missing ? QColor(210, 40, 30) : QColor(70, 36, 10));
    p.end();
    return *deckLetters_.insert(key, pm);
}

const QPixmap& BridgeScene::letterPlank(const QString& letter, int lane) {
    const QString key = letter + QChar('0' + lane);
    auto it = letters_.find(key);
    if (it != letters_.end()) return *it;
    QPixmap pm = board_[lane];
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    paintCarved(p, QRectF(pm.rect()).adjusted(0, -pm.height() * 0.04, 0, 0), letter,
                QColor(70, 36, 10));
    p.end();
    return *letters_.insert(key, pm);
}

// --- drawing ----------------------------------------------------------------------------

void BridgeScene::paintBridge(QPainter& p) {
    const double pw = plankWidth(), top = deckTop(), h = deckHeight();
    const int n = game_ ? Len(game_->word()) : 0;
    const double right = wordLeft() + n * pw;
    // The whole boards either side of the broken stretch.
    const QSize deck = deck_.size();
    for (double x = width() * kSpanLeft; x < wordLeft() - 0.5; x += deck.width())
        p.drawPixmap(QRectF(x, top, std::min<double>(deck.width(), wordLeft() - x), h), deck_,
                     QRectF(0, 0, std::min<double>(deck.width(), wordLeft() - x), deck.height()));
    for (double x = right; x < width() * kSpanRight - 0.5; x += deck.width())
        p.drawPixmap(
            QRectF(x, top, std::min<double>(deck.width(), width() * kSpanRight - x), h), deck_,
            QRectF(0, 0, std::min<double>(deck.width(), width() * kSpanRight - x), deck.height()));
    if (!game_) return;
    const std::string& word = game_->word();
    for (int i = 0; i < n; ++i) {
        const QRectF r = gapRect(i);
        const QString letter = toQ(UCase(word.substr(i, 1)));
        // Stopped at the gap: the missing letters show, in red, where they belong.
        if (game_->isGap(i))
            p.drawPixmap(r.topLeft(), stopAt_ >= 0 ? deckPlank(letter, true) : hole_);
        else
            p.drawPixmap(r.topLeft(), deckPlank(word[i] == ' ' ? QString() : letter, false));
    }
}

void BridgeScene::paintTruck(QPainter& p, qint64 t) {
    const QRectF r = truckRect();
    const bool moving = (game_ && game_->phase() == Phase::Driving) || crossAt_ >= 0;
    const int frame = moving ? int(t / 90) % 2 : 0;
    p.drawPixmap(r.topLeft(), truck_[frame]);
    if (stopAt_ >= 0 && t - stopAt_ < 1600) {
        // The horn: "HONK!" in a bubble over the cab.
        const double u = double(t - stopAt_) / 1600;
        const QRectF bubble(r.right() - r.width() * 0.55, r.top() - r.height() * 0.55,
                            r.width() * 0.75, r.height() * 0.42);
        p.setPen(QPen(QColor(80, 40, 10), std::max(2.0, height() * 0.003)));
        p.setBrush(scene::withAlpha(QColor(255, 250, 225), 1 - u * 0.3));
        p.drawRoundedRect(bubble, bubble.height() / 2, bubble.height() / 2);
        p.setFont(boldFont(bubble.height() * 0.55 * (1 + 0.1 * std::sin(u * 12 * kPi))));
        p.setPen(QColor(200, 40, 20));
        p.drawText(bubble, Qt::AlignCenter, "HONK!");
    }
}

void BridgeScene::paintCall(QPainter& p) {
    if (call_.isEmpty()) return;
    const QRect box = callRect();
    const double pop = scene::easeOut(double(now() - callAt_) / 300);
    QFont f = boldFont(box.height() * 0.62 * (0.7 + 0.3 * pop));
    while (f.pixelSize() > 8 && QFontMetricsF(f).horizontalAdvance(call_) > box.width() * 0.95)
        f.setPixelSize(f.pixelSize() - 2);
    QPainterPath path;
    path.addText(0, 0, f, call_);
    path.translate(QPointF(box.center()) - path.boundingRect().center());
    p.setPen(QPen(QColor(70, 35, 5), std::max(3.0, box.height() * 0.07), Qt::SolidLine,
                  Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 214, 70));
    p.drawPath(path);
}

void BridgeScene::paintEvent(QPaintEvent* event) {
    QPainter p(this);
    if (scene_.isNull()) {
        p.fillRect(rect(), QColor(120, 190, 235));
        return;
    }
    for (const QRect& r : event->region()) p.drawPixmap(r, scene_, r);
    p.setRenderHint(QPainter::Antialiasing);
    const qint64 t = now();
    const QRegion dirty = event->region();
    const QRect bridge(0, int(deckTop()) - 2, width(), int(deckHeight()) + 4);
    if (dirty.intersects(bridge)) paintBridge(p);
    if (dirty.intersects(truckRect().toAlignedRect().adjusted(-3, -3, 3, 3))) paintTruck(p, t);

    // The river's planks, the far lane first; the one in the hand over everything.
    if (game_ && dirty.intersects(riverBand().united(heldDrawn_))) {
        for (int lane = 0; lane < 2; ++lane)
            for (const Plank& pl : game_->river()) {
                if (pl.lane != lane || pl.id == held_) continue;
                const QRectF r = plankRect(pl);
                if (dirty.intersects(r.toAlignedRect()))
                    p.drawPixmap(r.topLeft(), letterPlank(toQ(pl.letter), pl.lane));
            }
    }
    for (const Effect& e : effects_) {
        const double u = double(t - e.t0) / (e.sparkle ? kSparkleMs : kSplashMs);
        if (e.sparkle) {
            for (int k = 0; k < 6; ++k) {
                const double a = k * kPi / 3 + u * 2;
                const double d = plankWidth() * (0.3 + 0.8 * u);
                scene::paintSparkle(p, e.at + QPointF(std::cos(a) * d, std::sin(a) * d * 0.8),
                                    plankWidth() * 0.22 * (1 - u * 0.6), u * 90, 1 - u);
            }
        } else {
            p.setBrush(Qt::NoBrush);
            for (int k = 0; k < 3; ++k) {
                const double v = scene::clamp01(u * 1.3 - k * 0.15);
                if (v <= 0) continue;
                const double rx = width() * 0.055 * v, ry = rx * 0.32;
                p.setPen(QPen(scene::withAlpha(QColor(240, 250, 255), 1 - v), 3));
                p.drawEllipse(e.at, rx, ry);
            }
            // Drops thrown up by the splash.
            p.setPen(Qt::NoPen);
            p.setBrush(scene::withAlpha(QColor(225, 245, 255), 1 - u));
            for (int k = 0; k < 5; ++k) {
                const double dx = (k - 2) * width() * 0.01;
                const double dy = -std::sin(u * kPi) * height() * (0.05 + 0.012 * (k % 3));
                p.drawEllipse(e.at + QPointF(dx * (1 + u), dy), 4.0, 5.0);
            }
        }
    }
    if (cheer_ > 0) {
        // Bursts of sparkles over the valley.
        for (int k = 0; k < 14; ++k) {
            const double u = std::fmod((t - cheerAt_) / 1100.0 + k * 0.37, 1.0);
            const QPointF at(width() * (0.08 + 0.065 * k), deckTop() * (0.9 - 0.6 * u));
            scene::paintSparkle(p, at, height() * 0.02 * (1 - u) + 3, u * 180, 1 - u);
        }
    }
    if (held_ && game_)
        if (const Plank* pl = game_->plank(held_)) {
            const QRectF r = plankRect(*pl);
            p.setPen(Qt::NoPen);
            p.setBrush(QColor(0, 0, 0, 50));
            p.drawRoundedRect(r.translated(r.width() * 0.08, r.height() * 0.2), 8, 8);
            p.drawPixmap(r.topLeft(), letterPlank(toQ(pl->letter), 1));
        }
    paintCall(p);
}

// --- the pointer ------------------------------------------------------------------------

void BridgeScene::mousePressEvent(QMouseEvent* event) {
    if (!game_ || held_ || event->button() != Qt::LeftButton) return;
    const QPointF at = event->position();
    const auto& river = game_->river();
    // The near lane lies over the far one: it is looked at first.
    for (int lane = 1; lane >= 0; --lane)
        for (auto it = river.rbegin(); it != river.rend(); ++it) {
            if (it->lane != lane || !plankRect(*it).contains(at)) continue;
            const QPointF centre = plankRect(*it).center();
            if (onTake && onTake(it->id)) {
                held_ = it->id;
                holdAt_ = at;
                grip_ = QPointF(0, 0) + (at - centre) * 0.5;  // drawn a little under the finger
                step();
            }
            return;
        }
}

void BridgeScene::mouseMoveEvent(QMouseEvent* event) {
    if (!held_) return;
    holdAt_ = event->position();
    step();
}

void BridgeScene::mouseReleaseEvent(QMouseEvent* event) {
    if (!held_ || event->button() != Qt::LeftButton) return;
    const int id = held_;
    held_ = 0;
    holdAt_ = event->position();
    const QPointF centre = holdAt_ - grip_;
    if (onDrop) onDrop(id, gapAt(centre), riverXAt(centre.x()));
    step();
}

}  // namespace wm
