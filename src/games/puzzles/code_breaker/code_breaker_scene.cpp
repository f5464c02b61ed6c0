#include "games/puzzles/code_breaker/code_breaker_scene.h"

#include <QPaintEvent>
#include <QPainter>
#include <QRandomGenerator>
#include <cmath>

#include "platform/scene_kit.h"
#include "platform/services.h"
#include "platform/text.h"
#include "platform/ticker.h"

namespace wm {

using namespace code_breaker;

namespace {
constexpr double kTall = 1.5;      // a tile's height to its width
constexpr double kColGap = 0.12;   // between two tiles, of a tile's width
constexpr double kLineGap = 0.25;  // between two lines
constexpr int kPopMs = 220;
constexpr int kFlyMs = 340;
constexpr int kHintMs = 900;
constexpr int kShakeMs = 460;
constexpr int kBannerMs = 260;
constexpr int kKeysPerRow = 13;

enum Ink { Guess, Hinted, Done, Lost, Code, Key, KeyUsed, Shown };

double rnd(QRandomGenerator& dice, double lo, double hi) {
    return lo + dice.generateDouble() * (hi - lo);
}

}  // namespace

CodeScene::CodeScene(const Game& game, QWidget* parent)
    : QWidget(parent),
      game_(game),
      back_(findAsset("images/codebreaker-back.svg")),
      art_(findAsset("images/codebreaker-art.svg")) {
    setObjectName("CodeScene");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

void CodeScene::newCode() {
    popAt_.assign(game_.symbols().size(), -100000);
    hintAt_.assign(game_.symbols().size(), -100000);
    flights_.clear();
    sparks_.clear();
    won_ = lost_ = false;
    shakeAt_ = endAt_ = -100000;
    const int old = side_;
    layOutTiles();
    if (side_ != old) renderSprites();
    composeBack();
    update();
}

void CodeScene::setAreas(const QRect& board, const QRect& band, const QRect& keys) {
    board_ = board;
    band_ = band;
    keys_ = keys;
    layOutTiles();
    renderSprites();
    composeBack();
    if (!banner_.isEmpty()) renderBanner();
    update();
}

void CodeScene::setPanels(const std::vector<QRect>& panels) {
    if (panels == panels_ && !backPic_.isNull()) return;
    panels_ = panels;
    composeBack();
    update();
}

void CodeScene::markClue(bool on) {
    clue_ = on;
    composeBack();
    update();
}

void CodeScene::layOutTiles() {
    const auto& words = game_.words();
    const double tall = (kTall + kLineGap) / (1 + kColGap);
    layout_ = layOut(words, bestColumns(words, board_.width(), board_.height(), tall));
    rects_.assign(layout_.places.size(), QRect());
    if (layout_.lines == 0 || board_.isEmpty()) return;
    // The largest tiles the board holds, and none bigger than a hand.
    const double pitch = std::min({double(board_.width()) / layout_.columns,
                                   board_.height() / (layout_.lines * tall), height() / 8.0});
    side_ = std::max(8, int(pitch / (1 + kColGap)));
    const double px = side_ * (1 + kColGap), py = side_ * (kTall + kLineGap);
    const int h = int(side_ * kTall);
    const double totalH = layout_.lines * py - side_ * kLineGap;
    const double top = board_.top() + (board_.height() - totalH) / 2;
    std::vector<int> width(layout_.lines, 0);
    for (const Place& pl : layout_.places) width[pl.line] = std::max(width[pl.line], pl.column + 1);
    for (int i = 0; i < int(rects_.size()); ++i) {
        const Place& pl = layout_.places[i];
        // Each line stands in the middle of the board.
        const double left = board_.left() + (board_.width() - (width[pl.line] * px - side_ * kColGap)) / 2;
        rects_[i] = QRect(int(left + pl.column * px), int(top + pl.line * py), side_, h);
    }
}

QPixmap CodeScene::sprite(const char* id, QSize size) {
    QPixmap pm(size.expandedTo(QSize(1, 1)));
    pm.fill(Qt::transparent);
    if (!art_.isValid() || !art_.elementExists(id)) return pm;
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    art_.render(&p, id, QRectF(QPointF(0, 0), QSizeF(pm.size())));
    return pm;
}

void CodeScene::renderSprites() {
    glyphs_.clear();
    tilePics_.clear();
    const QSize tile(side_, int(side_ * kTall));
    for (const char* id : {"tile", "tile_sel", "tile_same", "tile_hint", "tile_done", "tile_lost"})
        tilePics_[id] = sprite(id, tile);
    pictures_.clear();
    const int ps = std::max(6, side_ * 11 / 20);
    for (int i = 0; i < kAccentPictures; ++i)
        pictures_.push_back(sprite(qPrintable(QString("sym_%1").arg(i)), QSize(ps, ps)));
    const QSize key = keyRect(0).size();
    key_ = sprite("key", key);
    keyUsed_ = sprite("key_used", key);
}

void CodeScene::composeBack() {
    if (backRaw_.isNull()) return;
    backPic_ = backRaw_;
    QPainter p(&backPic_);
    p.setRenderHint(QPainter::Antialiasing);
    if (art_.isValid() && !board_.isEmpty()) {
        // The sheet round the tiles, never over the clue above them or the line below.
        const QRect sheet = boardBounds()
                                .adjusted(side_ / 2, side_ / 2, -side_ / 2, -side_ / 2)
                                .intersected(board_.adjusted(-side_, -side_ / 8, side_, side_ / 8));
        art_.render(&p, "sheet", QRectF(sheet));
        art_.render(&p, "tray", QRectF(keys_.adjusted(-keys_.height() / 8, -keys_.height() / 10,
                                                      keys_.height() / 8, keys_.height() / 10)));
    }
    for (const QRect& r : panels_) {
        if (r.isEmpty()) continue;
        const double radius = std::min(16.0, r.height() / 3.0);
        p.setPen(QPen(QColor(236, 201, 120, 190), 2));
        p.setBrush(QColor(22, 20, 34, 200));
        p.drawRoundedRect(QRectF(r).adjusted(1, 1, -1, -1), radius, radius);
    }
    if (clue_) {
        // The highlighter stroke of the clue's word, line by line.
        std::map<int, QRect> lines;
        for (int i = 0; i < int(rects_.size()); ++i)
            if (game_.tiles()[i].word == 0) lines[layout_.places[i].line] |= rects_[i];
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(255, 226, 70, 110));
        for (const auto& [line, r] : lines)
            p.drawRoundedRect(r.adjusted(-side_ / 6, -side_ / 8, side_ / 6, side_ / 8), side_ / 5,
                              side_ / 5);
    }
}

void CodeScene::resizeEvent(QResizeEvent*) {
    backRaw_ = scene::coverPicture(back_, size(), QColor(24, 22, 40));
    composeBack();
}

QRect CodeScene::boardBounds() const {
    QRect r;
    for (const QRect& t : rects_) r |= t;
    return r.isEmpty() ? board_ : r.adjusted(-side_, -side_, side_, side_);
}

QRect CodeScene::tileRect(int i) const {
    return i >= 0 && i < int(rects_.size()) ? rects_[i] : QRect();
}

QRect CodeScene::keyRect(int k) const {
    if (k < 0 || k >= 26 || keys_.isEmpty()) return {};
    const double pitchX = std::min(keys_.width() / double(kKeysPerRow), keys_.height() * 0.62);
    const double pitchY = keys_.height() / 2.0;
    const int w = int(pitchX * 0.9), h = int(pitchY * 0.88);
    const double left = keys_.left() + (keys_.width() - pitchX * kKeysPerRow) / 2;
    const int row = k / kKeysPerRow, col = k % kKeysPerRow;
    return QRect(int(left + col * pitchX + (pitchX - w) / 2), int(keys_.top() + row * pitchY), w, h);
}

int CodeScene::tileAt(QPoint at) const {
    for (int i = 0; i < int(rects_.size()); ++i)
        if (rects_[i].adjusted(-side_ / 20, -side_ / 6, side_ / 20, side_ / 6).contains(at))
            return i;
    return -1;
}

char CodeScene::keyAt(QPoint at) const {
    for (int k = 0; k < 26; ++k)
        if (keyRect(k).contains(at)) return char('A' + k);
    return 0;
}

const QPixmap& CodeScene::glyph(char c, int ink, int px) {
    const int key = (ink << 24) | (px << 8) | static_cast<unsigned char>(c);
    auto it = glyphs_.find(key);
    if (it != glyphs_.end()) return it->second;
    static const QColor kInk[] = {QColor(28, 44, 110),  QColor(150, 88, 0),  QColor(18, 112, 50),
                                  QColor(190, 36, 30),  QColor(176, 40, 36), QColor(40, 32, 20),
                                  QColor(150, 140, 120), QColor(40, 40, 60)};
    const QFont f = scene::boldFont(px);
    const QString s = toQ(std::string(1, c));
    const QFontMetrics fm(f);
    QPixmap pm(fm.horizontalAdvance(s) + 4, fm.height() + 2);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setFont(f);
    p.setPen(kInk[ink]);
    p.drawText(pm.rect(), Qt::AlignCenter, s);
    return glyphs_.emplace(key, pm).first->second;
}

void CodeScene::changed() {
    dirtyBoard();
    update(keys_.adjusted(-4, -4, 4, 4));
}

void CodeScene::letterIn(int symbol) {
    if (symbol >= 0 && symbol < int(popAt_.size())) popAt_[symbol] = now_;
    changed();
}

void CodeScene::letterMoved(int from, int to, char letter) {
    std::vector<int> sources, targets;
    for (int i = 0; i < int(rects_.size()); ++i) {
        const int s = game_.tiles()[i].symbol;
        if (s == from) sources.push_back(i);
        if (s == to) targets.push_back(i);
    }
    if (sources.empty()) return letterIn(to);
    // The letter leaves each copy of the old symbol and lands on each copy of the new one.
    for (int k = 0; k < int(targets.size()); ++k) {
        const QRect a = rects_[sources[k % sources.size()]], b = rects_[targets[k]];
        flights_.push_back({QPointF(a.center().x(), a.top() + a.height() * 0.32),
                            QPointF(b.center().x(), b.top() + b.height() * 0.32), letter, now_});
    }
    if (to >= 0 && to < int(popAt_.size())) popAt_[to] = now_ + kFlyMs;
    changed();
}

void CodeScene::hinted(int symbol) {
    if (symbol < 0 || symbol >= int(hintAt_.size())) return;
    hintAt_[symbol] = now_;
    for (int i = 0; i < int(rects_.size()); ++i)
        if (game_.tiles()[i].symbol == symbol) burst(rects_[i], 6);
    changed();
}

void CodeScene::shake() {
    shakeAt_ = now_;
    dirtyBoard();
}

void CodeScene::won() {
    won_ = true;
    endAt_ = now_;
    // A wave of green across the code, each tile sparkling as it turns.
    for (int i = 0; i < int(rects_.size()); ++i) {
        if (game_.tiles()[i].symbol < 0) continue;
        const int before = int(sparks_.size());
        burst(rects_[i], 3);
        for (std::size_t k = before; k < sparks_.size(); ++k) sparks_[k].born += i * kWaveMs;
    }
    dirtyBoard();
}

void CodeScene::lost() {
    lost_ = true;
    endAt_ = now_;
    dirtyBoard();
}

void CodeScene::burst(const QRect& r, int count) {
    for (int i = 0; i < count; ++i) {
        const double a = rnd(dice_, 0, 2 * M_PI), v = rnd(dice_, 0.05, 0.16) * side_ / 50.0;
        sparks_.push_back({QPointF(rnd(dice_, r.left(), r.right()), rnd(dice_, r.top(), r.bottom())),
                           QPointF(std::cos(a) * v, std::sin(a) * v - 0.05), now_,
                           int(rnd(dice_, 500, 900))});
    }
}

void CodeScene::banner(const QString& text, Mood mood) {
    update(banRect_);
    banner_ = text;
    mood_ = mood;
    bannerAt_ = now_;
    renderBanner();
    update(banRect_);
}

void CodeScene::renderBanner() {
    bannerPic_ = QPixmap();
    banRect_ = QRect();
    if (banner_.isEmpty() || band_.isEmpty()) return;
    QFont f = scene::boldFont(std::max(14, band_.height() * 11 / 20));
    const int w = std::min(band_.width(), QFontMetrics(f).horizontalAdvance(banner_) +
                                              band_.height() * 2);
    banRect_ = QRect(band_.center().x() - w / 2, band_.top(), w, band_.height());
    bannerPic_ = QPixmap(banRect_.size());
    bannerPic_.fill(Qt::transparent);
    QPainter p(&bannerPic_);
    p.setRenderHint(QPainter::Antialiasing);
    QColor fill(30, 26, 48, 225), edge(236, 201, 120);
    if (mood_ == Mood::Good) fill = QColor(24, 112, 60, 230), edge = QColor(255, 226, 120);
    if (mood_ == Mood::Bad) fill = QColor(156, 30, 36, 230), edge = QColor(255, 190, 180);
    const QRectF r = QRectF(bannerPic_.rect()).adjusted(2, 2, -2, -2);
    p.setPen(QPen(edge, std::max(2, height() / 300)));
    p.setBrush(fill);
    p.drawRoundedRect(r, r.height() / 2, r.height() / 2);
    // A long message takes a smaller type rather than losing its ends.
    const int room = int(r.width() - r.height());
    const int need = QFontMetrics(f).horizontalAdvance(banner_);
    if (need > room) f.setPixelSize(std::max(8, f.pixelSize() * room / need));
    p.setFont(f);
    p.setPen(Qt::white);
    p.drawText(r, Qt::AlignCenter, banner_);
}

bool CodeScene::busy() const {
    if (!flights_.empty() || !sparks_.empty()) return true;
    if (now_ - bannerAt_ < kBannerMs || now_ - shakeAt_ < kShakeMs) return true;
    if ((won_ || lost_) && now_ - endAt_ < int(rects_.size()) * kWaveMs + kPopMs) return true;
    for (std::size_t i = 0; i < popAt_.size(); ++i)
        if (now_ - popAt_[i] < kPopMs || now_ - hintAt_[i] < kHintMs) return true;
    return false;
}

void CodeScene::dirtyBoard() {
    update(boardBounds());
}

void CodeScene::step(qint64 now) {
    const double dt = std::clamp<double>(double(now - now_), 0.0, 100.0);
    const bool was = busy();
    now_ = now;
    if (now_ - bannerAt_ < kBannerMs + 40) update(banRect_);
    std::erase_if(flights_, [&](const Flight& f) { return now_ - f.start >= kFlyMs; });
    std::erase_if(sparks_, [&](const Spark& s) { return now_ - s.born >= s.life; });
    for (Spark& s : sparks_) {
        if (now_ < s.born) continue;
        s.at += s.v * dt;
        s.v.ry() += 0.0002 * dt;
    }
    if (was || busy()) dirtyBoard();
}

void CodeScene::paintTile(QPainter& p, int i) {
    const Tile& t = game_.tiles()[i];
    QRect r = rects_[i];
    if (now_ - shakeAt_ < kShakeMs) {
        const double u = double(now_ - shakeAt_) / kShakeMs;
        r.translate(int(std::sin(u * 30) * side_ * 0.12 * (1 - u)), 0);
    }
    const QRect top(r.left(), r.top(), r.width(), int(r.height() * 0.62));
    const QRect low(r.left(), top.bottom(), r.width(), r.bottom() - top.bottom());
    auto centred = [&](const QPixmap& pm, const QRect& in, double scale = 1) {
        const QSizeF sz = QSizeF(pm.size()) * scale;
        p.drawPixmap(QRectF(QPointF(in.center()) - QPointF(sz.width() / 2, sz.height() / 2), sz),
                     pm, QRectF(pm.rect()));
    };
    if (t.symbol < 0) {
        if (t.shown != ' ') centred(glyph(t.shown, Shown, side_ * 3 / 5), top);
        return;
    }
    const Symbol& sym = game_.symbols()[t.symbol];
    const bool reached = (won_ || lost_) && now_ >= endAt_ + i * kWaveMs;
    const char* pic = "tile";
    if (reached && won_) pic = "tile_done";
    else if (reached && !sym.right()) pic = "tile_lost";
    else if (sym.hinted) pic = "tile_hint";
    else if (i == game_.selected() && !won_ && !lost_) pic = "tile_sel";
    else if (t.symbol == game_.selectedSymbol() && !won_ && !lost_) pic = "tile_same";
    p.drawPixmap(r.topLeft(), tilePics_[pic]);

    double pop = 1;
    const qint64 since = now_ - std::max(popAt_[t.symbol], reached ? endAt_ + i * kWaveMs : -100000);
    if (since >= 0 && since < kPopMs) pop = 1 + 0.35 * std::sin(M_PI * since / kPopMs);
    bool landing = false;
    for (const Flight& f : flights_)
        if (QRectF(r).contains(f.to)) landing = true;
    const int px = side_ * 31 / 50;
    if (reached && lost_ && !sym.right()) {
        centred(glyph(sym.plain, Lost, px), top, pop);
    } else if (sym.guess && !landing && now_ >= popAt_[t.symbol]) {
        const int ink = reached && won_ ? Done : sym.hinted ? Hinted : Guess;
        centred(glyph(sym.guess, ink, px), top, pop);
    }
    if (sym.code)
        centred(glyph(sym.code, Code, side_ * 2 / 5), low);
    else if (sym.picture >= 0 && sym.picture < int(pictures_.size()))
        centred(pictures_[sym.picture], low);
    if (now_ - hintAt_[t.symbol] < kHintMs) {
        const double u = double(now_ - hintAt_[t.symbol]) / kHintMs;
        p.setOpacity(0.6 * (1 - u));
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(255, 214, 90));
        p.drawRoundedRect(r, side_ / 6.0, side_ / 6.0);
        p.setOpacity(1);
    }
}

