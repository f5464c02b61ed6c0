// One frame of Cannon Shot on a 1920x1080 screen at its busiest: level 20, a fourteen-letter
// word and ten decoys drifting across the sky, the wind flag streaming, the barrel turning and
// the bar charging, a ball in flight with its trail, and pops bursting.
#include "screen_bench.h"

#include "games/action/cannon_shot/cannon_shot_screen.h"

using namespace wm;

namespace {

void BM_CannonShotFrame(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.Words = {"", "photosynthesis"};
    s.Meanings = {"", "how green plants make their food from sunlight"};
    s.WordCount = 1;
    s.Difficulty = 20;
    s.SoundOn = kTrue;
    s.AppPath = WM_BENCH_APP_DIR;  // the art, as the program finds it
    CannonShotForm game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    Ticker::get().advance(CannonShotForm::kReadyMs + 16);  // past "Get ready!"
    const cannon_shot::Event pop{cannon_shot::Event::Right, 3, 900, 300};
    int n = 0;
    for (auto _ : state) {
        if (n % 90 == 0) {
            if (game.game().phase() != cannon_shot::Phase::Aiming) {
                game.SetupGame();  // a fresh rack when the last ran out or the word was spelled
                Ticker::get().advance(CannonShotForm::kReadyMs + 16);
            }
            game.rules().fire(40 + n % 30, 0.9);
        }
        if (n % 30 == 0) game.sky()->popped(pop, 200);
        ++n;
        Ticker::get().advance(16);  // Timer1: one frame
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_CannonShotFrame);

}  // namespace

WM_SCREEN_BENCH_MAIN()
