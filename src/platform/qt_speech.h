// The real speech engine: Qt TextToSpeech, in a thread of its own so that starting it (which
// can take seconds while the speech service comes up) never holds up a screen. Nothing starts
// until a screen first asks whether a language can be spoken.
#pragma once

#include <memory>

#include "platform/speech.h"

class QThread;

namespace wm {

class SpeechWorker;
struct SpeechLink;

class QtSpeech : public Speech {
    Q_OBJECT
public:
    QtSpeech();
    ~QtSpeech() override;
    SpeechStatus status(const QLocale& locale) override;
    void say(const QString& text, const QLocale& locale, int rate) override;
    void stop() override;

    // The engine's name once it is up ("speechd"), and whether it has a voice for a
    // language whatever the sound output: for the test of the real engine.
    QString engineName() const { return engine_; }
    bool hasVoiceFor(const QLocale& locale) const;
    // How long the engine may take to come up before it counts as missing.
    static constexpr int kStartLimitMs = 15000;

private:
    friend class SpeechWorker;  // reports the engine's start
    void start();
    void started(const QString& engine, const QList<QLocale>& locales);
    void failed();

    enum class State { Idle, Starting, Up, Failed } state_ = State::Idle;
    QThread* thread_ = nullptr;
    SpeechWorker* worker_ = nullptr;  // lives in thread_ until it ends
    std::shared_ptr<SpeechLink> link_;
    QList<QLocale> locales_;
    QString engine_;
    bool soundOutput_ = false;
};

}  // namespace wm
