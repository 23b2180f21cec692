#pragma once

#include "devices/windows/MediaSystem.h"

#include <cstdint>
#include <string>
#include <wrl/client.h>

namespace fieldcal {

/// What a stream of the rear camera is asked for. `framesPerSecond` 0: any rate.
struct CaptureFormat {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t framesPerSecond = 0;
    std::string subtype;  ///< four characters, "NV12"
};

/// The device's own media type that serves the format best: of the same size, then with the nearest rate, then in the
/// same subtype; from another subtype the engine converts. Null, and a log line: none has that size.
Microsoft::WRL::ComPtr<IMFMediaType> chooseDeviceType(IMFCaptureSource& source, DWORD stream,
                                                      const CaptureFormat& wanted);

/// The media type that a sink delivers. Null, and a log line, on failure.
Microsoft::WRL::ComPtr<IMFMediaType> sinkType(MediaSystem& system, const CaptureFormat& wanted);

}  // namespace fieldcal
