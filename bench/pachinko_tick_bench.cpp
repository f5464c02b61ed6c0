// One Pachinko tick at 1920 x 1080 with all five disks falling: for each disk, the rectangle
// under it restored from the board, one physics step, and the disk drawn through its mask. The
// pins are never redrawn.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <array>

#include "core/rng.h"
#include "games/show/pachinko/pachinko_rules.h"

using namespace wm;
using namespace wm::pachinko;

static void PachinkoTickAllDisks(benchmark::State& state) {
    const QSize screen(1920, 1080);
    const double scale = screen.height() / double(kBoardHeight + 80);
    const QPointF origin((screen.width() - kBoardWidth * scale) / 2, 40);
    QImage board(screen, QImage::Format_ARGB32_Premultiplied);
    board.fill(QColor(20, 30, 70));
    {
        QPainter p(&board);
        p.setRenderHint(QPainter::Antialiasing);
        p.setBrush(QColor(230, 230, 240));
        for (const Pin& pin : pins())
            p.drawEllipse(origin + QPointF(pin.x, pin.y) * scale, kPinRadius * scale,
                          kPinRadius * scale);
    }
    const int ds = int(kDiskSize * scale) + 2;
    QImage disk(ds, ds, QImage::Format_ARGB32_Premultiplied);
    disk.fill(Qt::transparent);
    {
        QPainter p(&disk);
        p.setRenderHint(QPainter::Antialiasing);
        p.setBrush(QColor(250, 200, 40));
        p.drawEllipse(QRectF(1, 1, ds - 2, ds - 2));
    }
    QImage field = board;
    SystemRng rng;
    std::array<Disk, kMaxDisks> disks;
    auto reset = [&](int i) { disks[i] = dropDisk(40 + i * 110); };
    for (int i = 0; i < kMaxDisks; ++i) reset(i);
    QPainter p(&field);
    for (auto _ : state) {
        for (int i = 0; i < kMaxDisks; ++i) {
            Disk& d = disks[i];
            const QPoint at = (origin + QPointF(d.x, d.y) * scale).toPoint();
            const QRect under(at, QSize(ds, ds));
            p.drawImage(under.topLeft(), board, under);  // restore what the disk covered
            if (step(d, rng)) reset(i);
            p.drawImage((origin + QPointF(d.x, d.y) * scale).toPoint(), disk);
        }
        benchmark::DoNotOptimize(field.constBits());
    }
}
BENCHMARK(PachinkoTickAllDisks)->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
