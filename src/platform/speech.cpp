#include "platform/speech.h"

#include "core/language_codes.h"
#include "core/strings.h"
#include "platform/text.h"

namespace wm {

QString SpeechStatusText(SpeechStatus status, const QLocale& locale) {
    const QString language = locale.language() == QLocale::C
                                 ? QString("this list's language")
                                 : QLocale::languageToString(locale.language());
    switch (status) {
        case SpeechStatus::Ready:
            return {};
        case SpeechStatus::Starting:
            return "The voice is getting ready. Try again in a moment.";
        case SpeechStatus::NoEngine:
            return "No speech engine is installed on this computer, so words cannot be said "
                   "aloud.";
        case SpeechStatus::NoSound:
            return "This computer has no sound output, so words cannot be said aloud.";
        case SpeechStatus::NoVoice:
            return "This computer has no voice that speaks " + language + ".";
    }
    return {};
}

QLocale LocaleForLanguage(const std::string& code, const std::vector<LanguageCode>& codes) {
    QLocale::Language language = QLocale::English;
    if (!Trim(code).empty()) {
        const LanguageCode* found = FindLanguage(codes, Trim(code));
        if (!found) return QLocale::c();
        // The language's line reads "Spanish - English words, Spanish meanings".
        QString name = toQ(found->first);
        const int dash = name.indexOf(" - ");
        if (dash >= 0) name.truncate(dash);
        name = name.trimmed();
        language = QLocale::AnyLanguage;
        for (int l = QLocale::AnyLanguage + 1; l <= QLocale::LastLanguage; ++l) {
            const auto candidate = static_cast<QLocale::Language>(l);
            if (QLocale::languageToString(candidate).compare(name, Qt::CaseInsensitive) == 0) {
                language = candidate;
                break;
            }
        }
        if (language == QLocale::AnyLanguage) return QLocale::c();
    }
    // A school whose computers speak the language keeps its own country's voice.
    const QLocale system;
    if (system.language() == language) return QLocale(language, system.territory());
    return QLocale(language);
}

QLocale ChooseLocale(const QList<QLocale>& available, const QLocale& wanted) {
    const QLocale main(wanted.language());
    const QLocale* first = nullptr;
    const QLocale* mainFound = nullptr;
    for (const QLocale& l : available) {
        if (l.language() != wanted.language()) continue;
        if (l.territory() == wanted.territory()) return l;
        if (!mainFound && l.territory() == main.territory()) mainFound = &l;
        if (!first) first = &l;
    }
    if (mainFound) return *mainFound;
    return first ? *first : QLocale::c();
}

int ChooseVoice(const QList<VoiceInfo>& voices, const QLocale& locale) {
    int best = -1, bestScore = -1;
    for (int i = 0; i < voices.size(); ++i) {
        const VoiceInfo& v = voices[i];
        if (v.locale.language() != locale.language()) continue;
        // Variants of a voice carry a "+" (espeak's "Spanish (Spain)+Adam"): a plain voice is
        // the clearest for a pupil.
        const int score =
            (v.locale.territory() == locale.territory() ? 2 : 0) + (v.name.contains('+') ? 0 : 1);
        if (score > bestScore) {
            best = i;
            bestScore = score;
        }
    }
    return best;
}

void RecordingSpeech::say(const QString& text, const QLocale& locale, int rate) {
    if (status(locale) != SpeechStatus::Ready) return;
    said.push_back({text, locale, rate});
}

void RecordingSpeech::setStatus(SpeechStatus s) {
    answer = s;
    emit statusChanged();
}

}  // namespace wm
