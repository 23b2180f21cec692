#pragma once

#include "kxapi/KXAPI.h"
#include "session/RecordedSession.h"

namespace kxsim {

/// Convert a recording's calibration to the library's records.
KXCalibIntrinsicsRectified rectifiedIntrinsics(const fieldcal::session::Intrinsics& camera);
KXCalibIntrinsicsNonRectified rawIntrinsics(const fieldcal::session::RawIntrinsics& camera);
KXCalibExtrinsics extrinsics(const fieldcal::session::Matrix3& rotation, const fieldcal::session::Vector3& translation);

}  // namespace kxsim
