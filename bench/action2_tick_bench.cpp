// One tick of Letter Drop's fall and of Mini Golf's ball on a 1920x1080 screen: the rules, the
// sprites erased and drawn on the field, and the changed rectangles painted, scaled.
#include "screen_bench.h"

#include "games/action/letter_drop/letter_drop_screen.h"
#include "games/action/mini_golf/mini_golf_screen.h"

using namespace wm;

namespace {

void Prepare(int difficulty) {
    SharedState& s = Shared();
    s = SharedState{};
    s.Words = {"", "lighthouse", "harbour", "seagull", "anchor", "lantern"};
    s.Meanings = {"",
                  "a tower with a light",
                  "where boats rest",
                  "a bird of the shore",
                  "it holds a ship",
                  "a light you carry"};
    s.WordCount = 5;
    s.Difficulty = difficulty;
    s.GameOptionOn = kTrue;
    s.SoundOn = kTrue;
}

void BM_LetterDropTick(benchmark::State& state) {
    Prepare(90);
    LetterFall game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    for (auto _ : state) {
        game.fallTick();  // letters fall to the middle and miss, so the word never ends
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_LetterDropTick);

void BM_MiniGolfTick(benchmark::State& state) {
    Prepare(10);
    MiniGolf game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    mini_golf::Course& c = game.course();
    for (auto _ : state) {
        if (!c.moving()) {
            c.placeBall(mini_golf::kFieldW / 2.0, 0.8 * mini_golf::kFieldH);
            c.setVelocity(317, -421);  // round the walls and off the blocks
        }
        game.ballTick();
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_MiniGolfTick);

}  // namespace

WM_SCREEN_BENCH_MAIN()
