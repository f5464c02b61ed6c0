#include "platform/text_fit.h"

#include <QFontMetrics>
#include <QFontMetricsF>

namespace wm::scene {

QFont shrinkToFit(QFont font, const QRect& box, const QString& text, int minPx) {
    while (font.pixelSize() > minPx) {
        const QRect need =
            QFontMetrics(font).boundingRect(box, Qt::AlignCenter | Qt::TextWordWrap, text);
        if (need.height() <= box.height() && need.width() <= box.width()) break;
        font.setPixelSize(font.pixelSize() - 1);
    }
    return font;
}

QFont shrinkToWidth(QFont font, int width, const QString& text, int minPx) {
    while (font.pixelSize() > minPx && QFontMetrics(font).horizontalAdvance(text) > width)
        font.setPixelSize(font.pixelSize() - 1);
    return font;
}

QFont shrinkToWidth(QFont font, double width, const QString& text, int minPx) {
    while (font.pixelSize() > minPx && QFontMetricsF(font).horizontalAdvance(text) > width)
        font.setPixelSize(font.pixelSize() - 1);
    return font;
}

}  // namespace wm::scene
