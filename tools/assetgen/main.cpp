// wm_assetgen <assets folder> <application folder> [group...]: makes the program's assets from
// the manifest and recipes into the application folder; only the named groups when given.
#include "asset_gen.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include <cstdio>

int main(int argc, char** argv) {
    // Drawing needs fonts but no screen; this runs on build machines without a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = QGuiApplication::arguments();
    if (args.size() < 3) {
        std::fprintf(stderr,
                     "usage: wm_assetgen <assets folder> <application folder> [group...]\n");
        return 2;
    }
    QElapsedTimer timer;
    timer.start();
    QString error;
    const QStringList groups = args.mid(3);
    if (!wm::assetgen::generate(args[1], args[2], groups, &error)) {
        std::fprintf(stderr, "wm_assetgen: %s\n", qPrintable(error));
        return 1;
    }
    std::printf("wm_assetgen: %s written to %s in %lld ms\n",
                groups.isEmpty() ? "all assets" : qPrintable(groups.join(QLatin1Char(' '))),
                qPrintable(args[2]), static_cast<long long>(timer.elapsed()));
    return 0;
}
