#pragma once

#include "camera/Rotation.h"

#include <cmath>
#include <cstdint>
#include <string_view>

namespace fieldcal::synthesis {

/// One mixing step; equal input gives equal output on every machine.
inline std::uint64_t mixBits(std::uint64_t v) {
    v += 0x9e3779b97f4a7c15ULL;
    v = (v ^ (v >> 30)) * 0xbf58476d1ce4e5b9ULL;
    v = (v ^ (v >> 27)) * 0x94d049bb133111ebULL;
    return v ^ (v >> 31);
}

/// Reproducible random numbers. Every purpose draws from a stream of its own, so that an additional tree does not
/// change the cameras. The distributions of the standard library are not used because they differ between libraries.
class Random {
public:
    Random(std::uint64_t seed, std::string_view purpose) : state_(mixBits(seed)) {
        for (char c : purpose)
            state_ = mixBits(state_ ^ static_cast<unsigned char>(c));
    }

    std::uint64_t bits() { return mixBits(state_++); }
    /// Within [0, 1).
    double uniform() { return static_cast<double>(bits() >> 11) * 0x1p-53; }
    double uniform(double low, double high) { return low + (high - low) * uniform(); }
    float between(float low, float high) { return static_cast<float>(uniform(low, high)); }
    bool chance(double probability) { return uniform() < probability; }
    /// Within 0 … count − 1.
    int index(int count) { return static_cast<int>(bits() % static_cast<std::uint64_t>(count)); }
    /// Mean 0, standard deviation 1.
    double normal() {
        const double radius = std::sqrt(-2.0 * std::log(1.0 - uniform()));
        return radius * std::cos(2 * kPi * uniform());
    }

private:
    std::uint64_t state_;
};

}  // namespace fieldcal::synthesis
