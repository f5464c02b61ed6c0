#include "games/puzzles/word_search/word_search_board.h"

#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include "platform/text.h"

namespace wm {

using word_search::CellColour;
using word_search::kLayoutWidth;

QColor WordSearchColour(CellColour c) {
    switch (c) {
        case CellColour::Pink:
            return {255, 192, 192};
        case CellColour::Green:
            return {192, 255, 192};
        case CellColour::Blue:
            return {192, 192, 255};
        case CellColour::White:
            break;
    }
    return {255, 255, 255};
}

WordSearchBoard::WordSearchBoard(QWidget* parent) : QWidget(parent) {
    setObjectName("LetterBox");
    setMouseTracking(false);
    setCursor(Qt::PointingHandCursor);
}

int WordSearchBoard::gridSize() const {
    return puzzle_ ? std::clamp(puzzle_->GridSize, 0, kLayoutWidth) : 0;
}

void WordSearchBoard::setCellSize(int cell) {
    cell_ = std::max(8, cell);
    const int side = gridSize() * cell_ + 2 * margin(cell_);
    setFixedSize(side, side);
    update();
}

QRect WordSearchBoard::cellRect(int n) const {
    const int g = gridSize();
    if (n < 0 || n >= word_search::kCells) return {};
    const int x = n % kLayoutWidth, y = n / kLayoutWidth;
    if (x >= g || y >= g) return {};
    const int m = margin(cell_);
    return {m + x * cell_, m + y * cell_, cell_, cell_};
}

int WordSearchBoard::cellAt(QPoint at) const {
    const int m = margin(cell_);
    const int g = gridSize();
    if (at.x() < m || at.y() < m) return -1;
    const int x = (at.x() - m) / cell_, y = (at.y() - m) / cell_;
    if (x >= g || y >= g) return -1;
    return y * kLayoutWidth + x;
}

void WordSearchBoard::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF all = rect();
    const double m = margin(cell_);

    // The outer frame: warm wood with a darker rim, the inner a thin dark line round the grid.
    QLinearGradient wood(all.topLeft(), all.bottomRight());
    wood.setColorAt(0, QColor(214, 160, 96));
    wood.setColorAt(0.5, QColor(186, 126, 66));
    wood.setColorAt(1, QColor(150, 96, 48));
    p.setPen(QPen(QColor(96, 58, 26), std::max(2.0, cell_ / 6.0)));
    p.setBrush(wood);
    const double rim = std::max(1.0, cell_ / 12.0);
    p.drawRoundedRect(all.adjusted(rim, rim, -rim, -rim), cell_ / 3.0, cell_ / 3.0);
    if (!puzzle_) return;

    const int g = gridSize();
    const QRectF grid(m, m, g * cell_, g * cell_);
    p.setPen(QPen(QColor(70, 40, 16), 3));
    p.setBrush(Qt::white);
    p.drawRect(grid.adjusted(-1.5, -1.5, 1.5, 1.5));

    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(std::max(8, int(cell_ * 0.64)));
    p.setFont(f);
    for (int y = 0; y < g; ++y) {
        for (int x = 0; x < g; ++x) {
            const int n = y * kLayoutWidth + x;
            const QRectF r(m + x * cell_, m + y * cell_, cell_, cell_);
            p.setPen(QPen(QColor(200, 200, 210), 1));
            p.setBrush(WordSearchColour(puzzle_->colour[n]));
            p.drawRect(r);
            p.setPen(QColor(24, 28, 60));
            p.drawText(r, Qt::AlignCenter, toQ(word_search::caption(*puzzle_, n)));
        }
    }
}

void WordSearchBoard::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    pressedCell_ = cellAt(event->position().toPoint());
    if (pressedCell_ >= 0) emit pressed(pressedCell_);
}

void WordSearchBoard::mouseMoveEvent(QMouseEvent* event) {
    if (pressedCell_ < 0 || !(event->buttons() & Qt::LeftButton)) return;
    const QRect c = cellRect(pressedCell_);
    const QPointF at = event->position();
    emit dragged(at.x() - c.left(), at.y() - c.top(), c.width(), c.height());
}

void WordSearchBoard::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || pressedCell_ < 0) return;
    const int down = pressedCell_;
    pressedCell_ = -1;
    emit released(down, cellAt(event->position().toPoint()) == down);
}

}  // namespace wm
