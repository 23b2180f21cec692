#include "engine/CrossModalMatcher.h"
#include "engine/SensorCalibratorParameters.h"
#include "tests/engine/Matchers.h"
#include "tests/engine/Scenes.h"

#include <gtest/gtest.h>
#include <opencv2/imgproc.hpp>

namespace vq::testing {
namespace {

const Eigen::Vector3d kCurrentRad = Eigen::Vector3d(0.6, -0.9, 1.1) * kDeg;

/// Returns the true position of a query pixel in the target image; both in delivered pixels.
cv::Point2f landing(const CameraPair& cameras, const Eigen::Vector3d& anglesRad, bool queryIsInfrared,
                    const cv::Point2f& query) {
    const Eigen::Matrix3d homography = colourFromInfrared(cameras, anglesRad);
    if (queryIsInfrared) return cameras.deliveredColourPoint(mapped(homography, query));
    return mapped(homography.inverse(), cameras.colourModelPoint(query));
}

/// Returns an offset within the search range; its ends are as frequent as values in between.
Eigen::Vector3d randomOffsetRad(std::mt19937& random) {
    const auto offset = [&](double end) { return std::clamp(uniform(random, -2.0 * end, 2.0 * end), -end, end); };
    return Eigen::Vector3d(offset(4.0), offset(1.5), offset(2.0)) * kDeg;
}

TEST(PositionTable, BoundsEveryLandingAndLittleMore) {
    std::mt19937 random(1);
    for (const CameraPair& cameras : {fullCameras(), smallCameras()}) {
        for (const bool queryIsInfrared : {true, false}) {
            const PositionTable table(cameras, kCurrentRad, {}, queryIsInfrared);
            const fieldcal::CameraModel& query = queryIsInfrared ? cameras.infrared : cameras.colour;
            for (int pixel = 0; pixel < 300; ++pixel) {
                cv::Point2f point = randomPoint(random, {0, 0, query.width - 0.1F, query.height - 0.1F});
                // Half of the points are on the corner of an entry, where the margin of its area is smallest.
                if (pixel % 2 == 0) point = {std::floor(point.x / 4) * 4, std::floor(point.y / 4) * 4};
                const auto* area = table.find(point);
                ASSERT_NE(area, nullptr);
                const std::vector<cv::Point2f> polygon(area->begin(), area->end());
                std::vector<cv::Point2f> targets;
                for (int i = 0; i < 500; ++i) {
                    targets.push_back(landing(cameras, kCurrentRad + randomOffsetRad(random), queryIsInfrared, point));
                    ASSERT_GE(cv::pointPolygonTest(polygon, targets.back(), true), 0) << point << " -> " << targets[0];
                }
                const cv::Rect bounds = cv::boundingRect(targets);
                EXPECT_LT(cv::contourArea(polygon), (bounds.width + 10) * (bounds.height + 10)) << point;
            }
        }
    }
}

TEST(PositionTable, KnowsNothingOutside) {
    const PositionTable table(smallCameras(), kCurrentRad, {}, true);
    EXPECT_NE(table.find({0, 0}), nullptr);
    EXPECT_NE(table.find({319.9F, 239.9F}), nullptr);
    for (const cv::Point2f& outside : {cv::Point2f(-0.01F, 50), {50, -0.01F}, {320, 50}, {50, 240}, {NAN, 50}})
        EXPECT_EQ(table.find(outside), nullptr) << outside;
    EXPECT_EQ(PositionTable().find({0, 0}), nullptr);
}

struct Matched {
    std::vector<cv::Point2f> colour, infrared;
    PairStatistics statistics;
};

Matched match(const CameraPair& cameras, const ScenePair& scene, const SearchRange& range, bool queryIsInfrared) {
    CrossModalMatcher matcher;
    matcher.setQueryIsInfrared(queryIsInfrared);
    matcher.setup(cameras, kCurrentRad, range, 0.0);
    matcher.prepare(scene.infrared, scene.colour, HistogramStretch);
    Matched matched;
    matcher.findCrossModalMatches(&matched.colour, &matched.infrared);
    matched.statistics = matcher.statistics();
    return matched;
}

TEST(Matcher, FindsAScenesTwinsOnlyWhereTheSearchMayLook) {
    const CameraPair cameras = smallCameras();
    const std::pair<Eigen::Vector3d, bool> cases[] = {
        {{3.8, -1.4, 1.9}, true}, {{-3.8, 1.4, -1.9}, true}, {{0, 5.0, 0}, false}};
    for (const auto& [driftDeg, isReached] : cases) {
        const Eigen::Vector3d truthRad = kCurrentRad + driftDeg * kDeg;
        const ScenePair scene = renderScene(cameras, truthRad, 7);
        for (const bool queryIsInfrared : {true, false}) {
            const Matched matched = match(cameras, scene, {}, queryIsInfrared);
            int right = 0;
            for (std::size_t i = 0; i < matched.infrared.size(); ++i) {
                const cv::Point2f truth = landing(cameras, truthRad, true, matched.infrared[i]);
                right += cv::norm(truth - matched.colour.at(i)) < 1.5 ? 1 : 0;
            }
            EXPECT_TRUE(isReached ? right > 250 : right == 0) << driftDeg.transpose() << ": " << right;
            // The target image provides at most 1000 corners, the query image all of its corners.
            const PairStatistics& s = matched.statistics;
            EXPECT_EQ(queryIsInfrared ? s.colourCorners : s.infraredCorners, 1000);
            EXPECT_GT(queryIsInfrared ? s.infraredCorners : s.colourCorners, 1000);
        }
    }
}

/// Returns the distance of a point from the axis-aligned rectangle of the four points; 0 inside.
double pixelsOutside(const PositionTable::Quadrilateral& area, const cv::Point2f& point) {
    const double across = std::max({area[0].x - point.x, point.x - area[2].x, 0.0F});
    return std::hypot(across, std::max({area[0].y - point.y, point.y - area[2].y, 0.0F}));
}

TEST(Matcher, KeepsWhatLiesAtMostOnePixelOutside) {
    const CameraPair cameras = smallCameras();
    const ScenePair scene = renderScene(cameras, kCurrentRad + Eigen::Vector3d(0, 1.0, 0) * kDeg, 3);
    const Matched all = match(cameras, scene, {}, true);
    int barelyInside = 0, barelyOutside = 0;
    // Search areas that end further and further to the left of the matches.
    for (int step = 0; step < 15; ++step) {
        SearchRange range;
        range.maxDeg[1] = 1.0 - 0.1 * step;
        const PositionTable table(cameras, kCurrentRad, range, true);
        const Matched some = match(cameras, scene, range, true);
        for (std::size_t i = 0; i < some.infrared.size(); ++i)
            EXPECT_LE(pixelsOutside(*table.find(some.infrared[i]), some.colour[i]), 1.0);
        for (std::size_t i = 0; i < all.infrared.size(); ++i) {
            const double outside = pixelsOutside(*table.find(all.infrared[i]), all.colour[i]);
            const bool kept = std::count(some.infrared.begin(), some.infrared.end(), all.infrared[i]) > 0;
            EXPECT_TRUE(kept || outside > 1.0) << outside;
            barelyInside += outside > 0.9 && outside <= 1.0 ? 1 : 0;
            barelyOutside += outside > 1.0 && outside <= 1.1 ? 1 : 0;
        }
    }
    EXPECT_GT(std::min(barelyInside, barelyOutside), 20) << "or nothing was tested";
}

}  // namespace
}  // namespace vq::testing
