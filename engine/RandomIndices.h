#pragma once

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace vq {

/// Draws `count` distinct indices below `size` uniformly with the C library's `rand()`, in the order drawn. It is the
/// engine's only source of randomness; the owner of the thread seeds it. Draws fewer than `count` indices when `size`
/// is smaller. `indices` is replaced.
inline void drawDistinctIndices(int count, int size, std::vector<int>* indices) {
    indices->clear();
    const auto wanted = static_cast<std::size_t>(std::max(std::min(count, size), 0));
    while (indices->size() < wanted) {
        const int index = std::rand() % size;
        if (std::find(indices->begin(), indices->end(), index) == indices->end()) indices->push_back(index);
    }
}

}  // namespace vq
