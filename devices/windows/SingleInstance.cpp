#include "devices/SingleInstance.h"

#include <windows.h>

namespace fieldcal {

struct SingleInstance::Handle {
    HANDLE mutex = nullptr;
    bool first = false;
};

SingleInstance::SingleInstance() : handle_(std::make_unique<Handle>()) {
    handle_->mutex = CreateMutexA(nullptr, FALSE, "Global\\{2d03313b-9681-45c0-be9a-547016098abc}");
    const DWORD error = GetLastError();
    // Another user's copy denies access to its mutex.
    handle_->first = error != ERROR_ALREADY_EXISTS && (handle_->mutex != nullptr || error != ERROR_ACCESS_DENIED);
}

SingleInstance::~SingleInstance() {
    if (handle_->mutex != nullptr) CloseHandle(handle_->mutex);
}

bool SingleInstance::isFirst() const {
    return handle_->first;
}

}  // namespace fieldcal
