#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace fieldcal {

/// The part of the operating system's service control that the camera service manager needs. Access values, states,
/// start types and error numbers are those of Windows. Every failing call leaves its error number in `lastError`.
class ServiceControl {
public:
    using Handle = void*;

    virtual ~ServiceControl() = default;

    /// Handles are null on failure, and are closed with `close`.
    virtual Handle openManager(std::uint32_t access) = 0;
    virtual Handle openService(Handle manager, const char* name, std::uint32_t access) = 0;
    virtual void close(Handle handle) = 0;

    /// With `bufferBytes` 0 the call fails with error 122 and sets `neededBytes` to the size of the record; with that
    /// size it succeeds and returns the start type.
    virtual bool queryConfig(Handle service, std::uint32_t bufferBytes, std::uint32_t* startType,
                             std::uint32_t* neededBytes) = 0;
    /// The value 0xFFFFFFFF leaves a field unchanged.
    virtual bool changeConfig(Handle service, std::uint32_t serviceType, std::uint32_t startType,
                              std::uint32_t errorControl) = 0;
    virtual bool queryState(Handle service, std::uint32_t* currentState) = 0;
    virtual bool startService(Handle service) = 0;
    virtual bool controlService(Handle service, std::uint32_t controlCode) = 0;

    virtual std::uint32_t lastError() = 0;
    /// The system's text for an error number, UTF-8, without a trailing line break.
    virtual std::string errorText(std::uint32_t error) = 0;
    virtual void sleepMs(std::uint32_t milliseconds) = 0;
};

/// Returns this system's service control, never null.
std::unique_ptr<ServiceControl> systemServiceControl();

/// Returns a service control in which no service is installed.
std::unique_ptr<ServiceControl> emptyServiceControl();

}  // namespace fieldcal
