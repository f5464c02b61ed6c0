// wm_iconrender <icon.svg> <icons folder> <name> <size>...: the program's icon as PNG pictures
// for the desktop's icon theme, <icons folder>/<size>x<size>/apps/<name>.png, drawn from the
// same SVG the theme's scalable icon is.
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv) {
    // Drawing needs no screen; this runs on build machines without a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = QGuiApplication::arguments();
    if (args.size() < 5) {
        std::fprintf(stderr, "usage: wm_iconrender <icon.svg> <icons folder> <name> <size>...\n");
        return 2;
    }
    QSvgRenderer svg(args[1]);
    if (!svg.isValid()) {
        std::fprintf(stderr, "wm_iconrender: %s is no drawing\n", qPrintable(args[1]));
        return 1;
    }
    for (const QString& text : args.mid(4)) {
        const int size = text.toInt();
        const QString folder = QStringLiteral("%1/%2x%2/apps").arg(args[2]).arg(size);
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        svg.render(&painter);
        painter.end();
        const QString file = QStringLiteral("%1/%2.png").arg(folder, args[3]);
        if (size <= 0 || !QDir().mkpath(folder) || !image.save(file)) {
            std::fprintf(stderr, "wm_iconrender: cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
