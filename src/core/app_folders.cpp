#include "core/app_folders.h"

#include <filesystem>

#include "core/display_file.h"
#include "core/language_codes.h"
#include "core/line_file.h"
#include "core/settings_file.h"

namespace fs = std::filesystem;

namespace wm {

AppFolders ChooseAppFolders(const std::string& programFolder, const std::string& dataVariable) {
    const AppFolders beside{programFolder, programFolder, false};
    if (FileExists(JoinPath(programFolder, kSettingsName)) ||
        FileExists(JoinPath(programFolder, kSettingsFactoryName)))
        return beside;
    const std::string shared = JoinPath(FolderOf(programFolder), "share/wordmere");
    if (!FileExists(JoinPath(shared, kSettingsFactoryName))) return beside;
    return {shared, dataVariable.empty() ? kSharedDataFolder : dataVariable, true};
}

namespace {

void CopyIfMissing(const std::string& from, const std::string& to) {
    std::error_code ec;
    if (fs::exists(to, ec) || ec) return;
    WriteBytesAtomic(to, ReadBytes(from));
}

}  // namespace

void SeedDataFolder(const AppFolders& folders) {
    if (!folders.installed) return;
    for (const std::string& folder : {folders.data, JoinPath(folders.data, "scores")}) {
        std::error_code ec;
        fs::create_directories(folder, ec);
        if (!DirExists(folder)) {
            throw FileError(folder, "The data folder " + folder + " cannot be made (" +
                                        ec.message() +
                                        "). Ask the person who looks after this computer to "
                                        "make it, writable for you.");
        }
    }
    auto factory = [&](const char* name) { return JoinPath(folders.assets, name); };
    auto data = [&](const char* name) { return JoinPath(folders.data, name); };
    // A .new file in the data folder is somebody's own factory file: the title renames it.
    if (!FileExists(data(kSettingsFactoryName)))
        CopyIfMissing(factory(kSettingsFactoryName), data(kSettingsName));
    if (!FileExists(data(kListFactoryName)))
        CopyIfMissing(factory(kListFactoryName), data(kListFileName));
    CopyIfMissing(factory(kDisplayFileName), data(kDisplayFileName));
    CopyIfMissing(factory(kLanguageFileName), data(kLanguageFileName));
}

}  // namespace wm
