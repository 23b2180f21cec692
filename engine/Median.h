#pragma once

#include <algorithm>
#include <vector>

namespace vq {

/// Returns the upper one of two middle values. `values` must not be empty.
inline double medianOf(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

}  // namespace vq
