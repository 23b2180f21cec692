#pragma once

#include <cstdint>
#include <vector>

namespace fieldcal {

/// The range of depths that the colours cover.
struct DepthRange {
    double nearMetres = 1;
    double farMetres = 10;
};

/// Returns the range from the 5th to the 95th percentile of the depths (millimetres, none of them 0), widened about its
/// middle where it is narrower than a factor of 1.5, so that the noise of a flat wall does not get every colour.
/// Without depths the default range. The order of `depths` changes.
DepthRange percentileRange(std::vector<std::uint16_t>* depths);

/// Returns a range between two, a quarter of the way to the wanted one, so that the colours do not jump with each
/// frame.
DepthRange approach(const DepthRange& present, const DepthRange& wanted);

}  // namespace fieldcal
