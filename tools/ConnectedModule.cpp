#include "tools/ConnectedModule.h"

#include "devices/CameraParameterReader.h"
#include "devices/PlatformCameraSetup.h"
#include "devices/ServiceNote.h"
#include "tools/Console.h"

#include <algorithm>
#include <iterator>

namespace fieldcal {
namespace {

constexpr const char* kNothing = "The camera delivers no pictures.";

std::string textOf(const char* libraryText) {
    return libraryText != nullptr ? libraryText : "";
}

template <std::size_t n>
std::array<double, n> widened(const float (&numbers)[n]) {
    std::array<double, n> wide{};
    std::copy(std::begin(numbers), std::end(numbers), wide.begin());
    return wide;
}

template <typename Record>
void take(const Record& record, session::Intrinsics* out) {
    out->width = record.w;
    out->height = record.h;
    out->fx = static_cast<double>(record.fx);
    out->fy = static_cast<double>(record.fy);
    out->cx = static_cast<double>(record.cx);
    out->cy = static_cast<double>(record.cy);
}

void takeDistortion(const KXCalibIntrinsicsNonRectified& record, session::RawIntrinsics* out) {
    out->k1 = static_cast<double>(record.k1);
    out->k2 = static_cast<double>(record.k2);
    out->p1 = static_cast<double>(record.p1);
    out->p2 = static_cast<double>(record.p2);
    out->k3 = static_cast<double>(record.k3);
}

void takeBytes(const void* pixels, std::int32_t width, std::int32_t height, ImageFrame* out) {
    if (pixels == nullptr || width <= 0 || height <= 0) {
        out->resize(0, 0);
    } else {
        out->assign(static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height), pixels);
    }
}

void makeOpaque(ImageFrame32* image) {
    for (std::size_t i = 3; i < image->byteCount(); i += 4)
        image->bytes()[i] = 255;
}

}  // namespace

bool ConnectedModule::open(bool rearCamera, QString* why) {
    const bool disablesService = systemServiceNote() != nullptr;
    if (disablesService) instance_ = std::make_unique<SingleInstance>();
    if (instance_ != nullptr && !instance_->isFirst()) {
        *why = kAnotherProgram;
        return false;
    }
    SensorSettings settings = applicationSettings();
    settings.usePlatformCamera = rearCamera;
    if (tryToOpen(settings)) return true;
    settings.usePlatformCamera = false;
    if (reports_.platformCameraMissing() && tryToOpen(settings)) return true;
    return failed(why, "The camera could not be opened.");
}

bool ConnectedModule::tryToOpen(const SensorSettings& settings) {
    sensor_ = environment_ ? std::make_unique<Sensor>(*environment_) : std::make_unique<Sensor>();
    reports_.listenTo(*sensor_);
    return sensor_->open(settings);
}

session::ModuleInfo ConnectedModule::info() {
    const std::shared_ptr<KXDevice> device = sensor_->device();
    return {sensor_->serialNumber(), textOf(device->firmwareVersionText()), textOf(device->softwareVersionText()),
            device->calibrationValid()};
}

bool ConnectedModule::describe(session::SessionDescription* out, QString* why) {
    constexpr const char* kUnreadable = "The calibration cannot be read.";
    if (!readCameraParameters(*sensor_, &parameters_, [] {})) return failed(why, kUnreadable);
    out->module = info();
    if (!describeModule(out)) return failed(why, kUnreadable);
    if (sensor_->platformCalibration().rectificationTable.empty()) return true;
    out->platform.emplace();
    return describePlatform(&*out->platform) || failed(why, kUnreadable);
}

bool ConnectedModule::describeModule(session::SessionDescription* out) {
    KXDevice* device = sensor_->device().get();
    KXThirdCamera* third = sensor_->thirdCamera();
    KXCalibIntrinsicsRectified infrared{};
    KXCalibIntrinsicsRectified depth{};
    KXCalibIntrinsicsRectified colour{};
    KXCalibExtrinsics pose{};
    if (!sensor_->read(device, &KXDevice::rectifiedLRIntrinsics, &infrared) ||
        !sensor_->read(device, &KXDevice::zIntrinsics, &depth) ||
        !sensor_->read(third, &KXThirdCamera::rectifiedThirdIntrinsics, &colour) ||
        !sensor_->read(third, &KXThirdCamera::zToThirdExtrinsics, &pose)) {
        return false;
    }
    take(infrared, &out->infrared);
    take(depth, &out->depth);
    take(colour, &out->third);
    out->third.rotation = widened(pose.rotation);
    out->third.translation = widened(pose.translation);
    return true;
}

