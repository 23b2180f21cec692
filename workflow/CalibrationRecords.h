#pragma once

#include "camera/Rotation.h"

#include <array>
#include <functional>
#include <mutex>
#include <optional>

namespace fieldcal {

/// The cameras whose rotation is calibrated.
enum class ColourCamera { InModule = 0, OutOfModule = 1 };

/// Three rotations for each colour camera: the factory's as read at the start, the one that the engine found, and the
/// one that the user accepted. Any thread.
class CalibrationRecords {
public:
    /// Forgets everything else.
    void setFactory(const Rotation& inModule, const Rotation& outOfModule);
    /// Only if `valid` says so; nobody sees the records between the question and the entry.
    bool setEstimated(ColourCamera camera, const Rotation& rotation, const std::function<bool()>& valid);
    void forgetEstimate(ColourCamera camera);
    /// Counts only when there is an estimate of this camera; false without one.
    bool accept(ColourCamera camera, const Rotation& rotation);
    /// A restart: the camera's estimate, and what was accepted of it, are forgotten.
    void forget(ColourCamera camera);

    std::optional<Rotation> estimated(ColourCamera camera) const;
    std::optional<Rotation> accepted(ColourCamera camera) const;
    bool anyAccepted() const;
    /// What is written into the module: the accepted rotation, else the factory's.
    Rotation toStore(ColourCamera camera) const;

private:
    struct Records {
        Rotation factory{};
        std::optional<Rotation> estimated;
        std::optional<Rotation> accepted;
    };
    Records& of(ColourCamera camera) { return records_[static_cast<std::size_t>(camera)]; }
    const Records& of(ColourCamera camera) const { return records_[static_cast<std::size_t>(camera)]; }

    std::array<Records, 2> records_;
    mutable std::mutex mutex_;
};

}  // namespace fieldcal
