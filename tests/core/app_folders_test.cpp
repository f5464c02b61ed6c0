// The choice between a build's folder and an installed layout, and the first start's seeding.
// tests/package starts the real package for the rest (the folder it cannot make, seeded bytes).
#include <gtest/gtest.h>

#include <filesystem>

#include "core/app_folders.h"
#include "core/line_file.h"
#include "temp_folder.h"

using namespace wm;
namespace fs = std::filesystem;

TEST(AppFolders, BesideTheProgramUnlessInstalled) {
    struct Case {
        const char* besideProgram;  // a file in usr/bin, or ""
        bool packaged;              // usr/share/wordmere/wmdata.new is there
        const char* variable;
        const char* data;  // "" = the program's folder
    };
    const Case cases[] = {
        {"wmdata.new", true, "", ""},
        {"wmdata.dat", true, "/srv/x", ""},
        {"", false, "/srv/x", ""},
        {"", true, "", "/var/lib/wordmere"},
        {"", true, "/srv/class 2", "/srv/class 2"},
    };
    for (const Case& c : cases) {
        test::TempFolder root;
        fs::create_directories(root.file("usr/bin"));
        fs::create_directories(root.file("usr/share/wordmere"));
        if (*c.besideProgram) root.write(std::string("usr/bin/") + c.besideProgram, "x");
        if (c.packaged) root.write("usr/share/wordmere/wmdata.new", "x");
        const AppFolders got = ChooseAppFolders(root.file("usr/bin"), c.variable);
        const bool installed = *c.data != 0;
        EXPECT_EQ(got.installed, installed);
        EXPECT_EQ(got.assets, root.file(installed ? "usr/share/wordmere" : "usr/bin"));
        EXPECT_EQ(got.data, installed ? c.data : root.file("usr/bin"));
    }
}

TEST(AppFolders, SeedingFillsOnlyWhatIsMissing) {
    test::TempFolder assets, data;
    for (const char* f : {"wmdata.new", "thelists.new", "wmgdisplay.dat", "flcodelist.dat"})
        assets.write(f, std::string("factory ") + f);
    data.write("thelists.dat", "the teacher's");
    data.write("wmdata.new", "a waiting factory file");  // the title's first-run rename takes it
    SeedDataFolder({assets.path(), data.path(), true});
    EXPECT_EQ(data.read("thelists.dat"), "the teacher's");
    EXPECT_FALSE(data.exists("wmdata.dat"));
    EXPECT_EQ(data.read("flcodelist.dat"), "factory flcodelist.dat");
    EXPECT_TRUE(DirExists(data.file("scores")));
    fs::remove(data.file("wmdata.new"));
    SeedDataFolder({assets.path(), data.path(), true});
    EXPECT_EQ(data.read("wmdata.dat"), "factory wmdata.new");

    // A data folder that cannot be made is named, with what to do.
    data.write("blocker", "a file, not a folder");
    const std::string blocked = data.file("blocker") + "/wordmere";
    try {
        SeedDataFolder({assets.path(), blocked, true});
        ADD_FAILURE() << "no refusal";
    } catch (const FileError& e) {
        const std::string start = "The data folder " + blocked + " cannot be made (";
        EXPECT_EQ(std::string(e.what()).substr(0, start.size()), start);
        EXPECT_NE(std::string(e.what()).find("). Ask the person who looks after this computer to "
                                             "make it, writable for you."),
                  std::string::npos);
    }

    // A build's folder is the program's own: nothing to seed.
    SeedDataFolder({assets.path(), data.file("build"), false});
    EXPECT_FALSE(data.exists("build"));
}
