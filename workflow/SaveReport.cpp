#include "workflow/SaveReport.h"

#include "engine/Rotation.h"
#include "engine/SensorCalibrator.h"
#include "report/ReportFile.h"

#include <memory>
#include <string>

namespace fieldcal {
namespace {

QString firmwareOf(Sensor& sensor) {
    const auto text = std::make_shared<std::string>();
    const auto device = sensor.device();
    if (device == nullptr) return {};
    sensor.ask([device = device.get(), text] {
        const char* version = device->firmwareVersionText();
        *text = version != nullptr ? version : "";
        return true;
    });
    return QString::fromStdString(*text);
}

}  // namespace

void SaveReport::note(ColourCamera camera, const CameraParameters& stored, const Rotation& found,
                      const vq::SensorCalibrator& engine, Sensor& sensor) {
    // The firmware version is read now, because a module that fails to store may no longer answer.
    if (firmware_.isEmpty()) firmware_ = firmwareOf(sensor);
    ReportedCamera noted;
    noted.camera = camera;
    noted.stored = vq::matrixOf(stored.colour[camera].fromDepth.rotation);
    noted.found = noted.accepted = vq::matrixOf(found);
    noted.quality = engine.quality();
    noted.evidence = engine.evidence();
    noted.parallax = engine.parallax();
    cameras_[camera] = std::move(noted);
}

void SaveReport::keep(const QString& dataFolder, const Sensor& sensor, const CalibrationRecords& records,
                      bool stored) const {
    if (!records.anyAccepted()) return;
    ServiceReport report;
    report.time = QDateTime::currentDateTimeUtc();
    report.program = "Field Calibrator " FIELDCAL_VERSION;
    report.serial = sensor.serialNumber();
    const WriteBackReport& written = sensor.writeBack();
    report.write = {stored, flashText(written), written.reason, written.backupFile};
    report.firmware = firmware_;
    for (const ColourCamera camera : kColourCameras) {
        const auto accepted = records.accepted(camera);
        const auto& noted = cameras_[camera];
        if (!accepted || !noted) continue;
        report.cameras.push_back(*noted);
        report.cameras.back().accepted = vq::matrixOf(*accepted);
    }
    keepReport(dataFolder, report);
}

}  // namespace fieldcal
