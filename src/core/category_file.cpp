#include "core/category_file.h"

#include "core/line_file.h"
#include "core/settings_file.h"
#include "core/strings.h"

namespace wm {

std::string LockName(const std::string& path) {
    if (path.size() < 3) return path + "lok";
    return path.substr(0, path.size() - 3) + "lok";
}

void EnsureCategoryFile(const std::string& appPath, const std::string& folderFilePath) {
    if (FileExists(folderFilePath) || FileExists(LockName(folderFilePath))) return;
    const std::string local = JoinPath(appPath, kFolderFileName);
    if (FileExists(local) || FileExists(LockName(local))) return;
    WriteBytesAtomic(local, std::string());
}

bool IsLocked(const std::string& folderFilePath) {
    return !(FileExists(folderFilePath) && FileNameOf(folderFilePath) == kFolderFileName);
}

std::vector<std::string> ReadCategoryLines(const std::string& folderFilePath) {
    // Readers are never blocked by the lock: they read the .lok name instead. The test is on
    // the name, so a path to a file not named exactly folders.dat always reads its .lok name,
    // present or not. Deliberately kept: the editor refuses such a file rather than save over it.
    std::string path = folderFilePath;
    if (IsLocked(folderFilePath)) path = LockName(folderFilePath);
    if (!FileExists(path)) return {};
    return ReadLines(path);
}

std::vector<std::string> CategoryNames(const std::vector<std::string>& lines) {
    std::vector<std::string> names;
    for (const auto& l : lines) {
        if (!l.empty() && l[0] == '^') names.push_back(l.substr(1));
    }
    return names;
}

std::vector<std::string> CollectLists(const std::vector<std::string>& lines,
                                      const std::string& category) {
    std::vector<std::string> kept;
    auto keep = [&](const std::string& b) {
        if (!Trim(b).empty()) kept.push_back(b);
    };
    std::size_t i = 0;
    const std::size_t n = lines.size();
    while (i < n) {
        const std::string& a = lines[i++];
        if (a.empty() || a[0] != '^' || a.substr(1) != category || i >= n) continue;
        std::string b = lines[i++];
        keep(b);
        // The end test comes before the keep: the first name is kept again (harmless), and
        // the file's last line is only kept when it is the category's only one. Kept so.
        while (i < n && (b.empty() || b[0] != '^')) {
            keep(b);
            b = lines[i++];
        }
    }
    return kept;
}

std::string CategoryEditRefusal(const std::string& folderFilePath) {
    if (!FileExists(folderFilePath) || FileNameOf(folderFilePath) == kFolderFileName) return {};
    return "The category file " + folderFilePath + " cannot be edited, because it is not named " +
           kFolderFileName +
           ": its categories cannot be read safely while it is locked. Rename it to " +
           kFolderFileName +
           " (and change its path in the settings file to match), then try again. The file has "
           "not been changed.";
}

void LockCategories(const std::string& folderFilePath) {
    const std::string refusal = CategoryEditRefusal(folderFilePath);
    if (!refusal.empty()) throw FileError(folderFilePath, refusal);
    if (FileExists(folderFilePath)) RenameFile(folderFilePath, LockName(folderFilePath));
}

void UnlockCategories(const std::string& folderFilePath) {
    const std::string lok = LockName(folderFilePath);
    if (FileExists(lok)) RenameFile(lok, folderFilePath);
}

void SaveAndUnlockCategories(const std::string& folderFilePath,
                             const std::vector<std::string>& lines) {
    const std::string refusal = CategoryEditRefusal(folderFilePath);
    if (!refusal.empty()) throw FileError(folderFilePath, refusal);
    const std::string lok = LockName(folderFilePath);
    WriteLinesAtomic(lok, lines);
    RenameFile(lok, folderFilePath);
}

void RemoveListFromCategories(const std::string& folderFilePath, const std::string& name) {
    if (IsLocked(folderFilePath)) return;
    std::vector<std::string> lines = ReadLines(folderFilePath);
    std::vector<std::string> kept;
    for (auto& l : lines) {
        if (l != name) kept.push_back(std::move(l));
    }
    if (kept.size() != lines.size()) WriteLinesAtomic(folderFilePath, kept);
}

}  // namespace wm