void CodeScene::paintKeys(QPainter& p) {
    for (int k = 0; k < 26; ++k) {
        const QRect r = keyRect(k);
        const bool used = game_.holder(char('A' + k)) >= 0;
        p.drawPixmap(r.topLeft(), used ? keyUsed_ : key_);
        const QPixmap& g = glyph(char('A' + k), used ? KeyUsed : Key, r.height() / 2);
        p.drawPixmap(r.center().x() - g.width() / 2, r.top() + r.height() * 9 / 20 - g.height() / 2,
                     g);
    }
}

void CodeScene::paintBanner(QPainter& p) {
    if (bannerPic_.isNull()) return;
    const double u = scene::clamp01(double(now_ - bannerAt_) / kBannerMs);
    const double k = 0.6 + 0.4 * scene::easeOut(u);
    const QSizeF sz = QSizeF(bannerPic_.size()) * k;
    p.drawPixmap(QRectF(QRectF(banRect_).center() - QPointF(sz.width() / 2, sz.height() / 2), sz),
                 bannerPic_, QRectF(bannerPic_.rect()));
}

void CodeScene::paintEvent(QPaintEvent* e) {
    QPainter p(this);
    const QRegion& rg = e->region();
    for (const QRect& r : rg) p.drawPixmap(r, backPic_, r);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int i = 0; i < int(rects_.size()); ++i)
        if (rg.intersects(rects_[i].adjusted(-side_ / 2, -side_ / 2, side_ / 2, side_ / 2)))
            paintTile(p, i);
    for (const Flight& f : flights_) {
        // Up and over in an arc, as if tossed from one tile to the other.
        const double u = scene::easeInOut(double(now_ - f.start) / kFlyMs);
        const QPointF at = scene::lerp(0, 1, u) * (f.to - f.from) + f.from -
                           QPointF(0, std::sin(M_PI * u) * side_ * 1.2);
        const QPixmap& g = glyph(f.letter, Guess, side_ * 31 / 50);
        p.drawPixmap(at - QPointF(g.width() / 2.0, g.height() / 2.0), g);
    }
    for (const Spark& s : sparks_) {
        if (now_ < s.born) continue;
        const double u = double(now_ - s.born) / s.life;
        scene::paintSparkle(p, s.at, side_ * 0.22 * (1 - u * 0.5), u * 3, 1 - u);
    }
    if (rg.intersects(keys_)) paintKeys(p);
    if (rg.intersects(banRect_)) paintBanner(p);
}

}  // namespace wm
