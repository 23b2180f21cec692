#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace vq {

/// How well stills that did not take part in a fit agree with its rotation: the median distance between their matches
/// and where the rotation puts them, pixels of the colour image.
struct HoldOutProof {
    double storedPx = 0;  ///< with the rotation that the attempt started from
    double newPx = 0;     ///< with the rotation fitted to the other stills
    int matches = 0;
    int stills = 0;

    /// Whether the new rotation is clearly the better one.
    bool isClear() const { return newPx < kClearShare * storedPx; }

    static constexpr double kClearShare = 0.8;
};

/// What may have changed besides the rotation.
enum class ModelDeparture : std::int32_t {
    FocalLength,
    PrincipalPoint,
    Distortion,
    Translation,
    RollingShear,    ///< rows of the colour image are displaced in proportion to their height
    SecondRotation,  ///< the upper half of the image is turned against the lower one
};
constexpr std::size_t kModelDepartureCount = 6;

/// Whether a rotation explains the matches.
struct ModelCheck {
    /// Of each departure: how probable it is that a rotation alone leaves residuals that speak for it as much as these.
    std::array<double, kModelDepartureCount> probability{1, 1, 1, 1, 1, 1};

    /// The least probable one of all.
    ModelDeparture strongest() const;
    /// The strongest departure; none when a rotation explains the matches.
    std::optional<ModelDeparture> departure() const;
};

/// When an attempt takes no more pairs.
struct AccuracyGoal {
    std::array<double, 3> deviationDeg{0.005, 0.005, 0.01};  ///< about X, Y and Z
    int leastPairs = 4;  ///< on photographs, three pairs err half as much again as four
    int mostPairs = 8;   ///< after so many, the solution counts as it is
};

/// What an attempt knows about its solution.
struct SolutionQuality {
    std::array<double, 3> deviationDeg{};  ///< one standard deviation about X, Y and Z of the colour camera
    std::array<double, 3> samplingDeg{};   ///< of that, what more pairs can make smaller
    std::optional<HoldOutProof> proof;     ///< none with fewer than two stills that can be judged
    ModelCheck model;

    /// Whether more pairs are not needed.
    bool meets(const AccuracyGoal& goal) const;
};

}  // namespace vq
