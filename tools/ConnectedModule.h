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

/// The camera module that is connected, opened with the application's settings. An operation that fails returns false
/// and one line in `why`. All calls come from one thread.
class ConnectedModule {
public:
    ConnectedModule() = default;
    /// A module that is found in another way than usual.
    explicit ConnectedModule(SensorEnvironment environment) : environment_(std::move(environment)) {}

    /// With `rearCamera`, the tablet's rear camera is opened, too, where there is one.
    bool open(bool rearCamera, QString* why);

    /// Returns what is known of the module itself, whether its calibration is valid or not.
    session::ModuleInfo info();

    /// Reads the calibration, so that grabs bring every picture, and describes it as a recording does, with the numbers
    /// of the camera library and without frames. `platform` is set when the module has a usable calibration of it.
    bool describe(session::SessionDescription* out, QString* why);
    /// The calibration that was read then, as the engine uses it.
    const CameraParameters& parameters() const { return parameters_; }

    /// Grabs the next frame set, as the library delivers it. `platform` is empty when the rear camera had no new
    /// picture.
    bool grab(session::FramePictures* out, QString* why);
    /// The same, also where some of the streams have no picture.
    bool grabWhatIsThere(session::FramePictures* out, QString* why);

    /// The opened sensor, for whoever asks it more than this class does.
    Sensor& sensor() { return *sensor_; }

    /// Returns whether grabs bring the rear camera's pictures.
    bool hasRearCamera() const { return sensor_->settings().usePlatformCamera; }

    /// Reads the module's present parameter block.
    bool readBlock(ParameterBackup* out, QString* why);
    /// Writes a block that was read from this module back into its flash.
    bool restoreBlock(const ParameterBackup& backup, QString* why);

    /// Closes the module. It fails, too, when an error was reported before.
    bool close(QString* why);

private:
    bool tryToOpen(const SensorSettings& settings);
    bool describeModule(session::SessionDescription* out);
    bool describePlatform(session::PlatformCamera* out);
    bool failed(QString* why, const char* otherwise) const;

    std::unique_ptr<SingleInstance> instance_;  ///< where the vendor's service is disabled meanwhile, and noted
    std::optional<SensorEnvironment> environment_;
    CameraParameters parameters_;
    SensorReports reports_;
    std::unique_ptr<Sensor> sensor_;
};

}  // namespace fieldcal
