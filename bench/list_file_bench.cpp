// The list file's heavy paths on a big shared file: 500 lists of 400 words.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "core/line_file.h"
#include "core/list_file.h"
#include "core/shared_state.h"

namespace {

const std::string& BigFile() {
    static const std::string path = [] {
        auto p = (std::filesystem::temp_directory_path() / "wm-bench-thelists.dat").string();
        std::vector<std::string> lines;
        lines.reserve(500 * 802);
        for (int l = 1; l <= 500; ++l) {
            if (l > 1) lines.push_back(wm::kSeparator);
            lines.push_back("Generated List " + std::to_string(l));
            for (int w = 1; w <= 400; ++w) {
                lines.push_back("word" + std::to_string(l) + "x" + std::to_string(w));
                lines.push_back("the meaning of word number " + std::to_string(w) +
                                " in the generated list " + std::to_string(l));
            }
        }
        wm::WriteLinesAtomic(p, lines);
        return p;
    }();
    return path;
}

void BM_ListNames(benchmark::State& st) {
    for (auto _ : st) benchmark::DoNotOptimize(wm::ListNames(BigFile()));
}

void BM_NameExists(benchmark::State& st) {
    for (auto _ : st) benchmark::DoNotOptimize(wm::NameExists(BigFile(), "not a list"));
}

void BM_LoadLastList(benchmark::State& st) {
    wm::SharedState state;
    state.CurrentListName = "Generated List 500";
    for (auto _ : st) {
        wm::LoadList(BigFile(), state, {});
        if (state.WordCount != 400) st.SkipWithError("wrong count");
    }
}

}  // namespace

BENCHMARK(BM_ListNames)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NameExists)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LoadLastList)->Unit(benchmark::kMillisecond);
