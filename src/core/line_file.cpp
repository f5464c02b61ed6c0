#include "core/line_file.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace wm {

FileError::FileError(std::string path, const std::string& what)
    : std::runtime_error(what), path_(std::move(path)) {}

bool FileExists(const std::string& path) {
    std::error_code ec;
    return fs::is_regular_file(path, ec);
}

bool DirExists(const std::string& path) {
    std::error_code ec;
    return fs::is_directory(path, ec);
}

std::string JoinPath(const std::string& folder, const std::string& name) {
    if (folder.empty()) return name;
    if (folder.back() == '/') return folder + name;
    return folder + "/" + name;
}

std::string FileNameOf(const std::string& path) {
    auto pos = path.find_last_of('/');
    return pos == std::string::npos ? path : path.substr(pos + 1);
}

std::string FolderOf(const std::string& path) {
    auto pos = path.find_last_of('/');
    return pos == std::string::npos ? std::string(".") : path.substr(0, pos == 0 ? 1 : pos);
}

std::string ReadBytes(const std::string& path) {
    std::FILE* f = std::fopen(path.c_str(), "rb");
    if (!f || DirExists(path)) {
        if (f) std::fclose(f);
        throw FileError(path, "The file " + path + " cannot be opened.");
    }
    std::string bytes;
    std::error_code ec;
    auto size = fs::file_size(path, ec);
    if (!ec) bytes.reserve(static_cast<std::size_t>(size));
    char chunk[65536];
    std::size_t n;
    while ((n = std::fread(chunk, 1, sizeof chunk, f)) > 0) bytes.append(chunk, n);
    bool failed = std::ferror(f) != 0;
    std::fclose(f);
    if (failed) throw FileError(path, "The file " + path + " cannot be read.");
    return bytes;
}

std::vector<std::string> ReadLines(const std::string& path) {
    std::string bytes = ReadBytes(path);
    std::vector<std::string> lines;
    lines.reserve(static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n') +
                                           std::count(bytes.begin(), bytes.end(), '\r') + 1));
    LineReader in(std::move(bytes));
    while (!in.atEnd()) lines.emplace_back(in.next());
    return lines;
}

std::string JoinLines(const std::vector<std::string>& lines) {
    std::string out;
    for (const auto& l : lines) {
        out += l;
        out += "\r\n";
    }
    return out;
}

namespace {

[[noreturn]] void WriteFailed(const std::string& path, const char* how, int err) {
    throw FileError(path, "The file " + path + " cannot be " + how + ": " + std::strerror(err));
}

// A save killed half-way leaves its temporary file. One that has not been touched for an hour
// is no save in progress, from here or from another installation sharing the folder.
void RemoveStaleTemporaries(const std::string& folder, const std::string& name) {
    const std::string prefix = "." + name + ".";
    const auto stale = fs::file_time_type::clock::now() - std::chrono::hours(1);
    std::error_code ec;
    for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        const std::string entry = it->path().filename().string();
        if (entry.size() != prefix.size() + 6 || entry.compare(0, prefix.size(), prefix) != 0)
            continue;
        std::error_code timeEc;
        const auto written = fs::last_write_time(it->path(), timeEc);
        if (!timeEc && written < stale && it->is_regular_file(timeEc))
            fs::remove(it->path(), timeEc);
    }
}

// The mode a file made afresh gets from open(): 0666 less the umask.
mode_t FreshFileMode() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

}  // namespace

