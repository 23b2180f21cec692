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

/// Statistics of one operation of the camera library.
struct OperationRecord {
    std::string name;
    int calls = 0;
    int failures = 0;
    std::optional<std::int32_t> status;  ///< of the first failure; none when not asked for
    double firstMs = 0;
    double longestMs = 0;
    double longestLaterMs = 0;  ///< of all calls except the first
    bool underWay = false;      ///< a call has not returned yet
};

/// Counts and times the calls of the camera library. Any thread.
class OperationLog {
public:
    using Clock = std::chrono::steady_clock;

    void begin(const char* name);
    /// `begun`: time of `begin`; `failed`: the call returned a failure.
    void end(const char* name, Clock::time_point begun, bool failed);
    /// Records the status of the operation that failed last, if that operation has none yet.
    void noteStatus(std::int32_t status);

    /// Returns one record for every operation of `KXAPI.h` in slot order, including those never called.
    std::vector<OperationRecord> records() const;

private:
    mutable std::mutex mutex_;
    std::map<std::string, OperationRecord> records_;
    std::string lastFailure_;
};

/// Returns the environment in which a sensor finds the connected module with every call of the library counted in
/// `log`. One module at a time.
SensorEnvironment observedEnvironment(const std::shared_ptr<OperationLog>& log);

}  // namespace fieldcal
