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
/// the sizes of the infrared geometry. Empty until first filled.
struct FrameRecords {
    ImageFrame16 leftInfrared;
    ImageFrame16 rightInfrared;  ///< of the same grab as the others; empty when that brought none
    ImageFrame16 depth;
    PerColourCamera<ImageFrame32> colour;
};

/// What a grab brought of a stream.
struct StreamNews {
    bool delivered = false;  ///< a picture
    bool changed = false;    ///< another one than the grab before
};

/// Whether the infrared and the colour picture in the records were delivered together. A picture that stands still
/// while the other one goes on is of another moment, as is every second colour picture, and must not be matched with
/// it; where both stand still, as in a recording of stills, they stay a pair.
class Pairing {
public:
    using Clock = std::chrono::steady_clock;

    void follow(const StreamNews& infrared, const StreamNews& colour, Clock::time_point infraredAt,
                Clock::time_point colourAt);
    /// How old the older picture of the pair is; empty when they are none.
    std::optional<Clock::duration> age(Clock::time_point now) const;

private:
    bool isPair_ = false;
    std::optional<Clock::time_point> infraredAt_, colourAt_;
};

/// Copies the module's own streams into the records after a successful device grab. One thread.
class FrameAcquisition {
public:
    /// Gives the infrared, depth and in-module records the module's sizes. False: a size is implausible.
    bool sizeRecords(KXDevice& device, KXThirdCamera& third);

    /// Skips streams that the settings or the device report as off, or that have no picture; the in-module colour
    /// also until its scaled size is known. The right infrared record is emptied instead: whoever compares the two
    /// infrared pictures must not take an old one for a new one.
    void refresh(KXDevice& device, KXThirdCamera* third, const SensorSettings& settings);

    FrameRecords records;
    StreamNews leftNews, thirdNews, depthNews;  ///< of the last `refresh`

private:
    void refreshThird(KXThirdCamera& third, const SensorSettings& settings);
    /// The colour camera runs at half the rate of the infrared ones: every other picture is the one before, and
    /// comparing costs a tenth of scaling. False: nothing new.
    bool keepIfNew(const std::uint8_t* pixels, std::int32_t width, std::int32_t height);

    cv::Mat third_;
    cv::Mat scaledThird_;
};

}  // namespace fieldcal
