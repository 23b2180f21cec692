#pragma once

#include "simulator/synthesis/StillSettings.h"
#include "simulator/world/Depth.h"

/// Convert a view to the images of a rig's sensors. Equal arguments give equal bytes.
namespace fieldcal::world {

/// Ten bits per pixel.
ImageFrame16 infraredFrame(const View& view, const synthesis::StillSettings& settings, std::uint64_t noiseSeed);

/// The right imager's image, with the exposure of the left one.
ImageFrame16 rightInfraredFrame(const View& view, const synthesis::StillSettings& settings, std::uint64_t noiseSeed);

/// BGRA, alpha 255.
ImageFrame32 thirdFrame(const View& view, const synthesis::StillSettings& settings, std::uint64_t noiseSeed);

/// NV12, 1280 x 720; empty when the view has no platform image. An image of half the size is enlarged.
std::vector<std::uint8_t> platformFrame(const View& view, const synthesis::StillSettings& settings,
                                        std::uint64_t noiseSeed);

/// Millimetres, 0 for none.
ImageFrame16 depthFrame(const View& view, const StereoModel& model, std::uint64_t noiseSeed);

}  // namespace fieldcal::world
