#include "engine/DistanceMeter.h"

#include "diagnostics/Logger.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace vq {
namespace {

using fieldcal::kError;
using fieldcal::logMessage;

constexpr double kTypicalBaselineM = 0.06;
constexpr double kTypicalDeviation = 0.25;
/// A less certain baseline from the fit is used for distances but not reported as known.
constexpr double kMaxFitDeviation = 0.05;
constexpr double kRememberedDeviation = 0.01;
/// Depth values outside this range are ignored; metres.
constexpr float kNearestM = 0.3F, kFarthestM = 15.0F;
/// Largest accepted difference between the coarse and the refined disparity.
constexpr float kLargestChangePx = 4.0F;
/// An image with a smaller standard deviation counts as blank, in grey levels of 1024.
constexpr double kBlankDeviation = 2.0;
/// Disparities this far below zero are impossible even at infinity. If more than the given share of enough places have
/// one, the right image does not belong to the left one.
constexpr float kBehindHorizonPx = -1.5F;
constexpr double kLargestShareBehind = 0.3;
constexpr std::size_t kPlacesToJudge = 50;
constexpr std::size_t kMaxSamples = 6000;
/// Radius around a place within which the depth image is checked for values.
constexpr int kDepthReachPx = 15;
/// The depth of a place is the median of 5 x 5 pixels.
constexpr int kMedianReachPx = 2;
constexpr std::size_t kMedianArea = 25;

bool same(const cv::Mat& a, const cv::Mat& b) {
    return a.size() == b.size() && !a.empty() && std::memcmp(a.data, b.data, a.total() * a.elemSize()) == 0;
}

}  // namespace

void DistanceMeter::setup(const fieldcal::CameraModel& infrared, const fieldcal::CameraModel& depth,
                          double rememberedBaselineM) {
    infrared_ = infrared;
    depthCamera_ = depth;
    remembered_.reset();
    if (rememberedBaselineM > 0)
        remembered_ = StereoScale{static_cast<double>(infrared.fx) * rememberedBaselineM, 0, kRememberedDeviation};
    reset();
}

void DistanceMeter::reset() {
    depth16_ = lastLeft16_ = lastRight16_ = cv::Mat();
    stereo_.reset();
    samples_.clear();
    fromDepth_.reset();
    fromFit_.reset();
    refused_ = false;
}

bool DistanceMeter::refuse(const char* what) {
    if (!refused_) {
        logMessage(kError, "DistanceMeter::beginPair",
                   "The right infrared image %s: distances are not measured with it", what);
    }
    refused_ = true;
    return false;
}

bool DistanceMeter::isUsable(const cv::Mat& left16, const cv::Mat& right16) {
    if (right16.empty()) return false;
    if (right16.size() != left16.size()) return refuse("has another size than the left one");
    cv::Scalar mean, deviation;
    cv::meanStdDev(right16, mean, deviation);
    if (deviation[0] < kBlankDeviation) return refuse("is blank");
    if (same(left16, right16)) return refuse("is the left one");
    if (same(right16, lastRight16_) && !same(left16, lastLeft16_)) return refuse("does not change");
    return true;
}

void DistanceMeter::beginPair(const cv::Mat& left16, const cv::Mat& right16, const cv::Mat& depth16) {
    stereo_.reset();
    const bool depthFits = depth16.cols == depthCamera_.width && depth16.rows == depthCamera_.height;
    depth16_ = depthFits && depthCamera_.width > 0 ? depth16.clone() : cv::Mat();
    const bool usable = isUsable(left16, right16);
    lastLeft16_ = left16.clone();
    lastRight16_ = right16.clone();
    if (usable && !refused_) stereo_ = std::make_unique<StereoMatcher>(left16, right16);
}

cv::Point DistanceMeter::depthPixelOf(const cv::Point2f& infraredPoint) const {
    return {cvRound((infraredPoint.x - infrared_.cx) / infrared_.fx * depthCamera_.fx + depthCamera_.cx),
            cvRound((infraredPoint.y - infrared_.cy) / infrared_.fy * depthCamera_.fy + depthCamera_.cy)};
}

bool DistanceMeter::isBeyondDepth(const cv::Point2f& infraredPoint) const {
    if (depth16_.empty()) return false;
    const cv::Point middle = depthPixelOf(infraredPoint);
    const cv::Rect about(middle.x - kDepthReachPx, middle.y - kDepthReachPx, 2 * kDepthReachPx + 1,
                         2 * kDepthReachPx + 1);
    const cv::Rect inside = about & cv::Rect(0, 0, depth16_.cols, depth16_.rows);
    return inside.empty() || cv::countNonZero(depth16_(inside)) == 0;
}

