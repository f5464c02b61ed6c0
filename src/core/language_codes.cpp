#include "core/language_codes.h"

#include "core/line_file.h"
#include "core/strings.h"

namespace wm {

std::vector<LanguageCode> ReadLanguageCodes(const std::string& path) {
    std::vector<LanguageCode> codes;
    if (!FileExists(path)) return codes;
    const auto lines = ReadLines(path);
    // Three lines a language; an unfinished last one is left out.
    for (std::size_t i = 0; i + 2 < lines.size() && codes.size() < 100; i += 3) {
        codes.push_back({Trim(lines[i]), lines[i + 1], lines[i + 2]});
    }
    return codes;
}

const LanguageCode* FindLanguage(const std::vector<LanguageCode>& codes, const std::string& code) {
    for (const auto& c : codes) {
        if (c.code == code) return &c;
    }
    return nullptr;
}

}  // namespace wm
