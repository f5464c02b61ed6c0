// What the benchmarks that run screens share: the settings every tick benchmark reports with,
// one frame of a play field pushed onto a screen image, and a main() inside a Qt application.
#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <functional>

#include "platform/play_field.h"

// A tick benchmark: process CPU time in microseconds, the aggregates of five repetitions.
#define WM_TICK_BENCHMARK(fn)           \
    BENCHMARK(fn)                       \
        ->MeasureProcessCPUTime()       \
        ->Unit(benchmark::kMicrosecond) \
        ->Repetitions(5)                \
        ->ReportAggregatesOnly()

namespace wm::bench {

// Pushes the field's dirty rectangles and paints them, scaled, onto `screen`, as a frame does.
inline void PushFrame(PlayField& field, QImage& screen) {
    const QList<QRect> pushed = field.flush();
    QPainter p(&screen);
    field.render(p, pushed);
    benchmark::DoNotOptimize(screen.constBits());
}

// Runs the benchmarks inside an offscreen Qt application, after `setUp` when given.
inline int RunInQt(int argc, char** argv, const std::function<void()>& setUp = {}) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (setUp) setUp();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

}  // namespace wm::bench
