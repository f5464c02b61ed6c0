#include "games/puzzles/word_maze/word_maze_board.h"

#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include "platform/text.h"

namespace wm {

using word_maze::CellColour;

QColor WordMazeColour(CellColour c) {
    switch (c) {
        case CellColour::Pink:
            return {255, 192, 192};
        case CellColour::Green:
            return {128, 255, 128};
        case CellColour::White:
            break;
    }
    return {255, 255, 255};
}

WordMazeBoard::WordMazeBoard(QWidget* parent) : QWidget(parent) {
    setObjectName("CLetter");
    setCursor(Qt::PointingHandCursor);
}

void WordMazeBoard::setCellWidth(int w) {
    cellW_ = std::max(10, w);
    const int cols = maze_ ? maze_->MazeWidth : 1, rows = maze_ ? maze_->MazeHeight : 1;
    const int m = margin(cellW_);
    setFixedSize(cols * cellW_ + 2 * m, rows * cellHeight(cellW_) + 2 * m);
    update();
}

QRect WordMazeBoard::cellRect(int n) const {
    if (!maze_ || n < 0 || n >= int(maze_->caption.size())) return {};
    const int m = margin(cellW_), h = cellHeight(cellW_);
    return {m + (n % maze_->MazeWidth) * cellW_, m + (n / maze_->MazeWidth) * h, cellW_, h};
}

int WordMazeBoard::cellAt(QPoint at) const {
    if (!maze_) return -1;
    const int m = margin(cellW_), h = cellHeight(cellW_);
    if (at.x() < m || at.y() < m) return -1;
    const int col = (at.x() - m) / cellW_, row = (at.y() - m) / h;
    if (col >= maze_->MazeWidth || row >= maze_->MazeHeight) return -1;
    return row * maze_->MazeWidth + col;
}

void WordMazeBoard::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF all = rect();
    // A hedge round a lawn.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(46, 110, 52));
    p.drawRoundedRect(all, 18, 18);
    const double m = margin(cellW_);
    QLinearGradient lawn(0, 0, 0, all.height());
    lawn.setColorAt(0, QColor(146, 208, 96));
    lawn.setColorAt(1, QColor(104, 178, 72));
    p.setBrush(lawn);
    p.drawRoundedRect(all.adjusted(m * 0.45, m * 0.45, -m * 0.45, -m * 0.45), 12, 12);
    // Leafy bumps along the hedge.
    p.setBrush(QColor(64, 140, 64));
    const double leaf = m * 0.5;
    for (double x = leaf; x < all.width() - leaf / 2; x += leaf * 1.3) {
        p.drawEllipse(QPointF(x, leaf * 0.5), leaf * 0.55, leaf * 0.45);
        p.drawEllipse(QPointF(x, all.height() - leaf * 0.5), leaf * 0.55, leaf * 0.45);
    }
    if (!maze_) return;

    const int h = cellHeight(cellW_);
    QFont f("DejaVu Sans");
    f.setBold(true);
    f.setPixelSize(std::max(8, int(std::min(cellW_, h) * 0.58)));
    p.setFont(f);
    const double pad = std::max(1.5, cellW_ * 0.06);
    for (int n = 0; n < int(maze_->caption.size()); ++n) {
        const QRectF r = QRectF(cellRect(n)).adjusted(pad, pad, -pad, -pad);
        if (!maze_->visible[n]) {
            // A stone already taken: the sandy trail shows where the pupil has walked.
            p.setPen(Qt::NoPen);
            p.setBrush(QColor(226, 196, 140));
            p.drawRoundedRect(r, r.width() * 0.3, r.height() * 0.3);
            p.setBrush(QColor(186, 150, 96));
            p.drawEllipse(r.center() + QPointF(-r.width() * 0.15, r.height() * 0.12),
                          r.width() * 0.09, r.height() * 0.12);
            p.drawEllipse(r.center() + QPointF(r.width() * 0.15, -r.height() * 0.12),
                          r.width() * 0.09, r.height() * 0.12);
            continue;
        }
        const QColor face = WordMazeColour(maze_->colour[n]);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0, 0, 0, 50));
        p.drawRoundedRect(r.translated(pad * 0.6, pad * 0.9), r.width() * 0.25, r.width() * 0.25);
        QLinearGradient stone(r.topLeft(), r.bottomLeft());
        stone.setColorAt(0, face.lighter(104));
        stone.setColorAt(1, face.darker(112));
        p.setPen(QPen(face.darker(150), std::max(1.0, pad * 0.6)));
        p.setBrush(stone);
        p.drawRoundedRect(r, r.width() * 0.25, r.width() * 0.25);
        if (n == maze_->EndCell) {
            // A little flag in the corner of the finish stone, clear of its letter.
            const QPointF pole(r.right() - r.width() * 0.1, r.top() + r.height() * 0.06);
            p.setPen(QPen(QColor(90, 60, 30), std::max(1.0, pad * 0.5)));
            p.drawLine(pole, pole + QPointF(0, r.height() * 0.3));
            p.setPen(Qt::NoPen);
            p.setBrush(QColor(230, 50, 70));
            QPainterPath flag;
            flag.moveTo(pole);
            flag.lineTo(pole + QPointF(-r.width() * 0.2, r.height() * 0.07));
            flag.lineTo(pole + QPointF(0, r.height() * 0.14));
            p.drawPath(flag);
        }
        p.setPen(QColor(30, 36, 70));
        p.drawText(r, Qt::AlignCenter, toQ(maze_->caption[n]));
    }
}

void WordMazeBoard::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const int n = cellAt(event->position().toPoint());
    if (n >= 0) emit clicked(n);
}

}  // namespace wm
