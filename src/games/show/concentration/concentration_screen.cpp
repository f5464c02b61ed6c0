#include "games/show/concentration/concentration_screen.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <algorithm>
#include <cmath>

#include "core/rng.h"
#include "core/shared_state.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

using namespace concentration;

namespace {
constexpr int kPopMs = 300;  // a found pair swells a little as it turns green

QLabel* statusLabel(const char* name, Qt::Alignment align, QWidget* parent) {
    auto* l = new QLabel(parent);
    l->setObjectName(name);
    l->setAlignment(align | Qt::AlignVCenter);
    l->setFont(ScreenFont(16, true));
    l->setStyleSheet(
        "QLabel { color: #fff6d8; background: rgba(30, 18, 6, 150); border-radius: 10px;"
        " padding: 0 14px; }");
    l->setAttribute(Qt::WA_TransparentForMouseEvents);
    return l;
}

qint64 now() {
    return Ticker::get().now();
}
}  // namespace

Concentration::Concentration(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames(), [this] { SetupGame(); }),
      Timer1(frame_.timer("Timer1", 1000,
                          [this] {
                              tick(game_);
                              showStatus();
                          })),
      Timer2(frame_.timer(
          "Timer2", kTurnBackMs, [this] { turnedBack(turnBack(game_)); }, true)),
      Timer3(frame_.timer("Timer3", Ticker::kFrameMs, [this] { animate(); })),
      Timer4(frame_.timer(
          "Timer4", kLastPairMs,
          [this] {
              Shared().Score = game_.score;
              sound().effect("conc-win.wav");
              frame_.wonGame();
          },
          true)) {
    setWindowTitle("Concentration");
    setAttribute(Qt::WA_OpaquePaintEvent);
    frame_.setMusic(MusicKind::Shared, "concentration.mid");
    // The last pair keeps turning green behind the end boxes.
    frame_.runOnThroughEnd("Timer3");
    ScoreLabel = statusLabel("ScoreLabel", Qt::AlignLeft, this);
    PairsLabel = statusLabel("PairsLabel", Qt::AlignHCenter, this);
    ClockLabel = statusLabel("ClockLabel", Qt::AlignRight, this);
    DefPanel = new QLabel(this);
    DefPanel->setObjectName("DefPanel");
    DefPanel->setWordWrap(true);
    DefPanel->setAlignment(Qt::AlignCenter);
    DefPanel->setFont(ScreenFont(15));
    DefPanel->setStyleSheet(
        "QLabel { color: #3b2a14; background: #fff3cf; border: 3px solid #b8862b;"
        " border-radius: 14px; padding: 6px 18px; }");
    DefPanel->setAttribute(Qt::WA_TransparentForMouseEvents);
    DefPanel->hide();
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void Concentration::SetupGame() {
    SharedState& s = Shared();
    TheRng().Randomize();
    game_ = deal(s, s.Difficulty, TheRng());
    s.Score = 0;
    const int n = int(game_.cards.size());
    flipStart_.assign(n, -1);
    wasUp_.assign(n, false);
    foundAt_.assign(n, -1);
    texts_.assign(n, {});
    lastFound_ = -1;
    DefPanel->hide();
    layOut();
    showStatus();
    update();
    if (!game_.ready()) {
        frame_.refuse(kTooFewWords, windowTitle());
        return;
    }
    Timer1.start();
    frame_.startMusic();
}

QRect Concentration::cardsArea() const {
    const int w = width(), h = height();
    const int top = frame_.menuHeight() + h / 11;
    const int bottom = h - h / 6;
    return {w / 40, top, w - w / 20, std::max(1, bottom - top)};
}

void Concentration::layOut() {
    const int w = width(), h = height();
    const int barTop = frame_.menuHeight() + h / 60, barH = h / 16;
    const int third = (w - w / 20) / 3;
    ScoreLabel->setGeometry(w / 40, barTop, third - w / 80, barH);
    PairsLabel->setGeometry(w / 40 + third, barTop, third, barH);
    ClockLabel->setGeometry(w / 40 + 2 * third + w / 80, barTop, third - w / 80, barH);
    const QRect area = cardsArea();
    // The panel stays on the felt, clear of the table's wooden edge.
    const int panelTop = area.bottom() + h / 80;
    DefPanel->setGeometry(w / 8, panelTop, w * 3 / 4, int(h * 0.95) - panelTop);

    grid_ = grid(std::max(1, int(game_.cards.size())), area.width(), area.height());
    const double cellW = double(area.width()) / grid_.columns;
    const double cellH = double(area.height()) / grid_.rows;
    const double gap = std::min(cellW, cellH) * 0.08;
    double cw = cellW - gap, ch = cellH - gap;
    // Cards keep about a playing card's shape turned on its side.
    cw = std::min(cw, ch * 1.8);
    ch = std::min(ch, cw / 1.1);
    card_ = QSize(std::max(1, int(cw)), std::max(1, int(ch)));
    art_.resize(size(), card_);
    fitTexts();
}

QRect Concentration::cardRect(int i) const {
    const QRect area = cardsArea();
    const int n = int(game_.cards.size());
    const int cols = grid_.columns, row = i / cols, col = i % cols;
    const double cellW = double(area.width()) / cols;
    const double cellH = double(area.height()) / grid_.rows;
    // A short last row sits in the middle.
    const int inRow = std::min(cols, n - row * cols);
    const double x = area.left() + (cols - inRow) * cellW / 2 + col * cellW;
    const double y = area.top() + row * cellH;
    return {int(x + (cellW - card_.width()) / 2), int(y + (cellH - card_.height()) / 2),
            card_.width(), card_.height()};
}

void Concentration::fitTexts() {
    const SharedState& s = Shared();
    const int smallest = std::max(10, height() / 72);
    const int easy = std::max(14, height() / 48);
    const QSizeF box(card_.width() * 0.84, card_.height() * 0.76);
    for (int i = 0; i < int(game_.cards.size()); ++i) {
        const Card& c = game_.cards[i];
        const QString text = toQ(c.meaning ? s.Meanings[c.entry] : s.Words[c.entry]);
        const int largest = int(card_.height() * (c.meaning ? 0.17 : 0.26));
        texts_[i] = fitText(text, !c.meaning, box, largest, smallest, easy);
    }
}

void Concentration::showStatus() {
    ScoreLabel->setText(QString("Score: %1").arg(game_.score, 0, 'f', 0));
    PairsLabel->setText(QString("Pairs: %1 of %2").arg(game_.pairsFound).arg(game_.level));
    ClockLabel->setText(QString("Time: %1").arg(toQ(clockText(game_.seconds))));
    // The definition turned up this turn (or just found), whole, when its card could not hold
    // it comfortably.
    QString whole;
    for (int i : {game_.first, game_.second, lastFound_}) {
        if (i >= 0 && game_.cards[i].meaning && texts_[i].cramped)
            whole = toQ(Shared().Meanings[game_.cards[i].entry]);
    }
    DefPanel->setText(whole);
    DefPanel->setVisible(!whole.isEmpty());
    if (whole.isEmpty()) return;
    // The panel's letters shrink until the whole definition fits.
    QFont f = ScreenFont(15);
    const QRect box = DefPanel->contentsRect().adjusted(2, 0, -2, 0);
    for (; f.pointSize() > 6; f.setPointSize(f.pointSize() - 1)) {
        const QRect need =
            QFontMetrics(f).boundingRect(QRect(0, 0, box.width(), 100000), Qt::TextWordWrap, whole);
        if (need.height() <= box.height()) break;
    }
    DefPanel->setFont(f);
}

void Concentration::clickAt(QPoint at) {
    if (!game_.ready() || game_.won() || frame_.leaving()) return;
    int hit = -1;
    for (int i = 0; i < int(game_.cards.size()); ++i)
        if (cardRect(i).contains(at)) hit = i;
    const ClickResult r = click(game_, hit);
    lastFound_ = -1;
    if (!r.turnedDown.empty()) {
        Timer2.stop();
        turnedBack(r.turnedDown);
    }
    switch (r.flip) {
        case Flip::Nothing:
            showStatus();
            return;
        case Flip::First:
            sound().effect("conc-flip.wav");
            break;
        case Flip::Miss:
            sound().effect("conc-miss.wav");
            Timer2.start();
            break;
        case Flip::Match:
        case Flip::Won: {
            sound().effect("conc-match.wav");
            for (int i = 0; i < int(game_.cards.size()); ++i) {
                if (!game_.cards[i].matched || foundAt_[i] >= 0) continue;
                foundAt_[i] = now() + kFlipMs;
                if (game_.cards[i].meaning) lastFound_ = i;
            }
            if (r.flip == Flip::Won) {
                Timer1.stop();
                Timer4.start();
            }
            break;
        }
    }
    startFlip(hit);
    showStatus();
}

void Concentration::turnedBack(const std::vector<int>& cards) {
    for (int i : cards) startFlip(i);
    showStatus();
}

void Concentration::startFlip(int i) {
    const qint64 t = now();
    // A card turned again mid-turn starts from what it showed when it began.
    if (flipStart_[i] < 0 || t - flipStart_[i] >= kFlipMs) wasUp_[i] = !game_.cards[i].up;
    flipStart_[i] = t;
    update(cardRect(i).adjusted(-card_.width() / 8, -card_.height() / 8, card_.width() / 8,
                                card_.height() / 8));
    if (!Timer3.isActive()) Timer3.start();
}

bool Concentration::animating() const {
    const qint64 t = now();
    for (std::size_t i = 0; i < flipStart_.size(); ++i) {
        if (flipStart_[i] >= 0 && t - flipStart_[i] < kFlipMs) return true;
        if (foundAt_[i] >= 0 && t - foundAt_[i] < kPopMs) return true;
    }
    return false;
}

void Concentration::animate() {
    const qint64 t = now();
    QRegion dirty;
    for (int i = 0; i < int(flipStart_.size()); ++i) {
        const bool flipping = flipStart_[i] >= 0;
        const bool popping = foundAt_[i] >= 0 && t - foundAt_[i] < kPopMs + Ticker::kFrameMs;
        if (!flipping && !popping) continue;
        if (flipping && t - flipStart_[i] >= kFlipMs) flipStart_[i] = -1;
        dirty += cardRect(i).adjusted(-card_.width() / 8, -card_.height() / 8, card_.width() / 8,
                                      card_.height() / 8);
    }
    update(dirty);
    if (!animating()) Timer3.stop();
}

double Concentration::cardWidthShare(int i) const {
    if (i < 0 || i >= int(flipStart_.size()) || flipStart_[i] < 0) return 1;
    const double u = std::clamp(double(now() - flipStart_[i]) / kFlipMs, 0.0, 1.0);
    return std::abs(std::cos(u * M_PI));
}

Face Concentration::shownFace(int i) const {
    const Card& c = game_.cards[i];
    bool up = c.up;
    if (flipStart_[i] >= 0 && now() - flipStart_[i] < kFlipMs / 2) up = wasUp_[i];
    if (!up) return Face::Back;
    if (c.matched && foundAt_[i] >= 0 && now() >= foundAt_[i]) return Face::Found;
    return c.meaning ? Face::Meaning : Face::Word;
}

void Concentration::paintCard(QPainter& p, int i, qint64 t) {
    const QRectF r = cardRect(i);
    const double share = std::max(0.02, cardWidthShare(i));
    double swell = 1;
    if (foundAt_[i] >= 0 && t >= foundAt_[i] && t - foundAt_[i] < kPopMs)
        swell = 1 + 0.08 * std::sin(M_PI * double(t - foundAt_[i]) / kPopMs);
    // The shadow stays on the felt while the card turns above it.
    const double lift = 1 - share;
    const double off = r.height() * (0.035 + 0.05 * lift);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 20, 0, 90));
    p.drawRoundedRect(r.translated(off * 0.6, off), r.height() / 12, r.height() / 12);

    p.save();
    p.translate(r.center());
    p.scale(share * swell, swell);
    p.translate(-r.center());
    const Face face = shownFace(i);
    p.drawPixmap(r.topLeft(), art_.face(face));
    if (face != Face::Back) {
        static const QColor ink[] = {
            {}, QColor(26, 42, 108), QColor(70, 44, 16), QColor(12, 80, 28)};
        const CardText& text = texts_[i];
        p.setFont(text.font);
        p.setPen(ink[int(face)]);
        const double line = QFontMetricsF(text.font).lineSpacing();
        double y = r.center().y() - line * text.lines.size() / 2;
        for (const QString& l : text.lines) {
            p.drawText(QRectF(r.left(), y, r.width(), line), Qt::AlignCenter, l);
            y += line;
        }
    }
    p.restore();
}

void Concentration::paintCards(QPainter& p) {
    const qint64 t = now();
    for (int i = 0; i < int(game_.cards.size()); ++i) paintCard(p, i, t);
}

void Concentration::paintEvent(QPaintEvent* e) {
    QPainter p(this);
    p.drawPixmap(e->rect(), art_.felt(), e->rect());
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const qint64 t = now();
    const QRect region = e->rect();
    for (int i = 0; i < int(game_.cards.size()); ++i) {
        const QRect r = cardRect(i);
        if (region.intersects(
                r.adjusted(-r.width() / 8, -r.height() / 8, r.width() / 8, r.height() / 8)))
            paintCard(p, i, t);
    }
}

void Concentration::resizeEvent(QResizeEvent*) {
    layOut();
}

void Concentration::mousePressEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton) clickAt(e->position().toPoint());
}

WM_REGISTER_GAME("Concentration", Concentration, "images/conc-felt.svg", "images/conc-back.svg",
                 "images/conc-word.svg", "images/conc-meaning.svg", "images/conc-found.svg",
                 "sounds/conc-flip.wav", "sounds/conc-match.wav", "sounds/conc-miss.wav",
                 "sounds/conc-win.wav", "sounds/concentration.mid");

}  // namespace wm
