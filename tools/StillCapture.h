#pragma once

#include "devices/FrameAcquisition.h"
#include "engine/CalibratorInterface.h"
#include "workflow/LightGate.h"

#include <QString>

#include <cstddef>
#include <vector>

namespace fieldcal {

/// Collects stills of one colour camera by the rules of the application's photos: with enough light, and while the
/// device is held still. One thread.
class StillCapture {
public:
    explicit StillCapture(bool platformCamera, std::size_t wanted) : platformCamera_(platformCamera), wanted_(wanted) {}

    /// Processes the frames of one grab. Returns whether a still was taken.
    bool take(const FrameRecords& frames);

    bool isComplete() const { return stills_.size() >= wanted_; }
    /// Returns an instruction for the operator.
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
