#include "simulator/synthesis/Building.h"

#include <cmath>

namespace fieldcal::synthesis {

namespace {

constexpr float roofSlope = 0.6F;  // height gained per metre of depth
constexpr float shadowStep = 0.16F;

cv::Vec3f level(const cv::Vec2f& v) {
    return {v[0], 0, v[1]};
}

}  // namespace

Front::Front(const UprightRectangle& place, const FacadeStyle& style, const Noise& noise, const Light& light)
    : place_(place), style_(style), noise_(noise), light_(light) {
    normal_ = level({-place.along[1], place.along[0]});
    if (normal_.dot(level(place.origin)) > 0) normal_ = -normal_;
    sun_ = {level(place.along).dot(light.toSun), -light.toSun[1], normal_.dot(light.toSun)};
}

void Front::castShadows(const Occluders& occluders) {
    if (sun_.out <= 0) return;
    // A little in front of the wall, so that it does not shade itself.
    const cv::Vec3f foot = level(place_.origin) + normal_ * 0.06F - cv::Vec3f(0, place_.bottom, 0);
    shadows_ =
        ShadowMap(occluders, noise_, foot, level(place_.along), {0, -1, 0}, {place_.length, place_.height}, shadowStep);
}

float Front::hit(const cv::Vec3f& d) const {
    const float approach = normal_.dot(d);
    if (approach > -1e-4F) return -1;
    const float distance = normal_.dot(level(place_.origin)) / approach;
    const float up = -d[1] * distance - place_.bottom;
    if (distance <= 0 || up < 0 || up > place_.height) return -1;
    const float s = place_.along.dot(cv::Vec2f(d[0] * distance - place_.origin[0], d[2] * distance - place_.origin[1]));
    return s < 0 || s > place_.length ? -1 : distance;
}

Spectrum Front::radiance(const cv::Vec3f& point, float footprint) const {
    FrontPlace place;
    place.s = place_.along.dot(cv::Vec2f(point[0] - place_.origin[0], point[2] - place_.origin[1]));
    place.h = -point[1] - place_.bottom;
    place.footprint = footprint;
    Surface surface = frontSurface(style_, noise_, sun_, place, place_.length, place_.height);
    surface.sunlight *= shadows_.at(place.s, place.h);
    return lit(surface, light_, sun_.out);
}

Roof::Roof(const UprightRectangle& front, float rise, bool tiled, const Noise& noise, const Light& light)
    : along_(level(front.along)), length_(front.length), tiled_(tiled), noise_(noise), light_(light) {
    cv::Vec3f back = level({-front.along[1], front.along[0]});
    if (back.dot(level(front.origin)) < 0) back = -back;
    const float scale = 1 / std::sqrt(1 + roofSlope * roofSlope);
    up_ = (back + cv::Vec3f(0, -roofSlope, 0)) * scale;
    normal_ = (back * -roofSlope + cv::Vec3f(0, -1, 0)) * scale;
    slant_ = rise / (roofSlope * scale);
    corner_ = level(front.origin) - cv::Vec3f(0, front.bottom + front.height, 0) - up_ * 0.4F;
}

float Roof::hit(const cv::Vec3f& d) const {
    const float approach = normal_.dot(d);
    if (approach > -1e-4F) return -1;
    const float distance = normal_.dot(corner_) / approach;
    if (distance <= 0) return -1;
    const cv::Vec3f there = d * distance - corner_;
    const float a = there.dot(along_), b = there.dot(up_);
    return a < -0.3F || a > length_ + 0.3F || b < 0 || b > slant_ ? -1 : distance;
}

Spectrum Roof::radiance(const cv::Vec3f& point, float footprint) const {
    const cv::Vec3f there = point - corner_;
    const float a = there.dot(along_), b = there.dot(up_);
    constexpr float row = 0.33F, column = 0.25F;
    const int tileRow = static_cast<int>(std::floor(b / row)), tileColumn = static_cast<int>(std::floor(a / column));
    const float seen = std::clamp(1.5F - footprint / row, 0.0F, 1.0F);
    const auto question = [&](std::uint32_t what) {
        return (Noise::cell(tileColumn, tileRow, what) - 0.5F) * 0.5F * seen;
    };
    const Material& material = tiled_ ? materials::roofTile : materials::slate;
    const float shared = question(51), lip = b - static_cast<float>(tileRow) * row < 0.06F ? 1 - 0.5F * seen : 1.0F;
    Surface surface;
    surface.reflectance =
        mottled(material, noise_, a, b, 3.0F, footprint)
            .scaled((1 + shared + 0.7F * question(52)) * lip, (1 + shared + 0.7F * question(53)) * lip);
    if (b < 0.4F) surface.reflectance = materials::metal.reflectance;  // the gutter
    return lit(surface, light_, normal_.dot(light_.toSun));
}

}  // namespace fieldcal::synthesis
