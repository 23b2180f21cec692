#pragma once

#include <array>
#include <cstddef>

namespace vq {

/// The grey values of a square window, and the arithmetic that alignment needs. Sums are accumulated in eight lanes for
/// vector units; the values beyond the window are zero.
template <int size>
class Patch {
public:
    static constexpr std::size_t kCount = std::size_t{size} * size;

    float& operator[](std::size_t i) { return values_[i]; }
    float operator[](std::size_t i) const { return values_[i]; }

    float dot(const Patch& other) const {
        std::array<float, kLanes> lanes{};
        for (std::size_t i = 0; i < kPadded; i += kLanes) {
            for (std::size_t lane = 0; lane < kLanes; ++lane)
                lanes[lane] += values_[i + lane] * other.values_[i + lane];
        }
        return total(lanes);
    }

    /// Subtracts the mean and returns the sum of squares of the result.
    float centre() {
        std::array<float, kLanes> lanes{};
        for (std::size_t i = 0; i < kPadded; i += kLanes) {
            for (std::size_t lane = 0; lane < kLanes; ++lane)
                lanes[lane] += values_[i + lane];
        }
        const float mean = total(lanes) / kCount;
        for (std::size_t i = 0; i < kCount; ++i)
            values_[i] -= mean;
        return dot(*this);
    }

    void subtract(const Patch& other, float share) {
        for (std::size_t i = 0; i < kPadded; ++i)
            values_[i] -= share * other.values_[i];
    }

private:
    static constexpr std::size_t kLanes = 8;
    static constexpr std::size_t kPadded = (kCount + kLanes - 1) / kLanes * kLanes;

    static float total(const std::array<float, kLanes>& lanes) {
        return ((lanes[0] + lanes[1]) + (lanes[2] + lanes[3])) + ((lanes[4] + lanes[5]) + (lanes[6] + lanes[7]));
    }

    alignas(32) std::array<float, kPadded> values_{};
};

}  // namespace vq
