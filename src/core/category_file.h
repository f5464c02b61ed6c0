// The category file: "^Name" lines, each followed by the plain names of its lists.
// While a teacher edits it, it is renamed to the .lok name as a lock between users.
#pragma once

#include <string>
#include <vector>

namespace wm {

// The same path with its last three letters replaced by "lok".
std::string LockName(const std::string& path);
// Makes an empty folders.dat in the application folder when neither name exists.
void EnsureCategoryFile(const std::string& appPath, const std::string& folderFilePath);
// The lines of the category file, from the .lok name when the file is locked; a missing
// file reads as empty.
std::vector<std::string> ReadCategoryLines(const std::string& folderFilePath);
// Category names, without the "^", in file order.
std::vector<std::string> CategoryNames(const std::vector<std::string>& lines);
// The lists filed under `category`, read the way the chooser reads them: the first name comes
// twice and the file's very last line is only kept when it is the category's only line.
std::vector<std::string> CollectLists(const std::vector<std::string>& lines,
                                      const std::string& category);
bool IsLocked(const std::string& folderFilePath);  // not under its own name
// Why the category editor may not take this file, or "" when it may. The editor reads like
// every reader and then saves over the file at the path; a file not named folders.dat is read
// under its .lok name, so its own categories were never read and a save would wipe them.
std::string CategoryEditRefusal(const std::string& folderFilePath);
// Renames the file to its .lok name. Throws FileError, renaming nothing, when the editor may
// not take the file (see CategoryEditRefusal).
void LockCategories(const std::string& folderFilePath);
void UnlockCategories(const std::string& folderFilePath);
// Writes the lines to the .lok name and renames it back. Throws FileError, writing nothing,
// over a file the editor may not take.
void SaveAndUnlockCategories(const std::string& folderFilePath,
                             const std::vector<std::string>& lines);
// Removes every line equal to `name`, only when the file is present and not locked.
void RemoveListFromCategories(const std::string& folderFilePath, const std::string& name);

}  // namespace wm
