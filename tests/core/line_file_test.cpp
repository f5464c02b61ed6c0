#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "core/line_file.h"
#include "core/strings.h"
#include "temp_folder.h"

using namespace wm;
using namespace wm::test;

static std::vector<std::string> FilesIn(const TempFolder& dir) {
    std::vector<std::string> names;
    for (auto& e : std::filesystem::directory_iterator(dir.path()))
        names.push_back(e.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

TEST(LineFile, RoundTripIsByteForByteAndAnyLineEndIsRead) {
    TempFolder dir;
    std::vector<std::string> lines = {"caf\xE9", "", "  blanks  ", "<New List>"};
    std::string all;
    for (int c = 191; c <= 255; ++c) all += Chr(c);
    lines.push_back(all);
    WriteLinesAtomic(dir.file("a.dat"), lines);
    EXPECT_EQ(std::tuple(dir.read("a.dat"), ReadLines(dir.file("a.dat"))),
              std::tuple("caf\xE9\r\n\r\n  blanks  \r\n<New List>\r\n" + all + "\r\n", lines));
    // A rewrite replaces the whole file and leaves no temporary behind.
    WriteLinesAtomic(dir.file("a.dat"), {"new"});
    EXPECT_EQ(std::tuple(dir.read("a.dat"), FilesIn(dir)),
              std::tuple("new\r\n", std::vector<std::string>{"a.dat"}));
    WriteLinesAtomic(dir.file("l.dat"), {std::string(200000, 'x')});  // very long lines survive
    EXPECT_EQ(ReadLines(dir.file("l.dat")).at(0).size(), 200000u);
    // Any line end is read, and a last line without one.
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"one\r\ntwo\nthree\rfour", {"one", "two", "three", "four"}},
        {"", {}},
        {"\r\n\r\n", {"", ""}}};
    for (const auto& [bytes, lines] : cases) {
        dir.write("a.dat", bytes);
        EXPECT_EQ(ReadLines(dir.file("a.dat")), lines) << bytes;
    }
    // A missing file names itself.
    const auto [path, message] = FileFailure([&] { ReadLines(dir.file("nothere.dat")); });
    EXPECT_EQ(path, dir.file("nothere.dat"));
    EXPECT_NE(message.find("nothere.dat"), std::string::npos);
}

TEST(LineFile, FailedWriteKeepsTheOldFileAndARewriteItsPermissions) {
    TempFolder dir;
    dir.write("a.dat", "keep\r\n");
    // A file size limit makes the write itself fail, after the temporary file was made.
    struct rlimit before {};
    ::getrlimit(RLIMIT_FSIZE, &before);
    struct rlimit small = before;
    small.rlim_cur = 64;
    auto* oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &small);
    const auto tooLarge =
        FileFailure([&] { WriteLinesAtomic(dir.file("a.dat"), {std::string(1000, 'x')}); });
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_EQ(tooLarge.second,
              "The file " + dir.file("a.dat") + " cannot be written: File too large");
    EXPECT_EQ(std::tuple(dir.read("a.dat"), FilesIn(dir)),
              std::tuple("keep\r\n", std::vector<std::string>{"a.dat"}));
    // A folder standing at the name: all is written, and the rename fails.
    std::filesystem::create_directories(dir.file("b.dat/inside"));
    const std::string replaced =
        FileFailure([&] { WriteLinesAtomic(dir.file("b.dat"), {"x"}); }).second;
    EXPECT_EQ(replaced.rfind("The file " + dir.file("b.dat") + " cannot be replaced: ", 0), 0u)
        << replaced;
    EXPECT_EQ(FilesIn(dir), (std::vector<std::string>{"a.dat", "b.dat"}));
    // A folder that is not there names the file.
    EXPECT_EQ(FileFailure([&] { WriteLinesAtomic(dir.file("gone/b.dat"), {"x"}); }).first,
              dir.file("gone/b.dat"));
    const std::string path = dir.file("thelists.dat");
    dir.write("thelists.dat", "old\r\n");
    // A list file the teacher shares with a group: group-writable, in that group.
    ASSERT_EQ(::chmod(path.c_str(), 0664), 0);
    const gid_t group = ::geteuid() == 0 ? gid_t(4242) : ::getegid();
    ASSERT_EQ(::chown(path.c_str(), uid_t(-1), group), 0);
    WriteLinesAtomic(path, {"new"});
    struct stat st {};
    ASSERT_EQ(::stat(path.c_str(), &st), 0);
    EXPECT_EQ(std::tuple(st.st_mode & 07777, st.st_gid, st.st_uid),
              std::tuple(0664u, group, ::geteuid()));
    // A read-only file stays read-only for those it was read-only for.
    ASSERT_EQ(::chmod(path.c_str(), 0440), 0);
    AppendLinesAtomic(path, {"more"});
    ASSERT_EQ(::stat(path.c_str(), &st), 0);
    EXPECT_EQ(std::tuple(st.st_mode & 07777, dir.read("thelists.dat")),
              std::tuple(0440u, "new\r\nmore\r\n"));
    // A file made afresh gets what any new file gets: 0666 less the umask.
    const mode_t mask = ::umask(027);
    WriteLinesAtomic(dir.file("fresh.dat"), {"x"});
    EXPECT_EQ(::umask(mask), 027u);  // and the program's own umask is left as it was
    ASSERT_EQ(::stat(dir.file("fresh.dat").c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 07777, 0640u);
}

