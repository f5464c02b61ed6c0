// One tick of each sprite action game on its busiest field at 1920x1080, drawing included: the
// tick's block copies and the repaint of what it changed, scaled to the screen.
#include "qt_bench.h"

#include <QApplication>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/action/asteroid_zap/asteroid_zap_screen.h"
#include "games/action/crunch_man/crunch_man_screen.h"
#include "games/action/froggy/froggy_screen.h"
#include "games/action/word_zap/word_zap_screen.h"
#include "platform/dialogs.h"
#include "platform/music.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/ticker.h"

using namespace wm;

namespace {

ScriptedDialogs theDialogs;
RecordingSound theSound;
RecordingMusic theMusic;

// A list of eight long words, the level at its top, the screen at 1920x1080.
void Prepare(int difficulty) {
    Shared() = SharedState{};
    Shared().AppPath = WM_BENCH_APP_DIR;
    services() = {&theDialogs, &theSound, &theMusic};
    Ticker::get().setManual(true);
    ScreenMetrics::overrideScreenSize(QSize(1920, 1080));
    SharedState& s = Shared();
    s.Words = {"",
               "abbreviations",
               "photosynthesis",
               "thermometers",
               "hemispheres",
               "constellation",
               "precipitation",
               "evaporations",
               "continental"};
    s.Meanings = {"", "a", "b", "c", "d", "e", "f", "g", "h"};
    s.WordCount = 8;
    s.Difficulty = difficulty;
    s.MaxDifficulty = static_cast<short>(difficulty);
    s.GameOptionOn = kTrue;
    s.SoundOn = kTrue;
}

template <class Screen>
Screen* Open() {
    auto* screen = new Screen;
    screen->resize(1920, 1080);
    screen->show();
    QApplication::processEvents();
    Ticker::get().advance(0);
    screen->SetupGame();
    return screen;
}

// The tick asked for its changed rectangles to be repainted; this paints them, as the event
// loop would before the next frame.
void Paint(QWidget* screen, PlayField* field) {
    QApplication::processEvents();
    benchmark::DoNotOptimize(screen);
    benchmark::DoNotOptimize(field);
}

void BM_CrunchManTick(benchmark::State& state) {
    Prepare(14);
    auto* game = Open<CrunchManGame>();
    auto& r = game->round();
    // Nothing to run into: the mouth goes round and round, the fourteen mines pulse.
    for (auto& column : r.letterCell) column.fill(false);
    for (auto& column : r.mineCell) column.fill(false);
    int n = 0;
    for (auto _ : state) {
        r.wanted = 1 + (n++ / 40) % 4;
        game->gameTick();
        Paint(game, game->field());
    }
    delete game;
}
WM_TICK_BENCHMARK(BM_CrunchManTick);

void BM_FroggyTick(benchmark::State& state) {
    Prepare(9);
    auto* game = Open<FroggyForm>();
    for (auto _ : state) {
        // Level 9: every car and the logs move each frame.
        game->carTick();
        game->logTick();
        Paint(game, game->field());
    }
    delete game;
}
WM_TICK_BENCHMARK(BM_FroggyTick);

void BM_AsteroidZapTick(benchmark::State& state) {
    Prepare(15);
    auto* game = Open<AsteroidBlast>();
    const asteroid::Round start = game->round();
    for (auto _ : state) {
        // The whole wall and three shots in flight, always.
        auto& r = game->round();
        const auto shots = r.shots;
        const int shipX = r.shipX;
        r = start;
        r.shots = shots;
        r.shipX = shipX;
        r.fireWanted = true;
        for (auto& s : r.shots)
            if (s.flying && s.y < 500) s.y = r.g.shipTop() / asteroid::kTwips;
        game->mainTick();
        Paint(game, game->field());
    }
    delete game;
}
WM_TICK_BENCHMARK(BM_AsteroidZapTick);

void BM_WordZapTick(benchmark::State& state) {
    Prepare(8);
    auto* game = Open<Zap>();
    ScriptedRng rng(0.4);
    int n = 0;
    for (auto _ : state) {
        // All 160 stars in the air over the gallery.
        if (n++ % 100 == 0) {
            state.PauseTiming();
            for (int g = 0; g < zap::kGroups; ++g)
                zap::burst(game->gallery(), 200 + 100 * g, 600, rng);
            state.ResumeTiming();
        }
        game->starTick();
        Paint(game, game->field());
    }
    delete game;
}
WM_TICK_BENCHMARK(BM_WordZapTick);

}  // namespace

int main(int argc, char** argv) {
    return bench::RunInQt(argc, argv);
}
