#include "manifest.h"

#include "recipe_text.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

namespace wm::assetgen {

const QStringList& assetGroups() {
    static const QStringList groups = {QStringLiteral("pictures"), QStringLiteral("buttons"),
                                       QStringLiteral("sounds"), QStringLiteral("tunes"),
                                       QStringLiteral("movies"), QStringLiteral("art")};
    return groups;
}

QString groupOf(const QString& kind) {
    if (kind == QLatin1String("picture") || kind == QLatin1String("icon"))
        return QStringLiteral("pictures");
    if (kind == QLatin1String("button")) return QStringLiteral("buttons");
    if (kind == QLatin1String("sound")) return QStringLiteral("sounds");
    if (kind == QLatin1String("tune")) return QStringLiteral("tunes");
    if (kind == QLatin1String("movie") || kind == QLatin1String("drawing"))
        return QStringLiteral("movies");
    if (kind == QLatin1String("art")) return QStringLiteral("art");
    return {};
}

bool parseManifest(const QString& text, const QString& file, std::vector<ManifestEntry>* out,
                   QString* error) {
    static const QRegularExpression sizeToken(QStringLiteral("^(\\d+)x(\\d+)$"));
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    const QStringList lines = text.split(QLatin1Char('\n'));
    QSet<QString> seen;
    out->clear();
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines[i].trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) continue;
        auto fail = [&](const QString& message) {
            if (error) *error = recipeError(file, i + 1, message);
            return false;
        };
        // kind, source, an optional WxH, then the name: the rest of the line, blanks and all.
        QString rest = line;
        auto take = [&] {
            const int cut = rest.indexOf(blanks);
            const QString word = cut < 0 ? rest : rest.left(cut);
            rest = cut < 0 ? QString() : rest.mid(cut).trimmed();
            return word;
        };
        ManifestEntry e;
        e.line = i + 1;
        e.kind = take();
        e.source = take();
        if (const auto m = sizeToken.match(rest.section(blanks, 0, 0)); m.hasMatch()) {
            e.size = QSize(m.captured(1).toInt(), m.captured(2).toInt());
            take();
        }
        e.name = rest;
        if (groupOf(e.kind).isEmpty() && e.kind != QLatin1String("scene"))
            return fail(QStringLiteral("unknown kind \"%1\"").arg(e.kind));
        if (e.name.isEmpty()) return fail(QStringLiteral("no name after the source"));
        if (e.name.contains(QLatin1String("..")) || QDir::isAbsolutePath(e.name))
            return fail(
                QStringLiteral("\"%1\" is not a name inside the program folder").arg(e.name));
        const bool picture = e.kind == QLatin1String("picture") ||
                             e.kind == QLatin1String("button") || e.kind == QLatin1String("icon");
        if (picture && (!e.source.startsWith(QLatin1String("draw:")) || e.size.isEmpty()))
            return fail(QStringLiteral("a %1 needs a draw:<name> source and a size").arg(e.kind));
        if (seen.contains(e.name.toLower()))
            return fail(QStringLiteral("\"%1\" is listed twice").arg(e.name));
        seen.insert(e.name.toLower());
        out->push_back(e);
    }
    return true;
}

bool readManifest(const QString& path, std::vector<ManifestEntry>* out, QString* error) {
    QString text;
    return readRecipeFile(path, &text, error) && parseManifest(text, path, out, error);
}

QString sourceAssetsDir() {
    return QStringLiteral(WM_ASSETS_SOURCE_DIR);
}

bool manifestLists(const QString& name) {
    std::vector<ManifestEntry> entries;
    if (!readManifest(QDir(sourceAssetsDir()).filePath(QStringLiteral("manifest.txt")), &entries,
                      nullptr))
        return false;
    for (const ManifestEntry& e : entries)
        if (e.name == name) return true;
    return false;
}

bool assetPresent(const QString& appDir, const QString& name) {
    const QFileInfo info(QDir(appDir).filePath(name));
    return info.isFile() && info.size() > 0;
}

}  // namespace wm::assetgen
