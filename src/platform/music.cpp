#include "platform/music.h"

#include <fluidsynth.h>

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QMediaDevices>
#include <algorithm>
#include <cmath>
#include <memory>
#include <mutex>

#include "core/shared_state.h"
#include "platform/services.h"

namespace wm {

namespace {

constexpr int kSampleRate = 44100;
constexpr int kBytesPerFrame = 4;  // 16-bit stereo

// FluidSynth logs every soundfont quirk to stderr; the program keeps quiet.
void quietFluidSynth() {
    static std::once_flag once;
    std::call_once(once, [] {
        for (int level = FLUID_PANIC; level < LAST_LOG_LEVEL; ++level) {
            fluid_set_log_function(level, nullptr, nullptr);
        }
    });
}

quint32 be(const QByteArray& d, qsizetype at, int bytes) {
    quint32 v = 0;
    for (int i = 0; i < bytes; ++i) v = v << 8 | quint8(d[at + i]);
    return v;
}

// A standard MIDI file: a header chunk and at least one whole track chunk.
bool isStandardMidi(const QByteArray& d) {
    if (d.size() < 14 || !d.startsWith("MThd")) return false;
    const qint64 headerLength = be(d, 4, 4);
    if (headerLength < 6 || be(d, 10, 2) == 0) return false;
    qint64 pos = 8 + headerLength;
    while (pos + 8 <= d.size()) {
        const qint64 length = be(d, pos + 4, 4);
        if (pos + 8 + length > d.size()) break;  // a cut-off tail: play what is whole
        if (d.mid(pos, 4) == "MTrk") return true;
        pos += 8 + length;
    }
    return false;
}

QByteArray readMidi(const QString& path) {
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) return {};
    QByteArray data = file.readAll();
    return isStandardMidi(data) ? data : QByteArray();
}

// One synth with the General MIDI font and one player; it makes sound only when asked to
// render, so the same object serves the speakers and offline rendering.
class Tune {
public:
    Tune() {
        quietFluidSynth();
        settings_ = new_fluid_settings();
        fluid_settings_setnum(settings_, "synth.sample-rate", kSampleRate);
        fluid_settings_setnum(settings_, "synth.gain", 0.5);
        fluid_settings_setint(settings_, "synth.lock-memory", 0);
        // The player advances with the samples rendered, not with the wall clock.
        fluid_settings_setstr(settings_, "player.timing-source", "sample");
        // Each pass of a loop lets the last notes ring out; start() resets the synth itself.
        fluid_settings_setint(settings_, "player.reset-synth", 0);
        synth_ = new_fluid_synth(settings_);
    }
    ~Tune() {
        stop();
        if (synth_) delete_fluid_synth(synth_);
        delete_fluid_settings(settings_);
    }
    Tune(const Tune&) = delete;
    Tune& operator=(const Tune&) = delete;

    bool loadFont(const QString& soundFont) {
        if (fontLoaded_) return true;
        const QString font = soundFont.isEmpty() ? DefaultSoundFont() : soundFont;
        if (!synth_ || font.isEmpty() || !QFileInfo(font).isFile()) return false;
        fontLoaded_ = fluid_synth_sfload(synth_, QFile::encodeName(font).constData(), 1) >= 0;
        return fontLoaded_;
    }

    // Starts the tune from its first tick; it loops, as background music does.
    bool start(const QByteArray& midi) {
        stop();
        if (!fontLoaded_ || midi.isEmpty()) return false;
        midi_ = midi;
        return startPass(true);
    }

    void stop() {
        if (player_) {
            fluid_player_stop(player_);
            delete_fluid_player(player_);
            player_ = nullptr;
        }
        if (synth_) fluid_synth_all_sounds_off(synth_, -1);
    }

    void render(char* out, int frames) {
        if (!synth_) return;
        constexpr int kBlock = 512;
        for (int done = 0; done < frames; done += kBlock) {
            const int n = std::min(kBlock, frames - done);
            char* at = out + qsizetype(done) * kBytesPerFrame;
            fluid_synth_write_s16(synth_, n, at, 0, 2, at, 1, 2);
            passFrames_ += n;
            if (player_ && passEnded()) {
                // Loop by starting a new pass rather than with the player's own loop, which
                // spins for ever on a file it cannot parse. A pass that ends at once is such a
                // file: it is not tried again.
                if (passFrames_ >= kSampleRate / 10) {
                    fluid_synth_all_notes_off(synth_, -1);
                    startPass(false);
                } else {
                    delete_fluid_player(player_);
                    player_ = nullptr;
                }
            }
        }
    }

private:
    // The last tick is the end of the tune; the player itself only reports the end seconds
    // later, once every voice has died away.
    bool passEnded() {
        const int total = fluid_player_get_total_ticks(player_);
        if (total > 0 && fluid_player_get_current_tick(player_) >= total) return true;
        return fluid_player_get_status(player_) == FLUID_PLAYER_DONE;
    }

