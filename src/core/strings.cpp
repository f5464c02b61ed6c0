#include "core/strings.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace wm {

namespace {

// Windows-1252 case pairs outside A-Z: the accented Latin-1 letters and the four extra ones.
unsigned char upper(unsigned char c) {
    if (c >= 'a' && c <= 'z') return c - 32;
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return c - 32;
    switch (c) {
        case 0x9A:
            return 0x8A;  // š
        case 0x9C:
            return 0x8C;  // œ
        case 0x9E:
            return 0x8E;  // ž
        case 0xFF:
            return 0x9F;  // ÿ
        default:
            return c;
    }
}

unsigned char lower(unsigned char c) {
    if (c >= 'A' && c <= 'Z') return c + 32;
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 32;
    switch (c) {
        case 0x8A:
            return 0x9A;
        case 0x8C:
            return 0x9C;
        case 0x8E:
            return 0x9E;
        case 0x9F:
            return 0xFF;
        default:
            return c;
    }
}

}  // namespace

long long Int(double x) {
    return static_cast<long long>(std::floor(x));
}

int Len(std::string_view s) {
    return static_cast<int>(s.size());
}

std::string Mid(std::string_view s, int start, int length) {
    start = std::max(start, 1);
    auto from = static_cast<std::size_t>(start - 1);
    if (from >= s.size()) return {};
    // A negative length (the default) becomes npos: the rest of the text.
    return std::string(s.substr(from, static_cast<std::size_t>(length)));
}

std::string Left(std::string_view s, int length) {
    if (length <= 0) return {};
    return std::string(s.substr(0, static_cast<std::size_t>(length)));
}

std::string Right(std::string_view s, int length) {
    if (length <= 0) return {};
    auto n = static_cast<std::size_t>(length);
    return n >= s.size() ? std::string(s) : std::string(s.substr(s.size() - n));
}

std::string UCase(std::string_view s) {
    std::string out(s);
    for (auto& c : out) c = static_cast<char>(upper(static_cast<unsigned char>(c)));
    return out;
}

std::string LCase(std::string_view s) {
    std::string out(s);
    for (auto& c : out) c = static_cast<char>(lower(static_cast<unsigned char>(c)));
    return out;
}

bool IsLetter(char c) {
    const auto u = static_cast<unsigned char>(c);
    if ((u >= 'A' && u <= 'Z') || (u >= 'a' && u <= 'z')) return true;
    if (u >= 0xC0) return u != 0xD7 && u != 0xF7;
    return u == 0x8A || u == 0x8C || u == 0x8E || u == 0x9A || u == 0x9C || u == 0x9E || u == 0x9F;
}

bool IsLetterOrDigit(char c) {
    return IsLetter(c) || (c >= '0' && c <= '9');
}

std::string LTrim(std::string_view s) {
    std::size_t i = 0;
    while (i < s.size() && s[i] == ' ') ++i;
    return std::string(s.substr(i));
}

std::string RTrim(std::string_view s) {
    std::size_t n = s.size();
    while (n > 0 && s[n - 1] == ' ') --n;
    return std::string(s.substr(0, n));
}

std::string Trim(std::string_view s) {
    return LTrim(RTrim(s));
}

std::string Chr(int code) {
    return std::string(1, static_cast<char>(code & 0xFF));
}

int InStr(std::string_view haystack, std::string_view needle, int start) {
    if (start < 1) start = 1;
    auto from = static_cast<std::size_t>(start - 1);
    if (from > haystack.size()) return 0;
    auto pos = haystack.find(needle, from);
    return pos == std::string_view::npos ? 0 : static_cast<int>(pos) + 1;
}

int InStrRev(std::string_view haystack, std::string_view needle) {
    auto pos = haystack.rfind(needle);
    return pos == std::string_view::npos ? 0 : static_cast<int>(pos) + 1;
}

double Val(std::string_view s) {
    std::size_t i = 0;
    while (i < s.size() && (s[i] == ' ' || s[i] == '\t')) ++i;
    std::size_t start = i;
    if (i < s.size() && (s[i] == '-' || s[i] == '+')) ++i;
    bool digits = false, dot = false;
    while (i < s.size()) {
        if (s[i] >= '0' && s[i] <= '9') {
            digits = true;
        } else if (s[i] == '.' && !dot) {
            dot = true;
        } else {
            break;
        }
        ++i;
    }
    if (!digits) return 0.0;
    return std::strtod(std::string(s.substr(start, i - start)).c_str(), nullptr);
}

std::string NumText(double x) {
    if (std::isnan(x) || std::isinf(x)) return "0";
    if (x == std::floor(x) && std::fabs(x) < 1e15) {
        char buf[32];
        std::snprintf(buf, sizeof buf, "%lld", static_cast<long long>(x));
        return buf;
    }
    char buf[40];
    std::snprintf(buf, sizeof buf, "%.15g", x);
    return buf;
}

std::string CountText(double x) {
    std::string s = NumText(x);
    if (s.rfind("0.", 0) == 0) return s.substr(1);
    if (s.rfind("-0.", 0) == 0) return "-" + s.substr(2);
    return s;
}

std::string StrText(double x) {
    return x >= 0 ? " " + CountText(x) : CountText(x);
}

long CLng(double x) {
    double r = std::nearbyint(x);  // the default rounding mode rounds half to even
    if (r > 2147483647.0) r = 2147483647.0;
    if (r < -2147483648.0) r = -2147483648.0;
    return static_cast<long>(r);
}

std::string Replace(std::string_view s, std::string_view from, std::string_view to) {
    if (from.empty()) return std::string(s);
    std::string out;
    std::size_t i = 0;
    while (true) {
        auto pos = s.find(from, i);
        if (pos == std::string_view::npos) break;
        out.append(s.substr(i, pos - i));
        out.append(to);
        i = pos + from.size();
    }
    out.append(s.substr(i));
    return out;
}

}  // namespace wm
