#pragma once

#include <string>

namespace fieldcal {

/// Returns the path of the running program; empty where the system does not report it.
std::wstring programFile();

}  // namespace fieldcal
