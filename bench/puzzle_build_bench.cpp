// Word search and word maze builders on the program's own generator.
#include <benchmark/benchmark.h>

#include <string>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/puzzles/word_maze/word_maze_rules.h"
#include "games/puzzles/word_search/word_search_rules.h"

namespace {

// 1000 made-up words of 4 to 11 letters.
wm::SharedState BigList(int difficulty) {
    wm::SharedState s;
    wm::SystemRng rng;
    rng.seed(12345);
    for (int i = 1; i <= 1000; ++i) {
        const int length = 4 + static_cast<int>(rng.Rnd() * 8);
        std::string w;
        for (int k = 0; k < length; ++k)
            w += static_cast<char>('a' + static_cast<int>(rng.Rnd() * 26));
        s.Words[i] = w;
        s.Meanings[i] = "meaning of " + w;
    }
    s.WordCount = 1000;
    s.Difficulty = difficulty;
    return s;
}

void BM_WordSearch20Of1000(benchmark::State& st) {
    wm::SharedState state = BigList(20);
    wm::SystemRng rng;
    for (auto _ : st) {
        wm::word_search::WordSearchState ws;
        auto r = wm::word_search::startRound(state, ws, rng);
        if (!r.ok) st.SkipWithError("no puzzle");
        benchmark::DoNotOptimize(ws);
    }
}

// The worst case: 19 words of 19 letters, each needing a whole line of the grid of 20, and one
// of 20 letters that never fits, so every attempt fails late and the build runs to its bound.
void BM_WordSearchWorstCase(benchmark::State& st) {
    wm::SharedState state;
    for (int i = 1; i <= 20; ++i) {
        std::string w;
        for (int k = 0; k < (i == 20 ? 20 : 19); ++k)
            w += static_cast<char>('a' + (i * 7 + k * 3) % 26);
        state.Words[i] = w;
    }
    state.WordCount = 20;
    state.Difficulty = 20;
    wm::SystemRng rng;
    for (auto _ : st) {
        wm::word_search::WordSearchState ws;
        auto r = wm::word_search::startRound(state, ws, rng);
        if (r.ok) st.SkipWithError("built");
        benchmark::DoNotOptimize(r);
    }
}

void BM_WordMazeHardest(benchmark::State& st) {
    wm::SharedState state = BigList(15);
    wm::SystemRng rng;
    for (auto _ : st) {
        wm::word_maze::WordMazeState m;
        auto r = wm::word_maze::startRound(state, m, rng);
        if (!r.ok) st.SkipWithError("no maze");
        benchmark::DoNotOptimize(m);
    }
}

// The worst case: 15 words of 25 letters would fill every cell of the board, so the walk runs
// into itself and all 1001 attempts fail.
void BM_WordMazeWorstCase(benchmark::State& st) {
    wm::SharedState state;
    for (int i = 1; i <= 15; ++i) state.Words[i] = std::string(25, static_cast<char>('a' + i));
    state.WordCount = 15;
    state.Difficulty = 15;
    wm::SystemRng rng;
    for (auto _ : st) {
        wm::word_maze::WordMazeState m;
        auto r = wm::word_maze::startRound(state, m, rng);
        if (r.ok) st.SkipWithError("built");
        benchmark::DoNotOptimize(m);
    }
}

}  // namespace

BENCHMARK(BM_WordMazeHardest)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly();
BENCHMARK(BM_WordMazeWorstCase)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly();
BENCHMARK(BM_WordSearch20Of1000)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly();
BENCHMARK(BM_WordSearchWorstCase)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly();
