#pragma once

#include "camera/CameraParameters.h"
#include "devices/Sensor.h"
#include "engine/CalibrationState.h"
#include "engine/CalibratorInterface.h"
#include "engine/Stopwatch.h"
#include "report/ServiceReport.h"
#include "session/RecordedSession.h"
#include "tools/CalibrationReport.h"
#include "tools/SensorReports.h"
#include "workflow/CalibrationAttempt.h"

#include <QString>

#include <functional>
#include <map>
#include <optional>
#include <string>

namespace fieldcal {

/// Plays a recording once through sensor, frame selection, attempt and engine, as the application does. An attempt that
/// fails is restarted at once. All calls must come from one thread.
class RecordingCalibration : private AttemptListener {
public:
    /// `showProgress` receives one line for each event; it may be empty. `environment`: of the sensor.
    RecordingCalibration(std::string folder, session::SessionDescription session, ColourCamera camera,
                         std::function<void(const QString&)> showProgress,
                         SensorEnvironment environment = systemEnvironment());

    /// Sets whether a solution is written into the module's flash.
    void setWriting(bool on) { writing_ = on; }
    /// Starts with the stereo baseline stored for the module in `memory`, and stores the baseline measured by a
    /// solution.
    void useMemory(const BaselineMemory& memory) { memory_ = memory; }
    /// Returns false and sets `why` to one line when the device fails.
    bool run(QString* why);
    /// Returns the cameras and the rotation that the engine had at the end of `run`.
    vq::CalibrationState engineState() const;
    const CalibrationReport& report() const { return report_; }
    /// Returns the data of the report about the solution.
    ServiceReport serviceReport() const;

private:
    bool open(Sensor& sensor, QString* why);
    bool play(Sensor& sensor, CalibrationAttempt& attempt, bool* solved);
    void finish(bool solved);
    std::map<int, double> registrationErrors(const Matrix3& truth) const;
    void reportLastSave(Sensor& sensor);
    bool write(Sensor& sensor, QString* why);
    void pairProcessed(const vq::CalibratorResult& result) override;
    void pairCaptured() override;
    void startText(const std::string& text) override;
    void returnToWellLitArea(bool needed) override;

    const std::string folder_;
    const session::SessionDescription session_;
    const ColourCamera camera_;
    const std::function<void(const QString&)> showProgress_;
    const SensorEnvironment environment_;
    SensorReports reports_;
    CameraParameters parameters_;
    vq::RegistrationContext context_;
    vq::CalibratorInterface engine_;
    LightGate light_;
    CalibrationReport report_;
    std::optional<vq::SolutionEvidence> evidence_;
    std::optional<WriteBackReport> writeBack_;
    vq::Stopwatch pairWatch_;
    bool dark_ = false;
    bool writing_ = false;
    std::optional<BaselineMemory> memory_;
};

}  // namespace fieldcal
