#pragma once

#include <QString>

#include <cstdint>
#include <memory>
#include <optional>

namespace fieldcal {

/// Keeps the start type of a service from before this program disables the service until it is restored, so that the
/// next run can restore it after a crash. Failures are logged.
class ServiceNote {
public:
    virtual ~ServiceNote() = default;

    /// Returns true when the note is on the disk. Without it the service must not be changed; `why` is then one line.
    virtual bool keep(std::uint32_t startType, QString* why) = 0;
    /// Returns none when there is no note, or when it does not hold exactly a start type with which a service can run.
    virtual std::optional<std::uint32_t> kept() = 0;
    virtual void drop() = 0;
};

/// Returns whether a service with this start type can run: automatic (2) or on demand (3).
bool isRunnableStartType(std::uint32_t startType);

/// Returns a note in a file. Only for a service whose control requires no particular rights: whoever may write the file
/// decides the start type.
std::unique_ptr<ServiceNote> serviceNoteInFile(const QString& file);

/// Returns the note of this system for all users of the machine; only administrators may write it. Null where services
/// are never disabled.
std::unique_ptr<ServiceNote> systemServiceNote();

}  // namespace fieldcal
