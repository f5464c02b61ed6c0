// One frame of Freeze-It on a 1920x1080 screen at its busiest: a long word bursting into
// shards and sparkles after a right answer, the glow, the banner and the snow, painted.
#include "screen_bench.h"

#include "games/guess/freeze_it/freeze_it_screen.h"

using namespace wm;

namespace {

void BM_FreezeItFrame(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.Words = {"", "photosynthesis"};
    s.Meanings = {"", "how green plants make food from sunlight"};
    s.WordCount = 1;
    s.Difficulty = 3;
    s.SoundOn = kTrue;
    FreezeIt game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    Ticker::get().advance(2000);  // past the pause, a block or so thawed
    game.freezeNow();
    game.answerBox()->setText("photosynthesis");
    game.checkAnswer();
    game.frame().findTimer("Timer3")->stop();  // the moment lasts: no next word
    int n = 0;
    for (auto _ : state) {
        if (n++ % 30 == 0) {  // a fresh right answer about once a second
            game.scene()->right();
            game.scene()->banner(QString("Right! +%1").arg(n));
        }
        Ticker::get().advance(33);  // Timer2: one frame
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_FreezeItFrame);

}  // namespace

WM_SCREEN_BENCH_MAIN()
