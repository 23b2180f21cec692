#include "engine/AttemptRecord.h"
#include "engine/DistanceMeter.h"
#include "engine/MatchVerification.h"
#include "engine/PatchAlignment.h"
#include "engine/StereoMatcher.h"
#include "tests/engine/Matchers.h"
#include "tests/engine/Scenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace vq::testing {
namespace {

constexpr double kBaselineM = 0.055;
const CameraPair kCameras = fullCameras();
const double kPixelMetres = static_cast<double>(kCameras.infrared.fx) * kBaselineM;

double median(std::vector<double> values) {
    if (values.empty()) return std::nan("");
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// A texture in the left and the right image, with the given disparity, a different gain and independent noise in the
/// right image, and rows that are slightly offset.
struct StereoScene {
    cv::Mat left16, right16;

    StereoScene(const cv::Mat& scene8, double disparityPx, double rowOffsetPx) {
        const auto view = [&](double dx, double dy, double gain, int seed) {
            const cv::Mat move = (cv::Mat_<double>(2, 3) << 1, 0, -100 - dx, 0, 1, -60 + dy);
            cv::Mat seen, noise(468, 628, CV_32F), image16;
            cv::warpAffine(scene8, seen, move, {628, 468}, cv::INTER_CUBIC, cv::BORDER_REFLECT_101);
            cv::RNG random(static_cast<std::uint64_t>(seed));
            random.fill(noise, cv::RNG::NORMAL, 0, 3);
            seen.convertTo(seen, CV_32F, 2.5 * gain, 100);
            cv::Mat(seen + noise).convertTo(image16, CV_16U);
            return image16;
        };
        left16 = view(0, 0, 1, 1);
        right16 = view(disparityPx, rowOffsetPx, 1.05, 2);
    }
};

std::vector<cv::Point2f> lattice(int step) {
    std::vector<cv::Point2f> points;
    for (int y = 30; y < 440; y += step)
        for (int x = 90; x < 600; x += step)
            points.emplace_back(static_cast<float>(x), static_cast<float>(y));
    return points;
}

TEST(StereoMatcher, FindsSubPixelDisparitiesThroughGainNoiseAndRowsApart) {
    for (const double disparity : {0.03, 3.4, 21.7}) {
        const StereoScene scene(texture(3), disparity, 0.2);
        const StereoMatcher matcher(scene.left16, scene.right16);
        const auto points = lattice(23);
        const auto found = matcher.refine(points, matcher.findCoarse(points));
        std::vector<double> errors;
        for (const float value : found) {
            if (!std::isnan(value)) errors.push_back(std::abs(value - disparity));
        }
        EXPECT_GT(errors.size(), points.size() / 2) << disparity;
        EXPECT_LT(median(errors), 0.08) << disparity;
        EXPECT_LT(*std::max_element(errors.begin(), errors.end()), 0.6) << disparity;
    }
}

TEST(StereoMatcher, DropsPlacesThatAreAlikeAlongTheRow) {
    cv::Mat scene = texture(4);
    for (int x = 24; x < scene.cols; ++x)
        scene.col(x - 24).copyTo(scene.col(x));
    const StereoScene periodic(scene, 3.4, 0);
    const StereoMatcher matcher(periodic.left16, periodic.right16);
    const auto points = lattice(23);
    const auto found = matcher.findCoarse(points);
    EXPECT_LT(std::count_if(found.begin(), found.end(), [](float d) { return !std::isnan(d); }),
              static_cast<std::ptrdiff_t>(points.size() / 20));
}

TEST(DistanceMeter, RefusesWhatCannotBeTheRightImage) {
    const StereoScene scene(texture(5), 6, 0), later(texture(6), 6, 0);
    const cv::Mat depth(468, 628, CV_16UC1, cv::Scalar(5500));
    const auto usable = [&](std::initializer_list<std::pair<cv::Mat, cv::Mat>> pairs) {
        DistanceMeter meter;
        meter.setup(kCameras.infrared, kCameras.infrared, 0);
        for (const auto& [left, right] : pairs) {
            meter.beginPair(left, right, depth);
            std::vector<MeasuredPlace> places = meter.lookUp(lattice(23));
            meter.refine(&places);
            meter.learnFrom(places);
        }
        return meter.seesDisparities();
    };
    EXPECT_TRUE(usable({{scene.left16, scene.right16}, {later.left16, later.right16}}));
    EXPECT_FALSE(usable({{scene.left16, cv::Mat()}}));
    EXPECT_FALSE(usable({{scene.left16, cv::Mat(468, 628, CV_16UC1, cv::Scalar(300))}})) << "blank";
    EXPECT_FALSE(usable({{scene.left16, scene.right16}, {later.left16, scene.right16}})) << "frozen";
    EXPECT_FALSE(usable({{scene.left16, scene.left16.clone()}})) << "the left one";
    EXPECT_FALSE(usable({{scene.left16, scene.right16.colRange(0, 600).clone()}})) << "another size";
    EXPECT_FALSE(usable({{scene.right16, scene.left16}})) << "exchanged";
}

TEST(StereoScale, ComesFromDepthWithItsConstantOffset) {
    std::mt19937 random(7);
    std::normal_distribution<double> noise(0, 0.1);
    std::vector<MeasuredPlace> places;
    for (int i = 0; i < 6000; ++i) {
        const double inverseDepth = uniform(random, 0.12, 0.6);
        const double wrong = i % 5 == 0 ? uniform(random, -20, 20) : 0;
        places.push_back({{},
                          static_cast<float>(kPixelMetres * inverseDepth + 0.05 + noise(random) + wrong),
                          static_cast<float>(inverseDepth)});
    }
    const auto scale = scaleFromDepth(places);
    ASSERT_TRUE(scale);
    EXPECT_NEAR(scale->pixelMetres, kPixelMetres, 0.01 * kPixelMetres);
    EXPECT_NEAR(scale->offsetPx, 0.05, 0.02);
    places.resize(30);
    EXPECT_FALSE(scaleFromDepth(places)) << "too few";
}

/// Matches of objects at 1.5 to 30 m, with noise, for a camera beside the infrared one.
struct NearScene {
    Projection projection{kCameras, {-0.06, 0.001, 0.002}};
    Eigen::Matrix3d truth = rotationFromAngles(Eigen::Vector3d(1.5, -0.8, 1.1) * kDeg);
    std::vector<MeasuredMatch> matches;

    explicit NearScene(double disparityNoisePx) {
        std::mt19937 random(8);
        std::normal_distribution<double> noise(0, 1);
        for (int i = 0; i < 600; ++i) {
            const cv::Point2f place = randomPoint(random, {12, 12, 604, 444});
            const double inverseDepth = uniform(random, 1 / 30.0, 1 / 1.5);
            Eigen::Vector2d colour = projection.colourPoint(truth, place, inverseDepth);
            colour += 0.2 * Eigen::Vector2d(noise(random), noise(random));
            if (i % 4 == 0) colour += Eigen::Vector2d(uniform(random, -9, 9), uniform(random, -9, 9));
            const double disparity = kPixelMetres * inverseDepth + disparityNoisePx * noise(random);
            matches.push_back({{place, static_cast<float>(disparity)},
                               {static_cast<float>(colour.x()), static_cast<float>(colour.y())}});
        }
    }
};

TEST(RotationPolish, FitsRotationAndBaselineWithTheExactGeometry) {
    const NearScene scene(0.08);
    const Eigen::Matrix3d start = rotationFromAngles(Eigen::Vector3d(1.4, -0.6, 1.1) * kDeg);
    StereoScale scale{kPixelMetres};
    FitOptions options;
    options.scale = &scale;
    const auto fitted = fitRotation(scene.matches, scene.projection, start, options);
    ASSERT_TRUE(fitted);
    EXPECT_LT(Eigen::AngleAxisd(fitted->rotation * scene.truth.transpose()).angle(), 0.01 * kDeg);
    EXPECT_LT(fitted->deviationRad.norm(), 0.01 * kDeg);

    scale.pixelMetres *= 1.3;
    options.estimateScale = true;
    const auto both = fitRotation(scene.matches, scene.projection, start, options);
    ASSERT_TRUE(both);
    EXPECT_NEAR(both->pixelMetres, kPixelMetres, 0.005 * kPixelMetres);
    EXPECT_LT(Eigen::AngleAxisd(both->rotation * scene.truth.transpose()).angle(), 0.01 * kDeg);

    // With its parallax removed, a place lies where an object at infinity would appear.
    const cv::Point2f place(200, 150);
    const cv::Point2f freed = scene.projection.withoutParallax(scene.truth, place, 0.4);
    EXPECT_LT(
        (scene.projection.colourPoint(scene.truth, freed, 0) - scene.projection.colourPoint(scene.truth, place, 0.4))
            .norm(),
        1e-3);
}

/// One texture in infrared and visible light; the colour camera is rotated.
struct LitScene {
    Eigen::Vector3d truthRad = Eigen::Vector3d(0.7, -0.4, 1.2) * kDeg;
    cv::Mat infrared8, grey;
    std::vector<cv::Point2f> places;

    LitScene() {
        const ScenePair scene = renderScene(kCameras, truthRad, 9);
        scene.infrared.convertTo(infrared8, CV_8U, 0.25);
        cv::extractChannel(scene.colour, grey, 1);
        places = texturedPlaces(infrared8);
    }
    /// Distance in pixels between the true position of a match in the colour image and the position found.
    double errorPx(const cv::Point2f& infrared, const cv::Point2f& colour) const {
        return cv::norm(mapped(colourFromInfrared(kCameras, truthRad), infrared) - colour);
    }
};

TEST(PatchAlignment, FindsPatchesToAFewHundredthsOfAPixel) {
    const LitScene scene;
    std::vector<MeasuredPlace> places;
    for (const cv::Point2f& place : scene.places)
        places.push_back({place});
    const Projection projection{kCameras, {0.025, 0, 0}};
    const Eigen::Matrix3d start = rotationFromAngles(scene.truthRad + Eigen::Vector3d(0.05, -0.08, 0.1) * kDeg);
    const auto aligned = alignPatches(scene.infrared8, scene.grey, places, projection, start, nullptr, false);
    EXPECT_GT(aligned.size(), places.size() / 2);
    std::vector<double> errors;
    errors.reserve(aligned.size());
    for (const MeasuredMatch& match : aligned)
        errors.push_back(scene.errorPx(match.place.infrared, match.colour));
    EXPECT_LT(median(errors), 0.06);
    EXPECT_TRUE(alignPatches(scene.infrared8, scene.grey, places, projection, start, nullptr, true).empty())
        << "no place has a distance";
}

TEST(ExactPositions, LeaveOutWhatWholePixelPatchesCost) {
    const LitScene scene;
    std::mt19937 random(10);
    std::vector<cv::Point2f> colour, infrared, exact;
    for (int i = 0; i < 400; ++i) {
        infrared.push_back(randomPoint(random, {60, 60, 500, 340}));
        colour.push_back(mapped(colourFromInfrared(kCameras, scene.truthRad), infrared.back()));
    }
    verifyMatches(scene.grey, scene.infrared8, &colour, &infrared, &exact);
    ASSERT_EQ(exact.size(), infrared.size());
    ASSERT_GT(exact.size(), 100U);
    std::vector<double> rounded, unrounded;
    for (std::size_t i = 0; i < exact.size(); ++i) {
        rounded.push_back(scene.errorPx(infrared[i], colour[i]));
        unrounded.push_back(scene.errorPx(exact[i], colour[i]));
    }
    EXPECT_GT(median(rounded), 0.3);
    EXPECT_LT(median(unrounded), 0.12);
}

}  // namespace
}  // namespace vq::testing
