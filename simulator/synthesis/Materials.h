#pragma once

#include "simulator/synthesis/Noise.h"
#include "simulator/synthesis/Spectrum.h"

namespace fieldcal::synthesis {

/// A material: its mean reflectance and the strength of its mottling. Part of the mottling appears in every band (dirt,
/// relief), part only in the visible bands (pigment), part only in the near infrared (moisture, binder).
struct Material {
    Spectrum reflectance;
    float shared = 0.1F;    ///< relative deviation common to all bands
    float visible = 0.05F;  ///< relative deviation of the visible bands alone
    float infrared = 0.05F;
};

namespace materials {

inline constexpr Material kPlasterCream{{0.60F, 0.52F, 0.38F, 0.64F}, 0.05F, 0.03F, 0.03F};
inline constexpr Material kPlasterRose{{0.62F, 0.42F, 0.34F, 0.66F}, 0.05F, 0.03F, 0.03F};
inline constexpr Material kPlasterWhite{{0.74F, 0.72F, 0.66F, 0.70F}, 0.04F, 0.02F, 0.02F};
inline constexpr Material kPlasterBlue{{0.34F, 0.42F, 0.52F, 0.60F}, 0.05F, 0.04F, 0.03F};
inline constexpr Material kConcrete{{0.40F, 0.38F, 0.34F, 0.40F}, 0.10F, 0.05F, 0.05F};
inline constexpr Material kStone{{0.46F, 0.41F, 0.33F, 0.47F}, 0.13F, 0.07F, 0.07F};
inline constexpr Material kBrick{{0.38F, 0.20F, 0.14F, 0.48F}, 0.14F, 0.09F, 0.08F};
inline constexpr Material kMortar{{0.50F, 0.48F, 0.44F, 0.46F}, 0.08F, 0.04F, 0.04F};
inline constexpr Material kRoofTile{{0.38F, 0.17F, 0.11F, 0.42F}, 0.16F, 0.10F, 0.08F};
inline constexpr Material kSlate{{0.13F, 0.14F, 0.16F, 0.20F}, 0.14F, 0.06F, 0.06F};
inline constexpr Material kAsphalt{{0.13F, 0.13F, 0.13F, 0.15F}, 0.12F, 0.05F, 0.06F};
inline constexpr Material kPaving{{0.33F, 0.31F, 0.28F, 0.35F}, 0.12F, 0.06F, 0.06F};
inline constexpr Material kGravel{{0.42F, 0.37F, 0.29F, 0.44F}, 0.22F, 0.10F, 0.10F};
inline constexpr Material kGrass{{0.09F, 0.16F, 0.05F, 0.56F}, 0.22F, 0.20F, 0.12F};
inline constexpr Material kSoil{{0.22F, 0.16F, 0.11F, 0.28F}, 0.22F, 0.10F, 0.10F};
inline constexpr Material kLeaf{{0.085F, 0.16F, 0.05F, 0.52F}, 0.20F, 0.25F, 0.15F};
inline constexpr Material kBark{{0.15F, 0.12F, 0.09F, 0.24F}, 0.20F, 0.10F, 0.10F};
inline constexpr Material kWhitePaint{{0.78F, 0.77F, 0.73F, 0.72F}, 0.03F, 0.02F, 0.02F};
inline constexpr Material kGreenPaint{{0.08F, 0.20F, 0.12F, 0.34F}, 0.05F, 0.04F, 0.04F};
inline constexpr Material kBluePaint{{0.10F, 0.16F, 0.34F, 0.46F}, 0.05F, 0.04F, 0.04F};
inline constexpr Material kRedPaint{{0.45F, 0.10F, 0.08F, 0.55F}, 0.05F, 0.04F, 0.04F};
inline constexpr Material kWood{{0.30F, 0.19F, 0.11F, 0.48F}, 0.12F, 0.06F, 0.06F};
inline constexpr Material kMetal{{0.20F, 0.20F, 0.21F, 0.19F}, 0.05F, 0.02F, 0.02F};

}  // namespace materials

/// Returns the reflectance of a material at a position on its surface. The position, `coarse` (size of the largest
/// mottles) and `footprint` (size of one sample) are in metres.
Spectrum mottled(const Material& material, const Noise& noise, float x, float y, float coarse, float footprint);

}  // namespace fieldcal::synthesis
