#pragma once

#include "camera/CameraParameters.h"
#include "devices/ParameterBackup.h"
#include "devices/Sensor.h"
#include "devices/SingleInstance.h"
#include "session/RecordedSession.h"
#include "tools/SensorReports.h"

#include <QString>

#include <memory>
#include <optional>
#include <utility>

namespace fieldcal {

/// The connected camera module, opened with the application's settings. An operation that fails returns false and sets
/// `why` to one line. All calls must come from one thread.
class ConnectedModule {
public:
    ConnectedModule() = default;
    /// Uses `environment` instead of the system's to find the module.
    explicit ConnectedModule(SensorEnvironment environment) : environment_(std::move(environment)) {}

    /// Opens the module and, with `rearCamera`, also the tablet's rear camera if it has one.
    bool open(bool rearCamera, QString* why);

    /// Returns the module's serial number and versions, whether its calibration is valid or not.
    session::ModuleInfo info();

    /// Reads the calibration, after which grabs deliver every image, and describes it as in a recording: with the
    /// numbers of the camera library and without frames. `platform` is set when the module has a usable calibration of
    /// the rear camera.
    bool describe(session::SessionDescription* out, QString* why);
    /// Returns the calibration read by `describe`, in the form that the engine uses.
    const CameraParameters& parameters() const { return parameters_; }

    /// Grabs the next frame set as the library delivers it, with the alpha of colour set to 255. A missing left
    /// infrared or third colour image is a failure. `platform` is empty when the rear camera had no new image.
    bool grab(session::FrameImages* out, QString* why);
    /// The same, but missing images are no failure.
    bool grabAvailable(session::FrameImages* out, QString* why);

    /// Returns the opened sensor, for operations that this class does not cover.
    Sensor& sensor() { return *sensor_; }

    /// Returns whether grabs deliver images of the rear camera.
    bool hasRearCamera() const { return sensor_->settings().usePlatformCamera; }

    /// Reads the module's current parameter block.
    bool readBlock(ParameterBackup* out, QString* why);
    /// Writes a block that was read from this module back into its flash.
    bool restoreBlock(const ParameterBackup& backup, QString* why);

    /// Closes the module. Also fails when an error was reported before.
    bool close(QString* why);

private:
    bool tryToOpen(const SensorSettings& settings);
    bool describeModule(session::SessionDescription* out);
    bool describePlatform(session::PlatformCamera* out);
    bool failed(QString* why, const char* otherwise) const;

    std::unique_ptr<SingleInstance> instance_;  ///< held where the vendor's service is disabled
    std::optional<SensorEnvironment> environment_;
    CameraParameters parameters_;
    SensorReports reports_;
    std::unique_ptr<Sensor> sensor_;
};

}  // namespace fieldcal
