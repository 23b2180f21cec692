#pragma once

#include "camera/ColourCamera.h"
#include "camera/Rotation.h"

#include <functional>
#include <mutex>
#include <optional>

namespace fieldcal {

/// Three rotations for each colour camera: the factory's as read at the start, the one that the engine found, and the
/// one that the user accepted. Any thread.
class CalibrationRecords {
public:
    /// Forgets everything else.
    void setFactory(const Rotation& third, const Rotation& platform);
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
    PerColourCamera<Records> records_;
    mutable std::mutex mutex_;
};

}  // namespace fieldcal
