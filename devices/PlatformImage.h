#pragma once

#include "camera/ImageFrame.h"
#include "devices/PlatformCalibration.h"
#include "devices/PlatformCameraControl.h"
#include "kxapi/KXAPI.h"

#include <opencv2/core.hpp>

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

namespace fieldcal {

/// Converts the rear camera's newest NV12 image into the colour record: colour conversion, rectification, scaling. Each
/// image is converted once; without a new image the record keeps its content. It turns black when there never was an
/// image, or when none arrived during a second of grabbing.
class PlatformImage {
public:
    using Clock = std::chrono::steady_clock;

    /// Takes the newest image, if any, and rectifies it. `now` must not decrease.
    void fetch(CPlatformCameraControl& camera, const PlatformCalibration& calibration,
               KXRectifyBGRA8ToBGRA8Function rectify, Clock::time_point now);

    /// The image taken by the last `fetch`, as the camera delivered it; null when it took none. The bytes belong to the
    /// camera and stay valid until the next `fetch`.
    const std::uint8_t* nv12() const { return nv12_; }

    /// Returns whether the last `fetch` delivered a different image than the one before, with another time stamp and
    /// other bytes.
    bool changed() const { return changed_; }
    /// The time at which the newest image reached this program.
    Clock::time_point arrived() const { return arrived_; }

    /// Returns whether the camera has delivered images, and then none during some seconds of grabbing.
    bool hasFailed() const;

    /// Scales the image of the last `fetch` into the record if it is new. Has no effect for an implausible size.
    void deliver(std::int32_t width, std::int32_t height, ImageFrame32* record);

private:
    bool take(CPlatformCameraControl& camera);
    void accumulateSilence(Clock::time_point now);
    void blacken();

    const std::uint8_t* nv12_ = nullptr;
    std::vector<std::uint8_t> lastNv12_;
    double lastTimeSeconds_ = 0;
    Clock::time_point arrived_;
    bool changed_ = false;
    cv::Mat raw_;
    cv::Mat working_;
    cv::Mat scaled_;
    bool isNew_ = false;  ///< `working_` holds an image that has not been delivered to the record
    bool black_ = false;
    bool everTaken_ = false;
    std::optional<Clock::time_point> lastFetch_;
    Clock::duration silence_{};
};

}  // namespace fieldcal
