#pragma once

#include "devices/Sensor.h"

#include <QString>

namespace fieldcal {

/// Listens to a sensor for the command line, which fails with one line: the first thing that was reported.
class SensorReports {
public:
    SensorReports() = default;
    SensorReports(const SensorReports&) = delete;
    SensorReports& operator=(const SensorReports&) = delete;

    /// Forgets what was reported before. This object outlives the sensor, whose last report comes when it goes.
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
        // Once opened, a rear camera without pictures is no failure: frames of a recording may lack them.
        QObject::connect(&sensor, &Sensor::signal_reportPlatformCameraIssue, [this, &sensor] {
            if (!sensor.opened()) note("The rear camera does not deliver pictures.");
        });
    }

    /// Empty while there is nothing to complain about.
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
