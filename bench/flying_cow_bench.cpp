// Flying Cow's frame at 1920x1080, drawing included: the cow dangling on the top rung of a
// level-1 beam (eleven rungs, sparkles, legs swinging), and the happy ending of a word (the cow
// let down, the moo, the saucer wobbling off and back).
#include "screen_bench.h"

#include "games/guess/flying_cow/flying_cow_screen.h"

using namespace wm;

namespace {

void Prepare(int difficulty) {
    SharedState& s = Shared();
    s = SharedState{};
    s.AppPath = WM_BENCH_APP_DIR;
    s.Words = {"", "lighthouse", "harbour", "seagull", "anchor", "lantern", "moonbeam"};
    s.Meanings = {"", "a tower with a light", "where boats rest", "a bird of the shore",
                  "it holds a ship", "a light you carry", "light from the moon"};
    s.WordCount = 6;
    s.Difficulty = difficulty;
    s.SoundOn = kTrue;
}

void Frame() {
    Ticker::get().advance(Ticker::kFrameMs);
    QApplication::processEvents();
}

void Open(CowForm& game) {
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();  // the first game starts
    while (game.phase() != CowForm::Phase::Play) Frame();
}

void BM_FlyingCowBeamTick(benchmark::State& state) {
    Prepare(1);
    CowForm game;
    Open(game);
    // Every miss the level allows: the cow hangs just under the hatch.
    for (char c = 'a'; c <= 'z' && game.game().spare() > 0; ++c)
        if (game.game().word().find(c) == std::string::npos) game.guessKey(c);
    for (auto _ : state) Frame();
}
WM_TICK_BENCHMARK(BM_FlyingCowBeamTick);

void BM_FlyingCowHappyEndTick(benchmark::State& state) {
    Prepare(4);
    CowForm game;
    Open(game);
    for (auto _ : state) {
        if (game.phase() == CowForm::Phase::Play) {
            // Before the fifth word, which would end the game, a new game begins.
            if (game.game().lastWord()) {
                game.frame().newGame();
            } else {
                for (char c : game.game().word()) game.guessKey(c);
            }
        }
        Frame();
    }
}
WM_TICK_BENCHMARK(BM_FlyingCowHappyEndTick);

}  // namespace

WM_SCREEN_BENCH_MAIN()
