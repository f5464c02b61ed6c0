// A save killed at any moment leaves the list file whole: the old file or the new one, byte for
// byte, never a mixture or a stump.
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <random>
#include <thread>

#include "core/line_file.h"
#include "core/list_file.h"
#include "teacher/list_rules.h"

using namespace wm;

namespace {

std::vector<std::string> ThousandWords(const std::string& tag) {
    std::vector<std::string> lines = {"Old list", "a", "b", "<New List>", "Big " + tag};
    for (int i = 1; i <= 1000; ++i) {
        lines.push_back(tag + " word " + std::to_string(i));
        lines.push_back("the definition of " + tag + " word " + std::to_string(i) +
                        ", long enough to make the file a few tens of kilobytes");
    }
    return lines;
}

}  // namespace

TEST(KilledSave, FileIsAlwaysTheOldOrTheNew) {
    const auto folder =
        std::filesystem::temp_directory_path() / ("wm-kill-" + std::to_string(getpid()));
    std::filesystem::create_directories(folder);
    const std::string path = (folder / "thelists.dat").string();
    const auto oldLines = ThousandWords("old");
    const auto newLines = ThousandWords("new");
    const std::string oldBytes = JoinLines(oldLines);
    const std::string newBytes = JoinLines(newLines);
    WriteAllLines(path, oldLines);

    std::mt19937 rng(20261123);
    int sawOld = 0, sawNew = 0;
    for (int round = 0; round < 200; ++round) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            // The editor's save, over and over, between the two versions of the list.
            for (;;) {
                WriteAllLines(
                    path, SaveEditedList(ReadAllLines(path), "Big old", "Big new", {{"x", "y"}}));
                WriteAllLines(path, newLines);
                WriteAllLines(path, oldLines);
            }
        }
        std::this_thread::sleep_for(std::chrono::microseconds(rng() % 4000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const std::string now = ReadBytes(path);
        const std::string edited =
            JoinLines(SaveEditedList(oldLines, "Big old", "Big new", {{"x", "y"}}));
        const std::string editedNew =
            JoinLines(SaveEditedList(newLines, "Big old", "Big new", {{"x", "y"}}));
        ASSERT_TRUE(now == oldBytes || now == newBytes || now == edited || now == editedNew)
            << "round " << round << ": " << now.size() << " bytes";
        sawOld += now == oldBytes;
        sawNew += now == newBytes;
        // Start each round from the old file, whatever the child left.
        WriteAllLines(path, oldLines);
    }
    EXPECT_GT(sawOld + sawNew, 0);
    // A killed save leaves its hidden temporary file behind. A save removes those an hour old,
    // and leaves younger ones: they may be another installation's save under way.
    auto count = [&] {
        return std::distance(std::filesystem::directory_iterator(folder),
                             std::filesystem::directory_iterator());
    };
    const auto left = count();
    const auto old = std::filesystem::file_time_type::clock::now() - std::chrono::minutes(61);
    const auto young = std::filesystem::file_time_type::clock::now() - std::chrono::minutes(59);
    int n = 0;
    for (const auto& e : std::filesystem::directory_iterator(folder)) {
        if (e.path().filename() != "thelists.dat")
            std::filesystem::last_write_time(e.path(), n++ % 2 ? old : young);
    }
    // Another file of that shape but of another name stays too.
    std::ofstream(folder / ".folders.dat.abcdef") << "x";
    std::filesystem::last_write_time(folder / ".folders.dat.abcdef", old);
    WriteAllLines(path, oldLines);
    EXPECT_EQ(count(), left - n / 2 + 1) << n << " left by killed saves";
    EXPECT_TRUE(std::filesystem::exists(folder / ".folders.dat.abcdef"));
    std::filesystem::remove_all(folder);
}
