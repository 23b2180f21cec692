#pragma once

#include "devices/windows/MediaSystem.h"

#include <cstdint>
#include <string>
#include <wrl/client.h>

namespace fieldcal {

/// The format requested from a stream of the rear camera. `framesPerSecond` 0: any rate.
struct CaptureFormat {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t framesPerSecond = 0;
    std::string subtype;  ///< four characters, "NV12"
};

/// Returns the device's own media type that suits the format best: of the same size, then with the nearest rate, then
/// in the same subtype; the engine converts other subtypes. Returns null and logs a line when no type has that size.
Microsoft::WRL::ComPtr<IMFMediaType> chooseDeviceType(IMFCaptureSource& source, DWORD stream,
                                                      const CaptureFormat& wanted);

/// Returns the media type that a sink delivers. Returns null and logs a line on failure.
Microsoft::WRL::ComPtr<IMFMediaType> sinkType(MediaSystem& system, const CaptureFormat& wanted);

}  // namespace fieldcal
