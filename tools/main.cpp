#include "tools/CommandLine.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    int status = fieldcal::kSolved;
    const auto command = fieldcal::parseCommandLine(QCoreApplication::arguments().mid(1), &status);
    return command ? fieldcal::runCommand(*command) : status;
}
