#include <gtest/gtest.h>

#include <filesystem>

#include "core/app_folders.h"
#include "core/line_file.h"
#include "core/settings_file.h"
#include "temp_folder.h"

using namespace wm;
using wm::test::TempFolder;

namespace {

// A program folder and, when `installed`, the factory files where the package puts them.
struct Layout {
    const char* name;
    std::vector<const char*> besideProgram;  // files in <root>/usr/bin
    bool shareHasFactory;
    const char* variable;
    bool installed;
    const char* data;  // "" = the program's folder; a relative name = under the working folder
};

}  // namespace

TEST(AppFolders, BesideTheProgramOrInstalled) {
    const Layout cases[] = {
        {"build folder, first start", {"wmdata.new"}, false, "", false, ""},
        {"build folder, later starts", {"wmdata.dat"}, false, "/tmp/x", false, ""},
        {"files beside the program win", {"wmdata.dat"}, true, "", false, ""},
        {"nothing anywhere: the title names the file", {}, false, "", false, ""},
        {"installed", {}, true, "", true, "/var/lib/wordmere"},
        {"installed, moved data", {}, true, "/srv/class 2", true, "/srv/class 2"},
        {"installed, relative data", {}, true, "class", true, "class"},
    };
    for (const Layout& c : cases) {
        SCOPED_TRACE(c.name);
        TempFolder root;
        std::filesystem::create_directories(root.file("usr/bin"));
        std::filesystem::create_directories(root.file("usr/share/wordmere"));
        for (const char* f : c.besideProgram) root.write(std::string("usr/bin/") + f, "x");
        if (c.shareHasFactory) root.write("usr/share/wordmere/wmdata.new", "x");

        const std::string program = root.file("usr/bin");
        const AppFolders got = ChooseAppFolders(program, c.variable);
        EXPECT_EQ(got.installed, c.installed);
        EXPECT_EQ(got.assets, c.installed ? root.file("usr/share/wordmere") : program);
        const std::string data = c.data;
        if (data.empty())
            EXPECT_EQ(got.data, program);
        else if (data.front() == '/')
            EXPECT_EQ(got.data, data);
        else
            EXPECT_EQ(got.data, (std::filesystem::current_path() / data).string());
    }
}

TEST(AppFolders, FirstStartSeedsTheDataFolderAndLaterStartsKeepIt) {
    TempFolder assets, root;
    assets.writeLines("wmdata.new", {"r0", "r1", "Sound On", "mapleton", "listpath", "folderpath"});
    assets.writeLines("thelists.new", {"Animals", "cat", "a pet"});
    assets.write("wmgdisplay.dat", "3\r\n");
    assets.write("flcodelist.dat", "S,Spanish\r\n");
    const AppFolders folders{assets.path(), root.file("var/lib/wordmere"), true};

    SeedDataFolder(folders);
    auto data = [&](const char* name) { return "var/lib/wordmere/" + std::string(name); };
    EXPECT_TRUE(DirExists(root.file(data("scores"))));
    EXPECT_EQ(root.read(data("wmdata.dat")), assets.read("wmdata.new"));
    EXPECT_EQ(root.read(data("thelists.dat")), assets.read("thelists.new"));
    EXPECT_EQ(root.read(data("wmgdisplay.dat")), "3\r\n");
    EXPECT_EQ(root.read(data("flcodelist.dat")), "S,Spanish\r\n");
    EXPECT_FALSE(root.exists(data("wmdata.new")));
    EXPECT_FALSE(root.exists(data("thelists.new")));

    // The teacher's data stays; only what has gone comes back from the factory.
    root.write(data("thelists.dat"), "Mine\r\n");
    std::filesystem::remove(root.file(data("flcodelist.dat")));
    SeedDataFolder(folders);
    EXPECT_EQ(root.read(data("thelists.dat")), "Mine\r\n");
    EXPECT_EQ(root.read(data("flcodelist.dat")), "S,Spanish\r\n");

    // A .new file waiting in the data folder is the title's to rename, as in a build folder.
    std::filesystem::remove(root.file(data("wmdata.dat")));
    root.writeLines(data("wmdata.new"), {"own", "r1", "Sound Off", "pw", "listpath", "folderpath"});
    SeedDataFolder(folders);
    EXPECT_FALSE(root.exists(data("wmdata.dat")));
    FirstRunRenames(root.file("var/lib/wordmere"));
    EXPECT_EQ(ReadSettings(root.file("var/lib/wordmere")).lines[0], "own");
}

TEST(AppFolders, SeedingLeavesABuildFolderAloneAndNamesAFolderItCannotMake) {
    TempFolder dir;
    SeedDataFolder({dir.path(), dir.file("data"), false});
    EXPECT_FALSE(dir.exists("data"));

    dir.write("data", "a file where the folder should be");
    try {
        SeedDataFolder({dir.path(), dir.file("data"), true});
        FAIL();
    } catch (const FileError& e) {
        EXPECT_EQ(e.path(), dir.file("data"));
        EXPECT_NE(std::string(e.what()).find("The data folder " + dir.file("data")),
                  std::string::npos);
    }
}
