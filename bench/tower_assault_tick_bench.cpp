// One frame of Tower Assault on a 1920x1080 screen at its busiest: five scrolls in the air with
// long words, guards throwing, sparkles and a call popping up.
#include "screen_bench.h"

#include <QKeyEvent>

#include "games/action/tower_assault/tower_assault_screen.h"

using namespace wm;

namespace {

void BM_TowerAssaultFrame(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.Words = {"",           "encyclopaedias", "battlements",  "drawbridge",
               "portcullis", "catapult",       "chivalrously", "gatehouse"};
    s.Meanings = {"",
                  "books of facts",
                  "the wall's top",
                  "a bridge that lifts",
                  "an iron gate",
                  "it throws stones",
                  "bravely and kindly",
                  "the gate's house"};
    s.WordCount = 7;
    s.SoundOn = kTrue;
    s.AppPath = WM_BENCH_APP_DIR;  // the art, as the program finds it
    TowerGame game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    // The knight walks to stand between two guards, where nothing lands on him: the game
    // goes on for ever, the right scroll thrown again and again.
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier);
    QApplication::sendEvent(&game, &press);
    Ticker::get().advance(33 * 16);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Left, Qt::NoModifier);
    QApplication::sendEvent(&game, &release);
    Ticker::get().advance(2000 + 6000);  // past the pause: several scrolls in the air
    int n = 0;
    for (auto _ : state) {
        if (n++ % 30 == 0) {  // a throw, a catch's sparkle and a call twice a second
            game.scene()->thrown(1 + n % 5);
            game.scene()->caught(n % 2 == 0, 150);
            game.scene()->setCall("Rung 3 of 10!");
        }
        Ticker::get().advance(16);  // Timer1: one frame
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_TowerAssaultFrame);

}  // namespace

WM_SCREEN_BENCH_MAIN()
