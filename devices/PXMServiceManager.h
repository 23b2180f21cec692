#pragma once

#include "devices/ServiceControl.h"
#include "devices/ServiceNote.h"

#include <QString>

#include <atomic>
#include <cstdint>
#include <memory>
#include <utility>

namespace fieldcal {

/// Stops and disables the vendor's service, which would hold the depth camera, and restores its start type afterwards.
/// Restoring does not start the service again: it starts at the next boot or start request. If a run ended without
/// restoring the start type, the next run restores it at its end. One thread at a time.
class PXMServiceManager {
public:
    /// The instance of the process, which uses this system's service control.
    static PXMServiceManager& instance();
    /// An instance that finds no service and keeps no note, for programs with the simulated libraries.
    static PXMServiceManager& withoutService();

    /// `note` keeps the start type while the service is disabled; null: nothing is kept.
    explicit PXMServiceManager(ServiceControl& control, std::unique_ptr<ServiceNote> note = nullptr)
        : control_(control), note_(std::move(note)) {}
    /// Restores the start type unless that has been done.
    ~PXMServiceManager();
    PXMServiceManager(const PXMServiceManager&) = delete;
    PXMServiceManager& operator=(const PXMServiceManager&) = delete;

    /// A service that is not installed counts as shut down. Returns false after a failure, described by `lastError`, or
    /// when the wait was stopped.
    bool shutdownPXMService();
    bool restorePXMService();

    /// Stops (1) or starts (4) the service and waits until it has that state.
    bool driveTo(std::uint32_t wantedState);

    /// "number: (call) ==> text" of the last failure, or why the start type could not be kept; empty until something
    /// fails.
    QString lastError() const { return lastError_; }

    /// The wait for the service also ends, as a failure, once `*stop` is true. Null disables this.
    void setStopFlag(const std::atomic<bool>* stop) { stop_ = stop; }

private:
    class OpenedService;
    enum class Opened { Yes, Missing, Failed };

    Opened openService(OpenedService* opened, std::uint32_t access, const char* nameInError);
    std::uint32_t readStartType();
    /// Returns false when the note is not on the disk. `noted` receives whether this call wrote it.
    bool rememberStartType(bool* noted);
    bool restoreStartType();
    void undoShutdown();
    void dropNote();
    std::uint32_t readState();
    bool changeStartType(std::uint32_t startType);
    bool queryState(const OpenedService& opened, std::uint32_t* state);
    bool requestState(const OpenedService& opened, std::uint32_t currentState, std::uint32_t wantedState);
    bool waitForState(const OpenedService& opened, std::uint32_t wantedState);
    bool stopRequested() const { return stop_ != nullptr && *stop_; }
    void setLastError(std::uint32_t error, const char* call);

    ServiceControl& control_;
    const std::unique_ptr<ServiceNote> note_;
    const std::atomic<bool>* stop_ = nullptr;
    bool shutDown = false;
    bool restored = false;
    bool serviceMissing = false;
    bool stopRefused_ = false;  ///< the service goes on running
    std::uint32_t _previousServiceStatus = 0;
    std::uint32_t _previousServiceStartType = 0;
    QString lastError_;
};

}  // namespace fieldcal
