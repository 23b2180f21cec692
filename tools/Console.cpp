#include "tools/Console.h"

#include "diagnostics/Logger.h"
#include "tools/CommandLine.h"

#include <cstdio>

namespace fieldcal {
namespace {

void discardLogLine(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

void printLine(const QString& line) {
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

int fail(const QString& why) {
    std::fprintf(stderr, "%s\n", qPrintable(why));
    return kFailed;
}

void silenceLogs() {
    setLogLevel(-1);
    qInstallMessageHandler(discardLogLine);
}

}  // namespace fieldcal
