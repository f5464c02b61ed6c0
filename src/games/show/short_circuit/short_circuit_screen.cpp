#include "games/show/short_circuit/short_circuit_screen.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/show/short_circuit/circuit_art.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

namespace {
const char* kRest =
    "QLabel { color: #ffff00; background: #0000ff; border: 2px solid #8080ff; border-radius: 6px; "
    "}";
const char* kChosen =
    "QLabel { color: black; background: #ffff00; border: 2px solid #c0a000; border-radius: 6px; }";
const char* kRed =
    "QLabel { color: #ffff00; background: #ff0000; border: 2px solid #ff8080; border-radius: 6px; "
    "}";
}  // namespace

ShortCircuit::ShortCircuit(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames{}, [this] { SetupGame(); }),
      Timer1(frame_.timer("Timer1", 300,
                          [this] {
                              // The shorted column flashes red and blue.
                              flashRed_ = !flashRed_;
                              for (int r = 0; r < circuit_.rows; ++r)
                                  setTile(letter(circuit_.column, r), flashRed_ ? kRed : kRest);
                          })),
      Timer2(frame_.timer(
          "Timer2", 3000, [this] { score(); }, true)),
      Timer4(frame_.timer("Timer4", 500, [this] { ++circuit_.halfSeconds; })) {
    // The shorted column goes on flashing behind the try-again box.
    frame_.runOnThroughEnd("Timer1");
    setWindowTitle("Short Circuit");
    for (int i = 0; i < shortcircuit::kColumns * shortcircuit::kRows; ++i) {
        auto* l = new QLabel(this);
        l->setObjectName(QString("LetterLabel%1").arg(i));
        l->setAlignment(Qt::AlignCenter);
        l->setAttribute(Qt::WA_TransparentForMouseEvents);
        l->setStyleSheet(kRest);
        l->hide();
        LetterLabel.push_back(l);
    }
    Directions = new QLabel(this);
    Directions->setObjectName("Directions");
    Directions->setWordWrap(true);
    Directions->setAlignment(Qt::AlignCenter);
    Directions->setFont(ScreenFont(16, true));
    Directions->setStyleSheet(
        "QLabel { color: white; background: rgba(30, 60, 110, 200); border-radius: 12px;"
        " padding: 8px 16px; }");
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void ShortCircuit::setTile(QLabel* l, const char* style) {
    l->setStyleSheet(style);
}

void ShortCircuit::SetupGame() {
    SharedState& s = Shared();
    s.Score = 0;
    lit_ = false;
    flashRed_ = false;
    wire_.clear();
    for (auto* l : LetterLabel) {
        setTile(l, kRest);
        l->hide();
    }
    circuit_ = shortcircuit::newCircuit(s, s.Difficulty, TheRng());
    if (!circuit_.ready) {
        frame_.refuse(shortcircuit::kTooLong, "Short Circuit");
        return;
    }
    Directions->setText(toQ(shortcircuit::directions(s)));
    for (int c = 0; c < int(circuit_.word.size()); ++c)
        for (int r = 0; r < circuit_.rows; ++r) {
            letter(c, r)->setText(QString(QChar(circuit_.letters[c][r])));
            letter(c, r)->show();
        }
    layOut();
    const QRectF b = batteryRect();
    wire_.push_back(QPointF(b.right(), b.center().y()));
    Timer4.start();
    update();
}

QRectF ShortCircuit::batteryRect() const {
    const double h = height() * 0.14;
    return {width() * 0.02, height() * 0.62 - h / 2, h * 1.6, h};
}

QRectF ShortCircuit::bulbRect() const {
    const double h = height() * 0.22;
    return {width() * 0.98 - h * 0.8, height() * 0.62 - h * 0.75, h * 0.8, h};
}

void ShortCircuit::layOut() {
    const int top = frame_.menuHeight() + height() / 50;
    Directions->setGeometry(width() / 10, top, width() * 8 / 10, height() / 6);
    const int n = std::max<int>(1, circuit_.word.size());
    // Labels as large as the screen allows between the battery and the bulb.
    const double span = bulbRect().left() - batteryRect().right() - width() * 0.04;
    const double rowsSpace = height() - (top + height() / 6) - height() * 0.06;
    const int lw =
        int(std::min({span / (1.5 * n), rowsSpace / (circuit_.rows * 1.05), height() * 0.1}));
    const int lh = lw;
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(std::max(8, int(lh * 0.6)));
    const double blockW = 1.5 * lw * (n - 1) + lw;
    const double left = (width() - blockW) / 2;
    const double blockTop = top + height() / 6 + height() * 0.03;
    for (int c = 0; c < n && c < shortcircuit::kColumns; ++c)
        for (int r = 0; r < shortcircuit::kRows; ++r) {
            QLabel* l = letter(c, r);
            l->setFont(f);
            l->setGeometry(int(left + c * 1.5 * lw), int(blockTop + r * lh * 1.05), lw, lh);
        }
}

void ShortCircuit::paintEvent(QPaintEvent*) {
    QPainter p(this);
    QLinearGradient g(0, 0, 0, height());
    g.setColorAt(0, QColor(10, 12, 30));
    g.setColorAt(1, QColor(0, 0, 0));
    p.fillRect(rect(), g);
    if (!circuit_.ready) return;
    circuitart::paintBattery(p, batteryRect());
    circuitart::paintBulb(p, bulbRect(), lit_);
    if (lit_) {
        const QRectF b = bulbRect();
        const double s = height() * 0.3;
        circuitart::paintSurprise(p, QRectF(b.left() - s * 1.3, b.bottom() + s * 0.05, s, s),
                                  circuit_.robber);
    }
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Qt::white, std::max(3.0, height() / 200.0), Qt::SolidLine, Qt::RoundCap,
                  Qt::RoundJoin));
    for (std::size_t i = 1; i < wire_.size(); ++i) p.drawLine(wire_[i - 1], wire_[i]);
}

