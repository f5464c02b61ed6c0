// One frame of Spiderwebs at its busiest on a 1920x1080 screen: twelve flies buzzing in the web
// with long words on their tags, the spider crawling on its dragline, a wrong fly being wrapped,
// points rising, the changed regions painted.
#include "screen_bench.h"

#include "games/action/spiderwebs/spiderwebs_screen.h"

using namespace wm;

namespace {

void BM_SpiderwebsTick(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.AppPath = WM_BENCH_APP_DIR;  // the game's own drawings
    s.Words = {""};
    s.Meanings = {""};
    for (const char* w : {"photosynthesis", "metamorphosis", "camouflaged", "caterpillars",
                          "grasshoppers", "dragonflies", "hibernation", "chrysalis", "centipede",
                          "earthworm", "pollinator", "honeycomb", "cobweb"}) {
        s.Words.push_back(w);
        s.Meanings.push_back(std::string("a long definition of ") + w);
    }
    s.WordCount = 13;
    s.Difficulty = 12;
    s.SoundOn = kTrue;
    SpiderGame game;
    game.resize(1920, 1080);
    game.show();
    Ticker::get().advance(0);
    QApplication::processEvents();
    WebScene* scene = game.scene();
    int n = 0;
    for (auto _ : state) {
        if (game.game().phase() != spiderwebs::Phase::Crawling) {
            state.PauseTiming();
            game.SetupGame();
            Ticker::get().advance(spiderwebs::kReadyMs + 16);  // the spider sets off
            QApplication::processEvents();
            state.ResumeTiming();
        }
        if (n++ % 40 == 0) {
            const int fly = (game.game().answer() + 1 + n / 40 % 11) % 12;
            scene->eaten(fly);
        }
        Ticker::get().advance(Ticker::kFrameMs);  // Timer1: the crawl and the scene
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_SpiderwebsTick);

}  // namespace

WM_SCREEN_BENCH_MAIN()
