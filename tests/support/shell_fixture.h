// A throw-away application folder with the factory files and the built pictures, scripted
// dialogs, recorded sound and music, and a scripted random generator.
#pragma once

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include "core/rng.h"
#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/movie.h"
#include "platform/music.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/ticker.h"
#include "shell/game_frame.h"
#include "shell/screens.h"
#include "shell/style.h"

namespace wm::test {

struct ShellFixture {
    QTemporaryDir dir;
    ScriptedDialogs dialogs;
    RecordingSound sound;
    RecordingMusic music;
    ScriptedRng rng{0.5};

    // `withFactory`: the delivered .new files, as a fresh installation has them.
    explicit ShellFixture(bool withFactory = true) {
        static bool once = [] {
            ApplyAppStyle();
            RegisterBuiltInScenes();
            RegisterShellScreens();
            // Game screens register themselves as they are linked in.
            return true;
        }();
        (void)once;
        Shared() = SharedState{};
        Shared().AppPath = dir.path().toStdString();
        services() = {&dialogs, &sound, &music};
        SetRng(&rng);
        SetModalHook({});
        // Timers and animations move only when a test moves the clock.
        Ticker::get().setManual(true);
        ScreenMetrics::overrideScreenSize(QSize(1280, 800));
        const QString data = WM_SOURCE_DATA_DIR;
        if (withFactory) {
            for (const char* f : {"wmdata.new", "thelists.new", "flcodelist.dat", "wmgdisplay.dat"})
                QFile::copy(data + "/" + f, path(f));
        }
        // Pictures and sounds come from the build's application folder.
        for (const char* sub : {"images", "buttons", "sounds", "movies"})
            QFile::link(QString(WM_ASSET_DIR) + "/" + sub, path(sub));
    }
    ~ShellFixture() {
        for (QWidget* w : QApplication::topLevelWidgets()) w->close();
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        SetModalHook({});
        SetRng(nullptr);
        services() = {};
        ScreenMetrics::overrideScreenSize({});
    }
    QString path(const QString& name) const { return dir.path() + "/" + name; }
    bool exists(const QString& name) const { return QFile::exists(path(name)); }
    void writeLines(const QString& name, const QStringList& lines) const {
        QFile f(path(name));
        f.open(QIODevice::WriteOnly);
        for (const auto& l : lines) f.write(l.toLatin1() + "\r\n");
    }
    QByteArray read(const QString& name) const {
        QFile f(path(name));
        f.open(QIODevice::ReadOnly);
        return f.readAll();
    }
};

// Moves the test clock on by `ms`, letting the timers due meanwhile fire, and serves the
// events posted meanwhile. Never waits in real time.
inline void Pump(int ms = 30) {
    QApplication::processEvents();
    Ticker::get().advance(ms);
    QApplication::processEvents();
}

// The screen shown now, cast to what the test expects.
template <class T>
T* Showing() {
    return qobject_cast<T*>(CurrentScreen());
}

// Saves a picture of a widget for looking at, when WM_SHOTS names a folder.
inline void Shot(QWidget* w, const QString& name) {
    const QString folder = qEnvironmentVariable("WM_SHOTS");
    if (folder.isEmpty() || !w) return;
    QDir().mkpath(folder);
    w->grab().save(folder + "/" + name + ".png");
}

}  // namespace wm::test
