#include "tools/CommandLine.h"
#include "tools/Verbs.h"

#include <QCoreApplication>

#include <cstdio>

namespace fieldcal {

namespace {

int dispatch(QStringList arguments) {
    arguments.removeFirst();
    if (arguments.isEmpty()) return refuseUsage("a verb is missing");
    const QString verb = arguments.takeFirst();
    if (verb == "calibrate") return runCalibrate(arguments);
    if (verb == "synthesize") return runSynthesize(arguments);
    if (verb == "record") return runRecord(arguments);
    if (verb == "info") return runInfo(arguments);
    if (verb == "backup") return runBackup(arguments);
    if (verb == "restore") return runRestore(arguments);
    if (verb == "--help" || verb == "-h") {
        std::printf("%s", qPrintable(usageText()));
        return kSolved;
    }
    return refuseUsage(QString("unknown verb '%1'").arg(verb));
}

}  // namespace
}  // namespace fieldcal

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return fieldcal::dispatch(QCoreApplication::arguments());
}