TEST(LineFile, RewriteFollowsALinkAndAppendEndsTheLastLine) {
    TempFolder dir;
    std::filesystem::create_directory(dir.file("shared"));
    dir.write("shared/thelists.dat", "old\r\n");
    std::filesystem::create_symlink(dir.file("shared/thelists.dat"), dir.file("thelists.dat"));
    WriteLinesAtomic(dir.file("thelists.dat"), {"new"});
    EXPECT_EQ(std::tuple(std::filesystem::is_symlink(dir.file("thelists.dat")),
                         dir.read("shared/thelists.dat")),
              std::tuple(true, "new\r\n"));
    // An append ends an unfinished last line first, and makes a file that is not there.
    dir.write("a.dat", "one\r\ntwo");
    AppendLinesAtomic(dir.file("a.dat"), {"three"});
    EXPECT_EQ(dir.read("a.dat"), "one\r\ntwo\r\nthree\r\n");
    AppendLinesAtomic(dir.file("new.dat"), {"x"});
    EXPECT_EQ(dir.read("new.dat"), "x\r\n");
}

// Two installations save the one shared list file at the same moment, over and over, while a
// third reads it: every read finds one of the two saves whole, never a mixture or a cut.
TEST(LineFile, TwoWritersAtOnceNeverTearTheFile) {
    TempFolder dir;
    const std::string path = dir.file("thelists.dat");
    std::vector<std::string> linesA, linesB;
    for (int i = 0; i < 3000; ++i) {
        linesA.push_back("alpha word " + std::to_string(i));
        if (i < 2000) linesB.push_back("beta definition " + std::to_string(i));
    }
    const std::string a = JoinLines(linesA);
    const std::string b = JoinLines(linesB);
    WriteBytesAtomic(path, a);
    constexpr int kSaves = 150;
    pid_t writers[2];
    for (int w = 0; w < 2; ++w) {
        writers[w] = ::fork();
        ASSERT_GE(writers[w], 0);
        if (writers[w] == 0) {
            // A save that fails is counted, and the writer goes on saving.
            int failed = 0;
            for (int i = 0; i < kSaves; ++i) {
                try {
                    WriteLinesAtomic(path, w ? linesB : linesA);
                } catch (const FileError&) {
                    ++failed;
                }
            }
            ::_exit(std::min(failed, 100));
        }
    }
    // Read until both writers have ended (a writer reaped is marked 0).
    int reads = 0, torn = 0, status[2] = {0, 0};
    while (writers[0] || writers[1]) {
        const std::string seen = ReadBytes(path);
        ++reads;
        if (seen != a && seen != b) ++torn;
        for (int w = 0; w < 2; ++w)
            if (writers[w] && ::waitpid(writers[w], &status[w], WNOHANG) == writers[w])
                writers[w] = 0;
    }
    EXPECT_EQ(torn, 0) << "of " << reads << " reads";
    for (int w = 0; w < 2; ++w) {
        EXPECT_TRUE(WIFEXITED(status[w])) << "writer " << w;
        EXPECT_EQ(WEXITSTATUS(status[w]), 0) << "failed saves of writer " << w;
    }
    EXPECT_EQ(FilesIn(dir), std::vector<std::string>{"thelists.dat"});
}

// A save killed half-way leaves its hidden temporary. A save removes those over an hour old and
// leaves younger ones (another installation's save may be under way) and any other file.
TEST(LineFile, SaveClearsOnlyStaleTemporariesOfItsOwnFile) {
    TempFolder dir;
    const auto now = std::filesystem::file_time_type::clock::now();
    const std::pair<const char*, int> left[] = {
        {".thelists.dat.abc123", 61}, {".thelists.dat.young1", 59}, {".thelists.dat.abc12", 61},
        {".folders.dat.abcdef", 61},  {"thelists.dat.abcdef", 61}};
    for (const auto& [name, minutes] : left) {
        dir.write(name, "x");
        std::filesystem::last_write_time(dir.file(name), now - std::chrono::minutes(minutes));
    }
    WriteLinesAtomic(dir.file("thelists.dat"), {"x"});
    EXPECT_EQ(FilesIn(dir), (std::vector<std::string>{".folders.dat.abcdef", ".thelists.dat.abc12",
                                                      ".thelists.dat.young1", "thelists.dat",
                                                      "thelists.dat.abcdef"}));
}
