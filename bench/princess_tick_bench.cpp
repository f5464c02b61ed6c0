// One frame of Princess on a 1920x1080 screen at its busiest: a moat of twenty-four stones and
// a full row of planks while the dragon rears up and breathes fire over the whole scene.
#include "screen_bench.h"

#include "core/rng.h"
#include "games/guess/princess/princess_screen.h"

using namespace wm;

namespace {

void BM_PrincessFrame(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.Words = {"", "abcdefghijklmnopqrstuvwx"};
    s.Meanings = {"", "the alphabet nearly to its end"};
    s.WordCount = 1;
    s.Difficulty = 15;
    s.GameOptionOn = kTrue;
    s.SoundOn = kTrue;
    s.AppPath = WM_BENCH_APP_DIR;  // the art, as the program finds it
    frmPrincess game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    int n = 0;
    for (auto _ : state) {
        if (n++ % 150 ==
            0) {  // a fresh game, woken by eight splashes, every two and a half seconds
            state.PauseTiming();
            game.frame().newGame();
            Ticker::get().advance(1700);
            const auto& g = game.game();
            for (int k = 0; k < 8; ++k)
                for (int i = 0; i < g.stones(); ++i)
                    if (g.stoneLetter(i) != g.word()[g.nextPosition()]) {
                        game.pickStone(i);
                        break;
                    }
            state.ResumeTiming();
        }
        Ticker::get().advance(16);  // Timer1: one frame
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_PrincessFrame);

}  // namespace

WM_SCREEN_BENCH_MAIN()
