#pragma once

#include "camera/Rotation.h"
#include "devices/BlockChange.h"
#include "devices/BlockFields.h"
#include "devices/ModuleLink.h"

#include <QString>

#include <functional>
#include <optional>
#include <utility>

namespace fieldcal {

/// The depth-to-colour rotations that the module reports; `platform` only where its calibration is usable.
struct StoredRotations {
    Rotation third{};
    std::optional<Rotation> platform;
};

/// The result of a write-back, according to the flash as read back from the module.
struct WriteBackReport {
    enum class Flash {
        Untouched,  ///< nothing was sent to the flash
        Previous,   ///< the flash holds the previous block
        Written,    ///< the flash holds the block that was to be written
        Other,      ///< the flash holds neither of them; the backup holds the previous one
        Unknown     ///< the flash could not be read back
    };
    Flash flash = Flash::Untouched;
    QString reason;      ///< why it failed, one line; empty after success
    QString backupFile;  ///< the file that keeps the previous block; empty if none was written
};

/// One line for the user and for logs.
QString flashText(const WriteBackReport& report);

/// Called when the backup is on the disk, before the first call that reaches the flash; also when no byte has to
/// change. Returns false, with one line in `why`, when nothing may be written.
using BeforeWrite = std::function<bool(const BlockChange& change, const QString& backupFile, QString* why)>;

/// Called when the module runs on the new block and reports the wanted rotations. Returns false when its images
/// contradict them.
using AfterWrite = std::function<bool()>;

/// Replaces the module's parameter block: saves the present block to a file, writes the new one, reads it back, makes
/// the module reload it, and reads it back again. The comparison covers what this program means to change: the fields
/// that the companion library writes, the three matrices, and the rotations that the module then reports. All other
/// bytes belong to the module, which may keep a checksum, a date or a counter in them; differences there are only
/// logged. If anything in the comparison disagrees, or the images do, one attempt is made to restore the previous
/// block. Used on the sensor's thread, for one write.
class CalibrationWriter {
public:
    CalibrationWriter(ModuleLink& link, KXThirdCamera* third, std::uint32_t serial, QString backupFolder);

    void setBeforeWrite(BeforeWrite before) { beforeWrite_ = std::move(before); }
    /// Called by `writeRotations` after a write that succeeded in every other respect.
    void setAfterWrite(AfterWrite after) { afterWrite_ = std::move(after); }

    /// Both return true when the module keeps and reports the wanted values. Values that the flash already holds are
    /// not written again. A failed call, and a module that does not keep the block, have been reported by the link;
    /// anything else that prevents the write is logged.
    bool writeRotations(const StoredRotations& present, const StoredRotations& wanted);
    bool restore(const KXCalibRectParameters& block);
    /// Writes the present block back unchanged, to find out how a module treats a block before a calibration is
    /// changed.
    bool rewrite();

    const WriteBackReport& report() const { return report_; }

private:
    using Block = KXCalibRectParameters;
    using Bytes = BlockBytes;

    bool run(const std::function<bool(QString* why)>& makeWanted);
    bool prepare(const std::function<bool(QString* why)>& makeWanted);
    bool adoptBlock(const Block& block, QString* why);
    bool turn(KXUpdateRotationFunction function, const Rotation& rotation, const float* rectifyColour);
    bool announce();
    bool write();
    bool readAgain();
    void readQuietly();
    bool holdsWanted();
    bool reportsWanted();
    bool reports(const char* which, const std::optional<KXCalibExtrinsics>& reported, const Rotation& wanted,
                 const float* rectifyColour);
    bool imagesAgree();
    void judge(const Block& found);
    void putBack();
    bool resume();
    bool notKept();
    bool disagrees(const char* reason);
    bool failed();
    bool refuse(const QString& reason);

    ModuleLink& link_;
    KXThirdCamera* third_;
    const std::uint32_t serial_;
    const QString backupFolder_;
    BeforeWrite beforeWrite_;
    AfterWrite afterWrite_;
    WriteBackReport report_;
    Block previous_{};
    Block wanted_{};
    Bytes counting_;                            ///< the bytes of the block that are compared
    std::optional<StoredRotations> rotations_;  ///< the rotations that the module must report afterwards, if known
    KXPrivate* access_ = nullptr;
    bool resting_ = false;
    bool alsoUnchanged_ = false;  ///< a block is also written when no byte changes
    bool differencesLogged_ = false;
    bool disagrees_ = false;  ///< every call succeeded, but the module does not hold or show what was written
};

}  // namespace fieldcal
