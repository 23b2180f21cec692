#pragma once

#include "devices/FrameAcquisition.h"
#include "devices/PlatformCalibration.h"
#include "devices/PlatformPicture.h"
#include "devices/SensorEnvironment.h"
#include "devices/SensorSettings.h"
#include "kxapi/Library.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <cstdint>
#include <memory>

namespace fieldcal {

/// The one connection to the depth camera module and the tablet's rear camera.
///
/// Built without a device; `open` either completes, or reports what is wrong by one signal and returns false. There is
/// no second `open`. The first failed call of the camera library is fatal: it is reported once, and from then on the
/// sensor does nothing more (`faulted`). Created, used and destroyed on one thread; signals are emitted on it.
class Sensor : public QObject {
    Q_OBJECT

public:
    Sensor();
    explicit Sensor(SensorEnvironment environment);
    /// Closes the cameras, then restores the vendor's service; a failure of that is reported.
    ~Sensor() override;

    /// Every wait of the sensor also ends, with failure and without a report, once `*stop` is true. Null: nothing
    /// stops it. `stop` outlives the sensor.
    void setStopFlag(const std::atomic<bool>* stop);

    bool open(SensorSettings settings);
    bool opened() const { return opened_; }
    bool faulted() const { return faulted_; }

    /// One acquisition pass; with `wait` set it waits for the module's next frame set. True: the records were
    /// refreshed. False: they are as they were, and the fault has been reported, now or before.
    /// A rear camera that has not delivered a picture yet is reported by `signal_reportPlatformCameraIssue` in every
    /// pass, and the other records are refreshed all the same. Natively its pictures arrive within the pass.
    bool grab(bool wait);

    const FrameRecords& frames() const { return frames_.records; }
    const SensorSettings& settings() const { return settings_; }

    /// Whether `grab` brings the rear camera's pictures into their record; it does unless told otherwise. It costs
    /// more than the rest of the pass, and nobody looks at them while the in-module camera is worked on. Unwanted, the
    /// record stays as it is; wanted again, the next pass takes the newest picture.
    void setPlatformPictureWanted(bool wanted) { platformPictureWanted_ = wanted; }

    /// Switches the infrared emitter. False, silently, when the device has none.
    bool setEmitter(bool on);

    /// Takes the result of every call of the camera library and passes it on; a failed one is reported.
    bool checkStatus(bool callSucceeded);

    /// Reports, once, that the module has no valid calibration.
    void reportInvalidCalibration();

    /// Null until `open` has created it. Whoever holds the device keeps it alive.
    std::shared_ptr<KXDevice> device() const { return device_; }
    /// Null until the device is open; valid as long as it.
    KXThirdCamera* thirdCamera() const { return third_; }
    /// Null until `open` has loaded it.
    std::shared_ptr<const KXLibrary> library() const { return library_; }

    /// What the read-out of the calibration decides.
    void setThirdScaledSize(std::int32_t width, std::int32_t height);
    void usePlatformCalibration(PlatformCalibration calibration, std::int32_t scaledWidth, std::int32_t scaledHeight);
    void disablePlatformCamera();
    const PlatformCalibration& platformCalibration() const { return platformCalibration_; }

signals:
    void signal_reportKXAPIError(QString text);
    void signal_reportMissingQ550Device();
    void signal_reportMissingPlatformCamera();
    void signal_reportPlatformCameraIssue();

private:
    bool shutDownService();
    bool loadLibrary();
    bool openPlatformCamera();
    bool createDevice();
    bool identifyDevice();
    bool configureDepth();
    bool configureThird();
    bool configureHardware();
    bool configureEmitter();
    bool startStreams();
    bool switchEmitter(KXEmitterControl& emitter, bool on);
    bool fetchPlatformPicture();
    void reportFault(std::int32_t status);
    bool stopRequested() const { return stop_ != nullptr && *stop_; }

    SensorEnvironment environment_;
    const std::atomic<bool>* stop_ = nullptr;
    std::shared_ptr<const KXLibrary> library_;
    std::shared_ptr<KXDevice> device_;
    KXThirdCamera* third_ = nullptr;
    KXHardwareControl* hardware_ = nullptr;
    std::unique_ptr<CPlatformCameraControl> platformCamera_;
    SensorSettings settings_;
    FrameAcquisition frames_;
    PlatformPicture platformPicture_;
    PlatformCalibration platformCalibration_;
    bool platformPictureWanted_ = true;
    bool firstPictureAwaited_ = false;
    bool openTried_ = false;
    bool opened_ = false;
    bool faulted_ = false;
};

}  // namespace fieldcal
