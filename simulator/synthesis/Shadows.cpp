#include "simulator/synthesis/Shadows.h"

#include "simulator/synthesis/Spectrum.h"

#include <cmath>

namespace fieldcal::synthesis {

namespace {

bool crosses(const UprightRectangle& wall, const cv::Vec3f& point, const cv::Vec3f& toSun) {
    const cv::Vec2f normal(-wall.along[1], wall.along[0]);
    const float approach = normal[0] * toSun[0] + normal[1] * toSun[2];
    if (std::abs(approach) < 1e-4F) return false;
    const cv::Vec2f offset(wall.origin[0] - point[0], wall.origin[1] - point[2]);
    const float distance = offset.dot(normal) / approach;
    if (distance < 0.05F) return false;
    const cv::Vec2f there(point[0] + distance * toSun[0] - wall.origin[0],
                          point[2] + distance * toSun[2] - wall.origin[1]);
    const float s = there.dot(wall.along), up = -(point[1] + distance * toSun[1]);
    return s > 0 && s < wall.length && up > wall.bottom && up < wall.bottom + wall.height;
}

/// 1 in the open, 0 deep inside the crown's shadow; its rim and body are dappled.
float throughCrown(const Crown& crown, const cv::Vec3f& point, const cv::Vec3f& toSun, const Noise& noise) {
    const cv::Vec3f offset = crown.centre - point;
    const float along = offset.dot(toSun);
    if (along < 0.2F) return 1;
    const cv::Vec3f miss = offset - toSun * along;
    const float relative = std::sqrt(miss.dot(miss)) / crown.radius;
    if (relative > 1.2F) return 1;
    const float gaps = noise.fractal(miss[0] + crown.centre[0], miss[1] + miss[2], 1.5F, 0.08F, 0.7F);
    return smoothStep(-0.25F, 0.35F, gaps * 0.5F + (relative - 0.85F) * 1.6F);
}

}  // namespace

bool Occluders::behindWall(const cv::Vec3f& point) const {
    for (const auto& wall : walls_)
        if (crosses(wall, point, toSun_)) return true;
    return false;
}

float Occluders::sunlightAt(const cv::Vec3f& point, const Noise& noise) const {
    if (behindWall(point)) return 0;
    float share = 1;
    for (const auto& crown : crowns_)
        share *= throughCrown(crown, point, toSun_, noise);
    return share;
}

ShadowMap::ShadowMap(const Occluders& occluders, const Noise& noise, const cv::Vec3f& origin, const cv::Vec3f& across,
                     const cv::Vec3f& down, cv::Size2f extent, float step)
    : grid_(static_cast<int>(extent.height / step) + 2, static_cast<int>(extent.width / step) + 2), step_(step) {
    for (int y = 0; y < grid_.rows; ++y)
        for (int x = 0; x < grid_.cols; ++x) {
            const cv::Vec3f place = across * (static_cast<float>(x) * step) + down * (static_cast<float>(y) * step);
            grid_(y, x) = occluders.sunlightAt(origin + place, noise);
        }
}

float ShadowMap::at(float a, float b) const {
    const float x = a / step_, y = b / step_;
    if (!(x >= 0 && y >= 0) || x >= static_cast<float>(grid_.cols - 1) || y >= static_cast<float>(grid_.rows - 1))
        return 1;
    const int column = static_cast<int>(x), row = static_cast<int>(y);
    const float u = x - static_cast<float>(column), v = y - static_cast<float>(row);
    return (grid_(row, column) * (1 - u) + grid_(row, column + 1) * u) * (1 - v) +
           (grid_(row + 1, column) * (1 - u) + grid_(row + 1, column + 1) * u) * v;
}

}  // namespace fieldcal::synthesis
