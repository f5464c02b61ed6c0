#include "platform/qt_speech.h"

#include <QAudioDevice>
#include <QHash>
#include <QMediaDevices>
#include <QTextToSpeech>
#include <QThread>
#include <QTimer>
#include <QVoice>
#include <memory>
#include <mutex>

namespace wm {

// The worker reports back to the service only while the service lives: a worker stuck in a
// speech service that never answers may outlast it.
struct SpeechLink {
    std::mutex m;
    QtSpeech* owner = nullptr;
};

class SpeechWorker : public QObject {
public:
    explicit SpeechWorker(std::shared_ptr<SpeechLink> link) : link_(std::move(link)) {}

    void start() {
        const QStringList engines = QTextToSpeech::availableEngines();
        QList<QLocale> locales;
        QString engine;
        if (!engines.isEmpty()) {
            engine = engines.contains("speechd") ? QString("speechd") : engines.first();
            tts_ = new QTextToSpeech(engine, this);
            if (tts_->state() != QTextToSpeech::Error) locales = tts_->availableLocales();
        }
        report([engine, locales](QtSpeech* owner) { owner->started(engine, locales); });
    }

    void say(const QString& text, const QLocale& locale, int rate) {
        if (!tts_) return;
        tts_->stop();
        if (tts_->locale() != locale) tts_->setLocale(locale);
        auto voice = voices_.find(locale.name());
        if (voice == voices_.end()) {
            const QList<QVoice> all = tts_->availableVoices();
            QList<VoiceInfo> infos;
            for (const QVoice& v : all) infos.push_back({v.name(), v.locale()});
            const int best = ChooseVoice(infos, locale);
            voice = voices_.insert(locale.name(), best >= 0 ? all[best] : QVoice());
        }
        if (!voice->name().isEmpty() && tts_->voice().name() != voice->name())
            tts_->setVoice(*voice);
        tts_->setRate(rate / 10.0);
        tts_->say(text);
    }

    void stop() {
        if (tts_) tts_->stop();
    }

private:
    template <class F>
    void report(F call) {
        std::lock_guard lock(link_->m);
        if (QtSpeech* owner = link_->owner)
            QMetaObject::invokeMethod(
                owner, [owner, call] { call(owner); }, Qt::QueuedConnection);
    }

    std::shared_ptr<SpeechLink> link_;
    QTextToSpeech* tts_ = nullptr;
    QHash<QString, QVoice> voices_;
};

QtSpeech::QtSpeech() : link_(std::make_shared<SpeechLink>()) {
    link_->owner = this;
}

QtSpeech::~QtSpeech() {
    {
        std::lock_guard lock(link_->m);
        link_->owner = nullptr;
    }
    if (!thread_) return;
    thread_->quit();
    // A thread still inside a speech service that does not answer is left to the end of the
    // process rather than waited for: leaving the program must not hang.
    if (thread_->wait(2000)) delete thread_;
}

void QtSpeech::start() {
    state_ = State::Starting;
    // With no sound output the speech service cannot finish a word, and then hangs for every
    // program that asks it anything: nothing is said at all.
    soundOutput_ = !QMediaDevices::defaultAudioOutput().isNull();
    thread_ = new QThread;
    thread_->setObjectName("Speech");
    worker_ = new SpeechWorker(link_);
    worker_->moveToThread(thread_);
    connect(thread_, &QThread::finished, worker_, &QObject::deleteLater);
    thread_->start(QThread::LowPriority);
    QMetaObject::invokeMethod(
        worker_, [w = worker_] { w->start(); }, Qt::QueuedConnection);
    QTimer::singleShot(kStartLimitMs, this, [this] {
        if (state_ == State::Starting) failed();
    });
}

void QtSpeech::started(const QString& engine, const QList<QLocale>& locales) {
    if (state_ != State::Starting) return;
    if (locales.isEmpty()) {
        failed();
        return;
    }
    engine_ = engine;
    locales_ = locales;
    state_ = State::Up;
    emit statusChanged();
}

void QtSpeech::failed() {
    state_ = State::Failed;
    emit statusChanged();
}

SpeechStatus QtSpeech::status(const QLocale& locale) {
    switch (state_) {
        case State::Idle:
            start();
            return SpeechStatus::Starting;
        case State::Starting:
            return SpeechStatus::Starting;
        case State::Failed:
            return SpeechStatus::NoEngine;
        case State::Up:
            break;
    }
    if (!hasVoiceFor(locale)) return SpeechStatus::NoVoice;
    return soundOutput_ ? SpeechStatus::Ready : SpeechStatus::NoSound;
}

bool QtSpeech::hasVoiceFor(const QLocale& locale) const {
    return state_ == State::Up && locale.language() != QLocale::C &&
           ChooseLocale(locales_, locale).language() != QLocale::C;
}

void QtSpeech::say(const QString& text, const QLocale& locale, int rate) {
    if (status(locale) != SpeechStatus::Ready || !worker_) return;
    const QLocale chosen = ChooseLocale(locales_, locale);
    QMetaObject::invokeMethod(
        worker_, [w = worker_, text, chosen, rate] { w->say(text, chosen, rate); },
        Qt::QueuedConnection);
}

void QtSpeech::stop() {
    if (worker_)
        QMetaObject::invokeMethod(
            worker_, [w = worker_] { w->stop(); }, Qt::QueuedConnection);
}

}  // namespace wm
