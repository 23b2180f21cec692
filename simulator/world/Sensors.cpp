#include "simulator/world/Sensors.h"

#include "session/Nv12.h"

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
    const ImageFrame32 bgra = exposeColour(view.platform, settings.colour, settings.darkness, random);
    const int width = static_cast<int>(bgra.width()), height = static_cast<int>(bgra.height());
    std::vector<std::uint8_t> nv12(static_cast<std::size_t>(width) * height * 3 / 2);
    session::nv12FromBgra(bgra.bytes(), width, height, nv12.data());
    return nv12;
}

ImageFrame16 depthFrame(const View& view, const StereoModel& model, std::uint64_t noiseSeed) {
    Random random(noiseSeed, "depth noise");
    return measureDepth(view, model, random);
}

}  // namespace fieldcal::world
