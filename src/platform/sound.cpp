#include "platform/sound.h"

#include <QAudioDevice>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>
#include <map>
#include <memory>

#include "core/shared_state.h"

namespace wm {

void Sound::effect(const QString& name, SoundMode mode) {
    if (Shared().SoundOn == kTrue) play(name, mode);
}

VoicePlan PlanVoice(SoundMode mode, const std::vector<bool>& voicesPlaying, bool otherPlaying) {
    const int count = int(voicesPlaying.size());
    bool anyMine = false;
    for (bool playing : voicesPlaying) anyMine = anyMine || playing;
    switch (mode) {
        case SoundMode::Replace:
            return {0, true};
        case SoundMode::NoInterrupt:
            if (anyMine || otherPlaying) return {};
            return {0, false};
        case SoundMode::Overlap:
            for (int i = 0; i < count; ++i) {
                if (!voicesPlaying[size_t(i)]) return {i, false};
            }
            // All voices busy: another one, or cut the first (the oldest started) beyond the cap.
            return {count < kMaxVoices ? count : 0, false};
    }
    return {};
}

namespace {

quint32 le32(const char* p) {
    const auto* u = reinterpret_cast<const unsigned char*>(p);
    return quint32(u[0]) | quint32(u[1]) << 8 | quint32(u[2]) << 16 | quint32(u[3]) << 24;
}

}  // namespace

bool IsCompleteWav(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    const qint64 fileSize = file.size();
    const QByteArray head = file.read(64 * 1024);
    if (head.size() < 12 || !head.startsWith("RIFF") || head.mid(8, 4) != "WAVE") return false;
    if (qint64(le32(head.constData() + 4)) + 8 > fileSize) return false;

    bool haveFormat = false;
    qint64 pos = 12;
    while (pos + 8 <= head.size()) {
        const QByteArray id = head.mid(pos, 4);
        const qint64 size = le32(head.constData() + pos + 4);
        if (id == "fmt ") haveFormat = size >= 16;
        if (id == "data") return haveFormat && size > 0 && pos + 8 + size <= fileSize;
        pos += 8 + size + (size & 1);  // chunks are padded to an even length
    }
    return false;
}

struct QtSound::Impl {
    QString folder;
    bool hasDevice = false;
    // Voices of each effect, by lower-cased file name; Overlap adds voices up to kMaxVoices.
    std::map<QString, std::vector<std::unique_ptr<QSoundEffect>>> effects;
    QMap<QString, QString> paths;  // checked file of each effect

    std::unique_ptr<QSoundEffect> voice(const QString& path) const {
        auto effect = std::make_unique<QSoundEffect>();
        effect->setSource(QUrl::fromLocalFile(path));
        return effect;
    }

    QString resolve(const QString& fileName) const {
        const QString exact = QDir(folder).filePath(fileName);
        if (QFileInfo(exact).isFile()) return exact;
        // Sound names in the screens are not always in the case of the files.
        const QFileInfoList entries = QDir(folder).entryInfoList(QDir::Files);
        for (const QFileInfo& entry : entries) {
            if (entry.fileName().compare(fileName, Qt::CaseInsensitive) == 0) {
                return entry.filePath();
            }
        }
        return {};
    }
};

QtSound::QtSound(QString soundsFolder) : d(new Impl) {
    d->folder = std::move(soundsFolder);
    // Without an output device there is nothing to do, and QSoundEffect would still load files.
    d->hasDevice = !QMediaDevices::defaultAudioOutput().isNull();
}

QtSound::~QtSound() {
    stopAll();
    delete d;
}

void QtSound::play(const QString& name, SoundMode mode) {
    if (!d->hasDevice || name.trimmed().isEmpty()) return;
    QString fileName =
        QFileInfo(QString(name).replace(QLatin1Char('\\'), QLatin1Char('/'))).fileName();
    if (!fileName.endsWith(QLatin1String(".wav"), Qt::CaseInsensitive)) {
        fileName += QLatin1String(".wav");
    }
    const QString key = fileName.toLower();

    auto it = d->effects.find(key);
    if (it == d->effects.end()) {
        const QString path = d->resolve(fileName);
        if (path.isEmpty() || !IsCompleteWav(path)) return;
        d->paths[key] = path;
        it = d->effects.emplace(key, std::vector<std::unique_ptr<QSoundEffect>>{}).first;
        it->second.push_back(d->voice(path));
    }
    std::vector<bool> mine;
    for (const auto& v : it->second) mine.push_back(v->isPlaying());
    bool others = false;
    for (const auto& [otherKey, voices] : d->effects) {
        if (otherKey == key) continue;
        for (const auto& v : voices) others = others || v->isPlaying();
    }
    const VoicePlan plan = PlanVoice(mode, mine, others);
    if (plan.voice < 0) return;
    if (plan.stopOthers) stopAll();
    if (plan.voice == int(it->second.size())) it->second.push_back(d->voice(d->paths[key]));
    QSoundEffect& chosen = *it->second[size_t(plan.voice)];
    if (chosen.isPlaying()) chosen.stop();
    chosen.play();
}

void QtSound::stopAll() {
    for (auto& [key, voices] : d->effects) {
        for (auto& v : voices) v->stop();
    }
}

}  // namespace wm
