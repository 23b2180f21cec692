// A service without any function, which can be started and stopped.
#include <windows.h>

namespace {

SERVICE_STATUS_HANDLE theService = nullptr;
HANDLE theEnd = nullptr;

void report(DWORD state) {
    SERVICE_STATUS status{};
    status.dwServiceType = SERVICE_WIN32_OWN_PROCESS;
    status.dwCurrentState = state;
    status.dwControlsAccepted = state == SERVICE_RUNNING ? SERVICE_ACCEPT_STOP : 0;
    status.dwWaitHint = 1000;
    SetServiceStatus(theService, &status);
}

DWORD WINAPI control(DWORD code, DWORD, void*, void*) {
    if (code != SERVICE_CONTROL_STOP)
        return code == SERVICE_CONTROL_INTERROGATE ? NO_ERROR : ERROR_CALL_NOT_IMPLEMENTED;
    report(SERVICE_STOP_PENDING);
    SetEvent(theEnd);
    return NO_ERROR;
}

void WINAPI serve(DWORD, LPSTR*) {
    theEnd = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    theService = RegisterServiceCtrlHandlerExA("DeepvanePXMQ550", control, nullptr);
    report(SERVICE_RUNNING);
    WaitForSingleObject(theEnd, INFINITE);
    Sleep(200);  // long enough that a caller has to wait for it
    report(SERVICE_STOPPED);
}

}  // namespace

int main() {
    char name[] = "DeepvanePXMQ550";
    const SERVICE_TABLE_ENTRYA services[] = {{name, serve}, {nullptr, nullptr}};
    return StartServiceCtrlDispatcherA(services) != 0 ? 0 : 1;
}
