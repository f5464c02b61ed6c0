#include <gtest/gtest.h>

#include "core/line_file.h"
#include "core/score_table.h"
#include "core/strings.h"
#include "temp_folder.h"

using namespace wm;
using wm::test::TempFolder;

static ScoreTable tableOf(std::initializer_list<std::pair<const char*, const char*>> entries) {
    ScoreTable t = ScoreTable::Fresh();
    int r = 1;
    for (auto& [i, s] : entries) {
        t.Initials[r] = std::string(i).append(3 - std::string(i).size(), ' ');
        t.Scores[r] = std::string(s).append(7 - std::string(s).size(), ' ');
        ++r;
    }
    return t;
}

TEST(ScoreTable, RecordIs510BytesAndWrongSizedFilesReadAsFarAsTheyGo) {
    std::string bytes = ScoreTable::Fresh().toBytes();
    ASSERT_EQ(bytes.size(), 510u);
    EXPECT_EQ(std::tuple(bytes.substr(0, 3), bytes.substr(3, 3), bytes.substr(153, 7),
                         bytes.substr(160, 7)),
              std::tuple("   ", "---", "       ", "0      "));
    EXPECT_EQ(ScoreTable::fromBytes(bytes).toBytes(), bytes);
    // Wrong-sized files read as far as they go.
    bytes = tableOf({{"ABC", "900"}, {"DEF", "800"}}).toBytes();
    // Cut inside the score area: rank 1's score survives, later ones are fresh.
    ScoreTable cut = ScoreTable::fromBytes(bytes.substr(0, 170));
    EXPECT_EQ(std::tuple(cut.initials(2), cut.scoreText(1), cut.scoreText(2)),
              std::tuple("DEF", "900", "0"));
    EXPECT_EQ(std::tuple(ScoreTable::fromBytes("").toBytes(),
                         ScoreTable::fromBytes(bytes + "trailing junk").toBytes(),
                         ScoreTable::fromBytes(std::string(510, '\0')).score(1)),
              std::tuple(ScoreTable::Fresh().toBytes(), bytes, 0));
}

TEST(ScoreTable, RankSearchHighestFirst) {
    ScoreTable t = tableOf({{"A", "900"}, {"B", "500"}, {"C", "100"}});
    // A tie does not pass; then the first free rank, which even a score of 0 takes.
    EXPECT_EQ(std::tuple(FindRank(t, 1000), FindRank(t, 600), FindRank(t, 500), FindRank(t, 50),
                         FindRank(ScoreTable::Fresh(), 0)),
              std::tuple(1, 2, 3, 4, 1));
    ScoreTable full = ScoreTable::Fresh();
    for (int r = 1; r <= kRanks; ++r) full.Scores[r] = "5000   ";
    EXPECT_EQ(FindRank(full, 10), 0);
}

TEST(ScoreTable, InsertDisplacesOneLosesTheNextAndCutsTheScore) {
    ScoreTable t = tableOf({{"A", "900"}, {"B", "800"}, {"C", "700"}, {"D", "600"}});
    const std::string before = t.toBytes();
    for (int outside : {0, 51}) InsertScore(t, outside, "OUT", "999");  // no such rank
    EXPECT_EQ(t.toBytes(), before);
    InsertScore(t, 2, "NEWX", "850");
    // Initials cut to three; the old rank 2 moves down, the old rank 3 is lost, the rest stay.
    EXPECT_EQ(std::tuple(t.initials(1), t.initials(2), t.initials(3), t.initials(4), t.scoreText(3),
                         t.scoreText(4)),
              std::tuple("A", "NEW", "B", "D", "800", "600"));
    // At the ends, and scores cut.
    t = tableOf({});
    std::tie(t.Initials[50], t.Scores[50]) = std::pair("ZZZ", "12     ");
    InsertScore(t, 50, "ABC", "123456789");
    EXPECT_EQ(t.scoreText(50), "1234567");
    // The old last entry goes to index 0, its score through a whole number like any moved one.
    t.Scores[50] = "12.7   ";
    InsertScore(t, 50, "ABC", "9");
    EXPECT_EQ(std::tuple(t.initials(0), t.scoreText(0)), std::tuple("ABC", "13"));
    ScoreTable u = tableOf({{"A", "0.1234"}, {"B", "2.5"}});
    InsertScore(u, 1, "N", "0.05");
    // Moved scores pass through a whole number.
    EXPECT_EQ(std::tuple(u.scoreText(1), u.scoreText(2), u.initials(2)),
              std::tuple("0.05", "0", "A"));
}

TEST(ScoreTable, FileRoundTripCreationAndThreeWins) {
    TempFolder dir;
    EnsureScoreFile(dir.path(), " Scramble ");
    ASSERT_TRUE(dir.exists("scores/Scramble.dat"));
    std::string path = ScoreFilePath(dir.path(), "Scramble");
    ScoreTable t = ReadScoreTable(path);
    InsertScore(t, 1, "ABC", "4321");
    WriteScoreTable(path, t);
    EXPECT_EQ(std::tuple(dir.read("scores/Scramble.dat").size(), ReadScoreTable(path).scoreText(1)),
              std::tuple(510u, "4321"));
    // An existing table is never replaced by a fresh one.
    EnsureScoreFile(dir.path(), "Scramble");
    EXPECT_EQ(ReadScoreTable(path).initials(1), "ABC");
    // Three wins in a row.
    t = ScoreTable::Fresh();
    for (auto [ini, score] : {std::pair{"AAA", 300.0}, {"BBB", 500.0}, {"CCC", 400.0}})
        InsertScore(t, FindRank(t, score), ini, NumText(score));
    // 300 at 1; 500 at 1 pushes 300 to 2; 400 lands on 2, pushes 300 to 3 and loses the fresh 3.
    EXPECT_EQ(std::tuple(t.initials(1), t.initials(2), t.initials(3), t.initials(4)),
              std::tuple("BBB", "CCC", "AAA", "---"));
}
