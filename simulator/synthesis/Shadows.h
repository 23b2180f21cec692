#pragma once

#include "simulator/synthesis/Noise.h"

#include <opencv2/core.hpp>

#include <vector>

namespace fieldcal::synthesis {

/// An upright rectangle that stops the sun. Metres; world axes, y down.
struct UprightRectangle {
    cv::Vec2f origin;  ///< x, z of one lower corner
    cv::Vec2f along;   ///< unit direction of its base, x, z
    float length = 0;
    float bottom = 0;  ///< height of its foot above the eye (negative below)
    float height = 0;
};

/// A crown of leaves that lets spots of sun through.
struct Crown {
    cv::Vec3f centre;
    float radius = 0;
};

/// Everything that throws shadows.
class Occluders {
public:
    explicit Occluders(const cv::Vec3f& toSun) : toSun_(toSun) {}
    void add(const UprightRectangle& wall) { walls_.push_back(wall); }
    void add(const Crown& crown) { crowns_.push_back(crown); }
    /// Share of the sun that reaches a point, 0 … 1.
    float sunlightAt(const cv::Vec3f& point, const Noise& noise) const;

private:
    bool behindWall(const cv::Vec3f& point) const;

    cv::Vec3f toSun_;
    std::vector<UprightRectangle> walls_;
    std::vector<Crown> crowns_;
};

/// The sunlight over a flat patch, computed once on a grid and interpolated.
class ShadowMap {
public:
    ShadowMap() = default;
    /// The patch is origin + a·across + b·down, a and b within 0 … extent; across and down are unit vectors.
    ShadowMap(const Occluders& occluders, const Noise& noise, const cv::Vec3f& origin, const cv::Vec3f& across,
              const cv::Vec3f& down, cv::Size2f extent, float step);
    /// Outside the patch and without one: 1.
    float at(float a, float b) const;

private:
    cv::Mat_<float> grid_;
    float step_ = 1;
};

}  // namespace fieldcal::synthesis
