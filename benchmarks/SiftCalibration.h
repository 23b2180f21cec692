#pragma once

#include "benchmarks/ModuleStills.h"

#include <optional>
#include <vector>

namespace fieldcal {

/// The peer of the program's calibration, made of what OpenCV offers: SIFT features of both grey pictures, the ratio
/// test, one MAGSAC homography a still, and a joint robust fit of the three angles to the inliers of all stills,
/// started at the factory rotation. Empty when no still has a homography or the fit fails.
std::optional<Eigen::Matrix3d> calibrateWithSift(const std::vector<const FrameRecords*>& stills,
                                                 const JudgedCamera& camera);

}  // namespace fieldcal
