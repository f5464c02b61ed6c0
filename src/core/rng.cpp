#include "core/rng.h"

#include <chrono>

namespace wm {

SystemRng::SystemRng() {
    Randomize();
}

double SystemRng::Rnd() {
    // 53 random bits give a double in [0, 1) that never reaches 1.
    return static_cast<double>(engine_() >> 11) * (1.0 / 9007199254740992.0);
}

void SystemRng::Randomize() {
    engine_.seed(static_cast<std::uint64_t>(
        std::chrono::high_resolution_clock::now().time_since_epoch().count()));
}

double ScriptedRng::Rnd() {
    ++draws;
    if (queue_.empty()) return fallback_;
    double v = queue_.front();
    queue_.pop_front();
    return v;
}

namespace {
Rng* installed = nullptr;
}

Rng& TheRng() {
    static SystemRng system;
    return installed ? *installed : system;
}

void SetRng(Rng* rng) {
    installed = rng;
}

}  // namespace wm
