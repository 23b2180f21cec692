#include "render/OverlayCalibration.h"

namespace fieldcal {

OverlayCalibration overlayCalibration(const CameraParameters& parameters, bool platform,
                                      const std::array<float, 9>& estimated) {
    if (platform) {
        return {parameters.depth, parameters.outOfModuleColour, parameters.outOfModuleScaling,
                parameters.depthToOutOfModule, estimated};
    }
    return {parameters.depth, parameters.inModuleColour, parameters.inModuleScaling, parameters.depthToInModule,
            estimated};
}

}  // namespace fieldcal
