#include "platform/play_field.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace wm {

namespace {

constexpr QImage::Format kFormat = QImage::Format_RGB32;
constexpr quint32 kOpaque = 0xFF000000u;
constexpr quint32 kWhite = 0xFFFFFFFFu;

QImage asFormat(const QImage& image, QImage::Format format) {
    return image.format() == format ? image : image.convertToFormat(format);
}

// Clips a block of `src` (inside an image of `srcSize`) going to `to` on a surface of `dstSize`,
// moving both ends together. False when nothing is left to copy.
bool clipBlock(QPoint& to, QRect& src, const QSize& srcSize, const QSize& dstSize) {
    const QRect inSource = src.intersected(QRect(QPoint(0, 0), srcSize));
    to += inSource.topLeft() - src.topLeft();
    const QRect dest = QRect(to, inSource.size()).intersected(QRect(QPoint(0, 0), dstSize));
    src = QRect(inSource.topLeft() + (dest.topLeft() - to), dest.size());
    to = dest.topLeft();
    return !dest.isEmpty();
}

const quint32* row(const QImage& image, int x, int y) {
    return reinterpret_cast<const quint32*>(image.constScanLine(y)) + x;
}

quint32* row(QImage& image, int x, int y) {
    return reinterpret_cast<quint32*>(image.scanLine(y)) + x;
}

bool solid(quint32 argb) {
    return (argb >> 24) >= 128;
}

}  // namespace

PlayField::PlayField(QSize logical, QWidget* parent) : QWidget(parent) {
    surface_ = QImage(logical.expandedTo(QSize(1, 1)), kFormat);
    surface_.fill(Qt::black);
    background_ = surface_;
    setAttribute(Qt::WA_OpaquePaintEvent);  // every pixel is ours: the field or its black bars
    setMouseTracking(true);
}

PlayField::~PlayField() = default;

void PlayField::setBackground(const QImage& picture) {
    if (picture.isNull()) {
        background_ = QImage(surface_.size(), kFormat);
        background_.fill(Qt::black);
    } else if (picture.size() != surface_.size()) {
        background_ = asFormat(picture, kFormat)
                          .scaled(surface_.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    } else {
        background_ = asFormat(picture, kFormat);
    }
    surface_ = background_.copy();
    markDirty(surface_.rect());
}

void PlayField::restoreBackground(const QRect& rect) {
    copy(rect.topLeft(), background_, rect);
}

void PlayField::copy(const QPoint& to, const QImage& from, const QRect& fromRect) {
    if (from.isNull()) return;
    const QImage source = asFormat(from, kFormat);
    QPoint at = to;
    QRect src = fromRect.isNull() ? source.rect() : fromRect;
    if (!clipBlock(at, src, source.size(), surface_.size())) return;
    const size_t bytes = size_t(src.width()) * sizeof(quint32);
    for (int y = 0; y < src.height(); ++y) {
        std::memcpy(row(surface_, at.x(), at.y() + y), row(source, src.x(), src.y() + y), bytes);
    }
    markDirty(QRect(at, src.size()));
}

void PlayField::copyWithin(const QPoint& to, const QRect& fromRect) {
    // Through a copy of the block, so overlapping rectangles (a scroll) come out right.
    QPoint at = to;
    QRect src = fromRect;
    if (!clipBlock(at, src, surface_.size(), surface_.size())) return;
    copy(at, surface_.copy(src));
}

SavedBlock PlayField::save(const QRect& rect) const {
    const QRect inside = rect.intersected(surface_.rect());
    if (inside.isEmpty()) return {};
    return {inside.topLeft(), surface_.copy(inside)};
}

void PlayField::restore(const SavedBlock& block) {
    if (!block.isNull()) copy(block.at, block.pixels);
}

void PlayField::drawMasked(const QPoint& at, const QImage& picture, const QImage& mask) {
    if (picture.isNull() || mask.isNull()) return;
    const QImage pic = asFormat(picture, kFormat);
    const QImage msk = asFormat(mask, kFormat);
    QPoint to = at;
    QRect src = pic.rect().intersected(msk.rect());
    if (!clipBlock(to, src, src.size(), surface_.size())) return;
    for (int y = 0; y < src.height(); ++y) {
        quint32* d = row(surface_, to.x(), to.y() + y);
        const quint32* m = row(msk, src.x(), src.y() + y);
        const quint32* p = row(pic, src.x(), src.y() + y);
        for (int x = 0; x < src.width(); ++x) d[x] = (d[x] & m[x]) | p[x];
    }
    markDirty(QRect(to, src.size()));
}

void PlayField::drawTransparent(const QPoint& at, const QImage& sprite) {
    if (sprite.isNull()) return;
    const QImage pic = asFormat(sprite, QImage::Format_ARGB32);
    QPoint to = at;
    QRect src = pic.rect();
    if (!clipBlock(to, src, pic.size(), surface_.size())) return;
    for (int y = 0; y < src.height(); ++y) {
        quint32* d = row(surface_, to.x(), to.y() + y);
        const quint32* p = row(pic, src.x(), src.y() + y);
        for (int x = 0; x < src.width(); ++x) {
            if (solid(p[x])) d[x] = p[x] | kOpaque;
        }
    }
    markDirty(QRect(to, src.size()));
}

QImage MaskOf(const QImage& sprite) {
    const QImage pic = asFormat(sprite, QImage::Format_ARGB32);
    QImage mask(pic.size(), kFormat);
    for (int y = 0; y < pic.height(); ++y) {
        const quint32* p = row(pic, 0, y);
        quint32* m = row(mask, 0, y);
        for (int x = 0; x < pic.width(); ++x) m[x] = solid(p[x]) ? kOpaque : kWhite;
    }
    return mask;
}

QImage PictureOf(const QImage& sprite) {
    const QImage pic = asFormat(sprite, QImage::Format_ARGB32);
    QImage out(pic.size(), kFormat);
    for (int y = 0; y < pic.height(); ++y) {
        const quint32* p = row(pic, 0, y);
        quint32* o = row(out, 0, y);
        for (int x = 0; x < pic.width(); ++x) o[x] = solid(p[x]) ? (p[x] | kOpaque) : kOpaque;
    }
    return out;
}

void PlayField::fill(const QRect& rect, const QColor& colour) {
    const QRect inside = rect.intersected(surface_.rect());
    if (inside.isEmpty()) return;
    const quint32 value = colour.rgb() | kOpaque;
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        std::fill_n(row(surface_, inside.x(), y), inside.width(), value);
    }
    markDirty(inside);
}

