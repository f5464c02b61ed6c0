// Reading a 4 MB list file with each kind of line end: the readers must stay linear in the
// file's size whatever the ends are (an LF-only file once took seconds).
#include <benchmark/benchmark.h>

#include <filesystem>
#include <map>

#include "core/line_file.h"
#include "core/list_file.h"
#include "core/shared_state.h"

namespace {

enum Ends { kCrLf, kLf, kCr, kMixed };

// 4 MB of lists of 400 words; the list loaded is the last one.
const std::string& FileWith(Ends ends) {
    static std::map<Ends, std::string> paths;
    auto found = paths.find(ends);
    if (found != paths.end()) return found->second;
    const char* const kinds[] = {"\r\n", "\n", "\r"};
    std::string bytes;
    bytes.reserve(4u << 20);
    std::size_t n = 0;
    auto line = [&](const std::string& text) {
        bytes += text;
        bytes += ends == kMixed ? kinds[n++ % 3] : kinds[ends];
    };
    int list = 0;
    while (bytes.size() < (4u << 20)) {
        if (list > 0) line(wm::kSeparator);
        line("Generated List " + std::to_string(++list));
        for (int w = 1; w <= 400; ++w) {
            line("word" + std::to_string(w));
            line("the meaning of word number " + std::to_string(w));
        }
    }
    auto path = (std::filesystem::temp_directory_path() /
                 ("wm-bench-ends-" + std::to_string(ends) + ".dat"))
                    .string();
    wm::WriteBytesAtomic(path, bytes);
    return paths[ends] = path;
}

void BM_LoadList(benchmark::State& st) {
    const Ends ends = static_cast<Ends>(st.range(0));
    const std::string& path = FileWith(ends);
    const auto names = wm::ListNames(path);
    wm::SharedState state;
    state.CurrentListName = names.back();
    for (auto _ : st) {
        wm::LoadList(path, state, {});
        if (state.WordCount != 400) st.SkipWithError("wrong count");
    }
}

void BM_ListNames(benchmark::State& st) {
    const std::string& path = FileWith(static_cast<Ends>(st.range(0)));
    for (auto _ : st) benchmark::DoNotOptimize(wm::ListNames(path));
}

void BM_ReadAllLines(benchmark::State& st) {
    const std::string& path = FileWith(static_cast<Ends>(st.range(0)));
    for (auto _ : st) benchmark::DoNotOptimize(wm::ReadAllLines(path));
}

// 0 CR LF, 1 LF, 2 CR, 3 mixed.
void Ends4(benchmark::internal::Benchmark* b) {
    b->DenseRange(kCrLf, kMixed)->ArgName("ends")->Unit(benchmark::kMillisecond);
}

}  // namespace

BENCHMARK(BM_LoadList)->Apply(Ends4);
BENCHMARK(BM_ListNames)->Apply(Ends4);
BENCHMARK(BM_ReadAllLines)->Apply(Ends4);
