#pragma once

#include <windows.h>

namespace fieldcal {

/// Returns whether a call of the system succeeded; if it failed, a log line names it.
bool succeeded(HRESULT result, const char* call);

}  // namespace fieldcal
