#include "teacher/list_rules.h"

#include <algorithm>

#include "core/list_file.h"

namespace wm {

PairCheck CheckPair(const std::vector<WordPair>& pairs, const std::string& word,
                    const std::string& meaning, bool wordsOnly, int skip) {
    const std::string w = LCase(word);
    for (int i = 0; i < static_cast<int>(pairs.size()); ++i) {
        if (i != skip && LCase(pairs[i].first) == w) return {Clash::Word, kWordExists};
    }
    if (wordsOnly) return {};
    const std::string m = LCase(meaning);
    for (int i = 0; i < static_cast<int>(pairs.size()); ++i) {
        if (i != skip && LCase(pairs[i].second) == m) {
            return {Clash::Definition,
                    "Another word with the same definition appears on this list. This could "
                    "cause confusion with some activities. Please re-word the definition so it "
                    "is not the same as the definition for \"" +
                        pairs[i].first + "\"."};
        }
    }
    return {};
}

std::vector<std::string> NewListRecord(const std::string& storedName,
                                       const std::vector<WordPair>& pairs, bool fileEmpty) {
    std::vector<std::string> out;
    if (!fileEmpty) out.push_back(kSeparator);
    out.push_back(storedName);
    for (const auto& [w, m] : pairs) {
        out.push_back(w);
        out.push_back(m);
    }
    return out;
}

std::vector<std::string> SaveNewList(std::vector<std::string> data,
                                     const std::vector<std::string>& record) {
    data.insert(data.end(), record.begin(), record.end());
    CleanHead(data, true);
    return data;
}

std::vector<std::string> SaveEditedList(std::vector<std::string> data,
                                        const std::string& storedName, const std::string& caption,
                                        const std::vector<WordPair>& pairs) {
    auto it = std::find(data.begin(), data.end(), storedName);
    if (it != data.end()) RemoveRecordAt(data, static_cast<std::size_t>(it - data.begin()));
    data.push_back(kSeparator);
    data.push_back(caption);
    for (const auto& [w, m] : pairs) {
        data.push_back(w);
        data.push_back(m);
    }
    CleanHead(data, false);
    return data;
}

std::vector<WordPair> ReadRecord(const std::vector<std::string>& data, const std::string& plainName,
                                 std::string* storedName) {
    std::vector<WordPair> pairs;
    std::size_t i = 0;
    // Like the other readers, the search looks at every line, not only at name lines.
    while (i < data.size() && Trim(PlainName(data[i])) != Trim(plainName)) ++i;
    if (i == data.size()) return pairs;
    if (storedName) *storedName = data[i];
    for (++i; i + 1 < data.size() && data[i] != kSeparator; i += 2) {
        if (data[i + 1] == kSeparator) break;  // a last word cut by the separator
        pairs.emplace_back(data[i], data[i + 1]);
    }
    return pairs;
}

std::vector<std::string> RecordLines(const std::vector<std::string>& data,
                                     const std::string& storedName) {
    std::vector<std::string> out;
    auto it = std::find(data.begin(), data.end(), storedName);
    if (it == data.end()) return out;
    for (++it; it != data.end() && *it != kSeparator; ++it) out.push_back(*it);
    return out;
}

bool ListBoxLess(const std::string& a, const std::string& b) {
    return LCase(a) < LCase(b);
}

void SortLikeListBox(std::vector<WordPair>& pairs) {
    std::stable_sort(pairs.begin(), pairs.end(), [](const WordPair& x, const WordPair& y) {
        return ListBoxLess(x.first, y.first);
    });
}

}  // namespace wm
