#include "devices/ServiceControl.h"

#include <windows.h>

namespace fieldcal {
namespace {

static_assert(sizeof(SERVICE_STATUS_PROCESS) == 36, "the status record of the process-information level");

SC_HANDLE native(ServiceControl::Handle handle) {
    return static_cast<SC_HANDLE>(handle);
}

std::string utf8Of(const std::wstring& text) {
    const int size = static_cast<int>(text.size());
    const int bytes = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(bytes), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, result.data(), bytes, nullptr, nullptr);
    return result;
}

class WindowsServiceControl : public ServiceControl {
public:
    Handle openManager(std::uint32_t access) override { return OpenSCManagerA(nullptr, nullptr, access); }

    Handle openService(Handle manager, const char* name, std::uint32_t access) override {
        return OpenServiceA(native(manager), name, access);
    }

    void close(Handle handle) override { CloseServiceHandle(native(handle)); }

    bool queryConfig(Handle service, std::uint32_t bufferBytes, std::uint32_t* startType,
                     std::uint32_t* neededBytes) override;

    bool changeConfig(Handle service, std::uint32_t serviceType, std::uint32_t startType,
                      std::uint32_t errorControl) override {
        return ChangeServiceConfigA(native(service), serviceType, startType, errorControl, nullptr, nullptr, nullptr,
                                    nullptr, nullptr, nullptr, nullptr) != 0;
    }

    bool queryState(Handle service, std::uint32_t* currentState) override {
        SERVICE_STATUS_PROCESS status{};
        DWORD needed = 0;
        if (!QueryServiceStatusEx(native(service), SC_STATUS_PROCESS_INFO, reinterpret_cast<BYTE*>(&status),
                                  sizeof status, &needed)) {
            return false;
        }
        *currentState = status.dwCurrentState;
        return true;
    }

    bool startService(Handle service) override { return StartServiceA(native(service), 0, nullptr) != 0; }

    bool controlService(Handle service, std::uint32_t controlCode) override {
        SERVICE_STATUS status{};
        return ControlService(native(service), controlCode, &status) != 0;
    }

    std::uint32_t lastError() override { return GetLastError(); }
    std::string errorText(std::uint32_t error) override;
    void sleepMs(std::uint32_t milliseconds) override { Sleep(milliseconds); }
};

bool WindowsServiceControl::queryConfig(Handle service, std::uint32_t bufferBytes, std::uint32_t* startType,
                                        std::uint32_t* neededBytes) {
    auto* config = bufferBytes > 0 ? static_cast<QUERY_SERVICE_CONFIGA*>(LocalAlloc(LMEM_FIXED, bufferBytes)) : nullptr;
    if (bufferBytes > 0 && config == nullptr) return false;
    DWORD needed = 0;
    const bool read = QueryServiceConfigA(native(service), config, bufferBytes, &needed) != 0;
    const DWORD error = GetLastError();
    *neededBytes = needed;
    if (read && config != nullptr) *startType = config->dwStartType;
    if (config != nullptr) LocalFree(config);
    SetLastError(error);
    return read;
}

std::string WindowsServiceControl::errorText(std::uint32_t error) {
    std::wstring text(1024, L'\0');
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                                        text.data(), static_cast<DWORD>(text.size()), nullptr);
    text.resize(length);
    text.erase(text.find_last_not_of(L" \r\n") + 1);
    return utf8Of(text);
}

}  // namespace

std::unique_ptr<ServiceControl> systemServiceControl() {
    return std::make_unique<WindowsServiceControl>();
}

}  // namespace fieldcal