void PlayField::drawText(const QRect& box, int flags, const QString& text, const QFont& font,
                         const QColor& colour) {
    QPainter painter(&surface_);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(box, flags, text);
    markDirty(box);
}

void PlayField::markDirty(const QRect& rect) {
    const QRect inside = rect.intersected(surface_.rect());
    if (!inside.isEmpty()) dirty_.push_back(inside);
}

QList<QRect> PlayField::flush() {
    // Overlapping rectangles (a sprite's old and new place) become one, but only while the
    // union is no bigger than the two apart: chains of neighbours must not grow into the field.
    const auto area = [](const QRect& r) { return qint64(r.width()) * r.height(); };
    std::vector<QRect> merged;
    merged.reserve(dirty_.size());
    for (QRect rect : dirty_) {
        bool grown = true;
        while (grown) {
            grown = false;
            for (size_t i = 0; i < merged.size(); ++i) {
                if (!merged[i].intersects(rect) ||
                    area(merged[i] | rect) > area(merged[i]) + area(rect)) {
                    continue;
                }
                rect |= merged[i];
                merged[i] = merged.back();
                merged.pop_back();
                grown = true;
                break;
            }
        }
        merged.push_back(rect);
    }
    dirty_.clear();
    syncScaler();
    const QPoint origin = targetRect().topLeft();
    QList<QRect> rects;
    rects.reserve(qsizetype(merged.size()));
    for (const QRect& rect : merged) {
        // One pixel more all round: smooth scaling blends each pixel into its neighbours.
        const QRect w = toWidget(rect.adjusted(-1, -1, 1, 1).intersected(surface_.rect()));
        scaler_.update(surface_, w.translated(-origin));
        rects.append(w);
        pushed_.append(w);
        update(w);
    }
    return rects;
}

QRect PlayField::targetRect() const {
    const QSize field = surface_.size().scaled(size(), Qt::KeepAspectRatio);
    return QRect(QPoint((width() - field.width()) / 2, (height() - field.height()) / 2), field);
}

QPoint PlayField::toLogical(const QPoint& widgetPos) const {
    const QRect t = targetRect();
    if (t.isEmpty()) return {};
    const double sx = double(surface_.width()) / t.width();
    const double sy = double(surface_.height()) / t.height();
    return {int(std::floor((widgetPos.x() - t.x() + 0.5) * sx)),
            int(std::floor((widgetPos.y() - t.y() + 0.5) * sy))};
}

