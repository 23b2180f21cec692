#pragma once

#include "camera/ColourCamera.h"
#include "camera/Rotation.h"

#include <functional>
#include <mutex>
#include <optional>

namespace fieldcal {

/// Three rotations for each colour camera: the factory rotation read at the start, the rotation estimated by the
/// engine, and the rotation accepted by the user. Any thread.
class CalibrationRecords {
public:
    /// Sets the factory rotations and clears all others.
    void setFactory(const Rotation& third, const Rotation& platform);
    /// Stores the estimate only if `valid` returns true. The check and the store are one atomic step.
    bool setEstimated(ColourCamera camera, const Rotation& rotation, const std::function<bool()>& valid);
    void forgetEstimate(ColourCamera camera);
    /// Accepts the rotation only when there is an estimate for this camera; otherwise returns false.
    bool accept(ColourCamera camera, const Rotation& rotation);
    /// Clears the camera's estimated and accepted rotations, for a restart.
    void forget(ColourCamera camera);

    Rotation factory(ColourCamera camera) const;
    std::optional<Rotation> estimated(ColourCamera camera) const;
    std::optional<Rotation> accepted(ColourCamera camera) const;
    bool anyAccepted() const;
    /// The rotation to be written into the module: the accepted one, otherwise the factory's.
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
