#pragma once

#include "kxapi/KXAPI.h"
#include "session/RecordedSession.h"

namespace kxsim {

/// Returns the block that the manufacturer of a recording's module would have written, with exactly the recording's
/// calibration. The infrared and third cameras are rectified by fixed small rotations, the platform camera by the
/// recording's own (or by another small one if it has none).
KXCalibRectParameters factoryBlock(const fieldcal::session::SessionDescription& session);

/// Returns whether every field that the module uses is valid: finite, and rotations within 1e-3. `why`: "field:
/// reason".
bool isValidBlock(const KXCalibRectParameters& block, std::string* why);

/// Returns the extrinsics that the module reports for a block: depth to rectified colour, Mx · Q · M0⁻¹ in double
/// precision, then converted to single precision. Where the result equals the recording's value except for rounding,
/// the recording's value is returned.
KXCalibExtrinsics thirdExtrinsics(const KXCalibRectParameters& block,
                                  const fieldcal::session::SessionDescription& session);
/// The same for the platform camera, which the recording must have.
KXCalibExtrinsics platformExtrinsics(const KXCalibRectParameters& block,
                                     const fieldcal::session::SessionDescription& session);

}  // namespace kxsim
