#include "tools/CommandLine.h"
#include "tools/ConnectedModule.h"
#include "tools/Console.h"
#include "tools/ExportFormats.h"
#include "tools/ResultFile.h"

#include <QFileInfo>

namespace fieldcal {
namespace {

/// The calibration found at the source, or the exit status after a failure that has been printed.
struct Found {
    std::optional<CameraPair> pair;
    int status = kSolved;
};

Found failed(const QString& why) {
    return {{}, fail(why)};
}

Found chosen(const session::SessionDescription& session, const ExportOptions& options, const QString& source) {
    const ColourCamera camera = options.camera.value_or(ColourCamera::Third);
    if (!session.module.calibrationValid) return failed("The calibration of " + source + " is invalid.");
    if (camera == ColourCamera::Platform && !session.platform)
        return {{}, refuseUsage(source + " has no platform camera")};
    return {cameraPair(session, camera), kSolved};
}

Found fromRecording(const ExportOptions& options) {
    session::SessionDescription session;
    std::string why;
    if (!session::readDescription(options.source, &session, &why)) return failed(QString::fromStdString(why));
    return chosen(session, options, "the recording");
}

Found fromResult(const ExportOptions& options) {
    CameraPair pair;
    std::string why;
    if (!readResult(options.source, &pair, &why)) return failed(QString::fromStdString(why));
    if (options.camera && *options.camera != pair.camera) {
        return {{}, refuseUsage(QString("the result is of the %1 camera").arg(pair.name()))};
    }
    return {pair, kSolved};
}

/// The rear camera is not opened, because its calibration is stored in the module.
Found fromConnectedModule(const ExportOptions& options) {
    silenceLogs();
    ConnectedModule module;
    QString why;
    session::SessionDescription session;
    if (!module.open(false, &why)) return failed(why);
    session.module = module.info();
    const bool valid = session.module.calibrationValid;
    if ((valid && !module.describe(&session, &why)) || !module.close(&why)) return failed(why);
    return chosen(session, options, "the module");
}

Found find(const ExportOptions& options) {
    if (options.source == "module") return fromConnectedModule(options);
    return QFileInfo(QString::fromStdString(options.source)).isFile() ? fromResult(options) : fromRecording(options);
}

}  // namespace

int run(const ExportOptions& options) {
    const Found found = find(options);
    if (!found.pair) return found.status;
    QString why;
    const QString file = QString::fromStdString(options.outFile);
    return writeFile(file, exported(*found.pair, options.format), &why) ? kSolved : fail(why);
}

}  // namespace fieldcal
