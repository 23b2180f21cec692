#include "tools/SensorReports.h"

namespace fieldcal {

void SensorReports::listenTo(Sensor& sensor) {
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

void SensorReports::note(const QString& text) {
    if (first_.isEmpty()) first_ = QString(text).replace('\n', ' ');
}

}  // namespace fieldcal
