#include "engine/CornerSet.h"

#include "engine/BriefDescriptor.h"
#include "engine/Stopwatch.h"

#include <opencv2/features2d.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <future>

namespace vq {
namespace {

constexpr double kQualityLevel = 0.01;
constexpr double kMinimumDistancePx = 4.0;
constexpr int kBlockSize = 3;
constexpr double kHarrisK = 0.04;

std::vector<cv::Point2f> detect(const cv::Mat& image, int maximumCount) {
    const auto detector =
        cv::GFTTDetector::create(maximumCount, kQualityLevel, kMinimumDistancePx, kBlockSize, false, kHarrisK);
    std::vector<cv::KeyPoint> keyPoints;
    detector->detect(image, keyPoints);
    std::vector<cv::Point2f> points;
    cv::KeyPoint::convert(keyPoints, points);
    return points;
}

void refine(const cv::Mat& image, std::vector<cv::Point2f>* points) {
    if (points->empty()) return;
    const cv::TermCriteria criteria(cv::TermCriteria::COUNT | cv::TermCriteria::EPS, 40, 0.001);
    cv::cornerSubPix(image, *points, {3, 3}, {-1, -1}, criteria);
}

/// Refines the corners in two halves on two threads; each corner is refined independently, so the result is that of a
/// single call. Refinement takes most of the processing time of an image pair.
void refineInHalves(const cv::Mat& image, std::vector<cv::Point2f>* points) {
    const auto middle = points->begin() + static_cast<std::ptrdiff_t>(points->size() / 2);
    std::vector<cv::Point2f> first(points->begin(), middle), second(middle, points->end());
    auto done = std::async(std::launch::async, [&] { refine(image, &second); });
    refine(image, &first);
    done.get();
    std::copy(second.begin(), second.end(), std::copy(first.begin(), first.end(), points->begin()));
}

}  // namespace

CornerSet findCorners(const cv::Mat& image, int maximumCount) {
    CornerSet corners;
    Stopwatch watch;
    corners.points = detect(image, maximumCount);
    refineInHalves(image, &corners.points);
    corners.detected = static_cast<int>(corners.points.size());
    corners.detectionSeconds = watch.lap();
    describeCorners(image, &corners.points, &corners.descriptors);
    corners.descriptionSeconds = watch.lap();
    return corners;
}

}  // namespace vq
