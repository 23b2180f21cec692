#pragma once

#include "update/Version.h"

#include <optional>

namespace fieldcal {

/// Of the program that runs: on Windows from the version resource of its file, elsewhere as it was compiled in. None
/// when it has none.
std::optional<Version> runningVersion();

}  // namespace fieldcal
