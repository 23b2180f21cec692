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
    void listenTo(Sensor& sensor);

    /// Empty while there is nothing to complain about.
    const QString& first() const { return first_; }
    bool platformCameraMissing() const { return platformCameraMissing_; }

private:
    void note(const QString& text);

    QString first_;
    bool platformCameraMissing_ = false;
};

}  // namespace fieldcal
