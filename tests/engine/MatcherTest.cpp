#include "engine/CrossModalMatcher.h"
#include "engine/SensorCalibratorParameters.h"
#include "tests/engine/Matchers.h"
#include "tests/engine/Scenes.h"

#include <gtest/gtest.h>
#include <opencv2/imgproc.hpp>

namespace vq::testing {
namespace {

const Eigen::Vector3d kCurrentRad = Eigen::Vector3d(0.6, -0.9, 1.1) * kDeg;

CameraPair scaledCameras() {
    CameraPair cameras = smallCameras();
    cameras.colourScaling = {1.0031F, 0.9962F};
    return cameras;
}

Eigen::Vector3d randomOffsetDeg(std::mt19937& random, const SearchRange& range) {
    Eigen::Vector3d offset;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        // The ends as often as what lies between.
        const double low = range.minDeg[axis], high = range.maxDeg[axis];
        const double place = uniform(random, -0.5, 1.5);
        offset[static_cast<Eigen::Index>(axis)] = place < 0 ? low : place > 1 ? high : low + place * (high - low);
    }
    return offset;
}

/// Where a query pixel really lands; both positions in delivered pixels.
cv::Point2f landing(const CameraPair& cameras, const Eigen::Vector3d& anglesRad, bool queryIsInfrared,
                    const cv::Point2f& query) {
    const Eigen::Matrix3d homography = colourFromInfrared(cameras, anglesRad);
    if (queryIsInfrared) return cameras.deliveredColourPoint(mapped(homography, query));
    return mapped(homography.inverse(), cameras.colourModelPoint(query));
}

TEST(PositionTable, BoundsEveryLandingAndLittleMore) {
    const SearchRange range;
    for (const CameraPair& cameras : {fullCameras(), scaledCameras()}) {
        for (const bool queryIsInfrared : {true, false}) {
            const PositionTable table(cameras, kCurrentRad, range, queryIsInfrared);
            const fieldcal::CameraModel& query = queryIsInfrared ? cameras.infrared : cameras.colour;
            std::mt19937 random(1);
            for (int pixel = 0; pixel < 300; ++pixel) {
                const cv::Point2f point(static_cast<float>(uniform(random, 0, query.width - 0.01)),
                                        static_cast<float>(uniform(random, 0, query.height - 0.01)));
                const auto* quadrilateral = table.find(point);
                ASSERT_NE(quadrilateral, nullptr);
                const std::vector<cv::Point2f> polygon(quadrilateral->begin(), quadrilateral->end());
                EXPECT_GT(cv::contourArea(polygon), 0) << "the points run around the perimeter";
                cv::Point2f low(1e9F, 1e9F), high(-1e9F, -1e9F);
                for (int i = 0; i < 300; ++i) {
                    const Eigen::Vector3d anglesRad = kCurrentRad + randomOffsetDeg(random, range) * kDeg;
                    const cv::Point2f target = landing(cameras, anglesRad, queryIsInfrared, point);
                    ASSERT_GE(cv::pointPolygonTest(polygon, target, true), 0) << point << " lands at " << target;
                    low = {std::min(low.x, target.x), std::min(low.y, target.y)};
                    high = {std::max(high.x, target.x), std::max(high.y, target.y)};
                }
                const cv::Size2f bounds(high - low);
                EXPECT_LT(cv::contourArea(polygon), (bounds.width + 10.0) * (bounds.height + 10.0)) << point;
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
    EXPECT_EQ(PositionTable(CameraPair(), kCurrentRad, {}, true).find({0, 0}), nullptr);
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

int rightOnes(const CameraPair& cameras, const Eigen::Vector3d& truthRad, const Matched& matched) {
    int right = 0;
    for (std::size_t i = 0; i < matched.infrared.size(); ++i) {
        const cv::Point2f miss = landing(cameras, truthRad, true, matched.infrared[i]) - matched.colour[i];
        right += std::hypot(miss.x, miss.y) < 1.5F ? 1 : 0;
    }
    return right;
}

TEST(Matcher, FindsAScenesTwinsWhereTheSearchMayLook) {
    const CameraPair cameras = scaledCameras();
    struct Case {
        Eigen::Vector3d driftDeg;
        bool found;
    };
    for (const Case& test : {Case{{3.8, -1.4, 1.9}, true}, {{-3.8, 1.4, -1.9}, true}, {{0, 5.0, 0}, false}}) {
        const Eigen::Vector3d truthRad = kCurrentRad + test.driftDeg * kDeg;
        const ScenePair scene = renderScene(cameras, truthRad, 7);
        for (const bool queryIsInfrared : {true, false}) {
            const Matched matched = match(cameras, scene, {}, queryIsInfrared);
            ASSERT_EQ(matched.colour.size(), matched.infrared.size());
            EXPECT_EQ(matched.statistics.matched, static_cast<int>(matched.colour.size()));
            // The target picture gives at most 1000 corners, the query as many as it has.
            const PairStatistics& s = matched.statistics;
            EXPECT_EQ(queryIsInfrared ? s.colourCorners : s.infraredCorners, 1000);
            EXPECT_GT(queryIsInfrared ? s.infraredCorners : s.colourCorners, 1000);
            const int right = rightOnes(cameras, truthRad, matched);
            if (test.found) {
                EXPECT_GT(right, 250) << test.driftDeg.transpose();
            } else {
                EXPECT_EQ(right, 0) << test.driftDeg.transpose();
            }
        }
    }
}

/// How far a point lies outside the upright rectangle that the four points make; 0 inside.
double pixelsOutside(const PositionTable::Quadrilateral& area, const cv::Point2f& point) {
    const double across = std::max({area[0].x - point.x, point.x - area[2].x, 0.0F});
    const double down = std::max({area[0].y - point.y, point.y - area[2].y, 0.0F});
    return std::hypot(across, down);
}

TEST(Matcher, KeepsWhatLiesAtMostOnePixelOutside) {
    const CameraPair cameras = smallCameras();
    const ScenePair scene = renderScene(cameras, kCurrentRad + Eigen::Vector3d(0, 1.0, 0) * kDeg, 3);
    const Matched all = match(cameras, scene, {}, true);
    int barelyInside = 0, barelyOutside = 0;
    // Search areas that end more and more to the left of the matches.
    for (double endDeg = 1.0; endDeg > -0.5; endDeg -= 0.1) {
        SearchRange range;
        range.maxDeg[1] = endDeg;
        const PositionTable table(cameras, kCurrentRad, range, true);
        const Matched some = match(cameras, scene, range, true);
        for (std::size_t i = 0; i < some.infrared.size(); ++i)
            EXPECT_LE(pixelsOutside(*table.find(some.infrared[i]), some.colour[i]), 1.0);
        for (std::size_t i = 0; i < all.infrared.size(); ++i) {
            const double outside = pixelsOutside(*table.find(all.infrared[i]), all.colour[i]);
            const auto& kept = some.infrared;
            if (outside <= 1.0) {
                EXPECT_NE(std::find(kept.begin(), kept.end(), all.infrared[i]), kept.end()) << outside;
            }
            barelyInside += outside > 0.9 && outside <= 1.0 ? 1 : 0;
            barelyOutside += outside > 1.0 && outside <= 1.1 ? 1 : 0;
        }
    }
    EXPECT_GT(barelyInside, 20);
    EXPECT_GT(barelyOutside, 20);
}

TEST(Matcher, FindsNothingInFeaturelessPictures) {
    const CameraPair cameras = smallCameras();
    const ScenePair flat{cv::Mat(240, 320, CV_16UC1, cv::Scalar(400)),
                         cv::Mat(252, 336, CV_8UC4, cv::Scalar(90, 90, 90, 255))};
    EXPECT_TRUE(match(cameras, flat, {}, true).infrared.empty());
    ScenePair half = renderScene(cameras, kCurrentRad, 1);
    half.colour = flat.colour;
    EXPECT_TRUE(match(cameras, half, {}, true).infrared.empty());
    EXPECT_TRUE(match(cameras, half, {}, false).infrared.empty());
}

}  // namespace
}  // namespace vq::testing
