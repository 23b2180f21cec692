#pragma once

#include "simulator/synthesis/Materials.h"
#include "simulator/world/Material.h"

#include <array>

namespace fieldcal::world {

/// A mottled solid. Texture coordinates in metres.
class Solid : public Material {
public:
    struct Finish {
        float coarse = 1;  ///< size of the largest mottles, metres
        float mirror = 0;
        float relief = 0;  ///< approximate tilt of the normal by bumps, radians
    };
    Solid(const synthesis::Material& substance, const synthesis::Noise& noise, const Finish& finish)
        : substance_(substance), noise_(noise), finish_(finish) {}
    Look at(const Place& place) const override;

private:
    synthesis::Material substance_;
    const synthesis::Noise& noise_;
    Finish finish_;
};

/// Emits light, equally in every band and direction.
class Glow : public Material {
public:
    explicit Glow(float radiance) : radiance_(radiance) {}
    Look at(const Place& place) const override;

private:
    float radiance_;
};

/// Leaves, needles and blades: single triangles or quads. Texture: (a random number of the leaf, its visible share of
/// the sky).
class Leaf : public Material {
public:
    explicit Leaf(const synthesis::Spectrum& reflectance) : reflectance_(reflectance) {}
    Look at(const Place& place) const override;

private:
    synthesis::Spectrum reflectance_;
};

/// Window glass in front of a dark interior.
class Glass : public Material {
public:
    explicit Glass(const synthesis::Spectrum& inside) : inside_(inside) {}
    Look at(const Place& place) const override;

private:
    synthesis::Spectrum inside_;
};

/// Still water with ripples, dark in the near infrared. Texture: metres.
class Water : public Material {
public:
    explicit Water(const synthesis::Noise& noise) : noise_(noise) {}
    Look at(const Place& place) const override;

private:
    const synthesis::Noise& noise_;
};

/// A board with lettering, some of whose inks are invisible in the near infrared. Texture from its lower left corner.
class Sign : public Material {
public:
    Sign(std::uint32_t seed, float height) : seed_(seed), height_(height) {}
    Look at(const Place& place) const override;

private:
    std::uint32_t seed_;
    float height_;
};

/// Slope of a random height field at a position, for tilting normals: two independent numbers of about ±1.
cv::Vec2f bumps(const synthesis::Noise& noise, const cv::Vec2f& at, float coarse, float footprint);

}  // namespace fieldcal::world
