// Smooth (bilinear) scaling of the playing field to the screen, a rectangle at a time.
#pragma once

#include <QImage>
#include <QRect>
#include <QSize>
#include <vector>

namespace wm {

// The field is small and the screen large, and each tick only a few dozen sprite-sized
// rectangles change: the scaler keeps the whole scaled picture and brings just those rectangles
// up to date. Every pixel comes out the same whichever rectangle it is scaled in, so pieces
// join without seams.
class FieldScaler {
public:
    // The scaled picture for a field of `source` size shown at `target` size; rebuilt when the
    // sizes change. Returns true when it was (re)made, so the caller rescales it whole.
    bool resize(QSize source, QSize target);
    // Rescales `area` (in scaled-picture pixels) from `source`.
    void update(const QImage& source, const QRect& area);
    const QImage& image() const { return scaled_; }

private:
    struct Tap {
        int first;    // source pixel on the left (above)
        int second;   // the one on the right (below), clamped at the edge
        uint weight;  // of the second, 0..256
    };
    static std::vector<Tap> taps(int from, int to);
    QImage scaled_;
    QSize source_;
    std::vector<Tap> columns_, rows_;
    std::vector<quint16> weightFirst_, weightSecond_;  // per column, four times over
    std::vector<quint32> band_;  // source rows blended across, for the rectangle being scaled
};

}  // namespace wm
