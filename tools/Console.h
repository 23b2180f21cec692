#pragma once

#include <QString>

namespace fieldcal {

/// To standard output, at once.
void printLine(const QString& line);

/// The one line on standard error that says why the command failed; gives the exit status.
int fail(const QString& why);

/// Keeps log lines away from standard error, which is for that one line.
void silenceLogs();

}  // namespace fieldcal
