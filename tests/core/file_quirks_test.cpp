// Kept behaviours of the small files that look odd and are meant: the display presets as
// numbers, ties in a smallest-first table, and a category file under another name.
#include <gtest/gtest.h>

#include "core/category_file.h"
#include "core/display_file.h"
#include "core/line_file.h"
#include "core/score_table.h"
#include "temp_folder.h"

using namespace wm;
using wm::test::TempFolder;

TEST(Quirks, DisplayPresetsAndSmallestFirstTies) {
    const std::tuple<DisplaySettings, double, int, int, double, double, const char*> cases[] = {
        {DisplaySettings::LargeIcons(), 1.0, 4, 3, 1.01, 1.01,
         "*****\r\n1\r\n4\r\n3\r\n1.01\r\n1.01\r\n*****\r\n"},
        {DisplaySettings::SmallIcons(), 0.5, 6, 5, 1.1, 1.2,
         "*****\r\n0.5\r\n6\r\n5\r\n1.1\r\n1.2\r\n*****\r\n"},
    };
    TempFolder dir;
    for (const auto& [preset, scale, columns, rows, h, v, bytes] : cases) {
        EXPECT_EQ(std::tuple(preset.scale, preset.columns, preset.rows, preset.hspace,
                             preset.vspace, preset.hidden.empty()),
                  std::tuple(scale, columns, rows, h, v, true));
        WriteDisplaySettings(dir.file("d.dat"), preset);
        EXPECT_EQ(dir.read("d.dat"), bytes) << columns;
    }
    // Smallest-first ties go below the equal score.
    ScoreTable t = ScoreTable::Fresh();
    const char* scores[] = {"12.5   ", "20     ", "20     ", "31     "};
    for (int r = 1; r <= 4; ++r) t.Scores[r] = scores[r - 1];
    // A tie does not pass the score it equals; the first free rank (a 0) takes anything.
    const std::pair<double, int> ties[] = {{12.4, 1},  {12.5, 2}, {20, 4},
                                           {20.01, 4}, {31, 5},   {99, 5}};
    for (const auto& [score, rank] : ties)
        EXPECT_EQ(FindRankSmallestFirst(t, score), rank) << score;
    ScoreTable full = t;
    for (int r = 5; r <= kRanks; ++r) full.Scores[r] = "40     ";
    EXPECT_EQ(std::tuple(FindRankSmallestFirst(full, 40), FindRankSmallestFirst(full, 39)),
              std::tuple(0, 5));
}
