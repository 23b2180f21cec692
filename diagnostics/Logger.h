#pragma once

#include <string>

#if defined(__MINGW32__)
#define FIELDCAL_PRINTF(formatIndex, firstArgument) __attribute__((format(gnu_printf, formatIndex, firstArgument)))
#elif defined(__GNUC__)
#define FIELDCAL_PRINTF(formatIndex, firstArgument) __attribute__((format(printf, formatIndex, firstArgument)))
#else
#define FIELDCAL_PRINTF(formatIndex, firstArgument)
#endif

namespace fieldcal {

/// Level strings for the first argument of `logMessage`.
inline constexpr const char* kInfo = "INFO: ";
inline constexpr const char* kError = "ERROR: ";

/// The process-wide level: 2 and above prints INFO lines, 0 and above ERROR lines, below 0 nothing. Default 2.
int logLevel();
void setLogLevel(int level);

/// Sets whether each line starts with the reporter's tag. Off unless a build enables it.
void setLogTagging(bool on);

/// Writes one line, "level: message", to standard error. The doubled colon ("INFO: : text") is part of the fixed
/// format. `tag` names the reporter as Class::method. Messages are truncated to 2047 characters. Any thread.
void logMessage(const char* level, const char* tag, const char* format, ...) FIELDCAL_PRINTF(3, 4);

/// Formats a text as the logger does, with the same limit of 2047 characters.
std::string formatString(const char* format, ...) FIELDCAL_PRINTF(1, 2);

}  // namespace fieldcal
