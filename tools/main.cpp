#include "tools/CommandLine.h"
#include "tools/Console.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    int status = fieldcal::kSolved;
    const auto command = fieldcal::parseCommandLine(QCoreApplication::arguments().mid(1), &status);
    if (command) status = fieldcal::runCommand(*command);
    // Buffered output is flushed here, so that a full disk is noticed when standard output is a file.
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return status;
    return status == fieldcal::kSolved ? fieldcal::fail("standard output cannot be written") : status;
}
