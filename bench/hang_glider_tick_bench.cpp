// One frame of Hang Glider on a 1920x1080 screen at its busiest: level 10, a twenty-letter word
// on the plate, the three ranges of scenery scrolling, a sky full of letter clouds, the glider
// riding a thermal, and sparkles and puffs bursting.
#include "screen_bench.h"

#include "games/action/hang_glider/hang_glider_screen.h"

using namespace wm;

namespace {

void BM_HangGliderFrame(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.Words = {"", "internationalization"};
    s.Meanings = {"", "making a program ready for the languages and customs of many countries"};
    s.WordCount = 1;
    s.Difficulty = 10;
    s.SoundOn = kTrue;
    s.AppPath = WM_BENCH_APP_DIR;  // the art, as the program finds it
    HangGlider game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    Ticker::get().advance(HangGlider::kReadyMs + 16);  // past "Get ready!"
    const hang_glider::Event right{hang_glider::Event::Right, 'A', 700, 400};
    const hang_glider::Event wrong{hang_glider::Event::Wrong, 'B', 640, 600};
    int n = 0;
    for (auto _ : state) {
        if (game.game().over() || game.game().phase() != hang_glider::Phase::Flying) {
            game.SetupGame();  // a fresh flight when the last one ended
            Ticker::get().advance(HangGlider::kReadyMs + 16);
        }
        if (n % 40 == 0) {
            // Keep the glider up and a dozen letters in the sky, one sure to be met.
            game.rules().placeGlider(420);
            const auto& g = game.game();
            game.rules().addLetter(char(toupper(g.word()[g.done()])), 800, 420);
            for (int k = 1; k < 3; ++k)
                game.rules().addLetter(char('W' + k), 900 + 230 * k, 250 + 200 * k);
            game.sky()->touched(right, 100);
        }
        if (n % 40 == 20) game.sky()->touched(wrong, 50);
        ++n;
        Ticker::get().advance(16);  // Timer1: one frame
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_HangGliderFrame);

}  // namespace

WM_SCREEN_BENCH_MAIN()
