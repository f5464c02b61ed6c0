// A fixed-seed generator of our own (splitmix64), so the generated art and sound do not depend
// on a library's distributions and every run writes the same bytes.
#pragma once

#include <cstdint>

namespace wm::assetgen {

class Dice {
public:
    explicit Dice(std::uint64_t seed) : state_(seed) {}
    std::uint64_t next() {
        std::uint64_t z = (state_ += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }
    // [0, 1)
    double unit() { return static_cast<double>(next() >> 11) * (1.0 / 9007199254740992.0); }
    double range(double lo, double hi) { return lo + (hi - lo) * unit(); }
    int below(int n) { return static_cast<int>(unit() * n); }

private:
    std::uint64_t state_;
};

}  // namespace wm::assetgen
