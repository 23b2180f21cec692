#include "simulator/world/Materials.h"

#include "simulator/synthesis/FacadeStyle.h"

#include <cmath>

namespace fieldcal::world {

using synthesis::Noise;
using synthesis::Spectrum;

cv::Vec2f bumps(const Noise& noise, const cv::Vec2f& at, float coarse, float footprint) {
    return {noise.fractal(at[0] + 5.3F, at[1] - 8.1F, coarse, footprint, 0.8F),
            noise.fractal(at[0] - 41.7F, at[1] + 3.9F, coarse, footprint, 0.8F)};
}

Look Solid::at(const Place& place) const {
    Look look;
    look.smooth = true;
    look.surface.reflectance =
        mottled(substance_, noise_, place.texture[0], place.texture[1], finish_.coarse, place.footprint);
    look.mirror = finish_.mirror;
    if (finish_.relief > 0) {
        const cv::Vec2f slope = bumps(noise_, place.texture, finish_.coarse * 0.5F, place.footprint);
        look.tilt = cv::Vec3f(slope[0], 0.5F * (slope[0] - slope[1]), slope[1]) * finish_.relief;
    }
    return look;
}

Look Glow::at(const Place& /*place*/) const {
    Look look;
    look.surface.gloss = Spectrum{1, 1, 1, 1} * radiance_;
    return look;
}

Look Leaf::at(const Place& place) const {
    const int leaf = static_cast<int>(place.texture[0]);
    const auto draw = [leaf](std::uint32_t what) { return Noise::cell(leaf, leaf >> 8, what) - 0.5F; };
    const float shared = 1 + 0.7F * draw(61);
    Look look;
    look.surface.reflectance = reflectance_.scaled(shared + 0.3F * draw(62), shared + 0.15F * draw(63));
    look.surface.reflectance.red *= 1 + 0.5F * draw(64);
    look.surface.openness = place.texture[1];
    // Leaves transmit most of the near infrared and light those behind them, so shadows in crowns are weak there.
    look.through = 0.45F;
    look.throughInfrared = 0.65F;
    look.surface.gloss.infrared = 0.05F * reflectance_.infrared * (0.4F + 0.6F * place.texture[1]);
    return look;
}

Look Glass::at(const Place& place) const {
    Look look;
    look.surface.reflectance = inside_;
    look.surface.openness = 0.5F;
    look.mirror = 0.22F;  // two panes with dirt, reduced by the light from the room behind
    // Panes are slightly uneven, so reflected houses appear distorted.
    look.tilt = cv::Vec3f(std::sin(place.texture[0] * 2.1F), std::sin(place.texture[1] * 2.7F), 0) * 0.004F;
    return look;
}

Look Water::at(const Place& place) const {
    Look look;
    look.surface.reflectance = {0.03F, 0.05F, 0.04F, 0.012F};
    look.mirror = 0.02F;
    const cv::Vec2f ripples = bumps(noise_, place.texture, 0.5F, place.footprint);
    look.tilt = cv::Vec3f(ripples[0], 0, ripples[1]) * 0.012F;
    return look;
}

Look Sign::at(const Place& place) const {
    Look look;
    look.surface.reflectance = synthesis::signReflectance(seed_, place.texture[0], place.texture[1], height_);
    return look;
}

}  // namespace fieldcal::world