void WriteBytesAtomic(const std::string& path, const std::string& bytes) {
    // A linked name stays a link: the file it points at is the one replaced.
    std::string target = path;
    std::error_code ec;
    if (fs::is_symlink(path, ec)) {
        const fs::path real = fs::canonical(path, ec);
        if (!ec) target = real.string();
    }
    // A name of its own for every save: two installations saving the shared list file at the
    // same moment each write their own temporary file, and the last rename wins whole.
    std::string temp = JoinPath(FolderOf(target), "." + FileNameOf(target) + ".XXXXXX");
    int fd = ::mkostemp(temp.data(), O_CLOEXEC);
    if (fd < 0) WriteFailed(path, "written", errno);
    auto fail = [&](const char* how, int err) {
        if (fd >= 0) ::close(fd);
        ::unlink(temp.c_str());
        WriteFailed(path, how, err);
    };
    // The new file keeps the old one's permissions and group, so a list file shared with a
    // group stays writable for the group.
    struct stat old {};
    if (::stat(target.c_str(), &old) == 0) {
        if (::fchmod(fd, old.st_mode & 07777) != 0) fail("written", errno);
        // A teacher outside that group cannot hand the file to it; it then stays in theirs.
        [[maybe_unused]] const int grouped = ::fchown(fd, static_cast<uid_t>(-1), old.st_gid);
    } else if (::fchmod(fd, FreshFileMode()) != 0) {
        fail("written", errno);
    }
    std::size_t done = 0;
    while (done < bytes.size()) {
        ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
        if (n < 0) {
            if (errno == EINTR) continue;
            fail("written", errno);
        }
        done += static_cast<std::size_t>(n);
    }
    if (::fsync(fd) != 0) fail("written", errno);
    const int closed = ::close(fd);
    fd = -1;
    if (closed != 0) fail("written", errno);
    if (::rename(temp.c_str(), target.c_str()) != 0) fail("replaced", errno);
    // The rename itself reaches the disk with the folder.
    int dir = ::open(FolderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir >= 0) {
        ::fsync(dir);
        ::close(dir);
    }
    RemoveStaleTemporaries(FolderOf(target), FileNameOf(target));
}

void WriteLinesAtomic(const std::string& path, const std::vector<std::string>& lines) {
    WriteBytesAtomic(path, JoinLines(lines));
}

void AppendLinesAtomic(const std::string& path, const std::vector<std::string>& lines) {
    std::string bytes = FileExists(path) ? ReadBytes(path) : std::string();
    // A last line without its end gets one, so the new lines do not run into it.
    if (!bytes.empty() && bytes.back() != '\n' && bytes.back() != '\r') bytes += "\r\n";
    bytes += JoinLines(lines);
    WriteBytesAtomic(path, bytes);
}

void RenameFile(const std::string& from, const std::string& to) {
    if (::rename(from.c_str(), to.c_str()) != 0) {
        throw FileError(
            from, "The file " + from + " cannot be renamed to " + to + ": " + std::strerror(errno));
    }
}

void RemoveFile(const std::string& path) {
    std::error_code ec;
    fs::remove(path, ec);
}

}  // namespace wm

namespace wm {

LineReader::LineReader(std::string bytes) : bytes_(std::move(bytes)) {
    cr_ = find('\r', 0);
    lf_ = find('\n', 0);
}

std::size_t LineReader::find(char c, std::size_t from) const {
    if (from >= bytes_.size()) return std::string::npos;
    const void* hit = std::memchr(bytes_.data() + from, c, bytes_.size() - from);
    return hit ? static_cast<std::size_t>(static_cast<const char*>(hit) - bytes_.data())
               : std::string::npos;
}

std::string_view LineReader::next() {
    if (pos_ >= bytes_.size()) return {};
    const std::size_t start = pos_;
    if (cr_ < start) cr_ = find('\r', start);
    if (lf_ < start) lf_ = find('\n', start);
    const std::size_t end = std::min(cr_, lf_);
    if (end == std::string::npos) {
        pos_ = bytes_.size();
        return std::string_view(bytes_).substr(start);
    }
    pos_ = end + 1;
    if (bytes_[end] == '\r' && pos_ < bytes_.size() && bytes_[pos_] == '\n') ++pos_;
    return std::string_view(bytes_).substr(start, end - start);
}

}  // namespace wm
