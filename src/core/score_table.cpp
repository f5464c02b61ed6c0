#include "core/score_table.h"

#include <filesystem>

#include "core/line_file.h"
#include "core/strings.h"

namespace wm {

namespace {

constexpr int kInitialsWidth = 3;
constexpr int kScoreWidth = 7;
constexpr int kScoresOffset = (kRanks + 1) * kInitialsWidth;

std::string pad(std::string s, int width) {
    s.resize(static_cast<std::size_t>(width), ' ');
    return s;
}

}  // namespace

ScoreTable ScoreTable::Fresh() {
    ScoreTable t;
    for (int r = 1; r <= kRanks; ++r) {
        t.Initials[r] = pad("---", kInitialsWidth);
        t.Scores[r] = pad("0", kScoreWidth);
    }
    return t;
}

std::string ScoreTable::initials(int rank) const {
    return Trim(Initials.at(rank));
}
double ScoreTable::score(int rank) const {
    return Val(Scores.at(rank));
}
std::string ScoreTable::scoreText(int rank) const {
    return Trim(Scores.at(rank));
}

std::string ScoreTable::toBytes() const {
    std::string out;
    for (const auto& i : Initials) out += pad(i, kInitialsWidth);
    for (const auto& s : Scores) out += pad(s, kScoreWidth);
    return out;
}

ScoreTable ScoreTable::fromBytes(const std::string& bytes) {
    ScoreTable t = Fresh();
    auto field = [&](std::size_t offset, int width, std::string& into) {
        if (offset + static_cast<std::size_t>(width) > bytes.size()) return;
        into = bytes.substr(offset, static_cast<std::size_t>(width));
        // Stray zero bytes would end the text early on screen; show them as blanks.
        for (auto& c : into) {
            if (c == '\0') c = ' ';
        }
    };
    for (int i = 0; i <= kRanks; ++i) {
        field(static_cast<std::size_t>(i) * kInitialsWidth, kInitialsWidth, t.Initials[i]);
        field(kScoresOffset + static_cast<std::size_t>(i) * kScoreWidth, kScoreWidth, t.Scores[i]);
    }
    return t;
}

std::string ScoreFilePath(const std::string& appPath, const std::string& game) {
    return JoinPath(JoinPath(appPath, "scores"), Trim(game) + ".dat");
}

ScoreTable ReadScoreTable(const std::string& path) {
    if (!FileExists(path)) return ScoreTable::Fresh();
    return ScoreTable::fromBytes(ReadBytes(path));
}

void WriteScoreTable(const std::string& path, const ScoreTable& table) {
    WriteBytesAtomic(path, table.toBytes());
}

void EnsureScoreFile(const std::string& appPath, const std::string& game) {
    const std::string path = ScoreFilePath(appPath, game);
    if (FileExists(path)) return;
    std::error_code ec;
    std::filesystem::create_directories(FolderOf(path), ec);
    WriteScoreTable(path, ScoreTable::Fresh());
}

int FindRank(const ScoreTable& table, double score) {
    for (int r = 1; r <= kRanks; ++r) {
        double stored = table.score(r);
        if (stored < score || stored == 0) return r;
    }
    return 0;
}

int FindRankSmallestFirst(const ScoreTable& table, double score) {
    for (int r = 1; r <= kRanks; ++r) {
        double stored = table.score(r);
        if (stored == 0 || stored > score) return r;
    }
    return 0;
}

void InsertScore(ScoreTable& table, int rank, const std::string& initials,
                 const std::string& scoreText) {
    if (rank < 1 || rank > kRanks) return;
    // A moved score is carried as a 32-bit whole number: fractions are rounded away.
    auto carried = [](const std::string& s) { return pad(NumText(CLng(Val(s))), kScoreWidth); };
    std::string heldInitials = table.Initials[rank];
    std::string heldScore = table.Scores[rank];
    table.Initials[rank] = pad(Left(initials, kInitialsWidth), kInitialsWidth);
    table.Scores[rank] = pad(Left(scoreText, kScoreWidth), kScoreWidth);
    if (rank == kRanks) {
        table.Initials[0] = heldInitials;
        table.Scores[0] = carried(heldScore);
        return;
    }
    // The table's own displacement, kept exactly: the old entry moves one down, the entry it
    // lands on is lost, and everything below stays where it was.
    for (int i = rank + 1; i <= kRanks; ++i) {
        std::string readInitials, readScore;
        if (i < kRanks) {
            readInitials = table.Initials[i + 1];
            readScore = table.Scores[i + 1];
        }
        table.Initials[i] = heldInitials;
        table.Scores[i] = carried(heldScore);
        heldInitials = readInitials;
        heldScore = readScore;
    }
}

}  // namespace wm
