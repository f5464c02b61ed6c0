// The asset manifest (assets/manifest.txt): every file the program loads, by the name it loads it
// with, what kind of asset it is and where it comes from. The generator makes what it lists;
// tests read it to check a generated application folder.
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

#include <vector>

namespace wm::assetgen {

struct ManifestEntry {
    QString kind;    // picture, button, icon, sound, tune, movie, drawing, scene
    QString source;  // "draw:<name>", a file under assets/, or "code" for a scene of the program
    QSize size;      // pictures only: the size the file must have
    QString name;    // the path in the application folder, e.g. "buttons/Flying Cow.jpg"
    int line = 0;
};

// The generation groups, each rebuilt on its own: pictures, buttons, sounds, tunes, movies.
const QStringList& assetGroups();
// The group an entry's kind belongs to; empty for scenes, which the program draws itself.
QString groupOf(const QString& kind);

// Parses manifest text; false with "<file>:<line>: <message>" on a bad line or a name listed twice.
bool parseManifest(const QString& text, const QString& file, std::vector<ManifestEntry>* out,
                   QString* error);
bool readManifest(const QString& path, std::vector<ManifestEntry>* out, QString* error);

// The assets folder of the source tree this generator was built from.
QString sourceAssetsDir();

// Convenience for tests elsewhere: is `name` listed in the source manifest, and is it present
// (non-empty) in the application folder `appDir`?
bool manifestLists(const QString& name);
bool assetPresent(const QString& appDir, const QString& name);

}  // namespace wm::assetgen
