#include "benchmarks/BenchmarkData.h"

#include "diagnostics/Assertions.h"

#include <Eigen/Geometry>
#include <opencv2/imgproc.hpp>

#include <cmath>
#include <cstdlib>
#include <sstream>

namespace fieldcal {
namespace {

Eigen::Matrix3d matrixOf(const session::Matrix3& rows) {
    return Eigen::Map<const Eigen::Matrix<double, 3, 3, Eigen::RowMajor>>(rows.data());
}

CameraModel modelOf(const session::Intrinsics& camera) {
    return {camera.width,
            camera.height,
            static_cast<float>(camera.fx),
            static_cast<float>(camera.fy),
            static_cast<float>(camera.cx),
            static_cast<float>(camera.cy)};
}

/// Brings the colour model into the infrared geometry, as the camera's calibration is read.
void scaleToInfrared(const session::SessionDescription& session, vq::CameraPair* cameras) {
    const double sx = session.infrared.fx / session.third.fx, sy = session.infrared.fy / session.third.fy;
    CameraModel& colour = cameras->colour;
    colour = modelOf(session.third);
    colour.width = static_cast<int>(std::lround(session.third.width * sx));
    colour.height = static_cast<int>(std::lround(session.third.height * sx));
    colour.fx = cameras->infrared.fx;
    colour.fy = cameras->infrared.fy;
    colour.cx = static_cast<float>(session.third.cx * sx);
    colour.cy = static_cast<float>(session.third.cy * sy);
    cameras->colourScaling = {static_cast<float>(sx * session.third.width / colour.width),
                              static_cast<float>(sy * session.third.height / colour.height)};
}

vq::ImagePairRecord scaledColour(const session::FramePictures& pictures, const CameraModel& model) {
    const cv::Mat raw(static_cast<int>(pictures.third.height()), static_cast<int>(pictures.third.width()), CV_8UC4,
                      const_cast<std::uint8_t*>(pictures.third.bytes()));
    cv::Mat scaled;
    cv::resize(raw, scaled, {model.width, model.height});
    cv::cvtColor(scaled, scaled, cv::COLOR_BGRA2RGBA);
    vq::ImagePairRecord record;
    record.assign(static_cast<std::uint32_t>(scaled.cols), static_cast<std::uint32_t>(scaled.rows), scaled.data, 4);
    return record;
}

}  // namespace

BenchmarkData camerasOf(const session::SessionDescription& session) {
    BenchmarkData data;
    data.cameras.infrared = modelOf(session.infrared);
    scaleToInfrared(session, &data.cameras);
    data.factory = matrixOf(session.third.rotation);
    data.truth = session.truthThird ? matrixOf(*session.truthThird) : data.factory;
    data.parameters.infrared = data.parameters.depth = data.cameras.infrared;
    data.parameters.inModuleColour = data.cameras.colour;
    data.parameters.inModuleScaling = data.cameras.colourScaling;
    for (std::size_t i = 0; i < 9; ++i) {
        data.parameters.depthToInModule.rotation[i] = static_cast<float>(session.third.rotation[i]);
    }
    return data;
}

void addPair(const session::FramePictures& pictures, BenchmarkData* data) {
    vq::ImagePairRecord infrared;
    infrared.assign(pictures.infrared.width(), pictures.infrared.height(), pictures.infrared.bytes(), 2);
    data->infrared.push_back(std::move(infrared));
    data->colour.push_back(scaledColour(pictures, data->cameras.colour));
}

BenchmarkData loadRecording(const std::string& folder) {
    session::SessionDescription session;
    std::string why;
    if (!session::readDescription(folder, &session, &why)) fatalFailure(why.c_str(), 1);
    BenchmarkData data = camerasOf(session);
    data.folder = folder;
    for (std::size_t i = 0; i < session.frames.size(); ++i) {
        session::FramePictures pictures;
        if (!session::readPictures(folder, session, i, &pictures, &why)) fatalFailure(why.c_str(), 1);
        addPair(pictures, &data);
    }
    return data;
}

std::vector<std::string> recordingFolders() {
    const char* named = std::getenv("FIELDCAL_RECORDINGS");
    std::istringstream list(named != nullptr ? named : "../shared/sessions/photo-1:../shared/sessions/photo-2");
    std::vector<std::string> folders;
    for (std::string folder; std::getline(list, folder, ':');)
        folders.push_back(folder);
    return folders;
}

double differenceDeg(const Eigen::Matrix3d& a, const Eigen::Matrix3d& b) {
    // The quaternion keeps small angles, which an arc cosine of the trace would lose.
    const Eigen::Quaterniond q(a * b.transpose());
    return 2.0 * std::atan2(q.vec().norm(), std::abs(q.w())) * 57.29577951308232;
}

}  // namespace fieldcal
