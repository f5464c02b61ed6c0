// One frame of BreakThru on a 1920x1080 screen at its busiest: a sixteen-letter word's wall of
// forty-eight bricks, the ball flying with its tail, the paddle moving, bricks glowing red and
// pieces of broken ones flying.
#include "screen_bench.h"

#include <QKeyEvent>

#include "games/action/break_thru/break_thru_screen.h"

using namespace wm;

namespace {

void BM_BreakThruFrame(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.Words = {"", "incomprehensible"};
    s.Meanings = {"", "too hard to understand, however carefully it is explained"};
    s.WordCount = 1;
    s.Difficulty = 20;
    s.SoundOn = kTrue;
    s.AppPath = WM_BENCH_APP_DIR;  // the art, as the program finds it
    BreakThruForm game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    Ticker::get().advance(BreakThruForm::kReadyMs + 16);  // past "Get ready!"
    const break_thru::Event hit{break_thru::Event::Broke, 5, 1200, 500, 10};
    const break_thru::Event wrong{break_thru::Event::Wrong, 9, 1200, 500, -5};
    int n = 0;
    for (auto _ : state) {
        if (n % 60 == 0) {
            if (game.game().over() || game.game().phase() == break_thru::Phase::Spelled) {
                game.SetupGame();  // a fresh wall when the last one was spelled or lost
                Ticker::get().advance(BreakThruForm::kReadyMs + 16);
            }
            if (game.game().phase() == break_thru::Phase::Serve) {
                // Space, as the pupil serves.
                QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
                QApplication::sendEvent(&game, &press);
                Ticker::get().advance(16);
                QKeyEvent release(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier);
                QApplication::sendEvent(&game, &release);
            }
            // Into the thick of the wall, at a slant.
            game.rules().place(200 + n % 500, {400, 300.0 + n % 400, 12, 7});
        }
        if (n % 20 == 0) game.field()->struck(n % 40 ? wrong : hit, 10);
        ++n;
        Ticker::get().advance(16);  // Timer1: one frame
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_BreakThruFrame);

}  // namespace

WM_SCREEN_BENCH_MAIN()
