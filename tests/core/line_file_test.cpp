#include <gtest/gtest.h>

#include <filesystem>

#include "core/line_file.h"
#include "core/strings.h"
#include "temp_folder.h"

using namespace wm;
using wm::test::TempFolder;

TEST(LineFile, RoundTripIsByteForByte) {
    TempFolder dir;
    std::vector<std::string> lines = {"caf\xE9", "", "  blanks  ", "<New List>"};
    std::string all;
    for (int c = 191; c <= 255; ++c) all += Chr(c);
    lines.push_back(all);
    WriteLinesAtomic(dir.file("a.dat"), lines);
    std::string expected;
    for (const auto& l : lines) expected += l + "\r\n";
    EXPECT_EQ(dir.read("a.dat"), expected);
    EXPECT_EQ(ReadLines(dir.file("a.dat")), lines);
}

TEST(LineFile, ReadsAnyLineEndAndALastLineWithoutOne) {
    TempFolder dir;
    dir.write("a.dat", "one\r\ntwo\nthree\rfour");
    EXPECT_EQ(ReadLines(dir.file("a.dat")),
              (std::vector<std::string>{"one", "two", "three", "four"}));
    dir.write("b.dat", "");
    EXPECT_TRUE(ReadLines(dir.file("b.dat")).empty());
    dir.write("c.dat", "\r\n\r\n");
    EXPECT_EQ(ReadLines(dir.file("c.dat")), (std::vector<std::string>{"", ""}));
}

TEST(LineFile, VeryLongLinesAndBinaryGarbageSurvive) {
    TempFolder dir;
    std::string garbage;
    for (int i = 0; i < 5000; ++i) garbage += static_cast<char>((i * 37) % 256);
    dir.write("g.dat", garbage);
    auto lines = ReadLines(dir.file("g.dat"));
    std::size_t total = 0;
    for (const auto& l : lines) total += l.size();
    EXPECT_LE(total, garbage.size());
    std::string longLine(200000, 'x');
    WriteLinesAtomic(dir.file("l.dat"), {longLine});
    EXPECT_EQ(ReadLines(dir.file("l.dat")).at(0).size(), 200000u);
}

TEST(LineFile, MissingFileNamesItself) {
    TempFolder dir;
    try {
        ReadLines(dir.file("nothere.dat"));
        FAIL() << "no error";
    } catch (const FileError& e) {
        EXPECT_EQ(e.path(), dir.file("nothere.dat"));
        EXPECT_NE(std::string(e.what()).find("nothere.dat"), std::string::npos);
    }
}

TEST(LineFile, AtomicRewriteLeavesNoTemporaryAndReplacesWhole) {
    TempFolder dir;
    dir.write("a.dat", "old old old old\r\n");
    WriteLinesAtomic(dir.file("a.dat"), {"new"});
    EXPECT_EQ(dir.read("a.dat"), "new\r\n");
    int files = 0;
    for (auto& e : std::filesystem::directory_iterator(dir.path())) (void)e, ++files;
    EXPECT_EQ(files, 1);
}

TEST(LineFile, FailedWriteKeepsTheOldFile) {
    TempFolder dir;
    dir.write("a.dat", "keep\r\n");
    // A folder in the way of the temporary file makes the write fail before the rename.
    std::filesystem::create_directory(dir.file(".a.dat.tmp"));
    EXPECT_THROW(WriteLinesAtomic(dir.file("a.dat"), {"lost"}), FileError);
    EXPECT_EQ(dir.read("a.dat"), "keep\r\n");
}

TEST(LineFile, AppendAddsAnEndToAnUnfinishedLastLine) {
    TempFolder dir;
    dir.write("a.dat", "one\r\ntwo");
    AppendLinesAtomic(dir.file("a.dat"), {"three"});
    EXPECT_EQ(dir.read("a.dat"), "one\r\ntwo\r\nthree\r\n");
    AppendLinesAtomic(dir.file("new.dat"), {"x"});
    EXPECT_EQ(dir.read("new.dat"), "x\r\n");
}

TEST(LineFile, LineReaderMatchesReadLines) {
    TempFolder dir;
    dir.write("a.dat", "a\r\n\r\nb\nc\rd");
    LineReader in = LineReader::open(dir.file("a.dat"));
    std::vector<std::string> seen;
    while (!in.atEnd()) seen.emplace_back(in.next());
    EXPECT_EQ(seen, ReadLines(dir.file("a.dat")));
    EXPECT_EQ(in.next(), "");
}
