#include "files/SystemFolder.h"

#include <aclapi.h>
#include <filesystem>
#include <sddl.h>
#include <system_error>
#include <windows.h>

namespace fieldcal {
namespace {

// Owned by the administrators, because an owner may always change the rights. The rights of `parent` are not inherited.
constexpr const wchar_t* kRights = L"O:BAG:BAD:P(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)";

std::wstring wide(const std::string& name) {
    return std::filesystem::u8path(name).make_preferred().wstring();
}

bool ownedByAdministrators(HANDLE folder) {
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (GetSecurityInfo(folder, SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr, nullptr,
                        &descriptor) != ERROR_SUCCESS) {
        return false;
    }
    const bool owned = IsWellKnownSid(owner, WinBuiltinAdministratorsSid) || IsWellKnownSid(owner, WinLocalSystemSid);
    LocalFree(descriptor);
    return owned;
}

}  // namespace

bool createPrivateFolder(const std::string& folder, bool* nameIsTaken, std::string* reason) {
    SECURITY_ATTRIBUTES rights{sizeof rights, nullptr, FALSE};
    bool created = ConvertStringSecurityDescriptorToSecurityDescriptorW(kRights, SDDL_REVISION_1,
                                                                        &rights.lpSecurityDescriptor, nullptr) &&
                   CreateDirectoryW(wide(folder).c_str(), &rights);
    const DWORD error = GetLastError();
    LocalFree(rights.lpSecurityDescriptor);
    if (created) return true;
    *nameIsTaken = error == ERROR_ALREADY_EXISTS;
    *reason = std::system_category().message(static_cast<int>(error));
    return false;
}

/// Names that are no valid UTF-16, which any user can create, are skipped.
std::vector<std::string> namesIn(const std::string& folder) {
    std::vector<std::string> names;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((wide(folder) + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        char name[4 * MAX_PATH];
        const int length = WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, found.cFileName, -1, name, sizeof name,
                                               nullptr, nullptr);
        if (length > 0) names.emplace_back(name);
    } while (FindNextFileW(search, &found));
    FindClose(search);
    return names;
}

bool removeOwnFolder(const std::string& folder, const std::string& file) {
    const std::wstring name = wide(folder);
    // While the handle is open, the folder cannot be renamed or replaced.
    const HANDLE open = CreateFileW(name.c_str(), FILE_LIST_DIRECTORY | READ_CONTROL, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (open == INVALID_HANDLE_VALUE) return false;
    BY_HANDLE_FILE_INFORMATION about{};
    const bool own = GetFileInformationByHandle(open, &about) &&
                     (about.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 &&
                     (about.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0 && ownedByAdministrators(open);
    if (own) DeleteFileW((name + L'\\' + wide(file)).c_str());
    CloseHandle(open);
    return own && RemoveDirectoryW(name.c_str());
}

}  // namespace fieldcal
