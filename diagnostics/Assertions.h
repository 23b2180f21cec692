#pragma once

#include "diagnostics/Logger.h"

namespace fieldcal {

/// Prints "ASSERT failure in function: message [condition] (file:line)" to standard error and aborts.
[[noreturn]] void assertFailure(const char* function, const char* file, int line, const char* condition,
                                const char* format, ...) FIELDCAL_PRINTF(5, 6);

/// Prints "FATAL failure: message" to standard error and ends the process with `status`.
[[noreturn]] void fatalFailure(const char* message, int status);

}  // namespace fieldcal

/// For conditions that a caller must guarantee, never for failures of hardware or files.
#define FIELDCAL_ASSERT(condition, ...) \
    ((condition) ? void(0) : ::fieldcal::assertFailure(__func__, __FILE__, __LINE__, #condition, __VA_ARGS__))