    bool startPass(bool reset) {
        if (player_) {
            delete_fluid_player(player_);
            player_ = nullptr;
        }
        if (reset) fluid_synth_system_reset(synth_);
        passFrames_ = 0;
        player_ = new_fluid_player(synth_);
        if (!player_) return false;
        if (fluid_player_add_mem(player_, midi_.constData(), size_t(midi_.size())) != FLUID_OK) {
            stop();
            return false;
        }
        return fluid_player_play(player_) == FLUID_OK;
    }

    fluid_settings_t* settings_ = nullptr;
    fluid_synth_t* synth_ = nullptr;
    fluid_player_t* player_ = nullptr;
    QByteArray midi_;
    qint64 passFrames_ = 0;
    bool fontLoaded_ = false;
};

// An endless stream of the tune's samples, pulled by the audio sink.
class TuneStream : public QIODevice {
public:
    explicit TuneStream(Tune* tune) : tune_(tune) {}
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override {
        return kSampleRate * kBytesPerFrame + QIODevice::bytesAvailable();
    }

protected:
    qint64 readData(char* data, qint64 maxSize) override {
        const qint64 frames = std::min<qint64>(maxSize / kBytesPerFrame, kSampleRate);
        tune_->render(data, int(frames));
        return frames * kBytesPerFrame;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    Tune* tune_;
};

}  // namespace

QString DefaultSoundFont() {
    const QString standard = QStringLiteral("/usr/share/sounds/sf2/default-GM.sf2");
    if (QFileInfo(standard).isFile()) return standard;
    for (const QString& folder :
         {QStringLiteral("/usr/share/sounds/sf2"), QStringLiteral("/usr/share/soundfonts")}) {
        const QFileInfoList fonts =
            QDir(folder).entryInfoList({QStringLiteral("*.sf2")}, QDir::Files, QDir::Name);
        if (!fonts.isEmpty()) return fonts.first().filePath();
    }
    return {};
}

QByteArray RenderMidi(const QString& midiPath, double seconds, const QString& soundFont) {
    const QByteArray midi = readMidi(midiPath);
    if (midi.isEmpty() || !(seconds > 0)) return {};
    Tune tune;
    if (!tune.loadFont(soundFont) || !tune.start(midi)) return {};

    const qint64 total = std::llround(seconds * kSampleRate) * kBytesPerFrame;
    QByteArray out(total, '\0');
    TuneStream stream(&tune);
    stream.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    qint64 done = 0;
    while (done < total) {
        const qint64 got = stream.read(out.data() + done, std::min<qint64>(total - done, 16384));
        if (got <= 0) break;
        done += got;
    }
    out.truncate(done);
    return out;
}

struct FluidMusic::Impl {
    QString soundFont;
    QByteArray midi;
    bool open = false;
    std::unique_ptr<Tune> tune;
    std::unique_ptr<TuneStream> stream;
    std::unique_ptr<QAudioSink> sink;
};

FluidMusic::FluidMusic(QString soundFont) : d(new Impl) {
    d->soundFont = std::move(soundFont);
}

FluidMusic::~FluidMusic() {
    close();
    delete d;
}

bool FluidMusic::open(const QString& midiPath) {
    close();
    d->midi = readMidi(midiPath);
    d->open = !d->midi.isEmpty();
    return d->open;
}

void FluidMusic::playFromStart() {
    if (!d->open) return;
    // No speakers: nothing to render for, and loading the sound font would only cost time.
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull()) return;
    if (!d->tune) d->tune = std::make_unique<Tune>();
    if (!d->tune->loadFont(d->soundFont) || !d->tune->start(d->midi)) return;
    if (d->sink) return;  // already pulling; the tune just went back to its start

    QAudioFormat format;
    format.setSampleRate(kSampleRate);
    format.setChannelCount(2);
    format.setSampleFormat(QAudioFormat::Int16);
    if (!device.isFormatSupported(format)) return;
    d->stream = std::make_unique<TuneStream>(d->tune.get());
    d->stream->open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    d->sink = std::make_unique<QAudioSink>(device, format);
    // A quarter second of buffer rides over the busy ticks of the action games.
    d->sink->setBufferSize(kSampleRate * kBytesPerFrame / 4);
    d->sink->start(d->stream.get());
}

void FluidMusic::close() {
    if (d->sink) {
        d->sink->stop();
        d->sink.reset();
    }
    d->stream.reset();
    if (d->tune) d->tune->stop();  // the synth and its font stay loaded for the next tune
    d->midi.clear();
    d->open = false;
}

bool FluidMusic::isOpen() const {
    return d->open;
}

void StartBackgroundMusic(const QString& tuneName) {
    SharedState& s = Shared();
    if (s.SoundOn == kTrue && !s.BgmOpen) {
        music().open(appFile(QStringLiteral("sounds/") + tuneName));
        music().playFromStart();
        // Set even when the tune would not open, as the media commands never reported back.
        s.BgmOpen = kTrue;
    }
}

void StopBackgroundMusic() {
    music().close();
    Shared().BgmOpen = kFalse;
}

}  // namespace wm
