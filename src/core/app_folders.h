// Where the program finds its files: all beside the program when it runs from its build folder,
// or split between read-only assets under /usr and one shared data folder once installed.
#pragma once

#include <string>

namespace wm {

// The variable that moves an installed program's data folder elsewhere (a test, a second
// classroom on one machine).
inline constexpr const char* kDataFolderVariable = "WORDMERE_DATA";
// The data folder every pupil of the machine shares; the package makes it group-writable.
inline constexpr const char* kSharedDataFolder = "/var/lib/wordmere";

struct AppFolders {
    // Pictures, sounds, movies, buttons, help and the factory files.
    std::string assets;
    // Settings, lists, categories, the display file and scores: what the program writes.
    std::string data;
    bool installed = false;
};

// Settings beside the program mean the program runs from its own folder, as it always has: both
// folders are that folder. Otherwise a program in <prefix>/bin with its factory settings in
// <prefix>/share/wordmere is installed: its data folder is `dataVariable` when that is set,
// else the shared one. With neither, everything stays beside the program, so the title names
// the missing settings file there.
AppFolders ChooseAppFolders(const std::string& programFolder, const std::string& dataVariable);

// An installed program's first start in a data folder: makes the folder and its scores/ and
// copies in the factory files it lacks. The settings and the lists take their live names
// straight away (unless a .new file waits there for the title's first-run rename). Nothing that
// is there is overwritten. Does nothing for a program run from its own folder. Throws FileError
// naming the folder or file that cannot be made.
void SeedDataFolder(const AppFolders& folders);

}  // namespace wm
