#include "benchmarks/SiftCalibration.h"

#include "engine/GreyConversion.h"
#include "engine/InfraredConversion.h"
#include "engine/Rotation.h"
#include "engine/RotationFit.h"

#include <opencv2/calib3d.hpp>
#include <opencv2/features2d.hpp>

namespace fieldcal {
namespace {

constexpr float kRatio = 0.8F;
constexpr std::size_t kMinMatches = 4;
constexpr double kHomographyPx = 3.0;
constexpr double kFitPx = 1.0;
constexpr int kHomographyIterations = 10000;
constexpr double kHomographyConfidence = 0.999;

struct Matches {
    std::vector<cv::Point2f> infrared, colour;  ///< colour in pixels of the colour model
};

struct Features {
    std::vector<cv::KeyPoint> points;
    cv::Mat descriptors;
};

Features describe(const cv::Mat& grey) {
    Features features;
    cv::SIFT::create()->detectAndCompute(grey, cv::noArray(), features.points, features.descriptors);
    return features;
}

cv::Mat viewOf(const ImageFrame& frame, int type) {
    return {static_cast<int>(frame.height()), static_cast<int>(frame.width()), type,
            const_cast<std::uint8_t*>(frame.bytes())};
}

Matches matchStill(const FrameRecords& still, const JudgedCamera& camera) {
    cv::Mat infrared8, grey;
    vq::convertInfrared(viewOf(still.leftInfrared, CV_16UC1), 1, &infrared8);
    vq::convertToGrey(viewOf(still.colour[camera.camera], CV_8UC4), &grey);
    const Features infrared = describe(infrared8), colour = describe(grey);
    Matches matches;
    if (infrared.points.empty() || colour.points.size() < 2) return matches;
    std::vector<std::vector<cv::DMatch>> nearest;
    cv::BFMatcher(cv::NORM_L2).knnMatch(infrared.descriptors, colour.descriptors, nearest, 2);
    for (const auto& two : nearest) {
        if (two.size() < 2 || !(two[0].distance < kRatio * two[1].distance)) continue;
        const auto from = static_cast<std::size_t>(two[0].queryIdx), to = static_cast<std::size_t>(two[0].trainIdx);
        matches.infrared.push_back(infrared.points[from].pt);
        matches.colour.push_back(camera.cameras.colourModelPoint(colour.points[to].pt));
    }
    return matches;
}

/// Adds the inliers of one homography, if there is one.
void addInliers(const Matches& matches, Matches* all) {
    if (matches.infrared.size() < kMinMatches) return;
    std::vector<std::uint8_t> inlier;
    const cv::Mat homography = cv::findHomography(matches.infrared, matches.colour, cv::USAC_MAGSAC, kHomographyPx,
                                                  inlier, kHomographyIterations, kHomographyConfidence);
    if (homography.empty()) return;
    for (std::size_t i = 0; i < inlier.size(); ++i) {
        if (inlier[i] == 0) continue;
        all->infrared.push_back(matches.infrared[i]);
        all->colour.push_back(matches.colour[i]);
    }
}

}  // namespace

std::optional<Eigen::Matrix3d> calibrateWithSift(const std::vector<const FrameRecords*>& stills,
                                                 const JudgedCamera& camera) {
    Matches all;
    for (const FrameRecords* still : stills)
        addInliers(matchStill(*still, camera), &all);
    if (all.infrared.size() < kMinMatches) return std::nullopt;
    const vq::RotationCost cost(all.infrared, all.colour, camera.cameras, vq::ResidualLoss::cauchy(kFitPx));
    Eigen::Vector3d anglesRad;
    if (!vq::fitRotationLM(cost, vq::anglesFromRotation(camera.factory), &anglesRad)) return std::nullopt;
    return vq::rotationFromAngles(anglesRad);
}

}  // namespace fieldcal
