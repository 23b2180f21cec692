#pragma once

#include "devices/Sensor.h"
#include "devices/WriteBackReport.h"

#include <functional>

namespace fieldcal {

/// Replaces the module's parameter block: keeps the one that is there in a file, writes, reads again and compares. A
/// block that arrived wrong is followed by one attempt to put the previous one back. The sensor's thread; one use.
class FlashRewrite {
public:
    /// Makes the wanted block of the present one. False, and the reason in one line, when there is none.
    using Change = std::function<bool(const KXCalibRectParameters& present, KXCalibRectParameters* wanted, QString*)>;

    FlashRewrite(Sensor& sensor, QString backupFolder, WriteBackReport* report);

    /// True: every call succeeded and the flash holds the wanted block. A failed call has been reported by the sensor,
    /// and so has a flash that does not hold what was written; anything else that stops the rewriting is logged.
    bool run(const Change& change);

private:
    bool prepare(const Change& change);
    bool write();
    bool readAgain();
    void readQuietly();
    bool keeps();
    void putBackWhatArrivedWrong();
    bool resume();
    WriteBackReport::Flash compare(const KXCalibRectParameters& block) const;
    bool failed();
    bool refuse(const QString& reason);

    Sensor& sensor_;
    const QString backupFolder_;
    WriteBackReport& report_;
    KXCalibRectParameters previous_{};
    KXCalibRectParameters wanted_{};
    KXPrivate* access_ = nullptr;
    bool resting_ = false;
};

}  // namespace fieldcal
