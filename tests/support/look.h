// The look check shared by the screen tests.
#pragma once

#include <QDir>
#include <QEvent>
#include <QImage>
#include <QPaintEvent>
#include <QRegion>
#include <QString>
#include <QWidget>
#include <algorithm>
#include <cstdlib>
#include <functional>

#ifndef WM_LOOKS_DIR
#error "a test that checks looks is built with WM_LOOKS_DIR"
#endif

namespace wm::test {

// A screen's look at 1280x800 against its picture kept at half size in tests/games/looks/
// (WM_LOOKS_DIR), named after `game`: a box moved, a colour changed or a text in another size
// shows as a patch of changed pixels. Small moving sparkles are let through. A look changed on
// purpose is taken as the new picture with WM_LOOK_REFRESH=1.
inline QString LookFault(const QString& game, const QImage& shot) {
    const QImage now = shot.scaled(640, 400, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                           .convertToFormat(QImage::Format_RGB32);
    const QString kept = QString(WM_LOOKS_DIR) + "/" + QString(game).replace(' ', '_') + ".png";
    if (qEnvironmentVariableIsSet("WM_LOOK_REFRESH")) {
        now.save(kept);
        return {};
    }
    const QImage was = QImage(kept).convertToFormat(QImage::Format_RGB32);
    if (was.size() != now.size()) return "no picture of the look kept at " + kept;
    int changed = 0;
    for (int y = 0; y < now.height(); ++y) {
        const QRgb* a = reinterpret_cast<const QRgb*>(now.constScanLine(y));
        const QRgb* b = reinterpret_cast<const QRgb*>(was.constScanLine(y));
        for (int x = 0; x < now.width(); ++x)
            changed += std::max({std::abs(qRed(a[x]) - qRed(b[x])), std::abs(qGreen(a[x]) - qGreen(b[x])),
                                 std::abs(qBlue(a[x]) - qBlue(b[x]))}) > 40;
    }
    if (changed <= 300) return {};
    const QString seen = QDir::temp().filePath("look-" + QString(game).replace(' ', '_') + ".png");
    now.save(seen);
    return QString("%1's look changed in %2 pixels: compare %3 with %4, and if the change was "
                   "meant, take it with WM_LOOK_REFRESH=1").arg(game).arg(changed).arg(seen, kept);
}

// What `w` painted while `act` ran: how many times, and where. A scene that stops asking to be
// repainted looks frozen on a real screen, though a grab() still draws it right.
struct Repaints {
    int count = 0;
    QRegion region;
};
inline Repaints RepaintsDuring(QWidget* w, const std::function<void()>& act) {
    struct Seen : QObject {
        Repaints seen;
        bool eventFilter(QObject*, QEvent* e) override {
            if (e->type() == QEvent::Paint) {
                ++seen.count;
                seen.region += static_cast<QPaintEvent*>(e)->region();
            }
            return false;
        }
    } filter;
    w->installEventFilter(&filter);
    act();
    w->removeEventFilter(&filter);
    return filter.seen;
}
inline int PaintsDuring(QWidget* w, const std::function<void()>& act) {
    return RepaintsDuring(w, act).count;
}

}  // namespace wm::test

// Checks `widget`'s look now against the picture kept as `name`, inside a QtTest function.
#define WM_CHECK_LOOK(name, widget)                                                  \
    do {                                                                            \
        const QString lookFault_ = wm::test::LookFault(name, (widget)->grab().toImage()); \
        QVERIFY2(lookFault_.isEmpty(), qPrintable(lookFault_));                     \
    } while (0)
