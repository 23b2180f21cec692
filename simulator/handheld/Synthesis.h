#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

namespace fieldcal::handheld {

struct SynthesisOptions {
    std::string world = "square";  ///< one of `world::worldNames()`
    unsigned seed = 1;
    int stills = 8;         ///< 1 … 999, the number of keyframes
    bool platform = false;  ///< with images of the rear camera
    /// True minus factory angle about X, Y and Z, within ±20. If not set, drawn within 95 % of the search ranges.
    std::optional<std::array<double, 3>> thirdDriftDeg, platformDriftDeg;
    bool baselines = true;  ///< false: all cameras are at one place, so that there is no parallax
    int repeat = 26;        ///< number of grabs that deliver one still, at least 1
};

/// Renders a session with its true rotations into `folder`, which is created. Equal options give equal files. Each
/// still shows enough of something else than the one before that a program which waits for movement takes it; where
/// that is not found within eight views, or three that hardly differ, the last one is taken. `progress` (may be empty)
/// is called on this thread after each still. Returns false on failure, with one line in `why`.
bool synthesize(const std::string& folder, const SynthesisOptions& options,
                const std::function<void(int done, int total)>& progress, std::string* why);

}  // namespace fieldcal::handheld
