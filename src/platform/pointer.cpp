#include "platform/pointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace wm {

namespace {

int showCount = 0;
bool blanked = false;  // our blank cursor is on the override stack

void apply() {
    const bool hide = showCount < 0;
    if (hide == blanked || !qGuiApp) return;
    if (hide) {
        QGuiApplication::setOverrideCursor(QCursor(Qt::BlankCursor));
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
    blanked = hide;
}

}  // namespace

int Pointer::show(bool visible) {
    showCount += visible ? 1 : -1;
    apply();
    return showCount;
}

int Pointer::count() {
    return showCount;
}

bool Pointer::isHidden() {
    return showCount < 0;
}

PointerScope::PointerScope() : saved_(showCount) {}

PointerScope::~PointerScope() {
    showCount = saved_;
    apply();
}

}  // namespace wm
