#pragma once

#include "devices/Sensor.h"

#include <QString>

namespace fieldcal {

/// Keeps the first error that a sensor reports, as the command line fails with one line.
class SensorReports {
public:
    SensorReports() = default;
    SensorReports(const SensorReports&) = delete;
    SensorReports& operator=(const SensorReports&) = delete;

    /// Forgets earlier reports. This object has to outlive the sensor, whose last report comes from its destructor.
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
        // After opening, a rear camera without pictures is no failure, as frames of a recording may lack them.
        QObject::connect(&sensor, &Sensor::signal_reportPlatformCameraIssue, [this, &sensor] {
            if (!sensor.opened()) note("The rear camera does not deliver pictures.");
        });
    }

    /// The first error; empty when there was none.
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
