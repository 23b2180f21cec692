#pragma once

#include "devices/FrameAcquisition.h"
#include "devices/PlatformCalibration.h"
#include "devices/PlatformPicture.h"
#include "devices/RotationComposition.h"
#include "devices/SensorEnvironment.h"
#include "devices/SensorSettings.h"
#include "devices/WatchedCalls.h"
#include "devices/WriteBackReport.h"
#include "kxapi/Library.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace fieldcal {

/// The one connection to the depth camera module and the tablet's rear camera.
///
/// Built without a device; `open` either completes, or reports what is wrong by one signal and returns false. There is
/// no second `open`. The first failed call of the camera library is fatal: it is reported once, and from then on the
/// sensor does nothing more (`faulted`). Created, used and destroyed on one thread; signals are emitted on it. The
/// thread may hand the sensor over to another one, for good.
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
    /// What the fault was, one line; empty without one.
    QString faultText() const { return faultText_; }
    /// 0 until `open` has asked for it.
    std::uint32_t serialNumber() const { return serialNumber_; }

    /// One acquisition pass; with `wait` set it waits for the module's next frame set. True: the records were
    /// refreshed. False: they are as they were, and the fault has been reported, now or before.
    /// A rear camera that has not delivered a picture yet, or none for three seconds, is reported by
    /// `signal_reportPlatformCameraIssue` in every pass, and the other records are refreshed all the same. Natively its
    /// pictures arrive within the pass.
    bool grab(bool wait);

    const FrameRecords& frames() const { return frames_->records; }
    const SensorSettings& settings() const { return settings_; }

    /// The rear camera's picture that the last `grab` brought, as the camera delivered it (NV12, 1280 x 720); null when
    /// it brought no new one. Valid until the next `grab`.
    const std::uint8_t* platformNv12() const { return platformNv12_; }

    /// Whether `grab` brings the rear camera's pictures into their record; it does unless told otherwise. It costs
    /// more than the rest of the pass, and nobody looks at them while the in-module camera is worked on. Unwanted, the
    /// record stays as it is; wanted again, the next pass takes the newest picture.
    void setPlatformPictureWanted(bool wanted) { platformPictureWanted_ = wanted; }

    /// Switches the infrared emitter. False, silently, when the device has none.
    bool setEmitter(bool on);

    /// Writes the depth-to-colour rotations into the module's flash. The block that is there is kept in a file before,
    /// and the flash is read again after; `writeBack` then says what it holds. True: every call succeeded and the flash
    /// holds the rotations. Refused, without a call, unless the sensor is open, the calibration has been read and both
    /// are rotations within 1e-4. `platform` counts only when the platform camera's calibration has been read.
    bool updateRotation(const Rotation& third, const Rotation& platform);

    /// Writes a whole block, as `ParameterBackup` keeps it, in the same manner. The calibration need not have been
    /// read.
    bool restoreParameters(const KXCalibRectParameters& block);

    /// About the last `updateRotation` or `restoreParameters`.
    const WriteBackReport& writeBack() const { return writeBack_; }

    /// Takes the result of every call of the camera library and passes it on; the first failed one is reported.
    bool checkStatus(bool callSucceeded);

    /// Makes one call of the camera library and checks its status. A call that does not return is given up, at the
    /// latest shortly after the stop flag is set: so it captures values and shared records only, never a reference
    /// (the device is kept for it). Once the sensor has failed, no call is made.
    bool ask(std::function<bool()> call);

    /// The same without a report, also after a failure, unless an earlier call was given up.
    bool askQuietly(std::function<bool()> call);

    /// The same for a query that fills a record; `out` is untouched after a failure.
    template <typename Object, typename Record>
    bool read(Object* object, bool (Object::*query)(Record*), Record* out) {
        const auto record = std::make_shared<Record>();
        if (!ask([object, query, record] { return (object->*query)(record.get()); })) return false;
        *out = *record;
        return true;
    }

    /// Reports a fault that no status tells of: "what - An unknown error has occured."
    /// `what`: English, marked for translation in the context "Interface".
    void reportFault(const char* what);

    /// Reports, once, that the module has no valid calibration.
    void reportInvalidCalibration();

    /// Null until `open` has created it. Whoever holds the device keeps it alive.
    std::shared_ptr<KXDevice> device() const { return device_; }
    /// Null until the device is open; valid as long as it.
    KXThirdCamera* thirdCamera() const { return third_; }
    /// Null until `open` has loaded it.
    std::shared_ptr<const KXLibrary> library() const { return library_; }
    std::shared_ptr<const KXRotationUpdater> rotationUpdater() const { return updater_; }

    /// What the read-out of the calibration decides.
    void setThirdScaledSize(std::int32_t width, std::int32_t height);
    void usePlatformCalibration(PlatformCalibration calibration, std::int32_t scaledWidth, std::int32_t scaledHeight);
    void disablePlatformCamera();
    /// The rotations that the module reported; `platform` only when its calibration can be used.
    void setRotationsInFlash(const Rotation& third, const std::optional<Rotation>& platform);
    const PlatformCalibration& platformCalibration() const { return platformCalibration_; }

signals:
    void signal_reportKXAPIError(QString text);
    void signal_reportMissingQ550Device();
    void signal_reportMissingPlatformCamera();
    void signal_reportPlatformCameraIssue();

private:
    WatchedCalls::Ending watch(std::function<void()> call);
    void release(std::shared_ptr<void> last);
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
    bool findEmitter(KXEmitterControl** out);
    bool switchEmitter(KXEmitterControl* emitter, bool on);
    bool fetchPlatformPicture();
    void reportFault(std::int32_t status, const QString& libraryText);
    void reportNoAnswer();
    QString statusString(std::int32_t status) const;
    bool mayWrite();
    bool refuseToWrite(const QString& reason);
    bool rewriteFlash(
        const std::function<bool(const KXCalibRectParameters&, KXCalibRectParameters*, QString*)>& change);
    bool stopRequested() const { return stop_ != nullptr && *stop_; }

    struct RotationsInFlash {
        Rotation third;
        std::optional<Rotation> platform;
    };

    SensorEnvironment environment_;
    const std::atomic<bool>* stop_ = nullptr;
    std::shared_ptr<const KXLibrary> library_;
    std::shared_ptr<const KXRotationUpdater> updater_;
    std::shared_ptr<KXDevice> device_;
    KXThirdCamera* third_ = nullptr;
    KXHardwareControl* hardware_ = nullptr;
    std::shared_ptr<CPlatformCameraControl> platformCamera_;
    SensorSettings settings_;
    std::shared_ptr<FrameAcquisition> frames_ = std::make_shared<FrameAcquisition>();
    PlatformPicture platformPicture_;
    const std::uint8_t* platformNv12_ = nullptr;
    PlatformCalibration platformCalibration_;
    std::optional<RotationsInFlash> rotationsInFlash_;
    WriteBackReport writeBack_;
    std::uint32_t serialNumber_ = 0;
    QString faultText_;
    bool platformPictureWanted_ = true;
    bool openTried_ = false;
    bool opened_ = false;
    bool faulted_ = false;
    WatchedCalls calls_;
};

}  // namespace fieldcal