QRect PlayField::toWidget(const QRect& logical) const {
    const QRect t = targetRect();
    if (t.isEmpty() || logical.isEmpty()) return {};
    const double sx = double(t.width()) / surface_.width();
    const double sy = double(t.height()) / surface_.height();
    const int left = t.x() + int(std::floor(logical.left() * sx));
    const int top = t.y() + int(std::floor(logical.top() * sy));
    const int right = t.x() + int(std::ceil((logical.right() + 1) * sx));
    const int bottom = t.y() + int(std::ceil((logical.bottom() + 1) * sy));
    return QRect(QPoint(left, top), QPoint(right - 1, bottom - 1));
}

void PlayField::render(QPainter& painter, const QRegion& region) const {
    const QRect t = targetRect();
    const QRegion bars = region.subtracted(QRegion(t));
    if (!bars.isEmpty()) {
        const QImage& around = surround();
        for (const QRect& bar : bars) painter.drawImage(bar.topLeft(), around, bar);
    }
    for (const QRect& r : region.intersected(t)) renderField(painter, r);
}

void PlayField::render(QPainter& painter, const QList<QRect>& rects) const {
    const QRect t = targetRect();
    for (const QRect& r : rects) renderField(painter, r.intersected(t));
}

const QImage& PlayField::surround() const {
    if (surround_.size() == size() && surroundOf_ == background_.cacheKey()) return surround_;
    surroundOf_ = background_.cacheKey();
    surround_ = QImage(size(), kFormat);
    surround_.fill(Qt::black);
    const QRect t = targetRect();
    if (background_.isNull() || t.isEmpty()) return surround_;
    // Each bar is the strip of the background beside it, turned over like a reflection: the
    // horizon and the ground run on unbroken across the edge.
    const QImage shown =
        background_.scaled(t.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPainter p(&surround_);
    const int side = std::min(t.left(), t.width());
    const int above = std::min(t.top(), t.height());
    if (side > 0) {
        p.drawImage(t.left() - side, t.top(),
                    shown.copy(0, 0, side, t.height()).mirrored(true, false));
        p.drawImage(t.right() + 1, t.top(),
                    shown.copy(t.width() - side, 0, side, t.height()).mirrored(true, false));
    }
    if (above > 0) {
        p.drawImage(t.left(), t.top() - above,
                    shown.copy(0, 0, t.width(), above).mirrored(false, true));
        p.drawImage(t.left(), t.bottom() + 1,
                    shown.copy(0, t.height() - above, t.width(), above).mirrored(false, true));
    }
    p.fillRect(surround_.rect(), QColor(0, 0, 0, 140));
    // A soft shadow where the field meets the bars, as if it stood a little in front.
    for (int i = 1; i <= 10; ++i) p.fillRect(t.adjusted(-i, -i, i, i), QColor(0, 0, 0, 20));
    return surround_;
}

void PlayField::syncScaler() const {
    if (scaler_.resize(surface_.size(), targetRect().size())) {
        scaler_.update(surface_, scaler_.image().rect());
    }
}

void PlayField::renderField(QPainter& painter, const QRect& r) const {
    const QRect t = targetRect();
    if (t.isEmpty() || r.isEmpty()) return;
    syncScaler();
    // Already scaled: a plain block copy to the screen.
    painter.drawImage(r.topLeft(), scaler_.image(), r.translated(-t.topLeft()));
}

void PlayField::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QRegion region = event->region();
    // What flush() pushed is painted rectangle by rectangle, as pushed; anything else the
    // system asks for (an uncovered window) through the region.
    const QList<QRect> pushed = std::exchange(pushed_, {});
    QRegion rest = region;
    if (!pushed.isEmpty()) {
        render(painter, pushed);  // each lies inside the region: it was asked for by update()
        QRegion covered;
        for (const QRect& r : pushed) covered += r;
        rest = region.subtracted(covered);
    }
    if (!rest.isEmpty()) render(painter, rest);
}

void PlayField::mousePressEvent(QMouseEvent* event) {
    emit mousePressed(toLogical(event->position().toPoint()), event->button());
}

void PlayField::mouseReleaseEvent(QMouseEvent* event) {
    emit mouseReleased(toLogical(event->position().toPoint()), event->button());
}

void PlayField::mouseMoveEvent(QMouseEvent* event) {
    emit mouseMoved(toLogical(event->position().toPoint()), event->buttons());
}

void FieldSprite::draw(PlayField& field, const QPoint& at, const QImage& picture,
                       const QImage& mask) {
    erase(field);
    under_ = field.save(QRect(at, picture.size()));
    if (!mask.isNull()) {
        field.drawMasked(at, picture, mask);
    } else if (picture.hasAlphaChannel()) {
        field.drawTransparent(at, picture);
    } else {
        field.copy(at, picture);
    }
}

void FieldSprite::erase(PlayField& field) {
    if (under_.isNull()) return;
    field.restore(under_);
    under_ = {};
}

}  // namespace wm
