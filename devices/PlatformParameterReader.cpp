#include "devices/PlatformParameterReader.h"

#include "devices/InfraredGeometry.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace fieldcal {
namespace {

constexpr double kAspectRatioScaleFactor = 1.0;

bool hasImageSize(std::int32_t width, std::int32_t height) {
    return width == kPlatformImageWidth && height == kPlatformImageHeight;
}

bool holdsNumbers(const double* matrix) {
    return matrix != nullptr && std::all_of(matrix, matrix + 9, [](double entry) { return std::isfinite(entry); });
}

bool unusable(const char* what) {
    qCritical("Platform camera calibration: %s cannot be used.", what);
    return false;
}

void logCalibration(const PlatformCalibration& calibration) {
    const auto& raw = calibration.kPlatformNonRectIntr;
    const auto& rectified = calibration.kPlatformRectIntr;
    qInfo("_sensor->kPlatformNonRectIntr: fx=%f, fy=%f, cx=%f, cy=%f, w=%i, h=%i, k1=%f, k2=%f, p1=%f, p2=%f, k3=%f",
          raw.fx, raw.fy, raw.cx, raw.cy, raw.w, raw.h, raw.k1, raw.k2, raw.p1, raw.p2, raw.k3);
    qInfo("_sensor->kPlatformRectIntr: fx=%f, fy=%f, cx=%f, cy=%f, w=%i, h=%i", rectified.fx, rectified.fy,
          rectified.cx, rectified.cy, rectified.w, rectified.h);
    qInfo("aspectRatioScaleFactor = %f", kAspectRatioScaleFactor);
}

bool readRectification(KXPlatformCamera& camera, const KXLibrary& library, PlatformCalibration* out) {
    auto& raw = out->kPlatformNonRectIntr;
    auto& rectified = out->kPlatformRectIntr;
    if (!camera.setPlatformMode(0, kPlatformImageWidth, kPlatformImageHeight)) return unusable("its raw mode");
    if (!camera.nonRectifiedIntrinsics(&raw) || !isUsable(raw) || !hasImageSize(raw.w, raw.h)) {
        return unusable("its raw model");
    }
    const double* rotation = camera.rectificationRotation();
    if (!holdsNumbers(rotation)) return unusable("its rectification");
    if (!camera.setPlatformMode(1, kPlatformImageWidth, kPlatformImageHeight)) {
        return unusable("its rectified mode");
    }
    if (!camera.rectifiedIntrinsics(&rectified) || !isUsable(rectified) || !hasImageSize(rectified.w, rectified.h)) {
        return unusable("its rectified model");
    }
    out->rectificationTable.resize(static_cast<std::size_t>(rectified.w) * static_cast<std::size_t>(rectified.h));
    library.rectificationTable(&raw, rotation, &rectified, out->rectificationTable.data());
    logCalibration(*out);
    return true;
}

bool readModel(KXPlatformCamera& camera, CameraModel* out) {
    KXCalibIntrinsicsRectified record{};
    if (!camera.rectifiedIntrinsics(&record)) {
        qCritical("getCalibIntrinsicsNonRectPlatformCamera failed");
        return false;
    }
    qInfo("getCalibIntrinsicsNonRectPlatformCamera output: fx=%f, fy=%f, cx=%f, cy=%f, w=%i, h=%i", record.fx,
          record.fy, record.cx, record.cy, record.w, record.h);
    *out = modelOf(record);
    return isUsable(record) || unusable("its model");
}

bool readExtrinsics(KXPlatformCamera& camera, CameraExtrinsics* out) {
    KXCalibExtrinsics record{};
    if (!camera.zToPlatformExtrinsics(&record)) {
        qCritical("getCalibExtrinsicsZToNonRectPlatformCamera failed");
        return false;
    }
    *out = extrinsicsOf(record);
    return isUsable(record) || unusable("its pose");
}

bool scaleModel(const CameraModel& infrared, PlatformParameters* out) {
    const ColourFactors factors = factorsToInfrared(out->model, infrared);
    qInfo("scaleFx: %f", factors.sx);
    qInfo("scaleFy: %f", factors.sy);
    if (!bringIntoInfraredGeometry(factors, &out->model, &out->scaling)) return unusable("its scale");
    qInfo("scaled OM-RGB size width: %d", out->model.width);
    qInfo("scaled OM-RGB size height: %d", out->model.height);
    return true;
}

}  // namespace

bool readPlatformParameters(KXPlatformCamera& camera, const KXLibrary& library, const CameraModel& infrared,
                            PlatformParameters* out) {
    qInfo("Reading platform camera calibration from KXAPI...");
    if (!readRectification(camera, library, &out->calibration)) return false;
    // Both are read in any case, so that the log shows all faults.
    const bool hasModel = readModel(camera, &out->model);
    const bool hasPose = readExtrinsics(camera, &out->extrinsics);
    return hasModel && hasPose && scaleModel(infrared, out);
}

}  // namespace fieldcal
