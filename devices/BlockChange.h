#pragma once

#include "kxapi/KXAPI.h"

#include <QByteArray>

#include <bitset>

namespace fieldcal {

/// A set of byte positions in a parameter block.
using BlockBytes = std::bitset<sizeof(KXCalibRectParameters)>;

/// Digests of a parameter block before and after a write. They identify the block that a module holds after the writing
/// program was interrupted. Only some bytes of the block are compared.
struct BlockChange {
    enum class Held { Previous, Wanted, Neither };

    QByteArray counting;  ///< one bit for each byte of the block, lowest bit first: the bytes that are compared
    QByteArray previous;  ///< SHA-256 of the compared bytes before the write
    QByteArray wanted;    ///< SHA-256 of the compared bytes after a successful write

    /// `counting`: the bytes to compare.
    static BlockChange between(const KXCalibRectParameters& previous, const KXCalibRectParameters& wanted,
                               const BlockBytes& counting);
    /// Returns whether all three arrays have their proper length, which is not so after reading a damaged file.
    bool isWhole() const;
    /// Returns which of the two a module's block equals.
    Held heldIn(const KXCalibRectParameters& block) const;
};

}  // namespace fieldcal
