#pragma once

#include "devices/SensorEnvironment.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace fieldcal {

/// What was seen of one operation of the camera library.
struct OperationRecord {
    std::string name;
    int calls = 0;
    int failures = 0;
    std::optional<std::int32_t> status;  ///< that the library told after the first failure, where it was asked
    double firstMs = 0;
    double longestMs = 0;
    double longestLaterMs = 0;  ///< of all calls but the first one
    bool underWay = false;      ///< a call has not returned
};

/// Counts and times the calls that a program makes of the camera library. Any thread.
class OperationLog {
public:
    using Clock = std::chrono::steady_clock;

    void begin(const char* name);
    /// Returns whether the call failed.
    void end(const char* name, Clock::time_point begun, bool failed);
    void noteStatus(std::int32_t status);

    /// Every operation of `KXAPI.h` in slot order, also those that were never called.
    std::vector<OperationRecord> records() const;

private:
    mutable std::mutex mutex_;
    std::map<std::string, OperationRecord> records_;
    std::string lastFailure_;
};

/// The environment in which a sensor finds the module that is connected, with every call of the library counted in
/// `log`. One module at a time.
SensorEnvironment observedEnvironment(const std::shared_ptr<OperationLog>& log);

}  // namespace fieldcal
