#include "update/windows/VersionResource.h"

#include <vector>
#include <windows.h>

namespace fieldcal {
namespace {

/// Returns the product's name in the first language of the resource.
QString productIn(const std::vector<char>& resource) {
    struct Language {
        WORD language, codePage;
    };
    void* found = nullptr;
    UINT size = 0;
    if (!VerQueryValueW(resource.data(), L"\\VarFileInfo\\Translation", &found, &size) || size < sizeof(Language))
        return {};
    const auto* first = static_cast<const Language*>(found);
    const QString path = QStringLiteral("\\StringFileInfo\\%1%2\\ProductName")
                             .arg(first->language, 4, 16, QLatin1Char('0'))
                             .arg(first->codePage, 4, 16, QLatin1Char('0'));
    if (!VerQueryValueW(resource.data(), path.toStdWString().c_str(), &found, &size) || size == 0) return {};
    return QString::fromWCharArray(static_cast<const wchar_t*>(found));
}

}  // namespace

std::optional<ProgramIdentity> identityOf(const std::wstring& file) {
    std::vector<char> resource(GetFileVersionInfoSizeW(file.c_str(), nullptr));
    if (resource.empty() ||
        !GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data())) {
        return std::nullopt;
    }
    void* found = nullptr;
    UINT size = 0;
    if (!VerQueryValueW(resource.data(), L"\\", &found, &size) || size < sizeof(VS_FIXEDFILEINFO)) return std::nullopt;
    const auto* fixed = static_cast<const VS_FIXEDFILEINFO*>(found);
    const Version version{{HIWORD(fixed->dwFileVersionMS), LOWORD(fixed->dwFileVersionMS),
                           HIWORD(fixed->dwFileVersionLS), LOWORD(fixed->dwFileVersionLS)}};
    return ProgramIdentity{productIn(resource), version};
}

}  // namespace fieldcal
