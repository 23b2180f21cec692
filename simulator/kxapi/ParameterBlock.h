#pragma once

#include "kxapi/KXAPI.h"
#include "session/RecordedSession.h"

namespace kxsim {

/// The block that the maker of a recording's module would have written: it says exactly what the recording says.
/// The infrared and third cameras are rectified by fixed small rotations, the platform camera by the recording's own
/// (another small one without it).
KXCalibRectParameters factoryBlock(const fieldcal::session::SessionDescription& session);

/// Whether every field that the module works with makes sense: finite, rotations within 1e-3. `why`: "field: reason".
bool makesSense(const KXCalibRectParameters& block, std::string* why);

/// What the module tells of a block: depth to rectified colour, Mx · Q · M0⁻¹ in double, then narrowed. Where that is
/// the recording's number but for the rounding of doubles, it is the recording's number.
KXCalibExtrinsics thirdExtrinsics(const KXCalibRectParameters& block,
                                  const fieldcal::session::SessionDescription& session);
/// The same for the platform camera, which the recording must have.
KXCalibExtrinsics platformExtrinsics(const KXCalibRectParameters& block,
                                     const fieldcal::session::SessionDescription& session);

}  // namespace kxsim
