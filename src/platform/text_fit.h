// Type that shrinks until a text fits its place on the screen: a clue on a sign, a score on a
// plate. Each step is one pixel, so the size chosen is the largest that fits.
#pragma once

#include <QFont>
#include <QRect>
#include <QString>

namespace wm::scene {

// `font` at the largest pixel size, from its own down to `minPx`, at which `text`, centred and
// wrapped at word breaks, fits inside `box` both ways. A text that fits at no size gets `minPx`.
QFont shrinkToFit(QFont font, const QRect& box, const QString& text, int minPx = 8);
// The same for one line no wider than `width`.
QFont shrinkToWidth(QFont font, int width, const QString& text, int minPx = 8);
// The same against a width in fractions of a pixel, as a painted scene measures it.
QFont shrinkToWidth(QFont font, double width, const QString& text, int minPx = 8);

}  // namespace wm::scene
