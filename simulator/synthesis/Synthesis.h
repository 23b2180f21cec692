#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace fieldcal::synthesis {

/// The worlds that can be rendered, in the order in which they are listed to people.
const std::vector<std::string>& worldNames();

struct SynthesisOptions {
    std::string world = "square";  ///< one of `worldNames()`
    unsigned seed = 1;
    int stills = 8;         ///< 1 … 999, each in another direction
    bool platform = false;  ///< with pictures of the rear camera
    /// True minus factory angle about X, Y and Z; within ±20. Without: drawn within 95 % of the search ranges.
    std::optional<std::array<double, 3>> thirdDriftDeg, platformDriftDeg;
    /// Mean infrared level, 1 … 900. Without: what the world's light gives, about 350 … 450 in the sun.
    std::optional<double> brightness;
    int repeat = 26;  ///< grabs that deliver one still, at least 1
};

/// Renders a session with truth into `folder`, which is created. The scene lies at infinity: between the cameras
/// there is only rotation. Equal options give equal files. `progress` (may be empty) is called on this thread after
/// each still. On failure false, and `why` says in one line what is wrong.
bool synthesize(const std::string& folder, const SynthesisOptions& options,
                const std::function<void(int done, int total)>& progress, std::string* why);

}  // namespace fieldcal::synthesis
