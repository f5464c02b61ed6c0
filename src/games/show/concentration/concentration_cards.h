// Concentration's table and cards as pictures: the felt, the card back and the three faces (a
// word, a definition, a found pair), drawn once from our SVGs at the size the table needs, and
// the card text fitted to its card.
#pragma once

#include <QFont>
#include <QPixmap>
#include <QStringList>
#include <QSvgRenderer>

namespace wm::concentration {

// A card's text laid out in lines at the largest size that fits.
struct CardText {
    QFont font;
    QStringList lines;
    bool whole = true;     // false: the smallest size still could not hold it all
    bool cramped = false;  // smaller than is easy to read (or cut): the panel shows it whole
};

// The largest pixel size from `largest` down to `smallest` at which `text` wraps into `box`
// between words; then, at the smallest size, wrapped inside long words; then cut with an
// ellipsis. Text below `easy` pixels is cramped.
CardText fitText(const QString& text, bool bold, const QSizeF& box, int largest, int smallest,
                 int easy);

enum class Face { Back, Word, Meaning, Found };

class CardArt {
public:
    CardArt();
    // Draws the felt for the whole table and every face at the card size.
    void resize(const QSize& table, const QSize& card);
    const QPixmap& felt() const { return felt_; }
    const QPixmap& face(Face f) const { return faces_[int(f)]; }

private:
    QSvgRenderer feltSvg_;
    QSvgRenderer faceSvgs_[4];
    QPixmap felt_;
    QPixmap faces_[4];
};

}  // namespace wm::concentration
