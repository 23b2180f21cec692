#pragma once

#include "camera/Rotation.h"
#include "devices/ModuleLink.h"

#include <bitset>
#include <optional>

namespace fieldcal {

/// Bytes of a parameter block.
using BlockBytes = std::bitset<sizeof(KXCalibRectParameters)>;

BlockBytes differences(const KXCalibRectParameters& a, const KXCalibRectParameters& b);

/// The rotation between the raw frames, as the companion library takes it, for one between the rectified frames.
/// The other two are matrices of the block, raw to rectified.
Matrix3 rawRotation(const Rotation& rotation, const float* rectifyColour, const float* rectifyInfrared);

/// The block with another rotation of a camera. Empty: the call was given up.
std::optional<KXCalibRectParameters> turned(ModuleLink& link, KXUpdateRotationFunction function,
                                            const Matrix3& rotation, const KXCalibRectParameters& block);

/// The fields of a camera's rotation: the words in which two different rotations make different blocks.
std::optional<BlockBytes> rotationFields(ModuleLink& link, KXUpdateRotationFunction function,
                                         const KXCalibRectParameters& block);

}  // namespace fieldcal
