#pragma once

#include <QString>

namespace fieldcal {

/// What a write-back did to the module's flash, by what the module itself says when it is read again.
struct WriteBackReport {
    enum class Flash {
        Untouched,  ///< nothing was sent to it
        Previous,   ///< the block that was there before
        Written,    ///< the block that was to be written
        Other,      ///< neither of them; the backup holds the previous one
        Unknown     ///< it could not be read again
    };
    Flash flash = Flash::Untouched;
    QString reason;      ///< why it failed, one line; empty after success
    QString backupFile;  ///< where the previous block was kept; empty when it never came to that
};

/// One line for people and logs.
QString flashText(const WriteBackReport& report);

}  // namespace fieldcal
