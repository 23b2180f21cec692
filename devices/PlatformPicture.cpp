#include "devices/PlatformPicture.h"

#include "devices/ColourConversion.h"

#include <algorithm>

namespace fieldcal {
namespace {

constexpr std::int32_t kLatestFrameWaitMs = 10;
constexpr std::chrono::milliseconds kLongestSilence{1000};
constexpr std::chrono::milliseconds kSilenceOfTheDead{3000};
// Between two grabs the caller may have been busy for seconds; a camera that delivers while we grab was not silent.
constexpr std::chrono::milliseconds kLongestGap{100};

}  // namespace

void PlatformPicture::fetch(CPlatformCameraControl& camera, const PlatformCalibration& calibration,
                            KXRectifyBGRA8ToBGRA8Function rectify, Clock::time_point now) {
    countSilence(now);
    if (!take(camera)) {
        if (!black_ && (!everTaken_ || silence_ >= kLongestSilence)) blacken();
        return;
    }
    working_.create(kPlatformPictureHeight, kPlatformPictureWidth, CV_8UC4);
    rectify(calibration.rectificationTable.data(), raw_.ptr(), kPlatformPictureWidth, kPlatformPictureWidth,
            kPlatformPictureHeight, working_.ptr());
    silence_ = {};
    isNew_ = true;
    black_ = false;
    everTaken_ = true;
}

bool PlatformPicture::hasDied() const {
    return everTaken_ && silence_ >= kSilenceOfTheDead;
}

bool PlatformPicture::take(CPlatformCameraControl& camera) {
    nv12_ = nullptr;
    const std::uint8_t* newest = nullptr;
    std::int32_t width = 0;
    std::int32_t height = 0;
    if (!camera.latestFrame(&newest, &width, &height, kLatestFrameWaitMs)) return false;
    if (width != kPlatformPictureWidth || height != kPlatformPictureHeight) return false;
    nv12ToBgra(newest, width, height, &raw_);
    nv12_ = newest;
    return true;
}

void PlatformPicture::countSilence(Clock::time_point now) {
    if (lastFetch_) silence_ += std::min<Clock::duration>(now - *lastFetch_, kLongestGap);
    lastFetch_ = now;
}

void PlatformPicture::blacken() {
    working_.create(kPlatformPictureHeight, kPlatformPictureWidth, CV_8UC4);
    working_.setTo(cv::Scalar::all(0));
    isNew_ = true;
    black_ = true;
}

void PlatformPicture::deliver(std::int32_t width, std::int32_t height, ImageFrame32* record) {
    if (!isNew_ || !isPlausiblePictureSize(width, height)) return;
    scaleIntoRecord(working_, width, height, &scaled_, record);
    isNew_ = false;
}

}  // namespace fieldcal
