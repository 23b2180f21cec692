#pragma once

#include "camera/Rotation.h"
#include "devices/BlockChange.h"
#include "devices/ModuleLink.h"

#include <optional>

namespace fieldcal {

BlockBytes differences(const KXCalibRectParameters& a, const KXCalibRectParameters& b);

/// Converts a rotation between the rectified frames to one between the raw frames, as the companion library expects it.
/// `rectifyColour` and `rectifyInfrared` are matrices of the block (3 x 3, row-major, raw to rectified).
Matrix3 rawRotation(const Rotation& rotation, const float* rectifyColour, const float* rectifyInfrared);

/// Returns the block with the camera's rotation replaced by `rotation`, which is between raw frames. Returns none when
/// the call was abandoned.
std::optional<KXCalibRectParameters> turned(ModuleLink& link, KXUpdateRotationFunction function,
                                            const Matrix3& rotation, const KXCalibRectParameters& block);

/// Returns the bytes that hold a camera's rotation: the 4-byte words that differ between the blocks made with two
/// different rotations. Returns none when a call was abandoned.
std::optional<BlockBytes> rotationFields(ModuleLink& link, KXUpdateRotationFunction function,
                                         const KXCalibRectParameters& block);

}  // namespace fieldcal
