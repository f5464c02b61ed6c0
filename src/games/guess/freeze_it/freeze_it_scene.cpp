#include "games/guess/freeze_it/freeze_it_scene.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>
#include <cmath>

#include "platform/scene_kit.h"
#include "platform/services.h"
#include "platform/text.h"
#include "platform/ticker.h"

namespace wm {

namespace {
constexpr int kMeltMs = 700;
constexpr int kFlashMs = 520;
constexpr int kShakeMs = 520;
constexpr int kGlowMs = 1000;
constexpr int kPopMs = 260;
constexpr int kPerRow = 15;  // longer words go on to another row
constexpr int kFlakes = 22;
constexpr int kTurns = 8;       // the turns a shard is drawn at
constexpr double kTall = 1.15;  // a block's height to its width

double rnd(QRandomGenerator& dice, double lo, double hi) {
    return lo + dice.generateDouble() * (hi - lo);
}

}  // namespace

FreezeScene::FreezeScene(QWidget* parent)
    : QWidget(parent),
      back_(findAsset("images/freeze-back.svg")),
      art_(findAsset("images/freeze-ice.svg")) {
    setObjectName("FreezeScene");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

void FreezeScene::newWord(const std::vector<freeze_it::Block>& blocks) {
    blocks_ = blocks;
    thawAt_.assign(blocks.size(), -100000);
    frozen_ = right_ = melted_ = false;
    freezeAt_ = rightAt_ = wrongAt_ = endAt_ = -100000;
    bits_.clear();
    layout();
    update();
}

void FreezeScene::thawed(int block) {
    if (block < 0 || block >= int(blocks_.size())) return;
    blocks_[block].shown = true;
    thawAt_[block] = now_;
    dirty(rects_[block].adjusted(-side_ / 2, -side_ / 2, side_ / 2, side_));
}

void FreezeScene::frozen(bool on) {
    frozen_ = on;
    if (on) {
        freezeAt_ = now_;
        burst(1, 14, now_);
    }
    dirtyBlocks();
}

void FreezeScene::right() {
    right_ = true;
    frozen_ = false;
    rightAt_ = now_;
    // What was still frozen melts away at once, the letters showing through.
    for (int i = 0; i < int(blocks_.size()); ++i) {
        if (!blocks_[i].shown) thawAt_[i] = now_;
        blocks_[i].shown = true;
    }
    burst(0, 22, now_);
    burst(1, 12, now_);
    dirtyBlocks();
}

void FreezeScene::wrong() {
    wrongAt_ = now_;
    frozen_ = false;
    dirtyBlocks();
}

void FreezeScene::melted() {
    melted_ = true;
    frozen_ = false;
    dirtyBlocks();
}

void FreezeScene::gameWon() {
    endAt_ = now_;
    burst(1, 30, now_);
    burst(0, 10, now_);
}

void FreezeScene::gameLost() {
    endAt_ = now_;
    frozen_ = true;
    freezeAt_ = now_;
    dirtyBlocks();
}

void FreezeScene::banner(const QString& text, Mood mood) {
    dirty(banRect_);
    banner_ = text;
    mood_ = mood;
    bannerAt_ = now_;
    banRect_ = text.isEmpty() ? QRect() : bannerRect();
    renderBanner();
    dirty(banRect_);
}

void FreezeScene::setBlockArea(const QRect& area) {
    area_ = area;
    layout();
    update();
}

QRect FreezeScene::blockRect(int i) const {
    return i >= 0 && i < int(rects_.size()) ? rects_[i] : QRect();
}

void FreezeScene::layout() {
    const int n = int(blocks_.size());
    rects_.assign(n, QRect());
    if (n == 0 || area_.isEmpty()) return;
    const int rows = (n + kPerRow - 1) / kPerRow;
    const int perRow = (n + rows - 1) / rows;
    // The widest a row can take, the tallest the band allows, and no bigger than a hand.
    const double byWidth = area_.width() / (perRow * 1.12);
    const double byHeight = area_.height() / (rows * (kTall + 0.22));
    const int side = std::max(8, int(std::min({byWidth, byHeight, height() / 6.0})));
    const int gap = std::max(2, side / 8);
    const int h = int(side * kTall);
    const int totalH = rows * h + (rows - 1) * (side / 4);
    const int top = area_.top() + (area_.height() - totalH) / 2;
    for (int i = 0; i < n; ++i) {
        const int row = i / perRow, col = i % perRow;
        const int inRow = std::min(perRow, n - row * perRow);
        const int left = area_.left() + (area_.width() - (inRow * side + (inRow - 1) * gap)) / 2;
        rects_[i] = QRect(left + col * (side + gap), top + row * (h + side / 4), side, h);
    }
    if (side != side_) {
        side_ = side;
        renderSprites();
    }
    if (!banner_.isEmpty()) {
        banRect_ = bannerRect();
        renderBanner();
    }
}

QPixmap FreezeScene::sprite(const char* id, QSize size) {
    QPixmap pm(size);
    pm.fill(Qt::transparent);
    if (!art_.isValid() || !art_.elementExists(id)) return pm;
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    art_.render(&p, id, QRectF(QPointF(0, 0), QSizeF(size)));
    return pm;
}

void FreezeScene::renderSprites() {
    const QSize block(side_, int(side_ * kTall));
    ice_ = sprite("ice", block);
    glass_ = sprite("glass", block);
    frost_ = sprite("frost", block);
    puddle_ = sprite("puddle", QSize(side_ * 13 / 10, std::max(4, side_ * 3 / 10)));
    drop_ = sprite("drop", QSize(std::max(4, side_ / 8), std::max(6, side_ / 5)));
    shard_ = sprite("shard", QSize(std::max(6, side_ / 4), std::max(6, side_ / 4)));
    // A shard tumbles through turns drawn once here: a turned picture every frame costs dear.
    settled_.clear();
    shardTurns_.clear();
    for (int k = 0; k < kTurns; ++k) {
        const int d = int(shard_.width() * 1.5);
        QPixmap pm(d, d);
        pm.fill(Qt::transparent);
        QPainter p(&pm);
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        p.translate(d / 2.0, d / 2.0);
        p.rotate(360.0 * k / kTurns);
        p.drawPixmap(-shard_.width() / 2, -shard_.height() / 2, shard_);
        shardTurns_.push_back(pm);
    }
    sparkle_ = sprite("sparkle", QSize(std::max(8, side_ / 3), std::max(8, side_ / 3)));
}

void FreezeScene::setPanels(const std::vector<QRect>& panels) {
    if (panels == panels_ && !backPic_.isNull()) return;
    panels_ = panels;
    composeBack();
    update();
}

void FreezeScene::composeBack() {
    // The labels' frosted panels belong to the picture: the snow that passes behind them then
    // costs no label a repaint.
    backPic_ = backRaw_;
    if (backPic_.isNull()) return;
    QPainter p(&backPic_);
    p.setRenderHint(QPainter::Antialiasing);
    for (const QRect& r : panels_) {
        if (r.isEmpty()) continue;
        const double radius = std::min(16.0, r.height() / 3.0);
        p.setPen(QPen(QColor(190, 235, 255, 200), 2));
        p.setBrush(QColor(14, 40, 84, 185));
        p.drawRoundedRect(QRectF(r).adjusted(1, 1, -1, -1), radius, radius);
    }
}

void FreezeScene::resizeEvent(QResizeEvent*) {
    backRaw_ = scene::coverPicture(back_, size(), QColor(18, 40, 86));
    composeBack();
    const int fs = std::max(10, height() / 60);
    flake_ = sprite("flake", QSize(fs, fs));
    flakes_.clear();
    for (int i = 0; i < kFlakes; ++i)
        flakes_.push_back({rnd(dice_, 0, width()), rnd(dice_, 0, height()), rnd(dice_, 0.02, 0.06),
                           rnd(dice_, -0.01, 0.01), int(rnd(dice_, 0.5, 1.0) * fs), QRect()});
    layout();
}

QRect FreezeScene::blocksBounds() const {
    QRect r;
    for (const QRect& b : rects_) r |= b;
    return r.adjusted(-side_, -side_, side_, side_ * 3 / 2);
}

QRect FreezeScene::bannerRect() const {
    QFont f = scene::boldFont(std::max(14, height() / 24));
    const int w =
        std::min(width() - 40, QFontMetrics(f).horizontalAdvance(banner_) + height() / 10);
    const int h = height() / 13;
    const QRect blocks = blocksBounds();
    const int y = std::max(area_.top() - h, blocks.top() - h - height() / 60);
    return QRect((width() - w) / 2, y, w, h).adjusted(-12, -12, 12, 12);
}

void FreezeScene::burst(int kind, int count, qint64 now) {
    const QRect b = blocksBounds().adjusted(side_, side_, -side_, -side_ * 3 / 2);
    if (b.isEmpty()) return;
    for (int i = 0; i < count; ++i) {
        const double a = rnd(dice_, 0, 2 * M_PI), v = rnd(dice_, 0.15, 0.55) * side_ / 60.0;
        bits_.push_back({rnd(dice_, b.left(), b.right()), rnd(dice_, b.top(), b.bottom()),
                         std::cos(a) * v, std::sin(a) * v - 0.25 * side_ / 60.0,
                         rnd(dice_, -0.01, 0.01), rnd(dice_, 0, 6.28), now,
                         int(rnd(dice_, 600, 1100)), kind, QRect()});
    }
}

void FreezeScene::dirty(const QRect& r) {
    if (!r.isEmpty()) update(r);
}

void FreezeScene::dirtyBlocks() {
    // Each block with room for the shake, the frost ring and its puddle: far less than the
    // box round them all.
    const int m = side_ / 4 + 2;
    for (const QRect& r : rects_) dirty(r.adjusted(-m, -m, m, m + side_ / 6));
}

void FreezeScene::step(qint64 now) {
    const double dt = std::clamp<double>(double(now - now_), 0.0, 100.0);
    now_ = now;
    for (Flake& f : flakes_) {
        dirty(f.last);
        f.y += f.speed * dt;
        f.x += f.drift * dt;
        if (f.y > height()) f.y = -f.size, f.x = rnd(dice_, 0, width());
        f.last = QRect(int(f.x), int(f.y), f.size, f.size);
        dirty(f.last);
    }
    for (int i = 0; i < int(blocks_.size()); ++i) {
        // The drops of a melting block fall a little after the ice has gone.
        if (now - thawAt_[i] < kMeltMs + 500)
            dirty(rects_[i].adjusted(-side_ / 4, -side_ / 4, side_ / 4, side_ / 2));
    }
    if (now - freezeAt_ < kFlashMs + 40 || now - wrongAt_ < kShakeMs + 40 ||
        now - rightAt_ < kGlowMs + 40)
        dirtyBlocks();
    if (now - bannerAt_ < kPopMs + 40) dirty(banRect_);
    for (auto it = bits_.begin(); it != bits_.end();) {
        dirty(it->last);
        if (now - it->born > it->life) {
            it = bits_.erase(it);
            continue;
        }
        it->x += it->vx * dt;
        it->y += it->vy * dt;
        it->vy += 0.0006 * side_ / 60.0 * dt;  // gravity
        it->angle += it->spin * dt;
        const int s = it->kind == 1 ? sparkle_.width() : shard_.width() * 3 / 4 + 1;
        it->last = QRect(int(it->x) - s, int(it->y) - s, 2 * s, 2 * s);
        dirty(it->last);
        ++it;
    }
}

void FreezeScene::paintLetterBlock(QPainter& p, const QRect& r, char letter, int ink,
                                   double strength) const {
    static const QColor kInk[] = {QColor(12, 52, 120), QColor(170, 96, 0), QColor(190, 40, 40)};
    const bool small = letter == '-' || letter == '\'';
    p.drawPixmap(r.left() - side_ * 3 / 20, r.bottom() - puddle_.height() / 2, puddle_);
    p.drawPixmap(r.topLeft(), glass_);
    p.setFont(scene::boldFont(int(side_ * (small ? 0.5 : 0.62))));
    p.setPen(kInk[ink]);
    p.setOpacity(strength);
    p.drawText(r.adjusted(0, -side_ / 20, 0, 0), Qt::AlignCenter, toQ(std::string(1, letter)));
    p.setOpacity(1);
}

void FreezeScene::paintBlock(QPainter& p, int i, qint64 now) {
    const freeze_it::Block& b = blocks_[i];
    if (b.letter == ' ') return;
    QRect r = rects_[i];
    if (now - wrongAt_ < kShakeMs) {
        const double t = double(now - wrongAt_) / kShakeMs;
        r.translate(int(std::sin(t * 28 + i) * side_ * 0.08 * (1 - t)), 0);
    }
    const double melt = std::clamp(double(now - thawAt_[i]) / kMeltMs, 0.0, 1.0);
    const double dripT = double(now - thawAt_[i]) / (kMeltMs + 500);
    const int ink = right_ ? 1 : melted_ ? 2 : 0;
    if (b.shown && dripT >= 1) {
        // A block at rest is one picture: puddle, glass and letter drawn together once.
        const int key = (ink << 8) | static_cast<unsigned char>(b.letter);
        auto it = settled_.find(key);
        if (it == settled_.end()) {
            QPixmap pm(side_ * 13 / 10, r.height() + puddle_.height() / 2 + 1);
            pm.fill(Qt::transparent);
            QPainter q(&pm);
            q.setRenderHint(QPainter::Antialiasing);
            paintLetterBlock(q, QRect(side_ * 3 / 20, 0, r.width(), r.height()), b.letter, ink, 1);
            it = settled_.emplace(key, pm).first;
        }
        p.drawPixmap(r.left() - side_ * 3 / 20, r.top(), it->second);
    } else if (b.shown) {
        paintLetterBlock(p, r, b.letter, ink, 0.35 + 0.65 * melt);
        if (melt < 1) {
            // The ice sinks away from the top and clears, the letter showing through.
            const int gone = int(r.height() * 0.7 * melt);
            p.setOpacity(1 - melt);
            p.drawPixmap(QRect(r.left(), r.top() + gone, r.width(), r.height() - gone), ice_,
                         QRect(0, gone, ice_.width(), ice_.height() - gone));
            p.setOpacity(1);
        }
        if (dripT >= 0 && dripT < 1) {
            for (int d = 0; d < 3; ++d) {
                const double t = dripT * 1.6 - d * 0.3;
                if (t < 0 || t > 1) continue;
                const int x = r.left() + r.width() * (d + 1) / 4 - drop_.width() / 2;
                const int y = r.bottom() - drop_.height() + int(t * t * side_ * 0.4);
                p.drawPixmap(x, y, drop_);
            }
        }
    } else {
        p.drawPixmap(r.topLeft(), ice_);
    }
    if (frozen_ || (!b.shown && melted_)) p.drawPixmap(r.topLeft(), frost_);
    if (right_ && now - rightAt_ < kGlowMs) {
        const double t = double(now - rightAt_) / kGlowMs;
        p.setOpacity(0.45 * (1 - t));
        p.fillRect(r, QColor(255, 226, 120));
        p.setOpacity(1);
    }
}

void FreezeScene::renderBanner() {
    bannerPic_ = QPixmap();
    if (banner_.isEmpty() || banRect_.isEmpty()) return;
    // Drawn once and scaled as it pops up: new type sizes every frame would cost far more.
    const QRect r(12, 12, banRect_.width() - 24, banRect_.height() - 24);
    bannerPic_ = QPixmap(banRect_.size());
    bannerPic_.fill(Qt::transparent);
    QPainter p(&bannerPic_);
    p.setRenderHint(QPainter::Antialiasing);
    QColor fill(16, 46, 96, 215), edge(170, 225, 255), ink(255, 255, 255);
    if (mood_ == Mood::Good) fill = QColor(22, 110, 60, 225), edge = QColor(255, 226, 120);
    if (mood_ == Mood::Bad) fill = QColor(150, 30, 40, 225), edge = QColor(255, 180, 180);
    if (mood_ == Mood::Cold) fill = QColor(70, 90, 130, 225);
    p.setPen(QPen(edge, std::max(2, height() / 300)));
    p.setBrush(fill);
    p.drawRoundedRect(r, r.height() / 2.0, r.height() / 2.0);
    QFont f = scene::boldFont(std::max(14, height() / 24));
    // A long word takes a smaller type rather than losing its ends.
    const int room = r.width() - r.height() / 2;
    const int need = QFontMetrics(f).horizontalAdvance(banner_);
    if (need > room) f.setPixelSize(std::max(8, f.pixelSize() * room / need));
    p.setFont(f);
    p.setPen(ink);
    p.drawText(r, Qt::AlignCenter, banner_);
}

void FreezeScene::paintBanner(QPainter& p) const {
    if (bannerPic_.isNull()) return;
    const double pop = std::clamp(double(now_ - bannerAt_) / kPopMs, 0.0, 1.0);
    if (pop >= 1) {
        p.drawPixmap(banRect_.topLeft(), bannerPic_);
        return;
    }
    const double k = 0.6 + 0.4 * (1 - (1 - pop) * (1 - pop));
    const QSizeF sz = QSizeF(bannerPic_.size()) * k;
    const QPointF c = QRectF(banRect_).center();
    p.drawPixmap(QRectF(c - QPointF(sz.width() / 2, sz.height() / 2), sz), bannerPic_,
                 QRectF(bannerPic_.rect()));
}

void FreezeScene::paintEvent(QPaintEvent* e) {
    QPainter p(this);
    const QRegion& rg = e->region();
    for (const QRect& r : rg) p.drawPixmap(r, backPic_, r);
    p.setRenderHint(QPainter::Antialiasing);
    // Only what lies in the changed parts is drawn again.
    for (const Flake& f : flakes_)
        if (rg.intersects(f.last)) p.drawPixmap(f.last, flake_);
    for (int i = 0; i < int(rects_.size()); ++i)
        if (rg.intersects(rects_[i].adjusted(-side_ / 3, -side_ / 3, side_ / 3, side_ / 2)))
            paintBlock(p, i, now_);
    for (const Bit& b : bits_) {
        if (!rg.intersects(b.last)) continue;
        const double t = double(now_ - b.born) / b.life;
        p.setOpacity(std::clamp(1.2 - t, 0.0, 1.0));
        const int turn = int(std::floor(b.angle / (2 * M_PI) * kTurns)) % kTurns;
        const QPixmap& pm =
            b.kind == 1 || shardTurns_.empty() ? sparkle_ : shardTurns_[(turn + kTurns) % kTurns];
        p.drawPixmap(int(b.x) - pm.width() / 2, int(b.y) - pm.height() / 2, pm);
    }
    p.setOpacity(1);
    if (now_ - freezeAt_ < kFlashMs) {
        // The crisp freeze: each block flashes white and a ring of frost snaps out round it.
        const double t = double(now_ - freezeAt_) / kFlashMs;
        p.setPen(Qt::NoPen);
        for (const QRect& r : rects_) {
            p.setOpacity(0.8 * (1 - t) * (1 - t));
            p.setBrush(QColor(240, 252, 255));
            p.drawRoundedRect(r, side_ / 7.0, side_ / 7.0);
            p.setOpacity(1 - t);
            p.setBrush(Qt::NoBrush);
            p.setPen(QPen(QColor(220, 246, 255), std::max(2, side_ / 20)));
            const int grow = int(t * side_ / 4);
            p.drawRoundedRect(r.adjusted(-grow, -grow, grow, grow), side_ / 6.0, side_ / 6.0);
            p.setPen(Qt::NoPen);
        }
        p.setOpacity(1);
    }
    if (rg.intersects(banRect_)) paintBanner(p);
}

}  // namespace wm
