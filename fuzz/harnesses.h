// One entry per file reader, fed arbitrary bytes as the file's content. Each reads the file the
// way the program does, writes it back through the same writers, and aborts when a property
// that must hold breaks. Shared by the libFuzzer targets and by the regression test, which
// replays the inputs kept under fuzz/regressions and fuzz/corpus.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace wm::fuzz {

using Harness = void (*)(const std::uint8_t* data, std::size_t size);

void SettingsFile(const std::uint8_t* data, std::size_t size);
void ListFile(const std::uint8_t* data, std::size_t size);
void CategoryFile(const std::uint8_t* data, std::size_t size);
void ScoreTable(const std::uint8_t* data, std::size_t size);
void DisplayFile(const std::uint8_t* data, std::size_t size);
void LanguageCodes(const std::uint8_t* data, std::size_t size);

struct Target {
    const char* name;  // the folder name under fuzz/corpus and fuzz/regressions
    Harness run;
};
const std::vector<Target>& Targets();

}  // namespace wm::fuzz
