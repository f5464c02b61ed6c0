// Text files of CR LF lines in Windows-1252, read line by line and rewritten whole and atomically.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace wm {

// A file could not be read or written. `path` names the file so the user can be told.
class FileError : public std::runtime_error {
public:
    FileError(std::string path, const std::string& what);
    const std::string& path() const { return path_; }

private:
    std::string path_;
};

bool FileExists(const std::string& path);
bool DirExists(const std::string& path);
// Joins a folder and a file name with one "/".
std::string JoinPath(const std::string& folder, const std::string& name);
std::string FileNameOf(const std::string& path);
std::string FolderOf(const std::string& path);

// Every line of a text file. Lines end in CR LF (a lone CR or LF is taken as an end too);
// a last line without an end still counts. Throws FileError when the file cannot be opened.
std::vector<std::string> ReadLines(const std::string& path);
// The raw bytes of a file; throws FileError.
std::string ReadBytes(const std::string& path);

// Replaces the file by the given bytes: a temporary file in the same folder, flushed to disk,
// then renamed over the old one, so a failure never leaves half a file. Throws FileError.
void WriteBytesAtomic(const std::string& path, const std::string& bytes);
// Each line followed by CR LF.
void WriteLinesAtomic(const std::string& path, const std::vector<std::string>& lines);
std::string JoinLines(const std::vector<std::string>& lines);
// Adds lines at the end, by the same atomic rewrite, so an append never tears the file.
void AppendLinesAtomic(const std::string& path, const std::vector<std::string>& lines);

void RenameFile(const std::string& from, const std::string& to);  // throws FileError
void RemoveFile(const std::string& path);                         // missing is fine

}  // namespace wm

namespace wm {

// Walks the lines of a file's bytes without copying them, with the same line ends as ReadLines.
class LineReader {
public:
    explicit LineReader(std::string bytes);
    static LineReader open(const std::string& path) { return LineReader(ReadBytes(path)); }
    bool atEnd() const { return pos_ >= bytes_.size(); }
    // The next line; an empty view at the end.
    std::string_view next();

private:
    std::size_t find(char c, std::size_t from) const;

    std::string bytes_;
    std::size_t pos_ = 0;
    // The next CR and LF at or after pos_ (npos: none left). Each is searched for again only
    // once passed, so every byte is looked at a bounded number of times over the whole file.
    std::size_t cr_ = 0;
    std::size_t lf_ = 0;
};

}  // namespace wm
