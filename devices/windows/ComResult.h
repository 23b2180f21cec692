#pragma once

#include <windows.h>

namespace fieldcal {

/// Whether a call of the system succeeded; when it did not, a log line says which.
bool succeeded(HRESULT result, const char* call);

}  // namespace fieldcal
