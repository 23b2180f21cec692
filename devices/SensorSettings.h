#pragma once

#include <cstdint>

namespace fieldcal {

/// Settings with which the cameras are opened and run, copied by `Sensor::open`. Sizes are in pixels.
struct SensorSettings {
    float exposure = 16.3F;  ///< milliseconds; used only without automatic exposure, as is `gain`
    float exposureMin = 0.1F;
    float exposureMax = 16.3F;
    float gain = 30.0F;
    float gainMin = 1.0F;
    float gainMax = 64.0F;
    bool autoExposure = false;
    bool hardwareOption = true;
    bool depthEnabled = true;
    bool leftEnabled = true;
    bool rightEnabled = true;
    bool thirdEnabled = true;
    bool usePlatformCamera = true;
    bool streamOption = true;
    bool rectified = true;
    bool emitterOn = false;
    std::int32_t depthWidth = 628;
    std::int32_t depthHeight = 468;
    std::int32_t depthPixelFormat = 1;  ///< KX_PIXEL_FORMAT_16_BIT
    std::int32_t thirdWidth = 640;
    std::int32_t thirdHeight = 480;
    std::int32_t thirdPixelFormat = 3;  ///< KX_PIXEL_FORMAT_BGRA8
    std::int32_t platformWidth = 1280;
    std::int32_t platformHeight = 720;
    std::int32_t thirdScaledWidth = 0;  ///< the four scaled sizes are filled when the calibration is read
    std::int32_t thirdScaledHeight = 0;
    std::int32_t platformScaledWidth = 0;
    std::int32_t platformScaledHeight = 0;
    /// Largest number of photo pairs in one calibration attempt; not used by the sensor.
    std::int32_t attemptLimit = 0;
};

/// The settings with which the application opens the cameras.
inline SensorSettings applicationSettings() {
    SensorSettings settings;
    settings.exposure = 16.0F;
    settings.gain = 1.0F;
    settings.autoExposure = true;
    settings.attemptLimit = 8;
    return settings;
}

}  // namespace fieldcal
