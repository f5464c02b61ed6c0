// The factory files delivered with the program, read back through the core readers: a fresh
// installation must start, list, load and lay out exactly as designed.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "../core/temp_folder.h"
#include "core/display_file.h"
#include "core/language_codes.h"
#include "core/line_file.h"
#include "core/list_file.h"
#include "core/settings_file.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm {
namespace {

std::string DataFile(const std::string& name) {
    return JoinPath(WM_DATA_DIR, name);
}

bool HasHighByte(const std::string& s) {
    return std::any_of(s.begin(), s.end(), [](unsigned char c) { return c >= 191; });
}

// The chooser's table of foreign lists: prefixed names longer than four characters.
std::vector<ForeignList> ForeignTable(const std::vector<std::string>& names) {
    std::vector<ForeignList> foreign;
    for (const auto& n : names)
        if (Len(n) > 4 && HasPrefix(n)) foreign.push_back({Mid(n, 2, 1), PlainName(n)});
    return foreign;
}

struct Loaded {
    std::string stored;
    std::vector<std::string> words, meanings;
    bool wordsOnly = false;
};

// Loads one list as a pupil would; `direction` answers the which-way question of a foreign list
// ("E" plays the English side as the word; empty keeps the language, which swaps the columns).
Loaded Load(const std::string& stored, const std::vector<std::string>& names,
            const std::string& direction = "E") {
    SharedState state;
    state.CurrentListName = PlainName(stored);
    LoadHooks hooks;
    if (!direction.empty()) hooks.chooseDirection = [&](const std::string&) { return direction; };
    std::vector<std::string> messages;
    hooks.message = [&](const std::string& m) { messages.push_back(m); };
    LoadList(DataFile("thelists.new"), state, ForeignTable(names), hooks);
    EXPECT_TRUE(messages.empty()) << stored;
    const int n = state.WordCount;
    return {stored,
            {state.Words.begin() + 1, state.Words.begin() + 1 + n},
            {state.Meanings.begin() + 1, state.Meanings.begin() + 1 + n},
            state.WordsOnly == kTrue};
}

TEST(FactoryFiles, CrLfLinesRecordLayoutAndNamesFoundOnlyAtTheirRecord) {
    for (const char* name : {"wmdata.new", "thelists.new", "flcodelist.dat", "wmgdisplay.dat"}) {
        SCOPED_TRACE(name);
        const std::string bytes = ReadBytes(DataFile(name));
        EXPECT_TRUE(bytes.ends_with("\r\n"));
        // Every LF has its CR before it, every CR its LF after it.
        std::ptrdiff_t pairs = 0;
        for (auto at = bytes.find("\r\n"); at != std::string::npos; at = bytes.find("\r\n", at + 2))
            ++pairs;
        EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), pairs);
        EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\r'), pairs);
    }
    // Record layout: no blank lines, no separator at either end, name + pairs in each record.
    const auto lines = ReadAllLines(DataFile("thelists.new"));
    ASSERT_FALSE(lines.empty());
    EXPECT_TRUE(lines.front() != kSeparator && lines.back() != kSeparator);
    std::size_t recordLines = 0;
    for (const auto& l : lines) {
        EXPECT_FALSE(Trim(l).empty());
        EXPECT_EQ(l, Trim(l)) << "blanks around '" << l << "'";
        if (l == kSeparator) {
            EXPECT_EQ(recordLines % 2, 1u) << "a record with an odd pair before line " << l;
            recordLines = 0;
        } else {
            ++recordLines;
        }
    }
    EXPECT_EQ(recordLines % 2, 1u);
    // A list name standing anywhere else in the file would make the load start in the wrong place,
    // since the load scans every line; names with "(" or "^" confuse the chooser and categories.
    const auto names = ListNames(DataFile("thelists.new"));
    EXPECT_GE(names.size(), 8u);
    std::set<std::string> seen;
    for (const auto& stored : names) {
        SCOPED_TRACE(stored);
        const std::string plain = PlainName(stored);
        EXPECT_EQ(plain.find_first_of("(^["), std::string::npos);
        EXPECT_TRUE(seen.insert(LCase(plain)).second) << "duplicate name";
        EXPECT_TRUE(NameExists(DataFile("thelists.new"), plain));
        int hits = 0;
        for (const auto& l : lines) {
            const std::string t = LCase(Trim(l));
            if (t == LCase(stored) || t == LCase(plain)) ++hits;
        }
        EXPECT_EQ(hits, 1);
    }
}

