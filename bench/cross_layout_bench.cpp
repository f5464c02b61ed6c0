// The crossword family's layout on the program's own generator: a crossword from a big list, and
// blind tiles on lists made so that the attempts run out.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "core/rng.h"
#include "games/common/cross_layout.h"

namespace {

// 1000 made-up words of 4 to 11 letters over the whole alphabet, 1-based.
std::vector<std::string> BigList() {
    std::vector<std::string> words{""};
    wm::SystemRng rng;
    rng.seed(12345);
    for (int i = 0; i < 1000; ++i) {
        const int length = 4 + static_cast<int>(rng.Rnd() * 8);
        std::string w;
        for (int k = 0; k < length; ++k)
            w += static_cast<char>('a' + static_cast<int>(rng.Rnd() * 26));
        words.push_back(w);
    }
    return words;
}

void BM_Crossword20Of1000(benchmark::State& st) {
    const auto words = BigList();
    wm::SystemRng rng;
    for (auto _ : st) {
        auto r = wm::cross::layOut(words, 1000, 20, wm::cross::kCrosswordParams, rng);
        benchmark::DoNotOptimize(r);
    }
}

// Seven words that share no letter: every attempt spends its 1000 tries on the second word,
// and all 105 attempts run before the layout gives up.
void BM_BlindTilesNoSharedLetters(benchmark::State& st) {
    const std::vector<std::string> words{"", "abc", "def", "ghi", "jkl", "mno", "pqr", "stu"};
    wm::SystemRng rng;
    for (auto _ : st) {
        auto r = wm::cross::layOut(words, 7, 7, wm::cross::kBlindTilesParams, rng);
        if (r.ok) st.SkipWithError("laid out");
        benchmark::DoNotOptimize(r);
    }
}

// Seven 14-letter words of one letter: every letter crosses, but a word that long never fits
// across or down, so each try runs every fit test on every letter of the board.
void BM_BlindTilesTooLongToCross(benchmark::State& st) {
    std::vector<std::string> words{""};
    for (int i = 0; i < 7; ++i) words.push_back(std::string(14, 'e'));
    wm::SystemRng rng;
    for (auto _ : st) {
        auto r = wm::cross::layOut(words, 7, 7, wm::cross::kBlindTilesParams, rng);
        if (r.ok) st.SkipWithError("laid out");
        benchmark::DoNotOptimize(r);
    }
}

}  // namespace

BENCHMARK(BM_Crossword20Of1000)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly();
BENCHMARK(BM_BlindTilesNoSharedLetters)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly();
BENCHMARK(BM_BlindTilesTooLongToCross)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly();
