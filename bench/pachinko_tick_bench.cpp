// One Pachinko tick as the screen does it, with all five disks falling: each disk's rectangle
// restored from what was under it, one physics step, the rectangle under the new place saved,
// the disk drawn through its mask, and the dirty rectangles pushed and painted, scaled, onto a
// 1920 x 1080 screen. The pins are never redrawn.
#include "qt_bench.h"

#include <QApplication>
#include <QPainter>
#include <array>

#include "core/rng.h"
#include "games/show/pachinko/pachinko_rules.h"
#include "platform/play_field.h"

using namespace wm;
using namespace wm::pachinko;

namespace {

constexpr int kW = 1024, kH = 768;                // the game's own resolution
constexpr int kBoardLeft = 190, kBoardTop = 118;  // where the board sits on it

QImage boardBackground() {
    QImage image(kW, kH, QImage::Format_RGB32);
    QPainter p(&image);
    QLinearGradient sky(0, 0, 0, kH);
    sky.setColorAt(0, QColor(70, 20, 90));
    sky.setColorAt(1, QColor(20, 10, 40));
    p.fillRect(image.rect(), sky);
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(kBoardLeft, kBoardTop);
    p.setPen(QPen(QColor(110, 60, 20), 14));
    p.setBrush(QColor(20, 35, 90));
    p.drawRoundedRect(QRectF(-7, -7, kBoardWidth + 14, kBoardHeight + 14), 14, 14);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(230, 230, 240));
    for (const Pin& pin : pins()) p.drawEllipse(QPointF(pin.x, pin.y), kPinRadius, kPinRadius);
    return image;
}

QImage diskPicture() {
    QImage image(kDiskSize + 2, kDiskSize + 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(QColor(250, 200, 40));
    p.setPen(QPen(QColor(140, 80, 0), 2));
    p.drawEllipse(QRectF(1, 1, kDiskSize, kDiskSize));
    return image;
}

void PachinkoTickAllDisks(benchmark::State& state) {
    PlayField field({kW, kH});
    field.resize(1920, 1080);
    field.setBackground(boardBackground());
    QImage screen(1920, 1080, QImage::Format_RGB32);
    {
        QPainter p(&screen);
        field.render(p, QRegion(screen.rect()));
    }
    field.flush();
    const QImage sprite = diskPicture();
    const QImage picture = PictureOf(sprite), mask = MaskOf(sprite);
    SystemRng rng;
    std::array<Disk, kMaxDisks> disks;
    std::array<FieldSprite, kMaxDisks> sprites;
    const auto where = [](const Disk& d) {
        return QPoint(kBoardLeft + d.x - 1, kBoardTop + d.y - 1);
    };
    for (int i = 0; i < kMaxDisks; ++i) {
        disks[size_t(i)] = dropDisk(40 + i * 110);
        sprites[size_t(i)].draw(field, where(disks[size_t(i)]), picture, mask);
    }
    field.flush();
    for (auto _ : state) {
        for (int i = kMaxDisks - 1; i >= 0; --i) sprites[size_t(i)].erase(field);
        for (int i = 0; i < kMaxDisks; ++i) {
            Disk& d = disks[size_t(i)];
            if (step(d, rng)) d = dropDisk(40 + i * 110);
            sprites[size_t(i)].draw(field, where(d), picture, mask);
        }
        bench::PushFrame(field, screen);
    }
}
WM_TICK_BENCHMARK(PachinkoTickAllDisks);

}  // namespace

int main(int argc, char** argv) {
    return bench::RunInQt(argc, argv);
}
