#include "workflow/CalibrationRecords.h"

namespace fieldcal {

void CalibrationRecords::setFactory(const Rotation& third, const Rotation& platform) {
    const std::lock_guard lock(mutex_);
    records_ = {};
    records_[ColourCamera::Third].factory = third;
    records_[ColourCamera::Platform].factory = platform;
}

bool CalibrationRecords::setEstimated(ColourCamera camera, const Rotation& rotation,
                                      const std::function<bool()>& valid) {
    const std::lock_guard lock(mutex_);
    if (!valid()) return false;
    records_[camera].estimated = rotation;
    return true;
}

void CalibrationRecords::forgetEstimate(ColourCamera camera) {
    const std::lock_guard lock(mutex_);
    records_[camera].estimated.reset();
}

bool CalibrationRecords::accept(ColourCamera camera, const Rotation& rotation) {
    const std::lock_guard lock(mutex_);
    if (!records_[camera].estimated) return false;
    records_[camera].accepted = rotation;
    return true;
}

void CalibrationRecords::forget(ColourCamera camera) {
    const std::lock_guard lock(mutex_);
    records_[camera].estimated.reset();
    records_[camera].accepted.reset();
}

Rotation CalibrationRecords::factory(ColourCamera camera) const {
    const std::lock_guard lock(mutex_);
    return records_[camera].factory;
}

std::optional<Rotation> CalibrationRecords::estimated(ColourCamera camera) const {
    const std::lock_guard lock(mutex_);
    return records_[camera].estimated;
}

std::optional<Rotation> CalibrationRecords::accepted(ColourCamera camera) const {
    const std::lock_guard lock(mutex_);
    return records_[camera].accepted;
}

bool CalibrationRecords::anyAccepted() const {
    const std::lock_guard lock(mutex_);
    return records_[ColourCamera::Third].accepted || records_[ColourCamera::Platform].accepted;
}

Rotation CalibrationRecords::toStore(ColourCamera camera) const {
    const std::lock_guard lock(mutex_);
    return records_[camera].accepted.value_or(records_[camera].factory);
}

}  // namespace fieldcal
