#include "engine/CrossModalMatcher.h"

#include "diagnostics/Logger.h"
#include "engine/CandidateSearch.h"
#include "engine/CornerSet.h"
#include "engine/GreyConversion.h"
#include "engine/InfraredConversion.h"
#include "engine/Stopwatch.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <future>

namespace vq {
namespace {

using fieldcal::kInfo;
using fieldcal::logMessage;

constexpr const char* kTag = "CrossModalMatcher::findCrossModalMatches";
constexpr int kTargetCorners = 1000;
constexpr int kQueryCorners = 100000;
constexpr float kSearchMarginPx = 20.0F;
constexpr double kOutsidePx = 1.0;

cv::Rect2f searchArea(const PositionTable::Quadrilateral& predicted, const cv::Size& targetSize) {
    const auto [left, right] = std::minmax({predicted[0].x, predicted[1].x, predicted[2].x, predicted[3].x});
    const auto [top, bottom] = std::minmax({predicted[0].y, predicted[1].y, predicted[2].y, predicted[3].y});
    const auto clampX = [&](float x) { return std::clamp(x, 0.0F, static_cast<float>(targetSize.width)); };
    const auto clampY = [&](float y) { return std::clamp(y, 0.0F, static_cast<float>(targetSize.height)); };
    return {cv::Point2f(clampX(left - kSearchMarginPx), clampY(top - kSearchMarginPx)),
            cv::Point2f(clampX(right + kSearchMarginPx), clampY(bottom + kSearchMarginPx))};
}

/// Extends a search rectangle of the position table by the range of the parallax shift.
PositionTable::Quadrilateral shifted(const PositionTable::Quadrilateral& area, const ParallaxShift& shift) {
    return {area[0] + shift.low, area[1] + cv::Point2f(shift.high.x, shift.low.y), area[2] + shift.high,
            area[3] + cv::Point2f(shift.low.x, shift.high.y)};
}

bool liesInside(const PositionTable::Quadrilateral& predicted, const cv::Point2f& point) {
    const cv::Mat polygon(static_cast<int>(predicted.size()), 1, CV_32FC2, const_cast<cv::Point2f*>(predicted.data()));
    return cv::pointPolygonTest(polygon, point, true) >= -kOutsidePx;
}

}  // namespace

void CrossModalMatcher::setup(const CameraPair& cameras, const Eigen::Vector3d& currentAnglesRad,
                              const SearchRange& range, double marginDeg) {
    SearchRange widened = range;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        widened.minDeg[axis] -= marginDeg;
        widened.maxDeg[axis] += marginDeg;
    }
    table_ = PositionTable(cameras, currentAnglesRad, widened, queryIsInfrared_);
}

void CrossModalMatcher::prepare(const cv::Mat& infrared16, const cv::Mat& colour, int infraredConversionMode) {
    statistics_ = {};
    Stopwatch watch;
    auto greyDone = std::async(std::launch::async, [&] { convertToGrey(colour, &grey_); });
    convertInfrared(infrared16, infraredConversionMode, &infrared8_);
    greyDone.get();
    statistics_.conversionSeconds = watch.lap();
}

void CrossModalMatcher::findCrossModalMatches(std::vector<cv::Point2f>* colourPoints,
                                              std::vector<cv::Point2f>* infraredPoints, const ShiftFinder& shifts) {
    logMessage(kInfo, kTag, "rgb [%d x %d] IR [%d x %d]", grey_.cols, grey_.rows, infrared8_.cols, infrared8_.rows);
    const bool queryIsInfrared = table_.queryIsInfrared();
    const cv::Mat& queryImage = queryIsInfrared ? infrared8_ : grey_;
    const cv::Mat& targetImage = queryIsInfrared ? grey_ : infrared8_;
    auto pendingTargets = std::async(std::launch::async, findCorners, targetImage, kTargetCorners);
    const CornerSet queries = findCorners(queryImage, kQueryCorners);
    Stopwatch watch;
    std::vector<ParallaxShift> parallax(queries.points.size());
    if (shifts && queryIsInfrared) parallax = shifts(queries.points);
    statistics_.distanceSeconds = watch.lap();
    const CornerSet targets = pendingTargets.get();

    watch.lap();
    std::vector<cv::Point2f>* queryPoints = queryIsInfrared ? infraredPoints : colourPoints;
    std::vector<cv::Point2f>* targetPoints = queryIsInfrared ? colourPoints : infraredPoints;
    const CandidateSearch search(targets, targetImage.size());
    for (std::size_t k = 0; k < queries.points.size(); ++k) {
        const auto* atInfinity = table_.find(queries.points[k]);
        if (atInfinity == nullptr) continue;
        const PositionTable::Quadrilateral predicted = shifted(*atInfinity, parallax[k]);
        const int nearest = search.nearest(searchArea(predicted, targetImage.size()),
                                           queries.descriptors.ptr<std::uint8_t>(static_cast<int>(k)));
        if (nearest < 0 || !liesInside(predicted, targets.points[static_cast<std::size_t>(nearest)])) continue;
        queryPoints->push_back(queries.points[k]);
        targetPoints->push_back(targets.points[static_cast<std::size_t>(nearest)]);
    }
    const CornerSet& infraredCorners = queryIsInfrared ? queries : targets;
    const CornerSet& colourCorners = queryIsInfrared ? targets : queries;
    statistics_.infraredCorners = infraredCorners.detected;
    statistics_.colourCorners = colourCorners.detected;
    statistics_.matched = static_cast<int>(queryPoints->size());
    statistics_.detectionSeconds = std::max(queries.detectionSeconds, targets.detectionSeconds);
    statistics_.descriptionSeconds = std::max(queries.descriptionSeconds, targets.descriptionSeconds);
    statistics_.matchingSeconds = watch.lap();
    logMessage(kInfo, kTag, "Matches.size: %d (#IR features = %d) (#RGB features = %d)", statistics_.matched,
               static_cast<int>(infraredCorners.points.size()), static_cast<int>(colourCorners.points.size()));
    logMessage(kInfo, kTag, "Found matches");
}

}  // namespace vq
