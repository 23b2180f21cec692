#pragma once

#include "tests/engine/Cameras.h"

#include <opencv2/imgproc.hpp>

namespace vq::testing {

/// A pair of pictures with the true rotation between them.
struct ScenePair {
    cv::Mat infrared;  ///< CV_16UC1
    cv::Mat colour;    ///< CV_8UC4, in pixels of the delivered picture
};

/// Rich texture, much larger than a picture. Grey values of 8 bits.
inline cv::Mat texture(int seed) {
    cv::RNG random(static_cast<std::uint64_t>(seed));
    cv::Mat noise(700, 900, CV_32F), coarse(700 / 6, 900 / 6, CV_32F), image;
    random.fill(noise, cv::RNG::NORMAL, 0, 1);
    random.fill(coarse, cv::RNG::NORMAL, 0, 1);
    cv::GaussianBlur(noise, noise, {}, 1.6);
    cv::resize(coarse, coarse, noise.size(), 0, 0, cv::INTER_CUBIC);
    cv::normalize(noise * 4.0 + coarse, image, 10, 245, cv::NORM_MINMAX);
    return image;
}

/// Pictures of one scene at infinity as the two cameras see it, in two kinds of light.
inline ScenePair renderScene(const CameraPair& cameras, const Eigen::Vector3d& anglesRad, int seed) {
    const cv::Mat scene = texture(seed);
    const auto see = [&scene](const fieldcal::CameraModel& camera, const Eigen::Matrix3d& pictureFromInfrared) {
        Eigen::Matrix3d infraredFromScene = Eigen::Matrix3d::Identity();
        infraredFromScene(0, 2) = -250;
        infraredFromScene(1, 2) = -200;
        const Eigen::Matrix<double, 3, 3, Eigen::RowMajor> map = pictureFromInfrared * infraredFromScene;
        cv::Mat picture;
        cv::warpPerspective(scene, picture, cv::Mat(3, 3, CV_64F, const_cast<double*>(map.data())),
                            {camera.width, camera.height}, cv::INTER_CUBIC, cv::BORDER_REFLECT_101);
        return picture;
    };
    Eigen::Matrix3d deliveredFromModel = Eigen::Matrix3d::Identity();
    const fieldcal::ColourScaling& scaling = cameras.colourScaling;
    deliveredFromModel.diagonal() << 1.0 / scaling.x, 1.0 / scaling.y, 1.0;
    deliveredFromModel(0, 2) = 0.5 / scaling.x - 0.5;
    deliveredFromModel(1, 2) = 0.5 / scaling.y - 0.5;

    ScenePair pair;
    see(cameras.infrared, Eigen::Matrix3d::Identity()).convertTo(pair.infrared, CV_16U, 3.5, 60);
    cv::Mat grey;
    see(cameras.colour, deliveredFromModel * colourFromInfrared(cameras, anglesRad)).convertTo(grey, CV_8U, 0.8, 20);
    cv::cvtColor(grey, pair.colour, cv::COLOR_GRAY2BGRA);
    return pair;
}

}  // namespace vq::testing
