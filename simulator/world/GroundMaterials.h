#pragma once

#include "simulator/synthesis/Materials.h"
#include "simulator/world/Material.h"

namespace fieldcal::world {

/// Stones laid in rows on level ground. Texture: x and z in metres.
class Paving : public Material {
public:
    struct Stones {
        synthesis::Material stone = synthesis::materials::kPaving;
        float width = 0.6F, length = 0.9F, joint = 0.012F;
        float relief = 0.05F;
    };
    Paving(const Stones& stones, const synthesis::Noise& noise) : stones_(stones), noise_(noise) {}
    Look at(const Place& place) const override;

private:
    Stones stones_;
    const synthesis::Noise& noise_;
};

/// Mown or wild grass, whose blades are too fine for triangles. Texture: x and z in metres.
class Turf : public Material {
public:
    explicit Turf(const synthesis::Noise& noise) : noise_(noise) {}
    Look at(const Place& place) const override;

private:
    const synthesis::Noise& noise_;
};

/// Mountain ground: woods at low altitude, meadows on gentle slopes, rock on steep ones, snow at high altitude.
class Mountainside : public Material {
public:
    /// `treeLine`, `snowLine`: heights in metres.
    Mountainside(const synthesis::Noise& noise, float treeLine, float snowLine)
        : noise_(noise), treeLine_(treeLine), snowLine_(snowLine) {}
    Look at(const Place& place) const override;

private:
    synthesis::Spectrum rock(const Place& place) const;
    synthesis::Spectrum meadow(const Place& place) const;
    synthesis::Spectrum woods(const Place& place, cv::Vec3f* tilt) const;

    const synthesis::Noise& noise_;
    float treeLine_, snowLine_;
};

}  // namespace fieldcal::world
