#include "platform/services.h"

#include <QDir>
#include <QFileInfo>

#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/music.h"
#include "platform/sound.h"
#include "platform/speech.h"

namespace wm {

Services& services() {
    static Services instance;
    return instance;
}

// With nothing installed (a test that did not care, or a screen built before start-up), the
// calls land on silent doubles instead of a null reference.
Dialogs& dialogs() {
    static ScriptedDialogs fallback;
    return services().dialogs ? *services().dialogs : fallback;
}

Sound& sound() {
    static RecordingSound fallback;
    return services().sound ? *services().sound : fallback;
}

Music& music() {
    static RecordingMusic fallback;
    return services().music ? *services().music : fallback;
}

Speech& speech() {
    static RecordingSpeech fallback;
    return services().speech ? *services().speech : fallback;
}

QString appFile(const QString& relative) {
    // The design names files as "\sounds\x.wav"; accept that form too.
    QString rel = relative;
    const bool designForm = rel.startsWith(QLatin1Char('\\'));
    rel.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (designForm) {
        while (rel.startsWith(QLatin1Char('/'))) rel.remove(0, 1);
    }
    const SharedState& s = Shared();
    const QString base = QString::fromStdString(s.AssetPath.empty() ? s.AppPath : s.AssetPath);
    if (base.isEmpty() || QDir::isAbsolutePath(rel)) return rel;
    return QDir(base).filePath(rel);
}

QString findAsset(const QString& relative) {
    const QString path = appFile(relative);
    const QFileInfo info(path);
    if (info.isFile()) return path;

    // Pictures the design names .gif or .wmf are made as .png; others may come as .jpg.
    static const QStringList kExtensions = {"png", "jpg", "jpeg", "bmp"};
    const QDir folder = info.dir();
    const QString stem = info.completeBaseName();
    if (stem.isEmpty() || !folder.exists()) return {};
    for (const QString& ext : kExtensions) {
        const QString candidate = folder.filePath(stem + QLatin1Char('.') + ext);
        if (QFileInfo(candidate).isFile()) return candidate;
    }
    // Names in the design are not always in the case of the files beside the program.
    const QString wanted = info.fileName();
    QString bestByStem;
    const QFileInfoList entries = folder.entryInfoList(QDir::Files);
    for (const QFileInfo& entry : entries) {
        if (entry.fileName().compare(wanted, Qt::CaseInsensitive) == 0) {
            return entry.filePath();
        }
        if (bestByStem.isEmpty() &&
            entry.completeBaseName().compare(stem, Qt::CaseInsensitive) == 0 &&
            kExtensions.contains(entry.suffix().toLower())) {
            bestByStem = entry.filePath();
        }
    }
    return bestByStem;
}

}  // namespace wm
