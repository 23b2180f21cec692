#include "engine/RandomIndices.h"

#include <algorithm>
#include <cstdlib>

namespace vq {

void drawDistinctIndices(int count, int size, std::vector<int>* indices) {
    indices->clear();
    const auto wanted = static_cast<std::size_t>(std::max(std::min(count, size), 0));
    while (indices->size() < wanted) {
        const int index = std::rand() % size;
        if (std::find(indices->begin(), indices->end(), index) == indices->end()) indices->push_back(index);
    }
}

}  // namespace vq
