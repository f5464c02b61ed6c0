#include "games/show/concentration/concentration_cards.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

#include "platform/services.h"

namespace wm::concentration {

namespace {

// Lines of `text` at `font` within `width`; `anywhere` lets a word too long for a line break.
QStringList wrap(const QString& text, const QFont& font, double width, bool anywhere,
                 double* widest) {
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(anywhere ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                : QTextOption::WordWrap);
    layout.setTextOption(option);
    QStringList lines;
    *widest = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        *widest = std::max(*widest, line.naturalTextWidth());
        lines << text.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return lines;
}

// Stand-ins for a missing picture: plain cards, plain felt.
void plainFace(QPainter& p, const QRectF& r, Face f) {
    static const QColor colours[] = {QColor(40, 60, 150), QColor(255, 252, 240),
                                     QColor(255, 246, 214), QColor(190, 240, 190)};
    p.setPen(QPen(QColor(60, 60, 60), 2));
    p.setBrush(colours[int(f)]);
    p.drawRoundedRect(r.adjusted(1, 1, -1, -1), r.height() / 12, r.height() / 12);
}

}  // namespace

CardText fitText(const QString& text, bool bold, const QSizeF& box, int largest, int smallest,
                 int easy) {
    CardText t;
    t.font = QFont("DejaVu Sans");
    t.font.setBold(bold);
    smallest = std::max(1, smallest);
    double widest = 0;
    for (int px = std::max(largest, smallest); px >= smallest; --px) {
        t.font.setPixelSize(px);
        t.lines = wrap(text, t.font, box.width(), false, &widest);
        const double tall = t.lines.size() * QFontMetricsF(t.font).lineSpacing();
        if (widest <= box.width() && tall <= box.height()) {
            t.cramped = px < easy;
            return t;
        }
    }
    t.cramped = true;
    t.lines = wrap(text, t.font, box.width(), true, &widest);
    const QFontMetricsF m(t.font);
    const int room = std::max(1, int(box.height() / m.lineSpacing()));
    if (t.lines.size() > room) {
        t.whole = false;
        t.lines = t.lines.mid(0, room);
        t.lines.last() = m.elidedText(t.lines.last() + QChar(0x2026), Qt::ElideRight, box.width());
    }
    return t;
}

CardArt::CardArt()
    : feltSvg_(findAsset("images/conc-felt.svg")),
      faceSvgs_{QSvgRenderer(findAsset("images/conc-back.svg")),
                QSvgRenderer(findAsset("images/conc-word.svg")),
                QSvgRenderer(findAsset("images/conc-meaning.svg")),
                QSvgRenderer(findAsset("images/conc-found.svg"))} {}

void CardArt::resize(const QSize& table, const QSize& card) {
    if (table != felt_.size() && !table.isEmpty()) {
        felt_ = QPixmap(table);
        QPainter p(&felt_);
        if (feltSvg_.isValid()) {
            feltSvg_.render(&p, QRectF(QPointF(0, 0), table));
        } else {
            p.fillRect(felt_.rect(), QColor(20, 110, 50));
        }
    }
    if (card.isEmpty() || card == faces_[0].size()) return;
    for (int f = 0; f < 4; ++f) {
        faces_[f] = QPixmap(card);
        faces_[f].fill(Qt::transparent);
        QPainter p(&faces_[f]);
        p.setRenderHint(QPainter::Antialiasing);
        const QRectF r(QPointF(0, 0), card);
        if (faceSvgs_[f].isValid()) {
            // The pictures are drawn to stretch: a card takes the shape of its place.
            faceSvgs_[f].render(&p, r);
        } else {
            plainFace(p, r, Face(f));
        }
    }
}

}  // namespace wm::concentration
