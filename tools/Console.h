#pragma once

#include <QString>

namespace fieldcal {

/// Prints a line on standard output and flushes it.
void printLine(const QString& line);

/// Prints why the command failed, one line on standard error, and returns the exit status.
int fail(const QString& why);

/// Why a command is refused that would use the module, its service or its notes beside another program.
inline constexpr const char* kAnotherProgram =
    "Another program uses the camera. Close the Field Calibrator and try again.";

/// Discards log lines, so that standard error holds nothing but the line of `fail`.
void silenceLogs();

}  // namespace fieldcal
