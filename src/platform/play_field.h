// The playing field of the block-copy games: a back buffer at the game's own resolution, drawn
// on by block copies and masked sprites, and scaled to the screen once, in one paint.
#pragma once

#include <QImage>
#include <QList>
#include <QRegion>
#include <QWidget>
#include <vector>

#include "platform/field_scaler.h"

class QFont;

namespace wm {

// A rectangle of the field as it was before a sprite went over it.
struct SavedBlock {
    QPoint at;
    QImage pixels;
    bool isNull() const { return pixels.isNull(); }
};

class PlayField : public QWidget {
    Q_OBJECT
public:
    explicit PlayField(QSize logical = {640, 480}, QWidget* parent = nullptr);
    ~PlayField() override;

    QSize logicalSize() const { return surface_.size(); }
    // The back buffer (32-bit RGB). Painting on it directly is fine; say where with markDirty().
    QImage& surface() { return surface_; }
    const QImage& surface() const { return surface_; }

    // Lays the background picture over the whole field, scaled to it if need be: the one whole
    // draw, when a game or level starts. An empty picture gives a black field.
    void setBackground(const QImage& picture);
    const QImage& background() const { return background_; }
    // Puts the background back over `rect` (a sprite gone for good, a cleared cell).
    void restoreBackground(const QRect& rect);

    // Block copy of `from` (all of it, or `fromRect`) with its top left at `to`; clipped.
    void copy(const QPoint& to, const QImage& from, const QRect& fromRect = QRect());
    // Block copy inside the field; the rectangles may overlap.
    void copyWithin(const QPoint& to, const QRect& fromRect);
    SavedBlock save(const QRect& rect) const;
    void restore(const SavedBlock& block);
    // Transparent sprite in two passes: the mask ANDed in (black where the sprite is, white
    // where the field shows through), then the picture ORed in (black where transparent).
    void drawMasked(const QPoint& at, const QImage& picture, const QImage& mask);
    // The same for a picture with alpha: pixels under half opacity are transparent. Gives exactly
    // what drawMasked() gives with MaskOf() and PictureOf() of the same picture.
    void drawTransparent(const QPoint& at, const QImage& sprite);
    void fill(const QRect& rect, const QColor& colour);
    void drawText(const QRect& box, int flags, const QString& text, const QFont& font,
                  const QColor& colour);

    void markDirty(const QRect& rect);
    // Pushes the changed rectangles to the screen and forgets them; returns the widget
    // rectangles asked to repaint (overlapping ones merged). Call once a tick.
    QList<QRect> flush();

    // Where the field sits in the widget: aspect kept, centred. The bars round it show the
    // background's edges mirrored and dimmed, so that the scene seems to go on.
    QRect targetRect() const;
    QPoint toLogical(const QPoint& widgetPos) const;  // may fall outside the field, in the bars
    QRect toWidget(const QRect& logical) const;       // covers every pixel `logical` touches
    // Paints `region` of the widget as the paint event does (the bars and the scaled field).
    void render(QPainter& painter, const QRegion& region) const;
    // The same for rectangles as flush() gives them, without cutting them into bands.
    void render(QPainter& painter, const QList<QRect>& rects) const;

signals:
    void mousePressed(const QPoint& logical, Qt::MouseButton button);
    void mouseReleased(const QPoint& logical, Qt::MouseButton button);
    void mouseMoved(const QPoint& logical, Qt::MouseButtons buttons);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void renderField(QPainter& painter, const QRect& area) const;
    void syncScaler() const;  // the scaled picture at the present widget size
    const QImage& surround() const;  // what the bars show, at the present widget size
    QImage surface_;
    QImage background_;
    // Plain lists, not QRegion: sixty sprites a tick would cost more in band merging than in
    // drawing.
    std::vector<QRect> dirty_;    // field pixels changed since the last flush
    QList<QRect> pushed_;         // widget rectangles flushed since the last paint
    mutable FieldScaler scaler_;  // the field as shown: scaled once, kept up to date by flush()
    mutable QImage surround_;
    mutable qint64 surroundOf_ = 0;  // the background's key it was made from
};

// The mask and picture of a picture with alpha, for drawMasked().
QImage MaskOf(const QImage& sprite);
QImage PictureOf(const QImage& sprite);

// A moving sprite: drawing saves what is under it, erasing puts that back. Each tick erases
// every sprite (in reverse drawing order, so overlaps unwind), moves them, and draws them again.
class FieldSprite {
public:
    // A picture with alpha is drawn transparent; one without is copied as a block. With a mask
    // the two passes are used.
    void draw(PlayField& field, const QPoint& at, const QImage& picture,
              const QImage& mask = QImage());
    void erase(PlayField& field);
    bool isDrawn() const { return !under_.isNull(); }
    QRect rect() const { return QRect(under_.at, under_.pixels.size()); }

private:
    SavedBlock under_;
};

}  // namespace wm
