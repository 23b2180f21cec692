#pragma once

#include "camera/ColourCamera.h"
#include "camera/ImageFrame.h"
#include "devices/SensorSettings.h"
#include "kxapi/KXAPI.h"

#include <opencv2/core.hpp>

#include <chrono>
#include <optional>

namespace fieldcal {

/// The latest frame of every stream. The infrared and depth records have the module's own sizes, the colour records
/// have the sizes of the infrared geometry. Empty until first filled.
struct FrameRecords {
    ImageFrame16 leftInfrared;
    ImageFrame16 rightInfrared;  ///< of the same frame set as the others; empty when that had none
    ImageFrame16 depth;
    PerColourCamera<ImageFrame32> colour;
};

/// What the last grab delivered for one stream.
struct StreamDelivery {
    bool delivered = false;  ///< an image was delivered
    bool changed = false;    ///< it differs from that of the grab before
};

/// Tracks whether the infrared and the colour image in the records were delivered together. An image that is repeated
/// while the other stream delivers a new one, as every second colour image is, was taken at another time and must not
/// be matched with it. When both are repeated, as in a recording of stills, they remain a pair.
class Pairing {
public:
    using Clock = std::chrono::steady_clock;

    void follow(const StreamDelivery& infrared, const StreamDelivery& colour, Clock::time_point infraredAt,
                Clock::time_point colourAt);
    /// The age of the older image of the pair; empty when the images are not a pair.
    std::optional<Clock::duration> age(Clock::time_point now) const;

private:
    bool isPair_ = false;
    std::optional<Clock::time_point> infraredAt_, colourAt_;
};

/// Copies the module's own streams into the records after a successful device grab. One thread.
class FrameAcquisition {
public:
    /// Gives the infrared, depth and in-module colour records the module's sizes. Returns false when a size is
    /// implausible.
    bool sizeRecords(KXDevice& device, KXThirdCamera& third);

    /// Skips streams that the settings or the device report as off, or that have no image, and the in-module colour
    /// stream until its scaled size is known. The right infrared record is emptied instead of kept, because an old
    /// right image must not be compared with a new left one.
    void refresh(KXDevice& device, KXThirdCamera* third, const SensorSettings& settings);

    FrameRecords records;
    StreamDelivery leftDelivery, thirdDelivery, depthDelivery;  ///< of the last `refresh`

private:
    void refreshThird(KXThirdCamera& third, const SensorSettings& settings);
    /// The colour camera runs at half the rate of the infrared cameras, so every other image is a repetition. Comparing
    /// costs a tenth of scaling. Returns false when the image is a repetition.
    bool keepIfNew(const std::uint8_t* pixels, std::int32_t width, std::int32_t height);

    cv::Mat third_;
    cv::Mat scaledThird_;
};

}  // namespace fieldcal
