// The vocabulary list file: "No Lists", or a chain of records separated by "<New List>".
// A record is the stored name, then word and definition lines in pairs.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace wm {

struct SharedState;

inline constexpr const char* kSeparator = "<New List>";
inline constexpr const char* kNoLists = "No Lists";
inline constexpr const char* kWordsOnlyMarker = "-----";
inline constexpr const char* kOverLimitMessage =
    "There are over 1000 words on this list. The current size limit per list is 1000. Only the "
    "first 1000 will be used.";

// "[" first and "]" third: a foreign-language stored name such as "[S]Animals".
bool HasPrefix(const std::string& line);
// The prefix stripped when the line has it and is longer than 4 characters, as most readers do.
std::string PlainName(const std::string& line);

struct ForeignList {
    std::string code;   // one letter
    std::string plain;  // name without prefix
};

std::vector<std::string> ReadAllLines(const std::string& path);
void WriteAllLines(const std::string& path, const std::vector<std::string>& lines);
// "<New List>", the stored name, then the lines, at the end of the file.
void AppendRecord(const std::string& path, const std::string& storedName,
                  const std::vector<std::string>& lines);
// Stored names in file order: the first line, then each line after a separator.
std::vector<std::string> ListNames(const std::string& path);
// Whether a plain name is taken: trimmed, compared without regard to case.
bool NameExists(const std::string& path, const std::string& name);
// True when the store is empty: first line "No Lists" or blank, or no line at all.
bool IsEmptyStore(const std::vector<std::string>& lines);

// Before a save: drop leading blank and separator lines; `alsoNoLists` drops a "No Lists" head.
void CleanHead(std::vector<std::string>& lines, bool alsoNoLists);
// Removes the record starting at `pos` up to the next separator, and the separator before it
// when `pos` is above 0. Used by deleting and editing.
void RemoveRecordAt(std::vector<std::string>& lines, std::size_t pos);
// Deletes the list with plain name `name` from the lines; false when no line matched.
// The scan does not step by records; a file left empty becomes "No Lists".
bool DeleteListLines(std::vector<std::string>& lines, const std::string& name);

struct LoadHooks {
    // Shown for a foreign list: asks which way to play and returns the new ListLanguage
    // ("E" plays the English side as the word). Absent: the language is kept.
    std::function<std::string(const std::string& code)> chooseDirection;
    // Receives the over-limit message.
    std::function<void(const std::string&)> message;
};

// Loads the list `state.CurrentListName` into Words, Meanings, WordCount and WordsOnly.
// `foreign` is the table of foreign lists the chooser built from the same file.
void LoadList(const std::string& path, SharedState& state, const std::vector<ForeignList>& foreign,
              const LoadHooks& hooks = {});

}  // namespace wm
