#include "simulator/world/Sensors.h"

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
    return synthesis::nv12Of(exposeColour(view.platform, settings.colour, settings.darkness, random));
}

ImageFrame16 depthFrame(const View& view, const StereoModel& model, std::uint64_t noiseSeed) {
    Random random(noiseSeed, "depth noise");
    return measureDepth(view, model, random);
}

}  // namespace fieldcal::world
