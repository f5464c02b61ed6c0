// What every benchmark over a game screen shares: the screen as the program would show it on a
// 1920x1080 display, quiet stand-ins for dialogs, sound and music, and a clock that only the
// benchmark moves. A benchmark file includes this and ends with WM_SCREEN_BENCH_MAIN().
#pragma once

#include "qt_bench.h"

#include <QApplication>

#include <sched.h>

#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/music.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/ticker.h"

namespace wm::bench {

// One core: the raster engine hands large fills to a thread pool, and on a machine whose other
// core is busy the hand-offs cost more process time than they save, so the figure would say more
// about the neighbours than about the frame. A frame's whole cost on one core is the honest bound.
inline void PinToOneCore() {
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(0, &one);
    sched_setaffinity(0, sizeof one, &one);
}

inline int RunScreenBench(int argc, char** argv) {
    PinToOneCore();
    ScriptedDialogs dialogs;
    RecordingSound sound;
    RecordingMusic music;
    return RunInQt(argc, argv, [&] {
        services() = {&dialogs, &sound, &music};
        Ticker::get().setManual(true);  // only the benchmark moves the game
        ScreenMetrics::overrideScreenSize(QSize(1920, 1080));
    });
}

}  // namespace wm::bench

#define WM_SCREEN_BENCH_MAIN() \
    int main(int argc, char** argv) { return wm::bench::RunScreenBench(argc, argv); }
