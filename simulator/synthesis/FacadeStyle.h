#pragma once

#include "simulator/synthesis/Light.h"
#include "simulator/synthesis/Materials.h"
#include "simulator/synthesis/Random.h"

namespace fieldcal::synthesis {

enum class Masonry { plaster, brick, blocks };

/// How a building's front looks. Metres.
struct FacadeStyle {
    Masonry masonry = Masonry::plaster;
    Material wall = materials::plasterCream;
    Material trim = materials::stone;
    Material shutter = materials::greenPaint;
    float storey = 3.2F;
    float bay = 3.0F;
    float windowWidth = 1.2F;
    float windowHeight = 1.7F;
    float sill = 0.95F;      ///< above the storey's floor
    float surround = 0.16F;  ///< width of the trim around a window, 0 for none
    float recess = 0.22F;    ///< how deep the glass sits
    bool shutters = false;
    bool shops = false;       ///< shop windows and signs on the ground floor
    bool rusticated = false;  ///< grooves across the ground floor
    bool windows = true;
    float balconies = 0;  ///< share of windows that have one
    float variety = 1;    ///< 0: every window is like the next
    std::uint32_t seed = 0;
};

FacadeStyle drawFacadeStyle(Random& random);

/// Where the sun stands as a front sees it: along its base, upwards, and out of the wall.
struct FrontSun {
    float along = 0, up = 0, out = 0;
    /// How far the shadow of something `depth` in front of the wall is moved down and along; 0 in the shade.
    float dropBelow(float depth) const { return out > 0.05F ? depth * up / out : 0; }
    float dropAside(float depth) const { return out > 0.05F ? -depth * along / out : 0; }
};

/// A place on a front: metres along its base and above the ground, and what one sample covers.
struct FrontPlace {
    float s = 0, h = 0, footprint = 0.02F;
};

/// Surface of a front at a place. `length`, `height`: the whole front's.
Surface frontSurface(const FacadeStyle& style, const Noise& noise, const FrontSun& sun, FrontPlace place, float length,
                     float height);

/// Light in a window pane: the reflected sky and opposite side, and what stands or hangs behind the glass.
Surface paneSurface(const FacadeStyle& style, const Noise& noise, int bay, int floor, FrontPlace inWindow);

/// A sign board with lettering. Some inks are not seen in the near infrared. (x, y) from its lower left corner.
Spectrum signReflectance(std::uint32_t seed, float x, float y, float height);

}  // namespace fieldcal::synthesis
