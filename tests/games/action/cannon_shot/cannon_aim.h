// Aiming for the tests as a pupil would: a shot found by trying each angle and each hold of
// Space on copies of the game, played out with the keys' inputs tick by tick.
#pragma once

#include <cstdlib>

#include "core/rng.h"
#include "games/action/cannon_shot/cannon_shot_rules.h"

namespace wm::test {

struct Plan {
    int turn = 0, turnTicks = 0, charge = 0;
};

// Plays `plan` on `g`: turn, hold Space, let go, and fly; the events of the tick that ended
// the flight.
inline std::vector<cannon_shot::Event> PlayShot(cannon_shot::Game& g, const Plan& plan, Rng& rng) {
    for (int t = 0; t < plan.turnTicks; ++t) g.tick({plan.turn, false}, rng);
    for (int t = 0; t < plan.charge; ++t) g.tick({0, true}, rng);
    std::vector<cannon_shot::Event> ev = g.tick({}, rng);
    for (int t = 0; t < 400 && g.ball().flying; ++t) ev = g.tick({}, rng);
    return ev;
}

// A way to pop balloon `i` first from here.
inline bool PlanShot(const cannon_shot::Game& g, int i, Plan* plan) {
    ScriptedRng rng(0.5);
    for (int target = 10; target <= 80; target += 2)
        for (int charge = 1; charge <= 50; ++charge) {
            cannon_shot::Game c = g;
            const Plan p{target > c.angle() ? 1 : -1, int(std::abs(target - c.angle())), charge};
            for (const auto& e : PlayShot(c, p, rng))
                if (e.kind == cannon_shot::Event::Right || e.kind == cannon_shot::Event::Wrong) {
                    if (e.balloon != i) break;
                    *plan = p;
                    return true;
                }
        }
    return false;
}

}  // namespace wm::test
