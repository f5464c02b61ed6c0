// Words said aloud: which text, in which language, at which rate. The program's own small
// interface; the real engine (qt_speech.h) starts on first use, and tests stand in for it.
#pragma once

#include <QList>
#include <QLocale>
#include <QObject>
#include <QString>
#include <string>
#include <vector>

namespace wm {

struct LanguageCode;

enum class SpeechStatus {
    Starting,  // the engine is being started; asked again when statusChanged() comes
    Ready,     // a voice for the language is there
    NoEngine,  // no speech engine on this computer, or it failed to start
    NoVoice,   // an engine, but no voice for this language
    NoSound,   // no sound output to say anything on
};

class Speech : public QObject {
    Q_OBJECT
public:
    // Whether words in `locale`'s language can be said. The first call starts the engine,
    // without waiting for it.
    virtual SpeechStatus status(const QLocale& locale) = 0;
    // Says `text` with the best voice for `locale`, cutting off whatever is being said.
    // `rate` runs from -10 (slow) to 10 (fast). Nothing happens unless the status is Ready.
    virtual void say(const QString& text, const QLocale& locale, int rate) = 0;
    virtual void stop() = 0;

signals:
    void statusChanged();
};

// Why the "Say It" entry is greyed, for its tooltip; "" when Ready.
QString SpeechStatusText(SpeechStatus status, const QLocale& locale);

// The locale of a list column: "" (an English list, or the English side) is English; another
// code is the language named before " - " on its line of flcodelist.dat ("Spanish - English
// words, ..."). A language no locale knows gives QLocale::c().
QLocale LocaleForLanguage(const std::string& code, const std::vector<LanguageCode>& codes);

// The best of the engine's locales for `wanted`'s language: the exact one, else the one of the
// language's main country, else the first of that language. QLocale::c() when none.
QLocale ChooseLocale(const QList<QLocale>& available, const QLocale& wanted);

struct VoiceInfo {
    QString name;
    QLocale locale;
};
// The best voice for `locale`: of its language (of its country if there is one), preferring a
// plain voice to a variant ("English+Robot"). -1 when none speaks the language.
int ChooseVoice(const QList<VoiceInfo>& voices, const QLocale& locale);

// Records what was asked, and answers the status it is given.
class RecordingSpeech : public Speech {
    Q_OBJECT
public:
    struct Said {
        QString text;
        QLocale locale;
        int rate = 0;
    };
    SpeechStatus status(const QLocale&) override { return answer; }
    void say(const QString& text, const QLocale& locale, int rate) override;
    void stop() override { ++stops; }
    // Sets the answer for every language, as an engine that changed would.
    void setStatus(SpeechStatus s);
    SpeechStatus answer = SpeechStatus::Ready;
    QList<Said> said;
    int stops = 0;
};

}  // namespace wm
