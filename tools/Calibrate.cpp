#include "kxapi/Library.h"
#include "report/History.h"
#include "report/ReportFile.h"
#include "tools/CommandLine.h"
#include "tools/Console.h"
#include "tools/RecordingCalibration.h"

#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <random>

namespace fieldcal {
namespace {

bool writeJson(const QString& path, const QByteArray& json) {
    QFile file(path);
    const bool opened = path == "-" ? file.open(stdout, QIODevice::WriteOnly) : file.open(QIODevice::WriteOnly);
    return opened && file.write(json) == json.size() && file.flush();
}

/// The report of a solution; true when there is none.
bool writeReportFile(const std::string& path, const RecordingCalibration& calibration, QString* why) {
    if (path.empty() || !calibration.report().solved) return true;
    return writeReport(QString::fromStdString(path), calibration.serviceReport(), why);
}

}  // namespace

int run(const CalibrateOptions& options) {
    if (!options.verbose) silenceLogs();
    session::SessionDescription session;
    std::string reason;
    if (!session::readDescription(options.folder, &session, &reason) || !session::verify(options.folder, &reason)) {
        return fail(QString::fromStdString(reason));
    }
    if (options.platformCamera && !session.platform) return refuseUsage("the recording has no platform camera");

    // Only the simulated library plays recordings; the pictures of a real camera would be taken for the recording's.
    if (!useSimulatedLibraries()) return fail("The folder with the simulated libraries is missing.");
    std::srand(options.seed ? *options.seed : std::random_device{}());
    const bool toPeople = options.jsonFile != "-";
    RecordingCalibration calibration(options.folder, session, options.platformCamera, toPeople ? printLine : nullptr);
    calibration.setWriting(options.write);
    calibration.useMemory(BaselineMemory(userDataFolder()));
    QString why;
    const bool done = calibration.run(&why);
    // Also of a rotation that could not be written into the module.
    if (calibration.report().written) appendHistory(userDataFolder(), calibration.serviceReport());
    QString reportWhy;
    const bool reported = writeReportFile(options.reportFile, calibration, &reportWhy);
    if (!done) return fail(why);
    if (!reported) return fail(reportWhy);
    if (!options.stateFile.empty() && !calibration.engineState().writeToFile(options.stateFile)) {
        return fail(QString::fromStdString(options.stateFile) + ": cannot be written");
    }

    const CalibrationReport& report = calibration.report();
    if (toPeople) std::printf("%s", qPrintable(reportText(report)));
    const QString jsonFile = QString::fromStdString(options.jsonFile);
    if (!jsonFile.isEmpty() && !writeJson(jsonFile, reportJson(report))) {
        return fail(jsonFile + ": cannot be written");
    }
    return report.solved ? kSolved : kNotSolved;
}

}  // namespace fieldcal
