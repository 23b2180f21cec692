#include "benchmarks/BenchmarkData.h"

#include "devices/ColourConversion.h"
#include "devices/InfraredGeometry.h"
#include "diagnostics/Assertions.h"
#include "engine/Rotation.h"
#include "simulator/kxapi/Calibration.h"

#include <cstdlib>
#include <sstream>

namespace fieldcal {
namespace {

vq::ImagePairRecord scaledColour(const session::FrameImages& images, const CameraModel& model) {
    ImageFrame32 scaled;
    scaleThird(images, model, &scaled);
    vq::ImagePairRecord record;
    record.assign(scaled.width(), scaled.height(), scaled.bytes(), 4);
    return record;
}

}  // namespace

CameraParameters parametersOf(const session::SessionDescription& session) {
    CameraParameters parameters;
    parameters.infrared = modelOf(kxsim::rectifiedIntrinsics(session.infrared));
    parameters.depth = modelOf(kxsim::rectifiedIntrinsics(session.depth));
    const auto scaledModel = [&](const session::Intrinsics& camera, ColourScaling* scaling) {
        CameraModel model = modelOf(kxsim::rectifiedIntrinsics(camera));
        if (!bringIntoInfraredGeometry(factorsToInfrared(model, parameters.infrared), &model, scaling))
            fatalFailure("the scale of a colour camera cannot be used", 1);
        return model;
    };
    const auto describe = [&](ColourCamera camera, const auto& intrinsics, const auto& pose) {
        ColourCameraParameters& colour = parameters.colour[camera];
        colour.model = scaledModel(intrinsics, &colour.scaling);
        colour.fromDepth = extrinsicsOf(kxsim::extrinsics(pose.rotation, pose.translation));
    };
    describe(ColourCamera::Third, session.third, session.third);
    if (session.platform) describe(ColourCamera::Platform, session.platform->rectified, *session.platform);
    return parameters;
}

BenchmarkData camerasOf(const session::SessionDescription& session) {
    BenchmarkData data;
    data.parameters = parametersOf(session);
    data.cameras = {data.parameters.infrared, data.parameters.colour[ColourCamera::Third].model,
                    data.parameters.colour[ColourCamera::Third].scaling};
    data.factory = vq::matrixOf(session.third.rotation);
    data.truth = session.truthThird ? vq::matrixOf(*session.truthThird) : data.factory;
    return data;
}

void scaleThird(const session::FrameImages& images, const CameraModel& model, ImageFrame32* out) {
    const cv::Mat raw(static_cast<int>(images.third.height()), static_cast<int>(images.third.width()), CV_8UC4,
                      const_cast<std::uint8_t*>(images.third.bytes()));
    cv::Mat scaled;
    scaleIntoRecord(raw, model.width, model.height, &scaled, out);
}

void addPair(const session::FrameImages& images, BenchmarkData* data) {
    vq::ImagePairRecord infrared;
    infrared.assign(images.infrared.width(), images.infrared.height(), images.infrared.bytes(), 2);
    data->infrared.push_back(std::move(infrared));
    data->colour.push_back(scaledColour(images, data->cameras.colour));
}

BenchmarkData loadRecording(const std::string& folder) {
    session::SessionDescription session;
    std::string why;
    if (!session::readDescription(folder, &session, &why)) fatalFailure(why.c_str(), 1);
    BenchmarkData data = camerasOf(session);
    data.folder = folder;
    for (std::size_t i = 0; i < session.frames.size(); ++i) {
        session::FrameImages images;
        if (!session::readImages(folder, session, i, &images, &why)) fatalFailure(why.c_str(), 1);
        addPair(images, &data);
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

}  // namespace fieldcal
