// Draws one of the board games' SVG pictures from images/ at any size, sharp on every screen.
// Returns false when the picture is missing, so the caller can draw a plain stand-in.
#pragma once

#include <QHash>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <memory>

#include "platform/services.h"

namespace wm::show {

inline bool PaintSvg(QPainter& p, const QString& relative, const QRectF& r) {
    static QHash<QString, std::shared_ptr<QSvgRenderer>> cache;
    auto it = cache.find(relative);
    if (it == cache.end()) {
        const QString path = findAsset(relative);
        auto renderer = std::make_shared<QSvgRenderer>(path.isEmpty() ? QString() : path);
        it = cache.insert(relative, renderer);
    }
    if (!it.value()->isValid()) return false;
    it.value()->render(&p, r);
    return true;
}

}  // namespace wm::show
