#pragma once

#include <QString>

namespace fieldcal {

/// Prints a line on standard output and flushes it.
void printLine(const QString& line);

/// Prints the reason of a failure as one line on standard error and returns the exit status.
int fail(const QString& why);

/// The text with which a command is refused that would use the module, its service or its notes at the same time as
/// another program.
inline constexpr const char* kAnotherProgram =
    "Another program uses the camera. Close the Field Calibrator and try again.";

/// Discards log lines, so that standard error holds only the line printed by `fail`.
void silenceLogs();

}  // namespace fieldcal
