#pragma once

#include "devices/Sensor.h"

#include <string>
#include <vector>

namespace fieldcal::testing {

/// Adds all signals of the sensor to `reports`: the text of an error, or the short name of the signal.
inline void collectReports(const Sensor& sensor, std::vector<std::string>* reports) {
    const auto add = [reports](const char* name) { return [reports, name] { reports->emplace_back(name); }; };
    QObject::connect(&sensor, &Sensor::signal_reportKXAPIError,
                     [reports](const QString& text) { reports->push_back(text.toStdString()); });
    QObject::connect(&sensor, &Sensor::signal_reportMissingQ550Device, add("MissingQ550"));
    QObject::connect(&sensor, &Sensor::signal_reportMissingPlatformCamera, add("MissingPlatform"));
    QObject::connect(&sensor, &Sensor::signal_reportPlatformCameraIssue, add("PlatformIssue"));
}

}  // namespace fieldcal::testing
