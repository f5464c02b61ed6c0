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

// Records what was asked for.
class RecordingSound : public Sound {
public:
    void play(const QString& name) override { played << name; }
    void stopAll() override { ++stops; }
    QStringList played;
    int stops = 0;
};

}  // namespace wm
