// wm_helpgen SOURCE_DIR HELP_DIR: writes the help pages from the catalogue of this build (every
// game that has a screen) and the page texts in SOURCE_DIR.
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <cstdio>

#include "help_pages.h"
#include "shell/catalogue.h"

namespace {
QString ReadText(const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "wm_helpgen: cannot read %s\n", qPrintable(path));
        std::exit(1);
    }
    return QString::fromUtf8(f.readAll());
}

void WriteText(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile f(path);
    if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size() || !f.commit()) {
        std::fprintf(stderr, "wm_helpgen: cannot write %s\n", qPrintable(path));
        std::exit(1);
    }
}
}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: wm_helpgen SOURCE_DIR HELP_DIR\n");
        return 2;
    }
    const QString source = QString::fromLocal8Bit(argv[1]);
    const QString out = QString::fromLocal8Bit(argv[2]);
    std::vector<const wm::GameCard*> offered;
    for (const wm::GameCard& card : wm::Catalogue())
        if (card.built()) offered.push_back(&card);
    // Pages of games this build no longer has are removed with the rest.
    QDir(out + "/games").removeRecursively();
    const auto pages = wm::help::Pages(offered, ReadText(source + "/home.htm"),
                                       ReadText(source + "/teacher.htm"));
    for (const auto& [name, html] : pages) WriteText(out + "/" + name, html.toUtf8());
    WriteText(out + "/wmhelp.css", ReadText(source + "/wmhelp.css").toUtf8());
    std::printf("wm_helpgen: %d pages for %d games\n", int(pages.size()), int(offered.size()));
    return 0;
}
