#pragma once

#include "kxapi/KXAPI.h"

#include <cstdint>
#include <vector>

namespace fieldcal {

/// The size of the rear camera's images and of their rectification.
inline constexpr std::int32_t kPlatformImageWidth = 1280;
inline constexpr std::int32_t kPlatformImageHeight = 720;

/// The rear camera's calibration as read from the module, needed to rectify its images.
struct PlatformCalibration {
    KXCalibIntrinsicsNonRectified kPlatformNonRectIntr{};
    KXCalibIntrinsicsRectified kPlatformRectIntr{};
    std::vector<std::uint32_t> rectificationTable;  ///< one entry per pixel of the rectified image; empty until read
};

}  // namespace fieldcal
