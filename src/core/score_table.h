// High-score tables: one 510-byte record per game in scores/{game}.dat, 50 ranks.
#pragma once

#include <array>
#include <string>

namespace wm {

inline constexpr int kRanks = 50;
inline constexpr int kScoreRecordSize = 510;  // 51 x 3 initials + 51 x 7 scores

struct ScoreTable {
    // Index 0 is not shown; fields hold their padded text.
    std::array<std::string, kRanks + 1> Initials;
    std::array<std::string, kRanks + 1> Scores;

    static ScoreTable Fresh();              // "---" and "0" in ranks 1 to 50
    std::string initials(int rank) const;   // trimmed
    double score(int rank) const;           // the number the text holds
    std::string scoreText(int rank) const;  // trimmed

    std::string toBytes() const;
    // A record of the wrong size is read as far as it goes; the rest stays fresh.
    static ScoreTable fromBytes(const std::string& bytes);
};

std::string ScoreFilePath(const std::string& appPath, const std::string& game);
ScoreTable ReadScoreTable(const std::string& path);  // missing file: fresh
void WriteScoreTable(const std::string& path, const ScoreTable& table);
// Writes a fresh table when the file is missing; the scores folder is made if needed.
void EnsureScoreFile(const std::string& appPath, const std::string& game);

// First rank whose score is below `score` or is 0; 0 when none (highest first).
int FindRank(const ScoreTable& table, double score);
// First rank whose score is 0 or greater than `score`: the smallest-first table of timed typing.
int FindRankSmallestFirst(const ScoreTable& table, double score);
// Puts initials and score at `rank` with the table's own displacement: the old entry moves one
// down, the one below it is lost, the rest stay. Scores moved pass through a 32-bit whole number.
void InsertScore(ScoreTable& table, int rank, const std::string& initials,
                 const std::string& scoreText);

}  // namespace wm
