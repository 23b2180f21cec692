#include "devices/CameraParameterReader.h"

#include "devices/InfraredGeometry.h"
#include "devices/ParameterText.h"
#include "devices/PlatformParameterReader.h"

#include <utility>

namespace fieldcal {
namespace {

struct ModuleRecords {
    KXCalibIntrinsicsRectified third{};
    KXCalibIntrinsicsRectified leftRight{};
    KXCalibIntrinsicsRectified z{};
    KXCalibExtrinsics zToThird{};
};

void log(const char* name, const KXCalibIntrinsicsRectified& record) {
    qInfo("getCalibIntrinsics%s output: fx=%f, fy=%f, cx=%f, cy=%f, w=%i, h=%i", name, record.fx, record.fy, record.cx,
          record.cy, record.w, record.h);
}

bool readModule(Sensor& sensor, KXDevice& device, ModuleRecords* out) {
    KXThirdCamera* third = sensor.thirdCamera();
    if (!sensor.read(third, &KXThirdCamera::rectifiedThirdIntrinsics, &out->third) ||
        !sensor.read(&device, &KXDevice::rectifiedLRIntrinsics, &out->leftRight) ||
        !sensor.read(&device, &KXDevice::zIntrinsics, &out->z) ||
        !sensor.read(third, &KXThirdCamera::zToThirdExtrinsics, &out->zToThird)) {
        return false;
    }
    log("RectThird", out->third);
    log("RectLeftRight", out->leftRight);
    log("Z", out->z);
    return true;
}

bool refuse(Sensor& sensor, const char* line) {
    qCritical("%s", line);
    sensor.reportInvalidCalibration();
    return false;
}

bool fillModule(Sensor& sensor, const ModuleRecords& records, CameraParameters* out) {
    if (!isUsable(records.third) || !isUsable(records.leftRight) || !isUsable(records.z) ||
        !isUsable(records.zToThird)) {
        return refuse(sensor, "The calibration of the module cannot be used.");
    }
    out->infrared = modelOf(records.leftRight);
    out->depth = modelOf(records.z);
    out->inModuleColour = modelOf(records.third);
    out->depthToInModule = extrinsicsOf(records.zToThird);
    const ColourFactors factors = factorsToInfrared(out->inModuleColour, out->infrared);
    qInfo("scaleFxThirdToIr = %f, scaleFyThirdToIr = %f", factors.sx, factors.sy);
    if (!bringIntoInfraredGeometry(factors, &out->inModuleColour, &out->inModuleScaling)) {
        return refuse(sensor, "The scale of the in-module colour camera cannot be used.");
    }
    sensor.setThirdScaledSize(out->inModuleColour.width, out->inModuleColour.height);
    qInfo("xResThirdScaledToIr: %i", out->inModuleColour.width);
    qInfo("yResThirdScaledToIr: %i", out->inModuleColour.height);
    return true;
}

bool fillPlatform(Sensor& sensor, KXDevice& device, CameraParameters* out) {
    // What fails in here is logged, and no fault of the module's; only a camera that does not answer is one.
    const auto platform = std::make_shared<PlatformParameters>();
    const auto usable = std::make_shared<bool>(false);
    const auto call = [=, from = &device, library = sensor.library(), infrared = out->infrared] {
        KXPlatformCamera* camera = from->platformCamera();
        *usable = camera != nullptr && readPlatformParameters(*camera, *library, infrared, platform.get());
        return true;
    };
    if (!sensor.ask(call) || !*usable) return false;
    out->outOfModuleColour = platform->model;
    out->depthToOutOfModule = platform->extrinsics;
    out->outOfModuleScaling = platform->scaling;
    sensor.usePlatformCalibration(std::move(platform->calibration), platform->model.width, platform->model.height);
    return true;
}

void logParameters(const CameraParameters& parameters) {
    qInfo("IR Intrinsics:\n%s\n", textOf(parameters.infrared).c_str());
    qInfo("Depth Intrinsics:\n%s\n", textOf(parameters.depth).c_str());
    qInfo("In-Module Color Intrinsics:\n%s\n", textOf(parameters.inModuleColour).c_str());
    qInfo("Out-Module Color Intrinsics:\n%s\n", textOf(parameters.outOfModuleColour).c_str());
    qInfo("Depth2InModule Extrinsics:\n%s\n", textOf(parameters.depthToInModule).c_str());
    qInfo("Depth2OutModule Extrinsics:\n%s\n", textOf(parameters.depthToOutOfModule).c_str());
}

}  // namespace

bool readCameraParameters(Sensor& sensor, CameraParameters* out,
                          const std::function<void()>& forceSingleCameraCalibration) {
    const std::shared_ptr<KXDevice> device = sensor.device();
    if (!sensor.opened() || sensor.faulted()) return false;
    const auto valid = std::make_shared<bool>(false);
    const auto askWhetherValid = [device, valid] {
        *valid = device->calibrationValid();
        return true;
    };
    if (!sensor.ask(askWhetherValid)) return false;
    if (!*valid) return refuse(sensor, "Calibration was reported to be invalid...");

    ModuleRecords records;
    CameraParameters parameters;
    if (!readModule(sensor, *device, &records) || !fillModule(sensor, records, &parameters)) return false;
    const bool withPlatform = fillPlatform(sensor, *device, &parameters);
    if (sensor.faulted()) return false;
    const Rotation& platformRotation = parameters.depthToOutOfModule.rotation;
    sensor.setRotationsInFlash(parameters.depthToInModule.rotation,
                               withPlatform ? std::optional<Rotation>(platformRotation) : std::nullopt);
    if (!withPlatform) {
        sensor.disablePlatformCamera();
        parameters.depthToOutOfModule.rotation.fill(0);
        forceSingleCameraCalibration();
    }
    logParameters(parameters);
    *out = parameters;
    return true;
}

}  // namespace fieldcal
