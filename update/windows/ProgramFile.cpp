#include "update/windows/ProgramFile.h"

#include <windows.h>

namespace fieldcal {

std::wstring programFile() {
    constexpr DWORD kLongestPath = 32768;
    std::wstring path(kLongestPath, L'\0');
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), kLongestPath);
    path.resize(length < kLongestPath ? length : 0);
    return path;
}

}  // namespace fieldcal
