#pragma once

#include "devices/Sensor.h"

#include <QString>

namespace fieldcal {

/// Keeps the first error that a sensor reports, because a command fails with one line only.
class SensorReports {
public:
    SensorReports() = default;
    SensorReports(const SensorReports&) = delete;
    SensorReports& operator=(const SensorReports&) = delete;

    /// Clears earlier reports and connects to `sensor`. This object has to outlive the sensor, whose destructor may
    /// report, too.
    void listenTo(Sensor& sensor) {
        first_.clear();
        platformCameraMissing_ = false;
        QObject::connect(&sensor, &Sensor::signal_reportKXAPIError, [this](const QString& text) { note(text); });
        QObject::connect(&sensor, &Sensor::signal_reportMissingQ550Device,
                         [this] { note("The depth camera was not found."); });
        QObject::connect(&sensor, &Sensor::signal_reportMissingPlatformCamera, [this] {
            platformCameraMissing_ = true;
            note("The rear camera was not found.");
        });
        // Once the module is open, a rear camera without images is not a failure, because frames of a recording may
        // lack them.
        QObject::connect(&sensor, &Sensor::signal_reportPlatformCameraIssue, [this, &sensor] {
            if (!sensor.opened()) note("The rear camera does not deliver pictures.");
        });
    }

    /// Returns the first error; empty when there was none.
    const QString& first() const { return first_; }
    bool platformCameraMissing() const { return platformCameraMissing_; }

private:
    void note(const QString& text) {
        if (first_.isEmpty()) first_ = QString(text).replace('\n', ' ');
    }

    QString first_;
    bool platformCameraMissing_ = false;
};

}  // namespace fieldcal
