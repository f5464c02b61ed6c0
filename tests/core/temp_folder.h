// A fresh folder per test, removed afterwards, with helpers to write and read raw bytes.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "core/line_file.h"

namespace wm::test {

class TempFolder {
public:
    TempFolder() {
        std::random_device rd;
        path_ = std::filesystem::temp_directory_path() /
                ("wm-test-" + std::to_string(rd()) + std::to_string(rd()));
        std::filesystem::create_directories(path_);
    }
    ~TempFolder() {
        std::error_code ec;
        std::filesystem::remove_all(path_, ec);
    }
    std::string path() const { return path_.string(); }
    std::string file(const std::string& name) const { return (path_ / name).string(); }

    void write(const std::string& name, const std::string& bytes) const {
        std::ofstream(file(name), std::ios::binary) << bytes;
    }
    void writeLines(const std::string& name, const std::vector<std::string>& lines) const {
        std::string bytes;
        for (const auto& l : lines) bytes += l + "\r\n";
        write(name, bytes);
    }
    std::string read(const std::string& name) const {
        std::ifstream in(file(name), std::ios::binary);
        std::ostringstream s;
        s << in.rdbuf();
        return s.str();
    }
    bool exists(const std::string& name) const { return std::filesystem::exists(path_ / name); }

private:
    std::filesystem::path path_;
};

// The path and the message of the FileError that `call` throws, or "" and "no error".
template <class Call>
std::pair<std::string, std::string> FileFailure(Call&& call) {
    try {
        call();
    } catch (const wm::FileError& e) {
        return {e.path(), e.what()};
    }
    return {"", "no error"};
}

}  // namespace wm::test
