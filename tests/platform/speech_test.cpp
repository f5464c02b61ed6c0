// The language a list is said in and the voice that says it.
#include <gtest/gtest.h>

#include "core/language_codes.h"
#include "platform/speech.h"

using namespace wm;

namespace {
const std::vector<LanguageCode> kCodes = {
    {"S", "Spanish - English words, Spanish meanings", "Spanish - Spanish words, English meanings"},
    {"G", "German - English words, German meanings", "x"},
    {"R", "Russian", "x"},
    {"K", "Klingon - English words, Klingon meanings", "x"},
};
}  // namespace

TEST(Speech, ListCodesMapToTheLanguageNamedOnTheirLine) {
    struct Case {
        std::string code;
        QLocale::Language language;
    };
    for (const Case& c : {Case{"", QLocale::English}, Case{"S", QLocale::Spanish},
                          Case{" G ", QLocale::German}, Case{"R", QLocale::Russian},
                          Case{"K", QLocale::C}, Case{"Q", QLocale::C}}) {
        EXPECT_EQ(LocaleForLanguage(c.code, kCodes).language(), c.language) << c.code;
    }
}

TEST(Speech, TheEnginesBestLocaleForALanguage) {
    const QLocale esES("es_ES"), es419("es_419"), enGB("en_GB"), enUS("en_US");
    EXPECT_EQ(ChooseLocale({es419, esES, enGB}, QLocale("es_ES")), esES);
    // A country with no voice of its own takes the language's main country, then any.
    EXPECT_EQ(ChooseLocale({es419, esES}, QLocale("es_MX")), esES);
    EXPECT_EQ(ChooseLocale({es419, enUS}, QLocale("es_MX")), es419);
    EXPECT_EQ(ChooseLocale({enGB, enUS}, QLocale("en_GB")), enGB);
    EXPECT_EQ(ChooseLocale({enGB}, QLocale("de_DE")).language(), QLocale::C);
}

TEST(Speech, APlainVoiceOfTheCountryIsBest) {
    const QList<VoiceInfo> voices = {{"Spanish (Spain)+Adam", QLocale("es_ES")},
                                     {"Spanish (Latin America)", QLocale("es_419")},
                                     {"Spanish (Spain)", QLocale("es_ES")},
                                     {"English (America)", QLocale("en_US")}};
    EXPECT_EQ(ChooseVoice(voices, QLocale("es_ES")), 2);
    EXPECT_EQ(ChooseVoice(voices, QLocale("es_419")), 1);
    EXPECT_EQ(ChooseVoice(voices, QLocale("en_GB")), 3);
    EXPECT_EQ(ChooseVoice(voices.mid(0, 1), QLocale("es_MX")), 0);
    EXPECT_EQ(ChooseVoice(voices, QLocale("fr_FR")), -1);
}
