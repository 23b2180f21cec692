#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace fieldcal {

/// The stereo baselines that earlier calibrations found, by the module's serial number. They stand in a text file of
/// the program's data folder, which is only a help: whatever cannot be read of it is not known, and a file that cannot
/// be written costs one log line.
class BaselineMemory {
public:
    /// Takes the program's data folder, which need not be there.
    explicit BaselineMemory(const QString& folder);

    /// Metres. None unless the file has exactly one line of the module, with a baseline that an infrared stereo module
    /// can have. A module without a serial number (0) is not known.
    std::optional<double> find(std::uint32_t serial) const;
    /// Replaces what is known about the module. A baseline that `find` would not give changes nothing.
    void remember(std::uint32_t serial, double metres) const;

private:
    QString folder_;
    QString path_;
};

}  // namespace fieldcal
