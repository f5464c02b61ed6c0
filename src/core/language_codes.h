// flcodelist.dat: three lines a language (code, first way to play, second way), up to 100.
#pragma once

#include <string>
#include <vector>

namespace wm {

struct LanguageCode {
    std::string code;
    std::string first;   // the language's line in a combo box; plays the English side as the word
    std::string second;  // the other way round
};

inline constexpr const char* kLanguageFileName = "flcodelist.dat";
std::vector<LanguageCode> ReadLanguageCodes(const std::string& path);  // missing: empty
const LanguageCode* FindLanguage(const std::vector<LanguageCode>& codes, const std::string& code);

}  // namespace wm
