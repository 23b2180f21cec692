#pragma once

#include "camera/CameraParameters.h"
#include "camera/Rotation.h"
#include "devices/CalibrationWriter.h"
#include "devices/FrameAcquisition.h"
#include "devices/ModuleLink.h"
#include "devices/ModuleOpening.h"
#include "devices/PlatformCalibration.h"
#include "devices/PlatformImage.h"
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

/// The program's connection to the depth camera module and the tablet's rear camera.
///
/// It is constructed without a device. `open` either completes, or reports the problem by one signal and returns false;
/// it cannot be called again. The first failed call of the camera library is fatal: it is reported once, and from then
/// on the sensor does nothing more (`faulted`). The sensor is created, used and destroyed on one thread, which emits
/// its signals. That thread may hand the sensor over for good (`moveToThread`). None of
/// this is checked at run time, except by the tests under the thread sanitizer.
class Sensor : public QObject {
    Q_OBJECT

public:
    Sensor();
    explicit Sensor(SensorEnvironment environment);
    /// Closes the cameras, then restores the vendor's service; a failure to restore it is reported.
    ~Sensor() override;

    /// Every wait of the sensor also ends, as a failure without a report, once `*stop` is true. Null disables this.
    /// `stop` must outlive the sensor.
    void setStopFlag(const std::atomic<bool>* stop);

    bool open(SensorSettings settings);
    bool opened() const { return opened_; }
    bool faulted() const { return link_.faulted(); }
    /// The fault in one line; empty without one.
    QString faultText() const { return link_.faultText(); }
    /// 0 until `open` has read it.
    std::uint32_t serialNumber() const { return module_.serial; }

    /// Makes one acquisition pass; with `wait`, it waits for the module's next frame set. Returns true when the records
    /// were refreshed. Returns false when they are unchanged; the fault has then been reported, now or earlier. A rear
    /// camera that has not delivered an image yet, or none for three seconds, is reported by
    /// `signal_reportPlatformCameraIssue` in every pass; the other records are refreshed nevertheless. The rear camera
    /// of a simulated module delivers its images within the pass.
    bool grab(bool wait);
    /// The same for images that the program can do without: a failure is neither reported nor a fault.
    bool grabQuietly();

    const FrameRecords& frames() const { return frames_->records; }
    /// Returns whether the infrared image and that of a colour camera in the records may be matched: they were
    /// delivered together, and neither is older than a tenth of a second.
    bool isFreshPair(ColourCamera camera) const;
    const SensorSettings& settings() const { return settings_; }

    /// The rear camera's image from the last `grab`, as the camera delivered it (NV12, 1280 x 720); null when there was
    /// no new one. Valid until the next `grab`.
    const std::uint8_t* platformNv12() const { return platformNv12_; }

    /// Sets whether `grab` updates the record of the rear camera, which is the default. The update costs more than the
    /// rest of the pass and is not needed while the in-module camera is calibrated. While it is off, the record keeps
    /// its content; after it is switched on, the next pass takes the newest image.
    void setPlatformImageWanted(bool wanted) { platformImageWanted_ = wanted; }

    /// Switches the infrared emitter. Returns false, without a report, when it is to be switched on and the device has
    /// none.
    bool setEmitter(bool on);
    /// The same without a report.
    bool setEmitterQuietly(bool on);

    /// Writes the depth-to-colour rotations into the module's flash. The present block is saved to a file first, and
    /// the flash is read back afterwards; `writeBack` then describes its content. Returns true when every call
    /// succeeded and the module holds and reports the rotations. Refused, without a call, unless the sensor is open
    /// and has not failed, the power supply suffices, the calibration has been read, and every matrix that differs from
    /// the module's is a rotation within 1e-4. `platform` is used only when the platform camera's calibration has been
    /// read. In `afterWrite`, which is called while the module runs on the new rotations, frames may be grabbed.
    bool updateRotation(const Rotation& third, const Rotation& platform, const BeforeWrite& beforeWrite = {},
                        const AfterWrite& afterWrite = {});

    /// Writes a whole block, as kept by `ParameterBackup`, in the same way. The calibration need not have been read.
    bool restoreParameters(const KXCalibRectParameters& block);
    /// Writes the block that the module holds once more, unchanged.
    bool rewriteParameters();

    /// The result of the last `updateRotation` or `restoreParameters`.
    const WriteBackReport& writeBack() const { return writeBack_; }

    /// The link to the module, for callers that need more than this class offers. `ask` is described at
    /// `ModuleLink::ask`.
    ModuleLink& link() { return link_; }
    bool ask(std::function<bool()> call) { return link_.ask(std::move(call)); }
    /// Makes a query that fills a record; `out` is unchanged after a failure.
    template <typename Object, typename Record>
    bool read(Object* object, bool (Object::*query)(Record*), Record* out) {
        const auto record = link_.read(object, query);
        if (record) *out = *record;
        return record.has_value();
    }
    /// Null until `open` has created it. Every holder of the device keeps it alive.
    std::shared_ptr<KXDevice> device() const { return link_.device(); }
    /// Null until the device is open; valid as long as the device.
    KXThirdCamera* thirdCamera() const { return module_.third; }

    /// Makes all further grabs fill the colour records in the sizes of this calibration. If it has no rear camera, the
    /// sensor continues without one.
    void use(ModuleCalibration calibration);
    const PlatformCalibration& platformCalibration() const { return platformCalibration_; }
    /// The parameters of the calibration in use; all zero before.
    const CameraParameters& parameters() const { return parameters_; }

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
    bool refreshRecords(bool quietly, bool wait);
    void updateColourRecords();
    bool fetchPlatformImage();
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
    PlatformImage platformImage_;
    PerColourCamera<Pairing> pairs_;
    Pairing::Clock::time_point depthAt_;
    const std::uint8_t* platformNv12_ = nullptr;
    CameraParameters parameters_;
    PlatformCalibration platformCalibration_;
    std::optional<StoredRotations> rotationsInFlash_;
    WriteBackReport writeBack_;
    bool platformImageWanted_ = true;
    bool openTried_ = false;
    bool opened_ = false;
};

}  // namespace fieldcal
