// Word Bricks' building site as pictures: the site itself, the girders the words are built on,
// the clue signs and the bricks, drawn once from our SVGs at the sizes the screen needs; and the
// clue text fitted to its sign.
#pragma once

#include <QFont>
#include <QPixmap>
#include <QStringList>
#include <QSvgRenderer>
#include <map>

class QPainter;

namespace wm::word_bricks {

// A clue laid out in lines at the largest size that fits its sign.
struct ClueText {
    QFont font;
    QStringList lines;
    bool whole = true;  // false: cut with an ellipsis even at the smallest size
};
ClueText fitClue(const QString& text, const QSizeF& box, int largest, int smallest);

enum class Look { Plain, Lifted, Built };

class SiteArt {
public:
    SiteArt();
    // Draws the site for the whole screen; the girder, sign and bricks are drawn as asked.
    void resize(const QSize& screen);
    const QPixmap& site() const { return site_; }
    const QPixmap& girder(const QSize& size);
    const QPixmap& sign(const QSize& size);
    // One brick of `letters` letters, each in its own cell of `cell` pixels.
    void paintBrick(QPainter& p, const QRectF& r, const QString& letters, Look look);
    // The letters of a brick, one a cell.
    static void paintLetters(QPainter& p, const QRectF& r, const QString& letters, Look look);

private:
    const QPixmap& cached(QSvgRenderer& svg, std::map<std::pair<int, int>, QPixmap>& cache,
                          const QSize& size, const QColor& stand);
    QSvgRenderer siteSvg_, girderSvg_, signSvg_, brickSvg_, litSvg_;
    QPixmap site_;
    std::map<std::pair<int, int>, QPixmap> girders_, signs_, bricks_, lit_;
    std::map<QString, QPixmap> sprites_;  // whole bricks, letters and all
};

}  // namespace wm::word_bricks
