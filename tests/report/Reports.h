#pragma once

#include "engine/Rotation.h"
#include "report/ServiceReport.h"

#include <opencv2/imgproc.hpp>

namespace fieldcal::testing {

inline Eigen::Matrix3d rotationOfDeg(double x, double y, double z) {
    return vq::rotationFromAngles(Eigen::Vector3d(x, y, z) / vq::kDegreesPerRadian);
}

/// One still of blobs at infinity for two cameras that are rotated against each other, and a grid of its matches.
inline vq::SolutionEvidence evidenceOf(const Eigen::Matrix3d& truth) {
    vq::SolutionEvidence evidence;
    const CameraModel infrared{640, 480, 600, 601, 318, 242}, colour{640, 470, 600, 601, 322, 236};
    evidence.projection = {{infrared, colour, {}}, {0.025, 0, 0}};
    cv::Mat noise(infrared.height, infrared.width, CV_8U);
    cv::RNG random(7);
    random.fill(noise, cv::RNG::UNIFORM, 0, 256);
    cv::GaussianBlur(noise, noise, {0, 0}, 2.5);
    cv::normalize(noise, evidence.infrared, 0, 255, cv::NORM_MINMAX);

    const vq::Projection back{{colour, infrared, {}}, Eigen::Vector3d::Zero()};
    cv::Mat places(colour.height, colour.width, CV_32FC2);
    for (int y = 0; y < places.rows; ++y) {
        for (int x = 0; x < places.cols; ++x) {
            const Eigen::Vector2d seen = back.colourPoint(truth.transpose(), cv::Point2f(cv::Point(x, y)), 0);
            places.at<cv::Point2f>(y, x) = {static_cast<float>(seen.x()), static_cast<float>(seen.y())};
        }
    }
    cv::remap(evidence.infrared, evidence.grey, places, cv::noArray(), cv::INTER_LINEAR, cv::BORDER_REPLICATE);

    evidence.matchesPerStill = {0, 1200};
    evidence.shownStill = 1;
    for (int i = 0; i < 1200; ++i) {
        const cv::Point2f place(static_cast<float>(8 + 16 * (i % 40)), static_cast<float>(8 + 16 * (i / 40)));
        const Eigen::Vector2d seen = evidence.projection.colourPoint(truth, place, 0);
        evidence.matches.push_back({place, {static_cast<float>(seen.x() + 0.25), static_cast<float>(seen.y())}, 0, 1});
    }
    return evidence;
}

inline ReportedCamera cameraOf(ColourCamera which) {
    ReportedCamera camera;
    camera.camera = which;
    camera.stored = rotationOfDeg(0.1234, -0.2345, 0.3456);
    camera.found = camera.accepted = rotationOfDeg(0.9876, -1.0987, 1.2109);
    vq::SolutionQuality quality;
    quality.deviationDeg = {0.0041, 0.0052, 0.0063};
    quality.proof = vq::HoldOutProof{10.127, 0.214, 1215, 4};
    quality.model.probability[2] = 1e-9;
    camera.quality = quality;
    camera.evidence = evidenceOf(camera.found);
    camera.parallax = {1180, 0.0547, vq::BaselineSource::Remembered, 17.96};
    return camera;
}

inline ServiceReport reportOf(std::vector<ReportedCamera> cameras) {
    ServiceReport report;
    report.time = QDateTime({2026, 7, 1}, {12, 34, 56, 789}, Qt::UTC);
    report.program = "Field Calibrator 9.8.7";
    report.serial = 550101;
    report.firmware = "1.27.11";
    report.cameras = std::move(cameras);
    report.write = ReportedWrite{true, "The flash holds it.", {}, "/data/backups/1.fcbackup"};
    return report;
}

}  // namespace fieldcal::testing
