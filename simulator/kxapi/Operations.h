#pragma once

#include <optional>
#include <string>

namespace kxsim {

/// The result of an operation: `acts` only reports success, `answers` returns data.
enum class OperationKind { acts, answers };

/// The operations of `KXAPI.h` that can fail, and those of the rear camera. Returns none for any other name.
std::optional<OperationKind> operationKind(const std::string& name);

}  // namespace kxsim
