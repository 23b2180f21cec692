#pragma once

#include "simulator/synthesis/Spectrum.h"

#include <opencv2/core.hpp>

namespace fieldcal::synthesis {

/// Light arriving at the cameras from every direction: the whole scene, since at infinity only directions count.
class DirectionField {
public:
    virtual ~DirectionField() = default;
    /// `direction`: unit vector in the world (x right, y down, z forward). Radiance 0 … about 3; sunlit white is 1.
    virtual Spectrum radiance(const cv::Vec3f& direction) const = 0;
};

}  // namespace fieldcal::synthesis
