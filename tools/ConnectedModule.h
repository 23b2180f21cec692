#pragma once

#include "devices/ParameterBackup.h"
#include "devices/Sensor.h"
#include "session/RecordedSession.h"
#include "tools/SensorReports.h"

#include <QString>

#include <memory>

namespace fieldcal {

/// The camera module that is connected, opened with the application's settings. Operations fail with false and one
/// line in `why`. One thread.
class ConnectedModule {
public:
    /// `rearCamera`: together with the tablet's rear camera, where there is one.
    bool open(bool rearCamera, QString* why);

    /// The module without its cameras, whether its calibration is valid or not.
    session::ModuleInfo info();

    /// Reads the calibration, so that grabs bring every picture, and describes it as a recording does: what the library
    /// says, number by number. No frames. `platform` only when the module has a usable calibration of it.
    bool describe(session::SessionDescription* out, QString* why);

    /// The next frame set, as the library and the rear camera deliver it: `platform` when it brought a new picture.
    bool grab(session::FramePictures* out, QString* why);

    /// Whether grabs bring the rear camera's pictures.
    bool hasRearCamera() const { return sensor_->settings().usePlatformCamera; }

    /// The module's parameter block as it is now.
    bool readBlock(ParameterBackup* out, QString* why);
    /// Writes a block of this very module back into its flash.
    bool restoreBlock(const ParameterBackup& backup, QString* why);

    /// Lets the module go. False when that, too, failed.
    bool close(QString* why);

private:
    bool tryToOpen(const SensorSettings& settings);
    bool describeModule(session::SessionDescription* out);
    bool describePlatform(session::PlatformCamera* out);
    bool failed(QString* why, const char* otherwise) const;

    SensorReports reports_;
    std::unique_ptr<Sensor> sensor_;
};

}  // namespace fieldcal
