#pragma once

#include <algorithm>

namespace fieldcal::synthesis {

/// Light or reflectance in the three colour bands and in the near infrared.
struct Spectrum {
    float red = 0, green = 0, blue = 0, infrared = 0;

    Spectrum& operator+=(const Spectrum& o) {
        red += o.red, green += o.green, blue += o.blue, infrared += o.infrared;
        return *this;
    }
    /// Multiplies the three colour bands by one factor and the infrared by another.
    Spectrum scaled(float visible, float nearInfrared) const {
        return {red * visible, green * visible, blue * visible, infrared * nearInfrared};
    }
};

inline Spectrum operator+(Spectrum a, const Spectrum& b) {
    return a += b;
}
inline Spectrum operator*(const Spectrum& a, const Spectrum& b) {
    return {a.red * b.red, a.green * b.green, a.blue * b.blue, a.infrared * b.infrared};
}
inline Spectrum operator*(const Spectrum& a, float k) {
    return a.scaled(k, k);
}

/// Returns a at t = 0 and b at t = 1; t is clamped to 0 … 1.
inline Spectrum mix(const Spectrum& a, const Spectrum& b, float t) {
    const float k = std::clamp(t, 0.0F, 1.0F);
    return a * (1 - k) + b * k;
}

inline float smoothStep(float low, float high, float v) {
    const float t = std::clamp((v - low) / (high - low), 0.0F, 1.0F);
    return t * t * (3 - 2 * t);
}

}  // namespace fieldcal::synthesis
