#include "update/RunningVersion.h"

#include "update/windows/ProgramFile.h"

#include <vector>
#include <windows.h>

namespace fieldcal {

std::optional<Version> runningVersion() {
    const std::wstring file = programFile();
    std::vector<char> resource(GetFileVersionInfoSizeW(file.c_str(), nullptr));
    if (resource.empty() ||
        !GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data())) {
        return std::nullopt;
    }
    void* found = nullptr;
    UINT size = 0;
    if (!VerQueryValueW(resource.data(), L"\\", &found, &size) || size < sizeof(VS_FIXEDFILEINFO)) return std::nullopt;
    const auto* fixed = static_cast<const VS_FIXEDFILEINFO*>(found);
    return Version{{HIWORD(fixed->dwFileVersionMS), LOWORD(fixed->dwFileVersionMS), HIWORD(fixed->dwFileVersionLS),
                    LOWORD(fixed->dwFileVersionLS)}};
}

}  // namespace fieldcal
