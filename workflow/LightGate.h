#pragma once

#include <algorithm>
#include <cstdint>

namespace fieldcal {

/// Decides whether the infrared image is bright enough to show the texture of the scene. Once lit, the threshold falls
/// by 15 %, so that a passing cloud does not toggle the result. One thread.
class LightGate {
public:
    /// The result of a measurement while the user looks for light.
    struct Reading {
        bool lit;
        double progress;  ///< 0..1; 1 when lit
    };

    /// Sets or clears the lit flag. A brightness equal to the threshold counts as dark.
    Reading detect(std::uint16_t brightness) {
        const double limit = threshold();
        wellLit_ = brightness > limit;
        if (wellLit_) return {true, 1.0};
        return {false, std::clamp((brightness - 8.0) / limit, 0.0, 1.0)};
    }
    /// The test used during capture: a brightness equal to the threshold counts as lit, and the flag is unchanged.
    bool isLitForCapture(std::uint16_t brightness) const { return brightness >= threshold(); }

    bool wellLit() const { return wellLit_; }
    /// 130, and 110.5 once lit.
    double threshold() const { return 130.0 * (1.0 - 0.15 * (wellLit_ ? 1.0 : 0.0)); }

private:
    bool wellLit_ = false;
};

}  // namespace fieldcal
