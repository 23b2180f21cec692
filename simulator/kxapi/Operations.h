#pragma once

#include <optional>
#include <string>

namespace kxsim {

/// What a caller gets from an operation: `acts` tells only whether it was done, `answers` tells or hands out something.
enum class OperationKind { acts, answers };

/// The operations of `KXAPI.h` that can fail and those of the rear camera. Nothing for any other name.
std::optional<OperationKind> operationKind(const std::string& name);

}  // namespace kxsim
