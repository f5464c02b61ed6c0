// One frame of Word Bricks on a 1920x1080 screen at its busiest: ten long words' bricks tipping
// out onto the ground together, every one of them moving, the whole site painted.
#include "screen_bench.h"

#include "core/rng.h"
#include "games/puzzles/word_bricks/word_bricks_screen.h"

using namespace wm;

namespace {

void BM_WordBricksFrame(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.Words = {"",           "photographer", "thunderstorm", "marshmallows",  "kaleidoscope",
               "encyclopedia", "hippopotamus", "neighbourhood", "refrigerators", "grasshoppers",
               "strawberries"};
    s.Meanings = {"", "one who takes pictures with a camera", "rain with lightning and thunder",
                  "soft sweets you can toast", "a tube of bright changing patterns",
                  "a book of facts about everything", "a big animal that loves rivers",
                  "the streets and houses around your home", "machines that keep food cold",
                  "green insects that jump far", "red summer fruit with seeds outside"};
    s.WordCount = 10;
    s.Difficulty = 10;
    s.SoundOn = kTrue;
    s.AppPath = WM_BENCH_APP_DIR;  // the art, as the program finds it
    WordBricks game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    int n = 0;
    for (auto _ : state) {
        if (n++ % 60 == 0) game.SetupGame();  // a fresh heap tipping out every second
        Ticker::get().advance(16);            // Timer2: one frame
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_WordBricksFrame);

}  // namespace

WM_SCREEN_BENCH_MAIN()
