#pragma once

#include "report/ServiceReport.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace fieldcal {

/// Adds one line for each camera of a report to `history.csv` in the program's data folder; the first line of the file
/// names the columns. Either all lines are added or none. Returns false after logging the reason.
bool appendHistory(const QString& folder, const ServiceReport& report);

/// One line of the history.
struct HistoryEntry {
    struct Proof {
        double storedPx = 0, newPx = 0;
    };
    QDateTime time;
    std::uint32_t serial = 0;
    ColourCamera camera = ColourCamera::Third;
    double turnDeg = 0;  ///< between the rotations before and after
    std::optional<Proof> proof;
    bool stored = false;
};

/// Returns up to `count` lines, the newest first. Lines that cannot be read are skipped, and of a long history only the
/// end is read.
std::vector<HistoryEntry> newestOfHistory(const QString& folder, std::size_t count);

/// Returns when a calibration of the module was last stored, according to the history; invalid when there is none, or
/// when its date cannot be right, because the computer's clock was wrong then or is now. A line that cannot be read is
/// skipped.
QDateTime lastStored(const QString& folder, std::uint32_t serial);

}  // namespace fieldcal
