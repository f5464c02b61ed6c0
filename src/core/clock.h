// Time of day, injectable so that timed rules can be tested.
#pragma once

namespace wm {

class Clock {
public:
    virtual ~Clock() = default;
    // Time of day as a fraction of a day, in whole seconds: 0.5 is noon.
    virtual double Now() = 0;
    // Seconds since midnight, with fractions.
    virtual double Timer() = 0;
};

class SystemClock : public Clock {
public:
    double Now() override;
    double Timer() override;
};

class FixedClock : public Clock {
public:
    explicit FixedClock(double fractionOfDay = 0.5) : now(fractionOfDay) {}
    double Now() override { return now; }
    double Timer() override { return now * 86400.0; }
    double now;
};

Clock& TheClock();
void SetClock(Clock* clock);  // nullptr restores the system clock

}  // namespace wm
