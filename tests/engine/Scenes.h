#pragma once

#include "camera/ImageFrame.h"
#include "engine/CameraPair.h"
#include "engine/Rotation.h"

#include <Eigen/LU>
#include <opencv2/imgproc.hpp>

#include <random>

namespace vq::testing {

/// Two cameras of different size and principal point; the scale of the colour image differs slightly.
inline CameraPair smallCameras() {
    return {{320, 240, 300, 300, 161.5F, 117.25F}, {336, 252, 300, 300, 165.0F, 128.5F}, {1.0031F, 0.9962F}};
}
/// Cameras of the real size.
inline CameraPair fullCameras() {
    return {{628, 468, 600, 600, 312.0F, 238.5F}, {634, 474, 600, 600, 322.5F, 231.0F}, {}};
}

/// Maps infrared pixels to pixels of the colour model, for objects at infinity.
inline Eigen::Matrix3d colourFromInfrared(const CameraPair& cameras, const Eigen::Vector3d& anglesRad) {
    return cameraMatrix(cameras.colour) * rotationFromAngles(anglesRad) * cameraMatrix(cameras.infrared).inverse();
}

inline cv::Point2f mapped(const Eigen::Matrix3d& homography, const cv::Point2f& point) {
    const Eigen::Vector3d p = homography * Eigen::Vector3d(point.x, point.y, 1.0);
    return {static_cast<float>(p[0] / p[2]), static_cast<float>(p[1] / p[2])};
}

inline double uniform(std::mt19937& random, double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
}

inline cv::Point2f randomPoint(std::mt19937& random, const cv::Rect2f& area) {
    const double x = uniform(random, 0, area.width), y = uniform(random, 0, area.height);
    return area.tl() + cv::Point2f(static_cast<float>(x), static_cast<float>(y));
}

/// `Frame` of the pixel type of `image`: ImageFrame16 of CV_16UC1, ImageFrame32 of CV_8UC4.
template <typename Frame>
Frame frameOf(const cv::Mat& image) {
    Frame frame;
    frame.assign(static_cast<std::uint32_t>(image.cols), static_cast<std::uint32_t>(image.rows), image.data);
    return frame;
}

/// Returns an image of random numbers in low..high.
inline cv::Mat randomImage(cv::RNG& random, const cv::Size& size, int type, int low = 0, int high = 255) {
    cv::Mat image(size, type);
    random.fill(image, cv::RNG::UNIFORM, low, high + 1);
    return image;
}

struct ScenePair {
    cv::Mat infrared;  ///< CV_16UC1
    cv::Mat colour;    ///< CV_8UC4, as delivered
};

/// Rich texture, much larger than a small image. Grey values from 10 to 245.
inline cv::Mat texture(int seed) {
    cv::RNG random(static_cast<std::uint64_t>(seed));
    cv::Mat fine(700, 900, CV_32F), coarse(116, 150, CV_32F), image;
    random.fill(fine, cv::RNG::NORMAL, 0, 1);
    random.fill(coarse, cv::RNG::NORMAL, 0, 1);
    cv::GaussianBlur(fine, fine, {}, 1.6);
    cv::resize(coarse, coarse, fine.size(), 0, 0, cv::INTER_CUBIC);
    cv::normalize(fine * 4.0 + coarse, image, 10, 245, cv::NORM_MINMAX);
    return image;
}

/// Renders one scene at infinity for the two cameras, in infrared and visible light.
inline ScenePair renderScene(const CameraPair& cameras, const Eigen::Vector3d& anglesRad, int seed) {
    const auto see = [scene = texture(seed)](const fieldcal::CameraModel& camera, const Eigen::Matrix3d& fromInfrared) {
        Eigen::Matrix3d infraredFromScene = Eigen::Matrix3d::Identity();
        infraredFromScene.topRightCorner<2, 1>() << -250, -200;
        Eigen::Matrix<double, 3, 3, Eigen::RowMajor> map = fromInfrared * infraredFromScene;
        cv::Mat picture;
        cv::warpPerspective(scene, picture, cv::Mat(3, 3, CV_64F, map.data()), {camera.width, camera.height},
                            cv::INTER_CUBIC, cv::BORDER_REFLECT_101);
        return picture;
    };
    const fieldcal::ColourScaling& scaling = cameras.colourScaling;
    Eigen::Matrix3d deliveredFromModel = Eigen::Matrix3d::Identity();
    deliveredFromModel.diagonal() << 1.0 / scaling.x, 1.0 / scaling.y, 1.0;
    deliveredFromModel.topRightCorner<2, 1>() << 0.5 / scaling.x - 0.5, 0.5 / scaling.y - 0.5;

    ScenePair pair;
    cv::Mat grey;
    see(cameras.infrared, Eigen::Matrix3d::Identity()).convertTo(pair.infrared, CV_16U, 3.5, 60);
    see(cameras.colour, deliveredFromModel * colourFromInfrared(cameras, anglesRad)).convertTo(grey, CV_8U, 0.8, 20);
    cv::cvtColor(grey, pair.colour, cv::COLOR_GRAY2BGRA);
    return pair;
}

}  // namespace vq::testing
