// The language a list is said in and the voice that says it.
#include <gtest/gtest.h>

#include "core/language_codes.h"
#include "platform/speech.h"

using namespace wm;

TEST(Speech, ListCodesMapToTheLanguageNamedOnTheirLine) {
    const std::vector<LanguageCode> codes = {
        {"S", "Spanish - English words, Spanish meanings", "x"},
        {"K", "Klingon - English words, Klingon meanings", "x"}};
    const std::pair<std::string, QLocale::Language> cases[] = {
        {"", QLocale::English}, {" S ", QLocale::Spanish}, {"K", QLocale::C}, {"Q", QLocale::C}};
    for (const auto& [code, language] : cases)
        EXPECT_EQ(LocaleForLanguage(code, codes).language(), language) << code;
}

TEST(Speech, TheBestLocaleAndVoiceForALanguage) {
    const QLocale esES("es_ES"), es419("es_419"), enGB("en_GB"), enUS("en_US");
    // A country with no voice of its own takes the language's main country, then any.
    EXPECT_EQ(ChooseLocale({es419, esES}, QLocale("es_MX")), esES);
    EXPECT_EQ(ChooseLocale({enGB}, QLocale("de_DE")).language(), QLocale::C);

    const QList<VoiceInfo> voices = {{"Spanish (Spain)+Adam", esES},
                                     {"Spanish (Latin America)", es419},
                                     {"Spanish (Spain)", esES},
                                     {"English (America)", enUS}};
    EXPECT_EQ(ChooseVoice(voices, esES), 2);  // plain, not a variant
    EXPECT_EQ(ChooseVoice(voices, QLocale("fr_FR")), -1);
}
