// One tick of a block-copy game: 60 sprites erased, moved, saved under and drawn masked, the
// dirty rectangles pushed and painted, scaled, onto a 1920x1080 screen.
#include "qt_bench.h"

#include <QApplication>
#include <QPainter>
#include <cmath>
#include <vector>

#include "platform/play_field.h"

using namespace wm;

namespace {

QImage background() {
    QImage image(640, 480, QImage::Format_RGB32);
    for (int y = 0; y < 480; ++y) {
        for (int x = 0; x < 640; ++x) image.setPixel(x, y, qRgb(x & 255, y & 255, (x ^ y) & 255));
    }
    return image;
}

QImage ball(int size, QColor colour) {
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(colour);
    p.setPen(Qt::NoPen);
    p.drawEllipse(image.rect());
    return image;
}

struct Mover {
    FieldSprite sprite;
    QPoint at, step;
    QImage picture, mask;
};

void BM_PlayFieldTick(benchmark::State& state) {
    PlayField field({640, 480});
    field.resize(1920, 1080);
    field.setBackground(background());
    QImage screen(1920, 1080, QImage::Format_RGB32);
    {
        QPainter p(&screen);
        field.render(p, QRegion(screen.rect()));
    }
    field.flush();
    std::vector<Mover> movers(60);
    for (int i = 0; i < 60; ++i) {
        Mover& m = movers[size_t(i)];
        const QImage sprite = ball(32, QColor::fromHsv(i * 6, 255, 255));
        m.picture = PictureOf(sprite);
        m.mask = MaskOf(sprite);
        m.at = QPoint((i * 53) % 600, (i * 37) % 440);
        m.step = QPoint(i % 7 - 3, i % 5 - 2);
        m.sprite.draw(field, m.at, m.picture, m.mask);
    }
    for (auto _ : state) {
        for (auto it = movers.rbegin(); it != movers.rend(); ++it) it->sprite.erase(field);
        for (Mover& m : movers) {
            m.at += m.step;
            if (m.at.x() < 0 || m.at.x() > 608) m.step.rx() = -m.step.x();
            if (m.at.y() < 0 || m.at.y() > 448) m.step.ry() = -m.step.y();
            m.sprite.draw(field, m.at, m.picture, m.mask);
        }
        bench::PushFrame(field, screen);
    }
}
WM_TICK_BENCHMARK(BM_PlayFieldTick);

}  // namespace

int main(int argc, char** argv) {
    return bench::RunInQt(argc, argv);
}
