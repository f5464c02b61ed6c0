#include "platform/key_state.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace wm {

KeyState::KeyState(QWidget* screen) : QObject(screen), screen_(screen) {
    // On the application, not the screen: keys go to whichever child has the focus, and a child
    // that takes arrow keys for itself would hide them from a filter on the screen.
    if (qApp) qApp->installEventFilter(this);
}

KeyState::~KeyState() {
    if (qApp) qApp->removeEventFilter(this);
}

bool KeyState::isDown(int key) const {
    return down_.contains(key);
}

bool KeyState::takePressed(int key) {
    return pressed_.remove(key);
}

void KeyState::clear() {
    down_.clear();
    pressed_.clear();
}

bool KeyState::concerns(QObject* watched) const {
    if (!screen_ || !watched->isWidgetType()) return false;
    auto* widget = static_cast<QWidget*>(watched);
    return widget == screen_ || screen_->isAncestorOf(widget);
}

bool KeyState::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease: {
            if (!concerns(watched)) break;
            // A key event climbs from the focus widget to its parents and passes here at each
            // step; setting a flag twice is harmless.
            auto* key = static_cast<QKeyEvent*>(event);
            if (key->isAutoRepeat()) break;
            if (event->type() == QEvent::KeyPress) {
                down_.insert(key->key());
                pressed_.insert(key->key());
            } else {
                down_.remove(key->key());
            }
            break;
        }
        case QEvent::WindowDeactivate:
            // The release of a key held while leaving never comes here: nothing stays held.
            if (screen_ && watched == screen_->window()) down_.clear();
            break;
        default:
            break;
    }
    return false;
}

}  // namespace wm
