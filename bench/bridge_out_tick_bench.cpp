// One frame of Bridge Out at its busiest on a 1920x1080 screen: a fourteen-letter bridge, the
// truck rolling, the river full of planks, one plank dragged over the bridge, splashes and
// sparkles, the changed regions painted.
#include "screen_bench.h"

#include <QMouseEvent>

#include "games/action/bridge_out/bridge_out_screen.h"

using namespace wm;

namespace {

void Mouse(QWidget* w, QEvent::Type type, QPointF at) {
    QMouseEvent e(type, at, w->mapToGlobal(at), Qt::LeftButton,
                  type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                  Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}

void BM_BridgeOutTick(benchmark::State& state) {
    SharedState& s = Shared();
    s = SharedState{};
    s.AppPath = WM_BENCH_APP_DIR;  // the game's own drawings
    s.Words = {"", "photosynthesis", "thunderstorms", "encyclopedias"};
    s.Meanings = {"", "how green plants make food from sunlight", "storms with thunder",
                  "books of facts"};
    s.WordCount = 3;
    s.Difficulty = 10;
    s.SoundOn = kTrue;
    BridgeOutGame game;
    game.resize(1920, 1080);
    game.show();
    Ticker::get().advance(0);
    QApplication::processEvents();
    BridgeScene* scene = game.scene();
    int n = 0;
    for (auto _ : state) {
        if (game.game().phase() != bridge_out::Phase::Driving) {
            state.PauseTiming();
            game.SetupGame();
            Ticker::get().advance(bridge_out::kReadyMs);  // the truck sets off
            QApplication::processEvents();
            state.ResumeTiming();
        }
        if (scene->heldPlank() == 0 && !game.game().river().empty()) {
            const auto& p = game.game().river().back();
            Mouse(scene, QEvent::MouseButtonPress, scene->plankRect(p).center());
        }
        if (n++ % 30 == 0) {
            scene->splash(100 + n % 800, n % 2);
            scene->locked(n % 14);
        }
        Mouse(scene, QEvent::MouseMove,
              QPointF(300 + (n * 7) % 1300, scene->gapRect(3).center().y() + (n % 50)));
        Ticker::get().advance(Ticker::kFrameMs);  // Timer1: the river, the truck, the scene
        QApplication::processEvents();
    }
}
WM_TICK_BENCHMARK(BM_BridgeOutTick);

}  // namespace

WM_SCREEN_BENCH_MAIN()
