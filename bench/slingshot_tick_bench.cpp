// One frame of Slingshot on a 1920x1080 screen at its busiest: the top level's swing, a stone
// in flight every half second, a target wobbling or spinning away with its popup, and the
// winner's sparkles over the meadow.
#include "screen_bench.h"

#include <QMouseEvent>

#include "games/action/slingshot/slingshot_screen.h"

using namespace wm;
using namespace wm::slingshot;

namespace {

void press(QWidget* w, QEvent::Type type, QPointF at) {
    QMouseEvent e(type, at, w->mapToGlobal(at), Qt::LeftButton,
                  type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                  Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}

void BM_SlingshotFrame(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.Words = {"", "photosynthesis", "thunderstorm", "marshmallows", "kaleidoscope", "encyclopedia"};
    s.Meanings = {"", "how green plants make their food from sunlight, water and air",
                  "rain with lightning", "soft sweets", "a tube of bright patterns",
                  "a book of facts"};
    s.WordCount = 5;
    s.Difficulty = 9;
    s.SoundOn = kTrue;
    s.AppPath = WM_BENCH_APP_DIR;  // the art, as the program finds it
    SlingShot game;
    game.resize(1920, 1080);
    game.show();
    QApplication::processEvents();
    Ticker::get().advance(SlingShot::kReadyMs + 16);  // past "Ready...": the band may be pulled
    SlingField* field = game.field();
    field->setCall("Well shot!", true);
    int n = 0;
    for (auto _ : state) {
        const Game& g = game.game();
        if (g.phase() == Phase::Aiming && n % 30 == 0) {
            // Stones at the right target and the one beside it by turns: a spin, a wobble.
            const Point t = g.target((g.rightSlot() + n / 30 % 2) % kTargets), rest = pouchRest();
            const double len = std::max(1.0, std::hypot(t.x - rest.x, t.y - rest.y));
            press(field, QEvent::MouseButtonPress, field->toWidget(rest));
            press(field, QEvent::MouseButtonRelease,
                  field->toWidget(Point{rest.x - (t.x - rest.x) / len * 200,
                                        rest.y - (t.y - rest.y) / len * 200}));
        }
        ++n;
        Ticker::get().advance(16);  // Timer1: one frame
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_SlingshotFrame);

}  // namespace

WM_SCREEN_BENCH_MAIN()
