// wm_assetgen <application folder>: draws and synthesises the program's assets into it.
#include "asset_gen.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include <cstdio>

int main(int argc, char** argv) {
    // Drawing needs fonts but no screen; this runs on build machines without a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = QGuiApplication::arguments();
    if (args.size() != 2) {
        std::fprintf(stderr, "usage: wm_assetgen <application folder>\n");
        return 2;
    }
    QElapsedTimer timer;
    timer.start();
    QString error;
    if (!wm::assetgen::generateAll(args[1], &error)) {
        std::fprintf(stderr, "wm_assetgen: %s\n", qPrintable(error));
        return 1;
    }
    std::printf("wm_assetgen: assets written to %s in %lld ms\n", qPrintable(args[1]),
                static_cast<long long>(timer.elapsed()));
    return 0;
}
