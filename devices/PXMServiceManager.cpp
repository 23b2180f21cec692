#include "devices/PXMServiceManager.h"

#include <QtGlobal>

namespace fieldcal {
namespace {

constexpr const char* kServiceName = "DeepvanePXMQ550";
constexpr std::uint32_t kConnect = 1;
constexpr std::uint32_t kQueryAndChangeConfig = 3;
constexpr std::uint32_t kAllAccess = 0xF01FF;
constexpr std::uint32_t kNoChange = 0xFFFFFFFF;
constexpr std::uint32_t kDisabled = 4;
constexpr std::uint32_t kStopped = 1;  // the state, and the control code that leads to it
constexpr std::uint32_t kRunning = 4;
constexpr std::uint32_t kDependentServicesRunning = 1051;
constexpr std::uint32_t kInvalidServiceControl = 1052;
constexpr std::uint32_t kServiceDoesNotExist = 1060;
constexpr std::uint32_t kServiceCannotAcceptControl = 1061;
constexpr std::uint32_t kInsufficientBuffer = 122;
constexpr std::uint32_t kFailed = 0xFFFFFFFF;
constexpr std::uint32_t kWaitStepMs = 33;

int decimal(std::uint32_t value) {
    return static_cast<int>(value);
}

}  // namespace

class PXMServiceManager::OpenedService {
public:
    explicit OpenedService(ServiceControl& control) : control_(control) {}
    ~OpenedService() {
        if (service != nullptr) control_.close(service);
        if (manager != nullptr) control_.close(manager);
    }
    OpenedService(const OpenedService&) = delete;
    OpenedService& operator=(const OpenedService&) = delete;

