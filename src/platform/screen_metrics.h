// Screen sizes and the twips of the design: 15 twips a pixel at 96 dpi.
#pragma once

#include <QRect>
#include <QSize>

namespace wm {

namespace ScreenMetrics {
// The area a full-screen screen fills (the primary screen's geometry).
QSize screenSize();
// Twips to device-independent pixels.
inline int px(double twips) {
    return static_cast<int>(twips / 15.0 + 0.5);
}
inline double twips(int pixels) {
    return pixels * 15.0;
}
// A font size in points scaled for the screen: designs were made for 1024 x 768.
int scaledPoint(int points);
// Forces a screen size, for tests; an empty size goes back to the real one.
void overrideScreenSize(QSize size);
}  // namespace ScreenMetrics

}  // namespace wm
