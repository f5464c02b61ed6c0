// One frame of Toad Race at its busiest on a 1920x1080 screen: all four toads in the air at
// once, splash rings spreading, the winner's sparkles and a call popping in, the changed
// rectangles painted.
#include "screen_bench.h"

#include "games/action/toad_race/toad_race_screen.h"

using namespace wm;

namespace {

void BM_ToadRaceTick(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.AppPath = WM_BENCH_APP_DIR;  // the game's own drawings
    s.AppPath = WM_BENCH_APP_DIR;  // the game's own drawings
    s.Words = {"", "photosynthesis", "lily", "newt", "heron"};
    s.Meanings = {"", "how green plants make food from sunlight", "a flower", "a small animal",
                  "a tall bird"};
    s.WordCount = 4;
    s.Difficulty = 10;
    s.SoundOn = kTrue;
    ToadRace game;
    game.resize(1920, 1080);
    game.show();
    Ticker::get().advance(0);
    QApplication::processEvents();
    Ticker::get().advance(ToadRace::kReadyMs);  // "Go!"
    QApplication::processEvents();
    Pond* pond = game.pond();
    int pad = 0;
    for (auto _ : state) {
        if (!pond->inAir(0)) {
            pad = pad % 11 + 1;
            for (int t = 0; t < toad_race::kToads; ++t) pond->hop(t, pad);
            pond->cheer(pad % 4, "You win!");
        }
        Ticker::get().advance(Ticker::kFrameMs);  // Timer1: the race clock and the pond
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_ToadRaceTick);

}  // namespace

WM_SCREEN_BENCH_MAIN()
