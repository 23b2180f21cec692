#include "devices/PlatformPicture.h"

#include "devices/ColourConversion.h"

#include <algorithm>

namespace fieldcal {
namespace {

constexpr std::int32_t kLatestFrameWaitMs = 10;
constexpr std::chrono::milliseconds kLongestSilence{1000};
constexpr std::chrono::milliseconds kSilenceOfTheDead{3000};
// Largest gap counted between two grabs. The caller may have been busy for seconds, and a camera that delivers during
// grabs must not count as silent.
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
    changed_ = false;
    QueuedPicture newest;
    if (!camera.latestFrame(&newest, kLatestFrameWaitMs)) return false;
    if (newest.width != kPlatformPictureWidth || newest.height != kPlatformPictureHeight) return false;
    nv12ToBgra(newest.pixels, newest.width, newest.height, &raw_);
    nv12_ = newest.pixels;
    const std::uint8_t* end =
        nv12_ + static_cast<std::ptrdiff_t>(kPlatformPictureWidth) * kPlatformPictureHeight * 3 / 2;
    // A camera without time stamps reports 0.
    const bool sameTime = newest.timeSeconds != 0 && newest.timeSeconds == lastTimeSeconds_;
    changed_ = !sameTime && !std::equal(nv12_, end, lastNv12_.begin(), lastNv12_.end());
    if (changed_) lastNv12_.assign(nv12_, end);
    lastTimeSeconds_ = newest.timeSeconds;
    arrived_ = newest.arrived;
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
