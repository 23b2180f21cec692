#include "engine/BriefDescriptor.h"

#include "engine/BriefPairs.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cstdint>

namespace vq {
namespace {

constexpr int kHalfPatch = 24;
constexpr int kHalfBox = 4;
constexpr int kBorder = kHalfPatch + kHalfBox;

cv::Point pixelOf(const cv::Point2f& point) {
    return {cvFloor(point.x + 0.5F), cvFloor(point.y + 0.5F)};
}

/// Sums over 9 x 9 boxes, one for each pixel that has a complete box.
cv::Mat boxSums(const cv::Mat& image) {
    cv::Mat sums;
    cv::boxFilter(image, sums, CV_32S, {2 * kHalfBox + 1, 2 * kHalfBox + 1}, {-1, -1}, false, cv::BORDER_REPLICATE);
    return sums;
}

void describe(const cv::Mat& sums, const cv::Point& centre, std::uint8_t* descriptor) {
    const auto step = static_cast<std::ptrdiff_t>(sums.step1());
    const int* origin = sums.ptr<int>(centre.y) + centre.x;
    for (std::size_t byte = 0; byte < kDescriptorBytes; ++byte) {
        unsigned bits = 0;
        for (std::size_t bit = 0; bit < 8; ++bit) {
            const BriefPair& pair = kBriefPairs[byte * 8 + bit];
            const bool darker = origin[pair.y0 * step + pair.x0] < origin[pair.y1 * step + pair.x1];
            bits = (bits << 1U) | (darker ? 1U : 0U);
        }
        descriptor[byte] = static_cast<std::uint8_t>(bits);
    }
}

}  // namespace

void describeCorners(const cv::Mat& image, std::vector<cv::Point2f>* corners, cv::Mat* descriptors) {
    const cv::Rect inside(kBorder, kBorder, image.cols - 2 * kBorder, image.rows - 2 * kBorder);
    const auto incomplete = [&inside](const cv::Point2f& corner) { return !inside.contains(pixelOf(corner)); };
    corners->erase(std::remove_if(corners->begin(), corners->end(), incomplete), corners->end());
    descriptors->create(static_cast<int>(corners->size()), kDescriptorBytes, CV_8UC1);
    if (corners->empty()) return;
    const cv::Mat sums = boxSums(image);
    for (std::size_t i = 0; i < corners->size(); ++i) {
        describe(sums, pixelOf((*corners)[i]), descriptors->ptr<std::uint8_t>(static_cast<int>(i)));
    }
}

}  // namespace vq
