#include "devices/SingleInstance.h"

#include <string>

// The second header requires the first one.
// clang-format off
#include <windows.h>
#include <tlhelp32.h>
// clang-format on

namespace fieldcal {
namespace {

constexpr const char* kName = "Global\\{2d03313b-9681-45c0-be9a-547016098abc}";
constexpr DWORD kLongestPath = 32768;
constexpr DWORD kSecondLookMs = 300;

std::wstring ownFolder() {
    std::wstring path(kLongestPath, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), kLongestPath));
    return path.substr(0, path.find_last_of(L'\\') + 1);
}

/// Returns whether another process has the name of a program in this program's folder.
bool copyRuns() {
    const std::wstring folder = ownFolder();
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    bool found = false;
    for (bool more = Process32FirstW(snapshot, &entry); more && !found; more = Process32NextW(snapshot, &entry)) {
        found = entry.th32ProcessID != GetCurrentProcessId() &&
                GetFileAttributesW((folder + entry.szExeFile).c_str()) != INVALID_FILE_ATTRIBUTES;
    }
    CloseHandle(snapshot);
    return found;
}

}  // namespace

struct SingleInstance::Handle {
    HANDLE mutex = nullptr;
    bool first = false;
    bool takenByOthers = false;

    void take() {
        release();
        mutex = CreateMutexA(nullptr, FALSE, kName);
        const DWORD error = GetLastError();
        // Another user's copy denies access to its mutex; the last error means that something else has the name.
        first = error != ERROR_ALREADY_EXISTS &&
                (mutex != nullptr || (error != ERROR_ACCESS_DENIED && error != ERROR_INVALID_HANDLE));
        takenByOthers = !first && !copyRuns();
    }
    void release() {
        if (mutex != nullptr) CloseHandle(mutex);
        mutex = nullptr;
    }
};

SingleInstance::SingleInstance() : handle_(std::make_unique<Handle>()) {
    handle_->take();
    if (!handle_->takenByOthers) return;
    // A copy may have ended between the two looks.
    Sleep(kSecondLookMs);
    handle_->take();
}

SingleInstance::~SingleInstance() {
    handle_->release();
}

bool SingleInstance::isFirst() const {
    return handle_->first;
}

bool SingleInstance::isTakenByOthers() const {
    return handle_->takenByOthers;
}

}  // namespace fieldcal
