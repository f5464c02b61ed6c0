#include "shell/screens.h"

#include <QApplication>
#include <QGuiApplication>
#include <QHash>
#include <QPointer>
#include <QTimer>

#include "platform/screen_metrics.h"

namespace wm {

namespace {
QHash<QString, ScreenFactory>& registry() {
    static QHash<QString, ScreenFactory> r;
    return r;
}
QPointer<QWidget> current;
}  // namespace

void RegisterScreen(const QString& name, ScreenFactory factory) {
    registry().insert(name.toLower(), std::move(factory));
}

bool HasScreen(const QString& name) {
    return registry().contains(name.toLower());
}

void PresentScreen(QWidget* screen) {
    screen->setAttribute(Qt::WA_DeleteOnClose);
    const QSize size = ScreenMetrics::screenSize();
    screen->resize(size);
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        screen->show();
    } else {
        screen->showFullScreen();
    }
    screen->activateWindow();
    screen->setFocus();
    current = screen;
}

QWidget* OpenScreen(const QString& name, QWidget* from) {
    auto it = registry().constFind(name.toLower());
    if (it == registry().constEnd()) return nullptr;
    QWidget* next = (*it)();
    if (!next) return nullptr;
    next->setObjectName(name);
    PresentScreen(next);
    if (from && from != next) from->close();
    return next;
}

namespace {
std::function<void()>& endHook() {
    static std::function<void()> hook;
    return hook;
}
}  // namespace

void SetEndProgramHook(std::function<void()> hook) {
    endHook() = std::move(hook);
}

void EndProgram() {
    if (endHook()) {
        endHook()();
        return;
    }
    QTimer::singleShot(0, qApp, &QApplication::quit);
}

QWidget* CurrentScreen() {
    return current.data();
}

}  // namespace wm
