#pragma once

#include "engine/CameraPair.h"
#include "engine/Rotation.h"

#include <Eigen/LU>

#include <random>
#include <vector>

namespace vq::testing {

/// Two small cameras of different size and principal point, as a module's are.
inline CameraPair smallCameras() {
    CameraPair cameras;
    cameras.infrared = {320, 240, 300.0F, 300.0F, 161.5F, 117.25F};
    cameras.colour = {336, 252, 300.0F, 300.0F, 165.0F, 128.5F};
    return cameras;
}

/// As large as the real ones.
inline CameraPair fullCameras() {
    CameraPair cameras;
    cameras.infrared = {628, 468, 600.0F, 600.0F, 312.0F, 238.5F};
    cameras.colour = {634, 474, 600.0F, 600.0F, 322.5F, 231.0F};
    return cameras;
}

/// Infrared pixels to pixels of the colour model, for things at infinity.
inline Eigen::Matrix3d colourFromInfrared(const CameraPair& cameras, const Eigen::Vector3d& anglesRad) {
    return cameraMatrix(cameras.colour) * rotationFromAngles(anglesRad) * cameraMatrix(cameras.infrared).inverse();
}

inline cv::Point2f mapped(const Eigen::Matrix3d& homography, const cv::Point2f& point) {
    const Eigen::Vector3d p = homography * Eigen::Vector3d(point.x, point.y, 1.0);
    return {static_cast<float>(p[0] / p[2]), static_cast<float>(p[1] / p[2])};
}

/// Matched points of a scene. Colour points in pixels of the colour model.
struct PointPairs {
    std::vector<cv::Point2f> infrared, colour;

    void append(const PointPairs& more) {
        infrared.insert(infrared.end(), more.infrared.begin(), more.infrared.end());
        colour.insert(colour.end(), more.colour.begin(), more.colour.end());
    }
};

inline double uniform(std::mt19937& random, double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
}

inline cv::Point2f randomPixel(std::mt19937& random, const fieldcal::CameraModel& model) {
    return {static_cast<float>(uniform(random, 12, model.width - 12)),
            static_cast<float>(uniform(random, 12, model.height - 12))};
}

/// Right matches, with Gaussian noise on the infrared point.
inline PointPairs rightPairs(const CameraPair& cameras, const Eigen::Vector3d& anglesRad, int count, double noisePx,
                             std::mt19937& random) {
    const Eigen::Matrix3d homography = colourFromInfrared(cameras, anglesRad);
    std::normal_distribution<float> noise(0.0F, 1.0F);
    PointPairs pairs;
    for (int i = 0; i < count; ++i) {
        const cv::Point2f exact = randomPixel(random, cameras.infrared);
        const auto scale = static_cast<float>(noisePx);
        pairs.infrared.push_back(exact + scale * cv::Point2f(noise(random), noise(random)));
        pairs.colour.push_back(mapped(homography, exact));
    }
    return pairs;
}

/// Wrong matches as the matcher lets them through: anywhere a rotation of the search range could take the point.
inline PointPairs wrongPairs(const CameraPair& cameras, const Eigen::Vector3d& initialRad, int count,
                             std::mt19937& random) {
    PointPairs pairs;
    for (int i = 0; i < count; ++i) {
        const Eigen::Vector3d offsetDeg(uniform(random, -4, 4), uniform(random, -1.5, 1.5), uniform(random, -2, 2));
        pairs.infrared.push_back(randomPixel(random, cameras.infrared));
        pairs.colour.push_back(
            mapped(colourFromInfrared(cameras, initialRad + offsetDeg / kDegreesPerRadian), pairs.infrared.back()));
    }
    return pairs;
}

}  // namespace vq::testing
