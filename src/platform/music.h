// The background-music alias: one MIDI tune at a time, opened, played from the start and
// closed by the game screens. Rendered by FluidSynth and played through Qt's audio output.
#pragma once

#include <QByteArray>
#include <QString>

namespace wm {

class Music {
public:
    virtual ~Music() = default;
    // Opens a MIDI file under the alias; false when it cannot be opened.
    virtual bool open(const QString& midiPath) = 0;
    virtual void playFromStart() = 0;
    virtual void close() = 0;
    virtual bool isOpen() const = 0;
};

class FluidMusic : public Music {
public:
    // `soundFont` empty: the system's General MIDI font.
    explicit FluidMusic(QString soundFont = {});
    ~FluidMusic() override;
    bool open(const QString& midiPath) override;
    void playFromStart() override;
    void close() override;
    bool isOpen() const override;

private:
    struct Impl;
    Impl* d;
};

class RecordingMusic : public Music {
public:
    bool open(const QString& midiPath) override {
        opened = midiPath;
        open_ = true;
        return true;
    }
    void playFromStart() override { ++plays; }
    void close() override {
        open_ = false;
        ++closes;
    }
    bool isOpen() const override { return open_; }
    QString opened;
    int plays = 0;
    int closes = 0;

private:
    bool open_ = false;
};

// Renders the first `seconds` of a MIDI file to 16-bit stereo at 44.1 kHz, offline.
// Empty when the file or the sound font cannot be loaded.
QByteArray RenderMidi(const QString& midiPath, double seconds, const QString& soundFont = {});
QString DefaultSoundFont();

// The shared background-music helper of the game screens: opens and plays the tune when the
// game's sound is on and the alias is not open yet, and keeps BgmOpen in step.
void StartBackgroundMusic(
    const QString& tuneName);  // tuneName: a file in sounds/, e.g. "scramble.mid"
void StopBackgroundMusic();

}  // namespace wm
