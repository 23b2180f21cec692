#pragma once

#include "simulator/synthesis/Spectrum.h"

#include <opencv2/core.hpp>

#include <vector>

namespace fieldcal::synthesis {

/// A painted thing with see-through parts. Metres: x from its middle, y up from its foot.
class Sprite {
public:
    Sprite() = default;
    Sprite(const cv::Mat_<cv::Vec4f>& premultiplied, const cv::Mat_<float>& cover, float texelsPerMetre);

    float halfWidth() const { return halfWidth_; }
    float height() const { return height_; }
    /// Light and cover (0 clear … 1 opaque) at a place; `light` is already weighted by the cover.
    float at(float x, float y, Spectrum* light) const;

private:
    cv::Mat_<cv::Vec<std::uint16_t, 4>> light_;
    cv::Mat_<std::uint8_t> cover_;
    float texelsPerMetre_ = 1, halfWidth_ = 0, height_ = 0;
};

/// Paints a sprite from back to front. Places in metres, as in `Sprite`.
class Canvas {
public:
    Canvas(float width, float height, float texelsPerMetre);

    void polygon(const std::vector<cv::Point2f>& corners, const Spectrum& light);
    /// `turn`: radians from x towards y.
    void ellipse(cv::Point2f centre, float halfLong, float halfShort, float turn, const Spectrum& light);
    /// A bar that may taper from width `from` to width `to`.
    void bar(cv::Point2f a, cv::Point2f b, float from, float to, const Spectrum& light);
    void box(float left, float bottom, float right, float top, const Spectrum& light);
    Sprite finish() const { return Sprite(light_, cover_, texelsPerMetre_); }

private:
    cv::Point2f texel(cv::Point2f metres) const;
    void blend(int x, int y, const Spectrum& light, float cover);

    float texelsPerMetre_, halfWidth_;
    cv::Mat_<cv::Vec4f> light_;
    cv::Mat_<float> cover_;
};

}  // namespace fieldcal::synthesis
