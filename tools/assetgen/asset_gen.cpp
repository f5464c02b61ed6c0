// Renders every asset and writes it into the application folder.
#include "asset_gen.h"

#include "core/game_names.h"

#include <QBuffer>
#include <QDir>
#include <QImageWriter>
#include <QSaveFile>
#include <QThreadPool>

#include <functional>

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

// Whole-file writes go through a temporary file renamed over the old one.
bool writeAtomically(const QString& path, const QByteArray& bytes, QString* error) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        if (error) *error = QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

}  // namespace

bool generateAll(const QString& appDir, QString* error) {
    QDir root(appDir);
    for (const char* sub : {"images", "buttons", "sounds", "movies", "scores"}) {
        if (!root.mkpath(QLatin1String(sub))) {
            if (error) *error = QStringLiteral("cannot create %1").arg(root.filePath(sub));
            return false;
        }
    }

    // Pictures are independent of each other, so they render in parallel.
    std::vector<std::pair<QString, std::function<QImage()>>> pictures = {
        {QStringLiteral("images/wm-title.jpg"), renderTitle},
        {QStringLiteral("images/wm-back.jpg"), renderBackdrop},
        {QStringLiteral("images/scramble-back.jpg"), renderScrambleBack},
        {QStringLiteral("buttons/morebutton.jpg"), renderMoreButton},
        {QStringLiteral("buttons/backbutton.jpg"), renderBackButton},
    };
    for (int i = 0; i < kGameCount; ++i) {
        const QString name =
            QString::fromUtf8(kGameNames[i].data(), static_cast<int>(kGameNames[i].size()));
        pictures.push_back(
            {QStringLiteral("buttons/%1.jpg").arg(name), [i] { return renderGameButton(i); }});
    }
    std::vector<AssetFile> files(pictures.size());
    QThreadPool pool;
    for (size_t i = 0; i < pictures.size(); ++i) {
        pool.start([&, i] { files[i] = {pictures[i].first, jpegBytes(pictures[i].second())}; });
    }
    // Icons keep their transparency, so they are PNG rather than JPEG.
    std::vector<AssetFile> icons;
    for (const QString& name : toolbarIconNames()) {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        renderToolbarIcon(name).save(&buffer, "png");
        icons.push_back({QStringLiteral("images/tb-%1.png").arg(name), png});
    }
    std::vector<AssetFile> sounds = renderSounds();
    std::vector<AssetFile> tunes = renderTunes();
    pool.waitForDone();
    files.insert(files.end(), icons.begin(), icons.end());
    files.insert(files.end(), sounds.begin(), sounds.end());
    files.insert(files.end(), tunes.begin(), tunes.end());

    for (const AssetFile& f : files) {
        if (f.bytes.isEmpty()) {
            if (error) *error = QStringLiteral("could not render %1").arg(f.path);
            return false;
        }
        if (!writeAtomically(root.filePath(f.path), f.bytes, error)) return false;
    }
    return true;
}

}  // namespace wm::assetgen
