#include "games/show/slot_machine/slot_machine_scene.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPolygonF>
#include <QRandomGenerator>
#include <cmath>

#include "core/shared_state.h"
#include "platform/scene_kit.h"
#include "platform/services.h"
#include "platform/text.h"
#include "platform/text_fit.h"
#include "platform/ticker.h"

namespace wm {

using namespace slot_machine;
using namespace scene;

namespace {
constexpr int kLeverMs = 700;
constexpr int kSettleMs = 320;
constexpr int kGlowMs = 900;
constexpr int kCoinMs = 650;
constexpr int kJackpotMs = 3000;
constexpr int kBannerMs = 300;
constexpr double kWordAngle = 0.5;  // radians of the drum between two words

double rnd(QRandomGenerator& dice, double lo, double hi) {
    return lo + dice.generateDouble() * (hi - lo);
}

QRect frac(const QRect& r, double x0, double y0, double x1, double y1) {
    return QRect(r.left() + int(r.width() * x0), r.top() + int(r.height() * y0),
                 int(r.width() * (x1 - x0)), int(r.height() * (y1 - y0)));
}
}  // namespace

SlotScene::SlotScene(const Game& game, QWidget* parent)
    : QWidget(parent),
      game_(game),
      back_(findAsset("images/slot-back.svg")),
      art_(findAsset("images/slot-art.svg")) {
    setObjectName("SlotScene");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

void SlotScene::layOut(int top) {
    top_ = top;
    const int w = width(), h = height() - top;
    if (w <= 0 || h <= 0) return;
    const int ch = int(h * 0.965);
    const int cw = int(std::min(w * 0.62, ch * 0.95));
    cabinet_ = QRect((w - cw) / 2 - cw / 30, top + int(h * 0.02), cw, ch);
    marquee_ = frac(cabinet_, 0.06, 0.015, 0.94, 0.15);
    prompt_ = frac(cabinet_, 0.1, 0.158, 0.9, 0.203);
    window_ = frac(cabinet_, 0.07, 0.21, 0.93, 0.535);
    const int pad = cw / 45, gap = cw / 40;
    const int rw = (window_.width() - 2 * pad - 2 * gap) / kReels;
    for (int i = 0; i < kReels; ++i) {
        reels_[i] = QRect(window_.left() + pad + i * (rw + gap), window_.top() + pad, rw,
                          window_.height() - 2 * pad);
        stops_[i] = QRect(reels_[i].left() + rw / 10, cabinet_.top() + int(ch * 0.55), rw * 8 / 10,
                          int(ch * 0.065));
    }
    definition_ = frac(cabinet_, 0.08, 0.64, 0.92, 0.865);
    tray_ = frac(cabinet_, 0.2, 0.885, 0.8, 0.975);
    const QPoint pivot(cabinet_.right() + cw / 22, cabinet_.top() + int(ch * 0.44));
    const int len = int(ch * 0.27), lw = cw / 11;
    lever_ = QRect(pivot.x() - lw / 2, pivot.y() - len - lw / 2, lw, 2 * len + lw);
    const int m = w / 80, side = cabinet_.left() - 2 * m;
    purse_ = QRect(m, top + int(h * 0.05), side, int(h * 0.11));
    count_ = QRect(m, purse_.bottom() + int(h * 0.025), side, int(h * 0.08));

    bulbs_.clear();
    const double step = marquee_.height() / 3.2;
    const QRectF ring = QRectF(marquee_).adjusted(step / 2, step / 2, -step / 2, -step / 2);
    const int across = std::max(2, int(ring.width() / step)), down = std::max(1, int(ring.height() / step));
    for (int i = 0; i < across; ++i) bulbs_.push_back({ring.left() + ring.width() * i / across, ring.top()});
    for (int i = 0; i < down; ++i) bulbs_.push_back({ring.right(), ring.top() + ring.height() * i / down});
    for (int i = across; i > 0; --i) bulbs_.push_back({ring.left() + ring.width() * i / across, ring.bottom()});
    for (int i = down; i > 0; --i) bulbs_.push_back({ring.left(), ring.top() + ring.height() * i / down});

    const QSize rs = reels_[0].size();
    reelFace_ = sprite("reel", rs);
    reelGlass_ = sprite("glass", rs);
    const int cs = std::max(8, cw / 22);
    coin_ = sprite("coin", QSize(cs, cs));
    const int ls = std::max(6, int(step * 0.7));
    lamp_ = sprite("lamp", QSize(ls, ls));
    lampLit_ = sprite("lamp_lit", QSize(ls * 2, ls * 2));
    words_.clear();
    composeBack();
    update();
}

QPixmap SlotScene::sprite(const char* id, QSize size) {
    QPixmap pm(size.expandedTo(QSize(1, 1)));
    pm.fill(Qt::transparent);
    if (!art_.isValid() || !art_.elementExists(id)) return pm;
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    art_.render(&p, id, QRectF(QPointF(0, 0), QSizeF(pm.size())));
    return pm;
}

void SlotScene::resizeEvent(QResizeEvent*) {
    // The arcade keeps its shape: cut to the screen rather than stretched.
    backRaw_ = scene::coverPicture(back_, size(), QColor(30, 12, 44));
    layOut(top_);
}

void SlotScene::composeBack() {
    if (backRaw_.isNull() || cabinet_.isEmpty()) return;
    backPic_ = backRaw_;
    QPainter p(&backPic_);
    p.setRenderHint(QPainter::Antialiasing);
    // The machine's shadow on the carpet, then the machine.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 90));
    p.drawEllipse(QRectF(cabinet_.left() - cabinet_.width() * 0.04, cabinet_.bottom() - cabinet_.height() * 0.03,
                         cabinet_.width() * 1.2, cabinet_.height() * 0.05));
    if (art_.isValid()) {
        art_.render(&p, "cabinet", QRectF(cabinet_));
        art_.render(&p, "marquee", QRectF(marquee_));
        art_.render(&p, "window", QRectF(window_));
        art_.render(&p, "tray", QRectF(tray_));
        const QPoint pivot(lever_.center().x(), lever_.center().y());
        const int hub = lever_.width() * 9 / 10;
        art_.render(&p, "mount", QRectF(cabinet_.right() - 4, pivot.y() - hub * 0.6, pivot.x() - cabinet_.right() + 4, hub * 1.2));
    }
    // The jackpot of the level, in lights.
    const QRectF sign = QRectF(marquee_).adjusted(marquee_.height() * 0.45, marquee_.height() * 0.2,
                                                  -marquee_.height() * 0.45, -marquee_.height() * 0.2);
    const QString text = QString("JACKPOT %1").arg(jackpotFor(game_.level()));
    const QFont f = scene::shrinkToWidth(scene::boldFont(int(sign.height() * 0.7)), sign.width(), text, 10);
    p.setFont(f);
    p.setPen(QColor(120, 30, 0));
    p.drawText(sign.translated(2, 3), Qt::AlignCenter, text);
    p.setPen(QColor(255, 214, 64));
    p.drawText(sign, Qt::AlignCenter, text);
    // The panels behind the screen's labels.
    for (const QRect& r : {purse_, count_, definition_}) {
        const double radius = std::min(18.0, r.height() / 4.0);
        p.setPen(QPen(QColor(246, 200, 90), 3));
        p.setBrush(r == definition_ ? QColor(18, 26, 60, 235) : QColor(40, 12, 52, 215));
        p.drawRoundedRect(QRectF(r).adjusted(1.5, 1.5, -1.5, -1.5), radius, radius);
    }
    // A coin beside the purse's count.
    const int cs = int(purse_.height() * 0.6);
    if (art_.isValid())
        art_.render(&p, "coin", QRectF(purse_.left() + purse_.height() * 0.2, purse_.center().y() - cs / 2.0, cs, cs));
}

void SlotScene::newStrips() {
    words_.clear();
    for (qint64& t : stopAt_) t = -100000;
    jackpotAt_ = -100000;
    composeBack();
    update();
}

const QPixmap& SlotScene::wordPicture(int entry) {
    auto it = words_.find(entry);
    if (it != words_.end()) return it->second;
    if (entry < 0) {
        // The rolling word: faint, with a trail above and below.
        const QPixmap& sharp = wordPicture(-entry);
        QPixmap pm(sharp.size());
        pm.fill(Qt::transparent);
        QPainter p(&pm);
        p.setOpacity(0.55);
        p.drawPixmap(0, 0, sharp);
        p.setOpacity(0.22);
        p.drawPixmap(0, -sharp.height() * 35 / 100, sharp);
        p.drawPixmap(0, sharp.height() * 35 / 100, sharp);
        return words_[entry] = pm;
    }
    const QSize size(reels_[0].width() * 92 / 100, int(reels_[0].height() * 0.24));
    QPixmap pm(size.expandedTo(QSize(1, 1)));
    pm.fill(Qt::transparent);
    const SharedState& s = Shared();
    const QString text = entry > 0 && entry < int(s.Words.size()) ? toQ(s.Words[entry]) : QString();
    // The largest letters that keep the word on its reel; a very long one is cut short.
    const QFont f = scene::shrinkToWidth(scene::boldFont(int(size.height() * 0.72)), double(size.width()), text, 9);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.setFont(f);
    const QString shown = QFontMetrics(f).elidedText(text, Qt::ElideRight, size.width());
    p.setPen(QColor(255, 255, 255, 160));
    p.drawText(QRectF(pm.rect()).translated(0, 1.5), Qt::AlignCenter, shown);
    p.setPen(QColor(52, 20, 70));
    p.drawText(QRectF(pm.rect()), Qt::AlignCenter, shown);
    return words_[entry] = pm;
}

bool SlotScene::busy() const {
    if (game_.rolling() > 0) return true;
    if (now_ - pullAt_ < kLeverMs || now_ - jackpotAt_ < kJackpotMs)
        return true;
    if (now_ - bannerAt_ < kBannerMs || !coins_.empty()) return true;
    for (qint64 t : stopAt_)
        if (now_ - t < kGlowMs) return true;
    return false;
}

QRect SlotScene::coinRect(const Coin& c, qint64 at) const {
    const double u = clamp01(double(at - c.start) / c.ms);
    QPointF pt = c.from + (c.to - c.from) * easeInOut(u);
    pt.ry() -= c.arc * std::sin(M_PI * u);
    const int s = coin_.width();
    return QRect(int(pt.x()) - s / 2 - 1, int(pt.y()) - s / 2 - 1, s + 2, s + 2);
}

QRegion SlotScene::dirty() const {
    QRegion r(window_.adjusted(-4, -4, 4, 4));
    r += marquee_.adjusted(-8, -8, 8, 8);
    r += lever_.adjusted(-lever_.width(), -4, lever_.width(), 4);
    for (const Coin& c : coins_) r += coinRect(c, now_ - Ticker::kFrameMs * 2) | coinRect(c, now_);
    return r;
}

void SlotScene::step(qint64 now) {
    const QRegion before = dirty();
    now_ = now;
    coins_.erase(std::remove_if(coins_.begin(), coins_.end(),
                                [&](const Coin& c) { return now_ - c.start > c.ms; }),
                 coins_.end());
    update(before + dirty() + purse_);
}

void SlotScene::pulled() {
    pullAt_ = Ticker::get().now();
    for (int i = 0; i < kReels; ++i)
        if (game_.reel(i).spinning) stopAt_[i] = -100000;
}

void SlotScene::stopped(int reel, bool right) {
    stopAt_[reel] = Ticker::get().now();
    right_[reel] = right;
}

void SlotScene::paid(int reel, int coins) {
    const qint64 t = Ticker::get().now();
    const QPointF to = QPointF(purse_.left() + purse_.height() * 0.5, purse_.center().y());
    const int n = std::clamp(coins / 10, 3, 16);
    for (int k = 0; k < n; ++k) {
        const QPointF from = reel >= 0 ? QPointF(reels_[reel].center().x() + rnd(dice_, -20, 20), reels_[reel].bottom())
                                       : QPointF(rnd(dice_, tray_.left(), tray_.right()), tray_.center().y());
        coins_.push_back({from, to, t + k * 70, kCoinMs + int(rnd(dice_, 0, 200)), rnd(dice_, 40, 160)});
    }
}

void SlotScene::jackpot() {
    jackpotAt_ = Ticker::get().now();
}

void SlotScene::banner(const QString& text, Mood mood) {
    banner_ = text;
    mood_ = mood;
    bannerAt_ = Ticker::get().now();
    update(window_);
}

void SlotScene::paintReel(QPainter& p, int i) {
    const QRect r = reels_[i];
    const Reel& reel = game_.reel(i);
    p.drawPixmap(r.topLeft(), reelFace_);
    const int n = int(reel.strip.size());
    if (n > 0) {
        double pos = reel.pos;
        const double u = double(now_ - stopAt_[i]) / kSettleMs;
        // A stopped reel rocks back onto its word.
        if (!reel.spinning && u >= 0 && u < 1) pos -= 0.28 * std::exp(-4 * u) * std::cos(M_PI * 2.2 * u);
        p.save();
        p.setClipRect(r);
        const double radius = r.height() * 0.5;
        const long long base = std::llround(std::floor(pos));
        for (long long m = base - 3; m <= base + 3; ++m) {
            const double d = pos - double(m);
            const double a = d * kWordAngle;
            if (std::abs(a) >= M_PI / 2) continue;
            const int j = int(((m % n) + n) % n);
            // A rolling word is drawn smeared, from its own picture.
            const QPixmap& pic = wordPicture(reel.strip[j] * (reel.spinning ? -1 : 1));
            const double y = r.center().y() + std::sin(a) * radius;
            const double sy = std::cos(a);
            const double hgt = pic.height() * sy;
            p.drawPixmap(QRectF(r.center().x() - pic.width() / 2.0, y - hgt / 2, pic.width(), hgt), pic,
                         QRectF(pic.rect()));
        }
        p.restore();
    }
    p.drawPixmap(r.topLeft(), reelGlass_);
    // A reel stopped on the answer wears gold until the next pull; a fresh stop glows green when
    // right, blushes red when wrong.
    const double g = double(now_ - stopAt_[i]) / kGlowMs;
    p.setBrush(Qt::NoBrush);
    if (reel.right && !reel.spinning) {
        p.setPen(QPen(QColor(255, 205, 40), std::max(3, r.width() / 40)));
        p.drawRoundedRect(QRectF(r).adjusted(2, 2, -2, -2), 8, 8);
    }
    if (g >= 0 && g < 1) {
        const QColor c = right_[i] ? QColor(90, 255, 120) : QColor(255, 70, 60);
        p.setPen(QPen(withAlpha(c, 1 - g), std::max(4, r.width() / 25)));
        p.drawRoundedRect(QRectF(r).adjusted(3, 3, -3, -3), 8, 8);
        if (right_[i]) {
            for (int k = 0; k < 5; ++k) {
                const double ang = k * 1.256 + g * 3;
                paintSparkle(p, QPointF(r.center().x() + std::cos(ang) * r.width() * 0.42 * (0.4 + g),
                                        r.center().y() + std::sin(ang) * r.height() * 0.3 * (0.4 + g)),
                             r.width() * 0.06, ang, 1 - g);
            }
        } else {
            p.fillRect(r, withAlpha(QColor(255, 40, 40), 0.18 * (1 - g)));
        }
    }
}

void SlotScene::paintLever(QPainter& p) {
    const QPointF pivot = lever_.center();
    double s = 1;
    const double u = double(now_ - pullAt_) / kLeverMs;
    if (u >= 0 && u < 1) {
        // Down hard, then back up more slowly on its spring.
        s = u < 0.3 ? std::cos(M_PI * easeIn(u / 0.3)) : std::cos(M_PI * (1 - easeOut((u - 0.3) / 0.7)));
    }
    const double len = lever_.height() / 2.0 - lever_.width() / 2.0;
    p.save();
    p.translate(pivot);
    p.scale(1, s);
    if (art_.isValid()) art_.render(&p, "lever", QRectF(-lever_.width() / 2.0, -len - lever_.width() / 2.0, lever_.width(), len + lever_.width() / 2.0));
    p.restore();
    if (art_.isValid()) art_.render(&p, "hub", QRectF(pivot.x() - lever_.width() * 0.45, pivot.y() - lever_.width() * 0.45, lever_.width() * 0.9, lever_.width() * 0.9));
}

void SlotScene::paintBulbs(QPainter& p) {
    const int n = int(bulbs_.size());
    const bool party = now_ - jackpotAt_ < kJackpotMs;
    const bool dark = game_.phase() == Phase::Lost;
    for (int i = 0; i < n; ++i) {
        bool lit;
        if (party) lit = (now_ / 120 + i) % 2 == 0;
        else if (dark) lit = false;
        else if (game_.rolling() > 0) lit = (i + now_ / 70) % 4 == 0;
        else lit = i % 2 == 0;
        const QPixmap& pm = lit ? lampLit_ : lamp_;
        p.drawPixmap(bulbs_[i] - QPointF(pm.width() / 2.0, pm.height() / 2.0), pm);
    }
}

void SlotScene::paintCoins(QPainter& p) {
    for (const Coin& c : coins_) {
        if (now_ < c.start) continue;
        const QRect r = coinRect(c, now_);
        p.drawPixmap(r.topLeft() + QPoint(1, 1), coin_);
    }
}

void SlotScene::paintBanner(QPainter& p) {
    if (banner_.isEmpty()) return;
    const double u = clamp01(double(now_ - bannerAt_) / kBannerMs);
    const double k = 0.6 + 0.4 * easeOut(u) + 0.06 * std::sin(M_PI * u);
    const QRectF box(window_.left() + window_.width() * 0.06, window_.top() + window_.height() * 0.03,
                     window_.width() * 0.88, window_.height() * 0.28);
    const QFont f = scene::shrinkToWidth(scene::boldFont(int(box.height() * 0.55)), box.width() * 0.92, banner_, 10);
    p.save();
    p.translate(box.center());
    p.scale(k, k);
    p.translate(-box.center());
    p.setPen(QPen(QColor(255, 220, 90), 3));
    p.setBrush(QColor(30, 8, 40, 225));
    p.drawRoundedRect(box, box.height() / 3, box.height() / 3);
    p.setFont(f);
    const QColor ink = mood_ == Mood::Good ? QColor(255, 226, 60)
                       : mood_ == Mood::Bad ? QColor(255, 110, 100)
                                            : QColor(255, 246, 225);
    p.setPen(ink);
    p.drawText(box, Qt::AlignCenter, banner_);
    p.restore();
}

void SlotScene::paintAll(QPainter& p) {
    p.drawPixmap(0, 0, backPic_);
    // Words squeezed by the drum's curve need no smoothing: it would cost more than the frame.
    for (int i = 0; i < kReels; ++i) paintReel(p, i);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    // The window each reel stops its word in: gold rails above and below it, red arrows beside.
    const double y = reels_[0].center().y(), half = reels_[0].height() * 0.14;
    p.setPen(QPen(QColor(255, 200, 50, 210), std::max(2, reels_[0].height() / 90)));
    for (const QRect& r : reels_)
        for (double at : {y - half, y + half}) p.drawLine(QPointF(r.left() + 2, at), QPointF(r.right() - 2, at));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(235, 30, 40));
    const double l = window_.left() + 3, r = window_.right() - 3, tip = reels_[0].left() - window_.left() - 4;
    p.drawPolygon(QPolygonF({QPointF(l, y - half * 0.6), QPointF(l + tip, y), QPointF(l, y + half * 0.6)}));
    p.drawPolygon(QPolygonF({QPointF(r, y - half * 0.6), QPointF(r - tip, y), QPointF(r, y + half * 0.6)}));
    paintBulbs(p);
    paintLever(p);
    paintBanner(p);
    paintCoins(p);
}

void SlotScene::paintEvent(QPaintEvent* e) {
    QPainter p(this);
    p.setClipRegion(e->region());
    paintAll(p);
}

}  // namespace wm
