#pragma once

#include "devices/ServiceControl.h"
#include "devices/ServiceNote.h"

#include <QString>

#include <atomic>
#include <cstdint>
#include <utility>

namespace fieldcal {

/// Stops and disables the vendor's service that holds the depth camera while it runs, and puts its start type back
/// afterwards. Restoring does not start the service again: it comes back at the next boot or start request. What a run
/// that died left disabled, the next one puts back at its end. One thread at a time.
class PXMServiceManager {
public:
    /// The process's own manager, over this system's service control; over an empty one, without a note, in a program
    /// that uses the simulated libraries. For the composition root, once that is decided.
    static PXMServiceManager& instance();

    /// `noteFile` keeps the start type while the service is disabled; without a name nothing is kept.
    explicit PXMServiceManager(ServiceControl& control, QString noteFile = {})
        : control_(control), note_(std::move(noteFile)) {}
    /// Restores the start type if nobody has.
    ~PXMServiceManager();
    PXMServiceManager(const PXMServiceManager&) = delete;
    PXMServiceManager& operator=(const PXMServiceManager&) = delete;

    /// A service that is not installed counts as shut down. False: `lastError` says why, or the wait was stopped.
    bool shutdownPXMService();
    bool restorePXMService();

    /// Stops (1) or starts (4) the service and waits until it has that state.
    bool driveTo(std::uint32_t wantedState);

    /// "number: (call) ==> text" of the last failure, or which file could not be kept; empty until something fails.
    QString lastError() const { return lastError_; }

    /// The wait for the service also ends, with failure, once `*stop` is true. Null: nothing stops it.
    void setStopFlag(const std::atomic<bool>* stop) { stop_ = stop; }

private:
    class OpenedService;
    enum class Opened { Yes, Missing, Failed };

    Opened openService(OpenedService* opened, std::uint32_t access, const char* nameInError);
    std::uint32_t readStartType();
    /// False: it is on no disk. `noted`: the note is this call's own.
    bool rememberStartType(bool* noted);
    bool restoreStartType();
    std::uint32_t readState();
    bool changeStartType(std::uint32_t startType);
    bool queryState(const OpenedService& opened, std::uint32_t* state);
    bool requestState(const OpenedService& opened, std::uint32_t currentState, std::uint32_t wantedState);
    bool waitForState(const OpenedService& opened, std::uint32_t wantedState);
    bool stopRequested() const { return stop_ != nullptr && *stop_; }
    void setLastError(std::uint32_t error, const char* call);

    ServiceControl& control_;
    const ServiceNote note_;
    const std::atomic<bool>* stop_ = nullptr;
    bool shutDown = false;
    bool restored = false;
    bool serviceMissing = false;
    std::uint32_t _previousServiceStatus = 0;
    std::uint32_t _previousServiceStartType = 0;
    QString lastError_;
};

}  // namespace fieldcal