/// Returns the median of the depths around the place, because single pixels are noisy and some are missing.
float DistanceMeter::inverseDepthAt(const cv::Point2f& infraredPoint) const {
    if (depth16_.empty()) return kUnknownDistance;
    const cv::Point pixel = depthPixelOf(infraredPoint);
    if (pixel.x < kMedianReachPx || pixel.y < kMedianReachPx || pixel.x >= depth16_.cols - kMedianReachPx ||
        pixel.y >= depth16_.rows - kMedianReachPx) {
        return kUnknownDistance;
    }
    std::array<std::uint16_t, kMedianArea> depths{};
    std::size_t count = 0;
    for (int y = pixel.y - kMedianReachPx; y <= pixel.y + kMedianReachPx; ++y) {
        const auto* row = depth16_.ptr<std::uint16_t>(y);
        for (int x = pixel.x - kMedianReachPx; x <= pixel.x + kMedianReachPx; ++x) {
            if (row[x] != 0) depths[count++] = row[x];
        }
    }
    if (2 * count < kMedianArea) return kUnknownDistance;
    const auto middle = depths.begin() + static_cast<std::ptrdiff_t>(count / 2);
    std::nth_element(depths.begin(), middle, depths.begin() + static_cast<std::ptrdiff_t>(count));
    const float metres = static_cast<float>(*middle) * 0.001F;
    return metres >= kNearestM && metres <= kFarthestM ? 1.0F / metres : kUnknownDistance;
}

std::vector<MeasuredPlace> DistanceMeter::lookUp(const std::vector<cv::Point2f>& infraredPoints) const {
    std::vector<float> disparities;
    if (stereo_ != nullptr) disparities = stereo_->findCoarse(infraredPoints);
    std::vector<MeasuredPlace> places(infraredPoints.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        places[i].infrared = infraredPoints[i];
        places[i].inverseDepth = inverseDepthAt(infraredPoints[i]);
        if (stereo_ != nullptr) places[i].disparityPx = disparities[i];
    }
    return places;
}

void DistanceMeter::refine(std::vector<MeasuredPlace>* places) const {
    if (stereo_ == nullptr) return;
    std::vector<cv::Point2f> points;
    std::vector<float> coarse;
    for (const MeasuredPlace& place : *places) {
        points.push_back(place.infrared);
        coarse.push_back(place.disparityPx);
    }
    const std::vector<float> refined = stereo_->refine(points, coarse);
    for (std::size_t i = 0; i < refined.size(); ++i) {
        const bool agrees = std::abs(refined[i] - coarse[i]) <= kLargestChangePx;
        (*places)[i].disparityPx = agrees ? refined[i] : kUnknownDistance;
    }
}

void DistanceMeter::learnFrom(const std::vector<MeasuredPlace>& places) {
    if (stereo_ == nullptr) return;
    std::size_t seen = 0, behind = 0;
    for (const MeasuredPlace& place : places) {
        if (std::isnan(place.disparityPx)) continue;
        ++seen;
        if (place.disparityPx < kBehindHorizonPx) ++behind;
        if (!std::isnan(place.inverseDepth) && samples_.size() < kMaxSamples) samples_.push_back(place);
    }
    if (seen >= kPlacesToJudge && static_cast<double>(behind) > kLargestShareBehind * static_cast<double>(seen)) {
        refuse("does not lie to the right of the left one");
        stereo_.reset();
        return;
    }
    if (const auto scale = scaleFromDepth(samples_)) fromDepth_ = scale;
}

const StereoScale* DistanceMeter::scale() const {
    for (const auto* known : {&fromDepth_, &fromFit_, &remembered_}) {
        if (*known) return &**known;
    }
    return nullptr;
}

StereoScale DistanceMeter::assumedScale() const {
    return {static_cast<double>(infrared_.fx) * kTypicalBaselineM, 0, kTypicalDeviation};
}

void DistanceMeter::setFittedScale(const StereoScale& fitted) {
    const StereoScale before = remembered_ ? *remembered_ : assumedScale();
    const double fittedWeight = 1 / std::pow(fitted.pixelMetres * fitted.relativeDeviation, 2);
    const double beforeWeight = 1 / std::pow(before.pixelMetres * before.relativeDeviation, 2);
    const double weights = fittedWeight + beforeWeight;
    StereoScale mean;
    mean.pixelMetres = (fitted.pixelMetres * fittedWeight + before.pixelMetres * beforeWeight) / weights;
    mean.relativeDeviation = 1 / (std::sqrt(weights) * mean.pixelMetres);
    fromFit_ = mean;
}

BaselineSource DistanceMeter::source() const {
    if (fromDepth_) return BaselineSource::Depth;
    if (fromFit_ && fromFit_->relativeDeviation <= kMaxFitDeviation) return BaselineSource::Fit;
    return remembered_ ? BaselineSource::Remembered : BaselineSource::None;
}

std::optional<double> DistanceMeter::baselineM() const {
    const StereoScale* known = scale();
    if (known == nullptr || source() == BaselineSource::None) return std::nullopt;
    return known->pixelMetres / static_cast<double>(infrared_.fx);
}

}  // namespace vq
