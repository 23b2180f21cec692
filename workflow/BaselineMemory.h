#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace fieldcal {

/// Stores the stereo baselines found by earlier calibrations, by the module's serial number, in a text file in the
/// program's data folder. The file is optional: unreadable entries count as unknown, and a failure to write is logged
/// in one line.
class BaselineMemory {
public:
    /// `folder`: the program's data folder, which need not exist.
    explicit BaselineMemory(const QString& folder);

    /// Returns the baseline in metres. None unless the file has exactly one line for the module with a baseline that is
    /// plausible for an infrared stereo module. A module without a serial number (0) is never known.
    std::optional<double> find(std::uint32_t serial) const;
    /// Replaces the baseline of the module. An implausible baseline is ignored.
    void remember(std::uint32_t serial, double metres) const;

private:
    QString folder_;
    QString path_;
};

}  // namespace fieldcal
