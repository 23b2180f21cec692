#pragma once

#include "camera/Rotation.h"
#include "devices/CalibrationWriter.h"
#include "devices/FrameAcquisition.h"
#include "devices/ModuleLink.h"
#include "devices/ModuleOpening.h"
#include "devices/PlatformCalibration.h"
#include "devices/PlatformPicture.h"
#include "devices/SensorEnvironment.h"
#include "devices/SensorSettings.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace fieldcal {

struct ModuleCalibration;

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
    bool faulted() const { return link_.faulted(); }
    /// What the fault was, one line; empty without one.
    QString faultText() const { return link_.faultText(); }
    /// 0 until `open` has asked for it.
    std::uint32_t serialNumber() const { return module_.serial; }

    /// One acquisition pass; with `wait` set it waits for the module's next frame set. True: the records were
    /// refreshed. False: they are as they were, and the fault has been reported, now or before.
    /// A rear camera that has not delivered a picture yet, or none for three seconds, is reported by
    /// `signal_reportPlatformCameraIssue` in every pass, and the other records are refreshed all the same. Natively its
    /// pictures arrive within the pass.
    bool grab(bool wait);

    const FrameRecords& frames() const { return frames_->records; }
    /// Whether the infrared picture and that of a colour camera, as they stand in the records, may be matched: they
    /// were delivered together, and neither is older than a tenth of a second.
    bool isFreshPair(bool platformCamera) const;
    const SensorSettings& settings() const { return settings_; }

    /// The rear camera's picture that the last `grab` brought, as the camera delivered it (NV12, 1280 x 720); null when
    /// it brought no new one. Valid until the next `grab`.
    const std::uint8_t* platformNv12() const { return platformNv12_; }

    /// Whether `grab` brings the rear camera's pictures into their record; it does unless told otherwise. It costs
    /// more than the rest of the pass, and nobody looks at them while the in-module camera is worked on. Unwanted, the
    /// record stays as it is; wanted again, the next pass takes the newest picture.
    void setPlatformPictureWanted(bool wanted) { platformPictureWanted_ = wanted; }

    /// Switches the infrared emitter. False, silently, when it is to be on and the device has none.
    bool setEmitter(bool on);

    /// Writes the depth-to-colour rotations into the module's flash. The block that is there is kept in a file before,
    /// and the flash is read again after; `writeBack` then says what it holds. True: every call succeeded, and the
    /// module holds and tells the rotations. Refused, without a call, unless the sensor is open, the calibration has
    /// been read and every rotation that differs from the module's is one within 1e-4. `platform` counts only when the
    /// platform camera's calibration has been read.
    bool updateRotation(const Rotation& third, const Rotation& platform);

    /// Writes a whole block, as `ParameterBackup` keeps it, in the same manner. The calibration need not have been
    /// read.
    bool restoreParameters(const KXCalibRectParameters& block);
    /// Writes the block that the module holds once more, unchanged.
    bool rewriteParameters();

    /// About the last `updateRotation` or `restoreParameters`.
    const WriteBackReport& writeBack() const { return writeBack_; }

    /// The module itself, for whoever asks it more than this class does. A call is as described at `ModuleLink::ask`.
    ModuleLink& link() { return link_; }
    bool ask(std::function<bool()> call) { return link_.ask(std::move(call)); }
    /// A query that fills a record; `out` is untouched after a failure.
    template <typename Object, typename Record>
    bool read(Object* object, bool (Object::*query)(Record*), Record* out) {
        const auto record = link_.read(object, query);
        if (record) *out = *record;
        return record.has_value();
    }
    /// Null until `open` has created it. Whoever holds the device keeps it alive.
    std::shared_ptr<KXDevice> device() const { return link_.device(); }
    /// Null until the device is open; valid as long as it.
    KXThirdCamera* thirdCamera() const { return module_.third; }

    /// From now on grabs fill the colour records, in the sizes of this calibration. Without a rear camera in it, the
    /// sensor goes on without one.
    void use(ModuleCalibration calibration);
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
    bool fetchPlatformPicture();
    void followPairs();
    void closePlatformCamera();
    bool mayWrite();
    bool refuseToWrite(const QString& reason);
    bool write(const std::function<bool(CalibrationWriter&)>& how);

    SensorEnvironment environment_;
    ModuleLink link_;
    OpenedModule module_;
    std::shared_ptr<CPlatformCameraControl> platformCamera_;
    SensorSettings settings_;
    std::shared_ptr<FrameAcquisition> frames_ = std::make_shared<FrameAcquisition>();
    PlatformPicture platformPicture_;
    Pairing inModulePair_, platformPair_;
    Pairing::Clock::time_point depthAt_;
    const std::uint8_t* platformNv12_ = nullptr;
    PlatformCalibration platformCalibration_;
    std::optional<StoredRotations> rotationsInFlash_;
    WriteBackReport writeBack_;
    bool platformPictureWanted_ = true;
    bool openTried_ = false;
    bool opened_ = false;
};

}  // namespace fieldcal
