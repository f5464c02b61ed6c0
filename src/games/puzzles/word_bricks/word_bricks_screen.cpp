#include "games/puzzles/word_bricks/word_bricks_screen.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>
#include <algorithm>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

using namespace word_bricks;

namespace {
constexpr int kFallMs = 420;   // one brick's fall from the sky to the heap
constexpr int kGlowMs = 700;   // a built girder's sparkle

QLabel* statusLabel(const char* name, Qt::Alignment align, QWidget* parent) {
    auto* l = new QLabel(parent);
    l->setObjectName(name);
    l->setAlignment(align | Qt::AlignVCenter);
    l->setFont(ScreenFont(16, true));
    l->setStyleSheet(
        "QLabel { color: #fffbea; background: rgba(40, 52, 80, 170); border-radius: 10px;"
        " padding: 0 14px; }");
    l->setAttribute(Qt::WA_TransparentForMouseEvents);
    return l;
}

qint64 now() {
    return Ticker::get().now();
}

double easeOut(double u) {
    return 1 - std::pow(1 - u, 3);
}
}  // namespace

WordBricks::WordBricks(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames(), [this] { SetupGame(); }),
      Timer1(frame_.timer("Timer1", 1000,
                          [this] {
                              tick(game_);
                              showStatus();
                          })),
      Timer2(frame_.timer("Timer2", Ticker::kFrameMs, [this] { animate(); })),
      Timer3(frame_.timer(
          "Timer3", kTipMs, [this] { beginPlay(); }, true)),
      Timer4(frame_.timer(
          "Timer4", kEndMs,
          [this] {
              Shared().Score = game_.score;
              frame_.wonGame();
          },
          true)) {
    setWindowTitle("Word Bricks");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(false);
    frame_.setMusic(MusicKind::Shared, "wordbricks.mid");
    // The finished site keeps sparkling behind the end boxes.
    frame_.runOnThroughEnd("Timer2");
    ScoreLabel = statusLabel("ScoreLabel", Qt::AlignLeft, this);
    WordsLabel = statusLabel("WordsLabel", Qt::AlignHCenter, this);
    ClockLabel = statusLabel("ClockLabel", Qt::AlignRight, this);
    Caption = new QLabel(this);
    Caption->setObjectName("Caption");
    Caption->setAlignment(Qt::AlignCenter);
    Caption->setFont(ScreenFont(30, true));
    Caption->setStyleSheet(
        "QLabel { color: #7a3b10; background: rgba(255, 246, 214, 230);"
        " border: 4px solid #d98b2b; border-radius: 22px; }");
    Caption->setAttribute(Qt::WA_TransparentForMouseEvents);
    Caption->hide();
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void WordBricks::SetupGame() {
    SharedState& s = Shared();
    TheRng().Randomize();
    game_ = deal(s, s.Difficulty, TheRng());
    s.Score = 0;
    const int n = int(game_.bricks.size());
    playing_ = false;
    dragged_ = -1;
    slides_.assign(n, {});
    home_.assign(n, {});
    order_.clear();
    for (int i = 0; i < n; ++i) order_.push_back(i);
    builtAt_.assign(game_.lines.size(), -1);
    shownAt_.assign(n, {});
    clues_.assign(game_.lines.size(), {});
    layOut();
    showStatus();
    update();
    if (!game_.ready()) {
        Caption->hide();
        frame_.refuse(kTooFewWords, windowTitle());
        return;
    }
    // The heap: rows of places on the ground, filled in the order the bricks were tipped.
    const QRectF g = groundRect();
    const double pitchX = 3 * cell_ + brickH_ * 0.3;
    const int perRow = std::max(1, int(g.width() / pitchX));
    const int rows = (n + perRow - 1) / perRow;
    const double pitchY =
        rows > 1 ? std::min(brickH_ * 1.25, (g.height() - brickH_) / (rows - 1)) : 0;
    const double used = rows * brickH_ + (rows - 1) * (pitchY - brickH_);
    const double top = g.top() + (g.height() - used) / 2;
    const int stagger = std::min(40, (kTipMs - kFallMs - 150) / std::max(1, n));
    for (int i = 0; i < n; ++i) {
        const int row = i / perRow, col = i % perRow;
        const int inRow = std::min(perRow, n - row * perRow);
        const double left = g.left() + (g.width() - inRow * pitchX) / 2;
        // A little untidy, as a tipped heap is.
        const double jx = ((i * 37) % 11 - 5) / 5.0 * brickH_ * 0.12;
        const double jy = ((i * 53) % 7 - 3) / 3.0 * brickH_ * 0.08;
        const QSizeF sz = brickSize(i);
        setHome(i, {left + col * pitchX + (pitchX - sz.width()) / 2 + jx, top + row * pitchY + jy});
        const QPointF rest = homeOf(i);
        slide(i, {rest.x(), -sz.height() - brickH_ * (1 + (i % 3))}, i * stagger + 1, kFallMs);
    }
    Caption->setText("Here come the bricks!");
    Caption->show();
    Caption->raise();
    sound().effect("bricks-tip.wav");
    Timer3.start();
}

void WordBricks::beginPlay() {
    playing_ = true;
    Caption->hide();
    Timer1.start();
    frame_.startMusic();
}

QRectF WordBricks::groundRect() const {
    const double k = height() / 800.0;
    return QRectF(24 * k, height() * 0.75, width() - 48 * k, height() * 0.25 - 14 * k);
}

void WordBricks::layOut() {
    const int w = width(), h = height();
    const double k = h / 800.0;
    const int barTop = frame_.menuHeight() + int(8 * k), barH = int(40 * k);
    const int third = (w - w / 20) / 3;
    ScoreLabel->setGeometry(w / 40, barTop, third - w / 80, barH);
    WordsLabel->setGeometry(w / 40 + third, barTop, third, barH);
    ClockLabel->setGeometry(w / 40 + 2 * third + w / 80, barTop, third - w / 80, barH);
    const int n = std::max(1, int(game_.lines.size()));
    const double top = barTop + barH + 10 * k, bottom = h * 0.75 - 14 * k;
    rowH_ = std::min(78 * k, (bottom - top) / n);
    brickH_ = std::min(54 * k, rowH_ - 8 * k);
    cell_ = brickH_ * 0.62;
    stripX_ = w - 30 * k - kMaxLength * cell_;
    linesTop_ = top + (bottom - top - n * rowH_) / 2;
    // Over the ground, clear of the girders and what stands on them.
    Caption->setGeometry(w / 4, int(h * 0.875 - 45 * k), w / 2, int(90 * k));
    art_.resize(size());
    backdropStale_ = true;
    for (int i = 0; i < int(game_.lines.size()); ++i) {
        const QRect sign = signRect(i);
        // A little room above and below the letters, so that two lines never touch the edge.
        const QSizeF box(sign.width() - sign.height() * 0.8, sign.height() * 0.8);
        clues_[i] = fitClue(toQ(game_.lines[i].clue), box,
                            int(std::min(22 * k, sign.height() * 0.36)), std::max(10, int(11 * k)));
    }
}

QRect WordBricks::lineRect(int line) const {
    const double y = linesTop_ + line * rowH_ + (rowH_ - brickH_) / 2;
    return QRectF(stripX_, y, Len(game_.lines[line].word) * cell_, brickH_).toRect();
}

QRect WordBricks::signRect(int line) const {
    const double k = height() / 800.0;
    const double y = linesTop_ + line * rowH_ + 3 * k;
    return QRectF(20 * k, y, stripX_ - 50 * k, rowH_ - 6 * k).toRect();
}

int WordBricks::lineAt(QPointF c) const {
    for (int i = 0; i < int(game_.lines.size()); ++i) {
        const double y = linesTop_ + i * rowH_;
        if (c.y() >= y && c.y() < y + rowH_ && c.x() >= signRect(i).left()) return i;
    }
    return -1;
}

QSizeF WordBricks::brickSize(int i) const {
    return {std::max(1, Len(game_.bricks[i].text)) * cell_, brickH_};
}

QPointF WordBricks::homeOf(int i) const {
    const QRectF g = groundRect();
    const QSizeF sz = brickSize(i);
    const double x = g.left() + home_[i].x() * g.width();
    const double y = g.top() + home_[i].y() * g.height();
    return {std::clamp(x, g.left(), std::max(g.left(), g.right() - sz.width())),
            std::clamp(y, g.top(), std::max(g.top(), g.bottom() - sz.height()))};
}

void WordBricks::setHome(int i, QPointF at) {
    const QRectF g = groundRect();
    home_[i] = {(at.x() - g.left()) / g.width(), (at.y() - g.top()) / g.height()};
    home_[i] = homeOf(i) - g.topLeft();
    home_[i] = {home_[i].x() / g.width(), home_[i].y() / g.height()};
}

QPointF WordBricks::restingAt(int i) const {
    const Brick& b = game_.bricks[i];
    if (b.line < 0) return homeOf(i);
    const QRect cells = lineRect(b.line);
    int before = 0;
    for (int j : game_.lines[b.line].bricks) {
        if (j == i) break;
        before += Len(game_.bricks[j].text);
    }
    return {cells.left() + before * cell_, double(cells.top())};
}

QRectF WordBricks::brickRect(int i) const {
    const QSizeF sz = brickSize(i);
    if (i == dragged_) return {dragAt_, sz};
    const QPointF rest = restingAt(i);
    const Slide& s = slides_[i];
    if (s.start < 0) return {rest, sz};
    const double e = double(now() - s.start);
    if (e < s.delay) {
        QPointF at = s.from;
        if (s.shake) at.rx() += std::sin(e / 28.0) * brickH_ * 0.14;
        return {at, sz};
    }
    const double u = std::clamp((e - s.delay) / std::max(1, s.ms), 0.0, 1.0);
    // A falling brick speeds up; one that slides eases into its place.
    const double f = s.delay > 0 && !s.shake ? u * u : easeOut(u);
    return {s.from + (rest - s.from) * f, sz};
}

bool WordBricks::animating() const {
    const qint64 t = now();
    for (const Slide& s : slides_)
        if (s.start >= 0 && t - s.start < s.delay + s.ms) return true;
    for (qint64 b : builtAt_)
        if (b >= 0 && t - b < kGlowMs) return true;
    return false;
}

void WordBricks::slide(int i, QPointF from, int delay, int ms, bool shake) {
    slides_[i] = {from, now(), delay, ms, shake};
    shownAt_[i] = QRectF(from, brickSize(i));
    if (!Timer2.isActive()) Timer2.start();
}

void WordBricks::raise(int i) {
    order_.erase(std::find(order_.begin(), order_.end(), i));
    order_.push_back(i);
}

void WordBricks::showStatus() {
    ScoreLabel->setText(QString("Score: %1").arg(game_.score, 0, 'f', 0));
    WordsLabel->setText(QString("Words built: %1 of %2").arg(game_.built).arg(game_.lines.size()));
    ClockLabel->setText(QString("Time: %1").arg(toQ(clockText(game_.seconds))));
}

void WordBricks::press(QPointF at) {
    if (!playing_ || game_.won() || frame_.leaving() || dragged_ >= 0) return;
    for (auto it = order_.rbegin(); it != order_.rend(); ++it) {
        const int i = *it;
        const Brick& b = game_.bricks[i];
        if (b.line >= 0 && game_.lines[b.line].built) continue;
        const QRectF r = brickRect(i);
        if (!r.contains(at)) continue;
        dragged_ = i;
        grab_ = at - r.topLeft();
        dragAt_ = r.topLeft();
        slides_[i].start = -1;
        raise(i);
        sound().effect("bricks-pick.wav");
        update(r.adjusted(-brickH_, -brickH_, brickH_, brickH_).toAlignedRect());
        return;
    }
}

void WordBricks::moveTo(QPointF at) {
    if (dragged_ < 0) return;
    const QRectF before = brickRect(dragged_);
    dragAt_ = at - grab_;
    const double m = brickH_ * 0.5;
    update((before | brickRect(dragged_)).adjusted(-m, -m, m, m).toAlignedRect());
}

void WordBricks::release(QPointF at) {
    if (dragged_ < 0) return;
    moveTo(at);
    const int i = dragged_;
    const QPointF from = dragAt_;
    const QPointF centre = QRectF(from, brickSize(i)).center();
    dragged_ = -1;
    // Where every brick shows now, so that those whose place changes slide there from it.
    std::vector<QPointF> shown;
    for (int j = 0; j < int(game_.bricks.size()); ++j) shown.push_back(brickRect(j).topLeft());
    shown[i] = from;
    const int line = lineAt(centre);
    DropResult r;
    if (line >= 0) {
        // In front of the first brick whose middle is right of the dropped one's.
        int before = 0;
        for (int j : game_.lines[line].bricks)
            if (j != i && brickRect(j).center().x() < centre.x()) ++before;
        r = drop(game_, i, line, before);
    } else {
        r = drop(game_, i, -1);
        // Let go over the sky or a sign, a brick drops straight down to the ground.
        if (r.what == Drop::Moved) setHome(i, from);
    }
    // A wrong girder shakes, then every brick on it tumbles back to its place on the ground.
    for (int j : r.shaken) slide(j, shown[j], kShakeMs, 320, true);
    for (int j = 0; j < int(game_.bricks.size()); ++j) {
        const bool shaken = std::find(r.shaken.begin(), r.shaken.end(), j) != r.shaken.end();
        if (!shaken && (j == i || restingAt(j) != shown[j])) slide(j, shown[j], 0, kSlideMs);
    }
    settle(r, line);
}

void WordBricks::settle(const DropResult& r, int line) {
    switch (r.what) {
        case Drop::Refused:
            sound().effect("bricks-bump.wav");
            break;
        case Drop::Moved:
            break;
        case Drop::Placed:
            sound().effect("bricks-snap.wav");
            break;
        case Drop::Built:
        case Drop::Won:
            builtAt_[line] = now() + kSlideMs;
            backdropStale_ = true;  // its chalk marks are gone
            sound().effect(r.what == Drop::Won ? "bricks-win.wav" : "bricks-built.wav");
            if (r.what == Drop::Won) {
                Timer1.stop();
                // Every girder sparkles once more, one after the other.
                for (int l = 0; l < int(builtAt_.size()); ++l)
                    builtAt_[l] = now() + kSlideMs + 120 * l;
                Caption->setText("Well built!");
                Caption->show();
                Caption->raise();
                Timer4.start();
            }
            break;
        case Drop::Shaken:
            sound().effect("bricks-shake.wav");
            break;
    }
    showStatus();
    update();
}

void WordBricks::animate() {
    // Only what moves is painted again: each moving brick where it was and where it is.
    QRegion dirty;
    const double m = brickH_ * 0.3;
    for (int i = 0; i < int(slides_.size()); ++i) {
        if (slides_[i].start < 0) continue;
        const QRectF at = brickRect(i);
        dirty += (shownAt_[i] | at).adjusted(-m, -m, m, m).toAlignedRect();
        shownAt_[i] = at;
    }
    const qint64 t = now();
    for (int l = 0; l < int(builtAt_.size()); ++l) {
        if (builtAt_[l] < 0 || t - builtAt_[l] > kGlowMs + 2 * Ticker::kFrameMs) continue;
        dirty += lineRect(l).adjusted(-int(brickH_), -int(brickH_), int(brickH_), 0);
    }
    update(dirty);
    if (!animating()) {
        for (Slide& s : slides_) s.start = -1;
        Timer2.stop();
    }
}

void WordBricks::renderBackdrop() {
    backdrop_ = QPixmap(size().expandedTo(QSize(1, 1)));
    QPainter p(&backdrop_);
    p.drawPixmap(0, 0, art_.site());
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const double k = height() / 800.0;
    for (int l = 0; l < int(game_.lines.size()); ++l) {
        const Line& line = game_.lines[l];
        const QRect sign = signRect(l);
        p.drawPixmap(sign.topLeft(), art_.sign(sign.size()));
        const ClueText& c = clues_[l];
        p.setFont(c.font);
        p.setPen(QColor(70, 40, 12));
        const double ls = QFontMetricsF(c.font).lineSpacing();
        double y = sign.center().y() - ls * c.lines.size() / 2;
        for (const QString& text : c.lines) {
            p.drawText(QRectF(sign.left() + sign.height() * 0.4, y,
                              sign.width() - sign.height() * 0.8, ls),
                       Qt::AlignVCenter | Qt::AlignLeft, text);
            y += ls;
        }
        const QRect cells = lineRect(l);
        // The girder the bricks stand on, and chalk marks for every letter still to come.
        const QRect beam(int(cells.left() - 8 * k), cells.bottom() - int(2 * k),
                         int(cells.width() + 16 * k), int(14 * k));
        p.drawPixmap(beam.topLeft(), art_.girder(beam.size()));
        if (line.built) continue;
        p.setPen(QPen(QColor(255, 255, 255, 200), std::max(1.0, 2 * k), Qt::DashLine));
        p.setBrush(QColor(30, 50, 90, 70));
        for (int c = 0; c < Len(line.word); ++c)
            p.drawRoundedRect(QRectF(cells.left() + c * cell_ + 3 * k, cells.top() + 3 * k,
                                     cell_ - 6 * k, cells.height() - 6 * k),
                              4 * k, 4 * k);
    }
    backdropStale_ = false;
}

void WordBricks::paintSite(QPainter& p, const QRegion& region) {
    if (backdropStale_) renderBackdrop();  // every new layout marks it stale
    for (const QRect& r : region) p.drawPixmap(r, backdrop_, r);
    p.setRenderHint(QPainter::Antialiasing);
    const qint64 t = now();
    for (int l = 0; l < int(game_.lines.size()); ++l) {
        const double since = builtAt_[l] >= 0 ? double(t - builtAt_[l]) : -1;
        if (since < 0 || since >= kGlowMs) continue;
        // Sparkles rise off a girder as it lights up.
        const QRect cells = lineRect(l);
        const double u = since / kGlowMs;
        p.setPen(Qt::NoPen);
        for (int s = 0; s < 10; ++s) {
            const double x = cells.left() + (s + 0.5) * cells.width() / 10.0;
            const double y = cells.top() - u * brickH_ * (0.6 + 0.4 * ((s * 7) % 3));
            const double r = brickH_ * 0.12 * (1 - u);
            p.setBrush(QColor(255, 230 - s * 8, 90, int(255 * (1 - u))));
            QPainterPath star;
            for (int q = 0; q < 8; ++q) {
                const double a = q * M_PI / 4, rr = q % 2 ? r * 0.4 : r;
                const QPointF pt(x + rr * std::cos(a), y + rr * std::sin(a));
                q ? star.lineTo(pt) : star.moveTo(pt);
            }
            p.drawPath(star);
        }
    }
    const double m = brickH_ * 0.3;
    for (int i : order_) {
        const QRectF r = brickRect(i);
        if (!region.intersects(r.adjusted(-m, -m, m, m).toAlignedRect())) continue;
        const Brick& b = game_.bricks[i];
        const bool built = b.line >= 0 && game_.lines[b.line].built;
        const bool lifted = i == dragged_;
        const double off = brickH_ * (lifted ? 0.22 : 0.07);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(30, 20, 10, lifted ? 70 : 100));
        p.drawRoundedRect(r.translated(off * 0.7, off), brickH_ * 0.1, brickH_ * 0.1);
        art_.paintBrick(p, lifted ? r.translated(0, -brickH_ * 0.05) : r, toQ(b.text),
                        built ? Look::Built : (lifted ? Look::Lifted : Look::Plain));
    }
}

void WordBricks::paintEvent(QPaintEvent* e) {
    QPainter p(this);
    paintSite(p, e->region());
}

void WordBricks::resizeEvent(QResizeEvent*) {
    layOut();
}

void WordBricks::mousePressEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton) press(e->position());
}

void WordBricks::mouseMoveEvent(QMouseEvent* e) {
    moveTo(e->position());
}

void WordBricks::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton) release(e->position());
}

WM_REGISTER_GAME("Word Bricks", WordBricks, "images/bricks-site.svg", "images/bricks-girder.svg",
                 "images/bricks-sign.svg", "images/bricks-brick.svg", "images/bricks-lit.svg",
                 "sounds/bricks-tip.wav", "sounds/bricks-pick.wav", "sounds/bricks-snap.wav",
                 "sounds/bricks-bump.wav", "sounds/bricks-built.wav", "sounds/bricks-shake.wav",
                 "sounds/bricks-win.wav", "sounds/wordbricks.mid");

}  // namespace wm
