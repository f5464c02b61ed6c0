#include <gtest/gtest.h>

#include "core/category_file.h"
#include "core/line_file.h"
#include "temp_folder.h"

using namespace wm;
using wm::test::TempFolder;
using Lines = std::vector<std::string>;

TEST(Categories, CollectAndReadersFollowTheLock) {
    Lines lines = {"^Science", "Weather", "Space", "", "^History", "Rome", "Egypt"};
    EXPECT_EQ(CollectLists(lines, "Science"), (Lines{"Weather", "Weather", "Space"}));
    // The very last line of the file is not kept: left as it is.
    EXPECT_EQ(CollectLists(lines, "History"), (Lines{"Rome", "Rome"}));
    // Unless it is the category's only line.
    EXPECT_EQ(CollectLists({"^Solo", "Only"}, "Solo"), (Lines{"Only"}));
    EXPECT_EQ(CollectLists(lines, "Nowhere").size() + CollectLists({"^Empty"}, "Empty").size(), 0u);
    EXPECT_EQ(CategoryNames(lines), (Lines{"Science", "History"}));
    // Readers follow the lock.
    TempFolder dir;
    const std::string path = dir.file("folders.dat");
    EnsureCategoryFile(dir.path(), path);
    EXPECT_EQ(dir.read("folders.dat"), "");
    WriteLinesAtomic(path, {"^A", "x", "y"});
    LockCategories(path);
    EXPECT_EQ(std::tuple(IsLocked(path), dir.exists("folders.lok"), ReadCategoryLines(path)),
              std::tuple(true, true, Lines{"^A", "x", "y"}));
    // Ensuring does not make a second file while the lock stands.
    EnsureCategoryFile(dir.path(), path);
    EXPECT_FALSE(dir.exists("folders.dat"));
    // A list deleted during a lock stays named in its category.
    RemoveListFromCategories(path, "x");
    EXPECT_EQ(ReadCategoryLines(path).size(), 3u);
    SaveAndUnlockCategories(path, {"^B", "z"});
    EXPECT_EQ(std::tuple(IsLocked(path), dir.read("folders.dat")),
              std::tuple(false, "^B\r\nz\r\n"));
    // Unlocked, a deleted list goes from every category that names it.
    WriteLinesAtomic(path, {"^A", "x", "y", "^B", "x"});
    RemoveListFromCategories(path, "x");
    EXPECT_EQ(ReadLines(path), (Lines{"^A", "y", "^B"}));
    EXPECT_TRUE(LockName("/a/b/folders.dat") == "/a/b/folders.lok" &&
                ReadCategoryLines(dir.file("missing.dat")).empty());
}

// A path to a file not named folders.dat: readers read its .lok name (kept so), so the editor
// would read nothing and save that over the real file. Locking and saving refuse, naming it.
TEST(Categories, AFileOfAnotherNameIsNeverWrittenOver) {
    TempFolder dir;
    const std::string path = dir.file("cats.dat");
    dir.writeLines("cats.dat", {"^Zoo", "Animals"});
    // Only a file named exactly folders.dat counts as unlocked: deletes leave this one alone.
    EXPECT_EQ(std::tuple(IsLocked(path), ReadCategoryLines(path).empty()), std::tuple(true, true));
    RemoveListFromCategories(path, "Animals");
    dir.writeLines("cats.lok", {"^Old"});
    EXPECT_EQ(ReadCategoryLines(path), (Lines{"^Old"}));
    const std::string refusal = CategoryEditRefusal(path);
    EXPECT_EQ(refusal,
              "The category file " + path +
                  " cannot be edited, because it is not named folders.dat: its categories cannot "
                  "be read safely while it is locked. Rename it to folders.dat (and change its "
                  "path in the settings file to match), then try again. The file has not been "
                  "changed.");
    for (auto write : {+[](const std::string& p) { LockCategories(p); },
                       +[](const std::string& p) { SaveAndUnlockCategories(p, {}); }}) {
        EXPECT_EQ(test::FileFailure([&] { write(path); }), std::pair(path, refusal));
        EXPECT_EQ(std::tuple(dir.read("cats.dat"), dir.read("cats.lok")),
                  std::tuple("^Zoo\r\nAnimals\r\n", "^Old\r\n"));
    }
    // With no file at the path there is nothing to wipe: the first save makes it.
    const std::string fresh = dir.file("groups.dat");
    EXPECT_EQ(CategoryEditRefusal(fresh), "");
    LockCategories(fresh);
    SaveAndUnlockCategories(fresh, {"^New"});
    EXPECT_EQ(dir.read("groups.dat"), "^New\r\n");
    dir.writeLines("folders.dat", {"^A"});
    EXPECT_EQ(CategoryEditRefusal(dir.file("folders.dat")), "");
    // Start-up makes the local folders.dat when neither name of the path is found.
    TempFolder app;
    EnsureCategoryFile(app.path(), dir.file("elsewhere.dat"));
    EXPECT_EQ(std::tuple(app.exists("folders.dat"), dir.exists("elsewhere.dat")),
              std::tuple(true, false));
    // A category file found at the path, unlocked: nothing is made beside the program.
    TempFolder app2;
    EnsureCategoryFile(app2.path(), dir.file("folders.dat"));
    EXPECT_FALSE(app2.exists("folders.dat"));
}
