#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace vq {

/// Agreement of a fit with stills that took no part in it: the median distance between their matches and the
/// predictions of the rotation, in pixels of the colour image.
struct HoldOutProof {
    double storedPx = 0;  ///< with the rotation with which the attempt started
    double newPx = 0;     ///< with the rotation fitted to the other stills
    int matches = 0;
    int stills = 0;

    /// Returns whether the new rotation is clearly the better one.
    bool isClear() const { return newPx < kClearShare * storedPx; }

    static constexpr double kClearShare = 0.8;
};

/// What may have changed in the module besides the rotation.
enum class ModelDeparture : std::int32_t {
    FocalLength,
    PrincipalPoint,
    Distortion,
    Translation,
    RollingShear,    ///< rows of the colour image are displaced in proportion to their height
    SecondRotation,  ///< the upper half of the image is rotated against the lower one
};
constexpr std::size_t kModelDepartureCount = 6;

/// Whether a rotation alone explains the matches.
struct ModelCheck {
    /// For each departure, the probability of residuals at least as indicative of it if only the rotation had changed.
    std::array<double, kModelDepartureCount> probability{1, 1, 1, 1, 1, 1};

    /// The departure with the smallest probability.
    ModelDeparture strongest() const;
    /// The departure that counts as real; none when a rotation explains the matches.
    std::optional<ModelDeparture> departure() const;
};

/// When an attempt takes no more pairs.
struct AccuracyGoal {
    std::array<double, 3> deviationDeg{0.005, 0.005, 0.01};  ///< about X, Y and Z
    int leastPairs = 4;  ///< on photographs, the error with three pairs is half as large again as with four
    int mostPairs = 8;   ///< after this number of pairs the solution is accepted as it is
};

/// The estimated accuracy of an attempt's solution.
struct SolutionQuality {
    std::array<double, 3> deviationDeg{};  ///< one standard deviation about X, Y and Z of the colour camera
    std::array<double, 3> samplingDeg{};   ///< the part of it that more pairs can reduce
    std::optional<HoldOutProof> proof;     ///< none with fewer than two stills that can be evaluated
    ModelCheck model;

    /// Returns whether the solution is accurate enough, so that no more pairs are needed.
    bool meets(const AccuracyGoal& goal) const;
};

}  // namespace vq
