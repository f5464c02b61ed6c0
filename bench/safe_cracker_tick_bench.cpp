// One frame of Safe Cracker on a 1920x1080 screen at its busiest: five rows of twelve tumblers
// standing lit, a sixth turning, while the door of the opened safe swings wide over the gold.
#include "screen_bench.h"

#include "games/puzzles/safe_cracker/safe_cracker_screen.h"

using namespace wm;

namespace {

void BM_SafeCrackerFrame(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.Words = {"", "encyclopedia"};
    s.Meanings = {"", "a book of facts about many things"};
    s.WordCount = 1;
    s.GameOptionOn = kTrue;
    s.SoundOn = kTrue;
    s.AppPath = WM_BENCH_APP_DIR;  // the art, as the program finds it
    SafeCracker game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    auto play = [&](const char* guess) {
        for (const char* c = guess; *c; ++c) game.typeKey(*c);
        game.enterGuess();
    };
    int n = 0;
    for (auto _ : state) {
        if (n++ % 200 == 0) {  // a fresh safe every 200 frames: five wrong rows, then the word
            state.PauseTiming();
            game.frame().newGame();
            Ticker::get().advance(1700);  // past the pause before the safe
            for (const char* g : {"abcdefghijkl", "mnopqrstuvwx", "cyclopedians", "pedianscyclo",
                                  "encyclopedib"})
                play(g);
            play("encyclopedia");
            QApplication::processEvents();
            state.ResumeTiming();
        }
        Ticker::get().advance(16);  // Timer1: one frame
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_SafeCrackerFrame);

}  // namespace

WM_SCREEN_BENCH_MAIN()
