// One-shot sound effects from sounds/ beside the program. Silent and harmless with no audio
// device or a missing file.
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <vector>

namespace wm {

// How a new effect meets the ones already sounding.
enum class SoundMode {
    Replace,      // cuts any running effect: one wave at a time
    NoInterrupt,  // a bleep that stays quiet while anything is sounding
    Overlap,      // plays alongside, even another voice of the same effect (blasts)
};

class Sound {
public:
    virtual ~Sound() = default;
    // Plays sounds/{name} ("applause" or "applause.wav") without waiting, whatever SoundOn says.
    void play(const QString& name) { play(name, SoundMode::Replace); }
    virtual void play(const QString& name, SoundMode mode) = 0;
    // Stops every effect that is playing.
    virtual void stopAll() = 0;
    // A game effect: played only when the shared SoundOn is true (-1).
    void effect(const QString& name, SoundMode mode = SoundMode::Replace);
};

// Which voice of an effect plays next. `voicesPlaying` holds one entry per loaded voice of this
// effect; `otherPlaying` says whether a different effect is sounding.
struct VoicePlan {
    int voice = -1;           // the voice to (re)start; == voicesPlaying.size() for a new one
    bool stopOthers = false;  // stop everything else first
};
VoicePlan PlanVoice(SoundMode mode, const std::vector<bool>& voicesPlaying, bool otherPlaying);
constexpr int kMaxVoices = 4;  // voices of one effect at once; the oldest is cut beyond that

// Plays through QSoundEffect, keeping one loaded effect per name.
class QtSound : public Sound {
public:
    explicit QtSound(QString soundsFolder);
    ~QtSound() override;
    using Sound::play;
    void play(const QString& name, SoundMode mode) override;
    void stopAll() override;

private:
    struct Impl;
    Impl* d;
};

// True when `path` is a RIFF WAVE file whose chunk sizes fit the file. A truncated file would
// keep a QSoundEffect loading for ever, so such files are never handed to it.
bool IsCompleteWav(const QString& path);

// Records what was asked for: `played` and `modes` run side by side.
class RecordingSound : public Sound {
public:
    using Sound::play;
    void play(const QString& name, SoundMode mode) override {
        played << name;
        modes << mode;
    }
    void stopAll() override { ++stops; }
    QStringList played;
    QList<SoundMode> modes;
    int stops = 0;
};

}  // namespace wm
