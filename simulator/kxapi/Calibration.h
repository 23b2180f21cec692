#pragma once

#include "kxapi/KXAPI.h"
#include "session/RecordedSession.h"

namespace kxsim {

/// A recording's calibration in the library's records.
KXCalibIntrinsicsRectified rectifiedIntrinsics(const fieldcal::session::Intrinsics& camera);
KXCalibIntrinsicsNonRectified rawIntrinsics(const fieldcal::session::RawIntrinsics& camera);
KXCalibExtrinsics extrinsics(const fieldcal::session::Matrix3& rotation, const fieldcal::session::Vector3& translation);

/// The rectification block of a module whose infrared camera needs no rectification. The third camera's matrix is a
/// fixed small rotation, the platform camera's the recording's own (identity without one).
KXCalibRectParameters rectParameters(const fieldcal::session::SessionDescription& session);

}  // namespace kxsim
