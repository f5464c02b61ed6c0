#include <gtest/gtest.h>

#include "core/line_file.h"
#include "core/settings_file.h"
#include "core/shared_state.h"
#include "temp_folder.h"

using namespace wm;
using namespace wm::test;

const std::vector<std::string> kFactory = {"r0",       "r1",       "Sound On",
                                           "mapleton", "listpath", "folderpath"};

TEST(Settings, FirstRunRenamesOnlyWhenTheLiveFileIsMissing) {
    TempFolder dir;
    dir.writeLines("wmdata.new", kFactory);
    dir.writeLines("thelists.new", {"Animals", "cat", "a pet"});
    FirstRunRenames(dir.path());
    EXPECT_EQ(std::tuple(dir.exists("wmdata.dat"), dir.exists("wmdata.new"),
                         dir.exists("thelists.dat"), dir.exists("thelists.new")),
              std::tuple(true, false, true, false));

    // A reinstallation delivers new factory files; the teacher's data stays.
    dir.writeLines("wmdata.new", {"x"});
    dir.writeLines("thelists.new", {"Other"});
    FirstRunRenames(dir.path());
    EXPECT_EQ(std::tuple(dir.read("wmdata.new"), ReadLines(dir.file("thelists.dat")).at(0)),
              std::tuple("x\r\n", "Animals"));
}

TEST(Settings, MissingOrShortFileIsAClearErrorNamingIt) {
    TempFolder dir;
    const std::string live = dir.file("wmdata.dat");
    auto messageOf = [](auto&& call) { return FileFailure(call).second; };
    EXPECT_EQ(messageOf([&] { FirstRunRenames(dir.path()); }),
              "The settings file wmdata.dat (or its factory copy wmdata.new) cannot be found in "
              "the folder " + dir.path() + ".");
    dir.writeLines("wmdata.dat", {"r0", "r1", "Sound On", "pw", "listpath"});
    EXPECT_EQ(messageOf([&] { ReadSettings(dir.path()); }),
              "The settings file " + live +
                  " is too short: it needs six lines. Delete it to go back to the factory "
                  "settings.");
    dir.writeLines("wmdata.dat", kFactory);
    EXPECT_EQ(messageOf([&] { ReadSettings(dir.path()); }), "no error");
}

TEST(Settings, ReadsSoundPathsAndSpeechAndRewritesKeepLaterLines) {
    TempFolder dir;
    dir.writeLines("wmdata.dat", {"r0", "r1", "Sound On", "pw", "  LISTPATH ", "/net/f.dat"});
    SharedState s;
    ApplySettings(ReadSettings(dir.path()), dir.path(), s);
    EXPECT_EQ(std::tuple(s.SoundDefault, s.ListFilePath, s.FolderFilePath),
              std::tuple(kTrue, dir.file("thelists.dat"), "/net/f.dat"));

    // The sound line is compared exactly.
    dir.writeLines("wmdata.dat", {"r0", "r1", "sound on", "pw", "listpath", "folderpath"});
    ApplySettings(ReadSettings(dir.path()), dir.path(), s);
    EXPECT_EQ(std::tuple(s.SoundDefault, s.FolderFilePath),
              std::tuple(kFalse, dir.file("folders.dat")));
    // Settings held in memory with no sound line at all read as sound off, without reading
    // past their end.
    EXPECT_FALSE((Settings{{"r0", "r1"}}.soundOn()));
    EXPECT_TRUE((Settings{{"r0", "r1", "Sound On"}}.soundOn()));
    // A rewrite keeps lines past five.
    auto lines = kFactory;
    lines.push_back("seventh");
    dir.writeLines("wmdata.dat", lines);
    RewriteSettingsLine(dir.path(), kPasswordLine, "newpass");
    EXPECT_EQ(ReadLines(dir.file("wmdata.dat")),
              (std::vector<std::string>{"r0", "r1", "Sound On", "newpass", "listpath", "folderpath",
                                        "seventh"}));
    // A line past the end: the file grows with blank lines up to it.
    RewriteSettingsLine(dir.path(), 8, "ninth");
    const std::string grown = dir.read("wmdata.dat");
    EXPECT_EQ(grown,
              "r0\r\nr1\r\nSound On\r\nnewpass\r\nlistpath\r\nfolderpath\r\nseventh\r\n\r\n"
              "ninth\r\n");
    // No line before the first: the file is left as it is.
    RewriteSettingsLine(dir.path(), -1, "nothing");
    EXPECT_EQ(dir.read("wmdata.dat"), grown);
    // An old file of six lines comes after one that set speech off and slow.
    const std::tuple<std::vector<std::string>, int, int> cases[] = {
        {{"Speech Off", "-4"}, kFalse, -4},
        {{}, kTrue, 0},
        {{"speech off", "3x"}, kTrue, 0},
        {{"Speech On", "25"}, kTrue, 10},
        {{"", " -12 "}, kTrue, -10}};
    for (const auto& [extra, on, rate] : cases) {
        auto lines = kFactory;
        lines.insert(lines.end(), extra.begin(), extra.end());
        dir.writeLines("wmdata.dat", lines);
        ApplySettings(ReadSettings(dir.path()), dir.path(), s);
        EXPECT_EQ(std::tuple(s.SpeechOn, s.SpeechRate), std::tuple(on, rate));
    }
    // Both lines in one rewrite, the rate held to -10..10; a later line stays, through a
    // password change too.
    dir.writeLines("wmdata.dat", {"r0", "r1", "Sound On", "pw", "listpath", "folderpath",
                                  "Speech On", "0", "later"});
    WriteSpeechSettings(dir.path(), false, 99);
    RewriteSettingsLine(dir.path(), kPasswordLine, "secret");
    EXPECT_EQ(dir.read("wmdata.dat"),
              "r0\r\nr1\r\nSound On\r\nsecret\r\nlistpath\r\nfolderpath\r\nSpeech Off\r\n10\r\n"
              "later\r\n");
    WriteSpeechSettings(dir.path(), true, -99);
    EXPECT_EQ(dir.read("wmdata.dat"),
              "r0\r\nr1\r\nSound On\r\nsecret\r\nlistpath\r\nfolderpath\r\nSpeech On\r\n-10\r\n"
              "later\r\n");
}
