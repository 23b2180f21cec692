#pragma once

#include <vector>

namespace vq {

/// Draws `count` distinct indices below `size` uniformly with the C library's `rand()`, in the order drawn. It is the
/// engine's only source of randomness; the owner of the thread seeds it. Draws fewer than `count` indices when `size`
/// is smaller. `indices` is replaced.
void drawDistinctIndices(int count, int size, std::vector<int>* indices);

}  // namespace vq
