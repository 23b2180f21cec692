#include "devices/PlatformCameraSetup.h"

#include <QtGlobal>

namespace fieldcal {
namespace {

constexpr const char* kSubtype = "NV12";
constexpr std::int32_t kFocusPosition = 1700;
constexpr std::int32_t kFramesPerSecond = 30;

bool setUpStreams(CPlatformCameraControl& camera) {
    return camera.setupPreviewStream(640, 480, kFramesPerSecond, kSubtype) &&
           camera.setupRecordStream(1280, 720, kFramesPerSecond, kSubtype) &&
           camera.setupPhotoStream(3200, 2400, kSubtype);
}

PlatformSetup failed(PlatformSetup how, const char* line) {
    qInfo("%s", line);
    return how;
}

}  // namespace

PlatformSetup setUpPlatformCamera(CPlatformCameraControl& camera) {
    if (!camera.findDevice(kPlatformCameraName)) {
        return failed(PlatformSetup::Missing, "External platform camera could not be found.");
    }
    if (!camera.openCamera()) {
        return failed(PlatformSetup::Missing, "External platform camera could not be opened.");
    }
    if (!camera.setAutoFocus(false) || !camera.setFocus(kFocusPosition)) {
        return failed(PlatformSetup::Issue, "External platform camera focus setup failed.");
    }
    if (!setUpStreams(camera)) {
        return failed(PlatformSetup::Issue, "External platform camera stream setup failed.");
    }
    qInfo("External platform camera is connected!");
    return PlatformSetup::Ready;
}

}  // namespace fieldcal
