#include "devices/CameraParameterReader.h"

#include "camera/Rotation.h"
#include "devices/InfraredGeometry.h"
#include "devices/PlatformParameterReader.h"
#include "diagnostics/Logger.h"

#include <utility>

namespace fieldcal {
namespace {

struct ModuleRecords {
    KXCalibIntrinsicsRectified third{};
    KXCalibIntrinsicsRectified leftRight{};
    KXCalibIntrinsicsRectified z{};
    KXCalibExtrinsics zToThird{};
};

struct StreamSize {
    std::int32_t width = 0;
    std::int32_t height = 0;
};

struct StreamSizes {
    StreamSize infrared, depth, third;
};

void log(const char* name, const KXCalibIntrinsicsRectified& record) {
    qInfo("getCalibIntrinsics%s output: fx=%f, fy=%f, cx=%f, cy=%f, w=%i, h=%i", name, record.fx, record.fy, record.cx,
          record.cy, record.w, record.h);
}

std::optional<ModuleRecords> readModule(ModuleLink& link, KXThirdCamera* third) {
    KXDevice* device = link.device().get();
    const auto colour = link.read(third, &KXThirdCamera::rectifiedThirdIntrinsics);
    if (!colour) return std::nullopt;
    const auto leftRight = link.read(device, &KXDevice::rectifiedLRIntrinsics);
    if (!leftRight) return std::nullopt;
    const auto z = link.read(device, &KXDevice::zIntrinsics);
    if (!z) return std::nullopt;
    const auto zToThird = link.read(third, &KXThirdCamera::zToThirdExtrinsics);
    if (!zToThird) return std::nullopt;
    log("RectThird", *colour);
    log("RectLeftRight", *leftRight);
    log("Z", *z);
    return ModuleRecords{*colour, *leftRight, *z, *zToThird};
}

bool refuse(ModuleLink& link, const char* line) {
    qCritical("%s", line);
    link.reportInvalidCalibration();
    return false;
}

/// A calibration for another image size would shift every point, so that nothing would match.
bool fitsStream(const char* name, const KXCalibIntrinsicsRectified& record, const StreamSize& stream) {
    if (record.w == stream.width && record.h == stream.height) return true;
    qCritical("The %s pictures have %i x %i pixels, but their calibration is for %i x %i.", name, stream.width,
              stream.height, record.w, record.h);
    return false;
}

bool fitStreams(ModuleLink& link, KXThirdCamera* third, const ModuleRecords& records) {
    const auto sizes = link.ask([device = link.device().get(), third] {
        return std::optional(StreamSizes{{device->lrWidth(), device->lrHeight()},
                                         {device->depthWidth(), device->depthHeight()},
                                         {third->thirdWidth(), third->thirdHeight()}});
    });
    if (!sizes) return false;
    const bool infrared = fitsStream("infrared", records.leftRight, sizes->infrared);
    const bool depth = fitsStream("depth", records.z, sizes->depth);
    const bool colour = fitsStream("in-module colour", records.third, sizes->third);
    return (infrared && depth && colour) || refuse(link, "The calibration of the module does not fit its pictures.");
}

bool fillModule(ModuleLink& link, const ModuleRecords& records, CameraParameters* out) {
    if (!isUsable(records.third) || !isUsable(records.leftRight) || !isUsable(records.z) ||
        !isUsable(records.zToThird)) {
        return refuse(link, "The calibration of the module cannot be used.");
    }
    out->infrared = modelOf(records.leftRight);
    out->depth = modelOf(records.z);
    out->colour[ColourCamera::Third].model = modelOf(records.third);
    out->colour[ColourCamera::Third].fromDepth = extrinsicsOf(records.zToThird);
    const ColourFactors factors = factorsToInfrared(out->colour[ColourCamera::Third].model, out->infrared);
    qInfo("scaleFxThirdToIr = %f, scaleFyThirdToIr = %f", factors.sx, factors.sy);
    if (!bringIntoInfraredGeometry(factors, &out->colour[ColourCamera::Third].model,
                                   &out->colour[ColourCamera::Third].scaling)) {
        return refuse(link, "The scale of the in-module colour camera cannot be used.");
    }
    qInfo("xResThirdScaledToIr: %i", out->colour[ColourCamera::Third].model.width);
    qInfo("yResThirdScaledToIr: %i", out->colour[ColourCamera::Third].model.height);
    return true;
}

/// Failures in this function are logged and are not faults of the module, except for a camera that does not answer.
void fillPlatform(ModuleLink& link, ModuleCalibration* out) {
    const auto call = [device = link.device().get(), library = link.library(), infrared = out->parameters.infrared] {
        std::optional<PlatformParameters> platform(PlatformParameters{});
        KXPlatformCamera* camera = device->platformCamera();
        const bool usable = camera != nullptr && readPlatformParameters(*camera, *library, infrared, &*platform);
        if (!usable) platform.reset();
        return std::make_optional(std::move(platform));
    };
    auto platform = link.ask(call).value_or(std::nullopt);
    if (!platform) return;
    out->parameters.colour[ColourCamera::Platform].model = platform->model;
    out->parameters.colour[ColourCamera::Platform].fromDepth = platform->extrinsics;
    out->parameters.colour[ColourCamera::Platform].scaling = platform->scaling;
    out->platform = std::move(platform->calibration);
}

void logParameters(const CameraParameters& parameters) {
    qInfo("IR Intrinsics:\n%s\n", textOf(parameters.infrared).c_str());
    qInfo("Depth Intrinsics:\n%s\n", textOf(parameters.depth).c_str());
    qInfo("In-Module Color Intrinsics:\n%s\n", textOf(parameters.colour[ColourCamera::Third].model).c_str());
    qInfo("Out-Module Color Intrinsics:\n%s\n", textOf(parameters.colour[ColourCamera::Platform].model).c_str());
    qInfo("Depth2InModule Extrinsics:\n%s\n", textOf(parameters.colour[ColourCamera::Third].fromDepth).c_str());
    qInfo("Depth2OutModule Extrinsics:\n%s\n", textOf(parameters.colour[ColourCamera::Platform].fromDepth).c_str());
}

}  // namespace

std::string textOf(const CameraModel& model) {
    return formatString("fxfy = [%f %f] cxcy=[%f %f] k1k2k3=[%f %f %f] p1p2=[%f %f]", model.fx, model.fy, model.cx,
                        model.cy, 0.0, 0.0, 0.0, 0.0, 0.0);
}

std::string textOf(const CameraExtrinsics& extrinsics) {
    const Angles3 angles = anglesFromRotation(widened(extrinsics.rotation.data()));
    const auto& t = extrinsics.translation;
    return formatString("R [% .4f % .4f % .4f] T [% .4f % .4f % .4f]", angles[0] * kDegreesPerRadian,
                        angles[1] * kDegreesPerRadian, angles[2] * kDegreesPerRadian, t[0], t[1], t[2]);
}

std::optional<ModuleCalibration> readCalibration(ModuleLink& link, KXThirdCamera* third) {
    const auto valid = link.ask([device = link.device().get()] { return std::optional(device->calibrationValid()); });
    if (!valid) return std::nullopt;
    if (!*valid) {
        refuse(link, "Calibration was reported to be invalid...");
        return std::nullopt;
    }
    const auto records = readModule(link, third);
    ModuleCalibration calibration;
    calibration.parameters.colour[ColourCamera::Platform].fromDepth.rotation.fill(0);
    if (!records || !fillModule(link, *records, &calibration.parameters) || !fitStreams(link, third, *records)) {
        return std::nullopt;
    }
    fillPlatform(link, &calibration);
    if (link.faulted()) return std::nullopt;
    logParameters(calibration.parameters);
    return calibration;
}

bool readCameraParameters(Sensor& sensor, CameraParameters* out,
                          const std::function<void()>& forceSingleCameraCalibration) {
    if (!sensor.opened() || sensor.faulted()) return false;
    std::optional<ModuleCalibration> calibration = readCalibration(sensor.link(), sensor.thirdCamera());
    if (!calibration) return false;
    *out = calibration->parameters;
    const bool withPlatform = calibration->platform.has_value();
    sensor.use(std::move(*calibration));
    if (!withPlatform) forceSingleCameraCalibration();
    return true;
}

}  // namespace fieldcal
