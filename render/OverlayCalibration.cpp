#include "render/OverlayCalibration.h"

namespace fieldcal {

OverlayCalibration overlayCalibration(const CameraParameters& parameters, ColourCamera camera,
                                      const std::array<float, 9>& estimated) {
    const ColourCameraParameters& colour = parameters.colour[camera];
    return {parameters.depth, colour.model, colour.scaling, colour.fromDepth, estimated};
}

}  // namespace fieldcal