    ServiceControl::Handle manager = nullptr;
    ServiceControl::Handle service = nullptr;

private:
    ServiceControl& control_;
};

PXMServiceManager& PXMServiceManager::instance() {
    static const std::unique_ptr<ServiceControl> control = systemServiceControl();
    static PXMServiceManager manager(*control, systemServiceNote());
    return manager;
}

PXMServiceManager& PXMServiceManager::withoutService() {
    static const std::unique_ptr<ServiceControl> control = emptyServiceControl();
    static PXMServiceManager manager(*control);
    return manager;
}

PXMServiceManager::~PXMServiceManager() {
    if (!shutDown || restored) return;
    if (!restorePXMService()) qCritical("restorePXMService failed in destructor.");
}

bool PXMServiceManager::shutdownPXMService() {
    if (shutDown) {
        qInfo("Attempting to call shutdownPXMService but it was already shutdown.");
        return true;
    }
    _previousServiceStartType = readStartType();
    if (_previousServiceStartType == kFailed) return false;
    qInfo("PXMServiceManager::_previousServiceStartType = %i in shutdown", decimal(_previousServiceStartType));
    _previousServiceStatus = readState();
    if (_previousServiceStatus == kFailed) return false;
    qInfo("PXMServiceManager::_previousServiceStatus = %i in shutdown", decimal(_previousServiceStatus));
    bool noted = false;
    if (!serviceMissing && !rememberStartType(&noted)) return false;
    if (!changeStartType(kDisabled)) {
        // Nothing was disabled. The note is removed so that a later run does not undo what another program disabled
        // meanwhile.
        if (noted) dropNote();
        return false;
    }
    if (!driveTo(kStopped)) {
        // The service must not stay disabled when it goes on running, nor when the user quits during the wait.
        if (stopRefused_ || stopRequested()) undoShutdown();
        return false;
    }
    shutDown = !serviceMissing;
    return true;
}

bool PXMServiceManager::restorePXMService() {
    if (restored) {
        qInfo("Attempting to call restorePXMService but it was already restored.");
        return true;
    }
    if (serviceMissing) {
        qInfo("Attempting to call restorePXMService, but the service does not exist.");
        return true;
    }
    qInfo("PXMServiceManager::_previousServiceStartType = %i in restore", decimal(_previousServiceStartType));
    qInfo("PXMServiceManager::_previousServiceStatus = %i in restore", decimal(_previousServiceStatus));
    if (!shutDown) return true;
    if (!restoreStartType()) return false;
    qInfo("Changed the service start type.");
    restored = true;
    qInfo("PXMServiceManager::ServiceStartType restored to: %i", decimal(_previousServiceStartType));
    return true;
}

bool PXMServiceManager::rememberStartType(bool* noted) {
    if (_previousServiceStartType != kDisabled) {
        *noted = note_ == nullptr || note_->keep(_previousServiceStartType, &lastError_);
        if (!*noted) dropNote();
        return *noted;
    }
    const std::optional<std::uint32_t> kept = note_ != nullptr ? note_->kept() : std::nullopt;
    if (kept) {
        qInfo("An earlier run left the service disabled; its start type was %i", decimal(*kept));
        _previousServiceStartType = *kept;
    }
    return true;
}

bool PXMServiceManager::restoreStartType() {
    if (!changeStartType(_previousServiceStartType)) return false;
    dropNote();
    return true;
}

/// Restores the start type after a failure, whose description is kept.
void PXMServiceManager::undoShutdown() {
    const QString failure = lastError_;
    restoreStartType();
    lastError_ = failure;
}

void PXMServiceManager::dropNote() {
    if (note_ != nullptr) note_->drop();
}

PXMServiceManager::Opened PXMServiceManager::openService(OpenedService* opened, std::uint32_t access,
                                                         const char* nameInError) {
    opened->manager = control_.openManager(kConnect);
    if (opened->manager == nullptr) {
        const std::uint32_t error = control_.lastError();
        qCritical("OpenSCManager failed (%d)", decimal(error));
        setLastError(error, "OpenSCManager");
        return Opened::Failed;
    }
    opened->service = control_.openService(opened->manager, kServiceName, access);
    if (opened->service != nullptr) return Opened::Yes;
    const std::uint32_t error = control_.lastError();
    qCritical("OpenService failed (%d)", decimal(error));
    if (error == kServiceDoesNotExist) {
        serviceMissing = true;
        return Opened::Missing;
    }
    setLastError(error, nameInError);
    return Opened::Failed;
}

std::uint32_t PXMServiceManager::readStartType() {
    OpenedService opened(control_);
    // Failure to open the service here is reported under the manager's name.
    const Opened result = openService(&opened, kQueryAndChangeConfig, "OpenSCManager");
    if (result != Opened::Yes) return result == Opened::Missing ? 0 : kFailed;

    std::uint32_t startType = 0;
    std::uint32_t bytes = 0;
    std::uint32_t ignored = 0;
    bool read = control_.queryConfig(opened.service, 0, &startType, &bytes);
    if (!read && control_.lastError() == kInsufficientBuffer) {
        read = control_.queryConfig(opened.service, bytes, &startType, &ignored);
    }
    if (read) return startType;
    const std::uint32_t error = control_.lastError();
    qCritical("QueryServiceConfig failed (%d) extra: %d", decimal(error), decimal(bytes));
    setLastError(error, "QueryServiceConfig");
    return kFailed;
}

std::uint32_t PXMServiceManager::readState() {
    OpenedService opened(control_);
    const Opened result = openService(&opened, kAllAccess, "OpenService");
    if (result != Opened::Yes) return result == Opened::Missing ? 0 : kFailed;
    std::uint32_t state = 0;
    return queryState(opened, &state) ? state : kFailed;
}

bool PXMServiceManager::changeStartType(std::uint32_t startType) {
    OpenedService opened(control_);
    const Opened result = openService(&opened, kQueryAndChangeConfig, "OpenService");
    if (result != Opened::Yes) return result == Opened::Missing;
    if (control_.changeConfig(opened.service, kNoChange, startType, kNoChange)) return true;
    const std::uint32_t error = control_.lastError();
    qCritical("ChangeServiceConfig failed (%d)", decimal(error));
    setLastError(error, "ChangeServiceConfig");
    return false;
}

bool PXMServiceManager::driveTo(std::uint32_t wantedState) {
    OpenedService opened(control_);
    const Opened result = openService(&opened, kAllAccess, "OpenService");
    if (result != Opened::Yes) return result == Opened::Missing;
    std::uint32_t state = 0;
    if (!queryState(opened, &state)) return false;
    if (state == wantedState) return true;
    return requestState(opened, state, wantedState) && waitForState(opened, wantedState);
}

bool PXMServiceManager::queryState(const OpenedService& opened, std::uint32_t* state) {
    if (control_.queryState(opened.service, state)) return true;
    const std::uint32_t error = control_.lastError();
    qCritical("QueryServiceStatusEx failed (%d)", decimal(error));
    setLastError(error, "QueryServiceStatusEx");
    return false;
}

bool PXMServiceManager::requestState(const OpenedService& opened, std::uint32_t currentState,
                                     std::uint32_t wantedState) {
    const bool start = currentState == kStopped && wantedState == kRunning;
    const bool accepted =
        start ? control_.startService(opened.service) : control_.controlService(opened.service, wantedState);
    if (accepted) return true;
    const std::uint32_t error = control_.lastError();
    if (start) {
        qCritical("StartService failed (%d)", decimal(error));
    } else {
        qCritical("ControlService failed (%d)", decimal(error));
    }
    setLastError(error, "ControlService");
    stopRefused_ = !start && (error == kDependentServicesRunning || error == kInvalidServiceControl ||
                              error == kServiceCannotAcceptControl);
    return false;
}

bool PXMServiceManager::waitForState(const OpenedService& opened, std::uint32_t wantedState) {
    std::uint32_t state = 0;
    if (!queryState(opened, &state)) return false;
    while (state != wantedState) {
        if (stopRequested()) return false;
        control_.sleepMs(kWaitStepMs);
        if (!queryState(opened, &state)) return false;
        qInfo("new_state = %d, old_state = %d", decimal(wantedState), decimal(state));
    }
    return true;
}

void PXMServiceManager::setLastError(std::uint32_t error, const char* call) {
    const QString form = QStringLiteral("%1: (%2) ==> %3");
    lastError_ =
        form.arg(QString::number(error), QString::fromUtf8(call), QString::fromStdString(control_.errorText(error)));
}

}  // namespace fieldcal
