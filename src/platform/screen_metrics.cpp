#include "platform/screen_metrics.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace wm::ScreenMetrics {

namespace {
QSize& overridden() {
    static QSize size;
    return size;
}
}  // namespace

QSize screenSize() {
    if (overridden().isValid()) return overridden();
    if (qGuiApp) {
        if (QScreen* screen = QGuiApplication::primaryScreen()) return screen->geometry().size();
    }
    return {1024, 768};  // no screen yet: the size the designs were drawn for
}

int scaledPoint(int points) {
    if (points <= 0) return points;
    const int height = screenSize().height();
    const int scaled = static_cast<int>(std::lround(points * double(height) / 768.0));
    // Small screens shrink text only so far, or it stops being readable.
    const int floor = static_cast<int>(std::ceil(points * 0.8 - 1e-9));
    return std::max(scaled, floor);
}

void overrideScreenSize(QSize size) {
    overridden() = size;
}

}  // namespace wm::ScreenMetrics
