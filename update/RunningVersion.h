#pragma once

#include "update/Version.h"

#include <optional>

namespace fieldcal {

/// Returns the version of the running program: on Windows from the version resource of its file, elsewhere as it was
/// compiled in. None when it has no version.
std::optional<Version> runningVersion();

}  // namespace fieldcal
