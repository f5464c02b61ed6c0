#include "games/common/misspell.h"

#include "core/rng.h"
#include "core/strings.h"

namespace wm {

namespace {

bool EndsWith(std::string_view s, std::string_view tail) {
    return s.size() >= tail.size() && s.substr(s.size() - tail.size()) == tail;
}

// The first `from` (left to right) becomes `to`.
std::string ReplaceFirst(std::string_view s, std::string_view from, std::string_view to) {
    const std::size_t at = s.find(from);
    std::string out(s);
    if (at != std::string_view::npos) out.replace(at, from.size(), to);
    return out;
}

// A final `from` becomes `to`, in a word of at least `minLength` letters.
std::string ReplaceFinal(std::string_view s, std::string_view from, std::string_view to,
                         int minLength) {
    std::string out(s);
    if (Len(s) >= minLength && EndsWith(s, from))
        out.replace(out.size() - from.size(), from.size(), to);
    return out;
}

std::string DoubleALetter(std::string_view s, Rng& rng) {
    const int length = Len(s);
    const int p = static_cast<int>(Int(rng.Rnd() * (length - 1) + 1));
    std::string out(s);
    if (p >= 1 && p <= length) out.insert(static_cast<std::size_t>(p - 1), 1, s[p - 1]);
    return out;
}

}  // namespace

std::string ApplyMisspellRule(int rule, std::string_view s, MisspellTable table, Rng& rng) {
    switch (rule) {
        case 1:
            return ReplaceFirst(s, "f", "ph");
        case 2:
            return ReplaceFirst(s, "ph", "f");
        case 3:
            return ReplaceFirst(s, "ck", "k");
        case 4:
            if (table == MisspellTable::SpellCrush) return ReplaceFinal(s, "c", "ck", 1);
            return ReplaceFirst(s, "ck", "c");
        case 5:
            return ReplaceFirst(s, "k", "c");
        case 6:
            return ReplaceFinal(s, "e", "", 3);
        case 7:
            return ReplaceFirst(s, "o", "u");
        case 8:
            return ReplaceFirst(s, "ie", "ei");
        case 9:
            return ReplaceFirst(s, "ei", "ie");
        case 10: {
            std::string out(s);
            for (std::size_t i = 0; i + 1 < out.size(); ++i) {
                if (out[i] != out[i + 1]) continue;
                // A pair at the very end goes altogether.
                out.erase(i, i + 2 == out.size() ? 2 : 1);
                break;
            }
            return out;
        }
        case 11:
            return ReplaceFirst(s, "ai", "ia");
        case 12:
            return ReplaceFirst(s, "ia", "ai");
        case 13:
            return ReplaceFirst(s, "ou", "uo");
        case 14:
            return ReplaceFirst(s, "uo", "ou");
        case 15:
            return ReplaceFirst(s, "io", "oi");
        case 16: {
            const std::size_t at = s.find('y');
            std::string out(s);
            if (at != std::string_view::npos) out.replace(at, 1, at + 1 == s.size() ? "ie" : "i");
            return out;
        }
        case 17:
            return ReplaceFirst(s, "ea", "ee");
        case 18:
            return ReplaceFirst(s, "au", "ou");
        case 19:
            return ReplaceFirst(s, "ou", "au");
        case 20:
            return ReplaceFirst(s, "ee", "ea");
        case 21:
            return ReplaceFirst(s, "n", "nn");
        case 22:
            return ReplaceFirst(s, "s", "ss");
        case 23:
            return ReplaceFirst(s, "l", "ll");
        case 24:
            return ReplaceFinal(s, "tion", "shon", 5);
        case 25:
            return ReplaceFinal(s, "tion", "shen", 5);
        case 26:
            return ReplaceFinal(s, "es", "s", 3);
        case 27:
            return ReplaceFinal(s, "s", "es", 3);
        case 28:
            return ReplaceFirst(s, "cc", "ck");
        case 29:
            return ReplaceFirst(s, "c", "k");
        case 30:
            return DoubleALetter(s, rng);
        default:
            return std::string(s);
    }
}

std::string MisspellWord(std::string_view word, int& nextRule, Rng& rng) {
    // A rule number outside 1..30 starts again from the first rule.
    if (static_cast<unsigned>(nextRule - 1) >= kMisspellRules) nextRule = 1;
    for (int rule = nextRule; rule <= kMisspellRules; ++rule) {
        std::string s = ApplyMisspellRule(rule, word, MisspellTable::Show, rng);
        if (s != word) {
            nextRule = rule == kMisspellRules ? 1 : rule + 1;
            return s;
        }
    }
    nextRule = 1;  // only a word with no letter gets here
    return std::string(word);
}

std::string SpellCrushMisspell(std::string_view word, Rng& rng) {
    // The last rule doubles a letter, which changes any word with a letter in it.
    for (int rule = 1; rule <= kMisspellRules; ++rule) {
        std::string s = ApplyMisspellRule(rule, word, MisspellTable::SpellCrush, rng);
        if (s != word) return s;
    }
    return std::string(word);
}

}  // namespace wm
