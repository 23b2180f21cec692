#include "devices/Sensor.h"

#include "devices/CameraParameterReader.h"
#include "devices/ParameterBackup.h"
#include "devices/PlatformCameraSetup.h"

#include <string>
#include <utility>

namespace fieldcal {
namespace {

constexpr double kRotationTolerance = 1e-4;
constexpr std::chrono::milliseconds kOldest{100};

struct RearCamera {
    std::shared_ptr<CPlatformCameraControl> camera;
    PlatformSetup setup = PlatformSetup::Issue;
};

/// Logs a matrix that is not a rotation. It belongs to a camera that is not written, so it is not an error.
void logUnlessRotation(const char* which, const Rotation& rotation) {
    if (isRotation(widened(rotation.data()), kRotationTolerance)) return;
    qWarning("The %s rotation in the camera is no rotation within %g; it stays as it is.", which, kRotationTolerance);
}

}  // namespace

Sensor::Sensor() : Sensor(systemEnvironment()) {}

Sensor::Sensor(SensorEnvironment environment)
    : environment_(std::move(environment)), link_(environment_.limits, [this](const StatusNotice& notice) {
          if (notice.missingDevice) {
              emit signal_reportMissingQ550Device();
          } else {
              emit signal_reportKXAPIError(notice.text);
          }
      }) {}

/// The vendor's service must be restored even if the camera does not respond to closing.
Sensor::~Sensor() {
    closePlatformCamera();
    link_.close();
    PXMServiceManager& services = *environment_.services;
    if (!services.restorePXMService()) emit signal_reportKXAPIError(services.lastError());
    services.setStopFlag(nullptr);
}

void Sensor::setStopFlag(const std::atomic<bool>* stop) {
    link_.setStopFlag(stop);
    environment_.services->setStopFlag(stop);
}

bool Sensor::open(SensorSettings settings) {
    if (std::exchange(openTried_, true)) return false;
    settings_ = settings;
    opened_ = shutDownService() && loadLibrary() && (!settings_.usePlatformCamera || openPlatformCamera()) &&
              createDevice() && openModule(link_, settings_, frames_, &module_);
    return opened_;
}

bool Sensor::shutDownService() {
    PXMServiceManager& services = *environment_.services;
    if (services.shutdownPXMService()) return true;
    if (!link_.stopRequested()) emit signal_reportKXAPIError(services.lastError());
    return false;
}

bool Sensor::loadLibrary() {
    std::string why;
    const auto library = environment_.loadLibrary(&why);
    const auto updater = library != nullptr ? environment_.loadRotationUpdater(&why) : nullptr;
    if (updater == nullptr) {
        qCritical("%s", why.c_str());
        emit signal_reportMissingQ550Device();
        return false;
    }
    link_.use(library, updater);
    return true;
}

bool Sensor::openPlatformCamera() {
    const auto rear = std::make_shared<RearCamera>();
    WatchedCalls calls;
    const auto open = [create = environment_.createPlatformCamera, library = link_.library(), rear] {
        rear->camera = create(library);
        rear->setup = setUpPlatformCamera(*rear->camera);
    };
    const auto ending = calls.run(open, environment_.limits.call, link_.stopFlag());
    if (ending == WatchedCalls::Ending::Stopped) return false;
    if (ending == WatchedCalls::Ending::Overdue || rear->setup == PlatformSetup::Issue) {
        emit signal_reportPlatformCameraIssue();
        return false;
    }
    if (rear->setup == PlatformSetup::Missing) {
        emit signal_reportMissingPlatformCamera();
        return false;
    }
    platformCamera_ = std::move(rear->camera);
    // The wait is bounded. A silent camera is reported later, when images are missed.
    platformCamera_->awaitFirstFrame(link_.stopFlag());
    return !link_.stopRequested();
}

bool Sensor::createDevice() {
    const ModuleLink::Creation creation = link_.createDevice();
    if (creation == ModuleLink::Creation::NoDevice) {
        qCritical("The library KXAPI did not create a device.");
        emit signal_reportMissingQ550Device();
    }
    if (creation != ModuleLink::Creation::Done) return false;
    qInfo("KXAPI allocated. Opening device...");
    return true;
}

bool Sensor::grab(bool wait) {
    if (!refreshRecords(false, wait)) return false;
    if (settings_.usePlatformCamera && !fetchPlatformImage()) {
        if (link_.stopRequested()) return false;
        emit signal_reportPlatformCameraIssue();
    }
    updateColourRecords();
    return true;
}

bool Sensor::grabQuietly() {
    if (!refreshRecords(true, true)) return false;
    if (settings_.usePlatformCamera) fetchPlatformImage();
    updateColourRecords();
    return true;
}

bool Sensor::refreshRecords(bool quietly, bool wait) {
    platformNv12_ = nullptr;
    if (!opened_ || faulted()) return false;
    const auto grabAndCopy = [device = link_.device().get(), third = module_.third, frames = frames_, s = settings_,
                              wait] {
        if (!device->grab(wait)) return false;
        frames->refresh(*device, third, s);
        return true;
    };
    return quietly ? link_.askQuietly(grabAndCopy) : link_.ask(grabAndCopy);
}

void Sensor::updateColourRecords() {
    followPairs();
    platformImage_.deliver(settings_.platformScaledWidth, settings_.platformScaledHeight,
                           &frames_->records.colour[ColourCamera::Platform]);
}

bool Sensor::fetchPlatformImage() {
    if (platformCamera_ == nullptr) return false;
    if (!platformCamera_->frameReady()) return false;
    if (!platformImageWanted_ || platformCalibration_.rectificationTable.empty()) return true;
    platformImage_.fetch(*platformCamera_, platformCalibration_, link_.library()->rectifyBGRA8ToBGRA8,
                         environment_.now());
    platformNv12_ = platformImage_.nv12();
    return !platformImage_.hasFailed();
}

void Sensor::followPairs() {
    const auto now = environment_.now();
    if (frames_->depthDelivery.delivered) depthAt_ = now;
    // Depth from another time must not be combined with the pair.
    if (settings_.depthEnabled && now - depthAt_ > kOldest) frames_->records.depth.resize(0, 0);
    pairs_[ColourCamera::Third].follow(frames_->leftDelivery, frames_->thirdDelivery, now, now);
    const StreamDelivery platform{platformNv12_ != nullptr, platformNv12_ != nullptr && platformImage_.changed()};
    pairs_[ColourCamera::Platform].follow(frames_->leftDelivery, platform, now, platformImage_.arrived());
}

bool Sensor::isFreshPair(ColourCamera camera) const {
    const auto age = pairs_[camera].age(environment_.now());
    return age && *age <= kOldest;
}

bool Sensor::setEmitter(bool on) {
    return switchEmitter(link_, on);
}

bool Sensor::setEmitterQuietly(bool on) {
    return switchEmitter(link_, on, true);
}

void Sensor::use(ModuleCalibration calibration) {
    parameters_ = calibration.parameters;
    const CameraParameters& parameters = parameters_;
    settings_.thirdScaledWidth = parameters.colour[ColourCamera::Third].model.width;
    settings_.thirdScaledHeight = parameters.colour[ColourCamera::Third].model.height;
    rotationsInFlash_ = StoredRotations{parameters.colour[ColourCamera::Third].fromDepth.rotation, std::nullopt};
    if (!calibration.platform) {
        settings_.usePlatformCamera = false;
        platformNv12_ = nullptr;
        closePlatformCamera();
        return;
    }
    rotationsInFlash_->platform = parameters.colour[ColourCamera::Platform].fromDepth.rotation;
    platformCalibration_ = std::move(*calibration.platform);
    settings_.platformScaledWidth = parameters.colour[ColourCamera::Platform].model.width;
    settings_.platformScaledHeight = parameters.colour[ColourCamera::Platform].model.height;
}

void Sensor::closePlatformCamera() {
    releaseWithin(std::move(platformCamera_), environment_.limits.call, link_.stopRequested());
}

bool Sensor::updateRotation(const Rotation& third, const Rotation& platform, const BeforeWrite& beforeWrite,
                            const AfterWrite& afterWrite) {
    writeBack_ = {};
    if (!mayWrite()) return false;
    if (!rotationsInFlash_) return refuseToWrite("its parameters have not been read");
    const StoredRotations& present = *rotationsInFlash_;
    if (third == present.third) {
        logUnlessRotation("in-module", third);
    } else if (!isRotation(widened(third.data()), kRotationTolerance)) {
        return refuseToWrite("the in-module rotation is no rotation");
    }
    if (present.platform && platform == *present.platform) {
        logUnlessRotation("out-of-module", platform);
    } else if (present.platform && !isRotation(widened(platform.data()), kRotationTolerance)) {
        return refuseToWrite("the out-of-module rotation is no rotation");
    }
    const StoredRotations wanted{third, present.platform ? std::optional(platform) : std::nullopt};
    const auto writeBoth = [&](CalibrationWriter& writer) {
        writer.setBeforeWrite(beforeWrite);
        writer.setAfterWrite(afterWrite);
        return writer.writeRotations(present, wanted);
    };
    if (!write(writeBoth)) return false;
    rotationsInFlash_ = wanted;
    return true;
}

bool Sensor::restoreParameters(const KXCalibRectParameters& block) {
    writeBack_ = {};
    if (!mayWrite()) return false;
    if (const char* wrong = matrixThatIsNoRotation(block, true, false); wrong != nullptr) {
        return refuseToWrite(QString("The given parameter block cannot be used: its %1 is no rotation").arg(wrong));
    }
    const bool restored = write([&](CalibrationWriter& writer) { return writer.restore(block); });
    // The module's rotations must be read again before another one can be written.
    if (writeBack_.flash != WriteBackReport::Flash::Untouched) rotationsInFlash_.reset();
    return restored;
}

bool Sensor::rewriteParameters() {
    writeBack_ = {};
    return mayWrite() && write([](CalibrationWriter& writer) { return writer.rewrite(); });
}

bool Sensor::mayWrite() {
    if (faulted()) return refuseToWrite("the camera has failed before");
    if (!opened_) return refuseToWrite("the camera is not open");
    if (environment_.power && !sufficesToWrite(environment_.power())) {
        return refuseToWrite(
            QString("the battery holds less than %1 % and is not being charged").arg(kMinBatteryPercent));
    }
    return true;
}

bool Sensor::refuseToWrite(const QString& reason) {
    writeBack_.reason = "Nothing is written to the camera: " + reason;
    qCritical("%s", qUtf8Printable(writeBack_.reason));
    return false;
}

/// Saving takes place after the stop request, which must not end it.
bool Sensor::write(const std::function<bool(CalibrationWriter&)>& how) {
    const std::atomic<bool>* stop = link_.setStopFlag(nullptr);
    CalibrationWriter writer(link_, module_.third, module_.serial, environment_.dataFolder + "/backups");
    const bool done = how(writer);
    writeBack_ = writer.report();
    link_.setStopFlag(stop);
    return done;
}

}  // namespace fieldcal
