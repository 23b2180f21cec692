#include "simulator/world/Sensors.h"

#include "session/Nv12.h"

#include <opencv2/imgproc.hpp>

namespace fieldcal::world {

using synthesis::Random;

namespace {

/// Enlarges an NV12 image to the size of the platform camera.
std::vector<std::uint8_t> enlarged(std::vector<std::uint8_t>& nv12, cv::Size size) {
    const cv::Size whole(session::kPlatformWidth, session::kPlatformHeight);
    std::vector<std::uint8_t> large(static_cast<std::size_t>(whole.area()) * 3 / 2);
    const cv::Mat luma(size, CV_8UC1, nv12.data()), chroma(size / 2, CV_8UC2, nv12.data() + size.area());
    cv::Mat largeLuma(whole, CV_8UC1, large.data()), largeChroma(whole / 2, CV_8UC2, large.data() + whole.area());
    cv::resize(luma, largeLuma, whole, 0, 0, cv::INTER_LINEAR);
    cv::resize(chroma, largeChroma, whole / 2, 0, 0, cv::INTER_LINEAR);
    return large;
}

}  // namespace

ImageFrame16 infraredFrame(const View& view, const synthesis::StillSettings& settings, std::uint64_t noiseSeed) {
    Random random(noiseSeed, "infrared noise");
    return exposeInfrared(view.infrared, settings.infrared, settings.darkness, random);
}

ImageFrame16 rightInfraredFrame(const View& view, const synthesis::StillSettings& settings, std::uint64_t noiseSeed) {
    Random random(noiseSeed, "right infrared noise");
    synthesis::InfraredSensor sensor = settings.infrared;
    sensor.meanLevel *= view.rightImager.gain;
    return exposeInfrared(view.right, view.infrared, sensor, settings.darkness, random);
}

ImageFrame32 thirdFrame(const View& view, const synthesis::StillSettings& settings, std::uint64_t noiseSeed) {
    Random random(noiseSeed, "third noise");
    return exposeColour(view.third, settings.colour, settings.darkness, random);
}

std::vector<std::uint8_t> platformFrame(const View& view, const synthesis::StillSettings& settings,
                                        std::uint64_t noiseSeed) {
    if (view.platform.empty()) return {};
    Random random(noiseSeed, "platform noise");
    const ImageFrame32 seen = exposeColour(view.platform, settings.colour, settings.darkness, random);
    const cv::Size size = view.platform.size();
    std::vector<std::uint8_t> nv12(static_cast<std::size_t>(size.area()) * 3 / 2);
    session::nv12FromBgra(seen.bytes(), size.width, size.height, nv12.data());
    if (size.width == session::kPlatformWidth) return nv12;
    return enlarged(nv12, size);
}

ImageFrame16 depthFrame(const View& view, const StereoModel& model, std::uint64_t noiseSeed) {
    Random random(noiseSeed, "depth noise");
    return measureDepth(view, model, random);
}

}  // namespace fieldcal::world
