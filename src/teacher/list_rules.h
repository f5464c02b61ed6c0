// The rules of the list editors, without widgets: duplicate checks, renames and the shapes of
// the saves, so they can be checked on plain lines.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace wm {

using WordPair = std::pair<std::string, std::string>;  // word, definition

inline constexpr const char* kWordExists = "This word already exists on the list!";
inline constexpr const char* kNameTaken =
    "The list name you typed already exists. Please choose another name for your new list.";

enum class Clash { None, Word, Definition };
struct PairCheck {
    Clash clash = Clash::None;
    std::string message;
};
// A new or edited pair against the others (`skip` is the line being edited, -1 for none):
// the same word, then for lists with definitions the same definition, both case-blind.
PairCheck CheckPair(const std::vector<WordPair>& pairs, const std::string& word,
                    const std::string& meaning, bool wordsOnly, int skip = -1);

// The message a rename gives, or "" when the new name may be taken. `taken` asks the list file.
template <class Taken>
std::string RenameRefusal(const std::string& current, const std::string& typed, Taken taken);

// A new list at the end of the file: the head cleaned, a "No Lists" head dropped.
std::vector<std::string> SaveNewList(std::vector<std::string> data,
                                     const std::vector<std::string>& record);
// The record lines of a list being made: a first list has no separator before its name.
std::vector<std::string> NewListRecord(const std::string& storedName,
                                       const std::vector<WordPair>& pairs, bool fileEmpty);
// An edited list: its old record (found by the first line equal to `storedName`) leaves, and
// the new one goes to the end of the file.
std::vector<std::string> SaveEditedList(std::vector<std::string> data,
                                        const std::string& storedName, const std::string& caption,
                                        const std::vector<WordPair>& pairs);
// The pairs of the list whose name line (prefix stripped above 4 characters) is `plainName`;
// `storedName` receives the name line as stored. A last word without its definition is dropped.
std::vector<WordPair> ReadRecord(const std::vector<std::string>& data, const std::string& plainName,
                                 std::string* storedName);
// The word and definition lines of the record named exactly `storedName`, up to the next
// separator.
std::vector<std::string> RecordLines(const std::vector<std::string>& data,
                                     const std::string& storedName);
// The order of a sorted list box: case-blind, by character.
bool ListBoxLess(const std::string& a, const std::string& b);
void SortLikeListBox(std::vector<WordPair>& pairs);

}  // namespace wm

#include "core/strings.h"

namespace wm {

template <class Taken>
std::string RenameRefusal(const std::string& current, const std::string& typed, Taken taken) {
    const std::string name = Trim(typed);
    if (name.empty() || name == current) return "You did not change the list name.";
    if (name[0] == '^')
        return "You cannot use this character ^ as the first character in a list name.";
    if (name[0] == '[')
        return "You cannot use this character [ as the first character in a list name.";
    if (taken(name)) return "The list name you typed already exists. This list was not renamed.";
    return {};
}

}  // namespace wm
