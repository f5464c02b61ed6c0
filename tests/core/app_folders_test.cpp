// The choice between a build's folder and an installed layout, and the first start's seeding.
// tests/package starts the real package for the rest (the folder it cannot make, seeded bytes).
#include <gtest/gtest.h>

#include <filesystem>

#include "core/app_folders.h"
#include "core/line_file.h"
#include "temp_folder.h"

using namespace wm;
namespace fs = std::filesystem;

TEST(AppFolders, BesideTheProgramUnlessInstalledAndSeedingFillsTheGaps) {
    // A file in usr/bin (or ""), whether usr/share/wordmere/wmdata.new is there, the variable,
    // and the data folder ("": the program's).
    const std::tuple<std::string, bool, const char*, std::string> cases[] = {
        {"wmdata.new", true, "", ""},
        {"wmdata.dat", true, "/srv/x", ""},
        {"", false, "/srv/x", ""},
        {"", true, "", "/var/lib/wordmere"},
        {"", true, "/srv/class 2", "/srv/class 2"},
    };
    for (const auto& [besideProgram, packaged, variable, data] : cases) {
        test::TempFolder root;
        fs::create_directories(root.file("usr/bin"));
        fs::create_directories(root.file("usr/share/wordmere"));
        if (!besideProgram.empty()) root.write("usr/bin/" + besideProgram, "x");
        if (packaged) root.write("usr/share/wordmere/wmdata.new", "x");
        const AppFolders got = ChooseAppFolders(root.file("usr/bin"), variable);
        const bool installed = !data.empty();
        EXPECT_EQ(std::tuple(got.installed, got.assets, got.data),
                  std::tuple(installed, root.file(installed ? "usr/share/wordmere" : "usr/bin"),
                             installed ? data : root.file("usr/bin")));
    }
    // Seeding fills only what is missing.
    test::TempFolder assets, data;
    for (const char* f : {"wmdata.new", "thelists.new", "wmgdisplay.dat", "flcodelist.dat"})
        assets.write(f, std::string("factory ") + f);
    data.write("thelists.dat", "the teacher's");
    data.write("wmdata.new", "a waiting factory file");  // the title's first-run rename takes it
    SeedDataFolder({assets.path(), data.path(), true});
    EXPECT_EQ(std::tuple(data.read("thelists.dat"), data.exists("wmdata.dat"),
                         data.read("flcodelist.dat"), DirExists(data.file("scores"))),
              std::tuple("the teacher's", false, "factory flcodelist.dat", true));
    fs::remove(data.file("wmdata.new"));
    SeedDataFolder({assets.path(), data.path(), true});
    EXPECT_EQ(data.read("wmdata.dat"), "factory wmdata.new");

    // A data folder that cannot be made is named, with what to do.
    data.write("blocker", "a file, not a folder");
    const std::string blocked = data.file("blocker") + "/wordmere";
    const std::string refusal = test::FileFailure([&] {
                                    SeedDataFolder({assets.path(), blocked, true});
                                }).second;
    EXPECT_EQ(refusal.rfind("The data folder " + blocked + " cannot be made (", 0), 0u) << refusal;
    EXPECT_NE(refusal.find("). Ask the person who looks after this computer to make it, writable "
                           "for you."),
              std::string::npos);

    // A build's folder is the program's own: nothing to seed.
    SeedDataFolder({assets.path(), data.file("build"), false});
    EXPECT_FALSE(data.exists("build"));
}
