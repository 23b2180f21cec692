#pragma once

#include "devices/FrameAcquisition.h"
#include "engine/CalibratorInterface.h"
#include "workflow/LightGate.h"

#include <QString>

#include <cstddef>
#include <vector>

namespace fieldcal {

/// Collects stills of one colour camera as the application takes its photos: where there is light and the hand rests.
/// One thread.
class StillCapture {
public:
    explicit StillCapture(bool platformCamera, std::size_t wanted) : platformCamera_(platformCamera), wanted_(wanted) {}

    /// Takes what a grab brought. Returns whether a still was taken.
    bool take(const FrameRecords& frames);

    bool isComplete() const { return stills_.size() >= wanted_; }
    /// What the person at the module is to do.
    QString advice() const;
    const std::vector<vq::SelectedImages>& stills() const { return stills_; }

private:
    bool showsSomethingNew(const vq::SelectedImages& still) const;

    const bool platformCamera_;
    const std::size_t wanted_;
    LightGate light_;
    bool lit_ = false;
    vq::FrameSelector selector_;
    std::vector<vq::SelectedImages> stills_;
};

}  // namespace fieldcal
