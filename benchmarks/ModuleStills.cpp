#include "benchmarks/ModuleStills.h"

#include "devices/CameraParameterReader.h"
#include "devices/ColourConversion.h"
#include "devices/Sensor.h"
#include "diagnostics/Assertions.h"
#include "engine/Rotation.h"
#include "simulator/kxapi/Calibration.h"
#include "simulator/kxapi/Rectification.h"

namespace fieldcal {
namespace {

void scalePlatform(const std::vector<std::uint8_t>& nv12, const std::vector<std::uint32_t>& table,
                   const CameraModel& model, ImageFrame32* out) {
    cv::Mat raw, rectified(session::kPlatformHeight, session::kPlatformWidth, CV_8UC4), scaled;
    nv12ToBgra(nv12.data(), session::kPlatformWidth, session::kPlatformHeight, &raw);
    kxsim::rectify(table.data(), raw.ptr(), session::kPlatformWidth, session::kPlatformWidth, session::kPlatformHeight,
                   rectified.ptr());
    scaleIntoRecord(rectified, model.width, model.height, &scaled, out);
}

}  // namespace

std::vector<JudgedCamera> judgedCameras(const session::SessionDescription& session,
                                        const CameraParameters& parameters) {
    std::vector<JudgedCamera> judged;
    const auto judge = [&](ColourCamera camera, const session::Matrix3& factory, const session::Matrix3& truth) {
        const ColourCameraParameters& colour = parameters.colour[camera];
        judged.push_back(
            {camera, {parameters.infrared, colour.model, colour.scaling}, vq::matrixOf(factory), vq::matrixOf(truth)});
    };
    if (session.truthThird) judge(ColourCamera::Third, session.third.rotation, *session.truthThird);
    if (session.platform && session.truthPlatform)
        judge(ColourCamera::Platform, session.platform->rotation, *session.truthPlatform);
    return judged;
}

ModuleStills playStills(const std::string& folder) {
    ModuleStills module;
    std::string why;
    if (!session::readDescription(folder, &module.session, &why)) fatalFailure(why.c_str(), 1);
    qputenv("KXSIM_SESSION", QByteArray::fromStdString(folder));
    qputenv("KXSIM_SPEED", "0");
    Sensor sensor;
    SensorSettings settings = applicationSettings();
    settings.usePlatformCamera = module.session.platform.has_value();
    if (!sensor.open(settings) || !readCameraParameters(sensor, &module.parameters, [] {}))
        fatalFailure((folder + ": cannot be played").c_str(), 1);
    for (const session::FrameEntry& frame : module.session.frames) {
        for (int i = 0; i < frame.repeat; ++i) {
            if (!sensor.grab(true)) fatalFailure((folder + ": " + sensor.faultText().toStdString()).c_str(), 1);
        }
        module.stills.push_back(sensor.frames());
    }
    return module;
}

StillConverter::StillConverter(const session::SessionDescription& session) : parameters_(parametersOf(session)) {
    if (!session.platform) return;
    const auto& camera = *session.platform;
    const auto rectified = kxsim::rectifiedIntrinsics(camera.rectified);
    rectificationTable_.resize(static_cast<std::size_t>(rectified.w) * static_cast<std::size_t>(rectified.h));
    kxsim::fillRectificationTable(kxsim::rawIntrinsics(camera.raw), camera.rectification.data(), rectified,
                                  rectificationTable_.data());
}

FrameRecords StillConverter::convert(const session::FrameImages& images) const {
    FrameRecords records;
    records.leftInfrared = images.infrared;
    records.rightInfrared = images.right;
    records.depth = images.depth;
    scaleThird(images, parameters_.colour[ColourCamera::Third].model, &records.colour[ColourCamera::Third]);
    if (!rectificationTable_.empty() && !images.platform.empty()) {
        scalePlatform(images.platform, rectificationTable_, parameters_.colour[ColourCamera::Platform].model,
                      &records.colour[ColourCamera::Platform]);
    }
    return records;
}

}  // namespace fieldcal
