#pragma once

#include "simulator/synthesis/Light.h"
#include "simulator/synthesis/Materials.h"
#include "simulator/synthesis/Random.h"

namespace fieldcal::synthesis {

enum class Masonry { plaster, brick, blocks };

/// The appearance of a building's front. Metres.
struct FacadeStyle {
    Masonry masonry = Masonry::plaster;
    Material wall = materials::kPlasterCream;
    Material trim = materials::kStone;
    Material shutter = materials::kGreenPaint;
    float storey = 3.2F;
    float bay = 3.0F;
    float windowWidth = 1.2F;
    float windowHeight = 1.7F;
    float sill = 0.95F;      ///< above the floor of the storey
    float surround = 0.16F;  ///< width of the trim around a window, 0 for none
    float recess = 0.22F;    ///< depth of the glass behind the wall
    bool shutters = false;
    bool shops = false;       ///< shop windows and signs on the ground floor
    bool rusticated = false;  ///< grooves across the ground floor
    bool windows = true;
    float balconies = 0;  ///< share of windows with a balcony
    float variety = 1;    ///< 0: all windows are equal
    std::uint32_t seed = 0;
};

FacadeStyle drawFacadeStyle(Random& random);

/// Direction of the sun relative to a front: along its base, upwards, and out of the wall.
struct FrontSun {
    float along = 0, up = 0, out = 0;
    /// Offset of the shadow of an object `depth` in front of the wall, down and along the wall; 0 in the shade.
    float dropBelow(float depth) const { return out > 0.05F ? depth * up / out : 0; }
    float dropAside(float depth) const { return out > 0.05F ? -depth * along / out : 0; }
};

/// A position on a front: metres along its base and above the ground, and the size of one sample.
struct FrontPlace {
    float s = 0, h = 0, footprint = 0.02F;
};

/// Returns the surface of a front at a position. `length`, `height`: of the whole front.
Surface frontSurface(const FacadeStyle& style, const Noise& noise, const FrontSun& sun, FrontPlace place, float length,
                     float height);

/// Returns the light of a window pane: the reflected sky and opposite side, and what is visible behind the glass.
Surface paneSurface(const FacadeStyle& style, const Noise& noise, int bay, int floor, FrontPlace inWindow);

/// Returns the reflectance of a sign board with lettering, some of whose inks are invisible in the near infrared. (x,
/// y) counts from its lower left corner.
Spectrum signReflectance(std::uint32_t seed, float x, float y, float height);

}  // namespace fieldcal::synthesis
