#pragma once

#include <vector>

namespace vq {

/// Draws `count` distinct indices below `size` uniformly with the C library's `rand()`, in the order drawn.
/// The one source of randomness of the engine; whoever owns the thread seeds it. Draws fewer than `count` when `size`
/// is smaller. `indices` is replaced.
void drawDistinctIndices(int count, int size, std::vector<int>* indices);

}  // namespace vq
