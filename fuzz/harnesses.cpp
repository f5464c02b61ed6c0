#include "harnesses.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string_view>

#include <unistd.h>

#include "core/category_file.h"
#include "core/display_file.h"
#include "core/language_codes.h"
#include "core/line_file.h"
#include "core/list_file.h"
#include "core/random_word.h"
#include "core/rng.h"
#include "core/score_table.h"
#include "core/settings_file.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm::fuzz {

namespace {

// A property that must hold; a broken one aborts so the fuzzer keeps the input.
void Check(bool ok, const char* what) {
    if (!ok) {
        std::fprintf(stderr, "broken: %s\n", what);
        std::abort();
    }
}

// A folder of this process's own, emptied for each input and removed at exit. Never freed, so
// it outlives the static destructors that run before the exit handler.
const std::string& Folder() {
    static const std::string* path = [] {
        std::filesystem::path base = std::filesystem::exists("/dev/shm")
                                         ? std::filesystem::path("/dev/shm")
                                         : std::filesystem::temp_directory_path();
        auto* p = new std::string((base / ("wm-fuzz-" + std::to_string(::getpid()))).string());
        std::filesystem::create_directories(*p);
        std::atexit([] {
            std::error_code ec;
            std::filesystem::remove_all(Folder(), ec);
        });
        return p;
    }();
    return *path;
}

std::string Fresh(const char* name, const std::uint8_t* data, std::size_t size) {
    std::error_code ec;
    for (const auto& e : std::filesystem::directory_iterator(Folder(), ec))
        std::filesystem::remove_all(e.path(), ec);
    const std::string path = JoinPath(Folder(), name);
    WriteBytesAtomic(path, std::string(reinterpret_cast<const char*>(data), size));
    return path;
}

bool HasLineEnd(const std::string& s) {
    return s.find_first_of("\r\n") != std::string::npos;
}

// Lines written whole come back as they went, byte for byte.
void CheckRoundTrip(const std::string& path, const std::vector<std::string>& lines) {
    WriteLinesAtomic(path, lines);
    Check(ReadBytes(path) == JoinLines(lines), "written bytes");
    Check(ReadLines(path) == lines, "lines read back");
}

}  // namespace

void SettingsFile(const std::uint8_t* data, std::size_t size) {
    const std::string path = Fresh("wmdata.dat", data, size);
    const std::vector<std::string> before = ReadLines(path);
    SharedState state;
    try {
        Settings s = ReadSettings(Folder());
        Check(s.lines.size() >= 6, "six lines");
        ApplySettings(s, Folder(), state);
        Check(!state.ListFilePath.empty() || Trim(s.lines[kListPathLine]).empty(), "list path");
    } catch (const FileError& e) {
        Check(before.size() < 6, "only a short file is refused");
        Check(e.path() == path, "the error names the file");
        return;
    }
    // A rewrite changes its one line and keeps every other line as it was.
    RewriteSettingsLine(Folder(), kSoundLine, "Sound Off");
    std::vector<std::string> after = ReadLines(path);
    Check(after.size() == before.size(), "line count kept");
    std::vector<std::string> expected = before;
    expected[kSoundLine] = "Sound Off";
    Check(after == expected, "other lines kept");
    Check(!ReadSettings(Folder()).soundOn(), "sound off");
}

void ListFile(const std::uint8_t* data, std::size_t size) {
    const std::string path = Fresh("thelists.dat", data, size);
    const std::vector<std::string> names = ListNames(path);
    const std::vector<std::string> lines = ReadAllLines(path);
    Check(names.size() <= lines.size(), "names are lines");
    for (std::size_t i = 0; i < names.size() && i < 8; ++i) (void)NameExists(path, names[i]);
    // The first name is found again, unless a short prefixed name reads differently there.
    if (!names.empty()) {
        Check(NameExists(path, PlainName(names.front())) || HasPrefix(names.front()),
              "the first name exists");
    }

    // Load every list the chooser would offer, foreign ones both ways.
    std::vector<ForeignList> foreign;
    for (const auto& n : names) {
        if (Len(n) > 4 && HasPrefix(n)) foreign.push_back({Mid(n, 2, 1), Mid(n, 4)});
    }
    SharedState state;
    int loads = 0;
    for (const auto& n : names) {
        if (++loads > 8) break;
        for (bool swap : {false, true}) {
            state.CurrentListName = PlainName(n);
            LoadHooks hooks;
            hooks.chooseDirection = [swap](const std::string& code) {
                return swap ? code : std::string("E");
            };
            LoadList(path, state, foreign, hooks);
            Check(state.WordCount >= 0 && state.WordCount <= kMaxWords + 1, "word count");
            const int loaded = std::min<int>(state.WordCount, kMaxWords);
            for (int i = 1; i <= loaded; ++i) {
                Check(!Trim(state.Words[i]).empty() && !Trim(state.Meanings[i]).empty(),
                      "no blank entry is loaded");
            }
            ScriptedRng rng(0.999999);
            if (state.WordCount > 0) {
                PickRandomWord(state, rng);
                Check(!state.TheWord.empty(), "the random word is never empty");
            }
        }
    }

    // The editors' roads: clean the head, delete, append, and the file stays readable.
    std::vector<std::string> edited = lines;
    CleanHead(edited, true);
    Check(edited.empty() || (edited.front() != kSeparator && !edited.front().empty() &&
                             edited.front() != kNoLists),
          "clean head");
    if (!names.empty()) {
        std::vector<std::string> deleted = lines;
        if (DeleteListLines(deleted, PlainName(names.back())))
            Check(!deleted.empty() && !deleted.front().empty(), "a store is never left empty");
        CheckRoundTrip(path, deleted);
    }
    CheckRoundTrip(path, edited);
    AppendRecord(path, "Fuzzed", {"word", "meaning"});
    const auto after = ListNames(path);
    Check(!after.empty(), "append");
    const auto all = ReadAllLines(path);
    Check(all.size() >= 4 && all[all.size() - 3] == "Fuzzed", "the record lands at the end");
}