TEST(FactoryLists, EachListLoadsWholeAndTheSpanishOnePlaysBothWays) {
    const auto names = ListNames(DataFile("thelists.new"));
    int wordsOnlyLists = 0;
    for (const auto& stored : names) {
        SCOPED_TRACE(stored);
        const Loaded list = Load(stored, names);
        EXPECT_TRUE(list.words.size() >= 20 && list.words.size() <= 40) << list.words.size();
        if (list.wordsOnly) {
            ++wordsOnlyLists;
            // The chooser tests the last definition line, the loader the first: all must agree.
            for (const auto& m : list.meanings) EXPECT_EQ(m, kWordsOnlyMarker);
        }
        std::set<std::string> words, meanings;
        for (std::size_t i = 0; i < list.words.size(); ++i) {
            const std::string& w = list.words[i];
            const std::string& m = list.meanings[i];
            EXPECT_LE(Len(w), 20) << w;
            EXPECT_TRUE(words.insert(LCase(w)).second) << "duplicate word " << w;
            EXPECT_NE(w, kWordsOnlyMarker);
            if (list.wordsOnly) continue;
            EXPECT_TRUE(meanings.insert(LCase(m)).second) << "duplicate definition " << m;
            EXPECT_EQ(InStr(LCase(m), LCase(w)), 0) << "'" << w << "' gives itself away: " << m;
        }
    }
    EXPECT_EQ(wordsOnlyLists, 1);
    // The Spanish list: English on the word line, Spanish with single-byte accents on the
    // definition line, so each way of play puts the intended side in Words.
    const auto foreign = ForeignTable(names);
    ASSERT_EQ(foreign.size(), 1u);
    EXPECT_EQ(foreign[0].code, "S");
    const std::string stored = "[S]" + foreign[0].plain;

    const Loaded english = Load(stored, names, "E");
    const Loaded spanish = Load(stored, names, "");
    ASSERT_EQ(english.words.size(), spanish.words.size());
    EXPECT_EQ(english.words, spanish.meanings);
    EXPECT_EQ(english.meanings, spanish.words);

    int accented = 0;
    for (std::size_t i = 0; i < english.words.size(); ++i) {
        EXPECT_FALSE(HasHighByte(english.words[i])) << english.words[i];
        if (HasHighByte(english.meanings[i])) ++accented;
        EXPECT_LE(Len(spanish.words[i]), 20);
    }
    EXPECT_GE(accented, 5);
    // UTF-8 would show up as the two-byte lead 0xC3 followed by a continuation byte.
    EXPECT_EQ(ReadBytes(DataFile("thelists.new")).find("\xC3\xA1"), std::string::npos);
}

TEST(FactoryDisplayAndLanguages, LargeIconsNothingHiddenAndFourLanguages) {
    // The reader falls back to Large Icons for a missing file, so look at the lines as well.
    const auto lines = ReadLines(DataFile(kDisplayFileName));
    EXPECT_EQ(lines, (std::vector<std::string>{"*****", "1", "4", "3", "1.01", "1.01", "*****"}));
    // Four languages in three-line records.
    const auto codes = ReadLanguageCodes(DataFile(kLanguageFileName));
    EXPECT_EQ(codes.size() * 3, ReadLines(DataFile(kLanguageFileName)).size());
    std::string all;
    for (const auto& c : codes) {
        all += c.code;
        EXPECT_NE(c.first, c.second);
    }
    EXPECT_EQ(all, "SFGI");
}

// The build's copy step for the display file: a teacher's live file is never replaced.
TEST(FactoryInstall, DisplayFileIsCopiedOnlyWhenMissing) {
    test::TempFolder app;
    const std::string run = std::string("\"") + WM_CMAKE_COMMAND + "\" -DSRC=\"" +
                            DataFile(kDisplayFileName) + "\" -DDST=\"" +
                            app.file(kDisplayFileName) + "\" -P \"" +
                            DataFile("copy_if_missing.cmake") + "\"";
    ASSERT_EQ(std::system(run.c_str()), 0);
    EXPECT_EQ(app.read(kDisplayFileName), ReadBytes(DataFile(kDisplayFileName)));

    const std::string teachers = "*****\r\n0.5\r\n6\r\n5\r\n1.1\r\n1.2\r\n*****\r\nQuiz\r\n";
    app.write(kDisplayFileName, teachers);
    ASSERT_EQ(std::system(run.c_str()), 0);
    EXPECT_EQ(app.read(kDisplayFileName), teachers);
}

}  // namespace
}  // namespace wm
