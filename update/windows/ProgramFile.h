#pragma once

#include <string>

namespace fieldcal {

/// Path of the running program; empty where the system does not tell.
std::wstring programFile();

}  // namespace fieldcal
