#pragma once

#include "kxapi/KXAPI.h"

#include <cstdint>
#include <vector>

namespace fieldcal {

/// Size of the rear camera's pictures and of its rectification.
inline constexpr std::int32_t kPlatformPictureWidth = 1280;
inline constexpr std::int32_t kPlatformPictureHeight = 720;

/// What the rear camera's rectification needs, as read from the module.
struct PlatformCalibration {
    KXCalibIntrinsicsNonRectified kPlatformNonRectIntr{};
    KXCalibIntrinsicsRectified kPlatformRectIntr{};
    std::vector<std::uint32_t> rectificationTable;  ///< one entry a pixel of the rectified picture; empty until read
};

}  // namespace fieldcal
