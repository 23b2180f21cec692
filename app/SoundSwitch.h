#pragma once

#include <QString>

namespace fieldcal {

/// Whether the user wants to hear the cues, remembered in the program's data folder. On until it is switched off. Main
/// thread.
class SoundSwitch {
public:
    explicit SoundSwitch(const QString& dataFolder);

    bool on() const { return on_; }
    /// A choice that cannot be kept on the disk, which is logged, holds until the program ends.
    void set(bool on);

private:
    const QString offFile_;  ///< exists while the sounds are off
    bool on_;
};

}  // namespace fieldcal
