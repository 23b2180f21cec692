#include "simulator/world/FacadeMaterials.h"

#include "simulator/world/Materials.h"

#include <cmath>

namespace fieldcal::world {

using synthesis::Noise;
using synthesis::Spectrum;

Look Wall::at(const Place& place) const {
    Look look;
    // The sun is omitted here because it casts geometric shadows, so that nothing is darkened twice.
    look.surface =
        frontSurface(style_, noise_, {}, {place.texture[0], place.texture[1], place.footprint}, length_, height_);
    look.surface.sunlight = 1;
    const cv::Vec2f slope = bumps(noise_, place.texture, 0.4F, place.footprint);
    look.tilt = cv::Vec3f(slope[0], slope[1], slope[0] - slope[1]) * 0.03F;
    return look;
}

Look Window::at(const Place& place) const {
    const int column = static_cast<int>(place.texture[0] / kStride),
              floor = static_cast<int>(place.texture[1] / kStride);
    const float s = place.texture[0] - static_cast<float>(column) * kStride - style_.windowWidth * 0.5F;
    const float h = place.texture[1] - static_cast<float>(floor) * kStride;
    const auto draw = [&](std::uint32_t what) {
        return style_.variety > 0 ? Noise::cell(column, floor, style_.seed + what) : 0.35F;
    };
    Look look;
    const bool rim = style_.windowWidth * 0.5F - std::abs(s) < 0.07F || h < 0.07F || style_.windowHeight - h < 0.07F;
    if (rim || std::abs(s) < 0.04F || std::abs(h - style_.windowHeight * 0.68F) < 0.025F) {
        const auto& paint = style_.seed % 3U == 0U ? synthesis::materials::kWood : synthesis::materials::kWhitePaint;
        look.surface.reflectance = mottled(paint, noise_, s, h, 0.5F, place.footprint);
        return look;
    }
    if (draw(22) < 0.35F && style_.windowHeight - h < draw(23) * style_.windowHeight) {
        const float slats = 0.9F + 0.1F * std::sin(h * 90) * std::clamp(0.035F / place.footprint - 0.4F, 0.0F, 1.0F);
        const bool pale = draw(24) < 0.6F;
        look.surface.reflectance =
            (pale ? Spectrum{0.55F, 0.53F, 0.48F, 0.52F} : Spectrum{0.24F, 0.20F, 0.17F, 0.44F}) * slats;
        return look;
    }
    const bool curtain = draw(25) < 0.3F && std::abs(s) > style_.windowWidth * 0.22F;
    const Spectrum room = Spectrum{0.035F, 0.03F, 0.03F, 0.04F} * (0.5F + draw(21));
    look = Glass(curtain ? Spectrum{0.40F, 0.40F, 0.38F, 0.42F} : room).at(place);
    // Each casement has a slightly different angle and reflects something else.
    const float side = s < 0 ? -1.0F : 1.0F;
    look.tilt += cv::Vec3f(draw(26) - 0.5F, draw(27) - 0.5F, draw(28) - 0.5F) * (0.05F * side);
    return look;
}

}  // namespace fieldcal::world
