#pragma once

#include <QString>

namespace fieldcal {

/// Prints a line on standard output and flushes it.
void printLine(const QString& line);

/// Prints why the command failed, one line on standard error, and returns the exit status.
int fail(const QString& why);

/// Discards log lines, so that standard error holds nothing but the line of `fail`.
void silenceLogs();

}  // namespace fieldcal