bool ConnectedModule::describePlatform(session::PlatformCamera* out) {
    KXPlatformCamera* camera = sensor_->device()->platformCamera();
    if (camera == nullptr) return false;
    const auto setMode = [&](std::int32_t rectified) {
        return sensor_->ask([camera, rectified] {
            return camera->setPlatformMode(rectified, kPlatformImageWidth, kPlatformImageHeight);
        });
    };
    KXCalibIntrinsicsNonRectified raw{};
    KXCalibIntrinsicsRectified rectified{};
    KXCalibExtrinsics pose{};
    if (!setMode(0) || !sensor_->read(camera, &KXPlatformCamera::nonRectifiedIntrinsics, &raw)) return false;
    const double* rectification = camera->rectificationRotation();
    if (rectification == nullptr) return false;
    std::copy_n(rectification, out->rectification.size(), out->rectification.begin());
    if (!setMode(1) || !sensor_->read(camera, &KXPlatformCamera::rectifiedIntrinsics, &rectified) ||
        !sensor_->read(camera, &KXPlatformCamera::zToPlatformExtrinsics, &pose)) {
        return false;
    }
    out->name = kPlatformCameraName;
    take(raw, &out->raw);
    takeDistortion(raw, &out->raw);
    take(rectified, &out->rectified);
    out->rotation = widened(pose.rotation);
    out->translation = widened(pose.translation);
    return true;
}

bool ConnectedModule::readBlock(ParameterBackup* out, QString* why) {
    out->serial = sensor_->serialNumber();
    out->taken = QDateTime::currentDateTimeUtc();
    return sensor_->read(sensor_->device().get(), &KXDevice::rectParameters, &out->block) ||
           failed(why, "The parameter block cannot be read.");
}

bool ConnectedModule::restoreBlock(const ParameterBackup& backup, QString* why) {
    if (backup.serial != sensor_->serialNumber()) {
        *why = QString("the backup is of module %1, the connected one is %2")
                   .arg(backup.serial)
                   .arg(sensor_->serialNumber());
        return false;
    }
    if (sensor_->restoreParameters(backup.block)) return true;
    *why = QString("%1 (%2)").arg(sensor_->writeBack().reason, flashText(sensor_->writeBack()));
    return false;
}

bool ConnectedModule::grab(session::FrameImages* out, QString* why) {
    if (!grabAvailable(out, why)) return false;
    return (!out->infrared.empty() && !out->third.empty()) || failed(why, kNothing);
}

bool ConnectedModule::grabAvailable(session::FrameImages* out, QString* why) {
    if (!sensor_->grab(true) || !reports_.first().isEmpty()) return failed(why, kNothing);
    KXDevice& device = *sensor_->device();
    KXThirdCamera& third = *sensor_->thirdCamera();
    takeBytes(device.leftImage(), device.lrWidth(), device.lrHeight(), &out->infrared);
    takeBytes(device.rightImage(), device.lrWidth(), device.lrHeight(), &out->right);
    takeBytes(device.depthImage(), device.depthWidth(), device.depthHeight(), &out->depth);
    takeBytes(third.thirdImage(), third.thirdWidth(), third.thirdHeight(), &out->third);
    makeOpaque(&out->third);
    out->platform.clear();
    if (const std::uint8_t* nv12 = sensor_->platformNv12(); nv12 != nullptr) {
        out->platform.assign(nv12, nv12 + std::size_t{kPlatformImageWidth} * kPlatformImageHeight * 3 / 2);
    }
    return true;
}

bool ConnectedModule::close(QString* why) {
    sensor_.reset();
    return reports_.first().isEmpty() || failed(why, "");
}

bool ConnectedModule::failed(QString* why, const char* otherwise) const {
    *why = reports_.first().isEmpty() ? QString(otherwise) : reports_.first();
    return false;
}

}  // namespace fieldcal
