#pragma once

#include "camera/Rotation.h"
#include "devices/BlockFields.h"
#include "devices/ModuleLink.h"

#include <QString>

#include <functional>
#include <optional>

namespace fieldcal {

/// The depth-to-colour rotations that the module tells; `platform` only where its calibration can be used.
struct StoredRotations {
    Rotation third{};
    std::optional<Rotation> platform;
};

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

/// Replaces the module's parameter block: keeps the one that is there in a file, writes, reads again, lets the module
/// load it, and reads again. What counts is what this program means to change: the fields that the companion library
/// writes, the three matrices, and the rotations that the module then tells. Other bytes belong to the module, which
/// may keep a checksum, a date or a counter in them; differences there are logged. Where anything that counts
/// disagrees, one attempt is made to put the previous block back. The sensor's thread; one use.
class CalibrationWriter {
public:
    CalibrationWriter(ModuleLink& link, KXThirdCamera* third, std::uint32_t serial, QString backupFolder);

    /// Both are true when the module keeps, and tells, what was to be written; what it holds already is not written. A
    /// failed call has been reported by the link, and so has a module that does not keep the block; anything else that
    /// stops the writing is logged.
    bool writeRotations(const StoredRotations& present, const StoredRotations& wanted);
    bool restore(const KXCalibRectParameters& block);
    /// Writes the present block once more, as it is: what a module that was never written does with a block.
    bool rewrite();

    const WriteBackReport& report() const { return report_; }

private:
    using Block = KXCalibRectParameters;
    using Bytes = BlockBytes;

    bool run(const std::function<bool(QString* why)>& makeWanted);
    bool prepare(const std::function<bool(QString* why)>& makeWanted);
    bool takeWhole(const Block& block, QString* why);
    bool turn(KXUpdateRotationFunction function, const Rotation& rotation, const float* rectifyColour);
    bool write();
    bool readAgain();
    void readQuietly();
    bool holdsWanted();
    bool tellsWanted();
    bool tells(const char* which, const std::optional<KXCalibExtrinsics>& told, const Rotation& wanted);
    void judge(const Block& found);
    void putBack();
    bool resume();
    bool notKept();
    bool failed();
    bool refuse(const QString& reason);

    ModuleLink& link_;
    KXThirdCamera* third_;
    const std::uint32_t serial_;
    const QString backupFolder_;
    WriteBackReport report_;
    Block previous_{};
    Block wanted_{};
    Bytes counting_;                            ///< the bytes of the block that are compared
    std::optional<StoredRotations> rotations_;  ///< what the module must tell afterwards, if that is known
    KXPrivate* access_ = nullptr;
    bool resting_ = false;
    bool alsoUnchanged_ = false;  ///< a block is also written when no byte changes
    bool differencesLogged_ = false;
};

}  // namespace fieldcal
