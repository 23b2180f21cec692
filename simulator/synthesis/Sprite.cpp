#include "simulator/synthesis/Sprite.h"

#include <opencv2/imgproc.hpp>

#include <cmath>

namespace fieldcal::synthesis {

namespace {

constexpr float fullScale = 4.0F;  // the radiance that 16 bits can hold

}  // namespace

Sprite::Sprite(const cv::Mat_<cv::Vec4f>& premultiplied, const cv::Mat_<float>& cover, float texelsPerMetre)
    : texelsPerMetre_(texelsPerMetre),
      halfWidth_(static_cast<float>(cover.cols) / texelsPerMetre * 0.5F),
      height_(static_cast<float>(cover.rows) / texelsPerMetre) {
    premultiplied.convertTo(light_, CV_16U, 65535.0 / fullScale);
    cover.convertTo(cover_, CV_8U, 255);
}

float Sprite::at(float x, float y, Spectrum* light) const {
    const int column = static_cast<int>((x + halfWidth_) * texelsPerMetre_);
    const int row = static_cast<int>((height_ - y) * texelsPerMetre_);
    if (x < -halfWidth_ || y > height_ || column >= cover_.cols || row >= cover_.rows) return 0;
    const auto& texel = light_(row, column);
    constexpr float unit = fullScale / 65535.0F;
    *light = Spectrum{static_cast<float>(texel[0]), static_cast<float>(texel[1]), static_cast<float>(texel[2]),
                      static_cast<float>(texel[3])} *
             unit;
    return static_cast<float>(cover_(row, column)) / 255.0F;
}

Canvas::Canvas(float width, float height, float texelsPerMetre)
    : texelsPerMetre_(texelsPerMetre),
      halfWidth_(width * 0.5F),
      light_(static_cast<int>(height * texelsPerMetre) + 1, static_cast<int>(width * texelsPerMetre) + 1,
             cv::Vec4f(0, 0, 0, 0)),
      cover_(light_.size(), 0.0F) {}

cv::Point2f Canvas::texel(cv::Point2f metres) const {
    const auto rows = static_cast<float>(light_.rows);
    return {(metres.x + halfWidth_) * texelsPerMetre_ - 0.5F, rows - 0.5F - metres.y * texelsPerMetre_};
}

void Canvas::blend(int x, int y, const Spectrum& light, float cover) {
    auto& under = light_(y, x);
    const cv::Vec4f over(light.red, light.green, light.blue, light.infrared);
    under = under * (1 - cover) + over * cover;
    cover_(y, x) += (1 - cover_(y, x)) * cover;
}

void Canvas::polygon(const std::vector<cv::Point2f>& corners, const Spectrum& light) {
    constexpr int shift = 4;
    std::vector<cv::Point2f> texels;
    texels.reserve(corners.size());
    for (const auto& corner : corners)
        texels.push_back(texel(corner));
    const cv::Rect all(0, 0, light_.cols, light_.rows);
    cv::Rect bounds = cv::boundingRect(texels);
    bounds = cv::Rect(bounds.x - 1, bounds.y - 1, bounds.width + 2, bounds.height + 2) & all;
    if (bounds.empty()) return;
    std::vector<cv::Point> fixed;
    fixed.reserve(corners.size());
    for (const auto& t : texels)
        fixed.emplace_back(cvRound((t.x - static_cast<float>(bounds.x)) * (1 << shift)),
                           cvRound((t.y - static_cast<float>(bounds.y)) * (1 << shift)));
    cv::Mat_<std::uint8_t> mask(bounds.size(), std::uint8_t{0});
    cv::fillPoly(mask, std::vector<std::vector<cv::Point>>{fixed}, 255, cv::LINE_AA, shift);
    for (int y = 0; y < mask.rows; ++y)
        for (int x = 0; x < mask.cols; ++x)
            if (mask(y, x) != 0) blend(bounds.x + x, bounds.y + y, light, static_cast<float>(mask(y, x)) / 255.0F);
}

void Canvas::ellipse(cv::Point2f centre, float halfLong, float halfShort, float turn, const Spectrum& light) {
    const cv::Point2f middle = texel(centre);
    const float a = std::max(0.5F, halfLong * texelsPerMetre_), b = std::max(0.5F, halfShort * texelsPerMetre_);
    const float c = std::cos(turn), s = std::sin(turn);
    const int x0 = std::max(0, cvFloor(middle.x - a - 1)), x1 = std::min(light_.cols - 1, cvCeil(middle.x + a + 1));
    const int y0 = std::max(0, cvFloor(middle.y - a - 1)), y1 = std::min(light_.rows - 1, cvCeil(middle.y + a + 1));
    for (int y = y0; y <= y1; ++y)
        for (int x = x0; x <= x1; ++x) {
            const float dx = static_cast<float>(x) - middle.x, dy = middle.y - static_cast<float>(y);
            const float u = (c * dx + s * dy) / a, v = (c * dy - s * dx) / b;
            const float cover = std::clamp((1 - std::sqrt(u * u + v * v)) * b + 0.5F, 0.0F, 1.0F);
            if (cover > 0) blend(x, y, light, cover);
        }
}

void Canvas::bar(cv::Point2f a, cv::Point2f b, float from, float to, const Spectrum& light) {
    cv::Point2f along = b - a;
    const float length = std::sqrt(along.dot(along));
    if (length <= 0) return;
    const cv::Point2f side(-along.y / length * 0.5F, along.x / length * 0.5F);
    polygon({a + side * from, b + side * to, b - side * to, a - side * from}, light);
}

void Canvas::box(float left, float bottom, float right, float top, const Spectrum& light) {
    polygon({{left, bottom}, {right, bottom}, {right, top}, {left, top}}, light);
}

}  // namespace fieldcal::synthesis
