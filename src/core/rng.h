// Random numbers. Every draw is Rnd() in [0, 1); formulas read Int(rng.Rnd() * N + 1).
#pragma once

#include <cstdint>
#include <deque>
#include <random>

namespace wm {

class Rng {
public:
    virtual ~Rng() = default;
    virtual double Rnd() = 0;
    // Reseeds from the clock, at each new game or search.
    virtual void Randomize() = 0;
};

class SystemRng : public Rng {
public:
    SystemRng();
    double Rnd() override;
    void Randomize() override;
    void seed(std::uint64_t s) { engine_.seed(s); }

private:
    std::mt19937_64 engine_;
};

// A scripted generator for tests: hands out queued values, then `fallback` for ever.
class ScriptedRng : public Rng {
public:
    explicit ScriptedRng(double fallback = 0.0) : fallback_(fallback) {}
    ScriptedRng& then(double v) {
        queue_.push_back(v);
        return *this;
    }
    // Queues the value that makes Int(Rnd() * n + 1) come out as k (1-based).
    ScriptedRng& pick(int k, int n) { return then((k - 0.5) / n); }
    double Rnd() override;
    void Randomize() override { ++randomizeCount; }
    std::size_t pending() const { return queue_.size(); }
    void setFallback(double v) { fallback_ = v; }
    int randomizeCount = 0;
    int draws = 0;

private:
    std::deque<double> queue_;
    double fallback_;
};

// The generator the running program uses; tests may install their own.
Rng& TheRng();
void SetRng(Rng* rng);  // nullptr restores the system generator

}  // namespace wm
