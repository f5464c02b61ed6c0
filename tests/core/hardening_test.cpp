// Faults found in review: each case here failed before its fix.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <vector>

#include "core/display_file.h"
#include "core/line_file.h"
#include "core/list_file.h"
#include "core/random_word.h"
#include "core/rng.h"
#include "core/settings_file.h"
#include "core/shared_state.h"
#include "temp_folder.h"

using namespace wm;
using namespace wm::test;

TEST(Hardening, HugeDisplayCountsAndAFolderAtTheListFilesName) {
    // Columns and rows written, then read; 4 and 3: the Large Icons preset was kept.
    const std::string nines(400, '9');  // outlives the table that points into it
    const std::tuple<const char*, const char*, int, int> cases[] = {
        {"99999999999", "3", 4, 3}, {"5", "-99999999999", 4, 3}, {"1e400", "3", 1, 3},
        {"21", "3", 4, 3},          {"20.9", "20", 20, 20},      {"1", "1", 1, 1},
        {"0.99", "2", 4, 3},        {nines.c_str(), "2", 4, 3},  {"5", "21", 4, 3},
        {"5", "0.99", 4, 3},
    };
    TempFolder dir;
    for (const auto& [columns, rows, wantColumns, wantRows] : cases) {
        dir.writeLines("d.dat", {"*****", "0.5", columns, rows, "1.1", "1.2", "*****"});
        DisplaySettings s = ReadDisplaySettings(dir.file("d.dat"));
        EXPECT_EQ(std::tuple(s.columns, s.rows), std::tuple(wantColumns, wantRows))
            << columns << " x " << rows;
    }
    // A folder at the list file's name does not stop the start.
    dir.writeLines("wmdata.new", {"r0", "r1", "Sound On", "pw", "listpath", "folderpath"});
    dir.writeLines("thelists.new", {"Animals", "cat", "a pet"});
    std::filesystem::create_directory(dir.file("thelists.dat"));
    EXPECT_NO_THROW(FirstRunRenames(dir.path()));
    // The list file's factory copy is left for the teacher to sort out.
    EXPECT_EQ(std::tuple(dir.exists("wmdata.dat"), dir.exists("thelists.new")),
              std::tuple(true, true));
    // The reader that comes next names the file.
    const auto [path, message] = FileFailure([&] { ListNames(dir.file("thelists.dat")); });
    EXPECT_EQ(path, dir.file("thelists.dat"));
    EXPECT_NE(message.find("thelists.dat"), std::string::npos);
}

TEST(RandomWord, DrawsOnlyLoadedEntries) {
    // The tables are 1-based: room for 200 games, and for 1000 words and the one past the limit.
    const SharedState fresh;
    EXPECT_EQ(std::tuple(fresh.GameNames.size(), fresh.VisibleGames.size(), fresh.Words.size(),
                         fresh.Meanings.size()),
              std::tuple(201u, 201u, 1002u, 1002u));
    // The words loaded, the draw, and the entry picked.
    const std::tuple<int, double, int> cases[] = {
        {1001, 0.99999, 1000},  // over the limit: the top draw is the last loaded entry
        {1001, 0.9985, 999},    // the draw is over 1000, not 1001
        {1001, 0.0, 1},        {1000, 0.99999, 1000}, {1000, 0.0005, 1},
        {7, 4.5 / 7, 5},       {1, 0.99, 1},          {0, 0.5, 0},
    };
    for (const auto& [wordCount, rnd, want] : cases) {
        SharedState s;
        for (int i = 1; i <= std::min(wordCount, kMaxWords); ++i) {
            s.Words[i] = "w" + std::to_string(i);
            s.Meanings[i] = "d" + std::to_string(i);
        }
        s.WordCount = static_cast<short>(wordCount);
        ScriptedRng rng(rnd);
        EXPECT_EQ(PickRandomWord(s, rng), want) << wordCount << " " << rnd;
        // Nothing is picked from an empty list: the words stay as they were.
        EXPECT_EQ(std::tuple(s.TheWord, s.TheMeaning, rng.randomizeCount),
                  std::tuple(want ? "w" + std::to_string(want) : "",
                             want ? "d" + std::to_string(want) : "", 1));
    }
    // A count beyond the words held: the last one held, never one past it.
    SharedState few;
    few.Words = {"", "ant", "bee"};
    few.Meanings = {"", "a", "b"};
    few.WordCount = 5;
    ScriptedRng top(0.99);
    EXPECT_EQ(PickRandomWord(few, top), 2);
    // Two games started apart draw apart: the system generator is seeded from the clock, and
    // its draws spread over [0, 1).
    SystemRng first, second;
    EXPECT_NE(first.Rnd(), second.Rnd());
    std::vector<double> draws(1000);
    for (double& v : draws) v = first.Rnd();
    const auto [low, high] = std::minmax_element(draws.begin(), draws.end());
    EXPECT_TRUE(*low >= 0 && *low < 0.01 && *high > 0.99 && *high < 1) << *low << " " << *high;
    // A scripted generator hands out its queue in order, then its fallback, counting each draw.
    ScriptedRng script(0.5);
    script.then(0.1).pick(3, 4);
    EXPECT_EQ(std::vector<double>({script.Rnd(), script.Rnd(), script.Rnd()}),
              std::vector<double>({0.1, 0.625, 0.5}));
    EXPECT_EQ(script.draws, 3);
    // The generator a test installs is the one every draw uses, until it is taken away.
    SetRng(&top);
    EXPECT_EQ(&TheRng(), &top);
    SetRng(nullptr);
    EXPECT_NE(&TheRng(), &top);
}
