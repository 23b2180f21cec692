#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace fieldcal {

/// The start type that a service had before this program disabled it, kept in a file until it is put back, so that a
/// run after one that died can do it. Failures are logged.
class ServiceNote {
public:
    /// An empty name keeps nothing.
    explicit ServiceNote(QString file) : file_(std::move(file)) {}

    /// True: it is on the disk. A service whose note is not is left as it is; `why` is one line.
    bool keep(std::uint32_t startType, QString* why) const;
    /// None: there is no note, or not one of a start type with which a service can run.
    std::optional<std::uint32_t> kept() const;
    void drop() const;

private:
    const QString file_;
};

}  // namespace fieldcal
