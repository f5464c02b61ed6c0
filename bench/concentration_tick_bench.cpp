// One animation tick of Concentration on a 1920x1080 screen with twenty cards, several of them
// turning over: the flips moved on and the changed cards painted on the felt.
#include "screen_bench.h"

#include <QApplication>
#include <QPoint>
#include <QTest>

#include "core/rng.h"
#include "games/show/concentration/concentration_screen.h"

using namespace wm;

namespace {

void BM_ConcentrationFlipTick(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.AppPath = WM_BENCH_APP_DIR;
    for (int k = 1; k <= 10; ++k) {
        s.Words[k] = "word number " + std::to_string(k);
        s.Meanings[k] = "the meaning of the word with the number " + std::to_string(k) +
                        ", long enough to wrap over several lines of its card";
    }
    s.WordCount = 10;
    s.Difficulty = 10;
    s.SoundOn = kTrue;
    // Entries 1..10 in order, and a shuffle that leaves every card where it is: w1 m1 w2 m2...
    ScriptedRng rng;
    for (int k = 1; k <= 10; ++k) rng.pick(k, 10);
    for (int i = 20; i >= 2; --i) rng.pick(i, i);
    SetRng(&rng);
    Concentration game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    Ticker::get().advance(0);
    QApplication::processEvents();
    int turn = 0;
    for (auto _ : state) {
        if (!game.animating()) {
            // Two words never match: each pair of clicks turns three or four cards.
            const int a = 2 * (turn % 5), b = 2 * (turn % 5 + 5);
            QTest::mouseClick(&game, Qt::LeftButton, {}, game.cardRect(a).center());
            QTest::mouseClick(&game, Qt::LeftButton, {}, game.cardRect(b).center());
            ++turn;
        }
        Ticker::get().advance(Ticker::kFrameMs);
        QApplication::processEvents();
    }
    SetRng(nullptr);
}
WM_TICK_BENCHMARK(BM_ConcentrationFlipTick);

}  // namespace

WM_SCREEN_BENCH_MAIN()
