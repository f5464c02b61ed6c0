// One-shot sound effects from sounds/ beside the program. Silent and harmless with no audio
// device or a missing file.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace wm {

class Sound {
public:
    virtual ~Sound() = default;
    // Plays sounds/{name} ("applause" or "applause.wav") without waiting, whatever SoundOn says.
    virtual void play(const QString& name) = 0;
    // Stops every effect that is playing.
    virtual void stopAll() = 0;
    // A game effect: played only when the shared SoundOn is true (-1).
    void effect(const QString& name);
};

// Plays through QSoundEffect, keeping one loaded effect per name.
class QtSound : public Sound {
public:
    explicit QtSound(QString soundsFolder);
    ~QtSound() override;
    void play(const QString& name) override;
    void stopAll() override;

private:
    struct Impl;
    Impl* d;
};

// True when `path` is a RIFF WAVE file whose chunk sizes fit the file. A truncated file would
// keep a QSoundEffect loading for ever, so such files are never handed to it.
bool IsCompleteWav(const QString& path);

// Records what was asked for.
class RecordingSound : public Sound {
public:
    void play(const QString& name) override { played << name; }
    void stopAll() override { ++stops; }
    QStringList played;
    int stops = 0;
};

}  // namespace wm
