#include "devices/PlatformImage.h"

#include "devices/ColourConversion.h"

#include <algorithm>

namespace fieldcal {
namespace {

constexpr std::int32_t kLatestFrameWaitMs = 10;
constexpr std::chrono::milliseconds kBlackoutSilence{1000};
constexpr std::chrono::milliseconds kFailureSilence{3000};
// Largest gap counted between two grabs. The caller may have been busy for seconds, and a camera that delivers during
// grabs must not count as silent.
constexpr std::chrono::milliseconds kLongestGap{100};

}  // namespace

void PlatformImage::fetch(CPlatformCameraControl& camera, const PlatformCalibration& calibration,
                          KXRectifyBGRA8ToBGRA8Function rectify, Clock::time_point now) {
    accumulateSilence(now);
    if (!take(camera)) {
        if (!black_ && (!everTaken_ || silence_ >= kBlackoutSilence)) blacken();
        return;
    }
    working_.create(kPlatformImageHeight, kPlatformImageWidth, CV_8UC4);
    rectify(calibration.rectificationTable.data(), raw_.ptr(), kPlatformImageWidth, kPlatformImageWidth,
            kPlatformImageHeight, working_.ptr());
    silence_ = {};
    isNew_ = true;
    black_ = false;
    everTaken_ = true;
}

bool PlatformImage::hasFailed() const {
    return everTaken_ && silence_ >= kFailureSilence;
}

bool PlatformImage::take(CPlatformCameraControl& camera) {
    nv12_ = nullptr;
    changed_ = false;
    QueuedImage newest;
    if (!camera.latestFrame(&newest, kLatestFrameWaitMs)) return false;
    if (newest.width != kPlatformImageWidth || newest.height != kPlatformImageHeight) return false;
    nv12ToBgra(newest.pixels, newest.width, newest.height, &raw_);
    nv12_ = newest.pixels;
    const std::uint8_t* end = nv12_ + static_cast<std::ptrdiff_t>(kPlatformImageWidth) * kPlatformImageHeight * 3 / 2;
    // A camera without time stamps reports 0.
    const bool sameTime = newest.timeSeconds != 0 && newest.timeSeconds == lastTimeSeconds_;
    changed_ = !sameTime && !std::equal(nv12_, end, lastNv12_.begin(), lastNv12_.end());
    if (changed_) lastNv12_.assign(nv12_, end);
    lastTimeSeconds_ = newest.timeSeconds;
    arrived_ = newest.arrived;
    return true;
}

void PlatformImage::accumulateSilence(Clock::time_point now) {
    if (lastFetch_) silence_ += std::min<Clock::duration>(now - *lastFetch_, kLongestGap);
    lastFetch_ = now;
}

void PlatformImage::blacken() {
    working_.create(kPlatformImageHeight, kPlatformImageWidth, CV_8UC4);
    working_.setTo(cv::Scalar::all(0));
    isNew_ = true;
    black_ = true;
}

void PlatformImage::deliver(std::int32_t width, std::int32_t height, ImageFrame32* record) {
    if (!isNew_ || !isPlausibleImageSize(width, height)) return;
    scaleIntoRecord(working_, width, height, &scaled_, record);
    isNew_ = false;
}

}  // namespace fieldcal
