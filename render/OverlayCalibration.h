#pragma once

#include "camera/CameraParameters.h"

#include <array>

namespace fieldcal {

constexpr std::array<float, 9> kNoRotation{1, 0, 0, 0, 1, 0, 0, 0, 1};

/// What the overlay needs to bring depth into one colour camera's picture.
struct OverlayCalibration {
    CameraModel depth;
    CameraModel colour;
    ColourScaling scaling;
    CameraExtrinsics stored;                       ///< depth to colour, as the module holds it
    std::array<float, 9> estimated = kNoRotation;  ///< the rotation that was found; row-major
};

OverlayCalibration overlayCalibration(const CameraParameters& parameters, ColourCamera camera,
                                      const std::array<float, 9>& estimated);

}  // namespace fieldcal
