#pragma once

#include <QString>

#include <cstdint>
#include <memory>
#include <string>

namespace fieldcal {

/// The operating system's service control, as much of it as the camera service manager needs. Access values, states,
/// start types and error numbers are those of Windows. Every failing call leaves its number in `lastError`.
class ServiceControl {
public:
    using Handle = void*;

    virtual ~ServiceControl() = default;

    /// Handles are null on failure, and are closed by `close`.
    virtual Handle openManager(std::uint32_t access) = 0;
    virtual Handle openService(Handle manager, const char* name, std::uint32_t access) = 0;
    virtual void close(Handle handle) = 0;

    /// With `bufferBytes` 0 the call fails with error 122 and says in `neededBytes` how large the record is;
    /// with that size it succeeds and gives the start type.
    virtual bool queryConfig(Handle service, std::uint32_t bufferBytes, std::uint32_t* startType,
                             std::uint32_t* neededBytes) = 0;
    /// The value 0xFFFFFFFF leaves a field as it is.
    virtual bool changeConfig(Handle service, std::uint32_t serviceType, std::uint32_t startType,
                              std::uint32_t errorControl) = 0;
    virtual bool queryState(Handle service, std::uint32_t* currentState) = 0;
    virtual bool startService(Handle service) = 0;
    virtual bool controlService(Handle service, std::uint32_t controlCode) = 0;

    virtual std::uint32_t lastError() = 0;
    /// The system's text for an error number, UTF-8, without a line break at its end.
    virtual std::string errorText(std::uint32_t error) = 0;
    virtual void sleepMs(std::uint32_t milliseconds) = 0;
};

/// This system's service control. Never null.
std::unique_ptr<ServiceControl> systemServiceControl();

/// A service control in which no service is installed.
std::unique_ptr<ServiceControl> emptyServiceControl();

/// Where a service's start type is kept for the next run, whoever starts it on this machine. Empty where a service is
/// never disabled.
QString serviceNoteFile();

}  // namespace fieldcal