void ShortCircuit::mousePressEvent(QMouseEvent* e) {
    if (!circuit_.ready || lit_ || circuit_.column >= int(circuit_.word.size())) return;
    const QPoint at = e->position().toPoint();
    const int col = circuit_.column;
    for (int r = 0; r < circuit_.rows; ++r) {
        QLabel* l = letter(col, r);
        if (!l->isVisible() || !l->geometry().contains(at)) continue;
        const auto result = shortcircuit::click(circuit_, col, r);
        if (result == shortcircuit::Click::Wrong) {
            sound().effect("zap.wav");
            Timer1.start();
            Shorted();
            return;
        }
        if (result == shortcircuit::Click::Ignored) return;
        Timer1.stop();
        for (int o = 0; o < circuit_.rows; ++o)
            if (o != r) letter(col, o)->hide();
        setTile(l, kChosen);
        // Two strokes with a corner: along, then up or down into the letter (drawn over it).
        const QPointF from = wire_.back();
        const QPointF to = l->geometry().center();
        const double cornerX = col == 0 ? from.x() + height() * 0.01 : to.x();
        wire_.push_back(QPointF(cornerX, from.y()));
        wire_.push_back(QPointF(cornerX, to.y()));
        wire_.push_back(to);
        update();
        if (result == shortcircuit::Click::Done) CircuitDone();
        return;
    }
}

void ShortCircuit::Shorted() {
    sound().effect("loser3.wav");
    frame_.askTryAgain(toQ(shortcircuit::shortedText(circuit_.word)), "Short Circuit");
}

void ShortCircuit::CircuitDone() {
    for (auto* l : LetterLabel) l->hide();
    sound().effect("laser.wav");
    // The last wire runs round to the side of the bulb's screw base.
    const QRectF b = bulbRect();
    const QPointF socket = circuitart::bulbSocket(b);
    const double x = b.left() - height() * 0.02;
    wire_.push_back(QPointF(x, wire_.back().y()));
    wire_.push_back(QPointF(x, socket.y()));
    wire_.push_back(socket);
    lit_ = true;
    update();
    Timer2.start();
}

void ShortCircuit::score() {
    Timer4.stop();
    SharedState& s = Shared();
    s.Score = shortcircuit::winScore(circuit_, s.Difficulty, s.GameOptionOn != 0, TheRng());
    frame_.wonGame();
}

void ShortCircuit::resizeEvent(QResizeEvent*) {
    layOut();
}

WM_REGISTER_GAME("Short Circuit", ShortCircuit, "images/battery.svg", "images/lightbulb.svg",
                 "sounds/laser.wav", "sounds/loser3.wav", "sounds/zap.wav");

}  // namespace wm
