// How a pupil steers the knight: under the right scroll (stepping aside while a decoy above it
// in the same column goes by), or under the lowest decoy to lose on purpose.
#pragma once

#include <cmath>

#include "games/action/tower_assault/tower_assault_rules.h"

namespace wm::test {

inline int TowerSteer(const tower::Game& g, bool catchRight) {
    using namespace tower;
    const Scroll* want = nullptr;
    for (const Scroll& sc : g.scrolls())
        if (sc.right == catchRight && sc.y < kCatchY && (!want || sc.y > want->y)) want = &sc;
    if (!want) return 0;
    double target = want->x;
    for (const Scroll& sc : g.scrolls())
        if (catchRight && !sc.right && sc.y < kCatchY && sc.y > want->y &&
            std::fabs(sc.x - want->x) < 2 * kReach)
            target = want->x + (want->x < kFieldWidth / 2 ? 100 : -100);  // between two guards
    const double d = target - g.knightX();
    return d > kKnightStep / 2 ? 1 : d < -kKnightStep / 2 ? -1 : 0;
}

}  // namespace wm::test
