#pragma once

#include <cstdint>

namespace fieldcal {

/// Whether the infrared picture is bright enough to show the scene's own texture. Once lit, the threshold falls by
/// 15 %, so that a passing cloud does not switch back and forth. One thread.
class LightGate {
public:
    /// What a measurement says while the user looks for light.
    struct Reading {
        bool lit;
        double progress;  ///< 0..1; 1 when lit
    };

    /// Brightness exactly at the threshold is dark here. Sets or clears the lit flag.
    Reading detect(std::uint16_t brightness);
    /// The same question during capture: exactly at the threshold is lit, and the flag stays as it is.
    bool isLitForCapture(std::uint16_t brightness) const { return brightness >= threshold(); }

    bool wellLit() const { return wellLit_; }
    /// 130, and 110.5 once lit.
    double threshold() const { return 130.0 * (1.0 - 0.15 * (wellLit_ ? 1.0 : 0.0)); }

private:
    bool wellLit_ = false;
};

}  // namespace fieldcal
