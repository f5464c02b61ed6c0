// The real speech engine, where the machine has one: it starts in the background, finds the
// voices, says words without holding anything up (where there is a sound output) and goes away
// promptly. This one test waits in real time, for the speech service to come up.
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

#include "platform/qt_speech.h"

using namespace wm;

class SpeechEngineTest : public QObject {
    Q_OBJECT
private slots:
    void startsOffTheScreensThreadAndSpeaks() {
        QElapsedTimer clock;
        clock.start();
        QtSpeech engine;
        QSignalSpy changed(&engine, &Speech::statusChanged);
        const QLocale english(QLocale::English);
        QCOMPARE(engine.status(english), SpeechStatus::Starting);
        QVERIFY2(clock.elapsed() < 500, "asking must not wait for the engine");
        QVERIFY(changed.wait(QtSpeech::kStartLimitMs + 1000));
        if (engine.engineName().isEmpty())
            QSKIP(
                "No speech engine answered on this machine (Qt TextToSpeech with the "
                "speech-dispatcher plugin and espeak-ng): nothing to test.");
        QVERIFY(engine.hasVoiceFor(english) && !engine.hasVoiceFor(QLocale::c()));
        if (engine.status(english) == SpeechStatus::NoSound)
            QSKIP(
                "The speech engine started and has voices, but this machine has no sound output "
                "to say a word on.");
        QCOMPARE(engine.status(english), SpeechStatus::Ready);
        engine.say("hello", english, 0);
        engine.say("hola", QLocale(QLocale::Spanish), 5);  // neither call waits for the voice
    }
};

QTEST_MAIN(SpeechEngineTest)
#include "speech_engine_test.moc"
