#pragma once

#include "simulator/synthesis/Light.h"
#include "simulator/synthesis/Materials.h"
#include "simulator/synthesis/Shadows.h"

#include <vector>

namespace fieldcal::synthesis {

enum class Paving { slabs, cobbles, asphalt, gravel, lawn };

/// A bed of grass let into the paving.
struct Lawn {
    cv::Vec2f centre;
    cv::Vec2f halfSize;
};

/// The level ground around the viewer.
class Ground {
public:
    static constexpr float reach = 55.0F;  ///< metres from the viewer within which shadows are kept

    Ground(const Noise& noise, float eyeHeight, Paving paving) : noise_(noise), eye_(eyeHeight), paving_(paving) {}
    void add(const Lawn& lawn) { lawns_.push_back(lawn); }
    void castShadows(const Occluders& occluders);

    float eyeHeight() const { return eye_; }
    bool isLawn(float x, float z) const;
    /// Reflected light at (x, z), metres from the viewer; `footprint`: metres that one sample covers across.
    Spectrum radiance(float x, float z, float footprint, const Light& light) const;

private:
    Spectrum reflectanceAt(float x, float z, float footprint, float distance) const;
    Spectrum slabs(float x, float z, float footprint) const;
    Spectrum cobbles(float x, float z, float footprint) const;
    Spectrum gravel(float x, float z, float footprint) const;
    Spectrum asphalt(float x, float z, float footprint) const;
    Spectrum grass(float x, float z, float footprint, float distance) const;
    float blades(float x, float z, float distance, float shift) const;

    const Noise& noise_;
    float eye_;
    Paving paving_;
    std::vector<Lawn> lawns_;
    ShadowMap shadows_;
};

}  // namespace fieldcal::synthesis
