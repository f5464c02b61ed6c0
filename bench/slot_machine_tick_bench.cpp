// One frame of Slot Machine on a 1920x1080 screen at its busiest: three reels of long words
// rolling at the top speed, the lever swinging, the bulbs chasing and a jackpot's coins pouring
// into the purse.
#include "screen_bench.h"

#include "games/show/slot_machine/slot_machine_screen.h"

using namespace wm;

namespace {

void BM_SlotMachineFrame(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.Words = {"", "hippopotamus", "characteristic", "kaleidoscope", "thunderstorm", "encyclopedia",
               "marshmallows", "photographer"};
    s.Meanings = {"", "a very large animal that lives near rivers", "a quality that belongs to you",
                  "a tube of bright patterns", "rain with lightning", "a book of facts",
                  "soft sweets", "one who takes pictures"};
    s.WordCount = 7;
    s.Difficulty = 20;
    s.SoundOn = kTrue;
    s.AppPath = WM_BENCH_APP_DIR;  // the art, as the program finds it
    SlotMachine game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    Ticker::get().advance(1600);  // past the pause: the first definition is up
    int n = 0;
    for (auto _ : state) {
        if (n++ % 40 == 0) {  // a fresh pull and a fresh shower every two thirds of a second
            if (game.game().rolling() == 0) game.pull();
            game.scene()->pulled();
            game.scene()->jackpot();
            game.scene()->paid(-1, 400);
        }
        Ticker::get().advance(16);  // Timer1: one frame
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_SlotMachineFrame);

}  // namespace

WM_SCREEN_BENCH_MAIN()
