#include "kxapi/Library.h"
#include "tools/CommandLine.h"
#include "tools/Console.h"
#include "tools/RecordingCalibration.h"
#include "tools/Verbs.h"

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

}  // namespace

int runCalibrate(const QStringList& arguments) {
    QString why;
    const auto options = parseCalibrate(arguments, &why);
    if (!options) return refuseUsage(why);
    if (!options->verbose) silenceLogs();

    const std::string folder = options->folder.toStdString();
    session::SessionDescription session;
    std::string reason;
    if (!session::readDescription(folder, &session, &reason) || !session::verify(folder, &reason)) {
        return fail(QString::fromStdString(reason));
    }
    if (options->platformCamera && !session.platform) return refuseUsage("the recording has no platform camera");

    // No other one plays recordings: a real camera's pictures would pass for them.
    if (!useSimulatedLibraries()) return fail("The folder with the simulated libraries is missing.");
    std::srand(options->seed ? *options->seed : std::random_device{}());
    const bool toPeople = options->jsonFile != "-";
    RecordingCalibration calibration(folder, session, options->platformCamera, toPeople ? printLine : nullptr);
    calibration.setWriting(options->write);
    calibration.useMemory(BaselineMemory(userDataFolder()));
    if (!calibration.run(&why)) return fail(why);
    if (!options->stateFile.isEmpty() && !calibration.engineState().writeToFile(options->stateFile.toStdString())) {
        return fail(options->stateFile + ": cannot be written");
    }

    const CalibrationReport& report = calibration.report();
    if (toPeople) std::printf("%s", qPrintable(reportText(report)));
    if (!options->jsonFile.isEmpty() && !writeJson(options->jsonFile, reportJson(report))) {
        return fail(options->jsonFile + ": cannot be written");
    }
    return report.solved ? kSolved : kNotSolved;
}

}  // namespace fieldcal
