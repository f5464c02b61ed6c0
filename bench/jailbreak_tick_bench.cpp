// One animation frame of Jailbreak on a 1920x1080 screen, drawing included: the guard walking
// while a padlock springs open and the alarm flashes, and the door swinging open for the escape.
#include "screen_bench.h"

#include "games/action/jailbreak/jailbreak_screen.h"

using namespace wm;

namespace {

void Prepare() {
    SharedState& s = Shared();
    s = SharedState{};
    s.AppPath = WM_BENCH_APP_DIR;  // the game's own pictures, so the frame costs what it costs
    s.Words = {"", "photosynthesis", "constellation", "precipitation", "archaeologist",
               "thermometers", "hibernation", "encyclopedia", "civilization"};
    s.Meanings = {"",
                  "how green plants make food from sunlight, water and air",
                  "a group of stars that makes a picture in the sky",
                  "rain, snow, sleet or hail falling from the clouds",
                  "a scientist who digs up things from long ago",
                  "tools that measure how hot or cold it is",
                  "a long winter sleep of some animals",
                  "a book of facts about many subjects",
                  "a large group of people with their own way of life"};
    s.WordCount = 8;
    s.Difficulty = 6;
    s.MaxDifficulty = 6;
    s.SoundOn = kTrue;
}

void Settle(JailBreakForm& game) {
    game.frame().newGame();
    Ticker::get().advance(2000);  // the pause before the cell
    QApplication::processEvents();
}

void Type(JailBreakForm& game, const std::string& word) {
    game.typingBox()->setText(QString::fromLatin1(word.c_str()));
    game.enterWord();
}

// The patrol: every 18 frames the guard takes a step and a lock springs open or the alarm goes.
void BM_JailbreakPatrolTick(benchmark::State& state) {
    Prepare();
    JailBreakForm game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    Settle(game);
    int n = 0;
    for (auto _ : state) {
        if (n++ % 18 == 0) {
            state.PauseTiming();
            const auto& j = game.jail();
            int shut = -1;
            for (int i = 0; i < int(j.locks.size()); ++i)
                if (!j.locks[i].open) shut = i;
            if (j.guardSteps >= 34 || jailbreak::shutLocks(j) <= 1) Settle(game);
            Ticker::get().advance(1500);
            if (shut >= 0 && n % 36 == 1) Type(game, game.jail().locks[shut].word);
            else Type(game, "zebra");
            state.ResumeTiming();
        }
        game.animTick();
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_JailbreakPatrolTick);

// The escape: the last lock opened, the door swings and the prisoner runs for the daylight.
void BM_JailbreakEscapeTick(benchmark::State& state) {
    Prepare();
    JailBreakForm game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    for (auto _ : state) {
        if (!game.scene()->escaping() || game.scene()->escapeDone()) {
            state.PauseTiming();
            Settle(game);
            for (const auto& lock : std::vector<jailbreak::Lock>(game.jail().locks))
                Type(game, lock.word);
            Ticker::get().advance(700);  // the last lock springs; the door begins to swing
            QApplication::processEvents();
            state.ResumeTiming();
        }
        game.animTick();
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_JailbreakEscapeTick);

}  // namespace

WM_SCREEN_BENCH_MAIN()
