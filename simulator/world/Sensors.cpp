#include "simulator/world/Sensors.h"

#include "session/Nv12.h"

#include <opencv2/imgproc.hpp>

namespace fieldcal::world {

using synthesis::Random;

ImageFrame16 infraredFrame(const View& view, const synthesis::StillSettings& settings, std::uint64_t noiseSeed) {
    Random random(noiseSeed, "infrared noise");
    return exposeInfrared(view.infrared, settings.infrared, settings.darkness, random);
}

ImageFrame32 thirdFrame(const View& view, const synthesis::StillSettings& settings, std::uint64_t noiseSeed) {
    Random random(noiseSeed, "third noise");
    return exposeColour(view.third, settings.colour, settings.darkness, random);
}

std::vector<std::uint8_t> platformFrame(const View& view, const synthesis::StillSettings& settings,
                                        std::uint64_t noiseSeed) {
    if (view.platform.empty()) return {};
    Random random(noiseSeed, "platform noise");
    ImageFrame32 seen = exposeColour(view.platform, settings.colour, settings.darkness, random);
    const int width = session::kPlatformWidth, height = session::kPlatformHeight;
    cv::Mat bgra(static_cast<int>(seen.height()), static_cast<int>(seen.width()), CV_8UC4, seen.bytes());
    if (bgra.cols != width) cv::resize(bgra, bgra, {width, height}, 0, 0, cv::INTER_LINEAR);
    std::vector<std::uint8_t> nv12(static_cast<std::size_t>(width) * height * 3 / 2);
    session::nv12FromBgra(bgra.data, width, height, nv12.data());
    return nv12;
}

ImageFrame16 depthFrame(const View& view, const StereoModel& model, std::uint64_t noiseSeed) {
    Random random(noiseSeed, "depth noise");
    return measureDepth(view, model, random);
}

}  // namespace fieldcal::world