void CategoryFile(const std::uint8_t* data, std::size_t size) {
    const std::string path = Fresh("folders.dat", data, size);
    const std::vector<std::string> lines = ReadCategoryLines(path);
    const std::vector<std::string> categories = CategoryNames(lines);
    for (const auto& c : categories) {
        for (const auto& name : CollectLists(lines, c)) Check(!Trim(name).empty(), "blank kept");
    }
    (void)CollectLists(lines, "no such category");
    LockCategories(path);
    Check(IsLocked(path), "locked");
    Check(ReadCategoryLines(path) == lines, "readers follow the lock");
    SaveAndUnlockCategories(path, lines);
    Check(!IsLocked(path), "unlocked");
    Check(ReadCategoryLines(path) == lines, "save keeps the lines");
    if (!lines.empty()) {
        const std::string name = lines.back();
        RemoveListFromCategories(path, name);
        const auto after = ReadCategoryLines(path);
        Check(std::find(after.begin(), after.end(), name) == after.end(), "every line removed");
    }
}

void ScoreTable(const std::uint8_t* data, std::size_t size) {
    const std::string path = Fresh("Quiz.dat", data, size);
    wm::ScoreTable table = ReadScoreTable(path);
    const std::string bytes = table.toBytes();
    Check(bytes.size() == static_cast<std::size_t>(kScoreRecordSize), "510 bytes");
    if (size == static_cast<std::size_t>(kScoreRecordSize)) {
        // Every byte is kept, but a zero byte, which reads as a blank.
        std::string expected(reinterpret_cast<const char*>(data), size);
        std::replace(expected.begin(), expected.end(), '\0', ' ');
        Check(bytes == expected, "bytes kept");
    }
    double top = 0;
    for (int r = 1; r <= kRanks; ++r) top = std::max(top, table.score(r));
    for (double score : {0.0, 1.0, top, top + 1, -5.0, 1e12}) {
        wm::ScoreTable t = table;
        const int rank = FindRank(t, score);
        Check(rank >= 0 && rank <= kRanks, "rank in range");
        const int small = FindRankSmallestFirst(t, score);
        Check(small >= 0 && small <= kRanks, "smallest-first rank in range");
        if (rank > 0) {
            InsertScore(t, rank, "ABC", NumText(score));
            Check(t.initials(rank) == "ABC", "initials placed");
            Check(t.toBytes().size() == static_cast<std::size_t>(kScoreRecordSize), "size");
        }
        WriteScoreTable(path, t);
        Check(ReadScoreTable(path).toBytes() == t.toBytes(), "table round trip");
    }
}

void DisplayFile(const std::uint8_t* data, std::size_t size) {
    const std::string path = Fresh("wmgdisplay.dat", data, size);
    DisplaySettings s = ReadDisplaySettings(path);
    Check(s.columns >= 1 && s.columns <= 20 && s.rows >= 1 && s.rows <= 20, "grid bounds");
    Check(s.scale > 0 && s.scale <= 4 && s.hspace >= 1 && s.vspace >= 1, "spacing bounds");
    for (const auto& h : s.hidden) Check(!HasLineEnd(h), "hidden names are lines");
    WriteDisplaySettings(path, s);
    DisplaySettings back = ReadDisplaySettings(path);
    Check(back.columns == s.columns && back.rows == s.rows, "grid round trip");
    std::vector<std::string> kept;
    for (const auto& h : s.hidden) {
        if (!Trim(h).empty()) kept.push_back(h);
    }
    Check(back.hidden == kept, "hidden round trip");
}

void LanguageCodes(const std::uint8_t* data, std::size_t size) {
    const std::string path = Fresh("flcodelist.dat", data, size);
    const auto codes = ReadLanguageCodes(path);
    Check(codes.size() <= 100, "at most 100 languages");
    Check(codes.size() * 3 <= ReadLines(path).size(), "three lines a language");
    for (const auto& c : codes) Check(FindLanguage(codes, c.code) != nullptr, "found");
    (void)FindLanguage(codes, "");
}

const std::vector<Target>& Targets() {
    static const std::vector<Target> targets = {
        {"settings", &SettingsFile},    {"list_file", &ListFile},
        {"category", &CategoryFile},    {"score_table", &ScoreTable},
        {"display_file", &DisplayFile}, {"language_codes", &LanguageCodes},
    };
    return targets;
}

}  // namespace wm::fuzz
