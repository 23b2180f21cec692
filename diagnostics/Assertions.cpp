#include "diagnostics/Assertions.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <iostream>

namespace fieldcal {

void assertFailure(const char* function, const char* file, int line, const char* condition, const char* format, ...) {
    char message[2048];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(message, sizeof(message), format, arguments);
    va_end(arguments);
    std::cerr << "ASSERT failure in " << function << ": " << message << " [" << condition << "] (" << file << ":"
              << line << ")" << std::endl;
    std::abort();
}

void fatalFailure(const char* message, int status) {
    std::cerr << "FATAL failure: " << message << std::endl;
    std::exit(status);
}

}  // namespace fieldcal
