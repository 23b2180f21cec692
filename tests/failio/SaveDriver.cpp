// Runs the application's save without its interface, on the simulated module and a failing disk:
//
//   save-driver save DATA SERVICE     opens the module, stores the true rotation of the in-module camera, which its
//                                     recording contains, as the application does, and adds to report and history;
//                                     status 0 means that it reports the rotation as stored
//   save-driver look DATA SERVICE     does what the next start does: prints stored, not-stored, neither or none
//
// SERVICE is a file with the start type of the vendor's service, which is not on the failing disk. SERVICE.unnoted is
// created when the service is disabled without a note.
#include "devices/CameraParameterReader.h"
#include "report/ReportFile.h"
#include "session/RecordedSession.h"
#include "tests/devices/FakeServiceControl.h"
#include "workflow/Saving.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <optional>

namespace fieldcal::testing {
namespace {

constexpr int kAutomatic = 2, kDisabled = 4;

class ServiceInFile : public FakeServiceControl {
public:
    ServiceInFile(std::string file, std::string note) : file_(std::move(file)), note_(std::move(note)) {
        std::ifstream(file_) >> startType;
    }
    bool changeConfig(Handle service, std::uint32_t type, std::uint32_t start, std::uint32_t errorControl) override {
        if (!FakeServiceControl::changeConfig(service, type, start, errorControl)) return false;
        std::ofstream(file_) << startType;
        int noted = 0;
        std::ifstream(note_) >> noted;
        if (startType == kDisabled && noted != kAutomatic) std::ofstream(file_ + ".unnoted") << "disabled";
        return true;
    }

private:
    const std::string file_, note_;
};

/// A rotation that the module's images do not contradict.
std::optional<Rotation> trueRotation() {
    session::SessionDescription session;
    std::string why;
    if (!session::readDescription(qEnvironmentVariable("KXSIM_SESSION").toStdString(), &session, &why)) return {};
    if (!session.truthThird) return {};
    Rotation rotation{};
    std::transform(session.truthThird->begin(), session.truthThird->end(), rotation.begin(),
                   [](double entry) { return static_cast<float>(entry); });
    return rotation;
}

int save(Sensor& sensor, const CameraParameters& parameters, const QString& data) {
    CalibrationRecords records;
    const std::optional<Rotation> found = trueRotation();
    if (!found) return 2;
    records.setFactory(parameters.colour[ColourCamera::Third].fromDepth.rotation,
                       parameters.colour[ColourCamera::Platform].fromDepth.rotation);
    records.setEstimated(ColourCamera::Third, *found, [] { return true; });
    records.accept(ColourCamera::Third, *found);
    const SaveResult result = storeCalibration(sensor, records, data);
    ServiceReport report;
    report.time = QDateTime::currentDateTimeUtc();
    report.serial = sensor.serialNumber();
    report.cameras.emplace_back();
    const WriteBackReport& written = sensor.writeBack();
    report.write = ReportedWrite{result.stored, flashText(written), written.reason, written.backupFile};
    keepReport(data, report);
    std::printf("%s %s\n", result.stored ? "stored" : "failed", result.reported ? "reported" : "unreported");
    return result.stored ? 0 : 1;
}

int look(Sensor& sensor, const QString& data) {
    const auto last = settleLastSave(sensor, data);
    const char* words[] = {"not-stored", "stored", "neither"};
    std::printf("%s\n", last ? words[static_cast<int>(last->outcome)] : "none");
    return 0;
}

int run(const QStringList& arguments) {
    const QString& data = arguments[2];
    const QString note = data + "/service-note";
    ServiceInFile control(arguments[3].toStdString(), note.toStdString());
    PXMServiceManager services(control, serviceNoteInFile(note));
    SensorEnvironment environment = systemEnvironment();
    environment.power = nullptr;  // the tests run on any computer
    environment.services = &services;
    environment.dataFolder = data;
    Sensor sensor(environment);
    CameraParameters parameters;
    if (!sensor.open(applicationSettings()) || !readCameraParameters(sensor, &parameters, [] {})) {
        std::printf("closed\n");
        return 2;
    }
    return arguments[1] == "save" ? save(sensor, parameters, data) : look(sensor, data);
}

}  // namespace
}  // namespace fieldcal::testing

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 4) return fieldcal::testing::run(arguments);
    std::fprintf(stderr, "usage: save-driver save|look DATA SERVICE\n");
    return 2;
}
