#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

namespace fieldcal {

/// One to four numbers, compared numerically from the left; missing ones are 0.
struct Version {
    std::array<std::uint16_t, 4> parts{};

    /// Parses "1.2.10": numbers from 0 to 65535 without leading zeros, separated by dots. Returns none for anything
    /// else.
    static std::optional<Version> parse(const QString& text);
    /// Returns at least two parts, and no trailing zeros beyond them.
    QString text() const;

    bool operator<(const Version& other) const { return parts < other.parts; }
    bool operator==(const Version& other) const { return parts == other.parts; }
};

}  // namespace fieldcal
