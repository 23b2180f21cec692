#pragma once

#include "kxapi/KXAPI.h"

#include <QByteArray>

#include <bitset>

namespace fieldcal {

using BlockBytes = std::bitset<sizeof(KXCalibRectParameters)>;

/// By what a parameter block is known again after the program that was to replace it has died: digests of the bytes
/// that count, before and after.
struct BlockChange {
    enum class Held { Previous, Wanted, Neither };

    QByteArray counting;  ///< one bit for each byte of the block, the lowest first
    QByteArray previous;  ///< SHA-256 of the bytes that count
    QByteArray wanted;

    static BlockChange between(const KXCalibRectParameters& previous, const KXCalibRectParameters& wanted,
                               const BlockBytes& counting);
    /// Whether it is one, and not what a damaged file has made of it.
    bool isWhole() const;
    /// Which of both a module holds.
    Held heldIn(const KXCalibRectParameters& block) const;
};

}  // namespace fieldcal
