#include "diagnostics/Logger.h"

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace fieldcal {
namespace {

constexpr std::size_t kBufferSize = 2048;
std::atomic<int> currentLevel{2};
std::atomic<bool> tagging{false};

bool isPrinted(const char* level) {
    return logLevel() >= (std::strcmp(level, kError) == 0 ? 0 : 2);
}

}  // namespace

int logLevel() {
    return currentLevel.load(std::memory_order_relaxed);
}

void setLogLevel(int level) {
    currentLevel.store(level, std::memory_order_relaxed);
}

void setLogTagging(bool on) {
    tagging.store(on, std::memory_order_relaxed);
}

void logMessage(const char* level, const char* tag, const char* format, ...) {
    if (!isPrinted(level)) return;
    char buffer[kBufferSize];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(buffer, sizeof(buffer), format, arguments);
    va_end(arguments);
    if (tagging.load(std::memory_order_relaxed)) {
        std::fprintf(stderr, "%s %s: %s\n", tag, level, buffer);
    } else {
        std::fprintf(stderr, "%s: %s\n", level, buffer);
    }
}

std::string formatString(const char* format, ...) {
    char buffer[kBufferSize];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(buffer, sizeof(buffer), format, arguments);
    va_end(arguments);
    return buffer;
}

}  // namespace fieldcal
