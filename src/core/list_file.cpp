#include "core/list_file.h"

#include <algorithm>

#include "core/line_file.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm {

bool HasPrefix(const std::string& line) {
    return line.size() >= 3 && line[0] == '[' && line[2] == ']';
}

std::string PlainName(const std::string& line) {
    if (Len(line) > 4 && HasPrefix(line)) return Mid(line, 4);
    return line;
}

std::vector<std::string> ReadAllLines(const std::string& path) {
    return ReadLines(path);
}

void WriteAllLines(const std::string& path, const std::vector<std::string>& lines) {
    WriteLinesAtomic(path, lines);
}

void AppendRecord(const std::string& path, const std::string& storedName,
                  const std::vector<std::string>& lines) {
    std::vector<std::string> all;
    all.reserve(lines.size() + 2);
    all.push_back(kSeparator);
    all.push_back(storedName);
    all.insert(all.end(), lines.begin(), lines.end());
    AppendLinesAtomic(path, all);
}

std::vector<std::string> ListNames(const std::string& path) {
    LineReader in = LineReader::open(path);
    std::vector<std::string> names;
    if (in.atEnd()) return names;
    names.emplace_back(in.next());
    while (!in.atEnd()) {
        if (in.next() == kSeparator && !in.atEnd()) names.emplace_back(in.next());
    }
    return names;
}

bool NameExists(const std::string& path, const std::string& name) {
    const std::string wanted = LCase(Trim(name));
    auto matches = [&](std::string stored) { return LCase(Trim(stored)) == wanted; };
    LineReader in = LineReader::open(path);
    if (in.atEnd()) return false;
    bool taken = false;
    // The first name is stripped without the length test the later ones have.
    std::string first(in.next());
    if (HasPrefix(first)) first = Mid(first, 4);
    taken = matches(first);
    while (!in.atEnd()) {
        if (in.next() != kSeparator || in.atEnd()) continue;
        std::string stored(in.next());
        if (Len(Trim(stored)) > 4 && HasPrefix(stored)) stored = Mid(stored, 4);
        if (matches(stored)) taken = true;
    }
    return taken;
}

bool IsEmptyStore(const std::vector<std::string>& lines) {
    return lines.empty() || lines.front() == kNoLists || lines.front().empty();
}

void CleanHead(std::vector<std::string>& lines, bool alsoNoLists) {
    // Blanks and separators may stand behind a "No Lists" line too: the head is clean only
    // when a list's name comes first.
    std::size_t n = 0;
    while (n < lines.size() && (lines[n].empty() || lines[n] == kSeparator ||
                                (alsoNoLists && lines[n] == kNoLists)))
        ++n;
    lines.erase(lines.begin(), lines.begin() + static_cast<long>(n));
}

void RemoveRecordAt(std::vector<std::string>& lines, std::size_t pos) {
    if (pos >= lines.size()) return;
    std::size_t end = pos;
    while (end < lines.size() && lines[end] != kSeparator) ++end;
    lines.erase(lines.begin() + static_cast<long>(pos), lines.begin() + static_cast<long>(end));
    // At the top the separator behind the record stays and becomes the first line; the
    // editors' saves clean the head later.
    if (pos > 0) lines.erase(lines.begin() + static_cast<long>(pos - 1));
}

bool DeleteListLines(std::vector<std::string>& lines, const std::string& name) {
    // Deliberately a scan of every line, not of record heads, as the loader does.
    std::size_t pos = 0;
    while (pos < lines.size() && PlainName(lines[pos]) != name) ++pos;
    if (pos >= lines.size()) return false;
    RemoveRecordAt(lines, pos);
    if (lines.empty()) {
        lines.push_back(kNoLists);
    } else if (lines.front().empty()) {
        lines.front() = kNoLists;
    }
    return true;
}

void LoadList(const std::string& path, SharedState& state, const std::vector<ForeignList>& foreign,
              const LoadHooks& hooks) {
    for (std::size_t i = 1; i < state.Words.size(); ++i) {
        state.Words[i].clear();
        state.Meanings[i].clear();
    }

    std::string key = state.CurrentListName;
    bool swapped = false;
    state.WordsLanguage.clear();
    state.MeaningsLanguage.clear();
    for (const auto& f : foreign) {
        if (f.plain == state.CurrentListName) {
            key = "[" + Trim(f.code) + "]" + Trim(f.plain);
            state.ListLanguage = f.code;
            if (hooks.chooseDirection) state.ListLanguage = hooks.chooseDirection(f.code);
            swapped = state.ListLanguage != "E";
            // The file keeps English on the word line and the translation under it.
            (swapped ? state.WordsLanguage : state.MeaningsLanguage) = Trim(f.code);
            break;
        }
    }

    LineReader in = LineReader::open(path);
    // Every line takes part in the search, words and definitions too: the first line with
    // the name's text counts, wherever it stands. Deliberately so.
    const std::string wanted = Trim(key);
    auto trimmed = [](std::string_view v) {
        while (!v.empty() && v.front() == ' ') v.remove_prefix(1);
        while (!v.empty() && v.back() == ' ') v.remove_suffix(1);
        return v;
    };
    bool found = false;
    while (!in.atEnd() && !found) found = trimmed(in.next()) == wanted;

    int counter = 0;
    std::string_view lastWord, lastDef;
    while (found && lastWord != kSeparator && lastDef != kSeparator && !in.atEnd()) {
        ++counter;
        if (counter > kMaxWords) {
            if (hooks.message) hooks.message(kOverLimitMessage);
            break;
        }
        lastWord = in.next();
        lastDef = in.next();  // an odd line at the very end reads as blank
        auto& word = swapped ? state.Meanings[counter] : state.Words[counter];
        auto& def = swapped ? state.Words[counter] : state.Meanings[counter];
        word.assign(lastWord);
        def.assign(lastDef);
        // A pair with a blank side is overwritten by the next one.
        if (Trim(lastWord).empty() || Trim(lastDef).empty()) --counter;
    }

    // Over the limit the count stays at 1001, as the game screens have always seen it.
    // A record cut by the separator right after a blank pair would come out at -1; an empty list
    // is what every screen expects, so the count never goes below zero.
    const int count = lastWord == kSeparator ? counter - 1 : counter;
    state.WordCount = static_cast<short>(std::max(count, 0));
    state.WordsOnly = state.Meanings[1] == kWordsOnlyMarker ? kTrue : kFalse;
}

}  // namespace wm
