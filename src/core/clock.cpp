#include "core/clock.h"

#include <chrono>
#include <ctime>

namespace wm {

double SystemClock::Timer() {
    auto now = std::chrono::system_clock::now();
    std::time_t t = std::chrono::system_clock::to_time_t(now);
    std::tm local{};
    localtime_r(&t, &local);
    auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()) % 1000;
    return local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec + ms.count() / 1000.0;
}

double SystemClock::Now() {
    // The clock of the design has whole seconds only.
    auto secs = static_cast<long>(Timer());
    return secs / 86400.0;
}

namespace {
Clock* installed = nullptr;
}

Clock& TheClock() {
    static SystemClock system;
    return installed ? *installed : system;
}

void SetClock(Clock* clock) {
    installed = clock;
}

}  // namespace wm
