#include "games/action/tower_assault/tower_assault_scene.h"

#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <cmath>

#include "platform/scene_kit.h"
#include "platform/services.h"
#include "platform/text.h"
#include "platform/text_fit.h"
#include "platform/ticker.h"

namespace wm {

using namespace tower;

namespace {
constexpr double kPi = 3.14159265358979;
// Where the castle's parts are, as shares of the scene: they match the drawing.
constexpr double kFieldLeft = 0.04, kFieldSpan = 0.92;  // the courtyard's x range
constexpr double kFieldTop = 0.16, kFieldDepth = 0.77;  // y 0 and the ground's distance
constexpr double kWallWalk = 0.275;                     // the guards' feet
constexpr double kParapetTop = 0.20, kParapetBottom = 0.285;
constexpr double kGround = 0.93;
constexpr double kLadderX = 500;  // the ladder leans on the wall under the middle guard

QFont boldFont(double px) {
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(std::max(8, int(px)));
    return f;
}

// Bold text with a dark outline, drawn once into a picture of its own.
QPixmap outlinedText(const QString& text, double px, const QColor& fill, const QColor& edge,
                     double maxWidth = 1e9) {
    QFont f = boldFont(px);
    while (f.pixelSize() > 8 && QFontMetricsF(f).horizontalAdvance(text) > maxWidth)
        f.setPixelSize(f.pixelSize() - 2);
    QPainterPath path;
    path.addText(0, 0, f, text);
    const double pen = std::max(3.0, f.pixelSize() * 0.12);
    const QRectF box = path.boundingRect().adjusted(-pen, -pen, pen, pen);
    QPixmap pm(box.size().toSize() + QSize(2, 2));
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(-box.topLeft() + QPointF(1, 1));
    p.setPen(QPen(edge, pen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
    p.setPen(Qt::NoPen);
    p.setBrush(fill);
    p.drawPath(path);
    return pm;
}

QPixmap spriteOf(QSvgRenderer& art, const QString& id, QSize size) {
    QPixmap pm(size.expandedTo(QSize(1, 1)));
    pm.fill(Qt::transparent);
    if (art.isValid() && art.elementExists(id)) {
        QPainter p(&pm);
        p.setRenderHint(QPainter::Antialiasing);
        art.render(&p, id, QRectF(QPointF(0, 0), QSizeF(size)));
    }
    return pm;
}
}  // namespace

TowerScene::TowerScene(QWidget* parent) : QWidget(parent) {
    setObjectName("TowerScene");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

qint64 TowerScene::now() const {
    return Ticker::get().now() - born_;
}

// --- where things are -------------------------------------------------------------------

QPointF TowerScene::toScreen(double x, double y) const {
    return QPointF(width() * (kFieldLeft + kFieldSpan * x / tower::kFieldWidth),
                   height() * (kFieldTop + kFieldDepth * y / kGroundY));
}

QRectF TowerScene::scrollRect(const Scroll& s) const {
    const double w = width() * kFieldSpan * 0.18, h = height() * 0.062;
    const QPointF c = toScreen(s.x, s.y);
    // A scroll sways a little as it falls.
    const double sway = std::sin(now() / 260.0 + s.id * 1.3) * w * 0.03;
    return QRectF(c.x() - w / 2 + sway, c.y() - h / 2, w, h);
}

QRectF TowerScene::knightRect() const {
    const double h = height() * 0.2, w = h * 0.78;
    const qint64 t = now();
    double x = knightScreenX(t), feet = height() * kGround;
    if (end_ > 0) {
        // Up the ladder from the second third of the climb, to its top rung by the parapet.
        const double u = scene::smooth((double(t - endAt_) / kEndMs - 0.3) / 0.45);
        feet = scene::lerp(feet, height() * (kParapetBottom + 0.035), u);
    }
    return QRectF(x - w / 2, feet - h, w, h);
}

double TowerScene::knightScreenX(qint64 t) const {
    const double home = game_ ? toScreen(game_->knightX(), 0).x() : width() / 2.0;
    if (end_ > 0) {
        const double u = scene::smooth(double(t - endAt_) / kEndMs / 0.28);
        return scene::lerp(endFromX_, toScreen(kLadderX, 0).x(), u);
    }
    if (end_ < 0) {
        const double u = scene::easeIn(double(t - endAt_) / kEndMs / 0.7);
        return scene::lerp(endFromX_, -width() * 0.12, u);
    }
    return home;
}

QRectF TowerScene::guardRect(int g) const {
    const double h = height() * 0.15, w = h * 0.8;
    const double x = toScreen(guardX(g), 0).x();
    return QRectF(x - w / 2, height() * kWallWalk - h, w, h);
}

QRectF TowerScene::ladderRect() const {
    const double w = width() * 0.07;
    const double x = toScreen(kLadderX, 0).x();
    return QRectF(x - w / 2, height() * (kParapetTop - 0.01), w,
                  height() * (kGround - kParapetTop + 0.02));
}

QRect TowerScene::callRect() const {
    return QRect(int(width() * 0.2), int(height() * 0.36), int(width() * 0.6),
                 int(height() * 0.12));
}

QRect TowerScene::clueRect() const {
    return QRect(int(width() * 0.2), int(height() * 0.004), int(width() * 0.6),
                 int(height() * 0.15));
}

// --- what happens -----------------------------------------------------------------------

void TowerScene::reset() {
    effects_.clear();
    end_ = 0;
    dir_ = 0;
    facingLeft_ = false;
    caughtAt_ = -1000000;
    for (qint64& t : thrownAt_) t = -1000000;
    update();
}

void TowerScene::setMotion(int dir) {
    dir_ = dir;
    if (dir != 0) facingLeft_ = dir < 0;
}

void TowerScene::thrown(int guard) {
    if (guard >= 1 && guard <= kGuards) thrownAt_[guard] = now();
}

void TowerScene::caught(bool right, int points) {
    caughtAt_ = now();
    const QRectF k = knightRect();
    const QPointF hands(k.center().x(), k.top());
    const QString text = points > 0 ? QString("+%1").arg(points) : QString::number(points);
    effects_.push_back(
        {hands, now(), right ? 0 : 1,
         outlinedText(text, height() * 0.045, right ? QColor(255, 226, 90) : QColor(255, 110, 90),
                      QColor(40, 20, 40))});
    if (right) update();  // the scrolls are swept away and a rung goes on
}

void TowerScene::landed(double x, bool right) {
    (void)right;
    effects_.push_back({toScreen(x, kGroundY), now(), 2, QPixmap()});
}

void TowerScene::climb() {
    end_ = 1;
    endAt_ = now();
    endFromX_ = game_ ? toScreen(game_->knightX(), 0).x() : width() / 2.0;
}

void TowerScene::retreat() {
    endFromX_ = game_ ? toScreen(game_->knightX(), 0).x() : width() / 2.0;
    end_ = -1;
    endAt_ = now();
    facingLeft_ = true;
}

void TowerScene::setCall(const QString& text, int holdMs) {
    call_ = text;
    callText_ = text.isEmpty() ? QPixmap()
                               : outlinedText(text, callRect().height() * 0.6, QColor(255, 212, 72),
                                              QColor(48, 24, 60), callRect().width() * 0.95);
    callAt_ = now();
    callHold_ = holdMs;
    update(callRect());
}

void TowerScene::step() {
    const qint64 t = now();
    std::erase_if(effects_, [&](const Effect& e) { return t - e.t0 >= kFxMs; });
    std::vector<QRect> live;
    auto add = [&](const QRectF& r, double margin) {
        live.push_back(
            r.toAlignedRect().adjusted(-int(margin), -int(margin), int(margin), int(margin)));
    };
    if (game_)
        for (const Scroll& s : game_->scrolls()) add(scrollRect(s), 3);
    // The knight is painted again only when he moves or changes his pose.
    const QRect knight = knightRect().toAlignedRect().adjusted(-4, -4, 4, 4);
    const int frame = knightFrame(t) + (facingLeft_ ? 10 : 0);
    if (knight != knightDrawn_ || frame != knightFrameDrawn_) {
        update(knightDrawn_);
        update(knight);
        knightDrawn_ = knight;
        knightFrameDrawn_ = frame;
    }
    for (int g = 1; g <= kGuards; ++g)
        if (t - thrownAt_[g] < 500 || end_ < 0) add(guardRect(g), 2);
    for (const Effect& e : effects_) {
        const double r = height() * 0.09;
        add(QRectF(e.at.x() - r, e.at.y() - 1.6 * r, 2 * r, 2.2 * r), 2);
    }
    if (end_ != 0 || t - caughtAt_ < 600)
        add(ladderRect().adjusted(-width() * 0.05, -height() * 0.12, width() * 0.05, 0), 2);
    if (!call_.isEmpty()) {
        if (callHold_ > 0 && t - callAt_ >= callHold_) {
            call_.clear();
            update(callRect());
        } else if (t - callAt_ < 400) {
            update(callRect());
        }
    }
    for (const QRect& r : drawn_) update(r);
    for (const QRect& r : live) update(r);
    drawn_ = std::move(live);
}

// --- the scenery, once a size -----------------------------------------------------------

void TowerScene::resizeEvent(QResizeEvent*) {
    buildScene();
}

void TowerScene::buildScene() {
    scrolls_.clear();
    drawn_.clear();
    knightDrawn_ = QRect();
    if (!call_.isEmpty())
        callText_ = outlinedText(call_, callRect().height() * 0.6, QColor(255, 212, 72),
                                 QColor(48, 24, 60), callRect().width() * 0.95);
    if (width() <= 0 || height() <= 0) return;
    scene_ = QPixmap(size());
    scene_.fill(QColor(150, 200, 240));
    QPainter p(&scene_);
    p.setRenderHint(QPainter::Antialiasing);
    QSvgRenderer back(appFile("images/tower-castle.svg"));
    if (back.isValid()) back.render(&p, QRectF(rect()));
    QSvgRenderer art(appFile("images/tower-sprites.svg"));
    if (art.isValid() && art.elementExists("banner_0")) art.render(&p, "banner_0", clueRect());
    p.end();

    const QSize knight = knightRect().size().toSize();
    for (int i = 0; i < 5; ++i) knight_[i] = spriteOf(art, QString("knight_%1").arg(i), knight);
    const QSize guard = guardRect(1).size().toSize();
    for (int i = 0; i < 2; ++i) guard_[i] = spriteOf(art, QString("guard_%1").arg(i), guard);
    scroll_ = spriteOf(art, "scroll_0", scrollRect(Scroll{}).size().toSize());
    const QRectF ladder = ladderRect();
    rung_ = spriteOf(art, "rung_0", QSize(int(ladder.width()), int(height() * 0.022)));
    rail_ = spriteOf(art, "rail_0", QSize(int(width() * 0.012), int(ladder.height())));
    const QSize flag(int(height() * 0.104), int(height() * 0.13));
    for (int i = 0; i < 2; ++i) flag_[i] = spriteOf(art, QString("flag_%1").arg(i), flag);
    // The parapet stands in front of the guards: cut from the backdrop once.
    parapet_ = QPixmap(width(), int(height() * (kParapetBottom - kParapetTop)) + 1);
    parapet_.fill(Qt::transparent);
    QPainter pp(&parapet_);
    if (art.isValid() && art.elementExists("parapet_0"))
        art.render(&pp, "parapet_0", parapet_.rect());
    pp.end();
    update();
}

const QPixmap& TowerScene::scrollPicture(const QString& word) {
    auto it = scrolls_.find(word);
    if (it != scrolls_.end()) return *it;
    QPixmap pm = scroll_;
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(pm.rect()).adjusted(pm.width() * 0.13, pm.height() * 0.14,
                                                  -pm.width() * 0.13, -pm.height() * 0.16);
    const QFont f = scene::shrinkToWidth(boldFont(box.height() * 0.8), box.width(), word);
    p.setFont(f);
    p.setPen(QColor(92, 52, 18));
    p.drawText(box, Qt::AlignCenter, word);
    p.end();
    return *scrolls_.insert(word, pm);
}

// --- drawing ----------------------------------------------------------------------------

void TowerScene::paintLadder(QPainter& p) {
    const int rungs = game_ ? game_->rungs() : 0;
    if (rungs <= 0) return;
    const QRectF l = ladderRect();
    const double bottom = height() * kGround, top = height() * (kParapetTop + 0.02);
    const double gap = (bottom - top) / kRungsToWin;
    const double railTop = bottom - rungs * gap - gap * 0.35;
    for (double x : {l.left(), l.right() - rail_.width()})
        p.drawPixmap(QRectF(x, railTop, rail_.width(), bottom - railTop), rail_,
                     QRectF(0, 0, rail_.width(), bottom - railTop));
    for (int r = 1; r <= rungs; ++r) {
        const double y = bottom - r * gap;
        // The newest rung glows for a moment as it is hammered on.
        p.drawPixmap(QPointF(l.left(), y - rung_.height() / 2.0), rung_);
        if (r == rungs && now() - caughtAt_ < 600) {
            const double u = double(now() - caughtAt_) / 600;
            scene::paintSparkle(p, QPointF(l.center().x(), y), height() * 0.03 * (1 - u) + 2,
                                u * 120, 1 - u);
        }
    }
}

int TowerScene::knightFrame(qint64 t) const {
    if (end_ > 0) {
        const double u = double(t - endAt_) / kEndMs;
        return u < 0.28 ? int(t / 140) % 2 : u < 0.75 ? 4 : 3;
    }
    if (end_ < 0) return int(t / 90) % 2;
    if (t - caughtAt_ < 350) return 3;
    if (dir_ != 0) return int(t / 140) % 2;
    return 2;
}

void TowerScene::paintKnight(QPainter& p, qint64 t) {
    const QRectF r = knightRect();
    const int frame = knightFrame(t);
    const bool flip = facingLeft_ && frame != 4;
    const QPoint at = r.topLeft().toPoint();
    if (flip) {
        p.save();
        p.translate(at.x() * 2 + knight_[frame].width(), 0);
        p.scale(-1, 1);
    }
    p.drawPixmap(at, knight_[frame]);
    if (flip) p.restore();
}

void TowerScene::paintFlag(QPainter& p, qint64 t) {
    if (end_ <= 0) return;
    const double u = scene::smooth((double(t - endAt_) / kEndMs - 0.7) / 0.3);
    if (u <= 0) return;
    const QRectF l = ladderRect();
    const QSizeF size = flag_[0].size();
    const double x = l.right() + width() * 0.01;
    const double bottom = height() * (kWallWalk + 0.01);
    const double y = bottom - size.height() * u;
    p.drawPixmap(QPointF(x, y), flag_[int(t / 220) % 2]);
    for (int k = 0; k < 10; ++k) {
        const double v = std::fmod((t - endAt_) / 1200.0 + k * 0.31, 1.0);
        const QPointF at(x + size.width() * 0.5 + std::cos(k * 1.9) * width() * 0.12 * v,
                         bottom - size.height() - std::sin(k * 1.3 + 1) * height() * 0.12 * v);
        scene::paintSparkle(p, at, height() * 0.018 * (1 - v) + 3, v * 180, 1 - v);
    }
}

void TowerScene::paintCall(QPainter& p) {
    if (call_.isEmpty() || callText_.isNull()) return;
    // The call pops up from a little smaller than its size.
    const double pop = 0.7 + 0.3 * scene::easeOut(double(now() - callAt_) / 300);
    const QSizeF size = QSizeF(callText_.size()) * pop;
    const QPointF c = QRectF(callRect()).center();
    if (pop >= 1)
        p.drawPixmap(QPointF(c.x() - size.width() / 2, c.y() - size.height() / 2).toPoint(),
                     callText_);
    else
        p.drawPixmap(QRectF(c - QPointF(size.width() / 2, size.height() / 2), size), callText_,
                     QRectF(callText_.rect()));
}

void TowerScene::paintEvent(QPaintEvent* event) {
    QPainter p(this);
    if (scene_.isNull()) {
        p.fillRect(rect(), QColor(150, 200, 240));
        return;
    }
    const QRegion dirty = event->region();
    for (const QRect& r : dirty) p.drawPixmap(r, scene_, r);
    p.setRenderHint(QPainter::Antialiasing);
    const qint64 t = now();
    if (dirty.intersects(ladderRect().toAlignedRect())) paintLadder(p);
    const QRect band(0, int(height() * kParapetTop) - int(height() * 0.15), width(),
                     int(height() * (kParapetBottom - kParapetTop + 0.15)) + 1);
    if (dirty.intersects(band)) {
        for (int g = 1; g <= kGuards; ++g) {
            // A guard throws with a swing of his arm; when the knight flees, they all cheer.
            const bool swing = end_ < 0 ? (t / 250 + g) % 2 == 0 : t - thrownAt_[g] < 350;
            p.drawPixmap(guardRect(g).topLeft().toPoint(), guard_[swing ? 1 : 0]);
        }
        p.drawPixmap(QPointF(0, height() * kParapetTop), parapet_);
    }
    if (game_)
        for (const Scroll& s : game_->scrolls()) {
            const QRectF r = scrollRect(s);
            if (dirty.intersects(r.toAlignedRect().adjusted(-2, -2, 2, 2)))
                p.drawPixmap(r.topLeft().toPoint(), scrollPicture(toQ(s.word)));
        }
    if (dirty.intersects(knightRect().toAlignedRect().adjusted(-4, -4, 4, 4))) paintKnight(p, t);
    paintFlag(p, t);
    for (const Effect& e : effects_) {
        const double u = double(t - e.t0) / kFxMs;
        if (e.kind == 0) {
            for (int k = 0; k < 7; ++k) {
                const double a = k * 2 * kPi / 7 + u * 2;
                const double d = height() * 0.07 * (0.2 + u);
                scene::paintSparkle(p, e.at + QPointF(std::cos(a) * d, std::sin(a) * d * 0.7),
                                    height() * 0.022 * (1 - u * 0.6), u * 90, 1 - u);
            }
        } else {
            // A puff: red where a wrong scroll bursts, dusty where a scroll hits the ground.
            const QColor c = e.kind == 1 ? QColor(230, 70, 50) : QColor(190, 160, 110);
            p.setPen(Qt::NoPen);
            for (int k = 0; k < 6; ++k) {
                const double a = k * kPi / 5 + kPi;
                const double d = height() * 0.05 * scene::easeOut(u);
                p.setBrush(scene::withAlpha(c, (1 - u) * 0.7));
                const double r = height() * (0.012 + 0.018 * u);
                p.drawEllipse(e.at + QPointF(std::cos(a) * d * 1.4, std::sin(a) * d * 0.6), r, r);
            }
        }
        if (!e.text.isNull()) {
            const QPointF at = e.at - QPointF(0, height() * 0.08 * scene::easeOut(u));
            p.setOpacity(1 - u);
            p.drawPixmap((at - QPointF(e.text.width() / 2.0, e.text.height() / 2.0)).toPoint(),
                         e.text);
            p.setOpacity(1);
        }
    }
    paintCall(p);
}

}  // namespace wm
