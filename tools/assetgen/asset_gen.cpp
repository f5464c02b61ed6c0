// Renders the assets the manifest lists and writes them into the application folder.
#include "asset_gen.h"

#include "core/game_names.h"
#include "manifest.h"
#include "recipe_text.h"
#include "sound_recipe.h"
#include "tune_recipe.h"
#include "wav.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImageWriter>
#include <QSaveFile>
#include <QThreadPool>

#include <functional>
#include <map>

namespace wm::assetgen {

namespace {

QByteArray jpegBytes(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpg");
    writer.setQuality(92);
    writer.write(image.convertToFormat(QImage::Format_RGB32));
    return bytes;
}

QByteArray pngBytes(const QImage& image) {
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return png;
}

// Whole-file writes go through a temporary file renamed over the old one.
bool writeAtomically(const QString& path, const QByteArray& bytes, QString* error) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        if (error) *error = QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

// The drawings a manifest may name as "draw:<name>".
std::function<QImage()> drawing(const ManifestEntry& e) {
    static const std::map<QString, std::function<QImage()>> kDrawings = {
        {"title", renderTitle},
        {"backdrop", renderBackdrop},
        {"scramble-back", renderScrambleBack},
        {"more", renderMoreButton},
        {"back", renderBackButton},
    };
    const QString what = e.source.mid(5);
    if (const auto it = kDrawings.find(what); it != kDrawings.end()) return it->second;
    if (what == QLatin1String("game")) {
        // A game's button is drawn by the game's place in the catalogue, found by file name.
        const QString game = QFileInfo(e.name).completeBaseName();
        for (int i = 0; i < kGameCount; ++i) {
            if (QLatin1String(kGameNames[i].data(), kGameNames[i].size()) == game)
                return [i] { return renderGameButton(i); };
        }
        return {};
    }
    if (e.kind == QLatin1String("icon")) {
        for (const QString& icon : toolbarIconNames())
            if (icon == what) return [icon] { return renderToolbarIcon(icon); };
    }
    return {};
}

}  // namespace

bool renderGroup(const QString& assetsDir, const QString& group, std::vector<AssetFile>* out,
                 QString* error) {
    const QDir src(assetsDir);
    const QString manifestPath = src.filePath(QStringLiteral("manifest.txt"));
    std::vector<ManifestEntry> entries;
    if (!readManifest(manifestPath, &entries, error)) return false;
    std::vector<ManifestEntry> mine;
    for (const ManifestEntry& e : entries)
        if (groupOf(e.kind) == group) mine.push_back(e);
    out->assign(mine.size(), {});
    auto where = [&](const ManifestEntry& e) {
        return QStringLiteral("%1:%2 (%3)").arg(manifestPath).arg(e.line).arg(e.name);
    };

    if (group == QLatin1String("pictures") || group == QLatin1String("buttons")) {
        std::vector<std::function<QImage()>> draws;
        for (const ManifestEntry& e : mine) {
            draws.push_back(drawing(e));
            if (!draws.back()) {
                if (error)
                    *error = where(e) + QStringLiteral(": nothing draws \"%1\"").arg(e.source);
                return false;
            }
        }
        // Pictures are independent of each other, so they render in parallel.
        QThreadPool pool;
        for (size_t i = 0; i < mine.size(); ++i) {
            pool.start([&, i] {
                const QImage image = draws[i]();
                // Icons keep their transparency, so they are PNG rather than JPEG.
                const bool png = mine[i].name.endsWith(QLatin1String(".png"));
                (*out)[i] = {mine[i].name, image.size() != mine[i].size ? QByteArray()
                                           : png                        ? pngBytes(image)
                                                                        : jpegBytes(image)};
            });
        }
        pool.waitForDone();
        for (size_t i = 0; i < mine.size(); ++i) {
            if ((*out)[i].bytes.isEmpty()) {
                if (error) *error = where(mine[i]) + QStringLiteral(": drawn at the wrong size");
                return false;
            }
        }
        return true;
    }

    // Each recipe stands alone, so they render in parallel; the first failure in manifest order
    // is the one reported, whatever order the threads finish in.
    std::vector<QString> errors(mine.size());
    auto make = [&](size_t i) {
        const ManifestEntry& e = mine[i];
        const QString path = src.filePath(e.source);
        QString text, why;
        if (!readRecipeFile(path, &text, &why)) {
            errors[i] = where(e) + QStringLiteral(": ") + why;
            return;
        }
        QByteArray bytes;
        if (e.kind == QLatin1String("sound")) {
            std::vector<std::int16_t> samples;
            if (!renderSoundRecipe(text, path, &samples, &why)) {
                errors[i] = why;
                return;
            }
            bytes = encodeWav(samples);
        } else if (e.kind == QLatin1String("tune")) {
            if (!renderTuneRecipe(text, path, &bytes, &why)) {
                errors[i] = why;
                return;
            }
        } else {
            // Timelines, their drawings and the games' SVG art are read by the program as they
            // are.
            bytes = text.toUtf8();
        }
        (*out)[i] = {e.name, bytes};
    };
    QThreadPool pool;
    for (size_t i = 0; i < mine.size(); ++i) pool.start([&make, i] { make(i); });
    pool.waitForDone();
    for (const QString& why : errors) {
        if (!why.isEmpty()) {
            if (error) *error = why;
            return false;
        }
    }
    return true;
}

bool generate(const QString& assetsDir, const QString& appDir, const QStringList& groups,
              QString* error) {
    QDir root(appDir);
    for (const char* sub : {"images", "buttons", "sounds", "movies", "scores"}) {
        if (!root.mkpath(QLatin1String(sub))) {
            if (error) *error = QStringLiteral("cannot create %1").arg(root.filePath(sub));
            return false;
        }
    }
    for (const QString& group : groups.isEmpty() ? assetGroups() : groups) {
        if (!assetGroups().contains(group)) {
            if (error) *error = QStringLiteral("no asset group \"%1\"").arg(group);
            return false;
        }
        std::vector<AssetFile> files;
        if (!renderGroup(assetsDir, group, &files, error)) return false;
        for (const AssetFile& f : files) {
            const QString path = root.filePath(f.path);
            if (!QFileInfo(path).dir().exists() && !QDir().mkpath(QFileInfo(path).path())) {
                if (error) *error = QStringLiteral("cannot create %1").arg(QFileInfo(path).path());
                return false;
            }
            // Unchanged files keep their dates, so nothing downstream sees a change.
            QFile old(path);
            if (old.open(QIODevice::ReadOnly) && old.size() == f.bytes.size() &&
                old.readAll() == f.bytes)
                continue;
            old.close();
            if (!writeAtomically(path, f.bytes, error)) return false;
        }
    }
    return true;
}

bool generateAll(const QString& appDir, QString* error) {
    return generate(sourceAssetsDir(), appDir, {}, error);
}

}  // namespace wm::assetgen
