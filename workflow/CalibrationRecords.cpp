#include "workflow/CalibrationRecords.h"

namespace fieldcal {

void CalibrationRecords::setFactory(const Rotation& inModule, const Rotation& outOfModule) {
    const std::lock_guard lock(mutex_);
    records_ = {Records{inModule, {}, {}}, Records{outOfModule, {}, {}}};
}

bool CalibrationRecords::setEstimated(ColourCamera camera, const Rotation& rotation,
                                      const std::function<bool()>& valid) {
    const std::lock_guard lock(mutex_);
    if (!valid()) return false;
    of(camera).estimated = rotation;
    return true;
}

void CalibrationRecords::forgetEstimate(ColourCamera camera) {
    const std::lock_guard lock(mutex_);
    of(camera).estimated.reset();
}

bool CalibrationRecords::accept(ColourCamera camera, const Rotation& rotation) {
    const std::lock_guard lock(mutex_);
    if (!of(camera).estimated) return false;
    of(camera).accepted = rotation;
    return true;
}

void CalibrationRecords::forget(ColourCamera camera) {
    const std::lock_guard lock(mutex_);
    of(camera).estimated.reset();
    of(camera).accepted.reset();
}

std::optional<Rotation> CalibrationRecords::estimated(ColourCamera camera) const {
    const std::lock_guard lock(mutex_);
    return of(camera).estimated;
}

std::optional<Rotation> CalibrationRecords::accepted(ColourCamera camera) const {
    const std::lock_guard lock(mutex_);
    return of(camera).accepted;
}

bool CalibrationRecords::anyAccepted() const {
    const std::lock_guard lock(mutex_);
    return records_[0].accepted || records_[1].accepted;
}

Rotation CalibrationRecords::toStore(ColourCamera camera) const {
    const std::lock_guard lock(mutex_);
    return of(camera).accepted.value_or(of(camera).factory);
}

}  // namespace fieldcal
