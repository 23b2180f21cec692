#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

namespace fieldcal {

/// One to four numbers, compared as numbers from the left; what is not there is 0.
struct Version {
    std::array<std::uint16_t, 4> parts{};

    /// "1.2.10": numbers from 0 to 65535 without leading zeros, dots between them. Anything else is none.
    static std::optional<Version> parse(const QString& text);
    /// At least two parts, and no more than are needed.
    QString text() const;

    bool operator<(const Version& other) const { return parts < other.parts; }
    bool operator==(const Version& other) const { return parts == other.parts; }
};

}  // namespace fieldcal
