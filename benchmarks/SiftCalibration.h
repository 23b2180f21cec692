#pragma once

#include "benchmarks/ModuleStills.h"

#include <optional>
#include <vector>

namespace fieldcal {

/// The reference for the program's calibration, built from OpenCV: SIFT features of both grey images, the ratio test,
/// one MAGSAC homography per still, and a joint robust fit of the three angles to the inliers of all stills, starting
/// at the factory rotation. Returns none when no still has a homography or the fit fails.
std::optional<Eigen::Matrix3d> calibrateWithSift(const std::vector<const FrameRecords*>& stills,
                                                 const JudgedCamera& camera);

}  // namespace fieldcal
