// One frame of Letter Toss on a 1920x1080 screen, drawing included, at its busiest: four baskets,
// the ball in flight with its shadow, the fan turning in a strong draught, and a landing's points
// rising while the next ball goes up.
#include "screen_bench.h"

#include "games/action/letter_toss/letter_toss_screen.h"

using namespace wm;

namespace {

void BM_LetterTossFlightTick(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.AppPath = WM_BENCH_APP_DIR;  // the game's own pictures, so the frame costs what it costs
    s.Words = {"", "photosynthesis", "constellation", "precipitation", "archaeologist",
               "thermometers", "hibernation"};
    s.Meanings = {"",
                  "how green plants make food from sunlight, water and air",
                  "a group of stars that makes a picture in the sky",
                  "rain, snow, sleet or hail falling from the clouds",
                  "a scientist who digs up things from long ago",
                  "tools that measure how hot or cold it is",
                  "a long winter sleep of some animals"};
    s.WordCount = 6;
    s.Difficulty = 4;
    s.MaxDifficulty = 4;
    s.SoundOn = kTrue;
    LetterTossGame game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    Ticker::get().advance(2000);  // past the pause: the clock runs
    int n = 0, tosses = 0;
    for (auto _ : state) {
        if (game.phase() != LetterTossGame::Phase::Flying) {
            state.PauseTiming();
            if (++tosses % 30 == 0) {  // a new game long before the clock runs out
                game.frame().newGame();
                Ticker::get().advance(2000);
            }
            Ticker::get().advance(1500);  // the landing's pause: its points still rising
            game.letGo({800, 850}, {double(n % 7) * 300 - 900, -1700});
            state.ResumeTiming();
        }
        ++n;
        game.animTick();
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_LetterTossFlightTick);

}  // namespace

WM_SCREEN_BENCH_MAIN()
