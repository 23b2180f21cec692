#pragma once

#include "camera/CameraParameters.h"

#include <array>

namespace fieldcal {

constexpr std::array<float, 9> kNoRotation{1, 0, 0, 0, 1, 0, 0, 0, 1};

/// The calibration that the overlay needs to project depth into one colour camera's image.
struct OverlayCalibration {
    CameraModel depth;
    CameraModel colour;
    ColourScaling scaling;
    CameraExtrinsics stored;                       ///< depth to colour, as stored in the module
    std::array<float, 9> estimated = kNoRotation;  ///< the estimated rotation; row-major
};

inline OverlayCalibration overlayCalibration(const CameraParameters& parameters, ColourCamera camera,
                                             const std::array<float, 9>& estimated) {
    const ColourCameraParameters& colour = parameters.colour[camera];
    return {parameters.depth, colour.model, colour.scaling, colour.fromDepth, estimated};
}

}  // namespace fieldcal
