// One frame of Code Breaker on a 1920x1080 screen at its busiest: a full code of sixty tiles
// turning green in a wave with sparkles, while a letter flies to every copy of a symbol.
#include "screen_bench.h"

#include "games/puzzles/code_breaker/code_breaker_screen.h"

using namespace wm;

namespace {

void BM_CodeBreakerFrame(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.Words = {"", "photographer", "thunderstorm", "marshmallows", "kaleidoscope", "encyclopedia"};
    s.Meanings = {"", "one who takes pictures", "rain with lightning", "soft sweets",
                  "a tube of bright patterns", "a book of facts"};
    s.WordCount = 5;
    s.Difficulty = 10;
    s.SoundOn = kTrue;
    s.AppPath = WM_BENCH_APP_DIR;  // the art, as the program finds it
    CodeBreaker game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    Ticker::get().advance(1600);  // past the pause: the clock runs
    const auto& g = game.game();
    const int symbols = int(g.symbols().size());
    int n = 0;
    for (auto _ : state) {
        if (n++ % 40 == 0) {  // a fresh wave and a fresh flight every two thirds of a second
            game.scene()->won();
            game.scene()->letterMoved(n % symbols, (n + 1) % symbols, 'E');
        }
        Ticker::get().advance(16);  // Timer2: one frame
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_CodeBreakerFrame);

}  // namespace

WM_SCREEN_BENCH_MAIN()
