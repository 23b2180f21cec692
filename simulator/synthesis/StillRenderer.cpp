#include "simulator/synthesis/StillRenderer.h"

#include "session/Nv12.h"

namespace fieldcal::synthesis {

std::vector<std::uint8_t> nv12Of(const ImageFrame32& bgra) {
    const int width = static_cast<int>(bgra.width()), height = static_cast<int>(bgra.height());
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(width) * height * 3 / 2);
    session::nv12FromBgra(bgra.bytes(), width, height, bytes.data());
    return bytes;
}

StillRenderer::StillRenderer(const DirectionField& field, const session::SessionDescription& rig)
    : panorama_(field),
      infrared_(infraredRays(rig.infrared, 3)),
      third_(colourRays(rig.third, rig.infrared, 3)),
      third_infrared_(rig.truthThird->data()),
      hasPlatform_(rig.platform.has_value()) {
    if (!hasPlatform_) return;
    platform_ = platformRays(*rig.platform, rig.infrared, 2);
    platform_infrared_ = cv::Matx33d(rig.truthPlatform->data());
}

session::FramePictures StillRenderer::take(const cv::Matx33d& infrared_world, const StillSettings& settings,
                                           std::uint64_t noiseSeed) {
    session::FramePictures pictures;
    Random infraredNoise(noiseSeed, "infrared noise"), thirdNoise(noiseSeed, "third noise");
    pictures.infrared = exposeInfrared(infraredBand(takePicture(panorama_, infrared_, infrared_world, infraredLens)),
                                       settings.infrared, settings.darkness, infraredNoise);
    pictures.third =
        exposeColour(colourBands(takePicture(panorama_, third_, third_infrared_ * infrared_world, thirdLens)),
                     settings.colour, settings.darkness, thirdNoise);
    if (!hasPlatform_) return pictures;
    Random platformNoise(noiseSeed, "platform noise");
    const auto radiance = takePicture(panorama_, platform_, platform_infrared_ * infrared_world, platformLens);
    pictures.platform = nv12Of(exposeColour(colourBands(radiance), settings.colour, settings.darkness, platformNoise));
    return pictures;
}

}  // namespace fieldcal::synthesis
