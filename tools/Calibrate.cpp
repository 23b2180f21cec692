#include "devices/SingleInstance.h"
#include "kxapi/LibrarySearch.h"
#include "report/History.h"
#include "report/ReportFile.h"
#include "tools/CommandLine.h"
#include "tools/Console.h"
#include "tools/RecordingCalibration.h"
#include "tools/ResultFile.h"

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <random>

namespace fieldcal {
namespace {

/// Writes the report of a solution. Returns true when no report was asked for or there is no solution.
bool writeReportFile(const std::string& path, const RecordingCalibration& calibration, QString* why) {
    if (path.empty() || !calibration.report().solved) return true;
    return writeReport(QString::fromStdString(path), calibration.serviceReport(), why);
}

}  // namespace

int run(const CalibrateOptions& options) {
    if (!options.verbose) silenceLogs();
    const unsigned seed = options.seed ? *options.seed : std::random_device{}();
    const QString folder = QString::fromStdString(options.folder);
    ResultFile result(QString::fromStdString(options.jsonFile), folder, options.camera, seed);
    session::SessionDescription session;
    std::string reason;
    if (!session::readDescription(options.folder, &session, &reason) || !session::verify(options.folder, &reason)) {
        return result.fail(QString::fromStdString(reason));
    }
    if (options.camera == ColourCamera::Platform && !session.platform)
        return refuseUsage("the recording has no platform camera");
    result.describe(cameraPair(session, options.camera));
    std::optional<SingleInstance> instance;
    if (options.write) instance.emplace();
    if (instance && !instance->isFirst()) return result.fail(kAnotherProgram);

    // Only the simulated library plays recordings; the images of a real camera would be mistaken for those of the
    // recording.
    if (!kxapi::hasSimulatedLibraries()) return result.fail("The folder with the simulated libraries is missing.");
    std::srand(seed);
    const bool toPeople = !result.toStandardOutput();
    RecordingCalibration calibration(options.folder, session, options.camera, toPeople ? printLine : nullptr,
                                     systemEnvironment(kxapi::LibrarySearch::SimulatedOnly));
    calibration.setWriting(options.write);
    calibration.useMemory(BaselineMemory(userDataFolder()));
    QString why;
    const CalibrationReport& report = calibration.report();
    const bool done = calibration.run(&why);
    // A line is also added for a rotation that could not be written into the module.
    const bool remembered = !report.written || appendHistory(userDataFolder(), calibration.serviceReport());
    QString reportWhy;
    const bool reported = writeReportFile(options.reportFile, calibration, &reportWhy);
    if (!done) return result.fail(why, &report);
    if (!reported) return result.fail(reportWhy, &report);
    if (!remembered) return result.fail("The history of calibrations cannot be continued.", &report);
    if (!options.stateFile.empty() && !calibration.engineState().writeToFile(options.stateFile)) {
        return result.fail(QString::fromStdString(options.stateFile) + ": cannot be written", &report);
    }

    if (toPeople) std::printf("%s", qPrintable(reportText(report)));
    if (!result.write(report, &why)) return fail(why);
    return report.solved ? kSolved : kNotSolved;
}

}  // namespace fieldcal
