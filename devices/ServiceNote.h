#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace fieldcal {

/// Keeps the start type of a service in a file from before this program disables the service until it is restored, so
/// that the next run can restore it after a crash. Failures are logged.
class ServiceNote {
public:
    /// With an empty name nothing is kept.
    explicit ServiceNote(QString file) : file_(std::move(file)) {}

    /// Returns true when the note is on the disk. Without it the service must not be changed; `why` is then one line.
    bool keep(std::uint32_t startType, QString* why) const;
    /// Returns none when there is no note, or when it does not hold a start type with which a service can run.
    std::optional<std::uint32_t> kept() const;
    void drop() const;

private:
    const QString file_;
};

}  // namespace fieldcal
